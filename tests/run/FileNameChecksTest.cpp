#include <OrvaneExportKit/run/FileNameChecks.h>
#include <tests/support/Printers.h>

#include <gtest/gtest.h>

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QSet>
#include <QtCore/QTemporaryDir>

using namespace Qt::Literals::StringLiterals;
using platform::existingPaths;
using platform::impossiblePaths;
using platform::PathFinding;
using platform::refusedNames;
using platform::repeatedPaths;

namespace {

/// The places and paths of the findings, each as "place: path".
QStringList found(const QList<PathFinding> &findings)
{
    QStringList places;
    for (const PathFinding &finding : findings) {
        places.append(QString::number(finding.index) + u": "_s + finding.path);
    }
    return places;
}

/// The reason why a file name is refused; none for a good name.
QString refusal(const QString &name)
{
    const QList<PathFinding> findings = refusedNames({u"/x/"_s + name});
    return findings.isEmpty() ? QString() : findings.constFirst().reason;
}

TEST(RepeatedPaths, AreAllOccurrencesInTheOrderOfTheList)
{
    EXPECT_EQ(found(repeatedPaths({u"/x/b"_s, u"/x/a"_s, u"/x/c"_s, u"/x/b"_s, u"/x/a"_s, u"/x/b"_s})),
              (QStringList{u"0: /x/b"_s, u"1: /x/a"_s, u"3: /x/b"_s, u"4: /x/a"_s, u"5: /x/b"_s}));
}

TEST(RepeatedPaths, AreNoneWhenAllDiffer)
{
    EXPECT_EQ(found(repeatedPaths({u"/x/a"_s, u"/x/b"_s, u"/y/a"_s})), QStringList());
    EXPECT_EQ(found(repeatedPaths({})), QStringList());
}

TEST(RepeatedPaths, SayHowOftenTheyStandInTheList)
{
    const QList<PathFinding> findings = repeatedPaths({u"/x/a"_s, u"/x/a"_s, u"/x/b"_s, u"/x/b"_s, u"/x/b"_s});
    ASSERT_EQ(findings.size(), 5);
    EXPECT_TRUE(findings[0].reason.contains(u'2')) << findings[0].reason.toStdString();
    EXPECT_TRUE(findings[4].reason.contains(u'3')) << findings[4].reason.toStdString();
}

class ExistingPaths : public testing::Test
{
protected:
    void SetUp() override { ASSERT_TRUE(m_folder.isValid()); }

    /// The path of a name in the temporary folder.
    QString path(const QString &name) const { return m_folder.filePath(name); }

