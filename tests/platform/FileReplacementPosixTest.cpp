#include <OrvaneExportKit/platform/FileReplacement.h>
#include <tests/support/ChildProcess.h>
#include <tests/support/Files.h>
#include <tests/support/Printers.h>

#include <gtest/gtest.h>

#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QTemporaryDir>

#include <csignal>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;
using platform::FileAccess;
using platform::FileReplacement;

namespace {

class FileReplacementOnPosix : public testing::Test
{
protected:
    QByteArray path(const char *name) const { return QFile::encodeName(m_folder.filePath(QString::fromUtf8(name))); }
    QString folder() const { return m_folder.path(); }

    static bool replace(const QByteArray &file, FileAccess access = FileAccess::AsUsual)
    {
        FileReplacement files(access);
        return files.write(QFile::decodeName(file), "new") && files.finish();
    }

    static mode_t permissions(const QByteArray &file)
    {
        struct stat status = {};
        EXPECT_EQ(stat(file.constData(), &status), 0);
        return status.st_mode & 07777;
    }

private:
    QTemporaryDir m_folder;
};

TEST_F(FileReplacementOnPosix, ANewFileIsForWhomTheUserLetsReadNewFiles)
{
    const mode_t old = umask(027);
    EXPECT_TRUE(replace(path("file")));
    umask(old);
    EXPECT_EQ(permissions(path("file")), 0640U);
}

TEST_F(FileReplacementOnPosix, AReplacedFileKeepsItsPermissions)
{
    support::writeFile(folder() + u"/file"_s, "old");
    ASSERT_EQ(chmod(path("file").constData(), 0666), 0);
    EXPECT_TRUE(replace(path("file")));
    EXPECT_EQ(permissions(path("file")), 0666U);
}

TEST_F(FileReplacementOnPosix, AFileForItsOwnerIsForNobodyElse)
{
    support::writeFile(folder() + u"/file"_s, "old");
    ASSERT_EQ(chmod(path("file").constData(), 0644), 0);
    EXPECT_TRUE(replace(path("file"), FileAccess::OwnerAlone));
    EXPECT_EQ(permissions(path("file")), 0600U);
    EXPECT_TRUE(replace(path("new"), FileAccess::OwnerAlone));
    EXPECT_EQ(permissions(path("new")), 0600U);
}

TEST_F(FileReplacementOnPosix, ALinkStaysAndItsFileIsReplaced)
{
    support::writeFile(folder() + u"/file"_s, "old");
    ASSERT_EQ(symlink("file", path("link").constData()), 0);
    ASSERT_EQ(symlink("new", path("dangling").constData()), 0);
    EXPECT_TRUE(replace(path("link")) && replace(path("dangling")));
    EXPECT_TRUE(QFileInfo(QFile::decodeName(path("link"))).isSymLink());
    EXPECT_TRUE(QFileInfo(QFile::decodeName(path("dangling"))).isSymLink());
    EXPECT_EQ(support::fileContent(folder() + u"/file"_s), "new");
    EXPECT_EQ(support::fileContent(folder() + u"/new"_s), "new");
}

TEST_F(FileReplacementOnPosix, ACircleOfLinksIsRefused)
{
    ASSERT_EQ(symlink("b", path("a").constData()), 0);
    ASSERT_EQ(symlink("a", path("b").constData()), 0);
    EXPECT_FALSE(replace(path("a")));
}

TEST_F(FileReplacementOnPosix, WhatIsNoFileIsNotReplaced)
{
    ASSERT_EQ(mkfifo(path("pipe").constData(), 0600), 0);
    EXPECT_FALSE(replace(path("pipe")));
    EXPECT_FALSE(replace(QFile::encodeName(folder())));
    struct stat status = {};
    ASSERT_EQ(lstat(path("pipe").constData(), &status), 0);
    EXPECT_TRUE(S_ISFIFO(status.st_mode));
}

TEST_F(FileReplacementOnPosix, AFileThatMustNotBeWrittenIsNotReplaced)
{
    support::writeFile(folder() + u"/file"_s, "old");
    ASSERT_EQ(chmod(path("file").constData(), 0444), 0);
    ASSERT_EQ(chmod(QFile::encodeName(folder()).constData(), 0777), 0);
    support::runAsNobody([&] { EXPECT_FALSE(replace(path("file"))); });
    EXPECT_EQ(support::fileContent(folder() + u"/file"_s), "old");
}

TEST_F(FileReplacementOnPosix, FilesGoIntoAFolderThatMayBeWrittenAndNotRead)
{
    ASSERT_EQ(chmod(QFile::encodeName(folder()).constData(), 0333), 0);
    support::runAsNobody([&] { EXPECT_TRUE(replace(path("file"))); });
    ASSERT_EQ(chmod(QFile::encodeName(folder()).constData(), 0700), 0);
    EXPECT_EQ(support::fileContent(folder() + u"/file"_s), "new");
}

TEST_F(FileReplacementOnPosix, TheFilesThatMayBeOpenCanBeFew)
{
    support::runInChild([&] {
        const rlimit few = {40, 40};
        EXPECT_EQ(setrlimit(RLIMIT_NOFILE, &few), 0);
        FileReplacement files;
        for (int number = 0; number < 200; ++number) {
            EXPECT_TRUE(files.write(folder() + u'/' + QString::number(number), "text"));
        }
        EXPECT_TRUE(files.finish());
    });
    EXPECT_EQ(support::filesBelow(folder()).size(), 200);
}

TEST_F(FileReplacementOnPosix, OnlyWhatNobodyHoldsIsRemoved)
{
    const QByteArray abandoned = path(".orvane-saving-0123456789abcdef");
    const QByteArray held = path(".orvane-saving-0000000000000000");
    for (const QByteArray &file :
         {abandoned, held, path(".orvane-saving-mine"), path("orvane-saving-0123456789abcdef")}) {
        support::writeFile(QFile::decodeName(file), "part");
    }
    ASSERT_EQ(mkfifo(path(".orvane-saving-1111111111111111").constData(), 0600), 0);
    ASSERT_EQ(symlink("file", path(".orvane-saving-2222222222222222").constData()), 0);
    const int holder = open(held.constData(), O_RDONLY | O_CLOEXEC);
    ASSERT_EQ(flock(holder, LOCK_EX), 0);

    EXPECT_TRUE(replace(path("file")));
    struct stat status = {};
    EXPECT_NE(lstat(abandoned.constData(), &status), 0);
    for (const char *left : {".orvane-saving-0000000000000000", ".orvane-saving-mine", "orvane-saving-0123456789abcdef",
                             ".orvane-saving-1111111111111111", ".orvane-saving-2222222222222222"}) {
        EXPECT_EQ(lstat(path(left).constData(), &status), 0) << left;
    }
    close(holder);
    EXPECT_TRUE(replace(path("file")));
    EXPECT_NE(lstat(held.constData(), &status), 0);
}

} // namespace
