#include <OrvaneExportKit/text/QuotationMarks.h>

#include <OrvaneExportKit/platform/Bundle.h>
#include <OrvaneExportKit/platform/TextUnits.h>
#include <OrvaneExportKit/text/QuotationTable.h>

#include <array>

using platform::AttributedString;
using platform::TextEdits;
using platform::units;

namespace {

struct MarkPair {
    std::u16string_view start;
    std::u16string_view stop;
};

constexpr char16_t straightMark = u'"';

constexpr std::array<MarkPair, 6> styles{{
    {u"\u201E", u"\u201C"},
    {u"\u00BB", u"\u00AB"},
    {u"\u00AB", u"\u00BB"},
    {u"\u201C", u"\u201D"},
    {u"\u2018", u"\u2019"},
    {u"\u201D", u"\u201D"},
}};

std::size_t skipWhiteSpace(std::u16string_view text, std::size_t position)
{
    while (position < text.size() && QChar(text[position]).isSpace()) {
        ++position;
    }
    return position;
}

std::size_t findMarkOrLineFeed(std::u16string_view text, std::size_t position)
{
    while (position < text.size() && text[position] != straightMark && text[position] != u'\n') {
        ++position;
    }
    return position;
}

TextEdits findQuotationMarks(std::u16string_view text, const MarkPair &marks)
{
    TextEdits edits;
    bool opens = true;
    for (std::size_t position = 0; position < text.size();) {
        const std::size_t word = skipWhiteSpace(text, position);
        const std::size_t at = findMarkOrLineFeed(text, word);
        if (at == text.size()) {
            break;
        }
        if (at == word && word > position) {
            opens = true; // nothing but white space since the last place
        }
        if (text[at] == straightMark) {
            edits.push_back({{at, 1}, opens ? marks.start : marks.stop});
            opens = !opens;
        } else {
            opens = true;
        }
        position = at + 1;
    }
    return edits;
}

template <typename Text>
void convertToStyle(Text &text, qint32 style)
{
    const auto number = static_cast<quint32>(style);
    if (number < styles.size()) {
        applyEdits(text, findQuotationMarks(units(text), styles[number]));
    }
}

template <typename Text>
void convertToLanguage(Text &text, const QString &language)
{
    const platform::QuotationMarks marks = platform::quotationMarks(platform::Bundle::kitBundle(), language);
    const QString straight(straightMark);
    const QString start = marks.begin.value_or(straight);
    const QString stop = marks.end.value_or(straight);
    applyEdits(text, findQuotationMarks(units(text), {units(start), units(stop)}));
}

} // namespace

namespace KZMutableStringExportAdditions {

void convertQuotationsToStart(QString &text, QStringView start, QStringView stop)
{
    // The marks may be views of the very text that is changed.
    const std::u16string startMark(units(start));
    const std::u16string stopMark(units(stop));
    applyEdits(text, findQuotationMarks(units(text), {startMark, stopMark}));
}

void convertQuotationsToType(QString &text, qint32 style)
{
    convertToStyle(text, style);
}

void convertQuotationsToLanguage(QString &text, const QString &language)
{
    convertToLanguage(text, language);
}

} // namespace KZMutableStringExportAdditions

namespace KZMutableAttributedStringExportAdditions {

void convertQuotationsToType(AttributedString &text, qint32 style)
{
    convertToStyle(text, style);
}

void convertQuotationsToLanguage(AttributedString &text, const QString &language)
{
    convertToLanguage(text, language);
}

} // namespace KZMutableAttributedStringExportAdditions
