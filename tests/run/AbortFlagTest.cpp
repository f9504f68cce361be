#include <OrvaneExportKit/run/AbortFlag.h>

#include <OrvaneExportKit/settings/SettingsKeys.h>

#include <gtest/gtest.h>

namespace {

using namespace Qt::Literals::StringLiterals;
using platform::AbortFlag;
using platform::NotificationCenter;

TEST(AbortFlag, IsSetByTheNotificationOfItsProgressObject)
{
    const QObject progress;
    const AbortFlag flag(progress);
    EXPECT_FALSE(flag.isSet());
    NotificationCenter::defaultCenter().postNotificationName(KZAbortExportNotification, &progress);
    EXPECT_TRUE(flag.isSet());
}

TEST(AbortFlag, IgnoresOtherObjectsAndOtherNotifications)
{
    const QObject progress;
    const QObject other;
    const AbortFlag flag(progress);
    NotificationCenter::defaultCenter().postNotificationName(KZAbortExportNotification, &other);
    NotificationCenter::defaultCenter().postNotificationName(u"Finished"_s, &progress);
    EXPECT_FALSE(flag.isSet());
}

} // namespace
