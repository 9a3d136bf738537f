// Parts of the pictures of shafts.
#pragma once

#include "frame/drawing.h"

namespace korvane {

/// A bearing below a shaft, its top at (x, y).
void AddBearing(Drawing& drawing, double x, double y);
/// An arrow around a shaft's axis, at its right or left end.
void AddTurn(Drawing& drawing, Point center, double radius, double from, double to);

}  // namespace korvane
