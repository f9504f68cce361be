#include <OrvaneExportKit/windowing/Binding.h>
#include <tests/support/PanelController.h>
#include <tests/support/Printers.h>
#include <tests/support/RecordingAlert.h>

#include <OrvaneExportKit/controls/ValueTransformers.h>

#include <QtTest/QSignalSpy>
#include <QtTest/QTest>
#include <QtWidgets/QButtonGroup>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QDateTimeEdit>
#include <QtWidgets/QDoubleSpinBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPlainTextEdit>
#include <QtWidgets/QRadioButton>
#include <QtWidgets/QSlider>
#include <QtWidgets/QSpinBox>
#include <QtWidgets/QVBoxLayout>

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;
using windowing::Binding;
using windowing::bindingOf;
using windowing::BindingOptions;
using windowing::infoForBinding;

namespace {

/// A control of the kit's kind: values without signals.
class SizeView : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QSizeF paperSize MEMBER m_paperSize NOTIFY paperSizeChanged)
    Q_PROPERTY(float margin MEMBER m_margin)
    Q_PROPERTY(QStringList names MEMBER m_names NOTIFY namesChanged)

public:
    using QWidget::QWidget;

Q_SIGNALS:
    void paperSizeChanged();
    void namesChanged();

private:
    QSizeF m_paperSize;
    float m_margin = 0.0F;
    QStringList m_names;
};

class NamedSizeView : public SizeView
{
    Q_OBJECT

public:
    using SizeView::SizeView;
};

/// Shows a text in capitals and stores nothing.
class Capitals : public platform::ValueTransformer
{
public:
    QMetaType transformedValueClass() const override { return QMetaType::fromType<QString>(); }
    bool allowsReverseTransformation() const override { return false; }
    QVariant transformedValue(const QVariant &value) const override { return value.toString().toUpper(); }
    QVariant reverseTransformedValue(const QVariant &value) const override { return value; }
};

class Bindings : public testing::Test
{
protected:
    Bindings() : m_layout(&m_window)
    {
        m_window.setLocale(QLocale::c());
        m_layout.addWidget(&m_otherField);
        settings().setObject(QVariantMap{{u"top"_s, 72.0F}, {u"left"_s, 36.0F}}, u"margin"_s);
        QObject::connect(&settings(), &KZExportSettings::didChangeValueForKey,
                         [this](const QString &key) { m_changes.append(key); });
    }

    ~Bindings() override { platform::setValueTransformer(nullptr, u"Capitals"_s); }

    KZExportSettings &settings() { return *m_controller.settings(); }
    QVariant stored(const QString &keyPath) { return platform::valueForKeyPath(&m_controller, keyPath); }

    template <typename Control>
    Control &addControl()
    {
        auto *control = new Control(&m_window);
        m_layout.addWidget(control);
        return *control;
    }

    Binding &bind(QWidget &control, const QString &name, const QString &keyPath, const BindingOptions &options = {})
    {
        return *new Binding(&control, name, &m_controller, keyPath, options);
    }

    void showWindow()
    {
        m_window.show();
        m_window.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&m_window));
    }

    void moveFocusAway() { m_otherField.setFocus(); }

    support::PanelController m_controller;
    QWidget m_window;
    QVBoxLayout m_layout;
    QLineEdit m_otherField;
    QStringList m_changes;
};

TEST_F(Bindings, ShowTheStoredValueAndFollowTheNotifyingSetter)
{
    settings().setObject(u"Draft"_s, u"title"_s);
    auto &field = addControl<QLineEdit>();
    bind(field, u"text"_s, u"settings.title"_s);
    EXPECT_EQ(field.text(), u"Draft"_s);
    settings().setValue(u"Final"_s, u"title"_s);
    EXPECT_EQ(field.text(), u"Final"_s);
}

TEST_F(Bindings, FollowNoSilentSetterUntilTheyAreRefreshed)
{
    auto &field = addControl<QLineEdit>();
    Binding &binding = bind(field, u"text"_s, u"settings.title"_s);
    settings().setObject(u"Final"_s, u"title"_s);
    EXPECT_EQ(field.text(), QString());
    binding.refresh();
    EXPECT_EQ(field.text(), u"Final"_s);
}

