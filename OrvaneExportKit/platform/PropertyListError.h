#pragma once

#include <QtCore/QString>

namespace platform {

/// Why a property list cannot be read or a value not be written. Thrown inside the library alone: `PropertyList` hands
/// it to its callers as a value.
struct PropertyListError {
    QString description; ///< one sentence that begins with the place
};

} // namespace platform
