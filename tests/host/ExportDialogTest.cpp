#include "EchoPlugin.h"
#include "ManuscriptFolder.h"

#include <examples/host/window/ExportDialog.h>
#include <tests/support/Printers.h>

#include <QtGui/QAccessible>
#include <QtTest/QTest>
#include <QtWidgets/QTreeView>

using namespace Qt::Literals::StringLiterals;
using host::OutputNamesModel;

namespace host_tests {

namespace {

class ExportDialogTest : public ManuscriptFolder
{
protected:
    ExportDialogTest()
    {
        addDocument(u"One"_s, "one");
        addDocument(u"Two"_s, "two");
        m_manuscript = host::openManuscript(manuscript());
    }

    std::unique_ptr<host::ExportDialog> openDialog()
    {
        auto dialog =
            std::make_unique<host::ExportDialog>(m_manuscript, QList<ExportPlugin *>{&m_plugin}, u"echo"_s, nullptr);
        dialog->findChild<QLineEdit *>(u"exportFolder"_s)->setText(destination());
        dialog->show();
        return dialog;
    }

    static bool canExport(const host::ExportDialog &dialog)
    {
        return dialog.findChild<QPushButton *>(u"exportButton"_s)->isEnabled();
    }

    static QString summary(const host::ExportDialog &dialog)
    {
        return dialog.findChild<windowing::MessageLabel *>(u"summary"_s)->text();
    }

    static QStringList listedNames(const host::ExportDialog &dialog)
    {
        const QAbstractItemModel &model = *dialog.findChild<QTreeView *>(u"names"_s)->model();
        QStringList names;
        for (int row = 0; row < model.rowCount(); ++row) {
            names.append(model.index(row, 0).data().toString());
        }
        return names;
    }

