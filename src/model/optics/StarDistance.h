#pragma once

#include "model/record/OrrevaData.h"

#include <array>
#include <string>

/// Least distance in m of an artificial star whose error in the star test stays below lambda/x on a mirror of
/// D and F, mm. A precision of 0 asks for nothing: 0.
double StarDistanceByError(double x, double D, double F);

/// Least distances in m at which a star of the diameter d is smaller than the resolution of a mirror of the
/// diameter D (both mm): by Sparrow, Rayleigh and Dawes. The division by 100, not 1000, belongs to the
/// design.
std::array<double, 3> StarDistancesByResolution(double d, double D);

/// What the dialog of the artificial star shows, for the telescope of the dialog.
class StarDialogTexts {
public:
    explicit StarDialogTexts(COrrevaData& telescope) : m_telescope(telescope) {}

    /// The edit fields as they open, from the record.
    std::string Precision();
    std::string StarDiameter();

    /// The results as they open, from the record.
    std::string DistanceByError();
    std::string DistanceByResolution();

    /// A typed text (a comma ends the number): stored in the record at once, which counts as modified from
    /// then on. Gives the result by the text.
    std::string TypePrecision(const char* text);
    std::string TypeStarDiameter(const char* text);

private:
    std::string ErrorText(double precision);
    std::string ResolutionText(double diameter);

    COrrevaData& m_telescope;
};
