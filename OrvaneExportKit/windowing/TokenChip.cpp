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

/// Draws a chip over the height of a line, as a tint on the ground.
void drawChip(QPainter &painter, const QRectF &line, const QString &text, const QFont &font, const QColor &ground,
              const QColor &tint, const QColor &textColor)
{
    const QRectF chip = line.adjusted(gap, -0.5, -gap, 0.5);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(mixed(tint, ground, 0.55F));
    painter.setBrush(mixed(tint, ground, 0.18F));
    painter.drawRoundedRect(chip, chip.height() / 2.0, chip.height() / 2.0);
    painter.setFont(font);
    painter.setPen(textColor);
    painter.drawText(line, Qt::AlignCenter | Qt::TextSingleLine, text);
    painter.restore();
}

} // namespace

TokenChip::TokenChip(TokenEditor &editor) : QObject(&editor), m_editor(editor)
{
}

QSizeF TokenChip::intrinsicSize(QTextDocument * /*document*/, int /*position*/, const QTextFormat &format)
{
    const QFontMetricsF metrics(m_editor.font());
    const QString text = m_editor.displayString(representedObject(format));
    return {metrics.horizontalAdvance(text) + 2.0 * (padding(metrics) + gap), metrics.ascent()};
}

void TokenChip::drawObject(QPainter *painter, const QRectF &rect, QTextDocument * /*document*/, int position,
                           const QTextFormat &format)
{
    const QString text = m_editor.displayString(representedObject(format));
    const QRectF line = rect.adjusted(0.0, 0.0, 0.0, QFontMetricsF(m_editor.font()).descent());
    const QTextCursor cursor = m_editor.textCursor();
    if (position >= cursor.selectionStart() && position < cursor.selectionEnd()) {
        m_selectedChips.append({painter->worldTransform().mapRect(line), text});
        return;
    }
    const QPalette &palette = m_editor.palette();
    drawChip(*painter, line, text, m_editor.font(), palette.color(QPalette::Base), palette.color(QPalette::Highlight),
             palette.color(QPalette::Text));
}

void TokenChip::drawSelectedChips(QPainter &painter)
{
    const QPalette &palette = m_editor.palette();
    const QColor highlight = palette.color(QPalette::Highlight);
    const QColor text = palette.color(QPalette::HighlightedText);
    for (const SelectedChip &chip : std::as_const(m_selectedChips)) {
        painter.fillRect(chip.line, highlight);
        drawChip(painter, chip.line, chip.text, m_editor.font(), highlight, text, text);
    }
    m_selectedChips.clear();
}

} // namespace windowing
