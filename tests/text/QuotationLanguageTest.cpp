#include <OrvaneExportKit/platform/Bundle.h>
#include <OrvaneExportKit/platform/Exceptions.h>
#include <OrvaneExportKit/text/QuotationMarks.h>
#include <OrvaneExportKit/text/QuotationTable.h>
#include <tests/support/BothTexts.h>
#include <tests/support/Printers.h>
#include <tests/support/QuotesFolder.h>
#include <tests/support/RangeErrors.h>
#include <tests/support/StyledTexts.h>

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;
using namespace KZMutableAttributedStringExportAdditions;
using namespace KZMutableStringExportAdditions;
using platform::AttributedString;
using platform::Bundle;
using platform::BundleRegistration;
using platform::UnrecognisedOperationException;
using support::entry;
using support::plain;
using support::styled;
using support::stylesOf;

namespace {

template <typename Text>
struct ConvertQuotationsToLanguage : testing::Test {
    /// What the conversion makes of a text.
    static QString quoted(const QString &units, const QString &language)
    {
        Text text(units);
        convertQuotationsToLanguage(text, language);
        return plain(text);
    }
};
TYPED_TEST_SUITE(ConvertQuotationsToLanguage, support::BothTexts, support::TextNames);

TYPED_TEST(ConvertQuotationsToLanguage, UsesTheMarksOfTheKitsTable)
{
    EXPECT_EQ(this->quoted(u"\"a\" \"b\"\n\"c"_s, u"ja"_s), u"\u300Ca\u300D \u300Cb\u300D\n\u300Cc"_s);
    for (const QString &language : platform::sampleLanguages()) {
        const platform::QuotationMarks marks = platform::quotationMarks(Bundle::kitBundle(), language);
        EXPECT_EQ(this->quoted(u"\"a\""_s, language), *marks.begin + u'a' + *marks.end);
    }
}

TYPED_TEST(ConvertQuotationsToLanguage, GivesTheMarksOfTheStyleThatALanguageReplaces)
{
    const QStringList languagesOfStyles{u"de"_s, u"de_CH"_s, u"fr"_s, u"en_US"_s, u"en_UK"_s, u"sv"_s};
    for (qint32 style = 0; style < 6; ++style) {
        TypeParam text(u"\"a\" b \"c\""_s);
        convertQuotationsToType(text, style);
        EXPECT_EQ(this->quoted(u"\"a\" b \"c\""_s, languagesOfStyles[style]), plain(text)) << style;
    }
}

TYPED_TEST(ConvertQuotationsToLanguage, LeavesTheTextAloneForAnUnknownLanguage)
{
    for (const QString &language : {u"xx"_s, u"DE"_s, u"de-CH"_s, u""_s}) {
        EXPECT_EQ(this->quoted(u"\"a\" \"b\n\"c"_s, language), u"\"a\" \"b\n\"c"_s) << language.toStdString();
    }
}

TYPED_TEST(ConvertQuotationsToLanguage, LeavesATextWithoutStraightMarksAlone)
{
    EXPECT_EQ(this->quoted(u""_s, u"de"_s), u""_s);
    EXPECT_EQ(this->quoted(u"a 'b' c\n"_s, u"de"_s), u"a 'b' c\n"_s);
}

/// The same with a table of the test's own in the place of the kit's.
template <typename Text>
struct ConvertQuotationsByTable : ConvertQuotationsToLanguage<Text> {
    const support::QuotesFolder m_folder;
    const BundleRegistration m_registration{Bundle::kitBundle().identifier(), m_folder.path()};
};
TYPED_TEST_SUITE(ConvertQuotationsByTable, support::BothTexts, support::TextNames);

TYPED_TEST(ConvertQuotationsByTable, ReadsTheTableAnewByEveryCall)
{
    this->m_folder.write(QVariantMap{{u"de"_s, entry(u"<"_s, u">"_s)}});
    EXPECT_EQ(this->quoted(u"\"a\""_s, u"de"_s), u"<a>"_s);
    this->m_folder.write(QVariantMap{{u"de"_s, entry(u"["_s, u"]"_s)}});
    EXPECT_EQ(this->quoted(u"\"a\""_s, u"de"_s), u"[a]"_s);
}

TYPED_TEST(ConvertQuotationsByTable, PutsInMarksOfAnyLength)
{
    this->m_folder.write(QVariantMap{{u"xx"_s, entry(u"<<"_s, u""_s)}});
    EXPECT_EQ(this->quoted(u"\"a\" \"b\n\"c\""_s, u"xx"_s), u"<<a <<b\n<<c"_s);
}

TYPED_TEST(ConvertQuotationsByTable, KeepsTheStraightMarkOnTheSideThatIsMissing)
{
    this->m_folder.write(QVariantMap{{u"a"_s, entry({{u"begin"_s, u"<"_s}})},
                                     {u"b"_s, entry({{u"end"_s, u">"_s}})},
                                     {u"c"_s, entry(QVariantMap())}});
    EXPECT_EQ(this->quoted(u"\"a\" \"b\""_s, u"a"_s), u"<a\" <b\""_s);
    EXPECT_EQ(this->quoted(u"\"a\" \"b\""_s, u"b"_s), u"\"a> \"b>"_s);
    EXPECT_EQ(this->quoted(u"\"a\" \"b\""_s, u"c"_s), u"\"a\" \"b\""_s);
}

TYPED_TEST(ConvertQuotationsByTable, LeavesTheTextAloneWithoutATable)
{
    EXPECT_EQ(this->quoted(u"\"a\""_s, u"de"_s), u"\"a\""_s);
}

TYPED_TEST(ConvertQuotationsByTable, LeavesTheTextAloneForATableThatCannotBeRead)
{
    this->m_folder.writeData("no property list");
    EXPECT_EQ(this->quoted(u"\"a\""_s, u"de"_s), u"\"a\""_s);
}

TYPED_TEST(ConvertQuotationsByTable, RaisesTheRangeErrorForAnEmptyArrayAndChangesNothing)
{
    this->m_folder.write(QVariantMap{{u"de"_s, QVariantList()}});
    TypeParam text(u"\"a\""_s);
    EXPECT_TRUE(
        support::throwsIndexException([&text] { convertQuotationsToLanguage(text, u"de"_s); }, "quotationMarks", 0, 0));
    EXPECT_EQ(plain(text), u"\"a\""_s);
}

TYPED_TEST(ConvertQuotationsByTable, RefusesALanguageWhoseValueIsNoArrayAndChangesNothing)
{
    this->m_folder.write(QVariantMap{{u"de"_s, u"text"_s}});
    TypeParam text(u"\"a\""_s);
    EXPECT_THROW(convertQuotationsToLanguage(text, u"de"_s), UnrecognisedOperationException);
    EXPECT_EQ(plain(text), u"\"a\""_s);
}

TEST(ConvertQuotationsOfAttributedTextToLanguage, GivesAMarkTheAttributesOfTheStraightMark)
{
    AttributedString text = styled(u"a\"bc\""_s, u"1b2.i");
    convertQuotationsToLanguage(text, u"fr_FR"_s);
    EXPECT_EQ(text.string(), u"a\u00AB\u202Fbc\u202F\u00BB"_s);
    EXPECT_EQ(stylesOf(text), u"1bb2.ii"_s);
}

} // namespace
