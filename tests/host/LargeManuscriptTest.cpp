#include "EchoPlugin.h"
#include "ManuscriptFolder.h"

#include <examples/host/window/ExportDialog.h>
#include <examples/host/window/ManuscriptWindow.h>
#include <examples/host/window/WindowExport.h>
#include <tests/support/Printers.h>

#include <QtCore/QDir>
#include <QtCore/QElapsedTimer>
#include <QtTest/QTest>
#include <QtWidgets/QTreeView>

#include <algorithm>
#include <cstdio>

using namespace Qt::Literals::StringLiterals;

namespace host_tests {

namespace {

constexpr int bytesOfDocument = 25'000;

/// How long the window may leave a user without an answer.
constexpr qint64 longestPause = 250;

/// Measures how long events had to wait at the longest.
class Heartbeat : public QObject
{
public:
    Heartbeat()
    {
        m_time.start();
        startTimer(0);
    }

    qint64 longestPauseInMilliseconds() const { return m_longest; }

protected:
    void timerEvent(QTimerEvent * /*event*/) override { m_longest = std::max(m_longest, m_time.restart()); }

private:
    QElapsedTimer m_time;
    qint64 m_longest = 0;
};

class LargeManuscript : public ManuscriptFolder
{
protected:
    /// The number of documents: a few, unless the environment asks for the full size.
    static int documentCount()
    {
        const int wanted = qEnvironmentVariableIntValue("ORVANE_LARGE_MANUSCRIPT");
        return wanted > 0 ? wanted : 100;
    }

    LargeManuscript()
    {
        const QByteArray text = QByteArray("The lamps were a list of forty. ").repeated(bytesOfDocument / 32);
        QByteArray documents;
        for (int number = 1; number <= documentCount(); ++number) {
            const QByteArray name = "Document " + QByteArray::number(number);
            writeFile(manuscript() + u'/' + QString::fromLatin1(name), text);
            documents += (number > 1 ? ",{\"file\":\"" : "{\"file\":\"") + name + "\",\"name\":\"" + name + "\"}";
        }
        writeFile(manuscript() + u"/manuscript.json"_s, "{\"title\":\"Large\",\"documents\":[" + documents + "]}");
    }

    EchoPlugin m_plugin;
};

} // namespace

TEST_F(LargeManuscript, OpensWithoutKeepingTheUserWaiting)
{
    host::ManuscriptWindow window({&m_plugin});
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    QElapsedTimer time;
    time.start();
    window.openManuscript(manuscript());
    const qint64 opening = time.elapsed();
    const Heartbeat heartbeat;
    const QAbstractItemModel &model = *window.findChild<QTreeView *>(u"documents"_s)->model();
    EXPECT_TRUE(QTest::qWaitFor(
        [&model] {
            return model.index(model.rowCount() - 1, host::ManuscriptModel::WordsColumn).data().toString() != u"…";
        },
        60'000));
    std::printf("%d documents: opened in %lld ms, counted in %lld ms, longest pause %lld ms\n", documentCount(),
                opening, time.elapsed(), heartbeat.longestPauseInMilliseconds());
    EXPECT_LE(opening, longestPause);
    EXPECT_LE(heartbeat.longestPauseInMilliseconds(), longestPause);
}

TEST_F(LargeManuscript, ListsItsNamesWithoutKeepingTheUserWaiting)
{
    const host::Manuscript large = host::openManuscript(manuscript());
    host::ExportDialog dialog(large, {&m_plugin}, {}, nullptr);
    dialog.show();
    dialog.findChild<QLineEdit *>(u"exportFolder"_s)->setText(destination());
    ASSERT_TRUE(QTest::qWaitFor([&] { return dialog.findChild<QPushButton *>(u"exportButton"_s)->isEnabled(); }));
    const Heartbeat heartbeat;
    dialog.findChild<windowing::TokenField *>(u"fileNames"_s)->setValue({u"<2>"_s});
    const QAbstractItemModel &names = *dialog.findChild<QTreeView *>(u"names"_s)->model();
    EXPECT_TRUE(QTest::qWaitFor([&] { return names.index(0, 0).data().toString() == u"Document 1.echo"; }));
    QTest::qWait(10);
    std::printf("%d names: longest pause %lld ms\n", documentCount(), heartbeat.longestPauseInMilliseconds());
    EXPECT_LE(heartbeat.longestPauseInMilliseconds(), longestPause);
}

TEST_F(LargeManuscript, IsExportedDocumentByDocument)
{
    const host::Manuscript large = host::openManuscript(manuscript());
    QElapsedTimer time;
    time.start();
    const auto result = host::exportInWindow(nullptr, large, m_plugin, {destination(), u"<1>"_s});
    ASSERT_TRUE(result);
    EXPECT_EQ(result->error, QString());
    EXPECT_EQ(result->written.size(), documentCount());
    for (const host::ManuscriptDocument &document : large.documents) {
        EXPECT_FALSE(document.holdsText());
    }
    std::printf("%d documents: exported in %lld ms\n", documentCount(), time.elapsed());
}

} // namespace host_tests
