#include <tests/plugins/PanelTest.h>

#include <OrvaneExportKit/controls/KZPageView.h>
#include <OrvaneExportKit/controls/LengthField.h>
#include <OrvaneExportKit/windowing/DictionaryTable.h>
#include <tests/support/Input.h>
#include <tests/support/Printers.h>

#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QTableView>

using namespace Qt::Literals::StringLiterals;
using windowing::DictionaryTable;
using windowing::LengthField;

/// \file
/// What the panels of all formats with pages and styles have in common.

namespace plugins {

namespace {

/// A plug-in, and how its files say things.
struct Format {
    const char *name;
    const char *file;
    const char *legalPaper;
    const char *narrowMargins; ///< of 1, 2, 3 and 4 cm: top, bottom, left, right
    const char *secondHeading; ///< what "= a" becomes as a paragraph of the second style
    const char *firstSpan;     ///< what "_a_" becomes as a span of the first style
    const char *rule;          ///< what the first marker becomes
};

void PrintTo(const Format &format, std::ostream *out)
{
    *out << format.name;
}

class PagePanel : public PanelTest, public testing::WithParamInterface<Format>
{
protected:
    PagePanel() : PanelTest(GetParam().file) {}

    QTableView &table(const char *name) const { return *control<DictionaryTable>(name).findChild<QTableView *>(); }

    /// Types into a cell.
    void typeIntoCell(const char *name, int row, int column, const char *text) const
    {
        focus(name);
        QTableView &view = table(name);
        const QPoint center = view.visualRect(view.model()->index(row, column)).center();
        QTest::mouseClick(panel().windowHandle(), Qt::LeftButton, {}, view.viewport()->mapTo(&panel(), center));
        support::press(panel(), Qt::Key_F2);
        typeInto(panel(), text);
        support::press(panel(), Qt::Key_Return);
    }

    QVariant entry(const char *list, int row, const char *key) const
    {
        return setting(list).toList()[row].toMap()[QString::fromLatin1(key)];
    }

    testing::AssertionResult exports(const char *text, const char *part) const
    {
        const QString file = exported(text);
        return file.contains(QString::fromUtf8(part)) ? testing::AssertionSuccess()
                                                      : testing::AssertionFailure() << file.toStdString();
    }
};

} // namespace

TEST_P(PagePanel, SetsTheQuotationMarks)
{
    press("quotationMenu", Qt::Key_Home);
    EXPECT_EQ(setting("quotation-language"), u"none"_s);
    press("quotationMenu", Qt::Key_End);
    EXPECT_EQ(setting("quotation-language"), u"de_CH"_s);
    EXPECT_TRUE(exports("\"a\"", "»a«"));
}

TEST_P(PagePanel, SwitchesTypography)
{
    press("typographyBox", Qt::Key_Space);
    EXPECT_EQ(setting("typography"), u"no"_s);
    EXPECT_TRUE(exports("it's", "it's"));
    press("typographyBox", Qt::Key_Space);
    EXPECT_TRUE(exports("it's", "it’s"));
}

TEST_P(PagePanel, SetsThePaper)
{
    press("paperMenu", Qt::Key_End);
    EXPECT_EQ(setting("paper-size"), u"{612, 1008}"_s);
    EXPECT_EQ(control<KZPageView>("pageView").paperSize(), QSizeF(612, 1008));
    EXPECT_TRUE(exports("a", GetParam().legalPaper));
}

TEST_P(PagePanel, SetsTheMargins)
{
    type("topField", "1");
    type("bottomField", "2");
    type("leftField", "3");
    type("rightField", "4");
    const auto &page = control<KZPageView>("pageView");
    const float centimetre = 72.0F / 2.54F;
    EXPECT_FLOAT_EQ(page.topMargin(), centimetre);
    EXPECT_FLOAT_EQ(page.bottomMargin(), 2 * centimetre);
    EXPECT_FLOAT_EQ(page.leftMargin(), 3 * centimetre);
    EXPECT_FLOAT_EQ(page.rightMargin(), 4 * centimetre);
    EXPECT_FLOAT_EQ(setting("right-margin").toFloat(), 4 * centimetre);
    EXPECT_TRUE(exports("a", GetParam().narrowMargins));
}

TEST_P(PagePanel, EditsParagraphStyles)
{
    typeIntoCell("paragraphStyles", 1, 2, "=");
    EXPECT_EQ(entry("paragraphStyles", 1, "tag"), u"="_s);
    EXPECT_TRUE(exports("= a", GetParam().secondHeading));
}

TEST_P(PagePanel, EditsInlineStyles)
{
    typeIntoCell("inlineStyles", 0, 2, "_");
    typeIntoCell("inlineStyles", 0, 3, "_");
    EXPECT_EQ(entry("inlineStyles", 0, "endTag"), u"_"_s);
    EXPECT_TRUE(exports("_a_", GetParam().firstSpan));
}

TEST_P(PagePanel, EditsMarkers)
{
    typeIntoCell("markerStyles", 0, 2, "+++");
    EXPECT_EQ(entry("markerStyles", 0, "tag"), u"+++"_s);
    EXPECT_TRUE(exports("+++", GetParam().rule));
}

TEST_P(PagePanel, ShowsChangesFromOutside)
{
    changeOutside("quotation-language", u"fr"_s);
    changeOutside("typography", false);
    changeOutside("paper-size", u"{300, 400}"_s);
    changeOutside("top-margin", u"36"_s);
    changeOutside("markerStyles", QVariantList{QVariantMap{{u"tag"_s, u"~"_s}}, QVariantMap{}});
    EXPECT_EQ(control<QComboBox>("quotationMenu").currentData(), u"fr"_s);
    EXPECT_FALSE(control<QCheckBox>("typographyBox").isChecked());
    EXPECT_EQ(control<QComboBox>("paperMenu").currentIndex(), -1);
    EXPECT_EQ(control<KZPageView>("pageView").paperSize(), QSizeF(300, 400));
    EXPECT_EQ(control<LengthField>("topField").text(), u"1.27 cm"_s);
    EXPECT_EQ(table("markerStyles").model()->rowCount(), 2);
}

TEST_P(PagePanel, LeavesSettingsThatThePluginReadsAsNumbersAndBooleans)
{
    changeOutside("typography", true);
    changeOutside("font-size", 12);
    EXPECT_TRUE(exports("it's", "12pt"));
    EXPECT_TRUE(exports("it's", "it’s"));
    changeOutside("typography", false);
    EXPECT_TRUE(exports("it's", "it's"));
}

INSTANTIATE_TEST_SUITE_P(Formats, PagePanel,
                         testing::Values(Format{"html", HTML_PLUGIN, "size: 612pt 1008pt",
                                                "margin: 28.3465pt 113.386pt 56.6929pt 85.0394pt", "<h2>a</h2>",
                                                "<strong>a</strong>", "<hr>"},
                                         Format{"latex", LATEX_PLUGIN, "612", "28.3465", "\\subsection{a}",
                                                "\\textbf{a}", "\n\\asterism\n"}),
                         [](const auto &info) { return std::string(info.param.name); });

} // namespace plugins
