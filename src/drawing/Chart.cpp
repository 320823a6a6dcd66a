#include "drawing/Chart.h"

#include "drawing/ChartLabels.h"
#include "drawing/ChartLayout.h"
#include "drawing/ClipSegment.h"
#include "drawing/LabelLayout.h"
#include "lib/text/Numbers.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr std::int32_t kDash = 4;
constexpr std::int32_t kDotRadius = 3;

bool IsFinite(Point at) { return std::isfinite(at.x) && std::isfinite(at.y); }

/// Nearer to the surface, for places so far off that the way from there would lose the pixels here; finite
/// ones alone.
Point Nearer(Point at)
{
    constexpr double kFar = 1e7;
    return {std::clamp(at.x, -kFar, kFar), std::clamp(at.y, -kFar, kFar)};
}

Point OnWay(Point from, Point to, double share)
{
    return {from.x + (to.x - from.x) * share, from.y + (to.y - from.y) * share};
}

Point PlaceOf(std::int32_t x, std::int32_t y) { return {static_cast<double>(x), static_cast<double>(y)}; }

/// Paints a chart, part after part.
class ChartPainter {
public:
    ChartPainter(Surface& surface, const Chart& chart, const ChartColours& colours, std::int32_t fontHeight)
        : m_surface(surface), m_chart(chart), m_colours(colours),
          m_layout(LayOutChart(chart, surface.Width(), surface.Height(), fontHeight)),
          m_labels(m_layout.plot.rect, m_layout.font_height), m_font{.height = m_layout.font_height}
    {}

    void Paint()
    {
        m_surface.FillRect({0, 0, m_surface.Width(), m_surface.Height()}, m_colours.background);
        Font bold = m_font;
        bold.weight = Font::kBold;
        if (!m_chart.title.empty()) {
            m_surface.Text(m_layout.title, m_chart.title, bold, m_colours.text);
        }
        if (m_layout.plot.IsEmpty()) {
            return;
        }
        PaintZones();
        PaintAxes();
        PaintMarkLines();
        PaintLines();
        PaintNames();
        PaintBand();
        PaintDots();
        PaintMarkLabels();
        PaintMessage();
    }

private:
    const PixelRect& Rect() const { return m_layout.plot.rect; }
    std::int32_t Right() const { return Rect().right - 1; }
    std::int32_t Bottom() const { return Rect().bottom - 1; }
    std::int32_t ColumnOf(double x) const { return NearestPixel(m_layout.plot.PixelOf({x, 0})).x; }
    std::int32_t RowOf(double y, ChartSide side = ChartSide::kLeft) const
    {
        return NearestPixel(m_layout.plot.PixelOf({0, y}, side)).y;
    }
    std::int32_t WidthOf(const std::string& text) const { return ChartTextWidth(text, m_font.height); }

    void PaintZones()
    {
        for (const ChartZone& zone : m_chart.zones) {
            const std::int32_t top = std::clamp(RowOf(zone.y.to), Rect().top, Rect().bottom);
            const std::int32_t bottom = std::clamp(RowOf(zone.y.from), Rect().top, Rect().bottom);
            m_surface.FillRect({Rect().left, top, Rect().right, bottom}, zone.colour);
        }
    }

    // Axes -------------------------------------------------------------------------------------------------

    void PaintAxes()
    {
        for (const ChartTick& tick : m_layout.bottom) {
            const std::int32_t x = ColumnOf(tick.value);
            m_surface.Line({x, Rect().top}, {x, Bottom()}, m_colours.grid);
        }
        for (const ChartTick& tick : m_layout.left) {
            const std::int32_t y = RowOf(tick.value);
            m_surface.Line({Rect().left, y}, {Right(), y}, m_colours.grid);
        }
        PaintFrame();
        PaintBottomAxis();
        PaintLeftAxis();
        if (m_chart.top) {
            PaintTopAxis(*m_chart.top);
        }
        if (m_chart.right) {
            PaintRightAxis(*m_chart.right);
        }
    }

