#include "drawing/ChartTicks.h"

#include "lib/text/FormatText.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <iterator>

namespace {

/// Whole numbers up to here stay apart as doubles, with room for what is done to them.
constexpr double kLargestCount = 1e12;

struct TickStep {
    double step = 0; ///< 0 where there is none
    int decimals = 0;
};

TickStep StepFor(double span, int atMost)
{
    const double least = span / std::max(atMost, 1);
    if (!(least > 0) || !std::isfinite(least)) {
        return {};
    }
    const int power = static_cast<int>(std::floor(std::log10(least)));
    for (const double factor : {1.0, 2.0, 5.0, 10.0}) {
        const double step = factor * std::pow(10.0, power);
        if (step >= least * (1 - 1e-9)) {
            return {step, std::max(factor == 10 ? -power - 1 : -power, 0)};
        }
    }
    return {};
}

std::string TickText(double value, const TickStep& step)
{
    constexpr int kDecimalsAtMost = 6;
    constexpr double kLargestPlain = 1e6;
    if (step.decimals > kDecimalsAtMost || std::fabs(value) >= kLargestPlain) {
        return FormatText("%g", value);
    }
    char text[32];
    const auto end =
        std::to_chars(std::begin(text), std::end(text), value, std::chars_format::fixed, step.decimals);
    return std::string(text, end.ptr);
}

} // namespace

std::vector<ChartTick> RoundTicks(const ChartRange& range, int atMost)
{
    const TickStep step = StepFor(range.to - range.from, atMost);
    // A place just beside an end is meant to be on it.
    const double first = std::ceil(range.from / step.step - 1e-6);
    const double last = std::floor(range.to / step.step + 1e-6);
    std::vector<ChartTick> ticks;
    if (!(step.step > 0) || !(std::fabs(first) < kLargestCount) || !(std::fabs(last) < kLargestCount)) {
        return ticks;
    }
    for (double i = first; i <= last && ticks.size() <= static_cast<std::size_t>(std::max(atMost, 1)); ++i) {
        const double value = i == 0 ? 0 : i * step.step;
        ticks.push_back({value, TickText(value, step)});
    }
    return ticks;
}

ChartRange RoundRange(double lowest, double highest, int atMost)
{
    if (!std::isfinite(lowest) || !std::isfinite(highest)) {
        return {};
    }
    if (!(highest - lowest > 1e-9 * std::max(std::fabs(lowest), std::fabs(highest)))) {
        const double aside = highest == 0 ? 1 : std::fabs(highest) / 2;
        lowest -= aside;
        highest += aside;
    }
    const double step = StepFor(highest - lowest, atMost).step;
    const ChartRange range{std::floor(lowest / step + 1e-6) * step, std::ceil(highest / step - 1e-6) * step};
    return std::isfinite(range.from) && std::isfinite(range.to) ? range : ChartRange{};
}
