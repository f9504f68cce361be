#include <tests/reference/Scanners.h>

#include <tests/reference/PlainText.h>

namespace reference {

namespace {

bool isWhiteSpaceOrNewline(char16_t unit)
{
    return (unit >= 0x0009 && unit <= 0x000D) || unit == 0x0020 || unit == 0x0085 || unit == 0x00A0 || unit == 0x1680 ||
           (unit >= 0x2000 && unit <= 0x200A) || unit == 0x2028 || unit == 0x2029 || unit == 0x202F || unit == 0x205F ||
           unit == 0x3000;
}

bool isInStopSet(char16_t unit)
{
    return unit == 0x0022 || unit == 0x000A;
}

} // namespace

StringScanner::StringScanner(std::u16string_view text) : m_text(text)
{
}

void StringScanner::scanUpToString(std::u16string_view string)
{
    const platform::Range found = rangeOfString(m_text, string, {m_location, m_text.size() - m_location});
    m_location = found.location == platform::notFound ? m_text.size() : found.location;
}

bool StringScanner::scanString(std::u16string_view string)
{
    if (string.empty() || m_text.substr(m_location, string.size()) != string) {
        return false;
    }
    m_location += string.size();
    return true;
}

std::size_t StringScanner::scanLocation() const
{
    return m_location;
}

bool StringScanner::isAtEnd() const
{
    return m_location == m_text.size();
}

QuotationScanner::QuotationScanner(std::u16string_view text) : m_text(text)
{
}

std::size_t QuotationScanner::locationBehindWhiteSpace() const
{
    std::size_t location = m_location;
    while (location < m_text.size() && isWhiteSpaceOrNewline(m_text[location])) {
        ++location;
    }
    return location;
}

void QuotationScanner::scanUpToStopSet()
{
    std::size_t location = locationBehindWhiteSpace();
    if (location == m_text.size() || isInStopSet(m_text[location])) {
        return;
    }
    while (location < m_text.size() && !isInStopSet(m_text[location])) {
        ++location;
    }
    m_location = location;
}

std::size_t QuotationScanner::scanLocation() const
{
    return m_location;
}

void QuotationScanner::setScanLocation(std::size_t location)
{
    m_location = location;
}

bool QuotationScanner::isAtEnd() const
{
    return locationBehindWhiteSpace() == m_text.size();
}

} // namespace reference
