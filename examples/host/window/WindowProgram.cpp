#include "WindowProgram.h"

#include "Appearance.h"
#include "HostError.h"
#include "ManuscriptWindow.h"
#include "Messages.h"
#include "PluginFolder.h"
#include "PluginSettings.h"
#include "Supervisor.h"
#include "Terminal.h"
#include "WindowDefaults.h"

#include <QtCore/QLibraryInfo>
#include <QtCore/QTranslator>
#include <QtWidgets/QApplication>

#include <memory>
#include <optional>

using namespace Qt::Literals::StringLiterals;

namespace host {

namespace {

/// While the application object is made: that it can't be is an error of the user's, told in one sentence, and no
/// reason for a crash.
void endWithoutDisplay(QtMsgType type, const QMessageLogContext & /*context*/, const QString &message)
{
    static QString reason; // the first message says what happened, those behind it what follows from that
    if (reason.isEmpty()) {
        reason = message.simplified();
    }
    if (type == QtFatalMsg) {
        printError(
            u"no window can be shown: %1; start the program on a desktop, or use the command export"_s.arg(reason));
        endWork(static_cast<int>(ExitCode::Display));
    }
}

std::unique_ptr<QApplication> makeApplication(int &argc, char *argv[])
{
    const QtMessageHandler before = qInstallMessageHandler(endWithoutDisplay);
    auto application = std::make_unique<QApplication>(argc, argv);
    qInstallMessageHandler(before);
    QApplication::setApplicationDisplayName(u"Orvane"_s);
    return application;
}

void installTranslation(const QLocale &locale, const QString &name, const QString &folder)
{
    auto *translator = new QTranslator(QCoreApplication::instance());
    if (translator->load(locale, name, u"_"_s, folder)) {
        QCoreApplication::installTranslator(translator);
    }
}

void installTranslations()
{
    installTranslation(QLocale(), u"qtbase"_s, QLibraryInfo::path(QLibraryInfo::TranslationsPath));
    const QString folder = u":/orvane-host"_s;
    installTranslation(QLocale(QLocale::English), u"host"_s, folder); // the plurals, for every language without its own
    installTranslation(QLocale(), u"host"_s, folder);
}

/// The plug-ins with their saved settings; a sentence for everything that is wrong with them goes into `problems`.
std::optional<PluginFolder> loadedPlugins(const QString &folder, QStringList &problems)
{
    try {
        PluginFolder plugins(folder);
        for (const QString &problem : plugins.problems()) {
            problems.append(sentence(problem));
        }
        for (ExportPlugin *plugin : plugins.plugins()) {
            const QString problem = loadSavedSettings(plugin->settings());
            if (!problem.isEmpty()) {
                problems.append(problem);
            }
        }
        return plugins;
    } catch (const HostError &error) {
        problems.append(sentence(error.message()));
        return std::nullopt;
    }
}

} // namespace

int showWindow(int argc, char *argv[], const WindowRequest &request)
{
    const auto application = makeApplication(argc, argv);
    installTranslations();
    useDarkPalette(keptValue(keys::darkPalette).toBool());
    QStringList problems;
    const std::optional<PluginFolder> plugins = loadedPlugins(request.pluginFolder, problems);
    ManuscriptWindow window(plugins ? plugins->plugins() : QList<ExportPlugin *>());
    window.show();
    if (request.manuscriptFolder) {
        window.openManuscript(*request.manuscriptFolder);
    }
    if (!problems.isEmpty()) {
        window.showMessage(problems.join(u'\n'));
    }
    return QApplication::exec();
}

} // namespace host
