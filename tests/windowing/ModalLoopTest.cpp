#include <OrvaneExportKit/windowing/ModalLoop.h>

#include <OrvaneExportKit/windowing/Panel.h>
#include <tests/support/DocumentWindow.h>
#include <tests/support/Input.h>
#include <tests/support/PaintCounter.h>
#include <tests/support/Printers.h>

#include <gtest/gtest.h>

#include <QtGui/QShortcut>
#include <QtTest/QSignalSpy>
#include <QtTest/qtestspontaneevent.h>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMenu>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QVBoxLayout>

#include <optional>

namespace {

using namespace Qt::Literals::StringLiterals;
using support::click;
using support::PaintCounter;
using support::press;
using windowing::ModalLoop;
using windowing::ModalSession;

/// A window with a text field and a button in it, which counts its clicks.
class Window final : public QDialog
{
public:
    Window()
    {
        auto *layout = new QVBoxLayout(this);
        layout->addWidget(&field);
        layout->addWidget(&button);
        connect(&button, &QPushButton::clicked, this, [this] { ++clicks; });
    }

    /// Types and clicks, both through the window system and straight into the widgets, and says what came through.
    int inputTaken()
    {
        const auto typed = field.text().size();
        const int clicked = clicks;
        activateWindow();
        field.setFocus();
        press(*this, Qt::Key_X);
        QTest::keyClick(&field, Qt::Key_X);
        click(button);
        QTest::mouseClick(&button, Qt::LeftButton);
        return static_cast<int>(field.text().size() - typed) + clicks - clicked;
    }

    QLineEdit field;
    QPushButton button{u"Button"_s};
    int clicks = 0;
};

constexpr int allInput = 4;

/// What the window manager says when the user clicks the close button.
void closeAsUser(const QWidget &widget)
{
    QCloseEvent close;
    QSpontaneKeyEvent::setSpontaneous(&close);
    qApp->notify(widget.windowHandle(), &close);
}

/// The document window, another window of the application and a dialog, of which only the dialog is not shown.
class ModalLoopTest : public testing::Test
{
protected:
    ModalLoopTest()
    {
        m_other.setWindowModality(Qt::NonModal);
        m_other.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&m_other));
    }

    /// Shows the dialog as a sheet on the document window.
    void showSheet()
    {
        m_loop.beginSheet(&m_sheet, &m_document, {});
        EXPECT_TRUE(support::isActive(&m_sheet));
    }

    int inputTakenByDocument()
    {
        const auto typed = m_document.toPlainText().size();
        press(m_document, Qt::Key_X);
        QTest::keyClick(&m_document, Qt::Key_X);
        return static_cast<int>(m_document.toPlainText().size() - typed);
    }

    ModalLoop &m_loop = ModalLoop::modalLoop();
    support::DocumentWindow m_document;
    Window m_other;
    Window m_sheet;
};

TEST_F(ModalLoopTest, GivesAllInputToTheWindowOfASession)
{
    showSheet();
    const auto session = m_loop.beginModalSessionForWindow(&m_sheet);
    EXPECT_EQ(inputTakenByDocument(), 0);
    EXPECT_EQ(m_other.inputTaken(), 0);
    EXPECT_EQ(m_sheet.inputTaken(), allInput);

    session->end();
    m_sheet.hide();
    EXPECT_EQ(m_other.inputTaken(), allInput);
    EXPECT_EQ(inputTakenByDocument(), 2);
}

TEST_F(ModalLoopTest, GivesAllInputToTheWindowThatItRuns)
{
    support::whenModal([this](const QWidget &) {
        EXPECT_EQ(inputTakenByDocument(), 0);
        EXPECT_EQ(m_other.inputTaken(), 0);
        EXPECT_EQ(m_sheet.inputTaken(), allInput);
        m_loop.stopModalWithCode(7);
    });
    EXPECT_EQ(m_loop.runModalForWindow(&m_sheet), 7);
    m_sheet.hide();
    EXPECT_EQ(m_other.inputTaken(), allInput);
}

