#include <OrvaneExportKit/run/ArchivedContent.h>

#include <OrvaneExportKit/platform/ArchivedClass.h>
#include <OrvaneExportKit/platform/Exceptions.h>
#include <tests/support/HandMadeArchives.h>
#include <tests/support/Printers.h>

#include <gtest/gtest.h>

namespace {

using namespace Qt::Literals::StringLiterals;
using KZArrayExportAdditions::arrayWithUnarchivedKeyedContent;
using support::binaryArchive;
using support::keyedArchive;
using support::object;
using support::uid;
using support::xmlArchive;

QByteArray archiveOf(const QString &string)
{
    return binaryArchive(keyedArchive({string}));
}

/// Makes objects of the class `Chapter` known and keeps the order in which they are decoded.
class DecodedChapters
{
public:
    const QStringList &names() const { return m_names; }

    static QByteArray archive(const QString &name)
    {
        return binaryArchive(keyedArchive({object(u"Chapter"_s, {{u"name"_s, uid(2)}}), name}));
    }

private:
    QStringList m_names;
    platform::ArchivedClassRegistration m_registration{
        {{u"Chapter"_s, u"NSObject"_s}, QMetaType::fromType<QString>(), {}, [this](platform::Coder &coder) {
             m_names += coder.decodeObjectForKey(u"name"_s).toString();
             return QVariant(m_names.last());
         }}};
};

template <typename Exception>
std::string complaint(const QList<QByteArray> &archives)
{
    try {
        arrayWithUnarchivedKeyedContent(archives);
    } catch (const Exception &exception) {
        return exception.what();
    }
    return "nothing is wrong";
}

TEST(ArchivedContent, OfNoArchivesIsEmpty)
{
    EXPECT_TRUE(arrayWithUnarchivedKeyedContent({}).isEmpty());
}

TEST(ArchivedContent, HasTheOrderOfTheArchives)
{
    EXPECT_EQ(arrayWithUnarchivedKeyedContent({archiveOf(u"A"_s), archiveOf(u"B"_s), archiveOf(u"C"_s)}),
              (QVariantList{u"A"_s, u"B"_s, u"C"_s}));
}

TEST(ArchivedContent, TakesBinaryAndXmlArchivesOfAnything)
{
    EXPECT_EQ(arrayWithUnarchivedKeyedContent(
                  {xmlArchive(keyedArchive({u"A"_s})),
                   binaryArchive(keyedArchive({object(u"NSArray"_s, {{u"NS.objects"_s, support::uids({2})}}), 1.5}))}),
              (QVariantList{u"A"_s, QVariantList{1.5}}));
}

TEST(ArchivedContent, IsDecodedFromTheLastArchiveToTheFirst)
{
    const DecodedChapters decoded;
    EXPECT_EQ(
        arrayWithUnarchivedKeyedContent({decoded.archive(u"A"_s), decoded.archive(u"B"_s), decoded.archive(u"C"_s)}),
        (QVariantList{u"A"_s, u"B"_s, u"C"_s}));
    EXPECT_EQ(decoded.names(), (QStringList{u"C"_s, u"B"_s, u"A"_s}));
}

TEST(ArchivedContent, FailsAtAMalformedLastArchiveBeforeAnyOtherIsDecoded)
{
    const DecodedChapters decoded;
    const std::string text =
        complaint<platform::ArchiveException>({"first malformed", decoded.archive(u"B"_s), "last malformed"});
    EXPECT_TRUE(text.starts_with("arrayWithUnarchivedKeyedContent: archive 3 of 3: unarchiveObjectWithData: ")) << text;
    EXPECT_TRUE(decoded.names().isEmpty());
}

TEST(ArchivedContent, FailsAtAMalformedArchiveAfterThoseBehindIt)
{
    const DecodedChapters decoded;
    const std::string text =
        complaint<platform::ArchiveException>({decoded.archive(u"A"_s), "malformed", decoded.archive(u"C"_s)});
    EXPECT_TRUE(text.starts_with("arrayWithUnarchivedKeyedContent: archive 2 of 3: ")) << text;
    EXPECT_EQ(decoded.names(), QStringList{u"C"_s});
}

TEST(ArchivedContent, FailsForAnArchiveOfNoObject)
{
    EXPECT_EQ(complaint<platform::InvalidArgumentException>(
                  {archiveOf(u"A"_s), binaryArchive(keyedArchive({}, {{u"root"_s, uid(0)}}))}),
              "arrayWithUnarchivedKeyedContent: archive 2 of 2: it holds no object");
}

TEST(ArchivedContent, FailsForAnArchiveWithoutRoot)
{
    EXPECT_EQ(complaint<platform::ArchiveException>({binaryArchive(keyedArchive({u"A"_s}, {}))}),
              "arrayWithUnarchivedKeyedContent: archive 1 of 1: unarchiveObjectWithData: the outermost fields: `root` "
              "is missing");
}

TEST(ArchivedContent, FailsForEmptyData)
{
    EXPECT_THROW(arrayWithUnarchivedKeyedContent({QByteArray()}), platform::ArchiveException);
}

} // namespace
