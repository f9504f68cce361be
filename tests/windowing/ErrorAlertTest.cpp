#include <OrvaneExportKit/windowing/ErrorAlert.h>

#include <OrvaneExportKit/settings/KZExportSettings.h>
#include <OrvaneExportKit/windowing/ModalLoop.h>
#include <tests/support/DocumentWindow.h>
#include <tests/support/Input.h>
#include <tests/support/Printers.h>

#include <gtest/gtest.h>

#include <QtWidgets/QMessageBox>

namespace {

using namespace Qt::Literals::StringLiterals;
using support::press;
using support::whenModal;

TEST(WindowingErrorAlert, ShowsTheDescriptionAndWaitsForTheUser)
{
    bool shown = false;
    whenModal([&shown](const QWidget &window) {
        const auto *box = qobject_cast<const QMessageBox *>(&window);
        ASSERT_NE(box, nullptr);
        EXPECT_EQ(box->text(), u"The <b>settings</b> cannot be read."_s);
        EXPECT_EQ(box->textFormat(), Qt::PlainText);
        shown = true;
        press(window, Qt::Key_Return);
    });
    platform::alertError(u"The <b>settings</b> cannot be read."_s);
    EXPECT_TRUE(shown);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST(WindowingErrorAlert, IsShownOnceForDataThatIsNoPropertyList)
{
    int shown = 0;
    KZExportSettings settings(u"org.example.alert"_s);
    whenModal([&shown](const QWidget &window) {
        ++shown;
        press(window, Qt::Key_Escape);
    });
    settings.setDefaultData("no property list");
    EXPECT_EQ(shown, 1);
}

TEST(WindowingErrorAlert, SurvivesItsParent)
{
    auto document = std::make_unique<support::DocumentWindow>();
    whenModal([&document](const QWidget &) { document.reset(); });
    platform::alertError(u"The settings cannot be read."_s);
    EXPECT_EQ(document, nullptr);
}

TEST(WindowingErrorAlert, TakesInputWhileASessionIsOpen)
{
    support::DocumentWindow document;
    QDialog dialog;
    windowing::ModalLoop &modalLoop = windowing::ModalLoop::modalLoop();
    modalLoop.beginSheet(&dialog, &document, {});
    const auto session = modalLoop.beginModalSessionForWindow(&dialog);
    bool answered = false;
    whenModal([&answered](const QWidget &window) {
        answered = qobject_cast<const QMessageBox *>(&window) != nullptr;
        press(window, Qt::Key_Return);
    });
    platform::alertError(u"The settings cannot be read."_s);
    EXPECT_TRUE(answered);
}

} // namespace
