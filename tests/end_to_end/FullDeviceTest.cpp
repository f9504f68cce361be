// A disk that takes what is written and finds no room for it when that is flushed: a file system on a loop device,
// whose file lies in a full file system in memory. It is mounted where no other process sees it, so that the system
// removes it with this one, however that ends.

#include <tests/end_to_end/HostTest.h>

#include <OrvaneExportKit/platform/UserDefaults.h>

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QProcess>

#include <sched.h>
#include <sys/mount.h>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;

namespace end_to_end {

namespace {

/// What the program prints when it fails; empty when it does not.
QString problemOf(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(program, arguments, QIODevice::ReadOnly);
    if (!process.waitForFinished()) {
        return program + u": "_s + process.errorString();
    }
    return process.exitCode() == 0 ? QString()
                                   : program + u": "_s + QString::fromLocal8Bit(process.readAll()).trimmed();
}

/// Succeeds when the text names the file and one of the errors that systems give for it.
testing::AssertionResult tellsOfFullDisk(const QString &text, const QString &file)
{
    if (text.contains(file) &&
        (text.contains(u"No space left on device"_s) || text.contains(u"Input/output error"_s))) {
        return testing::AssertionSuccess();
    }
    return testing::AssertionFailure() << testing::PrintToString(text);
}

class FullDevice : public HostTest
{
protected:
    /// Only root mounts file systems. Where loop devices are, mounting must succeed; CI counts on it.
    void SetUp() override
    {
        if (geteuid() != 0) {
            GTEST_SKIP() << "only root can mount a file system";
        }
        if (!QFile::exists(u"/dev/loop-control"_s)) {
            GTEST_SKIP() << "there are no loop devices";
        }
        const QString problem = mountDevice();
        if (problem.isEmpty()) {
            return;
        }
        if (qEnvironmentVariableIsSet("CI")) {
            FAIL() << problem.toStdString();
        }
        GTEST_SKIP() << problem.toStdString();
    }

    ~FullDevice() override
    {
        for (const QString &folder : {destination(), memory()}) {
            umount2(QFile::encodeName(folder).constData(), MNT_DETACH);
        }
    }

    /// Takes all the room that the device could grow into.
    void fill() const
    {
        sync();
        QFile file(filler());
        EXPECT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
        const QByteArray page(4096, 'x');
        while (file.write(page) == page.size()) {
        }
    }

    void makeRoom() const { EXPECT_TRUE(QFile::remove(filler())); }

private:
    QString memory() const { return path(u"memory"_s); }
    QString filler() const { return memory() + u"/filler"_s; }

    /// Mounts the device in the place of the destination. Why that is not possible; empty when it is done.
    QString mountDevice() const
    {
        if (unshare(CLONE_NEWNS) != 0) {
            return u"a process may not mount for itself alone: "_s + qt_error_string();
        }
        const QString image = memory() + u"/image"_s;
        QDir().mkdir(memory());
        const QList<QStringList> commands{{u"mount"_s, u"--make-rprivate"_s, u"/"_s},
                                          {u"mount"_s, u"-t"_s, u"tmpfs"_s, u"-o"_s, u"size=4m"_s, u"none"_s, memory()},
                                          {u"truncate"_s, u"--size=64M"_s, image},
                                          {u"mkfs.ext4"_s, u"-q"_s, u"-O"_s, u"^has_journal"_s, image},
                                          {u"mount"_s, u"-o"_s, u"loop"_s, image, destination()}};
        for (const QStringList &command : commands) {
            const QString problem = problemOf(command.first(), command.sliced(1));
            if (!problem.isEmpty()) {
                return problem;
            }
        }
        QDir(destination()).rmdir(u"lost+found"_s);
        return {};
    }
};

const QByteArray large = QByteArray("A line of text.\n").repeated(20000);

} // namespace

TEST_F(FullDevice, ExportIsAnErrorAndTheOldFilesAreWhole)
{
    writeManuscript({{u"One"_s, large}, {u"Two"_s, large}, {u"Three"_s, large}});
    writeFile(exported(u"001 One.txt"_s), "old");
    fill();
    const HostResult result = runExport({u"--yes"_s});
    EXPECT_EQ(result.exitCode, 4);
    EXPECT_EQ(result.output, QString());
    EXPECT_TRUE(tellsOfFullDisk(result.errors, exported(u"001 One.txt"_s)));
    EXPECT_EQ(filesIn(destination()), QStringList{u"001 One.txt"_s});
    EXPECT_EQ(fileContent(exported(u"001 One.txt"_s)), "old");

    makeRoom();
    EXPECT_EQ(runExport({u"--yes"_s}).exitCode, 0);
    EXPECT_EQ(fileContent(exported(u"003 Three.txt"_s)), large);
}

TEST_F(FullDevice, ExportOfManyDocumentsIsAnErrorAndNoneIsThere)
{
    writeManuscript(QList<TestDocument>(100, {u"Same"_s, large.first(20000)}));
    fill();
    const HostResult result = runExport({u"--yes"_s});
    EXPECT_EQ(result.exitCode, 4);
    EXPECT_TRUE(tellsOfFullDisk(result.errors, destination()));
    for (const QString &name : filesIn(destination())) {
        EXPECT_TRUE(result.output.contains(name)) << testing::PrintToString(name);
    }
    EXPECT_LT(filesIn(destination()).size(), 100);

    makeRoom();
    EXPECT_EQ(runExport({u"--yes"_s}).exitCode, 0);
    EXPECT_EQ(filesIn(destination()).size(), 100);
}

TEST_F(FullDevice, SettingsAreNotSavedAndTheOldOnesStay)
{
    platform::UserDefaults defaults(destination());
    defaults.setApplicationDomain(u"com.example.plain-text"_s);
    ASSERT_TRUE(defaults.setObject(u"old"_s, u"text"_s)) << testing::PrintToString(defaults.lastError());
    fill();
    EXPECT_FALSE(defaults.setObject(QString::fromLatin1(large), u"text"_s));
    EXPECT_TRUE(tellsOfFullDisk(defaults.lastError(), exported(u"com.example.plain-text.plist"_s)));
    platform::UserDefaults others(destination());
    others.setApplicationDomain(u"com.example.plain-text"_s);
    EXPECT_EQ(others.objectForKey(u"text"_s), u"old"_s);

    makeRoom();
    EXPECT_TRUE(defaults.synchronize()) << testing::PrintToString(defaults.lastError());
    EXPECT_EQ(others.objectForKey(u"text"_s), QString::fromLatin1(large));
}

} // namespace end_to_end