TEST_F(Bindings, FollowPropertiesWithASignal)
{
    auto &field = addControl<QLineEdit>();
    bind(field, u"text"_s, u"name"_s);
    m_controller.setProperty("name", u"Plain Text"_s);
    EXPECT_EQ(field.text(), u"Plain Text"_s);
}

TEST_F(Bindings, FollowAnExchangedSettingsObject)
{
    auto &field = addControl<QLineEdit>();
    bind(field, u"text"_s, u"settings.title"_s);
    settings().setValue(u"Draft"_s, u"title"_s);
    m_controller.exchangeSettings();
    EXPECT_EQ(field.text(), QString());
    settings().setValue(u"Final"_s, u"title"_s);
    EXPECT_EQ(field.text(), u"Final"_s);
}

TEST_F(Bindings, StoreTypedTextWhenTheEditEnds)
{
    auto &field = addControl<QLineEdit>();
    bind(field, u"text"_s, u"settings.title"_s);
    showWindow();
    field.setFocus();
    QTest::keyClicks(&field, u"Novel"_s);
    EXPECT_FALSE(stored(u"settings.title"_s).isValid());
    moveFocusAway();
    EXPECT_EQ(stored(u"settings.title"_s), QVariant(u"Novel"_s));
    EXPECT_EQ(m_changes, QStringList{u"title"_s});
}

TEST_F(Bindings, StoreNothingWhenAnEditEndsWithTheTextThatWasShown)
{
    auto &field = addControl<QLineEdit>();
    bind(field, u"text"_s, u"settings.margin.top"_s, {.valueTransformerName = u"KZMeasurementUnitTransformer"_s});
    showWindow();
    field.setFocus();
    QTest::keyClick(&field, Qt::Key_Return);
    moveFocusAway();
    EXPECT_EQ(m_changes, QStringList());
    EXPECT_EQ(stored(u"settings.margin.top"_s), QVariant(72.0F));
}

TEST_F(Bindings, ShowAChangeInEveryControlThatIsBoundToTheSameKeyPath)
{
    auto &spinBox = addControl<QSpinBox>();
    auto &slider = addControl<QSlider>();
    bind(spinBox, u"value"_s, u"settings.count"_s);
    bind(slider, u"value"_s, u"settings.count"_s);
    slider.setValue(7);
    EXPECT_EQ(spinBox.value(), 7);
    spinBox.setValue(9);
    EXPECT_EQ(slider.value(), 9);
    EXPECT_EQ(m_changes, (QStringList{u"count"_s, u"count"_s}));
}

TEST_F(Bindings, StoreIntoNestedDictionariesAndLeaveTheirOtherEntries)
{
    auto &spinBox = addControl<QDoubleSpinBox>();
    bind(spinBox, u"value"_s, u"settings.margin.top"_s);
    EXPECT_EQ(spinBox.value(), 72.0);
    spinBox.setValue(50.0);
    EXPECT_EQ(stored(u"settings.margin"_s), QVariant(QVariantMap{{u"top"_s, 50.0}, {u"left"_s, 36.0F}}));
    EXPECT_EQ(m_changes, QStringList{u"margin"_s});
}

TEST_F(Bindings, ConvertBothWaysThroughATransformer)
{
    platform::setValueTransformer(std::make_shared<KZMeasurementUnitTransformer>(2.54F / 72.0F),
                                  u"KZMeasurementUnitTransformer"_s);
    auto &spinBox = addControl<QDoubleSpinBox>();
    bind(spinBox, u"value"_s, u"settings.margin.top"_s, {.valueTransformerName = u"KZMeasurementUnitTransformer"_s});
    EXPECT_EQ(spinBox.value(), 2.54);
    EXPECT_EQ(m_changes, QStringList());
    spinBox.setValue(1.27);
    EXPECT_FLOAT_EQ(stored(u"settings.margin.top"_s).toFloat(), 36.0F);
}

