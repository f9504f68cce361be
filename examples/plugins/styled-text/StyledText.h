#pragma once

#include "Styles.h"

#include <OrvaneExportKit/platform/AttributedString.h>

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QStringList>

namespace styled {

/// Text whose units all have the same inline styles.
struct Span {
    QString text;       ///< a line feed in it breaks the line inside the paragraph
    QStringList styles; ///< the identifiers, in the order of the format's list
};

/// A paragraph in the words of a format: what it is, and its text without any marks.
struct Paragraph {
    QString style;         ///< the identifier of a paragraph style or a marker; empty for body text
    bool isMarker = false; ///< stands for something of the format's own and has no text
    QList<Span> spans;
};

/// Takes a document apart: finds the marks of the styles, deletes them, and tells what they said.
///
/// A paragraph ends at an empty line, before a line that begins with a tab or has another style, and after a marker;
/// lines that nothing parts are lines of one paragraph. White space at both ends of a line is no part of it.
///
///     paragraphs(AttributedString(u"# Title\n\tA **bold** word."_s), styles);
///     // {"h1", "Title"}, {"", "A ", {"bold", {"strong"}}, " word."}
QList<Paragraph> paragraphs(const platform::AttributedString &document, const Styles &styles);

} // namespace styled
