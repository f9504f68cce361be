#include <OrvaneExportKit/platform/UserDefaults.h>
#include <tests/support/ChildProcess.h>
#include <tests/support/DefaultsFolder.h>
#include <tests/support/Files.h>
#include <tests/support/Printers.h>

#include <gtest/gtest.h>

#include <QtCore/QDir>
#include <QtCore/QElapsedTimer>
#include <QtCore/QFileInfo>

#include <array>
#include <atomic>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <random>
#include <thread>
#include <utility>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/mman.h>
#include <sys/stat.h>

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
        QString error;
        const auto domain = defaults.persistentDomainForName(domainName, &error);
        ASSERT_TRUE(domain) << testing::PrintToString(error);
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

/// For how many seconds the attacks with stopped programs run: ORVANE_ATTACK_SECONDS, or a few.
int attackSeconds()
{
    bool isSet = false;
    const int seconds = qEnvironmentVariableIntValue("ORVANE_ATTACK_SECONDS", &isSet);
    return isSet ? seconds : 5;
}

TEST_F(DefaultsSafety, FiveProgramsOfWhichOneIsStoppedNowAndThenLoseNothing)
{
    constexpr std::size_t programs = 5;
    const std::chrono::seconds duration(attackSeconds());
    ASSERT_TRUE(UserDefaults(folder()).setPersistentDomain({}, domainName));
    std::array<SharedNumber, programs> last;
    const SharedNumber running;
    *running = int{programs};
    std::array<pid_t, programs> writers{};
    for (std::size_t i = 0; i < programs; ++i) {
        writers[i] = support::startChild([&, i] {
            *last[i] = writeNumbers(folder(), u"program %1"_s.arg(i), duration);
            --*running;
        });
    }
    std::mt19937 random(std::random_device{}());
    std::uniform_int_distribution microseconds(0, 20000);
    int stops = 0;
    for (const pid_t stopped = writers[0]; *running == int{programs}; ++stops) {
        std::this_thread::sleep_for(std::chrono::microseconds(microseconds(random)));
        EXPECT_EQ(kill(stopped, SIGSTOP), 0);
        std::this_thread::sleep_for(2150ms);
        EXPECT_EQ(kill(stopped, SIGCONT), 0);
    }
    QVariantMap expected;
    qint64 saves = 0;
    for (std::size_t i = 0; i < programs; ++i) {
        EXPECT_EQ(support::waitForChild(writers[i]), 0);
        expected.insert(u"program %1"_s.arg(i), qint64(*last[i]));
        saves += *last[i];
    }
    EXPECT_GT(stops, 1);
    RecordProperty("stops", stops);
    RecordProperty("saves", static_cast<int>(saves));
    EXPECT_EQ(savedDomain(domainName), expected);
}

TEST_F(DefaultsSafety, TwoObjectsInTwoThreadsLoseNothingOfEachOther)
{
    constexpr int writes = 100;
    const auto write = [&](const QString &name) {
        UserDefaults defaults(folder());
        defaults.setApplicationDomain(domainName);
        for (int number = 0; number < writes; ++number) {
            EXPECT_TRUE(defaults.setObject(number, name + QString::number(number)))
                << testing::PrintToString(defaults.lastError());
        }
    };
    std::thread other([&] { write(u"other "_s); });
    write(u"own "_s);
    other.join();
    const auto saved = savedDomain(domainName);
    ASSERT_TRUE(saved);
    EXPECT_EQ(saved->size(), 2 * writes);
}

/// A program that saves now, as others see it.
class LockedFile
{
public:
    explicit LockedFile(const QString &path, const QByteArray &content = {})
        : m_file(open(QFile::encodeName(path).constData(), O_RDWR | O_CREAT | O_CLOEXEC, 0600))
    {
        EXPECT_EQ(write(m_file, content.constData(), static_cast<size_t>(content.size())), content.size());
        EXPECT_EQ(flock(m_file, LOCK_EX | LOCK_NB), 0);
    }
    LockedFile(LockedFile &&other) noexcept : m_file(std::exchange(other.m_file, -1)) {}
    LockedFile &operator=(LockedFile &&other) noexcept
    {
        unlock();
        m_file = std::exchange(other.m_file, -1);
        return *this;
    }
    LockedFile(const LockedFile &) = delete;
    LockedFile &operator=(const LockedFile &) = delete;
    ~LockedFile() { unlock(); }

