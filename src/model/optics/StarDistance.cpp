#include "model/optics/StarDistance.h"

#include "lib/text/FormatText.h"
#include "lib/text/Numbers.h"

double StarDistanceByError(double x, double D, double F)
{
    const double q = F / D;
    const double l = 587.56 / x; // nm
    return D * D / (q * q * 512 * l) * 1000;
}

std::array<double, 3> StarDistancesByResolution(double d, double D)
{
    static constexpr double kArcseconds[] = {115, 138, 116}; // times mm
    std::array<double, 3> distances{};
    for (std::size_t i = 0; i < distances.size(); ++i) {
        const double a = (kArcseconds[i] / D) / 206265;
        distances[i] = d / a / 100;
    }
    return distances;
}

std::string StarDialogTexts::Precision() { return FormatText("%0.2f", m_telescope.GetStarPrecision()); }

std::string StarDialogTexts::StarDiameter() { return FormatText("%0.3f", m_telescope.GetStarDiameter()); }

std::string StarDialogTexts::DistanceByError() { return ErrorText(m_telescope.GetStarPrecision()); }

std::string StarDialogTexts::DistanceByResolution() { return ResolutionText(m_telescope.GetStarDiameter()); }

std::string StarDialogTexts::TypePrecision(const char* text)
{
    const double precision = DecimalValue(text);
    m_telescope.SetStarPrecision(precision);
    m_telescope.SetModified(1);
    return ErrorText(precision);
}

std::string StarDialogTexts::TypeStarDiameter(const char* text)
{
    const double diameter = DecimalValue(text);
    m_telescope.SetStarDiameter(diameter);
    m_telescope.SetModified(1);
    return ResolutionText(diameter);
}

std::string StarDialogTexts::ErrorText(double precision)
{
    const double D = m_telescope.GetMirrorDiameter();
    const double F = m_telescope.GetFocalLength();
    return FormatText("%0.2fm", StarDistanceByError(precision, D, F));
}

std::string StarDialogTexts::ResolutionText(double diameter)
{
    static constexpr const char* kLines[] = {"%0.2fm (Sparrows)", "\r\n%0.2fm (Rayleigh)",
                                             "\r\n%0.2fm (Dawes)"};
    const auto distances = StarDistancesByResolution(diameter, m_telescope.GetMirrorDiameter());
    std::string text;
    for (std::size_t i = 0; i < distances.size(); ++i) {
        text += FormatText(kLines[i], distances[i]);
    }
    return text;
}
