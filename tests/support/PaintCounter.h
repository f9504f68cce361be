#pragma once

#include <QtCore/QEvent>
#include <QtCore/QObject>
#include <QtWidgets/QWidget>

namespace support {

/// Counts how often a widget is painted.
class PaintCounter final : public QObject
{
public:
    explicit PaintCounter(QWidget &widget) { widget.installEventFilter(this); }

    int count() const { return m_count; }

    bool eventFilter(QObject * /*widget*/, QEvent *event) override
    {
        m_count += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }

private:
    int m_count = 0;
};

} // namespace support
