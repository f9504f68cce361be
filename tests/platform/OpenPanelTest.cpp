#include <OrvaneExportKit/platform/OpenPanel.h>
#include <tests/support/Printers.h>
#include <tests/support/RecordingOpenPanel.h>

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;
using support::RecordingOpenPanel;

namespace {

TEST(RequiredFileType, IsEmptyWithoutAPanel)
{
    platform::setOpenPanel(nullptr);
    EXPECT_EQ(platform::requiredFileType(), QString());
}

TEST(RequiredFileType, IsWhatThePanelAnswers)
{
    const RecordingOpenPanel panel(u"rtf"_s);
    EXPECT_EQ(platform::requiredFileType(), u"rtf"_s);
}

TEST(RequiredFileType, AsksThePanelEveryTime)
{
    const RecordingOpenPanel panel(u"rtf"_s);
    platform::requiredFileType();
    platform::requiredFileType();
    EXPECT_EQ(panel.timesAsked(), 2);
}

TEST(RequiredFileType, ComesFromThePanelThatWasSetLast)
{
    const RecordingOpenPanel first(u"rtf"_s);
    const RecordingOpenPanel second(u"html"_s);
    EXPECT_EQ(platform::requiredFileType(), u"html"_s);
    EXPECT_EQ(first.timesAsked(), 0);
}

TEST(RequiredFileType, IsEmptyAgainWhenThePanelIsUnset)
{
    const RecordingOpenPanel panel(u"rtf"_s);
    platform::setOpenPanel(nullptr);
    EXPECT_EQ(platform::requiredFileType(), QString());
    EXPECT_EQ(panel.timesAsked(), 0);
}

} // namespace
