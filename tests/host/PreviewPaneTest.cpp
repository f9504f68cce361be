#include "EchoPlugin.h"

#include <examples/host/window/PreviewPane.h>
#include <tests/support/Printers.h>

#include <OrvaneExportKit/windowing/MessageLabel.h>

#include <gtest/gtest.h>

#include <QtTest/QTest>

using namespace Qt::Literals::StringLiterals;

namespace host_tests {

namespace {

class PreviewPaneTest : public testing::Test
{
protected:
    bool shows(const QString &text)
    {
        return QTest::qWaitFor([this, &text] { return shownText() == text; });
    }

    QString shownText() const { return m_pane.findChild<QPlainTextEdit *>(u"preview"_s)->toPlainText(); }

    QString note() const { return m_pane.findChild<windowing::MessageLabel *>()->text(); }

    EchoPlugin m_plugin;
    host::ManuscriptDocument m_document{{u"/nowhere"_s, u"One"_s, {}, {}}};
    host::PreviewPane m_pane{{&m_plugin}};
};

} // namespace

TEST_F(PreviewPaneTest, ShowsTheFileOfADocument)
{
    m_document.setText(platform::AttributedString(u"text"_s));
    m_pane.showDocument(&m_document);
    EXPECT_TRUE(shows(u">text"_s));
}

TEST_F(PreviewPaneTest, FollowsTheSettings)
{
    m_document.setText(platform::AttributedString(u"text"_s));
    m_pane.showDocument(&m_document);
    EXPECT_TRUE(shows(u">text"_s));
    m_plugin.settings().setValue(u"#"_s, u"prefix"_s);
    EXPECT_TRUE(shows(u"#text"_s));
}

TEST_F(PreviewPaneTest, ShowsAnErrorOfThePluginUntilItIsGone)
{
    m_document.setText(platform::AttributedString(u"fail"_s));
    m_pane.showDocument(&m_document);
    EXPECT_TRUE(QTest::qWaitFor([this] { return note().contains("no echo"_L1); }));
    m_document.setText(platform::AttributedString(u"fine"_s));
    m_pane.showDocument(&m_document);
    EXPECT_TRUE(shows(u">fine"_s));
    EXPECT_EQ(note(), QString());
}

TEST_F(PreviewPaneTest, EndsAfterManyCharactersAndSaysSo)
{
    m_document.setText(platform::AttributedString(QString(300'000, u'x')));
    m_pane.showDocument(&m_document);
    EXPECT_TRUE(QTest::qWaitFor([this] { return note().contains("200,000"_L1); }));
    EXPECT_EQ(shownText().size(), 200'000);
}

TEST_F(PreviewPaneTest, ShowsAWebPageAsItsReaderSeesItOrItsSource)
{
    class HtmlEcho final : public EchoPlugin
    {
    public:
        QString pathExtension() const override { return u"html"_s; }
    };
    HtmlEcho plugin;
    host::PreviewPane pane({&plugin});
    pane.show();
    m_document.setText(platform::AttributedString(u"<p>a <b>page</b>"_s));
    pane.showDocument(&m_document);
    const auto *page = pane.findChild<QTextBrowser *>(u"previewPage"_s);
    const auto *source = pane.findChild<QPlainTextEdit *>(u"preview"_s);
    EXPECT_TRUE(QTest::qWaitFor([page] { return page->toPlainText().contains("a page"_L1); }));
    EXPECT_TRUE(page->isVisible());
    EXPECT_FALSE(source->isVisible());
    pane.findChild<QCheckBox *>(u"previewSource"_s)->setChecked(true);
    EXPECT_FALSE(page->isVisible());
    EXPECT_EQ(source->toPlainText(), u"><p>a <b>page</b>"_s);
}

TEST_F(PreviewPaneTest, SaysThatThereIsNoPlugin)
{
    host::PreviewPane pane({});
    pane.showDocument(&m_document);
    EXPECT_TRUE(QTest::qWaitFor(
        [&pane] { return pane.findChild<windowing::MessageLabel *>()->text().contains("no plug-in"_L1); }));
    EXPECT_EQ(pane.plugin(), nullptr);
}

} // namespace host_tests
