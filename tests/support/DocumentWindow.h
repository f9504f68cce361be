#pragma once

#include <OrvaneExportKit/windowing/MainWindow.h>

#include <gtest/gtest.h>

#include <QtTest/QTest>
#include <QtWidgets/QPlainTextEdit>

namespace support {

/// The application's main window for as long as the object lives: a text that the user can type into.
class DocumentWindow : public QPlainTextEdit
{
public:
    DocumentWindow()
    {
        resize(800, 600);
        show();
        activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(this));
        windowing::setMainWindow(this);
    }
};

} // namespace support
