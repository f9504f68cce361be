// A delegate that throws harms nothing but its own tokens, and is told of once.

#include <tests/support/Printers.h>
#include <tests/support/RecordingAlert.h>
#include <tests/support/TokenFields.h>

#include <QtGui/QAccessible>
#include <QtTest/QSignalSpy>
#include <QtWidgets/QMenu>
#include <QtWidgets/QToolButton>

#include <gtest/gtest.h>

#include <stdexcept>

using namespace Qt::Literals::StringLiterals;

namespace {

class ThrowingDelegate final : public windowing::TokenFieldDelegate
{
public:
    QString representedObjectForEditingString(windowing::TokenField *, const QString &) const override
    {
        throw std::runtime_error("represented");
    }
    QString displayStringForRepresentedObject(windowing::TokenField *, const QString &) const override
    {
        throw std::runtime_error("display");
    }
    QStringList completionsForSubstring(windowing::TokenField *, const QString &, qint32, qint32 *) const override
    {
        throw 1;
    }
};

/// Stands before the fields, so that errors are recorded as long as there are any.
class Alerts
{
protected:
    support::RecordingAlert m_alert;
};

class TokenFieldErrors : protected Alerts, public support::TokenFields
{
protected:
    ~TokenFieldErrors() override
    {
        m_field.disconnect(&m_otherField);
        m_field.setDelegate(nullptr);
        QApplication::processEvents(); // what is to be told has been
    }

    void repaint()
    {
        for (int time = 0; time < 3; ++time) {
            m_field.grab();
            QApplication::processEvents();
        }
    }
};

TEST_F(TokenFieldErrors, ShowTheObjectItselfAndTellOnceWhenTheDelegateThrows)
{
    ThrowingDelegate delegate;
    m_field.setDelegate(&delegate);
    m_field.setValue({u"<2>"_s, u"x"_s});
    EXPECT_EQ(m_field.displayText(), u"<2>x"_s);
    repaint();
    type(u"n"_s);
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    m_otherField.setFocus();
    repaint();
    EXPECT_EQ(m_field.value(), QStringList{u"<2>xn"_s});
    EXPECT_EQ(m_alert.errors.size(), 1);
    m_field.setDelegate(nullptr);
}

TEST_F(TokenFieldErrors, TellAgainOfAnotherDelegate)
{
    ThrowingDelegate first;
    m_field.setValue({u"<2>"_s});
    m_field.setDelegate(&first);
    repaint();
    ThrowingDelegate second;
    m_field.setDelegate(&second);
    repaint();
    EXPECT_EQ(m_alert.errors.size(), 2);
    m_field.setDelegate(nullptr);
}

TEST_F(TokenFieldErrors, ShowTheTokensThatAreRightWhenTheListsOfADelegateDiffer)
{
    KZTokenFieldDelegate delegate;
    delegate.setDisplayStrings({u"Name"_s, u"Number"_s});
    delegate.setRepresentedObjects({u"<2>"_s});
    m_field.setDelegate(&delegate);
    m_field.setValue({u"<2>"_s, u"Number"_s, u"<1>"_s});
    repaint();
    EXPECT_EQ(m_field.displayText(), u"NameNumber<1>"_s);
    EXPECT_EQ(m_field.value(), (QStringList{u"<2>"_s, u"Number"_s, u"<1>"_s}));
    press(Qt::Key_End);
    type(u" Number"_s);
    press(Qt::Key_Return);
    press(Qt::Key_Return);
    EXPECT_EQ(m_field.value(), (QStringList{u"<2>"_s, u"Number<1> Number"_s}));
    ASSERT_EQ(m_alert.errors.size(), 1);
    EXPECT_TRUE(m_alert.errors.first().contains("lies outside a list of 1"_L1));
    m_field.setDelegate(nullptr);
}

TEST_F(TokenFieldErrors, ShowATokenAsItsObjectWhenTheDelegateLosesIt)
{
    KZTokenFieldDelegate delegate({{u"<2>"_s, u"Name"_s}});
    m_field.setDelegate(&delegate);
    m_field.setValue({u"<2>"_s});
    delegate.setDisplayStrings({});
    repaint();
    EXPECT_EQ(m_field.displayText(), u"<2>"_s);
    EXPECT_EQ(m_alert.errors.size(), 1);
    m_field.setDelegate(nullptr);
}

TEST_F(TokenFieldErrors, AreReadAsTheirObjectsByScreenReaders)
{
    ThrowingDelegate delegate;
    m_field.setDelegate(&delegate);
    m_field.setValue({u"<2>"_s});
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&m_field)->text(QAccessible::Value), u"<2>"_s);
    m_field.setDelegate(nullptr);
}

TEST_F(TokenFieldErrors, KeepErrorsOfWhoIsToldOfAnEditOutOfTheEventLoop)
{
    QObject::connect(&m_field, &windowing::TokenField::valueChanged, &m_otherField,
                     [] { throw std::runtime_error("nobody wants this value"); });
    QObject::connect(&m_field, &windowing::TokenField::editingFinished, &m_otherField,
                     [] { throw std::runtime_error("nor its end"); });
    type(u"x"_s);
    QApplication::processEvents();
    ASSERT_EQ(m_alert.errors.size(), 1);
    EXPECT_TRUE(m_alert.errors.first().contains("nobody wants this value"_L1));
    m_otherField.setFocus();
    QApplication::processEvents();
    EXPECT_EQ(m_alert.errors.size(), 2);
    EXPECT_EQ(m_field.value(), QStringList{u"x"_s});
}

} // namespace
