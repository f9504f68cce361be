#include <tests/end_to_end/DroppedUser.h>
#include <tests/end_to_end/HostTest.h>

#include <QtCore/QDir>
#include <QtCore/QFile>

using namespace Qt::Literals::StringLiterals;

namespace end_to_end {

namespace {

class Destination : public HostTest
{
protected:
    HostResult runExportTo(const QString &destinationPath, const QStringList &options = {}) const
    {
        return runHost(
            QStringList{u"export"_s, manuscript(), u"--plugin"_s, u"plain-text"_s, u"--to"_s, destinationPath} +
            options);
    }

    /// Everything below the temporary folder but the manuscript.
    QStringList filesLeft() const { return filesIn(path(u"."_s)) + filesIn(destination()); }
};

} // namespace

TEST_F(Destination, FilePathGivesFolderExtensionAndBaseName)
{
    EXPECT_EQ(
        runExportTo(exported(u"Novel.text"_s), {u"--pattern"_s, u"<5> <1>"_s, u"--extension"_s, u"md"_s}).exitCode, 0);
    EXPECT_EQ(filesIn(destination()), QStringList({u"Novel 001.text"_s, u"Novel 002.text"_s, u"Novel 003.text"_s}));
}

TEST_F(Destination, FilePathWithoutExtensionGivesFilesWithoutOne)
{
    EXPECT_EQ(runExportTo(exported(u"Novel"_s), {u"--pattern"_s, u"<5> <1>"_s}).exitCode, 0);
    EXPECT_EQ(filesIn(destination()), QStringList({u"Novel 001"_s, u"Novel 002"_s, u"Novel 003"_s}));
}

TEST_F(Destination, ExistingFileStandsForItsFolder)
{
    writeFile(exported(u"old.md"_s), "old");
    const HostResult result = runExportTo(exported(u"old.md"_s));
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.errors, u"Exported 3 documents of 'A Test' to '%1'.\n"_s.arg(destination()));
    EXPECT_EQ(filesIn(destination()), QStringList({u"001 One.md"_s, u"002 Two.md"_s, u"003 Three.md"_s, u"old.md"_s}));
    EXPECT_EQ(fileContent(exported(u"old.md"_s)), "old");
}

TEST_F(Destination, MissingFolderIsNamed)
{
    const QString missing = path(u"missing"_s);
    EXPECT_TRUE(failedWith(4, {u"destination folder '%1' does not exist"_s.arg(missing)}, runExportTo(missing)));
    EXPECT_TRUE(failedWith(4, {u"destination folder '%1/' does not exist"_s.arg(missing)},
                           runExportTo(missing + u'/', {u"--pattern"_s, u"<5> <1>"_s})));
    EXPECT_TRUE(failedWith(4, {u"destination folder '%1' does not exist"_s.arg(missing)},
                           runExportTo(missing + u"/Novel.txt"_s)));
    EXPECT_EQ(filesLeft(), QStringList());
}

TEST_F(Destination, FolderThatMayNotBeWrittenIsNamed)
{
    const DroppedUser user;
    makePublic(path(u"."_s));
    makeReadOnly(destination());
    EXPECT_TRUE(failedWith(4, {u"may not write into the destination folder '%1'"_s.arg(destination())},
                           user.runHost(exportArguments())));
    makePublic(destination());
    EXPECT_EQ(filesIn(destination()), QStringList());
}

TEST_F(Destination, RepeatedNamesAreListedAndNothingIsWritten)
{
    writeManuscript({{u"One"_s, "1"}, {u"Two"_s, "2"}, {u"One"_s, "3"}});
    EXPECT_TRUE(failedWith(4,
                           {u"<1>"_s, u"\n  document 1, 'One': '%1'"_s.arg(exported(u"One.txt"_s)),
                            u"\n  document 3, 'One': '%1'"_s.arg(exported(u"One.txt"_s))},
                           runExport({u"--pattern"_s, u"<2>"_s, u"--yes"_s})));
    EXPECT_EQ(filesIn(destination()), QStringList());
}

TEST_F(Destination, LongListsAreCut)
{
    const HostResult result = [this] {
        writeManuscript(QList<TestDocument>(25, {u"One"_s, "1"}));
        return runExport({u"--pattern"_s, u"<2>"_s});
    }();
    EXPECT_TRUE(failedWith(4, {u"document 20, "_s, u"\n  ... and 5 more\n"_s}, result));
    EXPECT_FALSE(result.errors.contains("document 21"_L1));
}

TEST_F(Destination, ExistingFilesAreKeptWithoutATerminal)
{
    writeFile(exported(u"002 Two.txt"_s), "old");
    EXPECT_TRUE(failedWith(5, {u"--yes"_s, u"\n  '%1'"_s.arg(exported(u"002 Two.txt"_s))}, runExport()));
    EXPECT_EQ(filesIn(destination()), QStringList{u"002 Two.txt"_s});
    EXPECT_EQ(fileContent(exported(u"002 Two.txt"_s)), "old");
}

