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

void AddBox(Drawing& drawing, Point corner, Point opposite, std::optional<Ink> fill) {
  drawing.shapes.emplace_back(Path{
      {corner, {opposite.x, corner.y}, opposite, {corner.x, opposite.y}, corner}, Ink::Line, fill});
}

void AddArrow(Drawing& drawing, Point from, Point to, Ink ink) {
  constexpr double size = 6;
  const double length = std::hypot(to.x - from.x, to.y - from.y);
  const double x = (to.x - from.x) / length * size;
  const double y = (to.y - from.y) / length * size;
  drawing.shapes.emplace_back(Path{{from, to}, ink, {}, 1.5});
  drawing.shapes.emplace_back(
      Path{{{to.x - x - y / 2, to.y - y + x / 2}, to, {to.x - x + y / 2, to.y - y - x / 2}},
           ink,
           {},
           1.5});
}

void AddMeasure(Drawing& drawing, double left, double right, double y, const char* letters) {
  const double middle = (left + right) / 2;
  constexpr double gap = 9;  // for the letters
  AddArrow(drawing, {middle - gap, y}, {left, y}, Ink::Line);
  AddArrow(drawing, {middle + gap, y}, {right, y}, Ink::Line);
  drawing.shapes.emplace_back(Letters{{middle, y}, letters, 9, Ink::Line});
}

}  // namespace korvane
