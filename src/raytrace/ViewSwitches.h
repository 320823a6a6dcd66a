#pragma once

#include <cstdint>

/// What the panes show beside the telescope itself. The document holds one set; it is stored nowhere
/// and returns to these values at every start. At most one of the three ray modes is set.
struct ViewSwitches {
    std::uint8_t ray_from_mouse = 0;        ///< point source at the mouse pointer
    std::uint8_t ray_from_focal_plane = 0;  ///< point source in the focal plane
    std::uint8_t ray_parallel = 0;          ///< parallel rays from a point at infinity
    std::uint8_t miss_in_grey = 1;          ///< rays that miss are grey (1) or not shown (0)
    std::uint8_t show_extended_focuser = 0; ///< the focuser drawn extended
    std::uint8_t show_offset = 1;           ///< the secondary drawn with its offset
    std::uint8_t show_box_and_cage = 0;     ///< mirror box and upper cage drawn
    std::uint8_t high_contrast = 0;         ///< both panes black on white
};