TEST_F(Bindings, UseTheTransformerThatWasRegisteredLast)
{
    platform::setValueTransformer(std::make_shared<KZMeasurementUnitTransformer>(1.0F),
                                  u"KZMeasurementUnitTransformer"_s);
    auto &spinBox = addControl<QDoubleSpinBox>();
    Binding &binding = bind(spinBox, u"value"_s, u"settings.margin.top"_s,
                            {.valueTransformerName = u"KZMeasurementUnitTransformer"_s});
    EXPECT_EQ(spinBox.value(), 72.0);
    platform::setValueTransformer(std::make_shared<KZMeasurementUnitTransformer>(0.5F),
                                  u"KZMeasurementUnitTransformer"_s);
    binding.refresh();
    EXPECT_EQ(spinBox.value(), 36.0);
}

TEST_F(Bindings, StoreNothingThroughATransformerWithoutAWayBack)
{
    platform::setValueTransformer(std::make_shared<Capitals>(), u"Capitals"_s);
    auto &checkBox = addControl<QCheckBox>();
    settings().setObject(u"on"_s, u"title"_s);
    bind(checkBox, u"checked"_s, u"settings.flag"_s, {.valueTransformerName = u"Capitals"_s});
    checkBox.click();
    EXPECT_EQ(m_changes, QStringList());
}

TEST_F(Bindings, ShowAPlaceholderForAMissingValueAndStoreItNever)
{
    auto &spinBox = addControl<QSpinBox>();
    bind(spinBox, u"value"_s, u"settings.lineLength"_s, {.nullPlaceholder = 72});
    EXPECT_EQ(spinBox.value(), 72);
    EXPECT_FALSE(stored(u"settings.lineLength"_s).isValid());
}

TEST_F(Bindings, ShowAPlaceholderInAFieldAsPlaceholderText)
{
    auto &field = addControl<QLineEdit>();
    bind(field, u"text"_s, u"settings.title"_s, {.nullPlaceholder = u"Untitled"_s});
    EXPECT_EQ(field.text(), QString());
    EXPECT_EQ(field.placeholderText(), u"Untitled"_s);
}

TEST_F(Bindings, ShowAPlaceholderInAComboBoxAsItsText)
{
    auto &comboBox = addControl<QComboBox>();
    comboBox.setEditable(true);
    bind(comboBox, u"currentText"_s, u"settings.encoding"_s, {.nullPlaceholder = u"UTF-8"_s});
    EXPECT_EQ(comboBox.currentText(), u"UTF-8"_s);
}

TEST_F(Bindings, StoreThePressOfACheckBox)
{
    auto &checkBox = addControl<QCheckBox>();
    bind(checkBox, u"checked"_s, u"settings.convertSpaces"_s);
    checkBox.click();
    EXPECT_EQ(stored(u"settings.convertSpaces"_s), QVariant(true));
    settings().setValue(false, u"convertSpaces"_s);
    EXPECT_FALSE(checkBox.isChecked());
}

TEST_F(Bindings, ServeRadioButtonsThatShareAKeyPath)
{
    settings().setObject(u"html"_s, u"format"_s);
    auto &plain = addControl<QRadioButton>();
    auto &html = addControl<QRadioButton>();
    plain.setProperty("tag", u"plain"_s);
    html.setProperty("tag", u"html"_s);
    bind(plain, u"selectedTag"_s, u"settings.format"_s);
    bind(html, u"selectedTag"_s, u"settings.format"_s);
    EXPECT_TRUE(html.isChecked());
    plain.click();
    EXPECT_EQ(stored(u"settings.format"_s), QVariant(u"plain"_s));
    EXPECT_FALSE(html.isChecked());
    EXPECT_EQ(m_changes, QStringList{u"format"_s});
    settings().setValue(u"html"_s, u"format"_s);
    EXPECT_TRUE(html.isChecked());
    settings().setValue(u"rtf"_s, u"format"_s);
    EXPECT_FALSE(plain.isChecked() || html.isChecked());
}

TEST_F(Bindings, ServeButtonsOfAnExclusiveGroup)
{
    settings().setObject(1, u"alignment"_s);
    auto &left = addControl<QCheckBox>();
    auto &right = addControl<QCheckBox>();
    QButtonGroup group;
    group.addButton(&left);
    group.addButton(&right);
    left.setProperty("tag", 0);
    right.setProperty("tag", 1);
    bind(left, u"selectedTag"_s, u"settings.alignment"_s);
    bind(right, u"selectedTag"_s, u"settings.alignment"_s);
    EXPECT_TRUE(right.isChecked());
    left.click();
    EXPECT_EQ(stored(u"settings.alignment"_s), QVariant(0));
    settings().setValue(2, u"alignment"_s);
    EXPECT_FALSE(left.isChecked() || right.isChecked());
    EXPECT_TRUE(group.exclusive());
}

