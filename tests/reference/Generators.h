#pragma once

#include <tests/reference/Editing.h>
#include <tests/reference/NaiveAttributedString.h>
#include <tests/reference/PropertyTesting.h>

#include <OrvaneExportKit/platform/Range.h>

#include <QtCore/QString>
#include <QtCore/QVariant>

#include <string>
#include <string_view>
#include <vector>

/// \file
/// Random inputs that look for trouble. Each case draws from a few pieces only, so that they meet often.

namespace property {

/// What texts are put together from.
using Pieces = std::vector<std::u16string_view>;

/// A text of up to 60 units, now and then of several hundred. It is made of a few of the given pieces and, as a rule,
/// of one or two others: line terminators and their neighbours, white space, surrogates, units with a byte of each.
std::u16string randomText(Random &random, const Pieces &pieces);

/// Up to `maximum` of the pieces.
std::u16string randomString(Random &random, const Pieces &pieces, std::size_t maximum);

/// A text with several runs of attributes.
reference::NaiveAttributedString randomAttributedText(Random &random, const Pieces &pieces);

/// Some of the names that texts have attributes of, and now and then one they have not.
QString randomAttributeName(Random &random);
QVariant randomAttributeValue(Random &random);
QVariantMap randomAttributes(Random &random);

/// Any list at all: in any order, overlapping, nested, repeated, empty ranges, at the end of the text, past it, or so
/// large that location and length together exceed the largest number.
platform::RangeList randomRanges(Random &random, std::size_t textLength);

/// Ascending ranges inside the text that do not overlap; some of them meet, some are empty.
platform::RangeList randomAscendingRanges(Random &random, std::size_t textLength);

/// One range, of the kinds that `randomRanges` has.
platform::Range randomRange(Random &random, std::size_t textLength);

/// Ascending edits inside the text; now and then the list is in disorder or reaches past the end, but never both.
std::vector<reference::Edit> randomEdits(Random &random, std::size_t textLength);

} // namespace property
