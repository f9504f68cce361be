#pragma once

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QVariant>

class KZExportSettings;

/// \file
/// The styles that a format knows, as its settings keep them: three lists of dictionaries with the keys of
/// `settings/SettingsKeys.h`. The identifier of a style is how the format calls it, such as "h1" or "section".

namespace styled {

/// A style of whole paragraphs.
struct ParagraphStyle {
    QString identifier;
    QString description;   ///< for the user
    QString tag;           ///< what such a paragraph begins with in plain text; may be empty
    bool relaxed = false;  ///< whether the tag counts also where no blank follows it
    QString attributeName; ///< in attributed text, units whose attribute of this name is the identifier; may be empty
};

/// A style of spans inside paragraphs.
struct InlineStyle {
    QString identifier;
    QString description;
    QString startTag; ///< what encloses such a span in plain text; both may be empty
    QString endTag;
    QString attributeName;
};

/// A paragraph that consists of a mark alone, and becomes something of the format's own, such as a rule.
struct MarkerStyle {
    QString identifier;
    QString description;
    QString tag;
};

struct Styles {
    QList<ParagraphStyle> paragraphs;
    QList<InlineStyle> spans;
    QList<MarkerStyle> markers;
};

/// The styles that the settings keep; the lists that are missing there are taken from `defaults`.
Styles stylesIn(const KZExportSettings &settings, const Styles &defaults);

/// Stores in the settings the lists that are missing there, for a panel to show.
void addMissingStyles(KZExportSettings &settings, const Styles &defaults);

} // namespace styled
