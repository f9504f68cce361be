#include <OrvaneExportKit/text/QuotationMarks.h>

#include <OrvaneExportKit/platform/Bundle.h>
#include <OrvaneExportKit/platform/UnitSearch.h>
#include <OrvaneExportKit/text/FoundEdits.h>
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

/// Finds the straight marks and what takes their places.
class MarkFinder
{
public:
    explicit MarkFinder(const MarkPair &marks) : m_marks(marks) {}

    std::size_t operator()(std::u16string_view text, std::size_t from, std::size_t until, TextEdits &edits)
    {
        if (from == 0) {
            passPlace(text, 0);
        }
        platform::forEachUnit(text.substr(0, until), from, platform::OneOf<straightMark, u'\n'>(), [&](std::size_t at) {
            if (at < m_word) {
                return; // a line feed among the white space behind the last place
            }
            const bool startsAnew = text[at] != straightMark || (at == m_word && m_word > m_behindPlace);
            m_opens = m_opens || startsAnew;
            if (text[at] == straightMark) {
                edits.push_back({{at, 1}, m_opens ? m_marks.start : m_marks.stop});
                m_opens = !m_opens;
            }
            passPlace(text, at + 1);
        });
        return until;
    }

private:
    void passPlace(std::u16string_view text, std::size_t behind)
    {
        m_behindPlace = behind;
        m_word = skipWhiteSpace(text, behind);
    }

    MarkPair m_marks;
    bool m_opens = true;
    std::size_t m_behindPlace = 0; // behind the last mark or line feed that counts
    std::size_t m_word = 0;        // behind the white space that follows it
};

/// Marks of one unit take the places of straight ones. Longer ones need memory, so nothing is changed before all is
/// found.
template <typename Text>
void convertMarks(Text &text, const MarkPair &marks)
{
    if (marks.start.size() <= 1 && marks.stop.size() <= 1) {
        platform::carryOutFound(text, MarkFinder(marks));
    } else {
        platform::editAtOnce(text, MarkFinder(marks));
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
