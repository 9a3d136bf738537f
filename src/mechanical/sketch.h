// Parts of the pictures of shafts.
#pragma once

#include "frame/drawing.h"

namespace korvane {

void AddArrow(Drawing& drawing, Point from, Point to, Ink ink = Ink::Accent);
/// A measure between two places at one height, with its letters in the middle.
void AddMeasure(Drawing& drawing, double left, double right, double y, const char* letters);
void AddBox(Drawing& drawing, Point corner, Point opposite);
/// A bearing below a shaft, its top at (x, y).
void AddBearing(Drawing& drawing, double x, double y);
/// An arrow around a shaft's axis, at its right or left end.
void AddTurn(Drawing& drawing, Point center, double radius, double from, double to);

}  // namespace korvane
