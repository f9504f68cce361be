#pragma once

#include <gtest/gtest.h>

#include <QtCore/QByteArray>
#include <QtCore/QDir>
#include <QtCore/QDirIterator>
#include <QtCore/QFile>
#include <QtCore/QMap>
#include <QtCore/QString>

/// \file
/// Files that tests put down and look at. A failure fails the test.

namespace support {

/// Writes a file, replacing one that exists.
inline void writeFile(const QString &path, const QByteArray &content)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly)) << path.toStdString();
    EXPECT_EQ(file.write(content), content.size());
}

inline QByteArray fileContent(const QString &path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return file.readAll();
}

/// The contents of all files below a folder, hidden ones too, by their path from there.
inline QMap<QString, QByteArray> filesBelow(const QString &folder)
{
    QMap<QString, QByteArray> files;
    QDirIterator file(folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (file.hasNext()) {
        const QString path = file.next();
        files.insert(QDir(folder).relativeFilePath(path), fileContent(path));
    }
    return files;
}

} // namespace support
