#include <OrvaneExportKit/platform/XmlScanner.h>

#include <OrvaneExportKit/platform/XmlText.h>

#include <algorithm>
#include <charconv>
#include <optional>
#include <utility>

namespace platform {

namespace {

using namespace Qt::Literals::StringLiterals;

QByteArrayView bytes(std::string_view text)
{
    return {text.data(), static_cast<qsizetype>(text.size())};
}

QString string(std::string_view text)
{
    return QString::fromUtf8(bytes(text));
}

bool isSpace(char character)
{
    return character == ' ' || character == '\t' || character == '\n' || character == '\r';
}

constexpr std::string_view documentType = "<!DOCTYPE";
constexpr std::string_view cdataStart = "<![CDATA[";
constexpr std::string_view cdataEnd = "]]>";

bool endsName(char character)
{
    return isSpace(character) || character == '/' || character == '>';
}

bool endsMarkup(char character)
{
    return character == '>' || character == '<' || character == '[';
}

bool endsRun(char character)
{
    return character == '<' || character == '&' || character == '\0';
}

/// The character that a reference names by its number, which is written as `13` or `xD`.
std::optional<char32_t> referencedCharacter(std::string_view number)
{
    constexpr std::size_t longestNumber = 8;
    const bool hex = number.starts_with('x');
    number.remove_prefix(hex ? 1 : 0);
    const char *const end = number.data() + number.size();
    quint32 character = 0;
    const std::from_chars_result result = std::from_chars(number.data(), end, character, hex ? 16 : 10);
    if (result.ec != std::errc() || result.ptr != end || number.size() > longestNumber || character == 0 ||
        character > QChar::LastValidCodePoint || QChar::isSurrogate(character)) {
        return std::nullopt;
    }
    return character;
}

/// What the reference `&name;` stands for.
std::optional<char32_t> referencedEntity(std::string_view name)
{
    if (name.starts_with('#')) {
        return referencedCharacter(name.substr(1));
    }
    constexpr std::pair<std::string_view, char32_t> entities[] = {
        {"lt", U'<'}, {"gt", U'>'}, {"amp", U'&'}, {"quot", U'"'}, {"apos", U'\''}};
    for (const auto &[entity, character] : entities) {
        if (name == entity) {
            return character;
        }
    }
    return std::nullopt;
}

} // namespace

XmlTag XmlScanner::firstTag()
{
    skipProlog();
    if (atEnd()) {
        failAt(m_position, u"there is no property list"_s);
    }
    if (current() != '<' || at("<!")) {
        failAt(m_position, u"this is not a property list"_s);
    }
    return parseTag();
}

std::optional<XmlTag> XmlScanner::nextChild(const XmlTag &parent)
{
    if (parent.form == XmlTag::Form::Empty) {
        return std::nullopt;
    }
    skipBlanks();
    requireMore(parent);
    if (current() != '<' || at("<!")) {
        failAt(m_position, u"`<%1>` holds something other than elements"_s.arg(string(parent.name)));
    }
    const XmlTag tag = parseTag();
    if (tag.form == XmlTag::Form::End) {
        requireEnd(tag, parent);
        return std::nullopt;
    }
    return tag;
}

void XmlScanner::skipProlog()
{
    for (skipBlanks(); at(documentType); skipBlanks()) {
        skipDocumentType();
    }
}

void XmlScanner::skipDocumentType()
{
    const std::size_t start = m_position;
    m_position += documentType.size();
    skipToMarkupEnd();
    if (current() == '[') {
        failAt(m_position, u"a document type with declarations of its own is not read"_s);
    }
    if (current() != '>') {
        failAt(start, u"this document type is not closed"_s);
    }
    ++m_position;
}

/// Skips white space, comments and processing instructions.
void XmlScanner::skipBlanks()
{
    do {
        while (isSpace(current())) {
            ++m_position;
        }
    } while (skipComment());
}

/// Skips a comment or processing instruction and answers whether one stood here.
bool XmlScanner::skipComment()
{
    const std::size_t start = m_position;
    const bool isComment = at("<!--");
    if (!isComment && !at("<?")) {
        return false;
    }
    m_position += isComment ? 4 : 2;
    if (!skipPast(isComment ? "-->" : "?>")) {
        failAt(start, isComment ? u"this comment is not closed"_s : u"this processing instruction is not closed"_s);
    }
    return true;
}

/// Moves behind the next `end`, or to the end of the text when there is none, and answers which.
bool XmlScanner::skipPast(std::string_view end)
{
    const std::size_t found = m_text.find(end, m_position);
    m_position = found == m_text.npos ? m_text.size() : found + end.size();
    return found != m_text.npos;
}

/// Moves to the next `>`, or to a `<` or `[` that stands before it, outside quotes.
void XmlScanner::skipToMarkupEnd()
{
    while (!atEnd() && !endsMarkup(current())) {
        const char character = current();
        ++m_position;
        if (character == '"' || character == '\'') {
            skipPast({&character, 1});
        }
    }
}

/// The tag that begins here. Attributes mean nothing in a property list.
XmlTag XmlScanner::parseTag()
{
    const std::size_t start = m_position;
    const bool isEnd = at("</");
    const std::string_view afterStart = m_text.substr(start + (isEnd ? 2 : 1));
    const auto nameEnd = std::find_if(afterStart.begin(), afterStart.end(), endsName);
    const std::string_view name = afterStart.substr(0, static_cast<std::size_t>(nameEnd - afterStart.begin()));
    m_position = start + (isEnd ? 2 : 1) + name.size();
    skipToMarkupEnd();
    if (current() != '>') {
        failAt(start, u"this tag is not closed"_s);
    }
    const bool isEmpty = !isEnd && m_text[m_position - 1] == '/';
    ++m_position;
    const XmlTag::Form form = isEnd ? XmlTag::Form::End : isEmpty ? XmlTag::Form::Empty : XmlTag::Form::Start;
    return {name, form, m_text.substr(start, m_position - start)};
}

void XmlScanner::requireEnd(const XmlTag &end, const XmlTag &start) const
{
    if (end.name != start.name) {
        fail(end, u"here `</%1>` should stand"_s.arg(string(start.name)));
    }
}

void XmlScanner::requireMore(const XmlTag &element) const
{
    if (atEnd()) {
        failAt(m_position, u"the text ends before `</%1>`"_s.arg(string(element.name)));
    }
}

std::string_view XmlScanner::readContent(const XmlTag &tag)
{
    if (tag.form == XmlTag::Form::Empty) {
        return {};
    }
    const std::string_view start = readRun();
    if (at("</")) {
        requireEnd(parseTag(), tag);
        return start;
    }
    m_content = start;
    while (!at("</")) {
        appendPiece(tag);
    }
    requireEnd(parseTag(), tag);
    return m_content;
}

/// Appends the next piece of an element's content: a reference, a CDATA section, a run of text, or nothing for a
/// comment.
void XmlScanner::appendPiece(const XmlTag &tag)
{
    requireMore(tag);
    if (current() == '&') {
        appendReference();
    } else if (at(cdataStart)) {
        appendCdata();
    } else if (!skipComment()) {
        const std::string_view run = readRun();
        if (run.empty()) {
            failAt(m_position, atEnd() ? u"the text ends before `</%1>`"_s.arg(string(tag.name))
                                       : u"`<%1>` holds something other than text"_s.arg(string(tag.name)));
        }
        m_content += run;
    }
}

void XmlScanner::appendReference()
{
    const std::size_t start = m_position + 1;
    const std::size_t end = std::min(m_text.find(';', start), m_text.size());
    const std::string_view name = m_text.substr(start, end - start);
    const std::optional<char32_t> character = referencedEntity(name);
    if (!character || end == m_text.size()) {
        failAt(m_position, quoted(name) + u" after `&` names no character"_s);
    }
    appendUtf8(m_content, *character);
    m_position = end + 1;
}

void XmlScanner::appendCdata()
{
    const std::size_t start = m_position + cdataStart.size();
    const std::string_view content = m_text.substr(start, m_text.find(cdataEnd, start) - start);
    if (!skipPast(cdataEnd)) {
        failAt(start - cdataStart.size(), u"this CDATA section is not closed"_s);
    }
    if (const std::size_t null = content.find('\0'); null != content.npos) {
        failAt(start + null, u"U+0000 is not text"_s);
    }
    m_content += content;
}

/// The text up to the next markup.
std::string_view XmlScanner::readRun()
{
    const std::string_view rest = m_text.substr(m_position);
    const auto end = std::find_if(rest.begin(), rest.end(), endsRun);
    const std::string_view run = rest.substr(0, static_cast<std::size_t>(end - rest.begin()));
    m_position += run.size();
    return run;
}

void XmlScanner::fail(const XmlTag &tag, const QString &complaint) const
{
    failAt(static_cast<std::size_t>(tag.source.data() - m_text.data()), complaint);
}

void XmlScanner::failAt(std::size_t position, const QString &complaint) const
{
    failAfter(bytes(m_text.substr(0, position)), complaint);
}

QString quoted(std::string_view text)
{
    constexpr qsizetype longest = 40;
    const QString start = string(text.substr(0, 4 * longest + 4)); // no character takes more than four bytes
    return u'`' + (start.size() > longest ? start.left(longest) + u"..."_s : start) + u'`';
}

} // namespace platform