    void unlock()
    {
        if (m_file >= 0) {
            close(m_file);
        }
        m_file = -1;
    }

private:
    int m_file;
};

TEST_F(DefaultsSafety, AWriteWaitsForAnotherProgramToFinish)
{
    LockedFile lock(lockPath());
    const pid_t writer = support::startChild([&] {
        lock.unlock(); // of its own
        UserDefaults defaults(folder());
        EXPECT_TRUE(defaults.setPersistentDomain({{u"a"_s, 1}}, domainName));
    });
    std::this_thread::sleep_for(200ms);
    EXPECT_EQ(savedDomain(domainName), std::nullopt);
    lock.unlock();
    EXPECT_EQ(support::waitForChild(writer), 0);
    EXPECT_EQ(savedDomain(domainName), (QVariantMap{{u"a"_s, 1}}));
}

TEST_F(DefaultsSafety, AWriteGoesOnWaitingWhenTheNextProgramTakesItsTurnWithAFileOfItsOwn)
{
    LockedFile first(lockPath());
    std::atomic<bool> isSaved = false;
    std::thread writer([&] {
        UserDefaults defaults(folder());
        EXPECT_TRUE(defaults.setPersistentDomain({{u"a"_s, 1}}, domainName));
        isSaved = true;
    });
    for (int turn = 0; turn < 20; ++turn) {
        std::this_thread::sleep_for(10ms);
        const QString nextPath = lockPath() + u"-next"_s;
        LockedFile next(nextPath);
        EXPECT_EQ(std::rename(QFile::encodeName(nextPath).constData(), QFile::encodeName(lockPath()).constData()), 0);
        first = std::move(next); // gives the lock on the file before back
        std::this_thread::sleep_for(10ms);
        EXPECT_FALSE(isSaved);
    }
    first.unlock();
    writer.join();
    EXPECT_TRUE(isSaved);
}

TEST_F(DefaultsSafety, AWriteGivesUpAfterEightSecondsAndNamesTheProgramInItsWay)
{
    UserDefaults defaults(folder());
    ASSERT_TRUE(defaults.setPersistentDomain({{u"a"_s, u"old"_s}}, domainName));
    LockedFile lock(lockPath(), "123456\nwriting application\n");
    QElapsedTimer timer;
    timer.start();
    EXPECT_FALSE(defaults.setPersistentDomain({{u"a"_s, u"new"_s}}, domainName));
    EXPECT_GE(timer.elapsed(), 8000);
    EXPECT_LE(timer.elapsed(), 9000);
    EXPECT_TRUE(support::contains(defaults.lastError(), path(domainName)));
    EXPECT_TRUE(support::contains(defaults.lastError(),
                                  u"the program \"writing application\" (process 123456) keeps it locked"_s));
    EXPECT_EQ(savedDomain(domainName), (QVariantMap{{u"a"_s, u"old"_s}}));
    lock.unlock();
    EXPECT_TRUE(defaults.synchronize());
    EXPECT_EQ(savedDomain(domainName), (QVariantMap{{u"a"_s, u"new"_s}}));
}

TEST_F(DefaultsSafety, AProgramThatSavesSaysSoInItsLock)
{
    const SharedNumber saves;
    const pid_t writer = support::startChild([&] {
        UserDefaults defaults(folder());
        while (defaults.setPersistentDomain(numberedSettings(++*saves), domainName)) {
        }
    });
    QByteArray owner;
    while (!owner.endsWith('\n')) {
        if (QFileInfo::exists(lockPath())) {
            owner = support::fileContent(lockPath());
        }
    }
    EXPECT_EQ(owner, QByteArray::number(writer) + "\ndefaults_tests\n");
    EXPECT_EQ(kill(writer, SIGKILL), 0);
    EXPECT_EQ(support::waitForChild(writer), SIGKILL);
}

