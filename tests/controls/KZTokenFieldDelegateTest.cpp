#include <OrvaneExportKit/controls/KZTokenFieldDelegate.h>
#include <tests/support/Printers.h>
#include <tests/support/RangeErrors.h>

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace {

QString objectFor(const KZTokenFieldDelegate &delegate, const QString &editingString)
{
    return delegate.representedObjectForEditingString(nullptr, editingString);
}

QString displayFor(const KZTokenFieldDelegate &delegate, const QString &object)
{
    return delegate.displayStringForRepresentedObject(nullptr, object);
}

QStringList completions(const KZTokenFieldDelegate &delegate, const QString &substring)
{
    qint32 selected = -1;
    return delegate.completionsForSubstring(nullptr, substring, 0, &selected);
}

class TokenFieldDelegate : public testing::Test
{
protected:
    std::unique_ptr<KZTokenFieldDelegate> m_delegate = KZTokenFieldDelegate::initWithRepresetedObjectsAndDisplayStrings(
        {{u"<2>"_s, u"Name"_s}, {u"<1>"_s, u"Number"_s}});
};

TEST_F(TokenFieldDelegate, SortsItsTableByDisplayStrings)
{
    EXPECT_EQ(m_delegate->displayStrings(), (QStringList{u"Name"_s, u"Number"_s}));
    EXPECT_EQ(m_delegate->representedObjects(), (QStringList{u"<2>"_s, u"<1>"_s}));
}

TEST_F(TokenFieldDelegate, SortsCapitalsBeforeSmallLettersAndAccentedOnesBesideThePlain)
{
    const KZTokenFieldDelegate delegate({{u"1"_s, u"b"_s}, {u"2"_s, u"\u00C4"_s}, {u"3"_s, u"B"_s}, {u"4"_s, u"A"_s}});
    EXPECT_EQ(delegate.displayStrings(), (QStringList{u"A"_s, u"\u00C4"_s, u"B"_s, u"b"_s}));
}

TEST_F(TokenFieldDelegate, CompletesWhateverTheCase)
{
    EXPECT_EQ(completions(*m_delegate, u"nu"_s), QStringList{u"Number"_s});
    EXPECT_EQ(completions(*m_delegate, u"NU"_s), QStringList{u"Number"_s});
}

TEST_F(TokenFieldDelegate, CompletesFromTheStartOnly)
{
    EXPECT_EQ(completions(*m_delegate, u"um"_s), QStringList());
    EXPECT_EQ(completions(*m_delegate, u"Numbers"_s), QStringList());
}

TEST_F(TokenFieldDelegate, OffersAllForNothingInTheOrderOfTheTable)
{
    EXPECT_EQ(completions(*m_delegate, QString()), (QStringList{u"Name"_s, u"Number"_s}));
}

TEST_F(TokenFieldDelegate, LeavesTheSelectedItemAlone)
{
    qint32 selected = 5;
    m_delegate->completionsForSubstring(nullptr, u"n"_s, 3, &selected);
    EXPECT_EQ(selected, 5);
    EXPECT_EQ(m_delegate->completionsForSubstring(nullptr, u"nu"_s, 3, nullptr), QStringList{u"Number"_s});
}

TEST_F(TokenFieldDelegate, TranslatesBothWays)
{
    EXPECT_EQ(objectFor(*m_delegate, u"Number"_s), u"<1>"_s);
    EXPECT_EQ(displayFor(*m_delegate, u"<2>"_s), u"Name"_s);
}

TEST_F(TokenFieldDelegate, LetsUnknownTextStandForItself)
{
    EXPECT_EQ(objectFor(*m_delegate, u"number"_s), u"number"_s);
    EXPECT_EQ(displayFor(*m_delegate, u"number"_s), u"number"_s);
}

TEST_F(TokenFieldDelegate, AnswersTheFirstOfTwoEqualDisplayStrings)
{
    const KZTokenFieldDelegate delegate({{u"<b>"_s, u"Title"_s}, {u"<a>"_s, u"Title"_s}});
    EXPECT_EQ(delegate.representedObjects(), (QStringList{u"<a>"_s, u"<b>"_s}));
    EXPECT_EQ(objectFor(delegate, u"Title"_s), u"<a>"_s);
    EXPECT_EQ(displayFor(delegate, u"<b>"_s), u"Title"_s);
}

TEST_F(TokenFieldDelegate, WithoutATableMapsAllToItselfAndCompletesNothing)
{
    const auto delegate = KZTokenFieldDelegate::init();
    EXPECT_EQ(objectFor(*delegate, u"Number"_s), u"Number"_s);
    EXPECT_EQ(displayFor(*delegate, u"<1>"_s), u"<1>"_s);
    EXPECT_EQ(completions(*delegate, QString()), QStringList());
    EXPECT_EQ(delegate->displayStrings(), QStringList());
    EXPECT_EQ(delegate->representedObjects(), QStringList());
}

TEST_F(TokenFieldDelegate, RaisesARangeErrorForAMatchThatTheOtherListLacks)
{
    m_delegate->setRepresentedObjects({u"<2>"_s});
    EXPECT_EQ(objectFor(*m_delegate, u"Name"_s), u"<2>"_s);
    EXPECT_TRUE(support::throwsIndexException([this] { objectFor(*m_delegate, u"Number"_s); },
                                              "representedObjectForEditingString", 1, 1));
    m_delegate->setDisplayStrings({});
    EXPECT_TRUE(support::throwsIndexException([this] { displayFor(*m_delegate, u"<2>"_s); },
                                              "displayStringForRepresentedObject", 0, 0));
}

} // namespace
