// Preloaded into a program, this makes the system fail, as tests/support/Faults.h describes it.

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <cstdarg>
#include <cstdlib>
#include <ctime>
#include <limits>
#include <string>
#include <string_view>

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/time.h>
#include <sys/vfs.h>
#include <unistd.h>

#define ORVANE_FAULT extern "C" __attribute__((visibility("default")))

namespace {

/// The function that this library stands before.
template <typename Function>
Function *real(const char *name)
{
    return reinterpret_cast<Function *>(dlsym(RTLD_NEXT, name));
}

std::string environmentValue(const char *name)
{
    const char *value = std::getenv(name);
    return value == nullptr ? std::string() : std::string(value);
}

/// A number from the environment, or another one where it is not set.
long number(const char *name, long otherwise)
{
    const std::string value = environmentValue(name);
    return value.empty() ? otherwise : std::strtol(value.c_str(), nullptr, 10);
}

bool isMet(std::string_view path)
{
    const std::string folder = environmentValue("ORVANE_FAULT_FOLDER");
    return !folder.empty() && path.substr(0, folder.size()) == folder;
}

std::string pathOf(int file)
{
    char path[4096];
    const std::string link = "/proc/self/fd/" + std::to_string(file);
    const ssize_t length = readlink(link.c_str(), path, sizeof path);
    return length > 0 ? std::string(path, static_cast<std::size_t>(length)) : std::string();
}

bool isMet(int file)
{
    return isMet(std::string_view(pathOf(file)));
}

/// An error that calls fail with: all of them, or the n-th one.
class Failure
{
public:
    explicit Failure(const char *variable)
    {
        const std::string value = environmentValue(variable);
        m_error = static_cast<int>(std::strtol(value.c_str(), nullptr, 10));
        const std::size_t at = value.find('@');
        m_failingCall = at == std::string::npos ? everyCall : std::strtol(value.c_str() + at + 1, nullptr, 10);
    }

    /// Whether this call, which is about a path or an open file, fails.
    template <typename Place>
    bool isMet(const Place &place)
    {
        if (m_error == 0 || !::isMet(place)) {
            return false;
        }
        const long call = ++m_calls;
        errno = m_error;
        return m_failingCall == everyCall || m_failingCall == call;
    }

private:
    static constexpr long everyCall = 0;

    int m_error = 0;
    long m_failingCall = everyCall;
    std::atomic<long> m_calls = 0;
};

bool isFolder(int file)
{
    struct stat status = {};
    return fstat(file, &status) == 0 && S_ISDIR(status.st_mode);
}

bool flushFails(int file)
{
    static Failure ofFiles("ORVANE_FAULT_FLUSH");
    static Failure ofFolders("ORVANE_FAULT_FLUSH_FOLDER");
    return isFolder(file) ? ofFolders.isMet(file) : ofFiles.isMet(file);
}

bool renameFails(const char *to)
{
    static Failure failure("ORVANE_FAULT_RENAME");
    return failure.isMet(std::string_view(to));
}

/// The path of a name in an open folder.
std::string pathIn(int folder, const char *name)
{
    return *name == '/' ? std::string(name) : pathOf(folder) + '/' + name;
}

bool endsWith(std::string_view text, std::string_view end)
{
    return text.size() >= end.size() && text.substr(text.size() - end.size()) == end;
}

bool isSettingsFile(std::string_view path)
{
    return endsWith(path, ".plist");
}

bool openFails(const char *path, int flags)
{
    const std::string vanished = environmentValue("ORVANE_FAULT_VANISHED");
    if (!vanished.empty() && isMet(path) && endsWith(path, vanished)) {
        errno = ENOENT;
        return true;
    }
    const bool isLockFile = std::string_view(path).find(".lock") != std::string_view::npos;
    const bool isReadOnly = (flags & O_ACCMODE) == O_RDONLY;
    static Failure ofLockFiles("ORVANE_FAULT_LOCK_FILE");
    static Failure ofReading("ORVANE_FAULT_OPEN");
    return (isLockFile && ofLockFiles.isMet(std::string_view(path))) ||
           (isSettingsFile(path) && isReadOnly && ofReading.isMet(std::string_view(path)));
}

/// How many bytes the next write takes of those that it is given.
std::size_t takenBytes(std::size_t size)
{
    constexpr long unlimited = std::numeric_limits<long>::max();
    static std::atomic<long> room = number("ORVANE_FAULT_ROOM", unlimited);
    static std::atomic<long> writesLeft = number("ORVANE_FAULT_WRITES", unlimited);
    static const long longest = number("ORVANE_FAULT_LONGEST_WRITE", unlimited);
    if (writesLeft-- <= 0) {
        return 0;
    }
    const std::size_t taken = std::min({size, static_cast<std::size_t>(room), static_cast<std::size_t>(longest)});
    room -= static_cast<long>(taken);
    return taken;
}

} // namespace

ORVANE_FAULT ssize_t write(int file, const void *bytes, std::size_t size)
{
    static const auto realWrite = real<ssize_t(int, const void *, std::size_t)>("write");
    if (!isMet(file)) {
        return realWrite(file, bytes, size);
    }
    const std::size_t taken = takenBytes(size);
    if (taken == 0 && size > 0) {
        errno = ENOSPC;
        return -1;
    }
    return realWrite(file, bytes, taken);
}

