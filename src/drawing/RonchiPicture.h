#pragma once

#include "drawing/RonchiDots.h"
#include "drawing/Surface.h"
#include "model/record/OrrevaData.h"

#include <cstdint>
#include <vector>

struct RonchiPattern {
    Pixel centre;
    double offset; ///< of the grating from the centre of curvature, inches
};

inline constexpr RonchiPattern kRonchiPatterns[] = {
    {{110, 150}, -0.7}, {{320, 150}, -0.5}, {{530, 150}, -0.3}, {{110, 360}, -0.1}, {{320, 360}, 0.1},
    {{530, 360}, 0.3},  {{110, 570}, 0.5},  {{320, 570}, 0.7},  {{530, 570}, 0.9},
};

/// The block of pixels that holds the nine patterns, and its place in the picture.
struct RonchiBlock {
    static constexpr Pixel kAt{10, 50};
    static constexpr std::int32_t kSide = 621;
};

/// The nine patterns, row by row: RonchiBlock::kSide squared pixels, black dots on white. The generator of
/// the dots is advanced.
std::vector<Colour> RonchiPatterns(const RonchiTest& test, RonchiGenerator& generator);

/// The picture of the matching Ronchi test: nine patterns of black dots, each for another offset of the
/// grating, and on top the range of the conic constant, if there is one. `grating` in lines/mm. Pictures of
/// equal seeds are equal.
void DrawRonchiPicture(Surface& surface, COrrevaData& telescope, double grating, double constant,
                       std::uint32_t seed);
