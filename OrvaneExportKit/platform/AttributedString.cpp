#include <OrvaneExportKit/platform/AttributedString.h>
#include <OrvaneExportKit/platform/Exceptions.h>
#include <OrvaneExportKit/platform/TextEditor.h>
#include <OrvaneExportKit/platform/ValueComparison.h>

#include <algorithm>
#include <utility>

namespace platform {

namespace {

/// Whether the attributes are equal and of the same types, also inside lists and maps. Stricter than `==`, for which
/// the numbers 1 and 1.0 are equal.
bool identical(const QVariantMap &a, const QVariantMap &b)
{
    return ValueComparison(ValueComparison::Numbers::OfOneType).equal(a, b);
}

void requireAscending(const char *operation, const RangeList &ranges, std::size_t textLength)
{
    std::size_t position = 0;
    for (const Range &range : ranges) {
        requireRange(operation, range, textLength);
        if (range.location < position) {
            throw InvalidArgumentException(std::string(operation) + ": the range at " + std::to_string(range.location) +
                                           " begins before the end of the one before it");
        }
        position = range.end();
    }
}

/// Calls a change on attributes, and only once for neighbours that share their attributes.
class SharedChange
{
public:
    explicit SharedChange(const std::function<void(QVariantMap &)> &change) : m_change(change) {}

