#include <tests/end_to_end/plugins/TestPlugin.h>

#include <chrono>
#include <thread>

/// Takes as many milliseconds over a document as its label says, and exports it as it is.
class SlowPlugin : public TestPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID ExportPlugin_iid)

public:
    QString name() const override { return QStringLiteral("slow"); }

    QByteArray exportedData(const ExportDocument &document, const platform::AttributedString &text) const override
    {
        std::this_thread::sleep_for(std::chrono::milliseconds(document.label().toInt()));
        return text.string().toUtf8();
    }
};

#include "SlowPlugin.moc"
