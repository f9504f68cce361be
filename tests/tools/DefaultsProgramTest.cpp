#include <OrvaneExportKit/platform/UserDefaults.h>
#include <OrvaneExportKit/version.h>
#include <tests/end_to_end/PseudoTerminal.h>
#include <tests/support/DefaultsFolder.h>
#include <tests/support/Faults.h>
#include <tests/support/Files.h>
#include <tests/support/Printers.h>

#include <gtest/gtest.h>

#include <QtCore/QDateTime>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QProcess>
#include <QtCore/QProcessEnvironment>
#include <QtCore/QTimeZone>

#include <array>
#include <cerrno>
#include <ostream>
#include <system_error>
#include <vector>

#include <sys/stat.h>

using namespace Qt::Literals::StringLiterals;
using platform::UserDefaults;

namespace {

constexpr int wrongCommandLine = 1;
constexpr int notSet = 2;
constexpr int failure = 3;

const QString domainName = QStringLiteral("com.example.plain-text");

struct Result {
    int exitCode; ///< -1 when a signal ended the program
    QString output;
    QString errors;
};

/// Succeeds when the program did what it was asked, printed this and reported nothing.
testing::AssertionResult printed(const Result &result, const QString &output)
{
    if (result.exitCode == 0 && result.output == output && result.errors.isEmpty()) {
        return testing::AssertionSuccess();
    }
    return testing::AssertionFailure() << "exit code " << result.exitCode << ", printed "
                                       << testing::PrintToString(result.output) << ", reported "
                                       << testing::PrintToString(result.errors);
}

/// Succeeds when the program ended with the code, printed nothing, and reported this in one line that says whose it is.
testing::AssertionResult failed(const Result &result, int exitCode, const QString &report)
{
    if (result.exitCode == exitCode && result.output.isEmpty() && result.errors.startsWith(u"orvane-defaults: "_s) &&
        result.errors.count(u'\n') == 1 && result.errors.contains(report)) {
        return testing::AssertionSuccess();
    }
    return testing::AssertionFailure() << "exit code " << result.exitCode << ", printed "
                                       << testing::PrintToString(result.output) << ", reported "
                                       << testing::PrintToString(result.errors) << " for "
                                       << testing::PrintToString(report);
}

class DefaultsProgram : public support::DefaultsFolder
{
protected:
    DefaultsProgram()
    {
        environment.insert(u"ORVANE_DEFAULTS_FOLDER"_s, folder());
        environment.insert(u"TZ"_s, u"UTC"_s);
    }

    Result run(const QStringList &arguments, const QByteArray &input = {}) const
    {
        QProcess process;
        process.setProcessEnvironment(environment);
        process.start(QStringLiteral(DEFAULTS_PROGRAM), arguments);
        process.write(input);
        process.closeWriteChannel();
        return finished(process);
    }

    static Result finished(QProcess &process)
    {
        EXPECT_TRUE(process.waitForFinished()) << testing::PrintToString(process.errorString());
        const int exitCode = process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
        return {exitCode, QString::fromUtf8(process.readAllStandardOutput()),
                QString::fromUtf8(process.readAllStandardError())};
    }

    void set(const QVariantMap &domain, const QString &name = domainName) const
    {
        ASSERT_TRUE(UserDefaults(folder()).setPersistentDomain(domain, name));
    }

    /// From now on, the program finds room for so many bytes in all folders of the test.
    void fillDisk(int room) { meet({{u"ROOM"_s, QString::number(room)}}); }

    /// From now on, the program meets these faults in all folders of the test.
    void meet(const QMap<QString, QString> &faults) { support::insertFaults(environment, parentFolder(), faults); }

    QString savedText() const { return QString::fromUtf8(support::fileContent(path(domainName))); }

    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
};

TEST_F(DefaultsProgram, HelpExplainsCommandsTypesFilesAndExitCodes)
{
    const Result result = run({u"--help"_s});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.errors, QString());
    for (const QString &word : {u"\n  domains "_s,
                                u"\n  read DOMAIN KEY "_s,
                                u"\n  write DOMAIN KEY VALUE "_s,
                                u"\n  delete DOMAIN KEY "_s,
                                u"\n  export DOMAIN "_s,
                                u"\n  import DOMAIN "_s,
                                u"-g, --global "_s,
                                u"--type "_s,
                                u"\n  string "_s,
                                u"\n  int "_s,
                                u"\n  float "_s,
                                u"\n  bool "_s,
                                u"\n  date "_s,
                                u"\n  data "_s,
                                u"\n  plist "_s,
                                u"orvane-export-kit"_s,
                                u"ORVANE_DEFAULTS_FOLDER"_s,
                                u".unreadable-1"_s,
                                u"\n  0  "_s,
                                u"\n  1  "_s,
                                u"\n  2  "_s,
                                u"\n  3  "_s}) {
        EXPECT_TRUE(support::contains(result.output, word));
    }
    EXPECT_TRUE(printed(run({u"-h"_s}), result.output));
}

