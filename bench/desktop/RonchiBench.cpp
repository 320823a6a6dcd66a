// The nine Ronchi patterns on a painter: one block of pixels, beside a call of the painter for each dot. Both
// paint the same dots, or the run says so and fails.

#include "drawing/RonchiPicture.h"
#include "painting/PainterSurface.h"

#include <benchmark/benchmark.h>

#include <QGuiApplication>
#include <QImage>
#include <QPainter>

#include <cmath>
#include <cstdio>

namespace {

constexpr int kWidth = 640;
constexpr int kHeight = 680;
const RonchiTest kTest(250, 1500, 5, 1);

QImage EmptyPicture()
{
    QImage picture(kWidth, kHeight, QImage::Format_RGB32);
    picture.fill(Qt::white);
    return picture;
}

void PaintBlock(QImage& picture)
{
    RonchiGenerator generator(1);
    QPainter painter(&picture);
    PainterSurface surface(painter, kWidth, kHeight);
    surface.Image(RonchiBlock::kAt, RonchiBlock::kSide, RonchiPatterns(kTest, generator));
}

void PaintDots(QImage& picture)
{
    RonchiGenerator generator(1);
    QPainter painter(&picture);
    painter.setPen(Qt::black);
    for (const auto& [centre, offset] : kRonchiPatterns) {
        const auto [cx, cy] = centre;
        for (int i = 0; i < kRonchiThrows; ++i) {
            const double x = static_cast<double>(generator() % kRonchiSteps) * kTest.r / kRonchiSteps;
            const double y = static_cast<double>(generator() % kRonchiSteps) * kTest.r / kRonchiSteps;
            const double rad = std::sqrt(x * x + y * y);
            const double c = rad * rad * kTest.constant / kTest.R + kTest.R;
            const double u = std::abs((2 * offset + kTest.R - c) * x / c);
            if (rad > kTest.r || static_cast<int>(u / kTest.w + 0.5) % 2 != 0) {
                continue;
            }
            const int px = static_cast<int>(x * 100 / kTest.r);
            const int py = static_cast<int>(y * 100 / kTest.r);
            painter.drawPoint(cx - px, cy - py);
            painter.drawPoint(cx - px, cy + py);
            painter.drawPoint(cx + px, cy - py);
            painter.drawPoint(cx + px, cy + py);
        }
    }
}

void NinePatterns(benchmark::State& state, void (*paint)(QImage&))
{
    QImage picture = EmptyPicture();
    for (auto _ : state) {
        paint(picture);
        benchmark::DoNotOptimize(picture.bits());
    }
    constexpr double kThrows = 9.0 * kRonchiThrows;
    state.counters["per_throw"] = benchmark::Counter(kThrows, benchmark::Counter::kIsIterationInvariantRate |
                                                                  benchmark::Counter::kInvert);
}
BENCHMARK_CAPTURE(NinePatterns, OurWay, PaintBlock)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(NinePatterns, DirectWay, PaintDots)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv)
{
    const QGuiApplication application(argc, argv);
    QImage block = EmptyPicture();
    QImage dots = EmptyPicture();
    PaintBlock(block);
    PaintDots(dots);
    if (block != dots) {
        std::fputs("The two ways differ in their dots.\n", stderr);
        return 1;
    }
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
