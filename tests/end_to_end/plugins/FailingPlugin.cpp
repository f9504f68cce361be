#include <tests/end_to_end/plugins/TestPlugin.h>

#include <csignal>
#include <cstdlib>
#include <exception>
#include <stdexcept>

namespace {

/// Fails where the environment variable FAILING_OPERATION names this operation, in the way that FAILING_WAY says, or
/// else by an exception.
void failIn(const char *operation)
{
    if (qgetenv("FAILING_OPERATION") != operation) {
        return;
    }
    const QByteArray way = qgetenv("FAILING_WAY");
    if (way == "exit") {
        std::exit(0);
    } else if (way == "_exit") {
        std::_Exit(0);
    } else if (way == "_exit 7") {
        std::_Exit(7);
    } else if (way == "quick_exit") {
        std::quick_exit(0);
    } else if (way == "terminate") {
        std::terminate();
    } else if (way == "abort") {
        std::abort();
    } else if (way == "crash") {
        std::raise(SIGSEGV);
    } else if (way == "kill") {
        std::raise(SIGKILL);
    }
    throw std::runtime_error("the ink has run out");
}

/// Lives as long as the library.
struct Static {
    Static() { failIn("static initialiser"); }
    Static(const Static &) = delete;
    Static &operator=(const Static &) = delete;
    ~Static() { failIn("static destructor"); }
};

const Static object;

} // namespace

/// Fails where the document or the environment asks for it, and exports any other document as it is. Adds the files
/// that ADDITIONAL_FILES names, separated by semicolons and with NULL for U+0000, each of which holds its name.
class FailingPlugin : public TestPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID ExportPlugin_iid)

public:
    FailingPlugin() { failIn("constructor"); }
    ~FailingPlugin() override { failIn("destructor"); }

    QString name() const override
    {
        failIn("name");
        return QStringLiteral("failing");
    }

    QByteArray exportedData(const ExportDocument &document, const platform::AttributedString &text) const override
    {
        if (document.name() == u"Two") {
            failIn("exportedData");
        }
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

    QString displayName() const override
    {
        failIn("displayName");
        return TestPlugin::displayName();
    }

    QString pathExtension() const override
    {
        failIn("pathExtension");
        return TestPlugin::pathExtension();
    }

    QList<Choice> choices() const override
    {
        failIn("choices");
        return {{QStringLiteral("ink"), QStringLiteral("black"), QStringLiteral("the colour")}};
    }

    KZExportSettings &settings() override
    {
        failIn("settings");
        return TestPlugin::settings();
    }

    void setChoice(const QString & /*key*/, const QString & /*value*/) override { failIn("setChoice"); }

    QStringList additionalFileNames() const override
    {
        failIn("additionalFileNames");
        const QString names = qEnvironmentVariable("ADDITIONAL_FILES", QStringLiteral("index.txt"));
        return names.split(u';', Qt::SkipEmptyParts).replaceInStrings(QStringLiteral("NULL"), QString(QChar(u'\0')));
    }

    QByteArray additionalFileData(const QString &fileName, const QString & /*title*/,
                                  const QList<ExportedFile> & /*files*/) const override
    {
        failIn("additionalFileData");
        return fileName.toUtf8();
    }
};

#include "FailingPlugin.moc"