TEST_F(Bindings, ServeAComboBoxByIndexByTextAndByData)
{
    settings().setObject(u"de"_s, u"language"_s);
    auto &comboBox = addControl<QComboBox>();
    comboBox.addItems({u"English"_s, u"German"_s, u"French"_s});
    comboBox.setProperty("itemData", QStringList{u"en_US"_s, u"de"_s, u"fr"_s});
    bind(comboBox, u"currentIndex"_s, u"settings.index"_s);
    bind(comboBox, u"currentText"_s, u"settings.text"_s);
    bind(comboBox, u"currentData"_s, u"settings.language"_s);
    EXPECT_EQ(comboBox.currentText(), u"German"_s);
    showWindow();
    QTest::keyClick(&comboBox, Qt::Key_Down);
    EXPECT_EQ(stored(u"settings.index"_s), QVariant(2));
    EXPECT_EQ(stored(u"settings.text"_s), QVariant(u"French"_s));
    EXPECT_EQ(stored(u"settings.language"_s), QVariant(u"fr"_s));
}

TEST_F(Bindings, ShowNoEntryOfAComboBoxForAnUnknownValue)
{
    settings().setObject(u"tlh"_s, u"language"_s);
    auto &comboBox = addControl<QComboBox>();
    comboBox.addItem(u"German"_s, u"de"_s);
    bind(comboBox, u"currentData"_s, u"settings.language"_s);
    EXPECT_EQ(comboBox.currentIndex(), -1);
    comboBox.addItem(u"French"_s, u"fr"_s);
    EXPECT_EQ(m_changes, QStringList());
}

TEST_F(Bindings, ServeALanguageMenuThroughItsTransformer)
{
    settings().setObject(u"sv"_s, u"language"_s);
    auto &comboBox = addControl<QComboBox>();
    comboBox.addItems(KZExportSettings::quotationStrings());
    bind(comboBox, u"currentIndex"_s, u"settings.language"_s, {.valueTransformerName = u"KZLocaleTransformer"_s});
    EXPECT_EQ(comboBox.currentIndex(), 2);
    showWindow();
    QTest::keyClick(&comboBox, Qt::Key_End);
    EXPECT_EQ(stored(u"settings.language"_s), QVariant(u"ja"_s));
}

TEST_F(Bindings, StoreTextTypedIntoAComboBoxWhenTheEditEnds)
{
    auto &comboBox = addControl<QComboBox>();
    comboBox.setEditable(true);
    bind(comboBox, u"currentText"_s, u"settings.encoding"_s);
    showWindow();
    comboBox.setFocus();
    QTest::keyClicks(&comboBox, u"UTF-7"_s);
    EXPECT_FALSE(stored(u"settings.encoding"_s).isValid());
    moveFocusAway();
    EXPECT_EQ(stored(u"settings.encoding"_s), QVariant(u"UTF-7"_s));
}

TEST_F(Bindings, StoreTextOfATextEditWhenTheEditEnds)
{
    auto &edit = addControl<QPlainTextEdit>();
    bind(edit, u"plainText"_s, u"settings.header"_s);
    showWindow();
    edit.setFocus();
    QTest::keyClicks(&edit, u"one"_s);
    QTest::keyClick(&edit, Qt::Key_Return);
    EXPECT_FALSE(stored(u"settings.header"_s).isValid());
    moveFocusAway();
    EXPECT_EQ(stored(u"settings.header"_s), QVariant(u"one\n"_s));
}

TEST_F(Bindings, SurviveTheDeletionOfATextEditThatHasTheFocus)
{
    auto &edit = addControl<QPlainTextEdit>();
    bind(edit, u"plainText"_s, u"settings.header"_s);
    showWindow();
    edit.setFocus();
    QTest::keyClicks(&edit, u"one"_s);
    delete &edit;
    EXPECT_EQ(m_changes, QStringList());
}

