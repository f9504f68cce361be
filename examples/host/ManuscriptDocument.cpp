#include "ManuscriptDocument.h"

#include "DocumentText.h"

#include <utility>

namespace host {

ManuscriptDocument::ManuscriptDocument(Entry entry) : m_entry(std::move(entry))
{
}

QString ManuscriptDocument::name() const
{
    return m_entry.name;
}

QString ManuscriptDocument::status() const
{
    return m_entry.status;
}

QString ManuscriptDocument::label() const
{
    return m_entry.label;
}

platform::AttributedString ManuscriptDocument::text() const
{
    return m_text ? *m_text : documentText(m_entry.path);
}

} // namespace host
