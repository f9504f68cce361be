// How long property lists that are made to harm take to be refused.

#include <OrvaneExportKit/platform/PropertyList.h>

#include <benchmark/benchmark.h>

#include <cstdlib>

namespace {

using platform::PropertyList;

constexpr int many = 100'000;

void refuse(benchmark::State &state, const QByteArray &data)
{
    for (auto _ : state) {
        if (PropertyList::read(data).value) {
            std::abort(); // it must not be read
        }
    }
}

[[maybe_unused]] const bool registered = [] {
    using benchmark::RegisterBenchmark;
    RegisterBenchmark("refuse/nested arrays/kit", refuse,
                      "<plist>" + QByteArray("<array>").repeated(many) + QByteArray("</array>").repeated(many));
    RegisterBenchmark("refuse/entity expansion/kit", refuse,
                      QByteArray("<!DOCTYPE plist [<!ENTITY a \"aaaaaaaa\"><!ENTITY b \"&a;&a;&a;&a;\">]>"
                                 "<plist><string>&b;&b;&b;&b;</string></plist>"));
    RegisterBenchmark("refuse/text cut short/kit", refuse, "<plist><string>" + QByteArray("a").repeated(many));
    RegisterBenchmark("refuse/wrong UTF-8/kit", refuse,
                      "<plist><string>" + QByteArray("a").repeated(many) + "\xff</string></plist>");
    return true;
}();

} // namespace
