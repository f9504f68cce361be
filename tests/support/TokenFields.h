#pragma once

#include <OrvaneExportKit/controls/KZTokenFieldDelegate.h>
#include <OrvaneExportKit/windowing/TokenField.h>

#include <gtest/gtest.h>

#include <QtCore/QMimeData>
#include <QtGui/QDragEnterEvent>
#include <QtGui/QDropEvent>
#include <QtGui/QInputMethodEvent>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QListView>
#include <QtWidgets/QTextEdit>
#include <QtWidgets/QVBoxLayout>

namespace support {

using namespace Qt::Literals::StringLiterals;

/// Drops something at a point of a widget, as the window system lets a program know it. Answers the action that the
/// widget has taken, which is none when it has refused.
inline Qt::DropAction drop(QWidget &widget, QPoint place, const QMimeData &data, Qt::DropAction action = Qt::CopyAction)
{
    QDragEnterEvent enter(place, action, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&widget, &enter);
    if (!enter.isAccepted()) {
        return Qt::IgnoreAction;
    }
    QDropEvent drop(place, action, &data, Qt::LeftButton, Qt::NoModifier);
    drop.ignore();
    QApplication::sendEvent(&widget, &drop);
    return drop.isAccepted() ? drop.dropAction() : Qt::IgnoreAction;
}

/// A window with a field for file names that knows Label, Name, Number and "Name of the Folder", and another field.
class TokenFields : public testing::Test
{
protected:
    TokenFields()
    {
        auto *layout = new QVBoxLayout(&m_window);
        layout->addWidget(&m_field);
        layout->addWidget(&m_otherField);
        m_field.setDelegate(&m_delegate);
        m_window.resize(400, 100);
        m_window.show();
        m_window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&m_window));
        m_field.setFocus();
    }

    QTextEdit &editor() { return *m_field.findChild<QTextEdit *>(); }
    QListView &list() { return *m_field.findChild<QListView *>(); }

    QStringList offered()
    {
        QStringList strings;
        for (int row = 0; list().isVisible() && row < list().model()->rowCount(); ++row) {
            strings.append(list().model()->index(row, 0).data().toString());
        }
        return strings;
    }

    void type(const QString &text) { QTest::keyClicks(&editor(), text); }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) { QTest::keyClick(&editor(), key, modifiers); }

    void compose(const QString &preedit, const QString &committed = {})
    {
        QInputMethodEvent event(preedit, {});
        event.setCommitString(committed);
        QApplication::sendEvent(&editor(), &event);
    }

    void select(int from, int to)
    {
        QTextCursor cursor = editor().textCursor();
        cursor.setPosition(from);
        cursor.setPosition(to, QTextCursor::KeepAnchor);
        editor().setTextCursor(cursor);
    }

    /// Where the character at a position stands in the viewport.
    QPoint centreOf(int position)
    {
        QTextCursor cursor = editor().textCursor();
        cursor.setPosition(position);
        const QRect start = editor().cursorRect(cursor);
        cursor.setPosition(position + 1);
        return (start.center() + editor().cursorRect(cursor).center()) / 2;
    }

    KZTokenFieldDelegate m_delegate{
        {{u"<1>"_s, u"Number"_s}, {u"<2>"_s, u"Name"_s}, {u"<4>"_s, u"Label"_s}, {u"<5>"_s, u"Name of the Folder"_s}}};
    QWidget m_window;
    windowing::TokenField m_field;
    QLineEdit m_otherField;
};

} // namespace support
