#pragma once

#include "../PeakMemory.h"

#include <OrvaneExportKit/platform/Range.h>

#include <benchmark/benchmark.h>

#include <QtCore/QString>

#include <algorithm>
#include <chrono>
#include <functional>
#include <type_traits>
#include <vector>

/// \file
/// Times what is done to a text beside one memcpy of it.

namespace timing {

/// The length of the texts in the tables, in units.
inline constexpr qsizetype fullSize = 4 * 1024 * 1024;

using Clock = std::chrono::steady_clock;

/// How many things lie in a text of `length` units where `count` lie in one of full size.
constexpr std::size_t scaled(std::size_t count, qsizetype length)
{
    return std::max<std::size_t>(2, count * static_cast<std::size_t>(length) / fullSize);
}

/// Calls a function that changes a text, at given ranges if it takes them, or finds ranges in it.
template <typename Function, typename Text>
platform::RangeList called(const Function &function, Text &text, const platform::RangeList &ranges)
{
    if constexpr (std::is_invocable_r_v<platform::RangeList, Function, Text &>) {
        return function(text);
    } else if constexpr (std::is_invocable_v<Function, Text &>) {
        function(text);
    } else {
        function(text, ranges);
    }
    return {};
}

double secondsSince(Clock::time_point start);

/// Copies the text into the storage of `own`, twice, and returns the seconds of the second time: one warm memcpy.
double copyWarm(const QString &text, QString &own);

/// Makes a benchmark known that gives its times itself.
void add(const QString &name, int iterations, benchmark::TimeUnit unit,
         const std::function<void(benchmark::State &)> &run);

/// What is measured beside the time, given out as counters: the median of the ratios to a memcpy, and the most memory
/// that an operation held beyond its input and its result, in bytes a unit.
class Measurements
{
public:
    /// Times one call, whose text took `memcpySeconds` to copy.
    template <typename Function>
    void time(benchmark::State &state, double memcpySeconds, Function call)
    {
        const PeakMemory memory;
        const Clock::time_point start = Clock::now();
        call();
        benchmark::ClobberMemory();
        const double seconds = secondsSince(start);
        m_extra = std::max(m_extra, memory.beyondResult());
        state.SetIterationTime(seconds);
        m_ratios.push_back(seconds / memcpySeconds);
    }

    void report(benchmark::State &state, qsizetype length) const;

private:
    std::vector<double> m_ratios;
    std::size_t m_extra = 0;
};

} // namespace timing
