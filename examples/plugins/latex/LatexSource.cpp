#include "LatexSource.h"

#include <OrvaneExportKit/text/EscapeSequences.h>

#include <QtCore/QSet>

#include <algorithm>
#include <array>
#include <cmath>

namespace latex {

namespace {

using namespace Qt::Literals::StringLiterals;

bool isSectioning(const QString &style)
{
    static const QSet<QString> commands{u"section"_s, u"subsection"_s, u"subsubsection"_s, u"paragraph"_s,
                                        u"subparagraph"_s};
    return commands.contains(style);
}

bool isEnvironment(const QString &style)
{
    static const QSet<QString> environments{u"quote"_s,     u"quotation"_s,  u"verse"_s,   u"center"_s,
                                            u"flushleft"_s, u"flushright"_s, u"abstract"_s};
    return environments.contains(style);
}

bool isSpanCommand(const QString &style)
{
    static const QSet<QString> commands{u"textbf"_s, u"textit"_s, u"emph"_s,   u"textsc"_s,
                                        u"texttt"_s, u"textsf"_s, u"textsl"_s, u"textup"_s};
    return commands.contains(style);
}

bool isMarkerCommand(const QString &style)
{
    static const QSet<QString> commands{u"asterism"_s, u"bigskip"_s, u"medskip"_s, u"newpage"_s, u"clearpage"_s};
    return commands.contains(style);
}

/// Whether the base fonts surely have the character.
bool isOrdinary(char32_t character)
{
    constexpr std::u32string_view punctuation = U"‐–—‘’‚“”„†‡•…‰‹›€™";
    return character < 0x7F || (character >= 0xA0 && character <= 0xFF) ||
           punctuation.find(character) != std::u32string_view::npos;
}

/// Stands for a backslash while braces are escaped.
constexpr QChar backslash(0xFDD0);

bool isForbidden(QChar unit)
{
    return unit == backslash || (unit.category() == QChar::Other_Control && unit != u'\n' && unit != u'\t');
}

QString codeOf(char32_t character)
{
    return QString::number(uint(character), 16).toUpper().rightJustified(4, u'0');
}

/// Replaces what has a meaning in LaTeX, and parts characters of which two in a row would become one other.
QString withEscapedMeanings(const QString &text)
{
    struct Pair {
        QString from;
        QString to;
    };
    // The last pair has its turn first. Of three in a row a second turn finds the two that are left.
    static const QList<Pair> pairs{
        {u"''"_s, u"'{}'"_s},
        {u"''"_s, u"'{}'"_s},
        {u"``"_s, u"`{}`"_s},
        {u"``"_s, u"`{}`"_s},
        {u"--"_s, u"-{}-"_s},
        {u"--"_s, u"-{}-"_s},
        {u",,"_s, u",{},"_s},
        {u",,"_s, u",{},"_s},
        {u"<<"_s, u"<{}<"_s},
        {u"<<"_s, u"<{}<"_s},
        {u">>"_s, u">{}>"_s},
        {u">>"_s, u">{}>"_s},
        {u"?`"_s, u"?{}`"_s},
        {u"!`"_s, u"!{}`"_s},
        {u"\t"_s, u"\\quad{}"_s},
        {u"\""_s, u"\\textquotedbl{}"_s},
        {u"~"_s, u"\\textasciitilde{}"_s},
        {u"^"_s, u"\\textasciicircum{}"_s},
        {u"_"_s, u"\\_"_s},
        {u"%"_s, u"\\%"_s},
        {u"#"_s, u"\\#"_s},
        {u"&"_s, u"\\&"_s},
        {u"$"_s, u"\\$"_s},
        {backslash, u"\\textbackslash{}"_s},
        {u"}"_s, u"\\}"_s},
        {u"{"_s, u"\\{"_s},
        {u"\\"_s, backslash},
    };
    QStringList from;
    QStringList to;
    for (const Pair &pair : pairs) {
        from.append(pair.from);
        to.append(pair.to);
    }
    return KZStringExportAdditions::stringWithConvertedStringsFromArray(text, from, to);
}

QString command(const QString &name, const QString &argument)
{
    return u"\\%1{%2}"_s.arg(name, argument);
}

QString environment(const QString &name, const QString &content)
{
    return u"\\begin{%1}\n%2\n\\end{%1}"_s.arg(name, content);
}

/// The spans with line breaks written as given.
QString content(const QList<styled::Span> &spans, const QString &lineBreak)
{
    QString result;
    for (const styled::Span &span : spans) {
        QString text = escaped(span.text).replace(u'\n', lineBreak);
        for (auto style = span.styles.rbegin(); style != span.styles.rend(); ++style) {
            text = isSpanCommand(*style) ? command(*style, text) : text;
        }
        result += text;
    }
    return result;
}

/// The class has texts of three sizes.
int nearestSize(double points)
{
    constexpr std::array sizes{10, 11, 12};
    return *std::min_element(sizes.begin(), sizes.end(),
                             [points](int a, int b) { return std::abs(a - points) < std::abs(b - points); });
}

QString length(double points)
{
    return QString::number(points) + u"bp"_s; // TeX calls others "pt"
}

} // namespace

QString escaped(const QString &text)
{
    QString allowed = text;
    allowed.removeIf(isForbidden);
    QString result;
    for (const char32_t character : withEscapedMeanings(allowed).toUcs4()) {
        const QString string = QString::fromUcs4(&character, 1);
        result += isOrdinary(character) ? string : u"\\anychar{%1}{%2}"_s.arg(string, codeOf(character));
    }
    return result;
}

QString block(const styled::Paragraph &paragraph)
{
    if (paragraph.isMarker) {
        return isMarkerCommand(paragraph.style) ? u'\\' + paragraph.style : u"\\asterism"_s;
    }
    if (isSectioning(paragraph.style)) {
        return command(paragraph.style, content(paragraph.spans, u" "_s));
    }
    const QString text = content(paragraph.spans, u"\\newline\n"_s);
    return isEnvironment(paragraph.style) ? environment(paragraph.style, text) : text;
}

QString document(const QString &title, const styled::Page &look, const QString &content)
{
    const QString geometry = u"paperwidth=%1,paperheight=%2,top=%3,bottom=%4,left=%5,right=%6"_s.arg(
        length(look.paper.width()), length(look.paper.height()), length(look.margins.top()),
        length(look.margins.bottom()), length(look.margins.left()), length(look.margins.right()));
    return u"% %1\n"
           "\\documentclass[%2pt]{article}\n"
           "\\usepackage[T1]{fontenc}\n"
           "\\usepackage[utf8]{inputenc}\n"
           "\\IfFileExists{lmodern.sty}{\\usepackage{lmodern}}{}\n"
           "\\usepackage[%3]{geometry}\n"
           "\\setcounter{secnumdepth}{0}\n"
           "\\newcommand{\\asterism}{\\begin{center}*\\quad*\\quad*\\end{center}}\n"
           "% The character, or its code where the fonts do not have it.\n"
           "\\newcommand{\\anychar}[2]{\\ifcsname u8:\\detokenize{#1}\\endcsname#1\\else[U+#2]\\fi}\n"
           "\\begin{document}\n"
           "\\mbox{}\\vspace{-\\baselineskip}\n\n"
           "%4"
           "\\end{document}\n"_s.arg(escaped(title).replace(u'\n', u' '), QString::number(nearestSize(look.fontSize)),
                                     geometry, content);
}

} // namespace latex
