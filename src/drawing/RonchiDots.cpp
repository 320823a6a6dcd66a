#include "drawing/RonchiDots.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr std::size_t kGrid = kRonchiSteps;

/// Draws of a generator of Lehmer's kind, several steps at once: the columns and the rows of the throws are
/// the draws in turn, and each of the two goes its own way by the square of the multiplier.
class EverySecondDraw {
public:
    explicit EverySecondDraw(std::uint64_t first) : m_draw(first) {}
    std::uint64_t Draw() const { return m_draw; }
    void Step() { m_draw = Reduce(m_draw * kStep); }

private:
    static constexpr std::uint64_t kModulus = RonchiGenerator::modulus;
    static constexpr std::uint64_t kStep =
        RonchiGenerator::multiplier * RonchiGenerator::multiplier % kModulus;
    static_assert(kModulus == 0x7FFFFFFF && RonchiGenerator::increment == 0);

    /// The remainder by 2^31 - 1: the digits of that base are added.
    static std::uint64_t Reduce(std::uint64_t product)
    {
        const std::uint64_t sum = (product & kModulus) + (product >> 31);
        const std::uint64_t folded = (sum & kModulus) + (sum >> 31);
        return folded >= kModulus ? folded - kModulus : folded;
    }

    std::uint64_t m_draw;
};

/// Whether TruncToInt32(value) is even, without a branch.
std::uint8_t IsEvenWhole(double value)
{
    constexpr double kLeast = -2147483648.0;
    constexpr double kMost = 2147483647.0;
    const double number = value == value ? value : 0.0;
    const double within = number < kLeast ? kLeast : number > kMost ? kMost : number;
    return static_cast<std::uint8_t>((static_cast<std::int32_t>(within) & 1) ^ 1);
}

} // namespace

RonchiPlaces ThrowRonchiDots(RonchiGenerator& generator)
{
    RonchiPlaces thrown{};
    EverySecondDraw columns(generator());
    EverySecondDraw rows(generator());
    for (std::int32_t i = 1; i < kRonchiThrows; ++i) {
        thrown[rows.Draw() % kGrid * kGrid + columns.Draw() % kGrid] = 1;
        columns.Step();
        rows.Step();
    }
    thrown[rows.Draw() % kGrid * kGrid + columns.Draw() % kGrid] = 1;
    generator.seed(static_cast<RonchiGenerator::result_type>(rows.Draw()));
    return thrown;
}

RonchiMirror::RonchiMirror(const RonchiTest& test) : m_test(test)
{
    for (std::size_t i = 0; i < kGrid; ++i) {
        m_places[i] = static_cast<double>(i) * test.r / kRonchiSteps;
        m_pixels[i] = std::clamp(TruncToInt32(m_places[i] * 100 / test.r), 0, 100);
    }
    for (std::size_t row = 0; row < kGrid; ++row) {
        for (std::size_t column = 0; column < kGrid; ++column) {
            const double x = m_places[column];
            const double y = m_places[row];
            const double rad = std::sqrt(x * x + y * y);
            m_onMirror[row * kGrid + column] = rad > test.r ? 0 : 1;
            m_axisCuts[row * kGrid + column] = rad * rad * test.constant / test.R + test.R;
        }
    }
}

RonchiPlaces RonchiMirror::LitPlaces(double offset) const
{
    RonchiPlaces lit;
    const double reach = 2 * offset + m_test.R;
    for (std::size_t row = 0; row < kGrid; ++row) {
        for (std::size_t column = 0; column < kGrid; ++column) {
            const std::size_t at = row * kGrid + column;
            const double c = m_axisCuts[at];
            const double u = std::abs((reach - c) * m_places[column] / c);
            lit[at] = m_onMirror[at] & IsEvenWhole(u / m_test.w + 0.5);
        }
    }
    return lit;
}
