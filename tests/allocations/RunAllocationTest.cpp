#include <tests/allocations/EveryAllocation.h>
#include <tests/support/QuotesFolder.h>

#include <OrvaneExportKit/platform/Bundle.h>
#include <OrvaneExportKit/platform/CalendarFormat.h>
#include <OrvaneExportKit/platform/GeometryStrings.h>
#include <OrvaneExportKit/platform/Paths.h>
#include <OrvaneExportKit/run/ExportDocument.h>
#include <OrvaneExportKit/run/FileNameChecks.h>
#include <OrvaneExportKit/run/FileNames.h>
#include <OrvaneExportKit/settings/MeasurementUnits.h>
#include <OrvaneExportKit/text/QuotationTable.h>

#include <QtCore/QDateTime>

using namespace Qt::Literals::StringLiterals;
using allocations::Allowed;
using allocations::failEveryAllocationOf;

namespace {

class Document : public ExportDocument
{
public:
    QString name() const override { return u"A Name/With"_s; }
    QString status() const override { return u"Draft"_s; }
    QString label() const override { return u"Chapter"_s; }
};

} // namespace

TEST(RunAllocation, FilenamesFromComponents)
{
    const Document one;
    const Document two;
    const QList<const ExportDocument *> documents{&one, &two};
    const QStringList components{u"<1>"_s, u" <2> <3> <4> <5>"_s};
    failEveryAllocationOf([&] {
        return KZStringExportAdditions::filenamesFromComponents(u"/nowhere/a.txt"_s, components, documents, true,
                                                                u"md"_s);
    });
}

TEST(RunAllocation, FileNameChecks)
{
    const QStringList paths{u"/nowhere/a?"_s, u"/nowhere/b"_s, u"/nowhere/b"_s, u"/"_s};
    failEveryAllocationOf([&] { return platform::repeatedPaths(paths).size(); }, Allowed::EndByQt);
    failEveryAllocationOf([&] { return platform::refusedNames(paths).size(); });
    failEveryAllocationOf([&] { return platform::existingPaths(paths).size(); });
}

TEST(RunAllocation, Paths)
{
    const QString path = u"/a/b.txt"_s;
    failEveryAllocationOf([&] { return platform::lastPathComponent(path); });
    failEveryAllocationOf([&] { return platform::deletingLastPathComponent(path); });
    failEveryAllocationOf([&] { return platform::pathExtension(path); });
    failEveryAllocationOf([&] { return platform::deletingPathExtension(path); });
    failEveryAllocationOf([&] { return platform::appendingPathComponent(path, path); });
}

TEST(RunAllocation, CalendarDescription)
{
    const QDateTime date(QDate(2009, 3, 7), QTime(14, 5));
    failEveryAllocationOf([&] { return platform::calendarDescription(date, u"%e. %B %Y %H:%M %p"_s, {}); });
}

TEST(RunAllocation, GeometryStrings)
{
    failEveryAllocationOf([] { return platform::stringFromSize({595.5, 842}); });
    failEveryAllocationOf([] { return platform::stringFromRectangle({1, 2, 3, 4}); });
    failEveryAllocationOf([] { return platform::rectangleFromString(u"{{1, 2}, {3, 4}}").value(); });
}

TEST(RunAllocation, TextsOfTheKit)
{
    failEveryAllocationOf([] { return KZStringExportAdditions::measurementUnitString(); });
    failEveryAllocationOf([] { return KZStringExportAdditions::pageSizeStringWithSize({595, 842}); });
    failEveryAllocationOf([] { return KZStringExportAdditions::localizedStringForLevel(2, u"#"_s); });
}

TEST(RunAllocation, QuotationTable)
{
    const support::QuotesFolder folder;
    folder.write(QVariantMap{{u"de"_s, support::entry(u"<<"_s, u">>"_s)}});
    const platform::Bundle bundle = folder.bundle();
    failEveryAllocationOf([&] { return platform::quotationMarks(bundle, u"de"_s).begin.value(); });
}
