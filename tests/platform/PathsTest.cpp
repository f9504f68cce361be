#include <OrvaneExportKit/platform/Paths.h>
#include <tests/support/Printers.h>

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;
using platform::appendingPathComponent;
using platform::deletingLastPathComponent;
using platform::deletingPathExtension;
using platform::lastPathComponent;

namespace {

constexpr char16_t writingDirectionControls[] = {0x061C, 0x200E, 0x200F, 0x202A, 0x202B, 0x202C,
                                                 0x202D, 0x202E, 0x2066, 0x2067, 0x2068, 0x2069};

TEST(LastPathComponent, IsWhatFollowsTheLastSlash)
{
    EXPECT_EQ(lastPathComponent(u"/a/b/Report.txt"_s), u"Report.txt"_s);
    EXPECT_EQ(lastPathComponent(u"a/b"_s), u"b"_s);
    EXPECT_EQ(lastPathComponent(u"/a"_s), u"a"_s);
    EXPECT_EQ(lastPathComponent(u"a"_s), u"a"_s);
}

TEST(LastPathComponent, IgnoresSlashesAtTheEnd)
{
    EXPECT_EQ(lastPathComponent(u"/a/b/Report.txt/"_s), u"Report.txt"_s);
    EXPECT_EQ(lastPathComponent(u"a///"_s), u"a"_s);
}

TEST(LastPathComponent, TakesARunOfSlashesAsOne)
{
    EXPECT_EQ(lastPathComponent(u"/a//b"_s), u"b"_s);
    EXPECT_EQ(lastPathComponent(u"//a"_s), u"a"_s);
}

TEST(LastPathComponent, OfTheRootIsASlash)
{
    EXPECT_EQ(lastPathComponent(u"/"_s), u"/"_s);
    EXPECT_EQ(lastPathComponent(u"///"_s), u"/"_s);
}

TEST(LastPathComponent, OfNothingIsEmpty)
{
    EXPECT_EQ(lastPathComponent(u""_s), u""_s);
}

TEST(LastPathComponent, KeepsBlanksAndDots)
{
    EXPECT_EQ(lastPathComponent(u"/a/ My file . "_s), u" My file . "_s);
    EXPECT_EQ(lastPathComponent(u"/a/.."_s), u".."_s);
}

TEST(DeletingLastPathComponent, KeepsWhatStandsBeforeIt)
{
    EXPECT_EQ(deletingLastPathComponent(u"/a/b/Report.txt"_s), u"/a/b"_s);
    EXPECT_EQ(deletingLastPathComponent(u"a/b"_s), u"a"_s);
}

TEST(DeletingLastPathComponent, IgnoresSlashesAtTheEnd)
{
    EXPECT_EQ(deletingLastPathComponent(u"/a/b/"_s), u"/a"_s);
    EXPECT_EQ(deletingLastPathComponent(u"/a/b///"_s), u"/a"_s);
    EXPECT_EQ(deletingLastPathComponent(u"a/"_s), u""_s);
}

TEST(DeletingLastPathComponent, RemovesTheWholeRunOfSlashesBeforeIt)
{
    EXPECT_EQ(deletingLastPathComponent(u"/a//b"_s), u"/a"_s);
}

TEST(DeletingLastPathComponent, LeavesEarlierRunsOfSlashesAlone)
{
    EXPECT_EQ(deletingLastPathComponent(u"a//b/c"_s), u"a//b"_s);
}

TEST(DeletingLastPathComponent, StopsAtTheRoot)
{
    EXPECT_EQ(deletingLastPathComponent(u"/a"_s), u"/"_s);
    EXPECT_EQ(deletingLastPathComponent(u"/a/"_s), u"/"_s);
    EXPECT_EQ(deletingLastPathComponent(u"//a"_s), u"/"_s);
    EXPECT_EQ(deletingLastPathComponent(u"/"_s), u"/"_s);
}

TEST(DeletingLastPathComponent, IsEmptyForASingleRelativeComponent)
{
    EXPECT_EQ(deletingLastPathComponent(u"a"_s), u""_s);
    EXPECT_EQ(deletingLastPathComponent(u""_s), u""_s);
}

TEST(PathExtension, IsWhatFollowsTheLastDot)
{
    EXPECT_EQ(platform::pathExtension(u"/a/Report.txt"_s), u"txt"_s);
    EXPECT_EQ(platform::pathExtension(u"a.tar.gz"_s), u"gz"_s);
    EXPECT_EQ(platform::pathExtension(u".a.b"_s), u"b"_s);
    EXPECT_EQ(platform::pathExtension(u"My file.html"_s), u"html"_s);
}

TEST(PathExtension, IgnoresSlashesAtTheEnd)
{
    EXPECT_EQ(platform::pathExtension(u"/a/Report.txt//"_s), u"txt"_s);
}

TEST(PathExtension, IsMissingWithoutADotInTheLastComponent)
{
    EXPECT_EQ(platform::pathExtension(u"/a.b/c"_s), u""_s);
    EXPECT_EQ(platform::pathExtension(u"a"_s), u""_s);
    EXPECT_EQ(platform::pathExtension(u"/a"_s), u""_s);
    EXPECT_EQ(platform::pathExtension(u"/"_s), u""_s);
    EXPECT_EQ(platform::pathExtension(u""_s), u""_s);
}

TEST(PathExtension, IsMissingWhenTheOnlyDotComesFirst)
{
    EXPECT_EQ(platform::pathExtension(u".zip"_s), u""_s);
    EXPECT_EQ(platform::pathExtension(u"/a/.zip"_s), u""_s);
    EXPECT_EQ(platform::pathExtension(u"."_s), u""_s);
}

TEST(PathExtension, IsMissingWhenTheLastDotComesLast)
{
    EXPECT_EQ(platform::pathExtension(u"a."_s), u""_s);
    EXPECT_EQ(platform::pathExtension(u"a.txt."_s), u""_s);
    EXPECT_EQ(platform::pathExtension(u".."_s), u""_s);
}

TEST(PathExtension, IsMissingWhenASpaceFollowsTheDot)
{
    EXPECT_EQ(platform::pathExtension(u"Vol. 1"_s), u""_s);
    EXPECT_EQ(platform::pathExtension(u"a.b c"_s), u""_s);
    EXPECT_EQ(platform::pathExtension(u"a.b "_s), u""_s);
}

TEST(PathExtension, IsMissingWhenAControlOfWritingDirectionFollowsTheDot)
{
    for (const char16_t control : writingDirectionControls) {
        EXPECT_EQ(platform::pathExtension(u"a.t"_s + control + u"xt"_s), u""_s) << static_cast<unsigned>(control);
        EXPECT_EQ(platform::pathExtension(u"a."_s + control), u""_s) << static_cast<unsigned>(control);
    }
}

TEST(PathExtension, StaysWhenAControlOfWritingDirectionPrecedesTheDot)
{
    for (const char16_t control : writingDirectionControls) {
        EXPECT_EQ(platform::pathExtension(u"a"_s + control + u".txt"_s), u"txt"_s) << static_cast<unsigned>(control);
    }
}

TEST(PathExtension, MayHoldTheNeighboursOfTheControls)
{
    for (const char16_t unit : u"\u061B\u061D\u200D\u2010\u2029\u202F\u2065\u206A"_s.toStdU16String()) {
        EXPECT_EQ(platform::pathExtension(u"a.t"_s + unit), u"t"_s + unit) << static_cast<unsigned>(unit);
    }
}

TEST(DeletingPathExtension, RemovesTheExtensionAndItsDot)
{
    EXPECT_EQ(deletingPathExtension(u"/a/b/Report.txt"_s), u"/a/b/Report"_s);
    EXPECT_EQ(deletingPathExtension(u"a.tar.gz"_s), u"a.tar"_s);
    EXPECT_EQ(deletingPathExtension(u".a.b"_s), u".a"_s);
}

TEST(DeletingPathExtension, RemovesSlashesAtTheEnd)
{
    EXPECT_EQ(deletingPathExtension(u"/a/Report.txt/"_s), u"/a/Report"_s);
    EXPECT_EQ(deletingPathExtension(u"/a/b//"_s), u"/a/b"_s);
}

TEST(DeletingPathExtension, LeavesEarlierSlashesAndDotsAlone)
{
    EXPECT_EQ(deletingPathExtension(u"//a.b//c.txt"_s), u"//a.b//c"_s);
    EXPECT_EQ(deletingPathExtension(u"/a.b/c"_s), u"/a.b/c"_s);
}

TEST(DeletingPathExtension, KeepsAPathWithoutExtension)
{
    for (const QString &path : {u"/"_s, u""_s, u"a"_s, u"/a"_s, u".zip"_s, u"a."_s, u"a.."_s, u"Vol. 1"_s}) {
        EXPECT_EQ(deletingPathExtension(path), path);
    }
    for (const char16_t control : writingDirectionControls) {
        const QString path = u"a.t"_s + control + u"xt"_s;
        EXPECT_EQ(deletingPathExtension(path), path);
    }
}

TEST(AppendingPathComponent, JoinsByASingleSlash)
{
    EXPECT_EQ(appendingPathComponent(u"/a"_s, u"b"_s), u"/a/b"_s);
    EXPECT_EQ(appendingPathComponent(u"/a/"_s, u"b"_s), u"/a/b"_s);
    EXPECT_EQ(appendingPathComponent(u"/a"_s, u"/b"_s), u"/a/b"_s);
    EXPECT_EQ(appendingPathComponent(u"/a//"_s, u"//b"_s), u"/a/b"_s);
    EXPECT_EQ(appendingPathComponent(u"a"_s, u"b"_s), u"a/b"_s);
    EXPECT_EQ(appendingPathComponent(u"/a"_s, u"b//c.d"_s), u"/a/b//c.d"_s);
}

TEST(AppendingPathComponent, KeepsTheRoot)
{
    EXPECT_EQ(appendingPathComponent(u"/"_s, u"b"_s), u"/b"_s);
    EXPECT_EQ(appendingPathComponent(u"/"_s, u""_s), u"/"_s);
}

TEST(AppendingPathComponent, GivesTheComponentAloneForAnEmptyPath)
{
    EXPECT_EQ(appendingPathComponent(u""_s, u"b"_s), u"b"_s);
    EXPECT_EQ(appendingPathComponent(u""_s, u"/b"_s), u"/b"_s);
    EXPECT_EQ(appendingPathComponent(u""_s, u""_s), u""_s);
}

TEST(AppendingPathComponent, RemovesSlashesAtTheEndForAnEmptyComponent)
{
    EXPECT_EQ(appendingPathComponent(u"/a"_s, u""_s), u"/a"_s);
    EXPECT_EQ(appendingPathComponent(u"/a//"_s, u""_s), u"/a"_s);
}

TEST(AppendingPathComponent, KeepsBlanksAndDots)
{
    EXPECT_EQ(appendingPathComponent(u"/a b"_s, u" c. "_s), u"/a b/ c. "_s);
}

} // namespace
