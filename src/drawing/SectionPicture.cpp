#include "drawing/SectionPicture.h"

#include "drawing/PaneColours.h"
#include "drawing/SectionMapping.h"
#include "drawing/SectionScale.h"
#include "lib/text/CodePage.h"
#include "lib/text/Language.h"
#include "lib/text/Numbers.h"
#include "model/record/OrrevaData.h"
#include "raytrace/RaySets.h"
#include "raytrace/ScopeGeometry.h"

#include <array>
#include <optional>
#include <string>

namespace {

constexpr Font kTextFont{14, Font::kNormal, false};

constexpr std::int32_t kSmallestWindow = 30;

/// One painting of the picture, part by part from the back to the front.
class SectionPainter {
public:
    SectionPainter(Surface& window, const SectionMapping& mapping, COrrevaData& telescope,
                   const SectionColours& colours, bool show_offset)
        : m_surface(window), m_map(mapping), m_record(telescope), m_c(colours),
          m_g(BuildGeometry(telescope, show_offset))
    {}

    void PaintTube();
    void PaintFocuser(bool extended);
    void PaintFocalPlane();
    void PaintRays(const std::vector<RaySegment>& segments);
    void PaintSecondary();
    void PaintPrimary();
    void PaintBoxAndCage();

    const ScopeGeometry& Geometry() const { return m_g; }

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

    Surface& m_surface;
    const SectionMapping& m_map;
    COrrevaData& m_record;
    const SectionColours& m_c;
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
    Bar(m_g.frontX, m_g.top, rear, bottom, m_c.inside);
    // The walls stand outside the tube's width, so the tube looks two walls wider than it is. Kept so.
    Bar(m_g.frontX, m_g.top - T, rear, m_g.top, m_c.wall);
    Bar(m_g.frontX, bottom, rear, bottom + T, m_c.wall);
}

void SectionPainter::PaintFocuser(bool extended)
{
    const double cx = m_g.focuserX;
    const double half = m_record.GetFocuserDiameter() / 2;
    const double base = m_g.top - m_record.GetFocuserHeight();
    Bar(cx - half, base, cx + half, m_g.top, m_c.inside);
    const std::int32_t type = m_record.GetFocuserType();
    if (type != 0 && type != 2) {
        return;
    }
    Bar(cx - half - 10, base, cx - half - 6, m_g.top, m_c.wall);
    Bar(cx + half + 6, base, cx + half + 10, m_g.top, m_c.wall);
    double y1 = base;
    double y2 = y1 + m_record.GetOazLength();
    if (extended) {
        const double travel = m_record.GetOazTravel();
        y1 -= travel;
        y2 -= travel;
    }
    Bar(cx - half - 4, y1, cx - half, y2, m_c.wall);
    Bar(cx + half, y1, cx + half + 4, y2, m_c.wall);
}

void SectionPainter::PaintFocalPlane()
{
    const double cx = m_g.focuserX;
    const double half = m_record.GetFocuserDiameter() / 2;
    Bar(cx - half, -2, cx + half, 2, m_c.focalPlane);
    const double w = LitPartOfFocalPlane(m_record);
    if (w > 0) {
        Bar(cx - w / 2, -2, cx + w / 2, 2, m_c.litField);
    }
}

void SectionPainter::PaintRays(const std::vector<RaySegment>& segments)
{
    for (const RaySegment& segment : segments) {
        Line(segment.x0, segment.y0, segment.x1, segment.y1,
             segment.colour == RayHit ? m_c.ray : m_c.lostRay);
    }
}

void SectionPainter::PaintSecondary()
{
    Quad({{{m_g.secondaryLeft, m_g.secondaryTop},
           {m_g.secondaryRight, m_g.secondaryBottom},
           {m_g.secondaryRight - 4, m_g.secondaryBottom},
           {m_g.secondaryLeft - 4, m_g.secondaryTop}}},
         m_c.mirror);
    const double back = m_g.secondaryRight - 8 - 1.5 * m_record.GetSecondaryDiameter();
    Quad({{{m_g.secondaryLeft - 8, m_g.secondaryTop},
           {m_g.secondaryRight - 8, m_g.secondaryBottom},
           {back, m_g.secondaryBottom},
           {back, m_g.secondaryTop}}},
         m_c.holder);
}

void SectionPainter::PaintPrimary()
{
    Bar(m_g.mirrorX, m_g.mirrorTop, m_g.mirrorX + m_record.GetMirrorThickness(), m_g.mirrorBottom,
        m_c.mirror);
}

void SectionPainter::PaintBoxAndCage()
{
    const double rear = m_g.frontX + m_g.tubeLength;
    const double bottom = m_g.top + m_g.tubeWidth;
    Bar(rear - m_record.GetHeightBox(), m_g.top, rear, bottom, m_c.wall);
    Bar(m_g.frontX, m_g.top, m_g.frontX + m_record.GetHeightHat(), bottom, m_c.wall);
}

/// All that a painting of the whole picture rests on.
struct SectionView {
    Surface& window;
    SectionMapping map;
    COrrevaData& record;
    const ViewSwitches& switches;
    Point pointer;
    int language;
    double pixelScale;

