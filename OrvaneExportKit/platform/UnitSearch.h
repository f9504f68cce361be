#pragma once

#include <OrvaneExportKit/platform/Range.h>

#include <QtCore/QtGlobal>

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <string_view>
#include <type_traits>

#if defined(__SSE2__) && !defined(ORVANE_PLAIN_SEARCH)
#define ORVANE_SEARCH_WITH_SSE2
#include <emmintrin.h>
#endif

/// \file
/// Searches for single units at the speed of memory: the one place that knows how a processor looks at many units at
/// once. A *kind* says which units are wanted; it is written once and works on one unit and on many.
/// Its constant `asBytes` says that it need not tell the units from U+007F on apart: then units are looked at as bytes,
/// twice as many at once. Where the processor's instructions are missing, or `ORVANE_PLAIN_SEARCH` is defined, it looks
/// at one after the other.

namespace platform {

/// Bit i says whether the unit i of a block is wanted.
using UnitMask = std::uint64_t;

/// How many units one mask covers.
inline constexpr std::size_t maskedUnits = 64;

/// 1 when the unit lies from `first` to `last`, else 0: an answer that `|` joins with others, as it does those below.
constexpr unsigned isWithin(char16_t unit, char16_t first, char16_t last)
{
    return first <= unit && unit <= last ? 1 : 0;
}

/// 1 when the unit lies before `first` or behind `last`, else 0.
constexpr unsigned isOutside(char16_t unit, char16_t first, char16_t last)
{
    return 1 - isWithin(unit, first, last);
}

#if defined(ORVANE_SEARCH_WITH_SSE2)
/// Eight units side by side, or eight answers about them, all bits set where the answer is yes.
struct EightUnits {
    __m128i lanes;

    Q_ALWAYS_INLINE static EightUnits at(const char16_t *units)
    {
        return {_mm_loadu_si128(reinterpret_cast<const __m128i *>(units))};
    }
    Q_ALWAYS_INLINE static EightUnits all(char16_t unit) { return {_mm_set1_epi16(static_cast<short>(unit))}; }

    Q_ALWAYS_INLINE friend EightUnits operator==(EightUnits units, char16_t unit)
    {
        return {_mm_cmpeq_epi16(units.lanes, all(unit).lanes)};
    }
    Q_ALWAYS_INLINE friend EightUnits operator|(EightUnits a, EightUnits b) { return {_mm_or_si128(a.lanes, b.lanes)}; }
};

/// Sixteen units side by side, as bytes, or answers about them. What lies from U+007F on becomes 0x7F or more.
struct SixteenUnits {
    __m128i lanes;

    Q_ALWAYS_INLINE static SixteenUnits at(const char16_t *units)
    {
        return {_mm_packs_epi16(EightUnits::at(units).lanes, EightUnits::at(units + 8).lanes)};
    }
    Q_ALWAYS_INLINE static SixteenUnits all(int byte) { return {_mm_set1_epi8(static_cast<char>(byte))}; }

    Q_ALWAYS_INLINE friend SixteenUnits operator==(SixteenUnits units, char16_t unit)
    {
        return {_mm_cmpeq_epi8(units.lanes, all(unit).lanes)};
    }
    Q_ALWAYS_INLINE friend SixteenUnits operator|(SixteenUnits a, SixteenUnits b)
    {
        return {_mm_or_si128(a.lanes, b.lanes)};
    }
};

/// How far behind `last` each unit lies, 0 from `first` to `last`. Behind 0xFF comes 0.
Q_ALWAYS_INLINE __m128i distance(SixteenUnits units, int first, int last)
{
    const __m128i offset = _mm_sub_epi8(units.lanes, SixteenUnits::all(first).lanes);
    return _mm_subs_epu8(offset, SixteenUnits::all(last - first).lanes);
}

Q_ALWAYS_INLINE SixteenUnits isWithin(SixteenUnits units, char16_t first, char16_t last)
{
    return {_mm_cmpeq_epi8(distance(units, first, last), _mm_setzero_si128())};
}

Q_ALWAYS_INLINE SixteenUnits isOutside(SixteenUnits units, char16_t first, char16_t last)
{
    return {_mm_cmpeq_epi8(distance(units, last + 1, first - 1), _mm_setzero_si128())};
}
#endif

/// Whether the unit keeps its value where units are looked at as bytes.
constexpr bool fitsByte(char16_t unit)
{
    return unit < 0x7F;
}

/// The kind of units that equal one of a few.
template <char16_t... wanted>
struct OneOf {
    static constexpr bool asBytes = (fitsByte(wanted) && ...);

