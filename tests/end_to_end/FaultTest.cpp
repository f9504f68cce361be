#include <tests/end_to_end/HostTest.h>
#include <tests/support/Faults.h>

#include <QtCore/QElapsedTimer>
#include <QtCore/QFile>
#include <QtCore/QProcess>
#include <QtCore/QProcessEnvironment>

#include <cerrno>
#include <chrono>
#include <random>
#include <thread>

using namespace Qt::Literals::StringLiterals;

namespace end_to_end {

namespace {

class Fault : public HostTest
{
protected:
    /// Runs the export of the manuscript while the system fails on the files below a folder.
    HostResult exportMeeting(const QMap<QString, QString> &faults, const QString &folder,
                             const QStringList &options = {u"--yes"_s, u"--set"_s, u"line-length=0"_s}) const
    {
        QProcess process;
        process.setProcessEnvironment(environmentWith(faults, folder));
        process.start(hostProgram, exportArguments(options));
        return finished(process);
    }

    static QProcessEnvironment environmentWith(const QMap<QString, QString> &faults, const QString &folder)
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        support::insertFaults(environment, folder, faults);
        return environment;
    }

    /// Runs it while the disk of the destination takes no more than so many bytes.
    HostResult exportToFullDisk(int freeBytes) const
    {
        return exportMeeting({{u"ROOM"_s, QString::number(freeBytes)}}, destination());
    }

    void emptyDestination() const
    {
        for (const QString &name : filesIn(destination())) {
            EXPECT_TRUE(QFile::remove(exported(name)));
        }
    }

    /// Kills exports that meet the faults, each at another moment; then one that is left alone leaves nothing but its
    /// files.
    void expectWholeFilesAfterKills(const QMap<QString, QString> &faults) const;

    /// Exports with a plug-in that fails where the document or the environment asks for it.
    HostResult exportByFailingPlugin(const QString &operation = {}, const QString &way = {}) const
    {
        return runFailing({u"export"_s, manuscript(), u"--plugin"_s, u"failing"_s, u"--to"_s, destination(),
                           u"--plugin-folder"_s, plugins(), u"--yes"_s, u"--set"_s, u"ink=blue"_s},
                          operation, way);
    }

    static HostResult runFailing(const QStringList &arguments, const QString &operation, const QString &way)
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"FAILING_OPERATION"_s, operation);
        environment.insert(u"FAILING_WAY"_s, way);
        environment.insert(u"QT_QPA_PLATFORM"_s, u"offscreen"_s);
        environment.insert(u"ASAN_OPTIONS"_s, u"handle_segv=0"_s); // the crash is the system's to report
        QProcess process;
        process.setProcessEnvironment(environment);
        process.start(hostProgram, arguments);
        return finished(process);
    }

    /// The paths of the files in the destination, a line each.
    QString listOfFiles() const
    {
        QString list;
        for (const QString &name : filesIn(destination())) {
            list += exported(name) + u'\n';
        }
        return list;
    }
};

/// An operation in which a plug-in can end the program.
struct Operation {
    QString name;
    QString description; ///< in the message, from the name of the plug-in on

    friend bool operator==(const Operation &, const Operation &) = default;
};

const QList<Operation> operationsBeforeWriting{
    {u"static initialiser"_s, u"failing.so' %1 on its loading; "_s},
    {u"constructor"_s, u"failing.so' %1 on its loading; "_s},
    {u"name"_s, u"failing.so' %1 on its name; "_s},
    {u"displayName"_s, u"failing %1 on the name that users read; "_s},
    {u"pathExtension"_s, u"failing %1 on the extension of its files; "_s},
    {u"choices"_s, u"failing %1 on its choices; "_s},
    {u"settings"_s, u"failing %1 on its settings; "_s},
    {u"setChoice"_s, u"failing %1 on the choice 'ink'; "_s},
    {u"additionalFileNames"_s, u"failing %1 on the names of its files; "_s},
};

const QList<Operation> operationsOfWriting{
    {u"exportedData"_s, u"failing %1 on the document 'Two'; "_s},
    {u"additionalFileData"_s, u"failing %1 on the file 'index.txt'; "_s},
    {u"destructor"_s, u"failing %1 on its end; "_s},
};

