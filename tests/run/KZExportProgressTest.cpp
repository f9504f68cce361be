#include <OrvaneExportKit/run/KZExportProgress.h>

#include <OrvaneExportKit/platform/Bundle.h>
#include <OrvaneExportKit/platform/Translations.h>
#include <OrvaneExportKit/run/AbortFlag.h>
#include <OrvaneExportKit/settings/SettingsKeys.h>
#include <tests/support/DocumentWindow.h>
#include <tests/support/Input.h>
#include <tests/support/PaintCounter.h>
#include <tests/support/Printers.h>
#include <tests/support/RecordingModalLoop.h>

#include <gtest/gtest.h>

namespace {

using namespace Qt::Literals::StringLiterals;
using platform::AbortFlag;
using support::button;
using support::click;
using support::PaintCounter;
using support::press;

QLabel &messageLine(const KZExportProgress &progress)
{
    return *progress.progressPanel()->findChild<QLabel *>(u"messageTextField"_s);
}

windowing::ProgressIndicator &bar(const KZExportProgress &progress)
{
    return *progress.progressPanel()->findChild<windowing::ProgressIndicator *>(u"progressBar"_s);
}

/// Puts a click on a widget into the queue of events, where it waits for the next pass.
void postClick(QWidget &widget)
{
    const QPointF place = widget.rect().center();
    for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
        const Qt::MouseButtons pressed = type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton;
        QCoreApplication::postEvent(
            &widget, new QMouseEvent(type, place, widget.mapToGlobal(place), Qt::LeftButton, pressed, Qt::NoModifier));
    }
}

/// A document window and a record of the modal choreography.
class ExportProgress : public testing::Test
{
protected:
    support::DocumentWindow m_document;
    support::RecordingModalLoop m_modalLoop;
};

/// A progress sheet of three steps that is shown.
class ShownExportProgress : public ExportProgress
{
protected:
    ShownExportProgress()
    {
        m_progress.showSheet();
        EXPECT_TRUE(support::isActive(m_progress.progressPanel()));
        m_modalLoop.takeCalls();
    }

    QWidget &panel() const { return *m_progress.progressPanel(); }

    KZExportProgress m_progress{&m_document, 3};
};

TEST_F(ExportProgress, IsNotShownBeforeShowSheet)
{
    const KZExportProgress progress(&m_document, 3);
    EXPECT_FALSE(progress.progressPanel()->isVisible());
    EXPECT_EQ(m_modalLoop.takeCalls(), QStringList());
}

TEST_F(ExportProgress, CountsItsStepsFromZero)
{
    const auto progress = KZExportProgress::initWithWindow(&m_document, 3);
    EXPECT_EQ(progress->currentStep(), 0U);
    EXPECT_EQ(progress->maxSteps(), 3U);
    EXPECT_EQ(bar(*progress).minValue(), 0.0);
    EXPECT_EQ(bar(*progress).maxValue(), 3.0);
    EXPECT_EQ(bar(*progress).doubleValue(), 0.0);
}

TEST_F(ExportProgress, HasAnEmptyRangeAndIgnoresStepsWithZeroSteps)
{
    KZExportProgress progress(&m_document, 0);
    progress.showSheet();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(progress.progressPanel()));
    m_modalLoop.takeCalls();
    EXPECT_EQ(bar(progress).minValue(), 0.0);
    EXPECT_EQ(bar(progress).maxValue(), 0.0);

    const PaintCounter paints(bar(progress));
    progress.incrementToNextStep();
    EXPECT_EQ(paints.count(), 0);
    EXPECT_EQ(progress.currentStep(), 0U);
    EXPECT_EQ(m_modalLoop.takeCalls(), QStringList());
}

TEST_F(ExportProgress, StoresANegativeNumberOfStepsAsUnsigned)
{
    const KZExportProgress progress(&m_document, -1);
    EXPECT_EQ(progress.maxSteps(), 4294967295U);
    EXPECT_EQ(bar(progress).maxValue(), 4294967295.0);
}