    template <typename Units>
    Q_ALWAYS_INLINE constexpr auto operator()(Units units) const
    {
        return ((units == wanted) | ...);
    }
};

/// The kind of units that equal one that only the running program knows.
template <bool fits>
struct Exactly {
    static constexpr bool asBytes = fits;
    char16_t wanted;

    template <typename Units>
    Q_ALWAYS_INLINE constexpr auto operator()(Units units) const
    {
        return units == wanted;
    }
};

/// The kind of units in four ranges of ASCII and, where it is wanted, all units from U+007F on: a quick first sieve
/// for a larger set of units, which lets some through that are not in the set.
class AsciiSieve
{
public:
    static constexpr bool asBytes = true;

    struct Bounds {
        char16_t first;
        char16_t last;
    };

    constexpr AsciiSieve(const std::array<Bounds, 4> &ranges, bool withOthers)
        : m_ranges(ranges), m_withOthers(withOthers)
    {
    }

    bool operator()(char16_t unit) const
    {
        const auto holdsUnit = [unit](const Bounds &range) {
            return isWithin(unit, range.first, range.last) != 0;
        };
        return fitsByte(unit) ? std::any_of(m_ranges.begin(), m_ranges.end(), holdsUnit) : m_withOthers;
    }

#if defined(ORVANE_SEARCH_WITH_SSE2)
    Q_ALWAYS_INLINE SixteenUnits operator()(SixteenUnits units) const
    {
        __m128i closest = m_withOthers ? distance(units, 0x7F, 0xFF) : SixteenUnits::all(0xFF).lanes;
        for (const Bounds &range : m_ranges) {
            closest = _mm_min_epu8(closest, distance(units, range.first, range.last));
        }
        return {_mm_cmpeq_epi8(closest, _mm_setzero_si128())};
    }
#endif

private:
    std::array<Bounds, 4> m_ranges;
    bool m_withOthers;
};

/// One bit a unit for the first `count` units, at most 64, unit after unit.
template <typename Kind>
UnitMask plainMask(const char16_t *units, std::size_t count, const Kind &kind)
{
    static_assert(std::is_same_v<decltype(Kind::asBytes), const bool>, "a kind says whether bytes do for it");
    UnitMask mask = 0;
    for (std::size_t index = 0; index < count; ++index) {
        mask |= UnitMask{kind(units[index]) ? 1U : 0U} << index;
    }
    return mask;
}

#if defined(ORVANE_SEARCH_WITH_SSE2)
/// One bit a unit for sixteen units.
template <typename Kind>
Q_ALWAYS_INLINE UnitMask maskOfSixteen(const char16_t *units, const Kind &kind)
{
    __m128i answers;
    if constexpr (Kind::asBytes) {
        answers = kind(SixteenUnits::at(units)).lanes;
    } else {
        answers = _mm_packs_epi16(kind(EightUnits::at(units)).lanes, kind(EightUnits::at(units + 8)).lanes);
    }
    return static_cast<UnitMask>(_mm_movemask_epi8(answers));
}
#else
template <typename Kind>
Q_ALWAYS_INLINE UnitMask maskOfSixteen(const char16_t *units, const Kind &kind)
{
    return plainMask(units, 16, kind);
}
#endif

/// One bit a unit for 64 units.
template <typename Kind>
Q_ALWAYS_INLINE UnitMask fullMask(const char16_t *units, const Kind &kind)
{
    return maskOfSixteen(units, kind) | maskOfSixteen(units + 16, kind) << 16 | maskOfSixteen(units + 32, kind) << 32 |
           maskOfSixteen(units + 48, kind) << 48;
}

/// The mask of the first `count` units, fewer than 64.
template <typename Kind>
UnitMask partialMask(const char16_t *units, std::size_t count, const Kind &kind)
{
    if (count < 16) {
        return plainMask(units, count, kind);
    }
    const std::size_t last = count - 16; // the last sixteen may overlap those before them
    UnitMask mask = maskOfSixteen(units + last, kind) << last;
    for (std::size_t index = 0; index < last; index += 16) {
        mask |= maskOfSixteen(units + index, kind) << index;
    }
    return mask;
}

/// Calls `visit(index)` for each bit that is set, from the lowest to the highest; the lowest bit stands for `start`.
template <typename Visit>
void forEachBit(UnitMask mask, std::size_t start, Visit &visit)
{
    for (; mask != 0; mask &= mask - 1) {
        visit(start + static_cast<std::size_t>(std::countr_zero(mask)));
    }
}

/// Moves `at` on by 64 units until `maskAt(at)` is not empty, and returns that mask, or an empty one when no 64 units
/// are left before `until`.
template <typename MaskAt>
Q_ALWAYS_INLINE UnitMask nextMask(std::size_t &at, std::size_t until, MaskAt maskAt)
{
    for (; at + maskedUnits <= until; at += maskedUnits) {
        if (const UnitMask mask = maskAt(at)) {
            return mask;
        }
    }
    return 0;
}

/// The same for the masks of a kind, from `at` to the end of the text.
template <typename Kind>
Q_ALWAYS_INLINE UnitMask nextMaskOf(std::u16string_view text, std::size_t &at, const Kind &kind)
{
    const auto maskAt = [&](std::size_t place) {
        return fullMask(text.data() + place, kind);
    };
    const UnitMask mask = nextMask(at, text.size(), maskAt);
    return mask == 0 && at < text.size() ? partialMask(text.data() + at, text.size() - at, kind) : mask;
}

/// How often what is sought is expected to stand in a text: often is once in some hundred units. It decides how long
/// the search takes, not what it finds. Single units are expected often and literals rarely, where nothing else is
/// said.
enum class Expected { Rarely, Often };

/// A mask, and the index that its lowest bit stands for.
struct PlacedMask {
    UnitMask mask;
    std::size_t start;
};

/// Calls `visit(index)` for each bit of the masks from `at` on, from left to right, and moves `at` to where fewer than
/// 64 units are left before `until`.
///
/// Where much is expected, the masks that are not empty are noted down before they are visited, without a branch at
/// each: the processor could not foresee it, and that costs as much as searching 200 to 300 units.
template <Expected expected, typename MaskAt, typename Visit>
void forEachMaskedUnit(std::size_t &at, std::size_t until, const MaskAt &maskAt, Visit &visit)
{
    if constexpr (expected == Expected::Rarely) {
        while (const UnitMask mask = nextMask(at, until, maskAt)) {
            forEachBit(mask, at, visit);
            at += maskedUnits;
        }
        return;
    }
    std::array<PlacedMask, 64> noted; // not cleared, for that takes time
    while (at + maskedUnits <= until) {
        const std::size_t end = at + std::min(noted.size(), (until - at) / maskedUnits) * maskedUnits;
        std::size_t count = 0;
        for (; at < end; at += maskedUnits) {
            const UnitMask mask = maskAt(at);
            noted[count] = {mask, at};
            count += mask == 0 ? 0 : 1;
        }
        for (std::size_t index = 0; index < count; ++index) {
            forEachBit(noted[index].mask, noted[index].start, visit);
        }
    }
}

/// Calls `visit(index)` for every unit of the kind in the text, from left to right.
template <Expected expected = Expected::Often, typename Kind, typename Visit>
void forEachUnit(std::u16string_view text, std::size_t from, const Kind &kind, Visit visit)
{
    const auto maskAt = [&](std::size_t place) {
        return fullMask(text.data() + place, kind);
    };
    std::size_t at = from;
    forEachMaskedUnit<expected>(at, text.size(), maskAt, visit);
    if (at < text.size()) {
        forEachBit(partialMask(text.data() + at, text.size() - at, kind), at, visit);
    }
}

/// The index of the first unit of the kind, not before `from`, or the length of the text.
template <typename Kind>
std::size_t findUnit(std::u16string_view text, std::size_t from, const Kind &kind)
{
    const UnitMask mask = nextMaskOf(text, from, kind);
    return mask == 0 ? text.size() : from + static_cast<std::size_t>(std::countr_zero(mask));
}

/// The index behind the last unit of the kind that stands from `from` to before `until`, or `from`.
template <typename Kind>
std::size_t findBehindLastUnit(std::u16string_view text, std::size_t from, std::size_t until, const Kind &kind)
{
    while (until - from >= 16) {
        if (const UnitMask mask = maskOfSixteen(text.data() + until - 16, kind)) {
            return until - 16 + static_cast<std::size_t>(std::bit_width(mask));
        }
        until -= 16;
    }
    while (until > from && !kind(text[until - 1])) {
        --until;
    }
    return until;
}

} // namespace platform
