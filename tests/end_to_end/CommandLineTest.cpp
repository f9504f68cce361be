#include <tests/end_to_end/HostTest.h>

#include <OrvaneExportKit/version.h>

#include <QtCore/QFile>
#include <QtCore/QProcess>

using namespace Qt::Literals::StringLiterals;

namespace end_to_end {

namespace {

class CommandLine : public HostTest
{
protected:
    HostResult runInDestination(const QStringList &arguments) const
    {
        QProcess process;
        process.setWorkingDirectory(destination());
        process.start(hostProgram, arguments);
        return finished(process);
    }
};

} // namespace

TEST_F(CommandLine, HelpExplainsOptionsTokensEnvironmentAndExitCodes)
{
    const HostResult result = runHost({u"--help"_s});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.errors, u""_s);
    for (const QString &word : {u"export MANUSCRIPT"_s,
                                u"--plugin "_s,
                                u"--to "_s,
                                u"--pattern "_s,
                                u"--extension "_s,
                                u"--convert-spaces"_s,
                                u"--set "_s,
                                u"--yes"_s,
                                u"--list-plugins"_s,
                                u"--plugin-folder "_s,
                                u"--help"_s,
                                u"--version"_s,
                                u"<1>"_s,
                                u"<2>"_s,
                                u"<3>"_s,
                                u"<4>"_s,
                                u"<5>"_s,
                                u"ORVANE_PLUGIN_PATH"_s,
                                u"manuscript.json"_s,
                                u"Exit codes"_s,
                                u"\n    0  "_s,
                                u"\n    1  "_s,
                                u"\n    2  "_s,
                                u"\n    3  "_s,
                                u"\n    4  "_s,
                                u"\n    5  "_s,
                                u"\n  130  "_s}) {
        EXPECT_TRUE(result.output.contains(word)) << testing::PrintToString(word);
    }
    EXPECT_EQ(runHost({u"-h"_s}).output, result.output);
}

TEST_F(CommandLine, VersionIsThatOfTheKit)
{
    const HostResult result = runHost({u"--version"_s});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.output, u"orvane-host " ORVANE_EXPORT_KIT_VERSION_STRING "\n"_s);
    EXPECT_EQ(runHost({u"-v"_s}).output, result.output);
}

TEST_F(CommandLine, ResultsThatNobodyTakesAreAnError)
{
    QProcess process;
    process.setStandardOutputFile(u"/dev/full"_s);
    process.start(hostProgram, {u"--help"_s});
    EXPECT_TRUE(failedWith(4, {u"standard output"_s, u"No space left on device"_s}, finished(process)));
}

TEST_F(CommandLine, ListsTheFilesAndCountsThem)
{
    const HostResult result = runExport();
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.output,
              exported(u"001 One.txt\n"_s) + exported(u"002 Two.txt\n"_s) + exported(u"003 Three.txt\n"_s));
    EXPECT_EQ(result.errors, u"Exported 3 documents of 'A Test' to '%1'.\n"_s.arg(destination()));
}

TEST_F(CommandLine, CountsASingleDocument)
{
    writeManuscript({{u"One"_s, "The first."}});
    EXPECT_EQ(runExport().errors, u"Exported 1 document of 'A Test' to '%1'.\n"_s.arg(destination()));
}

TEST_F(CommandLine, AManuscriptWithoutDocumentsGivesNoFiles)
{
    writeManuscript({});
    const HostResult result = runExport();
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.output, u""_s);
    EXPECT_EQ(filesIn(destination()), QStringList());
}

TEST_F(CommandLine, PatternTakesAllTokens)
{
    writeManuscript({{u"One"_s, "The first.", u"Draft"_s, u"Chapter"_s}});
    EXPECT_EQ(runExport({u"--pattern"_s, u"<4>-<1>-<2>-<3>-<5>"_s}).exitCode, 0);
    EXPECT_EQ(filesIn(destination()), QStringList{u"Chapter-001-One-Draft-.txt"_s});
}

