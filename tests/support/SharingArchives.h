#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QList>
#include <QtCore/QtEndian>

/// \file
/// Binary keyed archives whose objects share arrays inside the property list, as no archiver writes them: a few bytes
/// say that here, too, stands a long array.

namespace support {

/// A binary property list put together object by object, so that several can refer to one container.
class BinaryList
{
public:
    quint16 add(const QByteArray &start, const QList<quint16> &references = {})
    {
        m_positions += bigEndian(static_cast<quint32>(m_list.size()));
        m_list += start;
        for (const quint16 reference : references) {
            m_list += bigEndian(reference);
        }
        return m_count++;
    }

    quint16 addString(const QByteArray &ascii) { return add("\x5F\x10" + QByteArray(1, char(ascii.size())) + ascii); }

    quint16 addUid(quint16 index) { return add("\x81" + bigEndian(index)); }

    quint16 addArray(const QList<quint16> &elements)
    {
        return add("\xAF\x11" + bigEndian(static_cast<quint16>(elements.size())), elements);
    }

    /// The list, of which the object added last is the outermost.
    QByteArray bytes() const
    {
        return m_list + m_positions + QByteArray(6, '\0') + "\x04\x02" + bigEndian(quint64{m_count}) +
               bigEndian(quint64{m_count} - 1) + bigEndian(static_cast<quint64>(m_list.size()));
    }

private:
    template <typename Number>
    static QByteArray bigEndian(Number number)
    {
        const Number swapped = qToBigEndian(number);
        return QByteArray(reinterpret_cast<const char *>(&swapped), sizeof swapped);
    }

    QByteArray m_list = "bplist00";
    QByteArray m_positions;
    quint16 m_count = 0;
};

/// An archive of the outermost field `root`, a reference to object 1, with these objects of the list from 1 on.
inline QByteArray finished(BinaryList &list, QList<quint16> objects)
{
    objects.prepend(list.addString("$null"));
    const quint16 root = list.addString("root");
    const quint16 top = list.add("\xD1", {root, list.addUid(1)});
    const QList<quint16> keys{list.addString("$archiver"), list.addString("$version"), list.addString("$top"),
                              list.addString("$objects")};
    const QList<quint16> values{list.addString("NSKeyedArchiver"), list.add(QByteArray::fromHex("12000186a0")), top,
                                list.addArray(objects)};
    list.add("\xD4", keys + values);
    return list.bytes();
}

/// An object with a class, object 2, and one more field.
inline quint16 addObject(BinaryList &list, const QByteArray &key, quint16 value)
{
    const quint16 classKey = list.addString("$class");
    return list.add("\xD2", {classKey, list.addString(key), list.addUid(2), value});
}

inline quint16 addClass(BinaryList &list, const QByteArray &name)
{
    const quint16 key = list.addString("$classname");
    return list.add("\xD1", {key, list.addString(name)});
}

/// `count` objects of a class with the same field, an array of all of them, the root, and behind them a string.
inline QByteArray manyOfOne(BinaryList &list, quint16 count, const QByteArray &className, const QByteArray &key,
                            quint16 value, const QByteArray &rootClass = "NSArray")
{
    QList<quint16> references;
    for (quint16 index = 0; index < count; ++index) {
        references.append(list.addUid(static_cast<quint16>(4 + index)));
    }
    const QByteArray rootKey = "NS.objects";
    const quint16 root = list.add(
        "\xD2", {list.addString("$class"), list.addString(rootKey), list.addUid(3), list.addArray(references)});
    const quint16 elementClass = addClass(list, className);
    const quint16 arrayClass = addClass(list, rootClass);
    return finished(list, QList<quint16>{root, elementClass, arrayClass} +
                              QList<quint16>(count, addObject(list, key, value)) +
                              QList<quint16>{list.addString("behind them")});
}

} // namespace support
