#include "drawing/paper/SheetParts.h"
#include "lib/text/CodePage.h"
#include "lib/text/FormatText.h"
#include "raytrace/ScopeGeometry.h"

#include <algorithm>
#include <cmath>
#include <initializer_list>

namespace {

constexpr Bilingual kNoTube{"the tube has no measures", "der Tubus hat keine Maße"_cp1252};

constexpr Bilingual kHole{"focuser hole Ø %0.1f"_cp1252, "Bohrung Focuser Ø %0.1f"_cp1252};
constexpr Bilingual kFrontToHole{"front to focuser %0.1f", "Vorderkante bis Focuser %0.1f"};
constexpr Bilingual kHoleToMirror{"focuser to primary %0.1f", "Focuser bis Hauptspiegel %0.1f"};
constexpr Bilingual kThickness{"primary's thickness %0.1f", "Dicke des Hauptspiegels %0.1f"};
constexpr Bilingual kMirrorToRear{"primary to rear %0.1f", "Hauptspiegel bis Hinterkante %0.1f"};
constexpr Bilingual kCage{"upper cage %0.1f", "Hut %0.1f"};
constexpr Bilingual kBetween{"gap %0.1f", "Abstand %0.1f"};
constexpr Bilingual kMirrorBox{"mirror box %0.1f", "Spiegelbox %0.1f"};
constexpr Bilingual kLength{"length %0.1f", "Länge %0.1f"_cp1252};
constexpr Bilingual kInside{"inside Ø %0.1f"_cp1252, "innen Ø %0.1f"_cp1252};
constexpr Bilingual kOutside{"outside Ø %0.1f"_cp1252, "außen Ø %0.1f"_cp1252};
constexpr Bilingual kBoxInside{"box inside Ø %0.1f"_cp1252, "Box innen Ø %0.1f"_cp1252};
constexpr Bilingual kBoxOutside{"box outside Ø %0.1f"_cp1252, "Box außen Ø %0.1f"_cp1252};
constexpr Bilingual kMirrorAcross{"primary Ø %0.1f"_cp1252, "Hauptspiegel Ø %0.1f"_cp1252};

constexpr double kRow = 6;         // distance of the lines of measures, mm of paper
constexpr double kMeasureText = 3; // height of their texts
constexpr double kArrow = 1.6;     // length of their arrows' heads

/// The tube from the side, mm: x from its front, y off its axis.
struct TubeMeasuresMm {
    double length;
    double hole_at;
    double hole;
    double mirror_at; ///< its face
    double thickness;
    double mirror;
    double inside;
    double outside;
    bool truss;
    double cage;
    double box;
    double box_inside;
    double box_outside;
};

TubeMeasuresMm ReadTubeMeasuresMm(COrrevaData& record)
{
    const ScopeGeometry g = BuildGeometry(record, true);
    TubeMeasuresMm tube{};
    tube.length = g.tubeLength;
    tube.hole_at = g.distanceFront;
    tube.hole = record.GetFocuserDiameter();
    tube.thickness = record.GetMirrorThickness();
    tube.mirror_at = g.mirrorX - g.frontX;
    tube.mirror = record.GetMirrorDiameter();
    tube.inside = record.GetInsideDiameterHat();
    tube.outside = g.tubeWidth;
    tube.truss = record.GetTubeType() > 0;
    tube.cage = record.GetHeightHat();
    tube.box = record.GetHeightBox();
    tube.box_inside = record.GetInsideDiameterBox();
    tube.box_outside = tube.box_inside + 2 * record.GetThicknessBox();
    return tube;
}

bool IsDrawable(const TubeMeasuresMm& tube)
{
    const auto finite = [](std::initializer_list<double> numbers) {
        return std::ranges::all_of(numbers, [](double number) { return std::isfinite(number); });
    };
    return tube.length > 0 &&
           finite({tube.length, tube.hole_at, tube.hole, tube.mirror_at, tube.thickness, tube.mirror,
                   tube.inside, tube.outside, tube.cage, tube.box, tube.box_inside, tube.box_outside});
}

/// Draws a tube at a scale, part by part.
class TubeDrawer {
public:
    TubeDrawer(const TubeMeasuresMm& measures, std::int32_t scale, int words)
        : m_tube(measures), m_scale(scale), m_language(words)
    {}

