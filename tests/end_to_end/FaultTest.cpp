#include <tests/end_to_end/HostTest.h>

#include <QtCore/QFile>
#include <QtCore/QProcess>
#include <QtCore/QProcessEnvironment>

#include <chrono>
#include <random>
#include <thread>

using namespace Qt::Literals::StringLiterals;

namespace end_to_end {

namespace {

class Fault : public HostTest
{
protected:
    /// Runs the export of the manuscript while the disk of the destination takes no more than so many bytes.
    HostResult exportToFullDisk(int freeBytes) const
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"LD_PRELOAD"_s, fullDiskLibrary);
        environment.insert(u"ASAN_OPTIONS"_s, u"verify_asan_link_order=0"_s);
        environment.insert(u"ORVANE_FULL_DISK_FOLDER"_s, destination());
        environment.insert(u"ORVANE_FULL_DISK_AFTER"_s, QString::number(freeBytes));
        QProcess process;
        process.setProcessEnvironment(environment);
        process.start(hostProgram, exportArguments({u"--yes"_s, u"--set"_s, u"line-length=0"_s}));
        return finished(process);
    }
};

/// A text of its own for each number.
QByteArray largeText(int number)
{
    return QByteArray::number(number).repeated(20000) + '\n';
}

} // namespace

TEST_F(Fault, FullDiskKeepsOldFilesAndLeavesNoPartialOnes)
{
    const QByteArray large(100000, '2');
    writeManuscript({{u"One"_s, "1"}, {u"Two"_s, large}, {u"Three"_s, "3"}});
    writeFile(exported(u"002 Two.txt"_s), "old");

    const HostResult result = exportToFullDisk(50000);
    EXPECT_EQ(result.exitCode, 4);
    EXPECT_EQ(result.output, exported(u"001 One.txt\n"_s));
    EXPECT_TRUE(result.errors.startsWith("Exported 1 of 3 documents"_L1)) << testing::PrintToString(result.errors);
    EXPECT_TRUE(result.errors.contains(
        u"orvane-host: '%1' can't be written: No space left on device"_s.arg(exported(u"002 Two.txt"_s))))
        << testing::PrintToString(result.errors);
    EXPECT_EQ(filesIn(destination()), QStringList({u"001 One.txt"_s, u"002 Two.txt"_s}));
    EXPECT_EQ(fileContent(exported(u"002 Two.txt"_s)), "old");

    EXPECT_EQ(runExport({u"--yes"_s, u"--set"_s, u"line-length=0"_s}).exitCode, 0);
    EXPECT_EQ(fileContent(exported(u"002 Two.txt"_s)), large);
    EXPECT_EQ(filesIn(destination()).size(), 3);
}

TEST_F(Fault, DiskWithoutAnyRoomLeavesNoFile)
{
    const HostResult result = exportToFullDisk(0);
    EXPECT_TRUE(failedWith(4, {exported(u"001 One.txt"_s), u"No space left on device"_s}, result));
    EXPECT_EQ(filesIn(destination()), QStringList());
}

TEST_F(Fault, KilledAtAnyMomentLeavesWholeFilesOnly)
{
    constexpr int documentCount = 40;
    QList<TestDocument> documents;
    for (int number = 1; number <= documentCount; ++number) {
        documents.append({u"Large"_s, largeText(number)});
    }
    writeManuscript(documents);

    std::mt19937 random(1); // the same moments in every run of the test
    std::uniform_int_distribution<int> filesBefore(0, documentCount / 2);
    std::uniform_int_distribution<int> microsecondsLater(0, 3000);
    int cutShort = 0;
    for (int run = 0; run < 15; ++run) {
        for (const QString &name : filesIn(destination())) {
            EXPECT_TRUE(QFile::remove(exported(name)));
        }
        QProcess process;
        process.start(hostProgram, exportArguments({u"--pattern"_s, u"<1>"_s, u"--set"_s, u"line-length=0"_s}));
        EXPECT_TRUE(waitForExportedFiles(destination(), filesBefore(random)));
        std::this_thread::sleep_for(std::chrono::microseconds(microsecondsLater(random)));
        process.kill();
        EXPECT_TRUE(process.waitForFinished());
        const QStringList names = exportedFilesIn(destination());
        for (const QString &name : names) {
            EXPECT_EQ(fileContent(exported(name)), largeText(name.first(3).toInt())) << testing::PrintToString(name);
        }
        cutShort += names.size() < documentCount ? 1 : 0;
    }
    EXPECT_GT(cutShort, 0) << "no run was killed before its end";
}

} // namespace end_to_end
