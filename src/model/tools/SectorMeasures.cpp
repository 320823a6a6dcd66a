#include "model/tools/SectorMeasures.h"

#include "lib/text/CodePage.h"
#include "lib/text/Language.h"

#include <cmath>

namespace {

constexpr Bilingual kOnlyAngles{"Sorry, only Angles, yet.", "Sorry, bis jetzt nur Winkel."};
constexpr Bilingual kAngleRange{"Sorry, only Angles between 0° und 360°."_cp1252,
                                "Sorry, nur Winkel zwischen 0° und 360°."_cp1252};
constexpr Bilingual kBadDiameter{"Error in Diameter.", "Fehlerhafter Durchmesser."};

} // namespace

SectorMeasures MeasureSector(const SectorInput& input)
{
    const double D = input.dDiameter;
    const double h = input.dValue / 2 / 360 * 6.283185307;
    SectorMeasures m{};
    m.dHalfAngle = h;
    m.dSagitta = (std::cos(0.0) - std::cos(h)) * (D / 2);
    m.dRadius = D / 2;
    m.dChord = std::sin(h) * (D / 2) - std::sin(-h) * (D / 2);
    return m;
}

const char* SectorRefusal(const SectorInput& input, int language)
{
    if (input.nType != kSectorAngleType) {
        return kOnlyAngles.In(language);
    }
    if (input.dValue < 0 || input.dValue > 360) {
        return kAngleRange.In(language);
    }
    return input.dDiameter <= 0 ? kBadDiameter.In(language) : nullptr;
}
