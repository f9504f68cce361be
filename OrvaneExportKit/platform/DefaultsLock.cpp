#include <OrvaneExportKit/platform/DefaultsLock.h>

#include <OrvaneExportKit/platform/DefaultsError.h>
#include <OrvaneExportKit/platform/FileReading.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QDateTime>
#include <QtCore/QFileInfo>

#include <chrono>
#include <filesystem>
#include <thread>

namespace platform {

namespace {

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

constexpr auto longestWait = 8s;
constexpr auto pauseBetweenTries = 1ms;

/// A lock file of `QLockFile` that is older than this is taken for one that was left behind.
constexpr auto abandonedLockFileAge = 2s;

/// The name of this program, empty where the system does not tell it.
QString programName()
{
    const QString name = QCoreApplication::applicationName();
    return name.isEmpty() ? QFileInfo(QFileInfo(u"/proc/self/exe"_s).symLinkTarget()).fileName() : name;
}

/// What a lock file holds: the number of the process, and in the next line the name of its program.
QByteArray ownerNote()
{
    return QByteArray::number(QCoreApplication::applicationPid()) + '\n' + programName().toUtf8() + '\n';
}

/// `program` may be empty.
QString ownerDescription(const QString &program, const QString &process)
{
    return program.isEmpty() ? u"another program (process %1)"_s.arg(process)
                             : u"the program %1 (process %2)"_s.arg(quoted(program), process);
}

QString lockedBy(const QString &owner)
{
    return owner + u" keeps it locked; wait for that program or end it, and save again"_s;
}

QString ownerOf(const QLockFile &lock)
{
    qint64 process = 0;
    QString host;
    QString program;
    return lock.getLockInfo(&process, &host, &program) ? ownerDescription(program, QString::number(process))
                                                       : u"another program"_s;
}

/// Whether the lock was not made just now; one from the future was made before the clock was set back.
bool isOld(const QLockFile &lock)
{
    const QDateTime madeAt = QFileInfo(lock.fileName()).lastModified();
    const auto age = std::chrono::milliseconds(madeAt.msecsTo(QDateTime::currentDateTime()));
    return madeAt.isValid() && (age > abandonedLockFileAge || age < -abandonedLockFileAge);
}

} // namespace

DefaultsLock::DefaultsLock(const QString &file) : m_path(file + u".lock"_s), m_lockFilePath(file + u".locked"_s)
{
}

// Neither lock waits by itself: a kernel's queue has no time limit, and the pauses of `QLockFile` soon get longer than
// a second, so that there would never be a turn beside a program that saves all the time.
QString DefaultsLock::take()
{
    const QDeadlineTimer deadline(longestWait);
    for (;;) {
        switch (m_lock.tryTake(m_path)) {
        case KernelLock::Outcome::Taken:
            m_lock.setOwner(ownerNote());
            return {};
        case KernelLock::Outcome::Unsupported:
            return takeLockFile(deadline);
        case KernelLock::Outcome::Failed:
            return obstacle();
        case KernelLock::Outcome::Busy:
            break;
        }
        if (deadline.hasExpired()) {
            return m_lock.error() ? obstacle() : lockedBy(owner());
        }
        std::this_thread::sleep_for(pauseBetweenTries);
    }
}

QString DefaultsLock::takeLockFile(const QDeadlineTimer &deadline)
{
    QLockFile &lock = m_lockFile.emplace(m_lockFilePath);
    while (!lock.tryLock()) {
        if (lock.error() != QLockFile::LockFailedError) {
            return u"no lock file can be written beside it; make its folder writable or room on the disk, and save "
                   "again"_s;
        }
        if (deadline.hasExpired()) {
            return lockedBy(ownerOf(lock));
        }
        // The lock of a program that was killed is taken over at once, unless it was killed before it had written into
        // the lock whose it is, or while it took over another. One that is still in use is not removed by this.
        if (isOld(lock)) {
            lock.removeStaleLockFile();
        }
        std::this_thread::sleep_for(pauseBetweenTries);
    }
    return {};
}

/// What keeps the lock file from being made or opened, and what to do.
QString DefaultsLock::obstacle() const
{
    std::error_code ignored;
    const auto found = std::filesystem::symlink_status(QFileInfo(m_path).filesystemFilePath(), ignored);
    if (std::filesystem::exists(found) && !std::filesystem::is_regular_file(found)) {
        return u"what stands at %1 is no lock file (%2); remove it and save again"_s.arg(
            quoted(m_path), std::filesystem::is_symlink(found)     ? u"a link"_s
                            : std::filesystem::is_directory(found) ? u"a folder"_s
                                                                   : u"a pipe or device"_s);
    }
    const std::error_code error = m_lock.error();
    if (std::filesystem::is_regular_file(found) && error == std::errc::permission_denied) {
        return u"the lock file %1 belongs to somebody else; remove it and save again"_s.arg(quoted(m_path));
    }
    const QString reason = QString::fromStdString(error.message());
    if (error == std::errc::permission_denied || error == std::errc::read_only_file_system) {
        return u"its folder is not writable (%1); make it writable and save again"_s.arg(reason);
    }
    return u"no lock file can be written beside it (%1); correct this and save again"_s.arg(reason);
}

/// Who has the lock, as far as it is noted in the file.
QString DefaultsLock::owner() const
{
    const QList<QByteArray> lines = readFile(m_path).data.split('\n');
    bool isNumber = false;
    const qint64 process = lines.value(0).toLongLong(&isNumber);
    return isNumber ? ownerDescription(QString::fromUtf8(lines.value(1)), QString::number(process))
                    : u"another program"_s;
}

} // namespace platform
