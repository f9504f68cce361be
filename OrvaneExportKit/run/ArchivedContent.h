#pragma once

#include <OrvaneExportKit/ExportMacros.h>

#include <QtCore/QByteArray>
#include <QtCore/QList>
#include <QtCore/QVariant>

namespace KZArrayExportAdditions {

/// The root objects of keyed archives, in the order of the archives, as `platform::KeyedUnarchiver` decodes them.
///
///     arrayWithUnarchivedKeyedContent({archiveOfA, archiveOfB})   // {"A", "B"}
///
/// Decodes from the last archive to the first, so of several that are malformed the last one fails. Nothing is skipped:
/// throws `platform::ArchiveException` for data that is no keyed archive or a malformed one, and
/// `platform::InvalidArgumentException` for one that holds no object.
///
/// For use on any thread, with objects of its own. No archived class may be registered or removed meanwhile.
ORVANE_CORE_EXPORT QVariantList arrayWithUnarchivedKeyedContent(const QList<QByteArray> &archives);

} // namespace KZArrayExportAdditions
