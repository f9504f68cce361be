#pragma once

#include <OrvaneExportKit/platform/UnitSearch.h>

#include <algorithm>
#include <string_view>
#include <vector>

/// \file
/// Searches for literals, unit by unit, in a time that follows the length of the text: short ones at the speed of
/// memory, longer ones without looking at any unit of the text more than twice.

namespace platform {

/// The mask of the units among 64 that equal `first` and stand before one that equals `second`. Reads 65 units.
template <typename Kind>
Q_ALWAYS_INLINE UnitMask maskOfPairs(const char16_t *units, const Kind &first, const Kind &second)
{
    const UnitMask firsts = fullMask(units, first);
    if (first.wanted != second.wanted) {
        return firsts == 0 ? 0 : firsts & fullMask(units + 1, second);
    }
    const UnitMask nextBlock = units[maskedUnits] == second.wanted ? UnitMask{1} << (maskedUnits - 1) : 0;
    return firsts & (firsts >> 1 | nextBlock);
}

/// `forEachLiteral` for a literal whose units fit bytes, or for any other.
template <Expected expected, bool fits, typename Visit>
void forEachLiteralOf(std::u16string_view text, std::u16string_view literal, std::size_t from, std::size_t until,
                      Visit &visit)
{
    const auto visitIfWhole = [&](std::size_t at, std::size_t known) {
        if (literal.size() == known || text.substr(at + known).starts_with(literal.substr(known))) {
            visit(at);
        }
    };
    const Exactly<fits> first{literal.front()};
    std::size_t at = from;
    if (literal.size() > 1) {
        const Exactly<fits> second{literal[1]};
        const auto visitPair = [&](std::size_t place) {
            visitIfWhole(place, 2);
        };
        const auto maskAt = [&](std::size_t place) {
            return maskOfPairs(text.data() + place, first, second);
        };
        forEachMaskedUnit<expected>(at, until, maskAt, visitPair);
    }
    forEachUnit<expected>(text.substr(0, until), at, first, [&](std::size_t place) { visitIfWhole(place, 1); });
}

/// Literals of more units are not compared anew at each place where they may stand: where a text repeats what they
/// repeat, that would take as many times longer as they have units.
inline constexpr std::size_t longestComparedLiteral = 16;

/// The search for a long literal (Knuth, Morris and Pratt): it goes on from how much of the literal stands before a
/// place, and never back.
class LongLiteral
{
public:
    /// Does not copy the literal, which has one unit at least.
    explicit LongLiteral(std::u16string_view literal) : m_literal(literal), m_borders(literal.size(), 0)
    {
        for (std::size_t index = 1; index < literal.size(); ++index) {
            m_borders[index] = matchedBehind(literal[index], m_borders[index - 1]);
        }
    }

    /// Calls `visit(index)` for every place before `until` where the literal stands, overlapping ones included, from
    /// left to right, as long as it answers true.
    template <typename Visit>
    void forEach(std::u16string_view text, std::size_t from, std::size_t until, Visit visit) const
    {
        const std::u16string_view searched = text.substr(0, until + m_literal.size() - 1);
        const Exactly<false> first{m_literal.front()};
        std::size_t matched = 0;
        for (std::size_t at = from; at < searched.size(); ++at) {
            if (matched == 0) {
                at = findUnit(searched, at, first);
                if (at == searched.size()) {
                    return;
                }
            }
            matched = matchedBehind(searched[at], matched);
            if (matched == m_literal.size()) {
                if (!visit(at + 1 - matched)) {
                    return;
                }
                matched = m_borders.back();
            }
        }
    }

private:
    /// How many units of the literal stand before and with `unit`, when `matched` stand before it.
    std::size_t matchedBehind(char16_t unit, std::size_t matched) const
    {
        while (matched > 0 && unit != m_literal[matched]) {
            matched = m_borders[matched - 1];
        }
        return unit == m_literal[matched] ? matched + 1 : 0;
    }

    std::u16string_view m_literal;
    std::vector<std::size_t> m_borders; // how many units at the start of the literal also end its first 1, 2, ... units
};

/// Calls `visit(index)` for every place before `until` where the literal stands, overlapping ones included, from left
/// to right. An empty literal stands nowhere.
template <Expected expected = Expected::Rarely, typename Visit>
void forEachLiteral(std::u16string_view text, std::u16string_view literal, std::size_t from, std::size_t until,
                    Visit visit)
{
    if (literal.empty() || text.size() < literal.size()) {
        return;
    }
    until = std::min(until, text.size() - literal.size() + 1);
    if (literal.size() > longestComparedLiteral) {
        LongLiteral(literal).forEach(text, from, until, [&](std::size_t at) {
            visit(at);
            return true;
        });
    } else if (std::all_of(literal.begin(), literal.end(), fitsByte)) {
        forEachLiteralOf<expected, true>(text, literal, from, until, visit);
    } else {
        forEachLiteralOf<expected, false>(text, literal, from, until, visit);
    }
}

/// The same for the places from the left that do not overlap.
template <typename Visit>
void forEachOccurrence(std::u16string_view text, std::u16string_view literal, std::size_t from, std::size_t until,
                       Visit visit)
{
    std::size_t next = from;
    forEachLiteral(text, literal, from, until, [&](std::size_t at) {
        if (at >= next) {
            next = at + literal.size();
            visit(at);
        }
    });
}

/// The first place, not before `from`, at which the literal stands, found by the kind of its first unit; `notFound`
/// when there is none before `until`.
template <typename Kind>
std::size_t findLiteralOf(std::u16string_view text, std::u16string_view literal, std::size_t from, std::size_t until,
                          const Kind &first)
{
    const std::u16string_view starts = text.substr(0, until);
    for (std::size_t at = from; at < until; ++at) {
        at = findUnit(starts, at, first);
        if (at < until && text.substr(at).starts_with(literal)) {
            return at;
        }
    }
    return notFound;
}

/// The first place, not before `from`, at which `literal` stands in the text; `notFound` when there is none. An empty
/// literal is never found.
inline std::size_t findLiteral(std::u16string_view text, std::u16string_view literal, std::size_t from)
{
    if (literal.empty() || text.size() < literal.size()) {
        return notFound;
    }
    const std::size_t until = text.size() - literal.size() + 1;
    const char16_t first = literal.front();
    if (literal.size() <= longestComparedLiteral) {
        return fitsByte(first) ? findLiteralOf(text, literal, from, until, Exactly<true>{first})
                               : findLiteralOf(text, literal, from, until, Exactly<false>{first});
    }
    std::size_t found = notFound;
    LongLiteral(literal).forEach(text, from, until, [&](std::size_t at) {
        found = at;
        return false;
    });
    return found;
}

} // namespace platform
