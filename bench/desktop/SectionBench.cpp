// The cross-section at zoom 5: only the part in the window, beside the whole picture of 25 windows of which
// one is copied, and beside the picture at zoom 1.

#include "drawing/SectionPicture.h"
#include "lib/text/Language.h"
#include "model/record/OrrevaData.h"
#include "painting/PainterSurface.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QImage>
#include <QPainter>

#include <clocale>

namespace {

constexpr Pixel kWindow{1600, 1000};
constexpr Pixel kPointer{500, 300};

void LoadTelescope(COrrevaData& record)
{
    record.Reset();
    record.SetMirrorDiameter(250);
    record.SetFocalLength(1500);
    record.GetFocalPlaneHeight(); // settles the defaults
    record.GetFocalPlaneHeight();
}

void Paint(QImage& image, SectionZoom view, COrrevaData& record)
{
    ViewSwitches switches;
    switches.ray_parallel = 1;
    QPainter painter(&image);
    PainterSurface surface(painter, image.width(), image.height());
    PaintSection(surface, view, record, switches, kPointer, kEnglish);
}

void PaintWindow(benchmark::State& state)
{
    COrrevaData record;
    LoadTelescope(record);
    QImage window(kWindow.x, kWindow.y, QImage::Format_RGB32);
    const auto zoom = static_cast<std::int32_t>(state.range(0));
    // The middle of the picture, where the mirror and the focuser are far and the rays are dense.
    const SectionZoom view{zoom, (zoom - 1) * kWindow.x / 2, (zoom - 1) * kWindow.y / 3};
    for (auto _ : state) {
        Paint(window, view, record);
        benchmark::DoNotOptimize(window.bits());
    }
}
BENCHMARK(PaintWindow)->Name("OneFrame/zoom")->DenseRange(1, 5)->Unit(benchmark::kMillisecond);

void PaintWholeAndCopy(benchmark::State& state)
{
    COrrevaData record;
    LoadTelescope(record);
    QImage window(kWindow.x, kWindow.y, QImage::Format_RGB32);
    const SectionZoom view{5, 4 * kWindow.x / 2, 4 * kWindow.y / 3};
    const Pixel size = view.PictureSize(kWindow.x, kWindow.y);
    for (auto _ : state) {
        QImage whole(size.x, size.y, QImage::Format_RGB32);
        Paint(whole, {}, record);
        QPainter painter(&window);
        painter.drawImage(0, 0, whole, view.scrollX, view.scrollY, kWindow.x, kWindow.y);
        benchmark::DoNotOptimize(window.bits());
    }
}
BENCHMARK(PaintWholeAndCopy)->Name("DirectWay/zoom/5")->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    std::setlocale(LC_NUMERIC, "C");
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
