#include <OrvaneExportKit/platform/UserDefaults.h>
#include <tests/support/ChildProcess.h>
#include <tests/support/DefaultsFolder.h>
#include <tests/support/Files.h>
#include <tests/support/Printers.h>

#include <gtest/gtest.h>

#include <QtCore/QFileInfo>

#include <array>
#include <csignal>
#include <functional>

#include <sys/resource.h>

using namespace Qt::Literals::StringLiterals;
using platform::UserDefaults;

namespace {

const QString domainName = QStringLiteral("com.example.plain-text");
const QString otherName = QStringLiteral("com.example.latex");
const QVariantMap oldDomain{{QStringLiteral("a"), 1}, {QStringLiteral("b"), 1}};

constexpr QFile::Permissions readOnly = QFile::ReadOwner | QFile::ExeOwner;

/// Settings that cannot be saved for a while because the folder is read-only.
class UnsavedDefaults : public support::DefaultsFolder
{
protected:
    /// Runs a test in a process whose user owns the folder that it is called with. The folder holds a domain with the
    /// old contents and can be locked.
    void withFolder(const std::function<void(const QString &)> &test)
    {
        openToEveryone();
        support::runAsNobody([&] {
            const QString ownFolder = folder() + u"/own"_s;
            EXPECT_TRUE(UserDefaults(ownFolder).setPersistentDomain(oldDomain, domainName));
            test(ownFolder);
        });
    }

    static void lock(const QString &folder) { EXPECT_TRUE(QFile::setPermissions(folder, readOnly)); }
    static void unlock(const QString &folder)
    {
        EXPECT_TRUE(QFile::setPermissions(folder, readOnly | QFile::WriteOwner));
    }
};

TEST_F(UnsavedDefaults, AreReportedAndAnsweredAndSavedLater)
{
    withFolder([](const QString &folder) {
        UserDefaults defaults(folder);
        lock(folder);
        EXPECT_FALSE(defaults.setPersistentDomain({{u"a"_s, 2}}, domainName));
        EXPECT_TRUE(support::contains(defaults.lastError(), folder + u"/com.example.plain-text.plist"_s));
        EXPECT_TRUE(support::contains(defaults.lastError(), u"not writable"_s));
        EXPECT_EQ(defaults.persistentDomainForName(domainName), (QVariantMap{{u"a"_s, 2}}));
        EXPECT_EQ(UserDefaults(folder).persistentDomainForName(domainName), oldDomain);
        EXPECT_FALSE(defaults.synchronize());
        EXPECT_TRUE(support::contains(defaults.lastError(), u"not writable"_s));
        unlock(folder);
        EXPECT_TRUE(defaults.synchronize());
        EXPECT_EQ(defaults.lastError(), QString());
        EXPECT_EQ(UserDefaults(folder).persistentDomainForName(domainName), (QVariantMap{{u"a"_s, 2}}));
    });
}

TEST_F(UnsavedDefaults, AreSavedTogetherWithTheNextChangeOfTheirDomain)
{
    withFolder([](const QString &folder) {
        UserDefaults defaults(folder);
        defaults.setApplicationDomain(domainName);
        lock(folder);
        EXPECT_FALSE(defaults.setObject(2, u"a"_s));
        EXPECT_FALSE(defaults.removeObjectForKey(u"b"_s));
        EXPECT_EQ(defaults.dictionaryRepresentation(), (QVariantMap{{u"a"_s, 2}}));
        unlock(folder);
        EXPECT_TRUE(defaults.setObject(3, u"c"_s));
        EXPECT_EQ(UserDefaults(folder).persistentDomainForName(domainName), (QVariantMap{{u"a"_s, 2}, {u"c"_s, 3}}));
    });
}

TEST_F(UnsavedDefaults, DoNotUndoWhatAnotherProgramSavedMeanwhile)
{
    withFolder([](const QString &folder) {
        UserDefaults defaults(folder);
        defaults.setApplicationDomain(domainName);
        lock(folder);
        EXPECT_FALSE(defaults.setObject(2, u"a"_s));
        unlock(folder);
        UserDefaults other(folder);
        other.setApplicationDomain(domainName);
        EXPECT_TRUE(other.setObject(3, u"b"_s));
        EXPECT_TRUE(defaults.synchronize());
        EXPECT_EQ(UserDefaults(folder).persistentDomainForName(domainName), (QVariantMap{{u"a"_s, 2}, {u"b"_s, 3}}));
    });
}

TEST_F(UnsavedDefaults, GiveWayToALaterReplacementOfTheirDomain)
{
    withFolder([](const QString &folder) {
        UserDefaults defaults(folder);
        defaults.setApplicationDomain(domainName);
        lock(folder);
        EXPECT_FALSE(defaults.setObject(2, u"a"_s));
        EXPECT_FALSE(defaults.setPersistentDomain({{u"c"_s, 3}}, domainName));
        EXPECT_FALSE(defaults.setObject(4, u"d"_s));
        unlock(folder);
        EXPECT_TRUE(defaults.synchronize());
        EXPECT_EQ(UserDefaults(folder).persistentDomainForName(domainName), (QVariantMap{{u"c"_s, 3}, {u"d"_s, 4}}));
    });
}

TEST_F(UnsavedDefaults, MayBeNewAndRemovedDomains)
{
    withFolder([](const QString &folder) {
        UserDefaults defaults(folder);
        lock(folder);
        EXPECT_FALSE(defaults.removePersistentDomainForName(domainName));
        EXPECT_FALSE(defaults.setPersistentDomain({}, otherName));
        EXPECT_EQ(defaults.persistentDomainForName(domainName), std::nullopt);
        EXPECT_EQ(defaults.persistentDomainNames(), QStringList{otherName});
        EXPECT_EQ(UserDefaults(folder).persistentDomainNames(), QStringList{domainName});
        EXPECT_FALSE(defaults.synchronize());
        unlock(folder);
        EXPECT_TRUE(defaults.synchronize());
        EXPECT_EQ(UserDefaults(folder).persistentDomainNames(), QStringList{otherName});
    });
}

TEST_F(UnsavedDefaults, ComeFromAFolderThatCannotBeMade)
{
    withFolder([](const QString &folder) {
        const QString newFolder = folder + u"/new"_s;
        UserDefaults defaults(newFolder);
        lock(folder);
        EXPECT_FALSE(defaults.setPersistentDomain(oldDomain, domainName));
        EXPECT_TRUE(support::contains(defaults.lastError(), u"\"%1\" cannot be made"_s.arg(newFolder)));
        EXPECT_EQ(defaults.persistentDomainForName(domainName), oldDomain);
        unlock(folder);
        EXPECT_TRUE(defaults.synchronize());
        EXPECT_EQ(UserDefaults(newFolder).persistentDomainForName(domainName), oldDomain);
    });
}

TEST_F(UnsavedDefaults, ComeFromAFileThatIsWriteProtected)
{
    withFolder([](const QString &folder) {
        const QString path = folder + u"/com.example.plain-text.plist"_s;
        UserDefaults defaults(folder);
        EXPECT_TRUE(QFile::setPermissions(path, QFile::ReadOwner));
        EXPECT_FALSE(defaults.setPersistentDomain({}, domainName));
        EXPECT_TRUE(support::contains(defaults.lastError(), path));
        EXPECT_EQ(UserDefaults(folder).persistentDomainForName(domainName), oldDomain);
        EXPECT_TRUE(QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner));
        EXPECT_TRUE(defaults.synchronize());
        EXPECT_EQ(UserDefaults(folder).persistentDomainForName(domainName), QVariantMap());
    });
}

