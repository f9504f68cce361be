#pragma once

#include <OrvaneExportKit/platform/Range.h>

#include <QtCore/QString>
#include <QtCore/QStringList>

/// \file
/// How an author without the kit writes the operations: step by step with what QString offers.

namespace plain {

void setMaxLineLength(QString &text, qsizetype limit);
void deleteEmptyLines(QString &text);
void convertStartTabsToSpace(QString &text, qsizetype spaces);
void convertQuotations(QString &text, QChar start, QChar stop);
platform::RangeList rangesForTag(const QString &text, const QString &tag);
platform::RangeList lineRangesForLevelString(const QString &text, const QString &levelString);
void deleteRanges(QString &text, const platform::RangeList &ranges);
void encloseRanges(QString &text, const platform::RangeList &ranges, const QString &string);
void convertEscapeSequences(QString &text);
void replaceStrings(QString &text, const QStringList &from, const QStringList &to);

} // namespace plain
