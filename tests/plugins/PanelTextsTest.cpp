#include <tests/plugins/PanelTest.h>

#include <OrvaneExportKit/platform/Translations.h>
#include <tests/support/Printers.h>

#include <QtCore/QFile>
#include <QtCore/QSet>
#include <QtCore/QXmlStreamReader>
#include <QtGui/QAccessible>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QTabBar>
#include <QtWidgets/QTabWidget>

using namespace Qt::Literals::StringLiterals;

/// \file
/// What holds for the panels of all plug-ins, in both of their languages.

namespace plugins {

namespace {

struct PanelInLanguage {
    const char *name;
    const char *file;
    const char *language;
};

void PrintTo(const PanelInLanguage &panel, std::ostream *out)
{
    *out << panel.name << " in " << panel.language;
}

/// Sets the language before the panel is loaded.
struct Language {
    explicit Language(const char *code) { platform::setLanguage(QLocale(QString::fromLatin1(code))); }
    Language(const Language &) = delete;
    Language &operator=(const Language &) = delete;
    ~Language() { platform::setLanguage(QLocale(u"en_US"_s)); }
};

class PanelTexts : private Language, public PanelTest, public testing::WithParamInterface<PanelInLanguage>
{
protected:
    PanelTexts() : Language(GetParam().language), PanelTest(GetParam().file) {}

    /// Calls an action for every page of the panel, while it is shown.
    template <typename Action>
    void onEachPage(const Action &action) const
    {
        auto *tabs = panel().findChild<QTabWidget *>();
        for (int page = 0; page < (tabs == nullptr ? 1 : tabs->count()); ++page) {
            if (tabs != nullptr) {
                tabs->setCurrentIndex(page);
            }
            action();
        }
    }

    template <typename Widget>
    QList<Widget *> visible() const
    {
        QList<Widget *> widgets = panel().findChildren<Widget *>();
        widgets.removeIf(
            [](const Widget *widget) { return !widget->isVisible() || widget->objectName().startsWith(u"qt_"_s); });
        return widgets;
    }
};

/// The texts of all elements of this name in an XML file of a plug-in, except those that are not to be translated.
QSet<QString> textsOf(QStringView element, const QString &file)
{
    QFile device(QStringLiteral(PLUGINS_FOLDER "/") + file);
    EXPECT_TRUE(device.open(QIODevice::ReadOnly)) << file.toStdString();
    QSet<QString> texts;
    bool isInUntranslatedList = false;
    QXmlStreamReader xml(&device);
    while (!xml.atEnd()) {
        xml.readNext();
        if (xml.name() == u"stringlist") {
            isInUntranslatedList = xml.isStartElement();
        } else if (xml.isStartElement() && xml.name() == element) {
            const bool isUntranslated = xml.attributes().hasAttribute(u"notr"_s) || isInUntranslatedList;
            const QString text = xml.readElementText();
            if (!isUntranslated) {
                texts.insert(text);
            }
        }
    }
    EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
    return texts;
}

QString mnemonic(const QString &text)
{
    return QKeySequence::mnemonic(text).toString();
}

} // namespace

TEST_P(PanelTexts, HaveRoom)
{
    EXPECT_LE(panel().width(), 560);
    onEachPage([this] {
        for (const QAbstractButton *button : visible<QAbstractButton>()) {
            EXPECT_GE(button->width(), button->minimumSizeHint().width()) << button->text().toStdString();
        }
        for (const QComboBox *menu : visible<QComboBox>()) {
            EXPECT_GE(menu->width(), menu->sizeHint().width()) << menu->objectName().toStdString();
        }
        for (const QLabel *label : visible<QLabel>()) {
            EXPECT_GE(label->width(), label->minimumSizeHint().width()) << label->text().toStdString();
            EXPECT_GE(label->height(), label->heightForWidth(label->width())) << label->text().toStdString();
        }
        for (const QTabBar *bar : visible<QTabBar>()) {
            EXPECT_GE(bar->width(), bar->sizeHint().width());
        }
    });
}

TEST_P(PanelTexts, NameEveryControlForScreenReaders)
{
    onEachPage([this] {
        for (QWidget *widget : visible<QWidget>()) {
            const bool isPart = qobject_cast<QComboBox *>(widget->parentWidget()) != nullptr;
            if (widget->focusPolicy() != Qt::NoFocus && widget->focusProxy() == nullptr && !isPart &&
                qobject_cast<QTabBar *>(widget) == nullptr) {
                EXPECT_FALSE(QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Name).isEmpty())
                    << widget->metaObject()->className() << ' ' << widget->objectName().toStdString();
            }
        }
    });
}

TEST_P(PanelTexts, HaveDifferentMnemonicsOnEachPage)
{
    onEachPage([this] {
        QStringList mnemonics;
        for (const QAbstractButton *button : visible<QAbstractButton>()) {
            mnemonics.append(mnemonic(button->text()));
        }
        for (const QLabel *label : visible<QLabel>()) {
            EXPECT_EQ(mnemonic(label->text()).isEmpty(), label->buddy() == nullptr) << label->text().toStdString();
            mnemonics.append(mnemonic(label->text()));
        }
        for (const QTabBar *bar : visible<QTabBar>()) {
            for (int index = 0; index < bar->count(); ++index) {
                mnemonics.append(mnemonic(bar->tabText(index)));
            }
        }
        mnemonics.removeAll(QString());
        EXPECT_EQ(mnemonics.removeDuplicates(), 0) << testing::PrintToString(mnemonics);
    });
}

TEST_P(PanelTexts, AreInTheLanguageOfTheUser)
{
    const bool isGerman = QString::fromLatin1(GetParam().language) == u"de"_s;
    const auto &menu = control<QComboBox>("quotationMenu");
    EXPECT_EQ(menu.itemText(0), isGerman ? u"Gerade Zeichen behalten"_s : u"Keep straight marks"_s);
    if (plugin().name() == u"plain-text"_s) {
        EXPECT_EQ(plugin().displayName(), isGerman ? u"Nur Text"_s : u"Plain Text"_s);
    }
}

TEST(PanelTranslations, HoldAllTextsOfThePanels)
{
    for (const QString &plugin : {u"html"_s, u"latex"_s, u"plain-text"_s}) {
        const QSet<QString> inPanel = textsOf(u"string", plugin + u"/Panel.ui"_s);
        const QSet<QString> translated = textsOf(u"source", plugin + u"/translations/de.ts"_s);
        EXPECT_GT(inPanel.size(), 20) << plugin.toStdString();
        EXPECT_EQ((inPanel - translated).values(), QStringList()) << plugin.toStdString();
        EXPECT_FALSE(textsOf(u"translation", plugin + u"/translations/de.ts"_s).contains(QString()));
    }
}

INSTANTIATE_TEST_SUITE_P(AllPanels, PanelTexts,
                         testing::Values(PanelInLanguage{"html", HTML_PLUGIN, "en_US"},
                                         PanelInLanguage{"html", HTML_PLUGIN, "de"},
                                         PanelInLanguage{"latex", LATEX_PLUGIN, "en_US"},
                                         PanelInLanguage{"latex", LATEX_PLUGIN, "de"},
                                         PanelInLanguage{"plain_text", PLAIN_TEXT_PLUGIN, "en_US"},
                                         PanelInLanguage{"plain_text", PLAIN_TEXT_PLUGIN, "de"}),
                         [](const auto &info) { return std::string(info.param.name) + "_" + info.param.language; });

} // namespace plugins
