#include <OrvaneExportKit/windowing/FontPanel.h>

#include <OrvaneExportKit/windowing/Font.h>
#include <OrvaneExportKit/windowing/MessageLabel.h>
#include <tests/support/Printers.h>

#include <gtest/gtest.h>

#include <QtGui/QAccessible>
#include <QtGui/QFontDatabase>
#include <QtGui/QWindow>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QColorDialog>
#include <QtWidgets/QDoubleSpinBox>
#include <QtWidgets/QFontComboBox>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>

#include <algorithm>
#include <memory>

using namespace Qt::Literals::StringLiterals;
using windowing::Font;
using windowing::FontPanel;

namespace {

/// A control that takes all that the panel has to say.
class Editor : public QWidget
{
    Q_OBJECT

public:
    using QWidget::QWidget;

    Q_INVOKABLE void changeFont(windowing::FontPanel *sender)
    {
        font = sender->convertFont(font);
        ++fontChanges;
    }
    Q_INVOKABLE void changeAttributes(windowing::FontPanel *sender)
    {
        attributes = sender->convertAttributes(attributes);
    }
    Q_INVOKABLE void changeDocumentBackgroundColor(windowing::FontPanel *sender) { background = sender->color(); }

    QFont font = Font::fontWithName(u"DejaVuSerif-Bold"_s, 20.0);
    QVariantMap attributes{{u"kept"_s, true}};
    QColor background;
    int fontChanges = 0;
};

class FontPanelTest : public testing::Test
{
protected:
    void SetUp() override
    {
        for (const QString &style : {u"Bold"_s, u"Bold Oblique"_s}) {
            ASSERT_TRUE(QFontDatabase::styles(u"DejaVu Sans"_s).contains(style))
                << "DejaVu Sans is not installed in the style " << testing::PrintToString(style)
                << ": install Debian's packages fonts-dejavu-core and fonts-dejavu-extra";
        }
        auto *layout = new QVBoxLayout(&window);
        layout->addWidget(editor);
        auto *editorLayout = new QVBoxLayout(editor);
        editorLayout->addWidget(lineInEditor);
        layout->addWidget(lineOutside);
        window.show();
        window.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
        lineInEditor->setFocus();
        panel = &FontPanel::sharedFontPanel();
        panel->orderFront();
        ASSERT_TRUE(QTest::qWaitForWindowActive(panel.data()));
    }
    ~FontPanelTest() override { delete panel.data(); }

    template <typename Button>
    Button *button(const QString &text)
    {
        for (Button *candidate : panel->findChildren<Button *>()) {
            if (candidate->text() == text || candidate->accessibleName() == text) {
                return candidate;
            }
        }
        return nullptr;
    }

