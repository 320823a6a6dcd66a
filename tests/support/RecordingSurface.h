#pragma once

#include "drawing/Surface.h"

#include <cstdint>
#include <iosfwd>
#include <string>
#include <variant>
#include <vector>

/// The calls of a Surface as data. Fields in the order of the call's arguments.
namespace drawn {

struct FillRect {
    PixelRect rect;
    Colour colour;
    bool operator==(const FillRect&) const = default;
};
struct Line {
    Pixel from;
    Pixel to;
    Colour colour;
    bool operator==(const Line&) const = default;
};
struct Polygon {
    std::vector<Pixel> points;
    Colour pen;
    Colour brush;
    bool operator==(const Polygon&) const = default;
};
struct Ellipse {
    PixelRect box;
    Colour pen;
    std::int32_t width = 1;
    bool operator==(const Ellipse&) const = default;
};
struct Arc {
    PixelRect box;
    Pixel from;
    Pixel to;
    Colour pen;
    bool operator==(const Arc&) const = default;
};
struct Chord {
    PixelRect box;
    Pixel from;
    Pixel to;
    Colour pen;
    Colour brush;
    bool operator==(const Chord&) const = default;
};
struct Image {
    Pixel at;
    std::int32_t width = 0;
    std::vector<Colour> pixels;
    bool operator==(const Image&) const = default;
};
struct Text {
    Pixel at;
    std::string text;
    Font font;
    Colour colour;
    bool operator==(const Text&) const = default;
};
struct WrappedText {
    PixelRect box;
    std::string text;
    Font font;
    Colour colour;
    bool operator==(const WrappedText&) const = default;
};

using Call = std::variant<FillRect, Line, Polygon, Ellipse, Arc, Chord, Image, Text, WrappedText>;

/// For messages of failed tests.
std::ostream& operator<<(std::ostream& out, const FillRect& call);
std::ostream& operator<<(std::ostream& out, const Line& call);
std::ostream& operator<<(std::ostream& out, const Polygon& call);
std::ostream& operator<<(std::ostream& out, const Ellipse& call);
std::ostream& operator<<(std::ostream& out, const Arc& call);
std::ostream& operator<<(std::ostream& out, const Chord& call);
std::ostream& operator<<(std::ostream& out, const Image& call);
std::ostream& operator<<(std::ostream& out, const Text& call);
std::ostream& operator<<(std::ostream& out, const WrappedText& call);

} // namespace drawn

/// A surface that paints nothing and keeps every call. Each character is 6 pixels wide in every font.
class RecordingSurface : public Surface {
public:
    static constexpr std::int32_t kCharacterWidth = 6;

    RecordingSurface(std::int32_t surfaceWidth, std::int32_t surfaceHeight)
        : width(surfaceWidth), height(surfaceHeight)
    {}

    std::vector<drawn::Call> calls;

    /// All calls of one kind, in their order: Of<drawn::Text>().
    template <class Kind>
    std::vector<Kind> Of() const
    {
        std::vector<Kind> found;
        for (const drawn::Call& call : calls) {
            if (const Kind* one = std::get_if<Kind>(&call)) {
                found.push_back(*one);
            }
        }
        return found;
    }

    std::int32_t Width() const override { return width; }
    std::int32_t Height() const override { return height; }
    void FillRect(const PixelRect& rect, Colour colour) override;
    void Line(Pixel from, Pixel to, Colour colour) override;
    void Polygon(std::span<const Pixel> points, Colour pen, Colour brush) override;
    void Ellipse(const PixelRect& box, Colour pen, std::int32_t width) override;
    void Arc(const PixelRect& box, Pixel from, Pixel to, Colour pen) override;
    void Chord(const PixelRect& box, Pixel from, Pixel to, Colour pen, Colour brush) override;
    void Image(Pixel at, std::int32_t width, std::span<const Colour> pixels) override;
    void Text(Pixel at, std::string_view text, const Font& font, Colour colour) override;
    std::int32_t WrappedText(const PixelRect& box, std::string_view text, const Font& font,
                             Colour colour) override;

private:
    std::int32_t width;
    std::int32_t height;
};