TEST_F(DefaultsProgram, VersionIsThatOfTheKit)
{
    EXPECT_TRUE(printed(run({u"--version"_s}), u"orvane-defaults " ORVANE_EXPORT_KIT_VERSION_STRING "\n"_s));
}

TEST_F(DefaultsProgram, DomainsAreListedByNameOneALine)
{
    EXPECT_TRUE(printed(run({u"domains"_s}), QString()));
    set({}, u"org.example.b"_s);
    set({}, u"org.example.a"_s);
    set({}, UserDefaults::globalDomain());
    EXPECT_TRUE(printed(run({u"domains"_s}), u"GlobalDomain\norg.example.a\norg.example.b\n"_s));
}

TEST_F(DefaultsProgram, ReadPrintsADomainAsItsFileHoldsIt)
{
    set({{u"b"_s, QVariantList{u"x"_s, 1}}, {u"a"_s, u"ä"_s}});
    EXPECT_TRUE(printed(run({u"read"_s, domainName}), savedText()));
}

TEST_F(DefaultsProgram, ReadPrintsOneValueAsPlainText)
{
    set({
        {u"string"_s, u"two\nlines ä"_s},
        {u"integer"_s, -3},
        {u"large"_s, Q_UINT64_C(18446744073709551615)},
        {u"real"_s, 0.1},
        {u"whole"_s, 2.0},
        {u"boolean"_s, false},
        {u"date"_s, QDateTime({2024, 12, 31}, {18, 0, 5}, QTimeZone(3600))},
        {u"data"_s, QByteArray("\0\xff", 2)},
    });
    EXPECT_TRUE(printed(run({u"read"_s, domainName, u"string"_s}), u"two\nlines ä\n"_s));
    EXPECT_TRUE(printed(run({u"read"_s, domainName, u"integer"_s}), u"-3\n"_s));
    EXPECT_TRUE(printed(run({u"read"_s, domainName, u"large"_s}), u"18446744073709551615\n"_s));
    EXPECT_TRUE(printed(run({u"read"_s, domainName, u"real"_s}), u"0.1\n"_s));
    EXPECT_TRUE(printed(run({u"read"_s, domainName, u"whole"_s}), u"2\n"_s));
    EXPECT_TRUE(printed(run({u"read"_s, domainName, u"boolean"_s}), u"false\n"_s));
    EXPECT_TRUE(printed(run({u"read"_s, domainName, u"date"_s}), u"2024-12-31T17:00:05Z\n"_s));
    EXPECT_TRUE(printed(run({u"read"_s, domainName, u"data"_s}), u"AP8=\n"_s));
}

TEST_F(DefaultsProgram, ReadPrintsAnArrayAsAPropertyList)
{
    set({{u"styles"_s, QVariantList{u"bold"_s}}});
    const Result result = run({u"read"_s, domainName, u"styles"_s});
    EXPECT_TRUE(support::contains(result.output, u"<array>\n\t<string>bold</string>\n</array>\n</plist>\n"_s));
    EXPECT_TRUE(printed(result, result.output));
    EXPECT_TRUE(printed(run({u"write"_s, domainName, u"copy"_s, result.output, u"--type=plist"_s}), QString()));
    EXPECT_EQ(savedDomain(domainName)->value(u"copy"_s), QVariantList{u"bold"_s});
}

TEST_F(DefaultsProgram, ReadSaysWhatIsNotSet)
{
    EXPECT_TRUE(failed(run({u"read"_s, domainName}), notSet, u"no domain 'com.example.plain-text'"_s));
    EXPECT_TRUE(failed(run({u"read"_s, u"-g"_s}), notSet, u"no domain 'GlobalDomain'"_s));
    set({{u"a"_s, 1}});
    EXPECT_TRUE(failed(run({u"read"_s, domainName, u"b"_s}), notSet, u"no key 'b'"_s));
}

TEST_F(DefaultsProgram, WriteTakesEveryType)
{
    const auto write = [this](const QString &type, const QString &value) {
        EXPECT_TRUE(printed(run({u"write"_s, u"--type"_s, type, domainName, type, u"--"_s, value}), QString()));
        return savedDomain(domainName).value_or(QVariantMap()).value(type);
    };
    EXPECT_EQ(write(u"string"_s, u"--ä 5 "_s), u"--ä 5 "_s);
    EXPECT_EQ(write(u"int"_s, u"-3"_s), QVariant(qint64(-3)));
    EXPECT_EQ(write(u"int"_s, u"18446744073709551615"_s), QVariant(Q_UINT64_C(18446744073709551615)));
    EXPECT_EQ(write(u"float"_s, u"-2.54"_s), QVariant(-2.54));
    EXPECT_EQ(write(u"bool"_s, u"yes"_s), QVariant(true));
    EXPECT_EQ(write(u"bool"_s, u"false"_s), QVariant(false));
    EXPECT_EQ(write(u"date"_s, u"2024-12-31T18:00:05+01:00"_s),
              QVariant(QDateTime({2024, 12, 31}, {17, 0, 5}, QTimeZone::utc())));
    EXPECT_EQ(write(u"date"_s, u"2024-12-31"_s), QVariant(QDateTime({2024, 12, 31}, {0, 0}, QTimeZone::utc())));
    EXPECT_EQ(write(u"data"_s, u"AP8="_s), QVariant(QByteArray("\0\xff", 2)));
    EXPECT_EQ(write(u"plist"_s, u"<plist><dict><key>a</key><true/></dict></plist>"_s),
              QVariant(QVariantMap{{u"a"_s, true}}));
    EXPECT_EQ(write(u"plist"_s, u"<dict><key>CF$UID</key><integer>-1</integer></dict>"_s),
              QVariant(QVariantMap{{u"CF$UID"_s, -1}}));
}