TEST_F(ShownExportProgress, IgnoresTheStepAfterTheLast)
{
    for (int step = 1; step <= 3; ++step) {
        const PaintCounter paints(bar(m_progress));
        m_progress.incrementToNextStep();
        EXPECT_EQ(m_modalLoop.takeCalls(), QStringList{u"runModalSession"_s});
        EXPECT_GE(paints.count(), 1);
    }
    const PaintCounter paints(bar(m_progress));
    m_progress.incrementToNextStep();
    EXPECT_EQ(m_progress.currentStep(), 3U);
    EXPECT_EQ(bar(m_progress).doubleValue(), 3.0);
    EXPECT_EQ(paints.count(), 0);
    EXPECT_EQ(m_modalLoop.takeCalls(), QStringList());
}

TEST_F(ShownExportProgress, ShowsLabelColonAndNameAndAppendsDirectly)
{
    platform::setLanguage(QLocale(u"de_DE"_s));
    m_progress.setDocumentName(u"Chapter 1"_s);
    EXPECT_EQ(messageLine(m_progress).text(), u"Dokument wird verarbeitet: Chapter 1"_s);
    EXPECT_EQ(m_modalLoop.takeCalls(), QStringList{u"runModalSession"_s});
    m_progress.appendToDocumentName(u"(2 of %1)"_s);
    EXPECT_EQ(messageLine(m_progress).text(), u"Dokument wird verarbeitet: Chapter 1(2 of %1)"_s);
    EXPECT_EQ(m_modalLoop.takeCalls(), QStringList{u"runModalSession"_s});
    platform::setLanguage(QLocale(u"en_US"_s));
}

TEST_F(ShownExportProgress, ShowsTheKeyWhereTheBundleIsNotThere)
{
    const QString identifier = std::exchange(bndlIdentifier, u"org.example.missing"_s);
    m_progress.setDocumentName(u"Chapter 1"_s);
    bndlIdentifier = identifier;
    EXPECT_EQ(messageLine(m_progress).text(), u"ProcDoc: Chapter 1"_s);
}

TEST_F(ShownExportProgress, PostsOneNotificationAClickAndStays)
{
    QList<const QObject *> posters;
    const auto observation = platform::NotificationCenter::defaultCenter().addObserver(
        KZAbortExportNotification, nullptr,
        [&](const platform::Notification &notification) { posters.append(notification.object); });
    click(button(panel(), "abortButton"));
    EXPECT_EQ(posters, QList<const QObject *>{&m_progress});
    click(button(panel(), "abortButton"));
    EXPECT_EQ(posters.size(), 2);
    EXPECT_TRUE(panel().isVisible());
    EXPECT_EQ(m_modalLoop.takeCalls(), QStringList());
}

TEST_F(ShownExportProgress, GoesBackToZeroWithTheSameNumberOfSteps)
{
    m_progress.incrementToNextStep();
    m_progress.incrementToNextStep();
    m_modalLoop.takeCalls();
    m_progress.resetProgressBar();
    EXPECT_EQ(m_progress.currentStep(), 0U);
    EXPECT_EQ(m_progress.maxSteps(), 3U);
    EXPECT_EQ(bar(m_progress).doubleValue(), 0.0);
    EXPECT_EQ(bar(m_progress).maxValue(), 3.0);
    EXPECT_EQ(m_modalLoop.takeCalls(), QStringList());
}

TEST_F(ExportProgress, BeginsTheSheetAndThenTheSession)
{
    KZExportProgress progress(&m_document, 3);
    progress.showSheet();
    EXPECT_EQ(m_modalLoop.takeCalls(), (QStringList{u"beginSheet"_s, u"beginModalSession"_s}));
    EXPECT_EQ(m_modalLoop.windowOfSheet(), &m_document);
    EXPECT_TRUE(progress.progressPanel()->isVisible());
}

TEST_F(ShownExportProgress, EndsInTheSameOrderEveryTime)
{
    const QStringList ending{u"stopModal"_s, u"endModalSession"_s, u"endSheet 0"_s, u"orderOut"_s};
    m_progress.hideSheet();
    EXPECT_EQ(m_modalLoop.takeCalls(), ending);
    m_progress.showSheet();
    EXPECT_TRUE(panel().isVisible());
    m_progress.incrementToNextStep();
    EXPECT_EQ(m_modalLoop.takeCalls(), (QStringList{u"beginSheet"_s, u"beginModalSession"_s, u"runModalSession"_s}));
    m_progress.hideSheet();
    EXPECT_EQ(m_modalLoop.takeCalls(), ending);
    EXPECT_FALSE(panel().isVisible());
}

