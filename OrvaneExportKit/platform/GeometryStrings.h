#pragma once

#include <OrvaneExportKit/ExportMacros.h>

#include <QtCore/QPointF>
#include <QtCore/QRectF>
#include <QtCore/QSizeF>
#include <QtCore/QString>

#include <optional>

/// \file
/// Points, sizes and rectangles as strings, as settings and keyed archives hold them.
///
///     stringFromSize({595.25, 842});            // "{595.25, 842}"
///     rectangleFromString(u"{{0, 5}, {8, 9}}"); // QRectF(0, 5, 8, 9)
///
/// Numbers are written so that reading them gives the same number again, in any locale. Reading takes spaces around
/// every number, brace and comma, and gives nothing for a string that holds anything else or a number that is not
/// finite.
///
/// For use on any thread, with objects of its own.

namespace platform {

/// The string for finite numbers: "{x, y}", "{width, height}" and "{{x, y}, {width, height}}".
ORVANE_CORE_EXPORT QString stringFromPoint(QPointF point);
ORVANE_CORE_EXPORT QString stringFromSize(QSizeF size);
ORVANE_CORE_EXPORT QString stringFromRectangle(const QRectF &rectangle);

/// What a string of these forms stands for; nothing for any other string.
ORVANE_CORE_EXPORT std::optional<QPointF> pointFromString(QStringView string);
ORVANE_CORE_EXPORT std::optional<QSizeF> sizeFromString(QStringView string);
ORVANE_CORE_EXPORT std::optional<QRectF> rectangleFromString(QStringView string);

} // namespace platform
