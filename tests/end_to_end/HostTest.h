#pragma once

#include <tests/end_to_end/Files.h>
#include <tests/end_to_end/HostProcess.h>
#include <tests/support/Printers.h>

#include <gtest/gtest.h>

#include <QtCore/QByteArray>
#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QTemporaryDir>

namespace end_to_end {

/// A document of a manuscript made for a test.
struct TestDocument {
    QString name;
    QByteArray text;
    QString status = {};
    QString label = {};
};

/// A temporary folder that holds a manuscript of three documents, One, Two and Three, and an empty destination.
class HostTest : public testing::Test
{
protected:
    HostTest();

    /// A path in the temporary folder.
    QString path(const QString &name) const;
    QString manuscript() const { return path(QStringLiteral("manuscript")); }
    QString destination() const { return path(QStringLiteral("destination")); }

    /// The path of a file in the destination.
    QString exported(const QString &name) const { return destination() + u'/' + name; }

    /// A folder for plug-ins, and a copy of one of the test plug-ins in it.
    QString plugins() const { return path(QStringLiteral("plugins")); }
    void addTestPlugin(const QString &name) const;

    /// Replaces the manuscript by one with these documents, whose files are 1.txt, 2.txt ...
    void writeManuscript(const QList<TestDocument> &documents) const;

    /// Replaces manuscript.json alone.
    void writeManifest(const QByteArray &json) const;

    /// The arguments that export the manuscript to the destination as plain text.
    QStringList exportArguments(const QStringList &options = {}) const;

    /// Runs the program with these arguments.
    HostResult runExport(const QStringList &options = {}) const { return runHost(exportArguments(options)); }

private:
    QTemporaryDir m_folder;
};

} // namespace end_to_end
