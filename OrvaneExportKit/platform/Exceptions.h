#pragma once

#include <OrvaneExportKit/ExportMacros.h>
#include <OrvaneExportKit/platform/Range.h>

#include <cstddef>
#include <stdexcept>
#include <string>

/// \file
/// What the kit throws, beside `std::bad_alloc` where memory runs out.
///
/// After any exception the objects that took part can be used on. They are as they were before the call, except where
/// an operation's own documentation says which part of its work stays done. After `std::bad_alloc` they always are as
/// they were, or the work is done, and the call can be made again. Qt 6.4 ends the program itself, though, when memory
/// runs out while a `QHash` grows or a list made of braces is filled, inside the kit as elsewhere.
///
/// For use on any thread, with objects of its own.

namespace platform {

/// Base of every exception that the kit throws on purpose; `what()` is one English sentence in UTF-8 that names the
/// operation that failed.
class ORVANE_CORE_EXPORT Exception : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
    ~Exception() override;
};

/// A range reaches past the end of the text that it was used on, or an index lies outside its list.
///
/// Operations over several ranges work from the highest location downwards; what they changed before they met the
/// range stays changed.
///
///     try { deleteCharactersInRanges(text, ranges); } catch (const platform::RangeException &e) { warn(e.what()); }
class ORVANE_CORE_EXPORT RangeException : public Exception
{
public:
    /// `operation` is the name of the function that was called, `textLength` the units the text had at that moment.
    RangeException(const std::string &operation, Range range, std::size_t textLength);

    /// `index` may also be negative. The range is then the one element at the index, the text length that of the list.
    RangeException(const std::string &operation, std::ptrdiff_t index, std::size_t listLength);
    ~RangeException() override;

    /// What the constructor was given.
    Range range() const noexcept { return m_range; }
    std::size_t textLength() const noexcept { return m_textLength; }

private:
    Range m_range;
    std::size_t m_textLength;
};

/// An argument breaks a promise that the operation's documentation asks for.
class ORVANE_CORE_EXPORT InvalidArgumentException : public Exception
{
public:
    using Exception::Exception;
    ~InvalidArgumentException() override;
};

/// A value was asked for something that its kind does not answer, such as an array for its number.
class ORVANE_CORE_EXPORT UnrecognisedOperationException : public Exception
{
public:
    using Exception::Exception;
    ~UnrecognisedOperationException() override;
};

/// An archive is malformed, or holds something else than was asked of it. The sentence names the place in the archive.
class ORVANE_CORE_EXPORT ArchiveException : public Exception
{
public:
    using Exception::Exception;
    ~ArchiveException() override;
};

/// Throws a `RangeException` unless `range` lies inside a text of `textLength` units.
ORVANE_CORE_EXPORT void requireRange(const char *operation, Range range, std::size_t textLength);

/// Throws a `RangeException` unless a list of `listLength` elements has one at `index`.
///
///     requireIndex("displayString", 2, 2);   // throws "displayString: the index 2 lies outside a list of 2"
ORVANE_CORE_EXPORT void requireIndex(const char *operation, std::ptrdiff_t index, std::size_t listLength);

} // namespace platform
