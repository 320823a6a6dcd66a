#include "cli/ViewOptions.h"

namespace {

std::uint8_t Switch(bool on) { return on ? 1 : 0; }

} // namespace

ViewSwitches SwitchesFor(const ViewOptions& options)
{
    ViewSwitches switches;
    switches.ray_parallel = Switch(options.mode == RayMode::kParallel);
    switches.ray_from_focal_plane = Switch(options.mode == RayMode::kFocal);
    switches.ray_from_mouse = Switch(options.mode == RayMode::kPointer);
    switches.miss_in_grey = Switch(!options.hide_lost);
    switches.show_extended_focuser = Switch(options.extended);
    switches.show_offset = Switch(!options.no_offset);
    switches.show_box_and_cage = Switch(options.box_and_cage);
    return switches;
}
