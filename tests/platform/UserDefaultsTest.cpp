#include <OrvaneExportKit/platform/UserDefaults.h>
#include <tests/support/DefaultsFolder.h>
#include <tests/support/Files.h>
#include <tests/support/Printers.h>

#include <gtest/gtest.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QDateTime>
#include <QtCore/QFileInfo>
#include <QtCore/QObject>
#include <QtCore/QTimeZone>

#include <ostream>

using namespace Qt::Literals::StringLiterals;
using platform::UserDefaults;

namespace {

const QString plainText = QStringLiteral("com.example.plain-text");

class UserDefaultsTest : public support::DefaultsFolder
{
protected:
    UserDefaultsTest() { defaults.setApplicationDomain(u"org.example.writer"_s); }

    void setGlobal(const QString &key, const QVariant &value)
    {
        ASSERT_TRUE(defaults.setPersistentDomain({{key, value}}, UserDefaults::globalDomain()));
    }

    UserDefaults defaults{folder()};
};

constexpr QFile::Permissions permissionsOfOthers =
    QFile::ReadGroup | QFile::WriteGroup | QFile::ExeGroup | QFile::ReadOther | QFile::WriteOther | QFile::ExeOther;

bool belongsToOwnerAlone(const QString &path)
{
    return (QFileInfo(path).permissions() & permissionsOfOthers) == QFile::Permissions();
}

class PersistentDomain : public UserDefaultsTest
{
};

TEST_F(PersistentDomain, IsNothingBeforeItIsSet)
{
    QString error = u"old"_s;
    EXPECT_EQ(defaults.persistentDomainForName(plainText, &error), std::nullopt);
    EXPECT_EQ(error, QString());
    EXPECT_EQ(support::filesBelow(folder()), (QMap<QString, QByteArray>()));
}

TEST_F(PersistentDomain, ComesBackWithEveryKindOfValue)
{
    const QVariantMap domain{
        {u"string"_s, u"Grüße\tan \U0001F600 <alle>"_s},
        {u"integer"_s, Q_INT64_C(-9007199254740993)},
        {u"real"_s, 0.1},
        {u"boolean"_s, true},
        {u"date"_s, QDateTime({2024, 2, 29}, {23, 59, 58}, QTimeZone::utc())},
        {u"data"_s, QByteArray("\0\xff\r\n", 4)},
        {u"array"_s, QVariantList{u"a"_s, QVariantList(), QVariantMap{{u"b"_s, false}}}},
        {u""_s, u"an empty key"_s},
    };
    EXPECT_TRUE(defaults.setPersistentDomain(domain, plainText));
    EXPECT_EQ(defaults.lastError(), QString());
    EXPECT_EQ(savedDomain(plainText), domain);
    EXPECT_EQ(defaults.persistentDomainForName(plainText), domain);
}

TEST_F(PersistentDomain, KeepsADictionaryThatAKeyedArchiveWouldTakeForAReference)
{
    const QVariantMap domain{{u"a"_s, QVariantList{QVariantMap{{u"CF$UID"_s, 1LL}}}}, {u"CF$UID"_s, -1LL}};
    ASSERT_TRUE(defaults.setPersistentDomain(domain, plainText)) << defaults.lastError().toStdString();
    EXPECT_EQ(defaults.persistentDomainForName(plainText), domain) << defaults.lastError().toStdString();
}

TEST_F(PersistentDomain, IsAnXmlPropertyListThatItsOwnerAloneMayRead)
{
    support::writeFile(path(plainText), "<plist><dict/></plist>");
    ASSERT_TRUE(QFile::setPermissions(path(plainText), QFile::ReadOwner | QFile::WriteOwner | permissionsOfOthers));
    ASSERT_TRUE(defaults.setPersistentDomain({{u"language"_s, u"de"_s}}, plainText));
    EXPECT_TRUE(support::fileContent(path(plainText)).startsWith("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"));
    EXPECT_TRUE(belongsToOwnerAlone(path(plainText)));
}

TEST_F(PersistentDomain, LeavesNothingElseInTheFolder)
{
    ASSERT_TRUE(defaults.setPersistentDomain({{u"language"_s, u"de"_s}}, plainText));
    ASSERT_TRUE(defaults.setPersistentDomain({{u"language"_s, u"fr"_s}}, plainText));
    EXPECT_EQ(support::filesBelow(folder()).keys(), QStringList{plainText + u".plist"_s});
}

TEST_F(PersistentDomain, ReplacesAllKeysOfTheDomainBefore)
{
    ASSERT_TRUE(defaults.setPersistentDomain({{u"a"_s, 1}, {u"b"_s, 2}}, plainText));
    ASSERT_TRUE(defaults.setPersistentDomain({{u"b"_s, 3}}, plainText));
    EXPECT_EQ(savedDomain(plainText), (QVariantMap{{u"b"_s, 3}}));
}

TEST_F(PersistentDomain, MayBeEmptyAndIsThereThen)
{
    ASSERT_TRUE(defaults.setPersistentDomain({}, plainText));
    EXPECT_EQ(savedDomain(plainText), QVariantMap());
}

TEST_F(PersistentDomain, ReadsWhatAnotherProgramSavedSince)
{
    ASSERT_TRUE(defaults.setPersistentDomain({{u"language"_s, u"de"_s}}, plainText));
    UserDefaults other(folder());
    ASSERT_TRUE(other.setPersistentDomain({{u"language"_s, u"fr"_s}}, plainText));
    EXPECT_EQ(defaults.persistentDomainForName(plainText), (QVariantMap{{u"language"_s, u"fr"_s}}));
}

TEST_F(PersistentDomain, ReadsABinaryPropertyListAndSavesXml)
{
    // {"a": "b"}
    support::writeFile(path(plainText), QByteArray::fromHex("62706c6973743030d1010251615162080b0d"
                                                            "0000000000000101000000000000000300000000000000"
                                                            "00000000000000000f"));
    QString error;
    EXPECT_EQ(defaults.persistentDomainForName(plainText, &error), (QVariantMap{{u"a"_s, u"b"_s}}))
        << testing::PrintToString(error);
    defaults.setApplicationDomain(plainText);
    EXPECT_TRUE(defaults.setObject(u"d"_s, u"c"_s));
    EXPECT_TRUE(support::fileContent(path(plainText)).startsWith("<?xml"));
    EXPECT_EQ(savedDomain(plainText), (QVariantMap{{u"a"_s, u"b"_s}, {u"c"_s, u"d"_s}}));
}

TEST_F(PersistentDomain, MakesItsFolderForItsOwnerAlone)
{
    const QString deepFolder = parentFolder() + u"/configuration/of/defaults"_s;
    UserDefaults deep(deepFolder);
    QString error;
    EXPECT_EQ(deep.persistentDomainForName(plainText, &error), std::nullopt);
    EXPECT_EQ(error, QString());
    EXPECT_EQ(deep.persistentDomainNames(&error), QStringList());
    EXPECT_EQ(error, QString());
    EXPECT_FALSE(QFileInfo::exists(parentFolder() + u"/configuration"_s));
    EXPECT_TRUE(deep.setPersistentDomain({{u"a"_s, 1}}, plainText));
    EXPECT_TRUE(belongsToOwnerAlone(deepFolder));
    EXPECT_EQ(UserDefaults(deepFolder).persistentDomainForName(plainText), (QVariantMap{{u"a"_s, 1}}));
}

TEST_F(PersistentDomain, StaysALinkWhereTheUserMadeItOne)
{
    const QString target = parentFolder() + u"/settings-under-version-control"_s;
    support::writeFile(target, "<plist><dict><key>a</key><string>b</string></dict></plist>");
    ASSERT_TRUE(QFile::link(target, path(plainText)));
    EXPECT_EQ(savedDomain(plainText), (QVariantMap{{u"a"_s, u"b"_s}}));
    ASSERT_TRUE(defaults.setPersistentDomain({{u"a"_s, u"c"_s}}, plainText));
    EXPECT_TRUE(QFileInfo(path(plainText)).isSymLink());
    EXPECT_TRUE(support::fileContent(target).contains("<string>c</string>"));
}

TEST_F(PersistentDomain, RefusesAValueThatIsNoPropertyListValueAndKeepsTheOldDomain)
{
    ASSERT_TRUE(defaults.setPersistentDomain({{u"a"_s, 1}}, plainText));
    const auto files = support::filesBelow(folder());
    for (const QVariant &value :
         {QVariant(), QVariant::fromValue<QObject *>(nullptr), QVariant(QDateTime()), QVariant(QString(QChar::Null))}) {
        EXPECT_FALSE(defaults.setPersistentDomain({{u"a"_s, 2}, {u"font"_s, value}}, plainText));
        EXPECT_TRUE(support::contains(defaults.lastError(), path(plainText)));
        EXPECT_TRUE(support::contains(defaults.lastError(), u"font: "_s));
        EXPECT_EQ(defaults.persistentDomainForName(plainText), (QVariantMap{{u"a"_s, 1}}));
        EXPECT_FALSE(defaults.synchronize());
        EXPECT_TRUE(support::contains(defaults.lastError(), u"font: "_s));
    }
    EXPECT_EQ(support::filesBelow(folder()), files);
}

/// A value that XML cannot hold was set.
class RefusedChange : public UserDefaultsTest
{
protected:
    RefusedChange()
    {
        EXPECT_TRUE(defaults.setObject(1, u"a"_s));
        EXPECT_FALSE(defaults.setObject(QString(QChar::Null), u"a"_s));
    }

