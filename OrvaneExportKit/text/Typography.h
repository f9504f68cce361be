#pragma once

#include <OrvaneExportKit/ExportMacros.h>
#include <OrvaneExportKit/platform/AttributedString.h>

#include <QtCore/QString>

/// \file
/// Typographic corrections. They look at no context: every occurrence is replaced, from the left and without overlap.
/// On attributed text the new character takes the attributes of the first unit that it replaces.
///
/// For use on any thread, with objects of its own.

namespace KZMutableStringExportAdditions {

/// Replaces "..." by the ellipsis U+2026; of four full stops the last one stays.
ORVANE_CORE_EXPORT void convertEllipses(QString &text);

/// Replaces every straight apostrophe (U+0027) by U+2019, also one that stands as an opening mark or a prime.
ORVANE_CORE_EXPORT void correctApostrophes(QString &text);

/// Replaces "--" by the en dash U+2013; of three hyphens the last one stays.
ORVANE_CORE_EXPORT void correctDashes(QString &text);

} // namespace KZMutableStringExportAdditions

namespace KZMutableAttributedStringExportAdditions {

ORVANE_CORE_EXPORT void convertEllipses(platform::AttributedString &text);    ///< as on plain text
ORVANE_CORE_EXPORT void correctApostrophes(platform::AttributedString &text); ///< as on plain text
ORVANE_CORE_EXPORT void correctDashes(platform::AttributedString &text);      ///< as on plain text

} // namespace KZMutableAttributedStringExportAdditions
