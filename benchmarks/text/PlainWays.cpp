#include "PlainWays.h"

#include <algorithm>

namespace plain {

using namespace Qt::Literals::StringLiterals;
using platform::RangeList;

namespace {

bool isBreakCharacter(QChar unit)
{
    return (unit <= u'/' && unit != u'"' && unit != u'\'' && unit != u'(') || (unit >= u':' && unit <= u'@') ||
           unit == u'\\' || unit == u']' || (unit >= u'|' && unit <= u'~');
}

bool isLineEnd(QChar unit)
{
    return unit == u'\n' || unit == u'\r' || unit == u'\u0085' || unit == u'\u2028' || unit == u'\u2029';
}

qsizetype lineEnd(const QString &text, qsizetype index)
{
    while (index < text.size() && !isLineEnd(text[index])) {
        ++index;
    }
    const bool isPair = index + 1 < text.size() && text[index] == u'\r' && text[index + 1] == u'\n';
    return std::min(text.size(), index + (isPair ? 2 : 1));
}

platform::Range range(qsizetype location, qsizetype length)
{
    return {static_cast<std::size_t>(location), static_cast<std::size_t>(length)};
}

} // namespace

void setMaxLineLength(QString &text, qsizetype limit)
{
    text.append(u'\n');
    for (qsizetype start = 0; start < text.size();) {
        const qsizetype end = lineEnd(text, start);
        if (end - start <= limit + 1) {
            start = end;
            continue;
        }
        qsizetype breakEnd = start + limit;
        while (breakEnd > start && !isBreakCharacter(text[breakEnd - 1])) {
            --breakEnd;
        }
        qsizetype gap = breakEnd > start ? breakEnd : start + 1;
        while (gap > 0 && text[gap - 1] == u' ') {
            --gap;
        }
        qsizetype next = gap;
        while (text[next] == u' ') {
            ++next;
        }
        text.replace(gap, next - gap, u"\n"_s);
        start = gap + 1;
    }
    text.chop(1);
}

void deleteEmptyLines(QString &text)
{
    for (qsizetype at = text.indexOf(u"\n\n"); at >= 0; at = text.indexOf(u"\n\n", at)) {
        text.remove(at, 1);
    }
}

void convertStartTabsToSpace(QString &text, qsizetype spaces)
{
    const QString replacement(spaces, u' ');
    for (qsizetype start = 0; start >= 0 && start < text.size();) {
        while (start < text.size() && text[start] == u'\t') {
            text.replace(start, 1, replacement);
            start += spaces;
        }
        const qsizetype lineFeed = text.indexOf(u'\n', start);
        start = lineFeed < 0 ? -1 : lineFeed + 1;
    }
}

void convertQuotations(QString &text, QChar start, QChar stop)
{
    bool opens = true;
    for (qsizetype position = 0; position < text.size();) {
        qsizetype at = position;
        while (at < text.size() && text[at].isSpace()) {
            ++at;
        }
        const qsizetype word = at;
        while (at < text.size() && text[at] != u'"' && text[at] != u'\n') {
            ++at;
        }
        if (at == text.size()) {
            return;
        }
        if (text[at] == u'\n' || (at == word && word > position)) {
            opens = true;
        }
        if (text[at] == u'"') {
            text[at] = opens ? start : stop;
            opens = !opens;
        }
        position = at + 1;
    }
}

RangeList rangesForTag(const QString &text, const QString &tag)
{
    RangeList tags;
    for (qsizetype at = text.indexOf(tag); at >= 0; at = text.indexOf(tag, at + tag.size())) {
        if (tag != u"//" || at == 0 || text[at - 1] != u':') {
            tags.push_back(range(at, tag.size()));
        }
    }
    if (tags.size() % 2 != 0) {
        tags.pop_back();
    }
    return tags;
}

RangeList lineRangesForLevelString(const QString &text, const QString &levelString)
{
    RangeList lines;
    for (qsizetype at = text.indexOf(levelString); at >= 0; at = text.indexOf(levelString, at + levelString.size())) {
        if (at == 0 || text[at - 1] == u'\n') {
            lines.push_back(range(at, lineEnd(text, at) - at));
        }
    }
    return lines;
}

void deleteRanges(QString &text, const RangeList &ranges)
{
    for (auto range = ranges.rbegin(); range != ranges.rend(); ++range) {
        text.remove(static_cast<qsizetype>(range->location), static_cast<qsizetype>(range->length));
    }
}

void encloseRanges(QString &text, const RangeList &ranges, const QString &string)
{
    for (auto range = ranges.rbegin(); range != ranges.rend(); ++range) {
        text.insert(static_cast<qsizetype>(range->end()), string);
        text.insert(static_cast<qsizetype>(range->location), string);
    }
}

void convertEscapeSequences(QString &text)
{
    text.replace(u"\\f"_s, u"\f"_s).replace(u"\\n"_s, u"\n"_s).replace(u"\\t"_s, u"\t"_s);
    text.replace(u"\\\f"_s, u"\\f"_s).replace(u"\\\n"_s, u"\\n"_s).replace(u"\\\t"_s, u"\\t"_s);
}

void replaceStrings(QString &text, const QStringList &from, const QStringList &to)
{
    for (qsizetype pair = from.size(); pair-- > 0;) {
        text.replace(from[pair], to[pair]);
    }
}

} // namespace plain
