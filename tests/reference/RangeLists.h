#pragma once

#include <tests/reference/NaiveAttributedString.h>

#include <OrvaneExportKit/platform/Range.h>

#include <string>
#include <string_view>

/// \file
/// `Text` is a plain `std::u16string` or a `NaiveAttributedString`.

namespace reference {

platform::RangeList ascendingSortedRanges(const platform::RangeList &ranges);

template <typename Text>
void deleteCharactersInRanges(Text &text, const platform::RangeList &ranges);

void encloseRanges(std::u16string &text, const platform::RangeList &ranges, std::u16string_view string);

void addAttributes(NaiveAttributedString &text, const QVariantMap &attributes, const platform::RangeList &ranges);
void removeAttribute(NaiveAttributedString &text, const QString &name, const platform::RangeList &ranges);

platform::RangeList rangesForAttribute(const NaiveAttributedString &text, const QString &name, const QString &value);

} // namespace reference
