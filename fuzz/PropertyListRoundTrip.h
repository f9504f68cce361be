#pragma once

#include <fuzz/Require.h>
#include <tests/support/PropertyListDump.h>

#include <OrvaneExportKit/platform/PropertyList.h>

#include <algorithm>

/// Whether a property list stands for few enough values to be walked: small ones that share each other in a binary list
/// can stand for more than memory holds.
inline bool isShort(const QVariant &value, int &valuesLeft)
{
    if (--valuesLeft < 0) {
        return false;
    }
    const auto isShortElement = [&valuesLeft](const QVariant &element) {
        return isShort(element, valuesLeft);
    };
    if (value.typeId() == QMetaType::QVariantList) {
        const QVariantList list = value.toList();
        return std::all_of(list.begin(), list.end(), isShortElement);
    }
    if (value.typeId() == QMetaType::QVariantMap) {
        const QVariantMap map = value.toMap();
        return std::all_of(map.begin(), map.end(), isShortElement);
    }
    return true;
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
