#include <OrvaneExportKit/platform/Archiver.h>

#include <tests/support/Printers.h>

#include <QtCore/QDataStream>
#include <QtCore/QDate>
#include <QtCore/QEasingCurve>
#include <QtCore/QIODevice>
#include <QtCore/QLocale>
#include <QtCore/QPoint>
#include <QtCore/QSize>
#include <QtCore/QUrl>

#include <gtest/gtest.h>

namespace {

using namespace Qt::Literals::StringLiterals;
using platform::Archiver;
using platform::Unarchiver;

struct WithoutStreamOperators {
    int value = 0;
};

QVariant restored(const QVariant &value)
{
    return Unarchiver::unarchiveObjectWithData(Archiver::archivedDataWithRootObject(value));
}

QVariantList nestedLists(int depth)
{
    QVariantList list;
    for (int level = 1; level < depth; ++level) {
        list = QVariantList{QVariant(list)};
    }
    return list;
}

/// An archive of a value that no archiver writes.
QByteArray forgedArchive(const QVariant &value)
{
    QByteArray bytes;
    QDataStream bytesStream(&bytes, QIODevice::WriteOnly);
    value.metaType().save(bytesStream, value.constData());
    QByteArray field;
    QDataStream fieldStream(&field, QIODevice::WriteOnly);
    fieldStream << quint8(0) << QByteArray(value.typeName()) << bytes;
    QByteArray archive = Archiver::archivedDataWithRootObject(true).left(6);
    QDataStream stream(&archive, QIODevice::Append);
    stream << quint64(field.size());
    return archive + field;
}

TEST(Archiver, RestoresValuesOfManyTypes)
{
    const QVariantList values{QSize(3, 4),
                              QPointF(1.5, -2.25),
                              QDate(2026, 2, 28),
                              QUrl(u"https://example.org/a"_s),
                              u"text"_s,
                              QByteArray("\0\xff", 2),
                              true,
                              quint64(18446744073709551615U),
                              -1.5,
                              QStringList{u"a"_s, u"b"_s}};
    for (const QVariant &value : values) {
        const QVariant back = restored(value);
        EXPECT_EQ(back.metaType(), value.metaType()) << value.typeName();
        EXPECT_EQ(back, value) << value.typeName();
    }
}

TEST(Archiver, RestoresListsAndMapsInsideEachOther)
{
    const QVariantMap value{{u"sizes"_s, QVariantList{QSize(1, 2), QVariantMap{{u"inner"_s, QPoint(3, 4)}}}},
                            {u"empty"_s, QVariantList()}};
    EXPECT_EQ(restored(value), QVariant(value));
}

TEST(Archiver, RefusesATypeWithoutStreamOperatorsByItsName)
{
    try {
        Archiver::archivedDataWithRootObject(QVariant::fromValue(WithoutStreamOperators()));
        FAIL() << "no exception";
    } catch (const platform::InvalidArgumentException &exception) {
        EXPECT_NE(std::string(exception.what()).find("WithoutStreamOperators"), std::string::npos);
    }
    EXPECT_THROW(Archiver::archivedDataWithRootObject(QVariant()), platform::InvalidArgumentException);
    EXPECT_THROW(Archiver::archivedDataWithRootObject(QVariantList{QVariant()}), platform::InvalidArgumentException);
}

TEST(Archiver, LimitsNesting)
{
    EXPECT_TRUE(restored(nestedLists(513)).isValid());
    EXPECT_THROW(Archiver::archivedDataWithRootObject(nestedLists(514)), platform::InvalidArgumentException);
}

TEST(Unarchiver, GivesNothingForDataThatIsNoArchive)
{
    EXPECT_FALSE(Unarchiver::unarchiveObjectWithData({}).isValid());
    EXPECT_FALSE(Unarchiver::unarchiveObjectWithData("plain text, nothing else").isValid());
    EXPECT_FALSE(Unarchiver::unarchiveObjectWithData(QByteArray(100000, '\0')).isValid());
}

TEST(Unarchiver, GivesNothingForAnArchiveCutShortAnywhere)
{
    const QByteArray archive = Archiver::archivedDataWithRootObject(QVariantList{QSize(1, 2), u"text"_s});
    for (qsizetype length = 0; length < archive.size(); ++length) {
        EXPECT_FALSE(Unarchiver::unarchiveObjectWithData(archive.left(length)).isValid()) << length;
    }
    EXPECT_FALSE(Unarchiver::unarchiveObjectWithData(archive + 'x').isValid());
}

TEST(Unarchiver, GivesNothingForAnotherVersion)
{
    QByteArray archive = Archiver::archivedDataWithRootObject(QSize(1, 2));
    archive[5] = 2;
    EXPECT_FALSE(Unarchiver::unarchiveObjectWithData(archive).isValid());
}

TEST(Unarchiver, SurvivesEveryChangedByte)
{
    const QVariantMap value{{u"a"_s, QVariantList{QSize(1, 2), u"text"_s, QStringList{u"b"_s}}}};
    const QByteArray archive = Archiver::archivedDataWithRootObject(value);
    int refused = 0;
    for (qsizetype index = 0; index < archive.size(); ++index) {
        for (const char byte : {'\x00', '\x01', '\x7f', '\xff'}) {
            QByteArray damaged = archive;
            damaged[index] = byte;
            refused += Unarchiver::unarchiveObjectWithData(damaged).isValid() ? 0 : 1;
        }
    }
    EXPECT_GT(refused, archive.size());
}

TEST(Unarchiver, GivesNothingForAbsurdCounts)
{
    QByteArray archive = Archiver::archivedDataWithRootObject(QVariantList{QSize(1, 2)});
    const qsizetype count = 4 + 2 + 8 + 1; // behind magic number, version, length and kind
    archive.replace(count, 8, QByteArray(8, '\xff'));
    EXPECT_FALSE(Unarchiver::unarchiveObjectWithData(archive).isValid());
}

TEST(Archiver, RefusesOtherContainersOfAnything)
{
    EXPECT_THROW(Archiver::archivedDataWithRootObject(QVariantHash{{u"a"_s, 1}}), platform::InvalidArgumentException);
}

TEST(Unarchiver, GivesNothingForAContainerOfAnythingThatNoArchiverWrites)
{
    EXPECT_FALSE(Unarchiver::unarchiveObjectWithData(forgedArchive(QVariantHash{{u"a"_s, 1}})).isValid());
    EXPECT_TRUE(Unarchiver::unarchiveObjectWithData(forgedArchive(QSize(3, 4))).isValid()) << "a sound forgery";
}

TEST(Archiver, RefusesATypeThatIsReadWithTheAddressOfAFunction)
{
    EXPECT_THROW(Archiver::archivedDataWithRootObject(QEasingCurve()), platform::InvalidArgumentException);
    EXPECT_FALSE(Unarchiver::unarchiveObjectWithData(forgedArchive(QEasingCurve())).isValid());
}

} // namespace
