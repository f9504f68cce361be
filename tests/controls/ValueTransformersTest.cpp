#include <OrvaneExportKit/controls/ValueTransformers.h>
#include <tests/support/Printers.h>
#include <tests/support/RangeErrors.h>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <memory>
#include <ostream>
#include <string>

using namespace Qt::Literals::StringLiterals;
using platform::ValueTransformer;
using support::throwsIndexException;

namespace {

constexpr float infinity = std::numeric_limits<float>::infinity();
const QVariant nothing;

/// Succeeds when the value is a 32-bit float and exactly this one.
testing::AssertionResult isFloat(const QVariant &value, float number)
{
    if (value.metaType() == QMetaType::fromType<float>() && value.toFloat() == number) {
        return testing::AssertionSuccess();
    }
    return testing::AssertionFailure() << testing::PrintToString(value) << " is not the float " << number;
}

/// Succeeds when the value is an int and exactly this one.
testing::AssertionResult isInt(const QVariant &value, int number)
{
    if (value.metaType() == QMetaType::fromType<int>() && value.toInt() == number) {
        return testing::AssertionSuccess();
    }
    return testing::AssertionFailure() << testing::PrintToString(value) << " is not the int " << number;
}

TEST(MeasurementUnitTransformer, MultipliesByTheFactor)
{
    EXPECT_TRUE(isFloat(KZMeasurementUnitTransformer(0.5F).transformedValue(144), 72.0F));
}

TEST(MeasurementUnitTransformer, DividesByTheFactorInReverse)
{
    EXPECT_TRUE(isFloat(KZMeasurementUnitTransformer(0.5F).reverseTransformedValue(72), 144.0F));
}

TEST(MeasurementUnitTransformer, GivesZeroForNothing)
{
    EXPECT_TRUE(isFloat(KZMeasurementUnitTransformer(0.5F).transformedValue(nothing), 0.0F));
}

TEST(MeasurementUnitTransformer, GivesZeroForNothingInReverse)
{
    EXPECT_TRUE(isFloat(KZMeasurementUnitTransformer(0.5F).reverseTransformedValue(nothing), 0.0F));
}

TEST(MeasurementUnitTransformer, GivesZeroForNothingWhateverTheFactor)
{
    EXPECT_TRUE(isFloat(KZMeasurementUnitTransformer(infinity).transformedValue(nothing), 0.0F));
    EXPECT_TRUE(isFloat(KZMeasurementUnitTransformer(0.0F).reverseTransformedValue(nothing), 0.0F));
}

TEST(MeasurementUnitTransformer, KeepsTheFraction)
{
    const KZMeasurementUnitTransformer centimetres(2.54F / 72.0F);
    EXPECT_TRUE(isFloat(centimetres.transformedValue(10.5F), 10.5F * (2.54F / 72.0F)));
    EXPECT_TRUE(isFloat(centimetres.reverseTransformedValue(2.5F), 2.5F / (2.54F / 72.0F)));
}

TEST(MeasurementUnitTransformer, CalculatesIn32Bits)
{
    EXPECT_TRUE(isFloat(KZMeasurementUnitTransformer(0.1F).transformedValue(16777217.0), 16777216.0F * 0.1F));
    EXPECT_TRUE(isFloat(KZMeasurementUnitTransformer(1e30F).transformedValue(1e30F), infinity));
}

TEST(MeasurementUnitTransformer, DoesNotGuardAgainstAFactorOfZero)
{
    const KZMeasurementUnitTransformer zero(0.0F);
    EXPECT_TRUE(isFloat(zero.reverseTransformedValue(1), infinity));
    EXPECT_TRUE(isFloat(zero.reverseTransformedValue(-1), -infinity));
    EXPECT_TRUE(std::isnan(zero.reverseTransformedValue(0).toFloat()));
}

TEST(MeasurementUnitTransformer, ReadsTextAsANumber)
{
    EXPECT_TRUE(isFloat(KZMeasurementUnitTransformer(0.5F).transformedValue(u"7.5 pt"_s), 3.75F));
    EXPECT_TRUE(isFloat(KZMeasurementUnitTransformer(0.5F).transformedValue(u"pt"_s), 0.0F));
}

TEST(MeasurementUnitTransformer, TakesItsFactorAtCreationAndLater)
{
    const auto transformer = KZMeasurementUnitTransformer::initWithFactor(0.25F);
    EXPECT_EQ(transformer->factor(), 0.25F);
    transformer->setFactor(4.0F);
    EXPECT_EQ(transformer->factor(), 4.0F);
    EXPECT_TRUE(isFloat(transformer->transformedValue(2), 8.0F));
}

TEST(LineHeightMultipleTransformer, GivesTenths)
{
    EXPECT_TRUE(isFloat(KZLineHeightMultipleTransformer().transformedValue(1.0F), 10.0F));
    EXPECT_TRUE(isFloat(KZLineHeightMultipleTransformer().transformedValue(1.5F), 15.0F));
}

TEST(LineHeightMultipleTransformer, DropsTheFractionOfATenth)
{
    EXPECT_TRUE(isFloat(KZLineHeightMultipleTransformer().transformedValue(1.99F), 19.0F));
    EXPECT_TRUE(isFloat(KZLineHeightMultipleTransformer().transformedValue(1.25F), 12.0F));
    EXPECT_TRUE(isFloat(KZLineHeightMultipleTransformer().transformedValue(1.29F), 12.0F));
    EXPECT_TRUE(isFloat(KZLineHeightMultipleTransformer().transformedValue(-1.25F), -12.0F));
}

TEST(LineHeightMultipleTransformer, GivesZeroBelowATenth)
{
    EXPECT_TRUE(isFloat(KZLineHeightMultipleTransformer().transformedValue(0.05F), 0.0F));
}

TEST(LineHeightMultipleTransformer, GivesATenthInReverse)
{
    EXPECT_TRUE(isFloat(KZLineHeightMultipleTransformer().reverseTransformedValue(19), 1.9F));
    EXPECT_TRUE(isFloat(KZLineHeightMultipleTransformer().reverseTransformedValue(15), 1.5F));
}

TEST(LineHeightMultipleTransformer, KeepsTheFractionInReverse)
{
    EXPECT_TRUE(isFloat(KZLineHeightMultipleTransformer().reverseTransformedValue(12.5F), 1.25F));
}

TEST(LineHeightMultipleTransformer, GivesZeroForNothing)
{
    EXPECT_TRUE(isFloat(KZLineHeightMultipleTransformer().transformedValue(nothing), 0.0F));
}

TEST(LineHeightMultipleTransformer, GivesZeroForNothingInReverse)
{
    EXPECT_TRUE(isFloat(KZLineHeightMultipleTransformer().reverseTransformedValue(nothing), 0.0F));
}

TEST(LineHeightMultipleTransformer, StaysInTheRangeOfA32BitInteger)
{
    const KZLineHeightMultipleTransformer transformer;
    EXPECT_TRUE(isFloat(transformer.transformedValue(1e10F), 2147483648.0F));
    EXPECT_TRUE(isFloat(transformer.transformedValue(-1e10F), -2147483648.0F));
    EXPECT_TRUE(isFloat(transformer.transformedValue(infinity), 2147483648.0F));
    EXPECT_TRUE(isFloat(transformer.transformedValue(-infinity), -2147483648.0F));
    EXPECT_TRUE(isFloat(transformer.transformedValue(std::numeric_limits<float>::quiet_NaN()), 0.0F));
}

TEST(EmptyStringTransformer, GivesTheEmptyStringForNothing)
{
    EXPECT_EQ(KZEmptyStringTransformer().transformedValue(nothing), QVariant(u""_s));
    EXPECT_EQ(KZEmptyStringTransformer().transformedValue(QVariant::fromValue(nullptr)), QVariant(u""_s));
}

TEST(EmptyStringTransformer, GivesTheEmptyStringForNothingInReverse)
{
    EXPECT_EQ(KZEmptyStringTransformer().reverseTransformedValue(nothing), QVariant(u""_s));
}

TEST(EmptyStringTransformer, KeepsTheEmptyString)
{
    EXPECT_EQ(KZEmptyStringTransformer().transformedValue(u""_s), QVariant(u""_s));
    EXPECT_EQ(KZEmptyStringTransformer().reverseTransformedValue(u""_s), QVariant(u""_s));
}

TEST(EmptyStringTransformer, KeepsAnyOtherString)
{
    const QString tag = u"<i>"_s;
    const QVariant shown = KZEmptyStringTransformer().transformedValue(tag);
    EXPECT_EQ(shown, QVariant(tag));
    EXPECT_EQ(shown.toString().constData(), tag.constData()) << "the text was copied";
    EXPECT_EQ(KZEmptyStringTransformer().reverseTransformedValue(tag), QVariant(tag));
}

TEST(EmptyStringTransformer, KeepsANumber)
{
    EXPECT_TRUE(isInt(KZEmptyStringTransformer().transformedValue(7), 7));
    EXPECT_TRUE(isInt(KZEmptyStringTransformer().reverseTransformedValue(7), 7));
}

TEST(LocaleTransformer, GivesThePlaceOfALanguage)
{
    EXPECT_TRUE(isInt(KZLocaleTransformer().transformedValue(u"en_US"_s), 3));
}

TEST(LocaleTransformer, GivesTheLastPlace)
{
    EXPECT_TRUE(isInt(KZLocaleTransformer().transformedValue(u"ja"_s), 8));
}

TEST(LocaleTransformer, GivesTheFirstPlace)
{
    EXPECT_TRUE(isInt(KZLocaleTransformer().transformedValue(u"af"_s), 0));
}

TEST(LocaleTransformer, TakesAnUnknownLanguageForGerman)
{
    EXPECT_TRUE(isInt(KZLocaleTransformer().transformedValue(u"en_GB"_s), 1));
    EXPECT_TRUE(isInt(KZLocaleTransformer().transformedValue(u""_s), 1));
}

TEST(LocaleTransformer, TakesNothingForGerman)
{
    EXPECT_TRUE(isInt(KZLocaleTransformer().transformedValue(nothing), 1));
}

TEST(LocaleTransformer, TakesALanguageInCapitalsForGerman)
{
    EXPECT_TRUE(isInt(KZLocaleTransformer().transformedValue(u"EN_US"_s), 1));
}

TEST(LocaleTransformer, TakesOtherKindsForGerman)
{
    EXPECT_TRUE(isInt(KZLocaleTransformer().transformedValue(3), 1));
    EXPECT_TRUE(isInt(KZLocaleTransformer().transformedValue(QByteArray("ja")), 1));
    EXPECT_TRUE(isInt(KZLocaleTransformer().transformedValue(QVariantList{u"ja"_s}), 1));
}

TEST(LocaleTransformer, GivesTheLanguageOfAPlaceInReverse)
{
    EXPECT_EQ(KZLocaleTransformer().reverseTransformedValue(5), QVariant(u"de_CH"_s));
}

TEST(LocaleTransformer, GivesTheFirstLanguageForNothingInReverse)
{
    EXPECT_EQ(KZLocaleTransformer().reverseTransformedValue(nothing), QVariant(u"af"_s));
}

TEST(LocaleTransformer, RaisesTheRangeErrorBehindTheList)
{
    EXPECT_TRUE(throwsIndexException([] { KZLocaleTransformer().reverseTransformedValue(9); },
                                     "KZLocaleTransformer::reverseTransformedValue", 9, 9));
}

TEST(LocaleTransformer, RaisesTheRangeErrorBeforeTheList)
{
    EXPECT_TRUE(throwsIndexException([] { KZLocaleTransformer().reverseTransformedValue(-1); },
                                     "KZLocaleTransformer::reverseTransformedValue", -1, 9));
    EXPECT_THROW(KZLocaleTransformer().reverseTransformedValue(-1e10F), platform::RangeException);
}

TEST(LocaleTransformer, HoldsNineLanguagesInTheirOrder)
{
    const QStringList languages = {u"af"_s,    u"de"_s, u"sv"_s, u"en_US"_s, u"en_UK"_s,
                                   u"de_CH"_s, u"it"_s, u"fr"_s, u"ja"_s};
    for (int index = 0; index < languages.size(); ++index) {
        EXPECT_TRUE(isInt(KZLocaleTransformer().transformedValue(languages[index]), index));
        EXPECT_EQ(KZLocaleTransformer().reverseTransformedValue(index), QVariant(languages[index]));
    }
}

struct KindOfTransformer {
    const char *name;
    std::shared_ptr<ValueTransformer> transformer;
    QMetaType shownType;
};

void PrintTo(const KindOfTransformer &kind, std::ostream *out)
{
    *out << kind.name;
}

class EveryTransformer : public testing::TestWithParam<KindOfTransformer>
{
};

TEST_P(EveryTransformer, NamesTheTypeOfTheShownValue)
{
    EXPECT_EQ(GetParam().transformer->transformedValueClass(), GetParam().shownType);
}

TEST_P(EveryTransformer, ShowsNothingAsAValueOfThatType)
{
    EXPECT_EQ(GetParam().transformer->transformedValue(nothing).metaType(), GetParam().shownType);
}

TEST_P(EveryTransformer, AllowsTheReverse)
{
    EXPECT_TRUE(GetParam().transformer->allowsReverseTransformation());
}

INSTANTIATE_TEST_SUITE_P(
    ValueTransformers, EveryTransformer,
    testing::Values(KindOfTransformer{"MeasurementUnit", KZMeasurementUnitTransformer::initWithFactor(1.0F),
                                      QMetaType::fromType<float>()},
                    KindOfTransformer{"LineHeightMultiple", KZLineHeightMultipleTransformer::init(),
                                      QMetaType::fromType<float>()},
                    KindOfTransformer{"EmptyString", KZEmptyStringTransformer::init(), QMetaType::fromType<QString>()},
                    KindOfTransformer{"Locale", KZLocaleTransformer::init(), QMetaType::fromType<int>()}),
    [](const testing::TestParamInfo<KindOfTransformer> &kind) { return std::string(kind.param.name); });

} // namespace
