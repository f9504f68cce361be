#pragma once

#include <OrvaneExportKit/run/ExportPlugin.h>

#include <QtCore/QString>

#include <memory>

namespace host {

/// A plug-in all of whose operations are noted while they run, so that the user learns of one that ends the program
/// instead of answering. It answers what the plug-in answers, and throws what that throws.
class WatchedPlugin final : public ExportPlugin
{
public:
    /// `file` names the plug-in until it has told its name.
    WatchedPlugin(std::unique_ptr<ExportPlugin> plugin, const QString &file);
    WatchedPlugin(const WatchedPlugin &) = delete;
    WatchedPlugin &operator=(const WatchedPlugin &) = delete;
    ~WatchedPlugin() override;

    QString name() const override { return m_name; }
    QString displayName() const override;
    QString pathExtension() const override;
    QList<Choice> choices() const override;
    KZExportSettings &settings() override;
    void setChoice(const QString &key, const QString &value) override;
    QByteArray exportedData(const ExportDocument &document, const platform::AttributedString &text) const override;
    QStringList additionalFileNames() const override;
    QByteArray additionalFileData(const QString &fileName, const QString &title,
                                  const QList<ExportedFile> &files) const override;
    platform::Bundle bundle() const override;

private:
    std::unique_ptr<ExportPlugin> m_plugin;
    QString m_name;
    QString m_description;
};

} // namespace host
