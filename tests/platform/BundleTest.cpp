#include <OrvaneExportKit/platform/Bundle.h>
#include <tests/support/Application.h>
#include <tests/support/Printers.h>

#include <gtest/gtest.h>

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>
#include <QtCore/QTranslator>

#include <optional>

using namespace Qt::Literals::StringLiterals;
using platform::Bundle;
using platform::BundleRegistration;

// As a plug-in does it.
namespace plugin {

const QString identifierAtLoad = bndlIdentifier;
const BundleRegistration bundle(u"org.example.plugin"_s, u":/org.example.plugin"_s);

class Settings
{
    Q_GADGET
    Q_CLASSINFO("BundleIdentifier", "org.example.plugin")
};

class DerivedSettings : public Settings
{
    Q_GADGET
};

class SettingsOfAnotherPlugin : public Settings
{
    Q_GADGET
    Q_CLASSINFO("BundleIdentifier", "org.example.other")
};

class Unmarked
{
    Q_GADGET
};

} // namespace plugin

namespace {

TEST(BundleIdentifier, IsReadyForStaticInitialisers)
{
    EXPECT_EQ(plugin::identifierAtLoad, u"org.orvane.ExportKit"_s);
}

TEST(BundleWithIdentifier, KnowsTheKitsBundle)
{
    const Bundle bundle = Bundle::bundleWithIdentifier(bndlIdentifier);
    EXPECT_FALSE(bundle.isNull());
    EXPECT_EQ(bundle.identifier(), u"org.orvane.ExportKit"_s);
    EXPECT_EQ(bundle.resourceRoot(), u":/OrvaneExportKit"_s);
    EXPECT_EQ(bundle, Bundle::kitBundle());
}

TEST(BundleWithIdentifier, IsNullForAnUnknownIdentifier)
{
    EXPECT_TRUE(Bundle::bundleWithIdentifier(u"org.example.unknown"_s).isNull());
    EXPECT_TRUE(Bundle::bundleWithIdentifier(u"ORG.ORVANE.EXPORTKIT"_s).isNull());
    EXPECT_TRUE(Bundle::bundleWithIdentifier({}).isNull());
}

TEST(BundleWithIdentifier, KnowsTheBundleOfAPlugin)
{
    EXPECT_EQ(Bundle::bundleWithIdentifier(u"org.example.plugin"_s).resourceRoot(), u":/org.example.plugin"_s);
}

TEST(BundleWithIdentifier, KnowsABundleAsLongAsItIsRegistered)
{
    {
        const BundleRegistration registration(u"org.example.passing"_s, u":/passing"_s);
        EXPECT_EQ(Bundle::bundleWithIdentifier(u"org.example.passing"_s),
                  Bundle(u"org.example.passing"_s, u":/passing"_s));
    }
    EXPECT_TRUE(Bundle::bundleWithIdentifier(u"org.example.passing"_s).isNull());
}

TEST(BundleWithIdentifier, PrefersTheLatestRegistration)
{
    const auto root = [] {
        return Bundle::bundleWithIdentifier(u"org.example.twice"_s).resourceRoot();
    };
    std::optional<BundleRegistration> first(std::in_place, u"org.example.twice"_s, u":/first"_s);
    std::optional<BundleRegistration> second(std::in_place, u"org.example.twice"_s, u":/second"_s);
    EXPECT_EQ(root(), u":/second"_s);
    second.reset();
    EXPECT_EQ(root(), u":/first"_s);
    second.emplace(u"org.example.twice"_s, u":/second"_s);
    first.reset();
    EXPECT_EQ(root(), u":/second"_s);
}

TEST(KitBundle, CanBeReplacedByAHost)
{
    {
        const BundleRegistration replacement(u"org.orvane.ExportKit"_s, u":/host"_s);
        EXPECT_EQ(Bundle::kitBundle().resourceRoot(), u":/host"_s);
    }
    EXPECT_EQ(Bundle::kitBundle().resourceRoot(), u":/OrvaneExportKit"_s);
}

TEST(KitBundle, DoesNotDependOnTheVariable)
{
    const QString identifier = std::exchange(bndlIdentifier, u"org.example.plugin"_s);
    EXPECT_EQ(Bundle::kitBundle().resourceRoot(), u":/OrvaneExportKit"_s);
    bndlIdentifier = identifier;
}

TEST(BundleForClass, IsTheOneThatTheClassNames)
{
    EXPECT_EQ(Bundle::bundleForClass(plugin::Settings::staticMetaObject),
              Bundle::bundleWithIdentifier(u"org.example.plugin"_s));
}

TEST(BundleForClass, IsInherited)
{
    EXPECT_EQ(Bundle::bundleForClass(plugin::DerivedSettings::staticMetaObject).identifier(), u"org.example.plugin"_s);
}

TEST(BundleForClass, IsTheDerivedClasssOwnBeforeTheInheritedOne)
{
    const BundleRegistration other(u"org.example.other"_s, u":/other"_s);
    EXPECT_EQ(Bundle::bundleForClass(plugin::SettingsOfAnotherPlugin::staticMetaObject).resourceRoot(), u":/other"_s);
}

TEST(BundleForClass, IsNullWhileTheBundleIsNotRegistered)
{
    EXPECT_TRUE(Bundle::bundleForClass(plugin::SettingsOfAnotherPlugin::staticMetaObject).isNull());
}

TEST(BundleForClass, IsTheKitsForAClassThatNamesNone)
{
    EXPECT_EQ(Bundle::bundleForClass(plugin::Unmarked::staticMetaObject), Bundle::kitBundle());
    EXPECT_EQ(Bundle::bundleForClass(QObject::staticMetaObject), Bundle::kitBundle());
}

class PathForResource : public testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(m_folder.isValid());
        ASSERT_TRUE(QDir(root()).mkdir(u"panels"_s));
        for (const QString &name : {u"Quotes.plist"_s, u"panels/Style.ui"_s}) {
            ASSERT_TRUE(QFile(m_folder.filePath(name)).open(QIODevice::WriteOnly));
        }
    }

    QString root() const { return m_folder.path(); }
    Bundle bundle() const { return {u"org.example"_s, root()}; }

