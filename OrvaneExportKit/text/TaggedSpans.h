#pragma once

#include <OrvaneExportKit/ExportMacros.h>
#include <OrvaneExportKit/platform/AttributedString.h>
#include <OrvaneExportKit/platform/Exceptions.h>
#include <OrvaneExportKit/platform/Range.h>

/// \file
/// Marks written into the text: level strings at the start of lines, paragraph marks, and tags around inline spans.
///
/// Marks are compared code unit by code unit, case-sensitively. An empty mark, level string or tag finds nothing. For
/// level strings a line starts at index 0 and after U+000A, at no other terminator. A blank is U+0020 alone.
///
/// For use on any thread, with objects of its own.

namespace KZStringExportAdditions {

/// The lines that begin with `levelString`, in ascending order, terminators included (any of those of
/// `platform::lineRangeForRange`). A line that begins with a longer mark, of which the level string is the beginning,
/// counts as well.
///
///     lineRangesForLevelString(u"#a\n##b\nc#\n#", u"#");   // {{0, 3}, {3, 4}, {10, 1}}
ORVANE_CORE_EXPORT platform::RangeList lineRangesForLevelString(QStringView text, QStringView levelString);

/// The ranges of the tags that enclose spans: a start tag, the first stop tag behind it, the next start tag behind
/// that one, and so on, always an even number. The ranges cover the tags, not the text between them.
///
/// Tags do not nest; a start tag inside a span, a stop tag outside and a start tag that nothing closes are ordinary
/// text. The tag "//" does not count right after a colon, so web addresses keep their slashes.
///
///     rangesForStartTag(u"a **b** c", u"**", u"**");   // {{2, 2}, {5, 2}}
ORVANE_CORE_EXPORT platform::RangeList rangesForStartTag(QStringView text, QStringView startTag, QStringView stopTag);

} // namespace KZStringExportAdditions

namespace KZAttributedStringExportAdditions {

/// The same for the plain text of an attributed one.
ORVANE_CORE_EXPORT platform::RangeList lineRangesForLevelString(const platform::AttributedString &text,
                                                                QStringView levelString);

} // namespace KZAttributedStringExportAdditions

namespace KZMutableStringExportAdditions {

/// Deletes the level string and the blanks after it from every line that begins with it; the rest of the line, its
/// terminator included, stays.
///
///     QString text = u"##  Title\nText\n##\n"_s;
///     deleteLevelMark(text, u"##");   // "Title\nText\n\n"
ORVANE_CORE_EXPORT void deleteLevelMark(QString &text, QStringView levelString);

} // namespace KZMutableStringExportAdditions

namespace KZMutableAttributedStringExportAdditions {

/// The same as on plain text; the attributes of the deleted units go with them.
ORVANE_CORE_EXPORT void deleteLevelMark(platform::AttributedString &text, QStringView levelString);

/// Deletes the first paragraph mark inside each range, with everything between the start of the range and the mark
/// and the blanks after the mark. A range without the mark stays as it is.
///
/// The ranges are taken from the last to the first **in the order given**: they are not sorted, and each refers to
/// the text as the ranges behind it left it. The list is meant to be ascending, as `rangesForAttribute` and
/// `lineRangesForLevelString` return it; any other list is carried out all the same.
/// Throws `platform::RangeException` when a range reaches past the end at its turn (also for an empty mark); the
/// deletions made before it stay made.
///
///     AttributedString text(u"> a\n> b\n"_s);
///     deleteParagraphMark(text, u">", {{0, 4}, {4, 4}});   // "a\nb\n"
ORVANE_CORE_EXPORT void deleteParagraphMark(platform::AttributedString &text, QStringView mark,
                                            const platform::RangeList &ranges);

} // namespace KZMutableAttributedStringExportAdditions
