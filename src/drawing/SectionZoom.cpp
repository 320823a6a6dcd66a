#include "drawing/SectionZoom.h"

#include "lib/text/Numbers.h"

#include <algorithm>

namespace {

std::int32_t Narrowed(std::int64_t value) { return TruncToInt32(static_cast<double>(value)); }

std::int32_t Enlarged(std::int32_t length, std::int32_t zoom)
{
    return Narrowed(std::int64_t{length} * zoom);
}

std::int32_t Sum(std::int32_t a, std::int32_t b) { return Narrowed(std::int64_t{a} + b); }

} // namespace

Pixel SectionZoom::PictureSize(std::int32_t width, std::int32_t height) const
{
    return {Enlarged(width, zoom), Enlarged(height, zoom)};
}

void SectionZoom::Clamp(std::int32_t width, std::int32_t height)
{
    const Pixel size = PictureSize(width, height);
    scrollX = std::max(std::min(scrollX, size.x - width), 0);
    scrollY = std::max(std::min(scrollY, size.y - height), 0);
}

bool SectionZoom::DoubleClick(Pixel at)
{
    if (zoom >= kMost) {
        return false;
    }
    scrollX = Sum(scrollX, at.x);
    scrollY = Sum(scrollY, at.y);
    ++zoom;
    return true;
}

void SectionZoom::RightClick()
{
    if (zoom > 1) {
        scrollX = scrollX / zoom * (zoom - 1);
        scrollY = scrollY / zoom * (zoom - 1);
        --zoom;
    }
}

bool SectionZoom::StepTo(std::int32_t other, Pixel size)
{
    if (other < 1 || other > kMost) {
        return false;
    }
    // The middle's share of the picture stays.
    const auto scrolled = [&](std::int32_t scroll, std::int32_t length) {
        return Narrowed((2 * std::int64_t{scroll} + length) * other / (2 * std::int64_t{zoom}) - length / 2);
    };
    scrollX = scrolled(scrollX, size.x);
    scrollY = scrolled(scrollY, size.y);
    zoom = other;
    Clamp(size.x, size.y);
    return true;
}

bool SectionZoom::StepIn(Pixel size) { return StepTo(zoom + 1, size); }

bool SectionZoom::StepOut(Pixel size) { return StepTo(zoom - 1, size); }

bool SectionZoom::Move(Pixel by, Pixel size)
{
    const SectionZoom before = *this;
    scrollX = Sum(scrollX, by.x);
    scrollY = Sum(scrollY, by.y);
    Clamp(size.x, size.y);
    return *this != before;
}
