#include <tests/end_to_end/plugins/TestPlugin.h>

#include <stdexcept>

/// Throws where a document asks for it, and exports any other one as it is.
class FailingPlugin : public TestPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID ExportPlugin_iid)

public:
    QString name() const override { return QStringLiteral("failing"); }

    QByteArray exportedData(const ExportDocument & /*document*/, const platform::AttributedString &text) const override
    {
        if (text.string() == u"throw an exception") {
            throw std::runtime_error("the ink has run out");
        }
        if (text.string() == u"throw a number") {
            throw 7;
        }
        return text.string().toUtf8();
    }
};

#include "FailingPlugin.moc"
