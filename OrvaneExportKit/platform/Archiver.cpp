#include <OrvaneExportKit/platform/Archiver.h>

#include <OrvaneExportKit/platform/ArchiveKinds.h>
#include <OrvaneExportKit/platform/TypeCodes.h>
#include <OrvaneExportKit/platform/ValueExtent.h>

#include <QtCore/QDataStream>
#include <QtCore/QIODevice>

#include <algorithm>
#include <array>
#include <cstring>
#include <limits>
#include <new>

namespace platform {

namespace {

// An archive is the magic number, the version, the length of the rest, and the fields. A field is a kind and: for a
// list its count and values, for a map its count and pairs of key and value, for a typed value its type code and its
// bytes, for any other its type's name and its streamed bytes.
constexpr quint16 archiveVersion = 1;
constexpr auto streamVersion = QDataStream::Qt_6_4;
constexpr int maximumNesting = 512;

enum class Kind : quint8 {
    Other,
    List,
    Map,
    Nothing,
    Typed,
};

/// Whether the type is one that holds values of any type, which would bring back the nesting that is limited here, or
/// one of Qt's own whose stream operator trusts what it reads: a count, the name of a plug-in, a function's address.
bool isUnsafe(const QByteArray &typeName)
{
    constexpr std::array names{"QVariant", "QTextFormat", "QPolygon",    "QPainterPath",
                               "QRegion",  "QIcon",       "QEasingCurve"};
    return std::any_of(names.begin(), names.end(), [&](const char *name) { return typeName.contains(name); });
}

/// How many bytes Qt's streams count.
constexpr qsizetype most = std::numeric_limits<int>::max();

[[noreturn]] void refuseSize()
{
    throw InvalidArgumentException("encodeObject: a value takes more than 2147483647 bytes");
}

bool isTooLarge(const QVariant &value)
{
    return (value.metaType() == QMetaType::fromType<QByteArray>() && value.toByteArray().size() > most) ||
           (value.metaType() == QMetaType::fromType<QString>() && value.toString().size() > most / 2);
}

/// Archives have the least significant byte first, whatever the machine does.
void toArchiveOrder(char *bytes, std::size_t size)
{
    if constexpr (Q_BYTE_ORDER == Q_BIG_ENDIAN) {
        std::reverse(bytes, bytes + size);
    }
}

} // namespace

class Archiver::Writer
{
public:
    Writer() : m_stream(&m_data, QIODevice::WriteOnly) { m_stream.setVersion(streamVersion); }

    const QByteArray &data() const { return m_data; }

    void append(const Writer &other)
    {
        // Qt writes no value that is larger, and says so in the status alone.
        if (other.m_stream.status() != QDataStream::Ok || other.m_data.size() > most) {
            refuseSize();
        }
        m_stream.writeRawData(other.m_data.constData(), static_cast<int>(other.m_data.size()));
    }

    void writeNothing() { m_stream << quint8(Kind::Nothing); }

    void write(const QVariant &value, int depth = 0)
    {
        if (m_data.size() > most) {
            refuseSize();
        }
        if (depth > maximumNesting) {
            throw InvalidArgumentException("encodeObject: lists and maps are nested more than 512 deep");
        }
        if (value.metaType() == QMetaType::fromType<QVariantList>()) {
            writeList(value.toList(), depth);
        } else if (value.metaType() == QMetaType::fromType<QVariantMap>()) {
            writeMap(value.toMap(), depth);
        } else {
            writeOther(value);
        }
    }

    void writeTyped(char code, const char *bytes, std::size_t size)
    {
        m_stream << quint8(Kind::Typed) << qint8(code);
        m_stream.writeRawData(bytes, static_cast<int>(size));
    }

private:
    void writeList(const QVariantList &list, int depth)
    {
        m_stream << quint8(Kind::List) << quint64(list.size());
        for (const QVariant &value : list) {
            write(value, depth + 1);
        }
    }