TEST_F(DefaultsProgram, WriteRefusesAValueThatIsNotOfItsType)
{
    set({{u"key"_s, u"old"_s}});
    for (const auto &[type, value] : QList<std::pair<QString, QString>>{{u"int"_s, u"5.0"_s},
                                                                        {u"int"_s, u"18446744073709551616"_s},
                                                                        {u"float"_s, u"2,54"_s},
                                                                        {u"bool"_s, u"maybe"_s},
                                                                        {u"date"_s, u"tomorrow"_s},
                                                                        {u"data"_s, u"*"_s},
                                                                        {u"colour"_s, u"red"_s}}) {
        EXPECT_TRUE(failed(run({u"write"_s, domainName, u"key"_s, value, u"--type"_s, type}), wrongCommandLine, type));
    }
    EXPECT_TRUE(failed(run({u"write"_s, domainName, u"key"_s, u"<plist>"_s, u"--type"_s, u"plist"_s}), wrongCommandLine,
                       u"line 1, column "_s));
    EXPECT_EQ(savedDomain(domainName), (QVariantMap{{u"key"_s, u"old"_s}}));
}

TEST_F(DefaultsProgram, WriteKeepsTheOtherKeys)
{
    set({{u"a"_s, 1}, {u"b"_s, 2}});
    EXPECT_TRUE(printed(run({u"write"_s, domainName, u"b"_s, u"new"_s}), QString()));
    EXPECT_EQ(savedDomain(domainName), (QVariantMap{{u"a"_s, 1}, {u"b"_s, u"new"_s}}));
}

TEST_F(DefaultsProgram, GlobalTakesThePlaceOfTheDomain)
{
    EXPECT_TRUE(printed(run({u"write"_s, u"-g"_s, u"AppleMeasurementUnits"_s, u"Inches"_s}), QString()));
    EXPECT_TRUE(printed(run({u"read"_s, u"--global"_s, u"AppleMeasurementUnits"_s}), u"Inches\n"_s));
    EXPECT_EQ(UserDefaults(folder()).objectForKey(u"AppleMeasurementUnits"_s), u"Inches"_s);
    EXPECT_TRUE(printed(run({u"-g"_s, u"delete"_s}), QString()));
    EXPECT_TRUE(printed(run({u"domains"_s}), QString()));
}

TEST_F(DefaultsProgram, DeleteRemovesAKeyOrADomain)
{
    set({{u"a"_s, 1}, {u"b"_s, 2}});
    EXPECT_TRUE(printed(run({u"delete"_s, domainName, u"a"_s}), QString()));
    EXPECT_EQ(savedDomain(domainName), (QVariantMap{{u"b"_s, 2}}));
    EXPECT_TRUE(failed(run({u"delete"_s, domainName, u"a"_s}), notSet, u"no key 'a'"_s));
    EXPECT_TRUE(printed(run({u"delete"_s, domainName}), QString()));
    EXPECT_EQ(savedDomain(domainName), std::nullopt);
    EXPECT_TRUE(failed(run({u"delete"_s, domainName}), notSet, u"no domain"_s));
}

TEST_F(DefaultsProgram, ExportAndImportCarryADomainOver)
{
    const QVariantMap domain{
        {u"a"_s, QVariantList{1, 2.5, true}}, {u"b"_s, u"ä"_s}, {u"c"_s, QVariantMap{{u"CF$UID"_s, -1}}}};
    set(domain);
    const QString file = parentFolder() + u"/backup.plist"_s;
    EXPECT_TRUE(printed(run({u"export"_s, domainName, file}), QString()));
    EXPECT_EQ(support::fileContent(file), support::fileContent(path(domainName)));
    EXPECT_TRUE(printed(run({u"export"_s, domainName}), savedText()));
    EXPECT_TRUE(printed(run({u"export"_s, domainName, u"-"_s}), savedText()));

    set({{u"old"_s, true}}, u"copy"_s);
    EXPECT_TRUE(printed(run({u"import"_s, u"copy"_s, file}), QString()));
    EXPECT_EQ(savedDomain(u"copy"_s), domain);
    EXPECT_TRUE(printed(run({u"import"_s, u"-g"_s, u"-"_s}, support::fileContent(file)), QString()));
    EXPECT_EQ(savedDomain(UserDefaults::globalDomain()), domain);
}

