#include "drawing/SectionPicture.h"

#include "drawing/SectionMapping.h"
#include "lib/text/CodePage.h"
#include "lib/text/Language.h"
#include "lib/text/LibString.h"
#include "lib/text/Numbers.h"
#include "model/record/OrrevaData.h"
#include "raytrace/RaySets.h"
#include "raytrace/ScopeGeometry.h"

#include <array>

namespace {

constexpr Colour kBackground{0, 102, 153};
constexpr Colour kGreen{0, 255, 64};   // primary and diagonal flat
constexpr Colour kYellow{255, 255, 0}; // rays that go on, the fully lit field
constexpr Colour kOlive{192, 192, 0};  // focal plane
constexpr Colour kGrey{143, 128, 128}; // rays that are lost
constexpr Colour kDark{0, 64, 64};     // tube walls, focuser parts, box and cage
constexpr Colour kLightGrey{240, 240, 240};
constexpr Colour kRed{255, 0, 0};

constexpr Font kSmallFont{10, Font::kNormal, true};
constexpr Font kTextFont{14, Font::kNormal, false};

constexpr std::int32_t kSmallestWindow = 30;

constexpr Bilingual kNoTelescope{
    "Please create a new set of data (Menu:File/New) or open an existing set (Menu:File/Open).",
    "Lege bitte einen neuen Datensatz an (Menü:Datei/Neu) oder öffne einen vorhandenen Daten (Menü:Datei/Öffnen)."_cp1252};
constexpr Bilingual kNoOffset{"Attention: Display without Secondary Offset!",
                              "Achtung: es wird kein Fangspiegel Offset berücksichtigt!"_cp1252};

/// The distances of the scale's ticks, mm.
struct ScaleSteps {
    double above; ///< the tube's length from which on they hold
    std::int32_t step;
    std::int32_t major;
};
constexpr ScaleSteps kScaleSteps[] = {{3000, 50, 500}, {1500, 20, 200}};
constexpr ScaleSteps kFinestSteps{0, 10, 100};

ScaleSteps StepsFor(double tubeLength)
{
    for (const ScaleSteps& steps : kScaleSteps) {
        if (tubeLength > steps.above) {
            return steps;
        }
    }
    return kFinestSteps;
}

/// One painting of the picture, part by part from the back to the front.
class SectionPainter {
public:
    SectionPainter(Surface& window, const SectionMapping& mapping, COrrevaData& telescope, bool show_offset)
        : surface(window), map(mapping), record(telescope), g(BuildGeometry(telescope, show_offset))
    {}

    void PaintTube();
    void PaintFocuser(bool extended);
    void PaintFocalPlane();
    void PaintRays(const ViewSwitches& switches, Point pointer, int language);
    void PaintScale();
    void PaintSecondary();
    void PaintNoOffset(int language);
    void PaintPrimary();
    void PaintBoxAndCage();

private:
    void Bar(double x0, double y0, double x1, double y1, Colour colour)
    {
        surface.FillRect(map.WorldToScreen({x0, y0}, {x1, y1}), colour);
    }
    void Line(double x0, double y0, double x1, double y1, Colour colour)
    {
        surface.Line(map.WorldToScreen(x0, y0), map.WorldToScreen(x1, y1), colour);
    }
    void Quad(const std::array<Point, 4>& corners, Colour colour);
    void Tick(double x, double y, std::int32_t i, std::int32_t major);

