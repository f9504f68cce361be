#include <tests/end_to_end/HostTest.h>

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QProcess>
#include <QtCore/QProcessEnvironment>
#include <QtCore/QRegularExpression>

using namespace Qt::Literals::StringLiterals;

namespace end_to_end {

namespace {

class PluginFolder : public HostTest
{
protected:
    HostResult listPlugins() const { return runHost({u"--list-plugins"_s, u"--plugin-folder"_s, plugins()}); }

    /// Lists the folder, which must hold the plain-text plug-in and one file that can't be used because of all this.
    testing::AssertionResult reportsBadFile(const QString &file, const QStringList &pieces) const
    {
        copyInto(plugins(), plainTextPlugin);
        const HostResult result = listPlugins();
        if (result.exitCode != 0 || !result.output.contains("plain-text: Plain Text (.txt)"_L1) ||
            result.errors.contains("code of the foreign plug-in ran"_L1)) {
            return testing::AssertionFailure()
                   << result.exitCode << testing::PrintToString(result.output) << testing::PrintToString(result.errors);
        }
        for (const QString &piece : QStringList{u"'%1/%2' can't be used: "_s.arg(plugins(), file)} + pieces) {
            if (!result.errors.contains(piece)) {
                return testing::AssertionFailure()
                       << testing::PrintToString(result.errors) << " lack " << testing::PrintToString(piece);
            }
        }
        return testing::AssertionSuccess();
    }
};

} // namespace

TEST_F(PluginFolder, ListShowsNamesExtensionMetadataAndChoices)
{
    copyInto(plugins(), plainTextPlugin);
    const HostResult result = listPlugins();
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.errors, u""_s);
    EXPECT_EQ(result.output, uR"(plain-text: Plain Text (.txt), version 1.0.0
  UTF-8 text without any marks
  --set 'line-length=72'
      breaks lines that are longer (a number; 0 keeps long lines)
  --set 'quotation-language=en_US'
      makes straight quotation marks typographic (a language such as en_US, de or fr_FR, or none)
  --set 'inline-tags=**,**;//,//'
      deletes the tags around inline spans (pairs start,stop separated by semicolons)
  --set 'level-strings=###,##,#'
      deletes the marks of headings at the start of lines (strings separated by commas)
  --set 'paragraph-marks=>'
      deletes the marks of paragraphs at the start of lines (strings separated by commas)
  --set 'tab-width=4'
      makes blanks of the tabs at the start of lines (a number from 0 to 64, or keep)
  --set 'empty-lines=keep'
      what becomes of empty lines (keep or drop)
  --set 'typography=yes'
      corrects ellipses, apostrophes and dashes (yes or no)
)"_s);
}

TEST_F(PluginFolder, IsNamedByTheEnvironmentUnlessTheCommandLineNamesOne)
{
    addTestPlugin(u"slow"_s);
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"ORVANE_PLUGIN_PATH"_s, plugins());
    const auto listed = [&environment](const QStringList &options) {
        QProcess process;
        process.setProcessEnvironment(environment);
        process.start(hostProgram, QStringList{u"--list-plugins"_s} + options);
        return finished(process).output;
    };
    EXPECT_EQ(listed({}), u"slow: slow (.txt)\n"_s);
    const QString own = listed({u"--plugin-folder"_s, QFileInfo(plainTextPlugin).path()});
    EXPECT_EQ(own.count(QRegularExpression(u"(?m)^(html|latex|plain-text): "_s)), 3) << own.toStdString();
}

TEST_F(PluginFolder, Missing)
{
    EXPECT_TRUE(failedWith(3, {u"no plug-in folder '%1'"_s.arg(plugins()), u"ORVANE_PLUGIN_PATH"_s}, listPlugins()));
}

TEST_F(PluginFolder, WithoutPluginsSaysSo)
{
    EXPECT_TRUE(QDir().mkpath(plugins()));
    writeFile(plugins() + u"/README"_s, "Put plug-ins here.");
    const HostResult result = listPlugins();
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.output, u""_s);
    EXPECT_EQ(result.errors, u"There are no plug-ins in '%1'.\n"_s.arg(plugins()));
}

TEST_F(PluginFolder, UnknownPluginNamesTheOthersAndTheFolder)
{
    copyInto(plugins(), plainTextPlugin);
    addTestPlugin(u"slow"_s);
    addTestPlugin(u"other-version"_s);
    EXPECT_TRUE(failedWith(3,
                           {u"'word-salad'"_s, u"'%1'"_s.arg(plugins()), u"holds: plain-text, slow\n"_s,
                            u"other-version.so' can't be used"_s},
                           runHost({u"export"_s, manuscript(), u"--plugin"_s, u"word-salad"_s, u"--to"_s, destination(),
                                    u"--plugin-folder"_s, plugins()})));
}

