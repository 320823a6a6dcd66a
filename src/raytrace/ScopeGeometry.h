#pragma once

class COrrevaData;

/// The frame of the side view, mm. x runs along the tube from front to back, y across it and downward. Light
/// travels in +x toward the primary; the focuser stands on the upper side, and the focal plane is y = 0.
struct ScopeGeometry {
    double distanceFront = 0.0;   ///< tube front end to focuser axis
    double frontX = 0.0;          ///< the tube's front end, a margin of a tenth of its length
    double top = 0.0;             ///< inner line of the upper tube wall
    double tubeLength = 0.0;      ///< the tube's length
    double tubeWidth = 0.0;       ///< distance of the two tube lines
    double axisY = 0.0;           ///< the optical axis
    double mirrorX = 0.0;         ///< the primary's front face
    double mirrorTop = 0.0;       ///< upper end of the primary
    double mirrorBottom = 0.0;    ///< lower end of the primary
    double focuserX = 0.0;        ///< the focuser's axis
    double secondaryLeft = 0.0;   ///< upper end of the diagonal
    double secondaryTop = 0.0;    ///< upper end of the diagonal
    double secondaryRight = 0.0;  ///< lower end of the diagonal
    double secondaryBottom = 0.0; ///< lower end of the diagonal
};

/// Built anew for each painting. With `show_offset` the diagonal is moved along its own line, toward the
/// primary and away from the focuser, by the secondary's offset on x and y alike.
ScopeGeometry BuildGeometry(COrrevaData& record, bool show_offset);
