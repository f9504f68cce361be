#include <gtest/gtest.h>

#include <QtCore/QCoreApplication>

int main(int argc, char *argv[])
{
    // What the program does must not depend on who runs the tests.
    qputenv("LC_ALL", "C.UTF-8");
    qunsetenv("ORVANE_PLUGIN_PATH");
    const QCoreApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
