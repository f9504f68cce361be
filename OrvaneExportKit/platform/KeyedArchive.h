#pragma once

#include <QtCore/QByteArrayView>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QVariant>

#include <memory>

namespace platform {

/// The property list of a keyed archive, with the objects in the table that they refer to each other by.
///
/// All member functions throw an `ArchiveException` when what they meet is malformed.
class KeyedArchive
{
public:
    struct Class {
        QString name;
        QStringList names; ///< the name, then those of the superclasses; empty when the archive does not tell
    };

    static constexpr qint64 version = 100000;
    static constexpr QStringView nothing = u"$null"; ///< what stands in the table for no object
    static constexpr QStringView classKey = u"$class";

    explicit KeyedArchive(QByteArrayView data);

    /// How many bytes the archive has.
    quint64 size() const { return m_size; }

    const QVariantMap &outermostFields() const { return m_top; }
    quint32 objectCount() const { return static_cast<quint32>(m_objects.size()); }
    const QVariant &object(quint32 index) const { return m_objects[index]; }

    /// The fields of an object that has a class.
    const QVariantMap &fields(quint32 index) const;

    /// The index of the class of an object that has one.
    quint32 classIndex(quint32 index) const;

    Class classAt(quint32 classIndex) const;

    /// The name that a field has in the archive, where names that begin with `$` are the archive's own.
    static QString archivedKey(const QString &key);

private:
    quint64 m_size;
    QVariantMap m_top;
    QVariantList m_objects;
};

/// Throws an `ArchiveException`.
[[noreturn]] void failInArchive(const std::string &place, const QString &complaint);

} // namespace platform
