#pragma once

#include "drawing/Surface.h"

/// All colours of the cross-section, part by part.
struct SectionColours {
    Colour background;
    Colour inside; ///< of the tube and of the focuser
    Colour wall;   ///< tube walls, focuser parts, box and cage
    Colour mirror; ///< primary and diagonal flat
    Colour holder;
    Colour focalPlane;
    Colour litField; ///< the fully lit part of the focal plane
    Colour ray;
    Colour lostRay;
    Colour scale;  ///< lines and numbers
    Colour status; ///< of the parallel rays
    Colour prompt; ///< while no telescope is loaded
    Colour warning;
};

inline constexpr SectionColours kUsualSection{
    .background = {0, 102, 153},
    .inside = kWhite,
    .wall = {0, 64, 64},
    .mirror = {0, 255, 64},
    .holder = kBlack,
    .focalPlane = {192, 192, 0},
    .litField = {255, 255, 0},
    .ray = {255, 255, 0},
    .lostRay = {143, 128, 128},
    .scale = kWhite,
    .status = kWhite,
    .prompt = {240, 240, 240},
    .warning = {255, 0, 0},
};

/// Black on white, for the eye and for paper. Texts differ by 4.5 : 1 from what is behind them, and rays,
/// mirrors and warnings by 3 : 1 from both the white around them and the black parts that they cross.
inline constexpr SectionColours kContrastSection{
    .background = kWhite,
    .inside = kWhite,
    .wall = kBlack,
    .mirror = {0, 128, 64},
    .holder = kBlack,
    .focalPlane = kBlack,
    .litField = {200, 80, 0},
    .ray = {0, 84, 200},
    .lostRay = {140, 140, 140},
    .scale = kBlack,
    .status = kBlack,
    .prompt = kBlack,
    .warning = {192, 0, 0},
};

/// All colours of the design summary.
struct SummaryColours {
    Colour field;
    Colour text;
    Colour warning; ///< of a value
};

inline constexpr SummaryColours kUsualSummary{{51, 153, 102}, {240, 240, 240}, {255, 0, 0}};
inline constexpr SummaryColours kContrastSummary{kWhite, kBlack, {192, 0, 0}};
