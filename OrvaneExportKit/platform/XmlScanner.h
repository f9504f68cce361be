#pragma once

#include <QtCore/QString>

#include <optional>
#include <string>
#include <string_view>

namespace platform {

/// A tag of an XML text.
struct XmlTag {
    enum class Form {
        Start, ///< `<name>`
        End,   ///< `</name>`
        Empty, ///< `<name/>`
    };

    std::string_view name;
    Form form;
    std::string_view source; ///< all of it as it stands in the text, from `<` to `>`
};

/// Moves through the elements of an XML text in UTF-8. It takes property lists as they are found rather than as XML
/// defines them: control characters and carriage returns stand for themselves. A document type may name its definition,
/// which is never looked up, but not declare anything itself, so nothing in the text can expand.
///
/// All functions throw a `PropertyListError` when the text is not as they need it.
class XmlScanner
{
public:
    explicit XmlScanner(std::string_view text) : m_text(text) {}

    /// The first tag of the text.
    XmlTag firstTag();

    /// The tag that the next child of the element begins with; nothing, after which its end tag is passed, when there
    /// are no more. Throws when something else than elements stands there.
    std::optional<XmlTag> nextChild(const XmlTag &parent);

    /// The characters between a start tag and its end tag, with references resolved; none for an empty element. Valid
    /// until the next call.
    std::string_view readContent(const XmlTag &tag);

    /// Throws an error whose place is that of the tag.
    [[noreturn]] void fail(const XmlTag &tag, const QString &complaint) const;

private:
    [[noreturn]] void failAt(std::size_t position, const QString &complaint) const;
    void skipProlog();
    void skipDocumentType();
    void skipBlanks();
    bool skipComment();
    bool skipPast(std::string_view end);
    void skipToMarkupEnd();
    XmlTag parseTag();
    void requireEnd(const XmlTag &end, const XmlTag &start) const;
    void requireMore(const XmlTag &element) const;
    void appendPiece(const XmlTag &tag);
    void appendReference();
    void appendCdata();
    std::string_view readRun();

    bool atEnd() const { return m_position == m_text.size(); }
    char current() const { return atEnd() ? '\0' : m_text[m_position]; }
    bool at(std::string_view text) const { return m_text.substr(m_position).starts_with(text); }

    std::string_view m_text;
    std::size_t m_position = 0;
    std::string m_content; ///< the content read last, when it is not one piece of the text
};

/// Text of the file as an error shows it: in backticks, and of a long text only the start.
QString quoted(std::string_view text);

} // namespace platform
