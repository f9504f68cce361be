#include <OrvaneExportKit/windowing/TokenChip.h>

#include <OrvaneExportKit/windowing/TokenEditor.h>
#include <OrvaneExportKit/windowing/TokenText.h>

#include <QtGui/QFontMetricsF>
#include <QtGui/QPainter>
#include <QtGui/QPalette>

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
    const QTextCursor cursor = m_editor.textCursor();
    const bool isSelected = position >= cursor.selectionStart() && position < cursor.selectionEnd();
    const QPalette &palette = m_editor.palette();
    const QColor highlight = palette.color(QPalette::Highlight);
    const QColor base = palette.color(QPalette::Base);

    const QRectF line = rect.adjusted(0.0, 0.0, 0.0, QFontMetricsF(m_editor.font()).descent());
    const QRectF chip = line.adjusted(gap, -0.5, -gap, 0.5);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(isSelected ? highlight : mixed(highlight, base, 0.55F));
    painter->setBrush(isSelected ? highlight : mixed(highlight, base, 0.18F));
    painter->drawRoundedRect(chip, chip.height() / 2.0, chip.height() / 2.0);
    painter->setFont(m_editor.font());
    painter->setPen(palette.color(isSelected ? QPalette::HighlightedText : QPalette::Text));
    painter->drawText(line, Qt::AlignCenter | Qt::TextSingleLine, m_editor.displayString(representedObject(format)));
    painter->restore();
}

} // namespace windowing