/// Ways to end a program, and how messages call them.
const QMap<QString, QString> waysToEnd{
    {u"exit"_s, u"ended the program"_s},       {u"_exit"_s, u"ended the program"_s},
    {u"_exit 7"_s, u"ended the program"_s},    {u"quick_exit"_s, u"ended the program"_s},
    {u"terminate"_s, u"crashed (signal 6)"_s}, {u"abort"_s, u"crashed (signal 6)"_s},
    {u"crash"_s, u"crashed (signal 11)"_s},    {u"kill"_s, u"crashed (signal 9)"_s},
};

/// A text of its own for each number.
QByteArray largeText(int number)
{
    return QByteArray::number(number).repeated(1000) + '\n';
}

void Fault::expectWholeFilesAfterKills(const QMap<QString, QString> &faults) const
{
    constexpr int documentCount = 600; // more than are written together
    QList<TestDocument> documents;
    for (int number = 1; number <= documentCount; ++number) {
        documents.append({u"Large"_s, largeText(number)});
    }
    writeManuscript(documents);
    const QStringList options{u"--yes"_s, u"--pattern"_s, u"<1>"_s, u"--set"_s, u"line-length=0"_s};

    QElapsedTimer timer;
    timer.start();
    EXPECT_EQ(exportMeeting(faults, destination(), options).exitCode, 0);
    std::mt19937 random(1); // the same parts of the time in every run of the test
    std::uniform_int_distribution<qint64> microseconds(0, timer.nsecsElapsed() / 1000);
    int cutShort = 0;
    for (int run = 0; run < 12; ++run) {
        emptyDestination();
        QProcess process;
        process.setProcessEnvironment(environmentWith(faults, destination()));
        process.start(hostProgram, exportArguments(options));
        EXPECT_TRUE(process.waitForStarted());
        std::this_thread::sleep_for(std::chrono::microseconds(microseconds(random)));
        process.kill();
        EXPECT_TRUE(process.waitForFinished());
        const QStringList names = exportedFilesIn(destination());
        for (const QString &name : names) {
            EXPECT_EQ(fileContent(exported(name)), largeText(name.first(3).toInt())) << testing::PrintToString(name);
        }
        cutShort += names.size() < documentCount ? 1 : 0;
    }
    EXPECT_GT(cutShort, 0) << "no run was killed before its end";
    EXPECT_EQ(exportMeeting(faults, destination(), options).exitCode, 0);
    EXPECT_EQ(filesIn(destination()).size(), documentCount) << "unfinished files were left";
}

} // namespace

TEST_F(Fault, FullDiskKeepsOldFilesAndLeavesNoPartialOnes)
{
    const QByteArray large(100000, '2');
    writeManuscript({{u"One"_s, "1"}, {u"Two"_s, large}, {u"Three"_s, "3"}});
    writeFile(exported(u"002 Two.txt"_s), "old");

    const HostResult result = exportToFullDisk(50000);
    EXPECT_EQ(result.exitCode, 4);
    EXPECT_EQ(result.output, exported(u"001 One.txt\n"_s));
    EXPECT_TRUE(result.errors.startsWith("Exported 1 of 3 documents"_L1)) << testing::PrintToString(result.errors);
    EXPECT_TRUE(result.errors.contains(
        u"orvane-host: '%1' can't be written: No space left on device"_s.arg(exported(u"002 Two.txt"_s))))
        << testing::PrintToString(result.errors);
    EXPECT_EQ(filesIn(destination()), QStringList({u"001 One.txt"_s, u"002 Two.txt"_s}));
    EXPECT_EQ(fileContent(exported(u"002 Two.txt"_s)), "old");

    EXPECT_EQ(runExport({u"--yes"_s, u"--set"_s, u"line-length=0"_s}).exitCode, 0);
    EXPECT_EQ(fileContent(exported(u"002 Two.txt"_s)), large);
    EXPECT_EQ(filesIn(destination()).size(), 3);
}

TEST_F(Fault, DiskWithoutAnyRoomLeavesNoFile)
{
    const HostResult result = exportToFullDisk(0);
    EXPECT_TRUE(failedWith(4, {exported(u"001 One.txt"_s), u"No space left on device"_s}, result));
    EXPECT_EQ(filesIn(destination()), QStringList());
}

