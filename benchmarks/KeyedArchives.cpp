// How long keyed archives take to be written and read, beside the property lists that they are.

#include <OrvaneExportKit/platform/AttributedString.h>
#include <OrvaneExportKit/platform/KeyedArchiver.h>
#include <OrvaneExportKit/platform/KeyedUnarchiver.h>
#include <OrvaneExportKit/platform/PropertyList.h>

#include <benchmark/benchmark.h>

#include <string>
#include <utility>

namespace {

using namespace Qt::Literals::StringLiterals;
using platform::AttributedString;
using platform::KeyedArchiver;
using platform::KeyedUnarchiver;
using platform::PropertyList;

constexpr int many = 100'000;

QVariant strings()
{
    QVariantList list;
    for (int i = 0; i < many; ++i) {
        list.append(u"string number %1"_s.arg(i));
    }
    return list;
}

/// A text whose style changes every ten units.
QVariant text()
{
    QList<AttributedString::Stretch> stretches;
    for (int i = 0; i < many; ++i) {
        stretches.append({10, {{u"style"_s, qint64{i % 7}}, {u"language"_s, u"en"_s}}});
    }
    return QVariant::fromValue(AttributedString::fromStretches(QString(10 * many, u'x'), stretches));
}

void writeArchive(benchmark::State &state, const QVariant &value)
{
    for (auto _ : state) {
        benchmark::DoNotOptimize(KeyedArchiver::archivedDataWithRootObject(value));
    }
}

void writePropertyList(benchmark::State &state, const QVariant &value)
{
    const QVariant list = *PropertyList::read(KeyedArchiver::archivedDataWithRootObject(value)).value;
    for (auto _ : state) {
        benchmark::DoNotOptimize(PropertyList::write(list, PropertyList::Format::Binary));
    }
}

void readArchive(benchmark::State &state, const QVariant &value)
{
    const QByteArray data = KeyedArchiver::archivedDataWithRootObject(value);
    if (KeyedUnarchiver::unarchiveObjectWithData(data) != value) {
        state.SkipWithError("what was read is not what was written");
    }
    for (auto _ : state) {
        benchmark::DoNotOptimize(KeyedUnarchiver::unarchiveObjectWithData(data));
    }
}

void readPropertyList(benchmark::State &state, const QVariant &value)
{
    const QByteArray data = KeyedArchiver::archivedDataWithRootObject(value);
    for (auto _ : state) {
        benchmark::DoNotOptimize(PropertyList::read(data));
    }
}

[[maybe_unused]] const bool registered = [] {
    for (const auto &[name, value] : {std::pair("100000 strings", strings()), std::pair("100000 styles", text())}) {
        const auto add = [&name = name, &value = value](const std::string &operation, const char *way, auto function) {
            const std::string benchmark = "archives/" + operation + ' ' + name + '/' + way;
            benchmark::RegisterBenchmark(benchmark.c_str(), function, value)->Unit(benchmark::kMillisecond);
        };
        add("write", "kit", writeArchive);
        add("write", "its property list", writePropertyList);
        add("read", "kit", readArchive);
        add("read", "its property list", readPropertyList);
    }
    return true;
}();

} // namespace
