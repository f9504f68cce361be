#include <tests/plugins/PanelTest.h>
#include <tests/support/Printers.h>

#include <QtWidgets/QDoubleSpinBox>

using namespace Qt::Literals::StringLiterals;

namespace plugins {

namespace {

class LatexPanel : public PanelTest
{
protected:
    LatexPanel() : PanelTest(LATEX_PLUGIN) {}
};

} // namespace

TEST_F(LatexPanel, SetsTheFontSize)
{
    type("fontSizeField", "12");
    EXPECT_EQ(setting("font-size"), 12.0);
    EXPECT_TRUE(exported("a").contains(u"12pt"_s)) << exported("a").toStdString();
}

TEST_F(LatexPanel, ShowsAChangeOfTheFontSizeFromOutside)
{
    changeOutside("font-size", u"9.5"_s);
    EXPECT_EQ(control<QDoubleSpinBox>("fontSizeField").value(), 9.5);
}

} // namespace plugins
