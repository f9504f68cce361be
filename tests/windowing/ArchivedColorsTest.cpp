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
#include <QtGui/QColorSpace>

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

/// A colour with exact components in the space that these fields describe, beside approximate ones.
QVariant exactColor(const QByteArray &components, const QVariantMap &space)
{
    HandMadeArchive archive;
    const QVariant custom = archive.add({u"NSColorSpace"_s, u"NSObject"_s}, space);
    return KeyedUnarchiver::unarchiveObjectWithData(
        archive.data(archive.add(colorClasses, {{u"NSColorSpace"_s, 1},
                                                {u"NSRGB"_s, QByteArray("0 0 0\0", 6)},
                                                {u"NSComponents"_s, components},
                                                {u"NSCustomColorSpace"_s, custom}})));
}

/// Looks whether a value is a colour whose red, green and blue are near these.
void expectNear(const QVariant &value, float red, float green, float blue)
{
    constexpr float tolerance = 0.0015F;
    ASSERT_EQ(value.metaType(), QMetaType::fromType<QColor>());
    const auto color = value.value<QColor>();
    EXPECT_NEAR(color.redF(), red, tolerance);
    EXPECT_NEAR(color.greenF(), green, tolerance);
    EXPECT_NEAR(color.blueF(), blue, tolerance);
}

bool isKeptAsObject(const QVariant &value)
{
    return value.value<KeyedObject>().className() == u"NSColor";
}

TEST(ArchivedColor, OfADeviceIsReadFromRgb)
{
    const QColor expected = QColor::fromRgbF(0.25F, 0.5F, 1.0F);
    EXPECT_EQ(color(2, u"NSRGB"_s, QByteArray("0.25 0.5 1\0", 11)), expected);
    EXPECT_EQ(color(2, u"NSRGB"_s, "0.25 0.5 1"), expected);
    EXPECT_EQ(color(2, u"NSRGB"_s, "0.25 0.5 1 0.75"), QColor::fromRgbF(0.25F, 0.5F, 1.0F, 0.75F));
}

/// The numbers on the right are those that other programs show for the colours of their crayons.
TEST(ArchivedColor, ThatIsCalibratedIsConvertedFromTheGenericSpace)
{
    expectNear(color(1, u"NSRGB"_s, QByteArray("1 0 0\0", 6)), 1.011F, 0.1491F, -0.0229F);
    expectNear(color(1, u"NSRGB"_s, "0 0 1"), 0.0168F, 0.1984F, 1.0014F);
    expectNear(color(1, u"NSRGB"_s, "1 1 0"), 0.9994F, 0.9856F, -0.0415F);
    expectNear(color(1, u"NSRGB"_s, "0.5 0.5 0.5 0.5"), 0.5723F, 0.5723F, 0.5723F);
    EXPECT_EQ(color(1, u"NSRGB"_s, "0 0 0"), QColor(Qt::black));
    EXPECT_EQ(color(1, u"NSRGB"_s, "1 1 1"), QColor(Qt::white));
    EXPECT_EQ(color(1, u"NSRGB"_s, "1 1 1 0.5").value<QColor>().alphaF(), QColor::fromRgbF(0, 0, 0, 0.5F).alphaF());
}

TEST(ArchivedColor, WithComponentsInSrgbIsExact)
{
    EXPECT_EQ(exactColor("0.25 0.5 1 1", {{u"NSID"_s, 7}}), QColor::fromRgbF(0.25F, 0.5F, 1.0F));
    EXPECT_EQ(exactColor("0.25 0.5 1 0.75", {{u"NSID"_s, 7}, {u"NSModel"_s, 1}}),
              QColor::fromRgbF(0.25F, 0.5F, 1.0F, 0.75F));
}

TEST(ArchivedColor, WithComponentsOfAProfileIsExact)
{
    const QVariantMap displayP3{{u"NSID"_s, 12}, {u"NSICC"_s, QColorSpace(QColorSpace::DisplayP3).iccProfile()}};
    expectNear(exactColor("0.5 0.5 0.5 1", displayP3), 0.5F, 0.5F, 0.5F);
    expectNear(exactColor("1 0 0 1", displayP3), 1.0930F, -0.2267F, -0.1501F);
    expectNear(exactColor("0.8 0.4 0.2 1", displayP3), 0.8596F, 0.3705F, 0.1232F);
    EXPECT_EQ(exactColor("1 1 1 1", displayP3), QColor(Qt::white));
}

