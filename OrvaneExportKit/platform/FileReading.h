#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

namespace platform {

/// What came of reading a file.
struct FileReading {
    enum class Outcome {
        Read,
        Missing, ///< nothing is there
        NoFile,  ///< something else is there, as a folder or a pipe
        Hidden,  ///< its permissions forbid it
        Failed,  ///< the system failed, perhaps only for now: nothing must be concluded from that about the file
    };

    Outcome outcome = Outcome::Failed;
    QByteArray data;
    QString problem; ///< why it failed, as the system says it
};

/// Reads a whole file, through links. It waits for no pipe or device in the file's place. `QFile` does not tell a file
/// that may not be read from a disk that fails.
FileReading readFile(const QString &path);

} // namespace platform
