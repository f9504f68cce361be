#pragma once

#include <fuzz/Require.h>
#include <tests/support/PropertyListDump.h>

#include <OrvaneExportKit/platform/PropertyList.h>

#include <algorithm>
#include <cstdlib>

/// Whether a value comes back from the binary format exactly and can be walked: dates far away lose milliseconds to the
/// seconds in doubles, and small values that share each other can stand for more than memory holds.
inline bool isExact(const QVariant &value, int &valuesLeft)
{
    constexpr qint64 exact = qint64{1} << 50;
    const auto isExactElement = [&valuesLeft](const QVariant &element) {
        return isExact(element, valuesLeft);
    };
    if (--valuesLeft < 0) {
        return false;
    }
    switch (value.typeId()) {
    case QMetaType::QDateTime:
        return std::abs(value.toDateTime().toMSecsSinceEpoch()) < exact;
    case QMetaType::QVariantList: {
        const QVariantList list = value.toList();
        return std::all_of(list.begin(), list.end(), isExactElement);
    }
    case QMetaType::QVariantMap: {
        const QVariantMap map = value.toMap();
        return std::all_of(map.begin(), map.end(), isExactElement);
    }
    default:
        return true;
    }
}

inline bool isExact(const QVariant &value)
{
    int valuesLeft = 2000;
    return isExact(value, valuesLeft);
}

/// Writes a value that was read, and requires that reading gives it back. Answers whether it could be written.
inline bool checkRoundTrip(const QVariant &value, platform::PropertyList::Format format)
{
    const auto written = platform::PropertyList::write(value, format);
    if (!written.data) {
        require(!written.error.isEmpty(), "a refusal without a word");
        return false;
    }
    const auto read = platform::PropertyList::read(*written.data);
    require(read.value.has_value(), "what was written cannot be read: " + read.error.toStdString());
    require(read.format == format, "what was written is taken for the other format");
    const std::string expected = support::dump(value);
    const std::string found = support::dump(*read.value);
    require(found == expected, "read " + found + "\ninstead of " + expected);
    return true;
}