    SheetDrawing Draw()
    {
        m_widest = m_tube.truss ? std::max(m_tube.outside, m_tube.box_outside) : m_tube.outside;
        m_widest = std::max(m_widest, m_tube.mirror);
        if (m_tube.truss) {
            DrawTruss();
        } else {
            DrawWalls(0, m_tube.length, m_tube.inside, m_tube.outside);
        }
        Line({0, 0}, {m_tube.length, 0}, kSheetHelp);
        Rect(m_tube.mirror_at, m_tube.mirror_at + m_tube.thickness, m_tube.mirror);
        DrawHole();
        MeasureAlong();
        MeasureAcross();
        m_drawing.box = Extent();
        return std::move(m_drawing);
    }

private:
    Point OnPaper(Point at) const { return {at.x / m_scale, at.y / m_scale}; }
    void Line(Point from, Point to, Colour colour = kSheetInk)
    {
        m_drawing.lines.push_back({OnPaper(from), OnPaper(to), colour});
    }
    void Rect(double from, double to, double width)
    {
        m_drawing.Rect({OnPaper({from, -width / 2}), OnPaper({to, width / 2})});
    }
    void DrawWalls(double from, double to, double inside, double outside)
    {
        Rect(from, to, outside);
        Line({from, -inside / 2}, {to, -inside / 2});
        Line({from, inside / 2}, {to, inside / 2});
    }
    void DrawTruss()
    {
        const double boxAt = m_tube.length - m_tube.box;
        DrawWalls(0, m_tube.cage, m_tube.inside, m_tube.outside);
        DrawWalls(boxAt, m_tube.length, m_tube.box_inside, m_tube.box_outside);
        for (const double side : {-0.5, 0.5}) {
            Line({m_tube.cage, side * m_tube.outside}, {boxAt, side * m_tube.box_outside}, kSheetHelp);
        }
    }
    void DrawHole()
    {
        for (const double side : {-0.5, 0.5}) {
            const double x = m_tube.hole_at + side * m_tube.hole;
            Line({x, -m_tube.outside / 2}, {x, -m_tube.inside / 2});
        }
        Line({m_tube.hole_at, -m_tube.outside / 2}, {m_tube.hole_at, 0}, kSheetHelp);
    }

    // Measures ---------------------------------------------------------------------------------------------

    void MeasureAlong()
    {
        const TubeMeasuresMm& t = m_tube;
        Above(t.hole_at - t.hole / 2, t.hole_at + t.hole / 2, kHole, t.hole);
        Above(0, t.hole_at, kFrontToHole, t.hole_at);
        Above(t.hole_at, t.mirror_at, kHoleToMirror, t.mirror_at - t.hole_at);
        const double back = t.mirror_at + t.thickness;
        Below(t.mirror_at, back, kThickness, t.thickness);
        Below(back, t.length, kMirrorToRear, t.length - back);
        if (t.truss) {
            const double boxAt = t.length - t.box;
            Below(boxAt, t.length, kMirrorBox, t.box);
            Below(t.cage, boxAt, kBetween, boxAt - t.cage);
            Below(0, t.cage, kCage, t.cage);
        }
        Below(0, t.length, kLength, t.length);
    }

    void MeasureAcross()
    {
        Across(-kRow, 0, m_tube.inside, kInside);
        Across(-2 * kRow, 0, m_tube.outside, kOutside);
        const double rear = m_tube.length / m_scale;
        Across(rear + kRow, m_tube.mirror_at + m_tube.thickness, m_tube.mirror, kMirrorAcross);
        if (m_tube.truss) {
            Across(rear + 2 * kRow, m_tube.length, m_tube.box_inside, kBoxInside);
            Across(rear + 3 * kRow, m_tube.length, m_tube.box_outside, kBoxOutside);
        }
    }

    void Above(double from, double to, const Bilingual& words, double value)
    {
        Along(-m_widest / m_scale / 2 - ++m_above * kRow, from, to, FormatText(words.In(m_language), value));
    }
    void Below(double from, double to, const Bilingual& words, double value)
    {
        Along(m_widest / m_scale / 2 + ++m_below * kRow, from, to, FormatText(words.In(m_language), value));
    }