    void PaintFrame()
    {
        const Pixel corners[] = {
            {Rect().left, Rect().top}, {Right(), Rect().top}, {Right(), Bottom()}, {Rect().left, Bottom()}};
        for (std::size_t i = 0; i < 4; ++i) {
            m_surface.Line(corners[i], corners[(i + 1) % 4], m_colours.frame);
        }
    }

    /// Below the coloured band, if there is one.
    std::int32_t UnderBand() const
    {
        return m_chart.band.empty() ? Rect().bottom : m_layout.band_top + ChartBandHeight(m_font.height);
    }

    void PaintBottomAxis()
    {
        const std::int32_t y = UnderBand();
        for (const ChartTick& tick : m_layout.bottom) {
            PaintTickAcross(tick, y, y + kTickLength - 1, y + kTickLength + 1);
        }
        PaintCentred(m_chart.bottom.title, y + kTickLength + m_font.height + 2);
    }

    void PaintTopAxis(const ChartAxis& axis)
    {
        const std::int32_t y = Rect().top - 1;
        for (const ChartTick& tick : m_layout.top) {
            PaintTickAcross(tick, y, y - kTickLength + 1, y - kTickLength - m_font.height);
        }
        PaintCentred(axis.title, y - kTickLength - 2 * m_font.height - 2);
    }

    void PaintTickAcross(const ChartTick& tick, std::int32_t from, std::int32_t to, std::int32_t textTop)
    {
        const std::int32_t x = ColumnOf(tick.value);
        m_surface.Line({x, from}, {x, to}, m_colours.frame);
        if (!tick.text.empty()) {
            m_surface.Text({x - WidthOf(tick.text) / 2, textTop}, tick.text, m_font, m_colours.text);
        }
    }

    void PaintCentred(const std::string& title, std::int32_t top)
    {
        if (!title.empty()) {
            const std::int32_t middle = (Rect().left + Rect().right - WidthOf(title)) / 2;
            m_surface.Text({std::max(middle, 0), top}, title, m_font, m_colours.text);
        }
    }

    void PaintLeftAxis()
    {
        const std::int32_t x = Rect().left - 1;
        for (const ChartTick& tick : m_layout.left) {
            const std::int32_t y = RowOf(tick.value);
            m_surface.Line({x - kTickLength + 1, y}, {x, y}, m_colours.frame);
            PaintTickText(tick, x - kTickLength - 1 - WidthOf(tick.text), y);
        }
        PaintUpright(m_chart.left.title, 2);
    }

    void PaintRightAxis(const ChartAxis& axis)
    {
        for (const ChartTick& tick : m_layout.right) {
            const std::int32_t y = RowOf(tick.value, ChartSide::kRight);
            m_surface.Line({Rect().right, y}, {Rect().right + kTickLength - 1, y}, m_colours.frame);
            PaintTickText(tick, Rect().right + kTickLength + 2, y);
        }
        PaintUpright(axis.title, m_surface.Width() - m_font.height - 2);
    }

    void PaintTickText(const ChartTick& tick, std::int32_t x, std::int32_t y)
    {
        if (!tick.text.empty()) {
            m_surface.Text({x, y - m_font.height / 2}, tick.text, m_font, m_colours.text);
        }
    }

    void PaintUpright(const std::string& title, std::int32_t x)
    {
        if (!title.empty()) {
            Font upright = m_font;
            upright.upright = true;
            const std::int32_t start = (Rect().top + Rect().bottom + WidthOf(title)) / 2;
            m_surface.Text({x, std::min(start, m_surface.Height())}, title, upright, m_colours.text);
        }
    }

    // Lines ------------------------------------------------------------------------------------------------

