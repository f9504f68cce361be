#include <OrvaneExportKit/platform/ArchivedTypes.h>
#include <OrvaneExportKit/platform/Archiver.h>
#include <OrvaneExportKit/platform/AttributedString.h>
#include <OrvaneExportKit/platform/Exceptions.h>
#include <OrvaneExportKit/platform/KeyedArchiver.h>
#include <OrvaneExportKit/platform/KeyedUnarchiver.h>
#include <OrvaneExportKit/platform/PropertyList.h>
#include <OrvaneExportKit/run/FileNames.h>
#include <tests/support/Printers.h>
#include <tests/support/SharedLists.h>

#include <gtest/gtest.h>

/// What the operations do that walk a value which holds more than anybody can count to. Without an end to it each of
/// these tests would run until it is stopped.

namespace {

using namespace Qt::Literals::StringLiterals;
using platform::Archiver;
using platform::AttributedString;
using platform::InvalidArgumentException;
using platform::KeyedArchiver;
using platform::KeyedUnarchiver;
using platform::PropertyList;
using platform::Range;
using support::sharedLists;

std::string complaintOfArchiver(const QVariant &value)
{
    try {
        Archiver::archivedDataWithRootObject(value);
    } catch (const InvalidArgumentException &exception) {
        return exception.what();
    }
    return "nothing is wrong";
}

TEST(SharedValues, ComeBackFromASmallKeyedArchive)
{
    const QByteArray data = KeyedArchiver::archivedDataWithRootObject(sharedLists());
    EXPECT_LT(data.size(), 20'000);
    const QVariant value = KeyedUnarchiver::unarchiveObjectWithData(data);
    EXPECT_EQ(value.toList().size(), 200);
    EXPECT_EQ(complaintOfArchiver(value), "encodeObject: a value takes more than 2147483647 bytes");
}

TEST(SharedValues, AreRefusedByTheArchiverBeforeAnythingIsWritten)
{
    const std::string tooLarge = "encodeObject: a value takes more than 2147483647 bytes";
    EXPECT_EQ(complaintOfArchiver(sharedLists()), tooLarge);
    EXPECT_EQ(complaintOfArchiver(QVariantMap{{u"a"_s, sharedLists()}}), tooLarge);
    EXPECT_EQ(complaintOfArchiver(QVariantList(100'000, QString(100'000, u'a'))), tooLarge);
    EXPECT_EQ(complaintOfArchiver(QVariantList(3000, QByteArray(1'000'000, 'a'))), tooLarge);
    EXPECT_EQ(complaintOfArchiver(QVariantList(2, sharedLists(2))), "nothing is wrong");
}

TEST(SharedValues, AreRefusedInPropertyLists)
{
    for (const auto format : {PropertyList::Format::Xml, PropertyList::Format::Binary}) {
        const PropertyList::WriteResult written = PropertyList::write(sharedLists(), format);
        EXPECT_FALSE(written.data);
        EXPECT_TRUE(written.error.endsWith(u"the values up to here would take more than 1073741824 bytes"));
    }
}

TEST(SharedValues, AreRefusedAsComponentsOfFileNames)
{
    EXPECT_THROW(platform::componentTexts({QVariant(sharedLists())}), InvalidArgumentException);
    EXPECT_THROW(platform::componentTexts({QVariantMap{{u"a"_s, sharedLists()}}}), InvalidArgumentException);
    EXPECT_THROW(platform::componentTexts({QVariantHash{{u"a"_s, sharedLists()}}}), InvalidArgumentException);
    EXPECT_THROW(platform::componentTexts({QStringList(2000, QString(1000, u'a'))}), InvalidArgumentException);
    QVariantList deep;
    for (int level = 1; level < 513; ++level) {
        deep = QVariantList{QVariant(deep)};
    }
    EXPECT_THROW(platform::componentTexts({QVariant(deep)}), InvalidArgumentException);
    EXPECT_EQ(platform::componentTexts({QVariant(QVariantList(2, QVariantList{1}))}), QStringList{u"[[1],[1]]"_s});
}

TEST(SharedValues, AreComparedAsAttributesInTheTimeOfWhatThereIs)
{
    const auto text = [](const QVariant &value) {
        AttributedString result(u"ab"_s);
        result.addAttributes({{u"x"_s, value}}, {0, 1});
        result.addAttributes({{u"x"_s, value}}, {1, 1});
        return result;
    };
    // Each list is made anew, so that no two of them are the same one.
    EXPECT_EQ(text(sharedLists()), text(sharedLists()));
    EXPECT_NE(text(sharedLists()), text(sharedLists(39)));
    Range run;
    text(sharedLists()).attributesAtIndex(0, &run);
    EXPECT_EQ(run, (Range{0, 2}));
    AttributedString apart(u"ab"_s);
    apart.addAttributes({{u"x"_s, sharedLists()}, {u"y"_s, 1}}, {0, 1});
    apart.addAttributes({{u"x"_s, sharedLists()}}, {1, 1});
    apart.attribute(u"x"_s, 0, &run, {0, 2});
    EXPECT_EQ(run, (Range{0, 2}));
}

template <typename Set>
Set setOf(const QVariant &element)
{
    Set set;
    set.elements = {element};
    return set;
}

TEST(SharedValues, AreComparedInSetsAndDictionariesInTheTimeOfWhatThereIs)
{
    using namespace platform;
    EXPECT_EQ(setOf<ObjectSet>(sharedLists()), setOf<ObjectSet>(sharedLists()));
    EXPECT_EQ(setOf<OrderedObjectSet>(sharedLists()), setOf<OrderedObjectSet>(sharedLists()));
    EXPECT_EQ(setOf<CountedObjectSet>(sharedLists()), setOf<CountedObjectSet>(sharedLists()));
    EXPECT_EQ((ObjectDictionary{{1}, {sharedLists()}}), (ObjectDictionary{{1}, {sharedLists()}}));
    const auto set = QVariant::fromValue(setOf<ObjectSet>(sharedLists()));
    EXPECT_EQ(AttributedString(u"a"_s, {{u"x"_s, set}}),
              AttributedString(u"a"_s, {{u"x"_s, QVariant::fromValue(setOf<ObjectSet>(sharedLists()))}}));
}

TEST(SharedValues, AreEqualAsListsAre)
{
    using namespace platform;
    EXPECT_EQ((ObjectSet{{1, 2.0}}), (ObjectSet{{1.0, 2}}));
    EXPECT_NE((ObjectSet{{1}}), (ObjectSet{{1, 1}}));
    EXPECT_NE((CountedObjectSet{{1}, {1}}), (CountedObjectSet{{1}, {2}}));
    EXPECT_NE((ObjectDictionary{{1}, {2}}), (ObjectDictionary{{1}, {3}}));
    EXPECT_NE(AttributedString(u"a"_s, {{u"x"_s, QVariantList{1}}}),
              AttributedString(u"a"_s, {{u"x"_s, QVariantList{1.0}}}));
}

} // namespace
