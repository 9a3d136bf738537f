#include "stress/outline_drawing.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <string>
#include <utility>

namespace korvane {
namespace {

class Picturing {
 public:
  Picturing(const std::vector<Outline>& outlines, DrawingBox box)
      : outlines_(outlines), bounds_(BoundsOf(outlines)), drawing_{box.width, box.height, {}} {
    constexpr double left = 24, right = 100, above = 26, below = 46;  // for letters and measures
    const double width = box.width - left - right, height = box.height - above - below;
    const double across = bounds_.right - bounds_.left, up = bounds_.top - bounds_.bottom;
    if (outlines.empty()) return;
    scale_ = std::min(across > 0 ? width / across : kFarthest, up > 0 ? height / up : kFarthest);
    if (across <= 0 && up <= 0) scale_ = 1;
    x0_ = left + (width - across * scale_) / 2 - bounds_.left * scale_;
    y0_ = above + (height + up * scale_) / 2 + bounds_.bottom * scale_;
  }

  Point At(double x, double y) const { return {x0_ + x * scale_, y0_ - y * scale_}; }
  Point At(const Vertex& point) const { return At(point.x, point.y); }

  void Fill();
  void Lines(bool closed);
  void Numbers();
  void Axes(const PlaneSection& section);
  void Measures();
  void Faults(const std::vector<Enclosure::Edge>& edges);
  Drawing Take() { return std::move(drawing_); }

 private:
  void Line(std::vector<Point> points, Ink ink, double width) {
    drawing_.shapes.emplace_back(Path{std::move(points), ink, {}, width});
  }
  void Text(Point at, std::string text, Ink ink, double height = 10) {
    drawing_.shapes.emplace_back(Letters{at, std::move(text), height, ink});
  }