TEST_F(DefaultsProgram, ImportTakesABinaryPropertyList)
{
    const QByteArray binary = QByteArray::fromHex("62706c6973743030d1010251615162080b0d"
                                                  "0000000000000101000000000000000300000000000000"
                                                  "00000000000000000f");
    EXPECT_TRUE(printed(run({u"import"_s, domainName, u"-"_s}, binary), QString()));
    EXPECT_EQ(savedDomain(domainName), (QVariantMap{{u"a"_s, u"b"_s}}));
}

TEST_F(DefaultsProgram, ImportRefusesWhatIsNoDomainAndKeepsTheOld)
{
    set({{u"a"_s, 1}});
    EXPECT_TRUE(failed(run({u"import"_s, domainName, u"-"_s}, "damaged"), failure, u"line 1, column 1"_s));
    EXPECT_TRUE(failed(run({u"import"_s, domainName, u"-"_s}, "<plist><array/></plist>"), failure, u"dictionary"_s));
    const QString missing = parentFolder() + u"/missing"_s;
    EXPECT_TRUE(failed(run({u"import"_s, domainName, missing}), failure, missing));
    EXPECT_TRUE(failed(run({u"import"_s, domainName, folder()}), failure, folder()));
    EXPECT_EQ(savedDomain(domainName), (QVariantMap{{u"a"_s, 1}}));
}

TEST_F(DefaultsProgram, ExportReportsAFileThatCannotBeWritten)
{
    set({{u"a"_s, 1}});
    const QString missing = parentFolder() + u"/missing/file"_s;
    EXPECT_TRUE(failed(run({u"export"_s, domainName, missing}), failure, missing));
}

TEST_F(DefaultsProgram, ReportsADamagedDomainAndWhereItIsKept)
{
    support::writeFile(path(domainName), "damaged");
    EXPECT_TRUE(printed(run({u"domains"_s}), domainName + u'\n'));
    EXPECT_TRUE(failed(run({u"read"_s, domainName}), failure, u"line 1, column 1"_s));
    EXPECT_TRUE(failed(run({u"read"_s, domainName, u"a"_s}), failure, path(domainName)));
    EXPECT_TRUE(failed(run({u"export"_s, domainName}), failure, path(domainName)));
    EXPECT_TRUE(failed(run({u"delete"_s, domainName, u"a"_s}), failure, path(domainName)));
    EXPECT_EQ(support::fileContent(path(domainName)), "damaged");

    const QString kept = path(domainName) + u".unreadable-1"_s;
    EXPECT_TRUE(failed(run({u"write"_s, domainName, u"a"_s, u"b"_s}), 0, kept));
    EXPECT_EQ(support::fileContent(kept), "damaged");
    EXPECT_TRUE(printed(run({u"read"_s, domainName, u"a"_s}), u"b\n"_s));
    support::writeFile(path(domainName), "damaged again");
    EXPECT_TRUE(failed(run({u"delete"_s, domainName}), 0, path(domainName) + u".unreadable-2"_s));
    EXPECT_TRUE(failed(run({u"read"_s, domainName}), notSet, u"no domain"_s));
}

TEST_F(DefaultsProgram, RefusesNamesThatAreNoDomains)
{
    for (const QString &name : {u"../x"_s, u"a/b"_s, u".hidden"_s}) {
        EXPECT_TRUE(failed(run({u"read"_s, name}), failure, u"cannot name a settings domain"_s));
        EXPECT_TRUE(failed(run({u"write"_s, name, u"a"_s, u"b"_s}), failure, u"cannot name a settings domain"_s));
        EXPECT_TRUE(failed(run({u"delete"_s, name}), failure, u"cannot name a settings domain"_s));
    }
    EXPECT_EQ(support::filesBelow(parentFolder()), (QMap<QString, QByteArray>()));
}

TEST_F(DefaultsProgram, ExplainsAWrongCommandLine)
{
    const auto isRefused = [this](const QStringList &arguments, const QString &report) {
        const Result result = run(arguments);
        return failed(result, wrongCommandLine, report) && support::contains(result.errors, u"--help"_s);
    };
    EXPECT_TRUE(isRefused({}, u"command"_s));
    EXPECT_TRUE(isRefused({u"change"_s}, u"'change'"_s));
    EXPECT_TRUE(isRefused({u"read"_s}, u"'read'"_s));
    EXPECT_TRUE(isRefused({u"write"_s, u""_s, u"a"_s, u"b"_s}, u"DOMAIN"_s));
    EXPECT_TRUE(isRefused({u"read"_s, u"a"_s, u"b"_s, u"c"_s}, u"'c'"_s));
    EXPECT_TRUE(isRefused({u"read"_s, u"-g"_s, u"b"_s, u"c"_s}, u"'c'"_s));
    EXPECT_TRUE(isRefused({u"read"_s, u"a"_s, u"--type"_s, u"int"_s}, u"'read'"_s));
    EXPECT_TRUE(isRefused({u"write"_s, u"a"_s, u"b"_s}, u"'write'"_s));
    EXPECT_TRUE(isRefused({u"write"_s, u"a"_s, u"b"_s, u"-5"_s}, u"'--'"_s));
    EXPECT_TRUE(isRefused({u"import"_s, u"a"_s}, u"'import'"_s));
    EXPECT_TRUE(isRefused({u"domains"_s, u"a"_s}, u"'a'"_s));
    EXPECT_TRUE(isRefused({u"domains"_s, u"-g"_s}, u"'domains'"_s));
}

