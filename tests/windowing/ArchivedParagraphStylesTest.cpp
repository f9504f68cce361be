#include <OrvaneExportKit/platform/Exceptions.h>
#include <OrvaneExportKit/platform/KeyedArchiver.h>
#include <OrvaneExportKit/platform/KeyedObject.h>
#include <OrvaneExportKit/platform/KeyedUnarchiver.h>
#include <OrvaneExportKit/windowing/ParagraphStyle.h>
#include <tests/support/HandMadeArchive.h>
#include <tests/support/Printers.h>

#include <gtest/gtest.h>

#include <utility>
#include <vector>

using namespace Qt::Literals::StringLiterals;
using platform::ArchiveException;
using platform::KeyedArchiver;
using platform::KeyedUnarchiver;
using platform::PropertyList;
using support::ArchiveContents;
using support::HandMadeArchive;
using windowing::ParagraphStyle;
using windowing::TextAlignment;
using windowing::TextTab;
using windowing::WritingDirection;

namespace {

const QStringList styleClasses{u"NSParagraphStyle"_s, u"NSObject"_s};

ParagraphStyle styleWith(const QVariantMap &fields, const QStringList &classes = styleClasses)
{
    HandMadeArchive archive;
    const QVariant style = KeyedUnarchiver::unarchiveObjectWithData(archive.data(archive.add(classes, fields)));
    EXPECT_EQ(style.metaType(), QMetaType::fromType<ParagraphStyle>());
    return style.value<ParagraphStyle>();
}

TEST(ArchivedParagraphStyle, IsPlainWithoutFields)
{
    EXPECT_EQ(styleWith({}), ParagraphStyle());
    EXPECT_EQ(styleWith({{u"NSTabStops"_s, QVariant::fromValue(PropertyList::Uid{0})}}), ParagraphStyle());
}

TEST(ArchivedParagraphStyle, IsReadFromTheMutableClassToo)
{
    const QStringList classes{u"NSMutableParagraphStyle"_s, u"NSParagraphStyle"_s, u"NSObject"_s};
    EXPECT_EQ(styleWith({{u"NSAlignment"_s, 2}}, classes).alignment, TextAlignment::Center);
}

TEST(ArchivedParagraphStyle, NumbersAlignmentsAsOldArchivesDo)
{
    EXPECT_EQ(styleWith({{u"NSAlignment"_s, 0}}).alignment, TextAlignment::Left);
    EXPECT_EQ(styleWith({{u"NSAlignment"_s, 1}}).alignment, TextAlignment::Right);
    EXPECT_EQ(styleWith({{u"NSAlignment"_s, 2}}).alignment, TextAlignment::Center);
    EXPECT_EQ(styleWith({{u"NSAlignment"_s, 3}}).alignment, TextAlignment::Justified);
    EXPECT_EQ(styleWith({{u"NSAlignment"_s, 4}}).alignment, TextAlignment::Natural);
}

TEST(ArchivedParagraphStyle, IsReadFieldByField)
{
    const std::vector<std::pair<QString, double ParagraphStyle::*>> fields{
        {u"NSLineSpacing"_s, &ParagraphStyle::lineSpacing},
        {u"NSParagraphSpacing"_s, &ParagraphStyle::paragraphSpacing},
        {u"NSParagraphSpacingBefore"_s, &ParagraphStyle::paragraphSpacingBefore},
        {u"NSHeadIndent"_s, &ParagraphStyle::headIndent},
        {u"NSFirstLineHeadIndent"_s, &ParagraphStyle::firstLineHeadIndent},
        {u"NSTailIndent"_s, &ParagraphStyle::tailIndent},
        {u"NSMinLineHeight"_s, &ParagraphStyle::minimumLineHeight},
        {u"NSMaxLineHeight"_s, &ParagraphStyle::maximumLineHeight},
        {u"NSLineHeightMultiple"_s, &ParagraphStyle::lineHeightMultiple},
        {u"NSDefaultTabInterval"_s, &ParagraphStyle::defaultTabInterval},
        {u"NSHyphenationFactor"_s, &ParagraphStyle::hyphenationFactor},
        {u"NSHeaderLevel"_s, &ParagraphStyle::headerLevel},
    };
    for (const auto &[key, member] : fields) {
        ParagraphStyle expected;
        expected.*member = 1.5;
        EXPECT_EQ(styleWith({{key, 1.5}}), expected) << key.toStdString();
    }
    const ParagraphStyle rest = styleWith({{u"NSLineBreakMode"_s, 4},
                                           {u"NSLineBreakStrategy"_s, 1},
                                           {u"NSAllowsTighteningForTruncation"_s, 1},
                                           {u"NSWritingDirection"_s, 2}});
    EXPECT_EQ(rest.lineBreakMode, 4);
    EXPECT_EQ(rest.lineBreakStrategy, 1);
    EXPECT_TRUE(rest.allowsTighteningForTruncation);
    EXPECT_EQ(rest.writingDirection, WritingDirection::RightToLeft);
}

TEST(ArchivedParagraphStyle, HasTabs)
{
    HandMadeArchive archive;
    const QStringList tabClasses{u"NSTextTab"_s, u"NSObject"_s};
    const QVariantList tabs{archive.add(tabClasses, {{u"NSLocation"_s, 28.5}}),
                            archive.add(tabClasses, {{u"NSLocation"_s, 56}, {u"NSTextAlignment"_s, 1}})};
    const QVariant stops = archive.add({u"NSArray"_s, u"NSObject"_s}, {{u"NS.objects"_s, tabs}});
    const QVariant root = archive.add(styleClasses, {{u"NSTabStops"_s, stops}});
    const auto style = KeyedUnarchiver::unarchiveObjectWithData(archive.data(root)).value<ParagraphStyle>();
    const QList<TextTab> expected{{28.5, TextAlignment::Natural, false, {}}, {56.0, TextAlignment::Right, false, {}}};
    EXPECT_EQ(style.tabStops, std::optional(expected));
}

TextTab tabWith(QVariantMap fields)
{
    HandMadeArchive archive;
    const QVariant root = archive.add({u"NSTextTab"_s, u"NSObject"_s}, std::move(fields));
    const QVariant tab = KeyedUnarchiver::unarchiveObjectWithData(archive.data(root));
    EXPECT_EQ(tab.metaType(), QMetaType::fromType<TextTab>());
    return tab.value<TextTab>();
}

TEST(ArchivedTextTab, HasTheAlignmentOfItsOlderTypeWhereNothingElseSaysIt)
{
    const auto aligned = [](TextAlignment alignment, bool isDecimal = false) {
        return TextTab{0.0, alignment, isDecimal, {}};
    };
    EXPECT_EQ(tabWith({{u"NSType"_s, 0}}), aligned(TextAlignment::Left));
    EXPECT_EQ(tabWith({{u"NSType"_s, 1}}), aligned(TextAlignment::Right));
    EXPECT_EQ(tabWith({{u"NSType"_s, 2}}), aligned(TextAlignment::Center));
    EXPECT_EQ(tabWith({{u"NSType"_s, 3}}), aligned(TextAlignment::Right, true));
    EXPECT_EQ(tabWith({{u"NSType"_s, 1}, {u"NSTextAlignment"_s, 2}}), aligned(TextAlignment::Center));
    EXPECT_EQ(tabWith({{u"NSType"_s, 3}, {u"NSTextAlignment"_s, 1}}), aligned(TextAlignment::Right, true));
}

TEST(ArchivedTextTab, KeepsItsOptions)
{
    HandMadeArchive archive;
    const QVariant characters = archive.add({u"NSCharacterSet"_s, u"NSObject"_s}, {{u"NSString"_s, u","_s}});
    const QVariantList names{archive.add(u"NSTabColumnTerminatorsAttributeName"_s)};
    const QVariant options = archive.add({u"NSDictionary"_s, u"NSObject"_s},
                                         {{u"NS.keys"_s, names}, {u"NS.objects"_s, QVariantList{characters}}});
    const QVariant root = archive.add({u"NSTextTab"_s, u"NSObject"_s},
                                      {{u"NSLocation"_s, 56}, {u"NSType"_s, 3}, {u"NSTabOptions"_s, options}});
    const QVariant tab = KeyedUnarchiver::unarchiveObjectWithData(archive.data(root));
    const QVariant again = KeyedUnarchiver::unarchiveObjectWithData(KeyedArchiver::archivedDataWithRootObject(tab));
    for (const auto &read : {tab.value<TextTab>(), again.value<TextTab>()}) {
        EXPECT_TRUE(read.isDecimal);
        EXPECT_EQ(read.alignment, TextAlignment::Right);
        const auto kept = read.options.value(u"NSTabColumnTerminatorsAttributeName"_s).value<platform::KeyedObject>();
        EXPECT_EQ(kept.value(u"NSString"_s), u","_s);
    }
}

TEST(ArchivedParagraphStyle, KeepsBlocksAndListsAsTheyStand)
{
    HandMadeArchive archive;
    const QVariant block = archive.add({u"NSTextBlock"_s, u"NSObject"_s}, {{u"NSWidth"_s, 3}});
    const QVariant blocks = archive.add({u"NSArray"_s, u"NSObject"_s}, {{u"NS.objects"_s, QVariantList{block}}});
    const QVariant root = archive.add(styleClasses, {{u"NSTextBlocks"_s, blocks}});
    const QVariant style = KeyedUnarchiver::unarchiveObjectWithData(archive.data(root));
    const QVariantList kept = style.value<ParagraphStyle>().textBlocks;
    ASSERT_EQ(kept.size(), 1);
    EXPECT_EQ(kept.first().value<platform::KeyedObject>().className(), u"NSTextBlock"_s);
    const QVariant again = KeyedUnarchiver::unarchiveObjectWithData(KeyedArchiver::archivedDataWithRootObject(style));
    EXPECT_EQ(again.value<ParagraphStyle>().textBlocks.first().value<platform::KeyedObject>().value(u"NSWidth"_s), 3);
}

TEST(ArchivedParagraphStyle, StaysAnObjectWithNumbersThatSayNothing)
{
    for (const auto &[key, value] : std::vector<std::pair<QString, QVariant>>{{u"NSAlignment"_s, 5},
                                                                              {u"NSAlignment"_s, -1},
                                                                              {u"NSWritingDirection"_s, 3},
                                                                              {u"NSWritingDirection"_s, -1}}) {
        HandMadeArchive archive;
        const QVariant kept =
            KeyedUnarchiver::unarchiveObjectWithData(archive.data(archive.add(styleClasses, {{key, value}})));
        EXPECT_EQ(kept.value<platform::KeyedObject>().value(key), value);
    }
    for (const QVariantMap &odd : {QVariantMap{{u"NSTextAlignment"_s, 9}}, QVariantMap{{u"NSType"_s, 4}}}) {
        HandMadeArchive archive;
        const QVariant tab = archive.add({u"NSTextTab"_s, u"NSObject"_s}, odd);
        const QVariant stops = archive.add({u"NSArray"_s, u"NSObject"_s}, {{u"NS.objects"_s, QVariantList{tab}}});
        const QVariant root = archive.add(styleClasses, {{u"NSTabStops"_s, stops}});
        const QVariant kept = KeyedUnarchiver::unarchiveObjectWithData(archive.data(root));
        EXPECT_EQ(kept.value<platform::KeyedObject>().className(), u"NSParagraphStyle");
    }
}

TEST(ArchivedParagraphStyle, IsRefusedWithWrongFields)
{
    for (const auto &[key, value] : std::vector<std::pair<QString, QVariant>>{
             {u"NSLineSpacing"_s, u"wide"_s},
             {u"NSTabStops"_s, u"inline"_s},
         }) {
        HandMadeArchive archive;
        const QVariant root = archive.add(styleClasses, {{key, value}});
        EXPECT_THROW(KeyedUnarchiver::unarchiveObjectWithData(archive.data(root)), ArchiveException)
            << key.toStdString();
    }
    HandMadeArchive archive;
    const QVariant word = archive.add(u"tab"_s);
    const QVariant stops = archive.add({u"NSArray"_s, u"NSObject"_s}, {{u"NS.objects"_s, QVariantList{word}}});
    for (const QVariant &tabs : {word, stops}) {
        const QVariant root = archive.add(styleClasses, {{u"NSTabStops"_s, tabs}});
        EXPECT_THROW(KeyedUnarchiver::unarchiveObjectWithData(archive.data(root)), ArchiveException);
    }
}

TEST(ArchivedParagraphStyle, IsWrittenWithoutWhatIsUsual)
{
    const ArchiveContents plain(KeyedArchiver::archivedDataWithRootObject(QVariant::fromValue(ParagraphStyle())));
    EXPECT_EQ(plain.classNames(plain.root()), styleClasses);
    EXPECT_EQ(plain.root().keys(), QStringList({u"$class"_s, u"NSTabStops"_s}));
    EXPECT_EQ(plain.root().value(u"NSTabStops"_s).value<PropertyList::Uid>(), PropertyList::Uid{0});

    ParagraphStyle style;
    style.alignment = TextAlignment::Left;
    style.headIndent = 12.5;
    style.writingDirection = WritingDirection::LeftToRight;
    const ArchiveContents archive(KeyedArchiver::archivedDataWithRootObject(QVariant::fromValue(style)));
    EXPECT_EQ(archive.root().value(u"NSAlignment"_s), QVariant(qint64(0)));
    EXPECT_EQ(archive.root().value(u"NSHeadIndent"_s), QVariant(12.5));
    EXPECT_EQ(archive.root().value(u"NSWritingDirection"_s), QVariant(qint64(1)));
}

TEST(ArchivedParagraphStyle, ComesBackFromItsArchive)
{
    ParagraphStyle style;
    style.alignment = TextAlignment::Justified;
    style.writingDirection = WritingDirection::RightToLeft;
    style.lineHeightMultiple = 1.2;
    style.tabStops = QList<TextTab>{{10.0, TextAlignment::Center, false, {}},
                                    {20.0, TextAlignment::Right, true, {{u"a"_s, u"b"_s}}}};
    style.lineBreakMode = 3;
    style.allowsTighteningForTruncation = true;
    for (const auto format : {PropertyList::Format::Binary, PropertyList::Format::Xml}) {
        const QByteArray data = KeyedArchiver::archivedDataWithRootObject(QVariant::fromValue(style), format);
        EXPECT_EQ(KeyedUnarchiver::unarchiveObjectWithData(data).value<ParagraphStyle>(), style);
    }
    style.tabStops = QList<TextTab>();
    const QByteArray data = KeyedArchiver::archivedDataWithRootObject(QVariant::fromValue(style));
    EXPECT_EQ(KeyedUnarchiver::unarchiveObjectWithData(data).value<ParagraphStyle>(), style);
}

} // namespace
