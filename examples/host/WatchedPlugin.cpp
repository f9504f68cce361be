#include "WatchedPlugin.h"

#include "Messages.h"
#include "WorkRecord.h"

#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace host {

namespace {

QString nameOf(const ExportPlugin &plugin, const QString &file)
{
    const PluginCall call(u"the plug-in %1"_s.arg(quoted(file)), u"its name"_s);
    return plugin.name();
}

} // namespace

WatchedPlugin::WatchedPlugin(std::unique_ptr<ExportPlugin> plugin, const QString &file)
    : m_plugin(std::move(plugin)), m_name(nameOf(*m_plugin, file)), m_description(u"the plug-in "_s + printable(m_name))
{
}

WatchedPlugin::~WatchedPlugin()
{
    const PluginCall call(m_description, u"its end"_s);
    m_plugin.reset();
}

QString WatchedPlugin::displayName() const
{
    const PluginCall call(m_description, u"the name that users read"_s);
    return m_plugin->displayName();
}

QString WatchedPlugin::pathExtension() const
{
    const PluginCall call(m_description, u"the extension of its files"_s);
    return m_plugin->pathExtension();
}

QList<ExportPlugin::Choice> WatchedPlugin::choices() const
{
    const PluginCall call(m_description, u"its choices"_s);
    return m_plugin->choices();
}

KZExportSettings &WatchedPlugin::settings()
{
    const PluginCall call(m_description, u"its settings"_s);
    return m_plugin->settings();
}

void WatchedPlugin::setChoice(const QString &key, const QString &value)
{
    const PluginCall call(m_description, u"the choice "_s + quoted(key));
    m_plugin->setChoice(key, value);
}

QByteArray WatchedPlugin::exportedData(const ExportDocument &document, const platform::AttributedString &text) const
{
    const PluginCall call(m_description, u"the document "_s + quoted(document.name()));
    return m_plugin->exportedData(document, text);
}

QStringList WatchedPlugin::additionalFileNames() const
{
    const PluginCall call(m_description, u"the names of its files"_s);
    return m_plugin->additionalFileNames();
}

QByteArray WatchedPlugin::additionalFileData(const QString &fileName, const QString &title,
                                             const QList<ExportedFile> &files) const
{
    const PluginCall call(m_description, u"the file "_s + quoted(fileName));
    return m_plugin->additionalFileData(fileName, title, files);
}

platform::Bundle WatchedPlugin::bundle() const
{
    const PluginCall call(m_description, u"its resources"_s);
    return m_plugin->bundle();
}

} // namespace host
