#include "EchoPlugin.h"

#include <examples/host/window/SettingsPanel.h>

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace host_tests {

namespace {

TEST(SettingsPanel, ShowsTheDefaultsOfWhatTheSettingsLack)
{
    host_tests::EchoPlugin plugin;
    host::SettingsPanel panel;
    panel.showPanel(plugin);
    EXPECT_EQ(plugin.settings().objectForKey(u"suffix"_s).toString(), u"<"_s);
    EXPECT_EQ(plugin.settings().objectForKey(u"prefix"_s).toString(), u">"_s);
}

} // namespace

} // namespace host_tests
