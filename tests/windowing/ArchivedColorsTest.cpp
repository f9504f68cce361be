#include <OrvaneExportKit/platform/AttributedString.h>
#include <OrvaneExportKit/platform/Exceptions.h>
#include <OrvaneExportKit/platform/KeyedArchiver.h>
#include <OrvaneExportKit/platform/KeyedObject.h>
#include <OrvaneExportKit/platform/KeyedUnarchiver.h>
#include <OrvaneExportKit/windowing/Shadow.h>
#include <tests/support/HandMadeArchive.h>
#include <tests/support/Printers.h>

#include <gtest/gtest.h>

#include <QtGui/QColor>

using namespace Qt::Literals::StringLiterals;
using platform::ArchiveException;
using platform::KeyedArchiver;
using platform::KeyedObject;
using platform::KeyedUnarchiver;
using platform::PropertyList;
using support::ArchiveContents;
using support::HandMadeArchive;

namespace {

const QStringList colorClasses{u"NSColor"_s, u"NSObject"_s};

QVariant colorWith(const QVariantMap &fields)
{
    HandMadeArchive archive;
    return KeyedUnarchiver::unarchiveObjectWithData(archive.data(archive.add(colorClasses, fields)));
}

QVariant color(int space, const QString &key, const QByteArray &components)
{
    return colorWith({{u"NSColorSpace"_s, space}, {key, components}});
}

std::string complaintAbout(const QVariantMap &fields)
{
    try {
        colorWith(fields);
    } catch (const ArchiveException &exception) {
        return exception.what();
    }
    return "no complaint";
}

TEST(ArchivedColor, IsReadFromRgb)
{
    const QColor expected = QColor::fromRgbF(0.25F, 0.5F, 1.0F);
    EXPECT_EQ(color(1, u"NSRGB"_s, QByteArray("0.25 0.5 1\0", 11)), expected);
    EXPECT_EQ(color(2, u"NSRGB"_s, "0.25 0.5 1"), expected);
    EXPECT_EQ(color(1, u"NSRGB"_s, "0.25 0.5 1 0.75"), QColor::fromRgbF(0.25F, 0.5F, 1.0F, 0.75F));
}

TEST(ArchivedColor, IsReadFromWhite)
{
    EXPECT_EQ(color(3, u"NSWhite"_s, QByteArray("0.5\0", 4)), QColor::fromRgbF(0.5F, 0.5F, 0.5F));
    EXPECT_EQ(color(4, u"NSWhite"_s, "0.5 0.25"), QColor::fromRgbF(0.5F, 0.5F, 0.5F, 0.25F));
}

TEST(ArchivedColor, IsReadFromCmyk)
{
    const QColor expected = QColor::fromCmykF(0.1F, 0.2F, 0.3F, 0.4F, 0.5F);
    EXPECT_EQ(color(5, u"NSCMYK"_s, "0.1 0.2 0.3 0.4 0.5"), expected);
    EXPECT_EQ(color(5, u"NSCYMK"_s, "0.1 0.2 0.3 0.4 0.5"), expected);
    EXPECT_EQ(color(5, u"NSCMYK"_s, "0.1 0.2 0.3 0.4"), QColor::fromCmykF(0.1F, 0.2F, 0.3F, 0.4F));
}

TEST(ArchivedColor, IsReadFromComponentsWhereNothingElseIsThere)
{
    EXPECT_EQ(color(1, u"NSComponents"_s, "0.25 0.5 1 1"), QColor::fromRgbF(0.25F, 0.5F, 1.0F));
    EXPECT_EQ(colorWith({{u"NSColorSpace"_s, 1},
                         {u"NSRGB"_s, QByteArray("1 0 0")},
                         {u"NSComponents"_s, QByteArray("0.9 0.1 0.1 1")}}),
              QColor::fromRgbF(1.0F, 0.0F, 0.0F));
}

TEST(ArchivedColor, IsThatInTheCatalog)
{
    HandMadeArchive archive;
    const QVariant fallback = archive.add(colorClasses, {{u"NSColorSpace"_s, 3}, {u"NSWhite"_s, QByteArray("0.5")}});
    const QVariant catalog = archive.add(u"System"_s);
    const QVariant name = archive.add(u"textColor"_s);
    const QVariant root = archive.add(
        colorClasses,
        {{u"NSColorSpace"_s, 6}, {u"NSCatalogName"_s, catalog}, {u"NSColorName"_s, name}, {u"NSColor"_s, fallback}});
    EXPECT_EQ(KeyedUnarchiver::unarchiveObjectWithData(archive.data(root)), QColor::fromRgbF(0.5F, 0.5F, 0.5F));
}

TEST(ArchivedColor, StaysAnObjectWhereItsArchiveHoldsNone)
{
    HandMadeArchive archive;
    const QVariant name = archive.add(u"textColor"_s);
    const QVariant root = archive.add(colorClasses, {{u"NSColorSpace"_s, 6}, {u"NSColorName"_s, name}});
    const QVariant named = KeyedUnarchiver::unarchiveObjectWithData(archive.data(root));
    EXPECT_EQ(named.value<KeyedObject>().value(u"NSColorName"_s), u"textColor"_s);
    EXPECT_EQ(colorWith({{u"NSColorSpace"_s, 10}}).value<KeyedObject>().className(), u"NSColor"_s);
}

TEST(ArchivedColor, IsHeldToItsRange)
{
    EXPECT_EQ(color(1, u"NSRGB"_s, "-0.25 1.5 0"), QColor::fromRgbF(0.0F, 1.0F, 0.0F));
}

TEST(ArchivedColor, IsRefusedWithComponentsThatAreNone)
{
    for (const char *components : {"", "1 0", "1 0 0 1 1", "1 0 red", "1 0 nan", "1 0 inf"}) {
        EXPECT_THROW(color(1, u"NSRGB"_s, components), ArchiveException) << components;
    }
    EXPECT_NE(complaintAbout({{u"NSColorSpace"_s, 1}, {u"NSRGB"_s, QByteArray("1 0 red")}})
                  .find("NSColor: `NSRGB` holds \"1 0 red\" instead of 3 numbers, or one more"),
              std::string::npos);
    EXPECT_NE(complaintAbout({{u"NSColorSpace"_s, 3}}).find("NSColor: `NSWhite` is missing"), std::string::npos);
    EXPECT_NE(complaintAbout({{u"NSColorSpace"_s, 7}}).find("`NSColorSpace` is 7"), std::string::npos);
    EXPECT_NE(complaintAbout({}).find("`NSColorSpace` is 0"), std::string::npos);
}

TEST(ArchivedColor, IsRefusedInsideItself)
{
    HandMadeArchive archive;
    const QVariant root =
        archive.add(colorClasses, {{u"NSColorSpace"_s, 6}, {u"NSColor"_s, QVariant::fromValue(PropertyList::Uid{2})}});
    EXPECT_THROW(KeyedUnarchiver::unarchiveObjectWithData(archive.data(root)), ArchiveException);
}

TEST(ArchivedColor, IsReadFromXml)
{
    const QByteArray xml = R"(<?xml version="1.0" encoding="UTF-8"?>
<plist version="1.0"><dict>
  <key>$archiver</key><string>NSKeyedArchiver</string>
  <key>$version</key><integer>100000</integer>
  <key>$top</key><dict><key>root</key><dict><key>CF$UID</key><integer>1</integer></dict></dict>
  <key>$objects</key><array>
    <string>$null</string>
    <dict>
      <key>$class</key><dict><key>CF$UID</key><integer>2</integer></dict>
      <key>NSColorSpace</key><integer>1</integer>
      <key>NSRGB</key><data>MSAwLjUgMAA=</data>
    </dict>
    <dict>
      <key>$classname</key><string>NSColor</string>
      <key>$classes</key><array><string>NSColor</string><string>NSObject</string></array>
    </dict>
  </array>
</dict></plist>)";
    EXPECT_EQ(KeyedUnarchiver::unarchiveObjectWithData(xml), QColor::fromRgbF(1.0F, 0.5F, 0.0F));
}

