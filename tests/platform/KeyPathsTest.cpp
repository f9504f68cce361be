#include <OrvaneExportKit/platform/KeyPaths.h>
#include <OrvaneExportKit/settings/KZExportSettings.h>
#include <tests/support/Printers.h>

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;
using platform::setValueForKeyPath;
using platform::valueForKeyPath;

namespace {

/// The owner of a panel: its settings, a name, and a number that nobody can set.
class Controller : public QObject
{
    Q_OBJECT
    Q_PROPERTY(KZExportSettings *settings READ settings CONSTANT)
    Q_PROPERTY(KZExportSettings *otherSettings READ otherSettings CONSTANT)
    Q_PROPERTY(QVariantMap style MEMBER m_style)
    Q_PROPERTY(int count READ count CONSTANT)

public:
    KZExportSettings *settings() { return &m_settings; }
    static KZExportSettings *otherSettings() { return nullptr; }
    static int count() { return 3; }

private:
    KZExportSettings m_settings{u"com.example.controller"_s};
    QVariantMap m_style;
};

class KeyPaths : public testing::Test
{
protected:
    KeyPaths()
    {
        QObject::connect(&settings(), &KZExportSettings::willChangeValueForKey,
                         [this](const QString &key) { m_changes.append(u"will "_s + key); });
        QObject::connect(&settings(), &KZExportSettings::didChangeValueForKey,
                         [this](const QString &key) { m_changes.append(u"did "_s + key); });
    }

    KZExportSettings &settings() { return *m_controller.settings(); }
    QVariant value(const QString &keyPath) { return valueForKeyPath(&m_controller, keyPath); }
    void setValue(const QVariant &value, const QString &keyPath) { setValueForKeyPath(&m_controller, value, keyPath); }

    /// What is said about reading at the path.
    QString readingError(const QString &keyPath)
    {
        try {
            value(keyPath);
        } catch (const platform::InvalidArgumentException &error) {
            return QString::fromUtf8(error.what());
        }
        return {};
    }

    /// What is said about writing at the path.
    QString writingError(const QVariant &value, const QString &keyPath)
    {
        try {
            setValue(value, keyPath);
        } catch (const platform::InvalidArgumentException &error) {
            return QString::fromUtf8(error.what());
        }
        return {};
    }

