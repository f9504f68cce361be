#pragma once

#include <gtest/gtest.h>

#include <QtCore/QProcess>
#include <QtCore/QString>
#include <QtCore/QStringList>

namespace end_to_end {

// Where the build has put things.
extern const QString hostProgram;
extern const QString plainTextPlugin;
extern const QStringList kitLibraries; ///< the files that a program loads
extern const QString testPluginFolder;
extern const QString faultsLibrary;
extern const QString manuscriptsFolder;
extern const QString expectedFolder;

/// What a run of the program came to.
struct HostResult {
    int exitCode;   ///< -1 when a signal ended it
    QString output; ///< what it wrote to standard output
    QString errors; ///< what it wrote to standard error
};

/// Waits for the end of a program that was started.
HostResult finished(QProcess &process);

/// Runs the program without a terminal.
HostResult runHost(const QStringList &arguments);

/// Succeeds when the program ended with this code, listed no files and gave, in an error that says whose it is, all
/// of these pieces of text.
testing::AssertionResult failedWith(int exitCode, const QStringList &pieces, const HostResult &result);

} // namespace end_to_end
