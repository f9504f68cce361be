#pragma once

#include <OrvaneExportKit/platform/Range.h>

#include <QtCore/QtGlobal>

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <string_view>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

/// \file
/// Searches for single units and short literals at the speed of memory: the one place that knows how a processor looks
/// at many units at once. A *kind* says which units are wanted; it is written once and works on one unit and on eight.

namespace platform {

/// Bit i says whether the unit i of a block is wanted.
using UnitMask = std::uint64_t;

/// How many units one mask covers.
inline constexpr std::size_t maskedUnits = 64;

#if defined(__SSE2__)
/// Eight units side by side, or eight answers about them, all bits set where the answer is yes.
struct EightUnits {
    __m128i lanes;

    static EightUnits at(const char16_t *units) { return {_mm_loadu_si128(reinterpret_cast<const __m128i *>(units))}; }
    static EightUnits all(char16_t unit) { return {_mm_set1_epi16(static_cast<short>(unit))}; }

    friend EightUnits operator==(EightUnits units, char16_t unit)
    {
        return {_mm_cmpeq_epi16(units.lanes, all(unit).lanes)};
    }
    friend EightUnits operator|(EightUnits a, EightUnits b) { return {_mm_or_si128(a.lanes, b.lanes)}; }
};

/// Whether each unit lies from `first` to `last`.
inline EightUnits isWithin(EightUnits units, char16_t first, char16_t last)
{
    const __m128i offset = _mm_sub_epi16(units.lanes, EightUnits::all(first).lanes);
    const __m128i beyond = _mm_subs_epu16(offset, EightUnits::all(static_cast<char16_t>(last - first)).lanes);
    return {_mm_cmpeq_epi16(beyond, _mm_setzero_si128())};
}
#endif

/// 1 when the unit lies from `first` to `last`, else 0: an answer that `|` joins with others, as it does those above.
constexpr unsigned isWithin(char16_t unit, char16_t first, char16_t last)
{
    return first <= unit && unit <= last ? 1 : 0;
}

/// The kind of units that equal one of a few.
template <std::size_t count>
struct OneOf {
    std::array<char16_t, count> wanted;

    template <typename Units>
    constexpr auto operator()(Units units) const
    {
        auto found = units == wanted[0];
        for (std::size_t index = 1; index < count; ++index) {
            found = found | (units == wanted[index]);
        }
        return found;
    }
};

template <typename... Units>
OneOf(Units...) -> OneOf<sizeof...(Units)>;

/// The kind of units in a few ranges of ASCII and, where it is wanted, all units from U+007F on: a quick first sieve
/// for a larger set of units, which lets some through that are not in the set.
template <std::size_t count>
class AsciiSieve
{
public:
    struct Bounds {
        char16_t first;
        char16_t last;
    };

    constexpr AsciiSieve(const std::array<Bounds, count> &ranges, bool withOthers)
        : m_ranges(ranges), m_withOthers(withOthers)
    {
    }

    bool operator()(char16_t unit) const
    {
        const auto holdsUnit = [unit](const Bounds &range) {
            return isWithin(unit, range.first, range.last) != 0;
        };
        return unit >= 0x7F ? m_withOthers : std::any_of(m_ranges.begin(), m_ranges.end(), holdsUnit);
    }

#if defined(__SSE2__)
    /// One bit a unit for sixteen units, as bytes: what is beyond ASCII becomes 0x7F or more.
    Q_ALWAYS_INLINE friend UnitMask maskOfSixteen(const char16_t *units, const AsciiSieve &sieve)
    {
        const __m128i bytes = _mm_packs_epi16(EightUnits::at(units).lanes, EightUnits::at(units + 8).lanes);
        __m128i misses = sieve.m_withOthers ? _mm_subs_epu8(allBytes(0x7F), bytes) : allBytes(0xFF);
        for (const Bounds &range : sieve.m_ranges) {
            const __m128i offset = _mm_sub_epi8(bytes, allBytes(range.first));
            misses = _mm_min_epu8(misses, _mm_subs_epu8(offset, allBytes(range.last - range.first)));
        }
        return static_cast<UnitMask>(_mm_movemask_epi8(_mm_cmpeq_epi8(misses, _mm_setzero_si128())));
    }
#endif

private:
#if defined(__SSE2__)
    static __m128i allBytes(int byte)
    {
        return _mm_set1_epi8(static_cast<char>(byte));
    }
#endif

