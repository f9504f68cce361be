#pragma once

#include "OutputPaths.h"
#include "Terminal.h"

#include <QtCore/QCommandLineParser>
#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <optional>

namespace host {

/// What the user wants exported, and how.
struct ExportRequest {
    /// One choice of the plug-in.
    struct Setting {
        QString key;
        QString value;
    };

    QString manuscriptFolder;
    QString pluginName;
    OutputNames names;
    bool replaceFiles = false; ///< the user has agreed beforehand to replace files that exist
    QList<Setting> settings;
    std::optional<QString> settingsFile;               ///< takes the place of the saved settings
    bool saveSettings = false;                         ///< keeps the settings of this run
    ListSeparator separator = ListSeparator::LineFeed; ///< of the list of files
};

/// The window that the user wants.
struct WindowRequest {
    std::optional<QString> manuscriptFolder; ///< opened at the start
    QString pluginFolder;
};

/// The command line taken apart.
class CommandLine
{
public:
    enum class Task { ShowHelp, ShowVersion, ListPlugins, Export, ShowWindow };

    /// Throws `HostError` for options that do not exist or lack their value.
    explicit CommandLine(const QStringList &arguments);

    Task task() const;
    QString helpText() const;
    QString pluginFolder() const;

    /// Throws `HostError` when something is missing or wrong.
    ExportRequest exportRequest() const;

    /// Throws `HostError` when something is wrong.
    WindowRequest windowRequest() const;

private:
    QString requiredValue(const QString &option, const QString &purpose) const;
    QString manuscriptFolder(const QString &command) const;
    std::optional<QString> extension() const;
    QList<ExportRequest::Setting> settings() const;

    QCommandLineParser m_parser;
};

} // namespace host
