#include <OrvaneExportKit/platform/FileReplacement.h>
#include <tests/support/Files.h>
#include <tests/support/Printers.h>

#include <gtest/gtest.h>

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QTemporaryDir>

using namespace Qt::Literals::StringLiterals;
using platform::FileAccess;
using platform::FileReplacement;

namespace {

class FileReplacementTest : public testing::Test
{
protected:
    QString path(const QString &name) const { return m_folder.filePath(name); }
    QString folder() const { return m_folder.path(); }

    /// Why the file cannot be written; empty when it is.
    QString problemWith(const QString &file) const
    {
        FileReplacement files;
        return files.write(file, "new") && files.finish() ? QString() : files.failure().reason;
    }

private:
    QTemporaryDir m_folder;
};

TEST_F(FileReplacementTest, WritesNewFilesAndReplacesOldOnes)
{
    support::writeFile(path(u"old"_s), "old and longer");
    FileReplacement files;
    ASSERT_TRUE(files.write(path(u"old"_s), "1") && files.write(path(u"new"_s), "2"))
        << files.failure().reason.toStdString();
    EXPECT_EQ(support::fileContent(path(u"old"_s)), "old and longer");
    ASSERT_TRUE(files.finish());
    EXPECT_EQ(support::filesBelow(folder()), (QMap<QString, QByteArray>{{u"new"_s, "2"}, {u"old"_s, "1"}}));
    EXPECT_EQ(files.replaced(), QStringList({path(u"old"_s), path(u"new"_s)}));
}

TEST_F(FileReplacementTest, AFileThatAppearsMeanwhileIsReplaced)
{
    FileReplacement files;
    ASSERT_TRUE(files.write(path(u"new"_s), "kit"));
    support::writeFile(path(u"new"_s), "other");
    ASSERT_TRUE(files.finish());
    EXPECT_EQ(support::filesBelow(folder()), (QMap<QString, QByteArray>{{u"new"_s, "kit"}}));
}

TEST_F(FileReplacementTest, WhatIsNotFinishedIsGone)
{
    support::writeFile(path(u"old"_s), "old");
    {
        FileReplacement files;
        ASSERT_TRUE(files.write(path(u"old"_s), "1") && files.write(path(u"new"_s), "2"));
        EXPECT_EQ(files.replaced(), QStringList());
    }
    EXPECT_EQ(support::filesBelow(folder()), (QMap<QString, QByteArray>{{u"old"_s, "old"}}));
}

TEST_F(FileReplacementTest, ThereCanBeMoreFilesThanAProgramMayHaveOpen)
{
    constexpr int count = 3000;
    FileReplacement files;
    for (int number = 0; number < count; ++number) {
        ASSERT_TRUE(files.write(path(QString::number(number)), QByteArray::number(number)))
            << files.failure().reason.toStdString();
    }
    ASSERT_TRUE(files.finish());
    EXPECT_EQ(files.replaced().size(), count);
    const QMap<QString, QByteArray> written = support::filesBelow(folder());
    ASSERT_EQ(written.size(), count);
    for (auto file = written.begin(); file != written.end(); ++file) {
        ASSERT_EQ(file.key().toUtf8(), *file);
    }
}

TEST_F(FileReplacementTest, FilesCanGoIntoManyFolders)
{
    constexpr int count = 100;
    FileReplacement files;
    for (int number = 0; number < count; ++number) {
        ASSERT_TRUE(QDir(folder()).mkdir(QString::number(number)));
        ASSERT_TRUE(files.write(path(QString::number(number) + u"/file"_s), "text"));
    }
    ASSERT_TRUE(files.finish());
    EXPECT_EQ(support::filesBelow(folder()).size(), count);
}

TEST_F(FileReplacementTest, LargeFilesDoNotWaitForTheEnd)
{
    FileReplacement files;
    ASSERT_TRUE(files.write(path(u"large"_s), QByteArray(64 * 1024 * 1024, 'x')));
    EXPECT_EQ(files.replaced(), QStringList{path(u"large"_s)});
    EXPECT_EQ(QFileInfo(path(u"large"_s)).size(), 64 * 1024 * 1024);
}

TEST_F(FileReplacementTest, AFailureLeavesTheOtherFilesToBeFinished)
{
    FileReplacement files;
    ASSERT_TRUE(files.write(path(u"1"_s), "1"));
    EXPECT_FALSE(files.write(path(u"missing/2"_s), "2"));
    EXPECT_EQ(files.failure().path, path(u"missing/2"_s));
    ASSERT_TRUE(files.write(path(u"3"_s), "3"));
    ASSERT_TRUE(files.finish());
    EXPECT_EQ(files.replaced(), QStringList({path(u"1"_s), path(u"3"_s)}));
}

TEST_F(FileReplacementTest, SaysWhyAFileCannotBeWritten)
{
    EXPECT_EQ(problemWith(QString()), u"its path names no file"_s);
    EXPECT_EQ(problemWith(folder() + u'/'), u"its path names no file"_s);
    EXPECT_EQ(problemWith(path(u"a\0b"_s)), u"its name holds a null character"_s);
    for (const QString &file : {folder(), path(u"missing/file"_s), path(QString(300, u'x'))}) {
        const QString problem = problemWith(file);
        EXPECT_FALSE(problem.isEmpty()) << testing::PrintToString(file);
        EXPECT_FALSE(problem.contains(u"nknown"_s)) << testing::PrintToString(problem);
    }
    EXPECT_EQ(support::filesBelow(folder()), (QMap<QString, QByteArray>()));
}

} // namespace