    bool IsClear() const { return switches.high_contrast != 0; }
    const SectionColours& Colours() const { return IsClear() ? kContrastSection : kUsualSection; }
    Font TextFont() const { return kTextFont.Scaled(pixelScale); }
    std::int32_t Pixels(std::int32_t usual) const { return TruncToInt32(usual * pixelScale + 0.5); }
};

/// Where the texts stand by the description: the status beside the picture's corner, the warning at the
/// diagonal.
void PaintStatus(const SectionView& view, const ParallelFigures& figures)
{
    constexpr std::int32_t kLeft = 4;
    view.window.Text({view.Pixels(kLeft) - view.map.scroll.x, -view.map.scroll.y},
                     FormatParallelStatus(view.language, figures), view.TextFont(), view.Colours().status);
}

void PaintNoOffset(const SectionView& view, const ScopeGeometry& g)
{
    view.window.Text(view.map.WorldToScreen(g.secondaryLeft + 10, g.secondaryTop),
                     kNoOffset.In(view.language), view.TextFont(), view.Colours().warning);
}

/// For the eye they stand in the window's corner, at every zoom and in front of all else.
void PaintClearTexts(const SectionView& view, const std::optional<ParallelFigures>& status)
{
    const Font font = view.TextFont();
    const std::int32_t left = view.Pixels(4);
    std::int32_t y = 0;
    const auto line = [&](const std::string& text, Colour colour) {
        // No text is wider than half of a line's height a character.
        const auto width = static_cast<std::int32_t>(text.size()) * font.height / 2;
        view.window.FillRect({0, y, left + width, y + font.height}, view.Colours().background);
        view.window.Text({left, y}, text, font, colour);
        y += font.height;
    };
    if (status) {
        line(FormatParallelStatus(view.language, *status), view.Colours().status);
    }
    if (view.switches.show_offset == 0) {
        line(kNoOffset.In(view.language), view.Colours().warning);
    }
}

void PaintParts(const SectionView& view)
{
    const ViewSwitches& switches = view.switches;
    SectionPainter picture(view.window, view.map, view.record, view.Colours(), switches.show_offset != 0);
    const ScopeGeometry& g = picture.Geometry();
    picture.PaintTube();
    picture.PaintFocuser(switches.show_extended_focuser != 0);
    picture.PaintFocalPlane();
    const RayPicture rays = TraceActiveSet(g, view.record, switches, view.pointer);
    picture.PaintRays(rays.segments);
    if (rays.status && !view.IsClear()) {
        PaintStatus(view, *rays.status);
    }
    const auto paintScale = view.IsClear() ? PaintClearScale : PaintScale;
    paintScale(view.window, view.map, ScaleOf(g, view.record), view.Colours().scale, view.pixelScale);
    picture.PaintSecondary();
    if (switches.show_offset == 0 && !view.IsClear()) {
        PaintNoOffset(view, g);
    }
    picture.PaintPrimary();
    if (switches.show_box_and_cage != 0) {
        picture.PaintBoxAndCage();
    }
    if (view.IsClear()) {
        PaintClearTexts(view, rays.status);
    }
}

void PaintPrompt(Surface& window, const ViewSwitches& switches, int language, double pixelScale)
{
    const Font font = kTextFont.Scaled(pixelScale);
    const std::int32_t margin = TruncToInt32(10 * pixelScale + 0.5);
    const std::string text = kNoTelescope.In(language);
    if (switches.high_contrast != 0) {
        window.WrappedText({margin, margin, window.Width() - margin, window.Height()}, text, font,
                           kContrastSection.prompt);
    } else {
        window.Text({margin, margin}, text, font, kUsualSection.prompt);
    }
}

/// The mapping of a window of a size in usual pixels.
SectionMapping MapWindow(COrrevaData& record, const SectionZoom& view, Pixel size,
                         const ViewSwitches& switches)
{
    const Pixel picture = view.PictureSize(size.x, size.y);
    if (switches.high_contrast == 0) {
        return FitSection(record, picture);
    }
    const SectionScale scale = ScaleOf(BuildGeometry(record, switches.show_offset != 0), record);
    return FitSection(record, picture, {scale.y + SectionScale::kTick, ClearScaleRoom(scale)});
}

/// The same picture on a surface of smaller pixels, moved by the view's scroll.
SectionMapping OnSurface(SectionMapping map, const SectionZoom& view, double pixelScale)
{
    map.scale *= pixelScale;
    map.offsetX *= pixelScale;
    map.offsetY *= pixelScale;
    map.scroll = {TruncToInt32(view.scrollX * pixelScale + 0.5),
                  TruncToInt32(view.scrollY * pixelScale + 0.5)};
    return map;
}

} // namespace

