#include <tests/end_to_end/plugins/TestPlugin.h>

#include <stdexcept>

/// Can't be created.
class UnloadablePlugin : public TestPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID ExportPlugin_iid)

public:
    UnloadablePlugin() { throw std::runtime_error("the ink is missing"); }

    QString name() const override { return QStringLiteral("unloadable"); }

    QByteArray exportedData(const ExportDocument & /*document*/,
                            const platform::AttributedString & /*text*/) const override
    {
        return {};
    }
};

#include "UnloadablePlugin.moc"
