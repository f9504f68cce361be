#include <OrvaneExportKit/run/KZOverwriteCheck.h>

#include <tests/support/DocumentWindow.h>
#include <tests/support/Files.h>
#include <tests/support/Input.h>
#include <tests/support/Printers.h>
#include <tests/support/RecordingModalLoop.h>

#include <gtest/gtest.h>

#include <QtCore/QTemporaryDir>
#include <QtGui/QClipboard>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QTableView>

namespace {

using namespace Qt::Literals::StringLiterals;
using KZArrayExportAdditions::overwriteExistingFilesCheck;
using support::button;
using support::click;
using support::press;
using support::whenModal;

QString message(const QWidget &sheet)
{
    return sheet.findChild<QLabel *>(u"infoField"_s)->text();
}

QTableView &table(const QWidget &sheet)
{
    return *sheet.findChild<QTableView *>(u"filesTable"_s);
}

QStringList listedNames(const QWidget &sheet)
{
    const QAbstractItemModel *model = table(sheet).model();
    QStringList names;
    for (int row = 0; row < model->rowCount(); ++row) {
        names.append(model->index(row, 0).data().toString());
    }
    return names;
}

/// A document window, a temporary folder "out" with the file b.txt in it, and a record of what is shown.
class OverwriteCheck : public testing::Test
{
protected:
    OverwriteCheck()
    {
        EXPECT_TRUE(QDir().mkdir(out()));
        support::writeFile(path(u"b.txt"_s), "old");
    }

    QString out() const { return m_folder.filePath(u"out"_s); }
    QString path(const QString &name) const { return out() + u'/' + name; }