double LitPartOfFocalPlane(COrrevaData& record)
{
    const double spare = record.GetFocuserSpare();
    const double Hf = record.GetFocuserHeight();
    const double I = record.GetInsideDiameterHat();
    const double T = record.GetThicknessHat();
    const double Lf = spare + Hf + I / 2 + T;
    const double S = record.GetSecondaryDiameter();
    const double D = record.GetMirrorDiameter();
    const double f = record.GetFocalLength();
    return S - Lf * D / f;
}

void PaintSection(Surface& window, SectionZoom& view, COrrevaData& record, const ViewSwitches& switches,
                  const SectionPointer& pointer, int language, double pixelScale)
{
    const SectionColours& colours = switches.high_contrast != 0 ? kContrastSection : kUsualSection;
    window.FillRect({0, 0, window.Width(), window.Height()}, colours.background);
    const Pixel size{TruncToInt32(window.Width() / pixelScale + 0.5),
                     TruncToInt32(window.Height() / pixelScale + 0.5)};
    if (size.x < kSmallestWindow || size.y < kSmallestWindow) {
        return;
    }
    view.Clamp(size.x, size.y);
    if (!record.HasFile()) {
        PaintPrompt(window, switches, language, pixelScale);
        return;
    }
    const SectionMapping map = MapWindow(record, view, size, switches);
    const Pixel* const pixel = std::get_if<Pixel>(&pointer);
    const Point place = pixel != nullptr ? map.ScreenToWorld(*pixel) : std::get<Point>(pointer);
    PaintParts({window, OnSurface(map, view, pixelScale), record, switches, place, language, pixelScale});
}

Point PlaceInSection(const SectionZoom& view, Pixel size, COrrevaData& record, const ViewSwitches& switches,
                     Pixel at)
{
    return MapWindow(record, view, size, switches).ScreenToWorld(at);
}

void PaintSectionAtScale(Surface& window, COrrevaData& record, double scale)
{
    const Pixel size{window.Width(), window.Height()};
    window.FillRect({0, 0, size.x, size.y}, kUsualSection.background);
    if (size.x >= kSmallestWindow && size.y >= kSmallestWindow) {
        const ViewSwitches usual;
        PaintParts({window, SectionAtScale(record, size, scale), record, usual, Point{}, kEnglish, 1});
    }
}
