#include "DarkPalette.h"
#include "FieldsDialog.h"
#include "WindowReporter.h"

#include <OrvaneExportKit/platform/Translations.h>

#include <QtCore/QCommandLineParser>
#include <QtWidgets/QApplication>

using namespace Qt::Literals::StringLiterals;

/// Shows a dialog with bound token fields, so that a test can give it real input.
int main(int argc, char *argv[])
{
    QApplication::setStyle(u"Fusion"_s); // the same on every desktop
    QApplication application(argc, argv);
    QCommandLineParser parser;
    parser.addOption({u"language"_s, u"of the menus"_s, u"code"_s, u"en"_s});
    parser.addOption({u"dark"_s, u"with a dark palette"_s});
    parser.addOption({u"rtl"_s, u"from right to left"_s});
    parser.process(application);
    platform::setLanguage(QLocale(parser.value(u"language"_s)));
    if (parser.isSet(u"dark"_s)) {
        QApplication::setPalette(darkPalette());
    }
    if (parser.isSet(u"rtl"_s)) {
        QApplication::setLayoutDirection(Qt::RightToLeft);
    }
    const WindowReporter reporter;
    FieldsDialog dialog;
    dialog.show();
    return QApplication::exec();
}
