#pragma once

#include <utility>

#include <unistd.h>

namespace platform {

/// An open file of a Unix system, which is closed at the end.
class FileDescriptor
{
public:
    FileDescriptor() = default;

    /// `number` is what the system gave, below 0 when it opened nothing.
    explicit FileDescriptor(int number) noexcept : m_number(number) {}
    FileDescriptor(FileDescriptor &&other) noexcept : m_number(std::exchange(other.m_number, none)) {}
    FileDescriptor &operator=(FileDescriptor &&other) noexcept
    {
        std::swap(m_number, other.m_number);
        return *this;
    }
    FileDescriptor(const FileDescriptor &) = delete;
    FileDescriptor &operator=(const FileDescriptor &) = delete;
    ~FileDescriptor()
    {
        if (isOpen()) {
            ::close(m_number);
        }
    }

    bool isOpen() const { return m_number >= 0; }
    int number() const { return m_number; }

private:
    static constexpr int none = -1;
    int m_number = none;
};

} // namespace platform
