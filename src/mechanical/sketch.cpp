#include "mechanical/sketch.h"

#include <cmath>

namespace korvane {

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

void AddBox(Drawing& drawing, Point corner, Point opposite) {
  drawing.shapes.emplace_back(
      Path{{corner, {opposite.x, corner.y}, opposite, {corner.x, opposite.y}, corner},
           Ink::Line,
           Ink::Body});
}

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
