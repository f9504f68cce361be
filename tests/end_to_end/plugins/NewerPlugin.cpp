#include <tests/end_to_end/plugins/TestPlugin.h>

/// Stands for an operation that only a newer kit has.
ORVANE_CORE_EXPORT QByteArray operationOfANewerKit(const QString &text);

/// Was built against a newer kit, and uses what it has.
class NewerPlugin : public TestPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID ExportPlugin_iid)

public:
    QString name() const override { return QStringLiteral("newer"); }

    QList<Choice> choices() const override
    {
        operationOfANewerKit({});
        return {};
    }

    QByteArray exportedData(const ExportDocument & /*document*/, const platform::AttributedString &text) const override
    {
        return operationOfANewerKit(text.string());
    }
};

#include "NewerPlugin.moc"
