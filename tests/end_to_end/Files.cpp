#include <tests/end_to_end/Files.h>
#include <tests/support/Printers.h>

#include <gtest/gtest.h>

#include <QtCore/QDir>
#include <QtCore/QElapsedTimer>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>

#include <chrono>
#include <thread>

namespace end_to_end {

void writeFile(const QString &path, const QByteArray &content)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly)) << testing::PrintToString(path);
    EXPECT_EQ(file.write(content), content.size());
}

QByteArray fileContent(const QString &path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << testing::PrintToString(path);
    return file.readAll();
}

void copyInto(const QString &folder, const QString &file)
{
    EXPECT_TRUE(QDir().mkpath(folder));
    const QString copy = folder + u'/' + QFileInfo(file).fileName();
    EXPECT_TRUE(QFile::copy(file, copy)) << testing::PrintToString(copy);
}

QStringList filesIn(const QString &folder)
{
    return QDir(folder).entryList(QDir::Files | QDir::Hidden, QDir::Name);
}

QStringList exportedFilesIn(const QString &folder)
{
    return QDir(folder).entryList({QStringLiteral("*.txt")}, QDir::Files, QDir::Name);
}

bool waitForExportedFiles(const QString &folder, qsizetype count)
{
    QElapsedTimer timer;
    timer.start();
    while (exportedFilesIn(folder).size() < count) {
        if (timer.hasExpired(30000)) {
            return false;
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
    return true;
}

} // namespace end_to_end
