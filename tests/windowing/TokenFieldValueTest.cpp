// What becomes a token, and that a value is kept as it was set.

#include <OrvaneExportKit/windowing/Binding.h>
#include <tests/support/PanelController.h>
#include <tests/support/Printers.h>
#include <tests/support/TokenFields.h>

#include <QtGui/QClipboard>
#include <QtTest/QSignalSpy>

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;
using windowing::TokenField;

namespace {

constexpr QChar chip = QChar::ObjectReplacementCharacter;

using TokenFields = support::TokenFields;

TEST_F(TokenFields, ShowTextThatEqualsADisplayStringAsText)
{
    m_field.setValue({u"Name"_s});
    EXPECT_EQ(editor().toPlainText(), u"Name"_s);
    EXPECT_EQ(m_field.value(), QStringList{u"Name"_s});
    m_otherField.setFocus();
    m_field.setFocus();
    press(Qt::Key_Return);
    EXPECT_EQ(m_field.value(), QStringList{u"Name"_s}) << "nobody has typed anything";
}

TEST_F(TokenFields, ShowAsATokenOnlyWhatTheDelegateMapsBackToItself)
{
    const KZTokenFieldDelegate delegate({{u"<a>"_s, u"Title"_s}, {u"<b>"_s, u"Title"_s}});
    m_field.setDelegate(const_cast<KZTokenFieldDelegate *>(&delegate));
    m_field.setValue({u"<a>"_s, u"<b>"_s});
    EXPECT_EQ(editor().toPlainText(), chip + u"<b>"_s);
    EXPECT_EQ(m_field.displayText(), u"Title<b>"_s);
    EXPECT_EQ(m_field.value(), (QStringList{u"<a>"_s, u"<b>"_s}));
}

TEST_F(TokenFields, MakeATokenOfADisplayStringWhenTheFocusLeaves)
{
    type(u"my Name"_s);
    m_otherField.setFocus();
    EXPECT_EQ(m_field.value(), (QStringList{u"my "_s, u"<2>"_s}));
    EXPECT_EQ(m_field.displayText(), u"my Name"_s);
}

TEST_F(TokenFields, MakeATokenOfADisplayStringWhereverTheCursorIsWhenTheEditEnds)
{
    type(u"Name"_s);
    press(Qt::Key_Home);
    m_otherField.setFocus();
    EXPECT_EQ(m_field.value(), QStringList{u"<2>"_s});
}

TEST_F(TokenFields, MakeNoTokenOfTheStartOfAWord)
{
    m_field.setValue({u"plate"_s});
    press(Qt::Key_Home);
    type(u"Name"_s);
    m_otherField.setFocus();
    EXPECT_EQ(m_field.value(), QStringList{u"Nameplate"_s});
}

TEST_F(TokenFields, MakeATokenOfTheDisplayStringThatStoodBesideWhatWasTypedAndNotOfOthers)
{
    m_field.setValue({u"Name and "_s});
    press(Qt::Key_End);
    type(u"Number"_s);
    m_otherField.setFocus();
    EXPECT_EQ(m_field.value(), (QStringList{u"Name and "_s, u"<1>"_s}));
}

TEST_F(TokenFields, MakeNoTokenOfWhatWasUndone)
{
    type(u"Names"_s);
    QTest::keySequence(&editor(), QKeySequence::Undo);
    m_otherField.setFocus();
    EXPECT_EQ(m_field.value(), QStringList());
}

TEST_F(TokenFields, MakeATokenOfAPastedDisplayString)
{
    QApplication::clipboard()->setText(u"Name"_s);
    QTest::keySequence(&editor(), QKeySequence::Paste);
    m_otherField.setFocus();
    EXPECT_EQ(m_field.value(), QStringList{u"<2>"_s});
}

TEST_F(TokenFields, MakeTokensOfRepresentedObjectsThatAreTyped)
{
    type(u"<1>"_s);
    m_otherField.setFocus();
    EXPECT_EQ(m_field.value(), QStringList{u"<1>"_s});
    EXPECT_EQ(m_field.displayText(), u"Number"_s);
}

TEST_F(TokenFields, MakeTokensOfRepresentedObjectsInsideOfOtherText)
{
    type(u"Chapter<1>of<9><2>x"_s);
    press(Qt::Key_Return);
    EXPECT_EQ(m_field.value(), (QStringList{u"Chapter"_s, u"<1>"_s, u"of<9>"_s, u"<2>"_s, u"x"_s}));
    EXPECT_EQ(m_field.displayText(), u"ChapterNumberof<9>Namex"_s);
}

TEST_F(TokenFields, UndoTheTokensThatAnEditEndedWith)
{
    type(u"a<1>b"_s);
    press(Qt::Key_Return);
    ASSERT_EQ(m_field.value(), (QStringList{u"a"_s, u"<1>"_s, u"b"_s}));
    QTest::keySequence(&editor(), QKeySequence::Undo);
    EXPECT_EQ(m_field.value(), QStringList{u"a<1>b"_s});
}

TEST_F(TokenFields, KeepTheCursorBehindWhatItWasBehindWhenTokensAreMade)
{
    type(u"<1> <2>"_s);
    press(Qt::Key_Left);
    press(Qt::Key_Left);
    press(Qt::Key_Left);
    press(Qt::Key_Return);
    ASSERT_EQ(m_field.value(), (QStringList{u"<1>"_s, u" "_s, u"<2>"_s}));
    EXPECT_EQ(editor().textCursor().position(), 2);
}

TEST_F(TokenFields, MakeTokensOfRepresentedObjectsThatArePastedOrSet)
{
    QApplication::clipboard()->setText(u"a<1>b"_s);
    QTest::keySequence(&editor(), QKeySequence::Paste);
    EXPECT_EQ(m_field.displayText(), u"aNumberb"_s);
    m_field.setValue({u"c<1>d"_s});
    EXPECT_EQ(m_field.displayText(), u"cNumberd"_s);
    EXPECT_EQ(m_field.value(), QStringList{u"c<1>d"_s});
}

TEST_F(TokenFields, MakeNoTokenOfAWordInsideOfAnotherWord)
{
    const KZTokenFieldDelegate delegate({{u"Date"_s, u"Date"_s}});
    m_field.setDelegate(const_cast<KZTokenFieldDelegate *>(&delegate));
    type(u"Dates of Date, Updates"_s);
    press(Qt::Key_Return);
    EXPECT_EQ(m_field.value(), (QStringList{u"Dates of "_s, u"Date"_s, u", Updates"_s}));
}

TEST_F(TokenFields, TakeTheLongerOfTwoRepresentedObjects)
{
    const KZTokenFieldDelegate delegate({{u"%n"_s, u"Short"_s}, {u"%nn"_s, u"Long"_s}});
    m_field.setDelegate(const_cast<KZTokenFieldDelegate *>(&delegate));
    m_field.setValue({u"%nn%n"_s});
    EXPECT_EQ(m_field.displayText(), u"LongShort"_s);
}

TEST_F(TokenFields, KeepWhatStandsForNoTokenAsItselfHoweverItComesIn)
{
    const QString unknown = u"<9> Title"_s;
    const auto expectText = [&](const char *way) {
        EXPECT_EQ(m_field.value(), QStringList{unknown}) << way;
        EXPECT_EQ(editor().toPlainText(), unknown) << way;
        m_field.setValue({});
    };
    type(unknown);
    press(Qt::Key_Return);
    expectText("typed");

    QApplication::clipboard()->setText(unknown);
    QTest::keySequence(&editor(), QKeySequence::Paste);
    press(Qt::Key_Return);
    expectText("pasted");

    QMimeData dropped;
    dropped.setText(unknown);
    support::drop(*editor().viewport(), {}, dropped);
    expectText("dropped");

    m_field.setValue({unknown});
    expectText("set");

    const KZTokenFieldDelegate stranger({{unknown, u"Foreign"_s}});
    TokenField foreignField;
    foreignField.setDelegate(const_cast<KZTokenFieldDelegate *>(&stranger));
    foreignField.setValue({unknown});
    auto *foreignEditor = foreignField.findChild<QTextEdit *>();
    foreignEditor->selectAll();
    foreignEditor->copy();
    editor().paste();
    expectText("a token of a field with other tokens");
}

TEST_F(TokenFields, KeepElementsAsTheyWereSet)
{
    for (const QStringList &value : {QStringList{u"one\ntwo"_s},
                                     {u"\r\nx\r"_s},
                                     {u"\u2028"_s, u"\u2029"_s},
                                     {u"\uFFFC\uFDD0\uFDD1"_s},
                                     {u"\t"_s},
                                     {u"a"_s, u"b"_s},
                                     {QString(u""_s)},
                                     {u"<2>"_s, u"\n"_s, u"<1>"_s},
                                     {u"\u00A0\u00AD"_s}}) {
        m_field.setValue(value);
        EXPECT_EQ(m_field.value(), value);
    }
}

TEST_F(TokenFields, KeepLineFeedsThroughEditsAndShowThemInOneLine)
{
    m_field.setValue({u"one\ntwo"_s, u"<2>"_s});
    EXPECT_EQ(editor().document()->blockCount(), 1);
    EXPECT_EQ(m_field.displayText(), u"one\ntwoName"_s);
    press(Qt::Key_End);
    type(u"x"_s);
    EXPECT_EQ(m_field.value(), (QStringList{u"one\ntwo"_s, u"<2>"_s, u"x"_s}));
    press(Qt::Key_Home);
    for (int step = 0; step < 4; ++step) {
        press(Qt::Key_Right);
    }
    type(u"y"_s);
    EXPECT_EQ(m_field.value(), (QStringList{u"one\nytwo"_s, u"<2>"_s, u"x"_s}));
    press(Qt::Key_Backspace);
    press(Qt::Key_Backspace);
    EXPECT_EQ(m_field.value(), (QStringList{u"onetwo"_s, u"<2>"_s, u"x"_s}));
}

TEST_F(TokenFields, DrawASignForALineFeed)
{
    m_field.setValue({u"\n"_s});
    QTextCursor cursor(editor().document());
    const QRect start = editor().cursorRect(cursor);
    cursor.movePosition(QTextCursor::End);
    EXPECT_GT(editor().cursorRect(cursor).left(), start.left() + m_field.fontMetrics().averageCharWidth() / 2);
    const auto image = [this] {
        return m_field.grab().toImage();
    };
    const QImage withSign = image();
    m_field.setValue({u"\u2003"_s});
    EXPECT_NE(withSign, image());
}

TEST_F(TokenFields, CopyLineFeedsToAnotherField)
{
    m_field.setValue({u"one\ntwo"_s});
    editor().selectAll();
    editor().copy();
    TokenField other;
    other.findChild<QTextEdit *>()->paste();
    EXPECT_EQ(other.value(), QStringList{u"one\ntwo"_s});
}

TEST_F(TokenFields, TellOfNoChangeWhenOnlyTheFontChanges)
{
    m_field.setValue({u"a"_s, u"b\n"_s});
    const QSignalSpy changes(&m_field, &TokenField::valueChanged);
    QFont font = m_field.font();
    font.setPointSize(font.pointSize() + 4);
    m_field.setFont(font);
    EXPECT_EQ(changes.count(), 0);
    EXPECT_EQ(m_field.value(), (QStringList{u"a"_s, u"b\n"_s}));
}

TEST_F(TokenFields, StoreNothingWhenNothingWasEdited)
{
    support::PanelController controller;
    controller.settings()->setValue(QVariantList{u"a"_s, u"\n<1>"_s}, u"fileName"_s);
    const windowing::Binding binding(&m_field, u"value"_s, &controller, u"settings.fileName"_s);
    const QSignalSpy stored(controller.settings(), &KZExportSettings::didChangeValueForKey);
    press(Qt::Key_Return);
    m_otherField.setFocus();
    EXPECT_EQ(stored.count(), 0);
    EXPECT_EQ(controller.settings()->objectForKey(u"fileName"_s), QVariant(QVariantList{u"a"_s, u"\n<1>"_s}));
}

TEST_F(TokenFields, AreAllTextWhenTheirDelegateIsGone)
{
    auto delegate = std::make_unique<KZTokenFieldDelegate>(QMap<QString, QString>{{u"<2>"_s, u"Name"_s}});
    m_field.setDelegate(delegate.get());
    m_field.setValue({u"<2>"_s});
    ASSERT_EQ(m_field.displayText(), u"Name"_s);
    delegate.reset();
    EXPECT_EQ(editor().toPlainText(), u"<2>"_s);
    EXPECT_EQ(m_field.value(), QStringList{u"<2>"_s});
}

} // namespace