TEST_F(DefaultsProgram, UsesTheConfigurationFolderOfTheUserWithoutAnotherFolder)
{
    environment.remove(u"ORVANE_DEFAULTS_FOLDER"_s);
    environment.insert(u"XDG_CONFIG_HOME"_s, folder());
    EXPECT_TRUE(printed(run({u"write"_s, domainName, u"a"_s, u"b"_s}), QString()));
    EXPECT_EQ(support::filesBelow(folder()).keys(), QStringList{u"orvane-export-kit/com.example.plain-text.plist"_s});
}

TEST_F(DefaultsProgram, WithoutAHomeFolderWritesNothingToTheRootFolder)
{
    environment.remove(u"ORVANE_DEFAULTS_FOLDER"_s);
    environment.remove(u"XDG_CONFIG_HOME"_s);
    for (const bool isEmpty : {false, true}) {
        environment.remove(u"HOME"_s);
        if (isEmpty) {
            environment.insert(u"HOME"_s, QString());
        }
        for (const QStringList &command :
             {QStringList{u"read"_s, domainName}, QStringList{u"write"_s, domainName, u"a"_s, u"b"_s},
              QStringList{u"delete"_s, domainName}, QStringList{u"domains"_s}}) {
            EXPECT_TRUE(failed(run(command), failure, u"variable HOME, or name a folder in ORVANE_DEFAULTS_FOLDER"_s));
        }
        EXPECT_FALSE(QFileInfo::exists(u"/.config/orvane-export-kit/%1.plist"_s.arg(domainName)));
    }
    environment.insert(u"ORVANE_DEFAULTS_FOLDER"_s, folder());
    EXPECT_TRUE(printed(run({u"write"_s, domainName, u"a"_s, u"b"_s}), QString()));
}

TEST_F(DefaultsProgram, ResultsThatNobodyTakesAreAnError)
{
    QProcess process;
    process.setProcessEnvironment(environment);
    process.setStandardOutputFile(u"/dev/full"_s);
    process.start(QStringLiteral(DEFAULTS_PROGRAM), {u"--help"_s});
    EXPECT_TRUE(failed(finished(process), failure, u"No space left on device"_s));
}

TEST_F(DefaultsProgram, AFullDiskLeavesTheOldSettingsAndIsReported)
{
    set({{u"text"_s, u"old"_s}});
    const auto oldFiles = support::filesBelow(folder());
    const auto writeWithRoom = [&](const QString &text, int bytes) {
        fillDisk(bytes);
        return run({u"write"_s, domainName, u"text"_s, text});
    };
    const QString shortText(3000, u'x');
    const QString longText(20000, u'x');
    for (const int room : {0, 10, 120, 300, 3000}) {
        EXPECT_TRUE(failed(writeWithRoom(shortText, room), failure, path(domainName))) << room;
        EXPECT_TRUE(failed(writeWithRoom(longText, room), failure, path(domainName))) << room;
        EXPECT_EQ(support::filesBelow(folder()), oldFiles) << room;
    }
    EXPECT_TRUE(support::contains(writeWithRoom(shortText, 0).errors, u"make room on the disk"_s));
    EXPECT_TRUE(printed(writeWithRoom(shortText, 4000), QString()));
    EXPECT_EQ(savedDomain(domainName), (QVariantMap{{u"text"_s, shortText}}));
}

/// A program whose settings hold an old text, to be replaced by a new one while the system fails.
class DefaultsProgramMeetingFaults : public DefaultsProgram
{
protected:
    DefaultsProgramMeetingFaults() { set({{u"text"_s, u"old"_s}}); }

    Result writeNewText() const { return run({u"write"_s, domainName, u"text"_s, newText}); }

    const QString newText{5000, u'x'};
};

TEST_F(DefaultsProgramMeetingFaults, KeepsTheOldSettingsWhicheverWriteFindsTheDiskFull)
{
    const auto oldFiles = support::filesBelow(folder());
    int failures = 0;
    for (int writes = 0;; ++writes) {
        SCOPED_TRACE(writes);
        meet({{u"WRITES"_s, QString::number(writes)}});
        const Result result = writeNewText();
        if (result.exitCode == 0) {
            break;
        }
        EXPECT_TRUE(failed(result, failure, u"make room on the disk"_s));
        EXPECT_TRUE(support::contains(result.errors, path(domainName)));
        ASSERT_EQ(support::filesBelow(folder()), oldFiles);
        ++failures;
    }
    EXPECT_GE(failures, 1);
    EXPECT_EQ(savedDomain(domainName), (QVariantMap{{u"text"_s, newText}}));
}

