#include <OrvaneExportKit/windowing/Binding.h>
#include <tests/support/PanelController.h>
#include <tests/support/Printers.h>
#include <tests/support/TokenFields.h>

#include <QtCore/QElapsedTimer>
#include <QtCore/QMimeData>
#include <QtGui/QAccessible>
#include <QtGui/QClipboard>
#include <QtGui/QTextBlock>
#include <QtGui/QTextLayout>
#include <QtTest/QSignalSpy>
#include <QtWidgets/QLabel>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <memory>

using namespace Qt::Literals::StringLiterals;
using windowing::TokenField;

namespace {

using TokenFields = support::TokenFields;

TEST_F(TokenFields, ShowTokensBetweenText)
{
    m_field.setValue({u"<2>"_s, u", "_s, u"<1>"_s});
    EXPECT_EQ(m_field.value(), (QStringList{u"<2>"_s, u", "_s, u"<1>"_s}));
    EXPECT_EQ(m_field.displayText(), u"Name, Number"_s);
    EXPECT_EQ(editor().toPlainText().size(), 4);
}

TEST_F(TokenFields, ShowElementsThatTheDelegateDoesNotKnowAsText)
{
    m_field.setValue({u"Chapter "_s, u"<9>"_s});
    EXPECT_EQ(editor().toPlainText(), u"Chapter <9>"_s);
    EXPECT_EQ(m_field.value(), (QStringList{u"Chapter "_s, u"<9>"_s}));
}

TEST_F(TokenFields, ShowATokenThatIsItsOwnDisplayString)
{
    const KZTokenFieldDelegate delegate({{u"Date"_s, u"Date"_s}});
    m_field.setDelegate(const_cast<KZTokenFieldDelegate *>(&delegate));
    m_field.setValue({u"Date"_s, u"Data"_s});
    EXPECT_EQ(editor().toPlainText(), QString(QChar::ObjectReplacementCharacter) + u"Data"_s);
}

TEST_F(TokenFields, KeepTheirValueWhenTheyGetADelegate)
{
    m_field.setDelegate(nullptr);
    m_field.setValue({u"<2>"_s});
    EXPECT_EQ(editor().toPlainText(), u"<2>"_s);
    const QSignalSpy changes(&m_field, &TokenField::valueChanged);
    m_field.setDelegate(&m_delegate);
    EXPECT_EQ(m_field.displayText(), u"Name"_s);
    EXPECT_EQ(m_field.value(), QStringList{u"<2>"_s});
    EXPECT_EQ(changes.count(), 0);
}

TEST_F(TokenFields, TellAboutEveryChangeOnce)
{
    const QSignalSpy changes(&m_field, &TokenField::valueChanged);
    m_field.setValue({u"<2>"_s});
    m_field.setValue({u"<2>"_s});
    EXPECT_EQ(changes.count(), 1);
    press(Qt::Key_End);
    type(u"x"_s);
    EXPECT_EQ(changes.count(), 2);
}

TEST_F(TokenFields, OfferCompletionsOfTheWordBeforeTheCursor)
{
    type(u"n"_s);
    EXPECT_EQ(offered(), (QStringList{u"Name"_s, u"Name of the Folder"_s, u"Number"_s}));
    type(u"u"_s);
    EXPECT_EQ(offered(), QStringList{u"Number"_s});
    type(u"x"_s);
    EXPECT_EQ(offered(), QStringList());
}

TEST_F(TokenFields, CompleteDisplayStringsOfSeveralWords)
{
    type(u"in name of"_s);
    EXPECT_EQ(offered(), QStringList{u"Name of the Folder"_s});
    press(Qt::Key_Tab);
    EXPECT_EQ(m_field.value(), (QStringList{u"in "_s, u"<5>"_s}));
}

TEST_F(TokenFields, CompleteBehindATokenAndBehindASign)
{
    m_field.setValue({u"<2>"_s});
    press(Qt::Key_End);
    type(u"la"_s);
    EXPECT_EQ(offered(), QStringList{u"Label"_s});
    press(Qt::Key_Tab);
    type(u"_nu"_s);
    press(Qt::Key_Tab);
    EXPECT_EQ(m_field.value(), (QStringList{u"<2>"_s, u"<4>"_s, u"_"_s, u"<1>"_s}));
}

TEST_F(TokenFields, NeverOfferWhatWasTypedAsACompletionOfItself)
{
    type(u"nu"_s);
    EXPECT_FALSE(offered().contains(u"nu"_s));
    type(u"ll"_s);
    EXPECT_EQ(offered(), QStringList());
}

TEST_F(TokenFields, HighlightWhatReturnWillTake)
{
    type(u"n"_s);
    EXPECT_EQ(list().currentIndex().row(), 0);
    press(Qt::Key_Down);
    EXPECT_EQ(list().currentIndex().row(), 1);
    press(Qt::Key_Up);
    press(Qt::Key_Up);
    EXPECT_EQ(list().currentIndex().row(), 2);
    press(Qt::Key_Return);
    EXPECT_EQ(m_field.value(), QStringList{u"<1>"_s});
    EXPECT_FALSE(list().isVisible());
}

/// Offers its display strings from the last to the first, and may highlight one.
class ReverseDelegate final : public KZTokenFieldDelegate
{
public:
    using KZTokenFieldDelegate::KZTokenFieldDelegate;