TEST_F(ModalLoopTest, KeepsWheelContextMenuShortcutsAndClosingFromOtherWindows)
{
    QSignalSpy menus(&m_other, &QWidget::customContextMenuRequested);
    m_other.setContextMenuPolicy(Qt::CustomContextMenu);
    QShortcut shortcut(QKeySequence(u"Ctrl+S"_s), &m_other);
    shortcut.setContext(Qt::ApplicationShortcut);
    QSignalSpy shortcuts(&shortcut, &QShortcut::activated);
    QComboBox choices(&m_other);
    choices.addItems({u"one"_s, u"two"_s});
    const auto act = [&] {
        QContextMenuEvent menu(QContextMenuEvent::Mouse, {1, 1}, m_other.mapToGlobal(QPoint(1, 1)));
        QCoreApplication::sendEvent(&m_other, &menu);
        QWheelEvent wheel({1, 1}, choices.mapToGlobal(QPointF(1, 1)), {}, {0, -120}, {}, {}, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&choices, &wheel);
        press(m_sheet.isVisible() ? m_sheet : m_other, Qt::Key_S, Qt::ControlModifier);
    };
    showSheet();
    {
        const auto session = m_loop.beginModalSessionForWindow(&m_sheet);
        act();
        closeAsUser(m_other);
        closeAsUser(m_document);
    }
    EXPECT_TRUE(m_other.isVisible());
    EXPECT_TRUE(m_document.isVisible());
    EXPECT_EQ(menus.size() + shortcuts.size() + choices.currentIndex(), 0);

    m_sheet.hide();
    m_other.activateWindow();
    ASSERT_TRUE(support::isActive(&m_other));
    act();
    EXPECT_EQ(menus.size(), 1);
    EXPECT_EQ(shortcuts.size(), 1);
    EXPECT_EQ(choices.currentIndex(), 1);
    closeAsUser(m_other);
    EXPECT_FALSE(m_other.isVisible());
}

TEST_F(ModalLoopTest, LetsTheProgramCloseOtherWindows)
{
    showSheet();
    const auto session = m_loop.beginModalSessionForWindow(&m_sheet);
    EXPECT_TRUE(m_other.close());
    EXPECT_FALSE(m_other.isVisible());
    EXPECT_TRUE(m_document.close());
    EXPECT_FALSE(m_document.isVisible());
    EXPECT_TRUE(m_sheet.isVisible());
}

TEST_F(ModalLoopTest, QuitsWhenTheLastSessionHasEnded)
{
    windowing::Panel panel;
    int cancels = 0;
    QObject::connect(&panel, &windowing::Panel::cancelRequested, &panel, [&cancels] { ++cancels; });
    m_loop.beginSheet(&panel, &m_document, {});
    bool isQuitting = false;
    QObject::connect(qApp, &QCoreApplication::aboutToQuit, &panel, [&isQuitting] { isQuitting = true; });
    QTimer::singleShot(0, &panel, [&] {
        const auto outer = m_loop.beginModalSessionForWindow(&panel);
        QCoreApplication::quit();
        outer->run();
        outer->run();
        EXPECT_EQ(cancels, 1);
        EXPECT_TRUE(panel.isVisible());
        EXPECT_FALSE(isQuitting);
        m_loop.endSheet(&panel, 0);
        panel.hide();
        outer->end();
    });
    QTimer::singleShot(5000, &panel, [] { QCoreApplication::exit(1); });
    EXPECT_EQ(QCoreApplication::exec(), 0);
}

TEST_F(ModalLoopTest, LetsOtherWindowsRepaint)
{
    showSheet();
    const auto session = m_loop.beginModalSessionForWindow(&m_sheet);
    PaintCounter paints(m_other.button);
    m_other.button.setText(u"Repainted"_s);
    EXPECT_TRUE(QTest::qWaitFor([&paints] { return paints.count() > 0; }));
}

TEST_F(ModalLoopTest, LetsWindowsOpenedFromTheModalOneTakeInput)
{
    showSheet();
    const auto session = m_loop.beginModalSessionForWindow(&m_sheet);
    Window child;
    child.setParent(&m_sheet, Qt::Window);
    child.show();
    ASSERT_TRUE(support::isActive(&child));
    EXPECT_EQ(child.inputTaken(), allInput);

    QMenu menu(&m_sheet);
    const QAction *action = menu.addAction(u"Action"_s);
    QSignalSpy triggered(action, &QAction::triggered);
    menu.popup(m_sheet.pos());
    press(menu, Qt::Key_Down);
    press(menu, Qt::Key_Return);
    EXPECT_EQ(triggered.size(), 1);
}

TEST_F(ModalLoopTest, GivesInputBackToTheOuterWindowWhenTheInnerOneEnds)
{
    showSheet();
    const auto outer = m_loop.beginModalSessionForWindow(&m_sheet);
    Window inner;
    support::whenModal([&](const QWidget &) {
        EXPECT_EQ(m_sheet.inputTaken(), 0);
        EXPECT_EQ(inner.inputTaken(), allInput);
        m_loop.stopModal();
    });
    EXPECT_EQ(m_loop.runModalForWindow(&inner), ModalLoop::stopped);
    inner.hide();
    EXPECT_EQ(m_sheet.inputTaken(), allInput);
    EXPECT_EQ(m_other.inputTaken(), 0);
}

TEST_F(ModalLoopTest, LetsAnInnerSessionEndAfterTheOuterOne)
{
    showSheet();
    auto outer = m_loop.beginModalSessionForWindow(&m_sheet);
    Window inner;
    m_loop.beginSheet(&inner, &m_document, {});
    const auto innerSession = m_loop.beginModalSessionForWindow(&inner);
    outer->end();
    EXPECT_EQ(inner.inputTaken(), allInput);
    EXPECT_EQ(m_other.inputTaken(), 0);
    innerSession->end();
    inner.hide();
    m_sheet.hide();
    EXPECT_EQ(m_other.inputTaken(), allInput);
}

