#include <OrvaneExportKit/platform/BinaryPropertyListWriter.h>

#include <OrvaneExportKit/platform/BinaryPropertyListFormat.h>
#include <OrvaneExportKit/platform/PropertyList.h>
#include <OrvaneExportKit/platform/PropertyListValues.h>

#include <QtCore/QDateTime>

#include <algorithm>
#include <bit>
#include <functional>
#include <limits>
#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

namespace platform {

namespace {

void appendUnsigned(std::string &bytes, quint64 number, int size)
{
    for (int shift = 8 * (size - 1); shift >= 0; shift -= 8) {
        bytes += static_cast<char>(number >> shift);
    }
}

/// The smallest of the usual sizes, 1, 2, 4 and 8 bytes, that holds the number.
int sizeOfUnsigned(quint64 number)
{
    if (number <= std::numeric_limits<quint8>::max()) {
        return 1;
    }
    if (number <= std::numeric_limits<quint16>::max()) {
        return 2;
    }
    return number <= std::numeric_limits<quint32>::max() ? 4 : 8;
}

char marker(BinaryType type, int detail)
{
    return static_cast<char>(static_cast<int>(type) << 4 | detail);
}

void appendNumber(std::string &bytes, char marker, quint64 number, int size)
{
    bytes += marker;
    appendUnsigned(bytes, number, size);
}

/// Up to four bytes are read as unsigned, eight as signed, so that the upper half of the 64-bit numbers needs sixteen.
void appendUnsignedInteger(std::string &bytes, quint64 number)
{
    if (number > static_cast<quint64>(std::numeric_limits<qint64>::max())) {
        appendNumber(bytes, marker(BinaryType::Integer, 4), 0, 8);
        appendUnsigned(bytes, number, 8);
        return;
    }
    const int size = sizeOfUnsigned(number);
    appendNumber(bytes, marker(BinaryType::Integer, std::countr_zero(static_cast<unsigned>(size))), number, size);
}

void appendSignedInteger(std::string &bytes, qint64 number)
{
    if (number < 0) {
        appendNumber(bytes, marker(BinaryType::Integer, 3), static_cast<quint64>(number), 8);
    } else {
        appendUnsignedInteger(bytes, static_cast<quint64>(number));
    }
}

/// Appends the marker of an object with a count, and the count.
void appendCount(std::string &bytes, BinaryType type, qsizetype count)
{
    if (count < binaryCountFollows) {
        bytes += marker(type, static_cast<int>(count));
    } else {
        bytes += marker(type, binaryCountFollows);
        appendUnsignedInteger(bytes, static_cast<quint64>(count));
    }
}

void appendString(std::string &bytes, const QString &string)
{
    const auto isAscii = [](QChar unit) {
        return unit.unicode() < 0x80;
    };
    if (std::all_of(string.begin(), string.end(), isAscii)) {
        appendCount(bytes, BinaryType::AsciiString, string.size());
        for (const QChar unit : string) {
            bytes += static_cast<char>(unit.unicode());
        }
        return;
    }
    appendCount(bytes, BinaryType::Utf16String, string.size());
    for (const QChar unit : string) {
        appendUnsigned(bytes, unit.unicode(), 2);
    }
}

void appendData(std::string &bytes, const QByteArray &data)
{
    appendCount(bytes, BinaryType::Data, data.size());
    bytes.append(data.constData(), static_cast<std::size_t>(data.size()));
}

void appendDate(std::string &bytes, const QDateTime &date)
{
    const double seconds = static_cast<double>(date.toMSecsSinceEpoch() - binaryDateOrigin) / 1000;
    appendNumber(bytes, static_cast<char>(binaryDate), std::bit_cast<quint64>(seconds), 8);
}

void appendUid(std::string &bytes, quint32 uid)
{
    const int size = sizeOfUnsigned(uid);
    appendNumber(bytes, marker(BinaryType::Uid, size - 1), uid, size);
}

/// Where the bytes of an object begin, and the references that stand behind them. Both end where those of the next
/// object begin.
struct Object {
    std::size_t start;
    std::size_t firstReference;
};

class Writer
{
public:
    QByteArray write(const QVariant &value);

private:
    struct BytesHash {
        const Writer &writer;

        std::size_t operator()(quint64 index) const { return std::hash<std::string_view>()(writer.bytes(index)); }
    };

    struct BytesEqual {
        const Writer &writer;

        bool operator()(quint64 a, quint64 b) const { return writer.bytes(a) == writer.bytes(b); }
    };

    quint64 add(const QVariant &value);
    quint64 addArray(const QVariantList &elements);
    quint64 addDictionary(const QVariantMap &entries);
    quint64 addContainer(BinaryType type, qsizetype count, qsizetype references);

    template <typename AppendScalar>
    quint64 addScalar(const AppendScalar &appendScalar);

    std::string_view bytes(quint64 index) const;
    std::size_t referencesEnd(quint64 index) const;

