#pragma once

#include <OrvaneExportKit/OrvaneExportKit.h>

/// \file
/// The texts and range lists that the text operations are timed on.

namespace texts {

/// A manuscript of about the mixture that novels have, always the same: paragraphs of narration and dialogue in
/// straight quotes, apostrophes, "--", "...", `**` and `//` tags, addresses, headings, blank lines and leading tabs.
QString prose(qsizetype length);

/// The same mixture, another text for each seed.
QString proseFrom(unsigned seed, qsizetype length);

/// The same with line feeds and tabs typed as `\n` and `\t`.
QString escapedProse(qsizetype length);

/// A piece again and again.
QString repeated(const QString &piece, qsizetype length);

/// `count` ranges of four units, evenly spread.
platform::RangeList spread(qsizetype length, std::size_t count);

/// `count` ranges that each reach over several of those behind them.
platform::RangeList overlapping(qsizetype length, std::size_t count);

/// Prose in about `runs` runs of attributes.
platform::AttributedString styled(const QString &text, std::size_t runs);

/// Fifty pairs that stand for characters in HTML and in LaTeX; the last pair is applied first.
struct Table {
    QStringList from;
    QStringList to;
};
Table html();
Table latex();

} // namespace texts
