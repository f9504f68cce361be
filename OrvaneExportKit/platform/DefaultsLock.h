#pragma once

#include <OrvaneExportKit/platform/KernelLock.h>

#include <QtCore/QDeadlineTimer>
#include <QtCore/QLockFile>
#include <QtCore/QString>

#include <optional>

namespace platform {

/// The turn of one program, or one thread, to change a settings file, for as long as the object lives.
///
/// It is a `KernelLock` on `<file>.lock`, so that a program that was killed keeps nobody waiting, and one that was
/// stopped keeps its turn. Where there are no such locks, `QLockFile` keeps the turns, with `<file>.locked`: the turn
/// of a program that was stopped for seconds, or whose clock jumps, may then be given to another one.
class DefaultsLock
{
public:
    explicit DefaultsLock(const QString &file);

    /// Waits for the turn, eight seconds at most. Empty when it has come; else why it has not, and what to do, as the
    /// end of a sentence.
    [[nodiscard]] QString take();

private:
    QString takeLockFile(const QDeadlineTimer &deadline);
    QString obstacle() const;
    QString owner() const;

    QString m_path;
    KernelLock m_lock;
    std::optional<QLockFile> m_lockFile;
    QString m_lockFilePath;
};

} // namespace platform
