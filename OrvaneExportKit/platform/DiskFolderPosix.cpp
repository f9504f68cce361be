#include <OrvaneExportKit/platform/DiskFolder.h>

#include <QtCore/QFile>
#include <QtCore/QRandomGenerator>
#include <QtCore/QSysInfo>
#include <QtCore/QVersionNumber>

#include <algorithm>
#include <array>
#include <cerrno>
#include <filesystem>
#include <string>
#include <string_view>
#include <system_error>
#include <utility>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#ifdef Q_OS_LINUX
#include <sys/vfs.h>
#endif

namespace platform {

namespace {

constexpr mode_t permissionBits = 0777;
constexpr mode_t forAll = 0666; // of which the system takes away what the user wants to keep
constexpr mode_t forOwner = 0600;

/// What the last call of the system failed with.
DiskError systemError()
{
    const int number = errno;
    return {qt_error_string(number), number == EMFILE || number == ENFILE};
}

void require(bool succeeded)
{
    if (!succeeded) {
        throw systemError();
    }
}

/// An open file or folder.
class Handle
{
public:
    explicit Handle(int number = -1) : m_number(number) {}
    Handle(Handle &&other) noexcept : m_number(std::exchange(other.m_number, -1)) {}
    Handle &operator=(Handle &&other) noexcept
    {
        std::swap(m_number, other.m_number);
        return *this;
    }
    Handle(const Handle &) = delete;
    Handle &operator=(const Handle &) = delete;
    ~Handle()
    {
        if (isOpen()) {
            close(m_number);
        }
    }

