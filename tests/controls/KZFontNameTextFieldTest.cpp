#include <OrvaneExportKit/controls/KZFontNameTextField.h>

#include <OrvaneExportKit/platform/Exceptions.h>
#include <OrvaneExportKit/platform/KeyPaths.h>
#include <OrvaneExportKit/platform/ValueTransformer.h>
#include <OrvaneExportKit/windowing/Binding.h>
#include <OrvaneExportKit/windowing/Font.h>
#include <OrvaneExportKit/windowing/FontPanel.h>
#include <OrvaneExportKit/windowing/Frames.h>
#include <OrvaneExportKit/windowing/ParagraphStyle.h>
#include <tests/support/PanelController.h>
#include <tests/support/Printers.h>

#include <gtest/gtest.h>

#include <QtCore/QMetaProperty>
#include <QtGui/QHelpEvent>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QToolButton>
#include <QtWidgets/QToolTip>

#include <limits>

using namespace Qt::Literals::StringLiterals;
using windowing::Font;
using windowing::FontPanel;

namespace {

QString userFontName()
{
    return Font::fontName(Font::userFontOfSize(10.0));
}

QVariantMap shownAttributes(const KZFontNameTextField &field)
{
    return field.attributedStringValue().attributesAtIndex(0);
}

class FontFieldTarget : public QObject
{
    Q_OBJECT

public:
    Q_INVOKABLE void takeFont(windowing::FontPanel *sender) { senders.append(sender); }

    QList<FontPanel *> senders;
};

/// The shared font panel, which shows nothing in particular.
class FontFieldChange : public testing::Test
{
protected:
    void SetUp() override
    {
        panel.setSelectedFont(Font::userFontOfSize(12.0));
        panel.setSelectedAttributes({});
    }
    ~FontFieldChange() override { delete &panel; }

    QCheckBox *checkBox(const QString &text)
    {
        for (QCheckBox *box : panel.findChildren<QCheckBox *>()) {
            if (box->text() == text) {
                return box;
            }
        }
        return nullptr;
    }

