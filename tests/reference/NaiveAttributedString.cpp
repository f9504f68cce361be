#include <tests/reference/NaiveAttributedString.h>

#include <tests/reference/PlainText.h>

#include <OrvaneExportKit/platform/Exceptions.h>

#include <algorithm>

using platform::Range;

namespace reference {

namespace {

void requireIndex(const char *operation, std::size_t index, Range within, std::size_t textLength)
{
    if (index < within.location || index >= within.end()) {
        throw platform::RangeException(operation, {index, 1}, textLength);
    }
}

/// The longest range around `index` inside `within` whose units are all like the one at `index`.
template <typename IsAlike>
Range rangeOfLikeUnits(std::size_t index, Range within, IsAlike isAlike)
{
    std::size_t start = index;
    while (start > within.location && isAlike(start - 1)) {
        --start;
    }
    std::size_t end = index + 1;
    while (end < within.end() && isAlike(end)) {
        ++end;
    }
    return {start, end - start};
}

bool areIdentical(const QVariantMap &a, const QVariantMap &b)
{
    if (a.keys() != b.keys()) {
        return false;
    }
    for (const QString &name : a.keys()) {
        if (a.value(name).typeId() != b.value(name).typeId() || a.value(name) != b.value(name)) {
            return false;
        }
    }
    return true;
}

} // namespace

bool operator==(const NaiveAttributedString &a, const NaiveAttributedString &b)
{
    return a.units == b.units &&
           std::equal(a.attributes.begin(), a.attributes.end(), b.attributes.begin(), b.attributes.end(), areIdentical);
}

QVariantMap attributesAtIndex(const NaiveAttributedString &text, std::size_t index, Range &effectiveRange)
{
    const Range all{0, text.units.size()};
    requireIndex("attributesAtIndex", index, all, text.units.size());
    QVariantMap result = text.attributes[index];
    effectiveRange =
        rangeOfLikeUnits(index, all, [&](std::size_t i) { return areIdentical(text.attributes[i], result); });
    return result;
}

QVariant attribute(const NaiveAttributedString &text, const QString &name, std::size_t index,
                   Range &longestEffectiveRange, Range within)
{
    requireInside("attribute", within, text.units.size());
    requireIndex("attribute", index, within, text.units.size());
    QVariant result = text.attributes[index].value(name);
    longestEffectiveRange =
        rangeOfLikeUnits(index, within, [&](std::size_t i) { return text.attributes[i].value(name) == result; });
    return result;
}

void changeAttributes(NaiveAttributedString &text, Range range, const std::function<void(QVariantMap &)> &change)
{
    requireInside("changeAttributes", range, text.units.size());
    for (std::size_t index = range.location; index < range.end(); ++index) {
        change(text.attributes[index]);
    }
}

void addAttributes(NaiveAttributedString &text, const QVariantMap &attributes, Range range)
{
    changeAttributes(text, range, [&](QVariantMap &changed) { changed.insert(attributes); });
}

void setAttributes(NaiveAttributedString &text, const QVariantMap &attributes, Range range)
{
    changeAttributes(text, range, [&](QVariantMap &changed) { changed = attributes; });
}

void removeAttribute(NaiveAttributedString &text, const QString &name, Range range)
{
    changeAttributes(text, range, [&](QVariantMap &changed) { changed.remove(name); });
}

QVariantMap attributesOfNewUnits(const NaiveAttributedString &text, Range replaced)
{
    if (text.units.empty()) {
        return {};
    }
    if (replaced.length > 0 || replaced.location == 0) {
        return text.attributes[replaced.location];
    }
    return text.attributes[replaced.location - 1];
}

void replaceCharactersInRange(NaiveAttributedString &text, Range range, std::u16string_view string)
{
    requireInside("replaceCharactersInRange", range, text.units.size());
    const std::vector<QVariantMap> added(string.size(), attributesOfNewUnits(text, range));
    const auto at = [&](std::size_t index) {
        return text.attributes.begin() + static_cast<std::ptrdiff_t>(index);
    };
    text.attributes.erase(at(range.location), at(range.end()));
    text.attributes.insert(at(range.location), added.begin(), added.end());
    replaceCharactersInRange(text.units, range, string);
}

void deleteCharactersInRange(NaiveAttributedString &text, Range range)
{
    replaceCharactersInRange(text, range, u"");
}

} // namespace reference
