#include "drawing/MirrorPanelPicture.h"

#include "model/record/OrrevaData.h"
#include "painting/PainterSurface.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>

namespace {

constexpr QRgb kDialog = 0xFFEFEFEF;
constexpr QRgb kBlackPixel = 0xFF000000;
constexpr QRgb kWhitePixel = 0xFFFFFFFF;

QImage PaintedPanel()
{
    COrrevaData record;
    record.SetMirrorDiameter(200);
    record.SetFocalLength(1200);
    QImage image(285, 330, QImage::Format_RGB32);
    QPainter painter(&image);
    PainterSurface surface(painter, image.width(), image.height());
    PaintMirrorPanel(surface, record, {0xEF, 0xEF, 0xEF});
    return image;
}

// The rings stand around (127, 173) with radii of 123, 98, 73, 48 and 23 pixels.
TEST(MirrorPanelPixels, TheHalvesOfTheRingsAreWhiteAndBlackByTurns)
{
    const QImage image = PaintedPanel();
    const int middles[] = {110, 85, 60, 35, 0};
    for (std::size_t ring = 0; ring < std::size(middles); ++ring) {
        const QRgb upper = ring % 2 == 0 ? kWhitePixel : kBlackPixel;
        const QRgb lower = ring % 2 == 0 ? kBlackPixel : kWhitePixel;
        for (const int x : {127 - middles[ring], 127 + middles[ring]}) {
            EXPECT_EQ(upper, image.pixel(x, 165)) << "above the middle, ring " << ring << " at " << x;
            EXPECT_EQ(lower, image.pixel(x, 190)) << "below the middle, ring " << ring << " at " << x;
        }
    }
}

TEST(MirrorPanelPixels, TwoBlackCapsLeaveABandAcrossTheRings)
{
    // Chords to where the directions of (32, 208) and (232, 208) leave the circle, at heights of 216 and 212,
    // and those of (32, 148) and (232, 148), at 142 and 145.
    const QImage image = PaintedPanel();
    for (const int y : {60, 85, 100, 130, 139, 218, 230, 258, 285}) {
        EXPECT_EQ(kBlackPixel, image.pixel(127, y)) << y;
        EXPECT_EQ(kBlackPixel, image.pixel(115, y)) << y;
    }
    // White within the band: the second ring's lower half to its lower edge, the first one's upper half.
    EXPECT_EQ(kWhitePixel, image.pixel(42, 204));
    EXPECT_EQ(kBlackPixel, image.pixel(47, 219));
    EXPECT_EQ(kWhitePixel, image.pixel(237, 152));
    EXPECT_EQ(kBlackPixel, image.pixel(230, 139));
}

TEST(MirrorPanelPixels, TheRestIsTheDialogs)
{
    const QImage image = PaintedPanel();
    for (const QPoint place :
         {QPoint(1, 173), QPoint(8, 60), QPoint(255, 173), QPoint(245, 290), QPoint(127, 300)}) {
        EXPECT_EQ(kDialog, image.pixel(place)) << place.x() << " " << place.y();
    }
}

} // namespace
