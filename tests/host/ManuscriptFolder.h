#pragma once

#include <examples/host/ManuscriptReader.h>
#include <tests/support/TemporaryDefaults.h>

#include <QtCore/QByteArray>
#include <QtCore/QString>
#include <QtCore/QTemporaryDir>

namespace host_tests {

/// A temporary folder with a manuscript of which the documents are made by a test, and an empty destination.
class ManuscriptFolder : public support::TemporaryDefaults
{
protected:
    ManuscriptFolder();

    /// Adds a document; its file is called like it, with the extension "txt".
    void addDocument(const QString &name, const QByteArray &text);

    QString path(const QString &name) const { return m_folder.filePath(name); }
    QString manuscript() const { return path(QStringLiteral("manuscript")); }
    QString destination() const { return path(QStringLiteral("destination")); }
    QString fileOf(const QString &document) const { return manuscript() + u'/' + document + QStringLiteral(".txt"); }

    static QByteArray contentOf(const QString &path);
    static void writeFile(const QString &path, const QByteArray &content);

private:
    QTemporaryDir m_folder;
    QStringList m_names;
};

} // namespace host_tests