    EchoPlugin m_plugin;
    host::Manuscript m_manuscript;
};

} // namespace

TEST_F(ExportDialogTest, ListsTheNamesAsThePatternChanges)
{
    const auto dialog = openDialog();
    EXPECT_EQ(listedNames(*dialog), QStringList({u"001 One.echo"_s, u"002 Two.echo"_s}));
    dialog->findChild<windowing::TokenField *>(u"fileNames"_s)->setValue({u"<2>"_s, u" of <1>"_s});
    EXPECT_TRUE(QTest::qWaitFor([&] {
        return listedNames(*dialog) == QStringList({u"One of 001.echo"_s, u"Two of 002.echo"_s});
    }));
    dialog->findChild<QCheckBox *>(u"convertSpaces"_s)->setChecked(true);
    EXPECT_EQ(listedNames(*dialog).first(), u"One_of_001.echo"_s);
}

TEST_F(ExportDialogTest, RefusesNamesThatAreRepeatedAndFoldersThatAreNotThere)
{
    const auto dialog = openDialog();
    EXPECT_TRUE(QTest::qWaitFor([&] { return canExport(*dialog); }));
    auto *fileNames = dialog->findChild<windowing::TokenField *>(u"fileNames"_s);
    fileNames->setValue({u"same"_s});
    EXPECT_TRUE(QTest::qWaitFor([&] { return !canExport(*dialog); }));
    EXPECT_TRUE(summary(*dialog).contains("Number"_L1));
    fileNames->setValue({u"<1>"_s});
    EXPECT_TRUE(QTest::qWaitFor([&] { return canExport(*dialog); }));
    auto *folder = dialog->findChild<QLineEdit *>(u"exportFolder"_s);
    folder->setText(path(u"nowhere"_s));
    EXPECT_TRUE(QTest::qWaitFor([&] { return !canExport(*dialog); }));
    folder->clear();
    EXPECT_TRUE(QTest::qWaitFor([&] { return summary(*dialog).contains("Choose a folder"_L1); }));
}

TEST_F(ExportDialogTest, AFolderWithADotInItsNameStaysAFolder)
{
    ASSERT_TRUE(QDir().mkpath(path(u"Vol.2"_s)));
    const auto dialog = openDialog();
    dialog->findChild<QLineEdit *>(u"exportFolder"_s)->setText(path(u"Vol.2"_s));
    EXPECT_EQ(host::destinationFolder(dialog->names()), path(u"Vol.2"_s) + u'/');
}

TEST_F(ExportDialogTest, ATildeStandsForTheFolderOfTheUser)
{
    const auto dialog = openDialog();
    dialog->findChild<QLineEdit *>(u"exportFolder"_s)->setText(u"~/Novel"_s);
    EXPECT_EQ(dialog->names().destination, QDir::homePath() + u"/Novel/"_s);
    dialog->accept();
    const host::ExportDialog next(m_manuscript, {&m_plugin}, {}, nullptr);
    EXPECT_EQ(next.findChild<QLineEdit *>(u"exportFolder"_s)->text(), u"~/Novel"_s);
}

TEST_F(ExportDialogTest, WithoutAFolderOfTheUserNothingIsWrittenIntoTheRootFolder)
{
    const QByteArray home = qgetenv("HOME");
    qunsetenv("HOME");
    const host::ExportDialog dialog(m_manuscript, {&m_plugin}, {}, nullptr);
    auto *folder = dialog.findChild<QLineEdit *>(u"exportFolder"_s);
    EXPECT_EQ(folder->text(), QString());
    EXPECT_FALSE(canExport(dialog));
    folder->setText(u"~/Novel"_s);
    EXPECT_NE(dialog.names().destination, u"/Novel/"_s);
    qputenv("HOME", home);
}

TEST_F(ExportDialogTest, AcceptedItKeepsTheChoicesForTheNextTime)
{
    {
        const auto dialog = openDialog();
        dialog->findChild<windowing::TokenField *>(u"fileNames"_s)->setValue({u"<2>"_s});
        m_plugin.settings().setValue(u"#"_s, u"prefix"_s);
        dialog->accept();
    }
    EXPECT_EQ(defaults().persistentDomainForName(u"org.orvane.test.echo"_s),
              (QVariantMap{{u"prefix"_s, u"#"_s}, {u"suffix"_s, u"<"_s}}));
    const host::ExportDialog next(m_manuscript, {&m_plugin}, {}, nullptr);
    EXPECT_EQ(next.names().pattern, u"<2>"_s);
    EXPECT_EQ(next.names().destination, destination() + u'/');
}

TEST_F(ExportDialogTest, CancelledItLeavesSettingsAndChoicesAsTheyWere)
{
    const auto dialog = openDialog();
    m_plugin.settings().setValue(u"#"_s, u"prefix"_s);
    dialog->reject();
    EXPECT_EQ(m_plugin.settings().objectForKey(u"prefix"_s).toString(), u">"_s);
    EXPECT_EQ(defaults().persistentDomainNames(), QStringList());
}

TEST_F(ExportDialogTest, ReturnNeverCancels)
{
    const auto dialog = openDialog();
    dialog->findChild<QLineEdit *>(u"exportFolder"_s)->clear();
    EXPECT_TRUE(QTest::qWaitFor([&] { return !canExport(*dialog); }));
    QTest::keyClick(dialog.get(), Qt::Key_Return);
    EXPECT_TRUE(dialog->isVisible());
}

TEST_F(ExportDialogTest, EveryFieldHasANameForScreenReaders)
{
    const auto dialog = openDialog();
    const QList<QWidget *> fields = {
        dialog->findChild<QComboBox *>(u"exportFormat"_s),
        dialog->findChild<QLineEdit *>(u"exportFolder"_s),
        dialog->findChild<windowing::TokenField *>(u"fileNames"_s),
        dialog->findChild<QTreeView *>(u"names"_s),
    };
    for (QWidget *field : fields) {
        QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(field);
        ASSERT_NE(interface, nullptr);
        EXPECT_FALSE(interface->text(QAccessible::Name).isEmpty()) << testing::PrintToString(field->objectName());
    }
}

TEST(OutputNamesModel, MarksEachNameWithTheGravestFinding)
{
    const QTemporaryDir folder;
    QFile existing(folder.filePath(u"a"_s));
    ASSERT_TRUE(existing.open(QIODevice::WriteOnly));
    OutputNamesModel model;
    model.setPaths({folder.filePath(u"a"_s), folder.filePath(u"b:"_s), folder.filePath(u"b:"_s), u"/c?"_s, u"/d"_s});
    EXPECT_EQ(model.count(OutputNamesModel::Finding::Existing), 1);
    EXPECT_EQ(model.count(OutputNamesModel::Finding::Repeated), 2);
    EXPECT_EQ(model.count(OutputNamesModel::Finding::Refused), 1);
    EXPECT_EQ(model.count(OutputNamesModel::Finding::Nothing), 1);
    EXPECT_EQ(model.index(0, 0).data().toString(), u"a"_s);
    EXPECT_TRUE(model.index(3, OutputNamesModel::NoteColumn).data().toString().contains(u'?'));
}

} // namespace host_tests
