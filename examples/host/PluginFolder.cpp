#include "PluginFolder.h"

#include "HostError.h"
#include "Messages.h"
#include "WatchedPlugin.h"
#include "WorkRecord.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QLibrary>
#include <QtCore/QPluginLoader>

#include <algorithm>
#include <exception>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace host {

namespace {

HostError pluginError(const QString &message)
{
    return {ExitCode::Plugin, message};
}

/// An interface's identifier taken apart: "OrvaneExportKit.ExportPlugin/" and "1".
struct InterfaceIdentifier {
    explicit InterfaceIdentifier(const QString &identifier)
        : name(identifier.first(identifier.lastIndexOf(u'/') + 1)), version(identifier.sliced(name.size()))
    {
    }

    QString name;
    QString version;
};

/// Throws unless a library with this identifier is an export plug-in for this program's version of the interface.
void requireOwnInterface(const QString &identifier)
{
    const InterfaceIdentifier own(QStringLiteral(ExportPlugin_iid));
    const InterfaceIdentifier other(identifier);
    if (other.name != own.name) {
        throw pluginError(
            Texts::tr("it is a Qt plug-in of another kind, for %1, no export plug-in").arg(quoted(identifier)));
    }
    if (other.version != own.version) {
        throw pluginError(
            Texts::tr("it was built for version %1 of the plug-in interface, this program has version %2; rebuild "
                      "it against the kit that this program came with")
                .arg(printable(other.version), own.version));
    }
}

/// Loads the plug-in in a file. What the metadata rules out is never loaded, so none of its code runs.
std::unique_ptr<ExportPlugin> loadedPlugin(const QString &path)
{
    QPluginLoader loader(path);
    const QString identifier = loader.metaData().value("IID"_L1).toString();
    if (identifier.isEmpty()) {
        throw pluginError(Texts::tr("it is no Qt plug-in: %1").arg(printable(loader.errorString())));
    }
    requireOwnInterface(identifier);
    // A symbol that is missing shows now, and not when the plug-in is in the middle of its work.
    loader.setLoadHints(loader.loadHints() | QLibrary::ResolveAllSymbolsHint);
    const PluginCall call(u"the plug-in "_s + quoted(path), u"its loading"_s);
    QObject *instance = loader.instance();
    if (instance == nullptr) {
        throw pluginError(Texts::tr("it can't be loaded: %1; install what it needs, or rebuild it against the kit that "
                                    "this program came with")
                              .arg(printable(loader.errorString())));
    }
    auto *plugin = qobject_cast<ExportPlugin *>(instance);
    if (plugin == nullptr) {
        throw pluginError(Texts::tr("its class %1 does not offer the interface that its metadata names")
                              .arg(QLatin1StringView(instance->metaObject()->className())));
    }
    return std::unique_ptr<ExportPlugin>(plugin);
}

/// Asks a plug-in for all that it says of itself, so that one that fails on it is known before it is used.
void requireAnswers(const ExportPlugin &plugin)
{
    plugin.displayName();
    plugin.pathExtension();
    plugin.choices();
}

QStringList namesOf(const std::vector<std::unique_ptr<ExportPlugin>> &plugins)
{
    QStringList names;
    for (const auto &plugin : plugins) {
        names.append(plugin->name());
    }
    return names;
}

} // namespace

PluginFolder::PluginFolder(const QString &path) : m_path(path)
{
    const QDir folder(path);
    if (!folder.exists()) {
        throw pluginError(Texts::tr("there is no plug-in folder %1; name one by --plugin-folder or ORVANE_PLUGIN_PATH")
                              .arg(quoted(path)));
    }
    for (const QString &name : folder.entryList(QDir::Files, QDir::Name)) {
        if (QLibrary::isLibrary(name)) {
            add(folder.absoluteFilePath(name)); // the loader searches other places for relative paths
        }
    }
}

PluginFolder::~PluginFolder()
{
    const QStringList names = namesOf(m_plugins);
    m_plugins.clear();
    if (!names.isEmpty()) {
        PluginCall::noteLast(u"one of the plug-ins "_s + printable(names.join(", "_L1)), u"the end of the program"_s);
    }
}

QList<ExportPlugin *> PluginFolder::plugins() const
{
    QList<ExportPlugin *> plugins;
    for (const auto &plugin : m_plugins) {
        plugins.append(plugin.get());
    }
    return plugins;
}

ExportPlugin &PluginFolder::pluginNamed(const QString &name) const
{
    ExportPlugin *plugin = findPlugin(name);
    if (plugin == nullptr) {
        const QString names = m_plugins.empty() ? Texts::tr("none") : printable(namesOf(m_plugins).join(", "_L1));
        throw pluginError(Texts::tr("there is no plug-in %1 in the folder %2; it holds: %3")
                              .arg(quoted(name), quoted(m_path), names) +
                          listed(m_problems));
    }
    return *plugin;
}

ExportPlugin *PluginFolder::findPlugin(const QString &name) const
{
    const auto found = std::find_if(m_plugins.begin(), m_plugins.end(),
                                    [&name](const auto &plugin) { return plugin->name() == name; });
    return found == m_plugins.end() ? nullptr : found->get();
}

void PluginFolder::add(const QString &file)
{
    QString reason = Texts::tr("it failed while it was loaded");
    try {
        auto plugin = std::make_unique<WatchedPlugin>(loadedPlugin(file), file);
        requireAnswers(*plugin);
        if (findPlugin(plugin->name()) == nullptr) {
            m_metadata.insert(plugin.get(), QPluginLoader(file).metaData().value("MetaData"_L1).toObject());
            m_plugins.push_back(std::move(plugin));
            return;
        }
        reason = Texts::tr("the folder holds another plug-in of the name %1").arg(quoted(plugin->name()));
    } catch (const HostError &error) {
        reason = error.message();
    } catch (const std::exception &exception) {
        reason += u": "_s + printable(QString::fromUtf8(exception.what()));
    } catch (...) {
        // It does not say why.
    }
    m_problems.append(Texts::tr("%1 can't be used: %2").arg(quoted(file), reason));
}

QString defaultPluginFolder()
{
    QString named = qEnvironmentVariable("ORVANE_PLUGIN_PATH");
    if (!named.isEmpty()) {
        return named;
    }
    return QDir::cleanPath(QCoreApplication::applicationDirPath() + u"/" ORVANE_PLUGINS_FROM_PROGRAM ""_s);
}

} // namespace host
