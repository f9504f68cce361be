// How long settings take to be written and read, and how long property lists that are made to harm take to be refused.

#include <OrvaneExportKit/platform/PropertyList.h>

#include <benchmark/benchmark.h>

#include <cstdlib>

namespace {

using namespace Qt::Literals::StringLiterals;
using platform::PropertyList;

constexpr int many = 100'000;

/// 200 entries in three levels: texts, numbers and flags, as plug-ins keep them.
QVariantMap settings()
{
    QVariantMap root;
    for (int group = 0; group < 10; ++group) {
        QVariantMap styles;
        for (int style = 0; style < 5; ++style) {
            styles.insert(u"style-%1"_s.arg(style), QVariantMap{{u"identifier"_s, u"style %1"_s.arg(style)},
                                                                {u"startTag"_s, u"<b>"_s},
                                                                {u"size"_s, 1.5 * style},
                                                                {u"relaxed"_s, style % 2 == 0}});
        }
        root.insert(u"group-%1"_s.arg(group), styles);
    }
    return root;
}

void write(benchmark::State &state, PropertyList::Format format)
{
    const QVariant value = settings();
    for (auto _ : state) {
        benchmark::DoNotOptimize(PropertyList::write(value, format));
    }
}

void read(benchmark::State &state, PropertyList::Format format)
{
    const QByteArray data = *PropertyList::write(settings(), format).data;
    for (auto _ : state) {
        benchmark::DoNotOptimize(PropertyList::read(data));
    }
}

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
    RegisterBenchmark("write/settings/xml", write, PropertyList::Format::Xml);
    RegisterBenchmark("write/settings/binary", write, PropertyList::Format::Binary);
    RegisterBenchmark("read/settings/xml", read, PropertyList::Format::Xml);
    RegisterBenchmark("read/settings/binary", read, PropertyList::Format::Binary);
    RegisterBenchmark("refuse/nestedArrays", refuse,
                      "<plist>" + QByteArray("<array>").repeated(many) + QByteArray("</array>").repeated(many));
    RegisterBenchmark("refuse/entityExpansion", refuse,
                      QByteArray("<!DOCTYPE plist [<!ENTITY a \"aaaaaaaa\"><!ENTITY b \"&a;&a;&a;&a;\">]>"
                                 "<plist><string>&b;&b;&b;&b;</string></plist>"));
    RegisterBenchmark("refuse/cutShort", refuse, "<plist><string>" + QByteArray("a").repeated(many));
    RegisterBenchmark("refuse/wrongUtf8", refuse,
                      "<plist><string>" + QByteArray("a").repeated(many) + "\xff</string></plist>");
    return true;
}();

} // namespace
