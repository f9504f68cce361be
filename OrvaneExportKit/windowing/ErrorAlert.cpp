#include <OrvaneExportKit/windowing/ErrorAlert.h>

#include <OrvaneExportKit/windowing/MainWindow.h>

#include <QtCore/QPointer>
#include <QtWidgets/QApplication>
#include <QtWidgets/QMessageBox>

namespace windowing {

namespace {

void installErrorAlert()
{
    if (qobject_cast<QApplication *>(QCoreApplication::instance()) != nullptr) {
        static ErrorAlert alert;
        platform::setErrorAlert(&alert);
    }
}
Q_COREAPP_STARTUP_FUNCTION(installErrorAlert)

} // namespace

void ErrorAlert::runModal(const QString &errorDescription)
{
    QWidget *modalWindow = QApplication::activeModalWidget();
    QWidget *parent = modalWindow != nullptr ? modalWindow : mainWindow();
    const QPointer<QMessageBox> box = new QMessageBox(QMessageBox::Warning, QGuiApplication::applicationDisplayName(),
                                                      errorDescription, QMessageBox::Ok, parent);
    box->setTextFormat(Qt::PlainText);
    box->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    box->exec();
    delete box; // null by now where its parent was destroyed meanwhile
}

} // namespace windowing
