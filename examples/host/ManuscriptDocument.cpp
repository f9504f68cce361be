#include "ManuscriptDocument.h"

#include <utility>

namespace host {

ManuscriptDocument::ManuscriptDocument(Entry entry, platform::AttributedString text)
    : m_entry(std::move(entry)), m_text(std::move(text))
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

} // namespace host
