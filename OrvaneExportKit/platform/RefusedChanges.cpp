#include <OrvaneExportKit/platform/RefusedChanges.h>

namespace platform {

void RefusedChanges::add(const QString &domain, const DomainChange &change, const QString &sentence)
{
    OfDomain &refused = m_refused[domain];
    if (change.replacesDomain()) {
        refused.replacement = sentence;
    }
    for (const QString &key : change.keys()) {
        refused.keys.insert(key, sentence);
    }
}

void RefusedChanges::replaceBy(const QString &domain, const DomainChange &change)
{
    const auto refused = m_refused.find(domain);
    if (refused == m_refused.end()) {
        return;
    }
    for (const QString &key : change.keys()) {
        refused->keys.remove(key);
    }
    if (change.replacesDomain() || (refused->replacement.isEmpty() && refused->keys.isEmpty())) {
        m_refused.erase(refused);
    }
}

QString RefusedChanges::sentence() const
{
    if (m_refused.isEmpty()) {
        return {};
    }
    const OfDomain &first = m_refused.first();
    return first.replacement.isEmpty() ? first.keys.first() : first.replacement;
}

} // namespace platform
