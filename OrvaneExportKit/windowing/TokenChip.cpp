#include <OrvaneExportKit/windowing/TokenChip.h>

#include <OrvaneExportKit/windowing/TokenEditor.h>
#include <OrvaneExportKit/windowing/TokenText.h>

#include <QtGui/QFontMetricsF>
#include <QtGui/QPainter>
#include <QtGui/QPalette>

#include <utility>

namespace windowing {

namespace {

constexpr qreal gap = 1.5; // between a chip and its neighbours

qreal padding(const QFontMetricsF &metrics)
{
    return metrics.height() * 0.45;
}

QColor mixed(const QColor &over, const QColor &under, float share)
{
    const auto mix = [share](float a, float b) {
        return a * share + b * (1.0F - share);
    };
    return QColor::fromRgbF(mix(over.redF(), under.redF()), mix(over.greenF(), under.greenF()),
                            mix(over.blueF(), under.blueF()));
}

struct Colors {
    QColor ground;
    QColor tint;
    QColor text;
};

void drawChip(QPainter &painter, const QRectF &line, const Colors &colors)
{
    const QRectF chip = line.adjusted(gap, -0.5, -gap, 0.5);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(mixed(colors.tint, colors.ground, 0.55F));
    painter.setBrush(mixed(colors.tint, colors.ground, 0.18F));
    painter.drawRoundedRect(chip, chip.height() / 2.0, chip.height() / 2.0);
}

/// Draws a token or a sign over the height of a line.
void draw(QPainter &painter, const QRectF &line, const QString &text, bool isChip, const QFont &font,
          const Colors &colors)
{
    painter.save();
    if (isChip) {
        drawChip(painter, line, colors);
    }
    painter.setFont(font);
    painter.setPen(isChip ? colors.text : mixed(colors.text, colors.ground, 0.55F));
    painter.drawText(line, Qt::AlignCenter | Qt::TextSingleLine, text);
    painter.restore();
}

/// What is shown for a character that a line cannot hold.
QString signFor(QChar character)
{
    const bool endsLine = character == u'\n' || character == u'\r' || character == QChar::LineSeparator ||
                          character == QChar::ParagraphSeparator;
    return endsLine ? QString(QChar(0x21B5)) : QString(QChar::ReplacementCharacter);
}

bool isChip(const QTextFormat &format)
{
    return format.objectType() == tokenObjectType;
}

} // namespace

TokenChip::TokenChip(TokenEditor &editor) : QObject(&editor), m_editor(editor)
{
}

QSizeF TokenChip::intrinsicSize(QTextDocument * /*document*/, int /*position*/, const QTextFormat &format)
{
    const QFontMetricsF metrics(m_editor.font());
    const double sides = isChip(format) ? 2.0 * (padding(metrics) + gap) : 0.0;
    return {metrics.horizontalAdvance(textOf(format)) + sides, metrics.ascent()};
}

void TokenChip::drawObject(QPainter *painter, const QRectF &rect, QTextDocument * /*document*/, int position,
                           const QTextFormat &format)
{
    const QRectF line = rect.adjusted(0.0, 0.0, 0.0, QFontMetricsF(m_editor.font()).descent());
    const QTextCursor cursor = m_editor.textCursor();
    if (position >= cursor.selectionStart() && position < cursor.selectionEnd()) {
        m_selection.append({painter->worldTransform().mapRect(line), textOf(format), isChip(format)});
        return;
    }
    const QPalette &palette = m_editor.palette();
    draw(*painter, line, textOf(format), isChip(format), m_editor.font(),
         {palette.color(QPalette::Base), palette.color(QPalette::Highlight), palette.color(QPalette::Text)});
}

void TokenChip::drawSelection(QPainter &painter)
{
    const QPalette &palette = m_editor.palette();
    const QPalette::ColorGroup group = m_editor.selectionColors();
    const QColor highlight = palette.color(group, QPalette::Highlight);
    const QColor text = palette.color(group, QPalette::HighlightedText);
    for (const Object &object : std::as_const(m_selection)) {
        painter.fillRect(object.line, highlight);
        draw(painter, object.line, object.text, object.isChip, m_editor.font(), {highlight, text, text});
    }
    m_selection.clear();
}

QString TokenChip::textOf(const QTextFormat &format) const
{
    return isChip(format) ? m_editor.vocabulary().displayString(representedObject(format))
                          : signFor(heldCharacter(format));
}

} // namespace windowing
