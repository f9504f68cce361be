#pragma once

#include <QtCore/QVariant>

/// \file
/// How arrays, dictionaries, sets and index collections stand in keyed archives.

namespace platform {

class KeyedFieldReader;
class KeyedFieldWriter;

QVariant decodeArray(KeyedFieldReader &reader);
QVariant decodeDictionary(KeyedFieldReader &reader);
QVariant decodeSet(KeyedFieldReader &reader);
QVariant decodeOrderedSet(KeyedFieldReader &reader);
QVariant decodeCountedSet(KeyedFieldReader &reader);
QVariant decodeIndexSet(KeyedFieldReader &reader);
QVariant decodeIndexPath(KeyedFieldReader &reader);

void encodeArray(const QVariant &value, KeyedFieldWriter &writer);
void encodeMap(const QVariant &value, KeyedFieldWriter &writer);
void encodeDictionary(const QVariant &value, KeyedFieldWriter &writer);
void encodeSet(const QVariant &value, KeyedFieldWriter &writer);
void encodeOrderedSet(const QVariant &value, KeyedFieldWriter &writer);
void encodeCountedSet(const QVariant &value, KeyedFieldWriter &writer);
void encodeIndexSet(const QVariant &value, KeyedFieldWriter &writer);
void encodeIndexPath(const QVariant &value, KeyedFieldWriter &writer);

} // namespace platform
