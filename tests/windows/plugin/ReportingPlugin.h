#pragma once

#include <OrvaneExportKit/run/ExportPlugin.h>

#include <QtCore/QObject>

/// A format whose files say which settings they were made with. In a program with windows it answers, for every line on
/// standard input, a line of JSON that tells what the windows show and where, so that a test can give real input.
class ReportingPlugin : public QObject, public ExportPlugin
{
    Q_OBJECT
    Q_INTERFACES(ExportPlugin)
    Q_PLUGIN_METADATA(IID ExportPlugin_iid)

public:
    ReportingPlugin();

    QString name() const override;
    QString displayName() const override;
    QString pathExtension() const override;
    QList<Choice> choices() const override;
    KZExportSettings &settings() override;
    void setChoice(const QString &key, const QString &value) override;
    QByteArray exportedData(const ExportDocument &document, const platform::AttributedString &text) const override;
    QStringList additionalFileNames() const override;
    QByteArray additionalFileData(const QString &fileName, const QString &title,
                                  const QList<ExportedFile> &files) const override;
    platform::Bundle bundle() const override;

private:
    KZExportSettings m_settings{QStringLiteral("org.orvane.test.reporting")};
};