TEST_F(Bindings, StoreTextTypedIntoASpinBoxWhenItIsNotToFollowTheKeyboard)
{
    auto &spinBox = addControl<QSpinBox>();
    spinBox.setKeyboardTracking(false);
    bind(spinBox, u"value"_s, u"settings.count"_s);
    showWindow();
    spinBox.setFocus();
    spinBox.selectAll();
    QTest::keyClicks(&spinBox, u"12"_s);
    EXPECT_EQ(m_changes, QStringList());
    moveFocusAway();
    EXPECT_EQ(stored(u"settings.count"_s), QVariant(12));
    EXPECT_EQ(m_changes, QStringList{u"count"_s});
}

TEST_F(Bindings, WriteNumbersInFieldsAsTheUsersLocaleDoes)
{
    settings().setObject(1234.5, u"width"_s);
    auto &field = addControl<QLineEdit>();
    field.setLocale(QLocale(QLocale::German));
    bind(field, u"text"_s, u"settings.width"_s);
    EXPECT_EQ(field.text(), u"1234,5"_s);
    field.setText(u"2,25"_s);
    QTest::keyClick(&field, Qt::Key_Return);
    EXPECT_EQ(stored(u"settings.width"_s), QVariant(2.25));
}

TEST_F(Bindings, ShowFloatsWithoutFalseDigits)
{
    settings().setObject(2.54F, u"width"_s);
    auto &field = addControl<QLineEdit>();
    bind(field, u"text"_s, u"settings.width"_s);
    EXPECT_EQ(field.text(), u"2.54"_s);
}

TEST_F(Bindings, KeepTheTypeOfWholeNumbersInFields)
{
    settings().setObject(72, u"lineLength"_s);
    auto &field = addControl<QLineEdit>();
    Binding &binding = bind(field, u"text"_s, u"settings.lineLength"_s);
    field.setText(u"80"_s);
    binding.commit();
    EXPECT_EQ(stored(u"settings.lineLength"_s), QVariant(80));
    field.setText(u"80.5"_s);
    binding.commit();
    EXPECT_EQ(stored(u"settings.lineLength"_s), QVariant(80.5));
}

TEST_F(Bindings, RefuseTextWhereANumberStood)
{
    settings().setObject(72, u"lineLength"_s);
    auto &field = addControl<QLineEdit>();
    bind(field, u"text"_s, u"settings.lineLength"_s);
    field.setText(u"many"_s);
    QTest::keyClick(&field, Qt::Key_Return);
    EXPECT_EQ(field.text(), u"72"_s);
    EXPECT_EQ(stored(u"settings.lineLength"_s), QVariant(72));
    EXPECT_EQ(m_changes, QStringList());
}

TEST_F(Bindings, ShowTheStoredValueAgainWhenTheTransformerRefusesTheNewOne)
{
    settings().setObject(u"ja"_s, u"language"_s);
    auto &spinBox = addControl<QSpinBox>();
    bind(spinBox, u"value"_s, u"settings.language"_s, {.valueTransformerName = u"KZLocaleTransformer"_s});
    EXPECT_EQ(spinBox.value(), 8);
    spinBox.setValue(9);
    EXPECT_EQ(spinBox.value(), 8);
    EXPECT_EQ(stored(u"settings.language"_s), QVariant(u"ja"_s));
}

TEST_F(Bindings, ShowAValueThatAnObserverCorrects)
{
    QObject::connect(&settings(), &KZExportSettings::didChangeValueForKey, [this](const QString &key) {
        if (settings().integerForKey(key) > 50) {
            settings().setValue(50, key);
        }
    });
    auto &spinBox = addControl<QSpinBox>();
    bind(spinBox, u"value"_s, u"settings.count"_s);
    spinBox.setValue(60);
    EXPECT_EQ(stored(u"settings.count"_s), QVariant(50));
    EXPECT_EQ(spinBox.value(), 50);
    spinBox.setValue(40);
    EXPECT_EQ(spinBox.value(), 40);
}

