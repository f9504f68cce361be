#include <OrvaneExportKit/platform/DomainChange.h>

namespace platform {

DomainChange DomainChange::replacement(const DomainContents &contents)
{
    DomainChange change;
    change.m_replacesDomain = true;
    change.m_replacement = contents;
    return change;
}

DomainChange DomainChange::entry(const QString &key, const QVariant &value)
{
    DomainChange change;
    change.m_entries.insert(key, value);
    return change;
}

void DomainChange::append(const DomainChange &later)
{
    if (later.m_replacesDomain) {
        *this = later;
    } else {
        m_entries.insert(later.m_entries);
    }
}

DomainContents DomainChange::appliedTo(const DomainContents &contents) const
{
    DomainContents changed = m_replacesDomain ? m_replacement : contents;
    for (auto entry = m_entries.cbegin(); entry != m_entries.cend(); ++entry) {
        if (entry->isValid()) {
            if (!changed) {
                changed.emplace();
            }
            changed->insert(entry.key(), *entry);
        } else if (changed) {
            changed->remove(entry.key());
        }
    }
    return changed;
}

} // namespace platform