ORVANE_FAULT int rename(const char *from, const char *to) noexcept
{
    static const auto realRename = real<int(const char *, const char *)>("rename");
    return renameFails(to) ? -1 : realRename(from, to);
}

ORVANE_FAULT int renameat(int fromFolder, const char *from, int toFolder, const char *to) noexcept
{
    static const auto realRename = real<int(int, const char *, int, const char *)>("renameat");
    return renameFails(pathIn(toFolder, to).c_str()) ? -1 : realRename(fromFolder, from, toFolder, to);
}

ORVANE_FAULT int linkat(int fromFolder, const char *from, int toFolder, const char *to, int flags) noexcept
{
    static const auto realLink = real<int(int, const char *, int, const char *, int)>("linkat");
    static Failure failure("ORVANE_FAULT_LINK");
    return failure.isMet(std::string_view(pathIn(toFolder, to))) ? -1 : realLink(fromFolder, from, toFolder, to, flags);
}

ORVANE_FAULT int fsync(int file)
{
    static const auto realFlush = real<int(int)>("fsync");
    return flushFails(file) ? -1 : realFlush(file);
}

ORVANE_FAULT int fdatasync(int file)
{
    static const auto realFlush = real<int(int)>("fdatasync");
    return flushFails(file) ? -1 : realFlush(file);
}

ORVANE_FAULT int syncfs(int file) noexcept
{
    static const auto realFlush = real<int(int)>("syncfs");
    static Failure failure("ORVANE_FAULT_FLUSH_ALL");
    return failure.isMet(file) ? -1 : realFlush(file);
}

ORVANE_FAULT int fstatfs(int file, struct statfs *status) noexcept
{
    static const auto realStatus = real<int(int, struct statfs *)>("fstatfs");
    const int result = realStatus(file, status);
    if (isMet(file)) {
        status->f_type = number("ORVANE_FAULT_FILE_SYSTEM", status->f_type);
    }
    return result;
}

ORVANE_FAULT int open(const char *path, int flags, ...)
{
    static const auto realOpen = real<int(const char *, int, mode_t)>("open");
    static Failure ofFolders("ORVANE_FAULT_OPEN_FOLDER");
    if (((flags & O_DIRECTORY) != 0 && ofFolders.isMet(std::string_view(path))) || openFails(path, flags)) {
        return -1;
    }
    va_list arguments;
    va_start(arguments, flags);
    const auto mode = static_cast<mode_t>(va_arg(arguments, unsigned));
    va_end(arguments);
    return realOpen(path, flags, mode);
}

ORVANE_FAULT int openat(int folder, const char *path, int flags, ...)
{
    static const auto realOpen = real<int(int, const char *, int, mode_t)>("openat");
    static Failure ofUnnamed("ORVANE_FAULT_UNNAMED_FILE");
    if ((flags & O_TMPFILE) == O_TMPFILE && ofUnnamed.isMet(folder)) {
        return -1;
    }
    va_list arguments;
    va_start(arguments, flags);
    const auto mode = static_cast<mode_t>(va_arg(arguments, unsigned));
    va_end(arguments);
    return realOpen(folder, path, flags, mode);
}

ORVANE_FAULT int open64(const char *path, int flags, ...)
{
    static const auto realOpen = real<int(const char *, int, mode_t)>("open64");
    va_list arguments;
    va_start(arguments, flags);
    const auto mode = static_cast<mode_t>(va_arg(arguments, unsigned));
    va_end(arguments);
    return openFails(path, flags) ? -1 : realOpen(path, flags, mode);
}

ORVANE_FAULT ssize_t read(int file, void *bytes, std::size_t size)
{
    static const auto realRead = real<ssize_t(int, void *, std::size_t)>("read");
    static Failure failure("ORVANE_FAULT_READ");
    return failure.isMet(file) ? -1 : realRead(file, bytes, size);
}

ORVANE_FAULT int access(const char *path, int mode) noexcept
{
    static const auto realAccess = real<int(const char *, int)>("access");
    static Failure failure("ORVANE_FAULT_ACCESS");
    return isSettingsFile(path) && failure.isMet(std::string_view(path)) ? -1 : realAccess(path, mode);
}

ORVANE_FAULT int stat(const char *path, struct stat *status) noexcept
{
    static const auto realStat = real<int(const char *, struct stat *)>("stat");
    static Failure failure("ORVANE_FAULT_STAT");
    return isSettingsFile(path) && failure.isMet(std::string_view(path)) ? -1 : realStat(path, status);
}

ORVANE_FAULT int flock(int file, int operation) noexcept
{
    static const auto realFlock = real<int(int, int)>("flock");
    if (environmentValue("ORVANE_FAULT_LOCK").empty() || !isMet(file)) {
        return realFlock(file, operation);
    }
    errno = ENOLCK;
    return -1;
}

ORVANE_FAULT int clock_gettime(clockid_t clock, timespec *time) noexcept
{
    static const auto realClock = real<int(clockid_t, timespec *)>("clock_gettime");
    const int result = realClock(clock, time);
    if (clock == CLOCK_REALTIME) {
        time->tv_sec += number("ORVANE_FAULT_CLOCK", 0);
    }
    return result;
}

ORVANE_FAULT int gettimeofday(timeval *time, void *zone) noexcept
{
    static const auto realClock = real<int(timeval *, void *)>("gettimeofday");
    const int result = realClock(time, zone);
    time->tv_sec += number("ORVANE_FAULT_CLOCK", 0);
    return result;
}