    QStringList completionsForSubstring(TokenField *tokenField, const QString &substring, qint32 indexOfToken,
                                        qint32 *indexOfSelectedItem) const override
    {
        QStringList completions =
            KZTokenFieldDelegate::completionsForSubstring(tokenField, substring, indexOfToken, indexOfSelectedItem);
        std::reverse(completions.begin(), completions.end());
        *indexOfSelectedItem = m_highlighted;
        return completions;
    }

    qint32 m_highlighted = -1;
};

TEST_F(TokenFields, HighlightWhatIsTypedInFullBeforeWhatOnlyBeginsWithIt)
{
    ReverseDelegate delegate({{u"<2>"_s, u"Name"_s}, {u"<5>"_s, u"Name of the Folder"_s}});
    m_field.setDelegate(&delegate);
    type(u"Name"_s);
    EXPECT_EQ(list().currentIndex().data().toString(), u"Name"_s);
    m_field.setDelegate(nullptr);
}

TEST_F(TokenFields, HighlightWhatTheDelegateSays)
{
    ReverseDelegate delegate({{u"<2>"_s, u"Name"_s}, {u"<1>"_s, u"Number"_s}});
    delegate.m_highlighted = 1;
    m_field.setDelegate(&delegate);
    type(u"n"_s);
    EXPECT_EQ(list().currentIndex().data().toString(), u"Name"_s);
    delegate.m_highlighted = 7;
    type(u"u"_s);
    EXPECT_EQ(list().currentIndex().data().toString(), u"Number"_s);
    m_field.setDelegate(nullptr);
}

TEST_F(TokenFields, LoseNoTextTypedBeforeReturnWhenTheListIsClosed)
{
    type(u"nu"_s);
    ASSERT_TRUE(list().isVisible());
    press(Qt::Key_Escape);
    press(Qt::Key_Return);
    EXPECT_EQ(m_field.value(), QStringList{u"nu"_s});
    type(u"ll"_s);
    press(Qt::Key_Enter);
    EXPECT_EQ(m_field.value(), QStringList{u"null"_s});
}

TEST_F(TokenFields, MakeATokenOfADisplayStringTypedInFullOnReturn)
{
    type(u"my Name of the Folder"_s);
    press(Qt::Key_Return);
    EXPECT_EQ(m_field.value(), (QStringList{u"my "_s, u"<5>"_s}));
}

TEST_F(TokenFields, LeaveADisplayStringInsideOfAWordAlone)
{
    type(u"FileName"_s);
    press(Qt::Key_Return);
    EXPECT_EQ(m_field.value(), QStringList{u"FileName"_s});
}

TEST_F(TokenFields, EndTheEditOnReturnAndWhenTheFocusLeaves)
{
    const QSignalSpy finished(&m_field, &TokenField::editingFinished);
    type(u"x"_s);
    EXPECT_EQ(finished.count(), 0);
    press(Qt::Key_Return);
    EXPECT_EQ(finished.count(), 1);
    m_otherField.setFocus();
    EXPECT_EQ(finished.count(), 2);
}

TEST_F(TokenFields, TakeTheFirstCompletionOnTabAndMoveOnWithTheNext)
{
    type(u"n"_s);
    press(Qt::Key_Tab);
    EXPECT_EQ(m_field.value(), QStringList{u"<2>"_s});
    EXPECT_TRUE(editor().hasFocus());
    press(Qt::Key_Tab);
    EXPECT_TRUE(m_otherField.hasFocus());
    QTest::keyClick(&m_otherField, Qt::Key_Backtab);
    EXPECT_TRUE(editor().hasFocus());
}

TEST_F(TokenFields, TakeACompletionOnAClick)
{
    type(u"n"_s);
    QTest::mouseClick(list().viewport(), Qt::LeftButton, {}, list().visualRect(list().model()->index(2, 0)).center());
    EXPECT_EQ(m_field.value(), QStringList{u"<1>"_s});
    EXPECT_TRUE(editor().hasFocus());
}

TEST_F(TokenFields, CloseTheListOnEscapeAndKeepTheText)
{
    type(u"n"_s);
    press(Qt::Key_Escape);
    EXPECT_FALSE(list().isVisible());
    EXPECT_EQ(m_field.value(), QStringList{u"n"_s});
}

TEST_F(TokenFields, OfferAllTokensOnDown)
{
    press(Qt::Key_Down);
    EXPECT_EQ(offered().size(), 4);
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    EXPECT_EQ(m_field.value(), QStringList{u"<2>"_s});
}

TEST_F(TokenFields, CloseTheListWhenTheCursorMovesOrTheFocusLeaves)
{
    type(u"n"_s);
    press(Qt::Key_Left);
    EXPECT_FALSE(list().isVisible());
    press(Qt::Key_End);
    type(u"u"_s);
    ASSERT_TRUE(list().isVisible());
    m_otherField.setFocus();
    EXPECT_FALSE(list().isVisible());
    EXPECT_EQ(m_field.value(), QStringList{u"nu"_s});
}

TEST_F(TokenFields, LeaveTheCompositionOfAnInputMethodAlone)
{
    type(u"n"_s);
    ASSERT_TRUE(list().isVisible());
    compose(u"na"_s);
    EXPECT_FALSE(list().isVisible());
    EXPECT_EQ(editor().textCursor().block().layout()->preeditAreaText(), u"na"_s);
    EXPECT_TRUE(editor().hasFocus());
    EXPECT_EQ(m_field.value(), QStringList{u"n"_s});
    compose({}, u"u"_s);
    EXPECT_EQ(m_field.value(), QStringList{u"nu"_s});
    EXPECT_EQ(offered(), QStringList{u"Number"_s});
}

TEST_F(TokenFields, KeepTheFocusWhileTheListIsOpen)
{
    type(u"n"_s);
    EXPECT_EQ(QApplication::focusWidget(), &editor());
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
}

TEST_F(TokenFields, DeleteTokensLikeCharacters)
{
    m_field.setValue({u"<2>"_s, u"-"_s, u"<1>"_s});
    press(Qt::Key_End);
    press(Qt::Key_Backspace);
    EXPECT_EQ(m_field.value(), (QStringList{u"<2>"_s, u"-"_s}));
    press(Qt::Key_Home);
    press(Qt::Key_Delete);
    EXPECT_EQ(m_field.value(), QStringList{u"-"_s});
}

TEST_F(TokenFields, SelectTokensWithShiftAndArrows)
{
    m_field.setValue({u"<2>"_s, u"-"_s, u"<1>"_s});
    press(Qt::Key_End);
    press(Qt::Key_Left, Qt::ShiftModifier);
    EXPECT_EQ(editor().textCursor().selectionStart(), 2);
    EXPECT_EQ(editor().textCursor().selectionEnd(), 3);
    press(Qt::Key_Left, Qt::ShiftModifier);
    type(u"x"_s);
    EXPECT_EQ(m_field.value(), (QStringList{u"<2>"_s, u"x"_s}));
}

TEST_F(TokenFields, UndoAndRedoATokenInOneStep)
{
    type(u"my nu"_s);
    press(Qt::Key_Tab);
    ASSERT_EQ(m_field.value(), (QStringList{u"my "_s, u"<1>"_s}));
    QTest::keySequence(&editor(), QKeySequence::Undo);
    EXPECT_EQ(m_field.value(), QStringList{u"my nu"_s});
    QTest::keySequence(&editor(), QKeySequence::Redo);
    EXPECT_EQ(m_field.value(), (QStringList{u"my "_s, u"<1>"_s}));
}

TEST_F(TokenFields, UndoNothingBehindAValueThatWasSet)
{
    type(u"old"_s);
    m_field.setValue({u"<2>"_s});
    QTest::keySequence(&editor(), QKeySequence::Undo);
    EXPECT_EQ(m_field.value(), QStringList{u"<2>"_s});
}

TEST_F(TokenFields, TypeTextBehindATokenAsText)
{
    m_field.setValue({u"<2>"_s});
    press(Qt::Key_End);
    type(u"x"_s);
    compose({}, u"y"_s);
    EXPECT_EQ(m_field.value(), (QStringList{u"<2>"_s, u"xy"_s}));
}

TEST_F(TokenFields, CopyTokensAsTheirDisplayStringsForOthers)
{
    m_field.setValue({u"<2>"_s, u", "_s, u"<1>"_s});
    select(0, 4);
    QTest::keySequence(&editor(), QKeySequence::Copy);
    EXPECT_EQ(QApplication::clipboard()->text(), u"Name, Number"_s);
}

TEST_F(TokenFields, PasteTokensOfAnotherField)
{
    m_field.setValue({u"<2>"_s, u", "_s, u"<1>"_s});
    select(0, 4);
    QTest::keySequence(&editor(), QKeySequence::Cut);
    EXPECT_EQ(m_field.value(), QStringList());
    TokenField other;
    other.setDelegate(&m_delegate);
    other.findChild<QTextEdit *>()->paste();
    EXPECT_EQ(other.value(), (QStringList{u"<2>"_s, u", "_s, u"<1>"_s}));
}

TEST_F(TokenFields, PasteTextOfOthersAsOneLine)
{
    QApplication::clipboard()->setText(u"one\r\ntwo\nthree\uFFFC"_s);
    QTest::keySequence(&editor(), QKeySequence::Paste);
    EXPECT_EQ(m_field.value(), QStringList{u"one two three"_s});
}

TEST_F(TokenFields, PasteNothingThatIsBroken)
{
    auto *data = new QMimeData;
    data->setData(u"application/x-orvane-token-pieces"_s, "\x01\xff");
    QApplication::clipboard()->setMimeData(data);
    QTest::keySequence(&editor(), QKeySequence::Paste);
    EXPECT_EQ(m_field.value(), QStringList());
}

TEST_F(TokenFields, TakeTextThatIsDroppedOnThem)
{
    m_field.setValue({u"<2>"_s, u"<1>"_s});
    QMimeData data;
    data.setText(u"dropped"_s);
    const QPoint place = editor().cursorRect(QTextCursor(editor().document())).center();
    QDragEnterEvent enter(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(editor().viewport(), &enter);
    EXPECT_TRUE(enter.isAccepted());
    QDropEvent drop(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(editor().viewport(), &drop);
    EXPECT_EQ(m_field.value(), (QStringList{u"dropped"_s, u"<2>"_s, u"<1>"_s}));
}

TEST_F(TokenFields, SelectATokenOnAClick)
{
    m_field.setValue({u"<2>"_s, u", "_s, u"<1>"_s});
    QTest::mouseClick(editor().viewport(), Qt::LeftButton, {}, centreOf(3));
    EXPECT_EQ(editor().textCursor().selectionStart(), 3);
    EXPECT_EQ(editor().textCursor().selectionEnd(), 4);
    QTest::mouseClick(editor().viewport(), Qt::LeftButton, {}, centreOf(1));
    EXPECT_FALSE(editor().textCursor().hasSelection());
}

TEST_F(TokenFields, StoreTheirValueWhenTheEditEnds)
{
    support::PanelController controller;
    const windowing::Binding binding(&m_field, u"value"_s, &controller, u"settings.fileName"_s);
    type(u"nu"_s);
    press(Qt::Key_Tab);
    type(u" x"_s);
    EXPECT_FALSE(controller.settings()->objectForKey(u"fileName"_s).isValid());
    m_otherField.setFocus();
    EXPECT_EQ(controller.settings()->objectForKey(u"fileName"_s), QVariant(QVariantList{u"<1>"_s, u" x"_s}));
    controller.settings()->setValue(QVariantList{u"<4>"_s}, u"fileName"_s);
    EXPECT_EQ(m_field.displayText(), u"Label"_s);
}

TEST_F(TokenFields, GetTheirDelegateThroughABinding)
{
    TokenField field;
    field.setValue({u"<2>"_s});
    QObject controller;
    controller.setProperty("tokens", QVariant::fromValue(&m_delegate));
    const windowing::Binding binding(&field, u"delegate"_s, &controller, u"tokens"_s);
    EXPECT_EQ(field.delegate(), &m_delegate);
    EXPECT_EQ(field.displayText(), u"Name"_s);
}

TEST_F(TokenFields, ExposeTheirValue)
{
    EXPECT_EQ(windowing::exposedBindings(TokenField::staticMetaObject), QStringList{u"value"_s});
}

TEST_F(TokenFields, AreReadByScreenReadersWithTheirDisplayStrings)
{
    m_field.setValue({u"<2>"_s, u", "_s, u"<1>"_s});
    QLabel label(u"&File names:"_s, &m_window);
    label.setBuddy(&m_field);
    QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(&editor());
    EXPECT_EQ(accessible->role(), QAccessible::EditableText);
    EXPECT_EQ(accessible->text(QAccessible::Value), u"Name, Number"_s);
    EXPECT_EQ(accessible->text(QAccessible::Name), u"File names:"_s);
    QAccessibleTextInterface *text = accessible->textInterface();
    ASSERT_NE(text, nullptr);
    EXPECT_EQ(text->characterCount(), 12);
    EXPECT_EQ(text->text(0, 4), u"Name"_s);
    select(3, 4);
    EXPECT_EQ(text->cursorPosition(), 12);
    int start = 0;
    int end = 0;
    text->selection(0, &start, &end);
    EXPECT_EQ(start, 6);
    EXPECT_EQ(end, 12);
    text->setCursorPosition(4);
    EXPECT_EQ(editor().textCursor().position(), 1);
    text->setSelection(0, 4, 12);
    EXPECT_EQ(editor().textCursor().selectionStart(), 1);
    EXPECT_EQ(editor().textCursor().selectionEnd(), 4);
    text->setCursorPosition(8);
    EXPECT_EQ(editor().textCursor().position(), 3) << "inside of a token is before it";
    text->setCursorPosition(-1);
    EXPECT_EQ(text->cursorPosition(), 0);
    text->setCursorPosition(99);
    EXPECT_EQ(text->cursorPosition(), 12);
    EXPECT_GT(text->characterRect(2).width(), text->characterRect(5).width()) << "of a token, and of a blank";
}

TEST_F(TokenFields, AreReadAsAWholeByScreenReaders)
{
    m_field.setValue({u"<2>"_s, u", "_s, u"<1>"_s});
    m_field.setAccessibleName(u"File names"_s);
    QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(&m_field);
    ASSERT_NE(accessible, nullptr);
    EXPECT_EQ(accessible->role(), QAccessible::ComboBox);
    EXPECT_EQ(accessible->text(QAccessible::Name), u"File names"_s);
    EXPECT_EQ(accessible->text(QAccessible::Value), u"Name, Number"_s);
    ASSERT_NE(accessible->textInterface(), nullptr);
    EXPECT_EQ(accessible->textInterface()->text(0, 12), u"Name, Number"_s);
    EXPECT_TRUE(accessible->state().editable);
    m_field.setReadOnly(true);
    EXPECT_TRUE(accessible->state().readOnly);
}

TEST_F(TokenFields, RunFromRightToLeftWhereTheTextDoes)
{
    m_field.setValue({u"\u05D0\u05D1"_s, u"<2>"_s, u"\u05D2"_s});
    QTextCursor cursor = editor().textCursor();
    cursor.setPosition(0);
    const int start = editor().cursorRect(cursor).left();
    cursor.setPosition(4);
    EXPECT_GT(start, editor().cursorRect(cursor).left());
    QTest::mouseClick(editor().viewport(), Qt::LeftButton, {}, centreOf(2));
    EXPECT_EQ(editor().textCursor().selectionStart(), 2);
    EXPECT_EQ(editor().textCursor().selectionEnd(), 3);
}

TEST_F(TokenFields, ChangeNothingWhenTheyAreReadOnly)
{
    m_field.setValue({u"<2>"_s});
    m_field.setReadOnly(true);
    press(Qt::Key_Down);
    EXPECT_FALSE(list().isVisible());
    type(u"n"_s);
    press(Qt::Key_Backspace);
    EXPECT_EQ(m_field.value(), QStringList{u"<2>"_s});
}

TEST_F(TokenFields, AreAsHighAsALineWhateverTheyShow)
{
    const int height = m_field.sizeHint().height();
    EXPECT_GE(height, QLineEdit().sizeHint().height());
    EXPECT_LE(height, QLineEdit().sizeHint().height() + 6);
    const auto lineHeight = [this] {
        return std::lround(editor().document()->size().height());
    };
    const auto emptyHeight = lineHeight();
    EXPECT_LE(emptyHeight, editor().height());
    m_field.setValue({u"<2>"_s, u", "_s});
    EXPECT_EQ(lineHeight(), emptyHeight);
    m_field.setValue({});
    type(u"nu"_s);
    press(Qt::Key_Tab);
    ASSERT_EQ(m_field.value(), QStringList{u"<1>"_s});
    EXPECT_EQ(lineHeight(), emptyHeight);
}

TEST_F(TokenFields, DrawChipsAroundTokensAndHighlightSelectedOnes)
{
    m_field.setValue({u"<2>"_s, u"      "_s});
    const auto colorAt = [this](const QPoint &place) {
        return m_field.grab().toImage().pixelColor(editor().viewport()->mapTo(&m_field, place));
    };
    const QPalette palette = m_field.palette();
    const QRect start = editor().cursorRect(QTextCursor(editor().document()));
    const QPoint corner = start.topLeft() + QPoint(2, 0);
    const QPoint besideText(start.left() + 5, start.center().y());
    const QPoint text = centreOf(4);
    EXPECT_EQ(colorAt(corner), palette.color(QPalette::Base));
    EXPECT_NE(colorAt(besideText), palette.color(QPalette::Base));
    EXPECT_EQ(colorAt(text), palette.color(QPalette::Base));
    select(0, 1);
    EXPECT_EQ(colorAt(corner), palette.color(QPalette::Highlight));
    EXPECT_NE(colorAt(besideText), palette.color(QPalette::Highlight));
    EXPECT_EQ(colorAt(text), palette.color(QPalette::Base));
}

TEST_F(TokenFields, SelectNothingWhenTheFocusHasGoneToAnotherField)
{
    m_field.setValue({u"<2>"_s, u"x"_s});
    editor().selectAll();
    m_otherField.setFocus();
    EXPECT_FALSE(editor().textCursor().hasSelection());
}

TEST_F(TokenFields, DrawTheSelectionAsInactiveWhenTheWindowIs)
{
    QPalette palette = m_field.palette();
    palette.setColor(QPalette::Active, QPalette::Highlight, Qt::blue);
    palette.setColor(QPalette::Inactive, QPalette::Highlight, Qt::darkYellow);
    m_field.setPalette(palette);
    m_field.setValue({u"<2>"_s, u"      "_s});
    editor().selectAll();
    const auto colorAt = [this](const QPoint &place) {
        return m_field.grab().toImage().pixelColor(editor().viewport()->mapTo(&m_field, place));
    };
    const QPoint corner = editor().cursorRect(QTextCursor(editor().document())).topLeft() + QPoint(2, 0);
    const QPoint text = centreOf(4);
    EXPECT_EQ(colorAt(corner), QColor(Qt::blue));
    QFocusEvent leaving(QEvent::FocusOut, Qt::ActiveWindowFocusReason);
    QApplication::sendEvent(&editor(), &leaving);
    EXPECT_TRUE(editor().textCursor().hasSelection());
    EXPECT_EQ(colorAt(corner), QColor(Qt::darkYellow));
    EXPECT_EQ(colorAt(text), QColor(Qt::darkYellow));
}

TEST_F(TokenFields, CompleteAmongAThousandTokensAtOnce)
{
    QMap<QString, QString> tokens;
    for (int number = 0; number < 1000; ++number) {
        tokens.insert(u"<%1>"_s.arg(number), u"Token of the Kind %1"_s.arg(number));
    }
    const KZTokenFieldDelegate delegate(tokens);
    m_field.setDelegate(const_cast<KZTokenFieldDelegate *>(&delegate));
    QElapsedTimer timer;
    timer.start();
    const QString typed = u"a longer text before token of"_s;
    type(typed);
    const double milliseconds = static_cast<double>(timer.nsecsElapsed()) / 1e6 / static_cast<double>(typed.size());
    EXPECT_EQ(offered().size(), 1000);
    EXPECT_LT(milliseconds, 50.0) << "a key";
    RecordProperty("milliseconds_a_key", std::to_string(milliseconds));
    std::cout << milliseconds << " ms a key\n";
}

} // namespace
