#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>
#include <QtCore/QStringList>

/// \file
/// Files and the standard streams. Results go to standard output, messages to standard error. Where these are
/// terminals, control characters are shown as escapes. All functions throw a `ProgramError` where reading or writing
/// fails.

namespace defaults {

/// All of the file; of standard input when it is named "-".
QByteArray readFile(const QString &name);

/// Replaces the file as a whole; writes to standard output when it is named "-".
void writeFile(const QString &name, const QByteArray &data);

/// What ends an item of a list.
enum class ListSeparator { LineFeed, Null };

/// Writes a list to standard output. Where nulls separate, items stay as they are also at a terminal.
void printList(const QStringList &items, ListSeparator separator);

/// Writes to standard output. When this returns, the text has left the program.
void printResult(const QByteArray &text);

/// Writes a line to standard error, behind the name of the program.
void printMessage(const QString &message);

} // namespace defaults