TEST_F(Bindings, KeepSizesAsText)
{
    settings().setObject(QVariantMap{{u"size"_s, u"{595.5, 842}"_s}}, u"paper"_s);
    auto &view = addControl<SizeView>();
    bind(view, u"paperSize"_s, u"settings.paper.size"_s);
    EXPECT_EQ(view.property("paperSize"), QVariant(QSizeF(595.5, 842.0)));
    view.setProperty("paperSize", QSizeF(612.0, 792.25));
    EXPECT_EQ(stored(u"settings.paper.size"_s), QVariant(u"{612, 792.25}"_s));
}

TEST_F(Bindings, ReadUnreadableSizesAsEmpty)
{
    settings().setObject(u"A4"_s, u"size"_s);
    auto &view = addControl<SizeView>();
    bind(view, u"paperSize"_s, u"settings.size"_s);
    EXPECT_EQ(view.property("paperSize"), QVariant(QSizeF(0.0, 0.0)));
}

TEST_F(Bindings, KeepStringListsAsLists)
{
    auto &view = addControl<SizeView>();
    bind(view, u"names"_s, u"settings.names"_s);
    view.setProperty("names", QStringList{u"<1>"_s, u" "_s});
    EXPECT_EQ(stored(u"settings.names"_s).metaType(), QMetaType::fromType<QVariantList>());
    EXPECT_EQ(stored(u"settings.names"_s), QVariant(QVariantList{u"<1>"_s, u" "_s}));
}

TEST_F(Bindings, TakeSizesOnlyAsTheyAreWritten)
{
    auto &view = addControl<SizeView>();
    settings().setObject(u" { 10 , 20.5 } "_s, u"paper"_s);
    Binding &binding = bind(view, u"paperSize"_s, u"settings.paper"_s);
    EXPECT_EQ(view.property("paperSize").toSizeF(), QSizeF(10.0, 20.5));
    for (const QString &text : {u"{10, 20}x"_s, u"{10, nan}"_s, u"{10, x}"_s, u"{{0, 0}, {10, 20}}"_s}) {
        settings().setObject(text, u"paper"_s);
        binding.refresh();
        EXPECT_EQ(view.property("paperSize").toSizeF(), QSizeF(0.0, 0.0)) << text.toStdString();
    }
}

TEST_F(Bindings, KeepDatesAsTheTimesAtWhichTheyBegin)
{
    const support::RecordingAlert alert; // where a value cannot be saved
    auto &field = addControl<QDateEdit>();
    bind(field, u"date"_s, u"settings.published"_s);
    field.setDate(QDate(2026, 3, 29));
    EXPECT_EQ(settings().objectForKey(u"published"_s), QVariant(QDateTime({2026, 3, 29}, {0, 0}, Qt::UTC)));

    const QByteArray saved = settings().defaultData();
    ASSERT_FALSE(saved.isEmpty());
    field.setDate(QDate(2001, 1, 1));
    settings().setDefaultData(saved);
    bindingOf(&field, u"date"_s)->refresh();
    EXPECT_EQ(field.date(), QDate(2026, 3, 29));
}

TEST_F(Bindings, RefuseATypeThatSettingsCannotSave)
{
    auto &field = addControl<QTimeEdit>();
    try {
        bind(field, u"time"_s, u"settings.start"_s);
        FAIL() << "bound";
    } catch (const platform::InvalidArgumentException &error) {
        EXPECT_STREQ(error.what(), "QTimeEdit has a value \"time\" of the type QTime, which settings cannot save; bind "
                                   "it through a value transformer");
    }
    EXPECT_THROW(bind(field, u"time"_s, u"settings.times.start"_s), platform::InvalidArgumentException);
    EXPECT_NO_THROW(
        bind(field, u"time"_s, u"settings.start"_s, {.valueTransformerName = u"KZEmptyStringTransformer"_s}));
    EXPECT_NO_THROW(bind(field, u"time"_s, u"name"_s)); // what an object's own property takes is its own business
    EXPECT_NO_THROW(bind(field, u"font"_s, u"settings.font"_s)); // which nobody edits
}

