#include <OrvaneExportKit/windowing/MainWindow.h>

#include <QtCore/QPointer>
#include <QtWidgets/QApplication>

namespace windowing {

namespace {

QPointer<QWidget> &hostsWindow()
{
    static QPointer<QWidget> window;
    return window;
}

} // namespace

QWidget *mainWindow()
{
    QWidget *window = hostsWindow();
    return window != nullptr && window->isVisible() ? window->window() : QApplication::activeWindow();
}

void setMainWindow(QWidget *window)
{
    hostsWindow() = window;
}

} // namespace windowing
