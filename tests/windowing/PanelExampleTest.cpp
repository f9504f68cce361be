#include <OrvaneExportKit/windowing/FontPanel.h>
#include <OrvaneExportKit/windowing/PanelBindings.h>
#include <OrvaneExportKit/windowing/TextAttributes.h>
#include <OrvaneExportKit/windowing/TokenField.h>
#include <OrvaneExportKit/windowing/UiLoader.h>
#include <examples/panel/PanelOwner.h>
#include <tests/support/Printers.h>
#include <tests/support/TemporaryDefaults.h>

#include <OrvaneExportKit/controls/KZContentView.h>
#include <OrvaneExportKit/controls/KZFontNameTextField.h>
#include <OrvaneExportKit/controls/KZPageView.h>
#include <OrvaneExportKit/platform/KeyPaths.h>

#include <QtTest/QTest>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QDoubleSpinBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPlainTextEdit>
#include <QtWidgets/QRadioButton>
#include <QtWidgets/QSlider>
#include <QtWidgets/QSpinBox>
#include <QtWidgets/QTextEdit>

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace {

/// The example's panel in a window, without a line of code between it and the settings.
class PanelExample : public support::TemporaryDefaults
{
protected:
    void SetUp() override
    {
        TemporaryDefaults::SetUp();
        m_owner = std::make_unique<PanelOwner>();
        const platform::Bundle bundle(u"org.orvane.example.panel"_s, QStringLiteral(ORVANE_PANEL_FOLDER));
        m_panel = windowing::UiLoader::load(bundle, u"panel"_s);
        windowing::bindPanel(*m_panel, m_owner.get());
        m_panel->show();
        m_panel->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(m_panel.get()));
    }

    template <typename Control>
    Control &control(const QString &name)
    {
        return *windowing::UiLoader::outlet<Control>(*m_panel, name);
    }

    QVariant stored(const QString &keyPath)
    {
        return platform::valueForKeyPath(m_owner.get(), u"settings."_s + keyPath);
    }

    void replaceText(QWidget &editor, const QString &text)
    {
        editor.setFocus();
        QTest::keySequence(&editor, QKeySequence::SelectAll);
        QTest::keyClicks(&editor, text);
        QTest::keyClick(&editor, Qt::Key_Tab);
    }

    std::unique_ptr<PanelOwner> m_owner;
    std::unique_ptr<QWidget> m_panel;
};

TEST_F(PanelExample, ShowsEverySetting)
{
    EXPECT_EQ(control<windowing::TokenField>(u"fileNameField"_s).displayText(), u"Export Name Number - Name"_s);
    EXPECT_EQ(control<QComboBox>(u"quotationsMenu"_s).currentText(), u"American"_s);
    EXPECT_TRUE(control<QRadioButton>(u"paragraphsButton"_s).isChecked());
    EXPECT_EQ(control<QSlider>(u"lineHeightSlider"_s).value(), 15);
    EXPECT_EQ(control<QSpinBox>(u"lineHeightField"_s).value(), 15);
    EXPECT_EQ(control<QSpinBox>(u"lineLengthField"_s).value(), 72);
    EXPECT_EQ(control<QComboBox>(u"encodingBox"_s).currentText(), u"UTF-8"_s);
    EXPECT_NEAR(control<QDoubleSpinBox>(u"topField"_s).value(), 72.0F * KZExportSettings::measurementUnitFactor(),
                0.005);
    EXPECT_EQ(control<KZFontNameTextField>(u"fontField"_s).text(), stored(u"font.name"_s).toString() + u", 12pt"_s);
    EXPECT_EQ(control<QComboBox>(u"paperMenu"_s).currentText(), u"A4"_s);
    EXPECT_EQ(control<KZPageView>(u"pageView"_s).paperSize(), QSizeF(595.28, 841.89));
    EXPECT_EQ(control<KZPageView>(u"pageView"_s).topMargin(), 72.0F);
}

TEST_F(PanelExample, StoresWhatTheUserEnters)
{
    auto &fileName = control<windowing::TokenField>(u"fileNameField"_s);
    auto &tokens = *fileName.findChild<QTextEdit *>();
    tokens.setFocus();
    QTest::keySequence(&tokens, QKeySequence::SelectAll);
    QTest::keyClicks(&tokens, u"My la"_s);
    QTest::keyClick(&tokens, Qt::Key_Tab);
    QTest::keyClick(&tokens, Qt::Key_Tab);
    QTest::keyClick(&control<QCheckBox>(u"convertSpacesBox"_s), Qt::Key_Space);
    QTest::keyClick(&control<QComboBox>(u"quotationsMenu"_s), Qt::Key_End);
    control<QRadioButton>(u"noneButton"_s).click();
    QTest::keyClick(&control<QSlider>(u"lineHeightSlider"_s), Qt::Key_Right);
    replaceText(control<QSpinBox>(u"lineLengthField"_s), u"80"_s);
    replaceText(control<QComboBox>(u"encodingBox"_s), u"UTF-16"_s);
    replaceText(control<QPlainTextEdit>(u"headerEdit"_s), u"Draft"_s);
    QTest::keyClick(&control<QComboBox>(u"paperMenu"_s), Qt::Key_Down);
    replaceText(control<QDoubleSpinBox>(u"bottomField"_s), u"0"_s);

    EXPECT_EQ(stored(u"fileName"_s), QVariant(QVariantList{u"My "_s, u"<4>"_s}));
    EXPECT_EQ(stored(u"convertSpaces"_s), QVariant(true));
    EXPECT_EQ(stored(u"quotations"_s), QVariant(u"sv"_s));
    EXPECT_EQ(stored(u"format"_s), QVariant(u"none"_s));
    EXPECT_FLOAT_EQ(stored(u"lineHeight"_s).toFloat(), 1.6F);
    EXPECT_EQ(control<QSpinBox>(u"lineHeightField"_s).value(), 16);
    EXPECT_EQ(stored(u"lineLength"_s), QVariant(80));
    EXPECT_EQ(stored(u"encoding"_s), QVariant(u"UTF-16"_s));
    EXPECT_EQ(stored(u"header"_s), QVariant(u"Draft"_s));
    EXPECT_EQ(stored(u"margin.bottom"_s), QVariant(0.0F));
    EXPECT_EQ(stored(u"margin.top"_s).toFloat(), 72.0F);
    EXPECT_EQ(stored(u"paper"_s), QVariant(u"{419.53, 595.28}"_s));
}