TEST(ArchivedColor, WithComponentsOfASpaceThatIsNotKnownIsReadFromTheUsualOnes)
{
    EXPECT_EQ(exactColor("1 1 1 1", {{u"NSID"_s, 99}}), QColor(Qt::black));
    EXPECT_EQ(exactColor("1 1 1 1", {{u"NSICC"_s, QByteArray("no profile")}}), QColor(Qt::black));
    EXPECT_EQ(exactColor("1 1", {{u"NSID"_s, 7}}), QColor(Qt::black));
    EXPECT_EQ(exactColor("1 1 1e30 1", {{u"NSID"_s, 7}}), QColor(Qt::black));
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
    EXPECT_EQ(color(2, u"NSComponents"_s, "0.25 0.5 1 1"), QColor::fromRgbF(0.25F, 0.5F, 1.0F));
    expectNear(color(1, u"NSComponents"_s, "0.5 0.5 0.5 1"), 0.5723F, 0.5723F, 0.5723F);
    EXPECT_EQ(colorWith({{u"NSColorSpace"_s, 2},
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
    EXPECT_EQ(color(2, u"NSRGB"_s, "-0.25 1.5 0"), QColor::fromRgbF(0.0F, 1.0F, 0.0F));
}

TEST(ArchivedColor, StaysAnObjectWhereNoColorCanHoldIt)
{
    for (const char *components : {"", "1 0", "1 0 0 1 1", "1 0 red", "1 0 nan", "1 0 inf"}) {
        const QVariant kept = color(1, u"NSRGB"_s, components);
        EXPECT_TRUE(isKeptAsObject(kept)) << components;
        EXPECT_EQ(kept.value<KeyedObject>().value(u"NSRGB"_s), QVariant(QByteArray(components)));
    }
    EXPECT_TRUE(isKeptAsObject(colorWith({{u"NSColorSpace"_s, 1}})));
    EXPECT_TRUE(isKeptAsObject(colorWith({{u"NSColorSpace"_s, 3}})));
    EXPECT_TRUE(isKeptAsObject(colorWith({{u"NSColorSpace"_s, 7}, {u"NSRGB"_s, QByteArray("1 0 0")}})));
    EXPECT_TRUE(isKeptAsObject(colorWith({})));
}

TEST(ArchivedColor, IsRefusedWithAFieldOfAnotherType)
{
    EXPECT_THROW(colorWith({{u"NSColorSpace"_s, 1}, {u"NSRGB"_s, u"1 0 0"_s}}), ArchiveException);
    EXPECT_THROW(colorWith({{u"NSColorSpace"_s, u"1"_s}}), ArchiveException);
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
      <key>NSColorSpace</key><integer>2</integer>
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

/// The numbers of the generic space are those that other programs write for red.
TEST(ArchivedColor, IsWrittenInTheGenericSpaceAndExactly)
{
    const ArchiveContents opaque(KeyedArchiver::archivedDataWithRootObject(QColor::fromRgbF(1.0F, 0.0F, 0.0F)));
    EXPECT_EQ(opaque.classNames(opaque.root()), colorClasses);
    EXPECT_EQ(opaque.root().value(u"NSColorSpace"_s).toInt(), 1);
    const QByteArray usual = opaque.root().value(u"NSRGB"_s).toByteArray();
    ASSERT_TRUE(usual.endsWith('\0'));
    const QList<QByteArray> numbers = usual.chopped(1).split(' ');
    ASSERT_EQ(numbers.size(), 3);
    EXPECT_NEAR(numbers[0].toFloat(), 0.9859F, 0.001F);
    EXPECT_NEAR(numbers[1].toFloat(), 0.0F, 0.001F);
    EXPECT_NEAR(numbers[2].toFloat(), 0.0269F, 0.003F);
    EXPECT_EQ(opaque.root().value(u"NSComponents"_s), QVariant(QByteArray("1 0 0 1")));
    const QVariantMap space = opaque.object(opaque.root().value(u"NSCustomColorSpace"_s)).toMap();
    EXPECT_EQ(opaque.classNames(space), QStringList({u"NSColorSpace"_s, u"NSObject"_s}));
    EXPECT_EQ(space.value(u"NSID"_s).toInt(), 7);

    const ArchiveContents clear(KeyedArchiver::archivedDataWithRootObject(QColor::fromRgbF(1.0F, 1.0F, 1.0F, 0.0F)));
    EXPECT_EQ(clear.root().value(u"NSRGB"_s).toByteArray(), QByteArray("1 1 1 0\0", 8));
    EXPECT_EQ(clear.root().value(u"NSComponents"_s), QVariant(QByteArray("1 1 1 0")));
}

TEST(ArchivedColor, ComesBackFromItsArchive)
{
    for (const QColor &color : {QColor(12, 34, 56), QColor(12, 34, 56, 78), QColor::fromRgbF(0.123F, 0.456F, 0.789F),
                                QColor::fromRgbF(1.25F, -0.25F, 0.5F), QColor(0, 0, 0), QColor(255, 255, 255),
                                QColor::fromCmykF(0.1F, 0.2F, 0.3F, 0.4F, 0.5F)}) {
        const QByteArray data = KeyedArchiver::archivedDataWithRootObject(color);
        EXPECT_EQ(KeyedUnarchiver::unarchiveObjectWithData(data), QVariant(color));
    }
    EXPECT_THROW(KeyedArchiver::archivedDataWithRootObject(QColor()), platform::InvalidArgumentException);
}

TEST(ArchivedColor, IsAnAttributeOfTexts)
{
    HandMadeArchive archive;
    const QVariant red = archive.add(colorClasses, {{u"NSColorSpace"_s, 2}, {u"NSRGB"_s, QByteArray("1 0 0")}});
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
    const QVariant blue = archive.add(colorClasses, {{u"NSColorSpace"_s, 2}, {u"NSRGB"_s, QByteArray("0 0 1 0.5")}});
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

TEST(ArchivedShadow, StaysAnObjectWithAColorThatIsNone)
{
    HandMadeArchive archive;
    const QVariant pattern = archive.add(colorClasses, {{u"NSColorSpace"_s, 10}});
    const QVariant root = archive.add({u"NSShadow"_s, u"NSObject"_s}, {{u"NSShadowColor"_s, pattern}});
    const QVariant shadow = KeyedUnarchiver::unarchiveObjectWithData(archive.data(root));
    EXPECT_TRUE(isKeptAsObject(shadow.value<KeyedObject>().value(u"NSShadowColor"_s)));
}

} // namespace
