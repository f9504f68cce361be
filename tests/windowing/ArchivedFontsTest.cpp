#include <OrvaneExportKit/platform/Exceptions.h>
#include <OrvaneExportKit/platform/KeyedArchiver.h>
#include <OrvaneExportKit/platform/KeyedObject.h>
#include <OrvaneExportKit/platform/KeyedUnarchiver.h>
#include <OrvaneExportKit/windowing/Font.h>
#include <tests/support/HandMadeArchive.h>
#include <tests/support/Printers.h>

#include <gtest/gtest.h>

#include <limits>

using namespace Qt::Literals::StringLiterals;
using platform::ArchiveException;
using platform::KeyedArchiver;
using platform::KeyedUnarchiver;
using platform::PropertyList;
using support::ArchiveContents;
using support::HandMadeArchive;
using windowing::Font;

namespace {

const QStringList fontClasses{u"NSFont"_s, u"NSObject"_s};

QVariant font(const QVariant &name, QVariantMap fields)
{
    HandMadeArchive archive;
    if (name.isValid()) {
        fields.insert(u"NSName"_s, archive.add(name));
    }
    return KeyedUnarchiver::unarchiveObjectWithData(archive.data(archive.add(fontClasses, fields)));
}

TEST(ArchivedFont, IsReadFromNameAndSize)
{
    const QVariant read = font(u"Helvetica-BoldOblique"_s, {{u"NSSize"_s, 11.5}, {u"NSfFlags"_s, 16}});
    ASSERT_EQ(read.metaType(), QMetaType::fromType<QFont>());
    EXPECT_EQ(Font::fontName(read.value<QFont>()), u"Helvetica-BoldOblique"_s);
    EXPECT_EQ(read.value<QFont>().pointSizeF(), 11.5);
    EXPECT_TRUE(read.value<QFont>().bold());
}

TEST(ArchivedFont, HasTheUsualSizeWhereItsArchiveGivesNone)
{
    EXPECT_EQ(font(u"Helvetica"_s, {}).value<QFont>().pointSizeF(), 12.0);
    EXPECT_EQ(font(u"Helvetica"_s, {{u"NSSize"_s, 0}}).value<QFont>().pointSizeF(), 12.0);
}

TEST(ArchivedFont, StaysAnObjectWithoutANameOrASize)
{
    for (const QVariant &kept : {font({}, {{u"NSSize"_s, 12.0}}), font(u""_s, {{u"NSSize"_s, 12.0}}),
                                 font(12, {{u"NSSize"_s, 12.0}}), font(u"Helvetica"_s, {{u"NSSize"_s, -1.0}}),
                                 font(u"Helvetica"_s, {{u"NSSize"_s, std::numeric_limits<double>::infinity()}})}) {
        EXPECT_EQ(kept.value<platform::KeyedObject>().className(), u"NSFont");
    }
    EXPECT_THROW(font(u"Helvetica"_s, {{u"NSSize"_s, u"large"_s}}), ArchiveException);
}

TEST(ArchivedFont, IsWrittenWithTheNameThatItsArchiveGave)
{
    for (const QString &name : {u"Menlo-Regular"_s, u"Menlo"_s, u"Courier-Book"_s, u"DejaVuSans"_s,
                                u"DejaVuSans-Book"_s, u"DejaVuSans-Bold"_s, u"DejaVuSans-BoldOblique"_s,
                                u"Times-Roman"_s, u"TimesNewRomanPS-BoldItalicMT"_s, u".AppleSystemUIFont"_s}) {
        const QVariant read = font(name, {{u"NSSize"_s, 12.0}});
        const ArchiveContents archive(KeyedArchiver::archivedDataWithRootObject(read));
        EXPECT_EQ(archive.object(archive.root().value(u"NSName"_s)), QVariant(name));
    }
}

TEST(ArchivedFont, IsReadFromADescriptor)
{
    HandMadeArchive archive;
    const QVariantList keys{archive.add(u"NSFontNameAttribute"_s), archive.add(u"NSFontSizeAttribute"_s)};
    const QVariantList values{archive.add(u"Times-Roman"_s), archive.add(14.0)};
    const QVariant attributes =
        archive.add({u"NSDictionary"_s, u"NSObject"_s}, {{u"NS.keys"_s, keys}, {u"NS.objects"_s, values}});
    const QVariant root =
        archive.add({u"NSFontDescriptor"_s, u"NSObject"_s}, {{u"NSFontDescriptorAttributes"_s, attributes}});
    const auto read = KeyedUnarchiver::unarchiveObjectWithData(archive.data(root)).value<QFont>();
    EXPECT_EQ(Font::fontName(read), u"Times-Roman"_s);
    EXPECT_EQ(read.pointSizeF(), 14.0);
}

TEST(ArchivedFont, IsWrittenWithNameAndSize)
{
    const QFont written = Font::fontWithName(u"Times-BoldItalic"_s, 10.5);
    for (const auto format : {PropertyList::Format::Binary, PropertyList::Format::Xml}) {
        const ArchiveContents archive(KeyedArchiver::archivedDataWithRootObject(written, format));
        EXPECT_EQ(archive.classNames(archive.root()), fontClasses);
        EXPECT_EQ(archive.object(archive.root().value(u"NSName"_s)), QVariant(u"Times-BoldItalic"_s));
        EXPECT_EQ(archive.root().value(u"NSSize"_s), QVariant(10.5));
        EXPECT_EQ(archive.root().value(u"NSfFlags"_s).toInt(), 16);
    }
}

TEST(ArchivedFont, ComesBackFromItsArchive)
{
    for (const QString &name : {u"DejaVuSans-Bold"_s, u"NoSuchFont-Light"_s}) {
        const QFont written = Font::fontWithName(name, 10.5);
        const QByteArray data = KeyedArchiver::archivedDataWithRootObject(written);
        EXPECT_EQ(KeyedUnarchiver::unarchiveObjectWithData(data), QVariant(written));
    }
}

} // namespace
