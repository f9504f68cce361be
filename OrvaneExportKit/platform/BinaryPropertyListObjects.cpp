#include <OrvaneExportKit/platform/BinaryPropertyListObjects.h>

#include <OrvaneExportKit/platform/PropertyListError.h>

#include <algorithm>
#include <optional>

namespace platform {

namespace {

using namespace Qt::Literals::StringLiterals;

constexpr char16_t tooLong[] = u"this object is longer than the room that it has";

BinaryType typeOf(quint8 marker)
{
    return static_cast<BinaryType>(marker >> 4);
}

bool hasCount(BinaryType type)
{
    return type == BinaryType::Data || type == BinaryType::AsciiString || type == BinaryType::Utf16String ||
           isContainer(type);
}

/// The size of the content when the marker alone tells it; nothing for markers that begin no such object.
std::optional<quint64> fixedSize(quint8 marker)
{
    const unsigned detail = marker & 0xFU;
    switch (typeOf(marker)) {
    case BinaryType::Simple:
        return marker == binaryNull || marker == binaryFalse || marker == binaryTrue ? std::optional(0U) : std::nullopt;
    case BinaryType::Integer:
        return detail <= 4 ? std::optional(1U << detail) : std::nullopt;
    case BinaryType::Real:
        return detail == 2 || detail == 3 ? std::optional(1U << detail) : std::nullopt;
    case BinaryType::Date:
        return marker == binaryDate ? std::optional(8U) : std::nullopt;
    case BinaryType::Uid:
        return detail + 1;
    default:
        return std::nullopt;
    }
}

} // namespace

BinaryObjects::BinaryObjects(QByteArrayView data) : m_data(data)
{
    const auto size = static_cast<quint64>(data.size());
    requireAtByte(data.startsWith("bplist0"), 0, u"this version of the binary format is not known");
    requireAtByte(size > binaryHeaderSize + binaryTrailerSize, size, u"the list ends before its trailer");
    const quint64 trailer = size - binaryTrailerSize;
    m_positionSize = number(trailer + 6, 1);
    m_referenceSize = number(trailer + 7, 1);
    m_count = number(trailer + 8, 8);
    m_outermost = number(trailer + 16, 8);
    m_tablePosition = number(trailer + 24, 8);
    requireTrailer(trailer);
    readPositions();
}

void BinaryObjects::requireTrailer(quint64 trailer) const
{
    requireAtByte(m_count > 0, trailer + 8, u"the list has no objects");
    requireAtByte(m_outermost < m_count, trailer + 16, u"the outermost object is none of the list's objects");
    requireAtByte(m_tablePosition > binaryHeaderSize && m_tablePosition < trailer, trailer + 24,
                  u"the table of positions does not lie between header and trailer");
    requireAtByte(m_positionSize > 0 && fitsBytes(m_tablePosition, m_positionSize), trailer + 6,
                  u"positions have too few bytes for this list");
    requireAtByte(m_referenceSize > 0 && fitsBytes(m_count - 1, m_referenceSize), trailer + 7,
                  u"references have too few bytes for this list");
    const quint64 tableSize = trailer - m_tablePosition;
    requireAtByte(tableSize / m_positionSize == m_count && tableSize % m_positionSize == 0, trailer + 8,
                  u"the table of positions has not one entry for each object");
    requireAtByte(m_count <= m_tablePosition - binaryHeaderSize, trailer + 8,
                  u"there are more objects than bytes that they could stand in");
}

void BinaryObjects::readPositions()
{
    m_bounds.reserve(m_count + 1);
    for (quint64 index = 0; index < m_count; ++index) {
        m_bounds.push_back(position(index));
        requireAtByte(m_bounds.back() >= binaryHeaderSize && m_bounds.back() < m_tablePosition,
                      m_tablePosition + index * m_positionSize, u"this position lies outside the objects");
    }
    m_bounds.push_back(m_tablePosition);
    std::sort(m_bounds.begin(), m_bounds.end());
    const auto shared = std::adjacent_find(m_bounds.begin(), m_bounds.end());
    if (shared != m_bounds.end()) {
        failAtByte(*shared, u"two objects stand here");
    }
}

quint64 BinaryObjects::position(quint64 index) const
{
    return number(m_tablePosition + index * m_positionSize, m_positionSize);
}

BinaryObject BinaryObjects::object(quint64 index) const
{
    const quint64 start = position(index);
    const quint64 end = *std::upper_bound(m_bounds.begin(), m_bounds.end(), start);
    const auto marker = static_cast<quint8>(number(start, 1));
    BinaryObject object{typeOf(marker), marker, start, 0, {}};
    quint64 contentStart = start + 1;
    if (const std::optional<quint64> size = fixedSize(marker)) {
        object.count = *size;
    } else {
        contentStart = readCount(object, end);
    }
    const quint64 size = elementSize(object.type);
    requireAtByte(object.count <= (end - contentStart) / size, start, tooLong);
    object.content = bytes(contentStart, object.count * size);
    return object;
}

/// Reads the count of an object that ends at `end` at the latest, from its marker or from the integer object behind it.
/// Answers where the content starts.
quint64 BinaryObjects::readCount(BinaryObject &object, quint64 end) const
{
    requireAtByte(hasCount(object.type), object.position, u"this is no object of a property list");
    const quint64 behindMarker = object.position + 1;
    object.count = object.marker & 0xFU;
    if (object.count != binaryCountFollows) {
        return behindMarker;
    }
    requireAtByte(behindMarker < end, object.position, tooLong);
    const auto marker = static_cast<quint8>(number(behindMarker, 1));
    const std::optional<quint64> size = fixedSize(marker);
    requireAtByte(typeOf(marker) == BinaryType::Integer && size, behindMarker, u"this count is not an integer");
    const quint64 countStart = behindMarker + 1;
    requireAtByte(*size <= end - countStart, object.position, tooLong);
    object.count = number(countStart, *size);
    return countStart + *size;
}

quint64 BinaryObjects::reference(const BinaryObject &container, quint64 number) const
{
    const qsizetype start = static_cast<qsizetype>(number * m_referenceSize);
    const quint64 index = unsignedNumber(container.content.sliced(start, static_cast<qsizetype>(m_referenceSize)));
    requireAtByte(index < m_count, static_cast<quint64>(container.content.data() + start - m_data.data()),
                  u"this reference names none of the list's objects");
    return index;
}

quint64 BinaryObjects::elementSize(BinaryType type) const
{
    switch (type) {
    case BinaryType::Utf16String:
        return 2;
    case BinaryType::Array:
    case BinaryType::Set:
        return m_referenceSize;
    case BinaryType::Dictionary:
        return 2 * m_referenceSize;
    default:
        return 1;
    }
}

QByteArrayView BinaryObjects::bytes(quint64 position, quint64 size) const
{
    return m_data.sliced(static_cast<qsizetype>(position), static_cast<qsizetype>(size));
}

quint64 BinaryObjects::number(quint64 position, quint64 size) const
{
    return unsignedNumber(bytes(position, size));
}

bool isContainer(BinaryType type)
{
    return type == BinaryType::Array || type == BinaryType::Set || type == BinaryType::Dictionary;
}

bool fitsBytes(quint64 number, quint64 size)
{
    return size >= sizeof number || number >> (8 * size) == 0;
}

void failAtByte(quint64 position, QStringView complaint)
{
    throw PropertyListError{u"byte %1: %2"_s.arg(position).arg(complaint)};
}

} // namespace platform
