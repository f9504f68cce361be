// The ways to a token that need no typing, the context menu, and the keys of the list.

#include <OrvaneExportKit/platform/Translations.h>
#include <tests/support/Printers.h>
#include <tests/support/TokenFields.h>

#include <QtGui/QClipboard>
#include <QtTest/QSignalSpy>
#include <QtWidgets/QDialog>
#include <QtWidgets/QMenu>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QToolButton>

#include <gtest/gtest.h>

#include <stdexcept>

using namespace Qt::Literals::StringLiterals;

namespace {

class TokenFieldMenus : public support::TokenFields
{
protected:
    ~TokenFieldMenus() override
    {
        if (QWidget *popup = QApplication::activePopupWidget()) {
            popup->close();
        }
        platform::setLanguage(QLocale(u"en_US"_s));
    }

    QToolButton &button() { return *m_field.findChild<QToolButton *>(); }

    static QMenu *openMenu() { return qobject_cast<QMenu *>(QApplication::activePopupWidget()); }

    QMenu *openContextMenu(QPoint place = {})
    {
        QContextMenuEvent event(QContextMenuEvent::Mouse, place, editor().viewport()->mapToGlobal(place));
        QApplication::sendEvent(editor().viewport(), &event);
        return openMenu();
    }

    /// The text of an action without its mnemonic and its shortcut.
    static QString text(const QAction &action) { return action.text().section(u'\t', 0, 0).remove(u'&'); }

    static QStringList texts(const QMenu &menu, bool onlyEnabled = false)
    {
        QStringList texts;
        for (const QAction *action : menu.actions()) {
            if (!action->isSeparator() && (action->isEnabled() || !onlyEnabled)) {
                texts.append(text(*action));
            }
        }
        return texts;
    }

