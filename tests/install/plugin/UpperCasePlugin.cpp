#include <OrvaneExportKit/OrvaneExportKit.h>

#include <QtCore/QObject>

/// Writes documents in capitals, with typographic quotation marks and without level strings.
class UpperCasePlugin : public QObject, public ExportPlugin
{
    Q_OBJECT
    Q_INTERFACES(ExportPlugin)
    Q_PLUGIN_METADATA(IID ExportPlugin_iid)

public:
    QString name() const override { return QStringLiteral("upper-case"); }
    QString displayName() const override { return QStringLiteral("Upper Case"); }
    QString pathExtension() const override { return QStringLiteral("upper"); }
    QList<Choice> choices() const override { return {}; }
    KZExportSettings &settings() override { return m_settings; }

    void setChoice(const QString &key, const QString & /*value*/) override
    {
        throw platform::InvalidArgumentException("there is no choice " + key.toStdString());
    }

    QByteArray exportedData(const ExportDocument & /*document*/, const platform::AttributedString &text) const override
    {
        platform::AttributedString prepared = text;
        KZMutableAttributedStringExportAdditions::deleteLevelMark(prepared, u"#");
        KZMutableAttributedStringExportAdditions::convertQuotationsToType(prepared, 3);
        return prepared.string().toUpper().toUtf8();
    }

private:
    KZExportSettings m_settings{QStringLiteral("org.example.upper-case")};
};

#include "UpperCasePlugin.moc"
