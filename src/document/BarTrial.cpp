#include "document/BarTrial.h"

#include "lib/text/CodePage.h"

namespace {

using Record = COrrevaData;

const BarParameter kBarParameters[] = {
    {"Brennweite", &Record::GetFocalLength, &Record::SetFocalLength},
    {"Hauptspiegeldurchmesser", &Record::GetMirrorDiameter, &Record::SetMirrorDiameter},
    {"Fangspiegeldurchmesser", &Record::GetSecondaryDiameter, &Record::SetSecondaryDiameter},
    {"Tubusdurchmesser", &Record::GetInsideDiameterHat, &Record::SetInsideDiameterHat},
    {"OAZ-Durchmesser", &Record::GetFocuserDiameter, &Record::SetFocuserDiameter},
    {"OAZ-Höhe"_cp1252, &Record::GetFocuserHeight, &Record::SetFocuserHeight},
    {"OAZ-Extra Höhe für Zubehör"_cp1252, &Record::GetFocuserSpare, &Record::SetFocuserSpare},
};

} // namespace

std::span<const BarParameter> BarParameters() { return kBarParameters; }

std::optional<std::int32_t> TrialAmong(const BarParams& params)
{
    for (std::size_t i = 0; i < std::size(kBarParameters); ++i) {
        if (params[i].selected != 0) {
            return static_cast<std::int32_t>(i);
        }
    }
    return std::nullopt;
}
