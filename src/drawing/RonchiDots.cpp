#include "drawing/RonchiDots.h"

#include <algorithm>
#include <cmath>
#include <functional>

namespace {

constexpr std::size_t kGrid = kRonchiSteps;

constexpr std::uint64_t kModulus = RonchiGenerator::modulus;
static_assert(kModulus == 0x7FFFFFFF && RonchiGenerator::increment == 0);

/// The remainder by 2^31 - 1: the digits of that base are added.
constexpr std::uint64_t Reduce(std::uint64_t product)
{
    const std::uint64_t sum = (product & kModulus) + (product >> 31);
    const std::uint64_t folded = (sum & kModulus) + (sum >> 31);
    return folded >= kModulus ? folded - kModulus : folded;
}

constexpr std::uint64_t PowerOfMultiplier(std::size_t exponent)
{
    return exponent == 0 ? 1 : Reduce(PowerOfMultiplier(exponent - 1) * RonchiGenerator::multiplier);
}

/// Draws of a generator of Lehmer's kind, so many at once: each goes its own way to its place in the next
/// batch, by a power of the multiplier, and none waits for the one before it.
class DrawsInBatches {
public:
    static constexpr std::size_t kBatch = 8;

    explicit DrawsInBatches(RonchiGenerator& generator)
    {
        std::ranges::generate(m_draws, std::ref(generator));
    }
    const std::array<std::uint64_t, kBatch>& Draws() const { return m_draws; }
    void Step()
    {
        for (std::uint64_t& draw : m_draws) {
            draw = Reduce(draw * kStep);
        }
    }

private:
    static constexpr std::uint64_t kStep = PowerOfMultiplier(kBatch);

    std::array<std::uint64_t, kBatch> m_draws;
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
    static_assert(2 * kRonchiThrows % DrawsInBatches::kBatch == 0);
    constexpr std::size_t kBatches = 2 * kRonchiThrows / DrawsInBatches::kBatch;

    RonchiPlaces thrown{};
    DrawsInBatches batch(generator);
    for (std::size_t i = 0; i < kBatches; ++i) {
        if (i > 0) {
            batch.Step();
        }
        const auto& draws = batch.Draws();
        for (std::size_t at = 0; at < draws.size(); at += 2) {
            thrown[draws[at + 1] % kGrid * kGrid + draws[at] % kGrid] = 1;
        }
    }
    generator.seed(static_cast<RonchiGenerator::result_type>(batch.Draws().back()));
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
