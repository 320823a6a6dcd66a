#include "drawing/SectionMapping.h"

#include "lib/text/Numbers.h"
#include "model/record/OrrevaData.h"

#include <algorithm>

namespace {

std::int32_t ScrolledPixel(double place, std::int32_t scroll)
{
    return TruncToInt32(static_cast<double>(TruncToInt32(place)) - scroll);
}

} // namespace

Pixel SectionMapping::WorldToScreen(double x, double y) const
{
    return {ScrolledPixel(x * scale + offsetX + 0.5, scroll.x),
            ScrolledPixel(y * scale + offsetY + 0.5, scroll.y)};
}

PixelRect SectionMapping::WorldToScreen(Point corner, Point opposite) const
{
    const auto [x0, x1] = std::minmax(corner.x, opposite.x);
    const auto [y0, y1] = std::minmax(corner.y, opposite.y);
    const Pixel low = WorldToScreen(x0, y0);
    return {low.x, low.y, ScrolledPixel(x1 * scale + offsetX + 1.5, scroll.x),
            ScrolledPixel(y1 * scale + offsetY + 1.5, scroll.y)};
}

Point SectionMapping::ScreenToWorld(Pixel pixel) const
{
    return {(pixel.x - offsetX) / scale, (pixel.y - offsetY) / scale};
}

namespace {

/// The scene that the picture has room for, mm.
Point SceneSize(COrrevaData& record)
{
    const double L = record.GetTubeLength();
    const double sceneLength = L + L / 10;
    const double I = record.GetInsideDiameterHat();
    const double T = record.GetThicknessHat();
    const double atFocalPlane = I + 2 * T + record.GetFocuserTotalHeight();
    const double Hf = record.GetFocuserHeight();
    const double extended = I + 2 * T + Hf + record.GetOazTravel();
    return {sceneLength, extended > atFocalPlane ? extended : atFocalPlane};
}

SectionMapping MapScene(Point scene, Pixel size, double scale)
{
    SectionMapping map;
    map.scale = scale;
    map.offsetX = (size.x - scene.x * map.scale) / 2;
    map.offsetY = ((size.y - scene.y * map.scale) / 2) / 2;
    return map;
}

SectionMapping FitScene(Point scene, Pixel size)
{
    constexpr int kMargin = 10; // pixels, for both sides together
    return MapScene(scene, size, std::min((size.x - kMargin) / scene.x, (size.y - kMargin) / scene.y));
}

} // namespace

SectionMapping FitSection(COrrevaData& record, Pixel size) { return FitScene(SceneSize(record), size); }

SectionMapping FitSection(COrrevaData& record, Pixel size, const SectionRoom& room)
{
    Point scene = SceneSize(record);
    const SectionMapping usual = FitScene(scene, size);
    if (room.bottom * usual.scale + usual.offsetY + room.pixels <= size.y) {
        return usual;
    }
    scene.y = std::max(scene.y, room.bottom);
    return FitScene(scene, {size.x, size.y - room.pixels});
}

SectionMapping SectionAtScale(COrrevaData& record, Pixel size, double scale)
{
    return MapScene(SceneSize(record), size, scale);
}