TEST_F(Fault, FullDiskAtAnyWriteKeepsOldFilesWhole)
{
    const QByteArray large(40000, '2');
    writeManuscript({{u"One"_s, "1"}, {u"Two"_s, large}, {u"Three"_s, "3"}});
    int failures = 0;
    for (int writes = 0;; ++writes) {
        SCOPED_TRACE(writes);
        writeFile(exported(u"002 Two.txt"_s), "old");
        const HostResult result = exportMeeting({{u"WRITES"_s, QString::number(writes)}}, destination());
        if (result.exitCode == 0) {
            break;
        }
        ASSERT_TRUE(result.errors.contains("can't be written: No space left on device; see to that and try again"_L1));
        for (const QString &name : filesIn(destination())) {
            const QByteArray content = fileContent(exported(name));
            const QList<QByteArray> allowed{"1", "3", "old", large};
            ASSERT_TRUE(allowed.contains(content)) << testing::PrintToString(name);
        }
        ++failures;
    }
    EXPECT_GE(failures, 3);
    EXPECT_EQ(fileContent(exported(u"002 Two.txt"_s)), large);
}

TEST_F(Fault, WritesThatTakeAFewBytesEachGiveWholeFiles)
{
    const QByteArray large(3000, '2');
    writeManuscript({{u"Two"_s, large}});
    EXPECT_EQ(exportMeeting({{u"LONGEST_WRITE"_s, u"7"_s}}, destination()).exitCode, 0);
    EXPECT_EQ(fileContent(exported(u"001 Two.txt"_s)), large);
}

TEST_F(Fault, FileThatCannotTakeItsPlaceLeavesTheOldOne)
{
    writeFile(exported(u"001 One.txt"_s), "old");
    const HostResult result = exportMeeting({{u"RENAME"_s, QString::number(EACCES)}}, destination());
    EXPECT_TRUE(failedWith(4, {exported(u"001 One.txt"_s), u"Permission denied; see to that and try again"_s}, result));
    EXPECT_EQ(filesIn(destination()), QStringList{u"001 One.txt"_s});
    EXPECT_EQ(fileContent(exported(u"001 One.txt"_s)), "old");
    EXPECT_EQ(runExport({u"--yes"_s}).exitCode, 0);
}

TEST_F(Fault, DocumentThatVanishesWhileTheManuscriptIsReadIsNamedBeforeAnythingIsWritten)
{
    const HostResult result = exportMeeting({{u"VANISHED"_s, u"2.txt"_s}}, manuscript());
    EXPECT_TRUE(
        failedWith(2, {manuscript() + u"/2.txt"_s, u"can't be read: No such file or directory; check"_s}, result));
    EXPECT_EQ(filesIn(destination()), QStringList());
    EXPECT_EQ(runExport().exitCode, 0);
}

TEST_F(Fault, ClockThatIsSetBackOrForwardChangesNothing)
{
    for (const QString &seconds : {u"-100000000"_s, u"100000000"_s}) {
        EXPECT_EQ(exportMeeting({{u"CLOCK"_s, seconds}}, destination()).exitCode, 0);
        EXPECT_EQ(fileContent(exported(u"001 One.txt"_s)), "The first.");
    }
}

TEST_F(Fault, PluginThatThrowsOutOfAnyOperationIsNamed)
{
    addTestPlugin(u"failing"_s);
    EXPECT_TRUE(failedWith(3, {u"the plug-in failing failed on the names of its files: the ink has run out; "_s},
                           exportByFailingPlugin(u"additionalFileNames"_s)));
    for (const QString &operation : {u"pathExtension"_s, u"choices"_s}) {
        EXPECT_TRUE(failedWith(3, {u"failing.so' can't be used: it failed while it was loaded: the ink has run out"_s},
                               exportByFailingPlugin(operation)));
    }
    EXPECT_EQ(filesIn(destination()), QStringList());
    EXPECT_EQ(exportByFailingPlugin().exitCode, 0);
}

