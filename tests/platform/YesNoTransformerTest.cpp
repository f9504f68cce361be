#include <OrvaneExportKit/platform/YesNoTransformer.h>
#include <tests/support/Printers.h>

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace {

TEST(YesNoTransformer, IsKnownByItsName)
{
    const auto transformer = platform::valueTransformerForName(u"YesNoTransformer"_s);
    ASSERT_NE(transformer, nullptr);
    EXPECT_EQ(transformer->transformedValueClass(), QMetaType::fromType<bool>());
    EXPECT_TRUE(transformer->allowsReverseTransformation());
}

TEST(YesNoTransformer, ShowsTextsAndBooleansAndNumbers)
{
    const platform::YesNoTransformer transformer;
    for (const QVariant &yes : QVariantList{u"yes"_s, u"true"_s, u"1"_s, true, 1}) {
        EXPECT_EQ(transformer.transformedValue(yes), true) << testing::PrintToString(yes);
    }
    for (const QVariant &no : QVariantList{u"no"_s, u"false"_s, u""_s, u"YES"_s, false, 0}) {
        EXPECT_EQ(transformer.transformedValue(no), false) << testing::PrintToString(no);
    }
}

TEST(YesNoTransformer, ShowsNothingForNoValueSoThatAPlaceholderCanStandIn)
{
    EXPECT_FALSE(platform::YesNoTransformer().transformedValue({}).isValid());
}

TEST(YesNoTransformer, StoresAWord)
{
    EXPECT_EQ(platform::YesNoTransformer().reverseTransformedValue(true), u"yes"_s);
    EXPECT_EQ(platform::YesNoTransformer().reverseTransformedValue(false), u"no"_s);
}

} // namespace
