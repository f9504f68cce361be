#include <tests/end_to_end/DroppedUser.h>
#include <tests/end_to_end/HostTest.h>

#include <QtCore/QDir>
#include <QtCore/QFile>

#include <sys/stat.h>

using namespace Qt::Literals::StringLiterals;

namespace end_to_end {

namespace {

class ManuscriptFolder : public HostTest
{
protected:
    /// Runs the export, which must fail because of the manuscript and leave nothing behind.
    testing::AssertionResult isRefused(const QStringList &pieces) const
    {
        const testing::AssertionResult result = failedWith(2, pieces, runExport());
        return filesIn(destination()).isEmpty() ? result : testing::AssertionFailure() << "files were written";
    }

    testing::AssertionResult manifestIsRefused(const QByteArray &json, const QStringList &pieces) const
    {
        writeManifest(json);
        return isRefused(QStringList{manuscript() + u"/manuscript.json"_s} + pieces);
    }
};

} // namespace

TEST_F(ManuscriptFolder, Missing)
{
    EXPECT_TRUE(QDir(manuscript()).removeRecursively());
    EXPECT_TRUE(isRefused({u"no manuscript folder '%1'"_s.arg(manuscript())}));
}

TEST_F(ManuscriptFolder, IsAFile)
{
    EXPECT_TRUE(QDir(manuscript()).removeRecursively());
    writeFile(manuscript(), "{}");
    EXPECT_TRUE(isRefused({u"'%1' is no folder"_s.arg(manuscript())}));
}

TEST_F(ManuscriptFolder, PipeOrDeviceInPlaceOfAFileIsRefusedAtOnce)
{
    for (const QString &file : {manuscript() + u"/2.txt"_s, manuscript() + u"/manuscript.json"_s}) {
        EXPECT_TRUE(QFile::remove(file));
        EXPECT_EQ(mkfifo(QFile::encodeName(file).constData(), 0600), 0);
        EXPECT_TRUE(isRefused({u"'%1' is a folder, a pipe or a device; "_s.arg(file)}));
        EXPECT_TRUE(QFile::remove(file));
        EXPECT_TRUE(QFile::link(u"/dev/zero"_s, file));
        EXPECT_TRUE(isRefused({u"'%1' is a folder, a pipe or a device; "_s.arg(file)}));
    }
}

TEST_F(ManuscriptFolder, NamesAFileWithANull)
{
    EXPECT_TRUE(manifestIsRefused(R"({"title": "", "documents": [{"file": "1.txt\u0000", "name": ""}]})",
                                  {u"document 1"_s, u"names the file '1.txt\\x00'; give a path inside"_s}));
}

TEST_F(ManuscriptFolder, WithoutManuscriptJson)
{
    EXPECT_TRUE(QFile::remove(manuscript() + u"/manuscript.json"_s));
    EXPECT_TRUE(isRefused({u"no manuscript.json in '%1'"_s.arg(manuscript())}));
}

TEST_F(ManuscriptFolder, ManuscriptJsonIsAFolder)
{
    EXPECT_TRUE(QFile::remove(manuscript() + u"/manuscript.json"_s));
    EXPECT_TRUE(QDir(manuscript()).mkdir(u"manuscript.json"_s));
    EXPECT_TRUE(isRefused({u"'%1/manuscript.json' is a folder, a pipe or a device; "_s.arg(manuscript())}));
}

TEST_F(ManuscriptFolder, BrokenJsonIsShownByLineAndColumn)
{
    EXPECT_TRUE(manifestIsRefused("{\"title\": oops}", {u"line 1, column 11: illegal"_s}));
    EXPECT_TRUE(manifestIsRefused("{\n  \"title\": \"Ü\", oops\n}", {u"line 2, column 18:"_s}));
    EXPECT_TRUE(manifestIsRefused("", {u"line 1, column 1:"_s}));
    EXPECT_TRUE(manifestIsRefused("{\"title\": \"\xFF\"}", {u"line 1, column 12:"_s, u"UTF8"_s}));
}

TEST_F(ManuscriptFolder, JsonOfAnotherShapeIsNamed)
{
    EXPECT_TRUE(manifestIsRefused("[]", {u"needs an object"_s}));
    EXPECT_TRUE(manifestIsRefused(R"({"documents": []})", {u"\"title\" with a string"_s}));
    EXPECT_TRUE(manifestIsRefused(R"({"title": 5, "documents": []})", {u"\"title\" with a string"_s}));
    EXPECT_TRUE(manifestIsRefused(R"({"title": "A"})", {u"\"documents\" with a list"_s}));
    EXPECT_TRUE(manifestIsRefused(R"({"title": "A", "documents": {}})", {u"\"documents\" with a list"_s}));
    EXPECT_TRUE(manifestIsRefused(R"({"title": "A", "documents": [7]})", {u"document 1 "_s, u"an object"_s}));
    EXPECT_TRUE(manifestIsRefused(R"({"title": "A", "documents": [{"file": "1.txt", "name": "One"}, {"name": "Two"}]})",
                                  {u"document 2 "_s, u"\"file\" with a string"_s}));
    EXPECT_TRUE(manifestIsRefused(R"({"title": "A", "documents": [{"file": "1.txt", "name": null}]})",
                                  {u"document 1 "_s, u"\"name\" with a string"_s}));
    EXPECT_TRUE(manifestIsRefused(R"({"title": "A", "documents": [{"file": "1.txt", "name": "One", "status": 3}]})",
                                  {u"document 1 "_s, u"\"status\" with a string"_s}));
    EXPECT_TRUE(manifestIsRefused(R"({"title": "A", "documents": [{"file": "1.txt", "name": "One", "label": []}]})",
                                  {u"document 1 "_s, u"\"label\" with a string"_s}));
}

TEST_F(ManuscriptFolder, StatusAndLabelMayBeAbsent)
{
    writeManifest(R"({"title": "A", "documents": [{"file": "1.txt", "name": "One"}]})");
    EXPECT_EQ(runExport({u"--pattern"_s, u"<2>[<3>][<4>]"_s}).exitCode, 0);
    EXPECT_EQ(filesIn(destination()), QStringList{u"One[][].txt"_s});
}

TEST_F(ManuscriptFolder, FilesOutsideAreRefused)
{
    writeFile(path(u"secret.txt"_s), "secret");
    for (const QString &file : {u"../secret.txt"_s, u"sub/../../secret.txt"_s, path(u"secret.txt"_s), u""_s, u".."_s}) {
        EXPECT_TRUE(manifestIsRefused(
            u"{\"title\": \"A\", \"documents\": [{\"file\": \"%1\", \"name\": \"One\"}]}"_s.arg(file).toUtf8(),
            {u"document 1 "_s, u'\'' + file + u'\'', u"inside the manuscript's folder"_s}));
    }
}

TEST_F(ManuscriptFolder, FilesInSubfoldersAreRead)
{
    EXPECT_TRUE(QDir(manuscript()).mkdir(u"part..one"_s));
    writeFile(manuscript() + u"/part..one/a.txt"_s, "Deep.");
    writeManifest(R"({"title": "A", "documents": [{"file": "part..one/a.txt", "name": "Deep"}]})");
    EXPECT_EQ(runExport().exitCode, 0);
    EXPECT_EQ(fileContent(exported(u"001 Deep.txt"_s)), "Deep.");
}

TEST_F(ManuscriptFolder, MissingTextIsNamedBeforeAnythingIsWritten)
{
    EXPECT_TRUE(QFile::remove(manuscript() + u"/3.txt"_s));
    EXPECT_TRUE(isRefused({u"'%1/3.txt' can't be read"_s.arg(manuscript()), u"No such file"_s}));
}

TEST_F(ManuscriptFolder, UnreadableTextIsNamed)
{
    const DroppedUser user;
    makePublic(path(u"."_s));
    EXPECT_TRUE(QFile::setPermissions(manuscript() + u"/2.txt"_s, {}));
    EXPECT_TRUE(failedWith(2, {u"'%1/2.txt' can't be read"_s.arg(manuscript()), u"Permission denied"_s},
                           user.runHost(exportArguments())));
}

TEST_F(ManuscriptFolder, TextInAnotherEncodingIsShownByByteLineAndColumn)
{
    writeFile(manuscript() + u"/2.txt"_s, "Zeile\nsch\xC3\xB6n, gr\xFC\xDF dich");
    EXPECT_TRUE(isRefused({u"'%1/2.txt' is no UTF-8"_s.arg(manuscript()), u"byte 16 "_s, u"line 2, column 10"_s}));
    writeFile(manuscript() + u"/2.txt"_s, "cut off in a character: \xC3");
    EXPECT_TRUE(isRefused({u"'%1/2.txt' is no UTF-8"_s.arg(manuscript()), u"byte 25 "_s, u"line 1"_s}));
}

TEST_F(ManuscriptFolder, ByteOrderMarkIsDropped)
{
    writeManuscript({{u"One"_s, "\xEF\xBB\xBF# Title"}});
    EXPECT_EQ(runExport().exitCode, 0);
    EXPECT_EQ(fileContent(exported(u"001 One.txt"_s)), "Title");
}

} // namespace end_to_end
