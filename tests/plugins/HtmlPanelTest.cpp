#include <tests/plugins/PanelTest.h>

#include <OrvaneExportKit/controls/KZFontNameTextField.h>
#include <OrvaneExportKit/windowing/FontPanel.h>
#include <tests/support/Input.h>
#include <tests/support/Printers.h>

#include <QtWidgets/QComboBox>
#include <QtWidgets/QDoubleSpinBox>

using namespace Qt::Literals::StringLiterals;
using windowing::FontPanel;

namespace plugins {

namespace {

class HtmlPanel : public PanelTest
{
protected:
    HtmlPanel() : PanelTest(HTML_PLUGIN) {}
};

} // namespace

TEST_F(HtmlPanel, SetsTheLanguageFromItsMenuAndByTyping)
{
    press("languageField", Qt::Key_Down);
    EXPECT_EQ(setting("language"), u"en-GB"_s);
    type("languageField", "nl-BE");
    EXPECT_EQ(setting("language"), u"nl-BE"_s);
    EXPECT_TRUE(exported("a").contains(u"<html lang=\"nl-BE\">"_s));
}

TEST_F(HtmlPanel, SetsTheFontThroughTheFontPanel)
{
    const auto &field = control<KZFontNameTextField>("fontField");
    EXPECT_EQ(field.text(), u"Georgia, 11pt"_s);
    changeOutside("font-name", u"DejaVuSans"_s);
    press("fontField", Qt::Key_Space);
    FontPanel &fonts = FontPanel::sharedFontPanel();
    ASSERT_TRUE(support::isActive(&fonts));

    fonts.findChild<QDoubleSpinBox *>()->setFocus();
    typeInto(fonts, "18");
    support::press(fonts, Qt::Key_Return);
    EXPECT_EQ(setting("font-size"), 18.0);
    EXPECT_EQ(setting("font-name"), u"DejaVuSans"_s);

    for (QComboBox *menu : fonts.findChildren<QComboBox *>()) {
        if (menu->findText(u"Bold"_s) >= 0) {
            menu->setFocus();
            menu->setCurrentText(u"Book"_s);
            QTest::keyClicks(menu, u"Bold"_s);
        }
    }
    EXPECT_EQ(setting("font-name"), u"DejaVuSans-Bold"_s);
    EXPECT_EQ(field.text(), u"DejaVuSans-Bold, 18pt"_s);
    EXPECT_TRUE(exported("a").contains(u"\"DejaVuSans\", serif; font-weight: bold; font-size: 18pt"_s))
        << exported("a").toStdString();
    delete &fonts;
}

TEST_F(HtmlPanel, ShowsChangesOfFontAndLanguageFromOutside)
{
    changeOutside("font-name", u"Palatino-Roman"_s);
    changeOutside("font-size", u"12"_s);
    changeOutside("language", u"de-AT"_s);
    EXPECT_EQ(control<KZFontNameTextField>("fontField").text(), u"Palatino-Roman, 12pt"_s);
    EXPECT_EQ(control<QComboBox>("languageField").currentText(), u"de-AT"_s);
}

} // namespace plugins