    void writeMap(const QVariantMap &map, int depth)
    {
        m_stream << quint8(Kind::Map) << quint64(map.size());
        for (auto entry = map.begin(); entry != map.end(); ++entry) {
            m_stream << entry.key();
            write(entry.value(), depth + 1);
        }
    }

    void writeOther(const QVariant &value)
    {
        QByteArray bytes;
        QDataStream stream(&bytes, QIODevice::WriteOnly);
        stream.setVersion(streamVersion);
        if (!value.isValid() || isUnsafe(value.typeName()) || !value.metaType().save(stream, value.constData())) {
            throw InvalidArgumentException(std::string("encodeObject: a value of type ") +
                                           (value.isValid() ? value.typeName() : "nothing") + " cannot be archived");
        }
        if (stream.status() != QDataStream::Ok || isTooLarge(value)) {
            refuseSize();
        }
        m_stream << quint8(Kind::Other) << QByteArray(value.typeName()) << bytes;
    }

    QByteArray m_data;
    QDataStream m_stream;
};

/// Whatever the data claims, a count is believed only as far as bytes are left for it.
class Unarchiver::Reader
{
public:
    explicit Reader(const QByteArray &data) : m_stream(data)
    {
        m_stream.setVersion(streamVersion);
        quint32 magic = 0;
        quint16 version = 0;
        quint64 length = 0;
        m_stream >> magic >> version >> length;
        if (magic != archiveMagicNumber || version != archiveVersion || length != bytesLeft()) {
            throw ArchiveException("Unarchiver: the data is not a whole archive");
        }
    }

    bool atEnd() const { return m_stream.atEnd(); }

    QVariant read(const char *operation)
    {
        m_operation = operation;
        try {
            const Kind kind = readKind();
            return kind == Kind::Nothing ? QVariant() : readValue(kind, 0);
        } catch (const std::bad_alloc &) {
            fail("a value claims a size that it does not have"); // to a stream operator of Qt's own
        }
    }

    void readTyped(char code, char *bytes, std::size_t size)
    {
        m_operation = "decodeValueOfObjCType";
        qint8 foundCode = 0;
        if (readKind() != Kind::Typed) {
            fail("here stands an object");
        }
        m_stream >> foundCode;
        if (foundCode != code) {
            fail(std::string("here stands a value of type code `") + static_cast<char>(foundCode) + "`");
        }
        if (m_stream.readRawData(bytes, static_cast<int>(size)) != static_cast<int>(size)) {
            fail("the archive ends inside a value");
        }
    }

private:
    [[noreturn]] void fail(const std::string &complaint) const
    {
        throw ArchiveException(std::string(m_operation) + ": " + complaint);
    }

    quint64 bytesLeft() const { return static_cast<quint64>(m_stream.device()->bytesAvailable()); }

    Kind readKind()
    {
        quint8 kind = 0;
        m_stream >> kind;
        requireSound();
        return Kind(kind);
    }

    QVariant readValue(Kind kind, int depth)
    {
        if (depth > maximumNesting) {
            fail("lists and maps are nested more than 512 deep");
        }
        switch (kind) {
        case Kind::Other:
            return readOther();
        case Kind::List:
            return readList(depth);
        case Kind::Map:
            return readMap(depth);
        case Kind::Nothing:
        case Kind::Typed:
            break;
        }
        fail("here stands no object");
    }

    quint64 readCount()
    {
        quint64 count = 0;
        m_stream >> count;
        requireSound();
        if (count > bytesLeft()) {
            fail("a count goes beyond the end of the archive");
        }
        return count;
    }

    QVariant readList(int depth)
    {
        QVariantList list;
        for (quint64 count = readCount(); count > 0; --count) {
            list.append(readValue(readKind(), depth + 1));
        }
        return list;
    }

    QVariant readMap(int depth)
    {
        QVariantMap map;
        for (quint64 count = readCount(); count > 0; --count) {
            QString key;
            m_stream >> key;
            map.insert(key, readValue(readKind(), depth + 1));
        }
        return map;
    }

