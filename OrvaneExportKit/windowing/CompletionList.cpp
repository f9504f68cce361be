#include <OrvaneExportKit/windowing/CompletionList.h>

#include <QtGui/QScreen>
#include <QtWidgets/QScrollBar>

#include <algorithm>

namespace windowing {

CompletionList::CompletionList(QWidget *editor) : QListView(editor)
{
    setWindowFlags(Qt::ToolTip | Qt::FramelessWindowHint);
    setAttribute(Qt::WA_ShowWithoutActivating);
    setFocusPolicy(Qt::NoFocus);
    setEditTriggers(NoEditTriggers);
    setFrameShape(QFrame::Box);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setUniformItemSizes(true);
    setMouseTracking(true);
    setModel(&m_strings);
    connect(this, &QListView::entered, this, &QListView::setCurrentIndex);
    connect(this, &QListView::clicked, this,
            [this](const QModelIndex &index) { Q_EMIT picked(index.data().toString()); });
}

void CompletionList::showStrings(const QStringList &strings, int highlighted, const QRect &place)
{
    constexpr int mostRows = 8;
    m_strings.setStringList(strings);
    setCurrentIndex(m_strings.index(highlighted));

    const int rows = std::min(mostRows, static_cast<int>(strings.size()));
    const bool scrolls = rows < strings.size();
    const int width = sizeHintForColumn(0) + (scrolls ? verticalScrollBar()->sizeHint().width() : 0);
    const QSize size(width + 2 * frameWidth(), sizeHintForRow(0) * rows + 2 * frameWidth());
    const QRect available = parentWidget()->screen()->availableGeometry();
    QRect geometry(place.bottomLeft() + QPoint(0, 1), size);
    if (geometry.bottom() > available.bottom()) {
        geometry.moveBottom(place.top() - 1);
    }
    if (isRightToLeft()) {
        geometry.moveRight(place.right());
    }
    geometry.moveLeft(
        std::clamp(geometry.left(), available.left(), std::max(available.left(), available.right() - width)));
    setGeometry(geometry);
    show();
}

void CompletionList::moveHighlight(int rows)
{
    const int count = m_strings.rowCount();
    setCurrentIndex(m_strings.index((currentIndex().row() + rows + count) % count));
}

QString CompletionList::highlightedString() const
{
    return currentIndex().data().toString();
}

} // namespace windowing
