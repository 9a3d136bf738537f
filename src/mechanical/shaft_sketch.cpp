#include "mechanical/shaft_sketch.h"

namespace korvane {

void AddBearing(Drawing& drawing, double x, double y) {
  constexpr double half = 9, height = 15;
  drawing.shapes.emplace_back(
      Path{{{x, y}, {x + half, y + height}, {x - half, y + height}, {x, y}}, Ink::Line, Ink::Body});
}

void AddTurn(Drawing& drawing, Point center, double radius, double from, double to) {
  const std::vector<Point> turn = Arc(center, radius, from, to);
  drawing.shapes.emplace_back(Path{turn, Ink::Accent, {}, 1.5});
  AddArrow(drawing, turn[turn.size() - 3], turn.back());
}

}  // namespace korvane
