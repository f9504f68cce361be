#pragma once

#include <QtCore/QVariant>

/// \file
/// How attributed texts stand in keyed archives.

namespace platform {

class KeyedFieldReader;
class KeyedFieldWriter;

QVariant decodeAttributedString(KeyedFieldReader &reader);
void encodeAttributedString(const QVariant &value, KeyedFieldWriter &writer);

} // namespace platform
