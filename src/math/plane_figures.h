// The fifteen plane figures, and how the dimensions of each follow from one another.
#pragma once

#include <span>

#include "math/figure_window.h"

namespace korvane {

std::span<const Figure> PlaneFigures();

}  // namespace korvane
