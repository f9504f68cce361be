#pragma once

#include <QtCore/qglobal.h>

/// Marks what `OrvaneExportKit::Core` offers to programs that link it.
#ifdef ORVANE_BUILDING_CORE
#define ORVANE_CORE_EXPORT Q_DECL_EXPORT
#else
#define ORVANE_CORE_EXPORT Q_DECL_IMPORT
#endif

/// Marks what `OrvaneExportKit::OrvaneExportKit`, the library with the windows, offers.
#ifdef ORVANE_BUILDING_KIT
#define ORVANE_KIT_EXPORT Q_DECL_EXPORT
#else
#define ORVANE_KIT_EXPORT Q_DECL_IMPORT
#endif
