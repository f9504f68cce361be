#pragma once

#include <OrvaneExportKit/platform/AttributedString.h>
#include <OrvaneExportKit/run/ExportDocument.h>

#include <QtCore/QString>

namespace host {

/// One document of a manuscript folder.
class ManuscriptDocument final : public ExportDocument
{
public:
    /// What manuscript.json says about a document.
    struct Entry {
        QString path; ///< of the file that holds the text
        QString name;
        QString status;
        QString label;
    };

    ManuscriptDocument(Entry entry, platform::AttributedString text);

    QString name() const override;
    QString status() const override;
    QString label() const override;

    const QString &path() const { return m_entry.path; }
    const platform::AttributedString &text() const { return m_text; }

private:
    Entry m_entry;
    platform::AttributedString m_text;
};

} // namespace host