TEST_F(Fault, PluginThatCrashesIsNamedAndLeavesWholeFilesOnly)
{
    addTestPlugin(u"failing"_s);
    writeManuscript({{u"One"_s, "1"}, {u"Two"_s, "crash"}, {u"Three"_s, "3"}});
    writeFile(exported(u"002 Two.txt"_s), "old");
    const HostResult result = exportByFailingPlugin();
    EXPECT_EQ(result.exitCode, 3);
    EXPECT_TRUE(result.errors.contains("orvane-host: the plug-in failing crashed (signal 11) on the document 'Two'; "
                                       "the files that are listed are whole, all others are as they were; "_L1))
        << testing::PrintToString(result.errors);
    const QString first = exported(u"001 One.txt"_s);
    EXPECT_EQ(result.output, QFile::exists(first) ? first + u'\n' : QString());
    if (QFile::exists(first)) {
        EXPECT_EQ(fileContent(first), "1");
    }
    EXPECT_EQ(fileContent(exported(u"002 Two.txt"_s)), "old");
    writeManuscript({{u"One"_s, "1"}, {u"Two"_s, "2"}});
    EXPECT_EQ(exportByFailingPlugin().exitCode, 0);
    EXPECT_EQ(fileContent(exported(u"002 Two.txt"_s)), "2");
}

TEST_F(Fault, PluginThatEndsTheProgramInAnyOperationIsNamedAndTheFilesAreListed)
{
    addTestPlugin(u"failing"_s);
    for (const Operation &operation : operationsBeforeWriting + operationsOfWriting) {
        for (auto way = waysToEnd.begin(); way != waysToEnd.end(); ++way) {
            SCOPED_TRACE((operation.name + u" by "_s + way.key()).toStdString());
            const HostResult result = exportByFailingPlugin(operation.name, way.key());
            EXPECT_EQ(result.exitCode, 3);
            EXPECT_TRUE(result.errors.contains(operation.description.arg(way.value())))
                << testing::PrintToString(result.errors);
            EXPECT_EQ(result.output, listOfFiles());
            EXPECT_TRUE(result.output.isEmpty() || !operationsBeforeWriting.contains(operation));
            for (const QString &name : filesIn(destination())) {
                EXPECT_TRUE(QFile::remove(exported(name)));
            }
        }
    }
}

TEST_F(Fault, FileThatTheDiskDoesNotTakeIsNamedAndTheFilesBeforeItAreWhole)
{
    const QMap<int, QString> errors{
        {EIO, u"Input/output error"_s}, {ENOSPC, u"No space left on device"_s}, {EDQUOT, u"Disk quota exceeded"_s}};
    for (const QString &fault : {u"FLUSH"_s, u"LINK"_s}) {
        for (auto error = errors.begin(); error != errors.end(); ++error) {
            SCOPED_TRACE(testing::PrintToString(fault + u' ' + *error));
            emptyDestination();
            const HostResult result = exportMeeting({{fault, u"%1@2"_s.arg(error.key())}}, destination());
            EXPECT_EQ(result.exitCode, 4);
            EXPECT_EQ(result.output, exported(u"001 One.txt\n"_s));
            EXPECT_TRUE(result.errors.contains(u"Exported 1 of 3 documents"_s));
            EXPECT_TRUE(result.errors.contains(
                u"orvane-host: '%1' can't be written: %2"_s.arg(exported(u"002 Two.txt"_s), *error)))
                << testing::PrintToString(result.errors);
            EXPECT_EQ(filesIn(destination()), QStringList{u"001 One.txt"_s});
            EXPECT_EQ(runExport({u"--yes"_s}).exitCode, 0);
            EXPECT_EQ(filesIn(destination()).size(), 3);
        }
    }
}

TEST_F(Fault, PluginWhoseLibraryEndsTheProgramLastIsNamed)
{
    addTestPlugin(u"failing"_s);
    for (const QString &way : {u"_exit 7"_s, u"terminate"_s, u"crash"_s}) {
        const HostResult result = exportByFailingPlugin(u"static destructor"_s, way);
        EXPECT_EQ(result.exitCode, 3);
        EXPECT_TRUE(result.errors.contains(
            u"one of the plug-ins failing %1 on the end of the program; "_s.arg(waysToEnd.value(way))))
            << testing::PrintToString(result.errors);
        EXPECT_EQ(result.output, listOfFiles());
    }
}

