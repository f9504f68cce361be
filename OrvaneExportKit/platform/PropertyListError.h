#pragma once

#include <OrvaneExportKit/platform/PropertyList.h>

namespace platform {

/// Why a property list cannot be read or a value not be written. Thrown inside the library alone: `PropertyList` hands
/// it to its callers as a value.
struct PropertyListError {
    QString description; ///< one sentence that begins with the place
};

/// What readers and writers say when the nesting goes beyond its limit.
inline QString nestingComplaint()
{
    return QStringLiteral("more than %1 containers stand inside each other").arg(PropertyList::maximumNesting);
}

} // namespace platform
