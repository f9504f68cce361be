#include <tests/end_to_end/HostTest.h>

#include <OrvaneExportKit/platform/UserDefaults.h>

using namespace Qt::Literals::StringLiterals;

namespace end_to_end {

namespace {

const QString domain = u"org.orvane.plain-text"_s;

/// Exports one document of one line of dialogue, with saved settings of its own.
class Settings : public HostTest
{
protected:
    Settings()
    {
        qputenv("ORVANE_DEFAULTS_FOLDER", defaultsFolder().toUtf8());
        writeManuscript({{u"One"_s, "\"aaa bbb\""}});
    }
    Settings(const Settings &) = delete;
    Settings &operator=(const Settings &) = delete;
    ~Settings() override { qputenv("ORVANE_DEFAULTS_FOLDER", m_folderBefore); }

    QString defaultsFolder() const { return path(u"defaults"_s); }
    platform::UserDefaults defaults() const { return platform::UserDefaults(defaultsFolder()); }

    /// The file that an export with these options makes.
    QString exportedText(const QStringList &options = {}) const
    {
        const HostResult result = runExport(QStringList{u"--yes"_s} + options);
        EXPECT_EQ(result.exitCode, 0) << testing::PrintToString(result.errors);
        return QString::fromUtf8(fileContent(exported(u"001 One.txt"_s)));
    }

    QString writtenSettings(const QByteArray &entries) const
    {
        writeFile(path(u"settings.plist"_s), "<plist><dict>" + entries + "</dict></plist>");
        return path(u"settings.plist"_s);
    }

private:
    QByteArray m_folderBefore = qgetenv("ORVANE_DEFAULTS_FOLDER");
};

} // namespace

TEST_F(Settings, OfTheCommandLineHoldForOneRun)
{
    EXPECT_EQ(exportedText({u"--set"_s, u"quotation-language=de"_s}), u"„aaa bbb“"_s);
    EXPECT_EQ(exportedText(), u"“aaa bbb”"_s);
    EXPECT_TRUE(defaults().persistentDomainNames().isEmpty());
}

TEST_F(Settings, ThatAreSavedHoldForLaterRunsToo)
{
    EXPECT_EQ(exportedText({u"--quotation-language"_s, u"de"_s, u"--save-settings"_s}), u"„aaa bbb“"_s);
    EXPECT_EQ(exportedText(), u"„aaa bbb“"_s);
    EXPECT_EQ(exportedText({u"--quotation-language"_s, u"fr"_s}), u"«aaa bbb»"_s);
    EXPECT_EQ(exportedText(), u"„aaa bbb“"_s);
}

TEST_F(Settings, FromAFileTakeThePlaceOfTheSavedOnes)
{
    exportedText({u"--quotation-language"_s, u"de"_s, u"--save-settings"_s});
    const QString file = writtenSettings("<key>line-length</key><integer>5</integer>");
    EXPECT_EQ(exportedText({u"--settings"_s, file}), u"“aaa\nbbb”"_s);
    EXPECT_EQ(exportedText(), u"„aaa bbb“"_s);
}

TEST_F(Settings, ThatThePlugInDoesNotKnowAreKept)
{
    const QString file = writtenSettings("<key>of-another-version</key><true/>");
    exportedText({u"--settings"_s, file, u"--save-settings"_s});
    exportedText({u"--set"_s, u"tab-width=2"_s, u"--save-settings"_s});
    const auto saved = defaults().persistentDomainForName(domain);
    ASSERT_TRUE(saved.has_value());
    EXPECT_EQ(saved->value(u"of-another-version"_s), true);
    EXPECT_EQ(saved->value(u"tab-width"_s), u"2"_s);
}

TEST_F(Settings, OfAFileThatIsNoPropertyListAreRefusedWithThePlace)
{
    const QString file = writtenSettings("<key>line-length</key><intger>5</intger>");
    EXPECT_TRUE(failedWith(2, {file, u"line 1, column"_s, u"intger"_s}, runExport({u"--settings"_s, file})));
    EXPECT_TRUE(failedWith(2, {path(u"missing"_s)}, runExport({u"--settings"_s, path(u"missing"_s)})));
}

TEST_F(Settings, WithAValueThatThePlugInDoesNotTakeAreRefusedBeforeAnythingIsWritten)
{
    const QString file = writtenSettings("<key>line-length</key><string>wide</string>");
    EXPECT_TRUE(failedWith(1, {file, u"line-length"_s, u"wide"_s}, runExport({u"--settings"_s, file})));
    ASSERT_TRUE(defaults().setPersistentDomain({{u"line-length"_s, u"wide"_s}}, domain));
    EXPECT_TRUE(failedWith(1, {u"saved settings"_s, u"line-length"_s, u"wide"_s}, runExport()));
}

TEST_F(Settings, ThatCannotBeReadAreWarnedOfAndKeptAside)
{
    ASSERT_TRUE(defaults().setPersistentDomain({{u"line-length"_s, u"5"_s}}, domain));
    const QString file = defaultsFolder() + u'/' + domain + u".plist"_s;
    writeFile(file, "garbage");
    const HostResult result = runExport();
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_TRUE(result.errors.contains(file)) << testing::PrintToString(result.errors);
    exportedText({u"--set"_s, u"tab-width=2"_s, u"--save-settings"_s});
    EXPECT_EQ(fileContent(file + u".unreadable-1"_s), "garbage");
    EXPECT_EQ(defaults().persistentDomainForName(domain)->value(u"tab-width"_s), u"2"_s);
}

TEST_F(Settings, ThatXmlCannotHoldAreAnErrorThatNamesTheirKey)
{
    // {"subtitle": half a surrogate pair}, as a binary property list
    const QString file = path(u"settings.plist"_s);
    writeFile(file, QByteArray::fromHex("62706c6973743030 d10102 587375627469746c65 61d800 080b14 0000000000000101"
                                        "0000000000000003 0000000000000000 0000000000000017"));
    EXPECT_TRUE(failedWith(4, {u"can't be saved"_s, u"subtitle: the string holds half a surrogate pair"_s},
                           runExport({u"--settings"_s, file, u"--save-settings"_s})));
    EXPECT_EQ(defaults().persistentDomainNames(), QStringList());
}

TEST_F(Settings, ThatCannotBeSavedAreAnErrorBeforeAnythingIsWritten)
{
    writeFile(defaultsFolder(), "a file where the folder should be");
    EXPECT_TRUE(failedWith(4, {u"settings"_s, defaultsFolder()}, runExport({u"--save-settings"_s})));
}

} // namespace end_to_end
