#include <OrvaneExportKit/platform/FileReading.h>

#include <OrvaneExportKit/platform/FileDescriptor.h>

#include <QtCore/QFile>

#include <array>
#include <cerrno>
#include <optional>
#include <system_error>

#include <fcntl.h>
#include <sys/stat.h>

namespace platform {

namespace {

/// A signal interrupts a call now and then; one that is interrupted so often never ends.
constexpr int mostInterruptions = 100;

/// Repeats a call that a signal interrupted. What it gave, below 0 where it failed, with the reason in `errno`.
template <typename Call>
auto withoutInterruptions(const Call &call)
{
    auto result = call();
    for (int interruptions = 0; result < 0 && errno == EINTR && interruptions < mostInterruptions; ++interruptions) {
        result = call();
    }
    return result;
}

FileReading failure(int error)
{
    return {FileReading::Outcome::Failed, {}, QString::fromStdString(std::generic_category().message(error))};
}

/// Why what stands there cannot be opened as a file; nothing when it can.
std::optional<FileReading> obstacle(int statResult, const struct stat &status)
{
    if (statResult != 0) {
        return errno == ENOENT || errno == ENOTDIR ? FileReading{FileReading::Outcome::Missing, {}, {}}
                                                   : failure(errno);
    }
    if (!S_ISREG(status.st_mode)) {
        return FileReading{FileReading::Outcome::NoFile, {}, {}};
    }
    return std::nullopt;
}

FileReading failureToOpen(int error)
{
    switch (error) {
    case ENOENT:
    case ENOTDIR:
        return {FileReading::Outcome::Missing, {}, {}};
    case EACCES:
    case EPERM:
        return {FileReading::Outcome::Hidden, {}, {}};
    default:
        return failure(error);
    }
}

FileReading readAll(const FileDescriptor &file, off_t expectedSize)
{
    FileReading reading{FileReading::Outcome::Read, {}, {}};
    reading.data.reserve(static_cast<qsizetype>(expectedSize));
    std::array<char, 65536> block{};
    for (;;) {
        const ssize_t size = withoutInterruptions([&] { return ::read(file.number(), block.data(), block.size()); });
        if (size < 0) {
            return failure(errno);
        }
        if (size == 0) {
            return reading;
        }
        reading.data.append(block.data(), size);
    }
}

} // namespace

FileReading readFile(const QString &path)
{
    const QByteArray name = QFile::encodeName(path);
    struct stat status = {};
    // To open a device may do something, so it is looked at before. It may change until it is open, hence the second
    // look, and O_NONBLOCK.
    if (auto reading = obstacle(::stat(name.constData(), &status), status)) {
        return *reading;
    }
    const FileDescriptor file(withoutInterruptions(
        [&name] { return ::open(name.constData(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC); }));
    if (!file.isOpen()) {
        return failureToOpen(errno);
    }
    if (auto reading = obstacle(::fstat(file.number(), &status), status)) {
        return *reading;
    }
    return readAll(file, status.st_size);
}

} // namespace platform