    void expectKnown(const QString &piece)
    {
        EXPECT_FALSE(defaults.synchronize());
        EXPECT_TRUE(support::contains(defaults.lastError(), piece));
    }

    void expectForgotten()
    {
        EXPECT_TRUE(defaults.synchronize());
        EXPECT_EQ(defaults.lastError(), QString());
    }
};

TEST_F(RefusedChange, StaysKnownWhileOtherThingsAreSavedAndRead)
{
    EXPECT_TRUE(defaults.setObject(2, u"b"_s));
    EXPECT_TRUE(defaults.setPersistentDomain({{u"a"_s, 1}}, plainText));
    EXPECT_TRUE(defaults.removeObjectForKey(u"b"_s));
    EXPECT_EQ(defaults.objectForKey(u"a"_s), 1);
    expectKnown(u"a: the string holds U+0000"_s);
    expectKnown(path(defaults.applicationDomain()));
}

TEST_F(RefusedChange, IsForgottenOnceItsKeyIsSetOrRemoved)
{
    EXPECT_TRUE(defaults.setObject(2, u"a"_s));
    expectForgotten();
    EXPECT_FALSE(defaults.setObject(QString(QChar(0xD800)), u"a"_s));
    expectKnown(u"a: the string holds half a surrogate pair"_s);
    EXPECT_TRUE(defaults.removeObjectForKey(u"a"_s));
    expectForgotten();
}

TEST_F(RefusedChange, IsForgottenOnceItsDomainIsSetOrRemoved)
{
    const QVariantMap refused{{u"font"_s, QVariant::fromValue<QObject *>(nullptr)}};
    EXPECT_FALSE(defaults.setPersistentDomain(refused, defaults.applicationDomain()));
    expectKnown(u"font: "_s);
    EXPECT_TRUE(defaults.setObject(2, u"font"_s));
    expectKnown(u"font: "_s); // of the domain as a whole
    EXPECT_TRUE(defaults.setPersistentDomain({{u"b"_s, 1}}, defaults.applicationDomain()));
    expectForgotten();
    EXPECT_FALSE(defaults.setPersistentDomain(refused, defaults.applicationDomain()));
    EXPECT_TRUE(defaults.removePersistentDomainForName(defaults.applicationDomain()));
    expectForgotten();
}

TEST_F(RefusedChange, OfAKeyAndOfAnotherDomainAreBothKnown)
{
    EXPECT_FALSE(defaults.setPersistentDomain({}, u"a/b"_s));
    EXPECT_TRUE(defaults.removeObjectForKey(u"a"_s));
    expectKnown(u"\"a/b\" cannot name a settings domain"_s);
    EXPECT_FALSE(defaults.removePersistentDomainForName(u"a/b"_s));
    expectForgotten();
}

TEST_F(RefusedChange, MayBeOneWithoutAKey)
{
    EXPECT_TRUE(defaults.setObject(1, u"a"_s));
    EXPECT_FALSE(defaults.setObject(1, QString()));
    expectKnown(u"without a key"_s);
}

TEST_F(UserDefaultsTest, ReadingLeavesTheErrorOfTheLastChange)
{
    EXPECT_FALSE(defaults.setObject(QVariant(), u"a"_s));
    const QString error = defaults.lastError();
    EXPECT_FALSE(error.isEmpty());
    EXPECT_EQ(defaults.persistentDomainNames(), QStringList());
    EXPECT_EQ(defaults.dictionaryRepresentation(), QVariantMap());
    EXPECT_EQ(defaults.persistentDomainForName(u"a/b"_s), std::nullopt);
    EXPECT_EQ(defaults.lastError(), error);
}

TEST_F(UserDefaultsTest, WithoutAFolderReadAndSaveNothingAndSaySo)
{
    UserDefaults homeless{QString()};
    EXPECT_EQ(homeless.folder(), QString());
    QString error;
    EXPECT_EQ(homeless.persistentDomainForName(plainText, &error), std::nullopt);
    EXPECT_TRUE(support::contains(error, u"no folder for settings"_s));
    EXPECT_EQ(homeless.persistentDomainNames(&error), QStringList());
    EXPECT_TRUE(support::contains(error, u"no folder for settings"_s));
    EXPECT_FALSE(homeless.setPersistentDomain({}, plainText));
    EXPECT_FALSE(homeless.synchronize());
    EXPECT_TRUE(support::contains(homeless.lastError(), u"HOME"_s));
    EXPECT_TRUE(support::contains(homeless.lastError(), u"ORVANE_DEFAULTS_FOLDER"_s));
}

class RemovePersistentDomain : public UserDefaultsTest
{
};

TEST_F(RemovePersistentDomain, RemovesItsFile)
{
    ASSERT_TRUE(defaults.setPersistentDomain({{u"a"_s, 1}}, plainText));
    EXPECT_TRUE(defaults.removePersistentDomainForName(plainText));
    EXPECT_EQ(defaults.persistentDomainForName(plainText), std::nullopt);
    EXPECT_EQ(support::filesBelow(folder()), (QMap<QString, QByteArray>()));
}

TEST_F(RemovePersistentDomain, IsFineWithoutADomain)
{
    EXPECT_TRUE(defaults.removePersistentDomainForName(plainText));
    EXPECT_EQ(defaults.lastError(), QString());
    EXPECT_EQ(support::filesBelow(folder()), (QMap<QString, QByteArray>()));
}

TEST_F(UserDefaultsTest, PersistentDomainNamesAreSortedAndLeaveOutEverythingElse)
{
    for (const QString &name : {u"b"_s, u"a.plist"_s, u"Größe x"_s, UserDefaults::globalDomain()}) {
        ASSERT_TRUE(defaults.setPersistentDomain({}, name));
    }
    support::writeFile(path(u"damaged"_s), "damaged");
    for (const QString &name : {u".hidden"_s, u"back\\slash"_s}) {
        support::writeFile(path(name), "<plist><dict/></plist>");
    }
    for (const QString &name : {u"b.plist.lock"_s, u"b.plist.unreadable-1"_s, u"b.plist.Xa2bZq"_s, u"notes.txt"_s}) {
        support::writeFile(folder() + u'/' + name, "<plist><dict/></plist>");
    }
    ASSERT_TRUE(QDir(folder()).mkdir(u"folder.plist"_s));
    QString error;
    EXPECT_EQ(defaults.persistentDomainNames(&error),
              QStringList({u"GlobalDomain"_s, u"Größe x"_s, u"a.plist"_s, u"b"_s, u"damaged"_s}));
    EXPECT_EQ(error, QString());
}

class ObjectForKey : public UserDefaultsTest
{
};

TEST_F(ObjectForKey, IsInvalidWhereNothingIsSet)
{
    QString error;
    EXPECT_FALSE(defaults.objectForKey(u"unit"_s, &error).isValid());
    EXPECT_EQ(error, QString());
}

TEST_F(ObjectForKey, LooksIntoTheApplicationsDomainThenTheGlobalThenTheRegisteredDefaults)
{
    defaults.registerDefaults({{u"unit"_s, u"registered"_s}});
    EXPECT_EQ(defaults.objectForKey(u"unit"_s), u"registered"_s);
    setGlobal(u"unit"_s, u"global"_s);
    EXPECT_EQ(defaults.objectForKey(u"unit"_s), u"global"_s);
    ASSERT_TRUE(defaults.setObject(u"application"_s, u"unit"_s));
    EXPECT_EQ(defaults.objectForKey(u"unit"_s), u"application"_s);
    ASSERT_TRUE(defaults.removeObjectForKey(u"unit"_s));
    EXPECT_EQ(defaults.objectForKey(u"unit"_s), u"global"_s);
}

TEST_F(ObjectForKey, DoesNotLookIntoOtherDomains)
{
    ASSERT_TRUE(defaults.setPersistentDomain({{u"unit"_s, u"other"_s}}, plainText));
    EXPECT_FALSE(defaults.objectForKey(u"unit"_s).isValid());
}

TEST_F(ObjectForKey, SeesWhatAnotherProgramSavedSince)
{
    setGlobal(u"unit"_s, u"old"_s);
    EXPECT_EQ(defaults.objectForKey(u"unit"_s), u"old"_s);
    UserDefaults other(folder());
    ASSERT_TRUE(other.setPersistentDomain({{u"unit"_s, u"new"_s}}, UserDefaults::globalDomain()));
    EXPECT_EQ(defaults.objectForKey(u"unit"_s), u"new"_s);
}

TEST_F(ObjectForKey, GoesOnPastADomainThatCannotBeReadAndReportsIt)
{
    setGlobal(u"unit"_s, u"global"_s);
    support::writeFile(path(u"org.example.writer"_s), "damaged");
    QString error;
    EXPECT_EQ(defaults.objectForKey(u"unit"_s, &error), u"global"_s);
    EXPECT_TRUE(support::contains(error, path(u"org.example.writer"_s)));
}

TEST_F(UserDefaultsTest, DictionaryRepresentationHoldsAllKeysWithTheValuesThatAreFound)
{
    defaults.registerDefaults({{u"a"_s, u"registered"_s}, {u"b"_s, u"registered"_s}, {u"c"_s, u"registered"_s}});
    ASSERT_TRUE(defaults.setPersistentDomain({{u"b"_s, u"global"_s}, {u"c"_s, u"global"_s}, {u"d"_s, u"global"_s}},
                                             UserDefaults::globalDomain()));
    ASSERT_TRUE(defaults.setObject(u"application"_s, u"c"_s));
    EXPECT_EQ(
        defaults.dictionaryRepresentation(),
        (QVariantMap{
            {u"a"_s, u"registered"_s}, {u"b"_s, u"global"_s}, {u"c"_s, u"application"_s}, {u"d"_s, u"global"_s}}));
}

TEST_F(UserDefaultsTest, RegisteredDefaultsAddUpAndAreNotSaved)
{
    defaults.registerDefaults({{u"a"_s, 1}, {u"b"_s, 1}});
    defaults.registerDefaults({{u"b"_s, 2}});
    EXPECT_EQ(defaults.dictionaryRepresentation(), (QVariantMap{{u"a"_s, 1}, {u"b"_s, 2}}));
    EXPECT_TRUE(defaults.synchronize());
    EXPECT_EQ(support::filesBelow(folder()), (QMap<QString, QByteArray>()));
}

class SetObject : public UserDefaultsTest
{
};

TEST_F(SetObject, LeavesTheOtherKeysAsTheyAreOnDisk)
{
    ASSERT_TRUE(defaults.setObject(1, u"a"_s));
    UserDefaults other(folder());
    other.setApplicationDomain(defaults.applicationDomain());
    ASSERT_TRUE(other.setObject(2, u"b"_s));
    ASSERT_TRUE(defaults.setObject(3, u"a"_s));
    EXPECT_EQ(savedDomain(defaults.applicationDomain()), (QVariantMap{{u"a"_s, 3}, {u"b"_s, 2}}));
}

TEST_F(SetObject, RefusesWhatIsNoSettingAndChangesNothing)
{
    ASSERT_TRUE(defaults.setObject(1, u"a"_s));
    const auto files = support::filesBelow(folder());
    EXPECT_FALSE(defaults.setObject(2, QString()));
    EXPECT_TRUE(support::contains(defaults.lastError(), u"key"_s));
    EXPECT_FALSE(defaults.setObject(QVariant(), u"a"_s));
    EXPECT_TRUE(support::contains(defaults.lastError(), u"a: "_s));
    EXPECT_EQ(support::filesBelow(folder()), files);
    EXPECT_EQ(defaults.objectForKey(u"a"_s), 1);
}

TEST_F(SetObject, IsRefusedWhereTheApplicationsDomainHasNoUsableName)
{
    defaults.setApplicationDomain(u"My/Application"_s);
    EXPECT_FALSE(defaults.setObject(1, u"a"_s));
    EXPECT_TRUE(support::contains(defaults.lastError(), u"\"My/Application\""_s));
    EXPECT_EQ(support::filesBelow(parentFolder()), (QMap<QString, QByteArray>()));
}

TEST_F(UserDefaultsTest, RemoveObjectForKeyOfAMissingDomainMakesNone)
{
    EXPECT_TRUE(defaults.removeObjectForKey(u"a"_s));
    EXPECT_EQ(savedDomain(defaults.applicationDomain()), std::nullopt);
}

TEST_F(UserDefaultsTest, ApplicationDomainIsTheNameOfTheApplicationUnlessSet)
{
    EXPECT_EQ(defaults.applicationDomain(), u"org.example.writer"_s);
    const QString applicationName = QCoreApplication::applicationName();
    QCoreApplication::setApplicationName(u"Writer"_s);
    UserDefaults other(folder());
    EXPECT_EQ(other.applicationDomain(), u"Writer"_s);
    EXPECT_TRUE(other.setObject(1, u"a"_s));
    EXPECT_EQ(savedDomain(u"Writer"_s), (QVariantMap{{u"a"_s, 1}}));
    QCoreApplication::setApplicationName(applicationName);
}

TEST_F(UserDefaultsTest, FolderStaysTheSameWhenTheProgramChangesItsFolder)
{
    const QString before = QDir::currentPath();
    ASSERT_TRUE(QDir::setCurrent(parentFolder()));
    const UserDefaults relative(u"defaults"_s);
    ASSERT_TRUE(QDir::setCurrent(before));
    EXPECT_EQ(QFileInfo(relative.folder()).canonicalFilePath(), QFileInfo(folder()).canonicalFilePath());
}

struct DomainName {
    QString description;
    QString name;
};

void PrintTo(const DomainName &name, std::ostream *out)
{
    *out << name.description.toStdString();
}

/// Names that must not become names of files, with the settings files in their places that would be met if they did.
class RefusedDomainName : public UserDefaultsTest, public testing::WithParamInterface<DomainName>
{
protected:
    RefusedDomainName()
    {
        EXPECT_TRUE(QDir(folder()).mkdir(u"a"_s));
        for (const QString &name : {u"../x"_s, u"a/b"_s, u"a\\b"_s, u".hidden"_s, u"."_s, u".."_s, u""_s, u"a\nb"_s}) {
            support::writeFile(path(name), "<plist><dict/></plist>");
        }
    }
};

TEST_P(RefusedDomainName, ReadsAndWritesNothing)
{
    const QString &name = GetParam().name;
    const auto files = support::filesBelow(parentFolder());
    QString error;
    EXPECT_EQ(defaults.persistentDomainForName(name, &error), std::nullopt);
    EXPECT_TRUE(support::contains(error, u"cannot name a settings domain"_s));
    EXPECT_FALSE(defaults.setPersistentDomain({{u"a"_s, 1}}, name));
    EXPECT_TRUE(support::contains(defaults.lastError(), u"cannot name a settings domain"_s));
    EXPECT_FALSE(defaults.synchronize());
    EXPECT_TRUE(support::contains(defaults.lastError(), u"cannot name a settings domain"_s));
    EXPECT_FALSE(defaults.removePersistentDomainForName(name));
    EXPECT_TRUE(support::contains(defaults.lastError(), u"cannot name a settings domain"_s));
    EXPECT_EQ(defaults.persistentDomainNames(), QStringList());
    EXPECT_TRUE(defaults.synchronize());
    EXPECT_EQ(support::filesBelow(parentFolder()), files);
}

INSTANTIATE_TEST_SUITE_P(Names, RefusedDomainName,
                         testing::Values(DomainName{u"Empty"_s, {}}, DomainName{u"FolderAbove"_s, u"../x"_s},
                                         DomainName{u"FolderBelow"_s, u"a/b"_s}, DomainName{u"AbsolutePath"_s, u"/x"_s},
                                         DomainName{u"Backslash"_s, u"a\\b"_s}, DomainName{u"Hidden"_s, u".hidden"_s},
                                         DomainName{u"OneDot"_s, u"."_s}, DomainName{u"TwoDots"_s, u".."_s},
                                         DomainName{u"LineFeed"_s, u"a\nb"_s}, DomainName{u"Delete"_s, u"a\u007Fb"_s},
                                         DomainName{u"HighControl"_s, u"a\u0085b"_s},
                                         DomainName{u"Null"_s, QString(u'a') + QChar::Null + QChar(u'b')},
                                         DomainName{u"HalfASurrogatePair"_s, QString(QChar(0xD800))},
                                         DomainName{u"TooManyCharacters"_s, QString(228, u'x')},
                                         DomainName{u"TooManyBytes"_s, QString(114, u'é')}));

TEST_F(UserDefaultsTest, LongestDomainNameLeavesRoomForTheNameOfAnUnreadableFile)
{
    const QString name(227, u'x');
    support::writeFile(path(name), "damaged");
    EXPECT_TRUE(defaults.setPersistentDomain({{u"a"_s, 1}}, name)) << testing::PrintToString(defaults.lastError());
    EXPECT_EQ(support::filesBelow(folder()).value(name + u".plist.unreadable-1"_s), "damaged");
    EXPECT_EQ(savedDomain(name), (QVariantMap{{u"a"_s, 1}}));
}

} // namespace
