#include "ManuscriptFolder.h"

#include <examples/host/window/EditorPane.h>
#include <tests/support/Printers.h>

#include <QtCore/QFile>
#include <QtTest/QTest>

using namespace Qt::Literals::StringLiterals;

namespace host_tests {

namespace {

class EditorPaneTest : public ManuscriptFolder
{
protected:
    host::ManuscriptModel m_model;
    host::EditorPane m_pane{m_model};
};

} // namespace

TEST_F(EditorPaneTest, WhatIsTypedReachesTheManuscriptAfterAPause)
{
    addDocument(u"One"_s, "old");
    m_model.open(manuscript());
    m_pane.showDocument(0);
    EXPECT_FALSE(m_pane.hasUncommittedText());
    QTest::keyClicks(&m_pane.editor(), u"new "_s);
    EXPECT_TRUE(m_pane.hasUncommittedText());
    EXPECT_FALSE(m_model.isModified());
    EXPECT_TRUE(QTest::qWaitFor([this] { return m_model.isModified(); }));
    EXPECT_EQ(m_model.document(0).text().string(), u"new old"_s);
    EXPECT_FALSE(m_pane.hasUncommittedText());
}

TEST_F(EditorPaneTest, AnotherDocumentTakesNothingFromTheOneBefore)
{
    addDocument(u"One"_s, "one");
    addDocument(u"Two"_s, "two");
    m_model.open(manuscript());
    m_pane.showDocument(0);
    QTest::keyClicks(&m_pane.editor(), u"new "_s);
    m_pane.showDocument(1);
    EXPECT_EQ(m_pane.editor().toPlainText(), u"two"_s);
    EXPECT_EQ(m_model.document(0).text().string(), u"new one"_s);
    EXPECT_FALSE(m_model.document(1).holdsText());
}

TEST_F(EditorPaneTest, KeepsNoBreakSpaces)
{
    addDocument(u"One"_s, u"10\u00A0km\n"_s.toUtf8());
    m_model.open(manuscript());
    m_pane.showDocument(0);
    QTest::keyClicks(&m_pane.editor(), u"x"_s);
    m_pane.commit();
    EXPECT_EQ(m_model.document(0).text().string(), u"x10\u00A0km\n"_s);
}

TEST_F(EditorPaneTest, ArchivesAreShownAndNotEdited)
{
    m_model.open(QStringLiteral(MANUSCRIPTS_FOLDER "/letters-from-the-breakwater"));
    m_pane.showDocument(1);
    EXPECT_TRUE(m_pane.editor().isReadOnly());
    EXPECT_TRUE(m_pane.editor().toPlainText().contains("The First Gale"_L1));
    m_pane.showDocument(0);
    EXPECT_FALSE(m_pane.editor().isReadOnly());
}

TEST_F(EditorPaneTest, ADocumentThatCanNotBeReadIsNotEdited)
{
    addDocument(u"One"_s, "old");
    m_model.open(manuscript());
    ASSERT_TRUE(QFile::remove(fileOf(u"One"_s)));
    m_pane.showDocument(0);
    EXPECT_TRUE(m_pane.editor().isReadOnly());
    EXPECT_EQ(m_pane.editor().toPlainText(), QString());
}

} // namespace host_tests
