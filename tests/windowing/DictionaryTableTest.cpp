#include <OrvaneExportKit/windowing/DictionaryTable.h>

#include <OrvaneExportKit/windowing/Binding.h>
#include <tests/support/Input.h>
#include <tests/support/PanelController.h>
#include <tests/support/Printers.h>

#include <gtest/gtest.h>

#include <QtGui/QAccessible>
#include <QtTest/QAbstractItemModelTester>
#include <QtTest/QSignalSpy>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QTableView>
#include <QtWidgets/QVBoxLayout>

using namespace Qt::Literals::StringLiterals;
using windowing::DictionaryTable;

namespace {

QVariantMap style(const QString &name, const QString &tag, bool relaxed)
{
    return {{u"name"_s, name}, {u"tag"_s, tag}, {u"relaxed"_s, relaxed}, {u"hidden"_s, 7}};
}

const QVariantMap title = style(u"Title"_s, u"#"_s, true);
const QVariantMap quote = style(u"Quote"_s, u">"_s, false);
const QVariantMap verse = style(u"Verse"_s, u"/"_s, false);

QVariantMap with(QVariantMap style, const QString &key, const QVariant &value)
{
    style.insert(key, value);
    return style;
}

/// A table of three styles between two fields, used by keys and mouse.
class DictionaryTableInWindow : public testing::Test
{
protected:
    void SetUp() override
    {
        auto *layout = new QVBoxLayout(&window);
        layout->addWidget(&before);
        layout->addWidget(&table);
        layout->addWidget(&after);
        table.setAccessibleName(u"Styles"_s);
        table.setKeys({u"name"_s, u"tag"_s, u"relaxed"_s});
        table.setBooleanKeys({u"relaxed"_s});
        table.setColumnTitles(u"Name\nTag\nRelaxed"_s);
        table.setContent({title, quote, verse});
        window.show();
        ASSERT_TRUE(support::isActive(&window));
    }

    QTableView &view() { return *table.findChild<QTableView *>(); }
    QString shown(int row, int column) { return view().model()->index(row, column).data().toString(); }

    void clickCell(int row, int column)
    {
        const QPoint center = view().visualRect(view().model()->index(row, column)).center();
        QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, view().viewport()->mapTo(&window, center));
    }

    QPushButton &button(const QString &text)
    {
        for (QPushButton *button : table.findChildren<QPushButton *>()) {
            if (button->text().remove(u'&') == text) {
                return *button;
            }
        }
        ADD_FAILURE() << "there is no button " << text.toStdString();
        return *table.findChild<QPushButton *>();
    }

    void type(const QString &text)
    {
        for (const QChar character : text) {
            QTest::keyClick(window.windowHandle(), character.toLatin1());
        }
    }

    QWidget window;
    QLineEdit before{&window};
    DictionaryTable table{&window};
    QLineEdit after{&window};
};

TEST_F(DictionaryTableInWindow, ShowsAColumnForEachKeyUnderItsTitle)
{
    const QAbstractItemModel &model = *view().model();
    ASSERT_EQ(model.columnCount(), 3);
    EXPECT_EQ(model.headerData(1, Qt::Horizontal), u"Tag"_s);
    EXPECT_EQ(shown(1, 0), u"Quote"_s);
    EXPECT_EQ(model.index(0, 2).data(Qt::CheckStateRole).value<Qt::CheckState>(), Qt::Checked);
    EXPECT_EQ(model.index(1, 2).data(Qt::CheckStateRole).value<Qt::CheckState>(), Qt::Unchecked);
    EXPECT_EQ(shown(0, 2), u""_s);
}

TEST_F(DictionaryTableInWindow, EditsATextByKeysAndKeepsEntriesThatNoColumnShows)
{
    const QSignalSpy changes(&table, &DictionaryTable::contentChanged);
    clickCell(1, 1);
    support::press(window, Qt::Key_F2);
    type(u"||"_s);
    support::press(window, Qt::Key_Return);
    EXPECT_EQ(table.content(), (QVariantList{title, with(quote, u"tag"_s, u"||"_s), verse}));
    EXPECT_EQ(changes.size(), 1);
}

TEST_F(DictionaryTableInWindow, ChangesACheckBoxByTheSpaceBar)
{
    clickCell(1, 0);
    support::press(window, Qt::Key_Right);
    support::press(window, Qt::Key_Right);
    support::press(window, Qt::Key_Space);
    EXPECT_EQ(table.content()[1], with(quote, u"relaxed"_s, true));
}

TEST_F(DictionaryTableInWindow, AddsARowBelowTheCurrentOneAndEditsIt)
{
    clickCell(0, 1);
    support::click(button(u"Add"_s));
    type(u"Aside"_s);
    support::press(window, Qt::Key_Return);
    const QVariantMap aside{{u"name"_s, u"Aside"_s}, {u"tag"_s, u""_s}, {u"relaxed"_s, false}};
    EXPECT_EQ(table.content(), (QVariantList{title, aside, quote, verse}));
}

