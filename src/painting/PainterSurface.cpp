#include "painting/PainterSurface.h"

#include "drawing/ClipSegment.h"
#include "drawing/PixelRuns.h"
#include "drawing/WordWrap.h"
#include "lib/text/Numbers.h"
#include "painting/QtText.h"

#include <QFontDatabase>
#include <QFontMetricsF>
#include <QImage>
#include <QLineF>
#include <QPaintEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPolygonF>
#include <QRectF>

#include <algorithm>
#include <cmath>

namespace {

// Arial's own measures: a line is an ascent and a descent high.
constexpr double kAscent = 1854.0;
constexpr double kLine = 1854.0 + 434.0;
constexpr double kEm = 2048.0;

constexpr double kDegree = 16; // the toolkit counts sixteenths of a degree
constexpr double kFullTurn = 360 * kDegree;

// A text that is longer than any page is wide is cut.
constexpr std::size_t kLongestText = 10000;

// Curves beyond this are no pictures any more; the toolkit is spared them. On paper a page alone is 43180
// high.
constexpr double kFarthest = 32000.0;
constexpr double kFarthestOnPaper = 1e7;

QColor ToColor(Colour colour) { return QColor(colour.red, colour.green, colour.blue); }

/// The outline runs through the middles of the box's outer pixels.
QRectF OutlineBox(const PixelRect& box, double farthest)
{
    const auto clamp = [farthest](double place) { return std::clamp(place, -farthest, farthest); };
    return QRectF(QPointF(clamp(box.left), clamp(box.top)),
                  QPointF(clamp(box.right - 1.0), clamp(box.bottom - 1.0)));
}

/// The toolkit's angle of the direction from the box's centre to `to`.
double AngleOf(const QRectF& box, Pixel to)
{
    const QPointF centre = box.center();
    const double right = (to.x - centre.x()) * box.height();
    const double up = (centre.y() - to.y) * box.width();
    const double turn = std::atan2(up, right) / (2 * std::acos(-1.0));
    return (turn < 0 ? turn + 1 : turn) * kFullTurn;
}

/// A stretch of an outline in the toolkit's angles.
struct AngleSpan {
    double start;
    double length;
};

AngleSpan AngleSpanOf(const QRectF& box, Pixel from, Pixel to)
{
    const double start = AngleOf(box, from);
    double length = AngleOf(box, to) - start;
    if (length <= 0) {
        length += kFullTurn;
    }
    return {start, length};
}

/// The stretch of an outline in short curves, parted at whole angles, so that the outermost points are among
/// their ends: the toolkit's own, a quarter long, leave a circle of 400 mm by a tenth of a millimetre.
QPainterPath FinePath(const QRectF& box, const AngleSpan& stretch)
{
    constexpr double kPart = 15 * kDegree;
    const double turn = std::acos(-1.0) / 180 / kDegree;
    const QPointF centre = box.center();
    const auto at = [&](double angle, double along) {
        return QPointF(centre.x() + box.width() / 2 * (std::cos(angle) - along * std::sin(angle)),
                       centre.y() - box.height() / 2 * (std::sin(angle) + along * std::cos(angle)));
    };
    const double end = stretch.start + stretch.length;
    QPainterPath path(at(stretch.start * turn, 0));
    for (double from = stretch.start; from < end;) {
        const double to = std::min((std::floor(from / kPart) + 1) * kPart, end);
        const double reach = 4.0 / 3 * std::tan((to - from) * turn / 4);
        path.cubicTo(at(from * turn, reach), at(to * turn, -reach), at(to * turn, 0));
        from = to;
    }
    return path;
}

std::int32_t PixelSize(std::int32_t lineHeight)
{
    return std::max(TruncToInt32(std::round(std::min(lineHeight, 1000) * kEm / kLine)), 1);
}

/// Arial, or its metric twin. The one that is there is named first: a search for a substitute costs a good
/// part of the start.
QStringList Families()
{
    static const bool hasArial = QFontDatabase::hasFamily("Arial");
    return hasArial ? QStringList{"Arial"} : QStringList{"Liberation Sans", "Arial"};
}

} // namespace

