#include "PanelOwner.h"

#include <OrvaneExportKit/platform/Bundle.h>
#include <OrvaneExportKit/platform/Exceptions.h>
#include <OrvaneExportKit/windowing/PanelBindings.h>
#include <OrvaneExportKit/windowing/UiLoader.h>

#include <QtCore/QLibraryInfo>
#include <QtCore/QTranslator>
#include <QtWidgets/QApplication>

using namespace Qt::Literals::StringLiterals;

namespace {

int showPanel()
{
    PanelOwner owner;
    const platform::Bundle bundle(u"org.orvane.example.panel"_s, u":/org.orvane.example.panel"_s);
    const auto panel = windowing::UiLoader::load(bundle, u"panel"_s);
    windowing::bindPanel(*panel, &owner);
    panel->show();
    const int result = QApplication::exec();
    owner.settings()->writeSettingsToDefaults();
    return result;
}

} // namespace

/// Shows a settings panel that is made of an interface file alone, and keeps what the user chooses in it.
int main(int argc, char *argv[])
{
    const QApplication application(argc, argv);
    QTranslator translator;
    if (translator.load(QLocale(), u"panel"_s, u"_"_s, u":/org.orvane.example.panel"_s)) {
        QCoreApplication::installTranslator(&translator);
    }
    try {
        return showPanel();
    } catch (const platform::Exception &error) {
        qCritical("%s", error.what());
        return 1;
    }
}
