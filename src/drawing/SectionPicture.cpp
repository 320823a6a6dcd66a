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
constexpr Colour kGreen{0, 255, 64};      // primary and diagonal flat
constexpr Colour kYellow{255, 255, 0};    // rays that go on, the fully lit field
constexpr Colour kOlive{192, 192, 0};     // focal plane
constexpr Colour kLostRay{143, 128, 128}; // rays that are lost
constexpr Colour kDark{0, 64, 64};        // tube walls, focuser parts, box and cage
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
        : m_surface(window), m_map(mapping), m_record(telescope), m_g(BuildGeometry(telescope, show_offset))
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
        m_surface.FillRect(m_map.WorldToScreen({x0, y0}, {x1, y1}), colour);
    }
    void Line(double x0, double y0, double x1, double y1, Colour colour)
    {
        m_surface.Line(m_map.WorldToScreen(x0, y0), m_map.WorldToScreen(x1, y1), colour);
    }
    void Quad(const std::array<Point, 4>& corners, Colour colour);
    void Tick(double x, double y, std::int32_t i, std::int32_t major);

    Surface& m_surface;
    const SectionMapping& m_map;
    COrrevaData& m_record;
    ScopeGeometry m_g;
};

void SectionPainter::Quad(const std::array<Point, 4>& corners, Colour colour)
{
    std::array<Pixel, 4> pixels;
    for (std::size_t i = 0; i < corners.size(); ++i) {
        pixels[i] = m_map.WorldToScreen(corners[i].x, corners[i].y);
    }
    m_surface.Polygon(pixels, colour, colour);
}

void SectionPainter::PaintTube()
{
    const double T = m_record.GetThicknessHat();
    const double rear = m_g.frontX + m_g.tubeLength;
    const double bottom = m_g.top + m_g.tubeWidth;
    Bar(m_g.frontX, m_g.top, rear, bottom, kWhite);
    // The walls stand outside the tube's width, so the tube looks two walls wider than it is. Kept so.
    Bar(m_g.frontX, m_g.top - T, rear, m_g.top, kDark);
    Bar(m_g.frontX, bottom, rear, bottom + T, kDark);
}

void SectionPainter::PaintFocuser(bool extended)
{
    const double cx = m_g.focuserX;
    const double half = m_record.GetFocuserDiameter() / 2;
    const double base = m_g.top - m_record.GetFocuserHeight();
    Bar(cx - half, base, cx + half, m_g.top, kWhite);
    const std::int32_t type = m_record.GetFocuserType();
    if (type != 0 && type != 2) {
        return;
    }
    Bar(cx - half - 10, base, cx - half - 6, m_g.top, kDark);
    Bar(cx + half + 6, base, cx + half + 10, m_g.top, kDark);
    double y1 = base;
    double y2 = y1 + m_record.GetOazLength();
    if (extended) {
        const double travel = m_record.GetOazTravel();
        y1 -= travel;
        y2 -= travel;
    }
    Bar(cx - half - 4, y1, cx - half, y2, kDark);
    Bar(cx + half, y1, cx + half + 4, y2, kDark);
}

void SectionPainter::PaintFocalPlane()
{
    const double cx = m_g.focuserX;
    const double half = m_record.GetFocuserDiameter() / 2;
    Bar(cx - half, -2, cx + half, 2, kOlive);
    // The fully lit field, by a formula of the picture's own: without the travel of a drawtube.
    const double spare = m_record.GetFocuserSpare();
    const double Hf = m_record.GetFocuserHeight();
    const double I = m_record.GetInsideDiameterHat();
    const double T = m_record.GetThicknessHat();
    const double Lf = spare + Hf + I / 2 + T;
    const double S = m_record.GetSecondaryDiameter();
    const double D = m_record.GetMirrorDiameter();
    const double f = m_record.GetFocalLength();
    const double w = S - Lf * D / f;
    if (w > 0) {
        Bar(cx - w / 2, -2, cx + w / 2, 2, kYellow);
    }
}

