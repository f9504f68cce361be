#pragma once

#include <OrvaneExportKit/ExportMacros.h>

#include <QtCore/QByteArray>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <memory>

namespace platform {

/// Who may use a file that is written.
enum class FileAccess {
    AsUsual,    ///< those who might use the file that is replaced; whom the system lets use a new one
    OwnerAlone, ///< its owner, also where others might use the file that is replaced
};

/// Why a file is not on disk.
struct FileFailure {
    QString path;   ///< of the file, as it was given
    QString reason; ///< in the system's words, without a full stop: "No space left on device"

    /// Whether the file holds its new content already, which may be gone after a power failure.
    bool isInPlace = false;
};

/// Files that get a new content, each as a whole or not at all, and are on disk before success is told.
///
///     platform::FileReplacement files;
///     if (!files.write(path, content) || !files.finish()) {
///         warn(files.failure().path, files.failure().reason);
///     }
///
/// `write` puts the content beside the file, without a name where the system can do that. `finish` has the system put
/// on disk what was written, looks at its answer, and only then gives the files their names, in the order in which they
/// were written; at last it has the folders put on disk. So a program that is killed at any moment, and a disk that
/// finds no room only while it writes what it took before, leave each file with its old or its new content.
///
/// Many files cost little more than one when they are finished together: the disk is waited for once. There can be any
/// number of them: `write` itself finishes what is waiting when that is 512 files or 64 MiB, or when it did so a fifth
/// of a second ago.
///
/// Where a file cannot be without a name, or replaces another one, it has one that begins with `.orvane-saving-` for as
/// long as that takes. What a killed program leaves under such a name is removed when a file of the same folder is
/// written the next time, unless a living program still holds it.
///
/// A symbolic link stays, and the file that it leads to is replaced. What is there and no file, such as a folder or a
/// device, is not replaced, nor is a file that must not be written. Folders are not made.
///
/// An object is for one thread; different objects can be used on any.
class ORVANE_CORE_EXPORT FileReplacement
{
public:
    /// With nothing to write yet; `access` is that of all its files.
    explicit FileReplacement(FileAccess access = FileAccess::AsUsual);
    FileReplacement(const FileReplacement &) = delete;
    FileReplacement &operator=(const FileReplacement &) = delete;

    /// What was not finished is gone, and its files are as they were.
    ~FileReplacement();

    /// Takes the new content of a file. When this is false, `failure` says why, which may be about a file written
    /// before; what is waiting is not lost by that and can still be finished.
    [[nodiscard]] bool write(const QString &path, const QByteArray &content);

    /// Puts all on disk that was written and gives it its names. When this is false, `failure` tells of one file that
    /// the system failed with; those that `replaced` does not hold are as they were.
    [[nodiscard]] bool finish();

    /// The paths that hold their new content, as they were given, in the order in which they were written.
    QStringList replaced() const;

    /// What the last `write` or `finish` that answered false met.
    FileFailure failure() const;

private:
    struct State;
    std::unique_ptr<State> m_state;
};

} // namespace platform
