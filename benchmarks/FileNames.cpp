// How long the names of the files of many documents take, where documents that hold the same texts are equal, beside
// the plain way, which looks for the first equal document among all earlier ones.

#include <OrvaneExportKit/run/FileNames.h>

#include <benchmark/benchmark.h>

#include <QtCore/QHashFunctions>

#include <algorithm>
#include <deque>
#include <string>
#include <utility>

namespace {

using namespace Qt::Literals::StringLiterals;

/// A document that equals every other one with the same texts.
class Chapter final : public ExportDocument
{
public:
    explicit Chapter(QString name) : m_name(std::move(name)) {}

    QString name() const override { return m_name; }
    QString status() const override { return u"First Draft"_s; }
    QString label() const override { return u"Chapter"_s; }
    bool isEqual(const ExportDocument &other) const override { return m_name == other.name(); }
    std::size_t hash() const override { return qHash(m_name); }

private:
    QString m_name;
};

/// So many chapters, of which every tenth equals the first one.
class Chapters
{
public:
    explicit Chapters(qint64 count)
    {
        for (qint64 number = 0; number < count; ++number) {
            const Chapter &chapter = m_chapters.emplace_back(u"The Chapter %1"_s.arg(number % 10 == 0 ? 0 : number));
            m_documents.append(&chapter);
        }
    }

    const QList<const ExportDocument *> &documents() const { return m_documents; }

private:
    std::deque<Chapter> m_chapters;
    QList<const ExportDocument *> m_documents;
};

QStringList namesByKit(const QList<const ExportDocument *> &documents)
{
    return KZStringExportAdditions::filenamesFromComponents(u"/novel/Export.txt"_s, {u"<1>"_s, u" "_s, u"<2>"_s},
                                                            documents, false, {});
}

QStringList namesByPlainWay(const QList<const ExportDocument *> &documents)
{
    QStringList names;
    names.reserve(documents.size());
    for (const ExportDocument *document : documents) {
        const auto isSame = [document](const ExportDocument *other) {
            return other->isEqual(*document);
        };
        const auto first = std::find_if(documents.begin(), documents.end(), isSame);
        const QString number = QString::number(first - documents.begin() + 1).rightJustified(3, u'0');
        names.append(u"/novel/"_s + number + u' ' + document->name() + u".txt"_s);
    }
    return names;
}

void timeKit(benchmark::State &state, qint64 count)
{
    const Chapters chapters(count);
    for (auto _ : state) {
        benchmark::DoNotOptimize(namesByKit(chapters.documents()));
    }
}

/// Once, for it takes up to a minute.
void timePlainWay(benchmark::State &state, qint64 count)
{
    const Chapters chapters(count);
    QStringList names;
    for (auto _ : state) {
        names = namesByPlainWay(chapters.documents());
    }
    if (names != namesByKit(chapters.documents())) {
        state.SkipWithError("the two ways give different names");
    }
}

[[maybe_unused]] const bool registered = [] {
    for (const qint64 count : {1'000, 10'000, 100'000}) {
        const std::string group = "file names/" + std::to_string(count);
        benchmark::RegisterBenchmark((group + "/kit").c_str(), timeKit, count)->Unit(benchmark::kMillisecond);
        benchmark::RegisterBenchmark((group + "/plain").c_str(), timePlainWay, count)
            ->Unit(benchmark::kMillisecond)
            ->Iterations(1)
            ->Repetitions(1);
    }
    return true;
}();

} // namespace
