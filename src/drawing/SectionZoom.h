#pragma once

#include "drawing/Surface.h"

#include <cstdint>

/// How the cross-section's window looks at its picture: enlarged by `zoom`, from the picture's pixel
/// (scrollX, scrollY) on. There are no scroll bars: the picture moves by clicks alone.
struct SectionZoom {
    static constexpr std::int32_t kMost = 5;

    std::int32_t zoom = 1; ///< 1 to kMost
    std::int32_t scrollX = 0;
    std::int32_t scrollY = 0;
    bool operator==(const SectionZoom&) const = default;

    /// The size of the enlarged picture of a window, pixels.
    Pixel PictureSize(std::int32_t width, std::int32_t height) const;
    /// Pulls the scroll back to where the picture covers the window; each painting begins with it.
    void Clamp(std::int32_t width, std::int32_t height);
    /// Left double click: one step closer, the point clicked moving to about the upper left corner. Whether
    /// anything changed.
    bool DoubleClick(Pixel at);
    /// Right click: one step back.
    void RightClick();

    // By the keyboard, in a window of `size`: one step closer or back about the window's middle, and to
    // another part of the picture. Whether anything changed.
    bool StepIn(Pixel size);
    bool StepOut(Pixel size);
    bool Move(Pixel by, Pixel size);

private:
    bool StepTo(std::int32_t other, Pixel size);
};
