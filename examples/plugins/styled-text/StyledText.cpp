#include "StyledText.h"

#include <OrvaneExportKit/platform/LineRanges.h>
#include <OrvaneExportKit/text/RangeLists.h>
#include <OrvaneExportKit/text/TaggedSpans.h>

#include <algorithm>

namespace styled {

namespace {

using namespace Qt::Literals::StringLiterals;
using namespace KZMutableAttributedStringExportAdditions;
using platform::AttributedString;
using platform::Range;
using platform::RangeList;

// How the styles found in the marks are noted on the text: as attributes, which stay with it when the marks go.
const QString paragraphAttribute = u"styled.paragraph"_s;

QString spanAttribute(const InlineStyle &style)
{
    return u"styled.span."_s + style.identifier;
}

/// Marks count at the start of lines, and a line starts behind a line feed alone.
void endLinesWithLineFeeds(AttributedString &text)
{
    platform::TextEdits edits;
    const QString &string = text.string();
    for (qsizetype at = string.indexOf(u'\r'); at >= 0; at = string.indexOf(u'\r', at + 1)) {
        const bool isPair = at + 1 < string.size() && string[at + 1] == u'\n';
        edits.replace({static_cast<std::size_t>(at), 1}, isPair ? u"" : u"\n");
    }
    edit(text, edits);
}

/// Whether a line whose mark ends at this position has the blank behind it that strict marks ask for.
bool blankFollows(QStringView text, qsizetype position)
{
    return position == text.size() || text[position].isSpace();
}

bool isStyled(const AttributedString &text, std::size_t index)
{
    return text.attributesAtIndex(index).contains(paragraphAttribute);
}

RangeList linesOfStyle(const AttributedString &text, const ParagraphStyle &style)
{
    RangeList lines = KZAttributedStringExportAdditions::lineRangesForLevelString(text, style.tag);
    std::erase_if(lines, [&](const Range &line) {
        const auto markEnd = static_cast<qsizetype>(line.location) + style.tag.size();
        return isStyled(text, line.location) || !(style.relaxed || blankFollows(text.string(), markEnd));
    });
    return lines;
}

/// Longer tags have their turn first: "#" is also the beginning of "##".
void noteParagraphs(AttributedString &text, QList<ParagraphStyle> styles)
{
    std::stable_sort(styles.begin(), styles.end(),
                     [](const auto &a, const auto &b) { return a.tag.size() > b.tag.size(); });
    for (const ParagraphStyle &style : styles) {
        const RangeList lines = linesOfStyle(text, style);
        addAttributes(text, {{paragraphAttribute, style.identifier}}, lines);
        deleteParagraphMark(text, style.tag, lines);
    }
}

/// What stands between the tags, which come in pairs.
RangeList rangesBetween(const RangeList &tags)
{
    RangeList spans;
    for (std::size_t i = 0; i + 1 < tags.size(); i += 2) {
        spans.push_back({tags[i].end(), tags[i + 1].location - tags[i].end()});
    }
    return spans;
}

void noteSpans(AttributedString &text, const QList<InlineStyle> &styles)
{
    for (const InlineStyle &style : styles) {
        const RangeList tags = KZStringExportAdditions::rangesForStartTag(text.string(), style.startTag, style.endTag);
        addAttributes(text, {{spanAttribute(style), true}}, rangesBetween(tags));
        deleteCharactersInRanges(text, tags);
    }
}

bool hasStyle(const QVariantMap &attributes, const QString &attributeName, const QString &identifier)
{
    return !attributeName.isEmpty() && attributes.value(attributeName).toString() == identifier;
}

/// Builds the paragraphs line by line.
class Builder
{
public:
    Builder(const AttributedString &text, const Styles &styles) : m_text(text), m_styles(styles) {}

    QList<Paragraph> build()
    {
        const std::u16string_view units = platform::units(m_text);
        for (Range line; line.end() < m_text.length();) {
            line = {line.end(), platform::lineEnd(units, line.end()) - line.end()};
            addLine(line);
        }
        return m_paragraphs;
    }

private:
    void addLine(Range line)
    {
        const Range content = trimmed(line);
        if (content.length == 0) {
            m_continues = false;
            return;
        }
        const auto marker = std::find_if(m_styles.markers.begin(), m_styles.markers.end(),
                                         [&](const MarkerStyle &style) { return style.tag == string(content); });
        if (marker != m_styles.markers.end()) {
            m_paragraphs.append({marker->identifier, true, {}});
            m_continues = false;
            return;
        }
        const QString style = styleAt(content.location);
        if (m_continues && !startsWithTab(line) && m_paragraphs.last().style == style) {
            addUnits(u"\n", {});
        } else {
            m_paragraphs.append({style, false, {}});
        }
        addSpans(content);
        m_continues = true;
    }

    QStringView string(Range range) const
    {
        return QStringView(m_text.string())
            .sliced(static_cast<qsizetype>(range.location), static_cast<qsizetype>(range.length));
    }

    bool startsWithTab(Range line) const { return string(line).startsWith(u'\t'); }

    Range trimmed(Range line) const
    {
        const QStringView text = string(line);
        const qsizetype start = std::find_if_not(text.begin(), text.end(), isSpace) - text.begin();
        return {line.location + static_cast<std::size_t>(start), static_cast<std::size_t>(text.trimmed().size())};
    }

    static bool isSpace(QChar character) { return character.isSpace(); }

    QString styleAt(std::size_t index) const
    {
        const QVariantMap attributes = m_text.attributesAtIndex(index);
        for (const ParagraphStyle &style : m_styles.paragraphs) {
            if (hasStyle(attributes, style.attributeName, style.identifier)) {
                return style.identifier;
            }
        }
        return attributes.value(paragraphAttribute).toString();
    }

    void addUnits(QStringView units, const QStringList &styles)
    {
        QList<Span> &spans = m_paragraphs.last().spans;
        if (spans.isEmpty() || spans.last().styles != styles) {
            spans.append({{}, styles});
        }
        spans.last().text += units;
    }

    void addSpans(Range content)
    {
        Range run;
        for (std::size_t index = content.location; index < content.end(); index = run.end()) {
            const QStringList styles = stylesOf(m_text.attributesAtIndex(index, &run));
            run = {index, std::min(run.end(), content.end()) - index};
            addUnits(string(run), styles);
        }
    }

    QStringList stylesOf(const QVariantMap &attributes) const
    {
        QStringList styles;
        for (const InlineStyle &style : m_styles.spans) {
            if (attributes.contains(spanAttribute(style)) ||
                hasStyle(attributes, style.attributeName, style.identifier)) {
                styles.append(style.identifier);
            }
        }
        return styles;
    }

    const AttributedString &m_text;
    const Styles &m_styles;
    QList<Paragraph> m_paragraphs;
    bool m_continues = false; ///< whether the next line may belong to the last paragraph
};

} // namespace

QList<Paragraph> paragraphs(const AttributedString &document, const Styles &styles)
{
    AttributedString text = document;
    endLinesWithLineFeeds(text);
    noteParagraphs(text, styles.paragraphs);
    noteSpans(text, styles.spans);
    return Builder(text, styles).build();
}

} // namespace styled
