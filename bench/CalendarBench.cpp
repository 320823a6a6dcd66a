#include "../tests/support/StepwiseCalendar.h"
#include "lib/calendar/CalDate.h"
#include "lib/calendar/Calendar.h"

#include <benchmark/benchmark.h>

#include <limits>

namespace {

constexpr CalDate kStart(1, 1, 1);
constexpr CalDate kFar(24, 12, 2000000);
constexpr CalendarVersion kModern = CalendarVersion::Modern;

void AddDaysClosed(benchmark::State& state)
{
    for (auto _ : state) {
        benchmark::DoNotOptimize(AddDays(kStart, static_cast<std::int32_t>(state.range(0))));
    }
}

void AddDaysStepwise(benchmark::State& state)
{
    const auto nDays = static_cast<std::int32_t>(state.range(0));
    if (stepwise::AddDays(kStart, nDays, kModern) != AddDays(kStart, nDays)) {
        state.SkipWithError("the two ways differ");
    }
    for (auto _ : state) {
        benchmark::DoNotOptimize(stepwise::AddDays(kStart, nDays, kModern));
    }
}

void DaysBetweenClosed(benchmark::State& state)
{
    for (auto _ : state) {
        benchmark::DoNotOptimize(DaysBetween(kStart, kFar));
    }
}

/// Every year between the two, without counting by cycles.
std::int32_t CountEveryYear()
{
    std::int64_t nDays = stepwise::DaysBetween({1, 1, kFar.GetYear()}, kFar, kModern);
    for (std::int32_t y = kStart.GetYear(); y < kFar.GetYear(); ++y) {
        nDays += stepwise::YearLength(y, kModern);
    }
    return stepwise::Wrap(nDays);
}

void DaysBetweenStepwise(benchmark::State& state)
{
    if (CountEveryYear() != DaysBetween(kStart, kFar)) {
        state.SkipWithError("the two ways differ");
    }
    for (auto _ : state) {
        benchmark::DoNotOptimize(CountEveryYear());
    }
}

void WeekFarAway(benchmark::State& state)
{
    for (auto _ : state) {
        benchmark::DoNotOptimize(Week(kFar));
    }
}

constexpr std::int64_t kMost = std::numeric_limits<std::int32_t>::max();

BENCHMARK(AddDaysClosed)->Arg(731940)->Arg(100000000)->Arg(kMost)->Arg(-kMost);
BENCHMARK(AddDaysStepwise)->Arg(731940)->Arg(100000000)->Arg(kMost)->Arg(-kMost);
BENCHMARK(DaysBetweenClosed);
BENCHMARK(DaysBetweenStepwise);
BENCHMARK(WeekFarAway);

} // namespace

BENCHMARK_MAIN();