TEST_F(PanelExample, ShowsThePageAsItIsEdited)
{
    QTest::keyClick(&control<QComboBox>(u"paperMenu"_s), Qt::Key_Down);
    replaceText(control<QDoubleSpinBox>(u"leftField"_s), u"0"_s);
    const auto &page = control<KZPageView>(u"pageView"_s);
    EXPECT_EQ(page.paperSize(), QSizeF(419.53, 595.28));
    EXPECT_EQ(page.leftMargin(), 0.0F);
    EXPECT_EQ(page.rightMargin(), 72.0F);
}

TEST_F(PanelExample, StoresTheFontThatIsChosenInTheFontPanel)
{
    auto &field = control<KZFontNameTextField>(u"fontField"_s);
    field.setFocus();
    QTest::keyClick(&field, Qt::Key_Space);
    auto &fonts = windowing::FontPanel::sharedFontPanel();
    replaceText(*fonts.findChild<QDoubleSpinBox *>(), u"14"_s);
    const QList<QCheckBox *> boxes = fonts.findChildren<QCheckBox *>();
    for (QCheckBox *box : boxes) {
        box->setChecked(true);
    }
    fonts.close();

    EXPECT_EQ(stored(u"font.size"_s), QVariant(14.0));
    EXPECT_EQ(field.text(), stored(u"font.name"_s).toString() + u", 14pt"_s);

    m_owner->settings()->writeSettingsToDefaults();
    const QVariantMap attributes = PanelOwner().fontAttributes().toMap();
    EXPECT_EQ(attributes, field.selectedFontAttributes().toMap());
    for (const QLatin1StringView name :
         {windowing::underlineStyleAttributeName, windowing::strikethroughStyleAttributeName,
          windowing::foregroundColorAttributeName, windowing::backgroundColorAttributeName}) {
        EXPECT_TRUE(attributes.contains(name)) << name.data();
    }
}

TEST_F(PanelExample, ShowsWhatOthersStore)
{
    m_owner->settings()->setValue(QVariantMap{{u"left"_s, 144.0F}}, u"margin"_s);
    EXPECT_NEAR(control<QDoubleSpinBox>(u"leftField"_s).value(), 144.0F * KZExportSettings::measurementUnitFactor(),
                0.005);
    m_owner->settings()->setValue(u"de_CH"_s, u"quotations"_s);
    EXPECT_EQ(control<QComboBox>(u"quotationsMenu"_s).currentText(), u"Swiss"_s);
}

TEST_F(PanelExample, ReachesEveryControlByKeyboardInOrder)
{
    const QStringList names{u"convertSpacesBox"_s, u"fontField"_s,       u"quotationsMenu"_s,  u"paragraphsButton"_s,
                            u"lineHeightSlider"_s, u"lineHeightField"_s, u"lineLengthField"_s, u"encodingBox"_s,
                            u"headerEdit"_s,       u"paperMenu"_s,       u"topField"_s,        u"bottomField"_s,
                            u"leftField"_s,        u"rightField"_s};
    control<windowing::TokenField>(u"fileNameField"_s).setFocus();
    for (const QString &name : names) {
        QTest::keyClick(m_panel->focusWidget(), Qt::Key_Tab);
        EXPECT_EQ(m_panel->focusWidget()->objectName(), name);
    }
}

TEST_F(PanelExample, CommitsTheTokenFieldWhenItIsTakenOut)
{
    QWidget window;
    m_panel->setParent(&window);
    m_panel->show();
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    auto &tokens = *control<windowing::TokenField>(u"fileNameField"_s).findChild<QTextEdit *>();
    tokens.setFocus();
    QTest::keySequence(&tokens, QKeySequence::SelectAll);
    QTest::keyClicks(&tokens, u"nu"_s);
    qobject_cast<KZContentView *>(m_panel.get())->removeFromSuperview();
    EXPECT_EQ(stored(u"fileName"_s), QVariant(QVariantList{u"nu"_s}));
}

} // namespace
