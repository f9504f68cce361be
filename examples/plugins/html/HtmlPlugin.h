#pragma once

#include <OrvaneExportKit/run/ExportPlugin.h>

#include <QtCore/QObject>

/// Writes documents as web pages: one valid HTML5 file a document, and an index of them.
///
/// Headings, quotations, emphasis and rules come from the marks in the text, as the three lists of styles say; the look
/// of a page is a style sheet inside it, made of the font and page settings.
class HtmlPlugin : public QObject, public ExportPlugin
{
    Q_OBJECT
    Q_INTERFACES(ExportPlugin)
    Q_PLUGIN_METADATA(IID ExportPlugin_iid FILE "html.json")

public:
    HtmlPlugin();

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
    KZExportSettings m_settings{QStringLiteral("org.orvane.html")};
};
