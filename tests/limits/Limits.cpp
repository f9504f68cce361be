// Prints what the kit does at the sizes of docs/limits.md, with the time and the memory that it takes, each in a
// process of its own. A number as the argument divides the sizes.

#include <OrvaneExportKit/platform/Archiver.h>
#include <OrvaneExportKit/platform/AttributedString.h>
#include <OrvaneExportKit/platform/PropertyList.h>
#include <OrvaneExportKit/run/ExportDocument.h>
#include <OrvaneExportKit/run/FileNames.h>
#include <OrvaneExportKit/text/LineLayout.h>
#include <OrvaneExportKit/text/RangeLists.h>
#include <OrvaneExportKit/text/TaggedSpans.h>
#include <OrvaneExportKit/text/Typography.h>

#include <QtCore/QElapsedTimer>

#include <cstdio>
#include <cstdlib>
#include <deque>
#include <functional>
#include <limits>
#include <string>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

using namespace Qt::Literals::StringLiterals;
using platform::AttributedString;
using platform::PropertyList;
using platform::RangeList;

void require(bool condition)
{
    if (!condition) {
        std::_Exit(1);
    }
}

/// Runs a measurement and prints a line about it. Whether it gave what it should.
bool measure(const std::string &what, qsizetype size, const std::function<void(qsizetype)> &work)
{
    std::fflush(stdout);
    QElapsedTimer timer;
    timer.start();
    const pid_t child = fork();
    if (child == 0) {
        work(size);
        std::_Exit(0);
    }
    int status = -1;
    rusage usage = {};
    wait4(child, &status, 0, &usage);
    std::printf("%-44s %14lld %9.1f s %8ld MB  %s\n", what.c_str(), static_cast<long long>(size),
                static_cast<double>(timer.elapsed()) / 1000, usage.ru_maxrss / 1024, status == 0 ? "right" : "WRONG");
    return status == 0;
}

/// A text that ends with a mark for each operation, behind as many other units as the size says.
QString longText(qsizetype size)
{
    QString text(size, u'a');
    text += u"--\n\n#b";
    return text;
}

void correctDashes(qsizetype size)
{
    QString text = longText(size);
    KZMutableStringExportAdditions::correctDashes(text);
    require(text.size() == size + 5 && text.endsWith(u"a\u2013\n\n#b"));
}

void deleteEmptyLines(qsizetype size)
{
    QString text = longText(size);
    KZMutableStringExportAdditions::deleteEmptyLines(text);
    require(text.size() == size + 5 && text.endsWith(u"a--\n#b"));
}

void lineRangesForLevelString(qsizetype size)
{
    const QString text = longText(size);
    const RangeList expected{{static_cast<std::size_t>(size) + 4, 2}};
    require(KZStringExportAdditions::lineRangesForLevelString(text, u"#") == expected);
}

void deleteManyRanges(qsizetype count)
{
    QString text = u"ab"_s.repeated(count);
    RangeList ranges;
    for (std::size_t i = 0; i < static_cast<std::size_t>(count); ++i) {
        ranges.push_back({2 * i, 1});
    }
    KZMutableStringExportAdditions::deleteCharactersInRanges(text, ranges);
    require(text.size() == count && text.count(u'b') == count);
}

void styleManyRuns(qsizetype count)
{
    AttributedString text(u"ab"_s.repeated(count));
    RangeList ranges;
    for (std::size_t i = 0; i < static_cast<std::size_t>(count); ++i) {
        ranges.push_back({2 * i, 1});
    }
    KZMutableAttributedStringExportAdditions::addAttributes(text, {{u"style"_s, u"x"_s}}, ranges);
    platform::Range run;
    require(text.attributesAtIndex(text.length() - 2, &run).contains(u"style"_s) && run.length == 1);
}

class Document final : public ExportDocument
{
public:
    QString name() const override { return u"A Document"_s; }
    QString status() const override { return u"Draft"_s; }
    QString label() const override { return u"Chapter"_s; }
};

