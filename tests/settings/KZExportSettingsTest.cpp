#include <OrvaneExportKit/settings/KZExportSettings.h>

#include <OrvaneExportKit/controls/ValueTransformers.h>
#include <OrvaneExportKit/platform/KeyedArchiver.h>
#include <OrvaneExportKit/platform/PropertyList.h>
#include <OrvaneExportKit/platform/ValueTransformer.h>

#include <tests/support/Files.h>
#include <tests/support/Printers.h>
#include <tests/support/RecordingAlert.h>
#include <tests/support/TemporaryDefaults.h>

#include <QtCore/QDateTime>
#include <QtCore/QSize>

#include <gtest/gtest.h>

#include <limits>

namespace {

using namespace Qt::Literals::StringLiterals;
using platform::UserDefaults;
using support::RecordingAlert;

const QString domainName = u"com.example.settings-test"_s;

/// What observers of a settings object are told, in order: "will KEY VALUE" and "did KEY VALUE" with the value stored
/// at that moment.
class Notices
{
public:
    explicit Notices(const KZExportSettings &settings)
    {
        QObject::connect(&settings, &KZExportSettings::willChangeValueForKey, [this, &settings](const QString &key) {
            list.append(u"will "_s + key + u' ' + settings.valueForKey(key).toString());
        });
        QObject::connect(&settings, &KZExportSettings::didChangeValueForKey, [this, &settings](const QString &key) {
            list.append(u"did "_s + key + u' ' + settings.valueForKey(key).toString());
        });
    }