    void PaintLines()
    {
        for (const ChartLine& line : m_chart.lines) {
            for (std::size_t i = 0; i + 1 < line.points.size(); ++i) {
                const Point from = m_layout.plot.PixelOf(line.points[i], line.side);
                const Point to = m_layout.plot.PixelOf(line.points[i + 1], line.side);
                if (IsFinite(from) && IsFinite(to)) {
                    PaintPiece(line, from, to);
                }
            }
        }
    }

    void PaintPiece(const ChartLine& line, Point from, Point to)
    {
        from = Nearer(from);
        to = Nearer(to);
        const auto part = ClipSegment(from, to, PlaceOf(Rect().left, Rect().top), PlaceOf(Right(), Bottom()));
        if (!part) {
            return;
        }
        const Point first = OnWay(from, to, part->enter);
        const Point last = OnWay(from, to, part->leave);
        m_labels.AddLine(first, last);
        const Pixel start = NearestPixel(first);
        const Pixel end = NearestPixel(last);
        m_surface.Line(start, end, line.colour);
        if (line.bold) {
            // A second line beside it, across the way that it goes.
            const bool flat = std::abs(end.x - start.x) >= std::abs(end.y - start.y);
            const Pixel aside{flat ? 0 : 1, flat ? 1 : 0};
            m_surface.Line({start.x + aside.x, start.y + aside.y}, {end.x + aside.x, end.y + aside.y},
                           line.colour);
        }
    }

    void PaintNames()
    {
        std::size_t named = 0;
        for (const ChartLine& line : m_chart.lines) {
            if (line.name.empty()) {
                continue;
            }
            const Pixel at = m_layout.names[named++];
            const std::int32_t sample = ChartSampleWidth(m_font.height);
            const std::int32_t middle = at.y + m_font.height / 2;
            m_surface.FillRect({at.x, middle - 1, at.x + sample - 6, middle + (line.bold ? 2 : 1)},
                               line.colour);
            m_surface.Text({at.x + sample, at.y}, line.name, m_font, m_colours.text);
        }
    }

    // Marks ------------------------------------------------------------------------------------------------

    bool IsOnAxis(double value, const ChartRange& range) const
    {
        const double share = ShareOf(value, range);
        return share >= 0 && share <= 1;
    }

    void PaintMarkLines()
    {
        for (const ChartMark& mark : m_chart.uprights) {
            if (IsOnAxis(mark.at, m_layout.plot.x)) {
                const std::int32_t x = ColumnOf(mark.at);
                PaintMarkLine({x, Rect().top}, {x, Bottom()}, mark);
            }
        }
        for (const ChartMark& mark : m_chart.levels) {
            if (IsOnAxis(mark.at, m_layout.plot.left)) {
                const std::int32_t y = RowOf(mark.at);
                PaintMarkLine({Rect().left, y}, {Right(), y}, mark);
            }
        }
    }

    void PaintMarkLine(Pixel from, Pixel to, const ChartMark& mark)
    {
        m_labels.AddLine(PlaceOf(from.x, from.y), PlaceOf(to.x, to.y));
        if (mark.solid) {
            m_surface.Line(from, to, mark.colour);
            return;
        }
        const bool level = from.y == to.y;
        const std::int32_t length = level ? to.x - from.x : to.y - from.y;
        for (std::int32_t at = 0; at <= length; at += 2 * kDash) {
            const std::int32_t end = std::min(at + kDash - 1, length);
            m_surface.Line({level ? from.x + at : from.x, level ? from.y : from.y + at},
                           {level ? from.x + end : from.x, level ? from.y : from.y + end}, mark.colour);
        }
    }

