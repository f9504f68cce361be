#include <OrvaneExportKit/windowing/ProgressIndicator.h>

#include <tests/support/PaintCounter.h>

#include <gtest/gtest.h>

#include <QtTest/QTest>

namespace {

using windowing::ProgressIndicator;

/// How much of the bar is full.
double filled(const ProgressIndicator &bar)
{
    return static_cast<double>(bar.value() - bar.minimum()) / (bar.maximum() - bar.minimum());
}

TEST(ProgressIndicator, ScalesItsRangeToTheBar)
{
    ProgressIndicator bar;
    bar.setMinValue(10);
    bar.setMaxValue(20);
    bar.setDoubleValue(12.5);
    EXPECT_DOUBLE_EQ(filled(bar), 0.25);
    EXPECT_EQ(bar.doubleValue(), 12.5);
}

TEST(ProgressIndicator, ReachesItsEndAtTheLargestRange)
{
    ProgressIndicator bar;
    bar.setMaxValue(4294967295.0);
    bar.setDoubleValue(4294967295.0);
    EXPECT_DOUBLE_EQ(filled(bar), 1.0);
    bar.setDoubleValue(2147483648.0);
    EXPECT_NEAR(filled(bar), 0.5, 0.0001);
}

TEST(ProgressIndicator, IsFullOnlyAtItsEnd)
{
    ProgressIndicator bar;
    bar.setMaxValue(4294967295.0);
    bar.setDoubleValue(4294967294.0);
    EXPECT_LT(filled(bar), 1.0);
}

TEST(ProgressIndicator, IsEmptyAndNotBusyWithoutARange)
{
    ProgressIndicator bar;
    bar.setMaxValue(0);
    bar.setDoubleValue(0);
    EXPECT_LT(bar.minimum(), bar.maximum());
    EXPECT_DOUBLE_EQ(filled(bar), 0.0);
}

TEST(ProgressIndicator, IsEmptyOrFullOutsideItsRange)
{
    ProgressIndicator bar;
    bar.setDoubleValue(-5);
    EXPECT_DOUBLE_EQ(filled(bar), 0.0);
    EXPECT_EQ(bar.doubleValue(), -5.0);
    bar.setDoubleValue(500);
    EXPECT_DOUBLE_EQ(filled(bar), 1.0);
}

TEST(ProgressIndicator, IsRedrawnAtOnceWhereItLooksDifferent)
{
    ProgressIndicator bar;
    bar.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&bar));
    const support::PaintCounter paints(bar);
    bar.setDoubleValue(50);
    EXPECT_EQ(paints.count(), 1);
    bar.setDoubleValue(50);
    EXPECT_EQ(paints.count(), 1);
}

} // namespace
