// Outlines of the common shapes of sections.
#pragma once

#include <span>
#include <string>
#include <vector>

#include "frame/controls.h"
#include "frame/drawing.h"

namespace korvane {

inline constexpr int kMostDimensions = 5;

/// A dimension of a shape; its defaults are the texts of its field.
struct Dimension {
  const char* caption;
  UnitText text;
  bool mayBeZero = false;
  bool isLength = true;
};

/// Points of outlines; y grows upwards.
using Points = std::vector<Point>;

struct ShapeOutlines {
  std::vector<Points> outlines;
  std::string fault;  ///< why there are none
};

struct ShapeKind {
  const char* name;
  bool isCentered;  ///< its origin is its centre, not the lower left corner of the box around it
  std::vector<Dimension> dimensions;
  /// For these dimensions, of which none is below 0; a whole turn has that many chords.
  ShapeOutlines (*outlines)(const std::vector<double>& dimensions, int chords);
};

std::span<const ShapeKind> ShapeKinds();

/// The outlines turned about their origin by degrees counterclockwise, and then moved.
struct ShapePlacement {
  double x = 0, y = 0, angle = 0;
};
void Place(std::vector<Points>& outlines, const ShapePlacement& placement);

}  // namespace korvane
