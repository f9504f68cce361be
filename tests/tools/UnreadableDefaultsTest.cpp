#include <OrvaneExportKit/platform/UserDefaults.h>
#include <tests/support/ChildProcess.h>
#include <tests/support/DefaultsFolder.h>
#include <tests/support/Files.h>
#include <tests/support/Printers.h>

#include <gtest/gtest.h>

#include <QtCore/QFileInfo>

#include <ostream>

#include <sys/stat.h>

using namespace Qt::Literals::StringLiterals;
using platform::UserDefaults;

namespace {

const QString domainName = QStringLiteral("com.example.plain-text");

class UnreadableDefaults : public support::DefaultsFolder
{
protected:
    QString keptPath(int number) const { return path(domainName) + u".unreadable-%1"_s.arg(number); }

    /// Reading reports the file and where it will be kept.
    void expectUnreadable() const
    {
        const UserDefaults defaults(folder());
        QString error;
        EXPECT_EQ(defaults.persistentDomainForName(domainName, &error), std::nullopt);
        EXPECT_TRUE(support::contains(error, u"\"%1\" cannot be read"_s.arg(path(domainName))));
        EXPECT_TRUE(support::contains(error, u"\"%1\""_s.arg(keptPath(1))));
    }

    /// A new domain is saved, and what was in its way is announced under its new name.
    void expectKeptAside() const
    {
        UserDefaults defaults(folder());
        EXPECT_TRUE(defaults.setPersistentDomain({{u"a"_s, 1}}, domainName));
        EXPECT_TRUE(support::contains(defaults.lastError(), u"\"%1\" could not be read"_s.arg(path(domainName))));
        EXPECT_TRUE(support::contains(defaults.lastError(), u"is kept as \"%1\""_s.arg(keptPath(1))));
        EXPECT_TRUE(defaults.synchronize());
        EXPECT_EQ(defaults.lastError(), QString());
        EXPECT_EQ(savedDomain(domainName), (QVariantMap{{u"a"_s, 1}}));
    }
};

struct Damage {
    QString name;
    QByteArray content;
};

void PrintTo(const Damage &damage, std::ostream *out)
{
    *out << damage.name.toStdString();
}

class DamagedFile : public UnreadableDefaults, public testing::WithParamInterface<Damage>
{
};

TEST_P(DamagedFile, IsReportedAndKeptAside)
{
    const QByteArray &content = GetParam().content;
    support::writeFile(path(domainName), content);
    expectUnreadable();
    EXPECT_EQ(support::filesBelow(folder()), (QMap<QString, QByteArray>{{domainName + u".plist"_s, content}}));
    expectKeptAside();
    EXPECT_EQ(support::fileContent(keptPath(1)), content);
}

INSTANTIATE_TEST_SUITE_P(
    Contents, DamagedFile,
    testing::Values(Damage{u"Empty"_s, {}}, Damage{u"Garbage"_s, QByteArray("\xff\xfe garbage \0", 12)},
                    Damage{u"CutOffXml"_s, "<plist><dict><key>a</key><string>cut o"},
                    Damage{u"CutOffBinary"_s, "bplist00 and nothing behind it"},
                    Damage{u"NoDictionary"_s, "<plist><array><string>no dictionary</string></array></plist>"}));

TEST_F(UnreadableDefaults, EveryDamagedFileIsKeptUnderAFreeName)
{
    UserDefaults defaults(folder());
    for (const QByteArray content : {"first", "second", "third"}) {
        support::writeFile(path(domainName), content);
        EXPECT_TRUE(defaults.setPersistentDomain({}, domainName));
    }
    EXPECT_EQ(support::fileContent(keptPath(1)), "first");
    EXPECT_EQ(support::fileContent(keptPath(2)), "second");
    EXPECT_EQ(support::fileContent(keptPath(3)), "third");
}

TEST_F(UnreadableDefaults, ADamagedFileIsKeptWhenOneKeyIsSetOrTheDomainRemoved)
{
    UserDefaults defaults(folder());
    defaults.setApplicationDomain(domainName);
    support::writeFile(path(domainName), "first");
    EXPECT_TRUE(defaults.setObject(1, u"a"_s));
    EXPECT_EQ(savedDomain(domainName), (QVariantMap{{u"a"_s, 1}}));
    support::writeFile(path(domainName), "second");
    EXPECT_TRUE(defaults.removePersistentDomainForName(domainName));
    EXPECT_EQ(savedDomain(domainName), std::nullopt);
    EXPECT_EQ(support::fileContent(keptPath(1)), "first");
    EXPECT_EQ(support::fileContent(keptPath(2)), "second");
}

TEST_F(UnreadableDefaults, AFolderInThePlaceOfTheFileIsKeptWithAllThatIsInIt)
{
    ASSERT_TRUE(QDir().mkdir(path(domainName)));
    support::writeFile(path(domainName) + u"/precious"_s, "content");
    expectUnreadable();
    expectKeptAside();
    EXPECT_EQ(support::fileContent(keptPath(1) + u"/precious"_s), "content");
}

TEST_F(UnreadableDefaults, APipeInThePlaceOfTheFileIsNotWaitedFor)
{
    ASSERT_EQ(mkfifo(QFile::encodeName(path(domainName)).constData(), 0600), 0);
    expectUnreadable();
    expectKeptAside();
}

TEST_F(UnreadableDefaults, ALinkToItselfIsReportedAndLeftAlone)
{
    ASSERT_TRUE(QFile::link(path(domainName), path(domainName)));
    UserDefaults defaults(folder());
    QString error;
    EXPECT_EQ(defaults.persistentDomainForName(domainName, &error), std::nullopt);
    EXPECT_TRUE(support::contains(error, path(domainName)));
    EXPECT_FALSE(defaults.setPersistentDomain({{u"a"_s, 1}}, domainName));
    EXPECT_FALSE(defaults.synchronize());
    EXPECT_TRUE(QFileInfo(path(domainName)).isSymLink());
    ASSERT_TRUE(QFile::remove(path(domainName)));
    EXPECT_TRUE(defaults.synchronize());
    EXPECT_EQ(savedDomain(domainName), (QVariantMap{{u"a"_s, 1}}));
}

TEST_F(UnreadableDefaults, AFileThatNobodyMayReadIsKeptAside)
{
    support::writeFile(path(domainName), "<plist><dict/></plist>");
    ASSERT_TRUE(QFile::setPermissions(path(domainName), QFile::Permissions()));
    openToEveryone();
    support::runAsNobody([&] {
        expectUnreadable();
        expectKeptAside();
    });
    ASSERT_TRUE(QFile::setPermissions(keptPath(1), QFile::ReadOwner));
    EXPECT_EQ(support::fileContent(keptPath(1)), "<plist><dict/></plist>");
}

TEST_F(UnreadableDefaults, AFolderThatNobodyMayLookIntoIsReported)
{
    openToEveryone();
    support::runAsNobody([&] {
        const QString closedFolder = folder() + u"/closed"_s;
        UserDefaults defaults(closedFolder);
        EXPECT_TRUE(defaults.setPersistentDomain({{u"a"_s, 1}}, domainName));
        EXPECT_TRUE(QFile::setPermissions(closedFolder, QFile::Permissions()));
        QString error;
        EXPECT_EQ(defaults.persistentDomainForName(domainName, &error), std::nullopt);
        EXPECT_TRUE(support::contains(error, closedFolder));
        EXPECT_EQ(defaults.persistentDomainNames(&error), QStringList());
        EXPECT_TRUE(support::contains(error, closedFolder));
        EXPECT_FALSE(defaults.setPersistentDomain({{u"a"_s, 2}}, domainName));
        EXPECT_TRUE(QFile::setPermissions(closedFolder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
        EXPECT_TRUE(defaults.synchronize());
        EXPECT_EQ(UserDefaults(closedFolder).persistentDomainForName(domainName), (QVariantMap{{u"a"_s, 2}}));
    });
}

} // namespace