TEST_F(CommandLine, ConvertSpacesWritesUnderscores)
{
    EXPECT_EQ(runExport({u"--convert-spaces"_s}).exitCode, 0);
    EXPECT_EQ(filesIn(destination()), QStringList({u"001_One.txt"_s, u"002_Two.txt"_s, u"003_Three.txt"_s}));
}

TEST_F(CommandLine, ExtensionReplacesThatOfThePlugin)
{
    EXPECT_EQ(runExport({u"--pattern"_s, u"<1>"_s, u"--extension"_s, u"text"_s}).exitCode, 0);
    EXPECT_EQ(runExport({u"--pattern"_s, u"<1>"_s, u"--extension"_s, u".md"_s}).exitCode, 0);
    EXPECT_EQ(runExport({u"--pattern"_s, u"<1>"_s, u"--extension="_s}).exitCode, 0);
    EXPECT_EQ(filesIn(destination()), QStringList({u"001"_s, u"001.md"_s, u"001.text"_s, u"002"_s, u"002.md"_s,
                                                   u"002.text"_s, u"003"_s, u"003.md"_s, u"003.text"_s}));
}

TEST_F(CommandLine, TheLastOfRepeatedOptionsCounts)
{
    EXPECT_EQ(runExport({u"--extension=a"_s, u"--extension=b"_s, u"--pattern"_s, u"<2>"_s, u"--set"_s,
                         u"quotation-language=de"_s, u"--set"_s, u"quotation-language=none"_s})
                  .exitCode,
              0);
    EXPECT_EQ(filesIn(destination()), QStringList({u"One.b"_s, u"Three.b"_s, u"Two.b"_s}));
}

TEST_F(CommandLine, RelativePathsStartAtTheWorkingFolder)
{
    const HostResult result =
        runInDestination({u"export"_s, u"../manuscript/"_s, u"--plugin"_s, u"plain-text"_s, u"--to"_s, u"."_s});
    EXPECT_EQ(result.exitCode, 0) << testing::PrintToString(result.errors);
    EXPECT_EQ(filesIn(destination()), QStringList({u"001 One.txt"_s, u"002 Two.txt"_s, u"003 Three.txt"_s}));
}

TEST_F(CommandLine, OptionsMayStandBeforeTheCommand)
{
    EXPECT_EQ(runHost({u"--plugin=plain-text"_s, u"--to"_s, destination(), u"export"_s, manuscript()}).exitCode, 0);
    EXPECT_EQ(filesIn(destination()).size(), 3);
}

TEST_F(CommandLine, WhatIsMissingOrWrongIsNamed)
{
    const auto usageError = [this](const QString &piece, const QStringList &arguments) {
        return failedWith(1, {piece, u"--help"_s}, runInDestination(arguments));
    };
    EXPECT_TRUE(usageError(u"export MANUSCRIPT"_s, {u"--plugin"_s, u"plain-text"_s}));
    EXPECT_TRUE(usageError(u"no command 'import'"_s, {u"import"_s, manuscript()}));
    EXPECT_TRUE(usageError(u"one manuscript"_s, {u"export"_s}));
    EXPECT_TRUE(usageError(u"one manuscript"_s, {u"export"_s, u""_s}));
    EXPECT_TRUE(usageError(u"one manuscript"_s, {u"export"_s, manuscript(), manuscript()}));
    EXPECT_TRUE(usageError(u"one manuscript"_s, {u"open"_s}));
    EXPECT_TRUE(usageError(u"--to belongs to"_s, {u"open"_s, manuscript(), u"--to"_s, destination()}));
    EXPECT_TRUE(usageError(u"--plugin"_s, {u"export"_s, manuscript(), u"--to"_s, destination()}));
    EXPECT_TRUE(usageError(u"--to"_s, {u"export"_s, manuscript(), u"--plugin"_s, u"plain-text"_s}));
    EXPECT_TRUE(usageError(u"--to"_s, {u"export"_s, manuscript(), u"--plugin"_s, u"plain-text"_s, u"--to"_s, u""_s}));
    EXPECT_TRUE(usageError(u"--pattern"_s, exportArguments({u"--pattern"_s, u""_s})));
    EXPECT_TRUE(usageError(u"'a/b'"_s, exportArguments({u"--extension"_s, u"a/b"_s})));
    EXPECT_TRUE(usageError(u"KEY=VALUE, not 'line-length'"_s, exportArguments({u"--set"_s, u"line-length"_s})));
    EXPECT_TRUE(usageError(u"KEY=VALUE, not '=5'"_s, exportArguments({u"--set"_s, u"=5"_s})));
    EXPECT_TRUE(usageError(u"'colour';"_s, exportArguments({u"--colour"_s})));
    EXPECT_TRUE(usageError(u"plugin"_s, {u"--plugin"_s}));
    EXPECT_EQ(filesIn(destination()), QStringList());
}