TEST_F(DictionaryTableInWindow, AddsARowAtTheEndWhereNoneIsCurrent)
{
    table.setContent({});
    support::click(button(u"Add"_s));
    type(u"Aside"_s);
    support::press(window, Qt::Key_Return);
    ASSERT_EQ(table.content().size(), 1);
    EXPECT_EQ(shown(0, 0), u"Aside"_s);
}

TEST_F(DictionaryTableInWindow, RemovesTheCurrentRowByButtonAndByKey)
{
    clickCell(1, 0);
    support::click(button(u"Remove"_s));
    EXPECT_EQ(table.content(), (QVariantList{title, verse}));
    clickCell(0, 0);
    support::press(window, Qt::Key_Delete);
    EXPECT_EQ(table.content(), QVariantList{verse});
}

TEST_F(DictionaryTableInWindow, LeavesTheDeleteKeyToAnEditor)
{
    clickCell(1, 0);
    support::press(window, Qt::Key_F2);
    support::press(window, Qt::Key_Delete);
    support::press(window, Qt::Key_Return);
    EXPECT_EQ(table.content(), (QVariantList{title, with(quote, u"name"_s, u""_s), verse}));
}

TEST_F(DictionaryTableInWindow, MovesTheCurrentRow)
{
    clickCell(2, 0);
    support::click(button(u"Move Up"_s));
    EXPECT_EQ(table.content(), (QVariantList{title, verse, quote}));
    support::click(button(u"Move Up"_s));
    EXPECT_EQ(table.content(), (QVariantList{verse, title, quote}));
    support::click(button(u"Move Down"_s));
    EXPECT_EQ(table.content(), (QVariantList{title, verse, quote}));
    EXPECT_EQ(view().currentIndex().row(), 1);
}

TEST_F(DictionaryTableInWindow, OffersOnlyWhatCanBeDone)
{
    const auto enabled = [this] {
        return QList<bool>{button(u"Add"_s).isEnabled(), button(u"Remove"_s).isEnabled(),
                           button(u"Move Up"_s).isEnabled(), button(u"Move Down"_s).isEnabled()};
    };
    clickCell(0, 0);
    EXPECT_EQ(enabled(), (QList<bool>{true, true, false, true}));
    clickCell(2, 0);
    EXPECT_EQ(enabled(), (QList<bool>{true, true, true, false}));
    table.setContent({});
    EXPECT_EQ(enabled(), (QList<bool>{true, false, false, false}));
}

TEST_F(DictionaryTableInWindow, IsLeftByTab)
{
    clickCell(0, 0);
    support::press(window, Qt::Key_Tab);
    EXPECT_FALSE(view().hasFocus());
    before.setFocus();
    support::press(window, Qt::Key_Tab);
    EXPECT_TRUE(view().hasFocus());
}

TEST_F(DictionaryTableInWindow, HasItsAccessibleNameOnTheTable)
{
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&view())->text(QAccessible::Name), u"Styles"_s);
}

TEST_F(DictionaryTableInWindow, KeepsTheCurrentRowWhenTheContentIsReplaced)
{
    clickCell(1, 1);
    table.setContent({title, verse, quote});
    EXPECT_EQ(view().currentIndex(), view().model()->index(1, 1));
    table.setContent({title});
    EXPECT_EQ(view().currentIndex().row(), 0);
}

TEST_F(DictionaryTableInWindow, TellsOnlyOfContentThatIsAnother)
{
    const QSignalSpy changes(&table, &DictionaryTable::contentChanged);
    table.setContent({title, quote, verse});
    EXPECT_EQ(changes.size(), 0);
    table.setContent({title});
    EXPECT_EQ(changes.size(), 1);
}

TEST_F(DictionaryTableInWindow, IsBoundInBothDirections)
{
    support::PanelController controller;
    controller.exchangeSettings();
    controller.settings()->setObject(QVariantList{quote}, u"styles"_s);
    new windowing::Binding(&table, u"content"_s, &controller, u"settings.styles"_s);
    EXPECT_EQ(table.content(), QVariantList{quote});
    clickCell(0, 0);
    support::press(window, Qt::Key_Delete);
    EXPECT_EQ(controller.settings()->objectForKey(u"styles"_s), QVariantList());
    controller.settings()->setValue(QVariantList{verse, title}, u"styles"_s);
    EXPECT_EQ(table.content(), (QVariantList{verse, title}));
}

TEST_F(DictionaryTableInWindow, HasAProperModel)
{
    const QAbstractItemModelTester tester(view().model(), QAbstractItemModelTester::FailureReportingMode::Fatal);
    clickCell(1, 0);
    support::click(button(u"Move Up"_s));
    support::click(button(u"Move Down"_s));
    support::click(button(u"Move Down"_s));
    support::click(button(u"Remove"_s));
    support::click(button(u"Add"_s));
    EXPECT_EQ(table.content().size(), 3);
}

} // namespace
