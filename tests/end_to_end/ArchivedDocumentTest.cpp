#include <tests/end_to_end/HostTest.h>

using namespace Qt::Literals::StringLiterals;

namespace end_to_end {

namespace {

const QByteArray chapter = "# Heading\n\n\tIt was **cold**. \"Really?\"\n";

/// A keyed archive with these objects behind the first, which stands for none; the root is the object of index 1.
QByteArray archive(const QByteArray &objects)
{
    return R"(<plist version="1.0"><dict>
        <key>$version</key><integer>100000</integer>
        <key>$archiver</key><string>NSKeyedArchiver</string>
        <key>$top</key><dict><key>root</key><dict><key>CF$UID</key><integer>1</integer></dict></dict>
        <key>$objects</key><array><string>$null</string>)" +
           objects + "</array></dict></plist>";
}

QByteArray reference(int index)
{
    return "<dict><key>CF$UID</key><integer>" + QByteArray::number(index) + "</integer></dict>";
}

QByteArray classRecord(const QByteArray &name)
{
    return "<dict><key>$classname</key><string>" + name + "</string></dict>";
}

QByteArray archivedString()
{
    return archive("<string>" + chapter + "</string>");
}

QByteArray archivedMutableString()
{
    return archive("<dict><key>$class</key>" + reference(2) + "<key>NS.string</key><string>" + chapter +
                   "</string></dict>" + classRecord("NSMutableString"));
}

QByteArray archivedAttributedString()
{
    return archive("<dict><key>$class</key>" + reference(2) + "<key>NSString</key>" + reference(3) + "</dict>" +
                   classRecord("NSAttributedString") + "<string>" + chapter + "</string>");
}

class ArchivedDocument : public HostTest
{
protected:
    void writeDocument(const QString &file, const QByteArray &content) const
    {
        writeManifest("{\"title\": \"A Test\", \"documents\": [{\"file\": \"" + file.toUtf8() +
                      "\", \"name\": \"One\"}]}");
        writeFile(manuscript() + u'/' + file, content);
    }

    QByteArray exportOf(const QString &file, const QByteArray &content) const
    {
        writeDocument(file, content);
        const HostResult result = runExport({u"--yes"_s});
        EXPECT_EQ(result.exitCode, 0) << testing::PrintToString(result.errors);
        return fileContent(exported(u"001 One.txt"_s));
    }

    testing::AssertionResult isRefused(const QString &file, const QByteArray &content, const QString &complaint) const
    {
        writeDocument(file, content);
        return failedWith(2, {u"'%1/%2'"_s.arg(manuscript(), file), complaint}, runExport());
    }
};

} // namespace

TEST_F(ArchivedDocument, IsExportedLikeTheSameTextInAFile)
{
    const QByteArray expected = exportOf(u"1.txt"_s, chapter);
    EXPECT_NE(expected.indexOf("It was cold. “Really?”"), -1);
    EXPECT_EQ(exportOf(u"1.archive"_s, archivedString()), expected);
    EXPECT_EQ(exportOf(u"1.archive"_s, archivedMutableString()), expected);
    EXPECT_EQ(exportOf(u"1.archive"_s, archivedAttributedString()), expected);
}

TEST_F(ArchivedDocument, InXmlIsTextUnderAnyOtherName)
{
    EXPECT_TRUE(exportOf(u"1.txt"_s, archivedString()).startsWith("<plist"));
}

TEST_F(ArchivedDocument, ThatIsMalformedIsRefusedWithThePlace)
{
    EXPECT_TRUE(isRefused(u"1.archive"_s, "no archive", u"line 1, column 1: this is not a property list"_s));
    EXPECT_TRUE(isRefused(u"1.txt"_s, "bplist00", u"byte 8: the list ends before its trailer"_s));
    EXPECT_TRUE(isRefused(u"1.archive"_s, archive("<dict/>"), u"object 1: `$class` is missing"_s));
}

TEST_F(ArchivedDocument, ThatIsNoTextIsRefusedWithItsKind)
{
    EXPECT_TRUE(isRefused(u"1.archive"_s, archive("<integer>5</integer>"), u"holds no text but a value of type"_s));
    EXPECT_TRUE(isRefused(u"1.archive"_s,
                          archive("<dict><key>$class</key>" + reference(2) + "</dict>" + classRecord("Sketch")),
                          u"holds no text but a value of type Sketch"_s));
    EXPECT_TRUE(isRefused(u"1.archive"_s, archive("<string>$null</string>"), u"it holds no object"_s));
}

} // namespace end_to_end
