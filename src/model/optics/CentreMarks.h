#pragma once

#include "model/record/OrrevaData.h"

#include <string>

/// Largest diameters in mm of the marks at the centres of the mirrors that stay out of the light of the fully
/// illuminated field.
struct CentreMarks {
    double primary;
    double secondary;
};

/// m: minor axis of the secondary, w: wanted field, F: focal length, z: height of the focal plane (all mm).
CentreMarks FindCentreMarks(double m, double w, double F, double z);

/// For the record as it is now.
CentreMarks FindCentreMarks(COrrevaData& telescope);

/// The two lines of the message, parted by "\n"; in German in both languages.
std::string CentreMarksMessage(COrrevaData& telescope);
