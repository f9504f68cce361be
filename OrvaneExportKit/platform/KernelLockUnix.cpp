#include <OrvaneExportKit/platform/KernelLock.h>

#include <OrvaneExportKit/platform/FileDescriptor.h>

#include <QtCore/QFile>

#include <cerrno>
#include <utility>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>

namespace platform {

struct KernelLock::Held {
    FileDescriptor file;
    QByteArray path;
};

namespace {

constexpr mode_t ownerAlone = 0600;

bool isSameFile(const struct stat &one, const struct stat &other)
{
    return one.st_dev == other.st_dev && one.st_ino == other.st_ino;
}

KernelLock::Outcome outcomeOf(int error)
{
    switch (error) {
    case EWOULDBLOCK:
    case EINTR:
        return KernelLock::Outcome::Busy;
    case ENOLCK:
    case EOPNOTSUPP:
    case EINVAL:
    case ENOSYS:
        return KernelLock::Outcome::Unsupported;
    default:
        return KernelLock::Outcome::Failed;
    }
}

} // namespace

KernelLock::KernelLock() = default;

KernelLock::~KernelLock()
{
    if (m_held) {
        // In this order: who locks the file after it was removed finds that out and makes a new one.
        ::unlink(m_held->path.constData());
        // A process forked meanwhile by another thread has the file open too, and must not keep the lock.
        ::flock(m_held->file.number(), LOCK_UN);
    }
}

KernelLock::Outcome KernelLock::tryTake(const QString &path)
{
    const auto failed = [this](int error, Outcome outcome) {
        m_error = error == EWOULDBLOCK ? std::error_code() : std::error_code(error, std::generic_category());
        return outcome;
    };
    m_error.clear();
    const QByteArray name = QFile::encodeName(path);
    FileDescriptor file(
        ::open(name.constData(), O_RDWR | O_CREAT | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC, ownerAlone));
    if (!file.isOpen()) {
        return failed(errno, errno == EINTR ? Outcome::Busy : Outcome::Failed);
    }
    struct stat opened = {};
    if (::fstat(file.number(), &opened) != 0) {
        return failed(errno, Outcome::Failed);
    }
    if (!S_ISREG(opened.st_mode)) {
        return failed(EINVAL, Outcome::Failed);
    }
    if (::flock(file.number(), LOCK_EX | LOCK_NB) != 0) {
        return failed(errno, outcomeOf(errno));
    }
    // The owner before may have removed the file since it was opened here; then a lock on it keeps nobody out.
    struct stat named = {};
    if (::lstat(name.constData(), &named) != 0) {
        return errno == ENOENT ? Outcome::Busy : failed(errno, Outcome::Failed);
    }
    if (!isSameFile(opened, named)) {
        return Outcome::Busy;
    }
    m_held = std::make_unique<Held>(Held{std::move(file), name});
    return Outcome::Taken;
}

void KernelLock::setOwner(const QByteArray &owner)
{
    const int file = m_held->file.number();
    if (::ftruncate(file, 0) == 0) {
        [[maybe_unused]] const ssize_t written =
            ::pwrite(file, owner.constData(), static_cast<size_t>(owner.size()), 0);
    }
}

std::error_code KernelLock::error() const
{
    return m_error;
}

} // namespace platform
