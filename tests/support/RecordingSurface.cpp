#include "support/RecordingSurface.h"

#include "drawing/WordWrap.h"

#include <ostream>

namespace drawn {
namespace {

std::ostream& operator<<(std::ostream& out, Colour colour)
{
    return out << " rgb " << int{colour.red} << "," << int{colour.green} << "," << int{colour.blue};
}
std::ostream& operator<<(std::ostream& out, Pixel pixel)
{
    return out << " (" << pixel.x << ", " << pixel.y << ")";
}
std::ostream& operator<<(std::ostream& out, const PixelRect& rect)
{
    return out << Pixel{rect.left, rect.top} << " to" << Pixel{rect.right, rect.bottom};
}
std::ostream& operator<<(std::ostream& out, const Font& font)
{
    return out << " font " << font.height << "/" << font.weight << (font.upright ? " upright" : "");
}

} // namespace

std::ostream& operator<<(std::ostream& out, const FillRect& call)
{
    return out << "FillRect" << call.rect << call.colour;
}
std::ostream& operator<<(std::ostream& out, const Line& call)
{
    return out << "Line" << call.from << " to" << call.to << call.colour;
}
std::ostream& operator<<(std::ostream& out, const Polygon& call)
{
    out << "Polygon";
    for (const Pixel point : call.points) {
        out << point;
    }
    return out << " pen" << call.pen << " brush" << call.brush;
}
std::ostream& operator<<(std::ostream& out, const Ellipse& call)
{
    return out << "Ellipse" << call.box << " pen" << call.pen << " width " << call.width;
}
std::ostream& operator<<(std::ostream& out, const Arc& call)
{
    return out << "Arc" << call.box << " from" << call.from << " to" << call.to << " pen" << call.pen;
}
std::ostream& operator<<(std::ostream& out, const Chord& call)
{
    return out << "Chord" << call.box << " from" << call.from << " to" << call.to << " pen" << call.pen
               << " brush" << call.brush;
}
std::ostream& operator<<(std::ostream& out, const Image& call)
{
    return out << "Image" << call.at << " width " << call.width << ", " << call.pixels.size() << " pixels";
}
std::ostream& operator<<(std::ostream& out, const Text& call)
{
    return out << "Text" << call.at << " \"" << call.text << "\"" << call.font << call.colour;
}
std::ostream& operator<<(std::ostream& out, const WrappedText& call)
{
    return out << "WrappedText" << call.box << " \"" << call.text << "\"" << call.font << call.colour;
}

} // namespace drawn

void RecordingSurface::FillRect(const PixelRect& rect, Colour colour)
{
    calls.emplace_back(drawn::FillRect{rect, colour});
}

void RecordingSurface::Line(Pixel from, Pixel to, Colour colour)
{
    calls.emplace_back(drawn::Line{from, to, colour});
}

void RecordingSurface::Polygon(std::span<const Pixel> points, Colour pen, Colour brush)
{
    calls.emplace_back(drawn::Polygon{{points.begin(), points.end()}, pen, brush});
}

void RecordingSurface::Ellipse(const PixelRect& box, Colour pen, std::int32_t penWidth)
{
    calls.emplace_back(drawn::Ellipse{box, pen, penWidth});
}

void RecordingSurface::Arc(const PixelRect& box, Pixel from, Pixel to, Colour pen)
{
    calls.emplace_back(drawn::Arc{box, from, to, pen});
}

void RecordingSurface::Chord(const PixelRect& box, Pixel from, Pixel to, Colour pen, Colour brush)
{
    calls.emplace_back(drawn::Chord{box, from, to, pen, brush});
}

void RecordingSurface::Image(Pixel at, std::int32_t imageWidth, std::span<const Colour> pixels)
{
    calls.emplace_back(drawn::Image{at, imageWidth, {pixels.begin(), pixels.end()}});
}

void RecordingSurface::Text(Pixel at, std::string_view text, const Font& font, Colour colour)
{
    calls.emplace_back(drawn::Text{at, std::string(text), font, colour});
}

std::int32_t RecordingSurface::WrappedText(const PixelRect& box, std::string_view text, const Font& font,
                                           Colour colour)
{
    calls.emplace_back(drawn::WrappedText{box, std::string(text), font, colour});
    const auto measure = [](std::string_view piece) {
        return static_cast<double>(piece.size()) * kCharacterWidth;
    };
    const auto lines = WrapWords(text, box.right - box.left, measure);
    return static_cast<std::int32_t>(lines.size()) * font.height;
}
