// Outlines as a drawing to scale.
#pragma once

#include <vector>

#include "frame/drawing.h"
#include "stress/enclosure.h"
#include "stress/outline.h"

namespace korvane {

/// The outlines to scale in a box of that size, with the measures over all: filled, or with their
/// edges at fault in red. With a section, its centroid and principal axes.
struct DrawingBox {
  double width, height;
};
Drawing DrawnToScale(const std::vector<Outline>& outlines, const Enclosure& enclosure,
                     const PlaneSection* section, DrawingBox box);

}  // namespace korvane
