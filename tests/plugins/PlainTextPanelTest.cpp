#include <tests/plugins/PanelTest.h>
#include <tests/support/Input.h>
#include <tests/support/Printers.h>

#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QRadioButton>
#include <QtWidgets/QSpinBox>

using namespace Qt::Literals::StringLiterals;

namespace plugins {

namespace {

class PlainTextPanel : public PanelTest
{
protected:
    PlainTextPanel() : PanelTest(PLAIN_TEXT_PLUGIN) {}
};

} // namespace

TEST_F(PlainTextPanel, ShowsTheDefaults)
{
    EXPECT_EQ(control<QSpinBox>("lineLengthField").value(), 72);
    EXPECT_EQ(control<QComboBox>("tabWidthMenu").currentData(), u"4"_s);
    EXPECT_TRUE(control<QRadioButton>("keepButton").isChecked());
    EXPECT_EQ(control<QComboBox>("quotationMenu").currentData(), u"en_US"_s);
    EXPECT_TRUE(control<QCheckBox>("typographyBox").isChecked());
    EXPECT_EQ(control<QLineEdit>("inlineTagsField").text(), u"**,**;//,//"_s);
    EXPECT_EQ(control<QLineEdit>("levelStringsField").text(), u"###,##,#"_s);
    EXPECT_EQ(control<QLineEdit>("paragraphMarksField").text(), u">"_s);
}

TEST_F(PlainTextPanel, SetsTheLineLength)
{
    type("lineLengthField", "5");
    EXPECT_EQ(setting("line-length"), 5);
    EXPECT_EQ(exported("aaa bbb"), u"aaa\nbbb"_s);
    type("lineLengthField", "0");
    EXPECT_EQ(control<QSpinBox>("lineLengthField").text(), u"Unlimited"_s);
    EXPECT_EQ(exported("aaa bbb"), u"aaa bbb"_s);
}

TEST_F(PlainTextPanel, SetsWhatBecomesOfTabs)
{
    press("tabWidthMenu", Qt::Key_End);
    EXPECT_EQ(setting("tab-width"), u"8"_s);
    EXPECT_EQ(exported("\ta"), u"        a"_s);
    press("tabWidthMenu", Qt::Key_Home);
    EXPECT_EQ(setting("tab-width"), u"keep"_s);
    EXPECT_EQ(exported("\ta"), u"\ta"_s);
}

TEST_F(PlainTextPanel, SetsWhatBecomesOfEmptyLines)
{
    press("dropButton", Qt::Key_Space);
    EXPECT_EQ(setting("empty-lines"), u"drop"_s);
    EXPECT_EQ(exported("a\n\nb"), u"a\nb"_s);
    press("keepButton", Qt::Key_Space);
    EXPECT_EQ(setting("empty-lines"), u"keep"_s);
    EXPECT_EQ(exported("a\n\nb"), u"a\n\nb"_s);
}

TEST_F(PlainTextPanel, SetsTheQuotationMarks)
{
    press("quotationMenu", Qt::Key_Home);
    EXPECT_EQ(setting("quotation-language"), u"none"_s);
    EXPECT_EQ(exported("\"a\""), u"\"a\""_s);
    press("quotationMenu", Qt::Key_End);
    EXPECT_EQ(setting("quotation-language"), u"de_CH"_s);
    EXPECT_EQ(exported("\"a\""), u"»a«"_s);
}

TEST_F(PlainTextPanel, SwitchesTypography)
{
    press("typographyBox", Qt::Key_Space);
    EXPECT_EQ(setting("typography"), u"no"_s);
    EXPECT_EQ(exported("it's..."), u"it's..."_s);
    press("typographyBox", Qt::Key_Space);
    EXPECT_EQ(setting("typography"), u"yes"_s);
    EXPECT_EQ(exported("it's..."), u"it’s…"_s);
}

TEST_F(PlainTextPanel, SetsTheInlineTags)
{
    type("inlineTagsField", "__,__");
    EXPECT_EQ(setting("inline-tags"), u"__,__"_s);
    EXPECT_EQ(exported("__a__ **b**"), u"a **b**"_s);
}

TEST_F(PlainTextPanel, SetsTheMarksOfHeadings)
{
    type("levelStringsField", "=");
    EXPECT_EQ(setting("level-strings"), u"="_s);
    EXPECT_EQ(exported("= One\n# Two"), u"One\n# Two"_s);
}

TEST_F(PlainTextPanel, SetsTheMarksOfParagraphs)
{
    type("paragraphMarksField", "|");
    EXPECT_EQ(setting("paragraph-marks"), u"|"_s);
    EXPECT_EQ(exported("| One\n> Two"), u"One\n> Two"_s);
}

TEST_F(PlainTextPanel, ShowsChangesFromOutside)
{
    changeOutside("line-length", u"40"_s);
    changeOutside("tab-width", u"keep"_s);
    changeOutside("empty-lines", u"drop"_s);
    changeOutside("quotation-language", u"fr"_s);
    changeOutside("typography", false);
    changeOutside("inline-tags", u""_s);
    EXPECT_EQ(control<QSpinBox>("lineLengthField").value(), 40);
    EXPECT_EQ(control<QComboBox>("tabWidthMenu").currentText(), u"Keep"_s);
    EXPECT_TRUE(control<QRadioButton>("dropButton").isChecked());
    EXPECT_FALSE(control<QRadioButton>("keepButton").isChecked());
    EXPECT_EQ(control<QComboBox>("quotationMenu").currentData(), u"fr"_s);
    EXPECT_FALSE(control<QCheckBox>("typographyBox").isChecked());
    EXPECT_EQ(control<QLineEdit>("inlineTagsField").text(), u""_s);
}

TEST_F(PlainTextPanel, SaysThatAValueIsNoneOfItsMenu)
{
    changeOutside("tab-width", u"16"_s);
    auto &menu = control<QComboBox>("tabWidthMenu");
    EXPECT_EQ(menu.currentIndex(), -1);
    EXPECT_EQ(menu.placeholderText(), u"Other number of blanks"_s);
    EXPECT_EQ(setting("tab-width"), u"16"_s);
}

TEST_F(PlainTextPanel, LeavesSettingsThatThePluginReadsAsNumbersAndBooleans)
{
    changeOutside("line-length", 7);
    changeOutside("typography", false);
    EXPECT_EQ(exported("it's... bbb"), u"it's...\nbbb"_s);
    changeOutside("typography", true);
    EXPECT_EQ(exported("it's"), u"it’s"_s);
}

} // namespace plugins
