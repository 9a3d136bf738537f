#include "materials/shape_drawing.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>

namespace korvane {
namespace {

constexpr double kWidth = 450;
constexpr double kHeight = 362;
// The room for the section, and where its middle is.
constexpr double kRoom = 264;
constexpr Point kMiddle{218, 190};
constexpr double kLetters = 10;
constexpr double kArrow = 22;  // the length of one that points at a face

/// Half of what a text is wide, as digits and small letters are.
double HalfOf(const std::string& text) {
  return 0.36 * kLetters * static_cast<double>(text.size());
}

Point Towards(Point from, Point to) {
  const double length = std::hypot(to.x - from.x, to.y - from.y);
  return {(to.x - from.x) / length, (to.y - from.y) / length};
}

/// The arc that rounds a corner between its neighbours, as chords.
void AddRounding(std::vector<Point>& points, Point corner, Point before, Point after,
                 double radius) {
  const Point a = Towards(corner, before), b = Towards(corner, after);
  const double half = std::acos(std::clamp(a.x * b.x + a.y * b.y, -1.0, 1.0)) / 2;
  const double out = radius / std::sin(half) / std::hypot(a.x + b.x, a.y + b.y);
  const Point center{corner.x + (a.x + b.x) * out, corner.y + (a.y + b.y) * out};
  const double reach = radius / std::tan(half);
  const auto angle = [center, corner, reach](Point side) {
    return std::atan2(corner.y + side.y * reach - center.y, corner.x + side.x * reach - center.x);
  };
  const double start = angle(a);
  const double turn = std::remainder(angle(b) - start, 2 * std::numbers::pi);
  constexpr int steps = 12;
  for (int i = 0; i <= steps; ++i) {
    const double at = start + turn * i / steps;
    points.push_back({center.x + radius * std::cos(at), center.y + radius * std::sin(at)});
  }
}

Outline Mirrored(Outline half, double x, double y) {
  for (std::size_t i = half.size(); i-- > 0;)
    half.push_back({x * half[i].x, y * half[i].y, half[i].radius});
  return half;
}

}  // namespace

Outline MirroredAcross(Outline half) { return Mirrored(std::move(half), -1, 1); }

Outline MirroredUpwards(Outline half) { return Mirrored(std::move(half), 1, -1); }

ShapeDrawing::ShapeDrawing(Corner bottomLeft, Corner topRight)
    : least_(bottomLeft),
      most_(topRight),
      scale_(kRoom / std::max(most_.x - least_.x, most_.y - least_.y)),
      origin_{kMiddle.x - scale_ * (least_.x + most_.x) / 2,
              kMiddle.y + scale_ * (least_.y + most_.y) / 2},
      drawing_{kWidth, kHeight, {}} {}

Point ShapeDrawing::At(double x, double y) const {
  return {origin_.x + scale_ * x, origin_.y - scale_ * y};
}

std::vector<Point> ShapeDrawing::Rounded(const Outline& outline) const {
  std::vector<Point> points;
  const std::size_t count = outline.size();
  for (std::size_t i = 0; i < count; ++i) {
    const auto at = [&](std::size_t n) { return At(outline[n % count].x, outline[n % count].y); };
    if (outline[i].radius > 0)
      AddRounding(points, at(i), at(i + count - 1), at(i + 1), scale_ * outline[i].radius);
    else
      points.push_back(at(i));
  }
  if (!points.empty()) points.push_back(points.front());
  return points;
}

void ShapeDrawing::AddSection(const Outline& outline, const Outline& bore) {
  const std::vector<Point> outside = Rounded(outline), inside = Rounded(bore);
  std::vector<Point> metal = outside;
  metal.insert(metal.end(), inside.rbegin(), inside.rend());
  drawing_.shapes.emplace_back(Path{std::move(metal), Ink::Body, Ink::Body, 0.1});
  drawing_.shapes.emplace_back(Path{outside, Ink::Line, {}, 1});
  if (!inside.empty()) drawing_.shapes.emplace_back(Path{inside, Ink::Line, {}, 1});
}

void ShapeDrawing::AddAxes(double x, double y) {
  constexpr double beyond = 10;
  const Point left = At(least_.x, y), right = At(most_.x, y);
  const Point bottom = At(x, least_.y), top = At(x, most_.y);
  const auto add = [this](Point from, Point to, Point letter, const char* name) {
    drawing_.shapes.emplace_back(Path{{from, to}, Ink::Accent, {}, 0.6});
    drawing_.shapes.emplace_back(Letters{letter, name, kLetters, Ink::Accent});
  };
  add({left.x - beyond, left.y}, {right.x + beyond, right.y}, {right.x + 2 * beyond, right.y}, "x");
  add({top.x, top.y - beyond / 2}, {bottom.x, bottom.y + beyond}, {bottom.x, bottom.y + 2 * beyond},
      "y");
}

void ShapeDrawing::AddHairline(Point from, Point to) {
  drawing_.shapes.emplace_back(Path{{from, to}, Ink::Line, {}, 0.5});
}

void ShapeDrawing::AddLetters(Point at, const std::string& text) {
  drawing_.shapes.emplace_back(Letters{at, text, kLetters, Ink::Line});
}

void ShapeDrawing::AddDepth(const std::string& text) {
  constexpr double gap = 9;
  const Point top = At(least_.x, most_.y), bottom = At(least_.x, least_.y);
  const double x = top.x - HalfOf(text) - 14;
  const double middle = (top.y + bottom.y) / 2;
  for (const Point edge : {top, bottom}) {
    AddHairline({edge.x - 3, edge.y}, {x - 4, edge.y});
    AddArrow(drawing_, {x, edge.y < middle ? middle - gap : middle + gap}, {x, edge.y}, Ink::Line);
  }
  AddLetters({x, middle}, text);
}

void ShapeDrawing::AddWidth(const std::string& text) {
  constexpr double above = 14;
  const Point left = At(least_.x, most_.y), right = At(most_.x, most_.y);
  const double y = left.y - above;
  const double middle = (left.x + right.x) / 2;
  for (const Point edge : {left, right}) {
    AddHairline({edge.x, edge.y - 3}, {edge.x, y - 4});
    AddArrow(drawing_, {middle, y}, {edge.x, y}, Ink::Line);
  }
  AddLetters({middle, y - above}, text);
}

void ShapeDrawing::AddWall(double left, double right, double y, const std::string& text) {
  const Point from = At(left, y), to = At(right, y);
  AddArrow(drawing_, {from.x - kArrow, from.y}, from, Ink::Line);
  AddArrow(drawing_, {to.x + kArrow, to.y}, to, Ink::Line);
  AddLetters({to.x + kArrow + HalfOf(text) + 6, to.y}, text);
}

void ShapeDrawing::AddFlange(double top, double bottom, double x, const std::string& text) {
  const double beside = At(most_.x, 0).x + 12;
  const Point upper = At(most_.x, top), lower = At(x, bottom);
  AddHairline({upper.x + 3, upper.y}, {beside + 4, upper.y});
  AddHairline(lower, {beside + 4, lower.y});
  AddArrow(drawing_, {beside, upper.y - kArrow}, {beside, upper.y}, Ink::Line);
  AddArrow(drawing_, {beside, lower.y + kArrow}, {beside, lower.y}, Ink::Line);
  AddLetters({beside + HalfOf(text) + 10, lower.y + kArrow / 2}, text);
}

}  // namespace korvane