    std::vector<Object> m_objects; ///< the list itself is the first one
    std::string m_bytes;
    std::vector<quint64> m_references;
    std::unordered_set<quint64, BytesHash, BytesEqual> m_scalars{0, BytesHash{*this}, BytesEqual{*this}};
};

QByteArray Writer::write(const QVariant &value)
{
    add(value);
    const int referenceSize = sizeOfUnsigned(m_objects.size());
    const std::size_t objectsSize =
        m_bytes.size() + m_references.size() * static_cast<std::size_t>(referenceSize) + binaryHeaderSize;
    const int positionSize = sizeOfUnsigned(objectsSize);
    std::string list = "bplist00";
    list.reserve(objectsSize + m_objects.size() * static_cast<std::size_t>(positionSize) + binaryTrailerSize);
    std::vector<quint64> positions;
    positions.reserve(m_objects.size());
    for (quint64 index = 0; index < m_objects.size(); ++index) {
        positions.push_back(list.size());
        list += bytes(index);
        for (std::size_t i = m_objects[index].firstReference; i < referencesEnd(index); ++i) {
            appendUnsigned(list, m_references[i], referenceSize);
        }
    }
    for (const quint64 position : positions) {
        appendUnsigned(list, position, positionSize);
    }
    appendUnsigned(list, 0, 6); // five unused bytes and the version of a sort order that nobody uses
    appendUnsigned(list, static_cast<quint64>(positionSize), 1);
    appendUnsigned(list, static_cast<quint64>(referenceSize), 1);
    appendUnsigned(list, m_objects.size(), 8);
    appendUnsigned(list, 0, 8);
    appendUnsigned(list, objectsSize, 8);
    return QByteArray::fromStdString(list);
}

/// Adds the objects that make up the value and answers the index of the outermost one.
quint64 Writer::add(const QVariant &value)
{
    switch (propertyListKind(value)) {
    case PropertyListKind::String:
        return addScalar([&] { appendString(m_bytes, value.toString()); });
    case PropertyListKind::SignedInteger:
        return addScalar([&] { appendSignedInteger(m_bytes, value.toLongLong()); });
    case PropertyListKind::UnsignedInteger:
        return addScalar([&] { appendUnsignedInteger(m_bytes, value.toULongLong()); });
    case PropertyListKind::Real:
        return addScalar(
            [&] { appendNumber(m_bytes, marker(BinaryType::Real, 3), std::bit_cast<quint64>(value.toDouble()), 8); });
    case PropertyListKind::ShortReal:
        return addScalar(
            [&] { appendNumber(m_bytes, marker(BinaryType::Real, 2), std::bit_cast<quint32>(value.toFloat()), 4); });
    case PropertyListKind::Boolean:
        return addScalar([&] { m_bytes += static_cast<char>(value.toBool() ? binaryTrue : binaryFalse); });
    case PropertyListKind::Date:
        return addScalar([&] { appendDate(m_bytes, value.toDateTime()); });
    case PropertyListKind::Data:
        return addScalar([&] { appendData(m_bytes, value.toByteArray()); });
    case PropertyListKind::Uid:
        return addScalar([&] { appendUid(m_bytes, value.value<PropertyList::Uid>().value); });
    case PropertyListKind::Array:
        return addArray(value.toList());
    case PropertyListKind::Dictionary:
        return addDictionary(value.toMap());
    case PropertyListKind::None:
        break;
    }
    Q_UNREACHABLE();
}

/// Equal scalars of one kind have equal bytes and are written once.
template <typename AppendScalar>
quint64 Writer::addScalar(const AppendScalar &appendScalar)
{
    const std::size_t start = m_bytes.size();
    m_objects.push_back({start, m_references.size()});
    appendScalar();
    const auto [index, isNew] = m_scalars.insert(m_objects.size() - 1);
    if (!isNew) {
        m_objects.pop_back();
        m_bytes.resize(start);
    }
    return *index;
}

quint64 Writer::addArray(const QVariantList &elements)
{
    const quint64 index = addContainer(BinaryType::Array, elements.size(), elements.size());
    std::size_t reference = m_objects[index].firstReference;
    for (const QVariant &element : elements) {
        const quint64 added = add(element);
        m_references[reference++] = added;
    }
    return index;
}

/// A dictionary refers to all its keys and then to all its values.
quint64 Writer::addDictionary(const QVariantMap &entries)
{
    const quint64 index = addContainer(BinaryType::Dictionary, entries.size(), 2 * entries.size());
    std::size_t reference = m_objects[index].firstReference;
    for (auto key = entries.keyBegin(); key != entries.keyEnd(); ++key) {
        m_references[reference++] = addScalar([&] { appendString(m_bytes, *key); });
    }
    for (const QVariant &value : entries) {
        const quint64 added = add(value);
        m_references[reference++] = added;
    }
    return index;
}

/// Adds a container with room for its references.
quint64 Writer::addContainer(BinaryType type, qsizetype count, qsizetype references)
{
    m_objects.push_back({m_bytes.size(), m_references.size()});
    appendCount(m_bytes, type, count);
    m_references.resize(m_references.size() + static_cast<std::size_t>(references));
    return m_objects.size() - 1;
}

std::string_view Writer::bytes(quint64 index) const
{
    const std::size_t start = m_objects[index].start;
    const std::size_t end = index + 1 < m_objects.size() ? m_objects[index + 1].start : m_bytes.size();
    return std::string_view(m_bytes).substr(start, end - start);
}

std::size_t Writer::referencesEnd(quint64 index) const
{
    return index + 1 < m_objects.size() ? m_objects[index + 1].firstReference : m_references.size();
}

} // namespace

QByteArray writeBinaryPropertyList(const QVariant &value)
{
    return Writer().write(value);
}

} // namespace platform
