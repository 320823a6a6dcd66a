#include "model/record/RecordFields.h"

#include <cstring>

namespace {

using D = COrrevaData;

const RecordField kFields[] = {
    {"title", TextField{&D::title, &D::SetTitle}},
    {"description", TextField{&D::description, &D::SetDescription}},
    {"misc/wanted_100percent_fow", RealField{&D::wanted_100percent_fow, &D::SetWanted100PercentFow}},
    {"mirror/focal_length", RealField{&D::focal_length, &D::SetFocalLength}},
    {"mirror/diameter", RealField{&D::mirror_diameter, &D::SetMirrorDiameter}},
    {"mirror/thickness", RealField{&D::mirror_thickness, &D::SetMirrorThickness}},
    {"mirror/material", TextField{&D::material, &D::SetMaterial}},
    {"mirror/density", RealField{&D::density, &D::SetDensity}},
    {"mirror/poisson", UnusedField{}},
    {"mirror/modulus", UnusedField{}},
    {"tube/type", TypeField{&D::tube_type, &D::SetTubeType}},
    {"tube/distance_front", RealField{&D::distance_front, &D::SetDistanceFront}},
    {"tube/distance_back", RealField{&D::distance_back, &D::SetDistanceBack}},
    {"tube/inside_diameter_box", RealField{&D::inside_diameter_box, &D::SetInsideDiameterBox}},
    {"tube/inside_diameter_hat", RealField{&D::inside_diameter_hat, &D::SetInsideDiameterHat}},
    {"tube/thickness_box", RealField{&D::thickness_box, &D::SetThicknessBox}},
    {"tube/thickness_hat", RealField{&D::thickness_hat, &D::SetThicknessHat}},
    {"tube/height_box", RealField{&D::height_box, &D::SetHeightBox}},
    {"tube/height_hat", RealField{&D::height_hat, &D::SetHeightHat}},
    {"focuser/type", TypeField{&D::focuser_type, &D::SetFocuserType}},
    {"focuser/height", RealField{&D::focuser_height, &D::SetFocuserHeight}},
    {"focuser/diameter", RealField{&D::focuser_diameter, &D::SetFocuserDiameter}},
    {"focuser/spare", RealField{&D::focuser_spare, &D::SetFocuserSpare}},
    {"focuser/oaz_travel", RealField{&D::oaz_travel, &D::SetOazTravel}},
    {"focuser/oaz_length", RealField{&D::oaz_length, &D::SetOazLength}},
    {"focuser/osch_travel", RealField{&D::osch_travel, &D::SetOschTravel}},
    {"secondary/diameter", RealField{&D::secondary_diameter, &D::SetSecondaryDiameter}},
    {"secondary/offset", RealField{&D::secondary_offset, &D::SetSecondaryOffset}},
    {"weight/mirror", RealField{&D::weight_mirror, &D::SetWeightMirror}},
    {"weight/cell", RealField{&D::weight_cell, &D::SetWeightCell}},
    {"weight/box", RealField{&D::weight_box, &D::SetWeightBox}},
    {"weight/truss", RealField{&D::weight_truss, &D::SetWeightTruss}},
    {"weight/hat", RealField{&D::weight_hat, &D::SetWeightHat}},
    {"weight/secondary", RealField{&D::weight_secondary, &D::SetWeightSecondary}},
    {"weight/eyepiece", RealField{&D::weight_eyepiece, &D::SetWeightEyepiece}},
    {"weight/finder", RealField{&D::weight_finder, &D::SetWeightFinder}},
    {"weight/misc", RealField{&D::weight_misc, &D::SetWeightMisc}},
    {"balance/mirror", RealField{&D::balance_mirror, &D::SetBalanceMirror}},
    {"balance/cell", RealField{&D::balance_cell, &D::SetBalanceCell}},
    {"balance/box", RealField{&D::balance_box, &D::SetBalanceBox}},
    {"balance/truss", RealField{&D::balance_truss, &D::SetBalanceTruss}},
    {"balance/hat", RealField{&D::balance_hat, &D::SetBalanceHat}},
    {"balance/secondary", RealField{&D::balance_secondary, &D::SetBalanceSecondary}},
    {"balance/eyepiece", RealField{&D::balance_eyepiece, &D::SetBalanceEyepiece}},
    {"balance/finder", RealField{&D::balance_finder, &D::SetBalanceFinder}},
    {"balance/misc", RealField{&D::balance_misc, &D::SetBalanceMisc}},
    {"tests/artificial_star/diameter", RealField{&D::star_diameter, &D::SetStarDiameter}},
    {"tests/artificial_star/precision", RealField{&D::star_precision, &D::SetStarPrecision}},
    {"tests/matching_ronchi/grating", RealField{&D::ronchi_grating, &D::SetRonchiGrating}},
    {"tests/matching_ronchi/constant", RealField{&D::ronchi_constant, &D::SetRonchiConstant}},
};

} // namespace

std::span<const RecordField> RecordFields() { return kFields; }

const RecordField* FindRecordField(const char* key)
{
    for (const RecordField& field : kFields) {
        if (std::strcmp(field.key, key) == 0) {
            return &field;
        }
    }
    return nullptr;
}
