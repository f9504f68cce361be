#include <OrvaneExportKit/platform/Exceptions.h>
#include <OrvaneExportKit/platform/ScalarValues.h>
#include <tests/support/Printers.h>

#include <gtest/gtest.h>

#include <QtCore/QDateTime>
#include <QtCore/QLocale>
#include <QtCore/QUrl>

#include <cmath>
#include <limits>
#include <string>

using namespace Qt::Literals::StringLiterals;
using platform::boolValue;
using platform::charValue;
using platform::floatValue;
using platform::intValue;
using platform::unsignedCharValue;
using platform::unsignedIntValue;

namespace {

constexpr float floatInfinity = std::numeric_limits<float>::infinity();
constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

/// Succeeds when every reader answers the number; it must be one that all of them can hold.
testing::AssertionResult readsEverywhereAs(const QVariant &value, int number)
{
    if (floatValue(value) == static_cast<float>(number) && intValue(value) == number &&
        unsignedIntValue(value) == static_cast<quint32>(number) && unsignedCharValue(value) == number &&
        charValue(value) == number && boolValue(value) == (number != 0)) {
        return testing::AssertionSuccess();
    }
    return testing::AssertionFailure() << testing::PrintToString(value) << " reads as " << floatValue(value) << ", "
                                       << intValue(value) << ", " << unsignedIntValue(value) << ", "
                                       << int(unsignedCharValue(value)) << ", " << int(charValue(value)) << ", "
                                       << boolValue(value);
}

/// Succeeds when the reader throws and names itself and the kind of the value.
template <typename Read>
testing::AssertionResult refuses(Read read, const std::string &reader, const QVariant &value)
{
    try {
        read(value);
    } catch (const platform::UnrecognisedOperationException &exception) {
        const std::string text = exception.what();
        if (text.find(reader) != std::string::npos && text.find(value.typeName()) != std::string::npos) {
            return testing::AssertionSuccess();
        }
        return testing::AssertionFailure() << "the text is: " << text;
    }
    return testing::AssertionFailure() << reader << " threw nothing for " << testing::PrintToString(value);
}

testing::AssertionResult refusedByEveryReader(const QVariant &value)
{
    for (const testing::AssertionResult &result :
         {refuses(floatValue, "floatValue", value), refuses(intValue, "intValue", value),
          refuses(unsignedIntValue, "unsignedIntValue", value), refuses(unsignedCharValue, "unsignedCharValue", value),
          refuses(charValue, "charValue", value), refuses(boolValue, "boolValue", value)}) {
        if (!result) {
            return result;
        }
    }
    return testing::AssertionSuccess();
}

TEST(ScalarValues, OfNothingAreZero)
{
    EXPECT_TRUE(readsEverywhereAs(QVariant(), 0));
    EXPECT_TRUE(readsEverywhereAs(QVariant::fromValue(nullptr), 0));
    EXPECT_TRUE(readsEverywhereAs(QVariant(QMetaType::fromType<int>()), 0));
}

TEST(ScalarValues, ReadEveryNumberType)
{
    EXPECT_TRUE(readsEverywhereAs(QVariant::fromValue<char>(12), 12));
    EXPECT_TRUE(readsEverywhereAs(QVariant::fromValue<signed char>(12), 12));
    EXPECT_TRUE(readsEverywhereAs(QVariant::fromValue<unsigned char>(12), 12));
    EXPECT_TRUE(readsEverywhereAs(QVariant::fromValue<short>(12), 12));
    EXPECT_TRUE(readsEverywhereAs(QVariant::fromValue<unsigned short>(12), 12));
    EXPECT_TRUE(readsEverywhereAs(12, 12));
    EXPECT_TRUE(readsEverywhereAs(12U, 12));
    EXPECT_TRUE(readsEverywhereAs(QVariant::fromValue(12L), 12));
    EXPECT_TRUE(readsEverywhereAs(QVariant::fromValue(12UL), 12));
    EXPECT_TRUE(readsEverywhereAs(12LL, 12));
    EXPECT_TRUE(readsEverywhereAs(12ULL, 12));
    EXPECT_TRUE(readsEverywhereAs(12.0F, 12));
    EXPECT_TRUE(readsEverywhereAs(12.0, 12));
    EXPECT_TRUE(readsEverywhereAs(true, 1));
    EXPECT_TRUE(readsEverywhereAs(false, 0));
}

TEST(ScalarValues, OfIntegersWrapAround)
{
    EXPECT_EQ(unsignedIntValue(-1), 4294967295U);
    EXPECT_EQ(unsignedIntValue(4294967296LL + 5), 5U);
    EXPECT_EQ(intValue(4294967295U), -1);
    EXPECT_EQ(intValue(2147483648LL), -2147483647 - 1);
    EXPECT_EQ(intValue(std::numeric_limits<quint64>::max()), -1);
    EXPECT_EQ(charValue(QVariant::fromValue<quint8>(200)), -56);
    EXPECT_EQ(charValue(128), -128);
    EXPECT_EQ(unsignedCharValue(300), 44);
    EXPECT_EQ(unsignedCharValue(-1), 255);
}

TEST(ScalarValues, OfIntegersAsFloatsAreTheNearestOnes)
{
    EXPECT_EQ(floatValue(-3), -3.0F);
    EXPECT_EQ(floatValue(16777217), 16777216.0F);
    EXPECT_EQ(floatValue(std::numeric_limits<qint64>::min()), -9223372036854775808.0F);
    EXPECT_EQ(floatValue(std::numeric_limits<quint64>::max()), 18446744073709551616.0F);
}

TEST(ScalarValues, OfRealsLoseTheFraction)
{
    EXPECT_EQ(intValue(1.5F), 1);
    EXPECT_EQ(intValue(-1.9), -1);
    EXPECT_EQ(unsignedIntValue(3000000000.75), 3000000000U);
    EXPECT_EQ(unsignedIntValue(-0.9), 0U);
    EXPECT_EQ(charValue(-127.9), -127);
    EXPECT_EQ(unsignedCharValue(255.9), 255);
}

TEST(ScalarValues, OfRealsBeyondTheRangeAreItsNearestEnd)
{
    EXPECT_EQ(intValue(1e10F), std::numeric_limits<qint32>::max());
    EXPECT_EQ(intValue(2147483648.0), std::numeric_limits<qint32>::max());
    EXPECT_EQ(intValue(-1e10F), std::numeric_limits<qint32>::min());
    EXPECT_EQ(intValue(infinity), std::numeric_limits<qint32>::max());
    EXPECT_EQ(intValue(-infinity), std::numeric_limits<qint32>::min());
    EXPECT_EQ(unsignedIntValue(4294967296.0), 4294967295U);
    EXPECT_EQ(unsignedIntValue(-1.0F), 0U);
    EXPECT_EQ(charValue(200.0F), 127);
    EXPECT_EQ(charValue(-1e300), -128);
    EXPECT_EQ(unsignedCharValue(1e300), 255);
    EXPECT_EQ(unsignedCharValue(-1.0), 0);
}

TEST(ScalarValues, OfNotANumberAreZeroButTrue)
{
    EXPECT_EQ(intValue(notANumber), 0);
    EXPECT_EQ(unsignedIntValue(notANumber), 0U);
    EXPECT_EQ(charValue(notANumber), 0);
    EXPECT_EQ(unsignedCharValue(notANumber), 0);
    EXPECT_TRUE(std::isnan(floatValue(notANumber)));
    EXPECT_TRUE(boolValue(notANumber));
}

TEST(ScalarValues, OfDoublesAsFloatsAreTheNearestOnes)
{
    EXPECT_EQ(floatValue(0.1), 0.1F);
    EXPECT_EQ(floatValue(1e300), floatInfinity);
    EXPECT_EQ(floatValue(-1e300), -floatInfinity);
    EXPECT_EQ(floatValue(1e-300), 0.0F);
}

TEST(ScalarValues, OfEveryNumberButZeroAreTrue)
{
    EXPECT_TRUE(boolValue(256));
    EXPECT_TRUE(boolValue(-1));
    EXPECT_TRUE(boolValue(4294967296LL));
    EXPECT_TRUE(boolValue(1.5F));
    EXPECT_TRUE(boolValue(0.1));
    EXPECT_FALSE(boolValue(0));
    EXPECT_FALSE(boolValue(0.0));
    EXPECT_FALSE(boolValue(-0.0F));
}

TEST(ScalarValues, OfAStringAreItsLeadingNumber)
{
    EXPECT_TRUE(readsEverywhereAs(u"12"_s, 12));
    EXPECT_TRUE(readsEverywhereAs(u"012"_s, 12));
    EXPECT_TRUE(readsEverywhereAs(u"+12"_s, 12));
    EXPECT_TRUE(readsEverywhereAs(u" \t\r\n12"_s, 12));
    EXPECT_TRUE(readsEverywhereAs(u"12 pt"_s, 12));
    EXPECT_TRUE(readsEverywhereAs(u"12-3"_s, 12));
    EXPECT_TRUE(readsEverywhereAs(u"12\u0665"_s, 12));
    EXPECT_TRUE(readsEverywhereAs(u"12"_s + QChar(QChar::Null), 12));
    EXPECT_TRUE(readsEverywhereAs(u"12"_s + QChar(0xD800), 12)); // half a surrogate pair
    EXPECT_EQ(intValue(u" -7em"_s), -7);
    EXPECT_EQ(charValue(u"-7"_s), -7);
    EXPECT_EQ(floatValue(u"-7"_s), -7.0F);
}

TEST(ScalarValues, OfAStringWithoutNumberAreZero)
{
    for (const QString &text : {u""_s, QString(), u" "_s, u"de"_s, u"YES"_s, u"true"_s, u"+"_s, u"-"_s, u"- 5"_s,
                                u"+-5"_s, u"."_s, u"-.e5"_s, u"e5"_s, u"inf"_s, u"nan"_s, u"x12"_s, u"\u0665"_s}) {
        EXPECT_TRUE(readsEverywhereAs(text, 0));
    }
    EXPECT_TRUE(readsEverywhereAs(u"0x12"_s, 0));
}

TEST(ScalarValues, OfAStringTakeFractionAndExponentAsFloatsOnly)
{
    EXPECT_EQ(floatValue(u"1.5 lines"_s), 1.5F);
    EXPECT_EQ(floatValue(u"-.5"_s), -0.5F);
    EXPECT_EQ(floatValue(u"5."_s), 5.0F);
    EXPECT_EQ(floatValue(u"1.2.3"_s), 1.2F);
    EXPECT_EQ(floatValue(u"1e3"_s), 1000.0F);
    EXPECT_EQ(floatValue(u"2.5E-1x"_s), 0.25F);
    EXPECT_EQ(floatValue(u"2e+1"_s), 20.0F);
    EXPECT_EQ(floatValue(u"2e"_s), 2.0F);
    EXPECT_EQ(floatValue(u"2e+"_s), 2.0F);
    EXPECT_EQ(floatValue(u"2e-x1"_s), 2.0F);
    EXPECT_EQ(floatValue(u"2 e1"_s), 2.0F);
    EXPECT_EQ(intValue(u"1.9"_s), 1);
    EXPECT_EQ(intValue(u"1e3"_s), 1);
    EXPECT_EQ(intValue(u".9"_s), 0);
    EXPECT_FALSE(boolValue(u"0.5"_s));
}

TEST(ScalarValues, OfAStringBeyondTheRangeAreItsNearestEnd)
{
    const QString huge = u"99999999999999999999"_s;
    EXPECT_EQ(intValue(u"2147483648"_s), 2147483647);
    EXPECT_EQ(intValue(u"-2147483649"_s), -2147483647 - 1);
    EXPECT_EQ(intValue(huge), 2147483647);
    EXPECT_EQ(intValue(u'-' + huge), -2147483647 - 1);
    EXPECT_EQ(unsignedIntValue(u"4294967295"_s), 4294967295U);
    EXPECT_EQ(unsignedIntValue(u'+' + huge), 4294967295U);
    EXPECT_EQ(unsignedIntValue(u"-1"_s), 0U);
    EXPECT_EQ(charValue(u"200"_s), 127);
    EXPECT_EQ(charValue(u"-200"_s), -128);
    EXPECT_EQ(unsignedCharValue(u"256"_s), 255);
    EXPECT_TRUE(boolValue(huge));
    EXPECT_TRUE(boolValue(u'-' + huge));
    EXPECT_EQ(floatValue(u"1e39"_s), floatInfinity);
    EXPECT_EQ(floatValue(u"-1e999"_s), -floatInfinity);
    EXPECT_EQ(floatValue(u"1e-999"_s), 0.0F);
}

TEST(ScalarValues, OfAStringDoNotFollowTheLocale)
{
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    EXPECT_EQ(floatValue(u"1,5"_s), 1.0F);
    EXPECT_EQ(floatValue(u"1.5"_s), 1.5F);
    EXPECT_EQ(intValue(u"1.234"_s), 1);
    QLocale::setDefault(before);
}

TEST(ScalarValues, OfOtherKindsAreRefused)
{
    EXPECT_TRUE(refusedByEveryReader(QVariantList{1}));
    EXPECT_TRUE(refusedByEveryReader(QStringList{u"1"_s}));
    EXPECT_TRUE(refusedByEveryReader(QVariantMap{{u"a"_s, 1}}));
    EXPECT_TRUE(refusedByEveryReader(QByteArray("1")));
    EXPECT_TRUE(refusedByEveryReader(QDateTime(QDate(2009, 3, 7), QTime(14, 5))));
    EXPECT_TRUE(refusedByEveryReader(QUrl(u"file:///1"_s)));
    EXPECT_TRUE(refusedByEveryReader(QChar(u'1')));
}

} // namespace
