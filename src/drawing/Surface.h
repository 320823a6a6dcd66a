#pragma once

#include <cmath>
#include <cstdint>
#include <span>
#include <string_view>

struct Colour {
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;
    bool operator==(const Colour&) const = default;
};

inline constexpr Colour kBlack{0, 0, 0};
inline constexpr Colour kWhite{255, 255, 255};

/// A pixel position; x to the right, y downward.
struct Pixel {
    std::int32_t x = 0;
    std::int32_t y = 0;
    bool operator==(const Pixel&) const = default;
};

/// The pixels from (left, top) up to, and not including, (right, bottom).
struct PixelRect {
    std::int32_t left = 0;
    std::int32_t top = 0;
    std::int32_t right = 0;
    std::int32_t bottom = 0;
    bool operator==(const PixelRect&) const = default;
};

/// Arial, or its metric twin. `height` is the height of a line in pixels.
struct Font {
    std::int32_t height = 14;
    std::int32_t weight = kNormal; ///< 200 normal, 600 bold
    bool upright = false;          ///< rotated by 90 degrees, to be read from below
    bool operator==(const Font&) const = default;

    /// The same font, so many times as large.
    Font Scaled(double times) const
    {
        return {static_cast<std::int32_t>(std::lround(height * times)), weight, upright};
    }

    static constexpr std::int32_t kNormal = 200;
    static constexpr std::int32_t kBold = 600;
};

/// What every picture is painted on. Coordinates are pixels, texts are bytes of code page 1252, lines are one
/// pixel wide unless a width is given, and backgrounds of texts are transparent. A surface takes any
/// coordinates: what lies outside of it is not seen.
class Surface {
public:
    virtual ~Surface() = default;

    virtual std::int32_t Width() const = 0;
    virtual std::int32_t Height() const = 0;

    virtual void FillRect(const PixelRect& rect, Colour colour) = 0;
    /// A line with both of its ends.
    virtual void Line(Pixel from, Pixel to, Colour colour) = 0;
    /// Closed on its first point, filled with `brush`, its outline drawn with `pen`.
    virtual void Polygon(std::span<const Pixel> points, Colour pen, Colour brush) = 0;
    /// The outline of the ellipse that fills `box`.
    virtual void Ellipse(const PixelRect& box, Colour pen, std::int32_t width) = 0;
    /// The part of that outline from the direction of `from` to the direction of `to`, both seen from the
    /// box's centre, counter-clockwise; equal directions give the whole outline.
    virtual void Arc(const PixelRect& box, Pixel from, Pixel to, Colour pen) = 0;
    /// That arc closed by its chord and filled.
    virtual void Chord(const PixelRect& box, Pixel from, Pixel to, Colour pen, Colour brush) = 0;
    /// A block of ready pixels, row by row from the top, `width` to a row, with its upper left corner at
    /// `at`.
    virtual void Image(Pixel at, std::int32_t width, std::span<const Colour> pixels) = 0;
    /// One line of text with its upper left corner at `at`; an upright font runs upward from there.
    virtual void Text(Pixel at, std::string_view text, const Font& font, Colour colour) = 0;
    /// Text broken between words at the box's width, not clipped; the height in pixels that it used: the
    /// font's height for each line, 0 for an empty text.
    virtual std::int32_t WrappedText(const PixelRect& box, std::string_view text, const Font& font,
                                     Colour colour) = 0;
};