void SectionPainter::PaintRays(const ViewSwitches& switches, Point pointer, int language)
{
    const RayPicture rays = TraceActiveSet(m_g, m_record, switches, pointer);
    for (const RaySegment& segment : rays.segments) {
        Line(segment.x0, segment.y0, segment.x1, segment.y1, segment.colour == RayHit ? kYellow : kLostRay);
    }
    if (rays.status) {
        constexpr Pixel kStatus{4, 0};
        m_surface.Text({kStatus.x - m_map.scroll.x, kStatus.y - m_map.scroll.y},
                       FormatParallelStatus(language, *rays.status), kTextFont, kWhite);
    }
}

void SectionPainter::PaintScale()
{
    // A tube that is longer than any has no more ticks than this.
    constexpr int kMostTicks = 10000;
    const double ys = m_g.top + m_g.tubeWidth + TruncToInt32(m_record.GetThicknessHat()) + 60;
    const double rear = m_g.frontX + m_g.tubeLength;
    Line(m_g.frontX, ys, rear, ys, kWhite);
    const ScaleSteps steps = StepsFor(m_g.tubeLength);
    for (int tick = 0; tick < kMostTicks; ++tick) {
        const std::int32_t i = tick * steps.step;
        if (!(m_g.frontX < rear - i)) {
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
    m_surface.Text(m_map.WorldToScreen(x, TruncToInt32(y - 2)), number.GetText(), kSmallFont, kWhite);
}

void SectionPainter::PaintSecondary()
{
    Quad({{{m_g.secondaryLeft, m_g.secondaryTop},
           {m_g.secondaryRight, m_g.secondaryBottom},
           {m_g.secondaryRight - 4, m_g.secondaryBottom},
           {m_g.secondaryLeft - 4, m_g.secondaryTop}}},
         kGreen);
    const double back = m_g.secondaryRight - 8 - 1.5 * m_record.GetSecondaryDiameter();
    Quad({{{m_g.secondaryLeft - 8, m_g.secondaryTop},
           {m_g.secondaryRight - 8, m_g.secondaryBottom},
           {back, m_g.secondaryBottom},
           {back, m_g.secondaryTop}}},
         kBlack);
}

void SectionPainter::PaintNoOffset(int language)
{
    m_surface.Text(m_map.WorldToScreen(m_g.secondaryLeft + 10, m_g.secondaryTop), kNoOffset.In(language),
                   kTextFont, kRed);
}

void SectionPainter::PaintPrimary()
{
    Bar(m_g.mirrorX, m_g.mirrorTop, m_g.mirrorX + m_record.GetMirrorThickness(), m_g.mirrorBottom, kGreen);
}

void SectionPainter::PaintBoxAndCage()
{
    const double rear = m_g.frontX + m_g.tubeLength;
    const double bottom = m_g.top + m_g.tubeWidth;
    Bar(rear - m_record.GetHeightBox(), m_g.top, rear, bottom, kDark);
    Bar(m_g.frontX, m_g.top, m_g.frontX + m_record.GetHeightHat(), bottom, kDark);
}

Point WorldPointer(const SectionPointer& pointer, const SectionMapping& map)
{
    const Pixel* pixel = std::get_if<Pixel>(&pointer);
    return pixel != nullptr ? map.ScreenToWorld(*pixel) : std::get<Point>(pointer);
}

void PaintParts(Surface& window, const SectionMapping& map, COrrevaData& record, const ViewSwitches& switches,
                const SectionPointer& pointer, int language)
{
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

    PaintParts(window, map, record, switches, pointer, language);
}

void PaintSectionAtScale(Surface& window, COrrevaData& record, double scale)
{
    const Pixel size{window.Width(), window.Height()};
    window.FillRect({0, 0, size.x, size.y}, kBackground);
    if (size.x >= kSmallestWindow && size.y >= kSmallestWindow) {
        PaintParts(window, SectionAtScale(record, size, scale), record, {}, Point{}, kEnglish);
    }
}
