#include <tests/end_to_end/DroppedUser.h>
#include <tests/end_to_end/HostTest.h>

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QProcess>
#include <QtCore/QProcessEnvironment>

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

    /// Exports with a plug-in that adds files of these names.
    HostResult runExportAdding(const QStringList &names)
    {
        if (!QDir(plugins()).exists()) {
            addTestPlugin(u"failing"_s);
        }
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"ADDITIONAL_FILES"_s, names.join(u';'));
        QProcess process;
        process.setProcessEnvironment(environment);
        process.start(hostProgram, {u"export"_s, manuscript(), u"--plugin"_s, u"failing"_s, u"--to"_s, destination(),
                                    u"--plugin-folder"_s, plugins(), u"--yes"_s});
        return finished(process);
    }

    static QString quotedName(const QString &name) { return u'\'' + name + u'\''; }

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

TEST_F(Destination, NameThatThisSystemRefusesIsReportedBeforeAnythingIsWritten)
{
    writeManuscript({{u"One"_s, "1"}, {QString(300, u'x'), "2"}, {u"Why?"_s, "3"}});
    const HostResult result = runExport();
    EXPECT_TRUE(failedWith(4,
                           {u"longer than 255 bytes"_s, u"'003 Why?.txt': "_s, u"this system can't have these files"_s,
                            u"\n  document 2, 'xxx"_s, u".txt': File name too long\n"_s},
                           result));
    EXPECT_EQ(filesIn(destination()), QStringList());
}

TEST_F(Destination, LongestNameIsWritten)
{
    const QString name(255, u'x');
    writeManuscript({{name, "1"}});
    EXPECT_EQ(runExport({u"--pattern"_s, u"<2>"_s, u"--extension="_s}).exitCode, 0);
    EXPECT_EQ(filesIn(destination()), QStringList{name});
}

TEST_F(Destination, NullInANameIsRefusedBeforeItMakesTwoDocumentsOne)
{
    const QString withNull = u"a"_s + QChar(u'\0') + u'b';
    writeManuscript({{u"a"_s, "1"}, {withNull, "2"}});
    EXPECT_TRUE(failedWith(4, {u"this system can't have these files"_s, u"\n  document 2, 'a\\x00b': '"_s},
                           runExport({u"--pattern"_s, u"<2>"_s, u"--extension="_s, u"--yes"_s})));
    EXPECT_EQ(filesIn(destination()), QStringList());
}

TEST_F(Destination, FilesOfAPluginGoIntoFoldersInside)
{
    const HostResult result = runExportAdding({u"fonts/a/f.ttf"_s, u"fonts/g.ttf"_s, u"index.html"_s});
    EXPECT_EQ(result.exitCode, 0) << testing::PrintToString(result.errors);
    EXPECT_TRUE(result.output.endsWith(exported(u"fonts/a/f.ttf\n"_s) + exported(u"fonts/g.ttf\n"_s) +
                                       exported(u"index.html\n"_s)));
    EXPECT_EQ(fileContent(exported(u"fonts/a/f.ttf"_s)), "fonts/a/f.ttf");
    EXPECT_EQ(fileContent(exported(u"fonts/g.ttf"_s)), "fonts/g.ttf");
    EXPECT_EQ(filesIn(destination()).size(), 4);
}

TEST_F(Destination, FilesOfAPluginStayInside)
{
    for (const QString &name : {u"../evil.txt"_s, u"fonts/../../evil.txt"_s, u"/tmp/evil.txt"_s, u"fonts//evil.txt"_s,
                                u"./evil.txt"_s, u"fonts/"_s, u".."_s, u"..\\evil.txt"_s, u"evilNULL.txt"_s}) {
        SCOPED_TRACE(name.toStdString());
        EXPECT_TRUE(failedWith(3, {u"would not stay inside the destination folder; "_s, u"\n  '"_s},
                               runExportAdding({u"fine.txt"_s, name})));
        EXPECT_EQ(filesLeft(), QStringList());
    }
    EXPECT_EQ(QDir(destination()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), QStringList());
}

TEST_F(Destination, FilesOfAPluginFollowNoLink)
{
    EXPECT_TRUE(QDir().mkdir(path(u"outside"_s)));
    EXPECT_TRUE(QFile::link(path(u"outside"_s), exported(u"fonts"_s)));
    EXPECT_TRUE(QFile::link(path(u"outside/index.html"_s), exported(u"index.html"_s)));
    for (const QString &name : {u"fonts/f.ttf"_s, u"index.html"_s}) {
        EXPECT_TRUE(failedWith(3, {u"would not stay inside the destination folder"_s, quotedName(name)},
                               runExportAdding({name})));
    }
    EXPECT_EQ(filesIn(path(u"outside"_s)), QStringList());
}

TEST_F(Destination, FilesInTheWayOfFoldersAreReportedBeforeAnythingIsWritten)
{
    writeFile(exported(u"fonts"_s), "in the way");
    EXPECT_TRUE(failedWith(4, {u"where the plug-in needs folders"_s, u"'%1'"_s.arg(exported(u"fonts"_s))},
                           runExportAdding({u"fonts/f.ttf"_s})));
    EXPECT_TRUE(failedWith(4, {u"where the plug-in needs folders"_s, u"'%1'"_s.arg(exported(u"001 One.txt"_s))},
                           runExportAdding({u"001 One.txt/f.ttf"_s})));
    EXPECT_EQ(filesIn(destination()), QStringList{u"fonts"_s});
}

TEST_F(Destination, FileOfAPluginThatIsThatOfADocumentIsReported)
{
    EXPECT_TRUE(failedWith(4, {u"would become the same file"_s, u"the plug-in's own file: '"_s},
                           runExportAdding({u"002 Two.txt"_s})));
    EXPECT_EQ(filesIn(destination()), QStringList());
}

TEST_F(Destination, ControlCharactersInNamesDoNotReachMessages)
{
    writeManuscript({{u"Bell\aRing"_s, "1"}});
    const HostResult result = runExport();
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_FALSE(result.errors.contains(u'\a'));
    EXPECT_TRUE(result.errors.contains(u"'001 Bell\\x07Ring.txt'"_s)) << testing::PrintToString(result.errors);
}

TEST_F(Destination, ListOfFilesHoldsTheBytesOfTheirNames)
{
    const QString name = u"Ebb\nFlow\x1b[31m\u202e"_s;
    writeManuscript({{name, "1"}, {u"Two"_s, "2"}});
    const QStringList options{u"--pattern"_s, u"<2>"_s, u"--yes"_s};
    EXPECT_EQ(runExport(options).output, exported(name + u".txt\n"_s) + exported(u"Two.txt\n"_s));
    EXPECT_EQ(runExport(options + QStringList{u"--null"_s}).output.split(QChar(u'\0')),
              QStringList({exported(name + u".txt"_s), exported(u"Two.txt"_s), u""_s}));
    EXPECT_EQ(runExport(options + QStringList{u"-0"_s}).output.count(QChar(u'\0')), 2);
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
