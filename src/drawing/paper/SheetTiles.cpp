#include "drawing/paper/SheetParts.h"
#include "drawing/paper/TextWidth.h"
#include "lib/text/CodePage.h"
#include "lib/text/FormatText.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <memory>

namespace {

constexpr double kOverlap = 10;     // of neighbours, mm
constexpr double kJointArm = 4;     // of the crosses in it
constexpr double kControl = 100;    // length of the lines that are held against a rule
constexpr double kControlLine = 7;  // their way off the edge
constexpr double kControlTick = .8; // half of the ticks at their ends

constexpr Bilingual kTooManyPages{"more than 100 pages would be needed",
                                  "es würden mehr als 100 Seiten gebraucht"_cp1252};
constexpr Bilingual kFullSize{"print at 100 %: both control lines measure 100 mm",
                              "mit 100 % drucken: beide Kontrolllinien messen 100 mm"};

/// How a drawing is parted: `columns` by `rows` tiles of the same size, the first one beginning at `first`.
struct Tiling {
    double page_width = 0;
    double page_height = 0;
    double columns = 1; // doubles: a mirror may be as large as any number
    double rows = 1;
    Point first{};

    double Width() const { return page_width - 2 * kSheetMargin; }
    double Height() const { return page_height - 2 * kSheetMargin; }
    double Count() const { return columns * rows; }
    SheetBox Tile(std::int32_t column, std::int32_t row) const
    {
        const Point low{first.x + column * (Width() - kOverlap), first.y + row * (Height() - kOverlap)};
        return {low, {low.x + Width(), low.y + Height()}};
    }
};

double TilesFor(double length, double room)
{
    constexpr double kRounding = 1e-6;
    return length <= room + kRounding ? 1 : std::ceil((length - kOverlap - kRounding) / (room - kOverlap));
}

Tiling TilingOn(const SheetBox& box, double page_width, double page_height)
{
    Tiling tiling{page_width, page_height};
    tiling.columns = TilesFor(box.Width(), tiling.Width());
    tiling.rows = TilesFor(box.Height(), tiling.Height());
    const Point middle = box.Middle();
    tiling.first = {middle.x - (tiling.columns * (tiling.Width() - kOverlap) + kOverlap) / 2,
                    middle.y - (tiling.rows * (tiling.Height() - kOverlap) + kOverlap) / 2};
    return tiling;
}

Tiling BestTiling(const SheetContent& content, const PaperSize& paper)
{
    const SheetBox& box = content.drawing.box;
    const Tiling upright = TilingOn(box, paper.width, paper.height);
    const Tiling lying = TilingOn(box, paper.height, paper.width);
    return content.fitted || lying.Count() < upright.Count() ? lying : upright;
}

/// Crosses in the overlaps, at the quarters of each tile's side: they lie on one another once the tiles meet.
void AddJoints(SheetDrawing& drawing, const Tiling& tiling)
{
    const auto columns = static_cast<std::int32_t>(tiling.columns);
    const auto rows = static_cast<std::int32_t>(tiling.rows);
    for (std::int32_t row = 0; row < rows; ++row) {
        for (std::int32_t column = 0; column < columns; ++column) {
            const SheetBox tile = tiling.Tile(column, row);
            for (const double share : {0.25, 0.75}) {
                if (column > 0) {
                    drawing.Cross({tile.low.x + kOverlap / 2, tile.low.y + share * tile.Height()}, kJointArm);
                }
                if (row > 0) {
                    drawing.Cross({tile.low.x + share * tile.Width(), tile.low.y + kOverlap / 2}, kJointArm);
                }
            }
        }
    }
}

/// The two lines, in the margin, where no drawing is.
void PaintControlLines(Surface& page, double width, double height)
{
    const auto line = [&](Point from, Point to) { page.Line(PaperPixel(from), PaperPixel(to), kSheetInk); };
    const double left = std::round((width - kControl) / 2);
    const double top = std::round((height - kControl) / 2);
    const double y = height - kControlLine;
    const double x = kControlLine;
    line({left, y}, {left + kControl, y});
    line({x, top}, {x, top + kControl});
    for (const double end : {0.0, kControl}) {
        line({left + end, y - kControlTick}, {left + end, y + kControlTick});
        line({x - kControlTick, top + end}, {x + kControlTick, top + end});
    }
}

struct LabelLine {
    std::string text;
    Font font;
};

/// The words of a page, as a block that looks for the emptiest place of the tile.
class LabelBlock {
public:
    LabelBlock(const SheetContent& content, const SheetLabels& labels, std::int32_t page, std::int32_t pages)
    {
        Add(labels.title, PaperFont(3.6, Font::kBold));
        Add(labels.name, PaperFont(3));
        Add(FormatText("1:%d   %d / %d", content.scale, page, pages), PaperFont(3));
        if (!content.fitted) {
            Add(kFullSize.In(labels.language), PaperFont(3));
        }
    }