TEST_F(ShownExportProgress, DeliversAWaitingClickInTheNextPass)
{
    const AbortFlag abort(m_progress);
    for (const auto &pump : std::initializer_list<std::function<void()>>{
             [&] { m_progress.setDocumentName(u"Chapter 1"_s); }, [&] { m_progress.appendToDocumentName(u"…"_s); },
             [&] {
                 m_progress.incrementToNextStep();
             }}) {
        const AbortFlag abortOfPass(m_progress);
        postClick(button(panel(), "abortButton"));
        EXPECT_FALSE(abortOfPass.isSet());
        pump();
        EXPECT_TRUE(abortOfPass.isSet());
    }
}

TEST_F(ShownExportProgress, StopsARunInTheMiddle)
{
    const AbortFlag abort(m_progress);
    int steps = 0;
    while (steps < 3 && !abort.isSet()) {
        ++steps;
        if (steps == 2) {
            postClick(button(panel(), "abortButton"));
        }
        m_progress.incrementToNextStep();
    }
    EXPECT_EQ(steps, 2);
    EXPECT_EQ(m_progress.currentStep(), 2U);
}

TEST_F(ShownExportProgress, TakesEscapeAndClosingForAClickOnTheAbortButton)
{
    const std::initializer_list<std::function<void()>> inputs{[&] { press(panel(), Qt::Key_Escape); },
                                                              [&] { EXPECT_FALSE(panel().close()); },
                                                              [&] {
                                                                  press(panel(), Qt::Key_Space);
                                                              }};
    for (const auto &input : inputs) {
        const AbortFlag abort(m_progress);
        input();
        EXPECT_TRUE(abort.isSet());
        EXPECT_TRUE(panel().isVisible());
    }
}

TEST_F(ShownExportProgress, IsAbortedByMnemonic)
{
    const AbortFlag abort(m_progress);
    press(panel(), Qt::Key_A, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([&abort] { return abort.isSet(); })); // the button shows that it is pressed first
}

TEST_F(ShownExportProgress, IsNotAbortedByReturn)
{
    const AbortFlag abort(m_progress);
    press(panel(), Qt::Key_Return);
    EXPECT_FALSE(abort.isSet());
}

TEST_F(ShownExportProgress, RedrawsTheMessageInThePass)
{
    const PaintCounter paints(messageLine(m_progress));
    m_progress.setDocumentName(u"Chapter 1"_s);
    EXPECT_GE(paints.count(), 1);
}

TEST_F(ShownExportProgress, ShowsLongNamesInFullAsToolTip)
{
    const QString name = u"A Chapter with a <b>Long</b> Name, "_s.repeated(20);
    const int width = panel().width();
    m_progress.setDocumentName(name);
    EXPECT_EQ(panel().width(), width);
    EXPECT_TRUE(messageLine(m_progress).toolTip().contains(name.toHtmlEscaped()));
    EXPECT_TRUE(messageLine(m_progress).text().endsWith(name));
}

TEST_F(ShownExportProgress, LetsAHandlerTakeSteps)
{
    const auto observation = platform::NotificationCenter::defaultCenter().addObserver(
        KZAbortExportNotification, &m_progress, [&](const platform::Notification &) {
            m_progress.setDocumentName(u"Last chapter"_s);
            m_progress.incrementToNextStep();
        });
    postClick(button(panel(), "abortButton"));
    m_progress.incrementToNextStep();
    EXPECT_EQ(m_progress.currentStep(), 2U);
}

TEST_F(ShownExportProgress, LetsAHandlerHideTheSheet)
{
    const auto observation = platform::NotificationCenter::defaultCenter().addObserver(
        KZAbortExportNotification, &m_progress, [&](const platform::Notification &) { m_progress.hideSheet(); });
    postClick(button(panel(), "abortButton"));
    m_progress.incrementToNextStep();
    EXPECT_FALSE(panel().isVisible());
    m_progress.setDocumentName(u"Chapter 2"_s);
    press(m_document, Qt::Key_A);
    EXPECT_EQ(m_document.toPlainText(), u"a"_s);
}