    static QAction &action(const QMenu &menu, const QString &searched)
    {
        for (QAction *action : menu.actions()) {
            if (text(*action) == searched) {
                return *action;
            }
        }
        throw std::runtime_error("there is no action " + searched.toStdString());
    }
};

TEST_F(TokenFieldMenus, OfferEveryTokenBehindTheButton)
{
    QTest::mouseClick(&button(), Qt::LeftButton);
    ASSERT_NE(openMenu(), nullptr);
    EXPECT_EQ(texts(*openMenu()), (QStringList{u"Label"_s, u"Name"_s, u"Name of the Folder"_s, u"Number"_s}));
}

TEST_F(TokenFieldMenus, InsertATokenWhereTheCursorIs)
{
    m_field.setValue({u"ab"_s});
    select(1, 1);
    QTest::mouseClick(&button(), Qt::LeftButton);
    action(*openMenu(), u"Number"_s).trigger();
    EXPECT_EQ(m_field.value(), (QStringList{u"a"_s, u"<1>"_s, u"b"_s}));
    openMenu()->close();
    EXPECT_TRUE(editor().hasFocus());
    type(u"x"_s);
    EXPECT_EQ(m_field.value(), (QStringList{u"a"_s, u"<1>"_s, u"xb"_s}));
}

TEST_F(TokenFieldMenus, GiveTheFieldTheFocusAndEndNoEdit)
{
    m_otherField.setFocus();
    const QSignalSpy finished(&m_field, &windowing::TokenField::editingFinished);
    QTest::mouseClick(&button(), Qt::LeftButton);
    action(*openMenu(), u"Name"_s).trigger();
    openMenu()->close();
    EXPECT_TRUE(editor().hasFocus());
    EXPECT_EQ(m_field.value(), QStringList{u"<2>"_s});
    EXPECT_EQ(finished.count(), 0);
}

TEST_F(TokenFieldMenus, ShowAmpersandsOfDisplayStrings)
{
    const KZTokenFieldDelegate delegate({{u"<1>"_s, u"Q&A"_s}});
    m_field.setDelegate(const_cast<KZTokenFieldDelegate *>(&delegate));
    QTest::mouseClick(&button(), Qt::LeftButton);
    ASSERT_NE(openMenu(), nullptr);
    EXPECT_EQ(openMenu()->actions().value(0)->text(), u"Q&&A"_s);
    openMenu()->actions().value(0)->trigger();
    EXPECT_EQ(m_field.value(), QStringList{u"<1>"_s});
}

TEST_F(TokenFieldMenus, SayThatThereAreNoTokens)
{
    const auto delegate = KZTokenFieldDelegate::init();
    m_field.setDelegate(delegate.get());
    QTest::mouseClick(&button(), Qt::LeftButton);
    ASSERT_NE(openMenu(), nullptr);
    EXPECT_EQ(texts(*openMenu()), QStringList{u"No Tokens"_s});
    EXPECT_FALSE(openMenu()->actions().value(0)->isEnabled());
}

TEST_F(TokenFieldMenus, HaveAButtonWhereTokensCanBeInserted)
{
    EXPECT_TRUE(button().isVisible());
    EXPECT_EQ(button().accessibleName(), u"Insert a token"_s);
    const int width = editor().width();
    m_field.setReadOnly(true);
    EXPECT_FALSE(button().isVisible());
    EXPECT_GT(editor().width(), width);
    m_field.setReadOnly(false);
    EXPECT_TRUE(button().isVisible());
    EXPECT_EQ(editor().width(), width);
    m_field.setDelegate(nullptr);
    EXPECT_FALSE(button().isVisible());
}

TEST_F(TokenFieldMenus, HaveTheButtonBehindTheText)
{
    EXPECT_LT(editor().geometry().right(), button().geometry().left());
    EXPECT_TRUE(m_field.rect().contains(button().geometry()));
    m_window.setLayoutDirection(Qt::RightToLeft);
    EXPECT_GT(editor().geometry().left(), button().geometry().right());
    EXPECT_TRUE(m_field.rect().contains(button().geometry()));
}

TEST_F(TokenFieldMenus, HaveAContextMenu)
{
    m_field.setValue({u"a"_s, u"<2>"_s, u"b"_s});
    select(0, 2);
    QApplication::clipboard()->setText(u"earlier"_s);
    const QMenu *menu = openContextMenu();
    ASSERT_NE(menu, nullptr);
    EXPECT_EQ(texts(*menu), (QStringList{u"Undo"_s, u"Redo"_s, u"Cut"_s, u"Copy"_s, u"Paste"_s, u"Delete"_s,
                                         u"Select All"_s, u"Insert Token"_s}));
    action(*menu, u"Cut"_s).trigger();
    EXPECT_EQ(m_field.value(), QStringList{u"b"_s});
    EXPECT_EQ(QApplication::clipboard()->text(), u"aName"_s);
    action(*menu, u"Paste"_s).trigger();
    EXPECT_EQ(m_field.value(), (QStringList{u"a"_s, u"<2>"_s, u"b"_s}));
    action(*menu, u"Select All"_s).trigger();
    EXPECT_EQ(editor().textCursor().selectedText().size(), 3);
    action(*menu, u"Copy"_s).trigger();
    EXPECT_EQ(QApplication::clipboard()->text(), u"aNameb"_s);
    action(*menu, u"Delete"_s).trigger();
    EXPECT_EQ(m_field.value(), QStringList());
    action(*action(*menu, u"Insert Token"_s).menu(), u"Label"_s).trigger();
    EXPECT_EQ(m_field.value(), QStringList{u"<4>"_s});
}

TEST_F(TokenFieldMenus, UndoAndRedoFromTheContextMenu)
{
    type(u"x"_s);
    action(*openContextMenu(), u"Undo"_s).trigger();
    EXPECT_EQ(m_field.value(), QStringList());
    openMenu()->close();
    action(*openContextMenu(), u"Redo"_s).trigger();
    EXPECT_EQ(m_field.value(), QStringList{u"x"_s});
}

TEST_F(TokenFieldMenus, EnableInTheContextMenuWhatCanBeDone)
{
    QApplication::clipboard()->clear();
    const auto enabled = [this] {
        QMenu &menu = *openContextMenu();
        const QStringList enabledTexts = texts(menu, true);
        menu.close();
        return enabledTexts;
    };
    EXPECT_EQ(enabled(), QStringList{u"Insert Token"_s});
    type(u"x"_s);
    EXPECT_EQ(enabled(), (QStringList{u"Undo"_s, u"Select All"_s, u"Insert Token"_s}));
    editor().selectAll();
    QApplication::clipboard()->setText(u"y"_s);
    EXPECT_EQ(enabled(), (QStringList{u"Undo"_s, u"Cut"_s, u"Copy"_s, u"Paste"_s, u"Delete"_s, u"Insert Token"_s}));
    m_field.setReadOnly(true);
    EXPECT_EQ(enabled(), QStringList{u"Copy"_s});
}

TEST_F(TokenFieldMenus, SelectTheTokenThatAContextMenuIsOpenedOn)
{
    m_field.setValue({u"a"_s, u"<2>"_s});
    QMenu *menu = openContextMenu(centreOf(1));
    ASSERT_NE(menu, nullptr);
    EXPECT_EQ(editor().textCursor().selectionStart(), 1);
    EXPECT_EQ(editor().textCursor().selectionEnd(), 2);
}

TEST_F(TokenFieldMenus, EndNoEditWhenAMenuOpens)
{
    const QSignalSpy finished(&m_field, &windowing::TokenField::editingFinished);
    type(u"Name"_s);
    openContextMenu();
    EXPECT_EQ(finished.count(), 0);
    EXPECT_EQ(m_field.value(), QStringList{u"Name"_s});
}

TEST_F(TokenFieldMenus, SpeakTheLanguageOfTheKit)
{
    platform::setLanguage(QLocale(u"de_DE"_s));
    EXPECT_TRUE(QTest::qWaitFor([this] { return button().accessibleName() == u"Platzhalter einf\u00FCgen"_s; }));
    const QMenu *menu = openContextMenu();
    ASSERT_NE(menu, nullptr);
    EXPECT_EQ(texts(*menu), (QStringList{u"R\u00FCckg\u00E4ngig"_s, u"Wiederholen"_s, u"Ausschneiden"_s, u"Kopieren"_s,
                                         u"Einf\u00FCgen"_s, u"L\u00F6schen"_s, u"Alles ausw\u00E4hlen"_s,
                                         u"Platzhalter einf\u00FCgen"_s}));
}

/// A dialog whose default button must not have a key that the list of a field was meant to get.
class TokenFieldInADialog : public testing::Test
{
protected:
    TokenFieldInADialog()
    {
        auto *layout = new QVBoxLayout(&m_dialog);
        layout->addWidget(&m_field);
        layout->addWidget(&m_button);
        m_button.setDefault(true);
        m_field.setDelegate(&m_delegate);
        m_dialog.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&m_dialog));
        m_field.setFocus();
    }

    void type(const QString &text) { QTest::keyClicks(m_field.findChild<QTextEdit *>(), text); }
    void press(Qt::Key key) { QTest::keyClick(m_field.findChild<QTextEdit *>(), key); }

    KZTokenFieldDelegate m_delegate{{{u"<1>"_s, u"Number"_s}, {u"<2>"_s, u"Name"_s}, {u"<3>"_s, u"Namesake"_s}}};
    QDialog m_dialog;
    windowing::TokenField m_field;
    QPushButton m_button;
    QSignalSpy m_clicks{&m_button, &QPushButton::clicked};
};

