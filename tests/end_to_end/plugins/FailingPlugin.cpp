#include <tests/end_to_end/plugins/TestPlugin.h>

#include <csignal>
#include <stdexcept>

/// Throws or crashes where a document asks for it, and exports any other one as it is. Throws out of another operation
/// where the environment variable FAILING_OPERATION names it.
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
        if (text.string() == u"crash") {
            std::raise(SIGSEGV);
        }
        return text.string().toUtf8();
    }

    QString pathExtension() const override
    {
        failIn("pathExtension");
        return TestPlugin::pathExtension();
    }

    QList<Choice> choices() const override
    {
        failIn("choices");
        return TestPlugin::choices();
    }

    QStringList additionalFileNames() const override
    {
        failIn("additionalFileNames");
        return TestPlugin::additionalFileNames();
    }

private:
    static void failIn(const char *operation)
    {
        if (qgetenv("FAILING_OPERATION") == operation) {
            throw std::runtime_error("the ink has run out");
        }
    }
};

#include "FailingPlugin.moc"