TEST_F(Destination, YesReplacesExistingFiles)
{
    writeFile(exported(u"002 Two.txt"_s), "old and longer than what replaces it");
    EXPECT_EQ(runExport({u"--yes"_s}).exitCode, 0);
    EXPECT_EQ(fileContent(exported(u"002 Two.txt"_s)), "The second.");
    EXPECT_EQ(filesIn(destination()), QStringList({u"001 One.txt"_s, u"002 Two.txt"_s, u"003 Three.txt"_s}));
}

TEST_F(Destination, FolderInTheWayIsNeverReplaced)
{
    EXPECT_TRUE(QDir(destination()).mkdir(u"002 Two.txt"_s));
    EXPECT_TRUE(
        failedWith(4, {u"folders stand"_s, u"'%1'"_s.arg(exported(u"002 Two.txt"_s))}, runExport({u"--yes"_s})));
    EXPECT_EQ(filesIn(destination()), QStringList());
}

TEST_F(Destination, NamesThatLeadOutOfTheFolderAreRefused)
{
    writeManuscript({{u".."_s, "up"}});
    EXPECT_TRUE(
        failedWith(4, {u"folders stand"_s}, runExport({u"--pattern"_s, u"<2>"_s, u"--extension="_s, u"--yes"_s})));
    writeManuscript({{u"../escaped"_s, "up"}});
    EXPECT_EQ(runExport({u"--pattern"_s, u"<2>"_s}).exitCode, 0);
    EXPECT_EQ(filesLeft(), QStringList{u"..:escaped.txt"_s});
}

TEST_F(Destination, ManuscriptItselfIsNeverReplaced)
{
    writeManuscript({{u"1"_s, "1"}, {u"Two"_s, "2"}});
    EXPECT_TRUE(QFile::link(manuscript(), path(u"link"_s)));
    EXPECT_TRUE(failedWith(4, {u"manuscript itself"_s, u"'%1'"_s.arg(path(u"link/1.txt"_s))},
                           runExportTo(path(u"link"_s), {u"--pattern"_s, u"<2>"_s, u"--yes"_s})));
    EXPECT_EQ(filesIn(manuscript()), QStringList({u"1.txt"_s, u"2.txt"_s, u"manuscript.json"_s}));
}

TEST_F(Destination, NamesThatOtherSystemsRefuseAreWarnings)
{
    writeManuscript({{u"Ebb/Flood"_s, "1"}, {u"Why?"_s, "2"}, {u"Fine"_s, "3"}});
    const HostResult result = runExport();
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_TRUE(result.errors.startsWith("orvane-host: warning: "_L1)) << testing::PrintToString(result.errors);
    EXPECT_TRUE(result.errors.contains("\n  '001 Ebb:Flood.txt': "_L1));
    EXPECT_TRUE(result.errors.contains("\n  '002 Why?.txt': "_L1));
    EXPECT_FALSE(result.errors.contains("003 Fine.txt"_L1));
    EXPECT_EQ(filesIn(destination()), QStringList({u"001 Ebb:Flood.txt"_s, u"002 Why?.txt"_s, u"003 Fine.txt"_s}));
}

TEST_F(Destination, NameThatThisSystemRefusesIsReported)
{
    writeManuscript({{u"One"_s, "1"}, {QString(300, u'x'), "2"}});
    const HostResult result = runExport();
    EXPECT_EQ(result.exitCode, 4);
    EXPECT_EQ(result.output, exported(u"001 One.txt\n"_s));
    EXPECT_TRUE(result.errors.contains("longer than 255 bytes"_L1));
    EXPECT_TRUE(result.errors.contains("can't be written: File name too long"_L1))
        << testing::PrintToString(result.errors);
    EXPECT_EQ(filesIn(destination()), QStringList{u"001 One.txt"_s});
}

TEST_F(Destination, ControlCharactersInNamesDoNotReachTheTerminal)
{
    writeManuscript({{u"Bell\aRing"_s, "1"}});
    const HostResult result = runExport();
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_FALSE(result.errors.contains(u'\a'));
    EXPECT_TRUE(result.errors.contains(u"'001 Bell\uFFFDRing.txt'"_s)) << testing::PrintToString(result.errors);
}

TEST_F(Destination, ReplacedFileKeepsItsPermissions)
{
    const QString file = exported(u"001 One.txt"_s);
    writeFile(file, "old");
    const QFileDevice::Permissions readableByGroup =
        QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ReadGroup;
    EXPECT_TRUE(QFile::setPermissions(file, readableByGroup));
    EXPECT_EQ(runExport({u"--yes"_s}).exitCode, 0);
    EXPECT_EQ(QFile::permissions(file) & ~(QFileDevice::ReadUser | QFileDevice::WriteUser), readableByGroup);
}

} // namespace end_to_end