    support::DocumentWindow m_document;
    support::RecordingModalLoop m_modalLoop;

private:
    QTemporaryDir m_folder;
};

TEST_F(OverwriteCheck, AllowsAnEmptyListWithoutShowingAnything)
{
    EXPECT_TRUE(overwriteExistingFilesCheck({}));
    EXPECT_EQ(m_modalLoop.takeCalls(), QStringList());
}

TEST_F(OverwriteCheck, AllowsPathsThatDoNotExistWithoutShowingAnything)
{
    EXPECT_TRUE(overwriteExistingFilesCheck({path(u"a.txt"_s), path(u"c.txt"_s)}));
    EXPECT_EQ(m_modalLoop.takeCalls(), QStringList());
}

TEST_F(OverwriteCheck, ListsOnlyWhatExistsAndNamesTheFolder)
{
    whenModal([](const QWidget &sheet) {
        EXPECT_EQ(listedNames(sheet), QStringList{u"b.txt"_s});
        EXPECT_TRUE(message(sheet).contains(u"“out”"_s)) << testing::PrintToString(message(sheet));
        EXPECT_FALSE(message(sheet).contains(u'%'));
        click(button(sheet, "cancelButton"));
    });
    EXPECT_FALSE(overwriteExistingFilesCheck({path(u"a.txt"_s), path(u"b.txt"_s)}));
}

TEST_F(OverwriteCheck, ListsEqualNamesTwiceAndNamesTheFolderOfTheFirstPathEvenIfItDoesNotExist)
{
    EXPECT_TRUE(QDir().mkdir(path(u"inner"_s)));
    support::writeFile(path(u"inner/b.txt"_s), "old");
    whenModal([](const QWidget &sheet) {
        EXPECT_EQ(listedNames(sheet), (QStringList{u"b.txt"_s, u"b.txt"_s}));
        EXPECT_TRUE(message(sheet).contains(u"“missing”"_s)) << testing::PrintToString(message(sheet));
        click(button(sheet, "cancelButton"));
    });
    EXPECT_FALSE(overwriteExistingFilesCheck({path(u"missing/a.txt"_s), path(u"inner/b.txt"_s), path(u"b.txt"_s)}));
}

TEST_F(OverwriteCheck, TakesAnExistingFolderForAnExistingFile)
{
    EXPECT_TRUE(QDir().mkdir(path(u"folder"_s)));
    whenModal([](const QWidget &sheet) {
        EXPECT_EQ(listedNames(sheet), QStringList{u"folder"_s});
        click(button(sheet, "replaceButton"));
    });
    EXPECT_TRUE(overwriteExistingFilesCheck({path(u"folder"_s)}));
}

TEST_F(OverwriteCheck, ConfirmsWithTag1Only)
{
    for (const int tag : {2, 0, -1, 1}) {
        whenModal([tag](const QWidget &sheet) {
            button(sheet, "replaceButton").setProperty("tag", tag);
            click(button(sheet, "replaceButton"));
        });
        EXPECT_EQ(overwriteExistingFilesCheck({path(u"b.txt"_s)}), tag == 1) << tag;
    }
}

TEST_F(OverwriteCheck, GoesThroughTheModalStepsInOrder)
{
    whenModal([](const QWidget &sheet) { click(button(sheet, "replaceButton")); });
    EXPECT_TRUE(overwriteExistingFilesCheck({path(u"b.txt"_s)}));
    EXPECT_EQ(m_modalLoop.takeCalls(),
              (QStringList{u"beginSheet"_s, u"runModalForWindow"_s, u"endSheet 1"_s, u"orderOut"_s, u"stopModal 1"_s,
                           u"runModalForWindow returns 1"_s}));
    EXPECT_EQ(m_modalLoop.windowOfSheet(), &m_document);
}

TEST_F(OverwriteCheck, WidensNegativeCodesWithTheirSign)
{
    whenModal([](const QWidget &sheet) {
        button(sheet, "cancelButton").setProperty("tag", -1);
        click(button(sheet, "cancelButton"));
    });
    EXPECT_FALSE(overwriteExistingFilesCheck({path(u"b.txt"_s)}));
    EXPECT_EQ(m_modalLoop.takeCalls().last(), u"runModalForWindow returns -1"_s);
}

TEST_F(OverwriteCheck, IsCancelledByEscape)
{
    whenModal([](const QWidget &sheet) { press(sheet, Qt::Key_Escape); });
    EXPECT_FALSE(overwriteExistingFilesCheck({path(u"b.txt"_s)}));
    EXPECT_TRUE(m_modalLoop.takeCalls().contains(u"endSheet 0"_s));
}

TEST_F(OverwriteCheck, IsCancelledByClosingTheSheet)
{
    whenModal([](QWidget &sheet) { sheet.close(); });
    EXPECT_FALSE(overwriteExistingFilesCheck({path(u"b.txt"_s)}));
    EXPECT_TRUE(m_modalLoop.takeCalls().contains(u"endSheet 0"_s));
}

TEST_F(OverwriteCheck, HasTheSafeButtonAsItsDefaultAndInFocus)
{
    whenModal([](const QWidget &sheet) {
        EXPECT_TRUE(button(sheet, "cancelButton").isDefault());
        EXPECT_TRUE(button(sheet, "cancelButton").hasFocus());
        press(sheet, Qt::Key_Return);
    });
    EXPECT_FALSE(overwriteExistingFilesCheck({path(u"b.txt"_s)}));
}

TEST_F(OverwriteCheck, IsCancelledByReturnInTheList)
{
    whenModal([](const QWidget &sheet) {
        table(sheet).setFocus();
        press(sheet, Qt::Key_Return);
    });
    EXPECT_FALSE(overwriteExistingFilesCheck({path(u"b.txt"_s)}));
}

TEST_F(OverwriteCheck, IsAnsweredByKeyboardAlone)
{
    whenModal([](const QWidget &sheet) {
        QList<const QWidget *> tabStops;
        for (int tabs = 0; tabs < 3; ++tabs) {
            press(sheet, Qt::Key_Tab);
            tabStops.append(QApplication::focusWidget());
        }
        EXPECT_TRUE(tabStops.contains(&table(sheet)));
        EXPECT_EQ(tabStops.last(), &button(sheet, "cancelButton"));
        for (qsizetype tabs = tabStops.indexOf(&button(sheet, "replaceButton")); tabs >= 0; --tabs) {
            press(sheet, Qt::Key_Tab);
        }
        press(sheet, Qt::Key_Space);
    });
    EXPECT_TRUE(overwriteExistingFilesCheck({path(u"b.txt"_s)}));
}

TEST_F(OverwriteCheck, IsAnsweredByMnemonic)
{
    whenModal([](const QWidget &sheet) { press(sheet, Qt::Key_R, Qt::AltModifier); });
    EXPECT_TRUE(overwriteExistingFilesCheck({path(u"b.txt"_s)}));
}

TEST_F(OverwriteCheck, StandsByItselfWithoutAMainWindow)
{
    windowing::setMainWindow(nullptr);
    m_document.hide();
    whenModal([](const QWidget &sheet) {
        EXPECT_TRUE(sheet.isVisible());
        click(button(sheet, "replaceButton"));
    });
    EXPECT_TRUE(overwriteExistingFilesCheck({path(u"b.txt"_s)}));
    EXPECT_EQ(m_modalLoop.windowOfSheet(), nullptr);
}

TEST_F(OverwriteCheck, IsCancelledWhenTheApplicationQuitsWithTheConfirmingCodeAsItsExitCode)
{
    bool confirmed = true;
    QTimer::singleShot(0, [&] {
        whenModal([](const QWidget &) { QCoreApplication::exit(1); });
        confirmed = overwriteExistingFilesCheck({path(u"b.txt"_s)});
    });
    EXPECT_EQ(QCoreApplication::exec(), 1);
    EXPECT_FALSE(confirmed);
}

TEST_F(OverwriteCheck, CopiesTheSelectedNames)
{
    support::writeFile(path(u"c.txt"_s), "old");
    support::writeFile(path(u"d.txt"_s), "old");
    whenModal([](const QWidget &sheet) {
        QTableView &names = table(sheet);
        names.setFocus();
        names.selectionModel()->select(names.model()->index(2, 0), QItemSelectionModel::Select);
        names.selectionModel()->select(names.model()->index(0, 0), QItemSelectionModel::Select);
        press(sheet, Qt::Key_C, Qt::ControlModifier);
        press(sheet, Qt::Key_Escape);
    });
    EXPECT_FALSE(overwriteExistingFilesCheck({path(u"b.txt"_s), path(u"c.txt"_s), path(u"d.txt"_s)}));
    EXPECT_EQ(QGuiApplication::clipboard()->text(), u"b.txt\nd.txt"_s);
}

TEST_F(OverwriteCheck, ResizesTheListWithTheSheet)
{
    whenModal([](QWidget &sheet) {
        const QSize listSize = table(sheet).size();
        sheet.resize(sheet.width() + 200, sheet.height() + 150);
        QCoreApplication::sendPostedEvents();
        EXPECT_EQ(table(sheet).width(), listSize.width() + 200);
        EXPECT_GE(table(sheet).height(), listSize.height() + 150);
        press(sheet, Qt::Key_Escape);
    });
    EXPECT_FALSE(overwriteExistingFilesCheck({path(u"b.txt"_s)}));
}

TEST_F(OverwriteCheck, SaysHowManyOfHowManyExistBesideAWarningIcon)
{
    support::writeFile(path(u"d.txt"_s), "old");
    whenModal([](const QWidget &sheet) {
        const auto *count = sheet.findChild<QLabel *>(u"countField"_s);
        EXPECT_TRUE(count->isVisible());
        EXPECT_EQ(count->text(), u"Items that exist already: 2 of 5"_s);
        const auto *icon = sheet.findChild<QLabel *>(u"warningIcon"_s);
        EXPECT_FALSE(icon->pixmap().isNull());
        press(sheet, Qt::Key_Escape);
    });
    EXPECT_FALSE(overwriteExistingFilesCheck(
        {path(u"a.txt"_s), path(u"b.txt"_s), path(u"c.txt"_s), path(u"d.txt"_s), path(u"e.txt"_s)}));
}

TEST_F(OverwriteCheck, IsNoLargerThanItsListNeeds)
{
    QStringList paths;
    const auto heightWith = [&](int files) {
        while (paths.size() < files) {
            paths.append(path(QString::number(paths.size()) + u".txt"_s));
            support::writeFile(paths.constLast(), "old");
        }
        int height = 0;
        whenModal([&](const QWidget &sheet) {
            height = sheet.height();
            const int rows = std::min(files, 10);
            EXPECT_LE(table(sheet).viewport()->height() - rows * table(sheet).rowHeight(0), 2);
            EXPECT_EQ(table(sheet).verticalScrollBar()->maximum() > 0, files > 10);
            press(sheet, Qt::Key_Escape);
        });
        EXPECT_FALSE(overwriteExistingFilesCheck(paths));
        return height;
    };
    const int withOne = heightWith(1);
    const int withFive = heightWith(5);
    const int withTen = heightWith(10);
    EXPECT_LT(withOne, withFive);
    EXPECT_LT(withFive, withTen);
    EXPECT_EQ(heightWith(40), withTen);
}

TEST_F(OverwriteCheck, SaysNothingOfNumbersThatItDoesNotKnow)
{
    KZOverwriteCheck check;
    check.setFileNames({u"a.txt"_s});
    check.showSheetOnWindow(&m_document);
    EXPECT_FALSE(check.overwritePanel()->findChild<QLabel *>(u"countField"_s)->isVisible());
}

TEST_F(OverwriteCheck, FitsOnTheWindowWithLongNames)
{
    const QString longName = u"a_name_without_blanks_"_s.repeated(8);
    EXPECT_TRUE(QDir().mkdir(path(longName)));
    support::writeFile(path(longName + u'/' + longName), "old");
    whenModal([&](const QWidget &sheet) {
        EXPECT_LT(sheet.width(), m_document.width());
        EXPECT_TRUE(message(sheet).contains(longName));
        EXPECT_EQ(table(sheet).textElideMode(), Qt::ElideMiddle);
        EXPECT_LE(table(sheet).columnWidth(0), table(sheet).viewport()->width());
        press(sheet, Qt::Key_Escape);
    });
    EXPECT_FALSE(overwriteExistingFilesCheck({path(longName + u'/' + longName)}));
}

TEST_F(OverwriteCheck, LetsTheDocumentWindowTakeInputAgainWhenItIsAnswered)
{
    whenModal([&](const QWidget &sheet) {
        press(m_document, Qt::Key_A);
        QTest::keyClick(&m_document, Qt::Key_A);
        EXPECT_EQ(m_document.toPlainText(), QString());
        press(sheet, Qt::Key_Escape);
    });
    EXPECT_FALSE(overwriteExistingFilesCheck({path(u"b.txt"_s)}));
    press(m_document, Qt::Key_A);
    EXPECT_EQ(m_document.toPlainText(), u"a"_s);
}

TEST_F(OverwriteCheck, IsCancelledWhenItsWindowIsDestroyed)
{
    auto window = std::make_unique<support::DocumentWindow>();
    whenModal([&](const QWidget &) { window.reset(); });
    EXPECT_FALSE(overwriteExistingFilesCheck({path(u"b.txt"_s)}));
    press(m_document, Qt::Key_A);
    EXPECT_EQ(m_document.toPlainText(), u"a"_s);
}

TEST_F(OverwriteCheck, PutsTheFolderIntoTheMessageOnce)
{
    const auto check = KZOverwriteCheck::init();
    check->setFolder(u"100%1"_s);
    const QString once = message(*check->overwritePanel());
    EXPECT_TRUE(once.contains(u"“100%1”"_s)) << testing::PrintToString(once);
    check->setFolder(u"other"_s);
    EXPECT_EQ(message(*check->overwritePanel()), once);
}

TEST_F(OverwriteCheck, ShowsMarkupInNamesAsItIsWritten)
{
    const auto check = KZOverwriteCheck::init();
    check->setFolder(u"<b>x</b>"_s);
    EXPECT_EQ(check->overwritePanel()->findChild<QLabel *>(u"infoField"_s)->textFormat(), Qt::PlainText);
}

TEST_F(OverwriteCheck, AddsNamesBehindThoseThatAreThere)
{
    KZOverwriteCheck check;
    check.setFileNames({u"z"_s, u"a"_s});
    check.setFileNames({u"m"_s, u"a"_s});
    EXPECT_EQ(listedNames(*check.overwritePanel()), (QStringList{u"z"_s, u"a"_s, u"m"_s, u"a"_s}));
}

TEST_F(OverwriteCheck, LeavesNothingBehindWhenItIsDestroyedWithItsSheetUp)
{
    auto check = KZOverwriteCheck::init();
    check->showSheetOnWindow(&m_document);
    EXPECT_TRUE(check->overwritePanel()->isVisible());
    check.reset();
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    press(m_document, Qt::Key_A);
    EXPECT_EQ(m_document.toPlainText(), u"a"_s);
}

} // namespace
