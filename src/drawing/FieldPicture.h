#pragma once

#include "drawing/Surface.h"
#include "model/optics/FieldSimulation.h"

/// The simulated field of view as a disc of grey rings, 500 pixels wide for 3 degrees, with a scale beside
/// it. A field without a brightness at its centre stays empty.
void DrawFieldPicture(Surface& surface, const FieldTable& table);
