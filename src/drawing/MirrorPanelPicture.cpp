#include "drawing/MirrorPanelPicture.h"

#include "drawing/RowLayout.h"
#include "drawing/SidePanelPicture.h"

namespace {

constexpr std::int32_t kMaskSize = 260;
constexpr std::int32_t kReach = 100; // from the mask's centre to the points that the chords run through

/// Concentric rings of two halves each, black and white by turns, and two caps that leave a band across them.
void PaintCouderMask(Surface& surface, std::int32_t top)
{
    const Pixel centre{kLabelLeft + kMaskSize / 2, top + kMaskSize / 2};
    const Pixel left{centre.x - kReach, centre.y};
    const Pixel right{centre.x + kReach, centre.y};

    std::int32_t x = kLabelLeft;
    std::int32_t y = top;
    bool lower_is_black = true;
    for (const std::int32_t d : {250, 200, 150, 100, 50}) {
        const PixelRect box{x + 2, y + 2, x - 2 + d, y - 2 + d};
        surface.Chord(box, left, right, kBlack, lower_is_black ? kBlack : kWhite);
        surface.Chord(box, right, left, kBlack, lower_is_black ? kWhite : kBlack);
        lower_is_black = !lower_is_black;
        x += 25;
        y += 25;
    }

    constexpr std::int32_t kHalfBand = 30;
    const PixelRect biggest{kLabelLeft + 2, top + 2, kLabelLeft + 248, top + 248};
    surface.Chord(biggest, {left.x, left.y + kHalfBand}, {right.x, right.y + kHalfBand}, kBlack, kBlack);
    surface.Chord(biggest, {right.x, right.y - kHalfBand}, {left.x, left.y - kHalfBand}, kBlack, kBlack);
}

} // namespace

void PaintMirrorPanel(Surface& surface, COrrevaData& record, Colour background, Colour text)
{
    PaintPanelBackground(surface, background);
    const std::int32_t y = PaintSidePanelRows(surface, MirrorPanelRows(record), text);
    PaintThinLine(surface, y);
    PaintCouderMask(surface, y);
}