    QWidget window;
    Editor *editor = new Editor(&window);
    QLineEdit *lineInEditor = new QLineEdit(editor);
    QLineEdit *lineOutside = new QLineEdit(&window);
    QPointer<FontPanel> panel;
};

TEST_F(FontPanelTest, IsSharedAndModeless)
{
    EXPECT_EQ(&FontPanel::sharedFontPanel(), panel);
    EXPECT_FALSE(panel->isModal());
    EXPECT_TRUE(FontPanel::sharedFontPanelExists());
}

TEST_F(FontPanelTest, ShowsAFontWithoutTellingAnybody)
{
    panel->setSelectedFont(Font::fontWithName(u"DejaVuSans-BoldOblique"_s, 17.5));
    panel->setSelectedAttributes({{u"NSUnderline"_s, 1}, {u"NSColor"_s, QColor(Qt::red)}});
    EXPECT_EQ(Font::fontName(panel->selectedFont()), u"DejaVuSans-BoldOblique"_s);
    EXPECT_EQ(panel->selectedFont().pointSizeF(), 17.5);
    EXPECT_TRUE(button<QCheckBox>(u"&Underline"_s)->isChecked());
    EXPECT_TRUE(button<QCheckBox>(u"&Text color:"_s)->isChecked());
    EXPECT_EQ(editor->fontChanges, 0);
    EXPECT_EQ(editor->attributes, (QVariantMap{{u"kept"_s, true}}));
}

TEST_F(FontPanelTest, ConvertsToAllOfAFontThatWasOnlyShown)
{
    panel->setSelectedFont(Font::fontWithName(u"DejaVuSans-Bold"_s, 17.5));
    const QFont converted = panel->convertFont(Font::fontWithName(u"DejaVuSerif"_s, 9.0));
    EXPECT_EQ(Font::fontName(converted), u"DejaVuSans-Bold"_s);
    EXPECT_EQ(converted.pointSizeF(), 17.5);
    EXPECT_EQ(panel->convertAttributes({{u"kept"_s, true}}), (QVariantMap{{u"kept"_s, true}}));
}

TEST_F(FontPanelTest, SendsTheSizeAloneToTheControlAroundTheLastFocus)
{
    auto *size = panel->findChild<QDoubleSpinBox *>();
    size->selectAll();
    QTest::keyClicks(size, QLocale().toString(31.5, 'f', 1));
    EXPECT_EQ(editor->fontChanges, 0); // not while the number is being typed
    QTest::keyClick(size, Qt::Key_Return);
    EXPECT_EQ(editor->fontChanges, 1);
    EXPECT_EQ(Font::fontName(editor->font), u"DejaVuSerif-Bold"_s);
    EXPECT_EQ(editor->font.pointSizeF(), 31.5);
}

TEST_F(FontPanelTest, SendsTheStyleAndKeepsTheSize)
{
    panel->setSelectedFont(Font::fontWithName(u"DejaVuSans-Bold"_s, 17.5));
    QComboBox *styles = nullptr;
    for (QComboBox *box : panel->findChildren<QComboBox *>()) {
        if (qobject_cast<QFontComboBox *>(box) == nullptr) {
            styles = box;
        }
    }
    ASSERT_NE(styles, nullptr);
    EXPECT_EQ(styles->currentText(), u"Bold"_s);
    EXPECT_EQ(styles->count(), QFontDatabase::styles(u"DejaVu Sans"_s).size());
    styles->setFocus();
    QTest::keyClick(styles, styles->currentIndex() == 0 ? Qt::Key_Down : Qt::Key_Up);
    EXPECT_EQ(editor->fontChanges, 1);
    EXPECT_NE(Font::fontName(editor->font), u"DejaVuSans-Bold"_s);
    EXPECT_EQ(editor->font.family(), u"DejaVu Sans"_s);
    EXPECT_EQ(editor->font.pointSizeF(), 20.0);
}

TEST_F(FontPanelTest, SendsTheFamily)
{
    panel->setSelectedFont(Font::fontWithName(u"DejaVuSans-Bold"_s, 17.5));
    auto *families = panel->findChild<QFontComboBox *>();
    families->setFocus();
    QTest::keyClick(families, families->currentIndex() == 0 ? Qt::Key_Down : Qt::Key_Up);
    EXPECT_EQ(editor->fontChanges, 1);
    EXPECT_EQ(editor->font.family(), families->currentFont().family());
    EXPECT_NE(editor->font.family(), u"DejaVu Sans"_s);
}

TEST_F(FontPanelTest, SendsLinesAsAttributes)
{
    button<QCheckBox>(u"&Underline"_s)->click();
    EXPECT_EQ(editor->attributes, (QVariantMap{{u"kept"_s, true}, {u"NSUnderline"_s, 1}}));
    button<QCheckBox>(u"Stri&kethrough"_s)->click();
    EXPECT_EQ(editor->attributes.value(u"NSStrikethrough"_s), QVariant(1));
    button<QCheckBox>(u"&Underline"_s)->click();
    EXPECT_EQ(editor->attributes, (QVariantMap{{u"kept"_s, true}, {u"NSStrikethrough"_s, 1}}));
}

TEST_F(FontPanelTest, SendsTheTextColourThatTheUserChooses)
{
    button<QPushButton>(u"Choose the text color"_s)->click();
    auto *dialog = panel->findChild<QColorDialog *>();
    ASSERT_NE(dialog, nullptr);
    dialog->setCurrentColor(Qt::red);
    dialog->accept();
    EXPECT_EQ(editor->attributes.value(u"NSColor"_s), QVariant(QColor(Qt::red)));
    EXPECT_TRUE(button<QCheckBox>(u"&Text color:"_s)->isChecked());
    button<QCheckBox>(u"&Text color:"_s)->click();
    EXPECT_EQ(editor->attributes, (QVariantMap{{u"kept"_s, true}}));
}

TEST_F(FontPanelTest, SendsTheBackgroundAsThatOfTheDocument)
{
    button<QPushButton>(u"Choose the background color"_s)->click();
    auto *dialog = panel->findChild<QColorDialog *>();
    ASSERT_NE(dialog, nullptr);
    dialog->setCurrentColor(Qt::yellow);
    dialog->accept();
    EXPECT_EQ(editor->background, QColor(Qt::yellow));
    EXPECT_EQ(editor->attributes, (QVariantMap{{u"kept"_s, true}}));
    EXPECT_EQ(panel->color(), QColor(Qt::yellow));

    editor->attributes.insert(u"NSBackgroundColor"_s, QColor(Qt::yellow));
    button<QCheckBox>(u"&Background:"_s)->click();
    EXPECT_EQ(editor->attributes, (QVariantMap{{u"kept"_s, true}}));
    EXPECT_FALSE(panel->color().isValid());
}

TEST_F(FontPanelTest, ChoosesTheClosestStyleWhereAFamilyLacksTheOneThatIsAskedFor)
{
    const auto styleOf = [this](const QString &name) {
        panel->setSelectedFont(Font::fontWithName(name, 12.0));
        return Font::fontName(panel->selectedFont());
    };
    EXPECT_EQ(styleOf(u"DejaVuSerif-Black"_s), u"DejaVuSerif-Bold"_s);
    EXPECT_EQ(styleOf(u"DejaVuSerif-BlackItalic"_s), u"DejaVuSerif-BoldItalic"_s);
    EXPECT_EQ(styleOf(u"DejaVuSerif-Medium"_s), u"DejaVuSerif"_s);
    EXPECT_EQ(styleOf(u"DejaVuSerif-Oblique"_s), u"DejaVuSerif-Italic"_s);
}

TEST_F(FontPanelTest, ShowsAnUprightStyleOfEveryFamilyThatHasOne)
{
    const auto isUpright = [](const QFont &font) {
        return font.style() == QFont::StyleNormal;
    };
    const QStringList families = QFontDatabase::families();
    for (const QString &family : families) {
        const QStringList styles = QFontDatabase::styles(family);
        const bool hasUpright = std::any_of(styles.begin(), styles.end(), [&](const QString &style) {
            return isUpright(QFontDatabase::font(family, style, 1));
        });
        panel->setSelectedFont(QFont(family));
        EXPECT_EQ(isUpright(panel->selectedFont()), hasUpright) << family.toStdString();
    }
}

TEST_F(FontPanelTest, KeepsWeightAndSlantWhenTheFamilyChanges)
{
    auto *family = panel->findChild<QFontComboBox *>();
    panel->setSelectedFont(Font::fontWithName(u"DejaVuSerif-BoldItalic"_s, 12.0));
    family->setCurrentFont(QFont(u"DejaVu Sans Mono"_s));
    Q_EMIT family->activated(family->currentIndex());
    EXPECT_EQ(Font::fontName(panel->selectedFont()), u"DejaVuSansMono-BoldOblique"_s);
}

TEST_F(FontPanelTest, SaysThatAFontIsNotInstalledAndKeepsIt)
{
    const auto *note = panel->findChild<windowing::MessageLabel *>();
    const auto *family = panel->findChild<QFontComboBox *>();
    EXPECT_FALSE(note->isVisible());
    panel->setSelectedFont(Font::fontWithName(u"NoSuchFont-BoldItalic"_s, 17.0));
    EXPECT_TRUE(note->isVisible());
    EXPECT_TRUE(note->text().contains(u"NoSuchFont"));
    EXPECT_EQ(family->currentText(), u"NoSuchFont"_s);
    EXPECT_LT(family->currentIndex(), 0);
    EXPECT_EQ(Font::fontName(panel->selectedFont()), u"NoSuchFont-BoldItalic"_s);

    panel->setSelectedFont(Font::fontWithName(u"DejaVuSans"_s, 17.0));
    EXPECT_FALSE(note->isVisible());
    EXPECT_EQ(family->currentText(), u"DejaVu Sans"_s);
}

TEST_F(FontPanelTest, TakesChangesBackOneAfterTheOther)
{
    auto *undo = button<QPushButton>(u"U&ndo"_s);
    ASSERT_NE(undo, nullptr);
    editor->font = Font::fontWithName(u"NoSuchFont-Bold"_s, 20.0);
    panel->setSelectedFont(editor->font);
    panel->setSelectedAttributes({{u"NSBackgroundColor"_s, QColor(Qt::yellow)}});
    EXPECT_FALSE(undo->isEnabled());

    auto *family = panel->findChild<QFontComboBox *>();
    family->setCurrentFont(QFont(u"DejaVu Sans"_s));
    Q_EMIT family->activated(family->currentIndex());
    panel->findChild<QDoubleSpinBox *>()->setValue(30.0);
    button<QCheckBox>(u"&Underline"_s)->click();
    button<QCheckBox>(u"&Background:"_s)->click();
    EXPECT_EQ(Font::fontName(editor->font), u"DejaVuSans-Bold"_s);
    EXPECT_EQ(editor->font.pointSizeF(), 30.0);
    EXPECT_EQ(editor->attributes.value(u"NSUnderline"_s), QVariant(1));

    undo->click();
    EXPECT_EQ(editor->background, QColor(Qt::yellow));
    undo->click();
    EXPECT_EQ(editor->attributes, (QVariantMap{{u"kept"_s, true}}));
    undo->click();
    EXPECT_EQ(editor->font.pointSizeF(), 20.0);
    EXPECT_EQ(Font::fontName(editor->font), u"DejaVuSans-Bold"_s);
    undo->click();
    EXPECT_EQ(Font::fontName(editor->font), u"NoSuchFont-Bold"_s);
    EXPECT_FALSE(undo->isEnabled());
}

TEST_F(FontPanelTest, TakesNothingBackForAnotherControl)
{
    panel->findChild<QDoubleSpinBox *>()->setValue(30.0);
    auto *undo = button<QPushButton>(u"U&ndo"_s);
    EXPECT_TRUE(undo->isEnabled());
    window.activateWindow();
    lineOutside->setFocus();
    EXPECT_FALSE(undo->isEnabled());
}

TEST_F(FontPanelTest, StaysAboveTheWindowOfTheControl)
{
    EXPECT_EQ(panel->windowHandle()->transientParent(), window.windowHandle());
}

TEST_F(FontPanelTest, GoesOnWithItsControlAfterAnAlert)
{
    QMessageBox alert(QMessageBox::Warning, u"Alert"_s, u"Something is wrong."_s, QMessageBox::Ok, &window);
    alert.open();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&alert));
    alert.close();
    panel->findChild<QDoubleSpinBox *>()->setValue(31.0);
    EXPECT_EQ(editor->font.pointSizeF(), 31.0);
}

