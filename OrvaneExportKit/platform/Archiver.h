#pragma once

#include <OrvaneExportKit/ExportMacros.h>
#include <OrvaneExportKit/platform/Exceptions.h>

#include <QtCore/QByteArray>
#include <QtCore/QVariant>

/// \file
/// The non-keyed archive, in which settings keep values that are not property-list values: fonts, colours, sizes and
/// every other type that Qt knows how to stream, also inside lists and maps. For the eyes of this kit alone; other
/// programs read and write keyed archives.

namespace platform {

struct ORVANE_CORE_EXPORT Archiver {
    /// The archive of a value. Throws `InvalidArgumentException` when the value, or one inside it, is nothing, is of a
    /// type without stream operators, or is of another container of `QVariant` than a list or a map; and when lists and
    /// maps are nested more than 512 deep.
    ///
    ///     const QByteArray archive = Archiver::archivedDataWithRootObject(QSize(3, 4));
    static QByteArray archivedDataWithRootObject(const QVariant &object);
};

struct ORVANE_CORE_EXPORT Unarchiver {
    /// The value of an archive. Data that is no such archive, is cut short, goes on behind its end, claims sizes that
    /// it does not have or holds a type that this program does not know gives an invalid `QVariant`.
    static QVariant unarchiveObjectWithData(const QByteArray &data);
};

} // namespace platform
