#include "Choices.h"

#include <OrvaneExportKit/platform/Exceptions.h>

#include <algorithm>

namespace styled {

namespace {

using namespace Qt::Literals::StringLiterals;

const ChoiceRule &ruleOf(const QList<ChoiceRule> &rules, const QString &key)
{
    const auto rule = std::find_if(rules.begin(), rules.end(), [&key](const auto &other) { return other.key == key; });
    if (rule == rules.end()) {
        throw platform::InvalidArgumentException("there is no choice '" + key.toStdString() + "'");
    }
    return *rule;
}

void requireAccepted(const ChoiceRule &rule, const QString &value)
{
    if (!rule.accepts(value)) {
        throw platform::InvalidArgumentException(
            u"%1 takes %2; '%3' is nothing of that"_s.arg(rule.key, rule.allowedValues, value).toStdString());
    }
}

} // namespace

QList<ExportPlugin::Choice> choicesOf(const QList<ChoiceRule> &rules)
{
    QList<ExportPlugin::Choice> choices;
    for (const ChoiceRule &rule : rules) {
        choices.append({rule.key, rule.defaultValue, rule.purpose + u" ("_s + rule.allowedValues + u')'});
    }
    return choices;
}

void storeChoice(KZExportSettings &settings, const QList<ChoiceRule> &rules, const QString &key, const QString &value)
{
    requireAccepted(ruleOf(rules, key), value);
    settings.setValue(value, key);
}

QString choiceIn(const KZExportSettings &settings, const QList<ChoiceRule> &rules, const QString &key)
{
    const ChoiceRule &rule = ruleOf(rules, key);
    const QVariant stored = settings.objectForKey(key);
    QString value = stored.isValid() ? stored.toString() : rule.defaultValue;
    requireAccepted(rule, value);
    return value;
}

} // namespace styled
