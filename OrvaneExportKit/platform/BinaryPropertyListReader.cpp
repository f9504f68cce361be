#include <OrvaneExportKit/platform/BinaryPropertyListReader.h>

#include <OrvaneExportKit/platform/BinaryPropertyListFormat.h>
#include <OrvaneExportKit/platform/BinaryPropertyListObjects.h>
#include <OrvaneExportKit/platform/PropertyList.h>
#include <OrvaneExportKit/platform/PropertyListError.h>
#include <OrvaneExportKit/platform/PropertyListValues.h>

#include <QtCore/QDateTime>
#include <QtCore/QtEndian>

#include <algorithm>
#include <bit>
#include <cmath>
#include <utility>
#include <vector>

namespace platform {

namespace {

/// Eight bytes are a signed number; the others are unsigned, and of sixteen the last eight count.
QVariant readInteger(const BinaryObject &object)
{
    const quint64 number = unsignedNumber(object.content.last(std::min<qsizetype>(object.content.size(), 8)));
    return object.count == 8 ? QVariant(static_cast<qint64>(number)) : integerValue(number);
}

QVariant readReal(const BinaryObject &object)
{
    const quint64 bits = unsignedNumber(object.content);
    return object.count == 4 ? std::bit_cast<float>(static_cast<quint32>(bits)) : std::bit_cast<double>(bits);
}

QVariant readDate(const BinaryObject &object)
{
    constexpr double latest = 9.2e15; // seconds, what the milliseconds of a `QDateTime` hold
    const auto seconds = std::bit_cast<double>(unsignedNumber(object.content));
    requireAtByte(std::abs(seconds) <= latest, object.position, u"this date is out of range");
    return QDateTime::fromMSecsSinceEpoch(std::llround(seconds * 1000) + binaryDateOrigin, Qt::UTC);
}

QVariant readUid(const BinaryObject &object)
{
    const quint64 uid = unsignedNumber(object.content);
    requireAtByte(fitsBytes(uid, sizeof(quint32)), object.position, u"this UID is above 4294967295");
    return QVariant::fromValue(PropertyList::Uid{static_cast<quint32>(uid)});
}

QVariant readAsciiString(const BinaryObject &object)
{
    const auto isAscii = [](char byte) {
        return (byte & 0x80) == 0;
    };
    requireAtByte(std::all_of(object.content.begin(), object.content.end(), isAscii), object.position,
                  u"this string is not ASCII");
    return QString::fromLatin1(object.content);
}

QVariant readUtf16String(const BinaryObject &object)
{
    QString string(static_cast<qsizetype>(object.count), Qt::Uninitialized);
    qFromBigEndian<char16_t>(object.content.data(), string.size(), string.data());
    return string;
}

/// The format has a null, which no value of a property list is and XML cannot hold.
bool readBoolean(const BinaryObject &object)
{
    requireAtByte(object.marker != binaryNull, object.position, u"a null is not a property-list value");
    return object.marker == binaryTrue;
}

QVariant readScalar(const BinaryObject &object)
{
    switch (object.type) {
    case BinaryType::Integer:
        return readInteger(object);
    case BinaryType::Real:
        return readReal(object);
    case BinaryType::Date:
        return readDate(object);
    case BinaryType::Data:
        return object.content.toByteArray();
    case BinaryType::AsciiString:
        return readAsciiString(object);
    case BinaryType::Utf16String:
        return readUtf16String(object);
    case BinaryType::Uid:
        return readUid(object);
    default:
        return readBoolean(object);
    }
}

void requireNesting(int containers, quint64 position)
{
    if (containers > PropertyList::maximumNesting) {
        failAtByte(position, nestingComplaint());
    }
}

/// What has become of an object.
struct Loaded {
    enum class State {
        No,
        InProgress,
        Yes,
    };

    QVariant value;
    State state = State::No;
    int nesting = 0; ///< how many containers stand inside each other here, this one included
};

/// Reads every object once, however many others refer to it, so that the values take memory in proportion to the file.
class Reader
{
public:
    explicit Reader(QByteArrayView data) : m_objects(data), m_loaded(m_objects.count()) {}

    QVariant read() { return load(m_objects.outermost(), 0).value; }

private:
    // `containers` counts the arrays and dictionaries around the object.
    const Loaded &load(quint64 index, int containers);
    const QVariant &loadInside(Loaded &container, const BinaryObject &object, quint64 reference, int containers);
    QVariant readArray(Loaded &container, const BinaryObject &object, int containers);
    QVariant readDictionary(Loaded &container, const BinaryObject &object, int containers);

    BinaryObjects m_objects;
    std::vector<Loaded> m_loaded;
};

const Loaded &Reader::load(quint64 index, int containers)
{
    Loaded &loaded = m_loaded[index];
    requireAtByte(loaded.state != Loaded::State::InProgress, m_objects.position(index), u"this container holds itself");
    if (loaded.state == Loaded::State::Yes) {
        return loaded;
    }
    loaded.state = Loaded::State::InProgress;
    const BinaryObject object = m_objects.object(index);
    if (!isContainer(object.type)) {
        loaded.value = readScalar(object);
    } else {
        requireNesting(containers + 1, object.position);
        loaded.nesting = 1;
        loaded.value = object.type == BinaryType::Dictionary ? readDictionary(loaded, object, containers + 1)
                                                             : readArray(loaded, object, containers + 1);
    }
    loaded.state = Loaded::State::Yes;
    return loaded;
}

/// The value of one of the references of a container. An object is read only once, perhaps where it stands less deep
/// than elsewhere, so the nesting is counted from the inside too.
const QVariant &Reader::loadInside(Loaded &container, const BinaryObject &object, quint64 reference, int containers)
{
    const Loaded &element = load(m_objects.reference(object, reference), containers);
    container.nesting = std::max(container.nesting, element.nesting + 1);
    requireNesting(container.nesting, object.position);
    return element.value;
}

QVariant Reader::readArray(Loaded &container, const BinaryObject &object, int containers)
{
    QVariantList elements;
    elements.reserve(static_cast<qsizetype>(object.count));
    for (quint64 i = 0; i < object.count; ++i) {
        elements.append(loadInside(container, object, i, containers));
    }
    return elements;
}

/// The references are those of all keys and then those of all values. Of entries with the same key the first counts.
QVariant Reader::readDictionary(Loaded &container, const BinaryObject &object, int containers)
{
    QVariantMap entries;
    for (quint64 i = 0; i < object.count; ++i) {
        const QVariant &key = loadInside(container, object, i, containers);
        requireAtByte(key.typeId() == QMetaType::QString, object.position, u"a key of this dictionary is not a string");
        const QVariant &value = loadInside(container, object, object.count + i, containers);
        const QString name = key.toString();
        const auto place = std::as_const(entries).lowerBound(name);
        if (place == entries.cend() || place.key() != name) {
            entries.insert(place, name, value);
        }
    }
    return entries;
}

} // namespace

QVariant readBinaryPropertyList(QByteArrayView data)
{
    return Reader(data).read();
}

} // namespace platform
