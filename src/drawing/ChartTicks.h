#pragma once

#include <string>
#include <vector>

/// From one end of an axis to the other, in the axis' own unit.
struct ChartRange {
    double from = 0;
    double to = 1;
    bool operator==(const ChartRange&) const = default;
};

/// A place on an axis with its text; without a text it is a mere tick.
struct ChartTick {
    double value = 0;
    std::string text{};
    bool operator==(const ChartTick&) const = default;
};

/// The round numbers of a range, 1, 2 or 5 times a power of ten apart, `atMost` + 1 of them at most, with as
/// many decimals as they need. None for a range that is empty, not finite, or too fine for its size.
std::vector<ChartTick> RoundTicks(const ChartRange& range, int atMost);

/// The smallest range with round ends around the numbers from `lowest` to `highest`, with about `atMost`
/// ticks; one number alone is put in the middle, and what is not finite gives 0 to 1.
ChartRange RoundRange(double lowest, double highest, int atMost = 8);
