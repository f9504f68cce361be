#include "OtherWays.h"

#include <QtCore/QHash>
#include <QtGui/QTextCursor>

#define PCRE2_CODE_UNIT_WIDTH 16
#include <pcre2.h>
#include <unicode/unistr.h>

#include <memory>
#include <stdexcept>

namespace other {

using platform::RangeList;

namespace {

using Code = std::unique_ptr<pcre2_code, decltype(&pcre2_code_free)>;
using MatchData = std::unique_ptr<pcre2_match_data, decltype(&pcre2_match_data_free)>;

Code compiled(const QString &pattern)
{
    int error = 0;
    PCRE2_SIZE place = 0;
    Code code(pcre2_compile(reinterpret_cast<PCRE2_SPTR>(pattern.utf16()), static_cast<PCRE2_SIZE>(pattern.size()), 0,
                            &error, &place, nullptr),
              &pcre2_code_free);
    if (!code || pcre2_jit_compile(code.get(), PCRE2_JIT_COMPLETE) != 0) {
        throw std::runtime_error("the pattern was not compiled");
    }
    return code;
}

template <typename Visit>
void forEachMatch(const QString &text, const QString &pattern, Visit visit)
{
    const Code code = compiled(pattern);
    const MatchData match(pcre2_match_data_create_from_pattern(code.get(), nullptr), &pcre2_match_data_free);
    const auto *const subject = reinterpret_cast<PCRE2_SPTR>(text.utf16());
    PCRE2_SIZE from = 0;
    while (pcre2_jit_match(code.get(), subject, static_cast<PCRE2_SIZE>(text.size()), from, 0, match.get(), nullptr) >
           0) {
        const PCRE2_SIZE *const ends = pcre2_get_ovector_pointer(match.get());
        visit(static_cast<qsizetype>(ends[0]), static_cast<qsizetype>(ends[1]));
        from = ends[1];
    }
}

/// Writes a text piece by piece into a string of its own.
class Builder
{
public:
    explicit Builder(const QString &text) : m_text(text) { m_built.reserve(text.size() + text.size() / 8); }

    void replace(qsizetype from, qsizetype until, QStringView replacement)
    {
        m_built += QStringView(m_text).sliced(m_position, from - m_position);
        m_built += replacement;
        m_position = until;
    }

