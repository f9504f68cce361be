#include <OrvaneExportKit/platform/UserDefaults.h>
#include <tests/support/ChildProcess.h>
#include <tests/support/DefaultsFolder.h>
#include <tests/support/Files.h>
#include <tests/support/Printers.h>

#include <gtest/gtest.h>

#include <QtCore/QElapsedTimer>
#include <QtCore/QFileInfo>
#include <QtCore/QLockFile>

#include <atomic>
#include <chrono>
#include <csignal>
#include <random>
#include <thread>

#include <sys/mman.h>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;
using platform::UserDefaults;

namespace {

/// A number that a test shares with its child processes.
class SharedNumber
{
public:
    SharedNumber()
        : m_memory(
              mmap(nullptr, sizeof(std::atomic<qint64>), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0)),
          m_number(new (m_memory) std::atomic<qint64>(0))
    {
    }
    SharedNumber(const SharedNumber &) = delete;
    SharedNumber &operator=(const SharedNumber &) = delete;
    ~SharedNumber() { munmap(m_memory, sizeof(std::atomic<qint64>)); }

    std::atomic<qint64> &operator*() const { return *m_number; }

private:
    void *m_memory;
    std::atomic<qint64> *m_number;
};

const QString domainName = QStringLiteral("com.example.plain-text");

class DefaultsSafety : public support::DefaultsFolder
{
protected:
    QString lockPath() const { return path(domainName) + u".lock"_s; }
};

/// Settings of some size that are different in every place for every number.
QVariantMap numberedSettings(qint64 number)
{
    QVariantList styles;
    for (qint64 style = 0; style < 200; ++style) {
        styles.append(QVariantMap{{u"identifier"_s, style}, {u"startTag"_s, QString::number(number * style)}});
    }
    return {{u"number"_s, number}, {u"styles"_s, styles}};
}

TEST_F(DefaultsSafety, AKillLeavesTheOldOrTheNewSettingsWhole)
{
    const auto seed = std::random_device()();
    SCOPED_TRACE(seed);
    std::mt19937 random(seed);
    std::uniform_int_distribution microseconds(0, 10000);
    const SharedNumber saved;
    int killsDuringSaving = 0;
    for (int kills = 0; kills < 200; ++kills) {
        const qint64 before = *saved;
        const pid_t writer = support::startChild([&] {
            UserDefaults defaults(folder());
            for (qint64 number = before + 1; defaults.setPersistentDomain(numberedSettings(number), domainName);
                 ++number) {
                *saved = number;
            }
            *saved = -1;
        });
        while (*saved == before) {
            std::this_thread::sleep_for(100us);
        }
        std::this_thread::sleep_for(std::chrono::microseconds(microseconds(random)));
        ASSERT_EQ(kill(writer, SIGKILL), 0);
        ASSERT_EQ(support::waitForChild(writer), SIGKILL);
        killsDuringSaving += QFileInfo::exists(lockPath()) ? 1 : 0;

        const auto domain = savedDomain(domainName);
        ASSERT_TRUE(domain);
        const qint64 number = domain->value(u"number"_s).toLongLong();
        ASSERT_TRUE(number == *saved || number == *saved + 1) << number << ", but " << *saved << " was saved";
        ASSERT_EQ(domain, numberedSettings(number));
        *saved = number;
    }
    EXPECT_GT(killsDuringSaving, 0);
    RecordProperty("saved", static_cast<int>(*saved));
    RecordProperty("kills_during_saving", killsDuringSaving);

    UserDefaults defaults(folder());
    EXPECT_TRUE(defaults.setPersistentDomain({}, domainName)) << testing::PrintToString(defaults.lastError());
    EXPECT_EQ(defaults.persistentDomainNames(), QStringList{domainName});
}

/// For so long, writes ever larger numbers under a key of its own.
qint64 writeNumbers(const QString &folder, const QString &key, std::chrono::milliseconds duration)
{
    UserDefaults defaults(folder);
    defaults.setApplicationDomain(domainName);
    QElapsedTimer timer;
    timer.start();
    qint64 number = 0;
    while (!timer.hasExpired(duration.count())) {
        ++number;
        if (!defaults.setObject(number, key)) { // on a busy machine the other program may have had every turn
            EXPECT_TRUE(support::contains(defaults.lastError(), u"keeps it locked"_s));
        }
    }
    EXPECT_TRUE(defaults.synchronize()) << testing::PrintToString(defaults.lastError());
    return number;
}

TEST_F(DefaultsSafety, TwoProgramsThatWriteOneDomainLoseNothingOfEachOther)
{
    ASSERT_TRUE(UserDefaults(folder()).setPersistentDomain({}, domainName));
    const SharedNumber first;
    const SharedNumber second;
    const SharedNumber running;
    *running = 2;
    const auto start = [&](const QString &key, const SharedNumber &last) {
        return support::startChild([&] {
            *last = writeNumbers(folder(), key, 5s);
            --*running;
        });
    };
    const pid_t firstWriter = start(u"first"_s, first);
    const pid_t secondWriter = start(u"second"_s, second);

    const UserDefaults defaults(folder());
    qint64 lastFirst = 0;
    qint64 lastSecond = 0;
    int readings = 0;
    for (; *running > 0; ++readings) {
        const auto domain = defaults.persistentDomainForName(domainName);
        ASSERT_TRUE(domain) << testing::PrintToString(defaults.lastError());
        const qint64 nextFirst = domain->value(u"first"_s).toLongLong();
        const qint64 nextSecond = domain->value(u"second"_s).toLongLong();
        EXPECT_GE(nextFirst, lastFirst);
        EXPECT_GE(nextSecond, lastSecond);
        lastFirst = nextFirst;
        lastSecond = nextSecond;
    }
    EXPECT_EQ(support::waitForChild(firstWriter), 0);
    EXPECT_EQ(support::waitForChild(secondWriter), 0);
    EXPECT_GT(*first, 1);
    EXPECT_GT(*second, 1);
    EXPECT_GT(readings, 1);
    RecordProperty("first", static_cast<int>(*first));
    RecordProperty("second", static_cast<int>(*second));
    RecordProperty("readings", readings);
    EXPECT_EQ(savedDomain(domainName), (QVariantMap{{u"first"_s, qint64(*first)}, {u"second"_s, qint64(*second)}}));
}

TEST_F(DefaultsSafety, AWriteWaitsForAnotherProgramToFinish)
{
    QLockFile lock(lockPath());
    ASSERT_TRUE(lock.tryLock());
    const pid_t writer = support::startChild([&] {
        UserDefaults defaults(folder());
        EXPECT_TRUE(defaults.setPersistentDomain({{u"a"_s, 1}}, domainName));
    });
    std::this_thread::sleep_for(200ms);
    EXPECT_EQ(savedDomain(domainName), std::nullopt);
    lock.unlock();
    EXPECT_EQ(support::waitForChild(writer), 0);
    EXPECT_EQ(savedDomain(domainName), (QVariantMap{{u"a"_s, 1}}));
}

TEST_F(DefaultsSafety, AWriteGivesUpAfterAWhileAndNamesTheProgramInItsWay)
{
    UserDefaults defaults(folder());
    ASSERT_TRUE(defaults.setPersistentDomain({{u"a"_s, u"old"_s}}, domainName));
    QLockFile lock(lockPath());
    ASSERT_TRUE(lock.tryLock());
    QElapsedTimer timer;
    timer.start();
    EXPECT_FALSE(defaults.setPersistentDomain({{u"a"_s, u"new"_s}}, domainName));
    EXPECT_GE(timer.elapsed(), 1000);
    EXPECT_LE(timer.elapsed(), 15000);
    EXPECT_TRUE(support::contains(defaults.lastError(), path(domainName)));
    EXPECT_TRUE(support::contains(defaults.lastError(), u"defaults_tests"_s));
    EXPECT_TRUE(support::contains(defaults.lastError(), QString::number(getpid())));
    EXPECT_EQ(savedDomain(domainName), (QVariantMap{{u"a"_s, u"old"_s}}));
    lock.unlock();
    EXPECT_TRUE(defaults.synchronize());
    EXPECT_EQ(savedDomain(domainName), (QVariantMap{{u"a"_s, u"new"_s}}));
}

TEST_F(DefaultsSafety, TheLockOfAProgramThatWasKilledIsTakenOver)
{
    const SharedNumber locked;
    const pid_t owner = support::startChild([&] {
        QLockFile lock(lockPath());
        *locked = lock.tryLock() ? 1 : -1;
        pause();
    });
    while (*locked == 0) {
        std::this_thread::yield();
    }
    ASSERT_EQ(kill(owner, SIGKILL), 0);
    ASSERT_EQ(support::waitForChild(owner), SIGKILL);
    ASSERT_EQ(*locked, 1);
    ASSERT_TRUE(QFileInfo::exists(lockPath()));

    UserDefaults defaults(folder());
    QElapsedTimer timer;
    timer.start();
    EXPECT_TRUE(defaults.setPersistentDomain({{u"a"_s, 1}}, domainName));
    EXPECT_LT(timer.elapsed(), 1000);
}

TEST_F(DefaultsSafety, TheUnfinishedLocksOfAProgramThatWasKilledWhileItTookOverALockAreRemoved)
{
    support::writeFile(lockPath(), {});
    support::writeFile(lockPath() + u".rmlock"_s, {}); // where QLockFile keeps others out meanwhile
    UserDefaults defaults(folder());
    EXPECT_TRUE(defaults.setPersistentDomain({{u"a"_s, 1}}, domainName))
        << testing::PrintToString(defaults.lastError());
    EXPECT_EQ(savedDomain(domainName), (QVariantMap{{u"a"_s, 1}}));
}

} // namespace
