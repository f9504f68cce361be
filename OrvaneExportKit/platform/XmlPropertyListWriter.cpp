#include <OrvaneExportKit/platform/XmlPropertyListWriter.h>

#include <OrvaneExportKit/platform/PropertyList.h>
#include <OrvaneExportKit/platform/PropertyListValues.h>
#include <OrvaneExportKit/platform/XmlScalars.h>
#include <OrvaneExportKit/platform/XmlText.h>

#include <algorithm>
#include <string>
#include <string_view>

namespace platform {

namespace {

constexpr std::string_view header = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                                    "<!DOCTYPE plist PUBLIC \"-//Apple//DTD PLIST 1.0//EN\" "
                                    "\"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">\n"
                                    "<plist version=\"1.0\">\n";
constexpr std::string_view footer = "</plist>\n";

class Writer
{
public:
    QByteArray write(const QVariant &value);

private:
    void writeValue(const QVariant &value, int level);
    void writeText(std::string_view tag, const QString &text, int level);
    void appendPlain(const QChar *start, const QChar *end);
    const QChar *appendCharacter(const QChar *character);
    void writeData(const QByteArray &data, int level);
    void writeArray(const QVariantList &elements, int level);
    void writeDictionary(const QVariantMap &entries, int level);
    void writeLine(std::string_view line, int level);
    void indent(int level);

    template <typename AppendContent>
    void writeElement(std::string_view tag, int level, const AppendContent &appendContent);

    std::string m_xml;
};

/// What stands for a character in XML text; nothing when it stands for itself. A carriage return would come back as a
/// line feed from readers that follow XML to the letter.
std::string_view reference(QChar character)
{
    switch (character.unicode()) {
    case u'<':
        return "&lt;";
    case u'>':
        return "&gt;";
    case u'&':
        return "&amp;";
    case u'\r':
        return "&#13;";
    default:
        return {};
    }
}

/// Whether the character is of ASCII and stands for itself.
bool isPlain(QChar character)
{
    return character.unicode() < 0x80 && reference(character).empty();
}

QByteArray Writer::write(const QVariant &value)
{
    m_xml += header;
    writeValue(value, 0);
    m_xml += footer;
    return QByteArray::fromStdString(m_xml);
}

void Writer::writeValue(const QVariant &value, int level)
{
    switch (propertyListKind(value)) {
    case PropertyListKind::String:
        writeText("string", value.toString(), level);
        break;
    case PropertyListKind::SignedInteger:
        writeElement("integer", level, [&] { appendXmlInteger(m_xml, value.toLongLong()); });
        break;
    case PropertyListKind::UnsignedInteger:
        writeElement("integer", level, [&] { appendXmlInteger(m_xml, value.toULongLong()); });
        break;
    case PropertyListKind::Real:
    case PropertyListKind::ShortReal:
        writeElement("real", level, [&] { appendXmlReal(m_xml, value.toDouble()); });
        break;
    case PropertyListKind::Boolean:
        writeLine(value.toBool() ? "<true/>" : "<false/>", level);
        break;
    case PropertyListKind::Date:
        writeElement("date", level, [&] { appendXmlDate(m_xml, value.toDateTime()); });
        break;
    case PropertyListKind::Data:
        writeData(value.toByteArray(), level);
        break;
    case PropertyListKind::Uid:
        writeDictionary({{xmlUidKey, value.value<PropertyList::Uid>().value}}, level);
        break;
    case PropertyListKind::Array:
        writeArray(value.toList(), level);
        break;
    case PropertyListKind::Dictionary:
        writeDictionary(value.toMap(), level);
        break;
    case PropertyListKind::None:
        Q_UNREACHABLE();
    }
}

void Writer::writeText(std::string_view tag, const QString &text, int level)
{
    writeElement(tag, level, [&] {
        for (auto next = text.begin(); next != text.end();) {
            const auto plainEnd = std::find_if_not(next, text.end(), isPlain);
            appendPlain(next, plainEnd);
            next = plainEnd == text.end() ? plainEnd : appendCharacter(plainEnd);
        }
    });
}

void Writer::appendPlain(const QChar *start, const QChar *end)
{
    const std::size_t size = m_xml.size();
    m_xml.resize(size + static_cast<std::size_t>(end - start));
    std::transform(start, end, m_xml.begin() + static_cast<std::ptrdiff_t>(size),
                   [](QChar character) { return static_cast<char>(character.unicode()); });
}

/// Appends one character, of one or two units, and answers where the next one starts.
const QChar *Writer::appendCharacter(const QChar *character)
{
    if (const std::string_view escaped = reference(*character); !escaped.empty()) {
        m_xml += escaped;
        return character + 1;
    }
    if (character->isHighSurrogate()) {
        appendUtf8(m_xml, QChar::surrogateToUcs4(character[0], character[1]));
        return character + 2;
    }
    appendUtf8(m_xml, character->unicode());
    return character + 1;
}

/// Base64 on lines of its own, which get shorter with the indentation and at most as deep as eight levels.
void Writer::writeData(const QByteArray &data, int level)
{
    const int lineLevel = std::min(level, 8);
    const auto lineLength = static_cast<std::size_t>(76 - 8 * lineLevel);
    const QByteArray base64 = data.toBase64();
    std::string_view rest(base64.data(), static_cast<std::size_t>(base64.size()));
    writeLine("<data>", level);
    while (!rest.empty()) {
        const std::string_view line = rest.substr(0, lineLength);
        writeLine(line, lineLevel);
        rest.remove_prefix(line.size());
    }
    writeLine("</data>", level);
}

void Writer::writeArray(const QVariantList &elements, int level)
{
    if (elements.isEmpty()) {
        writeLine("<array/>", level);
        return;
    }
    writeLine("<array>", level);
    for (const QVariant &element : elements) {
        writeValue(element, level + 1);
    }
    writeLine("</array>", level);
}

void Writer::writeDictionary(const QVariantMap &entries, int level)
{
    if (entries.isEmpty()) {
        writeLine("<dict/>", level);
        return;
    }
    writeLine("<dict>", level);
    for (auto entry = entries.cbegin(); entry != entries.cend(); ++entry) {
        writeText("key", entry.key(), level + 1);
        writeValue(entry.value(), level + 1);
    }
    writeLine("</dict>", level);
}

template <typename AppendContent>
void Writer::writeElement(std::string_view tag, int level, const AppendContent &appendContent)
{
    indent(level);
    m_xml.append("<").append(tag).append(">");
    appendContent();
    m_xml.append("</").append(tag).append(">\n");
}

void Writer::writeLine(std::string_view line, int level)
{
    indent(level);
    m_xml.append(line) += '\n';
}

void Writer::indent(int level)
{
    m_xml.append(static_cast<std::size_t>(level), '\t');
}

} // namespace

QByteArray writeXmlPropertyList(const QVariant &value)
{
    return Writer().write(value);
}

} // namespace platform
