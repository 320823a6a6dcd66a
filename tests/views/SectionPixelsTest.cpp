#include "drawing/SectionPicture.h"

#include "lib/text/Language.h"
#include "model/record/OrrevaData.h"
#include "painting/PainterSurface.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>

namespace {

constexpr Pixel kPointer{130, 90};

QImage PaintedWindow(COrrevaData& record, const ViewSwitches& switches, Pixel size, SectionZoom view)
{
    QImage image(size.x, size.y, QImage::Format_RGB32);
    image.fill(Qt::magenta);
    QPainter painter(&image);
    PainterSurface surface(painter, size.x, size.y);
    PaintSection(surface, view, record, switches, kPointer, kEnglish);
    return image;
}

/// The direct way: the whole enlarged picture on a surface of its own, and a part of it copied.
QImage CopiedWindow(COrrevaData& record, const ViewSwitches& switches, Pixel size, SectionZoom view)
{
    view.Clamp(size.x, size.y);
    const QImage whole = PaintedWindow(record, switches, view.PictureSize(size.x, size.y), {});
    return whole.copy(view.scrollX, view.scrollY, size.x, size.y);
}

void LoadTelescope(COrrevaData& record, double diameter, double focalLength)
{
    record.Reset();
    record.SetMirrorDiameter(diameter);
    record.SetFocalLength(focalLength);
    record.GetFocalPlaneHeight(); // settles the defaults
    record.GetFocalPlaneHeight();
}

using Mode = std::uint8_t ViewSwitches::*;

TEST(SectionPixels, AreThoseOfThePartOfTheWholePictureAtEveryZoom)
{
    const Mode modes[] = {&ViewSwitches::miss_in_grey, &ViewSwitches::ray_parallel,
                          &ViewSwitches::ray_from_focal_plane, &ViewSwitches::ray_from_mouse};
    COrrevaData record;
    LoadTelescope(record, 250, 1500);
    const Pixel size{317, 211};
    for (const Mode mode : modes) {
        ViewSwitches switches;
        switches.*mode = 1;
        switches.show_offset = mode == &ViewSwitches::ray_from_mouse ? 0 : 1;
        for (std::int32_t zoom = 1; zoom <= SectionZoom::kMost; ++zoom) {
            for (const Pixel scroll :
                 {Pixel{0, 0}, Pixel{1, 1}, Pixel{137, 61}, Pixel{640, 33}, Pixel{9999, 9999}}) {
                const SectionZoom view{zoom, scroll.x, scroll.y};
                ASSERT_EQ(CopiedWindow(record, switches, size, view),
                          PaintedWindow(record, switches, size, view))
                    << "zoom " << zoom << " scroll " << scroll.x;
            }
        }
    }
}

TEST(SectionPixels, AreThoseOfThePartForAFastTelescopeWithBoxAndCage)
{
    COrrevaData record;
    LoadTelescope(record, 400, 1600);
    ViewSwitches switches;
    switches.ray_parallel = 1;
    switches.show_box_and_cage = 1;
    switches.show_extended_focuser = 1;
    for (const Pixel scroll : {Pixel{0, 0}, Pixel{450, 210}, Pixel{900, 500}}) {
        const SectionZoom view{4, scroll.x, scroll.y};
        ASSERT_EQ(CopiedWindow(record, switches, {400, 250}, view),
                  PaintedWindow(record, switches, {400, 250}, view));
    }
}

TEST(SectionPixels, SurviveWindowsFromOnePixelToTheLargest)
{
    COrrevaData record;
    LoadTelescope(record, 250, 1500);
    ViewSwitches switches;
    switches.ray_parallel = 1;
    for (const Pixel size :
         {Pixel{1, 1}, Pixel{29, 400}, Pixel{30, 30}, Pixel{7680, 30}, Pixel{7680, 4320}}) {
        const QImage image = PaintedWindow(record, switches, size, {5, 100, 100});
        EXPECT_EQ(size.x, image.width());
        EXPECT_NE(qRgb(255, 0, 255), image.pixel(size.x - 1, size.y - 1)) << "painted to the last corner";
    }
}

} // namespace
