#include <OrvaneExportKit/windowing/MessageLabel.h>

#include <OrvaneExportKit/windowing/EventGuard.h>
#include <OrvaneExportKit/windowing/UiLoader.h>

#include <QtCore/QtMath>
#include <QtGui/QPainter>
#include <QtGui/QTextLayout>
#include <QtWidgets/QStyle>

namespace windowing {

namespace {

const auto registration = WidgetClassRegistration::of<MessageLabel>();

constexpr int fewestCharacters = 20;

/// A text in lines of at most this width, as a painter draws it.
class WrappedText
{
public:
    WrappedText(const QLabel &label, qreal width) : m_layout(QString(label.text()).replace(u'\n', QChar::LineSeparator))
    {
        QTextOption option(
            QStyle::visualAlignment(label.layoutDirection(), label.alignment() & Qt::AlignHorizontal_Mask));
        option.setTextDirection(label.layoutDirection());
        option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
        m_layout.setTextOption(option);
        m_layout.setFont(label.font());
        m_layout.beginLayout();
        for (QTextLine line = m_layout.createLine(); line.isValid(); line = m_layout.createLine()) {
            line.setLineWidth(width);
            line.setPosition({0, m_height});
            m_height += line.height();
        }
        m_layout.endLayout();
    }

    int height() const { return qCeil(m_height); }
    void draw(QPainter &painter, QPoint topLeft) const { m_layout.draw(&painter, topLeft); }

private:
    QTextLayout m_layout;
    qreal m_height = 0;
};

} // namespace

MessageLabel::MessageLabel(QWidget *parent) : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
}

QSize MessageLabel::minimumSizeHint() const
{
    return {fewestCharacters * fontMetrics().averageCharWidth(), fontMetrics().lineSpacing()};
}

int MessageLabel::heightForWidth(int width) const
{
    return wordWrap() ? WrappedText(*this, width).height() : QLabel::heightForWidth(width);
}

void MessageLabel::paintEvent(QPaintEvent * /*event*/)
{
    guardedDisplay(*this, [this] { drawMessage(); });
}

void MessageLabel::drawMessage()
{
    QPainter painter(this);
    const QRect place = contentsRect();
    if (wordWrap()) {
        painter.setPen(palette().color(foregroundRole()));
        WrappedText(*this, place.width()).draw(painter, place.topLeft());
    } else {
        style()->drawItemText(&painter, place, static_cast<int>(alignment()) | Qt::TextSingleLine, palette(),
                              isEnabled(), fontMetrics().elidedText(text(), Qt::ElideMiddle, place.width()),
                              foregroundRole());
    }
}

} // namespace windowing