TEST_F(PluginFolder, TextFileNamedLikeALibrary)
{
    EXPECT_TRUE(QDir().mkpath(plugins()));
    writeFile(plugins() + u"/notes.so"_s, "This is no library.");
    EXPECT_TRUE(reportsBadFile(u"notes.so"_s, {u"it is no Qt plug-in"_s}));
}

TEST_F(PluginFolder, LibraryThatIsNoPlugin)
{
    copyInto(plugins(), faultsLibrary);
    EXPECT_TRUE(reportsBadFile(QFileInfo(faultsLibrary).fileName(), {u"it is no Qt plug-in"_s}));
}

TEST_F(PluginFolder, DamagedPlugin)
{
    EXPECT_TRUE(QDir().mkpath(plugins()));
    writeFile(plugins() + u"/cut.so"_s, fileContent(plainTextPlugin).first(1000));
    EXPECT_TRUE(reportsBadFile(u"cut.so"_s, {u"it is no Qt plug-in"_s}));
}

TEST_F(PluginFolder, PluginOfAnotherKindIsNotRun)
{
    addTestPlugin(u"other-kind"_s);
    EXPECT_TRUE(reportsBadFile(u"other-kind.so"_s, {u"another kind"_s, u"'org.example.Translator/1'"_s}));
}

TEST_F(PluginFolder, PluginForAnotherVersionIsNotRun)
{
    addTestPlugin(u"other-version"_s);
    EXPECT_TRUE(reportsBadFile(u"other-version.so"_s,
                               {u"was built for version 1 of the plug-in interface, this program has version 2; "
                                "rebuild it against"_s}));
}

TEST_F(PluginFolder, PluginWhoseClassIsNoExportPlugin)
{
    addTestPlugin(u"pretending"_s);
    copyInto(plugins(), plainTextPlugin);
    const HostResult result = listPlugins();
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_TRUE(result.output.startsWith("plain-text:"_L1));
    EXPECT_TRUE(result.errors.contains("pretending.so' can't be used: its class ForeignPlugin "_L1))
        << testing::PrintToString(result.errors);
}

TEST_F(PluginFolder, PluginThatFailsWhileItIsCreated)
{
    addTestPlugin(u"unloadable"_s);
    EXPECT_TRUE(reportsBadFile(u"unloadable.so"_s, {u"failed while it was loaded: the ink is missing"_s}));
}

TEST_F(PluginFolder, PluginBuiltAgainstANewerKitIsRefused)
{
    addTestPlugin(u"newer"_s);
    EXPECT_TRUE(reportsBadFile(u"newer.so"_s, {u"it can't be loaded: "_s, u"operationOfANewerKit"_s,
                                               u"rebuild it against the kit that this program came with"_s}));
}

TEST_F(PluginFolder, SecondPluginOfOneName)
{
    copyInto(plugins(), plainTextPlugin);
    EXPECT_TRUE(QFile::copy(plainTextPlugin, plugins() + u"/twin.so"_s));
    const HostResult result = listPlugins();
    EXPECT_EQ(result.output.count("plain-text:"_L1), 1);
    EXPECT_TRUE(result.errors.contains("twin.so' can't be used: the folder holds another"_L1))
        << testing::PrintToString(result.errors);
}

TEST_F(PluginFolder, PluginThatThrowsStopsTheExportAtThatDocument)
{
    addTestPlugin(u"failing"_s);
    for (const QByteArray &text : {QByteArray("throw an exception"), QByteArray("throw a number")}) {
        writeManuscript({{u"One"_s, "The first."}, {u"Two"_s, text}, {u"Three"_s, "The third."}});
        const HostResult result = runHost({u"export"_s, manuscript(), u"--plugin"_s, u"failing"_s, u"--to"_s,
                                           destination(), u"--plugin-folder"_s, plugins(), u"--yes"_s});
        EXPECT_EQ(result.exitCode, 3);
        EXPECT_EQ(result.output, exported(u"001 One.txt\n"_s));
        EXPECT_TRUE(result.errors.startsWith("Exported 1 of 3 documents "_L1));
        EXPECT_TRUE(result.errors.contains("orvane-host: the plug-in failing failed on the document 'Two': "_L1))
            << testing::PrintToString(result.errors);
        EXPECT_EQ(result.errors.contains("the ink has run out"_L1), text == "throw an exception");
        EXPECT_EQ(filesIn(destination()), QStringList{u"001 One.txt"_s});
    }
}

} // namespace end_to_end
