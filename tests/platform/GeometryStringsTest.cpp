#include <OrvaneExportKit/platform/GeometryStrings.h>
#include <tests/support/Printers.h>

#include <gtest/gtest.h>

namespace {

using namespace Qt::Literals::StringLiterals;
using platform::pointFromString;
using platform::rectangleFromString;
using platform::sizeFromString;

TEST(GeometryStrings, WritesTheShortestNumbersThatReadTheSame)
{
    EXPECT_EQ(platform::stringFromPoint({0.1, -2}), u"{0.1, -2}");
    EXPECT_EQ(platform::stringFromSize({595.25, 842}), u"{595.25, 842}");
    EXPECT_EQ(platform::stringFromRectangle({0, 5, 8, 9}), u"{{0, 5}, {8, 9}}");
    const QPointF awkward(1.0 / 3, 1e300);
    EXPECT_EQ(pointFromString(platform::stringFromPoint(awkward)), awkward);
}

TEST(GeometryStrings, TakesSpacesAnywhere)
{
    EXPECT_EQ(pointFromString(u" { 1 ,\t-2.5 } "), QPointF(1, -2.5));
    EXPECT_EQ(sizeFromString(u"{1,2}"), QSizeF(1, 2));
    EXPECT_EQ(rectangleFromString(u"{{0,5},{8,9}}"), QRectF(0, 5, 8, 9));
    EXPECT_EQ(rectangleFromString(u" { { 0 , 5 } , { 8 , 9 } } "), QRectF(0, 5, 8, 9));
}

TEST(GeometryStrings, GivesNothingForAnythingElse)
{
    for (const QStringView string : {u"", u"1, 2", u"{1, 2", u"1, 2}", u"{1}", u"{1, }", u"{, 2}", u"{1, 2, 3}",
                                     u"{1, 2} 3", u"{one, 2}", u"{nan, 2}", u"{inf, 2}", u"{1e999, 2}", u"{{1, 2}}"}) {
        EXPECT_FALSE(pointFromString(string)) << string.toUtf8().constData();
        EXPECT_FALSE(sizeFromString(string)) << string.toUtf8().constData();
    }
    for (const QStringView string : {u"", u"{1, 2}", u"{{1, 2}}", u"{{1, 2}, {3, 4}", u"{{1, 2}, {3}}",
                                     u"{{1, 2} {3, 4}}", u"{{1, 2}, {3, 4}} ."}) {
        EXPECT_FALSE(rectangleFromString(string)) << string.toUtf8().constData();
    }
}

} // namespace
