#include "Timing.h"

#include <algorithm>
#include <cstring>

namespace timing {

namespace {

double median(std::vector<double> values)
{
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

} // namespace

double secondsSince(Clock::time_point start)
{
    return std::chrono::duration<double>(Clock::now() - start).count();
}

double copyWarm(const QString &text, QString &own)
{
    own.resize(text.size());
    const auto bytes = static_cast<std::size_t>(text.size()) * sizeof(char16_t);
    Clock::time_point start;
    for (int round = 0; round < 2; ++round) {
        start = Clock::now();
        std::memcpy(own.data(), text.constData(), bytes);
        benchmark::ClobberMemory();
    }
    return secondsSince(start);
}

void add(const QString &name, int iterations, benchmark::TimeUnit unit,
         const std::function<void(benchmark::State &)> &run)
{
    benchmark::RegisterBenchmark(name.toUtf8().constData(), run)->Iterations(iterations)->UseManualTime()->Unit(unit);
}

void Measurements::report(benchmark::State &state, qsizetype length) const
{
    state.counters["memcpys"] = median(m_ratios);
    state.counters["extra_bytes_per_unit"] = static_cast<double>(m_extra) / static_cast<double>(length);
}

} // namespace timing
