#pragma once

#include <OrvaneExportKit/run/ExportPlugin.h>

#include <QtCore/QList>
#include <QtCore/QString>

/// \file
/// Choices of a plug-in as texts: which there are, and which values they take.

namespace styled {

struct ChoiceRule {
    QString key;
    QString defaultValue;
    QString purpose;       ///< what the choice does, for the user
    QString allowedValues; ///< which values it takes, for the user
    bool (*accepts)(const QString &value);
};

/// The rules as a host lists them.
QList<ExportPlugin::Choice> choicesOf(const QList<ChoiceRule> &rules);

/// Stores a value that its rule accepts. Throws `platform::InvalidArgumentException` for an unknown key and for a value
/// that is not accepted.
void storeChoice(KZExportSettings &settings, const QList<ChoiceRule> &rules, const QString &key, const QString &value);

/// What the settings hold under the key, which a rule has, as text; the rule's default if there is nothing. Throws
/// `platform::InvalidArgumentException` when the rule does not accept what is there.
QString choiceIn(const KZExportSettings &settings, const QList<ChoiceRule> &rules, const QString &key);

} // namespace styled