TEST_F(DefaultsProgramMeetingFaults, SavesInWritesThatTakeAFewBytesEach)
{
    meet({{u"LONGEST_WRITE"_s, u"7"_s}});
    EXPECT_TRUE(printed(writeNewText(), QString()));
    EXPECT_EQ(savedDomain(domainName), (QVariantMap{{u"text"_s, newText}}));
}

TEST_F(DefaultsProgramMeetingFaults, KeepsTheOldSettingsWhereTheNewFileCannotTakeTheirPlace)
{
    const auto oldFiles = support::filesBelow(folder());
    meet({{u"RENAME"_s, QString::number(EACCES)}});
    const Result result = writeNewText();
    EXPECT_TRUE(failed(result, failure, path(domainName)));
    EXPECT_TRUE(support::contains(result.errors, u"Permission denied"_s));
    EXPECT_EQ(support::filesBelow(folder()), oldFiles);
    environment.remove(u"LD_PRELOAD"_s);
    EXPECT_TRUE(printed(writeNewText(), QString()));
}

TEST_F(DefaultsProgramMeetingFaults, KeepsTheOldSettingsWhereTheNewFileIsNotTakenByTheDisk)
{
    const auto oldFiles = support::filesBelow(folder());
    const QMap<int, QString> errors{
        {EIO, u"Input/output error"_s}, {ENOSPC, u"No space left on device"_s}, {EDQUOT, u"Disk quota exceeded"_s}};
    for (auto error = errors.begin(); error != errors.end(); ++error) {
        for (const QString &fault : {u"FLUSH"_s, u"OPEN_FOLDER"_s, u"LINK"_s}) {
            SCOPED_TRACE(testing::PrintToString(fault + u' ' + *error));
            const QProcessEnvironment without = environment;
            meet({{fault, QString::number(error.key())}});
            const Result result = writeNewText();
            EXPECT_TRUE(failed(result, failure, path(domainName)));
            EXPECT_TRUE(support::contains(result.errors, *error));
            EXPECT_EQ(support::filesBelow(folder()), oldFiles);
            environment = without;
        }
    }
    EXPECT_TRUE(printed(writeNewText(), QString()));
}

TEST_F(DefaultsProgramMeetingFaults, SaysThatNewSettingsMayNotBeOnDiskWhereTheFolderCannotBeFlushed)
{
    meet({{u"FLUSH_FOLDER"_s, QString::number(EIO)}});
    const Result result = writeNewText();
    EXPECT_TRUE(failed(result, failure, path(domainName)));
    EXPECT_TRUE(support::contains(result.errors, u"may be lost"_s));
    EXPECT_TRUE(support::contains(result.errors, u"Input/output error"_s));
    EXPECT_EQ(savedDomain(domainName), (QVariantMap{{u"text"_s, newText}}));
    EXPECT_TRUE(failed(run({u"delete"_s, domainName}), failure, u"Input/output error"_s));
    environment.remove(u"LD_PRELOAD"_s);
    EXPECT_TRUE(printed(writeNewText(), QString()));
}

TEST_F(DefaultsProgramMeetingFaults, SavesWhereFoldersNeedNotBeFlushed)
{
    meet({{u"FLUSH_FOLDER"_s, QString::number(EINVAL)}});
    EXPECT_TRUE(printed(writeNewText(), QString()));
    EXPECT_EQ(savedDomain(domainName), (QVariantMap{{u"text"_s, newText}}));
}

TEST_F(DefaultsProgramMeetingFaults, SavesWhereEachFileHasAName)
{
    for (const int error : {EOPNOTSUPP, EISDIR, ENOENT}) {
        meet({{u"UNNAMED_FILE"_s, QString::number(error)}});
        EXPECT_TRUE(printed(run({u"write"_s, domainName, u"error"_s, QString::number(error)}), QString()));
        EXPECT_EQ(savedDomain(domainName)->value(u"error"_s), QString::number(error));
    }
    meet({{u"UNNAMED_FILE"_s, QString::number(EOPNOTSUPP)}, {u"FLUSH"_s, QString::number(EIO)}});
    const auto oldFiles = support::filesBelow(folder());
    EXPECT_TRUE(failed(writeNewText(), failure, u"Input/output error"_s));
    EXPECT_EQ(support::filesBelow(folder()), oldFiles);
}

TEST_F(DefaultsProgramMeetingFaults, ExportsNothingThatTheDiskDoesNotTake)
{
    const QString file = parentFolder() + u"/backup.plist"_s;
    support::writeFile(file, "old");
    const QProcessEnvironment without = environment;
    for (const QString &fault : {u"FLUSH"_s, u"RENAME"_s, u"LINK"_s, u"OPEN_FOLDER"_s}) {
        SCOPED_TRACE(testing::PrintToString(fault));
        meet({{fault, QString::number(EIO)}});
        const Result result = run({u"export"_s, domainName, file});
        EXPECT_TRUE(failed(result, failure, file));
        EXPECT_TRUE(support::contains(result.errors, u"Input/output error"_s));
        EXPECT_EQ(support::fileContent(file), "old");
        environment = without;
    }
    meet({{u"FLUSH_FOLDER"_s, QString::number(EIO)}});
    EXPECT_TRUE(failed(run({u"export"_s, domainName, file}), failure, u"may be lost"_s));
}

