#pragma once

class COrrevaData;

/// The light that reaches a point of the focal plane, exactly: every stop is seen from there as a circle in
/// the plane of the primary, all their centres on one line, and the light is the area of the primary that is
/// inside of all of them and outside of the secondary's shadow. Lengths are mm.

/// What the light of a telescope passes.
struct IlluminationStops {
    double D = 0; ///< diameter of the primary
    double f = 0; ///< its focal length
    double z = 0; ///< from the optical axis to the focal plane
    double m = 0; ///< minor axis of the secondary
    double q = 0; ///< from the drawtube's inner end to the focal plane
    double d = 0; ///< inside diameter of the drawtube
    double I = 0; ///< inside diameter of the tube
    double a = 0; ///< from the primary to the tube's front
    bool operator==(const IlluminationStops&) const = default;
};

/// Those of a record, by its getters; the first reading of a record without any settled default is infinite.
IlluminationStops ReadIlluminationStops(COrrevaData& telescope);

/// Whether light reaches the centre of the field: D, f, z, q, m, d and I finite and above 0, z and q below f,
/// a finite, and some of the primary seen beside the shadow. All that follows takes such stops alone.
bool HasIllumination(const IlluminationStops& stops);

/// The light at the centre as a share of the primary's area, above 0 and below 1.
double CentreLight(const IlluminationStops& stops);

/// The light h mm off the centre as a share of the primary's area, from 0 to 1, with an error below 1e-12 for
/// telescopes of any use; h is finite, its sign of no matter.
double LightAt(const IlluminationStops& stops, double h);

/// The stops that can take light from a mirror that is seen whole at the centre.
enum class CuttingStop { kNone, kTube, kSecondary, kDrawtube };

/// The stop that alone would leave the least of the primary at h, kNone where each shows all of it.
CuttingStop CuttingStopAt(const IlluminationStops& stops, double h);

/// Diameter of the field in which every point sees the whole primary but for the secondary's shadow; 0 where
/// not even the centre does.
double FullyLitField(const IlluminationStops& stops);

/// Diameter of the field in which `stop` shows every point the whole primary; infinite where it always does.
double FieldFreeOf(const IlluminationStops& stops, CuttingStop stop);

/// Diameter of the field at whose edge the light has fallen, for the first time from the centre outward, to
/// `share` of the centre's, to 1e-7 mm. A NaN without illumination, and for a share not between 0 and 1.
double FieldDiameterAtShare(const IlluminationStops& stops, double share);
