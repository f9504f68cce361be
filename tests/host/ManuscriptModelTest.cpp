#include "ManuscriptFolder.h"

#include <examples/host/HostError.h>
#include <examples/host/window/ManuscriptModel.h>
#include <tests/support/Printers.h>

#include <QtCore/QFile>
#include <QtTest/QSignalSpy>
#include <QtTest/QTest>

using namespace Qt::Literals::StringLiterals;
using host::ManuscriptModel;

namespace host_tests {

namespace {

class ManuscriptModelTest : public ManuscriptFolder
{
protected:
    QString cell(int row, int column) const { return m_model.index(row, column).data().toString(); }
    QString words(int row) const { return cell(row, ManuscriptModel::WordsColumn); }

    ManuscriptModel m_model;
};

} // namespace

TEST_F(ManuscriptModelTest, ShowsDocumentsAndCountsTheirWordsWhenThereIsTime)
{
    addDocument(u"One"_s, "three small words");
    addDocument(u"Two"_s, "# Word");
    m_model.open(manuscript());
    ASSERT_EQ(m_model.rowCount(), 2);
    EXPECT_EQ(cell(0, ManuscriptModel::NameColumn), u"One"_s);
    EXPECT_EQ(cell(1, ManuscriptModel::StatusColumn), u"Draft"_s);
    EXPECT_EQ(words(0), u"…"_s);
    EXPECT_TRUE(QTest::qWaitFor([this] { return words(1) == u"1"; }));
    EXPECT_EQ(words(0), u"3"_s);
}

TEST_F(ManuscriptModelTest, ADocumentThatCanNotBeReadHasNoNumberOfWords)
{
    addDocument(u"One"_s, "text");
    ASSERT_TRUE(QFile::remove(fileOf(u"One"_s)));
    m_model.open(manuscript());
    EXPECT_TRUE(QTest::qWaitFor([this] { return words(0) == u"–"; }));
}

TEST_F(ManuscriptModelTest, HoldsChangesUntilTheyAreSaved)
{
    addDocument(u"One"_s, "old");
    addDocument(u"Two"_s, "same");
    m_model.open(manuscript());
    m_model.setText(0, u"new text"_s);
    EXPECT_TRUE(m_model.isModified());
    EXPECT_EQ(m_model.document(0).text().string(), u"new text"_s);
    EXPECT_EQ(contentOf(fileOf(u"One"_s)), "old");
    EXPECT_EQ(m_model.index(0, 0).data(Qt::AccessibleTextRole).toString(), u"One, changed"_s);

    m_model.save();
    EXPECT_FALSE(m_model.isModified());
    EXPECT_EQ(contentOf(fileOf(u"One"_s)), "new text");
    EXPECT_EQ(contentOf(fileOf(u"Two"_s)), "same");
}

TEST_F(ManuscriptModelTest, TheTextOfTheFileIsNoChange)
{
    addDocument(u"One"_s, "old");
    m_model.open(manuscript());
    m_model.setText(0, u"new"_s);
    m_model.setText(0, u"old"_s);
    EXPECT_FALSE(m_model.isModified());
    EXPECT_FALSE(m_model.document(0).holdsText());
}

TEST_F(ManuscriptModelTest, KeepsTheLineEndsOfTheFile)
{
    addDocument(u"One"_s, "a\r\nb");
    m_model.open(manuscript());
    m_model.setText(0, u"a\nb"_s);
    EXPECT_FALSE(m_model.isModified());
    m_model.setText(0, u"a\nb\nc"_s);
    m_model.save();
    EXPECT_EQ(contentOf(fileOf(u"One"_s)), "a\r\nb\r\nc");
}

TEST_F(ManuscriptModelTest, ChangesSurviveTheLossOfTheirFile)
{
    addDocument(u"One"_s, "old");
    m_model.open(manuscript());
    ASSERT_TRUE(QFile::remove(fileOf(u"One"_s)));
    m_model.setText(0, u"new"_s);
    EXPECT_EQ(m_model.document(0).text().string(), u"new"_s);
    m_model.save();
    EXPECT_EQ(contentOf(fileOf(u"One"_s)), "new");
}

TEST_F(ManuscriptModelTest, AFileThatCanNotBeWrittenStaysUnsaved)
{
    addDocument(u"One"_s, "old");
    m_model.open(manuscript());
    ASSERT_TRUE(QFile::remove(fileOf(u"One"_s)));
    ASSERT_TRUE(QDir().mkpath(fileOf(u"One"_s) + u"/in the way"_s));
    m_model.setText(0, u"new"_s);
    EXPECT_THROW(m_model.save(), host::HostError);
    EXPECT_TRUE(m_model.isModified());
    EXPECT_EQ(m_model.document(0).text().string(), u"new"_s);
}

TEST_F(ManuscriptModelTest, AFolderThatIsNoManuscriptChangesNothing)
{
    addDocument(u"One"_s, "old");
    m_model.open(manuscript());
    EXPECT_THROW(m_model.open(destination()), host::HostError);
    EXPECT_EQ(m_model.folder(), manuscript());
    EXPECT_EQ(m_model.rowCount(), 1);
}

TEST_F(ManuscriptModelTest, TellsThatSomethingIsModified)
{
    addDocument(u"One"_s, "old");
    m_model.open(manuscript());
    const QSignalSpy spy(&m_model, &ManuscriptModel::modifiedChanged);
    m_model.setText(0, u"new"_s);
    EXPECT_EQ(spy.size(), 1);
    m_model.save();
    EXPECT_EQ(spy.size(), 2);
}

} // namespace host_tests
