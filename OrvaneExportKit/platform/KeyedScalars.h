#pragma once

#include <QtCore/QVariant>

/// \file
/// How strings, numbers, dates and other values without elements stand in keyed archives.

namespace platform {

class KeyedFieldReader;
class KeyedFieldWriter;

QVariant decodeString(KeyedFieldReader &reader);
QVariant decodeNumber(KeyedFieldReader &reader);
QVariant decodeDecimalNumber(KeyedFieldReader &reader);
QVariant decodeNull(KeyedFieldReader &reader);
QVariant decodeData(KeyedFieldReader &reader);
QVariant decodeUuid(KeyedFieldReader &reader);

/// Invalid for a time that no `QDateTime` holds.
QVariant decodeDate(KeyedFieldReader &reader);

/// Invalid for a URL that is none to Qt.
QVariant decodeUrl(KeyedFieldReader &reader);

/// Invalid for a value of another kind than point, size, rectangle, range and edge insets.
QVariant decodeGeometry(KeyedFieldReader &reader);

void encodeNull(const QVariant &value, KeyedFieldWriter &writer);
void encodeDate(const QVariant &value, KeyedFieldWriter &writer);
void encodeUrl(const QVariant &value, KeyedFieldWriter &writer);
void encodeArchivedUrl(const QVariant &value, KeyedFieldWriter &writer);
void encodeUuid(const QVariant &value, KeyedFieldWriter &writer);
void encodePoint(const QVariant &value, KeyedFieldWriter &writer);
void encodeSize(const QVariant &value, KeyedFieldWriter &writer);
void encodeRectangle(const QVariant &value, KeyedFieldWriter &writer);
void encodeRange(const QVariant &value, KeyedFieldWriter &writer);
void encodeEdgeInsets(const QVariant &value, KeyedFieldWriter &writer);

} // namespace platform
