#include <OrvaneExportKit/run/ExportPlugin.h>
#include <tests/support/Printers.h>
#include <tests/support/TemporaryDefaults.h>

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace {

class TwoChoicesPlugin final : public ExportPlugin
{
public:
    QString name() const override { return u"two-choices"_s; }
    QString displayName() const override { return name(); }
    QString pathExtension() const override { return u"txt"_s; }
    QList<Choice> choices() const override { return {{u"size"_s, u"12"_s, {}}, {u"tag"_s, u"#"_s, {}}}; }
    KZExportSettings &settings() override { return m_settings; }
    void setChoice(const QString &key, const QString &value) override { m_settings.setValue(value, key); }
    QByteArray exportedData(const ExportDocument & /*document*/, const platform::AttributedString &text) const override
    {
        return text.string().toUtf8();
    }

private:
    KZExportSettings m_settings{u"org.example.two-choices"_s};
};

TEST(ExportPluginChoices, ThatAreMissingAreStoredAndTheOthersStay)
{
    TwoChoicesPlugin plugin;
    plugin.settings().setObject(14.5F, u"size"_s);
    plugin.settings().setObject(u"kept"_s, u"unknown"_s);
    plugin.storeMissingChoices();
    EXPECT_EQ(plugin.settings().defaultDictionary(),
              (QVariantMap{{u"size"_s, 14.5F}, {u"tag"_s, u"#"_s}, {u"unknown"_s, u"kept"_s}}));
}

TEST(ExportPluginChoices, ThatAreEmptyAreNotMissing)
{
    TwoChoicesPlugin plugin;
    plugin.settings().setObject(u""_s, u"size"_s);
    plugin.storeMissingChoices();
    EXPECT_EQ(plugin.settings().objectForKey(u"size"_s), u""_s);
}

TEST(ExportPluginChoices, ThatAreStoredAreToldToObservers)
{
    TwoChoicesPlugin plugin;
    plugin.settings().setObject(14, u"size"_s);
    QStringList changed;
    QObject::connect(&plugin.settings(), &KZExportSettings::didChangeValueForKey,
                     [&changed](const QString &key) { changed.append(key); });
    plugin.storeMissingChoices();
    EXPECT_EQ(changed, QStringList{u"tag"_s});
}

TEST(ExportPluginFiles, AreThoseOfTheDocumentsAloneUnlessThePluginAddsSome)
{
    const TwoChoicesPlugin plugin;
    EXPECT_EQ(plugin.additionalFileNames(), QStringList());
    EXPECT_EQ(plugin.additionalFileData(u"index.html"_s, u"Title"_s, {}), QByteArray());
}

TEST(ExportPluginBundle, IsNoneUnlessThePluginHasOne)
{
    EXPECT_TRUE(TwoChoicesPlugin().bundle().isNull());
}

} // namespace
