// Preloaded into a program, this makes the disk full: once the program has written ORVANE_FULL_DISK_AFTER bytes to
// files below the folder ORVANE_FULL_DISK_FOLDER, no more bytes fit into files there.

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <string>
#include <string_view>

#include <dlfcn.h>
#include <unistd.h>

namespace {

using WriteFunction = ssize_t (*)(int, const void *, std::size_t);

std::string environmentValue(const char *name)
{
    const char *value = std::getenv(name);
    return value == nullptr ? std::string() : std::string(value);
}

bool isOnFullDisk(int file)
{
    const std::string folder = environmentValue("ORVANE_FULL_DISK_FOLDER");
    char path[4096];
    const std::string link = "/proc/self/fd/" + std::to_string(file);
    const ssize_t length = readlink(link.c_str(), path, sizeof path);
    return !folder.empty() && length > 0 &&
           std::string_view(path, static_cast<std::size_t>(length)).substr(0, folder.size()) == folder;
}

std::size_t &freeBytes()
{
    static std::size_t bytes = std::strtoul(environmentValue("ORVANE_FULL_DISK_AFTER").c_str(), nullptr, 10);
    return bytes;
}

} // namespace

extern "C" __attribute__((visibility("default"))) ssize_t write(int file, const void *bytes, std::size_t size)
{
    static const auto realWrite = reinterpret_cast<WriteFunction>(dlsym(RTLD_NEXT, "write"));
    if (!isOnFullDisk(file)) {
        return realWrite(file, bytes, size);
    }
    const std::size_t fitting = std::min(size, freeBytes());
    if (fitting == 0 && size > 0) {
        errno = ENOSPC;
        return -1;
    }
    freeBytes() -= fitting;
    return realWrite(file, bytes, fitting);
}
