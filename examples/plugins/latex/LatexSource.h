#pragma once

#include <styled-text/PageChoices.h>
#include <styled-text/StyledText.h>

#include <QtCore/QString>

/// \file
/// LaTeX source text. Every text and name that comes in is escaped here.

namespace latex {

/// The text with what has a meaning in LaTeX escaped. Characters that the base fonts lack become their code in
/// brackets, "[U+1D11E]", so that nothing vanishes from the page unseen.
QString escaped(const QString &text);

/// A paragraph: a command with the text as its argument where the style is one of sectioning ("section"), an
/// environment for every other style ("quote"). A marker is a command alone ("bigskip").
QString block(const styled::Paragraph &paragraph);

/// A whole document around its content.
QString document(const QString &title, const styled::Page &look, const QString &content);

} // namespace latex
