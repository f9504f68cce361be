#include <OrvaneExportKit/windowing/MainWindow.h>

#include <gtest/gtest.h>

#include <QtTest/QTest>

#include <memory>

namespace {

using windowing::mainWindow;
using windowing::setMainWindow;

class MainWindow : public testing::Test
{
protected:
    ~MainWindow() override { setMainWindow(nullptr); }

    QWidget m_window;
};

TEST_F(MainWindow, IsTheOneThatTheHostHasSetWhileItIsVisible)
{
    setMainWindow(&m_window);
    EXPECT_EQ(mainWindow(), nullptr);
    m_window.show();
    EXPECT_EQ(mainWindow(), &m_window);
}

TEST_F(MainWindow, IsTheWindowAroundAWidgetThatTheHostHasSet)
{
    QWidget part(&m_window);
    m_window.show();
    setMainWindow(&part);
    EXPECT_EQ(mainWindow(), &m_window);
}

TEST_F(MainWindow, IsElseTheActiveOne)
{
    m_window.show();
    m_window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&m_window));
    EXPECT_EQ(mainWindow(), &m_window);
}

TEST_F(MainWindow, IsNoneOnceItIsDestroyed)
{
    auto window = std::make_unique<QWidget>();
    window->show();
    setMainWindow(window.get());
    window.reset();
    EXPECT_EQ(mainWindow(), nullptr);
}

} // namespace
