#include "model/optics/FigureTexts.h"

#include "lib/text/CodePage.h"
#include "lib/text/FormatText.h"

#include <cmath>

namespace {

constexpr double kMostWaves = 0.25;
constexpr double kLeastStrehl = 0.8;
constexpr double kLeastHeight = 0.5; // nm

/// The zone that stands highest on the wavefront, from 1, and its height in nm.
struct HighestZone {
    int number = 0;
    double height = 0;
};

HighestZone FindHighestZone(const Figure& figure)
{
    HighestZone highest{0, kLeastHeight};
    for (std::size_t i = 0; i < figure.zones.size(); ++i) {
        const double height = figure.wavefront.At(figure.zones[i].radius);
        if (height > highest.height) {
            highest = {static_cast<int>(i) + 1, height};
        }
    }
    return highest;
}

std::string HighestText(const Figure& figure, int language)
{
    constexpr Bilingual kNone{"no zone stands high", "keine Zone steht hoch"};
    constexpr Bilingual kHigh{"zone %d stands %0.0f nm high on the wavefront, %0.0f nm on the glass",
                              "Zone %d steht auf der Wellenfront %0.0f nm hoch, auf dem Glas %0.0f nm"};
    const HighestZone highest = FindHighestZone(figure);
    return highest.number == 0
               ? kNone.In(language)
               : FormatText(kHigh.In(language), highest.number, highest.height, highest.height / 2);
}

} // namespace

ListRows FigureRows(const Figure& figure, int language)
{
    const auto row = [language](const Bilingual& name, std::string value) {
        return ListRow{name.In(language), std::move(value)};
    };
    return {
        row({"Wavefront PV", "Wellenfront PV"},
            FormatText("%0.1f nm (%0.3f lambda)", figure.pv, figure.pv_waves)),
        row({"Wavefront RMS", "Wellenfront RMS"}, FormatText("%0.2f nm", figure.rms)),
        row({"Strehl ratio", "Strehl-Zahl"}, FormatText("%0.3f", figure.strehl)),
        row({"Largest transverse aberration", "Größte Querabweichung"_cp1252},
            FormatText("%0.2f Airy", figure.transverse_max)),
        row({"Conic constant", "Konische Konstante"}, FormatText("%0.3f", figure.conic)),
        row({"Best focus", "Bester Fokus"}, FormatText("%0.3f mm", figure.focus)),
    };
}

std::string FigureVerdict(const Figure& figure, int language)
{
    constexpr Bilingual kNone{"The readings give no figure.", "Die Messwerte ergeben keine Fläche."_cp1252};
    constexpr Bilingual kGood{"The wavefront keeps to lambda/4 (PV %0.2f lambda)",
                              "Die Wellenfront hält lambda/4 ein (PV %0.2f lambda)"_cp1252};
    constexpr Bilingual kBad{"The wavefront exceeds lambda/4 (PV %0.2f lambda)",
                             "Die Wellenfront überschreitet lambda/4 (PV %0.2f lambda)"_cp1252};
    constexpr Bilingual kSharp{", the Strehl ratio of %0.2f reaches 0.8; ",
                               ", die Strehl-Zahl %0.2f erreicht 0,8; "};
    constexpr Bilingual kDull{", the Strehl ratio of %0.2f stays below 0.8; ",
                              ", die Strehl-Zahl %0.2f bleibt unter 0,8; "};
    if (!std::isfinite(figure.pv) || !std::isfinite(figure.rms)) {
        return kNone.In(language);
    }
    const Bilingual& waves = figure.pv_waves <= kMostWaves ? kGood : kBad;
    const Bilingual& strehl = figure.strehl >= kLeastStrehl ? kSharp : kDull;
    return FormatText(waves.In(language), figure.pv_waves) + FormatText(strehl.In(language), figure.strehl) +
           HighestText(figure, language) + '.';
}

std::string FigureTitle(const Figure& figure, int language)
{
    constexpr Bilingual kTitle{"Wavefront: PV %0.1f nm, RMS %0.2f nm, Strehl %0.3f",
                               "Wellenfront: PV %0.1f nm, RMS %0.2f nm, Strehl %0.3f"};
    return FormatText(kTitle.In(language), figure.pv, figure.rms, figure.strehl);
}
