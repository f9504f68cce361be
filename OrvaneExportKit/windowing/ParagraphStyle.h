#pragma once

#include <OrvaneExportKit/ExportMacros.h>

#include <QtCore/QList>
#include <QtCore/QVariant>
#include <QtCore/qnamespace.h>

#include <optional>

/// \file
/// For use on the application's main thread.

namespace windowing {

/// How lines stand between the margins of a text, with the numbers of archives. Natural is left or right, as the
/// language is written.
enum class TextAlignment {
    Left = 0,
    Right = 1,
    Center = 2,
    Justified = 3,
    Natural = 4,
};

/// The horizontal alignment of a widget as that of a text, and back. Leading text is natural; only absolute left is
/// left.
ORVANE_KIT_EXPORT TextAlignment textAlignment(Qt::Alignment alignment);
ORVANE_KIT_EXPORT Qt::Alignment widgetAlignment(TextAlignment alignment);

/// Where lines begin. Natural is as the language is written.
enum class WritingDirection {
    Natural = -1,
    LeftToRight = 0,
    RightToLeft = 1,
};

/// Where text goes on after a tab, in points from the margin.
struct TextTab {
    double location = 0.0;                            ///< of the stop
    TextAlignment alignment = TextAlignment::Natural; ///< of the text at the stop
    bool isDecimal = false; ///< whether numbers stand with their decimal separator at the stop
    QVariantMap options;    ///< `NSTabOptions`, as archives hold them: what ends a column

    friend bool operator==(const TextTab &, const TextTab &) = default;
};

/// What paragraphs look like: the value of the attribute `NSParagraphStyle` of texts. Lengths are points.
struct ParagraphStyle {
    TextAlignment alignment = TextAlignment::Natural;              ///< of its lines
    WritingDirection writingDirection = WritingDirection::Natural; ///< of its lines

    double lineSpacing = 0.0;            ///< between lines, beside their height
    double lineHeightMultiple = 0.0;     ///< of the usual height; 0 leaves it
    double minimumLineHeight = 0.0;      ///< 0 is no limit
    double maximumLineHeight = 0.0;      ///< 0 is no limit
    double paragraphSpacing = 0.0;       ///< after the paragraph
    double paragraphSpacingBefore = 0.0; ///< before the paragraph

    double firstLineHeadIndent = 0.0; ///< of the first line
    double headIndent = 0.0;          ///< of the lines after the first
    double tailIndent = 0.0;          ///< from the leading margin, or from the other one when 0 or negative

    std::optional<QList<TextTab>> tabStops; ///< none are the usual ones
    double defaultTabInterval = 0.0;        ///< between tabs behind the last stop

    double hyphenationFactor = 0.0; ///< 0 never to 1 wherever possible
    double headerLevel = 0.0;       ///< 0 is no heading
    qint64 lineBreakMode = 0;       ///< 0 by words, 1 by characters, 2 clipped, 3 to 5 cut at the head, tail, middle
    qint64 lineBreakStrategy = 0;   ///< as archives hold it; 0 is the usual one

    /// Whether letters may stand closer before a line is cut.
    bool allowsTighteningForTruncation = false;

    QVariantList textBlocks; ///< tables and boxes around the paragraph, as archives hold them
    QVariantList textLists;  ///< lists that the paragraph is in, as archives hold them

    friend bool operator==(const ParagraphStyle &, const ParagraphStyle &) = default;
};

} // namespace windowing
