#pragma once

#include <gtest/gtest.h>

#include <QtCore/QTimer>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QPushButton>

/// \file
/// Input as a user gives it: mouse and keys reach the window, as from the window system, and go on from there.

namespace support {

/// Waits until a window has the keyboard. (Qt Test takes a sheet for active when the window below it is.)
inline testing::AssertionResult isActive(const QWidget *window)
{
    return QTest::qWaitFor([window] { return QApplication::activeWindow() == window; })
               ? testing::AssertionSuccess()
               : testing::AssertionFailure() << "the window did not become active";
}

inline void click(const QWidget &widget)
{
    const QWidget *window = widget.window();
    QTest::mouseClick(window->windowHandle(), Qt::LeftButton, {}, widget.mapTo(window, widget.rect().center()));
}

inline void press(const QWidget &window, Qt::Key key, Qt::KeyboardModifiers modifiers = {})
{
    QTest::keyClick(window.window()->windowHandle(), key, modifiers);
}

/// Does something with the modal window as soon as the application handles events.
template <typename Action>
void whenModal(const Action &action)
{
    QTimer::singleShot(0, [action] {
        QWidget *window = QApplication::activeModalWidget();
        ASSERT_NE(window, nullptr);
        ASSERT_TRUE(isActive(window));
        action(*window);
    });
}

/// A button of a window.
inline QPushButton &button(const QWidget &window, const char *name)
{
    return *window.findChild<QPushButton *>(QString::fromLatin1(name));
}

} // namespace support
