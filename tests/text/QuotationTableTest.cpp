#include <OrvaneExportKit/text/QuotationTable.h>

#include <OrvaneExportKit/platform/Exceptions.h>
#include <tests/support/Printers.h>
#include <tests/support/QuotesFolder.h>
#include <tests/support/RangeErrors.h>

#include <gtest/gtest.h>

#include <QtCore/QDir>

using namespace Qt::Literals::StringLiterals;
using platform::Bundle;
using platform::PropertyList;
using platform::quotationLanguages;
using platform::QuotationMarks;
using platform::quotationMarks;
using platform::quotationSamples;
using platform::UnrecognisedOperationException;
using support::entry;

namespace {

/// Values of a language, and elements of its array, that are not of the kind they should be.
const QVariantList scalars{u"text"_s, 1, true, QByteArray("data")};

class QuotationTable : public testing::Test
{
protected:
    /// "begin|end" of a language, with "-" for a missing mark.
    QString marks(const QString &language) const
    {
        const QuotationMarks found = quotationMarks(m_folder.bundle(), language);
        return found.begin.value_or(u"-"_s) + u'|' + found.end.value_or(u"-"_s);
    }

    QStringList samples() const { return quotationSamples(m_folder.bundle()); }

    const support::QuotesFolder m_folder;
};

TEST_F(QuotationTable, HoldsTheMarksOfALanguage)
{
    m_folder.write(QVariantMap{{u"de"_s, entry(u"\u201E"_s, u"\u201C"_s)}, {u"fr"_s, entry(u"\u00AB"_s, u"\u00BB"_s)}});
    EXPECT_EQ(marks(u"de"_s), u"\u201E|\u201C"_s);
    EXPECT_EQ(marks(u"fr"_s), u"\u00AB|\u00BB"_s);
}

TEST_F(QuotationTable, MayBeABinaryPropertyList)
{
    m_folder.write(QVariantMap{{u"de"_s, entry(u"<"_s, u">"_s)}}, PropertyList::Format::Binary);
    EXPECT_EQ(marks(u"de"_s), u"<|>"_s);
}

TEST_F(QuotationTable, HoldsMarksOfAnyLength)
{
    m_folder.write(QVariantMap{{u"xx"_s, entry(u""_s, u"\u202F\u00BB\U0001F600"_s)}});
    EXPECT_EQ(marks(u"xx"_s), u"|\u202F\u00BB\U0001F600"_s);
}

TEST_F(QuotationTable, CountsTheFirstElementAlone)
{
    m_folder.write(QVariantMap{{u"de"_s, entry(u"<"_s, u">"_s) + entry(u"a"_s, u"b"_s) + scalars}});
    EXPECT_EQ(marks(u"de"_s), u"<|>"_s);
}

TEST_F(QuotationTable, MayLackALanguage)
{
    m_folder.write(QVariantMap{{u"de"_s, entry(u"<"_s, u">"_s)}});
    EXPECT_EQ(marks(u"DE"_s), u"-|-"_s);
    EXPECT_EQ(marks(u"de_AT"_s), u"-|-"_s);
    EXPECT_EQ(marks({}), u"-|-"_s);
}

TEST_F(QuotationTable, MayLackEitherMark)
{
    m_folder.write(QVariantMap{{u"a"_s, entry({{u"begin"_s, u"<"_s}})},
                               {u"b"_s, entry({{u"end"_s, u">"_s}})},
                               {u"c"_s, entry(QVariantMap())}});
    EXPECT_EQ(marks(u"a"_s), u"<|-"_s);
    EXPECT_EQ(marks(u"b"_s), u"-|>"_s);
    EXPECT_EQ(marks(u"c"_s), u"-|-"_s);
}

TEST_F(QuotationTable, ReadsLikeAnEmptyOneWhenItIsMissing)
{
    EXPECT_EQ(marks(u"de"_s), u"-|-"_s);
    EXPECT_EQ(quotationMarks(Bundle(), u"de"_s).begin, std::nullopt);
}

TEST_F(QuotationTable, ReadsLikeAnEmptyOneWhenItIsNoPropertyList)
{
    for (const QByteArray &data : {QByteArray(), QByteArray("no property list"), QByteArray("<plist><dict>")}) {
        m_folder.writeData(data);
        EXPECT_EQ(marks(u"de"_s), u"-|-"_s) << data.toStdString();
    }
}

TEST_F(QuotationTable, ReadsLikeAnEmptyOneWhenItsRootIsNoDictionary)
{
    for (const QVariant &root : QVariantList{entry(u"<"_s, u">"_s)} + scalars) {
        m_folder.write(root);
        EXPECT_EQ(marks(u"de"_s), u"-|-"_s) << root.typeName();
    }
}

TEST_F(QuotationTable, ReadsLikeAnEmptyOneWhenAFolderHasItsName)
{
    ASSERT_TRUE(QDir(m_folder.path()).mkdir(u"Quotes.plist"_s));
    EXPECT_EQ(marks(u"de"_s), u"-|-"_s);
}

TEST_F(QuotationTable, IsReadAnewByEveryCall)
{
    m_folder.write(QVariantMap{{u"de"_s, entry(u"<"_s, u">"_s)}});
    EXPECT_EQ(marks(u"de"_s), u"<|>"_s);
    m_folder.write(QVariantMap{{u"de"_s, entry(u"["_s, u"]"_s)}});
    EXPECT_EQ(marks(u"de"_s), u"[|]"_s);
}

TEST_F(QuotationTable, RaisesTheRangeErrorForAnEmptyArray)
{
    m_folder.write(QVariantMap{{u"de"_s, QVariantList()}});
    EXPECT_TRUE(support::throwsIndexException([this] { marks(u"de"_s); }, "quotationMarks", 0, 0));
    EXPECT_TRUE(support::throwsIndexException([this] { samples(); }, "quotationMarks", 0, 0));
}

TEST_F(QuotationTable, RefusesALanguageWhoseValueIsNoArray)
{
    for (const QVariant &value : QVariantList{QVariantMap{{u"begin"_s, u"<"_s}}} + scalars) {
        m_folder.write(QVariantMap{{u"de"_s, value}});
        EXPECT_THROW(marks(u"de"_s), UnrecognisedOperationException) << value.typeName();
        EXPECT_THROW(samples(), UnrecognisedOperationException) << value.typeName();
    }
}

TEST_F(QuotationTable, RefusesAFirstElementThatIsNoDictionary)
{
    for (const QVariant &element : QVariantList{QVariantList()} + scalars) {
        m_folder.write(QVariantMap{{u"de"_s, QVariantList{element}}});
        EXPECT_THROW(marks(u"de"_s), UnrecognisedOperationException) << element.typeName();
        EXPECT_THROW(samples(), UnrecognisedOperationException) << element.typeName();
    }
}

TEST_F(QuotationTable, RefusesAMarkThatIsNoString)
{
    for (const QString &name : {u"begin"_s, u"end"_s}) {
        m_folder.write(QVariantMap{{u"de"_s, entry({{name, 8222}})}});
        EXPECT_THROW(marks(u"de"_s), UnrecognisedOperationException) << name.toStdString();
    }
}

TEST_F(QuotationTable, ShowsAMarkThatIsNoStringInItsSamples)
{
    m_folder.write(QVariantMap{{u"af"_s, entry({{u"begin"_s, 8222}, {u"end"_s, true}})},
                               {u"de"_s, entry({{u"begin"_s, QVariantList{u"<"_s, 1}}})}});
    EXPECT_EQ(samples().first(3), (QStringList{u"8222abc1"_s, u"[\"<\",1]abc(null)"_s, u"(null)abc(null)"_s}));
}

TEST_F(QuotationTable, ListsTheLanguagesThatItHolds)
{
    EXPECT_EQ(quotationLanguages(m_folder.bundle()), QStringList());
    m_folder.write(QVariantMap{{u"xx"_s, entry(u"<"_s, u">"_s)}, {u"de_CH"_s, u"malformed"_s}, {u"DE"_s, 1}});
    EXPECT_EQ(quotationLanguages(m_folder.bundle()), (QStringList{u"DE"_s, u"de_CH"_s, u"xx"_s}));
}

TEST_F(QuotationTable, SaysWhatIsOfTheWrongKind)
{
    m_folder.write(QVariantMap{{u"de"_s, u"text"_s}});
    try {
        marks(u"de"_s);
        FAIL() << "threw nothing";
    } catch (const UnrecognisedOperationException &exception) {
        EXPECT_STREQ(exception.what(), "quotationMarks: \"de\" is of the kind QString, not QVariantList");
    }
}

TEST_F(QuotationTable, IsUsableForALanguageBesideAMalformedOne)
{
    m_folder.write(QVariantMap{{u"de"_s, QVariantList()}, {u"fr"_s, u"text"_s}, {u"it"_s, entry(u"<"_s, u">"_s)}});
    EXPECT_EQ(marks(u"it"_s), u"<|>"_s);
}

TEST_F(QuotationTable, GivesNineSamplesInTheirOrder)
{
    QVariantMap table{{u"es"_s, entry(u"not"_s, u"shown"_s)}};
    for (const QString &language : platform::sampleLanguages()) {
        table[language] = entry(language + u'<', u">"_s);
    }
    m_folder.write(table);
    EXPECT_EQ(samples(), (QStringList{u"af<abc>"_s, u"de<abc>"_s, u"sv<abc>"_s, u"en_US<abc>"_s, u"en_UK<abc>"_s,
                                      u"de_CH<abc>"_s, u"it<abc>"_s, u"fr<abc>"_s, u"ja<abc>"_s}));
}

TEST_F(QuotationTable, GivesSamplesThatNameWhatIsMissing)
{
    m_folder.write(QVariantMap{{u"af"_s, entry({{u"begin"_s, u"<"_s}})},
                               {u"de"_s, entry({{u"end"_s, u">"_s}})},
                               {u"sv"_s, entry(QVariantMap())},
                               {u"ja"_s, entry(u""_s, u""_s)}});
    const QString missing = u"(null)abc(null)"_s;
    EXPECT_EQ(samples(), (QStringList{u"<abc(null)"_s, u"(null)abc>"_s, missing, missing, missing, missing, missing,
                                      missing, u"abc"_s}));
}

TEST_F(QuotationTable, GivesNineSamplesAlsoWhenItIsMissing)
{
    EXPECT_EQ(samples(), QStringList(9, u"(null)abc(null)"_s));
    EXPECT_EQ(quotationSamples(Bundle()), QStringList(9, u"(null)abc(null)"_s));
    m_folder.writeData("no property list");
    EXPECT_EQ(samples(), QStringList(9, u"(null)abc(null)"_s));
}

QVariantMap kitTable()
{
    QFile file(Bundle::kitBundle().pathForResource(u"Quotes"_s, u"plist"_s));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    const PropertyList::ReadResult read = PropertyList::read(file.readAll());
    EXPECT_TRUE(read.value) << read.error.toStdString();
    return read.value.value_or(QVariant()).toMap();
}

QString kitSample(const QString &language)
{
    const QuotationMarks marks = quotationMarks(Bundle::kitBundle(), language);
    return marks.begin.value_or(u"-"_s) + language + marks.end.value_or(u"-"_s);
}

TEST(KitQuotationTable, HoldsTwoMarksForEveryLanguage)
{
    const QVariantMap table = kitTable();
    EXPECT_GE(table.size(), 40);
    EXPECT_EQ(quotationLanguages(Bundle::kitBundle()), table.keys());
    for (const QString &language : table.keys()) {
        const QuotationMarks marks = quotationMarks(Bundle::kitBundle(), language);
        for (const QString &mark : {marks.begin.value_or(QString()), marks.end.value_or(QString())}) {
            EXPECT_FALSE(mark.trimmed().isEmpty()) << language.toStdString();
            EXPECT_FALSE(mark.contains(u'"')) << language.toStdString();
        }
    }
}

TEST(KitQuotationTable, GivesNineSamples)
{
    EXPECT_EQ(quotationSamples(Bundle::kitBundle()),
              (QStringList{u"\u201Cabc\u201D"_s, u"\u201Eabc\u201C"_s, u"\u201Dabc\u201D"_s, u"\u201Cabc\u201D"_s,
                           u"\u2018abc\u2019"_s, u"\u00BBabc\u00AB"_s, u"\u00ABabc\u00BB"_s, u"\u00ABabc\u00BB"_s,
                           u"\u300Cabc\u300D"_s}));
}

TEST(KitQuotationTable, HoldsTheMarksOfOtherLanguages)
{
    for (const QString &sample :
         {u"\u00ABes\u00BB"_s, u"\u201Cpt_BR\u201D"_s, u"\u00ABpt_PT\u00BB"_s, u"\u2018nl\u2019"_s, u"\u00ABnb\u00BB"_s,
          u"\u201Dfi\u201D"_s, u"\u201Epl\u201D"_s, u"\u201Ecs\u201C"_s, u"\u201Ehu\u201D"_s, u"\u00ABru\u00BB"_s,
          u"\u00ABel\u00BB"_s, u"\u201Dhe\u201D"_s, u"\u201Dar\u201C"_s, u"\u201Czh_CN\u201D"_s, u"\u300Czh_TW\u300D"_s,
          u"\u201Cko\u201D"_s, u"\u201Eis\u201C"_s, u"\u201Ccy\u201D"_s}) {
        EXPECT_EQ(kitSample(QString(sample).remove(0, 1).chopped(1)), sample);
    }
}

TEST(KitQuotationTable, SetsNarrowNoBreakSpacesInsideTheMarksForFrance)
{
    EXPECT_EQ(kitSample(u"fr_FR"_s), u"\u00AB\u202Ffr_FR\u202F\u00BB"_s);
    EXPECT_EQ(kitSample(u"fr"_s), u"\u00ABfr\u00BB"_s);
}

} // namespace
