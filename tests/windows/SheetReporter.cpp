#include "SheetReporter.h"

#include <OrvaneExportKit/windowing/Panel.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QEvent>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtWidgets/QPushButton>

#include <cstdio>

using namespace Qt::Literals::StringLiterals;

void report(const QJsonObject &message)
{
    std::puts(QJsonDocument(message).toJson(QJsonDocument::Compact).constData());
    std::fflush(stdout);
}

SheetReporter::SheetReporter()
{
    QCoreApplication::instance()->installEventFilter(this);
}

bool SheetReporter::eventFilter(QObject *receiver, QEvent *event)
{
    const auto *sheet = qobject_cast<const windowing::Panel *>(receiver);
    if (sheet == nullptr || event->type() != QEvent::Show || event->spontaneous()) {
        return false;
    }
    QJsonObject buttons;
    for (const QPushButton *button : sheet->findChildren<QPushButton *>()) {
        const QPoint place = button->mapTo(sheet, button->rect().center()) * sheet->devicePixelRatio();
        buttons.insert(button->objectName(), QJsonArray{place.x(), place.y()});
    }
    report({{u"sheet"_s, sheet->objectName()},
            {u"window"_s, static_cast<qint64>(sheet->winId())},
            {u"buttons"_s, buttons}});
    return false;
}
