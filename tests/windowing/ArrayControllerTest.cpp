#include <OrvaneExportKit/windowing/ArrayController.h>
#include <tests/support/Printers.h>

#include <gtest/gtest.h>

#include <QtTest/QAbstractItemModelTester>
#include <QtTest/QSignalSpy>

namespace {

using namespace Qt::Literals::StringLiterals;
using windowing::ArrayController;

QVariantMap style(const QString &name, const QString &tag)
{
    return {{u"name"_s, name}, {u"tag"_s, tag}, {u"hidden"_s, true}};
}

TEST(ArrayController, ShowsTheValuesOfItsKeysInTheOrderInWhichTheyWereAdded)
{
    ArrayController styles({u"tag"_s, u"name"_s});
    styles.addObject(style(u"Quote"_s, u">"_s));
    styles.addObject(style(u"Aside"_s, u"|"_s));
    styles.addObject(style(u"Quote"_s, u">"_s));

    ASSERT_EQ(styles.rowCount(), 3);
    ASSERT_EQ(styles.columnCount(), 2);
    EXPECT_EQ(styles.data(styles.index(0, 0)), u">"_s);
    EXPECT_EQ(styles.data(styles.index(0, 1)), u"Quote"_s);
    EXPECT_EQ(styles.data(styles.index(1, 1)), u"Aside"_s);
    EXPECT_EQ(styles.data(styles.index(2, 1)), u"Quote"_s);
}

TEST(ArrayController, KeepsEntriesThatNoColumnShows)
{
    ArrayController styles({u"name"_s});
    styles.addObject(style(u"Quote"_s, u">"_s));
    EXPECT_EQ(styles.content(), QList<QVariantMap>{style(u"Quote"_s, u">"_s)});
}

TEST(ArrayController, HasNothingToShowForAMissingKey)
{
    ArrayController styles({u"name"_s});
    styles.addObject({});
    EXPECT_EQ(styles.data(styles.index(0, 0)), QVariant());
}

TEST(ArrayController, ShowsMarkupInToolTipsAsItIsWritten)
{
    ArrayController styles({u"name"_s});
    styles.addObject({{u"name"_s, u"<b>bold</b>"_s}});
    const QString toolTip = styles.data(styles.index(0, 0), Qt::ToolTipRole).toString();
    EXPECT_TRUE(toolTip.contains(u"&lt;b&gt;bold&lt;/b&gt;"_s)) << testing::PrintToString(toolTip);
}

TEST(ArrayController, ReplacesItsContent)
{
    ArrayController styles({u"name"_s});
    styles.addObject(style(u"Quote"_s, u">"_s));
    const QSignalSpy resets(&styles, &ArrayController::modelReset);
    styles.setContent({style(u"Aside"_s, u"|"_s), style(u"Verse"_s, u"/"_s)});
    EXPECT_EQ(resets.size(), 1);
    EXPECT_EQ(styles.rowCount(), 2);
    EXPECT_EQ(styles.data(styles.index(1, 0)), u"Verse"_s);
}

TEST(ArrayController, ChangesSingleDictionaries)
{
    ArrayController styles({u"name"_s});
    const QAbstractItemModelTester tester(&styles, QAbstractItemModelTester::FailureReportingMode::Fatal);
    const QVariantMap quote = style(u"Quote"_s, u">"_s);
    const QVariantMap aside = style(u"Aside"_s, u"|"_s);
    const QVariantMap verse = style(u"Verse"_s, u"/"_s);
    styles.insertObject(0, verse);
    styles.insertObject(0, quote);
    styles.insertObject(1, aside);
    EXPECT_EQ(styles.content(), (QList<QVariantMap>{quote, aside, verse}));
    styles.moveObject(0, 2);
    EXPECT_EQ(styles.content(), (QList<QVariantMap>{aside, verse, quote}));
    styles.moveObject(2, 1);
    EXPECT_EQ(styles.content(), (QList<QVariantMap>{aside, quote, verse}));
    styles.moveObject(1, 1);
    EXPECT_EQ(styles.content(), (QList<QVariantMap>{aside, quote, verse}));
    styles.removeObject(0);
    styles.setObject(1, aside);
    EXPECT_EQ(styles.content(), (QList<QVariantMap>{quote, aside}));
}

TEST(ArrayController, ShowsOtherKeysWhenTheyAreSet)
{
    ArrayController styles({u"name"_s});
    styles.addObject(style(u"Quote"_s, u">"_s));
    styles.setKeys({u"tag"_s, u"name"_s});
    EXPECT_EQ(styles.columnCount(), 2);
    EXPECT_EQ(styles.data(styles.index(0, 0)), u">"_s);
}

TEST(ArrayController, IsAProperModel)
{
    ArrayController styles({u"name"_s, u"tag"_s});
    const QAbstractItemModelTester tester(&styles, QAbstractItemModelTester::FailureReportingMode::Fatal);
    const QSignalSpy insertions(&styles, &ArrayController::rowsInserted);
    styles.addObject(style(u"Quote"_s, u">"_s));
    styles.addObject(style(u"Aside"_s, u"|"_s));
    EXPECT_EQ(insertions.size(), 2);
    EXPECT_EQ(styles.data({}), QVariant());
}

} // namespace
