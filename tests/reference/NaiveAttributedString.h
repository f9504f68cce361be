#pragma once

#include <OrvaneExportKit/platform/Range.h>

#include <QtCore/QVariant>

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace reference {

/// An attributed text without runs: every unit has a whole set of attributes to itself.
struct NaiveAttributedString {
    std::u16string units;
    std::vector<QVariantMap> attributes; ///< as many as units

    /// Values are equal only when their types are as well: 1 is neither 1.0 nor true.
    friend bool operator==(const NaiveAttributedString &a, const NaiveAttributedString &b);
};

/// The longest range around `index` whose units have the same attributes goes to `effectiveRange`.
QVariantMap attributesAtIndex(const NaiveAttributedString &text, std::size_t index, platform::Range &effectiveRange);

/// The longest range around `index` inside `within` over which the value stays equal goes to `longestEffectiveRange`.
QVariant attribute(const NaiveAttributedString &text, const QString &name, std::size_t index,
                   platform::Range &longestEffectiveRange, platform::Range within);

/// The changes below throw `platform::RangeException` when they reach past the end, and then change nothing.
void addAttributes(NaiveAttributedString &text, const QVariantMap &attributes, platform::Range range);
void setAttributes(NaiveAttributedString &text, const QVariantMap &attributes, platform::Range range);
void removeAttribute(NaiveAttributedString &text, const QString &name, platform::Range range);
void changeAttributes(NaiveAttributedString &text, platform::Range range,
                      const std::function<void(QVariantMap &)> &change);

/// The attributes of units that replace the range: those of the first replaced unit; for an empty range those of the
/// unit before it, at the very start those of the first unit, and in an empty text none.
QVariantMap attributesOfNewUnits(const NaiveAttributedString &text, platform::Range replaced);

void replaceCharactersInRange(NaiveAttributedString &text, platform::Range range, std::u16string_view string);
void deleteCharactersInRange(NaiveAttributedString &text, platform::Range range);

} // namespace reference
