#include <OrvaneExportKit/controls/KZTokenFieldDelegate.h>

#include <algorithm>
#include <utility>

namespace {

/// The string beside the first one of `searched` that equals `string`, or `string` itself.
QString counterpart(const char *operation, const QString &string, const QStringList &searched,
                    const QStringList &counterparts)
{
    const qsizetype index = searched.indexOf(string);
    if (index < 0) {
        return string;
    }
    platform::requireIndex(operation, index, static_cast<std::size_t>(counterparts.size()));
    return counterparts[index];
}

} // namespace

KZTokenFieldDelegate::KZTokenFieldDelegate(QObject *parent) : TokenFieldDelegate(parent)
{
}

KZTokenFieldDelegate::KZTokenFieldDelegate(const QMap<QString, QString> &displayStrings, QObject *parent)
    : TokenFieldDelegate(parent), m_representedObjects(displayStrings.keys())
{
    const auto sortKey = [&displayStrings](const QString &object) {
        return displayStrings.value(object).normalized(QString::NormalizationForm_D);
    };
    std::stable_sort(m_representedObjects.begin(), m_representedObjects.end(),
                     [&sortKey](const QString &a, const QString &b) { return sortKey(a) < sortKey(b); });
    for (const QString &object : std::as_const(m_representedObjects)) {
        m_displayStrings.append(displayStrings.value(object));
    }
}

std::unique_ptr<KZTokenFieldDelegate> KZTokenFieldDelegate::init()
{
    return std::make_unique<KZTokenFieldDelegate>();
}

std::unique_ptr<KZTokenFieldDelegate>
KZTokenFieldDelegate::initWithRepresetedObjectsAndDisplayStrings(const QMap<QString, QString> &displayStrings)
{
    return std::make_unique<KZTokenFieldDelegate>(displayStrings);
}

void KZTokenFieldDelegate::setDisplayStrings(const QStringList &displayStrings)
{
    m_displayStrings = displayStrings;
}

void KZTokenFieldDelegate::setRepresentedObjects(const QStringList &representedObjects)
{
    m_representedObjects = representedObjects;
}

QString KZTokenFieldDelegate::representedObjectForEditingString(windowing::TokenField * /*tokenField*/,
                                                                const QString &editingString) const
{
    return counterpart("representedObjectForEditingString", editingString, m_displayStrings, m_representedObjects);
}

QString KZTokenFieldDelegate::displayStringForRepresentedObject(windowing::TokenField * /*tokenField*/,
                                                                const QString &representedObject) const
{
    return counterpart("displayStringForRepresentedObject", representedObject, m_representedObjects, m_displayStrings);
}

QStringList KZTokenFieldDelegate::completionsForSubstring(windowing::TokenField * /*tokenField*/,
                                                          const QString &substring, qint32 /*indexOfToken*/,
                                                          qint32 * /*indexOfSelectedItem*/) const
{
    const QString prefix = substring.toLower();
    QStringList completions;
    for (const QString &displayString : m_displayStrings) {
        if (displayString.size() >= prefix.size() && displayString.toLower().startsWith(prefix)) {
            completions.append(displayString);
        }
    }
    return completions;
}