    /// A measure on the line y of the paper; its text stands above it, or behind its end if it is longer.
    void Along(double y, double from, double to, std::string text)
    {
        const double start = std::min(from, to) / m_scale;
        const double end = std::max(from, to) / m_scale;
        const double near = y < 0 ? -m_tube.outside / m_scale / 2 : m_tube.outside / m_scale / 2;
        for (const double x : {start, end}) {
            m_drawing.lines.push_back({{x, near}, {x, y + (y < 0 ? -1 : 1)}, kSheetHelp});
        }
        Arrows({start, y}, {end, y});
        SheetText words{{(start + end) / 2, y - kMeasureText / 2 - 0.3}, std::move(text), kMeasureText};
        const double half = words.HalfSize().x;
        if (2 * half > end - start) {
            const double rear = m_tube.length / m_scale;
            const bool after = end + 1 + 2 * half <= rear + 3 * kRow;
            words.middle = {after ? end + 1 + half : start - 1 - half, y};
        }
        m_drawing.texts.push_back(std::move(words));
    }

    /// A measure across the tube on the line x of the paper, of what ends at `of` along the tube.
    void Across(double x, double of, double width, const Bilingual& words)
    {
        const double half = width / m_scale / 2;
        for (const double y : {-half, half}) {
            m_drawing.lines.push_back({{of / m_scale, y}, {x + (x < 0 ? -1 : 1), y}, kSheetHelp});
        }
        Arrows({x, -half}, {x, half});
        SheetText text{
            {x - kMeasureText / 2 - 0.3, 0}, FormatText(words.In(m_language), width), kMeasureText};
        text.upright = true;
        m_drawing.texts.push_back(std::move(text));
    }

    void Arrows(Point from, Point to)
    {
        m_drawing.lines.push_back({from, to});
        const double length = std::hypot(to.x - from.x, to.y - from.y);
        const double head = std::min(kArrow, length / 3);
        const Point along{to.x > from.x ? 1.0 : 0.0, to.y > from.y ? 1.0 : 0.0};
        for (const double side : {-0.3, 0.3}) {
            const Point back{head * (along.x + side * along.y), head * (along.y + side * along.x)};
            m_drawing.lines.push_back({from, {from.x + back.x, from.y + back.y}});
            m_drawing.lines.push_back({to, {to.x - back.x, to.y - back.y}});
        }
    }

    SheetBox Extent() const
    {
        SheetBox box{{0, 0}, {0, 0}};
        const auto add = [&box](Point at) {
            box.low = {std::min(box.low.x, at.x), std::min(box.low.y, at.y)};
            box.high = {std::max(box.high.x, at.x), std::max(box.high.y, at.y)};
        };
        for (const SheetLine& line : m_drawing.lines) {
            add(line.from);
            add(line.to);
        }
        for (const SheetText& text : m_drawing.texts) {
            const Point half = text.HalfSize();
            add({text.middle.x - half.x, text.middle.y - half.y});
            add({text.middle.x + half.x, text.middle.y + half.y});
        }
        return box;
    }

    const TubeMeasuresMm& m_tube;
    std::int32_t m_scale;
    int m_language;
    SheetDrawing m_drawing{};
    double m_widest = 0; ///< mm of the telescope
    int m_above = 0;     ///< lines of measures so far
    int m_below = 0;
};

/// The scales that builders draw in; ten times and a hundred times as much, and so on.
constexpr std::int32_t kScales[] = {10, 12, 15, 20, 25, 30, 40, 50, 60, 80};
constexpr std::int32_t kSmallScales[] = {1, 2, 3, 4, 5, 6, 8};
constexpr std::int32_t kLargestPower = 1000000;

/// The first drawing that fits into the room, from the largest on.
bool DrawFitting(const TubeMeasuresMm& tube, double width, double height, int language, SheetContent& sheet)
{
    const auto fits = [&](std::int32_t scale) {
        sheet.scale = scale;
        sheet.drawing = TubeDrawer(tube, scale, language).Draw();
        return sheet.drawing.box.Width() <= width && sheet.drawing.box.Height() <= height;
    };
    if (std::ranges::any_of(kSmallScales, fits)) {
        return true;
    }
    for (std::int32_t power = 1; power <= kLargestPower; power *= 10) {
        if (std::ranges::any_of(kScales, [&](std::int32_t scale) { return fits(scale * power); })) {
            return true;
        }
    }
    return false;
}

} // namespace

SheetResult TubeSheet(COrrevaData& record, double width, double height, int language)
{
    const TubeMeasuresMm tube = ReadTubeMeasuresMm(record);
    SheetContent sheet;
    sheet.fitted = true;
    if (!IsDrawable(tube) || !DrawFitting(tube, width, height, language, sheet)) {
        return kNoTube;
    }
    return sheet;
}
