// How long the settings of a plug-in take to be written as a property list and read again, beside libplist and the XML
// streams of Qt. Each way goes from its own values to bytes and back: a `QVariantMap`, and for libplist a tree of its
// nodes, once alone and once with the conversion from and to a `QVariantMap`.

#include <OrvaneExportKit/platform/PropertyList.h>

#include "LibplistTree.h"
#include "SampleSettings.h"
#include "XmlStreams.h"

#include <benchmark/benchmark.h>

#include <string>

namespace {

using Format = platform::PropertyList::Format;
using platform::PropertyList;

QByteArray written(const QVariantMap &settings, Format format)
{
    return PropertyList::write(settings, format).data.value_or(QByteArray());
}

QVariant read(const QByteArray &list)
{
    return PropertyList::read(list).value.value_or(QVariant());
}

/// Times a way of writing, if the kit and libplist read what it wrote.
template <typename Write>
void timeWriting(benchmark::State &state, Format format, const Write &write)
{
    const QByteArray list = write();
    if (read(list) != sampleSettings() || LibplistTree(list, format).value() != sampleSettings()) {
        state.SkipWithError("what was written is not what was given");
    }
    for (auto _ : state) {
        benchmark::DoNotOptimize(write());
    }
}

/// Times a way of reading, if it reads what the kit wrote; `valueOf` is the value of what `read` answers.
template <typename Read, typename ValueOf>
void timeReading(benchmark::State &state, Format format, const Read &read, const ValueOf &valueOf)
{
    const QByteArray list = written(sampleSettings(), format);
    if (valueOf(read(list)) != sampleSettings()) {
        state.SkipWithError("what was read is not what was written");
    }
    for (auto _ : state) {
        benchmark::DoNotOptimize(read(list));
    }
}

void registerFormat(const std::string &name, Format format)
{
    using benchmark::RegisterBenchmark;
    using benchmark::State;
    const auto itself = [](const QVariant &value) {
        return value;
    };
    const auto add = [](const std::string &benchmark, auto function) {
        RegisterBenchmark(benchmark.c_str(), function)->Unit(benchmark::kMicrosecond);
    };

    const std::string writing = "settings/write " + name;
    add(writing + "/kit", [format](State &state) {
        timeWriting(state, format, [format, settings = sampleSettings()] { return written(settings, format); });
    });
    add(writing + "/libplist", [format](State &state) {
        const LibplistTree tree(sampleSettings());
        timeWriting(state, format, [format, &tree] { return tree.written(format); });
    });
    add(writing + "/libplist and conversion", [format](State &state) {
        timeWriting(state, format,
                    [format, settings = sampleSettings()] { return LibplistTree(settings).written(format); });
    });

    const std::string reading = "settings/read " + name;
    add(reading + "/kit", [format, itself](State &state) { timeReading(state, format, read, itself); });
    add(reading + "/libplist", [format](State &state) {
        timeReading(
            state, format, [format](const QByteArray &list) { return LibplistTree(list, format); },
            [](const LibplistTree &tree) { return tree.value(); });
    });
    add(reading + "/libplist and conversion", [format, itself](State &state) {
        timeReading(
            state, format, [format](const QByteArray &list) { return LibplistTree(list, format).value(); }, itself);
    });

    if (format == Format::Xml) {
        add(writing + "/XML stream", [](State &state) {
            timeWriting(state, Format::Xml, [settings = sampleSettings()] { return writtenByStream(settings); });
        });
        add(reading + "/XML stream", [itself](State &state) { timeReading(state, Format::Xml, readByStream, itself); });
    }
}

[[maybe_unused]] const bool registered = [] {
    registerFormat("XML", Format::Xml);
    registerFormat("binary", Format::Binary);
    return true;
}();

} // namespace
