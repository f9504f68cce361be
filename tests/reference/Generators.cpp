#include <tests/reference/Generators.h>

#include <OrvaneExportKit/platform/TextEditor.h>

#include <algorithm>
#include <limits>

using namespace Qt::Literals::StringLiterals;
using namespace std::string_view_literals;
using platform::Range;
using platform::RangeList;
using reference::Edit;
using reference::NaiveAttributedString;

namespace property {

namespace {

constexpr auto largest = std::numeric_limits<std::size_t>::max();

const Pieces &hostilePieces()
{
    static const Pieces pieces{// line terminators and their neighbours
                               u"\n", u"\r", u"\r\n", u"\n\r", u"\u0085", u"\u2028", u"\u2029", u"\u000B", u"\u000C",
                               u"\u000E", u"\u0084", u"\u0086", u"\u2027", u"\u202A", u"\u2030",
                               // white space and what only looks like it
                               u" ", u"\t", u"\u0008", u"\u00A0", u"\u1680", u"\u2000", u"\u200A", u"\u202F", u"\u205F",
                               u"\u3000", u"\u180E", u"\u1FFF", u"\u200B", u"\u2060", u"\uFEFF", u"\u001F",
                               // the edges of UTF-16
                               u"\0"sv, u"\uFFFF", u"\U0001F600", u"\xD83D", u"\xDE00", u"\xDE00\xD83D",
                               // units with a byte or a half of each unit that something is done about
                               u"\u0A0A", u"\u0A00", u"\u010A", u"\u0909", u"\u2022", u"\u2222", u"\u2727", u"\u2D2D",
                               u"\u2E2E", u"\u5C5C", u"\u2020",
                               // and text
                               u"a", u"b", u"Z", u"0", u"\u00E9", u"\u4E2D"};
    return pieces;
}

std::vector<QVariantMap> somePossibleAttributes(Random &random)
{
    std::vector<QVariantMap> result;
    for (std::size_t count = random.between(1, 4); count > 0; --count) {
        result.push_back(randomAttributes(random));
    }
    return result;
}

Range randomRangeInside(Random &random, std::size_t textLength)
{
    const std::size_t location = random.between(0, textLength);
    const std::size_t longest = textLength - location;
    return {location, random.between(0, random.chance(80) ? std::min<std::size_t>(longest, 5) : longest)};
}

std::size_t hugeNumber(Random &random, std::size_t textLength)
{
    const auto base = random.oneOf({std::size_t{1} << 31U, std::size_t{1} << 32U, platform::notFound, largest / 2 + 1,
                                    largest - textLength, largest});
    return random.chance(50) ? base : base - random.between(0, 3);
}

/// A range that reaches past the end, or at least comes near it.
Range randomRangeNearOrPastEnd(Random &random, std::size_t textLength)
{
    const std::size_t location = random.between(0, textLength + 2);
    const std::size_t rest = location < textLength ? textLength - location : 0;
    return {location, rest + random.between(0, 2)};
}

} // namespace

std::u16string randomText(Random &random, const Pieces &pieces)
{
    Pieces chosen;
    for (std::size_t count = random.between(1, 5); count > 0; --count) {
        chosen.push_back(random.oneOf(pieces));
    }
    for (std::size_t count = random.between(0, 2); count > 0; --count) {
        chosen.push_back(random.oneOf(hostilePieces()));
    }
    const std::size_t length = random.chance(2) ? random.between(200, 700) : random.between(0, 60);
    std::u16string text;
    if (random.between(0, 399) == 0) {
        // Long texts are edited in blocks: what is random lies around the end of the first one.
        const std::size_t filler = platform::unitsEditedAtOnce - random.between(0, 60);
        while (text.size() < filler) {
            text += u"x\n"sv;
        }
    }
    const std::size_t whole = text.size() + length;
    while (text.size() < whole) {
        text += random.oneOf(chosen);
    }
    return text;
}

std::u16string randomString(Random &random, const Pieces &pieces, std::size_t maximum)
{
    std::u16string string;
    for (std::size_t count = random.between(0, maximum); count > 0; --count) {
        string += random.oneOf(pieces);
    }
    return string;
}

QString randomAttributeName(Random &random)
{
    return random.oneOf({u"style"_s, u"style"_s, u"weight"_s, u"Style"_s, u""_s});
}

QVariant randomAttributeValue(Random &random)
{
    return random.oneOf({QVariant(u"quote"_s), QVariant(u"quote"_s), QVariant(u"heading"_s), QVariant(u""_s),
                         QVariant(1), QVariant(1.0), QVariant(true), QVariant(QVariantList{u"quote"_s})});
}

QVariantMap randomAttributes(Random &random)
{
    QVariantMap attributes;
    for (std::size_t count = random.between(0, 3); count > 0; --count) {
        attributes.insert(randomAttributeName(random), randomAttributeValue(random));
    }
    return attributes;
}

NaiveAttributedString randomAttributedText(Random &random, const Pieces &pieces)
{
    NaiveAttributedString text{randomText(random, pieces), {}};
    const std::vector<QVariantMap> possible = somePossibleAttributes(random);
    const std::size_t longestRun = random.oneOf<std::size_t>({1, 3, 10, 100});
    while (text.attributes.size() < text.units.size()) {
        const std::size_t rest = text.units.size() - text.attributes.size();
        text.attributes.insert(text.attributes.end(), random.between(1, std::min(longestRun, rest)),
                               random.oneOf(possible));
    }
    return text;
}

Range randomRange(Random &random, std::size_t textLength)
{
    if (random.chance(80)) {
        return randomRangeInside(random, textLength);
    }
    if (random.chance(70)) {
        return randomRangeNearOrPastEnd(random, textLength);
    }
    const std::size_t small = random.between(0, textLength + 1);
    const std::size_t huge = hugeNumber(random, textLength);
    return random.oneOf({Range{small, huge}, Range{huge, small}, Range{huge, hugeNumber(random, textLength)},
                         Range{small, largest - small + random.between(0, 2)}});
}

RangeList randomRanges(Random &random, std::size_t textLength)
{
    if (random.chance(30)) {
        return randomAscendingRanges(random, textLength);
    }
    RangeList ranges;
    const bool allInside = random.chance(60);
    for (std::size_t count = random.between(0, random.chance(3) ? 100 : 9); count > 0; --count) {
        if (!ranges.empty() && random.chance(15)) {
            ranges.push_back(random.oneOf(ranges));
        } else {
            ranges.push_back(allInside ? randomRangeInside(random, textLength) : randomRange(random, textLength));
        }
    }
    return ranges;
}

RangeList randomAscendingRanges(Random &random, std::size_t textLength)
{
    RangeList ranges;
    const std::size_t widest = random.oneOf<std::size_t>({1, 3, 20});
    const std::size_t chanceOfStop = random.oneOf<std::size_t>({1, 5, 30});
    std::size_t end = 0;
    while (true) {
        const std::size_t location = end + (random.chance(30) ? 0 : random.between(0, widest));
        if (location > textLength || random.chance(chanceOfStop)) {
            return ranges;
        }
        const std::size_t length = random.between(0, std::min(widest, textLength - location));
        ranges.push_back({location, length});
        end = location + length;
    }
}

std::vector<Edit> randomEdits(Random &random, std::size_t textLength)
{
    std::vector<Edit> edits;
    const std::size_t longest = random.oneOf<std::size_t>({0, 1, 3, 12});
    for (const Range range : randomAscendingRanges(random, textLength)) {
        edits.push_back({range, randomString(random, {u"x", u"y", u"\n", u"\U0001F600"}, longest)});
    }
    if (random.chance(5)) {
        std::reverse(edits.begin(), edits.end());
    } else if (random.chance(5)) {
        edits.push_back({random.oneOf({Range{textLength, 1}, Range{textLength + 1, 0}, Range{textLength, largest},
                                       Range{largest, largest}}),
                         u"past"});
    }
    return edits;
}

} // namespace property
