// How long keyed archives take to be written and read, beside the property lists that they are.

#include <OrvaneExportKit/platform/AttributedString.h>
#include <OrvaneExportKit/platform/KeyedArchiver.h>
#include <OrvaneExportKit/platform/KeyedUnarchiver.h>
#include <OrvaneExportKit/platform/PropertyList.h>

#include <benchmark/benchmark.h>

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
        stretches.append({10, {{u"style"_s, i % 7}, {u"language"_s, u"en"_s}}});
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
    for (const auto &[name, value] : {std::pair("strings", strings()), std::pair("text", text())}) {
        const auto add = [&name = name, &value = value](const std::string &operation, auto function) {
            benchmark::RegisterBenchmark((operation + "/" + name).c_str(), function, value)
                ->Unit(benchmark::kMillisecond);
        };
        add("write/keyedArchive", writeArchive);
        add("write/itsPropertyList", writePropertyList);
        add("read/keyedArchive", readArchive);
        add("read/itsPropertyList", readPropertyList);
    }
    return true;
}();

} // namespace
