#include <OrvaneExportKit/platform/Archiver.h>

#include <QtCore/QDataStream>
#include <QtCore/QIODevice>

#include <new>

namespace platform {

namespace {

// An archive is the magic number, the version, the length of the rest, and a value. A value is a kind and: for a list
// its count and values, for a map its count and pairs of key and value, for any other its type's name and its streamed
// bytes.
constexpr quint32 magicNumber = 0x4F454B41;
constexpr quint16 archiveVersion = 1;
constexpr auto streamVersion = QDataStream::Qt_6_4;
constexpr int maximumNesting = 512;

enum class Kind : quint8 {
    Other,
    List,
    Map,
};

/// Whether values of the type can hold values of any type, which would bring back the nesting that is limited here.
bool holdsAnything(const QByteArray &typeName)
{
    return typeName.contains("QVariant");
}

class Writer
{
public:
    explicit Writer(QByteArray &data) : m_stream(&data, QIODevice::WriteOnly) { m_stream.setVersion(streamVersion); }

    void write(const QVariant &value, int depth = 0)
    {
        if (depth > maximumNesting) {
            throw InvalidArgumentException("archivedDataWithRootObject: lists and maps are nested more than 512 deep");
        }
        if (value.metaType() == QMetaType::fromType<QVariantList>()) {
            writeList(value.toList(), depth);
        } else if (value.metaType() == QMetaType::fromType<QVariantMap>()) {
            writeMap(value.toMap(), depth);
        } else {
            writeOther(value);
        }
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
        if (!value.isValid() || holdsAnything(value.typeName()) || !value.metaType().save(stream, value.constData())) {
            throw InvalidArgumentException(std::string("archivedDataWithRootObject: a value of type ") +
                                           (value.isValid() ? value.typeName() : "nothing") + " cannot be archived");
        }
        m_stream << quint8(Kind::Other) << QByteArray(value.typeName()) << bytes;
    }

    QDataStream m_stream;
};

/// Reads what `Writer` wrote. Whatever the data claims, a count is believed only as far as bytes are left for it.
class Reader
{
public:
    explicit Reader(const QByteArray &data) : m_stream(data) { m_stream.setVersion(streamVersion); }

    QVariant readArchive()
    {
        quint32 magic = 0;
        quint16 version = 0;
        quint64 length = 0;
        m_stream >> magic >> version >> length;
        if (magic != magicNumber || version != archiveVersion || length != bytesLeft()) {
            return {};
        }
        QVariant value = read(0);
        return m_failed || m_stream.status() != QDataStream::Ok || !m_stream.atEnd() ? QVariant() : value;
    }

private:
    quint64 bytesLeft() const { return static_cast<quint64>(m_stream.device()->bytesAvailable()); }

    QVariant failure()
    {
        m_failed = true;
        return {};
    }

    QVariant read(int depth)
    {
        quint8 kind = 0;
        m_stream >> kind;
        if (m_stream.status() != QDataStream::Ok || depth > maximumNesting) {
            return failure();
        }
        switch (Kind(kind)) {
        case Kind::Other:
            return readOther();
        case Kind::List:
            return readList(depth);
        case Kind::Map:
            return readMap(depth);
        }
        return failure();
    }

    quint64 readCount()
    {
        quint64 count = 0;
        m_stream >> count;
        if (count > bytesLeft()) {
            m_failed = true;
            return 0;
        }
        return count;
    }

    QVariant readList(int depth)
    {
        QVariantList list;
        for (quint64 count = readCount(); count > 0 && !m_failed; --count) {
            list.append(read(depth + 1));
        }
        return list;
    }

    QVariant readMap(int depth)
    {
        QVariantMap map;
        for (quint64 count = readCount(); count > 0 && !m_failed; --count) {
            QString key;
            m_stream >> key;
            map.insert(key, read(depth + 1));
        }
        return map;
    }

    QVariant readOther()
    {
        QByteArray typeName;
        QByteArray bytes;
        m_stream >> typeName >> bytes;
        const QMetaType type = QMetaType::fromName(typeName);
        if (m_stream.status() != QDataStream::Ok || !type.isValid() || holdsAnything(typeName)) {
            return failure();
        }
        QVariant value(type);
        QDataStream stream(bytes);
        stream.setVersion(streamVersion);
        if (!type.load(stream, value.data()) || stream.status() != QDataStream::Ok || !stream.atEnd()) {
            return failure();
        }
        return value;
    }

    QDataStream m_stream;
    bool m_failed = false;
};

} // namespace

QByteArray Archiver::archivedDataWithRootObject(const QVariant &object)
{
    QByteArray value;
    Writer(value).write(object);
    QByteArray archive;
    QDataStream stream(&archive, QIODevice::WriteOnly);
    stream.setVersion(streamVersion);
    stream << magicNumber << archiveVersion << quint64(value.size());
    return archive + value;
}

QVariant Unarchiver::unarchiveObjectWithData(const QByteArray &data)
{
    try {
        return Reader(data).readArchive();
    } catch (const std::bad_alloc &) {
        return {}; // a type of Qt's own believed a size inside its bytes
    }
}

} // namespace platform
