#pragma once

#include <OrvaneExportKit/run/ExportPlugin.h>

#include <QtCore/QHash>
#include <QtCore/QJsonObject>
#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <memory>
#include <vector>

namespace host {

/// The export plug-ins of one folder, loaded. The libraries stay loaded until the program ends.
class PluginFolder
{
public:
    /// Loads every shared library of the folder that is an export plug-in for this version of the interface.
    /// The code of any other library does not run. Throws `HostError` when there is no such folder.
    explicit PluginFolder(const QString &path);
    PluginFolder(const PluginFolder &) = delete;
    PluginFolder &operator=(const PluginFolder &) = delete;
    PluginFolder(PluginFolder &&) = default;
    PluginFolder &operator=(PluginFolder &&) = default;
    ~PluginFolder();

    const QString &path() const { return m_path; }

    /// The plug-ins, which end with the folder.
    QList<ExportPlugin *> plugins() const;

    /// What the metadata file of a plug-in says: "version", "description". Empty for one without such a file.
    QJsonObject metadataOf(const ExportPlugin &plugin) const { return m_metadata.value(&plugin); }

    /// A sentence for each shared library that can't be used: which one, and why.
    const QStringList &problems() const { return m_problems; }

    /// The plug-in with this name. Throws `HostError`, naming those that there are, when none has it.
    ExportPlugin &pluginNamed(const QString &name) const;

private:
    ExportPlugin *findPlugin(const QString &name) const;
    void add(const QString &file);

    QString m_path;
    std::vector<std::unique_ptr<ExportPlugin>> m_plugins;
    QHash<const ExportPlugin *, QJsonObject> m_metadata;
    QStringList m_problems;
};

/// The folder that is used when the command line names none: the one named by the environment variable
/// ORVANE_PLUGIN_PATH, else the one that was installed with the program.
QString defaultPluginFolder();

} // namespace host
