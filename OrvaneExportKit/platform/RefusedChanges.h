#pragma once

#include <OrvaneExportKit/platform/DomainChange.h>

#include <QtCore/QMap>
#include <QtCore/QString>

namespace platform {

/// What was set and can never be saved, so that nobody is told that all is on disk. A refused change is known until
/// another one takes its place: one of the same key, or of the whole domain.
class RefusedChanges
{
public:
    /// Keeps why a change of the domain was refused.
    void add(const QString &domain, const DomainChange &change, const QString &sentence);

    /// Forgets what this change takes the place of.
    void replaceBy(const QString &domain, const DomainChange &change);

    bool isEmpty() const { return m_refused.isEmpty(); }

    /// Why the first of them was refused; empty when there is none.
    QString sentence() const;

private:
    struct OfDomain {
        QString replacement;         ///< why the whole domain was refused; empty when it was not
        QMap<QString, QString> keys; ///< why a key was refused
    };

    QMap<QString, OfDomain> m_refused;
};

} // namespace platform
