#pragma once

#include <OrvaneExportKit/platform/BinaryPropertyListFormat.h>

#include <QtCore/QByteArrayView>
#include <QtCore/QString>

#include <limits>
#include <vector>

namespace platform {

/// An object of a binary property list as it stands in the file.
struct BinaryObject {
    BinaryType type;
    quint8 marker;
    quint64 position; ///< of the marker
    quint64 count;    ///< of the bytes, units, elements or entries that make up the content
    QByteArrayView content;
};

/// The objects of a binary property list, by their indices.
///
/// Everything that the file says about sizes, counts and positions is checked here, so that what a `BinaryObject`
/// refers to is there. Objects may not overlap, so what they hold together is no longer than the file. All member
/// functions throw a `PropertyListError` when the file is not sound.
class BinaryObjects
{
public:
    explicit BinaryObjects(QByteArrayView data);

    quint64 count() const { return m_count; }
    quint64 outermost() const { return m_outermost; }

    /// Where an object stands; the index is below the count.
    quint64 position(quint64 index) const;
    BinaryObject object(quint64 index) const;

    /// The index that stands as the `number`th of those that make up the content of a container; it is below the count.
    quint64 reference(const BinaryObject &container, quint64 number) const;

private:
    void requireTrailer(quint64 trailer) const;
    void readPositions();
    quint64 readCount(BinaryObject &object, quint64 end) const;
    quint64 elementSize(BinaryType type) const;
    QByteArrayView bytes(quint64 position, quint64 size) const;
    quint64 number(quint64 position, quint64 size) const;

    QByteArrayView m_data;
    quint64 m_positionSize = 0;
    quint64 m_referenceSize = 0;
    quint64 m_count = 0;
    quint64 m_outermost = 0;
    quint64 m_tablePosition = 0;   ///< where the objects end and the table of their positions begins
    std::vector<quint64> m_bounds; ///< the positions of all objects and of the table, ascending
};

bool isContainer(BinaryType type);

/// Whether a number fits into so many bytes.
bool fitsBytes(quint64 number, quint64 size);

/// The unsigned number of any length that the bytes make up; the largest one when it has more than 64 bits.
inline quint64 unsignedNumber(QByteArrayView bytes)
{
    quint64 number = 0;
    for (const char byte : bytes) {
        if (number >> 56 != 0) {
            return std::numeric_limits<quint64>::max();
        }
        number = number << 8 | static_cast<quint8>(byte);
    }
    return number;
}

/// Throws a `PropertyListError` with this place and complaint.
[[noreturn]] void failAtByte(quint64 position, QStringView complaint);

/// Throws it unless the condition holds. Takes a plain pointer, for even the length of a complaint is worth no time
/// where there is none.
inline void requireAtByte(bool condition, quint64 position, const char16_t *complaint)
{
    if (!condition) {
        failAtByte(position, complaint);
    }
}

} // namespace platform
