#include "DarkPalette.h"
#include "ExportWindow.h"
#include "WindowReporter.h"

#include <OrvaneExportKit/platform/Translations.h>

#include <QtCore/QCommandLineParser>
#include <QtWidgets/QApplication>

/// \file
/// A document window that exports its manuscript as soon as it is shown, with the kit's sheets, and ends. It says on
/// its standard output, a JSON object a line, which sheets it shows and how the export ended, so that a test can give
/// it real input.

using namespace Qt::Literals::StringLiterals;

int main(int argc, char *argv[])
{
    QApplication::setStyle(u"Fusion"_s); // the same on every desktop
    QApplication application(argc, argv);
    QCommandLineParser parser;
    parser.addPositionalArgument(u"manuscript"_s, u"the folder of the manuscript"_s);
    parser.addPositionalArgument(u"destination"_s, u"the folder for the files"_s);
    parser.addOption({u"language"_s, u"of the sheets"_s, u"code"_s, u"en"_s});
    parser.addOption({u"dark"_s, u"with a dark palette"_s});
    parser.addOption({u"milliseconds"_s, u"that a document takes"_s, u"number"_s, u"50"_s});
    parser.process(application);
    const QStringList folders = parser.positionalArguments();
    if (folders.size() != 2) {
        parser.showHelp(1);
    }

    platform::setLanguage(QLocale(parser.value(u"language"_s)));
    if (parser.isSet(u"dark"_s)) {
        QApplication::setPalette(darkPalette());
    }
    const WindowReporter reporter;
    ExportWindow window(folders[0], folders[1], parser.value(u"milliseconds"_s).toULong());
    window.show();
    return QApplication::exec();
}
