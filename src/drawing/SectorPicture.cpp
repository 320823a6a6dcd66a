#include "drawing/SectorPicture.h"

#include "drawing/ShapeStyle.h"

#include "drawing/LabelLayout.h"
#include "lib/text/CodePage.h"
#include "lib/text/FormatText.h"

#include <algorithm>
#include <cmath>
#include <string>

namespace {

class SectorPainter {
public:
    SectorPainter(Surface& surface, const SectorInput& input)
        : m_surface(surface), m_input(input),
          m_m(MeasureSector(input)), m_centre{surface.Width() / 2.0, surface.Height() / 2.0},
          m_dRadius(m_m.dRadius *
                    ((std::min(surface.Width(), surface.Height()) - 2 * kShapeMargin) / input.dDiameter)),
          m_left(At(-m_m.dHalfAngle, m_dRadius)), m_right(At(m_m.dHalfAngle, m_dRadius)),
          m_labels(surface.Width(), surface.Height(), kLabelFont)
    {}

    void Paint()
    {
        const Point chordMiddle = At(0, std::cos(m_m.dHalfAngle) * m_dRadius);
        const Point bottom = At(0, m_dRadius);
        const PixelRect circle = Box(m_dRadius);
        m_surface.Ellipse(circle, kShapeGrey, 1);
        m_labels.AddEllipse(m_centre, m_dRadius, m_dRadius);
        Line(m_centre, m_right, kShapeGrey);
        Line(m_centre, m_left, kShapeGrey);
        Line(chordMiddle, bottom, kShapeGrey);
        Line(m_left, m_right, kBlack);
        Arc(circle, m_dRadius);
        Arc(Box(m_dRadius / 4), m_dRadius / 4);

        Label(m_labels.Beside(m_left, m_right, LengthText(m_m.dChord)), LengthText(m_m.dChord));
        Label(m_labels.Halfway(bottom, chordMiddle, LengthText(m_m.dSagitta)), LengthText(m_m.dSagitta));
        Label(m_labels.Beside(m_centre, m_left, LengthText(m_m.dRadius)), LengthText(m_m.dRadius));
        const std::string angle = FormatText("%0.2f°"_cp1252, m_input.dValue);
        Label(m_labels.Near(At(0, m_dRadius / 4 + kLabelFont.height), angle), angle);
    }

private:
    /// The place at a distance in pixels from the centre in a direction; 0 is straight down.
    Point At(double a, double dLength) const
    {
        return {m_centre.x + std::sin(a) * dLength, m_centre.y + std::cos(a) * dLength};
    }

    PixelRect Box(double r) const
    {
        const Pixel corner = NearestPixel({m_centre.x - r, m_centre.y - r});
        const Pixel opposite = NearestPixel({m_centre.x + r, m_centre.y + r});
        return {corner.x, corner.y, opposite.x, opposite.y};
    }

    static std::string LengthText(double d) { return FormatText("%0.2f", d); }

    void Line(Point from, Point to, Colour colour)
    {
        m_surface.Line(NearestPixel(from), NearestPixel(to), colour);
        m_labels.AddLine(from, to);
    }

    /// The sector's part of a circle. Where both ends fall on one pixel the arc is the whole circle, or
    /// nothing.
    void Arc(const PixelRect& box, double r)
    {
        const Pixel left = NearestPixel(m_left);
        const Pixel right = NearestPixel(m_right);
        if (left != right || m_input.dValue > 180) {
            m_surface.Arc(box, left, right, kBlack);
            m_labels.AddArc(m_centre, r, r, m_left, m_right);
        }
    }

    void Label(Pixel at, const std::string& text) { m_surface.Text(at, text, kLabelFont, kBlack); }

    Surface& m_surface;
    SectorInput m_input;
    SectorMeasures m_m;
    Point m_centre;
    double m_dRadius; ///< of the circle, in pixels
    Point m_left;     ///< ends of the chord
    Point m_right;
    LabelLayout m_labels;
};

} // namespace

void PaintSector(Surface& surface, const SectorInput& input, int language)
{
    surface.FillRect({0, 0, surface.Width(), surface.Height()}, kWhite);
    if (const char* const pszRefusal = SectorRefusal(input, language)) {
        surface.Text({kShapeMargin, kShapeMargin}, pszRefusal, kLabelFont, kBlack);
    } else {
        SectorPainter(surface, input).Paint();
    }
}