    QString finish() &&
    {
        m_built += QStringView(m_text).sliced(m_position);
        return std::move(m_built);
    }

private:
    const QString &m_text;
    QString m_built;
    qsizetype m_position = 0;
};

bool isBreakCharacter(char16_t unit)
{
    return (unit <= u'/' && unit != u'"' && unit != u'\'' && unit != u'(') || (unit >= u':' && unit <= u'@') ||
           unit == u'\\' || unit == u']' || (unit >= u'|' && unit <= u'~');
}

bool isLineEnd(char16_t unit)
{
    return unit == u'\n' || unit == u'\r' || unit == u'\u0085' || unit == u'\u2028' || unit == u'\u2029';
}

} // namespace

void replaceMatches(QString &text, const QString &pattern, const QString &replacement)
{
    Builder builder(text);
    forEachMatch(text, pattern, [&](qsizetype from, qsizetype until) { builder.replace(from, until, replacement); });
    text = std::move(builder).finish();
}

RangeList matches(const QString &text, const QString &pattern)
{
    RangeList ranges;
    forEachMatch(text, pattern, [&](qsizetype from, qsizetype until) {
        ranges.push_back({static_cast<std::size_t>(from), static_cast<std::size_t>(until - from)});
    });
    return ranges;
}

void replaceWithIcu(QString &text, const QString &literal, const QString &replacement)
{
    icu::UnicodeString copy(reinterpret_cast<const char16_t *>(text.utf16()), static_cast<int32_t>(text.size()));
    copy.findAndReplace(icu::UnicodeString(reinterpret_cast<const char16_t *>(literal.utf16())),
                        icu::UnicodeString(reinterpret_cast<const char16_t *>(replacement.utf16())));
    text = QString::fromUtf16(copy.getBuffer(), copy.length());
}

void breakLines(QString &text, qsizetype limit)
{
    Builder builder(text);
    const char16_t *const units = reinterpret_cast<const char16_t *>(text.utf16());
    const qsizetype length = text.size();
    qsizetype end = 0;
    qsizetype searched = 0;
    for (qsizetype start = 0; start < length;) {
        if (start == end) {
            while (end < length && !isLineEnd(units[end])) {
                ++end;
            }
            end += end + 1 < length && units[end] == u'\r' && units[end + 1] == u'\n' ? 2 : 1;
        }
        if (end - start <= limit + 1) {
            start = end;
            continue;
        }
        qsizetype gap = start + limit;
        const qsizetype floor = std::max(start, searched);
        searched = gap;
        while (gap > floor && !isBreakCharacter(units[gap - 1])) {
            --gap;
        }
        gap = gap > floor ? gap : start + 1;
        while (gap > start && units[gap - 1] == u' ') {
            --gap;
        }
        start = gap;
        while (start < length && units[start] == u' ') {
            ++start;
        }
        builder.replace(gap, start, u"\n");
    }
    text = std::move(builder).finish();
}

void convertQuotations(QString &text, QChar start, QChar stop)
{
    QChar *const units = text.data();
    const qsizetype length = text.size();
    bool opens = true;
    bool onlySpace = false;
    bool behindPlace = true;
    for (qsizetype at = 0; at < length; ++at) {
        const QChar unit = units[at];
        if (unit == u'"') {
            opens = opens || onlySpace;
            units[at] = opens ? start : stop;
            opens = !opens;
            behindPlace = true;
            onlySpace = false;
        } else if (behindPlace && unit.isSpace()) {
            onlySpace = true;
        } else {
            behindPlace = unit == u'\n';
            opens = opens || behindPlace;
            onlySpace = false;
        }
    }
}

void convertStartTabs(QString &text, qsizetype spaces)
{
    const QString replacement(spaces, u' ');
    Builder builder(text);
    bool atStart = true;
    for (qsizetype at = 0; at < text.size(); ++at) {
        const QChar unit = text.at(at);
        if (atStart && unit == u'\t') {
            builder.replace(at, at + 1, replacement);
        } else {
            atStart = unit == u'\n';
        }
    }
    text = std::move(builder).finish();
}

void convertEscapeSequences(QString &text)
{
    Builder builder(text);
    for (qsizetype at = 0; at + 1 < text.size(); ++at) {
        if (text.at(at) != u'\\') {
            continue;
        }
        const bool escaped = at > 0 && text.at(at - 1) == u'\\';
        switch (text.at(at + 1).unicode()) {
        case u'f':
            builder.replace(at, escaped ? at + 1 : at + 2, escaped ? u"" : u"\f");
            break;
        case u'n':
            builder.replace(at, escaped ? at + 1 : at + 2, escaped ? u"" : u"\n");
            break;
        case u't':
            builder.replace(at, escaped ? at + 1 : at + 2, escaped ? u"" : u"\t");
            break;
        case u'\f':
            builder.replace(at + 1, at + 2, u"f");
            break;
        case u'\n':
            builder.replace(at + 1, at + 2, u"n");
            break;
        case u'\t':
            builder.replace(at + 1, at + 2, u"t");
            break;
        default:
            break;
        }
    }
    text = std::move(builder).finish();
}

void deleteRanges(QString &text, const RangeList &ranges)
{
    Builder builder(text);
    for (const platform::Range &range : ranges) {
        builder.replace(static_cast<qsizetype>(range.location), static_cast<qsizetype>(range.end()), {});
    }
    text = std::move(builder).finish();
}

void encloseRanges(QString &text, const RangeList &ranges, const QString &string)
{
    Builder builder(text);
    for (const platform::Range &range : ranges) {
        builder.replace(static_cast<qsizetype>(range.location), static_cast<qsizetype>(range.location), string);
        builder.replace(static_cast<qsizetype>(range.end()), static_cast<qsizetype>(range.end()), string);
    }
    text = std::move(builder).finish();
}

void replaceUnits(QString &text, const QStringList &from, const QStringList &to)
{
    QHash<QChar, QString> table;
    for (qsizetype pair = from.size(); pair-- > 0;) {
        for (QString &replacement : table) {
            replacement.replace(from[pair], to[pair]);
        }
        if (!table.contains(from[pair].front())) {
            table.insert(from[pair].front(), to[pair]);
        }
    }
    Builder builder(text);
    for (qsizetype at = 0; at < text.size(); ++at) {
        const auto found = table.constFind(text.at(at));
        if (found != table.constEnd()) {
            builder.replace(at, at + 1, *found);
        }
    }
    text = std::move(builder).finish();
}

void deleteRanges(QTextDocument &document, const RangeList &ranges)
{
    QTextCursor cursor(&document);
    cursor.beginEditBlock();
    for (auto range = ranges.rbegin(); range != ranges.rend(); ++range) {
        cursor.setPosition(static_cast<int>(range->location));
        cursor.setPosition(static_cast<int>(range->end()), QTextCursor::KeepAnchor);
        cursor.removeSelectedText();
    }
    cursor.endEditBlock();
}

} // namespace other
