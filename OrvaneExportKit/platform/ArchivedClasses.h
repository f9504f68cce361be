#pragma once

#include <OrvaneExportKit/platform/ArchivedClass.h>

namespace platform {

/// The class registered last under this name with a decoder; null if there is none.
std::shared_ptr<const ArchivedClass> archivedClassNamed(const QString &className);

/// The class registered last for this type with an encoder; null if there is none.
std::shared_ptr<const ArchivedClass> archivedClassOfType(QMetaType type);

} // namespace platform
