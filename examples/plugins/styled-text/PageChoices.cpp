#include "PageChoices.h"

#include <OrvaneExportKit/platform/Bundle.h>
#include <OrvaneExportKit/platform/GeometryStrings.h>
#include <OrvaneExportKit/text/QuotationMarks.h>
#include <OrvaneExportKit/text/QuotationTable.h>
#include <OrvaneExportKit/text/Typography.h>

#include <QtCore/QRegularExpression>

#include <algorithm>

namespace styled {

namespace {

using namespace Qt::Literals::StringLiterals;

constexpr double smallestFont = 1;
constexpr double largestFont = 500;
constexpr double longestSide = 16000; // about five metres and a half

bool isBetween(const QString &value, double least, double most)
{
    bool isNumber = false;
    const double number = value.toDouble(&isNumber);
    return isNumber && number >= least && number <= most;
}

bool isLanguageTag(const QString &value)
{
    static const QRegularExpression tag(u"^[A-Za-z]{2,8}(-[A-Za-z0-9]{1,8})*$"_s);
    return tag.match(value).hasMatch();
}

bool isQuotationLanguage(const QString &value)
{
    return value == u"none" || platform::quotationMarks(platform::Bundle::kitBundle(), value).begin;
}

/// Stored booleans read "true" and "false".
bool isYes(const QString &value)
{
    return value == u"yes" || value == u"true";
}

bool isYesOrNo(const QString &value)
{
    return isYes(value) || value == u"no" || value == u"false";
}

/// Whether the value can stand in a style sheet or a source text as a name.
bool isFontName(const QString &value)
{
    return !value.isEmpty() && std::all_of(value.begin(), value.end(), [](QChar character) {
        return character.isLetterOrNumber() || character == u' ' || character == u'-' || character == u'_';
    });
}

bool isFontSize(const QString &value)
{
    return isBetween(value, smallestFont, largestFont);
}

bool isPaperSize(const QString &value)
{
    const auto size = platform::sizeFromString(value);
    return size && std::min(size->width(), size->height()) >= 1 &&
           std::max(size->width(), size->height()) <= longestSide;
}

bool isMargin(const QString &value)
{
    return isBetween(value, 0, longestSide);
}

} // namespace

const QList<ChoiceRule> &pageChoices()
{
    static const QString points = u"points"_s;
    static const QList<ChoiceRule> rules = {
        {u"language"_s, u"en"_s, u"the language that the text is in"_s, u"a language tag such as en or de-CH"_s,
         isLanguageTag},
        {u"quotation-language"_s, u"en_US"_s, u"makes straight quotation marks typographic"_s,
         u"a language such as en_US, de or fr_FR, or none"_s, isQuotationLanguage},
        {u"typography"_s, u"yes"_s, u"corrects ellipses, apostrophes and dashes"_s, u"yes or no"_s, isYesOrNo},
        {u"font-name"_s, u"Georgia"_s, u"the font of the text"_s, u"a name such as Georgia-Bold"_s, isFontName},
        {u"font-size"_s, u"11"_s, u"the size of the text"_s, u"points from 1 to 500"_s, isFontSize},
        {u"paper-size"_s, u"{595.28, 841.89}"_s, u"the size of the paper"_s, u"{width, height} in points"_s,
         isPaperSize},
        {u"top-margin"_s, u"72"_s, u"the margin above the text"_s, points, isMargin},
        {u"left-margin"_s, u"72"_s, u"the margin to the left of the text"_s, points, isMargin},
        {u"right-margin"_s, u"72"_s, u"the margin to the right of the text"_s, points, isMargin},
        {u"bottom-margin"_s, u"72"_s, u"the margin below the text"_s, points, isMargin},
    };
    return rules;
}

Page pageIn(const KZExportSettings &settings)
{
    const auto text = [&settings](const QString &key) {
        return choiceIn(settings, pageChoices(), key);
    };
    Page page{
        text(u"font-name"_s),
        text(u"font-size"_s).toDouble(),
        platform::sizeFromString(text(u"paper-size"_s)).value_or(QSizeF()),
        {text(u"left-margin"_s).toDouble(), text(u"top-margin"_s).toDouble(), text(u"right-margin"_s).toDouble(),
         text(u"bottom-margin"_s).toDouble()},
    };
    const QSizeF textSize = page.paper.shrunkBy(page.margins);
    if (std::min(textSize.width(), textSize.height()) < 1) {
        throw platform::InvalidArgumentException("the margins leave no room on the paper");
    }
    return page;
}

QString languageIn(const KZExportSettings &settings)
{
    return choiceIn(settings, pageChoices(), u"language"_s);
}

void correctTypography(platform::AttributedString &text, const KZExportSettings &settings)
{
    using namespace KZMutableAttributedStringExportAdditions;
    const QString quotations = choiceIn(settings, pageChoices(), u"quotation-language"_s);
    if (quotations != u"none") {
        convertQuotationsToLanguage(text, quotations);
    }
    if (isYes(choiceIn(settings, pageChoices(), u"typography"_s))) {
        convertEllipses(text);
        correctApostrophes(text);
        correctDashes(text);
    }
}

} // namespace styled