    Surface& surface;
    const SectionMapping& map;
    COrrevaData& record;
    ScopeGeometry g;
};

void SectionPainter::Quad(const std::array<Point, 4>& corners, Colour colour)
{
    std::array<Pixel, 4> pixels;
    for (std::size_t i = 0; i < corners.size(); ++i) {
        pixels[i] = map.WorldToScreen(corners[i].x, corners[i].y);
    }
    surface.Polygon(pixels, colour, colour);
}

void SectionPainter::PaintTube()
{
    const double T = record.GetThicknessHat();
    const double rear = g.frontX + g.tubeLength;
    const double bottom = g.top + g.tubeWidth;
    Bar(g.frontX, g.top, rear, bottom, kWhite);
    // The walls stand outside the tube's width, so the tube looks two walls wider than it is. Kept so.
    Bar(g.frontX, g.top - T, rear, g.top, kDark);
    Bar(g.frontX, bottom, rear, bottom + T, kDark);
}

void SectionPainter::PaintFocuser(bool extended)
{
    const double cx = g.focuserX;
    const double half = record.GetFocuserDiameter() / 2;
    const double base = g.top - record.GetFocuserHeight();
    Bar(cx - half, base, cx + half, g.top, kWhite);
    const std::int32_t type = record.GetFocuserType();
    if (type != 0 && type != 2) {
        return;
    }
    Bar(cx - half - 10, base, cx - half - 6, g.top, kDark);
    Bar(cx + half + 6, base, cx + half + 10, g.top, kDark);
    double y1 = base;
    double y2 = y1 + record.GetOazLength();
    if (extended) {
        const double travel = record.GetOazTravel();
        y1 -= travel;
        y2 -= travel;
    }
    Bar(cx - half - 4, y1, cx - half, y2, kDark);
    Bar(cx + half, y1, cx + half + 4, y2, kDark);
}

void SectionPainter::PaintFocalPlane()
{
    const double cx = g.focuserX;
    const double half = record.GetFocuserDiameter() / 2;
    Bar(cx - half, -2, cx + half, 2, kOlive);
    // The fully lit field, by a formula of the picture's own: without the travel of a drawtube.
    const double spare = record.GetFocuserSpare();
    const double Hf = record.GetFocuserHeight();
    const double I = record.GetInsideDiameterHat();
    const double T = record.GetThicknessHat();
    const double Lf = spare + Hf + I / 2 + T;
    const double S = record.GetSecondaryDiameter();
    const double D = record.GetMirrorDiameter();
    const double f = record.GetFocalLength();
    const double w = S - Lf * D / f;
    if (w > 0) {
        Bar(cx - w / 2, -2, cx + w / 2, 2, kYellow);
    }
}

void SectionPainter::PaintRays(const ViewSwitches& switches, Point pointer, int language)
{
    const RayPicture rays = TraceActiveSet(g, record, switches, pointer);
    for (const RaySegment& segment : rays.segments) {
        Line(segment.x0, segment.y0, segment.x1, segment.y1, segment.colour == RayHit ? kYellow : kGrey);
    }
    if (rays.status) {
        constexpr Pixel kStatus{4, 0};
        surface.Text({kStatus.x - map.scroll.x, kStatus.y - map.scroll.y},
                     FormatParallelStatus(language, *rays.status), kTextFont, kWhite);
    }
}

void SectionPainter::PaintScale()
{
    // A tube that is longer than any has no more ticks than this.
    constexpr int kMostTicks = 10000;
    const double ys = g.top + g.tubeWidth + TruncToInt32(record.GetThicknessHat()) + 60;
    const double rear = g.frontX + g.tubeLength;
    Line(g.frontX, ys, rear, ys, kWhite);
    const ScaleSteps steps = StepsFor(g.tubeLength);
    for (int tick = 0; tick < kMostTicks; ++tick) {
        const std::int32_t i = tick * steps.step;
        if (!(g.frontX < rear - i)) {
            break;
        }
        Tick(rear - i, ys, i, steps.major);
    }
}

void SectionPainter::Tick(double x, double y, std::int32_t i, std::int32_t major)
{
    if (i % major != 0) {
        Line(x, y - 5, x, y + 5, kWhite);
        return;
    }
    Line(x, y - 15, x, y + 15, kWhite);
    LibString number;
    number.Format("%d", i);
    surface.Text(map.WorldToScreen(x, TruncToInt32(y - 2)), number.GetText(), kSmallFont, kWhite);
}

void SectionPainter::PaintSecondary()
{
    Quad({{{g.secondaryLeft, g.secondaryTop},
           {g.secondaryRight, g.secondaryBottom},
           {g.secondaryRight - 4, g.secondaryBottom},
           {g.secondaryLeft - 4, g.secondaryTop}}},
         kGreen);
    const double back = g.secondaryRight - 8 - 1.5 * record.GetSecondaryDiameter();
    Quad({{{g.secondaryLeft - 8, g.secondaryTop},
           {g.secondaryRight - 8, g.secondaryBottom},
           {back, g.secondaryBottom},
           {back, g.secondaryTop}}},
         kBlack);
}

void SectionPainter::PaintNoOffset(int language)
{
    surface.Text(map.WorldToScreen(g.secondaryLeft + 10, g.secondaryTop), kNoOffset.In(language), kTextFont,
                 kRed);
}

void SectionPainter::PaintPrimary()
{
    Bar(g.mirrorX, g.mirrorTop, g.mirrorX + record.GetMirrorThickness(), g.mirrorBottom, kGreen);
}

void SectionPainter::PaintBoxAndCage()
{
    const double rear = g.frontX + g.tubeLength;
    const double bottom = g.top + g.tubeWidth;
    Bar(rear - record.GetHeightBox(), g.top, rear, bottom, kDark);
    Bar(g.frontX, g.top, g.frontX + record.GetHeightHat(), bottom, kDark);
}

Point WorldPointer(const SectionPointer& pointer, const SectionMapping& map)
{
    const Pixel* pixel = std::get_if<Pixel>(&pointer);
    return pixel != nullptr ? map.ScreenToWorld(*pixel) : std::get<Point>(pointer);
}

} // namespace

void PaintSection(Surface& window, SectionZoom& view, COrrevaData& record, const ViewSwitches& switches,
                  const SectionPointer& pointer, int language)
{
    const std::int32_t width = window.Width();
    const std::int32_t height = window.Height();
    window.FillRect({0, 0, width, height}, kBackground);
    if (width < kSmallestWindow || height < kSmallestWindow) {
        return;
    }
    view.Clamp(width, height);
    if (!record.HasFile()) {
        window.Text({10, 10}, kNoTelescope.In(language), kTextFont, kLightGrey);
        return;
    }
    SectionMapping map = FitSection(record, view.PictureSize(width, height));
    map.scroll = {view.scrollX, view.scrollY};

    SectionPainter picture(window, map, record, switches.show_offset != 0);
    picture.PaintTube();
    picture.PaintFocuser(switches.show_extended_focuser != 0);
    picture.PaintFocalPlane();
    picture.PaintRays(switches, WorldPointer(pointer, map), language);
    picture.PaintScale();
    picture.PaintSecondary();
    if (switches.show_offset == 0) {
        picture.PaintNoOffset(language);
    }
    picture.PaintPrimary();
    if (switches.show_box_and_cage != 0) {
        picture.PaintBoxAndCage();
    }
}
