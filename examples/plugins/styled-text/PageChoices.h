#pragma once

#include "Choices.h"

#include <OrvaneExportKit/platform/AttributedString.h>

#include <QtCore/QMarginsF>
#include <QtCore/QSizeF>

/// \file
/// The choices that formats with pages have in common: language and typography, font, paper and margins.

namespace styled {

/// How a page looks. Lengths are in points.
struct Page {
    QString fontName; ///< "Georgia-Bold"
    double fontSize;
    QSizeF paper;
    QMarginsF margins;
};

const QList<ChoiceRule> &pageChoices();

/// Throws `platform::InvalidArgumentException` when the margins leave no room on the paper.
Page pageIn(const KZExportSettings &settings);

/// The language tag for the whole text: "en", "de-CH".
QString languageIn(const KZExportSettings &settings);

/// Sets the quotation marks of the chosen language, and apostrophes, dashes and ellipses, as the settings say.
void correctTypography(platform::AttributedString &text, const KZExportSettings &settings);

} // namespace styled
