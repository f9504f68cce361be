#include "WindowReport.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QApplication>
#include <QtWidgets/QCheckBox>

using namespace Qt::Literals::StringLiterals;

namespace {

QString shownText(const QWidget &widget)
{
    for (const char *property : {"text", "plainText", "currentText"}) {
        const QVariant value = widget.property(property);
        if (value.isValid()) {
            return value.toString();
        }
    }
    return {};
}

QJsonArray rowsOf(const QWidget &widget)
{
    QJsonArray rows;
    const auto *view = qobject_cast<const QAbstractItemView *>(&widget);
    const QAbstractItemModel *model = view != nullptr ? view->model() : nullptr;
    for (int row = 0; model != nullptr && row < model->rowCount(); ++row) {
        QJsonArray cells;
        for (int column = 0; column < model->columnCount(); ++column) {
            cells.append(model->index(row, column).data().toString());
        }
        rows.append(cells);
    }
    return rows;
}

/// The middle of what takes a click: a check box takes none beside its text.
QPoint middleOf(const QWidget &widget)
{
    const bool isCheckBox = qobject_cast<const QCheckBox *>(&widget) != nullptr;
    return (isCheckBox ? QRect(QPoint(), widget.sizeHint()) : widget.rect()).center();
}

QJsonObject reportOf(const QWidget &widget)
{
    const QPoint center = widget.mapToGlobal(middleOf(widget));
    return {
        {u"name"_s, widget.objectName()}, {u"text"_s, shownText(widget)},
        {u"rows"_s, rowsOf(widget)},      {u"enabled"_s, widget.isEnabled()},
        {u"focus"_s, widget.hasFocus()},  {u"center"_s, QJsonArray{center.x(), center.y()}},
    };
}

QJsonObject reportOfWindow(const QWidget &window)
{
    QJsonArray widgets;
    for (const QWidget *widget : window.findChildren<QWidget *>()) {
        if (widget->isVisible() && widget->window() == &window) {
            widgets.append(reportOf(*widget));
        }
    }
    return {
        {u"name"_s, window.objectName()},
        {u"title"_s, window.windowTitle()},
        {u"modified"_s, window.isWindowModified()},
        {u"active"_s, window.isActiveWindow()},
        {u"widgets"_s, widgets},
    };
}

} // namespace

QByteArray windowReport()
{
    QJsonArray windows;
    for (const QWidget *window : QApplication::topLevelWidgets()) {
        if (window->isVisible()) {
            windows.append(reportOfWindow(*window));
        }
    }
    return QJsonDocument(windows).toJson(QJsonDocument::Compact);
}