    /// The same, after an empty file has been created there.
    QString createdFile(const QString &name) const
    {
        QString created = path(name);
        EXPECT_TRUE(QFile(created).open(QIODevice::WriteOnly));
        return created;
    }

private:
    QTemporaryDir m_folder;
};

TEST_F(ExistingPaths, AreThoseOfFilesAndFolders)
{
    const QString file = createdFile(u"a.txt"_s);
    const QString folder = path(u"folder"_s);
    ASSERT_TRUE(QDir().mkdir(folder));
    EXPECT_EQ(found(existingPaths({path(u"missing"_s), folder, path(u"gone"_s), file})),
              (QStringList{u"1: "_s + folder, u"3: "_s + file}));
}

TEST_F(ExistingPaths, AreListedAsOftenAsTheyStandInTheList)
{
    const QString file = createdFile(u"a.txt"_s);
    EXPECT_EQ(found(existingPaths({file, file})), (QStringList{u"0: "_s + file, u"1: "_s + file}));
}

TEST_F(ExistingPaths, AreNoneWhenNothingIsThere)
{
    EXPECT_EQ(found(existingPaths({path(u"a"_s), path(u"b"_s)})), QStringList());
    EXPECT_EQ(found(existingPaths({})), QStringList());
}

TEST_F(ExistingPaths, AreThoseOfLinksThatLeadNowhere)
{
    const QString link = path(u"link"_s);
    if (!QFile::link(path(u"missing"_s), link)) {
        GTEST_SKIP() << "this file system has no links";
    }
    EXPECT_EQ(found(existingPaths({path(u"missing"_s), link})), QStringList(u"1: "_s + link));
}

TEST_F(ExistingPaths, SayWhetherAFileOrAFolderIsThere)
{
    const QList<PathFinding> findings = existingPaths({createdFile(u"a.txt"_s), path(u"."_s)});
    ASSERT_EQ(findings.size(), 2);
    EXPECT_TRUE(findings[0].reason.contains(u"file", Qt::CaseInsensitive)) << findings[0].reason.toStdString();
    EXPECT_TRUE(findings[1].reason.contains(u"folder", Qt::CaseInsensitive)) << findings[1].reason.toStdString();
}

TEST_F(ExistingPaths, HoldANullWhichSystemsTakeForTheEnd)
{
    const QString file = createdFile(u"a"_s);
    const QString withNull = file + QChar(u'\0') + u'b';
    EXPECT_EQ(found(existingPaths({withNull, path(u"c"_s)})), QStringList{u"0: "_s + withNull});
}

class ImpossiblePaths : public ExistingPaths
{
};

TEST_F(ImpossiblePaths, HoldANull)
{
    const QString withNull = path(u"a"_s) + QChar(u'\0') + u'b';
    EXPECT_EQ(found(impossiblePaths({path(u"a"_s), withNull})), QStringList{u"1: "_s + withNull});
}

TEST_F(ImpossiblePaths, AreLongerThanTheSystemTakes)
{
    const QString longest = path(QString(255, u'x'));
    const QString tooLong = path(QString(256, u'x'));
    const QString tooLongInUtf8 = path(QString(128, u'\u00E9'));
    EXPECT_EQ(found(impossiblePaths({longest, tooLong, path(QString(127, u'\u00E9')), tooLongInUtf8})),
              QStringList({u"1: "_s + tooLong, u"3: "_s + tooLongInUtf8}));
    EXPECT_EQ(impossiblePaths({tooLong}).constFirst().reason, u"File name too long"_s);
    const QString tooDeep = path(QString(u"folder/"_s).repeated(600) + u'x');
    EXPECT_EQ(found(impossiblePaths({tooDeep})), QStringList{u"0: "_s + tooDeep});
}

TEST_F(ImpossiblePaths, AreNoneAmongThoseThatCanBeMade)
{
    EXPECT_EQ(found(impossiblePaths({createdFile(u"a"_s), path(u"missing/b"_s), path(u"a/b"_s), path(u"A:B?"_s)})),
              QStringList());
    EXPECT_EQ(found(impossiblePaths({})), QStringList());
}

TEST(RefusedNames, AreListedWithTheirPlaceAndPath)
{
    EXPECT_EQ(found(refusedNames({u"/x/a.txt"_s, u"/x/A:B.txt"_s, u"/x/b"_s, u"/x/con"_s, u"/x/A:B.txt"_s})),
              (QStringList{u"1: /x/A:B.txt"_s, u"3: /x/con"_s, u"4: /x/A:B.txt"_s}));
}

TEST(RefusedNames, AreListedOnceAlsoForSeveralReasons)
{
    EXPECT_EQ(found(refusedNames({u"/x/a:b?\u0001."_s})), QStringList(u"0: /x/a:b?\u0001."_s));
}

TEST(RefusedNames, AreNoneAmongGoodNames)
{
    EXPECT_EQ(found(refusedNames({u"/x/Report.txt"_s, u"a"_s, u"/x/.hidden"_s, u"/x/ leading blank"_s, u"/x/a.b.c"_s,
                                  u"/x/\u00E9\u4E2D\U0001F600 (1) [2] {3} 'q' & ~!@#$%^+=,;_-`"_s})),
              QStringList());
    EXPECT_EQ(found(refusedNames({})), QStringList());
}

TEST(RefusedNames, LookAtTheLastComponentAlone)
{
    EXPECT_EQ(found(refusedNames({u"/x:y/con/a./"_s + QString(300, u'a') + u"/b"_s})), QStringList());
}

TEST(RefusedNames, HoldAReservedCharacterAndSayWhich)
{
    for (const QChar character : u"<>:\"\\|?*"_s) {
        EXPECT_TRUE(refusal(u"a"_s + character + u"b"_s).contains(character))
            << refusal(u"a"_s + character).toStdString();
    }
}

TEST(RefusedNames, HoldAControlCharacter)
{
    for (char16_t unit = 0; unit < 0x20; ++unit) {
        EXPECT_FALSE(refusal(u"a"_s + unit + u"b"_s).isEmpty()) << static_cast<unsigned>(unit);
    }
    EXPECT_FALSE(refusal(u"a\u007Fb"_s).isEmpty());
    EXPECT_TRUE(refusal(u"a~b"_s).isEmpty());
}

TEST(RefusedNames, AreDeviceNamesInAnyCaseAndWithAnyExtension)
{
    for (const QString &name :
         {u"CON"_s,  u"PRN"_s,  u"AUX"_s,  u"NUL"_s,  u"COM1"_s, u"COM2"_s, u"COM3"_s, u"COM4"_s, u"COM5"_s,
          u"COM6"_s, u"COM7"_s, u"COM8"_s, u"COM9"_s, u"LPT1"_s, u"LPT2"_s, u"LPT3"_s, u"LPT4"_s, u"LPT5"_s,
          u"LPT6"_s, u"LPT7"_s, u"LPT8"_s, u"LPT9"_s, u"con"_s,  u"Prn"_s,  u"nUl"_s}) {
        EXPECT_FALSE(refusal(name).isEmpty()) << name.toStdString();
        EXPECT_FALSE(refusal(name.toLower()).isEmpty()) << name.toStdString();
        EXPECT_FALSE(refusal(name + u".txt"_s).isEmpty()) << name.toStdString();
        EXPECT_FALSE(refusal(name + u".tar.gz"_s).isEmpty()) << name.toStdString();
        EXPECT_FALSE(refusal(name + u" .txt"_s).isEmpty()) << name.toStdString();
    }
}

TEST(RefusedNames, AreNoNamesThatOnlyBeginOrEndLikeADeviceName)
{
    for (const QString &name : {u"CONSOLE"_s, u"COM10"_s, u"COM"_s, u"LPT"_s, u"COM0"_s, u"LPT0.txt"_s, u"LPT12.txt"_s,
                                u"a.con"_s, u"falcon"_s, u"my CON"_s, u"CON 1"_s, u"COM1a.txt"_s}) {
        EXPECT_EQ(refusal(name), QString()) << name.toStdString();
    }
}

TEST(RefusedNames, EndWithADotOrABlank)
{
    for (const QString &name : {u"a."_s, u"a "_s, u"a.txt."_s, u"a.txt "_s, u"."_s, u" "_s, u".."_s}) {
        EXPECT_FALSE(refusal(name).isEmpty()) << name.toStdString();
    }
}

TEST(RefusedNames, HaveMoreThan255BytesInUtf8)
{
    EXPECT_EQ(refusal(QString(255, u'a')), QString());
    EXPECT_FALSE(refusal(QString(256, u'a')).isEmpty());
    EXPECT_EQ(refusal(QString(127, u'\u00E9') + u"a"_s), QString());
    EXPECT_FALSE(refusal(QString(128, u'\u00E9')).isEmpty());
    EXPECT_EQ(refusal(QString(85, u'\u4E2D')), QString());
    EXPECT_FALSE(refusal(QString(85, u'\u4E2D') + u"a"_s).isEmpty());
    EXPECT_EQ(refusal(u"\U0001F600"_s.repeated(63) + u"abc"_s), QString());
    EXPECT_FALSE(refusal(u"\U0001F600"_s.repeated(64)).isEmpty());
}

TEST(RefusedNames, AreEmpty)
{
    EXPECT_EQ(found(refusedNames({u""_s})), QStringList(u"0: "_s));
}

TEST(RefusedNames, GiveEachCauseAReasonOfItsOwn)
{
    const QStringList names{u"a:b"_s, u"a\u0001b"_s, u"con"_s, u"a."_s, QString(256, u'a')};
    QSet<QString> reasons{refusedNames({u""_s}).constFirst().reason};
    for (const QString &name : names) {
        reasons.insert(refusal(name));
    }
    EXPECT_EQ(reasons.size(), names.size() + 1);
    EXPECT_FALSE(reasons.contains(QString()));
}

} // namespace
