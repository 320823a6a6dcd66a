#include "document/FtaExport.h"

#include "lib/text/Numbers.h"
#include "model/record/OrrevaData.h"

#include <cmath>

namespace {

constexpr int kMostFtaZones = 100000;

constexpr const char* kBetweenRadiusAndZones = "#Orientation Longitudinal\r\n"
                                               "-1\r\n"
                                               "#Orientation Lateral\r\n"
                                               "-1\r\n"
                                               "#Conic Constant\r\n"
                                               "-1\r\n"
                                               "#Measurement Units\r\n"
                                               " 3\r\n"
                                               "#Lightsource\r\n"
                                               " 0\r\n"
                                               "#Wavelength\r\n"
                                               " 550\r\n";

constexpr const char* kTail = "#Effective Zoneradius\r\n"
                              " 1\r\n"
                              "#Inner Border\r\n"
                              " 0\r\n"
                              "#Outer Border\r\n"
                              " 0\r\n"
                              "#Wavefront Scale\r\n"
                              " 0\r\n"
                              "#Number Of Log-Entries\r\n"
                              " 0\r\n";

std::string RealLine(double value)
{
    LibString line;
    line.Format(" %f\r\n", value);
    return line.GetText();
}

} // namespace

int FtaZoneCount(double D, double f)
{
    const double R = 2 * f;
    const double zones = D * D * 1.0 / (16.0 * std::pow(R * R * R * 3.7e-05, 0.5));
    return std::isfinite(zones) && zones > 0 ? TruncToInt32(zones) : 0;
}

std::optional<std::string> FtaExport(COrrevaData& data)
{
    const double D = data.GetMirrorDiameter();
    const double f = data.GetFocalLength();
    const int N = FtaZoneCount(D, f);
    if (N > kMostFtaZones) {
        return std::nullopt;
    }
    std::string text = std::string("#Comment\r\n") + data.GetTitle().GetText() + "\r\n";
    text += "#Diameter\r\n" + RealLine(D);
    text += "#Radius Of Curvature\r\n" + RealLine(f); // kept: the reader expects this field so filled
    text += kBetweenRadiusAndZones;
    text += "#Number Of Zones\r\n " + std::to_string(N) + "\r\n";
    text += "#Couder Screen\r\n 0\r\n";
    for (int i = 1; i <= N; ++i) {
        text += RealLine((D / 2) * std::sqrt(static_cast<double>(i) / N));
    }
    return text + kTail;
}
