#include <tests/end_to_end/HostTest.h>
#include <tests/end_to_end/PseudoTerminal.h>

#include <QtCore/QProcess>

#include <chrono>
#include <csignal>
#include <thread>

using namespace Qt::Literals::StringLiterals;

namespace end_to_end {

namespace {

class Terminal : public HostTest
{
protected:
    /// Writes documents of which each takes so many milliseconds, and gives the arguments that export them.
    QStringList slowExport(int count, int milliseconds) const
    {
        QList<TestDocument> documents;
        for (int number = 1; number <= count; ++number) {
            documents.append({u"Slow"_s, text, u""_s, QString::number(milliseconds)});
        }
        writeManuscript(documents);
        addTestPlugin(u"slow"_s);
        return {u"export"_s,    manuscript(), u"--plugin"_s,        u"slow"_s, u"--to"_s, destination(),
                u"--pattern"_s, u"<1>"_s,     u"--plugin-folder"_s, plugins()};
    }

    /// The files in the destination; each must be whole.
    QStringList wholeFiles() const
    {
        QStringList names = filesIn(destination());
        for (const QString &name : names) {
            EXPECT_EQ(fileContent(exported(name)), text);
        }
        return names;
    }

    const QByteArray text = QByteArray("A line of text.\n").repeated(5000);
};

} // namespace

TEST_F(Terminal, NoKeepsExistingFiles)
{
    for (const char *answer : {"n\n", "\n", "nonsense\n", "\x04"}) {
        writeFile(exported(u"001 One.txt"_s), "old");
        PseudoTerminal terminal(hostProgram, exportArguments());
        EXPECT_TRUE(terminal.waitFor("001 One.txt'\r\nReplace this file? [y/N] ")) << terminal.shown().constData();
        terminal.type(answer);
        EXPECT_EQ(terminal.finish(), 5);
        EXPECT_TRUE(terminal.shown().contains("\r\norvane-host: nothing was exported")) << terminal.shown().constData();
        EXPECT_EQ(filesIn(destination()), QStringList{u"001 One.txt"_s});
        EXPECT_EQ(fileContent(exported(u"001 One.txt"_s)), "old");
    }
}

TEST_F(Terminal, YesReplacesExistingFiles)
{
    for (const char *answer : {"y\n", "Yes\n"}) {
        writeFile(exported(u"001 One.txt"_s), "old");
        writeFile(exported(u"002 Two.txt"_s), "old");
        writeFile(exported(u"003 Three.txt"_s), "old");
        PseudoTerminal terminal(hostProgram, exportArguments());
        EXPECT_TRUE(terminal.waitFor("Replace these 3 files? [y/N] ")) << terminal.shown().constData();
        terminal.type(answer);
        EXPECT_EQ(terminal.finish(), 0);
        EXPECT_EQ(fileContent(exported(u"001 One.txt"_s)), "The first.");
        EXPECT_EQ(fileContent(exported(u"002 Two.txt"_s)), "The second.");
        EXPECT_EQ(fileContent(exported(u"003 Three.txt"_s)), "The third.");
    }
}

TEST_F(Terminal, InterruptionOfTheQuestionChangesNothing)
{
    writeFile(exported(u"001 One.txt"_s), "old");
    PseudoTerminal terminal(hostProgram, exportArguments());
    EXPECT_TRUE(terminal.waitFor("[y/N] ")) << terminal.shown().constData();
    terminal.type("\x03");
    EXPECT_EQ(terminal.finish(), -SIGINT);
    EXPECT_EQ(filesIn(destination()), QStringList{u"001 One.txt"_s});
    EXPECT_EQ(fileContent(exported(u"001 One.txt"_s)), "old");
}

TEST_F(Terminal, ProgressIsOneLineThatIsGoneAtTheEnd)
{
    PseudoTerminal terminal(hostProgram, exportArguments());
    EXPECT_EQ(terminal.finish(), 0);
    for (const char *progress : {"\r1/3 One ", "\r2/3 Two ", "\r3/3 Three "}) {
        EXPECT_TRUE(terminal.shown().contains(progress)) << terminal.shown().constData();
    }
    EXPECT_EQ(terminal.linesLeft(),
              QStringList({exported(u"001 One.txt"_s), exported(u"002 Two.txt"_s), exported(u"003 Three.txt"_s),
                           u"Exported 3 documents of 'A Test' to '%1'."_s.arg(destination())}));
}

TEST_F(Terminal, ProgressIsCutToTheWidth)
{
    writeManuscript({{u"A long and winding name"_s, "1"}, {u"長い名前の文書"_s, "2"}, {u"Bell\a"_s, "3"}});
    PseudoTerminal terminal(hostProgram, exportArguments(), 12);
    EXPECT_EQ(terminal.finish(), 0);
    for (const char *progress : {"\r1/3 A long \r", "\r2/3 長い名 \r", "\r3/3 Bell\\x0\r"}) {
        EXPECT_TRUE(terminal.shown().contains(progress)) << progress << " in " << terminal.shown().constData();
    }
}

TEST_F(Terminal, ShowsControlCharactersAsEscapes)
{
    const QString name = u"Ebb\nFlow\x1b[31m\u009b\u202e\u2028"_s;
    writeManuscript({{name, "1"}});
    PseudoTerminal terminal(hostProgram, exportArguments({u"--pattern"_s, u"<2>"_s}), 400);
    EXPECT_EQ(terminal.finish(), 0);
    const QString shown = QString::fromUtf8(terminal.shown());
    EXPECT_TRUE(shown.contains(exported(u"Ebb\\x0aFlow\\x1b[31m\\x9b\\u202e\\u2028.txt\r\n"_s)))
        << terminal.shown().constData();
    for (const QChar character : {u'\x1b', u'\u009b', u'\u202e', u'\u2028'}) {
        EXPECT_FALSE(shown.contains(character)) << terminal.shown().constData();
    }
    PseudoTerminal separated(hostProgram, exportArguments({u"--pattern"_s, u"<2>"_s, u"--yes"_s, u"--null"_s}), 400);
    EXPECT_EQ(separated.finish(), 0);
    EXPECT_TRUE(QString::fromUtf8(separated.shown()).contains(u"Flow\x1b[31m"_s)) << "a list for programs is changed";
}

TEST_F(Terminal, InterruptionStopsAfterTheCurrentDocument)
{
    PseudoTerminal terminal(hostProgram, slowExport(100, 100));
    EXPECT_TRUE(terminal.waitFor("\r3/100 Slow ")) << terminal.shown().constData();
    terminal.type("\x03");
    EXPECT_EQ(terminal.finish(), 130);
    const QStringList names = wholeFiles();
    EXPECT_GE(names.size(), 3);
    EXPECT_LT(names.size(), 100);
    const QStringList lines = terminal.linesLeft();
    EXPECT_EQ(lines.size(), names.size() + 2) << terminal.shown().constData();
    EXPECT_TRUE(
        lines.contains(u"Exported %1 of 100 documents of 'A Test' to '%2'."_s.arg(names.size()).arg(destination())));
    EXPECT_EQ(lines.last(), u"orvane-host: the export was interrupted; export again for the rest"_s);
}

TEST_F(Terminal, RequestToTerminateStopsAfterTheCurrentDocument)
{
    QProcess process;
    process.start(hostProgram, slowExport(100, 100));
    EXPECT_TRUE(waitForExportedFiles(destination(), 1));
    process.terminate();
    const HostResult result = finished(process);
    EXPECT_EQ(result.exitCode, 130);
    EXPECT_EQ(result.output.count(u'\n'), wholeFiles().size());
    EXPECT_LT(wholeFiles().size(), 100);
    EXPECT_TRUE(result.errors.contains("orvane-host: the export was interrupted"_L1));
    EXPECT_FALSE(result.errors.contains(u'\r')) << "progress without a terminal";
}

TEST_F(Terminal, KilledExportWritesNothingMore)
{
    QProcess process;
    process.start(hostProgram, slowExport(100, 100));
    EXPECT_TRUE(waitForExportedFiles(destination(), 2));
    process.kill();
    EXPECT_TRUE(process.waitForFinished());
    std::this_thread::sleep_for(std::chrono::milliseconds(50));
    const QStringList names = wholeFiles();
    EXPECT_LT(names.size(), 100);
    std::this_thread::sleep_for(std::chrono::milliseconds(500));
    EXPECT_EQ(wholeFiles(), names);
}

TEST_F(Terminal, ReaderOfTheListThatGoesAwayDoesNotStopTheExport)
{
    QProcess process;
    process.start(u"sh"_s, QStringList{u"-c"_s, u"{ \"$@\"; echo \"code $?\" >&2; } | true"_s, u"sh"_s, hostProgram} +
                               slowExport(5, 50));
    const HostResult result = finished(process);
    EXPECT_EQ(wholeFiles().size(), 5);
    EXPECT_TRUE(
        result.errors.contains("standard output takes no more text: Broken pipe; free it and run again\ncode 4"_L1))
        << testing::PrintToString(result.errors);
}

TEST_F(Terminal, SecondInterruptionStopsAtOnce)
{
    PseudoTerminal terminal(hostProgram, slowExport(2, 60000));
    EXPECT_TRUE(terminal.waitFor("\r1/2 Slow ")) << terminal.shown().constData();
    EXPECT_EQ(terminal.finish("\x03"), -SIGINT);
    EXPECT_EQ(wholeFiles(), QStringList());
}

} // namespace end_to_end
