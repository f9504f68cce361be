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
#include <sys/time.h>
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

bool isMet(int file)
{
    char path[4096];
    const std::string link = "/proc/self/fd/" + std::to_string(file);
    const ssize_t length = readlink(link.c_str(), path, sizeof path);
    return length > 0 && isMet(std::string_view(path, static_cast<std::size_t>(length)));
}

bool fails(const char *variable, const char *path)
{
    if (environmentValue(variable).empty() || !isMet(path)) {
        return false;
    }
    errno = static_cast<int>(number(variable, EIO));
    return true;
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
    return fails("ORVANE_FAULT_RENAME", to) ? -1 : realRename(from, to);
}

ORVANE_FAULT int open64(const char *path, int flags, ...)
{
    static const auto realOpen = real<int(const char *, int, mode_t)>("open64");
    const std::string_view view = path;
    const std::string vanished = environmentValue("ORVANE_FAULT_VANISHED");
    if (!vanished.empty() && isMet(view) && view.size() >= vanished.size() &&
        view.substr(view.size() - vanished.size()) == vanished) {
        errno = ENOENT;
        return -1;
    }
    if (view.find(".lock") != std::string_view::npos && fails("ORVANE_FAULT_LOCK_FILE", path)) {
        return -1;
    }
    va_list arguments;
    va_start(arguments, flags);
    const auto mode = static_cast<mode_t>(va_arg(arguments, unsigned));
    va_end(arguments);
    return realOpen(path, flags, mode);
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