PainterSurface::PainterSurface(QPainter& device, std::int32_t surfaceWidth, std::int32_t surfaceHeight,
                               std::int32_t vectorPen)
    : m_painter(device), m_width(surfaceWidth), m_height(surfaceHeight),
      m_isRaster(vectorPen == 1 && device.paintEngine() != nullptr &&
                 device.paintEngine()->type() == QPaintEngine::Raster),
      m_vectorPen(vectorPen)
{
    m_painter.setRenderHint(QPainter::Antialiasing, IsPaper()); // for a preview on the screen
}

void PainterSurface::FillRect(const PixelRect& rect, Colour colour)
{
    const std::int32_t left = std::max(rect.left, 0);
    const std::int32_t top = std::max(rect.top, 0);
    const std::int32_t right = std::min(rect.right, m_width);
    const std::int32_t bottom = std::min(rect.bottom, m_height);
    if (left < right && top < bottom) {
        m_painter.fillRect(QRect(left, top, right - left, bottom - top), ToColor(colour));
    }
}

void PainterSurface::PaintRuns(Colour colour)
{
    std::vector<QRect> rects;
    rects.reserve(m_runs.size());
    for (const PixelRect& run : m_runs) {
        rects.emplace_back(run.left, run.top, run.right - run.left, run.bottom - run.top);
    }
    m_runs.clear();
    m_painter.setPen(Qt::NoPen);
    m_painter.setBrush(ToColor(colour));
    m_painter.drawRects(rects.data(), static_cast<int>(rects.size()));
}

void PainterSurface::Line(Pixel from, Pixel to, Colour colour)
{
    if (m_isRaster) {
        AppendLine(from, to, Clip(), m_runs);
        PaintRuns(colour);
    } else {
        VectorLine(from, to, colour);
    }
}

double PainterSurface::Farthest() const { return IsPaper() ? kFarthestOnPaper : kFarthest; }

QPen PainterSurface::VectorPen(Colour colour, std::int32_t penWidth) const
{
    QPen pen(ToColor(colour), m_isRaster ? penWidth : penWidth * m_vectorPen);
    if (IsPaper()) {
        pen.setCapStyle(Qt::FlatCap); // a line of 100 mm is not one of 100.2
    }
    return pen;
}

void PainterSurface::VectorLine(Pixel from, Pixel to, Colour colour)
{
    const QPointF start(from.x + 0.5, from.y + 0.5);
    const QPointF end(to.x + 0.5, to.y + 0.5);
    const auto part = ClipSegment({start.x(), start.y()}, {end.x(), end.y()}, {0, 0},
                                  {static_cast<double>(m_width), static_cast<double>(m_height)});
    if (part) {
        const QPointF way = end - start;
        m_painter.setPen(VectorPen(colour));
        m_painter.drawLine(QLineF(start + way * part->enter, start + way * part->leave));
    }
}

void PainterSurface::Polygon(std::span<const Pixel> points, Colour pen, Colour brush)
{
    if (!m_isRaster) {
        VectorPolygon(points, pen, brush);
        return;
    }
    AppendPolygon(points, Clip(), m_runs);
    PaintRuns(brush);
    for (std::size_t i = 0; i < points.size(); ++i) {
        AppendLine(points[i], points[(i + 1) % points.size()], Clip(), m_runs);
    }
    PaintRuns(pen);
}

void PainterSurface::VectorPolygon(std::span<const Pixel> points, Colour pen, Colour brush)
{
    QPolygonF polygon;
    for (const Pixel point : points) {
        const auto clamp = [&](double place) { return std::clamp(place, -Farthest(), Farthest()); };
        polygon << QPointF(clamp(point.x) + 0.5, clamp(point.y) + 0.5);
    }
    m_painter.setPen(VectorPen(pen));
    m_painter.setBrush(ToColor(brush));
    m_painter.drawPolygon(polygon);
}

void PainterSurface::Ellipse(const PixelRect& box, Colour pen, std::int32_t penWidth)
{
    m_painter.setPen(VectorPen(pen, penWidth));
    m_painter.setBrush(Qt::NoBrush);
    const QRectF outline = OutlineBox(box, Farthest());
    if (IsPaper()) {
        m_painter.drawPath(FinePath(outline, {0, kFullTurn}));
    } else {
        m_painter.drawEllipse(outline);
    }
}

