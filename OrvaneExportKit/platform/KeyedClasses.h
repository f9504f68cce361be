#pragma once

#include <QtCore/QStringList>
#include <QtCore/QVariant>

#include <functional>
#include <optional>

namespace platform {

class KeyedFieldReader;
class KeyedFieldWriter;

using KeyedDecode = std::function<QVariant(KeyedFieldReader &)>;

/// What makes a value of an object of the class; empty for a class that is not known.
KeyedDecode keyedDecode(const QString &className);

/// How values of a type are written.
struct KeyedEncode {
    QStringList classNames;
    std::function<void(const QVariant &, KeyedFieldWriter &)> write;
};

/// Nothing for a type that cannot be archived as an object with fields.
std::optional<KeyedEncode> keyedEncode(QMetaType type);

} // namespace platform