#ifdef HOST_WITH_WINDOW
TEST_F(Fault, PluginThatEndsTheProgramInItsWindowIsNamed)
{
    addTestPlugin(u"failing"_s);
    writeManuscript({{u"Two"_s, "2"}});
    for (auto way = waysToEnd.begin(); way != waysToEnd.end(); ++way) {
        SCOPED_TRACE(way.key().toStdString());
        const HostResult result = runFailing({u"open"_s, manuscript(), u"--plugin-folder"_s, plugins()},
                                             u"exportedData"_s, way.key()); // which the preview asks for
        EXPECT_TRUE(failedWith(3, {u"the plug-in failing %1 on the document 'Two'; "_s.arg(way.value())}, result));
    }
}
#endif

TEST_F(Fault, FolderThatCannotBeOpenedOrFlushedIsAnError)
{
    HostResult result = exportMeeting({{u"OPEN_FOLDER"_s, QString::number(EIO)}}, destination());
    EXPECT_TRUE(failedWith(4, {exported(u"001 One.txt"_s), u"can't be written: Input/output error"_s}, result));
    EXPECT_EQ(filesIn(destination()), QStringList());

    result = exportMeeting({{u"FLUSH_FOLDER"_s, QString::number(EIO)}}, destination());
    EXPECT_EQ(result.exitCode, 4);
    EXPECT_TRUE(result.errors.contains(
        u"'%1' is written, but may be lost if the computer stops now"_s.arg(exported(u"001 One.txt"_s))))
        << testing::PrintToString(result.errors);
    EXPECT_TRUE(result.errors.contains(u"Input/output error"_s));
    EXPECT_EQ(result.output.count(u'\n'), 3);
    EXPECT_EQ(filesIn(destination()).size(), 3);
    EXPECT_EQ(runExport({u"--yes"_s}).exitCode, 0);
}

TEST_F(Fault, FilesOfAFileSystemThatCannotBeFlushedAreNotTrusted)
{
    writeManuscript(QList<TestDocument>(40, {u"Same"_s, "text"}));
    const QMap<QString, QString> onKnownFileSystem{{u"FILE_SYSTEM"_s, QString::number(0xEF53)}};
    QMap<QString, QString> faults = onKnownFileSystem;
    faults.insert(u"FLUSH_ALL"_s, QString::number(EIO));
    HostResult result = exportMeeting(faults, destination());
    EXPECT_TRUE(failedWith(4, {exported(u"001 Same.txt"_s), u"can't be written: Input/output error"_s}, result));
    EXPECT_EQ(filesIn(destination()), QStringList());

    faults = onKnownFileSystem;
    faults.insert(u"FLUSH"_s, QString::number(EIO));
    EXPECT_EQ(exportMeeting(faults, destination()).exitCode, 0) << "files were flushed one by one";
    EXPECT_EQ(filesIn(destination()).size(), 40);
}

TEST_F(Fault, EachFileIsFlushedWhereAFileSystemDoesNotTellOfAllThatFails)
{
    writeManuscript(QList<TestDocument>(40, {u"Same"_s, "text"}));
    const HostResult result =
        exportMeeting({{u"FILE_SYSTEM"_s, u"1"_s}, {u"FLUSH"_s, u"%1@31"_s.arg(ENOSPC)}}, destination());
    EXPECT_EQ(result.exitCode, 4);
    EXPECT_TRUE(
        result.errors.contains(u"'%1' can't be written: No space left on device"_s.arg(exported(u"031 Same.txt"_s))))
        << testing::PrintToString(result.errors);
    EXPECT_EQ(filesIn(destination()).size(), 30);
}

TEST_F(Fault, KilledAtAnyMomentLeavesWholeFilesOnly)
{
    expectWholeFilesAfterKills({});
}

TEST_F(Fault, KilledAtAnyMomentLeavesWholeFilesOnlyWhereEachFileHasAName)
{
    expectWholeFilesAfterKills({{u"UNNAMED_FILE"_s, QString::number(EOPNOTSUPP)}});
}

} // namespace end_to_end
