#include <OrvaneExportKit/platform/Bundle.h>
#include <OrvaneExportKit/platform/Translations.h>
#include <OrvaneExportKit/windowing/Panel.h>
#include <OrvaneExportKit/windowing/UiLoader.h>
#include <tests/support/Printers.h>

#include <gtest/gtest.h>

#include <QtGui/QAccessible>
#include <QtTest/QTest>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QLabel>
#include <QtWidgets/QTableView>

#include <algorithm>
#include <initializer_list>
#include <string>
#include <vector>

/// \file
/// What holds for every interface file of the kit, in every language.

namespace {

using namespace Qt::Literals::StringLiterals;
using windowing::Panel;
using windowing::UiLoader;

struct Form {
    const char *name;
    const char *language;
};

void PrintTo(const Form &form, std::ostream *out)
{
    *out << form.name << " in " << form.language;
}

class KitForm : public testing::TestWithParam<Form>
{
protected:
    KitForm() { platform::setLanguage(QLocale(QString::fromLatin1(GetParam().language))); }
    ~KitForm() override { platform::setLanguage(QLocale(u"en_US"_s)); }

    static std::unique_ptr<Panel> load()
    {
        return UiLoader::load<Panel>(platform::Bundle::kitBundle(), QString::fromLatin1(GetParam().name));
    }
};

class ForeignKitForm : public KitForm
{
};

/// Whether a text is one that no language changes, such as "0%".
bool isNumber(const QString &text)
{
    return std::none_of(text.begin(), text.end(), [](QChar character) { return character.isLetter(); });
}

/// All texts that the form shows, by the names of their objects.
QMap<QString, QString> texts(const QWidget &form)
{
    QMap<QString, QString> texts{{u"title"_s, form.windowTitle()}};
    for (const QObject *object : form.findChildren<QObject *>()) {
        for (const char *property : {"text", "accessibleName"}) {
            const QString text = object->property(property).toString();
            if (!text.isEmpty() && !isNumber(text) && !object->objectName().startsWith(u"qt_")) {
                texts.insert(object->objectName() + u'.' + QString::fromLatin1(property), text);
            }
        }
    }
    return texts;
}

TEST_P(ForeignKitForm, IsTranslatedWhole)
{
    const auto translated = texts(*load());
    platform::setLanguage(QLocale(u"en_US"_s));
    const auto english = texts(*load());
    ASSERT_EQ(translated.keys(), english.keys());
    for (const QString &name : english.keys()) {
        EXPECT_NE(translated[name], english[name]) << name.toStdString();
    }
}

TEST_P(KitForm, HasRoomForItsTexts)
{
    const auto form = load();
    form->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(form.get()));
    for (const QAbstractButton *button : form->findChildren<QAbstractButton *>()) {
        EXPECT_GE(button->width(), button->minimumSizeHint().width()) << button->text().toStdString();
    }
    for (const QLabel *label : form->findChildren<QLabel *>()) {
        EXPECT_GE(label->height(), label->heightForWidth(label->width())) << label->text().toStdString();
    }
}

TEST_P(KitForm, NamesEveryControlForScreenReaders)
{
    const auto form = load();
    form->show();
    for (QWidget *widget : form->findChildren<QWidget *>()) {
        if (widget->focusPolicy() != Qt::NoFocus && !widget->objectName().startsWith(u"qt_")) {
            EXPECT_FALSE(QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Name).isEmpty())
                << widget->objectName().toStdString();
        }
    }
}

TEST_P(KitForm, HasADifferentMnemonicForEachButton)
{
    QStringList mnemonics;
    const auto form = load();
    for (const QAbstractButton *button : form->findChildren<QAbstractButton *>()) {
        if (!button->text().isEmpty()) {
            EXPECT_FALSE(button->shortcut().isEmpty()) << button->text().toStdString();
            mnemonics.append(button->shortcut().toString());
        }
    }
    EXPECT_EQ(mnemonics.removeDuplicates(), 0);
}

std::vector<Form> formsIn(std::initializer_list<const char *> languages)
{
    std::vector<Form> forms;
    for (const char *language : languages) {
        forms.push_back({"ExistingFiles", language});
        forms.push_back({"ExportProgress", language});
    }
    return forms;
}

std::string testName(const testing::TestParamInfo<Form> &info)
{
    return std::string(info.param.name) + "_" + info.param.language;
}

INSTANTIATE_TEST_SUITE_P(AllLanguages, KitForm,
                         testing::ValuesIn(formsIn({"af", "de", "de_CH", "en_GB", "en_US", "fr", "it", "ja", "sv"})),
                         testName);
INSTANTIATE_TEST_SUITE_P(AllLanguages, ForeignKitForm,
                         testing::ValuesIn(formsIn({"af", "de", "de_CH", "fr", "it", "ja", "sv"})), testName);

} // namespace
