#pragma once

#include <styled-text/PageChoices.h>
#include <styled-text/StyledText.h>

#include <QtCore/QString>

/// \file
/// The source text of web pages. Every text and name that comes in is escaped here.

namespace html {

/// The text with what has a meaning in HTML escaped, and without the control characters that it does not allow.
QString escaped(const QString &text);

/// A paragraph as an element: one of HTML's own where the style is called like it ("h1", "blockquote"), else a `p` of
/// that class. A marker is a `hr`, or a `div` of its class.
QString element(const styled::Paragraph &paragraph);

/// A whole page around its content, which stands in the `body` as it is.
QString page(const QString &title, const QString &language, const styled::Page &look, const QString &content);

} // namespace html
