#pragma once

#include <OrvaneExportKit/platform/PropertyList.h>

namespace platform {

/// Throws a `PropertyListError` unless the value can be written in the format, so that the writers need no errors of
/// their own. The nesting, and the size of what will be written, are bounded too.
void requireWritable(const QVariant &value, PropertyList::Format format);

} // namespace platform