TEST_F(DefaultsProgramMeetingFaults, SavesNothingWithoutALockFile)
{
    const auto oldFiles = support::filesBelow(folder());
    meet({{u"LOCK_FILE"_s, QString::number(EIO)}});
    EXPECT_TRUE(failed(writeNewText(), failure, u"no lock file can be written beside it (Input/output error)"_s));
    EXPECT_EQ(support::filesBelow(folder()), oldFiles);
    environment.remove(u"LD_PRELOAD"_s);
    EXPECT_TRUE(printed(writeNewText(), QString()));
}

TEST_F(DefaultsProgramMeetingFaults, SavesWhereTheFileSystemKnowsNoLocks)
{
    meet({{u"LOCK"_s, u"none"_s}});
    EXPECT_EQ(writeNewText().exitCode, 0);
    EXPECT_EQ(savedDomain(domainName), (QVariantMap{{u"text"_s, newText}}));
}

TEST_F(DefaultsProgramMeetingFaults, SavesWhateverTheClockSays)
{
    constexpr int day = 24 * 60 * 60;
    for (const int seconds : {-400 * day, -day, -3, 3, day, 400 * day}) {
        meet({{u"CLOCK"_s, QString::number(seconds)}});
        const QString text = u"at "_s + QString::number(seconds);
        EXPECT_TRUE(printed(run({u"write"_s, domainName, u"text"_s, text}), QString())) << seconds;
        EXPECT_EQ(savedDomain(domainName), (QVariantMap{{u"text"_s, text}})) << seconds;
    }
}

TEST_F(DefaultsProgramMeetingFaults, TakesOverTheLockFileOfAKilledProgramAlsoFromTheFuture)
{
    const QString lock = path(domainName) + u".lock"_s;
    support::writeFile(lock, "");
    QFile file(lock);
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    ASSERT_TRUE(file.setFileTime(QDateTime::currentDateTime().addSecs(15), QFileDevice::FileModificationTime));
    file.close();
    EXPECT_EQ(writeNewText().exitCode, 0);
    EXPECT_EQ(savedDomain(domainName), (QVariantMap{{u"text"_s, newText}}));
}

TEST_F(DefaultsProgramMeetingFaults, LosesNothingOfFourProgramsWhoseClockIsAhead)
{
    constexpr std::size_t programs = 4;
    constexpr int writes = 25;
    meet({{u"CLOCK"_s, u"5"_s}});
    const QString script = u"for number in $(seq %1); do \"$0\" write \"$1\" \"$2-$number\" yes || exit; done"_s;
    std::array<QProcess, programs> writers;
    for (std::size_t i = 0; i < programs; ++i) {
        writers[i].setProcessEnvironment(environment);
        writers[i].start(
            u"sh"_s, {u"-c"_s, script.arg(writes), QStringLiteral(DEFAULTS_PROGRAM), domainName, QString::number(i)});
    }
    for (QProcess &writer : writers) {
        EXPECT_TRUE(printed(finished(writer), QString()));
    }
    const auto saved = savedDomain(domainName);
    ASSERT_TRUE(saved);
    EXPECT_EQ(saved->size(), programs * writes + 1) << "with the text that was there";
}

/// Which call of the system fails while the settings are read, and with which error.
struct PassingFault {
    const char *call;
    int error;
};

void PrintTo(const PassingFault &fault, std::ostream *out)
{
    *out << fault.call << ": " << std::generic_category().message(fault.error);
}

/// Good settings, which cannot be read for a moment.
class PassingFaultOfTheSystem : public DefaultsProgramMeetingFaults, public testing::WithParamInterface<PassingFault>
{
protected:
    PassingFaultOfTheSystem() { meet({{QLatin1StringView(GetParam().call), QString::number(GetParam().error)}}); }

    const QMap<QString, QByteArray> oldFiles = support::filesBelow(folder());
};

TEST_P(PassingFaultOfTheSystem, IsReportedAndChangesNothing)
{
    const QString reason = QString::fromStdString(std::generic_category().message(GetParam().error));
    for (const QStringList &command : {QStringList{u"read"_s}, QStringList{u"delete"_s}}) {
        const Result result = run(command + QStringList{domainName});
        EXPECT_TRUE(failed(result, failure, path(domainName)));
        EXPECT_TRUE(support::contains(result.errors, reason));
    }
    const Result result = writeNewText();
    EXPECT_TRUE(failed(result, failure, path(domainName)));
    EXPECT_TRUE(support::contains(result.errors, reason));
    EXPECT_EQ(support::filesBelow(folder()), oldFiles);
    environment.remove(u"LD_PRELOAD"_s);
    EXPECT_TRUE(printed(writeNewText(), QString()));
}