    FontPanel &panel = FontPanel::sharedFontPanel();
    KZFontNameTextField field;
};

TEST(KZFontNameTextField, ShowsTheUsersFontAtFirst)
{
    const auto field = KZFontNameTextField::initWithFrame({10.5, 20.0, 150.25, 22.0});
    EXPECT_EQ(field->text(), userFontName() + u", 10pt"_s);
    EXPECT_EQ(field->selectedFontName(), userFontName());
    EXPECT_EQ(field->selectedFontSize(), 10.0F);
    EXPECT_FALSE(field->selectedFontAttributes().isValid());
    EXPECT_EQ(field->alignment(), Qt::AlignCenter);
    EXPECT_FALSE(field->isEditable());
    EXPECT_EQ(field->bezelStyle(), windowing::TextField::BezelStyle::Rounded);
    EXPECT_FALSE(field->fieldAttributes());
    EXPECT_EQ(shownAttributes(*field), QVariantMap());
    EXPECT_EQ(windowing::frameOf(*field), QRectF(10.5, 20.0, 150.25, 22.0));
}

TEST(KZFontNameTextField, ShowsSizesInWholePointsWithHalvesToEven)
{
    KZFontNameTextField field;
    field.setSelectedFontName(u"Times-Roman"_s);
    const std::vector<std::pair<float, QString>> sizes{
        {11.5F, u"12pt"_s}, {12.5F, u"12pt"_s}, {13.5F, u"14pt"_s}, {12.0F, u"12pt"_s},          {12.6F, u"13pt"_s},
        {0.4F, u"0pt"_s},   {0.5F, u"0pt"_s},   {-3.0F, u"-3pt"_s}, {1e10F, u"10000000000pt"_s},
    };
    for (const auto &[size, shown] : sizes) {
        field.setSelectedFontSize(size);
        EXPECT_EQ(field.text(), u"Times-Roman, "_s + shown);
    }
    field.setSelectedFontSize(std::numeric_limits<float>::max());
    EXPECT_EQ(field.text(), u"Times-Roman, 340282346638528859811704183484516925440pt"_s);
}

TEST(KZFontNameTextField, ShowsAMissingNameInBrackets)
{
    KZFontNameTextField field;
    field.setSelectedFontName({});
    EXPECT_EQ(field.text(), u"(null), 10pt"_s);
    field.setSelectedFontName(u""_s);
    EXPECT_EQ(field.text(), u", 10pt"_s);
}

TEST(KZFontNameTextField, ShowsTheDisplayNameOfAFontUntilAValueIsSet)
{
    KZFontNameTextField field;
    field.setSelectedFontName(u"DejaVuSans-Bold"_s);
    const QFont font = Font::fontWithName(u"DejaVuSerif-BoldItalic"_s, 14.5);
    ASSERT_NE(Font::displayName(font), field.selectedFontName());
    field.setFontNameWithFont(font);
    EXPECT_EQ(field.text(), Font::displayName(font) + u", 14pt"_s);
    EXPECT_EQ(field.selectedFontName(), u"DejaVuSans-Bold"_s);
    EXPECT_EQ(field.selectedFontSize(), 10.0F);

    field.setSelectedFontSize(10.0F);
    EXPECT_EQ(field.text(), u"DejaVuSans-Bold, 10pt"_s);
    field.setFontNameWithFont(font);
    field.setFontNameWithFont({});
    EXPECT_EQ(field.text(), u"DejaVuSans-Bold, 10pt"_s);
}

TEST(KZFontNameTextField, AddsTheChosenAttributesToThoseBeneath)
{
    KZFontNameTextField field;
    QPalette palette;
    palette.setColor(QPalette::Text, Qt::darkBlue);
    field.setPalette(palette);
    field.awakeFromNib();
    field.setSelectedFontAttributes(QVariantMap{{u"NSUnderline"_s, 1}, {u"NSFont"_s, QFont(u"Times"_s)}});
    const QVariantMap shown = shownAttributes(field);
    EXPECT_EQ(shown.value(u"NSColor"_s), QVariant(QColor(Qt::darkBlue)));
    EXPECT_EQ(shown.value(u"NSUnderline"_s), QVariant(1));
    EXPECT_EQ(shown.value(u"NSFont"_s), QVariant(QFont(u"Times"_s)));

    field.setSelectedFontAttributes({});
    EXPECT_EQ(shownAttributes(field), field.fieldAttributes());
}

TEST(KZFontNameTextField, TakesItsOwnAttributesWhenItIsLoadedFromAnInterfaceFile)
{
    KZFontNameTextField field;
    const auto before = field.attributedStringValue();
    field.awakeFromNib();
    EXPECT_EQ(field.attributedStringValue(), before); // the text is back
    ASSERT_TRUE(field.fieldAttributes());
    EXPECT_EQ(field.fieldAttributes()->value(u"NSFont"_s), QVariant(field.font()));
    EXPECT_EQ(field.fieldAttributes()->value(u"NSColor"_s), QVariant(field.palette().color(QPalette::Text)));
    EXPECT_EQ(field.fieldAttributes()->value(u"NSParagraphStyle"_s).value<windowing::ParagraphStyle>().alignment,
              windowing::TextAlignment::Center);
}

TEST(KZFontNameTextField, FollowsAChangedPalette)
{
    KZFontNameTextField field;
    field.awakeFromNib();
    field.setSelectedFontSize(12.0F);
    QPalette dark;
    dark.setColor(QPalette::Text, Qt::white);
    field.setPalette(dark);
    EXPECT_EQ(shownAttributes(field).value(u"NSColor"_s), QVariant(QColor(Qt::white)));
}

TEST(KZFontNameTextField, TextThatReplacesNoneHasNoAttributesBeneath)
{
    KZFontNameTextField field;
    field.awakeFromNib();
    field.setAttributedStringValue(platform::AttributedString());
    field.setSelectedFontSize(12.0F);
    EXPECT_EQ(shownAttributes(field), QVariantMap());
    field.setSelectedFontSize(12.0F);
    EXPECT_EQ(shownAttributes(field), field.fieldAttributes());
}

TEST(KZFontNameTextField, ExposesItsBindingsInTheOrderOfItsFields)
{
    EXPECT_EQ(windowing::exposedBindings(KZFontNameTextField::staticMetaObject),
              QStringList({u"selectedFontAttributes"_s, u"selectedFontName"_s, u"selectedFontSize"_s}));
}

TEST(KZFontNameTextField, TakesItsValuesAsProperties)
{
    KZFontNameTextField field;
    ASSERT_TRUE(field.setProperty("selectedFontName", u"Times-Bold"_s));
    ASSERT_TRUE(field.setProperty("selectedFontSize", 17.0));
    ASSERT_TRUE(field.setProperty("selectedFontAttributes", QVariantMap{{u"NSUnderline"_s, 1}}));
    EXPECT_EQ(field.text(), u"Times-Bold, 17pt"_s);
    EXPECT_EQ(shownAttributes(field), (QVariantMap{{u"NSUnderline"_s, 1}}));
    EXPECT_EQ(field.property("selectedFontAttributes").toMap(), (QVariantMap{{u"NSUnderline"_s, 1}}));
}

TEST(KZFontNameTextField, TakesTheFocusAndBeginsNoEdit)
{
    QWidget window;
    KZFontNameTextField field(&window);
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    EXPECT_TRUE(field.becomeFirstResponder());
    field.setFocus(Qt::TabFocusReason);
    EXPECT_EQ(QApplication::focusWidget(), &field);
    const QString before = field.text();
    QTest::keyClicks(&field, u"x"_s);
    QTest::keyClick(&field, Qt::Key_Backspace);
    EXPECT_EQ(field.text(), before);
}

TEST_F(FontFieldChange, GoesToTheTarget)
{
    FontFieldTarget target;
    field.setTarget(&target);
    field.setAction("takeFont");
    const QString before = field.text();
    field.changeFont(&panel);
    EXPECT_EQ(target.senders, QList<FontPanel *>{&panel});
    EXPECT_EQ(field.text(), before);
}

TEST_F(FontFieldChange, DoesNothingWithoutATarget)
{
    const QString before = field.text();
    field.changeFont(&panel);
    {
        FontFieldTarget target;
        field.setTarget(&target);
        field.setAction("takeFont");
    }
    field.changeFont(&panel); // the target is gone
    EXPECT_EQ(field.text(), before);
}

TEST_F(FontFieldChange, IsRefusedByATargetWithoutTheFunction)
{
    FontFieldTarget target;
    field.setTarget(&target);
    field.setAction("takeColour");
    EXPECT_THROW(field.changeFont(&panel), platform::UnrecognisedOperationException);
}

TEST_F(FontFieldChange, OfAttributesConvertsNoneWhereThereAreNone)
{
    checkBox(u"&Underline"_s)->click();
    ASSERT_FALSE(field.selectedFontAttributes().isValid());
    field.changeAttributes(&panel);
    EXPECT_EQ(field.selectedFontAttributes().toMap(), (QVariantMap{{u"NSUnderline"_s, 1}}));
    EXPECT_EQ(shownAttributes(field), (QVariantMap{{u"NSUnderline"_s, 1}}));
}

TEST_F(FontFieldChange, OfAttributesKeepsTheOthers)
{
    field.setSelectedFontAttributes(QVariantMap{{u"NSColor"_s, QColor(Qt::red)}});
    checkBox(u"&Underline"_s)->click();
    field.changeAttributes(&panel);
    EXPECT_EQ(field.selectedFontAttributes().toMap(),
              (QVariantMap{{u"NSColor"_s, QColor(Qt::red)}, {u"NSUnderline"_s, 1}}));
}

TEST_F(FontFieldChange, OfTheBackgroundChangesOnlyTheFieldWhenNothingIsBound)
{
    field.setSelectedFontAttributes(QVariantMap{{u"NSUnderline"_s, 1}});
    panel.setSelectedAttributes({{u"NSBackgroundColor"_s, QColor(Qt::yellow)}});
    field.changeDocumentBackgroundColor(&panel);
    EXPECT_EQ(field.selectedFontAttributes().toMap(),
              (QVariantMap{{u"NSUnderline"_s, 1}, {u"NSBackgroundColor"_s, QColor(Qt::yellow)}}));
}

TEST_F(FontFieldChange, OfTheBackgroundToNoColourIsRefusedAndChangesNothing)
{
    field.setSelectedFontAttributes(QVariantMap{{u"NSUnderline"_s, 1}});
    EXPECT_THROW(field.changeDocumentBackgroundColor(&panel), platform::InvalidArgumentException);
    EXPECT_EQ(field.selectedFontAttributes().toMap(), (QVariantMap{{u"NSUnderline"_s, 1}}));
}

/// What observers that were connected before and after the binding see in the field and in the model.
class FontFieldObservers : public FontFieldChange
{
protected:
    void SetUp() override
    {
        FontFieldChange::SetUp();
        controller.settings()->setValue(first, u"style"_s);
        observe();
        new windowing::Binding(&field, u"selectedFontAttributes"_s, &controller, u"settings.style"_s);
        observe();
    }