TEST_F(ExportProgress, LetsAHandlerDestroyIt)
{
    auto progress = KZExportProgress::initWithWindow(&m_document, 3);
    progress->showSheet();
    EXPECT_TRUE(support::isActive(progress->progressPanel()));
    const auto observation = platform::NotificationCenter::defaultCenter().addObserver(
        KZAbortExportNotification, progress.get(), [&](const platform::Notification &) { progress.reset(); });
    postClick(button(*progress->progressPanel(), "abortButton"));
    progress->incrementToNextStep();
    EXPECT_EQ(progress, nullptr);
    press(m_document, Qt::Key_A);
    EXPECT_EQ(m_document.toPlainText(), u"a"_s);
}

TEST_F(ExportProgress, LetsAHandlerOfEscapeDestroyIt)
{
    auto progress = KZExportProgress::initWithWindow(&m_document, 3);
    progress->showSheet();
    EXPECT_TRUE(support::isActive(progress->progressPanel()));
    const auto observation = platform::NotificationCenter::defaultCenter().addObserver(
        KZAbortExportNotification, progress.get(), [&](const platform::Notification &) { progress.reset(); });
    press(*progress->progressPanel(), Qt::Key_Escape);
    EXPECT_EQ(progress, nullptr);
}

TEST_F(ExportProgress, IsAbortedWhenTheApplicationIsToQuitWhichItDoesThen)
{
    quint32 steps = 0;
    bool isVisibleToTheEnd = false;
    QTimer::singleShot(0, &m_document, [&] {
        KZExportProgress progress(&m_document, 100);
        const AbortFlag abort(progress);
        progress.showSheet();
        while (progress.currentStep() < progress.maxSteps() && !abort.isSet()) {
            if (progress.currentStep() == 3) {
                QCoreApplication::quit();
            }
            progress.incrementToNextStep();
        }
        steps = progress.currentStep();
        isVisibleToTheEnd = m_document.isVisible() && progress.progressPanel()->isVisible();
        progress.hideSheet();
    });
    QTimer::singleShot(5000, &m_document, [] { QCoreApplication::exit(1); });
    EXPECT_EQ(QCoreApplication::exec(), 0);
    EXPECT_EQ(steps, 4U);
    EXPECT_TRUE(isVisibleToTheEnd);
    EXPECT_FALSE(m_document.isVisible());
}

TEST_F(ExportProgress, LeavesNothingBehindWhenItIsDestroyedWithItsSheetUp)
{
    {
        KZExportProgress progress(&m_document, 3);
        progress.showSheet();
    }
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    press(m_document, Qt::Key_A);
    EXPECT_EQ(m_document.toPlainText(), u"a"_s);
}

TEST_F(ExportProgress, OutlivesItsWindow)
{
    auto window = std::make_unique<support::DocumentWindow>();
    KZExportProgress progress(window.get(), 3);
    progress.showSheet();
    window.reset();
    progress.setDocumentName(u"Chapter 1"_s);
    progress.incrementToNextStep();
    EXPECT_TRUE(progress.progressPanel()->isVisible());
    progress.hideSheet();
    EXPECT_FALSE(progress.progressPanel()->isVisible());
    progress.showSheet();
    EXPECT_EQ(m_modalLoop.windowOfSheet(), nullptr);
}

TEST_F(ExportProgress, StandsByItselfWithoutAWindow)
{
    KZExportProgress progress(nullptr, 3);
    progress.showSheet();
    progress.incrementToNextStep();
    EXPECT_TRUE(progress.progressPanel()->isVisible());
    press(m_document, Qt::Key_A);
    EXPECT_EQ(m_document.toPlainText(), QString());
}

TEST_F(ExportProgress, OnlyCountsWhileItIsNotShown)
{
    KZExportProgress progress(&m_document, 3);
    progress.setDocumentName(u"Chapter 1"_s);
    progress.incrementToNextStep();
    progress.hideSheet();
    EXPECT_EQ(progress.currentStep(), 1U);
    EXPECT_EQ(m_modalLoop.takeCalls(), QStringList());
}

} // namespace
