#include "model/record/OrrevaData.h"

#include <cmath>

/// 0 if the core gives the focal ratio of a mirror of 200 mm and the thickness that it proposes for it.
int main()
{
    COrrevaData record;
    record.SetMirrorDiameter(200);
    record.SetFocalLength(1200);
    const bool good = record.GetFocalLength() / record.GetMirrorDiameter() == 6 &&
                      std::abs(record.GetMirrorThickness() - 200.0 / 6) < 1e-9;
    return good ? 0 : 1;
}
