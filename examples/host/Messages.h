#pragma once

#include <QtCore/QCoreApplication>
#include <QtCore/QString>
#include <QtCore/QStringList>

/// \file
/// The pieces that all messages to the user are made of.

namespace host {

/// The texts of messages in the user's language: `Texts::tr("the file %1")`. A terminal shows them in English.
struct Texts {
    Q_DECLARE_TR_FUNCTIONS(Messages)
};

/// A message as a sentence by itself: "The folder does not exist." of "the folder does not exist".
QString sentence(const QString &message);

/// A text on one line that a terminal shows as it is: control characters become escapes such as \x1b.
QString printable(const QString &text);

/// A name or path from outside, printable and in quotation marks: 'Tide/Ebb'.
QString quoted(const QString &text);

/// A number with its noun: "1 document", "2 documents".
QString counted(qsizetype count, const QString &noun);

/// The lines indented below a message, each on its own; a long list is cut and says so.
QString listed(const QStringList &lines);

} // namespace host
