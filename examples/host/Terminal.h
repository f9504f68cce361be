#pragma once

#include <QtCore/QString>

/// \file
/// Everything that the program asks of the terminal. Control characters reach none: they are escaped, line feeds in
/// results and messages excepted. Results go to standard output;
/// messages, questions and progress go to standard error.

namespace host {

/// Writes text to standard output, at once, for what a program has done must be known however it ends.
void printResult(const QString &text);

/// What ends an item of a list.
enum class ListSeparator { LineFeed, Null };

/// Writes an item of a list to standard output, at once. A terminal shows it on one line, with control characters
/// escaped; elsewhere, and where nulls separate, the item stays as it is.
void printItem(const QString &item, ListSeparator separator);

/// Throws `HostError` when results could not be written.
void requireAllPrinted();

/// Writes a line to standard error.
void printMessage(const QString &line);

/// Writes a line to standard error that says whose warning it is.
void printWarning(const QString &message);

/// Writes a line to standard error that says whose error it is.
void printError(const QString &message);

/// Whether someone sits at a terminal who can read a question and answer it.
bool canAsk();

/// Asks a question and reads a line; true for "y" and "yes".
bool confirm(const QString &question);

/// One line on standard error that shows how far the run has come; nothing where standard error is not a terminal.
/// The line is gone when the object is destroyed.
class ProgressLine
{
public:
    ProgressLine();
    ProgressLine(const ProgressLine &) = delete;
    ProgressLine &operator=(const ProgressLine &) = delete;
    ~ProgressLine();

    /// Replaces the text, cut to the width of the terminal.
    void show(const QString &text) const;

private:
    bool m_isVisible;
};

} // namespace host
