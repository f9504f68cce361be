#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

#include <memory>
#include <system_error>

namespace platform {

/// A lock file that the system gives back when its owner ends, however that ends, and at no other moment: no clock and
/// no age is asked.
///
/// It excludes other programs, other threads and other objects of one thread. The file is there while somebody has the
/// lock; one that a killed program left behind is locked by nobody.
class KernelLock
{
public:
    enum class Outcome {
        Taken,
        Busy,        ///< another one has it, or a signal came: try again
        Unsupported, ///< this system, or the file system, knows no such locks
        Failed,
    };

    KernelLock();
    KernelLock(const KernelLock &) = delete;
    KernelLock &operator=(const KernelLock &) = delete;

    /// Gives the lock back and removes its file.
    ~KernelLock();

    /// Tries to take the lock, without waiting. What stands at the path is not waited for either, and not followed
    /// where it is a link; when it is no file, this fails.
    Outcome tryTake(const QString &path);

    /// Notes in the file whose lock it is, as far as there is room.
    void setOwner(const QByteArray &owner);

    /// Why the last try failed or what interrupted it; false as a `bool` otherwise.
    std::error_code error() const;

private:
    struct Held;
    std::unique_ptr<Held> m_held;
    std::error_code m_error;
};

} // namespace platform
