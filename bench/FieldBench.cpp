// The table of the simulated field: 251 counts of light paths, ours beside the point by point loop. Both give
// the same counts, or the run says so and fails.

#include "model/optics/FieldSimulation.h"
#include "model/optics/LightPaths.h"
#include "support/DirectLightPaths.h"

#include <benchmark/benchmark.h>

#include <array>
#include <cmath>
#include <cstdio>
#include <optional>

namespace {

constexpr std::int32_t kPoints = 200;
using Counts = std::array<double, kFieldRings + 1>;

FieldInputs DefaultTelescope()
{
    COrrevaData telescope;
    telescope.GetFocalPlaneHeight(); // settles the defaults
    telescope.GetFocalPlaneHeight();
    return ReadFieldInputs(telescope);
}

/// The counts of a whole table, by `count` of the three shifts and the four radii.
template <class Count>
Counts AllCounts(Count count)
{
    const auto& [I, D, S, f, A, F] = DefaultTelescope();
    const double m = (f - A) / f;
    Counts counts{};
    for (std::size_t i = 0; i < counts.size(); ++i) {
        const double t = static_cast<double>(i) * 0.006 * M_PI / 180;
        counts[i] = count((F * m + (m + 1) * A) * t, (m + 1) * A * t, A * t, 0.5 * I * m, 0.5 * S * m,
                          0.5 * D * m, 0.5 * S);
    }
    return counts;
}

Counts OurCounts()
{
    std::optional<LightPathGrid> grid;
    return AllCounts([&](double o_corr, double o_obs, double o_prim, double r_corr, double r_obs,
                         double r_prim, double r__sec) {
        if (!grid) {
            grid.emplace(r__sec, kPoints);
        }
        return grid->Count(o_corr, o_obs, o_prim, r_corr, r_obs, r_prim);
    });
}

Counts CountsOneByOne()
{
    return AllCounts([](auto... circles) { return CountLightPaths(circles..., kPoints); });
}

Counts DirectCounts()
{
    return AllCounts([](auto... circles) { return CountLightPathsDirectly(circles..., kPoints); });
}

void FieldCounts(benchmark::State& state, Counts (*counts)())
{
    for (auto _ : state) {
        benchmark::DoNotOptimize(counts());
    }
}
BENCHMARK_CAPTURE(FieldCounts, OurWay, OurCounts)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(FieldCounts, OneByOne, CountsOneByOne)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(FieldCounts, DirectWay, DirectCounts)->Unit(benchmark::kMillisecond);

void KnownTelescope(benchmark::State& state)
{
    COrrevaData telescope;
    FieldSimulation simulation;
    simulation.Table(telescope, {});
    for (auto _ : state) {
        benchmark::DoNotOptimize(simulation.Table(telescope, {}));
    }
}
BENCHMARK(KnownTelescope)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv)
{
    if (OurCounts() != DirectCounts() || CountsOneByOne() != DirectCounts()) {
        std::fputs("The two ways differ in their counts.\n", stderr);
        return 1;
    }
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
