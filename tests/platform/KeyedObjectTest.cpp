#include <OrvaneExportKit/platform/ArchivedClass.h>
#include <OrvaneExportKit/platform/Exceptions.h>
#include <OrvaneExportKit/platform/KeyedObject.h>
#include <OrvaneExportKit/platform/KeyedUnarchiver.h>
#include <tests/support/HandMadeArchives.h>
#include <tests/support/Printers.h>

#include <gtest/gtest.h>

#include <QtCore/QSet>

#include <memory>

namespace {

using namespace Qt::Literals::StringLiterals;
using platform::ArchivedClassRegistration;
using platform::Coder;
using platform::KeyedObject;
using platform::KeyedUnarchiver;
using support::binaryArchive;
using support::keyedArchive;
using support::object;
using support::uid;
using support::uids;
using support::xmlArchive;

QVariant decoded(const QVariantList &objects)
{
    return KeyedUnarchiver::unarchiveObjectWithData(binaryArchive(keyedArchive(objects)));
}

KeyedObject decodedObject(const QVariantList &objects)
{
    const QVariant root = decoded(objects);
    EXPECT_EQ(root.metaType(), QMetaType::fromType<KeyedObject>());
    return root.value<KeyedObject>();
}

TEST(KeyedObject, KeepsClassChainAndFields)
{
    const QVariantList objects{
        QVariantMap{{u"$class"_s, uid(2)},
                    {u"title"_s, uid(3)},
                    {u"pages"_s, qint64{12}},
                    {u"nothing"_s, uid(0)},
                    {u"$$price"_s, 2.5},
                    {u"$0"_s, true}},
        QVariantMap{{u"$classname"_s, u"Note"_s}, {u"$classes"_s, QVariantList{u"Note"_s, u"Text"_s, u"NSObject"_s}}},
        u"Title"_s};
    for (const QByteArray &data : {xmlArchive(keyedArchive(objects)), binaryArchive(keyedArchive(objects))}) {
        const auto note = KeyedUnarchiver::unarchiveObjectWithData(data).value<KeyedObject>();
        EXPECT_FALSE(note.isNull());
        EXPECT_EQ(note.className(), u"Note");
        EXPECT_EQ(note.classNames(), QStringList({u"Note"_s, u"Text"_s, u"NSObject"_s}));
        EXPECT_EQ(note.keys(), QStringList({u"$$price"_s, u"$0"_s, u"nothing"_s, u"pages"_s, u"title"_s}));
        EXPECT_EQ(note.value(u"title"_s), QVariant(u"Title"_s));
        EXPECT_EQ(note.value(u"pages"_s), QVariant(qint64{12}));
        EXPECT_EQ(note.value(u"$$price"_s), QVariant(2.5));
        EXPECT_EQ(note.value(u"$0"_s), QVariant(true));
        EXPECT_TRUE(note.containsValueForKey(u"nothing"_s));
        EXPECT_FALSE(note.value(u"nothing"_s).isValid());
        EXPECT_FALSE(note.containsValueForKey(u"missing"_s));
        EXPECT_FALSE(note.value(u"missing"_s).isValid());
        EXPECT_FALSE(note.containsValueForKey(u"$class"_s));
        EXPECT_FALSE(note.value(u"$class"_s).isValid());
    }
}

TEST(KeyedObject, HasItsOwnNameAsTheChainWhereTheArchiveTellsNone)
{
    const KeyedObject note =
        decodedObject({QVariantMap{{u"$class"_s, uid(2)}}, QVariantMap{{u"$classname"_s, u"Note"_s}}});
    EXPECT_EQ(note.classNames(), QStringList{u"Note"_s});
    EXPECT_TRUE(note.keys().isEmpty());
}

TEST(KeyedObject, DecodesReferencesInsideListsAndMapsOfAField)
{
    const KeyedObject note = decodedObject({object(u"Note"_s, {{u"parts"_s, QVariantList{uid(2), qint64{1}, uid(0)}},
                                                               {u"map"_s, QVariantMap{{u"a"_s, uid(2)}}}}),
                                            u"text"_s});
    EXPECT_EQ(note.value(u"parts"_s), QVariant(QVariantList{u"text"_s, qint64{1}, QVariant()}));
    EXPECT_EQ(note.value(u"map"_s), QVariant(QVariantMap{{u"a"_s, u"text"_s}}));
}

TEST(KeyedObject, IsNothingByDefault)
{
    const KeyedObject nothing;
    EXPECT_TRUE(nothing.isNull());
    EXPECT_TRUE(nothing.className().isEmpty());
    EXPECT_TRUE(nothing.classNames().isEmpty());
    EXPECT_TRUE(nothing.keys().isEmpty());
    EXPECT_FALSE(nothing.containsValueForKey(u"a"_s));
    EXPECT_FALSE(nothing.value(u"a"_s).isValid());
    EXPECT_EQ(nothing, KeyedObject());
}

TEST(KeyedObject, IsEqualToTheSameObjectOfTheSameArchive)
{
    const QVariantList objects{object(u"NSArray"_s, {{u"NS.objects"_s, uids({2, 3, 2})}}), object(u"Note"_s),
                               object(u"Note"_s)};
    const QVariantList notes = decoded(objects).toList();
    ASSERT_EQ(notes.size(), 3);
    EXPECT_EQ(notes[0], notes[2]);
    EXPECT_NE(notes[0], notes[1]);
    EXPECT_NE(notes[0], decoded(objects).toList()[0]);
    EXPECT_NE(notes[0].value<KeyedObject>(), KeyedObject());
}

TEST(KeyedObject, HasTheSameHashAsItsEquals)
{
    const QVariantList notes =
        decoded({object(u"NSArray"_s, {{u"NS.objects"_s, uids({2, 3, 2})}}), object(u"Note"_s), object(u"Note"_s)})
            .toList();
    QSet<KeyedObject> distinct;
    for (const QVariant &note : notes) {
        distinct.insert(note.value<KeyedObject>());
    }
    EXPECT_EQ(distinct.size(), 2);
    EXPECT_EQ(qHash(notes[0].value<KeyedObject>()), qHash(notes[2].value<KeyedObject>()));
}

TEST(KeyedObject, LetsAClassReadItsFields)
{
    const KeyedObject note = decodedObject(
        {object(u"Note"_s, {{u"width"_s, 2.5}, {u"$$tag"_s, qint64{3}}, {u"title"_s, uid(2)}}), u"Title"_s});
    int reads = 0;
    note.decodeFields([&reads](Coder &coder) {
        ++reads;
        EXPECT_TRUE(coder.allowsKeyedCoding());
        EXPECT_EQ(coder.decodeFloatForKey(u"width"_s), 2.5F);
        EXPECT_EQ(coder.decodeInt64ForKey(u"$tag"_s), 3);
        EXPECT_EQ(coder.decodeObjectForKey(u"title"_s), QVariant(u"Title"_s));
        EXPECT_THROW(coder.decodeInt64ForKey(u"title"_s), platform::ArchiveException);
    });
    EXPECT_EQ(reads, 1);
    EXPECT_THROW(KeyedObject().decodeFields([](Coder &) {}), platform::InvalidArgumentException);
}

TEST(KeyedObject, KeepsCircles)
{
    const KeyedObject view = decodedObject(
        {object(u"View"_s, {{u"cell"_s, uid(2)}}), object(u"Cell"_s, {{u"view"_s, uid(1)}, {u"self"_s, uid(2)}})});
    const auto cell = view.value(u"cell"_s).value<KeyedObject>();
    EXPECT_EQ(cell.className(), u"Cell");
    EXPECT_EQ(cell.value(u"view"_s).value<KeyedObject>(), view);
    EXPECT_EQ(cell.value(u"self"_s).value<KeyedObject>(), cell);
}

TEST(KeyedObject, KeepsCirclesThatLeadThroughAnArray)
{
    const QVariantList views =
        decoded({object(u"NSArray"_s, {{u"NS.objects"_s, uids({2})}}), object(u"View"_s, {{u"siblings"_s, uid(1)}})})
            .toList();
    ASSERT_EQ(views.size(), 1);
    EXPECT_EQ(views[0].value<KeyedObject>().value(u"siblings"_s), QVariant(views));
}

TEST(KeyedObject, StandsForBoxedValuesOfOtherTypes)
{
    const KeyedObject boxed = decodedObject({object(u"NSValue"_s, {{u"$0"_s, uid(2)}, {u"$1"_s, qint64{3}}}), u"i"_s});
    EXPECT_EQ(boxed.className(), u"NSValue");
    EXPECT_EQ(boxed.value(u"$0"_s), QVariant(u"i"_s));
    EXPECT_EQ(boxed.value(u"$1"_s), QVariant(qint64{3}));
}

TEST(KeyedObject, WalksAChainOf100000Objects)
{
    constexpr quint32 count = 100'000;
    QVariantList objects;
    for (quint32 index = 1; index <= count; ++index) {
        objects.append(object(u"Link"_s, {{u"next"_s, uid(index < count ? index + 1 : 0)}}));
    }
    QVariant link = decoded(objects);
    quint32 links = 0;
    for (; link.isValid(); link = link.value<KeyedObject>().value(u"next"_s)) {
        ++links;
    }
    EXPECT_EQ(links, count);
}

/// A class that a plug-in would register: it becomes its name and its number.
platform::ArchivedClass noteClass(const QString &name)
{
    return {{u"Note"_s, u"NSObject"_s}, QMetaType::fromType<QString>(), {}, [name](Coder &coder) {
                return QVariant(name + QString::number(coder.decodeInt64ForKey(u"number"_s)));
            }};
}

const QVariantList noteWithNumber{object(u"Note"_s, {{u"number"_s, qint64{7}}})};

TEST(ArchivedClass, IsMadeByTheDecoderOfItsRegistrationForAsLongAsThatLives)
{
    {
        const ArchivedClassRegistration registration(noteClass(u"note "_s));
        EXPECT_EQ(decoded(noteWithNumber), QVariant(u"note 7"_s));
    }
    EXPECT_EQ(decodedObject(noteWithNumber).className(), u"Note");
}

TEST(ArchivedClass, IsMadeByTheLatestRegistration)
{
    const ArchivedClassRegistration first(noteClass(u"first "_s));
    auto second = std::make_unique<ArchivedClassRegistration>(noteClass(u"second "_s));
    EXPECT_EQ(decoded(noteWithNumber), QVariant(u"second 7"_s));
    second.reset();
    EXPECT_EQ(decoded(noteWithNumber), QVariant(u"first 7"_s));
}

TEST(ArchivedClass, StandsBeforeTheClassesKnownByThemselves)
{
    const ArchivedClassRegistration registration(
        {{u"NSUUID"_s, u"NSObject"_s}, QMetaType::fromType<QString>(), {}, [](Coder &coder) {
             return QVariant(coder.decodeBytesForKey(u"NS.uuidbytes"_s));
         }});
    EXPECT_EQ(decoded({object(u"NSUUID"_s, {{u"NS.uuidbytes"_s, "short"_ba}})}), QVariant("short"_ba));
}

TEST(ArchivedClass, LeavesAnObjectUnknownThatItMakesNothingOf)
{
    const ArchivedClassRegistration registration(
        {{u"Note"_s}, QMetaType::fromType<QString>(), {}, [](Coder & /*coder*/) {
             return QVariant();
         }});
    EXPECT_EQ(decodedObject(noteWithNumber).value(u"number"_s), QVariant(qint64{7}));
}

TEST(ArchivedClass, ReadsObjectsAndFieldsWithoutNames)
{
    const ArchivedClassRegistration registration(
        {{u"Pair"_s}, QMetaType::fromType<QVariantList>(), {}, [](Coder &coder) {
             float number = 0;
             const QVariant first = coder.decodeObject();
             coder.decodeValueOfObjCType("f", &number);
             return QVariant(QVariantList{first, number, coder.decodeObjectForKey(u"$price"_s)});
         }});
    EXPECT_EQ(decoded({object(u"Pair"_s, {{u"$0"_s, uid(2)}, {u"$1"_s, 0.5}, {u"$$price"_s, uid(3)}}), u"a"_s, u"b"_s}),
              QVariant(QVariantList{u"a"_s, 0.5F, u"b"_s}));
}

TEST(ArchivedClass, CannotReferToItself)
{
    const ArchivedClassRegistration registration(
        {{u"Note"_s}, QMetaType::fromType<QVariantList>(), {}, [](Coder &coder) {
             return QVariant(QVariantList{coder.decodeObjectForKey(u"next"_s)});
         }});
    EXPECT_THROW(decoded({object(u"Note"_s, {{u"next"_s, uid(1)}})}), platform::ArchiveException);
}

TEST(ArchivedClass, LetsTheExceptionOfItsDecoderThrough)
{
    const ArchivedClassRegistration registration(
        {{u"Note"_s}, QMetaType::fromType<QString>(), {}, [](Coder &) -> QVariant {
             throw platform::InvalidArgumentException("no note");
         }});
    EXPECT_THROW(decoded(noteWithNumber), platform::InvalidArgumentException);
}

TEST(ArchivedClass, NeedsANameAndAType)
{
    EXPECT_THROW(ArchivedClassRegistration({{}, QMetaType::fromType<QString>(), {}, {}}),
                 platform::InvalidArgumentException);
    EXPECT_THROW(ArchivedClassRegistration({{u"Note"_s, u""_s}, QMetaType::fromType<QString>(), {}, {}}),
                 platform::InvalidArgumentException);
    EXPECT_THROW(ArchivedClassRegistration({{u"Note"_s}, QMetaType(), {}, {}}), platform::InvalidArgumentException);
}

TEST(ArchivedClass, MakesNoPointersThatNobodyOwns)
{
    const auto decode = [](Coder & /*coder*/) {
        return QVariant();
    };
    EXPECT_THROW(ArchivedClassRegistration({{u"Note"_s}, QMetaType::fromType<QObject *>(), {}, decode}),
                 platform::InvalidArgumentException);
}

/// What a program keeps behind a pointer that owns it.
struct Page {
    int number = 0;
};

TEST(ArchivedClass, MayMakeAnObjectThatItsValuesOwn)
{
    using Owned = std::shared_ptr<Page>;
    const ArchivedClassRegistration registration({{u"Page"_s}, QMetaType::fromType<Owned>(), {}, [](Coder &coder) {
                                                      const auto number = coder.decodeInt64ForKey(u"number"_s);
                                                      return QVariant::fromValue(
                                                          std::make_shared<Page>(Page{static_cast<int>(number)}));
                                                  }});
    std::weak_ptr<Page> page;
    {
        const QVariant value = decoded({object(u"Page"_s, {{u"number"_s, qint64{7}}})});
        page = value.value<Owned>();
        ASSERT_FALSE(page.expired());
        EXPECT_EQ(page.lock()->number, 7);
    }
    EXPECT_TRUE(page.expired());
}

} // namespace