    std::array<Bounds, count> m_ranges;
    bool m_withOthers;
};

/// One bit a unit for the first `count` units, at most 64, unit after unit.
template <typename Kind>
UnitMask plainMask(const char16_t *units, std::size_t count, const Kind &kind)
{
    UnitMask mask = 0;
    for (std::size_t index = 0; index < count; ++index) {
        mask |= UnitMask{kind(units[index]) ? 1U : 0U} << index;
    }
    return mask;
}

#if defined(__SSE2__)
/// One bit a unit for sixteen units.
template <typename Kind>
Q_ALWAYS_INLINE UnitMask maskOfSixteen(const char16_t *units, const Kind &kind)
{
    const __m128i answers = _mm_packs_epi16(kind(EightUnits::at(units)).lanes, kind(EightUnits::at(units + 8)).lanes);
    return static_cast<UnitMask>(_mm_movemask_epi8(answers));
}

/// One bit a unit for 64 units.
template <typename Kind>
Q_ALWAYS_INLINE UnitMask fullMask(const char16_t *units, const Kind &kind)
{
    return maskOfSixteen(units, kind) | maskOfSixteen(units + 16, kind) << 16 | maskOfSixteen(units + 32, kind) << 32 |
           maskOfSixteen(units + 48, kind) << 48;
}
#else
template <typename Kind>
Q_ALWAYS_INLINE UnitMask maskOfSixteen(const char16_t *units, const Kind &kind)
{
    return plainMask(units, 16, kind);
}

template <typename Kind>
Q_ALWAYS_INLINE UnitMask fullMask(const char16_t *units, const Kind &kind)
{
    return plainMask(units, maskedUnits, kind);
}
#endif

/// The mask of the first `count` units, fewer than 64.
template <typename Kind>
UnitMask partialMask(const char16_t *units, std::size_t count, const Kind &kind)
{
    UnitMask mask = 0;
    std::size_t index = 0;
    for (; index + 16 <= count; index += 16) {
        mask |= maskOfSixteen(units + index, kind) << index;
    }
    return index == count ? mask : mask | plainMask(units + index, count - index, kind) << index;
}

/// The mask of the units from `at` on, 64 of them or as many as there are.
template <typename Kind>
UnitMask maskAt(std::u16string_view text, std::size_t at, const Kind &kind)
{
    const std::size_t count = text.size() - at;
    return count >= maskedUnits ? fullMask(text.data() + at, kind) : partialMask(text.data() + at, count, kind);
}

/// Calls `visit(index)` for each bit that is set, from the lowest to the highest; the lowest bit stands for `start`.
template <typename Visit>
void forEachBit(UnitMask mask, std::size_t start, Visit &visit)
{
    for (; mask != 0; mask &= mask - 1) {
        visit(start + static_cast<std::size_t>(std::countr_zero(mask)));
    }
}

/// Calls `visit(index)` for every unit of the kind in the text, from left to right.
template <typename Kind, typename Visit>
void forEachUnit(std::u16string_view text, std::size_t from, const Kind &kind, Visit visit)
{
    std::size_t at = from;
    for (; at + maskedUnits <= text.size(); at += maskedUnits) {
        forEachBit(fullMask(text.data() + at, kind), at, visit);
    }
    if (at < text.size()) {
        forEachBit(partialMask(text.data() + at, text.size() - at, kind), at, visit);
    }
}

/// The index of the first unit of the kind, not before `from`, or the length of the text.
template <typename Kind>
std::size_t findUnit(std::u16string_view text, std::size_t from, const Kind &kind)
{
    std::size_t at = from;
    for (; at + maskedUnits <= text.size(); at += maskedUnits) {
        if (const UnitMask mask = fullMask(text.data() + at, kind)) {
            return at + static_cast<std::size_t>(std::countr_zero(mask));
        }
    }
    const UnitMask mask = at < text.size() ? partialMask(text.data() + at, text.size() - at, kind) : 0;
    return mask == 0 ? text.size() : at + static_cast<std::size_t>(std::countr_zero(mask));
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

/// The mask of the units among 64 that equal `first` and stand before one that equals `second`. Reads 65 units.
Q_ALWAYS_INLINE UnitMask maskOfPairs(const char16_t *units, char16_t first, char16_t second)
{
    const UnitMask firsts = fullMask(units, OneOf{first});
    if (first != second) {
        return firsts == 0 ? 0 : firsts & fullMask(units + 1, OneOf{second});
    }
    const UnitMask nextBlock = units[maskedUnits] == second ? UnitMask{1} << (maskedUnits - 1) : 0;
    return firsts & (firsts >> 1 | nextBlock);
}

/// Calls `visit(index)` for every place before `until` where the literal stands, overlapping ones included, from left
/// to right. An empty literal stands nowhere.
template <typename Visit>
void forEachLiteral(std::u16string_view text, std::u16string_view literal, std::size_t from, std::size_t until,
                    Visit visit)
{
    if (literal.empty() || text.size() < literal.size()) {
        return;
    }
    until = std::min(until, text.size() - literal.size() + 1);
    const OneOf first{literal.front()};
    if (literal.size() == 1) {
        forEachUnit(text.substr(0, until), from, first, visit);
        return;
    }
    const auto visitIfWhole = [&](std::size_t at, std::size_t known) {
        if (literal.size() == known || text.substr(at + known).starts_with(literal.substr(known))) {
            visit(at);
        }
    };
    const auto visitPair = [&](std::size_t at) {
        visitIfWhole(at, 2);
    };
    std::size_t at = from;
    for (; at + maskedUnits <= until; at += maskedUnits) {
        forEachBit(maskOfPairs(text.data() + at, literal[0], literal[1]), at, visitPair);
    }
    forEachUnit(text.substr(0, until), at, first, [&](std::size_t place) { visitIfWhole(place, 1); });
}

} // namespace platform
