#include "document/OsloExport.h"

#include "model/record/OrrevaData.h"

#include <array>
#include <cstdio>

namespace {

struct Lens {
    double f; ///< focal length, mm
    double D; ///< mirror diameter, mm
    double w; ///< wanted field, mm
    double m; ///< minor axis of the secondary, mm
    double s; ///< secondary to focus, mm
    double b; ///< focuser axis to the front end, mm
};

struct LensLine {
    const char* text;
    double (*value)(const Lens& lens) = nullptr; ///< null for a line without a number
    int precision = -2;
};

/// Behind the line with the title. The blanks at line ends belong to the format.
constexpr LensLine kLensLines[] = {
    {"EBR  ", [](const Lens& lens) { return lens.D / 2; }},
    {"ANG  ", [](const Lens& lens) { return FieldAngle(lens.f, lens.w / 2); }},
    {"DES  \"Orreva\""},
    {"UNI  1.0"},
    {"// SRF 0"},
    {"AIR "},
    {"TH   1.0e+20"},
    {"AP  8.7268677908e+17"},
    {"NXT  // SRF 1"},
    {"AIR "},
    {"TH   ", [](const Lens& lens) { return lens.f - lens.s + lens.b; }},
    {"APN  1"},
    {"AY1 A ", [](const Lens& lens) { return -lens.m / 2; }, 2},
    {"AY2 A ", [](const Lens& lens) { return lens.m / 2; }, 2},
    {"AX1 A ", [](const Lens& lens) { return -lens.m / 2; }, 2},
    {"AX2 A ", [](const Lens& lens) { return lens.m / 2; }, 2},
    {"ATP A 1"},
    {"AAC A 2"},
    {"NXT  // SRF 2"},
    {"RFL "},
    {"TCE  0.0"},
    {"RD   ", [](const Lens& lens) { return lens.f * -2.0; }},
    {"TH   ", [](const Lens& lens) { return (lens.f - lens.s) * -1.0; }},
    {"AST "},
    {"CC   -1.0"},
    {"NXT  // SRF 3"},
    {"RFL "},
    {"TH   ", [](const Lens& lens) { return lens.s; }},
    {"DT   1"},
    {"TLA  45.0"},
    {"BEN"},
    {"NXT  // SRF 4"},
    {"AIR "},
    {"NXT  // SRF 5"},
    {"AIR "},
    {"CBK  1"},
    {"WV 0.58756 0.48613 0.65627"},
    {"WW 1.0 1.0 1.0"},
    {"END  5"},
    {"SDSA On"},
};

constexpr const char* kLineEnd = "\r\n";

Lens ReadLens(COrrevaData& data)
{
    Lens lens{};
    lens.f = data.GetFocalLength();
    lens.D = data.GetMirrorDiameter();
    lens.w = data.GetWanted100PercentFow();
    lens.m = data.GetSecondaryDiameter();
    lens.s = data.GetSecondaryToFocus();
    lens.b = data.GetDistanceFront();
    return lens;
}

} // namespace

const char* FormatOsloNumber(double value, int precision)
{
    struct Width {
        int least;
        int decimals;
    };
    constexpr int kFirst = -2;
    constexpr std::array<Width, 7> kWidths{{{0, 4}, {0, 1}, {6, 0}, {8, 1}, {9, 2}, {10, 3}, {11, 4}}};
    constexpr Width kOther{9, 2};

    const auto row = static_cast<std::size_t>(static_cast<long>(precision) - kFirst);
    const Width& width = row < kWidths.size() ? kWidths[row] : kOther;
    static char buffer[320]; // the largest double has 309 digits before the point
    std::snprintf(buffer, sizeof buffer, "%*.*f", width.least, width.decimals, value);
    return buffer;
}

std::string OsloExport(COrrevaData& data)
{
    const Lens lens = ReadLens(data);

    std::string text = std::string("// OSLO 6.3") + kLineEnd;
    text += std::string("LEN NEW \"") + data.GetTitle().GetText() + "\" " + FormatOsloNumber(lens.f, -1) +
            " 5" + kLineEnd;
    for (const LensLine& line : kLensLines) {
        text += line.text;
        if (line.value != nullptr) {
            text += FormatOsloNumber(line.value(lens), line.precision);
        }
        text += kLineEnd;
    }
    return text;
}
