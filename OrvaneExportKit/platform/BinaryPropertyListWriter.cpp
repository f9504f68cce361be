#include <OrvaneExportKit/platform/BinaryPropertyListWriter.h>

#include <OrvaneExportKit/platform/BinaryPropertyListFormat.h>
#include <OrvaneExportKit/platform/PropertyList.h>
#include <OrvaneExportKit/platform/PropertyListValues.h>

#include <QtCore/QDateTime>
#include <QtCore/QHash>

#include <algorithm>
#include <bit>
#include <limits>
#include <utility>
#include <vector>

namespace platform {

namespace {

/// What an object consists of: its bytes up to the references, and the indices of the objects that it refers to.
struct Object {
    QByteArray start;
    std::vector<quint64> references;
};

void appendUnsigned(QByteArray &bytes, quint64 number, int size)
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

QByteArray encoded(char marker, quint64 number, int size)
{
    QByteArray bytes(1, marker);
    appendUnsigned(bytes, number, size);
    return bytes;
}

/// Up to four bytes are read as unsigned, eight as signed, so that the upper half of the 64-bit numbers needs sixteen.
QByteArray encodedUnsigned(quint64 number)
{
    if (number > static_cast<quint64>(std::numeric_limits<qint64>::max())) {
        return encoded(marker(BinaryType::Integer, 4), 0, 8) + encoded({}, number, 8).sliced(1);
    }
    const int size = sizeOfUnsigned(number);
    return encoded(marker(BinaryType::Integer, std::countr_zero(static_cast<unsigned>(size))), number, size);
}

QByteArray encodedSigned(qint64 number)
{
    const auto bits = static_cast<quint64>(number);
    return number < 0 ? encoded(marker(BinaryType::Integer, 3), bits, 8) : encodedUnsigned(bits);
}

/// The marker of an object with a count, and the count.
QByteArray encodedCount(BinaryType type, qsizetype count)
{
    if (count < binaryCountFollows) {
        return QByteArray(1, marker(type, static_cast<int>(count)));
    }
    return marker(type, binaryCountFollows) + encodedUnsigned(static_cast<quint64>(count));
}

QByteArray encodedString(const QString &string)
{
    const auto isAscii = [](QChar unit) {
        return unit.unicode() < 0x80;
    };
    if (std::all_of(string.begin(), string.end(), isAscii)) {
        return encodedCount(BinaryType::AsciiString, string.size()) + string.toLatin1();
    }
    QByteArray bytes = encodedCount(BinaryType::Utf16String, string.size());
    for (const QChar unit : string) {
        appendUnsigned(bytes, unit.unicode(), 2);
    }
    return bytes;
}

QByteArray encodedDate(const QDateTime &date)
{
    const double seconds = static_cast<double>(date.toMSecsSinceEpoch() - binaryDateOrigin) / 1000;
    return encoded(static_cast<char>(binaryDate), std::bit_cast<quint64>(seconds), 8);
}

QByteArray encodedUid(quint32 uid)
{
    const int size = sizeOfUnsigned(uid);
    return encoded(marker(BinaryType::Uid, size - 1), uid, size);
}

class Writer
{
public:
    QByteArray write(const QVariant &value);

private:
    quint64 add(const QVariant &value);
    quint64 addScalar(const QByteArray &bytes);
    quint64 addArray(const QVariantList &elements);
    quint64 addDictionary(const QVariantMap &entries);

    std::vector<Object> m_objects; ///< the list itself is the first one
    QHash<QByteArray, quint64> m_scalars;
};

QByteArray Writer::write(const QVariant &value)
{
    add(value);
    const int referenceSize = sizeOfUnsigned(m_objects.size());
    QByteArray list = "bplist00";
    std::vector<quint64> positions;
    positions.reserve(m_objects.size());
    for (const Object &object : m_objects) {
        positions.push_back(static_cast<quint64>(list.size()));
        list += object.start;
        for (const quint64 reference : object.references) {
            appendUnsigned(list, reference, referenceSize);
        }
    }
    const auto tablePosition = static_cast<quint64>(list.size());
    const int positionSize = sizeOfUnsigned(tablePosition);
    for (const quint64 position : positions) {
        appendUnsigned(list, position, positionSize);
    }
    appendUnsigned(list, 0, 6); // five unused bytes and the version of a sort order that nobody uses
    appendUnsigned(list, static_cast<quint64>(positionSize), 1);
    appendUnsigned(list, static_cast<quint64>(referenceSize), 1);
    appendUnsigned(list, m_objects.size(), 8);
    appendUnsigned(list, 0, 8);
    appendUnsigned(list, tablePosition, 8);
    return list;
}

/// Adds the objects that make up the value and answers the index of the outermost one.
quint64 Writer::add(const QVariant &value)
{
    switch (propertyListKind(value)) {
    case PropertyListKind::String:
        return addScalar(encodedString(value.toString()));
    case PropertyListKind::SignedInteger:
        return addScalar(encodedSigned(value.toLongLong()));
    case PropertyListKind::UnsignedInteger:
        return addScalar(encodedUnsigned(value.toULongLong()));
    case PropertyListKind::Real:
        return addScalar(encoded(marker(BinaryType::Real, 3), std::bit_cast<quint64>(value.toDouble()), 8));
    case PropertyListKind::ShortReal:
        return addScalar(encoded(marker(BinaryType::Real, 2), std::bit_cast<quint32>(value.toFloat()), 4));
    case PropertyListKind::Boolean:
        return addScalar(QByteArray(1, static_cast<char>(value.toBool() ? binaryTrue : binaryFalse)));
    case PropertyListKind::Date:
        return addScalar(encodedDate(value.toDateTime()));
    case PropertyListKind::Data:
        return addScalar(encodedCount(BinaryType::Data, value.toByteArray().size()) + value.toByteArray());
    case PropertyListKind::Uid:
        return addScalar(encodedUid(value.value<PropertyList::Uid>().value));
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
quint64 Writer::addScalar(const QByteArray &bytes)
{
    const auto known = m_scalars.constFind(bytes);
    if (known != m_scalars.cend()) {
        return *known;
    }
    const quint64 index = m_objects.size();
    m_objects.push_back({bytes, {}});
    m_scalars.insert(bytes, index);
    return index;
}

quint64 Writer::addArray(const QVariantList &elements)
{
    const std::size_t index = m_objects.size();
    m_objects.push_back({encodedCount(BinaryType::Array, elements.size()), {}});
    std::vector<quint64> references;
    for (const QVariant &element : elements) {
        references.push_back(add(element));
    }
    m_objects[index].references = std::move(references);
    return index;
}

/// A dictionary refers to all its keys and then to all its values.
quint64 Writer::addDictionary(const QVariantMap &entries)
{
    const std::size_t index = m_objects.size();
    m_objects.push_back({encodedCount(BinaryType::Dictionary, entries.size()), {}});
    std::vector<quint64> references;
    for (auto key = entries.keyBegin(); key != entries.keyEnd(); ++key) {
        references.push_back(addScalar(encodedString(*key)));
    }
    for (const QVariant &value : entries) {
        references.push_back(add(value));
    }
    m_objects[index].references = std::move(references);
    return index;
}

} // namespace

QByteArray writeBinaryPropertyList(const QVariant &value)
{
    return Writer().write(value);
}

} // namespace platform
