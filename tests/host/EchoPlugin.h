#pragma once

#include <OrvaneExportKit/run/ExportPlugin.h>

namespace host_tests {

/// A format without a panel: the text of a document behind the setting "prefix".
class EchoPlugin : public ExportPlugin
{
public:
    EchoPlugin() { m_settings.setObject(QStringLiteral(">"), QStringLiteral("prefix")); }

    QString name() const override { return QStringLiteral("echo"); }
    QString displayName() const override { return QStringLiteral("Echo"); }
    QString pathExtension() const override { return QStringLiteral("echo"); }
    QList<Choice> choices() const override
    {
        return {{QStringLiteral("suffix"), QStringLiteral("<"), QStringLiteral("what stands behind the text")}};
    }
    KZExportSettings &settings() override { return m_settings; }
    void setChoice(const QString & /*key*/, const QString & /*value*/) override {}

    QByteArray exportedData(const ExportDocument & /*document*/, const platform::AttributedString &text) const override
    {
        if (text.string() == u"fail") {
            throw platform::InvalidArgumentException("no echo");
        }
        return (m_settings.objectForKey(QStringLiteral("prefix")).toString() + text.string()).toUtf8();
    }

private:
    KZExportSettings m_settings{QStringLiteral("org.orvane.test.echo")};
};

} // namespace host_tests