INSTANTIATE_TEST_SUITE_P(Calls, PassingFaultOfTheSystem, testing::ValuesIn([] {
                             std::vector<PassingFault> faults;
                             for (const char *call : {"STAT", "OPEN", "READ"}) {
                                 for (const int error : {EIO, EINTR, EMFILE, ENFILE, ENOMEM, ESTALE}) {
                                     faults.push_back({call, error});
                                 }
                             }
                             return faults;
                         }()));

TEST_F(DefaultsProgramMeetingFaults, NeverSetsSettingsAsideBecauseTheirPermissionsCannotBeAsked)
{
    for (const int error : {EIO, EINTR, EMFILE, ENFILE, ENOMEM, ESTALE, EACCES}) {
        SCOPED_TRACE(error);
        meet({{u"ACCESS"_s, QString::number(error)}});
        run({u"write"_s, domainName, u"other"_s, u"new"_s});
        EXPECT_EQ(support::filesBelow(folder()).keys(), QStringList{domainName + u".plist"_s});
        EXPECT_EQ(savedDomain(domainName)->value(u"text"_s), u"old"_s);
    }
}

TEST_F(DefaultsProgramMeetingFaults, SetsSettingsAsideThatPermissionsHide)
{
    for (const int error : {EACCES, EPERM}) {
        SCOPED_TRACE(error);
        set({{u"text"_s, u"old"_s}});
        const QByteArray old = support::fileContent(path(domainName));
        const QString kept = path(domainName) + u".unreadable-1"_s;
        meet({{u"OPEN"_s, QString::number(error)}});
        EXPECT_TRUE(failed(writeNewText(), 0, kept));
        EXPECT_EQ(support::fileContent(kept), old);
        EXPECT_TRUE(QFile::remove(kept));
    }
}

TEST_F(DefaultsProgram, AFullDiskLeavesTheOldExportAndIsReported)
{
    set({{u"text"_s, u"new"_s}});
    const QString file = parentFolder() + u"/backup.plist"_s;
    support::writeFile(file, "old");
    fillDisk(100);
    EXPECT_TRUE(failed(run({u"export"_s, domainName, file}), failure, file));
    EXPECT_EQ(support::fileContent(file), "old");
}

TEST_F(DefaultsProgram, ExportReplacesNoDevice)
{
    set({{u"a"_s, 1}});
    const QString pipe = parentFolder() + u"/pipe"_s;
    ASSERT_EQ(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    EXPECT_TRUE(failed(run({u"export"_s, domainName, pipe}), failure, u"it is a device or the like"_s));
    struct stat status = {};
    EXPECT_EQ(stat(QFile::encodeName(pipe).constData(), &status), 0);
    EXPECT_TRUE(S_ISFIFO(status.st_mode));
}

TEST_F(DefaultsProgram, ListsDomainsForProgramsWithNulls)
{
    set({{u"a"_s, 1}}, u"com.example.one"_s);
    set({{u"a"_s, 1}}, u"com.example.two"_s);
    EXPECT_TRUE(printed(run({u"domains"_s}), u"com.example.one\ncom.example.two\n"_s));
    const QString withNulls = u"com.example.one\ncom.example.two\n"_s.replace(u'\n', QChar(u'\0'));
    EXPECT_TRUE(printed(run({u"domains"_s, u"--null"_s}), withNulls));
    EXPECT_TRUE(printed(run({u"domains"_s, u"-0"_s}), withNulls));
    EXPECT_TRUE(failed(run({u"read"_s, domainName, u"-0"_s}), wrongCommandLine, u"takes no --null"_s));
}

TEST_F(DefaultsProgram, ShowsControlCharactersAsEscapesAtATerminalAlone)
{
    const QString value = u"red \x1b[31m\u009b\u202e\u2028\nnext\tline"_s;
    set({{u"text"_s, value}});
    support::writeFile(path(u"a\u202eb"_s), "{}");
    EXPECT_TRUE(printed(run({u"read"_s, domainName, u"text"_s}), value + u'\n'));

    qputenv("ORVANE_DEFAULTS_FOLDER", QFile::encodeName(folder()));
    const auto shown = [](const QStringList &arguments) {
        end_to_end::PseudoTerminal terminal(QStringLiteral(DEFAULTS_PROGRAM), arguments);
        terminal.finish();
        return QString::fromUtf8(terminal.shown()).remove(u'\r');
    };
    EXPECT_EQ(shown({u"read"_s, domainName, u"text"_s}), u"red \\x1b[31m\\x9b\\u202e\\u2028\nnext\tline\n"_s);
    EXPECT_EQ(shown({u"domains"_s}), u"a\\u202eb\n%1\n"_s.arg(domainName));
    EXPECT_TRUE(shown({u"read"_s, u"b\u202e"_s}).contains(u"'b\\u202e'"_s));
    EXPECT_TRUE(shown({u"read"_s, domainName, u"b\x1b\n"_s}).contains(u"'b\\x1b\\x0a'"_s));
    qunsetenv("ORVANE_DEFAULTS_FOLDER");
}

} // namespace