    void expectToHaveSeen(const QVariantMap &expected)
    {
        EXPECT_EQ(seenInModel, (QList<QVariantMap>{expected, expected}));
        EXPECT_EQ(seenInField, (QList<QVariantMap>{first, first}));
        EXPECT_EQ(field.selectedFontAttributes().toMap(), expected);
    }

    const QVariantMap first{{u"NSUnderline"_s, 1}};
    support::PanelController controller;
    QList<QVariantMap> seenInModel;
    QList<QVariantMap> seenInField;

private:
    void observe()
    {
        QObject::connect(controller.settings(), &platform::KeyValueCoding::didChangeValueForKey, &field, [this] {
            seenInModel.append(controller.settings()->objectForKey(u"style"_s).toMap());
            seenInField.append(field.selectedFontAttributes().toMap());
        });
    }
};

TEST_F(FontFieldObservers, SeeANewBackgroundInTheModelWhileTheFieldShowsTheOldOne)
{
    panel.setSelectedAttributes({{u"NSBackgroundColor"_s, QColor(Qt::yellow)}});
    field.changeDocumentBackgroundColor(&panel);
    expectToHaveSeen({{u"NSUnderline"_s, 1}, {u"NSBackgroundColor"_s, QColor(Qt::yellow)}});
}

TEST_F(FontFieldObservers, SeeNewAttributesInTheModelWhileTheFieldShowsTheOldOnes)
{
    checkBox(u"Stri&kethrough"_s)->click();
    field.changeAttributes(&panel);
    expectToHaveSeen({{u"NSUnderline"_s, 1}, {u"NSStrikethrough"_s, 1}});
}

TEST_F(FontFieldObservers, CanCorrectTheNewAttributes)
{
    const QVariantMap corrected{{u"NSUnderline"_s, 2}};
    QObject::connect(controller.settings(), &platform::KeyValueCoding::didChangeValueForKey, &field, [&] {
        if (controller.settings()->objectForKey(u"style"_s) != QVariant(corrected)) {
            controller.settings()->setValue(corrected, u"style"_s);
        }
    });
    checkBox(u"Stri&kethrough"_s)->click();
    field.changeAttributes(&panel);
    EXPECT_EQ(field.selectedFontAttributes().toMap(), corrected);
}

/// Stores nothing but empty maps.
class ForgetfulTransformer final : public platform::ValueTransformer
{
public:
    QMetaType transformedValueClass() const override { return QMetaType::fromType<QVariantMap>(); }
    bool allowsReverseTransformation() const override { return true; }
    QVariant transformedValue(const QVariant &value) const override { return value; }
    QVariant reverseTransformedValue(const QVariant & /*value*/) const override { return QVariantMap(); }
};

TEST_F(FontFieldChange, OfAttributesGoesToTheModelPastATransformer)
{
    platform::setValueTransformer(std::make_shared<ForgetfulTransformer>(), u"ForgetfulTransformer"_s);
    support::PanelController controller;
    controller.settings()->setValue(QVariantMap{{u"kept"_s, 1}}, u"style"_s);
    new windowing::Binding(&field, u"selectedFontAttributes"_s, &controller, u"settings.style"_s,
                           {.valueTransformerName = u"ForgetfulTransformer"_s});
    checkBox(u"&Underline"_s)->click();
    field.changeAttributes(&panel);
    EXPECT_EQ(platform::valueForKeyPath(&controller, u"settings.style"_s).toMap(),
              (QVariantMap{{u"kept"_s, 1}, {u"NSUnderline"_s, 1}}));
    platform::setValueTransformer(nullptr, u"ForgetfulTransformer"_s);
}

class FontFieldInWindow : public FontFieldChange
{
protected:
    void SetUp() override
    {
        FontFieldChange::SetUp();
        window = std::make_unique<QWidget>();
        shownField = new KZFontNameTextField(window.get());
        shownField->setSelectedFontName(u"DejaVuSerif-Bold"_s);
        shownField->setSelectedFontSize(17.0F);
        shownField->setSelectedFontAttributes(QVariantMap{{u"NSStrikethrough"_s, 1}});
        window->show();
        window->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
        shownField->setFocus();
    }

