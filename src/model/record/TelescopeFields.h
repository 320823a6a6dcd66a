#pragma once

#include "lib/text/LibString.h"

#include <cmath>
#include <cstdint>

/// The numbers and texts that describe a telescope, in their order, as a plain value: a copy of it is a state
/// of the design. COrrevaData gives them their meaning; formats, copies and snapshots work on them directly.
struct TelescopeFields {
    LibString title;
    LibString description;
    double wanted_100percent_fow = HUGE_VAL;
    double mirror_diameter = HUGE_VAL;
    double focal_length = HUGE_VAL;
    double mirror_thickness = HUGE_VAL;
    double density = HUGE_VAL;
    LibString material;
    double secondary_diameter = HUGE_VAL;
    double focuser_height = HUGE_VAL;
    double focuser_diameter = HUGE_VAL;
    double focuser_spare = HUGE_VAL;
    std::int32_t focuser_type = -1;
    double oaz_travel = HUGE_VAL;
    double oaz_length = HUGE_VAL;
    double osch_travel = HUGE_VAL;
    std::int32_t tube_type = -1;
    double distance_back = HUGE_VAL;
    double distance_front = HUGE_VAL;
    double thickness_hat = HUGE_VAL;
    double thickness_box = HUGE_VAL;
    double inside_diameter_hat = HUGE_VAL;
    double inside_diameter_box = HUGE_VAL;
    double height_hat = HUGE_VAL;
    double height_box = HUGE_VAL;
    double ronchi_grating = HUGE_VAL;
    double ronchi_constant = HUGE_VAL;
    double star_diameter = HUGE_VAL;
    double star_precision = HUGE_VAL;
    double weight_mirror = HUGE_VAL;
    double balance_mirror = HUGE_VAL;
    double weight_cell = HUGE_VAL;
    double balance_cell = HUGE_VAL;
    double weight_box = HUGE_VAL;
    double balance_box = HUGE_VAL;
    double weight_truss = HUGE_VAL;
    double balance_truss = HUGE_VAL;
    double weight_hat = HUGE_VAL;
    double balance_hat = HUGE_VAL;
    double weight_secondary = HUGE_VAL;
    double balance_secondary = HUGE_VAL;
    double weight_eyepiece = HUGE_VAL;
    double balance_eyepiece = HUGE_VAL;
    double weight_finder = HUGE_VAL;
    double balance_finder = HUGE_VAL;
    double weight_misc = HUGE_VAL;
    double balance_misc = HUGE_VAL;
    double focuser_total_height = HUGE_VAL; ///< cache
    double focal_plane_height = HUGE_VAL;   ///< cache
    double secondary_to_focus = HUGE_VAL;   ///< cache
    double secondary_offset = HUGE_VAL;
};
