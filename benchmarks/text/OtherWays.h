#pragma once

#include <OrvaneExportKit/platform/Range.h>

#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtGui/QTextDocument>

/// \file
/// The best that other libraries of Debian offer for the same results: PCRE2's just-in-time compiler, ICU, Qt's regular
/// expressions and its document cursor, and a pass over the text written by hand.

namespace other {

/// Replaces every match of a compiled PCRE2 pattern.
void replaceMatches(QString &text, const QString &pattern, const QString &replacement);

/// The ranges of the matches of a compiled PCRE2 pattern.
platform::RangeList matches(const QString &text, const QString &pattern);

/// ICU's findAndReplace.
void replaceWithIcu(QString &text, const QString &literal, const QString &replacement);

/// One pass by hand, unit after unit, into a new string with the space reserved.
void breakLines(QString &text, qsizetype limit);
void convertQuotations(QString &text, QChar start, QChar stop);
void convertStartTabs(QString &text, qsizetype spaces);
void convertEscapeSequences(QString &text);
void deleteRanges(QString &text, const platform::RangeList &ranges);
void encloseRanges(QString &text, const platform::RangeList &ranges, const QString &string);

/// One pass by hand with a hash of single units.
void replaceUnits(QString &text, const QStringList &from, const QStringList &to);

/// Deletes the ranges with a cursor of a text document, as one edit block.
void deleteRanges(QTextDocument &document, const platform::RangeList &ranges);

} // namespace other
