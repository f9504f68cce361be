// What is dropped on a bound field is stored at once, whichever field has the focus.

#include <OrvaneExportKit/windowing/Binding.h>
#include <tests/support/PanelController.h>
#include <tests/support/Printers.h>
#include <tests/support/TokenFields.h>

#include <QtWidgets/QComboBox>
#include <QtWidgets/QPlainTextEdit>

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;
using windowing::Binding;

namespace {

/// A control of a panel that has not the focus.
template <typename Control>
class BoundControl
{
public:
    explicit BoundControl(const QString &name) { bind(name); }

    void bind(const QString &name)
    {
        new Binding(&m_control, name, &m_controller, u"settings.value"_s);
        m_panel.resize(300, 100);
        m_panel.show();
        m_panel.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&m_panel));
        m_otherField.setFocus();
    }

    Control &control() { return m_control; }

    /// What is stored as soon as something has been dropped on a widget.
    QVariant storedAfterDrop(QWidget &receiver, const QString &text)
    {
        QMimeData data;
        data.setText(text);
        EXPECT_NE(support::drop(receiver, receiver.rect().center(), data), Qt::IgnoreAction);
        QApplication::processEvents();
        EXPECT_FALSE(m_control.hasFocus());
        return m_controller.settings()->objectForKey(u"value"_s);
    }

private:
    support::PanelController m_controller;
    QWidget m_panel;
    Control m_control{&m_panel};
    QLineEdit m_otherField{&m_panel};
};

TEST(BindingDrop, StoresTextOnALineEdit)
{
    BoundControl<QLineEdit> bound(u"text"_s);
    EXPECT_EQ(bound.storedAfterDrop(bound.control(), u"Title"_s), QVariant(u"Title"_s));
}

TEST(BindingDrop, StoresTextOnATextEditor)
{
    BoundControl<QPlainTextEdit> bound(u"plainText"_s);
    EXPECT_EQ(bound.storedAfterDrop(*bound.control().viewport(), u"Title"_s), QVariant(u"Title"_s));
}

TEST(BindingDrop, StoresTextOnAComboBox)
{
    BoundControl<QComboBox> bound(u"currentText"_s);
    bound.control().setEditable(true);
    bound.bind(u"currentText"_s);
    EXPECT_EQ(bound.storedAfterDrop(*bound.control().lineEdit(), u"UTF-16"_s), QVariant(u"UTF-16"_s));
}

} // namespace