    Controller m_controller;
    QStringList m_changes;
};

TEST_F(KeyPaths, ReadPropertiesSettingsAndNestedDictionaries)
{
    settings().setObject(QVariantMap{{u"inner"_s, QVariantMap{{u"top"_s, 72}}}}, u"margin"_s);
    settings().setObject(u"de"_s, u"language"_s);
    EXPECT_EQ(value(u"count"_s), QVariant(3));
    EXPECT_EQ(value(u"settings.language"_s), QVariant(u"de"_s));
    EXPECT_EQ(value(u"settings.margin.inner.top"_s), QVariant(72));
}

TEST_F(KeyPaths, ReadDynamicProperties)
{
    m_controller.setProperty("extra", 5);
    EXPECT_EQ(value(u"extra"_s), QVariant(5));
    setValue(6, u"extra"_s);
    EXPECT_EQ(m_controller.property("extra"), QVariant(6));
}

TEST_F(KeyPaths, AnswerNothingForMissingEntriesAndObjects)
{
    settings().setObject(QVariantMap(), u"margin"_s);
    EXPECT_FALSE(value(u"settings.language"_s).isValid());
    EXPECT_FALSE(value(u"settings.margin.inner.top"_s).isValid());
    EXPECT_FALSE(value(u"otherSettings.language"_s).isValid());
}

TEST_F(KeyPaths, AskASettingsObjectForItsEntriesAlone)
{
    EXPECT_FALSE(value(u"settings.objectName"_s).isValid());
}

TEST_F(KeyPaths, TellObserversOfASettingOnce)
{
    setValue(u"fr"_s, u"settings.language"_s);
    EXPECT_EQ(settings().objectForKey(u"language"_s), QVariant(u"fr"_s));
    EXPECT_EQ(m_changes, (QStringList{u"will language"_s, u"did language"_s}));
}

TEST_F(KeyPaths, WriteIntoNestedDictionariesThroughTheOutermostKey)
{
    settings().setObject(QVariantMap{{u"left"_s, 10}, {u"inner"_s, QVariantMap{{u"top"_s, 72}}}}, u"margin"_s);
    setValue(36, u"settings.margin.inner.top"_s);
    EXPECT_EQ(settings().objectForKey(u"margin"_s),
              QVariant(QVariantMap{{u"left"_s, 10}, {u"inner"_s, QVariantMap{{u"top"_s, 36}}}}));
    EXPECT_EQ(m_changes, (QStringList{u"will margin"_s, u"did margin"_s}));
}

TEST_F(KeyPaths, MakeMissingDictionaries)
{
    setValue(36, u"settings.margin.inner.top"_s);
    EXPECT_EQ(settings().objectForKey(u"margin"_s), QVariant(QVariantMap{{u"inner"_s, QVariantMap{{u"top"_s, 36}}}}));
}

TEST_F(KeyPaths, TakeEntriesOutOfDictionaries)
{
    settings().setObject(QVariantMap{{u"left"_s, 10}, {u"top"_s, 72}}, u"margin"_s);
    setValue({}, u"settings.margin.top"_s);
    EXPECT_EQ(settings().objectForKey(u"margin"_s), QVariant(QVariantMap{{u"left"_s, 10}}));
}

TEST_F(KeyPaths, WriteIntoDictionariesOfProperties)
{
    setValue(u"bold"_s, u"style.weight"_s);
    EXPECT_EQ(m_controller.property("style"), QVariant(QVariantMap{{u"weight"_s, u"bold"_s}}));
}

TEST_F(KeyPaths, NameThePropertyThatIsMissing)
{
    EXPECT_EQ(readingError(u"setings.language"_s),
              u"the key path \"setings.language\": Controller has no property \"setings\""_s);
    EXPECT_EQ(writingError(1, u"setings.language"_s), readingError(u"setings.language"_s));
}

TEST_F(KeyPaths, NameTheKeyAskedOfAValueWithoutKeys)
{
    settings().setObject(72, u"margin"_s);
    EXPECT_EQ(readingError(u"settings.margin.top"_s),
              u"the key path \"settings.margin.top\": a value of the type int has no key \"top\""_s);
    EXPECT_EQ(writingError(1, u"settings.margin.top"_s), readingError(u"settings.margin.top"_s));
    EXPECT_EQ(settings().objectForKey(u"margin"_s), QVariant(72));
}

TEST_F(KeyPaths, RefuseEmptyKeysAndNoObject)
{
    EXPECT_EQ(readingError(QString()), u"the key path \"\": a key is empty"_s);
    EXPECT_EQ(readingError(u"settings..top"_s), u"the key path \"settings..top\": a key is empty"_s);
    EXPECT_THROW(valueForKeyPath(nullptr, u"settings"_s), platform::InvalidArgumentException);
}

TEST_F(KeyPaths, RefuseToWriteWhatCannotBeWritten)
{
    EXPECT_EQ(
        writingError(1, u"count"_s),
        u"the key path \"count\": the property \"count\" of Controller cannot be set to a value of the type int"_s);
    EXPECT_EQ(writingError(1, u"otherSettings.language"_s),
              u"the key path \"otherSettings.language\": there is no object behind \"otherSettings\""_s);
}

TEST_F(KeyPaths, ListTheObjectsOnTheWay)
{
    const auto steps = platform::keyPathSteps(&m_controller, u"settings.margin.top"_s);
    ASSERT_EQ(steps.size(), 2);
    EXPECT_EQ(steps[0].object, &m_controller);
    EXPECT_EQ(steps[0].key, u"settings"_s);
    EXPECT_EQ(steps[1].object, &settings());
    EXPECT_EQ(steps[1].key, u"margin"_s);
}

} // namespace

#include "KeyPathsTest.moc"
