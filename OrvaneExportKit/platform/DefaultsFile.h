#pragma once

#include <OrvaneExportKit/platform/DefaultsError.h>
#include <OrvaneExportKit/platform/DomainChange.h>

#include <QtCore/QString>
#include <QtCore/QStringList>

namespace platform {

/// The file that keeps one domain, `<domain>.plist` in the folder.
///
/// Programs that save at the same time take turns (`DefaultsLock`). Readers need no lock: a file is replaced as a
/// whole, so that they meet the old or the new one.
class DefaultsFile
{
public:
    /// Throws a `DefaultsError` when `domain` cannot name a file in the folder, and when `folder` is empty.
    DefaultsFile(const QString &folder, const QString &domain);

    /// The domains that have a file in the folder, sorted. Throws when the folder cannot be read.
    static QStringList domainNames(const QString &folder);

    /// What the file holds. Throws when it cannot be read or is not a property list with a dictionary.
    DomainContents read() const;

    /// Changes the file; when this returns, it is on disk. A file that holds no settings is first kept under another
    /// name: then a sentence says so, else the result is empty. Throws when the change cannot be saved.
    QString save(const DomainChange &change) const;

    /// Throws when the values cannot be part of a domain.
    void requireWritable(const QVariantMap &values) const;

private:
    struct Reading {
        DomainContents contents;
        QString problem; ///< why what is there is no settings file; empty when it is one or nothing is there
    };

    Reading tryRead() const;
    QString keepAside(const QString &problem) const;
    QString nameToKeep() const;
    QByteArray serialized(const QVariantMap &contents) const;
    DefaultsError notRead(const QString &why) const;
    DefaultsError notWritable(const QString &why) const;
    void replace(const QVariantMap &contents) const;
    void remove() const;

    QString m_folder;
    QString m_path;
};

} // namespace platform