TEST_F(CommandLine, AWindowWithoutADisplayIsAnErrorAndNoCrash)
{
    for (const QString &platform : {u"xcb"_s, u"there-is-no-such-platform"_s}) {
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"QT_QPA_PLATFORM"_s, platform);
        environment.remove(u"DISPLAY"_s);
        environment.remove(u"WAYLAND_DISPLAY"_s);
        process.setProcessEnvironment(environment);
        process.start(hostProgram, {u"open"_s, manuscript()});
        EXPECT_TRUE(failedWith(6, {u"no window can be shown"_s, u"export"_s}, finished(process)));
    }
}

TEST_F(CommandLine, UnknownChoiceNamesThoseThatThereAre)
{
    EXPECT_TRUE(failedWith(1,
                           {u"plain-text"_s, u"'colour'"_s,
                            u"line-length, quotation-language, inline-tags, level-strings, "
                            "paragraph-marks, tab-width, empty-lines, typography"_s},
                           runExport({u"--set"_s, u"colour=red"_s})));
    EXPECT_EQ(filesIn(destination()), QStringList());
}

TEST_F(CommandLine, RefusedValueNamesTheAllowedOnes)
{
    const QList<QStringList> refused = {
        {u"line-length"_s, u"long"_s, u"a number"_s},
        {u"line-length"_s, u"-1"_s, u"a number"_s},
        {u"line-length"_s, u"4294967296"_s, u"a number"_s},
        {u"quotation-language"_s, u"6"_s, u"en_US, de or fr_FR, or none"_s},
        {u"quotation-language"_s, u""_s, u"en_US, de or fr_FR, or none"_s},
        {u"inline-tags"_s, u"**"_s, u"start,stop"_s},
        {u"inline-tags"_s, u"a,b,c"_s, u"start,stop"_s},
        {u"inline-tags"_s, u"a,"_s, u"start,stop"_s},
        {u"inline-tags"_s, u"a,b;"_s, u"start,stop"_s},
        {u"level-strings"_s, u"#,,##"_s, u"commas"_s},
        {u"paragraph-marks"_s, u",>"_s, u"commas"_s},
        {u"tab-width"_s, u"65"_s, u"0 to 64, or keep"_s},
        {u"empty-lines"_s, u"no"_s, u"keep or drop"_s},
        {u"typography"_s, u"maybe"_s, u"yes or no"_s},
    };
    for (const QStringList &setting : refused) {
        const QString value = setting[0] + u'=' + setting[1];
        SCOPED_TRACE(value.toStdString());
        EXPECT_TRUE(
            failedWith(1, {setting[0], u'\'' + setting[1] + u'\'', setting[2]}, runExport({u"--set"_s, value})));
    }
    EXPECT_EQ(filesIn(destination()), QStringList());
}

} // namespace end_to_end