    QStringList list;
};

class ExportSettings : public support::TemporaryDefaults
{
protected:
    RecordingAlert alert;
    KZExportSettings settings{domainName};
};

// Saving and loading

TEST_F(ExportSettings, ReadNothingAndStayWhenNoDomainIsSaved)
{
    settings.setInteger(7, u"kept"_s);
    EXPECT_FALSE(settings.readSettingsFromDefaults());
    EXPECT_EQ(settings.integerForKey(u"kept"_s), 7);
    EXPECT_TRUE(alert.errors.isEmpty());
}

TEST_F(ExportSettings, AreEmptyAfterDataThatIsNoPropertyListAndAlertOnce)
{
    settings.setInteger(7, u"lost"_s);
    settings.setDefaultData("<plist><dict>");
    EXPECT_TRUE(settings.defaultDictionary().isEmpty());
    ASSERT_EQ(alert.errors.size(), 1);
    EXPECT_EQ(platform::lastError(), alert.errors.first());
}

TEST_F(ExportSettings, AreReplacedBeforeTheAlertOpensAndKeepWhatIsWrittenMeanwhile)
{
    using platform::PropertyList;
    const QByteArray list = *PropertyList::write(QVariantList{1}, PropertyList::Format::Xml).data;
    for (const QByteArray &data : {QByteArray("<plist><dict>"), list}) {
        settings.setObject(u"entry"_s, u"old"_s);
        QVariantMap entriesWhileOpen;
        alert.whileOpen = [&] {
            entriesWhileOpen = settings.defaultDictionary();
            settings.setObject(u"entry"_s, u"new"_s);
        };
        settings.setDefaultData(data);
        EXPECT_EQ(entriesWhileOpen, QVariantMap()) << data.toStdString();
        EXPECT_EQ(settings.defaultDictionary(), (QVariantMap{{u"new"_s, u"entry"_s}})) << data.toStdString();
    }
    EXPECT_EQ(alert.errors.size(), 2);
}

TEST_F(ExportSettings, KeepWhatIsWrittenWhileTheAlertAboutARefusedDictionaryIsOpen)
{
    settings.setInteger(7, u"kept"_s);
    alert.whileOpen = [this] {
        settings.setInteger(8, u"written"_s);
    };
    settings.setDefaultDictionary({{u"size"_s, QSize(1, 2)}});
    EXPECT_EQ(settings.defaultDictionary(), (QVariantMap{{u"kept"_s, 7}, {u"written"_s, 8}}));
}

TEST_F(ExportSettings, KeepADictionaryThatAKeyedArchiveWouldTakeForAReference)
{
    const QString key = u"CF$UID"_s;
    const QVariantMap given{{u"one"_s, QVariantMap{{key, 1LL}}},
                            {u"negative"_s, QVariantMap{{key, -1LL}}},
                            {u"large"_s, QVariantMap{{key, std::numeric_limits<quint64>::max()}}},
                            {u"list"_s, QVariantList{QVariantMap{{u"inner"_s, QVariantMap{{key, 2LL}}}}}}};
    settings.setDefaultDictionary(given);
    EXPECT_EQ(settings.defaultDictionary(), given);

    settings.writeSettingsToDefaults();
    KZExportSettings loaded(domainName);
    EXPECT_TRUE(loaded.readSettingsFromDefaults());
    EXPECT_EQ(loaded.defaultDictionary(), given);

    KZExportSettings imported(domainName);
    imported.setDefaultData(settings.defaultData());
    EXPECT_EQ(imported.defaultDictionary(), given);

    settings.setDefaultDictionary({{key, 3LL}});
    EXPECT_EQ(settings.defaultDictionary(), (QVariantMap{{key, 3LL}}));
    EXPECT_TRUE(alert.errors.isEmpty()) << alert.errors.join(u'\n').toStdString();
}

TEST_F(ExportSettings, StayAndAlertWhenADictionaryHoldsNoPropertyListValue)
{
    settings.setInteger(7, u"kept"_s);
    settings.setDefaultDictionary({{u"paper"_s, QVariantMap{{u"size"_s, QSize(1, 2)}}}});
    EXPECT_EQ(settings.defaultDictionary(), (QVariantMap{{u"kept"_s, 7}}));
    ASSERT_EQ(alert.errors.size(), 1);
    EXPECT_TRUE(alert.errors.first().contains(u"paper.size"_s)) << alert.errors.first().toStdString();
}

TEST_F(ExportSettings, AreADeepCopyOfTheDictionaryThatTheyAreSetTo)
{
    const QVariantMap given{{u"list"_s, QVariantList{u"one"_s}}, {u"text"_s, u"a"_s}};
    settings.setDefaultDictionary(given);
    QVariantList list = settings.objectForKey(u"list"_s).toList();
    list.append(u"two"_s);
    settings.setObject(list, u"list"_s);
    EXPECT_EQ(given.value(u"list"_s).toList(), QVariantList{u"one"_s});
    EXPECT_EQ(settings.objectForKey(u"list"_s).toList(), (QVariantList{u"one"_s, u"two"_s}));
}

TEST_F(ExportSettings, HoldWhatAPropertyListMakesOfTheDictionaryThatTheyAreSetTo)
{
    const QDateTime noonInNewYork({2024, 2, 29}, {12, 0, 0, 700}, Qt::OffsetFromUTC, -5 * 3600);
    settings.setDefaultDictionary({{u"int"_s, 7},
                                   {u"float"_s, 1.5F},
                                   {u"strings"_s, QStringList{u"a"_s}},
                                   {u"hash"_s, QVariantHash{{u"b"_s, true}}},
                                   {u"date"_s, noonInNewYork}});
    const QVariantMap expected{{u"int"_s, 7LL},
                               {u"float"_s, 1.5},
                               {u"strings"_s, QVariantList{u"a"_s}},
                               {u"hash"_s, QVariantMap{{u"b"_s, true}}},
                               {u"date"_s, QDateTime({2024, 2, 29}, {17, 0}, Qt::UTC)}};
    EXPECT_EQ(settings.defaultDictionary(), expected);
    for (auto entry = expected.begin(); entry != expected.end(); ++entry) {
        EXPECT_EQ(settings.objectForKey(entry.key()).metaType(), entry->metaType()) << entry.key().toStdString();
    }
}

TEST_F(ExportSettings, AreReplacedAsAWholeByADictionary)
{
    settings.setInteger(1, u"before"_s);
    settings.setInteger(2, u"both"_s);
    settings.setDefaultDictionary({{u"both"_s, 3}, {u"after"_s, 4}});
    EXPECT_EQ(settings.defaultDictionary(), (QVariantMap{{u"both"_s, 3}, {u"after"_s, 4}}));
}

TEST_F(ExportSettings, ReplaceAllThatWasSavedBefore)
{
    ASSERT_TRUE(defaults().setPersistentDomain({{u"before"_s, 1}, {u"both"_s, 2}}, domainName));
    settings.setInteger(3, u"both"_s);
    settings.writeSettingsToDefaults();
    EXPECT_EQ(defaults().persistentDomainForName(domainName), (QVariantMap{{u"both"_s, 3}}));
}

TEST_F(ExportSettings, AreReplacedAsAWholeBySavedOnes)
{
    ASSERT_TRUE(defaults().setPersistentDomain({{u"saved"_s, 1}}, domainName));
    settings.setInteger(3, u"before"_s);
    EXPECT_TRUE(settings.readSettingsFromDefaults());
    EXPECT_EQ(settings.defaultDictionary(), (QVariantMap{{u"saved"_s, 1}}));
}

TEST_F(ExportSettings, SayThatTheyWereSavedAlsoWhenWhatWasCannotBeTakenOver)
{
    // {"a": half a surrogate pair}, which a binary property list can hold and a setting cannot be
    support::writeFile(defaults().folder() + u'/' + domainName + u".plist"_s,
                       QByteArray::fromHex("62706c6973743030 d10102 5161 61d800 080b0d 0000000000000101"
                                           "0000000000000003 0000000000000000 0000000000000010"));
    settings.setInteger(7, u"kept"_s);
    EXPECT_TRUE(settings.readSettingsFromDefaults());
    EXPECT_EQ(settings.defaultDictionary(), (QVariantMap{{u"kept"_s, 7}}));
    EXPECT_EQ(alert.errors.size(), 1);
}

TEST_F(ExportSettings, GiveTheirDictionaryAsACopy)
{
    settings.setInteger(1, u"a"_s);
    QVariantMap copy = settings.defaultDictionary();
    copy.insert(u"b"_s, 2);
    EXPECT_EQ(settings.defaultDictionary(), (QVariantMap{{u"a"_s, 1}}));
}

TEST_F(ExportSettings, RegisterTheTransformersOfTheObjectCreatedLast)
{
    const auto registeredFactor = [] {
        const auto transformer = platform::valueTransformerForName(u"KZMeasurementUnitTransformer"_s);
        return std::dynamic_pointer_cast<KZMeasurementUnitTransformer>(transformer)->factor();
    };
    const QStringList names{u"KZMeasurementUnitTransformer"_s, u"KZLineHeightMultipleTransformer"_s,
                            u"KZEmptyStringTransformer"_s, u"KZLocaleTransformer"_s};
    QList<std::shared_ptr<platform::ValueTransformer>> before;
    for (const QString &name : names) {
        before.append(platform::valueTransformerForName(name));
        ASSERT_NE(before.last(), nullptr) << name.toStdString();
    }
    EXPECT_EQ(registeredFactor(), 2.54F / 72);

    ASSERT_TRUE(
        defaults().setPersistentDomain({{u"AppleMeasurementUnits"_s, u"Inches"_s}}, UserDefaults::globalDomain()));
    const auto second = KZExportSettings::initWithBundleIdentifier(domainName);
    for (qsizetype index = 0; index < names.size(); ++index) {
        EXPECT_NE(platform::valueTransformerForName(names[index]), before[index]) << names[index].toStdString();
    }
    EXPECT_EQ(registeredFactor(), 1.0F / 72);
}

TEST_F(ExportSettings, LeaveTheirTransformersBehind)
{
    const QString name = u"KZLocaleTransformer"_s;
    const platform::ValueTransformer *registered = nullptr;
    {
        const KZExportSettings passing(domainName);
        registered = platform::valueTransformerForName(name).get();
        ASSERT_NE(registered, nullptr);
    }
    EXPECT_EQ(platform::valueTransformerForName(name).get(), registered);
}

TEST_F(ExportSettings, ComeBackFromTheDefaultsWithKeysThatNobodyKnows)
{
    settings.setFloat(1.5F, u"lineHeight"_s);
    settings.setUnsignedInteger(4294967295U, u"big"_s);
    settings.setBool(true, u"flag"_s);
    settings.setObject(QVariantMap{{u"fromAnotherVersion"_s, QVariantList{1, u"x"_s}}}, u"future"_s);
    settings.writeSettingsToDefaults();

    KZExportSettings later(domainName);
    EXPECT_TRUE(later.readSettingsFromDefaults());
    EXPECT_EQ(later.floatForKey(u"lineHeight"_s), 1.5F);
    EXPECT_EQ(later.unsignedIntegerForKey(u"big"_s), 4294967295U);
    EXPECT_TRUE(later.boolForKey(u"flag"_s));
    later.writeSettingsToDefaults();
    EXPECT_EQ(defaults().persistentDomainForName(domainName)->value(u"future"_s),
              QVariant(QVariantMap{{u"fromAnotherVersion"_s, QVariantList{1, u"x"_s}}}));
}

TEST_F(ExportSettings, SayThroughTheDefaultsThatTheyCouldNotBeSaved)
{
    KZExportSettings outside(u"../outside"_s);
    outside.setInteger(1, u"a"_s);
    outside.writeSettingsToDefaults();
    EXPECT_FALSE(defaults().lastError().isEmpty());
    EXPECT_FALSE(defaults().synchronize());
    QString error;
    EXPECT_FALSE(outside.readSettingsFromDefaults(&error));
    EXPECT_TRUE(error.contains(u"../outside"_s));
    EXPECT_FALSE(defaults().removePersistentDomainForName(u"../outside"_s));
    EXPECT_TRUE(defaults().synchronize());
}

TEST_F(ExportSettings, SayWhichOfTheirValuesCannotBeSaved)
{
    for (const QVariant &value :
         {QVariant(QSize(1, 2)), QVariant(QString(QChar::Null)), QVariant(QString(QChar(0xDC00)))}) {
        settings.setInteger(1, u"saved"_s);
        EXPECT_TRUE(settings.saveToDefaults());
        settings.setObject(value, u"paperName"_s);
        settings.setInteger(2, u"saved"_s);
        settings.writeSettingsToDefaults();
        EXPECT_FALSE(defaults().synchronize());
        EXPECT_TRUE(defaults().lastError().contains(u"paperName: "_s)) << defaults().lastError().toStdString();
        EXPECT_FALSE(settings.saveToDefaults());
        EXPECT_TRUE(defaults().lastError().contains(u"paperName: "_s)) << defaults().lastError().toStdString();
        EXPECT_EQ(defaults().persistentDomainForName(domainName), (QVariantMap{{u"saved"_s, 1}}));
        settings.setObject(u"A4"_s, u"paperName"_s);
        settings.writeSettingsToDefaults();
        EXPECT_TRUE(defaults().synchronize());
        settings.setDefaultDictionary({});
    }
}

TEST_F(ExportSettings, ExportAndImportAnXmlPropertyList)
{
    settings.setInteger(72, u"lineLength"_s);
    const QByteArray data = settings.defaultData();
    EXPECT_TRUE(data.startsWith("<?xml"));
    KZExportSettings other(domainName);
    other.setInteger(1, u"replaced"_s);
    other.setDefaultData(data);
    EXPECT_EQ(other.defaultDictionary().keys(), QStringList{u"lineLength"_s});
    EXPECT_EQ(other.integerForKey(u"lineLength"_s), 72);
}

TEST_F(ExportSettings, ImportABinaryPropertyListToo)
{
    using platform::PropertyList;
    settings.setDefaultData(*PropertyList::write(QVariantMap{{u"a"_s, 5}}, PropertyList::Format::Binary).data);
    EXPECT_EQ(settings.integerForKey(u"a"_s), 5);
}

TEST_F(ExportSettings, RefuseABinaryPropertyListWithANullWhenItComesIn)
{
    // {"a": null}
    settings.setDefaultData(QByteArray::fromHex("62706c6973743030 d10102 5161 00 080b0d 0000000000000101"
                                                "0000000000000003 0000000000000000 000000000000000e"));
    ASSERT_EQ(alert.errors.size(), 1);
    EXPECT_EQ(alert.errors.first(), u"byte 13: a null is not a property-list value"_s);
    EXPECT_TRUE(settings.defaultDictionary().isEmpty());
    EXPECT_TRUE(settings.saveToDefaults());
}

TEST_F(ExportSettings, AlertAndGiveNoDataForAValueThatIsNone)
{
    settings.setObject(QSize(1, 2), u"size"_s);
    EXPECT_TRUE(settings.defaultData().isNull());
    EXPECT_EQ(alert.errors.size(), 1);
}

TEST_F(ExportSettings, AreEmptyAfterAPropertyListWithoutADictionary)
{
    using platform::PropertyList;
    settings.setInteger(7, u"lost"_s);
    settings.setDefaultData(*PropertyList::write(QVariantList{1}, PropertyList::Format::Xml).data);
    EXPECT_TRUE(settings.defaultDictionary().isEmpty());
    EXPECT_EQ(alert.errors.size(), 1);
}

TEST_F(ExportSettings, KeepTheLastErrorWithoutAnAlert)
{
    platform::ErrorAlert *const before = platform::setErrorAlert(nullptr);
    settings.setDefaultData("nothing of the kind");
    platform::setErrorAlert(before);
    EXPECT_FALSE(platform::lastError().isEmpty());
    EXPECT_TRUE(alert.errors.isEmpty());
}

// Typed access

TEST_F(ExportSettings, ReadAFloatAsIntegerAndBoolean)
{
    settings.setFloat(1.5F, u"a"_s);
    EXPECT_EQ(settings.integerForKey(u"a"_s), 1);
    EXPECT_TRUE(settings.boolForKey(u"a"_s));
}

TEST_F(ExportSettings, ReadANegativeIntegerAsUnsignedByItsBits)
{
    settings.setInteger(-1, u"a"_s);
    EXPECT_EQ(settings.unsignedIntegerForKey(u"a"_s), 4294967295U);
}

TEST_F(ExportSettings, ReadALargeUnsignedCharAsSignedByItsBits)
{
    settings.setUnsignedChar(200, u"a"_s);
    EXPECT_EQ(settings.charForKey(u"a"_s), -56);
}

TEST_F(ExportSettings, ReadAStringInTheRangeOfEachType)
{
    settings.setObject(u"3000000000.5"_s, u"a"_s);
    EXPECT_EQ(settings.floatForKey(u"a"_s), 3e9F);
    EXPECT_EQ(settings.unsignedIntegerForKey(u"a"_s), 3'000'000'000U);
    EXPECT_EQ(settings.integerForKey(u"a"_s), 2'147'483'647);
    settings.setObject(u"300"_s, u"a"_s);
    EXPECT_EQ(settings.unsignedCharForKey(u"a"_s), 255);
    EXPECT_EQ(settings.charForKey(u"a"_s), 127);
}

TEST_F(ExportSettings, ReadAFractionAsTrue)
{
    settings.setFloat(0.5F, u"a"_s);
    EXPECT_TRUE(settings.boolForKey(u"a"_s));
    EXPECT_EQ(settings.integerForKey(u"a"_s), 0);
}

TEST_F(ExportSettings, ReadAStringByItsLeadingDigits)
{
    settings.setObject(u"12"_s, u"a"_s);
    EXPECT_EQ(settings.integerForKey(u"a"_s), 12);
}

TEST_F(ExportSettings, TellObserversOfSetValueBeforeAndAfter)
{
    settings.setObject(u"old"_s, u"a"_s);
    const Notices notices(settings);
    settings.setValue(u"new"_s, u"a"_s);
    EXPECT_EQ(notices.list, (QStringList{u"will a old"_s, u"did a new"_s}));
}

TEST_F(ExportSettings, TellObserversAlsoOfAnEqualValue)
{
    settings.setObject(u"same"_s, u"a"_s);
    const Notices notices(settings);
    settings.setValue(u"same"_s, u"a"_s);
    EXPECT_EQ(notices.list, (QStringList{u"will a same"_s, u"did a same"_s}));
}

TEST_F(ExportSettings, TellObserversOfNoOtherWriter)
{
    settings.setObject(3, u"style"_s);
    settings.writeSettingsToDefaults();
    const Notices notices(settings);
    settings.setObject(u"text"_s, u"a"_s);
    settings.setNonPropertyListObject(QSize(1, 2), u"a"_s);
    settings.setFloat(1.5F, u"a"_s);
    settings.setUnsignedInteger(2, u"a"_s);
    settings.setInteger(-2, u"a"_s);
    settings.setUnsignedChar(3, u"a"_s);
    settings.setChar(-3, u"a"_s);
    settings.setBool(true, u"a"_s);
    settings.updateQuotationSettingForKey(u"style"_s);
    settings.setDefaultData(settings.defaultData());
    settings.setDefaultDictionary({{u"a"_s, 4}});
    EXPECT_TRUE(settings.readSettingsFromDefaults());
    EXPECT_EQ(notices.list, QStringList());
}

TEST_F(ExportSettings, AnswerNoFieldUnderItsName)
{
    EXPECT_FALSE(settings.valueForKey(u"settingsDict"_s).isValid());
    EXPECT_FALSE(settings.valueForKey(u"bundleIdentifier"_s).isValid());
    settings.setObject(u"entry"_s, u"bundleIdentifier"_s);
    EXPECT_EQ(settings.valueForKey(u"bundleIdentifier"_s), u"entry"_s);
}

TEST_F(ExportSettings, MigrateAMissingKeyAndALanguageCodeToGerman)
{
    settings.updateQuotationSettingForKey(u"missing"_s);
    EXPECT_EQ(settings.objectForKey(u"missing"_s), u"de"_s);
    settings.setObject(u"fr"_s, u"code"_s);
    settings.updateQuotationSettingForKey(u"code"_s);
    EXPECT_EQ(settings.objectForKey(u"code"_s), u"de"_s);
    for (const qint32 number : {6, -1}) {
        settings.setInteger(number, u"other"_s);
        settings.updateQuotationSettingForKey(u"other"_s);
        EXPECT_EQ(settings.objectForKey(u"other"_s), number);
    }
}

TEST_F(ExportSettings, MigrateEachStyleNumberToItsLanguageWithoutANotice)
{
    const QStringList codes{u"de"_s, u"de_CH"_s, u"fr"_s, u"en_US"_s, u"en_UK"_s, u"sv"_s};
    const Notices notices(settings);
    for (int number = 0; number < 6; ++number) {
        settings.setInteger(number, u"quotes"_s);
        settings.updateQuotationSettingForKey(u"quotes"_s);
        EXPECT_EQ(settings.objectForKey(u"quotes"_s), codes[number]);
    }
    EXPECT_TRUE(notices.list.isEmpty());
}

TEST_F(ExportSettings, ReadMissingKeysAsZeroAndNothing)
{
    EXPECT_EQ(settings.floatForKey(u"a"_s), 0.0F);
    EXPECT_EQ(settings.unsignedIntegerForKey(u"a"_s), 0U);
    EXPECT_EQ(settings.integerForKey(u"a"_s), 0);
    EXPECT_EQ(settings.unsignedCharForKey(u"a"_s), 0);
    EXPECT_EQ(settings.charForKey(u"a"_s), 0);
    EXPECT_FALSE(settings.boolForKey(u"a"_s));
    EXPECT_FALSE(settings.objectForKey(u"a"_s).isValid());
    EXPECT_FALSE(settings.nonPropertyListObjectForKey(u"a"_s).isValid());
}

TEST_F(ExportSettings, KeepTheTypeThatAScalarWasStoredWith)
{
    settings.setFloat(1.5F, u"float"_s);
    settings.setInteger(-2, u"int"_s);
    settings.setUnsignedInteger(3, u"unsigned"_s);
    settings.setUnsignedChar(200, u"unsignedChar"_s);
    settings.setChar(-5, u"char"_s);
    settings.setBool(true, u"bool"_s);
    EXPECT_EQ(settings.objectForKey(u"float"_s).metaType(), QMetaType::fromType<float>());
    EXPECT_EQ(settings.objectForKey(u"int"_s).metaType(), QMetaType::fromType<qint32>());
    EXPECT_EQ(settings.objectForKey(u"unsigned"_s).metaType(), QMetaType::fromType<quint32>());
    EXPECT_EQ(settings.objectForKey(u"unsignedChar"_s).metaType(), QMetaType::fromType<quint8>());
    EXPECT_EQ(settings.objectForKey(u"char"_s).metaType(), QMetaType::fromType<qint8>());
    EXPECT_EQ(settings.objectForKey(u"bool"_s).metaType(), QMetaType::fromType<bool>());
    EXPECT_EQ(settings.unsignedCharForKey(u"unsignedChar"_s), 200);
    EXPECT_EQ(settings.charForKey(u"char"_s), -5);
    EXPECT_FALSE(settings.defaultData().isNull());
}

TEST_F(ExportSettings, RaiseWhenAContainerIsReadAsAScalar)
{
    for (const QVariant &value : {QVariant(QVariantList{1}), QVariant(QVariantMap{{u"a"_s, 1}}),
                                  QVariant(QByteArray("1")), QVariant(QDateTime::currentDateTime())}) {
        settings.setObject(value, u"a"_s);
        EXPECT_THROW(settings.integerForKey(u"a"_s), platform::UnrecognisedOperationException) << value.typeName();
        EXPECT_THROW(settings.boolForKey(u"a"_s), platform::UnrecognisedOperationException) << value.typeName();
    }
}

TEST_F(ExportSettings, RefuseToStoreNothing)
{
    settings.setObject(1, u"a"_s);
    const Notices notices(settings);
    EXPECT_THROW(settings.setObject(QVariant(), u"a"_s), platform::InvalidArgumentException);
    EXPECT_THROW(settings.setNonPropertyListObject(QVariant(), u"a"_s), platform::InvalidArgumentException);
    EXPECT_THROW(settings.setValue(QVariant::fromValue(nullptr), u"a"_s), platform::InvalidArgumentException);
    EXPECT_EQ(notices.list, QStringList{u"will a 1"_s});
    EXPECT_EQ(settings.integerForKey(u"a"_s), 1);
}

TEST_F(ExportSettings, KeepValuesThatAreNoPropertyListValuesThroughSaving)
{
    settings.setNonPropertyListObject(QSize(210, 297), u"paper"_s);
    settings.writeSettingsToDefaults();
    KZExportSettings later(domainName);
    ASSERT_TRUE(later.readSettingsFromDefaults());
    EXPECT_EQ(later.nonPropertyListObjectForKey(u"paper"_s), QSize(210, 297));
    later.setObject(QByteArray("no archive"), u"paper"_s);
    EXPECT_FALSE(later.nonPropertyListObjectForKey(u"paper"_s).isValid());
}

TEST_F(ExportSettings, ReadKeyedArchivesThatAnotherProgramStored)
{
    for (const auto format : {platform::PropertyList::Format::Binary, platform::PropertyList::Format::Xml}) {
        settings.setObject(platform::KeyedArchiver::archivedDataWithRootObject(u"Chapter"_s, format), u"a"_s);
        EXPECT_EQ(settings.nonPropertyListObjectForKey(u"a"_s), QVariant(u"Chapter"_s));
        EXPECT_EQ(settings.nonPropertyListObjectErrorForKey(u"a"_s), QString());
    }
}

TEST_F(ExportSettings, SayWhyAnArchiveHoldsNothing)
{
    EXPECT_EQ(settings.nonPropertyListObjectErrorForKey(u"a"_s), u"a: there is no value under this key"_s);
    settings.setInteger(1, u"a"_s);
    EXPECT_EQ(settings.nonPropertyListObjectErrorForKey(u"a"_s), u"a: the value is no archive, but of type int"_s);
    settings.setObject(QByteArray("\x04\x0Bstreamtyped\x81", 14), u"a"_s);
    EXPECT_EQ(
        settings.nonPropertyListObjectErrorForKey(u"a"_s),
        u"a: unarchiveObjectWithData: the archive: is a typedstream, an archive without keys that another program "
        u"wrote, which is not read here"_s);
    settings.setObject(platform::KeyedArchiver::archivedDataWithRootObject(QVariant()), u"a"_s);
    EXPECT_EQ(settings.nonPropertyListObjectErrorForKey(u"a"_s), u"a: the keyed archive holds no object"_s);
    settings.setNonPropertyListObject(QSize(210, 297), u"a"_s);
    EXPECT_EQ(settings.nonPropertyListObjectErrorForKey(u"a"_s), QString());
    const QByteArray archive = settings.objectForKey(u"a"_s).toByteArray();
    settings.setObject(archive.chopped(1), u"a"_s);
    EXPECT_EQ(settings.nonPropertyListObjectErrorForKey(u"a"_s), u"a: Unarchiver: the data is not a whole archive"_s);
}

// Keys

TEST(SettingsKeys, HaveTheirPublishedValues)
{
    EXPECT_EQ(kDefaultPathKey, u"defaultPath"_s);
    EXPECT_EQ(kParagraphStylesKeyPath, u"settings.paragraphStyles"_s);
    EXPECT_EQ(kInlineStylesKeyPath, u"settings.inlineStyles"_s);
    EXPECT_EQ(kMarkerStylesKeyPath, u"settings.markerStyles"_s);
    EXPECT_EQ(kNormPageHeigthKeyPath, u"settings.counting.pageHeight"_s);
    EXPECT_EQ(kNormPageWidthKeyPath, u"settings.counting.pageWidth"_s);
    EXPECT_EQ(kStylesIdentifierKey, u"identifier"_s);
    EXPECT_EQ(kStylesDescriptionKey, u"description"_s);
    EXPECT_EQ(kStylesAttributeNameKey, u"attributeName"_s);
    EXPECT_EQ(kStylesAttributeValueKey, u"identifier"_s);
    EXPECT_EQ(kParagraphTagKey, u"tag"_s);
    EXPECT_EQ(kParagraphRelaxedKey, u"relaxed"_s);
    EXPECT_EQ(kInlineStartTagKey, u"startTag"_s);
    EXPECT_EQ(kInlineEndTagKey, u"endTag"_s);
    EXPECT_EQ(KZAbortExportNotification, u"KZAbortExportNotification"_s);
}

} // namespace