    void PaintMarkLabels()
    {
        std::vector<Pixel> places;
        for (const ChartMark& mark : m_chart.uprights) {
            if (!mark.label.empty() && IsOnAxis(mark.at, m_layout.plot.x)) {
                const std::int32_t x = ColumnOf(mark.at);
                places.clear();
                for (std::int32_t y = Rect().top + 3; y + m_font.height < Bottom(); y += m_font.height / 2) {
                    places.push_back({x + 4, y});
                    places.push_back({x - 4 - WidthOf(mark.label), y});
                }
                PaintLabel(places, mark.label);
            }
        }
        for (const ChartMark& mark : m_chart.levels) {
            if (!mark.label.empty() && IsOnAxis(mark.at, m_layout.plot.left)) {
                const std::int32_t y = RowOf(mark.at);
                places.clear();
                for (std::int32_t x = Right() - 4 - WidthOf(mark.label); x > Rect().left;
                     x -= m_font.height) {
                    places.push_back({x, y - m_font.height - 2});
                    places.push_back({x, y + 3});
                }
                PaintLabel(places, mark.label);
            }
        }
    }

    void PaintLabel(const std::vector<Pixel>& places, const std::string& label)
    {
        if (const auto at = m_labels.Take(places, label)) {
            m_surface.Text(*at, label, m_font, m_colours.text);
        }
    }

    void PaintDots()
    {
        for (const ChartDot& dot : m_chart.dots) {
            const Point place = m_layout.plot.PixelOf(dot.at, dot.side);
            const Pixel at = NearestPixel(place);
            if (!IsFinite(place) || !m_layout.plot.Has(at)) {
                continue;
            }
            for (std::int32_t y = -kDotRadius; y <= kDotRadius; ++y) {
                const std::int32_t half = kDotRadius - (std::abs(y) > 1 ? std::abs(y) - 1 : 0);
                m_surface.FillRect({at.x - half, at.y + y, at.x + half + 1, at.y + y + 1}, dot.colour);
            }
            m_labels.AddLine(place, place);
            if (!dot.label.empty()) {
                PaintLabel(PlacesBeside(at, WidthOf(dot.label)), dot.label);
            }
        }
    }

    std::vector<Pixel> PlacesBeside(Pixel at, std::int32_t width) const
    {
        constexpr std::int32_t kOff = kDotRadius + 3;
        std::vector<Pixel> places;
        for (const std::int32_t down : {-m_font.height - kOff, kOff, -m_font.height / 2}) {
            for (const std::int32_t across : {kOff, -kOff - width, -width / 2}) {
                places.push_back({at.x + across, at.y + down});
            }
        }
        return places;
    }

    // The rest ---------------------------------------------------------------------------------------------

    void PaintBand()
    {
        const std::int32_t bottom = m_layout.band_top + ChartBandHeight(m_font.height);
        for (const ChartStretch& stretch : m_chart.band) {
            const std::int32_t left = std::clamp(ColumnOf(stretch.x.from), Rect().left, Rect().right);
            const std::int32_t right = std::clamp(ColumnOf(stretch.x.to), Rect().left, Rect().right);
            if (left >= right) {
                continue;
            }
            m_surface.FillRect({left, m_layout.band_top, right, bottom}, stretch.colour);
            const std::int32_t spare = right - left - WidthOf(stretch.name);
            if (spare >= 4 && !stretch.name.empty()) {
                m_surface.Text({left + spare / 2, m_layout.band_top + 1}, stretch.name, m_font, stretch.text);
            }
        }
    }

    void PaintMessage()
    {
        if (!m_chart.message.empty()) {
            m_surface.WrappedText({Rect().left + m_font.height,
                                   (Rect().top + Rect().bottom - m_font.height) / 2,
                                   Rect().right - m_font.height, Rect().bottom},
                                  m_chart.message, m_font, m_colours.text);
        }
    }

    Surface& m_surface;
    const Chart& m_chart;
    const ChartColours& m_colours;
    ChartLayout m_layout;
    ChartLabels m_labels;
    Font m_font;
};

} // namespace

ChartPlot PlotOf(const Chart& chart, std::int32_t width, std::int32_t height, std::int32_t fontHeight)
{
    return LayOutChart(chart, width, height, fontHeight).plot;
}

void PaintChart(Surface& surface, const Chart& chart, const ChartColours& colours, std::int32_t fontHeight)
{
    ChartPainter(surface, chart, colours, fontHeight).Paint();
}