TEST(ArchivedColor, IsWrittenAsCalibratedRgb)
{
    const ArchiveContents opaque(KeyedArchiver::archivedDataWithRootObject(QColor::fromRgbF(1.0F, 0.0F, 0.0F)));
    EXPECT_EQ(opaque.classNames(opaque.root()), colorClasses);
    EXPECT_EQ(opaque.root().value(u"NSColorSpace"_s).toInt(), 1);
    EXPECT_EQ(opaque.root().value(u"NSRGB"_s).toByteArray(), QByteArray("1 0 0\0", 6));
    const ArchiveContents clear(KeyedArchiver::archivedDataWithRootObject(QColor::fromRgbF(1.0F, 0.0F, 0.0F, 0.0F)));
    EXPECT_EQ(clear.root().value(u"NSRGB"_s).toByteArray(), QByteArray("1 0 0 0\0", 8));
}

TEST(ArchivedColor, ComesBackFromItsArchive)
{
    for (const QColor &color : {QColor(12, 34, 56), QColor(12, 34, 56, 78), QColor::fromRgbF(0.123F, 0.456F, 0.789F),
                                QColor::fromCmykF(0.1F, 0.2F, 0.3F, 0.4F, 0.5F)}) {
        const QByteArray data = KeyedArchiver::archivedDataWithRootObject(color);
        EXPECT_EQ(KeyedUnarchiver::unarchiveObjectWithData(data), QVariant(color));
    }
    EXPECT_THROW(KeyedArchiver::archivedDataWithRootObject(QColor()), platform::InvalidArgumentException);
}

