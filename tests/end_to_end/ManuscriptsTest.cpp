#include <tests/end_to_end/HostTest.h>

using namespace Qt::Literals::StringLiterals;

namespace end_to_end {

namespace {

/// The names of the exported files, and of the stored files that hold what is expected in them. These have plainer
/// names, so that every file system can hold them.
struct ExpectedFile {
    QString exported;
    QString stored;
};

class SampleManuscript : public HostTest
{
protected:
    void expectExport(const QString &name, const QStringList &options, const QList<ExpectedFile> &files) const
    {
        const HostResult result = runHost(QStringList{u"export"_s, manuscriptsFolder + u'/' + name, u"--plugin"_s,
                                                      u"plain-text"_s, u"--to"_s, destination()} +
                                          options);
        EXPECT_EQ(result.exitCode, 0) << testing::PrintToString(result.errors);
        QString listed;
        QStringList names;
        for (const ExpectedFile &file : files) {
            SCOPED_TRACE(file.exported.toStdString());
            EXPECT_EQ(fileContent(exported(file.exported)),
                      fileContent(expectedFolder + u'/' + name + u'/' + file.stored));
            listed += exported(file.exported) + u'\n';
            names.append(file.exported);
        }
        EXPECT_EQ(result.output, listed);
        EXPECT_EQ(filesIn(destination()), names);
    }
};

} // namespace

TEST_F(SampleManuscript, EnglishWithDefaults)
{
    expectExport(u"the-lamplighters-ledger"_s, {},
                 {
                     {u"001 The Key.txt"_s, u"01-the-key.txt"_s},
                     {u"002 Forty Lamps.txt"_s, u"02-forty-lamps.txt"_s},
                     {u"003 Letter to a Sister.txt"_s, u"03-letter-to-a-sister.txt"_s},
                     {u"004 Tide:Ebb.txt"_s, u"04-tide-ebb.txt"_s},
                     {u"005 The Man Who Wound the Clock.txt"_s, u"05-the-man-who-wound-the-clock.txt"_s},
                     {u"006 What the Stone Said.txt"_s, u"06-what-the-stone-said.txt"_s},
                     {u"007 The Night of the Patient Anne.txt"_s, u"07-the-night-of-the-patient-anne.txt"_s},
                     {u"008 The Meeting.txt"_s, u"08-the-meeting.txt"_s},
                     {u"009 Lamp Forty-One.txt"_s, u"09-lamp-forty-one.txt"_s},
                     {u"010 Pages from the Ledger.txt"_s, u"10-pages-from-the-ledger.txt"_s},
                     {u"011 Notes on Oil and Wick.txt"_s, u"11-notes-on-oil-and-wick.txt"_s},
                 });
}

TEST_F(SampleManuscript, WithArchivedDocuments)
{
    expectExport(u"letters-from-the-breakwater"_s, {},
                 {
                     {u"001 Before the Season.txt"_s, u"01-before-the-season.txt"_s},
                     {u"002 The First Gale.txt"_s, u"02-the-first-gale.txt"_s},
                     {u"003 What the Tide Left.txt"_s, u"03-what-the-tide-left.txt"_s},
                 });
}

TEST_F(SampleManuscript, GermanWithGermanQuotesShortLinesAndNoEmptyLines)
{
    expectExport(u"die-gezeitenuhr"_s,
                 {u"--convert-spaces"_s, u"--quotation-language"_s, u"de"_s, u"--set"_s, u"line-length=66"_s,
                  u"--set"_s, u"empty-lines=drop"_s},
                 {
                     {u"001_Die_Überfahrt.txt"_s, u"01-die-ueberfahrt.txt"_s},
                     {u"002_Das_Werk_im_Turm.txt"_s, u"02-das-werk-im-turm.txt"_s},
                     {u"003_Brief_an_den_Bruder.txt"_s, u"03-brief-an-den-bruder.txt"_s},
                     {u"004_Ebbe:Flut.txt"_s, u"04-ebbe-flut.txt"_s},
                     {u"005_Das_Museum_ruft_an.txt"_s, u"05-das-museum-ruft-an.txt"_s},
                     {u"006_Das_Heft_der_Küsterin.txt"_s, u"06-das-heft-der-kuesterin.txt"_s},
                     {u"007_Nebel.txt"_s, u"07-nebel.txt"_s},
                     {u"008_Die_Glocke.txt"_s, u"08-die-glocke.txt"_s},
                     {u"009_Neun_Minuten.txt"_s, u"09-neun-minuten.txt"_s},
                     {u"010_Das_Gutachten.txt"_s, u"10-das-gutachten.txt"_s},
                     {u"011_Anhang_für_Besucher.txt"_s, u"11-anhang-fuer-besucher.txt"_s},
                 });
}

} // namespace end_to_end
