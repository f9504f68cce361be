#include <OrvaneExportKit/controls/FontTarget.h>
#include <OrvaneExportKit/controls/KZContentView.h>
#include <OrvaneExportKit/controls/KZFontNameTextField.h>
#include <OrvaneExportKit/platform/NotificationCenter.h>
#include <OrvaneExportKit/run/KZExportProgress.h>
#include <OrvaneExportKit/settings/SettingsKeys.h>
#include <OrvaneExportKit/windowing/Binding.h>
#include <OrvaneExportKit/windowing/DictionaryTable.h>
#include <OrvaneExportKit/windowing/FontPanel.h>
#include <tests/support/Printers.h>
#include <tests/support/RecordingAlert.h>

#include <gtest/gtest.h>

#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QDoubleSpinBox>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>

#include <functional>
#include <stdexcept>

using namespace Qt::Literals::StringLiterals;
using windowing::FontPanel;

namespace {

/// Answers the change of a font with whatever the test says.
class Answerer : public QObject
{
    Q_OBJECT

public:
    Q_INVOKABLE void takeFont(windowing::FontPanel * /*sender*/) { answer(); }

    std::function<void()> answer;
};

/// A model that has a name only to be read.
class ReadOnlyModel : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString name READ name CONSTANT)

public:
    static QString name() { return u"Times-Bold"_s; }
};

/// A font field in a window, and the font panel that the user changes the size in.
class ErrorInTheEventLoop : public testing::Test
{
protected:
    void SetUp() override
    {
        auto *layout = new QVBoxLayout(&window);
        layout->addWidget(field);
        window.show();
        window.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
        field->setFocus();
        QTest::keyClick(field, Qt::Key_Space);
        panel = &FontPanel::sharedFontPanel();
        ASSERT_TRUE(QTest::qWaitForWindowActive(panel.data()));
    }
    ~ErrorInTheEventLoop() override { delete panel.data(); }

    /// Makes the font a point larger, and lets the event loop show what there is to show.
    void enlargeFont()
    {
        auto *size = panel->findChild<QDoubleSpinBox *>();
        size->setFocus();
        QTest::keyClick(size, Qt::Key_Up);
        EXPECT_TRUE(alert.errors.size() == m_told) << "told from inside the event";
        QCoreApplication::processEvents();
        m_told = alert.errors.size();
    }

    support::RecordingAlert alert;
    QWidget window;
    KZFontNameTextField *field = new KZFontNameTextField(&window);
    QPointer<FontPanel> panel;

private:
    qsizetype m_told = 0;
};

TEST_F(ErrorInTheEventLoop, IsToldForAnActionThatTheTargetLacks)
{
    Answerer target;
    field->setTarget(&target);
    field->setAction("takeFnot");
    const QString before = field->text();
    enlargeFont();
    EXPECT_EQ(alert.errors,
              QStringList{u"changeFont: Answerer has no function `takeFnot` for a windowing::FontPanel *"_s});
    EXPECT_EQ(field->text(), before);
}

TEST_F(ErrorInTheEventLoop, IsToldForAModelThatRefusesTheFont)
{
    ReadOnlyModel model;
    new windowing::FontTarget(field);
    new windowing::Binding(field, u"selectedFontName"_s, &model, u"name"_s);
    enlargeFont();
    ASSERT_EQ(alert.errors.size(), 1);
    EXPECT_TRUE(alert.errors.first().contains(u"\"name\" of ReadOnlyModel cannot be set"));
    EXPECT_EQ(field->text(), u"Times-Bold, 10pt"_s); // as before
}

TEST_F(ErrorInTheEventLoop, NamesTheClassWhereTheErrorNamesNoPlace)
{
    Answerer target;
    field->setTarget(&target);
    field->setAction("takeFont");
    target.answer = [] {
        throw std::runtime_error("no ink");
    };
    enlargeFont();
    EXPECT_EQ(alert.errors, QStringList{u"windowing::FontPanel: no ink"_s});
    target.answer = [] {
        throw 5;
    };
    enlargeFont();
    EXPECT_EQ(alert.errors.value(1), u"windowing::FontPanel: an error that does not say what it is"_s);
}

