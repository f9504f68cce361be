#include <OrvaneExportKit/run/ExportPlugin.h>

ExportPlugin::~ExportPlugin() = default;

void ExportPlugin::storeMissingChoices()
{
    for (const Choice &choice : choices()) {
        if (!settings().objectForKey(choice.key).isValid()) {
            settings().setValue(choice.defaultValue, choice.key);
        }
    }
}

QStringList ExportPlugin::additionalFileNames() const
{
    return {};
}

QByteArray ExportPlugin::additionalFileData(const QString & /*fileName*/, const QString & /*title*/,
                                            const QList<ExportedFile> & /*files*/) const
{
    return {};
}

platform::Bundle ExportPlugin::bundle() const
{
    return {};
}
