// The twenty solids, and how their dimensions, areas and volumes follow from one another.
#pragma once

#include <span>

#include "math/figure_window.h"

namespace korvane {

/// The solid whose b may be negative, by its section.
inline constexpr const char* kCylinderPortion2 = "CYLINDER PORTION 2";

std::span<const Figure> Solids();

}  // namespace korvane
