#include "DarkPalette.h"
#include "WindowReporter.h"

#include <QtCore/QTimer>
#include <QtGui/QGenericPlugin>
#include <QtWidgets/QApplication>

/// Lets a program report its windows that knows nothing of it: Qt loads the plug-in into every application that is
/// started with QT_QPA_GENERIC_PLUGINS=reporter. With "reporter:dark" the application gets a dark palette.
class ReporterPlugin final : public QGenericPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "ReporterPlugin.json")

public:
    QObject *create(const QString & /*key*/, const QString &specification) override
    {
        if (specification == QLatin1String("dark")) {
            QTimer::singleShot(0, qApp, [] { QApplication::setPalette(darkPalette()); });
        }
        return new WindowReporter; // which the application owns
    }
};

#include "ReporterPlugin.moc"
