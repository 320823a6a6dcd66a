#pragma once

#include <cmath>
#include <cstdint>

/// The evaluator's mark of "no value": a failed result, an empty memory cell. A NaN counts as one.
inline constexpr double kNoValue = HUGE_VAL;
inline bool IsNoValue(double d) { return !(d < kNoValue); }

/// "Truncated to an integer", everywhere in the evaluator: toward zero to 64 bits, of which the low 32 are
/// kept; beyond 64 bits, infinite or NaN gives 0.
inline std::int32_t TruncToLow32(double d)
{
    constexpr double kTwoTo63 = 9223372036854775808.0;
    return d >= -kTwoTo63 && d < kTwoTo63 ? static_cast<std::int32_t>(static_cast<std::int64_t>(d)) : 0;
}