TEST_F(ErrorInTheEventLoop, IsToldOnceUntilTheUserHasAnswered)
{
    field->setTarget(field);
    field->setAction("takeFnot");
    auto *size = panel->findChild<QDoubleSpinBox *>();
    size->setFocus();
    for (int i = 0; i < 5; ++i) {
        QTest::sendKeyEvent(QTest::Press, size, Qt::Key_Up, u""_s, {}, 0);
    }
    QCoreApplication::processEvents();
    EXPECT_EQ(alert.errors.size(), 1);
    QTest::keyClick(size, Qt::Key_Up);
    QCoreApplication::processEvents();
    EXPECT_EQ(alert.errors.size(), 2); // the user tries again
}

TEST(ErrorsInShowing, AreToldOnceHoweverOftenAControlIsPaintedAndAgainForNewContent)
{
    support::RecordingAlert alert;
    windowing::DictionaryTable table;
    table.setKeys({u"name"_s, u"bold"_s});
    table.setBooleanKeys({u"bold"_s});
    const QVariantMap unreadable{{u"name"_s, u"Heading"_s}, {u"bold"_s, QVariantList{1}}};
    table.setContent({unreadable});
    table.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&table));
    for (int i = 0; i < 3; ++i) {
        table.grab();
        QCoreApplication::processEvents();
    }
    ASSERT_EQ(alert.errors.size(), 1) << alert.errors.join(u'\n').toStdString();
    table.setContent({unreadable, unreadable});
    table.grab();
    QCoreApplication::processEvents();
    EXPECT_EQ(alert.errors.size(), 2);
}

/// A model whose setter fails in a way of its own.
class FailingModel : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString title READ title WRITE setTitle)

public:
    static QString title() { return u"Draft"_s; }
    static void setTitle(const QString & /*title*/) { throw std::runtime_error("no ink"); }
};

class FailingEdit : public testing::Test
{
protected:
    void SetUp() override
    {
        auto *layout = new QVBoxLayout(&window);
        layout->addWidget(view);
        view->setLayout(new QVBoxLayout);
        view->layout()->addWidget(field);
        new windowing::Binding(field, u"text"_s, &model, u"title"_s);
        window.show();
        window.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
        field->setFocus();
        field->selectAll();
        QTest::keyClicks(field, u"Final"_s);
    }

    void expectOneError()
    {
        QCoreApplication::processEvents();
        EXPECT_EQ(alert.errors, QStringList{u"QLineEdit: no ink"_s});
    }

    support::RecordingAlert alert;
    FailingModel model;
    QWidget window;
    QPointer<KZContentView> view = new KZContentView;
    QPointer<QLineEdit> field = new QLineEdit;
};

TEST_F(FailingEdit, IsToldAndShowsTheStoredValueAgain)
{
    QTest::keyClick(field, Qt::Key_Return);
    expectOneError();
    EXPECT_EQ(field->text(), u"Draft"_s);
}

TEST_F(FailingEdit, ThrowsWhereTheProgramCommits)
{
    EXPECT_THROW(windowing::bindingOf(field, u"text"_s)->commit(), std::runtime_error);
    EXPECT_EQ(field->text(), u"Draft"_s);
}

TEST_F(FailingEdit, DoesNotKeepAContentViewInItsWindow)
{
    view->removeFromSuperview();
    expectOneError();
    EXPECT_EQ(view->parentWidget(), nullptr);
    delete view;
}

TEST_F(FailingEdit, DoesNotStopAContentViewFromBeingDestroyed)
{
    delete view;
    expectOneError();
}

TEST(ErrorsOfObservers, OfTheAbortButtonAreTold)
{
    support::RecordingAlert alert;
    KZExportProgress progress(nullptr, 3);
    const auto observation = platform::NotificationCenter::defaultCenter().addObserver(
        KZAbortExportNotification, &progress, [](const auto &) { throw std::runtime_error("no brake"); });
    progress.showSheet();
    progress.progressPanel()->findChild<QPushButton *>(u"abortButton"_s)->click();
    progress.setDocumentName(u"Chapter 1"_s); // a pass of events
    EXPECT_EQ(alert.errors.size(), 1);
    EXPECT_TRUE(alert.errors.value(0).endsWith(u": no brake"));
    EXPECT_THROW(progress.abortExport(nullptr), std::runtime_error);
    progress.hideSheet();
}

} // namespace

#include "EventGuardTest.moc"