TEST_F(Bindings, ShowValuesOfPropertiesWithoutASignal)
{
    auto &view = addControl<SizeView>();
    bind(view, u"margin"_s, u"settings.margin.top"_s);
    EXPECT_EQ(view.property("margin"), QVariant(72.0F));
    auto &label = addControl<QLabel>();
    bind(label, u"enabled"_s, u"settings.hasHeader"_s);
    EXPECT_FALSE(label.isEnabled());
}

TEST_F(Bindings, ShowNothingForAValueThatTheControlCannotShow)
{
    auto &spinBox = addControl<QSpinBox>();
    settings().setObject(5, u"count"_s);
    bind(spinBox, u"value"_s, u"settings.count"_s);
    settings().setValue(QVariantMap(), u"count"_s);
    EXPECT_EQ(spinBox.value(), 0);
}

TEST_F(Bindings, OutliveTheirController)
{
    auto &spinBox = addControl<QSpinBox>();
    auto controller = std::make_unique<support::PanelController>();
    const Binding binding(&spinBox, u"value"_s, controller.get(), u"settings.count"_s);
    controller.reset();
    spinBox.setValue(3);
    EXPECT_EQ(infoForBinding(&spinBox, u"value"_s)->observedObject, nullptr);
}

TEST_F(Bindings, TellWhatAControlIsBoundTo)
{
    auto &spinBox = addControl<QDoubleSpinBox>();
    bind(spinBox, u"value"_s, u"settings.margin.top"_s, {.valueTransformerName = u"KZMeasurementUnitTransformer"_s});
    const auto info = infoForBinding(&spinBox, u"value"_s);
    ASSERT_TRUE(info);
    EXPECT_EQ(info->observedObject, &m_controller);
    EXPECT_EQ(info->observedKeyPath, u"settings.margin.top"_s);
    EXPECT_EQ(info->options.valueTransformerName, u"KZMeasurementUnitTransformer"_s);
    EXPECT_FALSE(infoForBinding(&spinBox, u"enabled"_s));
}

TEST_F(Bindings, TakeThePlaceOfAnEarlierBindingOfTheName)
{
    auto &spinBox = addControl<QSpinBox>();
    bind(spinBox, u"value"_s, u"settings.one"_s);
    bind(spinBox, u"value"_s, u"settings.two"_s);
    EXPECT_EQ(infoForBinding(&spinBox, u"value"_s)->observedKeyPath, u"settings.two"_s);
    spinBox.setValue(3);
    EXPECT_EQ(m_changes, QStringList{u"two"_s});
}

TEST_F(Bindings, RefuseUnknownValuesKeyPathsAndTransformersAndKeepTheEarlierOne)
{
    auto &spinBox = addControl<QSpinBox>();
    bind(spinBox, u"value"_s, u"settings.one"_s);
    EXPECT_THROW(bind(spinBox, u"valeu"_s, u"settings.one"_s), platform::InvalidArgumentException);
    EXPECT_THROW(bind(spinBox, u"value"_s, u"setings.one"_s), platform::InvalidArgumentException);
    EXPECT_THROW(bind(spinBox, u"value"_s, u"settings.one"_s, {.valueTransformerName = u"None"_s}),
                 platform::InvalidArgumentException);
    EXPECT_EQ(infoForBinding(&spinBox, u"value"_s)->observedKeyPath, u"settings.one"_s);
    EXPECT_EQ(spinBox.findChildren<Binding *>().size(), 1);
}

TEST(ExposedBindings, AreListedInTheirOrderBaseClassesFirst)
{
    windowing::exposeBinding(NamedSizeView::staticMetaObject, u"names"_s);
    windowing::exposeBinding(SizeView::staticMetaObject, u"paperSize"_s);
    windowing::exposeBinding(SizeView::staticMetaObject, u"margin"_s);
    windowing::exposeBinding(SizeView::staticMetaObject, u"paperSize"_s);
    EXPECT_EQ(windowing::exposedBindings(NamedSizeView::staticMetaObject),
              (QStringList{u"paperSize"_s, u"margin"_s, u"names"_s}));
    EXPECT_EQ(windowing::exposedBindings(SizeView::staticMetaObject), (QStringList{u"paperSize"_s, u"margin"_s}));
    EXPECT_EQ(windowing::exposedBindings(QLabel::staticMetaObject), QStringList());
}

} // namespace

#include "BindingTest.moc"