TEST_F(DefaultsSafety, TheLockOfAProgramThatWasKilledIsTakenOverAtOnce)
{
    const SharedNumber locked;
    const pid_t owner = support::startChild([&] {
        const LockedFile lock(lockPath(), "123456\nwriting application\n");
        *locked = 1;
        pause();
    });
    while (*locked == 0) {
        std::this_thread::yield();
    }
    ASSERT_EQ(kill(owner, SIGKILL), 0);
    ASSERT_EQ(support::waitForChild(owner), SIGKILL);
    ASSERT_TRUE(QFileInfo::exists(lockPath()));

    UserDefaults defaults(folder());
    QElapsedTimer timer;
    timer.start();
    EXPECT_TRUE(defaults.setPersistentDomain({{u"a"_s, 1}}, domainName));
    EXPECT_LT(timer.elapsed(), 500);
    EXPECT_FALSE(QFileInfo::exists(lockPath()));
}

/// Something in the place of the lock file that is none.
class ObstacleToTheLock : public DefaultsSafety
{
protected:
    /// Saving does not wait, names the obstacle and what to do, and works as soon as that is done.
    void expectNamed(const QString &obstacle) const
    {
        UserDefaults defaults(folder());
        QElapsedTimer timer;
        timer.start();
        EXPECT_FALSE(defaults.setPersistentDomain({{u"a"_s, 1}}, domainName));
        EXPECT_LT(timer.elapsed(), 500);
        EXPECT_TRUE(support::contains(
            defaults.lastError(),
            u"what stands at \"%1\" is no lock file (%2); remove it and save again"_s.arg(lockPath(), obstacle)));
        EXPECT_EQ(savedDomain(domainName), std::nullopt);
        EXPECT_EQ(std::remove(QFile::encodeName(lockPath()).constData()), 0);
        EXPECT_TRUE(defaults.synchronize());
        EXPECT_EQ(savedDomain(domainName), (QVariantMap{{u"a"_s, 1}}));
    }
};

TEST_F(ObstacleToTheLock, APipeIsNamedAtOnce)
{
    ASSERT_EQ(mkfifo(QFile::encodeName(lockPath()).constData(), 0600), 0);
    expectNamed(u"a pipe or device"_s);
}

TEST_F(ObstacleToTheLock, AFolderIsNamedAtOnce)
{
    ASSERT_TRUE(QDir().mkdir(lockPath()));
    expectNamed(u"a folder"_s);
}

TEST_F(ObstacleToTheLock, ALinkIsNamedAtOnceAndNotFollowed)
{
    const QString target = parentFolder() + u"/target"_s;
    ASSERT_TRUE(QFile::link(target, lockPath()));
    expectNamed(u"a link"_s);
    EXPECT_FALSE(QFileInfo::exists(target));
    support::writeFile(target, "precious");
    ASSERT_TRUE(QFile::link(target, lockPath()));
    UserDefaults defaults(folder());
    EXPECT_FALSE(defaults.removePersistentDomainForName(domainName));
    EXPECT_EQ(support::fileContent(target), "precious");
}

TEST_F(ObstacleToTheLock, AFileOfSomebodyElseIsNamedAtOnce)
{
    support::writeFile(lockPath(), {});
    ASSERT_TRUE(QFile::setPermissions(lockPath(), QFile::ReadOwner));
    openToEveryone();
    support::runAsNobody([&] {
        UserDefaults defaults(folder());
        EXPECT_FALSE(defaults.setPersistentDomain({{u"a"_s, 1}}, domainName));
        EXPECT_TRUE(support::contains(defaults.lastError(),
                                      u"the lock file \"%1\" belongs to somebody else"_s.arg(lockPath())));
    });
}

} // namespace
