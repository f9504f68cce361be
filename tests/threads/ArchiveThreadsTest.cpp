#include <tests/threads/AtOnce.h>

#include <OrvaneExportKit/platform/Archiver.h>
#include <OrvaneExportKit/platform/AttributedString.h>
#include <OrvaneExportKit/platform/KeyedArchiver.h>
#include <OrvaneExportKit/platform/KeyedUnarchiver.h>
#include <OrvaneExportKit/platform/PropertyList.h>
#include <OrvaneExportKit/run/ArchivedContent.h>

#include <QtCore/QDateTime>
#include <QtCore/QSize>

using namespace Qt::Literals::StringLiterals;
using platform::Archiver;
using platform::KeyedArchiver;
using platform::KeyedUnarchiver;
using platform::PropertyList;
using platform::Unarchiver;
using threads::expectSameAtOnce;

namespace {

/// Values that all threads share.
const QVariantMap values{{u"text"_s, u"caf\u00E9"_s},
                         {u"number"_s, 42},
                         {u"real"_s, 1.5},
                         {u"data"_s, QByteArray("abc")},
                         {u"date"_s, QDateTime(QDate(2009, 3, 7), QTime(14, 5), Qt::UTC)},
                         {u"list"_s, QVariantList{true, u"text"_s, QVariantMap{{u"a"_s, 1}}}}};

QVariant objects()
{
    platform::AttributedString text(u"bold and plain"_s);
    text.addAttributes({{u"weight"_s, u"bold"_s}}, {0, 4});
    return QVariantList{u"a"_s, QVariant::fromValue(text), QSizeF(3, 4)};
}

} // namespace

TEST(ArchiveThreads, PropertyListsOfBothFormatsAreWrittenAndReadInEveryThread)
{
    for (const auto format : {PropertyList::Format::Xml, PropertyList::Format::Binary}) {
        const QByteArray data = PropertyList::write(values, format).data.value();
        expectSameAtOnce([&] { return PropertyList::write(values, format).data.value(); });
        expectSameAtOnce([&] { return PropertyList::read(data).value.value(); });
        expectSameAtOnce([&] { return PropertyList::read(data.chopped(5)).error; });
    }
}

TEST(ArchiveThreads, KeyedArchivesAreWrittenAndReadInEveryThread)
{
    const QVariant object = objects();
    const QByteArray archive = KeyedArchiver::archivedDataWithRootObject(object);
    expectSameAtOnce([&] { return KeyedArchiver::archivedDataWithRootObject(object); });
    expectSameAtOnce([&] { return KeyedUnarchiver::unarchiveObjectWithData(archive); });
    expectSameAtOnce([&] { return KZArrayExportAdditions::arrayWithUnarchivedKeyedContent({archive, archive}); });
}

TEST(ArchiveThreads, NonKeyedArchivesAreWrittenAndReadInEveryThread)
{
    const QVariant object = values;
    const QByteArray archive = Archiver::archivedDataWithRootObject(object);
    expectSameAtOnce([&] { return Archiver::archivedDataWithRootObject(object); });
    expectSameAtOnce([&] { return Unarchiver::unarchiveObjectWithData(archive); });
}