private:
    QTemporaryDir m_folder;
};

TEST_F(PathForResource, LeadsBelowTheRoot)
{
    EXPECT_EQ(bundle().pathForResource(u"Quotes"_s, u"plist"_s), root() + u"/Quotes.plist"_s);
    EXPECT_EQ(bundle().pathForResource(u"panels/Style"_s, u"ui"_s), root() + u"/panels/Style.ui"_s);
}

TEST_F(PathForResource, IsTheSameForARootWithASlashAtItsEnd)
{
    const Bundle bundle(u"org.example"_s, root() + u'/');
    EXPECT_EQ(bundle.pathForResource(u"Quotes"_s, u"plist"_s), root() + u"/Quotes.plist"_s);
}

TEST_F(PathForResource, IsEmptyForAMissingResource)
{
    EXPECT_EQ(bundle().pathForResource(u"Quotes"_s, u"ui"_s), QString());
    EXPECT_EQ(bundle().pathForResource(u"Style"_s, u"ui"_s), QString());
    EXPECT_EQ(Bundle(u"org.example"_s, root() + u"/missing"_s).pathForResource(u"Quotes"_s, u"plist"_s), QString());
}

TEST_F(PathForResource, IsEmptyForTheNullBundle)
{
    const QString currentFolder = QDir::currentPath();
    ASSERT_TRUE(QDir::setCurrent(root()));
    EXPECT_EQ(Bundle().pathForResource(u"Quotes"_s, u"plist"_s), QString());
    ASSERT_TRUE(QDir::setCurrent(currentFolder));
}

TEST(PathForKitResource, LeadsIntoTheLibrary)
{
    const QString path = Bundle::kitBundle().pathForResource(u"Quotes"_s, u"plist"_s);
    EXPECT_EQ(path, u":/OrvaneExportKit/Quotes.plist"_s);
    EXPECT_TRUE(QFile(path).open(QIODevice::ReadOnly));
}

/// Translates by showing what it was asked for, except keys that start with "untranslated".
class ShowingTranslator final : public QTranslator
{
public:
    QString translate(const char *context, const char *source, const char *comment, int) const override
    {
        const QStringList parts{QString::fromUtf8(context), QString::fromUtf8(source), QString::fromUtf8(comment)};
        return parts[1].startsWith(u"untranslated"_s) ? QString() : parts.join(u'|');
    }
    bool isEmpty() const override { return false; }
};

class LocalizedStringForKey : public testing::Test
{
protected:
    void SetUp() override { ASSERT_TRUE(QCoreApplication::installTranslator(&m_translator)); }

    const Bundle m_bundle{u"org.example"_s, u":/org.example"_s};

private:
    support::Application m_application;
    ShowingTranslator m_translator;
};

TEST_F(LocalizedStringForKey, ComesFromTheTableForTheBundle)
{
    EXPECT_EQ(m_bundle.localizedStringForKey(u"gr\u00FC\u00DFe"_s, {}, u"T\u00E4bles"_s),
              u"T\u00E4bles|gr\u00FC\u00DFe|org.example"_s);
}

TEST_F(LocalizedStringForKey, ComesFromTheDefaultTable)
{
    EXPECT_EQ(m_bundle.localizedStringForKey(u"Level"_s), u"Localizable|Level|org.example"_s);
    EXPECT_EQ(m_bundle.localizedStringForKey(u"Level"_s, u"value"_s, {}), u"Localizable|Level|org.example"_s);
}

TEST_F(LocalizedStringForKey, IsTheValueWithoutATranslation)
{
    EXPECT_EQ(m_bundle.localizedStringForKey(u"untranslated"_s, u"value"_s), u"value"_s);
}

TEST_F(LocalizedStringForKey, IsTheKeyWithoutATranslationAndAValue)
{
    EXPECT_EQ(m_bundle.localizedStringForKey(u"untranslated \u00FC %1 %n"_s), u"untranslated \u00FC %1 %n"_s);
    EXPECT_EQ(m_bundle.localizedStringForKey(u"untranslated"_s, u""_s), u"untranslated"_s);
}

TEST_F(LocalizedStringForKey, IsNeverTranslatedInTheNullBundle)
{
    EXPECT_EQ(Bundle().localizedStringForKey(u"Level"_s), u"Level"_s);
    EXPECT_EQ(Bundle().localizedStringForKey(u"Level"_s, u"value"_s), u"value"_s);
}

TEST(LocalizedStringWithoutAnApplication, IsTheValueOrTheKey)
{
    EXPECT_EQ(Bundle::kitBundle().localizedStringForKey(u"ProcDoc"_s), u"ProcDoc"_s);
    EXPECT_EQ(Bundle::kitBundle().localizedStringForKey(u"ProcDoc"_s, u"value"_s), u"value"_s);
}

} // namespace

#include "BundleTest.moc"
