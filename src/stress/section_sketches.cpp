#include "stress/section_sketches.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace korvane {
namespace {

// Sections stand in a box of 120 by 120, with y growing downwards.
constexpr double kBox = 120;
constexpr double kMiddle = kBox / 2;

/// A dimension: arrows between two points, and its letter beside their middle.
struct Span {
  Point from;
  Point to;
  const char* letter;
  Point offset;
};

struct Shape {
  std::vector<Point> outline;
  std::vector<Point> hole;
  double axis;     // height of the axis
  double extreme;  // height of the fiber farthest from it; the axis where it is not shown
  std::vector<Span> spans;
};

std::vector<Point> Rectangle(double left, double top, double right, double bottom) {
  return {{left, top}, {right, top}, {right, bottom}, {left, bottom}, {left, top}};
}

std::vector<Point> Circle(double radius) { return Arc({kMiddle, kMiddle}, radius, 0, 360); }

Span Width(double left, double right, const char* letter = "b") {
  return {{left, kBox + 14}, {right, kBox + 14}, letter, {0, 12}};
}
Span Depth(double left, double top = 0) {
  return {{left - 14, top}, {left - 14, kBox}, "d", {-11, 0}};
}
Span Web(double left, double right) { return {{left, 34}, {right, 34}, "t", {22, 0}}; }
Span Flange(double right) { return {{right + 10, 98}, {right + 10, kBox}, "s", {10, 0}}; }

Shape Triangle(double axis, double extreme) {
  return {
      {{60, 0}, {110, 120}, {10, 120}, {60, 0}}, {}, axis, extreme, {Width(10, 110), Depth(10)}};
}

Shape ShapeOf(Section section) {
  switch (section) {
    case Section::Rectangle:
      return {Rectangle(20, 0, 100, 120), {}, 60, 0, {Width(20, 100), Depth(20)}};
    case Section::HollowRectangle:
      return {Rectangle(20, 0, 100, 120),
              Rectangle(38, 20, 82, 100),
              60,
              0,
              {Width(20, 100),
               Depth(20),
               {{50, 20}, {50, 100}, "h", {9, -18}},
               {{38, 84}, {82, 84}, "w", {10, -9}}}};
    case Section::Round: return {Circle(60), {}, 60, 0, {Width(0, 120, "OD")}};
    case Section::HollowRound:
      return {Circle(60),
              Circle(40),
              60,
              0,
              {Width(0, 120, "OD"), {{60, 20}, {60, 100}, "ID", {12, -16}}}};
    case Section::TriangleAboutCenter: return Triangle(80, 0);
    case Section::TriangleAboutBottom: return Triangle(120, 120);
    case Section::Trapezoid:
      return {{{35, 14}, {85, 14}, {120, 120}, {0, 120}, {35, 14}},
              {},
              74,
              14,
              {Width(0, 120), Depth(0, 14), {{35, 4}, {85, 4}, "a", {0, -11}}}};
    case Section::Angle:
      return {{{16, 0}, {40, 0}, {40, 98}, {106, 98}, {106, 120}, {16, 120}, {16, 0}},
              {},
              76,
              0,
              {Width(16, 106), Depth(16), Web(16, 40), Flange(106)}};
    case Section::Channel:
      return {{{16, 0},
               {100, 0},
               {100, 22},
               {38, 22},
               {38, 98},
               {100, 98},
               {100, 120},
               {16, 120},
               {16, 0}},
              {},
              60,
              0,
              {Width(16, 100), Depth(16), Web(16, 38), Flange(100)}};
    case Section::IBeam:
      return {{{14, 0},
               {106, 0},
               {106, 22},
               {70, 22},
               {70, 98},
               {106, 98},
               {106, 120},
               {14, 120},
               {14, 98},
               {50, 98},
               {50, 22},
               {14, 22},
               {14, 0}},
              {},
              60,
              0,
              {Width(14, 106), Depth(14), Web(50, 70), Flange(106)}};
  }
  return {};
}

/// Puts shapes of the box into a drawing.
class Sketcher {
 public:
  Sketcher(double width, double height, Point at, double scale)
      : drawing_{width, height, {}}, at_(at), scale_(scale) {}

  /// A hole is joined to the outline, so that an odd and even filling leaves it out.
  void Body(const Shape& shape) {
    std::vector<Point> joined = shape.outline;
    if (!shape.hole.empty()) {
      joined.insert(joined.end(), shape.hole.begin(), shape.hole.end());
      joined.push_back(shape.outline.front());
    }
    Draw(joined, Ink::Body, 0.5, Ink::Body);
    Draw(shape.outline, Ink::Line, 1.5);
    if (!shape.hole.empty()) Draw(shape.hole, Ink::Line, 1.5);
  }

  void Axis(const Shape& shape) {
    const double y = shape.axis;
    const auto leftmost = std::min_element(shape.outline.begin(), shape.outline.end(),
                                           [](Point a, Point b) { return a.x < b.x; });
    for (double x = leftmost->x - 8; x < kBox + 28; x += 20) {
      Draw({{x, y}, {x + 10, y}}, Ink::Line, 0.75);
      Draw({{x + 14, y}, {x + 16, y}}, Ink::Line, 0.75);
    }
  }

  void Dimension(const Span& span) {
    Draw({span.from, span.to}, Ink::Accent, 1);
    Arrow(span.from, span.to);
    Arrow(span.to, span.from);
    const Point middle = {(span.from.x + span.to.x) / 2 + span.offset.x,
                          (span.from.y + span.to.y) / 2 + span.offset.y};
    drawing_.shapes.emplace_back(Letters{Placed(middle), span.letter, 10, Ink::Accent});
  }

  Drawing Done() { return std::move(drawing_); }

 private:
  Point Placed(Point point) const { return {at_.x + point.x * scale_, at_.y + point.y * scale_}; }

  void Draw(std::vector<Point> points, Ink ink, double width, std::optional<Ink> fill = {}) {
    for (Point& point : points) point = Placed(point);
    drawing_.shapes.emplace_back(Path{std::move(points), ink, fill, width});
  }

  void Arrow(Point tip, Point tail) {
    constexpr double length = 5, half = 2.2;
    const double span = std::hypot(tail.x - tip.x, tail.y - tip.y);
    const Point along = {(tail.x - tip.x) / span, (tail.y - tip.y) / span};
    const Point foot = {tip.x + along.x * length, tip.y + along.y * length};
    Draw({{foot.x - along.y * half, foot.y + along.x * half},
          tip,
          {foot.x + along.y * half, foot.y - along.x * half}},
         Ink::Accent, 1);
  }

  Drawing drawing_;
  Point at_;
  double scale_;
};

}  // namespace

Drawing SectionThumbnail(Section section) {
  constexpr double scale = 0.32;
  Sketcher sketcher(44, 44, {3, 3}, scale);
  sketcher.Body(ShapeOf(section));
  return sketcher.Done();
}

Drawing SectionSketch(Section section) {
  constexpr double scale = 1.25;
  Sketcher sketcher(250, 218, {48, 24}, scale);
  const Shape shape = ShapeOf(section);
  sketcher.Body(shape);
  sketcher.Axis(shape);
  for (const Span& span : shape.spans) sketcher.Dimension(span);
  constexpr double x = kBox + 20;
  if (shape.extreme != shape.axis)
    sketcher.Dimension({{x, shape.axis}, {x, shape.extreme}, "y", {11, 0}});
  return sketcher.Done();
}

}  // namespace korvane
