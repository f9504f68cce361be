#include <OrvaneExportKit/text/UnitSubstitution.h>

#include <OrvaneExportKit/platform/TextUnits.h>

#include <algorithm>
#include <numeric>

namespace platform {

namespace {

constexpr qsizetype longestReplacements = 1 << 16; // units in all

qsizetype lengthOf(const UnitReplacements &replacements)
{
    return std::accumulate(
        replacements.begin(), replacements.end(), qsizetype{0},
        [](qsizetype length, const UnitReplacement &entry) { return length + entry.replacement.size(); });
}

/// The ASCII units to be replaced in four ranges, parted at the three widest gaps between them.
AsciiSieve sieveFor(const UnitReplacements &replacements)
{
    std::vector<char16_t> wanted;
    bool withOthers = false;
    for (const UnitReplacement &entry : replacements) {
        if (entry.unit < 0x7F) {
            wanted.push_back(entry.unit);
        } else {
            withOthers = true;
        }
    }
    if (wanted.empty()) {
        wanted.push_back(u'\0');
    }
    std::sort(wanted.begin(), wanted.end());
    std::vector<AsciiSieve::Bounds> ranges;
    ranges.reserve(wanted.size());
    for (const char16_t unit : wanted) {
        ranges.push_back({unit, unit});
    }
    while (ranges.size() > 4) {
        const auto closest = std::min_element(ranges.begin(), ranges.end() - 1, [](const auto &a, const auto &b) {
            return (&a + 1)->first - a.last < (&b + 1)->first - b.last;
        });
        closest->last = (closest + 1)->last;
        ranges.erase(closest + 1);
    }
    ranges.resize(4, ranges.front());
    return AsciiSieve({ranges[0], ranges[1], ranges[2], ranges[3]}, withOthers);
}

} // namespace

bool appendReplacement(UnitReplacements &replacements, char16_t unit, const QString &replacement)
{
    const qsizetype occurrences = std::accumulate(
        replacements.begin(), replacements.end(), qsizetype{1},
        [unit](qsizetype count, const UnitReplacement &entry) { return count + entry.replacement.count(QChar(unit)); });
    if (replacement.size() > (longestReplacements - lengthOf(replacements)) / occurrences) {
        return false;
    }
    bool isReplacedAlready = false;
    for (UnitReplacement &entry : replacements) {
        entry.replacement.replace(QChar(unit), replacement);
        isReplacedAlready = isReplacedAlready || entry.unit == unit;
    }
    if (!isReplacedAlready) {
        replacements.push_back({unit, replacement});
    }
    return true;
}

UnitReplacementFinder::UnitReplacementFinder(const UnitReplacements &replacements)
    : m_pages(1), m_sieve(sieveFor(replacements))
{
    for (const UnitReplacement &entry : replacements) {
        std::size_t &page = m_pageOf[entry.unit / pageSize];
        if (page == 0) {
            page = m_pages.size();
            m_pages.emplace_back();
        }
        m_pages[page][entry.unit % pageSize] = &entry.replacement;
    }
}

std::size_t UnitReplacementFinder::operator()(std::u16string_view text, std::size_t from, std::size_t until,
                                              TextEdits &edits) const
{
    forEachUnit(text.substr(0, until), from, m_sieve, [&](std::size_t at) {
        const QString *const replacement = m_pages[m_pageOf[text[at] / pageSize]][text[at] % pageSize];
        if (replacement != nullptr) {
            edits.replace({at, 1}, units(*replacement));
        }
    });
    return until;
}

} // namespace platform
