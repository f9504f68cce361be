#include <OrvaneExportKit/platform/XmlPropertyListReader.h>

#include <OrvaneExportKit/platform/PropertyListError.h>
#include <OrvaneExportKit/platform/PropertyListValues.h>
#include <OrvaneExportKit/platform/Utf8.h>
#include <OrvaneExportKit/platform/XmlScalars.h>
#include <OrvaneExportKit/platform/XmlScanner.h>
#include <OrvaneExportKit/platform/XmlText.h>

#include <QtCore/QDateTime>

#include <limits>
#include <optional>
#include <string_view>

namespace platform {

namespace {

using namespace Qt::Literals::StringLiterals;

class Reader
{
public:
    Reader(std::string_view text, PropertyList::XmlUids xmlUids) : m_scanner(text), m_xmlUids(xmlUids) {}

    QVariant read();

private:
    // `containers` counts the arrays and dictionaries around the value.
    QVariant readValue(const XmlTag &tag, int containers);
    QVariant readArray(const XmlTag &tag, int containers);
    QVariant readDictionary(const XmlTag &tag, int containers);
    QVariant readBoolean(const XmlTag &tag);
    template <typename Parse>
    QVariant readScalar(const XmlTag &tag, const Parse &parse, const QString &kind);
    QString readText(const XmlTag &tag);
    QVariant uidOrDictionary(const XmlTag &tag, const QVariantMap &entries) const;
    void requireNesting(const XmlTag &tag, int containers) const;

    XmlScanner m_scanner;
    PropertyList::XmlUids m_xmlUids;
};

QVariant Reader::read()
{
    const XmlTag root = m_scanner.firstTag();
    if (root.name != "plist" || root.form == XmlTag::Form::End) {
        return readValue(root, 0);
    }
    const std::optional<XmlTag> child = m_scanner.nextChild(root);
    if (!child) {
        m_scanner.fail(root, u"this list holds no value"_s);
    }
    QVariant value = readValue(*child, 0);
    if (const std::optional<XmlTag> another = m_scanner.nextChild(root)) {
        m_scanner.fail(*another, u"this value is not the only one of its list"_s);
    }
    return value;
}

QVariant Reader::readValue(const XmlTag &tag, int containers)
{
    if (tag.form == XmlTag::Form::End) {
        m_scanner.fail(tag, u"there is no element for this end tag to close"_s);
    }
    if (tag.name == "string") {
        return readText(tag);
    }
    if (tag.name == "integer") {
        return readScalar(tag, integerFromXml, u"an integer from -2^63 to 2^64-1"_s);
    }
    if (tag.name == "real") {
        return readScalar(tag, realFromXml, u"a real number"_s);
    }
    if (tag.name == "true" || tag.name == "false") {
        return readBoolean(tag);
    }
    if (tag.name == "dict") {
        return readDictionary(tag, containers);
    }
    if (tag.name == "array") {
        return readArray(tag, containers);
    }
    if (tag.name == "date") {
        return readScalar(tag, dateFromXml, u"a date of the form YYYY-MM-DDThh:mm:ssZ"_s);
    }
    if (tag.name == "data") {
        return readScalar(tag, dataFromXml, u"base64 text"_s);
    }
    if (tag.name == "key" || tag.name == "plist") {
        m_scanner.fail(tag, quoted(tag.source) + u" stands where a value should"_s);
    }
    m_scanner.fail(tag, quoted(tag.source) + u" is not a property-list element"_s);
}

QVariant Reader::readArray(const XmlTag &tag, int containers)
{
    requireNesting(tag, containers);
    QVariantList elements;
    while (const std::optional<XmlTag> element = m_scanner.nextChild(tag)) {
        elements.append(readValue(*element, containers + 1));
    }
    return elements;
}

QVariant Reader::readDictionary(const XmlTag &tag, int containers)
{
    requireNesting(tag, containers);
    QVariantMap entries;
    while (const std::optional<XmlTag> key = m_scanner.nextChild(tag)) {
        if (key->name != "key") {
            m_scanner.fail(*key, u"this value in a dictionary has no key"_s);
        }
        const QString name = readText(*key);
        const std::optional<XmlTag> value = m_scanner.nextChild(tag);
        if (!value || value->name == "key") {
            m_scanner.fail(*key, u"this key in a dictionary has no value"_s);
        }
        entries.insert(entries.cend(), name, readValue(*value, containers + 1)); // keys mostly come in order
    }
    return m_xmlUids == PropertyList::XmlUids::AsUids ? uidOrDictionary(tag, entries) : entries;
}

/// A dictionary that is the written form of a UID is that UID.
QVariant Reader::uidOrDictionary(const XmlTag &tag, const QVariantMap &entries) const
{
    if (entries.size() != 1 || entries.firstKey() != xmlUidKey) {
        return entries;
    }
    const QVariant &number = entries.first();
    switch (propertyListKind(number)) {
    case PropertyListKind::SignedInteger:
        if (const qint64 uid = number.toLongLong(); uid >= 0 && uid <= std::numeric_limits<quint32>::max()) {
            return QVariant::fromValue(PropertyList::Uid{static_cast<quint32>(uid)});
        }
        [[fallthrough]];
    case PropertyListKind::UnsignedInteger:
        m_scanner.fail(tag, u"a UID is a number from 0 to 4294967295"_s);
    default:
        return entries;
    }
}

QVariant Reader::readBoolean(const XmlTag &tag)
{
    if (const std::optional<XmlTag> child = m_scanner.nextChild(tag)) {
        m_scanner.fail(*child, u"a boolean holds no elements"_s);
    }
    return tag.name == "true";
}

template <typename Parse>
QVariant Reader::readScalar(const XmlTag &tag, const Parse &parse, const QString &kind)
{
    const std::string_view content = m_scanner.readContent(tag);
    const auto value = parse(content);
    if (tag.form == XmlTag::Form::Empty || !value) {
        m_scanner.fail(tag, quoted(content) + u" is not "_s + kind);
    }
    return *value;
}

QString Reader::readText(const XmlTag &tag)
{
    const std::string_view content = m_scanner.readContent(tag);
    return stringFromUtf8({content.data(), static_cast<qsizetype>(content.size())}).value_or(QString());
}

void Reader::requireNesting(const XmlTag &tag, int containers) const
{
    if (containers == PropertyList::maximumNesting) {
        m_scanner.fail(tag, nestingComplaint());
    }
}

} // namespace

QVariant readXmlPropertyList(QByteArrayView data, PropertyList::XmlUids xmlUids)
{
    const QByteArray text = xmlText(data);
    return Reader({text.data(), static_cast<std::size_t>(text.size())}, xmlUids).read();
}

} // namespace platform
