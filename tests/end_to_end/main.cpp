#include <gtest/gtest.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>

int main(int argc, char *argv[])
{
    // What the program does must not depend on who runs the tests.
    qputenv("LC_ALL", "C.UTF-8");
    qunsetenv("ORVANE_PLUGIN_PATH");
    const QTemporaryDir defaultsFolder;
    QFile::setPermissions(defaultsFolder.path(), QFile::permissions(defaultsFolder.path()) | QFile::ReadOther |
                                                     QFile::ExeOther); // programs run as other users too
    qputenv("ORVANE_DEFAULTS_FOLDER", defaultsFolder.path().toUtf8());
    const QCoreApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
