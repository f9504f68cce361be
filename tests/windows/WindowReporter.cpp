#include "WindowReporter.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QEvent>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtGui/QAccessible>
#include <QtWidgets/QWidget>

#include <cstdio>

using namespace Qt::Literals::StringLiterals;

void report(const QJsonObject &message)
{
    std::puts(QJsonDocument(message).toJson(QJsonDocument::Compact).constData());
    std::fflush(stdout);
}

WindowReporter::WindowReporter()
{
    QCoreApplication::instance()->installEventFilter(this);
}

bool WindowReporter::eventFilter(QObject *receiver, QEvent *event)
{
    if (event->type() != QEvent::Show || event->spontaneous() || !receiver->isWidgetType()) {
        return false;
    }
    auto *window = static_cast<QWidget *>(receiver);
    if (!window->isWindow() || window->objectName().isEmpty()) {
        return false;
    }
    QJsonObject controls;
    for (QWidget *control : window->findChildren<QWidget *>()) {
        if (control->objectName().isEmpty()) {
            continue;
        }
        const QPoint place = control->mapTo(window, QPoint()) * window->devicePixelRatio();
        const QSize size = control->size() * window->devicePixelRatio();
        const QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(control);
        controls.insert(
            control->objectName(),
            QJsonObject{{u"place"_s, QJsonArray{place.x(), place.y()}},
                        {u"size"_s, QJsonArray{size.width(), size.height()}},
                        {u"value"_s, accessible == nullptr ? QString() : accessible->text(QAccessible::Value)}});
    }
    report({{u"window"_s, window->objectName()},
            {u"id"_s, static_cast<qint64>(window->winId())},
            {u"controls"_s, controls}});
    return false;
}
