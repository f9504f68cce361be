#pragma once

#include <OrvaneExportKit/run/ExportPlugin.h>

#include <QtCore/QObject>
#include <QtCore/QStringList>

#include <optional>

/// Writes documents as plain text: UTF-8 without byte order mark, lines ended by a line feed, no marks left.
///
/// The choices and what they do stand in `choices()`.
class PlainTextPlugin : public QObject, public ExportPlugin
{
    Q_OBJECT
    Q_INTERFACES(ExportPlugin)
    Q_PLUGIN_METADATA(IID ExportPlugin_iid FILE "plain-text.json")

public:
    /// The two strings that enclose an inline span.
    struct TagPair {
        QString start;
        QString stop;
    };

    /// All choices, in the form in which the export needs them.
    struct Options {
        quint32 lineLength = 0;    ///< in UTF-16 code units; 0 for lines as long as they are
        QString quotationLanguage; ///< a code of the quotation table; empty keeps straight marks
        QList<TagPair> inlineTags;
        QStringList levelStrings; ///< the longest first
        QStringList paragraphMarks;
        std::optional<quint32> tabWidth; ///< blanks for a tab at the start of a line; none keeps tabs
        bool keepsEmptyLines = true;
        bool correctsTypography = true;
    };

    QString name() const override;
    QString displayName() const override;
    QString pathExtension() const override;
    QList<Choice> choices() const override;
    KZExportSettings &settings() override;
    void setChoice(const QString &key, const QString &value) override;
    QByteArray exportedData(const ExportDocument &document, const platform::AttributedString &text) const override;
    platform::Bundle bundle() const override;

private:
    KZExportSettings m_settings{QStringLiteral("org.orvane.plain-text")};
};
