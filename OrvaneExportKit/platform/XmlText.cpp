#include <OrvaneExportKit/platform/XmlText.h>

#include <OrvaneExportKit/platform/PropertyListError.h>

#include <QtCore/QStringConverter>

#include <optional>
#include <string_view>
#include <utility>

namespace platform {

namespace {

using namespace Qt::Literals::StringLiterals;

constexpr QByteArrayView byteOrderMark("\xEF\xBB\xBF");

/// The value of `encoding` in the XML declaration; empty when there is none.
QByteArray declaredEncoding(std::string_view text)
{
    if (!text.starts_with("<?xml")) {
        return {};
    }
    const std::string_view declaration = text.substr(0, text.find("?>"));
    const std::size_t name = declaration.find("encoding");
    const std::size_t start = declaration.find_first_of("\"'", name);
    if (start == declaration.npos) {
        return {};
    }
    const std::string_view value = declaration.substr(start + 1);
    return QByteArray::fromStdString(std::string(value.substr(0, value.find(declaration[start]))));
}

/// The index of the first unit that is no character: U+0000, which decoders put for bytes that they cannot decode,
/// or half a surrogate pair. The length of the text when there is none.
qsizetype firstNonCharacter(QStringView text)
{
    qsizetype index = 0;
    while (index < text.size() && !text[index].isNull()) {
        const bool pair = text[index].isHighSurrogate() && index + 1 < text.size() && text[index + 1].isLowSurrogate();
        if (text[index].isSurrogate() && !pair) {
            break;
        }
        index += pair ? 2 : 1;
    }
    return index;
}

constexpr QStringConverter::Flags strictly =
    QStringConverter::Flag::Stateless | QStringConverter::Flag::ConvertInvalidToNull;

QString decoded(QByteArrayView data, QStringDecoder decoder)
{
    QString text = decoder.decode(data);
    const qsizetype end = firstNonCharacter(text);
    if (end < text.size()) {
        failAfter(text.first(end).toUtf8(), u"this is no character of "_s + QString::fromUtf8(decoder.name()));
    }
    return text;
}

QByteArray textInDeclaredEncoding(QByteArrayView data, const QByteArray &encoding)
{
    QStringDecoder decoder(encoding.constData(), strictly);
    if (!decoder.isValid()) {
        failAfter({}, u"the encoding `%1` is not known"_s.arg(QString::fromUtf8(encoding.left(40))));
    }
    const QString text = decoded(data, std::move(decoder));
    if (!text.startsWith(u"<?xml")) {
        failAfter({},
                  u"the text is not written in the encoding `%1` that it declares"_s.arg(QString::fromUtf8(encoding)));
    }
    return text.toUtf8();
}

} // namespace

QByteArray xmlText(QByteArrayView data)
{
    using Encoding = QStringConverter::Encoding;
    const std::optional<Encoding> encoding = QStringConverter::encodingForData(data, u'<');
    if (encoding && *encoding != Encoding::Utf8) {
        return decoded(data, QStringDecoder(*encoding, strictly)).toUtf8();
    }
    if (encoding) {
        data = data.sliced(byteOrderMark.size());
    } else if (const QByteArray declared = declaredEncoding({data.data(), static_cast<std::size_t>(data.size())});
               !declared.isEmpty() && QStringConverter::encodingForName(declared) != Encoding::Utf8) {
        return textInDeclaredEncoding(data, declared);
    }
    if (data.isValidUtf8()) {
        return QByteArray::fromRawData(data.data(), data.size());
    }
    return decoded(data, QStringDecoder(Encoding::Utf8, strictly)).toUtf8(); // throws: the decoder finds the place
}

void appendUtf8(std::string &text, char32_t character)
{
    const auto append = [&text](char32_t mark, char32_t bits) {
        text += static_cast<char>(mark | bits);
    };
    if (character < 0x80) {
        append(0, character);
        return;
    }
    if (character < 0x800) {
        append(0xC0, character >> 6);
    } else if (character < 0x10000) {
        append(0xE0, character >> 12);
        append(0x80, character >> 6 & 0x3F);
    } else {
        append(0xF0, character >> 18);
        append(0x80, character >> 12 & 0x3F);
        append(0x80, character >> 6 & 0x3F);
    }
    append(0x80, character & 0x3F);
}

void failAfter(QByteArrayView textBefore, const QString &complaint)
{
    qsizetype line = 1;
    qsizetype column = 1;
    char previous = 0;
    for (const char byte : textBefore) {
        const bool endsPair = previous == '\r' && byte == '\n';
        if ((byte == '\n' && !endsPair) || byte == '\r') {
            ++line;
            column = 1;
        } else if (!endsPair && (byte & 0xC0) != 0x80) {
            ++column;
        }
        previous = byte;
    }
    throw PropertyListError{u"line %1, column %2: "_s.arg(line).arg(column) + complaint};
}

} // namespace platform
