#include <tests/end_to_end/HostProcess.h>
#include <tests/support/Printers.h>

using namespace Qt::Literals::StringLiterals;

namespace end_to_end {

const QString hostProgram = QStringLiteral(HOST_PROGRAM);
const QString plainTextPlugin = QStringLiteral(PLAIN_TEXT_PLUGIN);
const QStringList kitLibraries{
    QStringLiteral(CORE_LIBRARY),
#ifdef WINDOWS_LIBRARY
    QStringLiteral(WINDOWS_LIBRARY),
#endif
};
const QString testPluginFolder = QStringLiteral(TEST_PLUGIN_FOLDER);
const QString faultsLibrary = QStringLiteral(FAULTS_LIBRARY);
const QString manuscriptsFolder = QStringLiteral(MANUSCRIPTS_FOLDER);
const QString expectedFolder = QStringLiteral(EXPECTED_FOLDER);

HostResult finished(QProcess &process)
{
    EXPECT_TRUE(process.waitForFinished()) << testing::PrintToString(process.errorString());
    const int exitCode = process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
    return {exitCode, QString::fromUtf8(process.readAllStandardOutput()),
            QString::fromUtf8(process.readAllStandardError())};
}

HostResult runHost(const QStringList &arguments)
{
    QProcess process;
    process.start(hostProgram, arguments);
    return finished(process);
}

testing::AssertionResult failedWith(int exitCode, const QStringList &pieces, const HostResult &result)
{
    const auto failure = [&result] {
        return testing::AssertionFailure()
               << "exit code " << result.exitCode << ", output " << testing::PrintToString(result.output) << ", errors "
               << testing::PrintToString(result.errors);
    };
    if (result.exitCode != exitCode || !result.output.isEmpty() || !result.errors.contains("orvane-host: "_L1)) {
        return failure();
    }
    for (const QString &piece : pieces) {
        if (!result.errors.contains(piece)) {
            return failure() << " lack " << testing::PrintToString(piece);
        }
    }
    return testing::AssertionSuccess();
}

} // namespace end_to_end
