// The window of the illumination at its usual size: painting it once more, and following a change of the
// design with all curves computed anew, beside the same curve by a count of a million points each.

#include "support/DirectIllumination.h"
#include "windows/IlluminationWindow.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QImage>

#include <cstdint>

namespace {

constexpr int kPoints = 41;
constexpr std::int64_t kMillion = 1000000;

/// 250 mm f/6 with all defaults.
constexpr IlluminationStops kStops{250, 1500, 214.25, 46.482, 65, 50.8, 286, 1410.75};

class ShownWindow {
public:
    ShownWindow() : m_window({{"Ploessl", 26, 50}, {"Erfle", 32, 68}}, nullptr)
    {
        Follow(kStops.m);
        m_window.show();
        QCoreApplication::processEvents();
        m_image = QImage(m_window.size(), QImage::Format_RGB32);
    }
    void Follow(double minorAxis)
    {
        IlluminationStops stops = kStops;
        stops.m = minorAxis;
        m_window.ShowDesign(stops, 12, "Newton");
    }
    void Paint() { m_window.render(&m_image); }

private:
    CIlluminationWindow m_window;
    QImage m_image;
};

void Repaint(benchmark::State& state)
{
    ShownWindow window;
    for (auto _ : state) {
        window.Paint();
    }
}
BENCHMARK(Repaint)->Unit(benchmark::kMillisecond);

void FollowAChange(benchmark::State& state)
{
    ShownWindow window;
    double minorAxis = kStops.m;
    for (auto _ : state) {
        minorAxis = minorAxis == kStops.m ? 50 : kStops.m;
        window.Follow(minorAxis);
        window.Paint();
    }
}
BENCHMARK(FollowAChange)->Unit(benchmark::kMillisecond);

void CurveByCounting(benchmark::State& state)
{
    for (auto _ : state) {
        for (int i = 0; i < kPoints; ++i) {
            benchmark::DoNotOptimize(CountedLight(kStops, i * kStops.d / 80, kMillion));
        }
    }
}
BENCHMARK(CurveByCounting)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