TEST_F(TokenFieldInADialog, CompletesWhatIsTypedOnReturn)
{
    type(u"my nu"_s);
    press(Qt::Key_Return);
    EXPECT_EQ(m_field.value(), (QStringList{u"my "_s, u"<1>"_s}));
    EXPECT_EQ(m_clicks.count(), 0);
    press(Qt::Key_Return);
    EXPECT_EQ(m_clicks.count(), 1);
}

TEST_F(TokenFieldInADialog, CompletesToWhatIsTypedInFullOnReturn)
{
    type(u"Name"_s);
    press(Qt::Key_Enter);
    EXPECT_EQ(m_field.value(), QStringList{u"<2>"_s});
    EXPECT_EQ(m_clicks.count(), 0);
}

TEST_F(TokenFieldInADialog, KeepsTheTextOnReturnWhenTheListWasClosed)
{
    type(u"nu"_s);
    press(Qt::Key_Escape);
    EXPECT_TRUE(m_dialog.isVisible());
    press(Qt::Key_Return);
    EXPECT_EQ(m_field.value(), QStringList{u"nu"_s});
    EXPECT_EQ(m_clicks.count(), 1);
}

TEST_F(TokenFieldInADialog, ShowsATokenThatReturnHasMadeBeforeTheDefaultButtonIsPressed)
{
    type(u"<1>"_s);
    press(Qt::Key_Return);
    EXPECT_EQ(m_field.displayText(), u"Number"_s);
    EXPECT_EQ(m_clicks.count(), 0);
    press(Qt::Key_Return);
    EXPECT_EQ(m_clicks.count(), 1);
}

} // namespace