    void Paint(Surface& page, const SheetDrawing& drawing, const SheetWindow& window) const
    {
        const Point at = EmptiestPlace(drawing, window.part);
        double y = at.y - window.part.low.y + window.corner.y;
        for (const LabelLine& line : m_lines) {
            page.Text(PaperPixel({at.x - window.part.low.x + window.corner.x, y}), line.text, line.font,
                      kSheetInk);
            y += line.font.height / kUnitsPerMm;
        }
    }

private:
    void Add(const std::string& text, const Font& font)
    {
        constexpr double kWidest = 90; // mm
        m_lines.push_back({CutToWidth(text, font, kWidest * kUnitsPerMm), font});
        m_width = std::max(m_width, TextWidth(m_lines.back().text, font) / kUnitsPerMm);
        m_height += font.height / kUnitsPerMm;
    }

    /// Of the corners, the middles of the sides and the middle, the first that covers least.
    Point EmptiestPlace(const SheetDrawing& drawing, const SheetBox& tile) const
    {
        constexpr double kGap = 1; // from the tile's edge, mm
        Point best{};
        std::size_t fewest = std::numeric_limits<std::size_t>::max();
        for (const double down : {0.0, 1.0, 0.5}) {
            for (const double across : {0.0, 1.0, 0.5}) {
                const Point at{tile.low.x + kGap + across * (tile.Width() - 2 * kGap - m_width),
                               tile.low.y + kGap + down * (tile.Height() - 2 * kGap - m_height)};
                const std::size_t covered = CountIn(drawing, {at, {at.x + m_width, at.y + m_height}});
                if (covered < fewest) {
                    fewest = covered;
                    best = at;
                }
            }
        }
        return best;
    }

    std::vector<LabelLine> m_lines;
    double m_width = 0;
    double m_height = 0;
};

} // namespace

SheetPages TileSheet(const SheetContent& content, const SheetLabels& labels, const PaperSize& paper)
{
    const Tiling tiling = BestTiling(content, paper);
    if (!(tiling.Count() <= kMostSheetPages)) {
        return {{}, kTooManyPages};
    }
    auto drawn = std::make_shared<SheetContent>(content);
    AddJoints(drawn->drawing, tiling);
    const auto pages = static_cast<std::int32_t>(tiling.Count());
    const auto columns = static_cast<std::int32_t>(tiling.columns);
    SheetPages sheet;
    for (std::int32_t i = 0; i < pages; ++i) {
        const SheetWindow window{tiling.Tile(i % columns, i / columns), {kSheetMargin, kSheetMargin}};
        const LabelBlock block(content, labels, i + 1, pages);
        sheet.pages.push_back(
            {tiling.page_width, tiling.page_height,
             [drawn, window, block, width = tiling.page_width, height = tiling.page_height](Surface& page) {
                 PaintDrawing(page, drawn->drawing, window);
                 if (!drawn->fitted) {
                     PaintControlLines(page, width, height);
                 }
                 block.Paint(page, drawn->drawing, window);
             }});
    }
    return sheet;
}
