#pragma once

#include <OrvaneExportKit/run/ExportPlugin.h>

#include <QtCore/QObject>

/// Writes documents as LaTeX: a source file a document, which `pdflatex` compiles with nothing but its base packages.
///
/// Sections, quotations, emphasis and rules come from the marks in the text, as the three lists of styles say; paper,
/// margins and the size of the text come from the page settings.
class LatexPlugin : public QObject, public ExportPlugin
{
    Q_OBJECT
    Q_INTERFACES(ExportPlugin)
    Q_PLUGIN_METADATA(IID ExportPlugin_iid FILE "latex.json")

public:
    LatexPlugin();

    QString name() const override;
    QString displayName() const override;
    QString pathExtension() const override;
    QList<Choice> choices() const override;
    KZExportSettings &settings() override;
    void setChoice(const QString &key, const QString &value) override;
    QByteArray exportedData(const ExportDocument &document, const platform::AttributedString &text) const override;
    platform::Bundle bundle() const override;

private:
    KZExportSettings m_settings{QStringLiteral("org.orvane.latex")};
};