    const QVariantMap &operator()(const QVariantMap &attributes)
    {
        if (!m_used || !attributes.isSharedWith(m_before)) {
            m_used = true;
            m_before = attributes;
            m_after = attributes;
            m_change(m_after);
        }
        return m_after;
    }

private:
    const std::function<void(QVariantMap &)> &m_change;
    QVariantMap m_before;
    QVariantMap m_after;
    bool m_used = false;
};

/// Lets the list be changed without any more memory: it is shared with no other text then, and one that is empty has
/// room for a run. `detach` and `reserve` of QList do not look whether they got memory.
template <typename Run>
void makeOwn(QList<Run> &runs)
{
    if (runs.isEmpty()) {
        runs.resize(1);
        runs.clear();
    } else if (!runs.isDetached()) {
        QList<Run> own;
        own.append(runs);
        runs = std::move(own);
    }
}

} // namespace

AttributedString::AttributedString(QString text, const QVariantMap &attributes) : m_string(std::move(text))
{
    if (!m_string.isEmpty()) {
        m_runs.append({0, attributes});
    }
}

AttributedString AttributedString::fromStretches(const QString &text, const QList<Stretch> &stretches)
{
    AttributedString result;
    result.m_string = text;
    std::size_t start = 0;
    for (const Stretch &stretch : stretches) {
        if (stretch.length > result.length() - start) {
            throw InvalidArgumentException("fromStretches: the stretches are longer than the text");
        }
        if (stretch.length > 0) {
            appendRun(result.m_runs, start, stretch.attributes);
            start += stretch.length;
        }
    }
    if (start < result.length()) {
        throw InvalidArgumentException("fromStretches: the stretches are shorter than the text");
    }
    return result;
}

QVariantMap AttributedString::attributesAtIndex(std::size_t index, Range *effectiveRange) const
{
    requireRange("attributesAtIndex", {index, 1}, length());
    const qsizetype run = runHolding(index);
    if (effectiveRange != nullptr) {
        *effectiveRange = {m_runs[run].start, runEnd(run) - m_runs[run].start};
    }
    return m_runs[run].attributes;
}

QVariant AttributedString::attribute(const QString &name, std::size_t index, Range *longestEffectiveRange,
                                     Range within) const
{
    requireRange("attribute", within, length());
    if (index < within.location || index >= within.end()) {
        throw RangeException("attribute", {index, 1}, length());
    }
    qsizetype first = runHolding(index);
    QVariant value = m_runs[first].attributes.value(name);
    if (longestEffectiveRange != nullptr) {
        const auto hasTheValue = [&](const Run &run) {
            return ValueComparison(ValueComparison::Numbers::OfAnyType).equal(run.attributes.value(name), value);
        };
        qsizetype last = first;
        while (m_runs[first].start > within.location && hasTheValue(m_runs[first - 1])) {
            --first;
        }
        while (runEnd(last) < within.end() && hasTheValue(m_runs[last + 1])) {
            ++last;
        }
        const std::size_t start = std::max(m_runs[first].start, within.location);
        *longestEffectiveRange = {start, std::min(runEnd(last), within.end()) - start};
    }
    return value;
}

void AttributedString::addAttributes(const QVariantMap &attributes, Range range)
{
    requireRange("addAttributes", range, length());
    changeAttributes({range}, [&](QVariantMap &present) { present.insert(attributes); });
}

void AttributedString::setAttributes(const QVariantMap &attributes, Range range)
{
    requireRange("setAttributes", range, length());
    changeAttributes({range}, [&](QVariantMap &present) { present = attributes; });
}

void AttributedString::removeAttribute(const QString &name, Range range)
{
    requireRange("removeAttribute", range, length());
    changeAttributes({range}, [&](QVariantMap &present) { present.remove(name); });
}

void AttributedString::replaceCharacters(Range range, QStringView string)
{
    requireRange("replaceCharacters", range, length());
    const QString replacement = string.toString(); // `string` may view this very text
    edit(*this, {{range, units(replacement)}});
}

void AttributedString::changeAttributes(const RangeList &ranges, const std::function<void(QVariantMap &)> &change)
{
    requireAscending("changeAttributes", ranges, length());
    if (ranges.empty() || m_runs.isEmpty()) {
        return;
    }
    // Only the runs that the ranges touch are rewritten, with a neighbour on each side to merge with.
    const qsizetype first = std::max<qsizetype>(0, runHolding(ranges.front().location) - 1);
    const qsizetype last = runHolding(ranges.back().end());
    SharedChange changed(change);
    QList<Run> rewritten;
    auto range = ranges.begin();
    for (qsizetype run = first; run <= last; ++run) {
        const QVariantMap &attributes = m_runs.at(run).attributes;
        const std::size_t end = runEnd(run);
        std::size_t position = m_runs.at(run).start;
        while (position < end) {
            while (range != ranges.end() && range->end() <= position) {
                ++range;
            }
            const bool inside = range != ranges.end() && range->location <= position;
            const std::size_t border = range == ranges.end() ? end : inside ? range->end() : range->location;
            appendRun(rewritten, position, inside ? changed(attributes) : attributes);
            position = std::min(end, border);
        }
    }
    replaceRuns(first, last - first + 1, rewritten);
}

bool operator==(const AttributedString &a, const AttributedString &b)
{
    const auto sameRun = [](const AttributedString::Run &x, const AttributedString::Run &y) {
        return x.start == y.start && identical(x.attributes, y.attributes);
    };
    return a.m_string == b.m_string &&
           std::equal(a.m_runs.begin(), a.m_runs.end(), b.m_runs.begin(), b.m_runs.end(), sameRun);
}

/// Changes the text as `edit` does with the list, and the runs with it.
template <typename Edits>
void AttributedString::editTextAndRuns(const Edits &edits)
{
    // All that may fail comes before the first change.
    makeOwn(m_runs);
    const std::size_t before = length();
    edit(m_string, edits);
    if (before > 0) {
        moveRuns(edits, before);
    } else if (!m_string.isEmpty()) {
        m_runs.append(Run{0, {}});
    }
}

void edit(AttributedString &text, const TextEdits &edits)
{
    if (!edits.empty()) {
        text.editTextAndRuns(edits);
    }
}

void edit(AttributedString &text, Deletions deletions)
{
    if (!deletions.empty()) {
        text.editTextAndRuns(deletions);
    }
}

/// Moves the runs to where they begin after the edits of a text of `length` units, and drops those that become empty.
///
/// New units belong to the run of the first unit that they replace, or to the one before them when they replace none,
/// so a run starts behind all edits that begin before it.
template <typename Edits>
void AttributedString::moveRuns(const Edits &edits, std::size_t length)
{
    auto change = edits.begin();
    const auto last = edits.end();
    std::size_t editsEnd = 0;
    std::size_t shift = 0; // modulo the word size, so that it may stand for less than nothing
    const auto startAfterEdits = [&](std::size_t start) {
        for (; change != last; ++change) {
            const Range &range = rangeOf(*change);
            if (range.location > start || (range.location == start && range.length > 0)) {
                break;
            }
            shift += replacementOf(*change).size() - range.length;
            editsEnd = range.end();
        }
        return std::max(start, editsEnd) + shift;
    };
    qsizetype kept = 0; // how many runs stay
    bool wereNeighbours = false;
    Run *const runs = m_runs.data();
    for (qsizetype index = 0; index < m_runs.size(); ++index) {
        const std::size_t start = index == 0 ? 0 : startAfterEdits(runs[index].start);
        if (kept > 0 && runs[kept - 1].start == start) {
            --kept;
            wereNeighbours = false;
        }
        if (!wereNeighbours && kept > 0 && identical(runs[kept - 1].attributes, runs[index].attributes)) {
            continue;
        }
        if (kept != index) {
            runs[kept].attributes.swap(runs[index].attributes);
        }
        runs[kept].start = start;
        ++kept;
        wereNeighbours = true;
    }
    if (runs[kept - 1].start == startAfterEdits(length)) {
        --kept;
    }
    m_runs.resize(kept);
}

/// The run of the unit at `index`; at the end of the text the last one.
qsizetype AttributedString::runHolding(std::size_t index) const
{
    const auto startsBehind = [](std::size_t position, const Run &run) {
        return position < run.start;
    };
    return std::upper_bound(m_runs.begin(), m_runs.end(), index, startsBehind) - m_runs.begin() - 1;
}

std::size_t AttributedString::runEnd(qsizetype run) const
{
    return run + 1 < m_runs.size() ? m_runs[run + 1].start : length();
}

/// Appends a run, or lets the last one go on when it has the same attributes.
void AttributedString::appendRun(QList<Run> &runs, std::size_t start, const QVariantMap &attributes)
{
    if (runs.isEmpty() || !identical(runs.last().attributes, attributes)) {
        runs.append({start, attributes});
    }
}

void AttributedString::replaceRuns(qsizetype first, qsizetype count, const QList<Run> &replacements)
{
    makeOwn(m_runs);
    const qsizetype kept = std::min(count, replacements.size());
    if (replacements.size() < count) {
        m_runs.remove(first + kept, count - kept);
    } else if (replacements.size() > count) {
        m_runs.insert(first + kept, replacements.size() - count, Run{}); // before a run is changed, for it may throw
    }
    std::copy(replacements.begin(), replacements.end(), m_runs.begin() + first);
}

} // namespace platform