void PainterSurface::Arc(const PixelRect& box, Pixel from, Pixel to, Colour pen)
{
    const QRectF outline = OutlineBox(box, Farthest());
    const AngleSpan stretch = AngleSpanOf(outline, from, to);
    m_painter.setPen(VectorPen(pen));
    m_painter.setBrush(Qt::NoBrush);
    if (!IsPaper()) {
        m_painter.drawArc(outline, TruncToInt32(std::round(stretch.start)),
                          TruncToInt32(std::round(stretch.length)));
        return;
    }
    m_painter.drawPath(FinePath(outline, stretch));
}

void PainterSurface::Chord(const PixelRect& box, Pixel from, Pixel to, Colour pen, Colour brush)
{
    const QRectF outline = OutlineBox(box, Farthest());
    const AngleSpan stretch = AngleSpanOf(outline, from, to);
    m_painter.setPen(VectorPen(pen));
    m_painter.setBrush(ToColor(brush));
    m_painter.drawChord(outline, TruncToInt32(std::round(stretch.start)),
                        TruncToInt32(std::round(stretch.length)));
}

void PainterSurface::Image(Pixel at, std::int32_t imageWidth, std::span<const Colour> pixels)
{
    static_assert(sizeof(Colour) == 3);
    if (imageWidth <= 0) {
        return;
    }
    const auto rows = static_cast<std::int32_t>(pixels.size() / static_cast<std::size_t>(imageWidth));
    const bool isSeen = at.x < m_width && at.y < m_height && std::int64_t{at.x} + imageWidth > 0 &&
                        std::int64_t{at.y} + rows > 0;
    if (isSeen) {
        const QImage image(reinterpret_cast<const uchar*>(pixels.data()), imageWidth, rows,
                           qsizetype{imageWidth} * 3, QImage::Format_RGB888);
        m_painter.drawImage(at.x, at.y, image);
    }
}

const QFont& PainterSurface::DeviceFont(const Font& font)
{
    if (font != m_lastFont) {
        m_lastFont = font;
        m_deviceFont = QFont(Families());
        m_deviceFont.setPixelSize(PixelSize(font.height));
        // The code page needs no glyph of another font, and looking for one costs a good part of the start.
        m_deviceFont.setStyleStrategy(QFont::NoFontMerging);
        m_deviceFont.setWeight(font.weight >= Font::kBold ? QFont::Bold : QFont::Normal);
    }
    return m_deviceFont;
}

void PainterSurface::Text(Pixel at, std::string_view text, const Font& font, Colour colour)
{
    // No character is wider than two lines are high, so a text that cannot be seen is not shaped.
    const std::int64_t line = font.height;
    const std::int64_t length = 2 * line * static_cast<std::int64_t>(std::min(text.size(), kLongestText));
    const std::int64_t toRight = font.upright ? 2 * line : length;
    const std::int64_t up = font.upright ? length : line;
    if (at.x - line > m_width || at.x + toRight < 0 || at.y - up > m_height || at.y + 2 * line < 0) {
        return;
    }
    m_painter.save();
    m_painter.setFont(DeviceFont(font));
    m_painter.setPen(ToColor(colour));
    m_painter.translate(at.x, at.y);
    if (font.upright) {
        m_painter.rotate(-90);
    }
    m_painter.drawText(QPointF(0, std::round(font.height * kAscent / kLine)),
                       ToQString(text.substr(0, kLongestText)));
    m_painter.restore();
}

std::int32_t PainterSurface::WrappedText(const PixelRect& box, std::string_view text, const Font& font,
                                         Colour colour)
{
    const QFontMetricsF metrics(DeviceFont(font), m_painter.device());
    const auto measure = [&](std::string_view piece) { return metrics.horizontalAdvance(ToQString(piece)); };
    std::int32_t used = 0;
    for (const std::string_view line :
         WrapWords(text.substr(0, kLongestText), static_cast<double>(box.right) - box.left, measure)) {
        Text({box.left, TruncToInt32(static_cast<double>(box.top) + used)}, line, font, colour);
        used += font.height;
    }
    return used;
}
