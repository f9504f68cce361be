#include <OrvaneExportKit/text/QuotationMarks.h>

#include <OrvaneExportKit/platform/AttributedString.h>
#include <OrvaneExportKit/platform/Bundle.h>
#include <OrvaneExportKit/platform/UnitSearch.h>
#include <OrvaneExportKit/text/QuotationTable.h>

#include <algorithm>
#include <array>

using platform::AttributedString;
using platform::edit;
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

/// Finds the straight marks and what takes their places.
class MarkFinder
{
public:
    explicit MarkFinder(const MarkPair &marks) : m_marks(marks) {}

    std::size_t operator()(std::u16string_view text, std::size_t from, std::size_t until, TextEdits &edits)
    {
        if (from == 0) {
            m_word = skipWhiteSpace(text, 0);
        }
        platform::forEachUnit(text.substr(0, until), from, platform::OneOf<straightMark>(), [&](std::size_t at) {
            passText(text, from, at);
            m_opens = m_opens || (at == m_word && m_word > m_behindMark);
            edits.replace({at, 1}, m_opens ? m_marks.start : m_marks.stop);
            m_opens = !m_opens;
            m_behindMark = at + 1;
            m_word = skipWhiteSpace(text, at + 1);
        });
        passText(text, from, until);
        return until;
    }

private:
    /// Goes on to `until`. Behind a line feed the next mark opens, unless the line feed belongs to the white space
    /// behind the last mark.
    void passText(std::u16string_view text, std::size_t from, std::size_t until)
    {
        const std::size_t start = std::max(m_word, from);
        m_opens = m_opens ||
                  (start < until && platform::findUnit(text.substr(0, until), start, platform::OneOf<u'\n'>()) < until);
    }

    MarkPair m_marks;
    bool m_opens = true;
    std::size_t m_behindMark = 0; // behind the last mark, at first the start of the text
    std::size_t m_word = 0;       // behind the white space that follows there
};

/// Marks of one unit take the places of straight ones. Longer ones need memory, so nothing is changed before all is
/// found.
template <typename Text>
void convertMarks(Text &text, const MarkPair &marks)
{
    if (marks.start.size() <= 1 && marks.stop.size() <= 1) {
        edit(text, MarkFinder(marks));
    } else {
        edit(text, [&](std::u16string_view given, TextEdits &edits) {
            MarkFinder find(marks);
            find(given, 0, given.size(), edits);
        });
    }
}

template <typename Text>
void convertToStyle(Text &text, qint32 style)
{
    const auto number = static_cast<quint32>(style);
    if (number < styles.size()) {
        convertMarks(text, styles[number]);
    }
}

template <typename Text>
void convertToLanguage(Text &text, const QString &language)
{
    const platform::QuotationMarks marks = platform::quotationMarks(platform::Bundle::kitBundle(), language);
    const QString straight(straightMark);
    const QString start = marks.begin.value_or(straight);
    const QString stop = marks.end.value_or(straight);
    convertMarks(text, {units(start), units(stop)});
}

} // namespace

namespace KZMutableStringExportAdditions {

void convertQuotationsToStart(QString &text, QStringView start, QStringView stop)
{
    // The marks may be views of the very text that is changed.
    const std::u16string startMark(units(start));
    const std::u16string stopMark(units(stop));
    convertMarks(text, {startMark, stopMark});
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