TEST(ArchivedColor, IsAnAttributeOfTexts)
{
    HandMadeArchive archive;
    const QVariant red = archive.add(colorClasses, {{u"NSColorSpace"_s, 1}, {u"NSRGB"_s, QByteArray("1 0 0")}});
    const QVariant name = archive.add(u"NSColor"_s);
    const QVariant attributes = archive.add({u"NSDictionary"_s, u"NSObject"_s},
                                            {{u"NS.keys"_s, QVariantList{name}}, {u"NS.objects"_s, QVariantList{red}}});
    const QVariant string = archive.add(u"red"_s);
    const QVariant root = archive.add({u"NSAttributedString"_s, u"NSObject"_s},
                                      {{u"NSString"_s, string}, {u"NSAttributes"_s, attributes}});
    const auto text = KeyedUnarchiver::unarchiveObjectWithData(archive.data(root)).value<platform::AttributedString>();
    EXPECT_EQ(text.attributesAtIndex(0).value(u"NSColor"_s), QVariant(QColor::fromRgbF(1.0F, 0.0F, 0.0F)));
}

TEST(ArchivedShadow, IsReadAndComesBack)
{
    HandMadeArchive archive;
    const QVariant blue = archive.add(colorClasses, {{u"NSColorSpace"_s, 1}, {u"NSRGB"_s, QByteArray("0 0 1 0.5")}});
    const QVariant root = archive.add({u"NSShadow"_s, u"NSObject"_s}, {{u"NSShadowBlurRadius"_s, 4.0},
                                                                       {u"NSShadowHoriz"_s, 1.5},
                                                                       {u"NSShadowVert"_s, -2.5},
                                                                       {u"NSShadowColor"_s, blue}});
    const QVariant shadow = KeyedUnarchiver::unarchiveObjectWithData(archive.data(root));
    const windowing::Shadow expected{{1.5, -2.5}, 4.0, QColor::fromRgbF(0.0F, 0.0F, 1.0F, 0.5F)};
    EXPECT_EQ(shadow.value<windowing::Shadow>(), expected);
    const QByteArray again = KeyedArchiver::archivedDataWithRootObject(shadow);
    EXPECT_EQ(KeyedUnarchiver::unarchiveObjectWithData(again).value<windowing::Shadow>(), expected);
}

} // namespace