    bool isOpen() const { return m_number >= 0; }
    int number() const { return m_number; }

private:
    int m_number;
};

/// Flushes an open file or folder; false when that fails.
bool flushed(const Handle &handle)
{
    int result = 0;
    do {
        result = fsync(handle.number());
    } while (result != 0 && errno == EINTR);
    return result == 0;
}

void writeAll(const Handle &file, const QByteArray &content)
{
    errno = EIO; // should a write take nothing and give no reason
    const char *bytes = content.constData();
    auto left = static_cast<std::size_t>(content.size());
    while (left > 0) {
        const ssize_t written = write(file.number(), bytes, left);
        if (written < 0 && errno == EINTR) {
            continue;
        }
        require(written > 0);
        bytes += written;
        left -= static_cast<std::size_t>(written);
    }
}

constexpr std::string_view temporaryPrefix = ".orvane-saving-";
constexpr int temporaryDigits = 16;

/// A name for a file until it takes its place. Whoever holds the file has locked it, so that the system knows when
/// nobody does any more.
QByteArray temporaryName()
{
    const QByteArray number = QByteArray::number(QRandomGenerator::system()->generate64(), 16);
    return QByteArray(temporaryPrefix.data()) + number.rightJustified(temporaryDigits, '0');
}

bool isTemporaryName(std::string_view name)
{
    return name.size() == temporaryPrefix.size() + temporaryDigits &&
           name.substr(0, temporaryPrefix.size()) == temporaryPrefix &&
           name.find_first_not_of("0123456789abcdef", temporaryPrefix.size()) == std::string_view::npos;
}

/// True unless another program holds the file. A file system without locks lets nobody remove what others hold.
bool lockForOthers(const Handle &file)
{
    return flock(file.number(), LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK;
}

bool isNamed(const Handle &file)
{
    struct stat status = {};
    return fstat(file.number(), &status) == 0 && status.st_nlink > 0;
}

/// What has the name that a file is to get.
struct Existing {
    bool isThere = false;
    mode_t permissions = 0;
};

Existing existingFile(const Handle &folder, const char *name)
{
    struct stat status = {};
    if (fstatat(folder.number(), name, &status, AT_SYMLINK_NOFOLLOW) != 0) {
        require(errno == ENOENT);
        return {};
    }
    if (S_ISDIR(status.st_mode)) {
        throw DiskError{qt_error_string(EISDIR)};
    }
    if (!S_ISREG(status.st_mode)) {
        throw DiskError{QStringLiteral("it is a device or the like, and no file")};
    }
    require(faccessat(folder.number(), name, W_OK, AT_EACCESS) == 0);
    return {true, status.st_mode & permissionBits};
}

/// Whether a file without a name can get one.
bool canNameFiles()
{
#ifdef O_TMPFILE
    static const bool hasPaths = access("/proc/self/fd", X_OK) == 0;
    return hasPaths;
#else
    return false;
#endif
}

class PosixFile : public PendingFile
{
public:
    PosixFile(const Handle &folder, const QByteArray &name) : m_folder(folder), m_name(name) {}
    PosixFile(const PosixFile &) = delete;
    PosixFile &operator=(const PosixFile &) = delete;
    ~PosixFile() override
    {
        if (!m_temporaryName.isEmpty()) {
            unlinkat(m_folder.number(), m_temporaryName.constData(), 0);
        }
    }

    void write(const QByteArray &content, FileAccess access)
    {
        const Existing existing = existingFile(m_folder, m_name.constData());
        m_replaces = existing.isThere;
        const bool isForOwner = access == FileAccess::OwnerAlone;
        const mode_t permissions = isForOwner ? forOwner : existing.isThere ? existing.permissions : forAll;
        create(permissions);
        if (isForOwner || existing.isThere) {
            // Where the file system knows permissions; else all files have the same.
            [[maybe_unused]] const int ignored = fchmod(m_file.number(), permissions);
        }
        writeAll(m_file, content);
    }

    const Handle &handle() const { return m_file; }

    void flush() override { require(flushed(m_file)); }

    void requireFlushed() override
    {
#ifdef Q_OS_LINUX
        // Finds nothing to write any more, and tells whether writing this file has failed.
        require(sync_file_range(m_file.number(), 0, 0, SYNC_FILE_RANGE_WAIT_BEFORE) == 0);
#endif
    }

    void takePlace() override
    {
        if (m_temporaryName.isEmpty() && !m_replaces && linkTo(m_name.constData())) {
            return;
        }
        if (m_temporaryName.isEmpty()) {
            giveTemporaryName();
        }
        const int folder = m_folder.number();
        require(renameat(folder, m_temporaryName.constData(), folder, m_name.constData()) == 0);
        m_temporaryName.clear();
    }

private:
    void create(mode_t permissions)
    {
#ifdef O_TMPFILE
        if (canNameFiles()) {
            m_file = Handle(openat(m_folder.number(), ".", O_TMPFILE | O_RDWR | O_CLOEXEC, permissions));
            if (m_file.isOpen()) {
                return;
            }
        }
#endif
        createWithName(permissions);
    }

    void createWithName(mode_t permissions)
    {
        constexpr int flags = O_CREAT | O_EXCL | O_RDWR | O_CLOEXEC;
        while (m_temporaryName.isEmpty()) {
            const QByteArray name = temporaryName();
            m_file = Handle(openat(m_folder.number(), name.constData(), flags, permissions));
            require(m_file.isOpen() || errno == EEXIST);
            // Another program may take it for abandoned before it is locked.
            if (m_file.isOpen() && lockForOthers(m_file) && isNamed(m_file)) {
                m_temporaryName = name;
            }
        }
    }

    void giveTemporaryName()
    {
        lockForOthers(m_file);
        QByteArray name;
        do {
            name = temporaryName();
        } while (!linkTo(name.constData()));
        m_temporaryName = name;
    }

    /// False when something has the name.
    bool linkTo(const char *name) const
    {
        const QByteArray path = "/proc/self/fd/" + QByteArray::number(m_file.number());
        if (linkat(AT_FDCWD, path.constData(), m_folder.number(), name, AT_SYMLINK_FOLLOW) == 0) {
            return true;
        }
        require(errno == EEXIST);
        return false;
    }

    const Handle &m_folder;
    QByteArray m_name;
    Handle m_file;
    QByteArray m_temporaryName; ///< empty while the file has no name
    bool m_replaces = false;
};

#ifdef Q_OS_LINUX

/// Since this version, flushing a file system tells of every write that failed.
bool flushesOfFileSystemsTell()
{
    return QVersionNumber::fromString(QSysInfo::kernelVersion()) >= QVersionNumber(5, 17);
}

/// Those that write all when they are flushed, and tell of every write that failed: ext2 to ext4, XFS, Btrfs, and in
/// memory. Layers over other file systems and those of a network do not.
bool tellsOfAll(const Handle &folder)
{
    constexpr std::array<unsigned long, 4> kinds{0xEF53, 0x58465342, 0x9123683E, 0x01021994};
    struct statfs status = {};
    if (fstatfs(folder.number(), &status) != 0) {
        return false;
    }
    const auto kind = static_cast<unsigned long>(status.f_type) & 0xFFFFFFFF;
    return std::find(kinds.begin(), kinds.end(), kind) != kinds.end();
}

#endif

class PosixFolder : public DiskFolder
{
public:
    explicit PosixFolder(const QByteArray &path)
    {
        constexpr int flags = O_DIRECTORY | O_CLOEXEC;
        m_folder = Handle(::open(path.constData(), O_RDONLY | flags));
#ifdef Q_OS_LINUX
        if (!m_folder.isOpen() && errno == EACCES) {
            m_folder = Handle(::open(path.constData(), O_PATH | flags));
            m_isReadable = false;
        }
#endif
        require(m_folder.isOpen());
        if (m_isReadable) {
            removeAbandoned(path);
        }
    }

    std::unique_ptr<PendingFile> write(const QString &name, const QByteArray &content, FileAccess access) override
    {
        auto file = std::make_unique<PosixFile>(m_folder, QFile::encodeName(name));
        file->write(content, access);
        if (!m_isReadable && !m_fileInside.isOpen()) {
            m_fileInside = Handle(fcntl(file->handle().number(), F_DUPFD_CLOEXEC, 0));
            require(m_fileInside.isOpen());
        }
        return file;
    }

    bool flushFileSystem() override
    {
#ifdef Q_OS_LINUX
        if (m_isReadable && flushesOfFileSystemsTell() && tellsOfAll(m_folder)) {
            require(syncfs(m_folder.number()) == 0);
            return true;
        }
#endif
        return false;
    }

    void flush() override
    {
#ifdef Q_OS_LINUX
        if (!m_isReadable) { // cannot be flushed, but all of its file system can
            require(syncfs(m_fileInside.number()) == 0);
            return;
        }
#endif
        require(flushed(m_folder) || errno == EINVAL); // which says that folders are not flushed there
    }

private:
    void removeAbandoned(const QByteArray &path) const
    {
        std::error_code error;
        for (std::filesystem::directory_iterator entry(path.constData(), error), end; !error && entry != end;
             entry.increment(error)) {
            const std::string name = entry->path().filename().string();
            if (isTemporaryName(name)) {
                removeIfAbandoned(name.c_str());
            }
        }
    }

    void removeIfAbandoned(const char *name) const
    {
        const Handle file(openat(m_folder.number(), name, O_RDWR | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
        struct stat status = {};
        if (file.isOpen() && fstat(file.number(), &status) == 0 && S_ISREG(status.st_mode) &&
            flock(file.number(), LOCK_EX | LOCK_NB) == 0) {
            unlinkat(m_folder.number(), name, 0);
        }
    }

    Handle m_folder;
    Handle m_fileInside; ///< where the folder cannot be read
    bool m_isReadable = true;
};

} // namespace

std::unique_ptr<DiskFolder> DiskFolder::open(const QString &path)
{
    return std::make_unique<PosixFolder>(QFile::encodeName(path));
}

} // namespace platform
