#include "frame/drawing.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace korvane {

std::vector<Point> Arc(Point center, double radius, double from, double to) {
  // A full circle needs more steps than a quarter to look round.
  const int steps = std::max(24, static_cast<int>(std::abs(to - from) / 4));
  std::vector<Point> points;
  for (int i = 0; i <= steps; ++i) {
    const double angle = (from + (to - from) * i / steps) * std::numbers::pi / 180;
    points.push_back({center.x + radius * std::cos(angle), center.y + radius * std::sin(angle)});
  }
  return points;
}

}  // namespace korvane
