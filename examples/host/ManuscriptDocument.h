#pragma once

#include <OrvaneExportKit/platform/AttributedString.h>
#include <OrvaneExportKit/run/ExportDocument.h>

#include <QtCore/QString>

#include <optional>

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

    explicit ManuscriptDocument(Entry entry);

    QString name() const override;
    QString status() const override;
    QString label() const override;

    const QString &path() const { return m_entry.path; }

    /// The text that is held, or else that of the file, read anew. Throws `HostError` when the file can't be read.
    platform::AttributedString text() const;

    /// Holds a text in place of the one in the file.
    void setText(const platform::AttributedString &text) { m_text = text; }

    /// Goes back to the text of the file.
    void releaseText() { m_text.reset(); }

    bool holdsText() const { return m_text.has_value(); }

private:
    Entry m_entry;
    std::optional<platform::AttributedString> m_text;
};

} // namespace host
