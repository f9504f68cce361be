#include <OrvaneExportKit/windowing/OpenPanel.h>

#include <gtest/gtest.h>

namespace {

using namespace Qt::Literals::StringLiterals;
using windowing::OpenPanel;

class WindowingOpenPanel : public testing::Test
{
protected:
    ~WindowingOpenPanel() override { OpenPanel::openPanel().setRequiredFileType({}); }
};

TEST_F(WindowingOpenPanel, IsWhatCoreAsksInAnApplicationWithWindows)
{
    EXPECT_EQ(platform::requiredFileType(), QString());
    OpenPanel::openPanel().setRequiredFileType(u"rtf"_s);
    EXPECT_EQ(platform::requiredFileType(), u"rtf"_s);
}

TEST_F(WindowingOpenPanel, RestrictsItsDialogToTheRequiredFileType)
{
    OpenPanel::openPanel().setRequiredFileType(u"rtf"_s);
    const auto dialog = OpenPanel::openPanel().fileDialog();
    EXPECT_EQ(dialog->nameFilters(), QStringList{u"*.rtf"_s});
    EXPECT_EQ(dialog->defaultSuffix(), u"rtf"_s);
}

TEST_F(WindowingOpenPanel, LeavesItsDialogOpenToAllFilesWithoutARequiredType)
{
    const auto dialog = OpenPanel::openPanel().fileDialog();
    EXPECT_EQ(dialog->nameFilters(), QStringList{u"All Files (*)"_s});
}

} // namespace
