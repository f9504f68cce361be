#include <OrvaneExportKit/controls/FontTarget.h>

#include <OrvaneExportKit/controls/KZFontNameTextField.h>
#include <OrvaneExportKit/windowing/Binding.h>
#include <OrvaneExportKit/windowing/Font.h>
#include <OrvaneExportKit/windowing/FontPanel.h>
#include <OrvaneExportKit/windowing/TextAttributes.h>
#include <tests/support/PanelController.h>
#include <tests/support/Printers.h>

#include <gtest/gtest.h>

#include <QtGui/QColor>
#include <QtWidgets/QFontComboBox>

using namespace Qt::Literals::StringLiterals;
using windowing::Binding;
using windowing::Font;
using windowing::FontPanel;

namespace {

class FontTarget : public testing::Test
{
protected:
    FontTarget()
    {
        new windowing::FontTarget(&field);
        panel.setSelectedFont(Font::fontWithName(u"DejaVuSans-Bold"_s, 12.5));
    }
    ~FontTarget() override { delete &panel; }

    support::PanelController controller;
    KZFontNameTextField field;
    FontPanel &panel = FontPanel::sharedFontPanel();
};

TEST_F(FontTarget, StoresNameAndSizeInWhatTheyAreBoundTo)
{
    new Binding(&field, u"selectedFontName"_s, &controller, u"settings.name"_s);
    new Binding(&field, u"selectedFontSize"_s, &controller, u"settings.size"_s);
    field.changeFont(&panel);
    EXPECT_EQ(controller.settings()->objectForKey(u"name"_s), u"DejaVuSans-Bold"_s);
    EXPECT_EQ(controller.settings()->objectForKey(u"size"_s), 12.5);
    EXPECT_EQ(field.text(), u"DejaVuSans-Bold, 12pt"_s);
}

TEST_F(FontTarget, KeepsTheSizeOfTheFieldWhenOnlyTheFamilyIsChosen)
{
    field.setSelectedFontName(u"DejaVuSans-Bold"_s);
    field.setSelectedFontSize(20.0F);
    auto *families = panel.findChild<QFontComboBox *>();
    ASSERT_NE(families, nullptr);
    families->setCurrentFont(QFont(u"DejaVu Serif"_s));
    Q_EMIT families->activated(families->currentIndex());
    field.changeFont(&panel);
    EXPECT_TRUE(field.selectedFontName().startsWith(u"DejaVuSerif"_s)) << field.selectedFontName().toStdString();
    EXPECT_EQ(field.selectedFontSize(), 20.0F);
}

TEST_F(FontTarget, SetsAFieldThatIsNotBound)
{
    field.changeFont(&panel);
    EXPECT_EQ(field.selectedFontName(), u"DejaVuSans-Bold"_s);
    EXPECT_EQ(field.selectedFontSize(), 12.5F);
}

TEST_F(FontTarget, LeavesAttributesToTheFieldWhichWritesThemToTheirBinding)
{
    new Binding(&field, u"selectedFontAttributes"_s, &controller, u"settings.attributes"_s);
    const QVariantMap attributes{{windowing::backgroundColorAttributeName, QColor(Qt::yellow)}};
    panel.setSelectedAttributes(attributes);
    field.changeDocumentBackgroundColor(&panel);
    EXPECT_EQ(controller.settings()->objectForKey(u"attributes"_s), attributes);
    EXPECT_EQ(field.selectedFontAttributes(), attributes);
}

} // namespace
