#include <OrvaneExportKit/controls/KZContentView.h>
#include <tests/support/PanelController.h>
#include <tests/support/Printers.h>

#include <OrvaneExportKit/windowing/Binding.h>

#include <QtCore/QPointer>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QDoubleSpinBox>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPlainTextEdit>
#include <QtWidgets/QSpinBox>
#include <QtWidgets/QVBoxLayout>

#include <gtest/gtest.h>

#include <memory>
#include <type_traits>

using namespace Qt::Literals::StringLiterals;
using windowing::Binding;

namespace {

/// A window with a field of its own, and a content view with a bound field for a title.
class ContentView : public testing::Test
{
protected:
    ContentView()
    {
        auto *layout = new QVBoxLayout(m_window.get());
        layout->addWidget(m_otherField);
        layout->addWidget(m_view);
        m_view->setLayout(new QVBoxLayout);
        m_view->layout()->addWidget(m_field);
        bind(*m_field, u"text"_s, u"settings.title"_s);
    }

    ~ContentView() override
    {
        if (m_view != nullptr && m_view->parent() == nullptr) {
            delete m_view;
        }
    }

    void bind(QWidget &editor, const QString &name, const QString &keyPath)
    {
        new Binding(&editor, name, &m_controller, keyPath);
    }

    template <typename Editor>
    Editor &addEditor(const QString &name, const QString &key)
    {
        auto *editor = new Editor;
        m_view->layout()->addWidget(editor);
        if constexpr (std::is_same_v<Editor, QComboBox>) {
            editor->setEditable(true);
        } else if constexpr (std::is_base_of_v<QAbstractSpinBox, Editor>) {
            editor->setKeyboardTracking(false);
        }
        bind(*editor, name, u"settings."_s + key);
        if constexpr (std::is_base_of_v<QAbstractSpinBox, Editor>) {
            editor->selectAll();
        }
        return *editor;
    }

    void showWindow()
    {
        m_window->show();
        m_window->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(m_window.get()));
    }

    static void type(QWidget &editor, const QString &text)
    {
        editor.setFocus();
        QTest::keyClicks(&editor, text);
    }

    QVariant stored(const QString &key) const { return m_controller.settings()->objectForKey(key); }

    support::PanelController m_controller;
    std::unique_ptr<QWidget> m_window = std::make_unique<QWidget>();
    QLineEdit *m_otherField = new QLineEdit;
    QPointer<KZContentView> m_view = new KZContentView;
    QLineEdit *m_field = new QLineEdit;
};

TEST_F(ContentView, InNoWindowIsTakenOutOfItsSuperview)
{
    QWidget superview;
    auto *view = new KZContentView(&superview);
    view->removeFromSuperview();
    EXPECT_EQ(view->parentWidget(), nullptr);
    EXPECT_TRUE(superview.children().isEmpty());
    view->removeFromSuperview();
    EXPECT_EQ(view->parentWidget(), nullptr);
    delete view;
}

TEST_F(ContentView, TakenOutDuringAnEditCommitsItAndLeavesTheFocusToTheWindow)
{
    showWindow();
    type(*m_field, u"Novel"_s);
    ASSERT_FALSE(stored(u"title"_s).isValid());
    m_view->removeFromSuperview();
    EXPECT_EQ(stored(u"title"_s), QVariant(u"Novel"_s));
    EXPECT_EQ(QApplication::focusWidget(), m_window.get());
    EXPECT_EQ(m_view->parentWidget(), nullptr);
    EXPECT_TRUE(m_view->isHidden());
}

TEST_F(ContentView, TakenOutWhileAControlOutsideHasTheFocusMovesItToTheWindow)
{
    bind(*m_otherField, u"text"_s, u"settings.other"_s);
    showWindow();
    type(*m_otherField, u"outside"_s);
    m_view->removeFromSuperview();
    EXPECT_EQ(QApplication::focusWidget(), m_window.get());
    EXPECT_EQ(stored(u"other"_s), QVariant(u"outside"_s));
}

TEST_F(ContentView, CommitsAnEditInAWindowThatIsNotActive)
{
    QTest::keyClicks(m_field, u"Novel"_s);
    m_field->setFocus();
    m_view->removeFromSuperview();
    EXPECT_EQ(stored(u"title"_s), QVariant(u"Novel"_s));
}

