#pragma once

#include <cstddef>
#include <string_view>

namespace reference {

/// Walks a text from string to string and skips nothing on its way. An empty string stands nowhere.
class StringScanner
{
public:
    explicit StringScanner(std::u16string_view text);

    /// Moves to the next occurrence at or behind the scan location, to the end when there is none.
    void scanUpToString(std::u16string_view string);

    /// Steps over the string when it stands at the scan location; otherwise answers false and stays.
    bool scanString(std::u16string_view string);

    std::size_t scanLocation() const;
    bool isAtEnd() const;

private:
    std::u16string_view m_text;
    std::size_t m_location = 0;
};

/// Walks a text from one straight quotation mark or line feed to the next, and skips white space before each step.
class QuotationScanner
{
public:
    explicit QuotationScanner(std::u16string_view text);

    /// Skips white space, then moves to the next mark or line feed, to the end when there is none. Stays where it was
    /// before the skipping when nothing but white space is left, or when a mark follows the white space.
    void scanUpToStopSet();

    std::size_t scanLocation() const;
    void setScanLocation(std::size_t location);

    /// Whether nothing but white space is left.
    bool isAtEnd() const;

private:
    std::size_t locationBehindWhiteSpace() const;

    std::u16string_view m_text;
    std::size_t m_location = 0;
};

} // namespace reference