TEST_F(ModalLoopTest, DoesNotStopALoopFromInsideASession)
{
    Window inner;
    support::whenModal([&](const QWidget &) {
        m_loop.beginSheet(&inner, nullptr, {});
        const auto session = m_loop.beginModalSessionForWindow(&inner);
        m_loop.stopModal();
        session->end();
        inner.hide();
        m_loop.stopModalWithCode(3);
    });
    EXPECT_EQ(m_loop.runModalForWindow(&m_sheet), 3);
}

TEST_F(ModalLoopTest, EndsALoopWhoseWindowIsHidden)
{
    support::whenModal([this](const QWidget &) { m_sheet.hide(); });
    EXPECT_EQ(m_loop.runModalForWindow(&m_sheet), ModalLoop::stopped);
}

TEST_F(ModalLoopTest, EndsALoopWhoseWindowIsDestroyed)
{
    auto window = std::make_unique<Window>();
    support::whenModal([&](const QWidget &) { window.reset(); });
    EXPECT_EQ(m_loop.runModalForWindow(window.get()), ModalLoop::stopped);
    EXPECT_EQ(m_other.inputTaken(), allInput);
}

TEST_F(ModalLoopTest, FreesTheOtherWindowsWhenTheWindowOfASessionIsDestroyed)
{
    auto window = std::make_unique<Window>();
    m_loop.beginSheet(window.get(), &m_document, {});
    const auto session = m_loop.beginModalSessionForWindow(window.get());
    window.reset();
    session->run();
    EXPECT_EQ(m_other.inputTaken(), allInput);
    EXPECT_EQ(inputTakenByDocument(), 2);
}

TEST_F(ModalLoopTest, MakesOnePassForEachRun)
{
    showSheet();
    const auto session = m_loop.beginModalSessionForWindow(&m_sheet);
    session->run(); // what showing the sheet has left behind
    int calls = 0;
    const std::function<void()> callAgain = [&] {
        ++calls;
        QMetaObject::invokeMethod(&m_sheet, callAgain, Qt::QueuedConnection);
    };
    callAgain();
    session->run();
    EXPECT_EQ(calls, 2);
    session->run();
    EXPECT_EQ(calls, 3);
    QCoreApplication::removePostedEvents(&m_sheet);
}

TEST_F(ModalLoopTest, RunsNoMoreOnceTheSessionHasEnded)
{
    showSheet();
    const auto session = m_loop.beginModalSessionForWindow(&m_sheet);
    session->end();
    EXPECT_FALSE(session->isOpen());
    bool called = false;
    QMetaObject::invokeMethod(
        &m_sheet, [&called] { called = true; }, Qt::QueuedConnection);
    session->run();
    EXPECT_FALSE(called);
    session->end();
    QCoreApplication::sendPostedEvents();
    EXPECT_TRUE(called);
}

TEST_F(ModalLoopTest, LetsASessionBeDestroyedInItsPass)
{
    showSheet();
    auto session = m_loop.beginModalSessionForWindow(&m_sheet);
    QMetaObject::invokeMethod(
        &m_sheet, [&session] { session.reset(); }, Qt::QueuedConnection);
    session->run();
    EXPECT_EQ(session, nullptr);
}

TEST_F(ModalLoopTest, TellsTheEndOfASheetOnceWithItsCode)
{
    QList<qint32> codes;
    m_loop.beginSheet(&m_sheet, &m_document, [&codes](qint32 code) { codes.append(code); });
    m_loop.endSheet(&m_sheet, 5);
    m_loop.endSheet(&m_sheet, 6);
    EXPECT_EQ(codes, QList<qint32>{5});
    EXPECT_TRUE(m_sheet.isVisible());
}

TEST_F(ModalLoopTest, EndsASheetWithCode0WhenItsWindowIsDestroyed)
{
    QList<qint32> codes;
    auto window = std::make_unique<Window>();
    window->show();
    m_loop.beginSheet(&m_sheet, window.get(), [&codes](qint32 code) { codes.append(code); });
    window.reset();
    EXPECT_EQ(codes, QList<qint32>{0});
}

TEST_F(ModalLoopTest, PutsASheetOverItsWindowAndOnTheScreen)
{
    m_document.move(50, 40);
    m_sheet.resize(300, 200);
    showSheet();
    EXPECT_EQ(m_sheet.geometry().center(), m_document.geometry().center());
    EXPECT_EQ(m_sheet.windowHandle()->transientParent(), m_document.windowHandle());
    EXPECT_EQ(m_sheet.windowType(), Qt::Sheet);
    EXPECT_EQ(m_sheet.windowModality(), Qt::WindowModal);
    m_sheet.hide();

    m_document.move(-700, -500);
    m_loop.beginSheet(&m_sheet, &m_document, {});
    EXPECT_TRUE(m_document.screen()->availableGeometry().contains(m_sheet.frameGeometry()));
}

} // namespace