    QVariant readOther()
    {
        QByteArray typeName;
        QByteArray bytes;
        m_stream >> typeName >> bytes;
        requireSound();
        const QMetaType type = QMetaType::fromName(typeName);
        if (!type.isValid() || isUnsafe(typeName)) {
            fail("the type `" + typeName.toStdString() + "` is not known");
        }
        QVariant value(type);
        QDataStream stream(bytes);
        stream.setVersion(streamVersion);
        if (!type.load(stream, value.data()) || stream.status() != QDataStream::Ok || !stream.atEnd()) {
            fail("a value of type `" + typeName.toStdString() + "` is malformed");
        }
        return value;
    }

    void requireSound() const
    {
        if (m_stream.status() != QDataStream::Ok) {
            fail("the archive ends too early");
        }
    }

    QDataStream m_stream;
    const char *m_operation = "";
};

QByteArray Archiver::archivedDataWithRootObject(const QVariant &object)
{
    if (!object.isValid()) {
        throw InvalidArgumentException("archivedDataWithRootObject: there is no object");
    }
    Archiver archiver;
    archiver.encodeObject(object);
    return archiver.archivedData();
}

Archiver::Archiver() : m_writer(std::make_unique<Writer>())
{
}

Archiver::~Archiver() = default;

QByteArray Archiver::archivedData() const
{
    QByteArray archive;
    QDataStream stream(&archive, QIODevice::WriteOnly);
    stream.setVersion(streamVersion);
    stream << archiveMagicNumber << archiveVersion << quint64(m_writer->data().size());
    return archive + m_writer->data();
}

bool Archiver::allowsKeyedCoding() const
{
    return false;
}

void Archiver::encodeObject(const QVariant &object)
{
    Writer field; // so that one that fails leaves nothing
    if (object.isValid()) {
        if (extentOf(object).size > most) { // no value takes less than its extent
            refuseSize();
        }
        field.write(object);
    } else {
        field.writeNothing();
    }
    m_writer->append(field);
}

void Archiver::encodeValueOfObjCType(const char *type, const void *address)
{
    withTypeOfCode("encodeValueOfObjCType", type, [&]<typename Value>(std::type_identity<Value>) {
        std::array<char, sizeof(Value)> bytes;
        std::memcpy(bytes.data(), address, bytes.size());
        toArchiveOrder(bytes.data(), bytes.size());
        m_writer->writeTyped(type[0], bytes.data(), bytes.size());
    });
}

QVariant Unarchiver::unarchiveObjectWithData(const QByteArray &data)
{
    QString error;
    return unarchiveObjectWithData(data, error);
}

QVariant Unarchiver::unarchiveObjectWithData(const QByteArray &data, QString &error)
{
    error.clear();
    try {
        Reader reader(data);
        QVariant value = reader.read("unarchiveObjectWithData");
        if (!reader.atEnd()) {
            throw ArchiveException("unarchiveObjectWithData: the archive goes on behind its value");
        }
        if (!value.isValid()) {
            throw ArchiveException("unarchiveObjectWithData: the archive holds no object");
        }
        return value;
    } catch (const ArchiveException &exception) {
        error = QString::fromUtf8(exception.what());
        return {};
    }
}

Unarchiver::Unarchiver(const QByteArray &data) : m_reader(std::make_unique<Reader>(data))
{
}

Unarchiver::~Unarchiver() = default;

bool Unarchiver::allowsKeyedCoding() const
{
    return false;
}

QVariant Unarchiver::decodeObject()
{
    return m_reader->read("decodeObject");
}

void Unarchiver::decodeValueOfObjCType(const char *type, void *address)
{
    withTypeOfCode("decodeValueOfObjCType", type, [&]<typename Value>(std::type_identity<Value>) {
        std::array<char, sizeof(Value)> bytes;
        m_reader->readTyped(type[0], bytes.data(), bytes.size());
        toArchiveOrder(bytes.data(), bytes.size());
        if constexpr (std::is_same_v<Value, bool>) {
            *static_cast<bool *>(address) = bytes[0] != 0;
        } else {
            std::memcpy(address, bytes.data(), bytes.size());
        }
    });
}

} // namespace platform
