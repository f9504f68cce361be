// How much memory settings and archives take while they are written and read, at most and beyond what was there before:
// the result and all that is needed on the way to it. The counter `peak bytes per byte` relates it to the length of the
// property list. In a program of its own, for counting costs time.

#include <OrvaneExportKit/platform/KeyedArchiver.h>
#include <OrvaneExportKit/platform/KeyedUnarchiver.h>
#include <OrvaneExportKit/platform/PropertyList.h>

#include "LibplistTree.h"
#include "PeakMemory.h"
#include "SampleSettings.h"

#include <benchmark/benchmark.h>

#include <string>

namespace {

using namespace Qt::Literals::StringLiterals;
using platform::KeyedArchiver;
using platform::KeyedUnarchiver;
using platform::PropertyList;
using Format = PropertyList::Format;

QVariant manyStrings()
{
    QVariantList list;
    for (int i = 0; i < 100'000; ++i) {
        list.append(u"string number %1"_s.arg(i));
    }
    return list;
}

/// A benchmark that runs once and reports the peak for a property list of `length` bytes.
template <typename Run>
void add(const std::string &name, qsizetype length, const Run &run)
{
    benchmark::RegisterBenchmark(("peak memory/" + name).c_str(), [length, run](benchmark::State &state) {
        run(); // whatever is made once for all is there now
        std::size_t peak = 0;
        for (auto _ : state) {
            const PeakMemory memory;
            benchmark::DoNotOptimize(run());
            peak = memory.withResult();
        }
        state.counters["peak bytes"] = static_cast<double>(peak);
        state.counters["peak bytes per byte"] = static_cast<double>(peak) / static_cast<double>(length);
    })->Iterations(1);
}

void addSettings(const std::string &formatName, Format format)
{
    const QVariantMap settings = sampleSettings();
    const QByteArray list = *PropertyList::write(settings, format).data;
    add("settings/write " + formatName + "/kit", list.size(),
        [settings, format] { return PropertyList::write(settings, format); });
    add("settings/read " + formatName + "/kit", list.size(), [list] { return PropertyList::read(list); });
    add("settings/write " + formatName + "/libplist and conversion", list.size(),
        [settings, format] { return LibplistTree(settings).written(format); });
    add("settings/read " + formatName + "/libplist and conversion", list.size(),
        [list, format] { return LibplistTree(list, format).value(); });
}

[[maybe_unused]] const bool registered = [] {
    addSettings("XML", Format::Xml);
    addSettings("binary", Format::Binary);
    const QVariant strings = manyStrings();
    const QByteArray archive = KeyedArchiver::archivedDataWithRootObject(strings);
    add("archives/write 100000 strings/kit", archive.size(),
        [strings] { return KeyedArchiver::archivedDataWithRootObject(strings); });
    add("archives/read 100000 strings/kit", archive.size(),
        [archive] { return KeyedUnarchiver::unarchiveObjectWithData(archive); });
    return true;
}();

} // namespace
