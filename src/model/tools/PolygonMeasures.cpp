#include "model/tools/PolygonMeasures.h"

#include "lib/text/CodePage.h"
#include "lib/text/Language.h"

#include <cmath>

namespace {

constexpr double kFullTurn = 6.283185307;

constexpr const char* kTypeNames[kPolygonTypeCount] = {
    "Dreieck", "Viereck", "Fünfeck"_cp1252, "Sechseck", "Siebenseck",
    "Achteck", "Neuneck", "Zehneck",        "Elfeck",   "Zwölfeck"_cp1252};

constexpr Bilingual kTooThick{"He, I can not draw that!", "He, das kann ich nicht zeichnen!"};

} // namespace

const char* PolygonTypeName(std::int32_t nType)
{
    return nType >= 0 && nType < kPolygonTypeCount ? kTypeNames[nType] : nullptr;
}

PolygonMeasures MeasurePolygon(const PolygonInput& input)
{
    const double D = input.dDiameter;
    const double t = input.dThickness;
    PolygonMeasures m{};
    m.nSides = input.nType + 3;
    m.dAngle = kFullTurn / m.nSides;
    m.dInnerRadius = (D / 2) / std::cos(m.dAngle / 2);
    m.dCornerWall = t / std::cos(m.dAngle / 2);
    m.dOuterRadius = m.dInnerRadius + m.dCornerWall;
    m.dOverhang = t / std::sin(m.dAngle);
    m.dInnerSide = 2 * std::sqrt(m.dInnerRadius * m.dInnerRadius - (D / 2) * (D / 2));
    m.dOuterSide = 2 * std::sqrt(m.dOuterRadius * m.dOuterRadius - (D / 2 + t) * (D / 2 + t));
    m.dBoard = 2 * m.dOverhang + m.dInnerSide;
    return m;
}

const char* PolygonRefusal(const PolygonInput& input, int language)
{
    return input.dDiameter / 2 < input.dThickness ? kTooThick.In(language) : nullptr;
}
