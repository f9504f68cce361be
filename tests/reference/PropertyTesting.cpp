#include <tests/reference/PropertyTesting.h>

#include <OrvaneExportKit/platform/Exceptions.h>
#include <OrvaneExportKit/platform/TextUnits.h>

#include <array>
#include <cstdio>
#include <stdexcept>

using platform::AttributedString;
using platform::Range;
using platform::RangeList;
using platform::TextEdits;
using reference::Edit;
using reference::NaiveAttributedString;

namespace property {

namespace {

constexpr std::uint64_t splitMixIncrement = 0x9E3779B97F4A7C15;

/// The output function of SplitMix64.
std::uint64_t scrambled(std::uint64_t state)
{
    state = (state ^ (state >> 30U)) * 0xBF58476D1CE4E5B9;
    state = (state ^ (state >> 27U)) * 0x94D049BB133111EB;
    return state ^ (state >> 31U);
}

std::uint64_t numberFromEnvironment(const char *name, std::uint64_t fallback)
{
    if (!qEnvironmentVariableIsSet(name)) {
        return fallback;
    }
    bool isNumber = false;
    const std::uint64_t number = qgetenv(name).toULongLong(&isNumber);
    if (!isNumber) {
        throw std::runtime_error(std::string(name) + " is not a number");
    }
    return number;
}

template <typename List, typename Print>
std::string joined(const List &list, Print print)
{
    std::string result = "{";
    for (const auto &element : list) {
        result += (result.size() > 1 ? ", " : "") + print(element);
    }
    return result + "}";
}

} // namespace

Random::Random(std::uint64_t seed, std::uint64_t caseNumber) : m_state(scrambled(seed) ^ scrambled(~caseNumber))
{
}

std::size_t Random::between(std::size_t lowest, std::size_t highest)
{
    m_state += splitMixIncrement;
    return lowest + static_cast<std::size_t>(scrambled(m_state) % (highest - lowest + 1));
}

bool Random::chance(std::size_t percent)
{
    return between(1, 100) <= percent;
}

Cases casesFromEnvironment()
{
    return {numberFromEnvironment("ORVANE_PROPERTY_SEED", 20240229),
            numberFromEnvironment("ORVANE_PROPERTY_FIRST_CASE", 0),
            numberFromEnvironment("ORVANE_PROPERTY_CASES", 20000)};
}

std::string printed(std::u16string_view text)
{
    std::string result = "\"";
    for (const char16_t unit : text) {
        if (unit == u'"' || unit == u'\\') {
            result += '\\';
        }
        if (unit >= 0x20 && unit < 0x7F) {
            result += static_cast<char>(unit);
        } else if (unit == u'\n') {
            result += "\\n";
        } else {
            std::array<char, 8> escape{};
            std::snprintf(escape.data(), escape.size(), "\\x%04X", static_cast<unsigned>(unit));
            result += escape.data();
        }
    }
    return result + "\" of " + std::to_string(text.size()) + " units";
}

std::string printed(const RangeList &ranges)
{
    return joined(ranges, [](Range range) { return testing::PrintToString(range); });
}

std::string printed(const std::vector<std::u16string> &strings)
{
    return joined(strings, [](const std::u16string &string) { return printed(string); });
}

std::string printed(const std::vector<Edit> &edits)
{
    return joined(edits,
                  [](const Edit &edit) { return testing::PrintToString(edit.range) + " by " + printed(edit.string); });
}

std::string printed(const NaiveAttributedString &text)
{
    std::string result = printed(text.units);
    Range run;
    for (std::size_t index = 0; index < text.units.size(); index = run.end()) {
        const QVariantMap attributes = reference::attributesAtIndex(text, index, run);
        result += "\n  " + testing::PrintToString(run) + " " + testing::PrintToString(attributes);
    }
    return result;
}

QString asLibrary(std::u16string_view text)
{
    return property::view(text).toString();
}

AttributedString asLibrary(const NaiveAttributedString &text)
{
    AttributedString result(asLibrary(text.units));
    Range run;
    for (std::size_t index = 0; index < text.units.size(); index = run.end()) {
        const QVariantMap attributes = reference::attributesAtIndex(text, index, run);
        result.setAttributes(attributes, run);
    }
    return result;
}

TextEdits asLibrary(const std::vector<Edit> &edits)
{
    TextEdits result;
    for (const Edit &edit : edits) {
        result.replace(edit.range, edit.string);
    }
    return result;
}

std::u16string asReference(const QString &text)
{
    return text.toStdU16String();
}

NaiveAttributedString asReference(const AttributedString &text)
{
    NaiveAttributedString result{asReference(text.string()), {}};
    for (std::size_t index = 0; index < text.length(); ++index) {
        result.attributes.push_back(text.attributesAtIndex(index));
    }
    return result;
}

std::string errorOf(const std::function<void()> &call)
{
    try {
        call();
    } catch (const platform::RangeException &exception) {
        return "range exception at text length " + std::to_string(exception.textLength());
    } catch (const platform::InvalidArgumentException &) {
        return "invalid-argument exception";
    }
    return {};
}

} // namespace property
