#include "HtmlPage.h"

#include <OrvaneExportKit/text/EscapeSequences.h>

#include <QtCore/QSet>

namespace html {

namespace {

using namespace Qt::Literals::StringLiterals;

bool isParagraphElement(const QString &style)
{
    static const QSet<QString> elements{u"h1"_s, u"h2"_s, u"h3"_s,  u"h4"_s,     u"h5"_s,
                                        u"h6"_s, u"p"_s,  u"pre"_s, u"address"_s};
    return elements.contains(style);
}

bool isSpanElement(const QString &style)
{
    static const QSet<QString> elements{u"em"_s,   u"strong"_s, u"i"_s,    u"b"_s,     u"u"_s,    u"s"_s,
                                        u"code"_s, u"cite"_s,   u"q"_s,    u"small"_s, u"mark"_s, u"sub"_s,
                                        u"sup"_s,  u"kbd"_s,    u"samp"_s, u"var"_s,   u"dfn"_s};
    return elements.contains(style);
}

/// The style as a class name: letters and digits, and hyphens for everything else.
QString className(QString style)
{
    for (QChar &character : style) {
        character = character.isLetterOrNumber() ? character : QChar(u'-');
    }
    return style;
}

QString enclosed(const QString &content, const QString &startTag)
{
    const QString name = startTag.section(u' ', 0, 0);
    return u"<%1>%2</%3>"_s.arg(startTag, content, name);
}

QString tagOfSpan(const QString &style)
{
    return isSpanElement(style) ? style : u"span class=\"%1\""_s.arg(className(style));
}

QString span(const styled::Span &span)
{
    QString content = escaped(span.text).replace(u'\n', u"<br>\n"_s).replace(u'\t', u"&emsp;"_s);
    for (auto style = span.styles.rbegin(); style != span.styles.rend(); ++style) {
        content = enclosed(content, tagOfSpan(*style));
    }
    return content;
}

QString marker(const QString &style)
{
    return style == u"hr" ? u"<hr>"_s : enclosed({}, u"div class=\"%1\""_s.arg(className(style)));
}

/// The family that a font name begins with, and what its style says.
QString fontRules(const QString &fontName)
{
    const QString style = fontName.section(u'-', 1);
    QString rules = u"font-family: \"%1\", serif;"_s.arg(fontName.section(u'-', 0, 0));
    if (style.contains(u"Bold"_s, Qt::CaseInsensitive)) {
        rules += u" font-weight: bold;"_s;
    }
    if (style.contains(u"Italic"_s, Qt::CaseInsensitive) || style.contains(u"Oblique"_s, Qt::CaseInsensitive)) {
        rules += u" font-style: italic;"_s;
    }
    return rules;
}

QString points(double length)
{
    return QString::number(length) + u"pt"_s;
}

QString styleSheet(const styled::Page &look)
{
    const double textWidth = look.paper.shrunkBy(look.margins).width();
    const QString margins = u"%1 %2 %3 %4"_s.arg(points(look.margins.top()), points(look.margins.right()),
                                                 points(look.margins.bottom()), points(look.margins.left()));
    return u"@page { size: %1 %2; margin: %3; }\n"
           "body { %4 font-size: %5; line-height: 1.45; max-width: %6; margin: 3em auto; padding: 0 1.5em; }\n"
           "h1, h2, h3 { line-height: 1.2; }\n"
           "p { margin: 0 0 0.8em; }\n"
           "blockquote { margin: 1em 2em; font-style: italic; }\n"
           "hr { border: 0; border-top: 1px solid; width: 30%; margin: 2em auto; }\n"
           "@media print { body { margin: 0; padding: 0; max-width: none; } }\n"
           "@media (prefers-color-scheme: dark) { :root { color-scheme: dark; } }\n"_s.arg(
               points(look.paper.width()), points(look.paper.height()), margins, fontRules(look.fontName),
               points(look.fontSize), points(textWidth));
}

} // namespace

QString escaped(const QString &text)
{
    QString allowed = text;
    allowed.removeIf([](QChar character) {
        return character.category() == QChar::Other_Control && character != u'\n' && character != u'\t';
    });
    return KZStringExportAdditions::stringWithConvertedStringsFromArray(
        allowed, {u"<"_s, u">"_s, u"\""_s, u"&"_s}, {u"&lt;"_s, u"&gt;"_s, u"&quot;"_s, u"&amp;"_s}); // the last first
}

QString element(const styled::Paragraph &paragraph)
{
    if (paragraph.isMarker) {
        return marker(paragraph.style);
    }
    QString content;
    for (const styled::Span &part : paragraph.spans) {
        content += span(part);
    }
    if (paragraph.style.isEmpty()) {
        return enclosed(content, u"p"_s);
    }
    if (paragraph.style == u"blockquote") {
        return enclosed(enclosed(content, u"p"_s), paragraph.style);
    }
    return enclosed(content, isParagraphElement(paragraph.style) ? paragraph.style
                                                                 : u"p class=\"%1\""_s.arg(className(paragraph.style)));
}

QString page(const QString &title, const QString &language, const styled::Page &look, const QString &content)
{
    return u"<!DOCTYPE html>\n"
           "<html lang=\"%1\">\n"
           "<head>\n"
           "<meta charset=\"utf-8\">\n"
           "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n"
           "<title>%2</title>\n"
           "<style>\n%3</style>\n"
           "</head>\n"
           "<body>\n%4</body>\n"
           "</html>\n"_s.arg(escaped(language), escaped(title), styleSheet(look), content);
}

} // namespace html