TEST_F(FontPanelTest, TellsNobodyWhereNoControlListens)
{
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    lineOutside->setFocus();
    button<QCheckBox>(u"&Underline"_s)->click();
    EXPECT_EQ(editor->attributes, (QVariantMap{{u"kept"_s, true}}));
}

TEST_F(FontPanelTest, OutlivesTheControlThatListened)
{
    delete editor;
    button<QCheckBox>(u"&Underline"_s)->click();
    EXPECT_TRUE(button<QCheckBox>(u"&Underline"_s)->isChecked());
}

TEST_F(FontPanelTest, CanBeUsedOverAModalWindowAndGoesWithIt)
{
    auto dialog = std::make_unique<QDialog>();
    dialog->setModal(true);
    dialog->show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(dialog.get()));
    panel->orderFront();
    EXPECT_EQ(panel->parentWidget(), dialog.get());
    EXPECT_TRUE(panel->isVisible());
    dialog.reset();
    EXPECT_EQ(panel, nullptr);
    EXPECT_FALSE(FontPanel::sharedFontPanelExists());
    panel = &FontPanel::sharedFontPanel();
    EXPECT_NE(panel, nullptr);
}

TEST_F(FontPanelTest, IsClosedWithEscape)
{
    QTest::keyClick(panel.data(), Qt::Key_Escape);
    EXPECT_FALSE(panel->isVisible());
}

TEST_F(FontPanelTest, NamesEveryControlForScreenReaders)
{
    for (QWidget *widget : panel->findChildren<QWidget *>(Qt::FindDirectChildrenOnly)) {
        if (widget->focusPolicy() != Qt::NoFocus) {
            const auto *interface = QAccessible::queryAccessibleInterface(widget);
            EXPECT_FALSE(interface->text(QAccessible::Name).isEmpty()) << widget->metaObject()->className();
        }
    }
}

} // namespace

#include "FontPanelTest.moc"
