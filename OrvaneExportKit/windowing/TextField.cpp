#include <OrvaneExportKit/windowing/TextField.h>

#include <OrvaneExportKit/windowing/EventGuard.h>
#include <OrvaneExportKit/windowing/ParagraphStyle.h>
#include <OrvaneExportKit/windowing/TextAttributes.h>

#include <QtGui/QPainter>
#include <QtGui/QTextLayout>
#include <QtWidgets/QStyle>
#include <QtWidgets/QStyleOptionFrame>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace windowing {

namespace {

/// The space that a line edit leaves at both ends of its text.
constexpr int textMargin = 2;

/// The text as one line: what would break it becomes a blank.
QString onOneLine(QString text)
{
    for (QChar &unit : text) {
        if (unit == u'\n' || unit == u'\r' || unit == QChar::LineSeparator || unit == QChar::ParagraphSeparator) {
            unit = u' ';
        }
    }
    return text;
}

QList<QTextLayout::FormatRange> formats(const platform::AttributedString &text)
{
    QList<QTextLayout::FormatRange> formats;
    platform::Range run;
    for (std::size_t index = 0; index < text.length(); index = run.end()) {
        const QVariantMap attributes = text.attributesAtIndex(index, &run);
        formats.append({static_cast<int>(run.location), static_cast<int>(run.length), characterFormat(attributes)});
    }
    return formats;
}

QTextLine layOut(QTextLayout &layout)
{
    layout.beginLayout();
    const QTextLine line = layout.createLine();
    layout.endLayout();
    return line;
}

} // namespace

TextField::TextField(QWidget *parent) : QLineEdit(parent)
{
}

void TextField::setBezelStyle(BezelStyle style)
{
    m_bezelStyle = style;
    update();
}

QVariantMap TextField::plainTextAttributes() const
{
    ParagraphStyle style;
    style.alignment = textAlignment(alignment());
    return {{fontAttributeName, font()},
            {foregroundColorAttributeName, palette().color(QPalette::Text)},
            {paragraphStyleAttributeName, QVariant::fromValue(style)}};
}

platform::AttributedString TextField::attributedStringValue() const
{
    return m_value.string() == text() ? m_value : platform::AttributedString(text(), plainTextAttributes());
}

void TextField::setAttributedStringValue(const platform::AttributedString &value)
{
    m_value = value;
    setText(value.string());
    update();
}

void TextField::setStringValue(const QString &string)
{
    setAttributedStringValue(platform::AttributedString(string, plainTextAttributes()));
}

void TextField::paintEvent(QPaintEvent *event)
{
    if (isEditable()) {
        QLineEdit::paintEvent(event);
        return;
    }
    guardedDisplay(*this, [this] {
        QPainter painter(this);
        drawBezel(painter);
        drawText(painter);
    });
}

void TextField::drawBezel(QPainter &painter) const
{
    QStyleOptionFrame option;
    initStyleOption(&option);
    if (m_bezelStyle == BezelStyle::Square || !hasFrame()) {
        style()->drawPrimitive(QStyle::PE_PanelLineEdit, &option, &painter, this);
        return;
    }
    QColor outline = palette().color(QPalette::Text);
    outline.setAlphaF(0.4F);
    const double width = hasFocus() ? 2.0 : 1.0;
    const QRectF edge = QRectF(rect()).adjusted(width / 2.0, width / 2.0, -width / 2.0, -width / 2.0);
    constexpr double largestRadius = 7.0;
    const double radius = std::min(largestRadius, edge.height() / 2.0);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(hasFocus() ? palette().color(QPalette::Highlight) : outline, width));
    painter.setBrush(palette().color(QPalette::Base));
    painter.drawRoundedRect(edge, radius, radius);
}

void TextField::drawText(QPainter &painter) const
{
    QStyleOptionFrame option;
    initStyleOption(&option);
    const QRect space = style()
                            ->subElementRect(QStyle::SE_LineEditContents, &option, this)
                            .marginsRemoved(textMargins())
                            .adjusted(textMargin, 0, -textMargin, 0);
    const platform::AttributedString value = attributedStringValue();
    QTextLayout layout(onOneLine(value.string()), font(), painter.device());
    layout.setFormats(formats(value));
    QTextLine line = layOut(layout);
    if (line.naturalTextWidth() > space.width()) {
        const double room = space.width() - fontMetrics().horizontalAdvance(u'\u2026');
        const int end = line.xToCursor(room, QTextLine::CursorOnCharacter);
        layout.setText(layout.text().left(end) + u'\u2026');
        line = layOut(layout);
    }
    QList<QTextLayout::FormatRange> selection;
    if (hasSelectedText()) {
        QTextCharFormat selected;
        selected.setForeground(palette().color(QPalette::HighlightedText));
        selected.setBackground(palette().color(QPalette::Highlight));
        selection.append({selectionStart(), selectionLength(), selected});
    }
    const QSize size(qRound(line.naturalTextWidth()), qRound(line.height()));
    const QRect place = QStyle::alignedRect(
        layoutDirection(), QStyle::visualAlignment(layoutDirection(), alignment() | Qt::AlignVCenter), size, space);
    painter.setClipRect(space);
    painter.setPen(palette().color(QPalette::Text));
    layout.draw(&painter, place.topLeft(), selection);
}

} // namespace windowing
