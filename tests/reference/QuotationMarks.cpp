#include <tests/reference/QuotationMarks.h>

#include <tests/reference/Editing.h>
#include <tests/reference/Scanners.h>

#include <iterator>
#include <vector>

namespace reference {

namespace {

/// The edits that replace the straight marks, found by scanning the text as it was.
std::vector<Edit> quotationEdits(std::u16string_view text, std::u16string_view start, std::u16string_view stop)
{
    std::vector<Edit> edits;
    QuotationScanner scanner(text);
    scanner.scanUpToStopSet();
    bool opening = true;
    while (!scanner.isAtEnd()) {
        const std::size_t location = scanner.scanLocation();
        if (text[location] == u'"') {
            edits.push_back({{location, 1}, std::u16string(opening ? start : stop)});
            opening = !opening;
        } else {
            opening = true;
        }
        scanner.setScanLocation(location + 1);
        scanner.scanUpToStopSet();
    }
    return edits;
}

} // namespace

void convertQuotationsToStart(std::u16string &text, std::u16string_view start, std::u16string_view stop)
{
    applyEdits(text, quotationEdits(text, start, stop));
}

template <typename Text>
void convertQuotationsToType(Text &text, std::int32_t style)
{
    struct Marks {
        std::u16string_view start;
        std::u16string_view stop;
    };
    static constexpr Marks styles[] = {{u"\u201E", u"\u201C"}, {u"\u00BB", u"\u00AB"}, {u"\u00AB", u"\u00BB"},
                                       {u"\u201C", u"\u201D"}, {u"\u2018", u"\u2019"}, {u"\u201D", u"\u201D"}};
    const auto number = static_cast<std::uint32_t>(style);
    const Marks marks = number < std::size(styles) ? styles[number] : Marks{u"\"", u"\""};
    applyEdits(text, quotationEdits(units(text), marks.start, marks.stop));
}

template void convertQuotationsToType(std::u16string &text, std::int32_t style);
template void convertQuotationsToType(NaiveAttributedString &text, std::int32_t style);

} // namespace reference
