#pragma once

#include <OrvaneExportKit/platform/PropertyList.h>

#include <QtCore/QDateTime>
#include <QtCore/QString>
#include <QtCore/QVariant>
#include <QtCore/QtEndian>

#include <bit>
#include <cmath>
#include <string>

/// \file
/// A property list as one line of text that shows every value's kind and exact content; `property_lists.py` writes the
/// same. Two values with the same line are equal in kind and content, where `QVariant` would take 1 and 1.0 for equal.

namespace support {

inline std::string hex(const QByteArray &bytes)
{
    return bytes.toHex().toStdString();
}

inline std::string hexUnits(const QString &text)
{
    QByteArray units(2 * text.size(), '\0');
    qToBigEndian<char16_t>(text.data(), text.size(), units.data());
    return hex(units);
}

inline std::string hexReal(double number)
{
    if (std::isnan(number)) {
        return "nan";
    }
    const auto bits = qToBigEndian(std::bit_cast<quint64>(number));
    return hex(QByteArray(reinterpret_cast<const char *>(&bits), sizeof bits));
}

inline std::string dump(const QVariant &value);

inline std::string dumpArray(const QVariantList &elements)
{
    std::string text = "[";
    for (const QVariant &element : elements) {
        text += dump(element) + ",";
    }
    return text + "]";
}

inline std::string dumpDictionary(const QVariantMap &entries)
{
    std::string text = "{";
    for (auto entry = entries.cbegin(); entry != entries.cend(); ++entry) {
        text += hexUnits(entry.key()) + "=" + dump(entry.value()) + ",";
    }
    return text + "}";
}

/// `s` string, `i` integer, `r` real, `d` date in milliseconds since 1970, `x` data, `u` UID.
inline std::string dump(const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::QString:
        return "s" + hexUnits(value.toString());
    case QMetaType::LongLong:
        return "i" + std::to_string(value.toLongLong());
    case QMetaType::ULongLong:
        return "i" + std::to_string(value.toULongLong());
    case QMetaType::Double:
        return "r" + hexReal(value.toDouble());
    case QMetaType::Bool:
        return value.toBool() ? "true" : "false";
    case QMetaType::QDateTime:
        return (value.toDateTime().timeSpec() == Qt::UTC ? "d" : "local date ") +
               std::to_string(value.toDateTime().toMSecsSinceEpoch());
    case QMetaType::QByteArray:
        return "x" + hex(value.toByteArray());
    case QMetaType::QVariantList:
        return dumpArray(value.toList());
    case QMetaType::QVariantMap:
        return dumpDictionary(value.toMap());
    default:
        if (value.metaType() == QMetaType::fromType<platform::PropertyList::Uid>()) {
            return "u" + std::to_string(value.value<platform::PropertyList::Uid>().value);
        }
        return std::string("a value of type ") + value.metaType().name();
    }
}

/// What reading gave: the value's line, or the error.
inline std::string dump(const platform::PropertyList::ReadResult &result)
{
    return result.value ? dump(*result.value) : "error: " + result.error.toStdString();
}

} // namespace support
