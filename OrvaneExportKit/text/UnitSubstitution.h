#pragma once

#include <OrvaneExportKit/platform/TextEdits.h>
#include <OrvaneExportKit/platform/UnitSearch.h>

#include <QtCore/QString>

#include <array>
#include <vector>

namespace platform {

/// A single unit and what takes its place.
struct UnitReplacement {
    char16_t unit;
    QString replacement;
};

/// Replacements for units, at most one a unit.
using UnitReplacements = std::vector<UnitReplacement>;

/// Adds a replacement that is applied to what those added so far have made of a text, also to their replacements, which
/// thereby all become replacements of the text as given. Returns false, and changes nothing, when they would become
/// long beyond use.
bool appendReplacement(UnitReplacements &replacements, char16_t unit, const QString &replacement);

/// Finds the edits that make all replacements at once. Must not outlive them.
class UnitReplacementFinder
{
public:
    explicit UnitReplacementFinder(const UnitReplacements &replacements);

    std::size_t operator()(std::u16string_view text, std::size_t from, std::size_t until, TextEdits &edits) const;

private:
    static constexpr std::size_t pageSize = 256;
    using Page = std::array<const QString *, pageSize>;

    std::array<std::size_t, 65536 / pageSize> m_pageOf{}; // the first page holds nothing
    std::vector<Page> m_pages;
    AsciiSieve m_sieve;
};

} // namespace platform