  const std::vector<Outline>& outlines_;
  Bounds bounds_;
  Drawing drawing_;
  double scale_ = 1, x0_ = 0, y0_ = 0;
};

// One line through all outlines, which leaves and comes back at one place so that what it passes
// between them encloses nothing.
void Picturing::Fill() {
  std::vector<Point> all;
  const Point start = At(outlines_.front().front());
  for (const Outline& outline : outlines_) {
    for (const Vertex& point : outline) all.push_back(At(point));
    all.push_back(At(outline.front()));
    all.push_back(start);
  }
  constexpr double unseen = 0.01;
  drawing_.shapes.emplace_back(Path{std::move(all), Ink::Body, Ink::Body, unseen});
}

void Picturing::Lines(bool closed) {
  for (const Outline& outline : outlines_) {
    std::vector<Point> points;
    for (const Vertex& point : outline) points.push_back(At(point));
    if (closed || outline.size() > 2) points.push_back(At(outline.front()));
    Line(std::move(points), Ink::Line, 1.2);
  }
}

// Numbers of many points would run into one another.
void Picturing::Numbers() {
  constexpr std::size_t most = 36;
  std::size_t count = 0;
  for (const Outline& outline : outlines_) count += outline.size();
  for (const Outline& outline : outlines_) {
    const int turn = TwiceArea(outline) < 0 ? -1 : 1;
    for (std::size_t i = 0; i < outline.size() && count <= most; ++i) {
      const Point at = At(outline[i]);
      const Point before = At(outline[i > 0 ? i - 1 : outline.size() - 1]);
      const Point after = At(outline[Next(i, outline.size())]);
      for (const double radius : {0.6, 1.4})
        drawing_.shapes.emplace_back(Path{Arc(at, radius, 0, 360), Ink::Line, Ink::Line, 1});
      // Outside of the corner, away from both of its edges.
      const double in = std::hypot(at.x - before.x, at.y - before.y);
      const double out = std::hypot(after.x - at.x, after.y - at.y);
      if (in == 0 || out == 0) continue;
      double x = (at.y - before.y) / in + (after.y - at.y) / out;
      double y = -(at.x - before.x) / in - (after.x - at.x) / out;
      const double length = std::hypot(x, y);
      constexpr double away = 11;
      if (length < 0.01) continue;
      x *= -turn * away / length;
      y *= -turn * away / length;
      Text({at.x + x, at.y + y}, std::to_string(outline[i].number), Ink::Gray, 8.5);
    }
  }
}

void Picturing::Axes(const PlaneSection& section) {
  const Point center = At(section.x.Value(), section.y.Value());
  const double angle = section.angle.Value() * std::numbers::pi / 180;
  const double reach = std::hypot(bounds_.right - bounds_.left, bounds_.top - bounds_.bottom) / 2;
  for (const bool first : {true, false}) {
    const double x = first ? std::cos(angle) : -std::sin(angle);
    const double y = first ? std::sin(angle) : std::cos(angle);
    const double half =
        std::min({0.85 * reach * scale_, (drawing_.width / 2 - 24) / std::max(std::abs(x), 1e-9),
                  (drawing_.height / 2 - 24) / std::max(std::abs(y), 1e-9)});
    Line({{center.x - x * half, center.y + y * half}, {center.x + x * half, center.y - y * half}},
         Ink::Accent, 0.9);
    Text({center.x + x * (half + 10), center.y - y * (half + 10)}, first ? "1" : "2", Ink::Accent);
  }
  constexpr double size = 5;
  Line(Arc(center, size, 0, 360), Ink::Accent, 1.6);
  Line({{center.x - 2 * size, center.y}, {center.x + 2 * size, center.y}}, Ink::Accent, 1.6);
  Line({{center.x, center.y - 2 * size}, {center.x, center.y + 2 * size}}, Ink::Accent, 1.6);
}

void Picturing::Measures() {
  const double across = bounds_.right - bounds_.left, up = bounds_.top - bounds_.bottom;
  const Point low = At(bounds_.left, bounds_.bottom), high = At(bounds_.right, bounds_.top);
  constexpr double beside = 22, beyond = 5;
  const double y = low.y + beside, x = high.x + beside;
  if (across > 0) {
    for (const double at : {low.x, high.x})
      Line({{at, low.y + beyond}, {at, y + beyond}}, Ink::Gray, 0.5);
    const double middle = (low.x + high.x) / 2;
    AddArrow(drawing_, {middle, y}, {low.x, y}, Ink::Line);
    AddArrow(drawing_, {middle, y}, {high.x, y}, Ink::Line);
    Text({middle, y + 14}, SixDigits(across), Ink::Line);
  }
  if (up > 0) {
    for (const double at : {low.y, high.y})
      Line({{high.x + beyond, at}, {x + beyond, at}}, Ink::Gray, 0.5);
    const double middle = (low.y + high.y) / 2;
    AddArrow(drawing_, {x, middle}, {x, low.y}, Ink::Line);
    AddArrow(drawing_, {x, middle}, {x, high.y}, Ink::Line);
    const std::string letters = SixDigits(up);
    constexpr double gap = 10, halfLetter = 3.6;
    Text({x + gap + halfLetter * static_cast<double>(letters.size()), middle}, letters, Ink::Line);
  }
}

void Picturing::Faults(const std::vector<Enclosure::Edge>& edges) {
  for (const Enclosure::Edge& edge : edges) Line({At(edge.from), At(edge.to)}, Ink::Red, 2.5);
}

}  // namespace

Drawing DrawnToScale(const std::vector<Outline>& outlines, const Enclosure& enclosure,
                     const PlaneSection* section, DrawingBox box) {
  Picturing picture(outlines, box);
  if (outlines.empty()) return picture.Take();
  const bool sound = enclosure.fault.empty();
  if (sound) picture.Fill();
  picture.Lines(sound);
  picture.Faults(enclosure.edges);
  picture.Numbers();
  picture.Measures();
  if (section != nullptr) picture.Axes(*section);
  return picture.Take();
}

}  // namespace korvane
