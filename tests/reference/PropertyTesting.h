#pragma once

#include <tests/reference/Editing.h>
#include <tests/reference/NaiveAttributedString.h>
#include <tests/support/Printers.h>

#include <OrvaneExportKit/platform/AttributedString.h>
#include <OrvaneExportKit/platform/Range.h>
#include <OrvaneExportKit/platform/TextEdits.h>

#include <gtest/gtest.h>

#include <QtCore/QString>

#include <cstdint>
#include <exception>
#include <functional>
#include <initializer_list>
#include <iterator>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

/// \file
/// Property tests: the library against the step-by-step versions, on many random inputs.
///
/// The environment chooses the cases: `ORVANE_PROPERTY_SEED`, `ORVANE_PROPERTY_CASES` (how many for each test) and
/// `ORVANE_PROPERTY_FIRST_CASE`. A case depends on the seed and its number alone, so that it can be repeated by itself.

namespace property {

/// The random numbers of one case, the same on every platform.
class Random
{
public:
    Random(std::uint64_t seed, std::uint64_t caseNumber);

    /// A number from `lowest` to `highest`, both included.
    std::size_t between(std::size_t lowest, std::size_t highest);

    bool chance(std::size_t percent);

    template <typename List>
    typename List::value_type oneOf(const List &list)
    {
        return *std::next(list.begin(), static_cast<std::ptrdiff_t>(between(0, list.size() - 1)));
    }

    template <typename Value>
    Value oneOf(std::initializer_list<Value> list)
    {
        return *(list.begin() + between(0, list.size() - 1));
    }

private:
    std::uint64_t m_state;
};

/// Which cases to run.
struct Cases {
    std::uint64_t seed;
    std::uint64_t first;
    std::uint64_t count;
};

/// Throws `std::runtime_error` when a variable is set and holds no number.
Cases casesFromEnvironment();

/// Runs `body` with the random numbers of each case, up to the first case that fails.
template <typename Body>
void forEachCase(Body body)
{
    const Cases cases = casesFromEnvironment();
    for (std::uint64_t number = cases.first; number - cases.first < cases.count; ++number) {
        Random random(cases.seed, number);
        try {
            body(random);
        } catch (const std::exception &exception) {
            ADD_FAILURE() << "unexpected exception: " << exception.what();
        }
        if (testing::Test::HasFailure()) {
            ADD_FAILURE() << "repeat this case with ORVANE_PROPERTY_SEED=" << cases.seed
                          << " ORVANE_PROPERTY_FIRST_CASE=" << number << " ORVANE_PROPERTY_CASES=1";
            return;
        }
    }
}

/// Inputs as they are written into a failure: pure ASCII, everything else as `\x` and four digits.
std::string printed(std::u16string_view text);
std::string printed(const platform::RangeList &ranges);
std::string printed(const std::vector<std::u16string> &strings);
std::string printed(const std::vector<reference::Edit> &edits);
std::string printed(const reference::NaiveAttributedString &text);

/// The units as a Qt view.
inline QStringView view(std::u16string_view text)
{
    return {text.data(), static_cast<qsizetype>(text.size())};
}

/// The same on the library's side. Edits view the strings of those that they are made of.
QString asLibrary(std::u16string_view text);
platform::AttributedString asLibrary(const reference::NaiveAttributedString &text);
platform::TextEdits asLibrary(const std::vector<reference::Edit> &edits);

/// The same on the reference's side.
inline std::u16string asReference(std::u16string text)
{
    return text;
}
inline reference::NaiveAttributedString asReference(reference::NaiveAttributedString text)
{
    return text;
}
std::u16string asReference(const QString &text);
reference::NaiveAttributedString asReference(const platform::AttributedString &text);

/// What the call threw of the kit's exceptions, in words; empty when it threw nothing.
std::string errorOf(const std::function<void()> &call);

/// What an editing operation leaves behind.
template <typename Text>
struct Outcome {
    Text text;
    std::string error;

    friend bool operator==(const Outcome &, const Outcome &) = default;

    friend void PrintTo(const Outcome &outcome, std::ostream *out)
    {
        *out << printed(outcome.text) << (outcome.error.empty() ? "" : ", ") << outcome.error;
    }
};

/// Carries out `edit` on the text, of the library or of the reference.
template <typename Text, typename Edit>
auto outcome(Text text, Edit edit)
{
    const std::string error = errorOf([&] { edit(text); });
    return Outcome<decltype(asReference(text))>{asReference(text), error};
}

} // namespace property

namespace reference {

inline void PrintTo(const NaiveAttributedString &text, std::ostream *out)
{
    *out << property::printed(text);
}

} // namespace reference