void nameManyDocuments(qsizetype count)
{
    const std::deque<Document> all(static_cast<std::size_t>(count));
    QList<const ExportDocument *> documents;
    for (const Document &document : all) {
        documents.append(&document);
    }
    const QStringList names =
        KZStringExportAdditions::filenamesFromComponents(u"/"_s, {u"<1> <2>"_s}, documents, false, u"txt"_s);
    require(names.size() == count && names.last() == u"/%1 A Document.txt"_s.arg(count, 3, 10, QChar(u'0')));
}

void keepManySettings(qsizetype count, PropertyList::Format format)
{
    QVariantMap settings;
    for (qsizetype i = 0; i < count; ++i) {
        settings.insert(u"setting-%1"_s.arg(i), i);
    }
    const auto written = PropertyList::write(settings, format);
    require(written.data && PropertyList::read(*written.data).value == QVariant(settings));
}

QVariant nested(int depth)
{
    QVariant value = QVariantList();
    for (int i = 1; i < depth; ++i) {
        value = QVariantList{value};
    }
    return value;
}

bool isWritten(int depth, PropertyList::Format format)
{
    const auto written = PropertyList::write(nested(depth), format);
    return written.data && PropertyList::read(*written.data).value == nested(depth);
}

void nest(qsizetype depth)
{
    const int allowed = static_cast<int>(depth);
    for (const auto format : {PropertyList::Format::Xml, PropertyList::Format::Binary}) {
        require(isWritten(allowed, format) && !isWritten(allowed + 1, format));
    }
}

void valuesOverAGibibyte(qsizetype doublings)
{
    QVariant value = QString(1024, u'a');
    for (qsizetype i = 0; i < doublings; ++i) {
        value = QVariantList{value, value};
    }
    const auto refused = PropertyList::write(value, PropertyList::Format::Binary);
    require(!refused.data && refused.error.contains("1073741824"_L1));
}

void archiveBytes(qsizetype size)
{
    const QByteArray bytes(size, 'a');
    bool isRefused = false;
    try {
        const QByteArray archive = platform::Archiver::archivedDataWithRootObject(bytes);
        require(platform::Unarchiver::unarchiveObjectWithData(archive) == QVariant(bytes));
    } catch (const platform::InvalidArgumentException &) {
        isRefused = true;
    }
    require(isRefused == (size >= std::numeric_limits<int>::max()));
}

} // namespace

int main(int argc, char **argv)
{
    const long long part = argc > 1 ? std::atoll(argv[1]) : 1;
    if (part < 1) {
        std::fprintf(stderr, "usage: %s [DIVISOR]\n", argv[0]);
        return 2;
    }
    constexpr qsizetype overTwoGibi = (qsizetype{1} << 31U) + 1000;
    constexpr qsizetype million = 1'000'000;
    bool allRight = true;
    const auto run = [&](const std::string &what, qsizetype size, const std::function<void(qsizetype)> &work) {
        allRight = measure(what, size, work) && allRight;
    };
    run("correctDashes, units", overTwoGibi / part, correctDashes);
    run("deleteEmptyLines, units", overTwoGibi / part, deleteEmptyLines);
    run("lineRangesForLevelString, units", overTwoGibi / part, lineRangesForLevelString);
    run("deleteCharactersInRanges, ranges", 100 * million / part, deleteManyRanges);
    run("addAttributes, ranges that become runs", 5 * million / part, styleManyRuns);
    run("filenamesFromComponents, documents", million / part, nameManyDocuments);
    run("settings written and read as XML", million / part,
        [](qsizetype count) { keepManySettings(count, PropertyList::Format::Xml); });
    run("settings written and read in binary", million / part,
        [](qsizetype count) { keepManySettings(count, PropertyList::Format::Binary); });
    run("bytes in a non-keyed archive", 1000 * million / part, archiveBytes);
    run("bytes in a non-keyed archive, refused", overTwoGibi / part, archiveBytes);
    run("nested values, one more refused", PropertyList::maximumNesting, nest);
    run("doublings of 1024 units, refused", 30, valuesOverAGibibyte);
    return allRight ? 0 : 1;
}
