#pragma once

#include <QtCore/QFileInfo>
#include <QtCore/QMap>
#include <QtCore/QProcessEnvironment>
#include <QtCore/QString>

/// \file
/// Faults of the system that a program meets while it works on the files below a folder.
///
/// | fault           | value                                                                                 |
/// |-----------------|---------------------------------------------------------------------------------------|
/// | `ROOM`          | how many bytes can still be written until the disk is full                            |
/// | `WRITES`        | how many writes succeed until the disk is full                                        |
/// | `LONGEST_WRITE` | how many bytes one write takes of those that it is given                              |
/// | `RENAME`        | the error that renaming a file fails with                                             |
/// | `LINK`          | ... giving a name to a file without one                                               |
/// | `FLUSH`         | ... flushing a file                                                                   |
/// | `FLUSH_FOLDER`  | ... flushing a folder                                                                 |
/// | `FLUSH_ALL`     | ... flushing a file system                                                            |
/// | `OPEN_FOLDER`   | ... opening a folder                                                                  |
/// | `UNNAMED_FILE`  | ... making a file without a name                                                      |
/// | `FILE_SYSTEM`   | the number by which the system knows the kind of the file system, in decimal digits   |
/// | `VANISHED`      | the end of the path of a file that is gone when it is opened                          |
/// | `LOCK_FILE`     | the number of the error that every opening of a lock file fails with                  |
/// | `STAT`          | the number of the error that every look at a settings file fails with                 |
/// | `ACCESS`        | the number of the error that asking for the rights to a settings file fails with      |
/// | `OPEN`          | the number of the error that every opening of a settings file to be read fails with   |
/// | `READ`          | the number of the error that every reading of a file fails with                       |
/// | `LOCK`          | any: the file system knows no locks                                                   |
/// | `CLOCK`         | by how many seconds the clock has been set forward, or back where that is negative    |
///
/// An error is its number, for every call; with `@n` behind it, for the n-th call alone: "5@2".

namespace support {

/// Lets a program with this environment meet the faults.
inline void insertFaults(QProcessEnvironment &environment, const QString &folder, const QMap<QString, QString> &faults)
{
    // By its name, because a space ends a path in LD_PRELOAD.
    const QFileInfo library(QStringLiteral(FAULTS_LIBRARY));
    environment.insert(QStringLiteral("LD_PRELOAD"), library.fileName());
    environment.insert(QStringLiteral("LD_LIBRARY_PATH"), library.path());
    environment.insert(QStringLiteral("ASAN_OPTIONS"), QStringLiteral("verify_asan_link_order=0"));
    environment.insert(QStringLiteral("ORVANE_FAULT_FOLDER"), folder);
    for (auto fault = faults.begin(); fault != faults.end(); ++fault) {
        environment.insert(QStringLiteral("ORVANE_FAULT_") + fault.key(), fault.value());
    }
}

} // namespace support
