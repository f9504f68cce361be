#include <tests/allocations/EveryAllocation.h>

#include <OrvaneExportKit/platform/Archiver.h>
#include <OrvaneExportKit/platform/AttributedString.h>
#include <OrvaneExportKit/platform/KeyedArchiver.h>
#include <OrvaneExportKit/platform/KeyedUnarchiver.h>
#include <OrvaneExportKit/platform/PropertyList.h>
#include <OrvaneExportKit/run/ArchivedContent.h>

#include <QtCore/QDateTime>
#include <QtCore/QSize>

using namespace Qt::Literals::StringLiterals;
using allocations::Allowed;
using allocations::failEveryAllocation;
using allocations::failEveryAllocationOf;
using platform::Archiver;
using platform::KeyedArchiver;
using platform::KeyedUnarchiver;
using platform::PropertyList;
using platform::Unarchiver;

namespace {

QVariantMap values()
{
    return {{u"text"_s, u"caf\u00E9"_s},
            {u"number"_s, 42},
            {u"real"_s, 1.5},
            {u"data"_s, QByteArray("abc")},
            {u"date"_s, QDateTime(QDate(2009, 3, 7), QTime(14, 5), Qt::UTC)},
            {u"list"_s, QVariantList{true, u"text"_s, QVariantMap{{u"a"_s, 1}}}}};
}

QVariant objects()
{
    platform::AttributedString text(u"bold and plain"_s);
    text.addAttributes({{u"weight"_s, u"bold"_s}}, {0, 4});
    return QVariantList{u"a"_s, QVariant::fromValue(text), QSizeF(3, 4)};
}

/// What has been read. What does not fit into memory reads like an archive that claims sizes that it does not have.
QVariant whole(const QVariant &object)
{
    return object.isValid() ? object : throw std::bad_alloc();
}

} // namespace

class PropertyListAllocation : public testing::TestWithParam<PropertyList::Format>
{
};

TEST_P(PropertyListAllocation, Write)
{
    const QVariant value = values();
    failEveryAllocationOf([&] { return PropertyList::write(value, GetParam()).data.value(); }, Allowed::EndByQt);
}

TEST_P(PropertyListAllocation, Read)
{
    const QByteArray data = PropertyList::write(values(), GetParam()).data.value();
    failEveryAllocationOf([&] { return PropertyList::read(data).value.value(); });
}

TEST_P(PropertyListAllocation, ReadWhatIsMalformed)
{
    const QByteArray data = PropertyList::write(values(), GetParam()).data.value().chopped(20);
    failEveryAllocationOf([&] { return PropertyList::read(data).error; });
}

TEST_P(PropertyListAllocation, WriteKeyedArchive)
{
    const QVariant value = objects();
    failEveryAllocationOf([&] { return KeyedArchiver::archivedDataWithRootObject(value, GetParam()); },
                          Allowed::EndByQt);
}

TEST_P(PropertyListAllocation, ReadKeyedArchive)
{
    const QByteArray data = KeyedArchiver::archivedDataWithRootObject(objects(), GetParam());
    failEveryAllocationOf([&] { return KeyedUnarchiver::unarchiveObjectWithData(data); });
}

INSTANTIATE_TEST_SUITE_P(Formats, PropertyListAllocation,
                         testing::Values(PropertyList::Format::Xml, PropertyList::Format::Binary));

TEST(ArchiveAllocation, WriteNonKeyedArchive)
{
    const QVariant value = QVariantList{QSize(1, 2), u"text"_s, QVariantMap{{u"a"_s, 1.5}}};
    failEveryAllocationOf([&] { return Archiver::archivedDataWithRootObject(value); });
}

TEST(ArchiveAllocation, EncodeIntoNonKeyedArchive)
{
    struct State {
        std::unique_ptr<Archiver> archiver;
        bool operator==(const State &other) const { return archiver->archivedData() == other.archiver->archivedData(); }
    };
    const QVariant value = QVariantList{QSize(1, 2), u"text"_s};
    failEveryAllocation([] { return State{std::make_unique<Archiver>()}; },
                        [&](State &state) { state.archiver->encodeObject(value); });
}

TEST(ArchiveAllocation, ReadNonKeyedArchive)
{
    const QByteArray data = Archiver::archivedDataWithRootObject(QVariantList{QSize(1, 2), u"text"_s, 1.5});
    failEveryAllocationOf([&] { return whole(Unarchiver::unarchiveObjectWithData(data)); });
}

TEST(ArchiveAllocation, ArrayWithUnarchivedKeyedContent)
{
    const QList<QByteArray> archives{KeyedArchiver::archivedDataWithRootObject(u"a"_s),
                                     KeyedArchiver::archivedDataWithRootObject(u"b"_s)};
    failEveryAllocationOf([&] { return KZArrayExportAdditions::arrayWithUnarchivedKeyedContent(archives); });
}
