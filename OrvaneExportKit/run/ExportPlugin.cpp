#include <OrvaneExportKit/run/ExportPlugin.h>

ExportPlugin::~ExportPlugin() = default;

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