TEST_F(ContentView, IsTakenOutAlsoWhenAFieldRefusesItsValue)
{
    m_controller.settings()->setObject(72, u"lineLength"_s);
    auto &field = addEditor<QLineEdit>(u"text"_s, u"lineLength"_s);
    showWindow();
    type(field, u"many"_s);
    m_view->removeFromSuperview();
    EXPECT_EQ(m_view->parentWidget(), nullptr);
    EXPECT_EQ(stored(u"lineLength"_s), QVariant(72));
}

TEST_F(ContentView, CommitsWhenItGetsAnotherParent)
{
    showWindow();
    type(*m_field, u"Novel"_s);
    QWidget otherWindow;
    m_view->setParent(&otherWindow);
    EXPECT_EQ(stored(u"title"_s), QVariant(u"Novel"_s));
    EXPECT_EQ(QApplication::focusWidget(), m_window.get());
}

TEST_F(ContentView, CommitsWhenItIsLeftWithoutAParent)
{
    showWindow();
    type(*m_field, u"Novel"_s);
    m_view->setParent(nullptr);
    EXPECT_EQ(stored(u"title"_s), QVariant(u"Novel"_s));
    EXPECT_EQ(QApplication::focusWidget(), m_window.get());
}

TEST_F(ContentView, CommitsWhenItsSuperviewIsTakenOut)
{
    auto *superview = new QWidget;
    m_view->setParent(superview);
    m_window->layout()->addWidget(superview);
    m_view->show();
    showWindow();
    type(*m_field, u"Novel"_s);
    superview->setParent(nullptr);
    EXPECT_EQ(stored(u"title"_s), QVariant(u"Novel"_s));
    delete superview;
}

TEST_F(ContentView, CommitsWhenItIsDeleted)
{
    showWindow();
    type(*m_field, u"Novel"_s);
    delete m_view;
    EXPECT_EQ(stored(u"title"_s), QVariant(u"Novel"_s));
}

TEST_F(ContentView, CommitsWhenItsWindowIsDeleted)
{
    showWindow();
    type(*m_field, u"Novel"_s);
    m_window.reset();
    EXPECT_EQ(stored(u"title"_s), QVariant(u"Novel"_s));
}

TEST_F(ContentView, CommitsWhatIsTypedIntoASpinBox)
{
    auto &spinBox = addEditor<QSpinBox>(u"value"_s, u"count"_s);
    showWindow();
    type(spinBox, u"12"_s);
    m_view->removeFromSuperview();
    EXPECT_EQ(stored(u"count"_s), QVariant(12));
}

TEST_F(ContentView, CommitsWhatIsTypedIntoASpinBoxForFractions)
{
    auto &spinBox = addEditor<QDoubleSpinBox>(u"value"_s, u"width"_s);
    spinBox.setLocale(QLocale::c());
    showWindow();
    type(spinBox, u"2.5"_s);
    m_view->removeFromSuperview();
    EXPECT_EQ(stored(u"width"_s), QVariant(2.5));
}

TEST_F(ContentView, CommitsWhatIsTypedIntoAComboBox)
{
    auto &comboBox = addEditor<QComboBox>(u"currentText"_s, u"encoding"_s);
    showWindow();
    type(comboBox, u"UTF-7"_s);
    m_view->removeFromSuperview();
    EXPECT_EQ(stored(u"encoding"_s), QVariant(u"UTF-7"_s));
}

TEST_F(ContentView, CommitsWhatIsTypedIntoATextEdit)
{
    auto &edit = addEditor<QPlainTextEdit>(u"plainText"_s, u"header"_s);
    showWindow();
    type(edit, u"Header"_s);
    m_view->removeFromSuperview();
    EXPECT_EQ(stored(u"header"_s), QVariant(u"Header"_s));
}

TEST_F(ContentView, CanBePutBackAndEditedAgain)
{
    showWindow();
    m_view->removeFromSuperview();
    m_window->layout()->addWidget(m_view);
    m_view->show();
    type(*m_field, u"Again"_s);
    m_view->removeFromSuperview();
    EXPECT_EQ(stored(u"title"_s), QVariant(u"Again"_s));
}

} // namespace
