#pragma once

#include <OrvaneExportKit/platform/PropertyList.h>

#include <QtCore/QStringList>
#include <QtCore/QVariant>

namespace support {

/// A keyed archive put together object by object, without the kit's archiver.
///
///     HandMadeArchive archive;
///     const QVariant point = archive.add({u"NSColor"_s, u"NSObject"_s}, {{u"NSColorSpace"_s, 1}});
///     archive.data(point);
class HandMadeArchive
{
public:
    /// Adds a plain value and gives the reference to it.
    QVariant add(const QVariant &value)
    {
        m_objects.append(value);
        return QVariant::fromValue(platform::PropertyList::Uid{static_cast<quint32>(m_objects.size() - 1)});
    }

    /// Adds an object of a class, given with its superclasses.
    QVariant add(const QStringList &classNames, QVariantMap fields)
    {
        const QVariantList names(classNames.begin(), classNames.end());
        fields[QStringLiteral("$class")] =
            add(QVariantMap{{QStringLiteral("$classname"), classNames.first()}, {QStringLiteral("$classes"), names}});
        return add(QVariant(fields));
    }

    QByteArray data(const QVariant &root,
                    platform::PropertyList::Format format = platform::PropertyList::Format::Binary) const
    {
        const QVariantMap archive{{QStringLiteral("$version"), 100000},
                                  {QStringLiteral("$archiver"), QStringLiteral("NSKeyedArchiver")},
                                  {QStringLiteral("$top"), QVariantMap{{QStringLiteral("root"), root}}},
                                  {QStringLiteral("$objects"), m_objects}};
        return platform::PropertyList::write(archive, format).data.value_or(QByteArray());
    }

private:
    QVariantList m_objects{QStringLiteral("$null")};
};

/// What stands in a keyed archive, read as a property list and no more.
class ArchiveContents
{
public:
    explicit ArchiveContents(const QByteArray &data)
        : m_archive(platform::PropertyList::read(data).value.value_or(QVariant()).toMap())
    {
    }

    /// The fields of the root object.
    QVariantMap root() const
    {
        return object(m_archive.value(QStringLiteral("$top")).toMap().value(QStringLiteral("root"))).toMap();
    }

    /// The entry that a reference stands for.
    QVariant object(const QVariant &reference) const
    {
        const QVariantList objects = m_archive.value(QStringLiteral("$objects")).toList();
        return objects.value(static_cast<qsizetype>(reference.value<platform::PropertyList::Uid>().value));
    }

    /// The class of an object with these fields, and its superclasses.
    QStringList classNames(const QVariantMap &fields) const
    {
        return object(fields.value(QStringLiteral("$class"))).toMap().value(QStringLiteral("$classes")).toStringList();
    }

private:
    QVariantMap m_archive;
};

} // namespace support
