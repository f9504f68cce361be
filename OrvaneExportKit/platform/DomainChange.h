#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QVariant>

#include <optional>

namespace platform {

/// What a domain holds; nothing when there is no such domain.
using DomainContents = std::optional<QVariantMap>;

/// What is to become of a domain, independent of what it holds at the moment: so a change that could not be saved can
/// be saved later without undoing what another program did to other keys meanwhile.
class DomainChange
{
public:
    /// Changes nothing.
    DomainChange() = default;

    /// Replaces the whole domain, or removes it.
    static DomainChange replacement(const DomainContents &contents);

    /// Sets one key, or with an invalid value removes it.
    static DomainChange entry(const QString &key, const QVariant &value);

    /// Adds a change that follows this one.
    void append(const DomainChange &later);

    DomainContents appliedTo(const DomainContents &contents) const;

    bool replacesDomain() const { return m_replacesDomain; }

    /// The keys that are set or removed, beside a replacement.
    QStringList keys() const { return m_entries.keys(); }

private:
    bool m_replacesDomain = false;
    DomainContents m_replacement;
    QVariantMap m_entries; ///< on top of the replacement or of what the domain holds; an invalid value removes its key
};

} // namespace platform