/// From now on no file of this process may become longer.
void limitFileSize(rlim_t bytes)
{
    std::signal(SIGXFSZ, SIG_IGN);
    rlimit limit = {};
    EXPECT_EQ(getrlimit(RLIMIT_FSIZE, &limit), 0);
    limit.rlim_cur = bytes;
    EXPECT_EQ(setrlimit(RLIMIT_FSIZE, &limit), 0);
}

/// Sets a domain with a text of so many characters while files cannot get longer than `room`.
void expectSavedOnceThereIsRoom(const QString &folder, qsizetype length, rlim_t room)
{
    SCOPED_TRACE(testing::Message() << length << " characters, room for " << room << " bytes");
    UserDefaults defaults(folder);
    EXPECT_TRUE(defaults.setPersistentDomain(oldDomain, domainName));
    const auto files = support::filesBelow(folder);
    const QVariantMap newDomain{{u"text"_s, QString(length, u'x')}};
    limitFileSize(room);
    EXPECT_FALSE(defaults.setPersistentDomain(newDomain, domainName));
    EXPECT_TRUE(support::contains(defaults.lastError(), folder));
    EXPECT_EQ(defaults.persistentDomainForName(domainName), newDomain);
    EXPECT_FALSE(defaults.synchronize());
    EXPECT_EQ(support::filesBelow(folder), files);
    limitFileSize(RLIM_INFINITY);
    EXPECT_TRUE(defaults.synchronize()) << testing::PrintToString(defaults.lastError());
    EXPECT_EQ(UserDefaults(folder).persistentDomainForName(domainName), newDomain);
}

TEST_F(UnsavedDefaults, ComeFromADiskThatTakesNoMoreAndLeaveTheOldSettings)
{
    support::runInChild([&] {
        for (const qsizetype length : {1000, 40000}) { // fits into a buffer of QFile, does not
            for (const rlim_t room : std::array<rlim_t, 5>{0, 1, 150, 250, 1000}) {
                expectSavedOnceThereIsRoom(folder(), length, room);
            }
        }
    });
}

} // namespace
