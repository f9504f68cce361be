#include <OrvaneExportKit/OrvaneExportKit.h>
#include <OrvaneExportKit/windowing/OpenPanel.h>

#include <QtWidgets/QApplication>

/// Succeeds when the kit's core asks the panel of the library with the windows.
int main(int argc, char *argv[])
{
    const QApplication application(argc, argv);
    windowing::OpenPanel::openPanel().setRequiredFileType(QStringLiteral("rtf"));
    return platform::requiredFileType() == QStringLiteral("rtf") ? 0 : 1;
}
