#include "Texts.h"

#include <random>

namespace texts {

using namespace Qt::Literals::StringLiterals;
using platform::AttributedString;
using platform::Range;
using platform::RangeList;

namespace {

/// Makes up sentences, the same for the same seed.
class Writer
{
public:
    explicit Writer(unsigned seed) : m_random(seed) {}

    QString manuscript(qsizetype length)
    {
        QString text;
        text.reserve(length + 2000);
        while (text.size() < length) {
            if (chance(40)) {
                text += u"# "_s + words(4) + u"\n\n"_s;
            }
            text += paragraph();
        }
        text.truncate(length);
        return text;
    }

private:
    bool chance(unsigned oneIn) { return m_random() % oneIn == 0; }

    QString word()
    {
        static const QStringList vocabulary{
            u"the"_s,     u"and"_s,        u"of"_s,      u"a"_s,      u"to"_s,       u"in"_s,        u"her"_s,
            u"his"_s,     u"it"_s,         u"that"_s,    u"was"_s,    u"had"_s,      u"with"_s,      u"for"_s,
            u"on"_s,      u"at"_s,         u"they"_s,    u"from"_s,   u"but"_s,      u"not"_s,       u"water"_s,
            u"harbour"_s, u"lamp"_s,       u"evening"_s, u"letter"_s, u"stone"_s,    u"window"_s,    u"morning"_s,
            u"silence"_s, u"breakwater"_s, u"tide"_s,    u"keeper"_s, u"between"_s,  u"something"_s, u"remembered"_s,
            u"against"_s, u"through"_s,    u"nothing"_s, u"always"_s, u"well-kept"_s};
        return vocabulary[static_cast<qsizetype>(m_random() % static_cast<std::size_t>(vocabulary.size()))];
    }

    QString words(std::size_t count)
    {
        QString text = word();
        for (std::size_t index = 1; index < count; ++index) {
            text += u' ' + decorated(word());
        }
        return text;
    }

    QString decorated(const QString &plain)
    {
        switch (m_random() % 420) {
        case 0:
            return u"**"_s + plain + u"**"_s;
        case 1:
            return u"//"_s + plain + u"//"_s;
        case 2:
            return u"-- "_s + plain;
        case 3:
            return plain + u"..."_s;
        case 4:
            return u"caf\u00E9"_s;
        case 5:
        case 6:
        case 7:
        case 8:
        case 9:
            return plain + u"'s"_s;
        default:
            return plain;
        }
    }

    QString sentence()
    {
        const QString text = words(6 + m_random() % 14);
        if (chance(7)) {
            return u"\""_s + text + u",\" she said. "_s;
        }
        return chance(150) ? text + u" (https://example.org/a). "_s : text + u". "_s;
    }

    QString paragraph()
    {
        QString text = chance(3) ? u"\t"_s : QString();
        for (std::size_t count = 3 + m_random() % 6; count > 0; --count) {
            text += sentence();
        }
        text.chop(1);
        return text + (chance(10) ? u"\n\n\n"_s : u"\n\n"_s);
    }

    std::mt19937 m_random;
};

/// Pairs for units from U+00A1 on, as many as are missing to fifty.
Table completed(Table table, const QString &prefix, const QString &suffix)
{
    for (char16_t unit = u'\u00A1'; table.from.size() < 50; ++unit) {
        table.from.prepend(QString(QChar(unit)));
        table.to.prepend(prefix + QString::number(unit) + suffix);
    }
    return table;
}

} // namespace

QString prose(qsizetype length)
{
    return proseFrom(20260101, length);
}

QString proseFrom(unsigned seed, qsizetype length)
{
    return Writer(seed).manuscript(length);
}

QString escapedProse(qsizetype length)
{
    QString text = prose(length);
    text.replace(u"\n"_s, u"\\n"_s).replace(u"\t"_s, u"\\t"_s).truncate(length);
    return text;
}

QString repeated(const QString &piece, qsizetype length)
{
    return piece.repeated(length / piece.size() + 1).left(length);
}

RangeList spread(qsizetype length, std::size_t count)
{
    RangeList ranges;
    for (std::size_t index = 0; index < count; ++index) {
        ranges.push_back({index * static_cast<std::size_t>(length - 4) / count, 4});
    }
    return ranges;
}

RangeList overlapping(qsizetype length, std::size_t count)
{
    RangeList ranges = spread(length / 4, count);
    for (Range &range : ranges) {
        range.length = 3;
    }
    return ranges;
}

AttributedString styled(const QString &text, std::size_t runs)
{
    QList<AttributedString::Stretch> stretches;
    const auto length = static_cast<std::size_t>(text.size());
    for (std::size_t index = 0; index < runs; ++index) {
        const std::size_t start = index * length / runs;
        stretches.append(
            {(index + 1) * length / runs - start, {{u"style"_s, index % 2 == 0 ? u"body"_s : u"strong"_s}}});
    }
    return AttributedString::fromStretches(QString(text.constData(), text.size()), stretches); // no shared storage
}

Table html()
{
    return completed({{u"\u2013"_s, u"\u2014"_s, u"\u2018"_s, u"\u2019"_s, u"\u201C"_s, u"\u201D"_s, u"\u2026"_s,
                       u"\u20AC"_s, u"<"_s, u">"_s, u"\""_s, u"'"_s, u"&"_s},
                      {u"&ndash;"_s, u"&mdash;"_s, u"&lsquo;"_s, u"&rsquo;"_s, u"&ldquo;"_s, u"&rdquo;"_s,
                       u"&hellip;"_s, u"&euro;"_s, u"&lt;"_s, u"&gt;"_s, u"&quot;"_s, u"&#39;"_s, u"&amp;"_s}},
                     u"&#"_s, u";"_s);
}

Table latex()
{
    return completed(
        {{u"\u2013"_s, u"\u2014"_s, u"\u2018"_s, u"\u2019"_s, u"\u201C"_s, u"\u201D"_s, u"\u2026"_s, u"\u20AC"_s,
          u"\""_s,     u"<"_s,      u">"_s,      u"|"_s,      u"~"_s,      u"^"_s,      u"_"_s,      u"%"_s,
          u"#"_s,      u"&"_s,      u"$"_s,      u"\uFDD0"_s, u"}"_s,      u"{"_s,      u"\\"_s},
         {u"\\textendash{}"_s,
          u"\\textemdash{}"_s,
          u"\\textquoteleft{}"_s,
          u"\\textquoteright{}"_s,
          u"\\textquotedblleft{}"_s,
          u"\\textquotedblright{}"_s,
          u"\\dots{}"_s,
          u"\\texteuro{}"_s,
          u"\\textquotedbl{}"_s,
          u"\\textless{}"_s,
          u"\\textgreater{}"_s,
          u"\\textbar{}"_s,
          u"\\textasciitilde{}"_s,
          u"\\textasciicircum{}"_s,
          u"\\_"_s,
          u"\\%"_s,
          u"\\#"_s,
          u"\\&"_s,
          u"\\$"_s,
          u"\\textbackslash{}"_s,
          u"\\}"_s,
          u"\\{"_s,
          u"\uFDD0"_s}},
        u"\\char"_s, u"{}"_s);
}

} // namespace texts
