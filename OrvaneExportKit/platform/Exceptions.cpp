#include <OrvaneExportKit/platform/Exceptions.h>

namespace platform {

namespace {

std::string rangeMessage(const std::string &operation, Range range, std::size_t textLength)
{
    return operation + ": the range {" + std::to_string(range.location) + ", " + std::to_string(range.length) +
           "} reaches past the end of a text of " + std::to_string(textLength) + " units";
}

std::string indexMessage(const std::string &operation, std::ptrdiff_t index, std::size_t listLength)
{
    return operation + ": the index " + std::to_string(index) + " lies outside a list of " + std::to_string(listLength);
}

} // namespace

Exception::~Exception() = default;

RangeException::RangeException(const std::string &operation, Range range, std::size_t textLength)
    : Exception(rangeMessage(operation, range, textLength)), m_range(range), m_textLength(textLength)
{
}

RangeException::RangeException(const std::string &operation, std::ptrdiff_t index, std::size_t listLength)
    : Exception(indexMessage(operation, index, listLength)),
      m_range{static_cast<std::size_t>(index), 1},
      m_textLength(listLength)
{
}

RangeException::~RangeException() = default;

InvalidArgumentException::~InvalidArgumentException() = default;

UnrecognisedOperationException::~UnrecognisedOperationException() = default;

ArchiveException::~ArchiveException() = default;

void requireRange(const char *operation, Range range, std::size_t textLength)
{
    if (!range.fits(textLength)) {
        throw RangeException(operation, range, textLength);
    }
}

void requireIndex(const char *operation, std::ptrdiff_t index, std::size_t listLength)
{
    if (index < 0 || static_cast<std::size_t>(index) >= listLength) {
        throw RangeException(operation, index, listLength);
    }
}

} // namespace platform
