#include <OrvaneExportKit/platform/Exceptions.h>

namespace platform {

namespace {

std::string rangeMessage(const std::string &operation, Range range, std::size_t textLength)
{
    return operation + ": the range {" + std::to_string(range.location) + ", " + std::to_string(range.length) +
           "} reaches past the end of a text of " + std::to_string(textLength) + " units";
}

} // namespace

Exception::~Exception() = default;

RangeException::RangeException(const std::string &operation, Range range, std::size_t textLength)
    : Exception(rangeMessage(operation, range, textLength)), m_range(range), m_textLength(textLength)
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

} // namespace platform
