#include <OrvaneExportKit/platform/Archiver.h>

#include <QtCore/QDataStream>
#include <QtCore/QIODevice>
#include <QtGui/QColor>
#include <QtGui/QFont>
#include <QtGui/QIcon>
#include <QtGui/QPolygonF>
#include <QtGui/QTextFormat>

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;
using platform::Archiver;
using platform::Unarchiver;

namespace {

TEST(ArchiverTypes, FontsAndColoursComeBack)
{
    for (const QVariant &value : {QVariant(QColor(10, 20, 30, 40)), QVariant(QFont(u"Serif"_s, 11))}) {
        EXPECT_EQ(Unarchiver::unarchiveObjectWithData(Archiver::archivedDataWithRootObject(value)), value);
    }
}

TEST(ArchiverTypes, ThoseThatCannotBeReadSafelyAreRefused)
{
    for (const QVariant &value : {QVariant(QPolygonF()), QVariant(QIcon()), QVariant::fromValue(QTextFormat())}) {
        EXPECT_THROW(Archiver::archivedDataWithRootObject(value), platform::InvalidArgumentException)
            << value.typeName();
    }
}

TEST(ArchiverTypes, APolygonThatClaimsThousandsOfMillionsOfPointsTakesNoMemory)
{
    QByteArray field;
    QDataStream fieldStream(&field, QIODevice::WriteOnly);
    fieldStream << quint8(0) << QByteArray("QPolygonF") << QByteArray("\x7f\xff\xff\xff", 4);
    QByteArray archive = Archiver::archivedDataWithRootObject(true).left(6);
    QDataStream stream(&archive, QIODevice::Append);
    stream << quint64(field.size());
    EXPECT_FALSE(Unarchiver::unarchiveObjectWithData(archive + field).isValid());
}

} // namespace
