#include "drawing/PolygonPicture.h"

#include "drawing/ShapeStyle.h"

#include "drawing/LabelLayout.h"
#include "lib/text/CodePage.h"
#include "lib/text/FormatText.h"
#include "lib/text/Numbers.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

namespace {

/// A measure: the line that it is shown on, or the ends of the angle's arc, and its label.
struct Measure {
    Point from;
    Point to;
    std::string label;
    bool bArc = false;
    Pixel labelAt{};
};

class PolygonPainter {
public:
    PolygonPainter(Surface& surface, const PolygonInput& input)
        : m_surface(surface), m_input(input), m_m(MeasurePolygon(input)),
          m_nWidth(surface.Width() - 2 * kShapeMargin),
          m_nHeight(surface.Height() - 2 * kShapeMargin), m_centre{surface.Width() / 2.0,
                                                                   surface.Height() / 2.0},
          m_dScale(std::min(m_nWidth, m_nHeight) / (2 * m_m.dOuterRadius)),
          m_labels(surface.Width(), surface.Height(), kLabelFont)
    {}

    void Paint()
    {
        PaintCircle();
        PaintSides();
        std::vector<Measure> measures = Measures();
        PlaceLabels(measures);
        for (const Measure& measure : measures) {
            PaintMeasure(measure);
        }
    }

private:
    /// The place at a distance from the centre in a direction; -pi is straight up.
    Point At(double a, double dLength) const
    {
        return {m_centre.x + std::sin(a) * dLength * m_dScale, m_centre.y + std::cos(a) * dLength * m_dScale};
    }

    void PaintCircle()
    {
        const double r = m_input.dDiameter / 2 * m_dScale;
        const Pixel corner = NearestPixel({m_centre.x - r, m_centre.y - r});
        const Pixel opposite = NearestPixel({m_centre.x + r, m_centre.y + r});
        m_surface.Ellipse({corner.x, corner.y, opposite.x, opposite.y}, kBlack, 1);
        m_labels.AddEllipse(m_centre, r, r);
    }

    void GreyLine(Point from, Point to)
    {
        m_surface.Line(NearestPixel(from), NearestPixel(to), kShapeGrey);
        m_labels.AddLine(from, to);
    }

    void PaintSides()
    {
        for (double a = -kPi; a < kPi; a += m_m.dAngle) {
            GreyLine(m_centre, At(a, m_m.dInnerRadius));
            GreyLine(At(a, m_m.dInnerRadius), At(a + m_m.dAngle, m_m.dInnerRadius));
            GreyLine(At(a, m_m.dOuterRadius), At(a + m_m.dAngle, m_m.dOuterRadius));
        }
    }

    /// The measures stand around the polygon by a counter that runs from 0 to 99.
    double Direction(std::int32_t nCounter) const { return nCounter / (99 / m_m.nSides) * m_m.dAngle - kPi; }

    Measure Radial(std::int32_t nCounter, double dFrom, double dTo, double dShown) const
    {
        const double a = Direction(nCounter);
        return {At(a, dFrom), At(a, dTo), FormatText("%0.3f", dShown)};
    }

    /// A side from corner to corner, longer by `dOver` at both ends.
    Measure Side(std::int32_t nCounter, double dCorner, double dOver, double dShown) const
    {
        const double a = Direction(nCounter);
        const Point from = At(a, dCorner);
        const Point to = At(a + m_m.dAngle, dCorner);
        const double dLength = std::hypot(to.x - from.x, to.y - from.y);
        const double dPart = dLength > 0 ? dOver * m_dScale / dLength : 0;
        const Point over{(to.x - from.x) * dPart, (to.y - from.y) * dPart};
        return {
            {from.x - over.x, from.y - over.y}, {to.x + over.x, to.y + over.y}, FormatText("%0.3f", dShown)};
    }

    std::vector<Measure> Measures() const
    {
        const double dRadius = m_input.dDiameter / 2;
        const double a = Direction(18);
        return {
            Radial(0, 0, m_m.dInnerRadius, m_m.dInnerRadius),
            {At(a, m_m.dInnerRadius), At(a + m_m.dAngle, m_m.dInnerRadius),
             FormatText("%0.2f°"_cp1252, 360.0 / m_m.nSides), true},
            Radial(19, dRadius, m_m.dInnerRadius, m_m.dInnerRadius - dRadius),
            Side(22, m_m.dInnerRadius, 0, m_m.dInnerSide),
            Side(40, m_m.dOuterRadius, 0, m_m.dOuterSide),
            Radial(60, m_m.dInnerRadius, m_m.dOuterRadius, m_m.dCornerWall),
            Radial(80, 0, dRadius, dRadius),
            Side(88, m_m.dInnerRadius, m_m.dOverhang, m_m.dBoard),
        };
    }

    /// The label of the arc has a place of its own; the others then keep clear of it.
    void PlaceLabels(std::vector<Measure>& measures)
    {
        for (const Measure& measure : measures) {
            if (measure.bArc) {
                m_labels.AddArc(m_centre, m_nWidth / 8.0, m_nHeight / 8.0, measure.from, measure.to);
            } else {
                m_labels.AddLine(measure.from, measure.to);
            }
        }
        for (Measure& measure : measures) {
            if (measure.bArc) {
                measure.labelAt = m_labels.At(AnglePlace(), measure.label);
            }
        }
        for (Measure& measure : measures) {
            if (!measure.bArc) {
                measure.labelAt = m_labels.Beside(measure.from, measure.to, measure.label);
            }
        }
    }

    Point AnglePlace() const
    {
        // The two parts of the angle differ: kept.
        const double a = Direction(18);
        const double r = m_m.dInnerRadius / 3.5 * m_dScale;
        return {m_centre.x + std::sin(m_m.dAngle / 2 + a) * r,
                m_centre.y + std::cos(m_m.dAngle / 2.8 + a) * r};
    }

    void PaintMeasure(const Measure& measure)
    {
        if (measure.bArc) {
            PaintArc(measure);
        } else {
            m_surface.Line(NearestPixel(measure.from), NearestPixel(measure.to), kBlack);
        }
        m_surface.Text(measure.labelAt, measure.label, kLabelFont, kBlack);
    }

    void PaintArc(const Measure& measure)
    {
        const double dHalfWidth = m_nWidth / 8.0;
        const double dHalfHeight = m_nHeight / 8.0;
        const Pixel corner = NearestPixel({m_centre.x - dHalfWidth, m_centre.y - dHalfHeight});
        const Pixel opposite = NearestPixel({m_centre.x + dHalfWidth, m_centre.y + dHalfHeight});
        m_surface.Arc({corner.x, corner.y, opposite.x, opposite.y}, NearestPixel(measure.from),
                      NearestPixel(measure.to), kBlack);
    }

    Surface& m_surface;
    PolygonInput m_input;
    PolygonMeasures m_m;
    std::int32_t m_nWidth;
    std::int32_t m_nHeight;
    Point m_centre;
    double m_dScale; ///< pixels per unit
    LabelLayout m_labels;
};

} // namespace

void PaintPolygon(Surface& surface, const PolygonInput& input, int language)
{
    surface.FillRect({0, 0, surface.Width(), surface.Height()}, kWhite);
    if (const char* const pszRefusal = PolygonRefusal(input, language)) {
        surface.Text({kShapeMargin, kShapeMargin}, pszRefusal, kLabelFont, kBlack);
    } else if (PolygonTypeName(input.nType) != nullptr) {
        PolygonPainter(surface, input).Paint();
    }
}
