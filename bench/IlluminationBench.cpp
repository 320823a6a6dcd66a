// The curve of the exact illumination: 41 points by closed forms between the circles' crossings, beside a
// count of a million points each. Both give the same light as far as a count can tell, or the run says so and
// fails.

#include "model/analysis/SecondaryChoice.h"
#include "model/optics/IlluminationCurve.h"
#include "support/DirectIllumination.h"

#include <benchmark/benchmark.h>

#include <cmath>
#include <cstdio>

namespace {

constexpr int kPoints = 41;
constexpr std::int64_t kMillion = 1000000;

/// 250 mm f/6 with all defaults.
constexpr IlluminationStops kStops{250, 1500, 214.25, 46.482, 65, 50.8, 286, 1410.75};

double PlaceOf(int i) { return i * kStops.d / 80; }

void ClosedForms(benchmark::State& state)
{
    for (auto _ : state) {
        benchmark::DoNotOptimize(IlluminationCurve(kStops, kStops.d / 2, kPoints));
    }
}
BENCHMARK(ClosedForms)->Unit(benchmark::kMicrosecond);

void AMillionPointsEach(benchmark::State& state)
{
    for (auto _ : state) {
        for (int i = 0; i < kPoints; ++i) {
            benchmark::DoNotOptimize(CountedLight(kStops, PlaceOf(i), kMillion));
        }
    }
}
BENCHMARK(AMillionPointsEach)->Unit(benchmark::kMicrosecond);

void FieldAt75Percent(benchmark::State& state)
{
    for (auto _ : state) {
        benchmark::DoNotOptimize(FieldDiameterAtShare(kStops, 0.75));
    }
}
BENCHMARK(FieldAt75Percent)->Unit(benchmark::kMicrosecond);

void AllStandardSecondaries(benchmark::State& state)
{
    for (auto _ : state) {
        benchmark::DoNotOptimize(SecondaryChoices(kStops, StandardMinorAxes(kStops.D)));
    }
}
BENCHMARK(AllStandardSecondaries)->Unit(benchmark::kMicrosecond);

bool BothWaysAgree()
{
    double worst = 0;
    for (int i = 0; i < kPoints; ++i) {
        const double light = LightAt(kStops, PlaceOf(i));
        worst = std::fmax(worst, std::fabs(light - CountedLight(kStops, PlaceOf(i), kMillion)));
        if (!(std::fabs(light - RefinedLight(kStops, PlaceOf(i))) < 1e-9)) {
            return false;
        }
    }
    std::printf("Largest difference from a count of a million points: %.2g\n", worst);
    return worst < 1e-3;
}

} // namespace

int main(int argc, char** argv)
{
    if (!BothWaysAgree()) {
        std::fputs("The two ways differ in their light.\n", stderr);
        return 1;
    }
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
