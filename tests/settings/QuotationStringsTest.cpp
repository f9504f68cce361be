#include <OrvaneExportKit/settings/KZExportSettings.h>

#include <OrvaneExportKit/platform/Bundle.h>
#include <OrvaneExportKit/text/QuotationTable.h>
#include <tests/support/Printers.h>
#include <tests/support/QuotesFolder.h>
#include <tests/support/TemporaryDefaults.h>

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;
using platform::Bundle;
using support::entry;

// As plug-ins write them.
namespace subclasses {

class Settings : public KZExportSettings
{
    Q_OBJECT
    ORVANE_SETTINGS_BUNDLE(Settings, "org.example.quotes")

public:
    using KZExportSettings::KZExportSettings;
};

class DerivedSettings : public Settings
{
    Q_OBJECT

public:
    using Settings::Settings;
};

class SettingsOfAnotherBundle : public Settings
{
    Q_OBJECT
    ORVANE_SETTINGS_BUNDLE(SettingsOfAnotherBundle, "org.example.unknown")

public:
    using Settings::Settings;
};

class SettingsWithoutABundle : public KZExportSettings
{
    Q_OBJECT

public:
    using KZExportSettings::KZExportSettings;
};

class ForgetfulSettings : public Settings
{
    Q_OBJECT
    Q_CLASSINFO("BundleIdentifier", "org.example.forgetful")

public:
    using Settings::Settings;
};

} // namespace subclasses

namespace {

QStringList warnings;

/// Keeps what the program warns of while the object lives.
class RecordedWarnings
{
public:
    RecordedWarnings()
    {
        warnings.clear();
        m_before = qInstallMessageHandler(
            [](QtMsgType, const QMessageLogContext &, const QString &message) { warnings.append(message); });
    }
    RecordedWarnings(const RecordedWarnings &) = delete;
    RecordedWarnings &operator=(const RecordedWarnings &) = delete;
    ~RecordedWarnings() { qInstallMessageHandler(m_before); }

private:
    QtMessageHandler m_before;
};

class QuotationStrings : public support::TemporaryDefaults
{
protected:
    QuotationStrings() { m_folder.write(QVariantMap{{u"de"_s, entry(u"<"_s, u">"_s)}}); }

    static QStringList missing() { return QStringList(9, u"(null)abc(null)"_s); }

    static QStringList ofThePlugin()
    {
        QStringList samples = missing();
        samples[1] = u"<abc>"_s;
        return samples;
    }

    static QStringList ofTheKit() { return platform::quotationSamples(Bundle::kitBundle()); }

private:
    const support::QuotesFolder m_folder;
    const platform::BundleRegistration m_bundle{u"org.example.quotes"_s, m_folder.path()};
};

TEST_F(QuotationStrings, ComeFromTheBundleOfTheClassThatIsAsked)
{
    EXPECT_EQ(KZExportSettings::quotationStrings(), ofTheKit());
    EXPECT_EQ(subclasses::Settings::quotationStrings(), ofThePlugin());
    EXPECT_EQ(subclasses::DerivedSettings::quotationStrings(), ofThePlugin());
    EXPECT_EQ(subclasses::SettingsOfAnotherBundle::quotationStrings(), missing());
    EXPECT_EQ(subclasses::SettingsWithoutABundle::quotationStrings(), ofTheKit());
}

TEST_F(QuotationStrings, ComeFromTheBundleOfTheClassThatIsGiven)
{
    EXPECT_EQ(KZExportSettings::quotationStrings(subclasses::Settings::staticMetaObject), ofThePlugin());
    EXPECT_EQ(KZExportSettings::quotationStrings(subclasses::DerivedSettings::staticMetaObject), ofThePlugin());
    EXPECT_EQ(subclasses::Settings::quotationStrings(KZExportSettings::staticMetaObject), ofTheKit());
    EXPECT_EQ(subclasses::ForgetfulSettings::quotationStrings(subclasses::ForgetfulSettings::staticMetaObject),
              missing());
}

TEST_F(QuotationStrings, AreNamedInAWarningOnceWhereASubclassForgetsThem)
{
    const RecordedWarnings recorded;
    subclasses::ForgetfulSettings(u"org.example.forgetful"_s).writeSettingsToDefaults();
    ASSERT_EQ(warnings.size(), 1);
    EXPECT_TRUE(warnings.first().contains(u"ORVANE_SETTINGS_BUNDLE(subclasses::ForgetfulSettings, "_s))
        << warnings.first().toStdString();
    subclasses::ForgetfulSettings(u"org.example.forgetful"_s).readSettingsFromDefaults();
    EXPECT_EQ(warnings.size(), 1);
}

TEST_F(QuotationStrings, AreNamedInNoWarningElsewhere)
{
    const RecordedWarnings recorded;
    KZExportSettings(u"org.example.plain"_s).writeSettingsToDefaults();
    subclasses::Settings(u"org.example.plain"_s).readSettingsFromDefaults();
    subclasses::DerivedSettings(u"org.example.plain"_s).readSettingsFromDefaults();
    subclasses::SettingsOfAnotherBundle(u"org.example.plain"_s).readSettingsFromDefaults();
    subclasses::SettingsWithoutABundle(u"org.example.plain"_s).readSettingsFromDefaults();
    EXPECT_EQ(warnings, QStringList());
}

} // namespace

#include "QuotationStringsTest.moc"
