#pragma once

#include <OrvaneExportKit/platform/FileReplacement.h>

#include <QtCore/QByteArray>
#include <QtCore/QString>

#include <memory>

/// \file
/// What putting files on disk asks of the system. One source knows POSIX, the other one leaves all to Qt; the build
/// takes one of them.

namespace platform {

/// What the system said. Thrown inside the library alone.
struct DiskError {
    QString reason;
    bool lacksHandles = false; ///< whether closing files would help
};

/// A file that is written and has not taken its place yet. When it is destroyed before, it is gone.
class PendingFile
{
public:
    PendingFile() = default;
    PendingFile(const PendingFile &) = delete;
    PendingFile &operator=(const PendingFile &) = delete;
    virtual ~PendingFile() = default;

    /// Returns when the content is on disk.
    virtual void flush() = 0;

    /// Looks for what went wrong with this file while its file system was flushed.
    virtual void requireFlushed() = 0;

    /// Replaces what has the name.
    virtual void takePlace() = 0;
};

/// A folder that files are written into. All functions throw a `DiskError` where the system fails.
class DiskFolder
{
public:
    /// Removes what killed programs have left behind in the folder.
    static std::unique_ptr<DiskFolder> open(const QString &path);

    DiskFolder() = default;
    DiskFolder(const DiskFolder &) = delete;
    DiskFolder &operator=(const DiskFolder &) = delete;
    virtual ~DiskFolder() = default;

    /// Writes a file that is to get the name. The folder must outlive it.
    virtual std::unique_ptr<PendingFile> write(const QString &name, const QByteArray &content, FileAccess access) = 0;

    /// Flushes all that was written to the file system of the folder, at once. False, with nothing done, where the
    /// system cannot do that, or would not tell of every write that fails.
    virtual bool flushFileSystem() = 0;

    /// Returns when the names in the folder are on disk.
    virtual void flush() = 0;
};

} // namespace platform