    std::unique_ptr<QWidget> window;
    KZFontNameTextField *shownField = nullptr;
};

TEST_F(FontFieldInWindow, ShowsItsValuesInTheFontPanel)
{
    EXPECT_EQ(Font::fontName(panel.selectedFont()), u"DejaVuSerif-Bold"_s);
    EXPECT_EQ(panel.selectedFont().pointSizeF(), 17.0);
    EXPECT_TRUE(checkBox(u"Stri&kethrough"_s)->isChecked());
    EXPECT_FALSE(checkBox(u"&Underline"_s)->isChecked());
}

TEST_F(FontFieldInWindow, OpensTheFontPanelByKeyAndByMouse)
{
    QTest::keyClick(shownField, Qt::Key_Space);
    EXPECT_TRUE(panel.isVisible());
    panel.close();
    QTest::mouseDClick(shownField, Qt::LeftButton);
    EXPECT_TRUE(panel.isVisible());
}

TEST_F(FontFieldInWindow, OpensTheFontPanelByItsButton)
{
    auto *button = shownField->findChild<QToolButton *>();
    ASSERT_NE(button, nullptr);
    EXPECT_TRUE(shownField->rect().contains(button->geometry()));
    EXPECT_FALSE(button->accessibleName().isEmpty());
    QTest::mouseClick(button, Qt::LeftButton);
    EXPECT_TRUE(panel.isVisible());
    EXPECT_EQ(Font::fontName(panel.selectedFont()), u"DejaVuSerif-Bold"_s);
}

TEST_F(FontFieldInWindow, SelectsNothingWhateverBringsTheFocus)
{
    for (const Qt::FocusReason reason :
         {Qt::TabFocusReason, Qt::BacktabFocusReason, Qt::ShortcutFocusReason, Qt::MouseFocusReason}) {
        shownField->clearFocus();
        shownField->setFocus(reason);
        EXPECT_TRUE(shownField->hasFocus());
        EXPECT_FALSE(shownField->hasSelectedText()) << reason;
    }
}

TEST_F(FontFieldInWindow, SaysInAWordThatTheFontIsNotInstalled)
{
    const auto *word = shownField->findChild<QLabel *>();
    ASSERT_NE(word, nullptr);
    shownField->resize(400, 26);
    EXPECT_FALSE(word->isVisible());
    shownField->setSelectedFontName(u"NoSuchFont-Bold"_s);
    EXPECT_TRUE(word->isVisible());
    EXPECT_EQ(word->text(), u"not installed"_s);
    EXPECT_EQ(shownField->text(), u"NoSuchFont-Bold, 17pt"_s);
    EXPECT_TRUE(shownField->rect().contains(word->geometry()));

    shownField->setLayoutDirection(Qt::RightToLeft);
    const QRect button = shownField->findChild<QToolButton *>()->geometry();
    EXPECT_LT(button.right(), word->geometry().left());
    shownField->resize(120, 26); // there is room for the name alone
    EXPECT_FALSE(word->isVisible());

    shownField->resize(400, 26);
    shownField->setFontNameWithFont(Font::fontWithName(u"DejaVuSans"_s, 12.0));
    EXPECT_FALSE(word->isVisible());
    shownField->setSelectedFontName({});
    EXPECT_FALSE(word->isVisible());
}

TEST_F(FontFieldInWindow, TellsItsWholeTextAndItsUseInAToolTip)
{
    QHelpEvent help(QEvent::ToolTip, QPoint(5, 5), shownField->mapToGlobal(QPoint(5, 5)));
    QApplication::sendEvent(shownField, &help);
    EXPECT_EQ(QToolTip::text(), u"DejaVuSerif-Bold, 17pt\nDouble-click or press Space to choose a font"_s);
    QToolTip::hideText();
}

TEST_F(FontFieldInWindow, GetsTheChangesOfTheFontPanel)
{
    QTest::keyClick(shownField, Qt::Key_Space);
    checkBox(u"&Underline"_s)->click();
    EXPECT_EQ(shownField->selectedFontAttributes().toMap(),
              (QVariantMap{{u"NSStrikethrough"_s, 1}, {u"NSUnderline"_s, 1}}));
}

} // namespace

#include "KZFontNameTextFieldTest.moc"
