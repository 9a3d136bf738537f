#include "stress/shapes.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace korvane {
namespace {

constexpr double kPi = std::numbers::pi;

/// A corner that may be rounded by an arc which touches both of its edges.
struct Corner {
  double x, y;
  double radius = 0;
};

/// How much of each of its edges a corner's arc takes: r / tan(half of the angle between them).
double TangentLength(const Corner& before, const Corner& at, const Corner& after) {
  if (at.radius <= 0) return 0;
  const double ax = before.x - at.x, ay = before.y - at.y;
  const double bx = after.x - at.x, by = after.y - at.y;
  const double between = std::abs(std::atan2(ax * by - ay * bx, ax * bx + ay * by));
  return at.radius / std::tan(between / 2);
}

void AddRounded(Points& points, const Corner& before, const Corner& at, const Corner& after,
                int chords) {
  if (at.radius <= 0) {
    points.push_back({at.x, at.y});
    return;
  }
  const double ax = at.x - before.x, ay = at.y - before.y;
  const double bx = after.x - at.x, by = after.y - at.y;
  const double turn = std::atan2(ax * by - ay * bx, ax * bx + ay * by);
  const double in = std::hypot(ax, ay);
  const double side = turn > 0 ? 1 : -1;
  const double tangent = TangentLength(before, at, after);
  // From the first touching point at right angles to the edge, towards the side it turns to.
  const Point center{at.x - ax / in * tangent - side * ay / in * at.radius,
                     at.y - ay / in * tangent + side * ax / in * at.radius};
  const double start = std::atan2(ay, ax) - side * kPi / 2;
  const int steps = std::max(1, static_cast<int>(std::lround(chords * std::abs(turn) / (2 * kPi))));
  for (int i = 0; i <= steps; ++i) {
    const double angle = start + turn * i / steps;
    points.push_back(
        {center.x + at.radius * std::cos(angle), center.y + at.radius * std::sin(angle)});
  }
}

ShapeOutlines Rounded(const std::vector<std::vector<Corner>>& outlines, int chords) {
  ShapeOutlines shape;
  for (const std::vector<Corner>& corners : outlines) {
    const std::size_t count = corners.size();
    const auto at = [&](std::size_t i) -> const Corner& { return corners[i % count]; };
    const auto taken = [&](std::size_t i) {
      return TangentLength(at(i + count - 1), at(i), at(i + 1));
    };
    Points points;
    for (std::size_t i = 0; i < count; ++i) {
      const double length = std::hypot(at(i + 1).x - at(i).x, at(i + 1).y - at(i).y);
      constexpr double rounding = 1 + 1e-9;
      if (taken(i) + taken(i + 1) > length * rounding)
        return {{}, "The radius is too large for the shape."};
      AddRounded(points, at(i + count - 1), at(i), at(i + 1), chords);
    }
    shape.outlines.push_back(std::move(points));
  }
  return shape;
}

Points Circle(double diameter, int chords) {
  Points points;
  for (int i = 0; i < chords; ++i) {
    const double angle = 2 * kPi * i / chords;
    points.push_back({diameter / 2 * std::cos(angle), diameter / 2 * std::sin(angle)});
  }
  return points;
}

std::vector<Corner> Box(double left, double bottom, double right, double top, double radius) {
  return {
      {left, bottom, radius}, {right, bottom, radius}, {right, top, radius}, {left, top, radius}};
}

ShapeOutlines Fault(const char* fault) { return {{}, fault}; }
constexpr const char* kThickWall = "The wall is too thick for the shape.";
constexpr const char* kThickParts = "Web or flange is too thick for the shape.";

ShapeOutlines Rectangle(const std::vector<double>& d, int chords) {
  return Rounded({Box(0, 0, d[0], d[1], d[2])}, chords);
}

ShapeOutlines HollowRectangle(const std::vector<double>& d, int chords) {
  const double b = d[0], h = d[1], t = d[2], r = d[3];
  if (2 * t >= std::min(b, h)) return Fault(kThickWall);
  return Rounded({Box(0, 0, b, h, r), Box(t, t, b - t, h - t, std::max(r - t, 0.0))}, chords);
}

ShapeOutlines SolidCircle(const std::vector<double>& d, int chords) {
  return {{Circle(d[0], chords)}, ""};
}

ShapeOutlines Tube(const std::vector<double>& d, int chords) {
  if (2 * d[1] >= d[0]) return Fault(kThickWall);
  return {{Circle(d[0], chords), Circle(d[0] - 2 * d[1], chords)}, ""};
}

ShapeOutlines Angle(const std::vector<double>& d, int chords) {
  const double b = d[0], h = d[1], t = d[2], r = d[3];
  if (t >= std::min(b, h)) return Fault("The legs are too thick for the shape.");
  return Rounded({{{0, 0}, {b, 0}, {b, t}, {t, t, r}, {t, h}, {0, h}}}, chords);
}

ShapeOutlines Channel(const std::vector<double>& d, int chords) {
  const double h = d[0], b = d[1], w = d[2], f = d[3], r = d[4];
  if (2 * f >= h || w >= b) return Fault(kThickParts);
  return Rounded({{{0, 0}, {b, 0}, {b, f}, {w, f, r}, {w, h - f, r}, {b, h - f}, {b, h}, {0, h}}},
                 chords);
}

ShapeOutlines IBeam(const std::vector<double>& d, int chords) {
  const double h = d[0], b = d[1], w = d[2], f = d[3], r = d[4];
  if (2 * f >= h || w >= b) return Fault(kThickParts);
  const double left = (b - w) / 2, right = (b + w) / 2;
  return Rounded({{{0, 0},
                   {b, 0},
                   {b, f},
                   {right, f, r},
                   {right, h - f, r},
                   {b, h - f},
                   {b, h},
                   {0, h},
                   {0, h - f},
                   {left, h - f, r},
                   {left, f, r},
                   {0, f}}},
                 chords);
}

ShapeOutlines Tee(const std::vector<double>& d, int chords) {
  const double h = d[0], b = d[1], w = d[2], f = d[3], r = d[4];
  if (f >= h || w >= b) return Fault(kThickParts);
  const double left = (b - w) / 2, right = (b + w) / 2;
  return Rounded({{{left, 0},
                   {right, 0},
                   {right, h - f, r},
                   {b, h - f},
                   {b, h},
                   {0, h},
                   {0, h - f},
                   {left, h - f, r}}},
                 chords);
}

// The upper flange goes to the left, the lower one to the right.
ShapeOutlines Zee(const std::vector<double>& d, int chords) {
  const double h = d[0], b = d[1], w = d[2], f = d[3], r = d[4];
  if (2 * f >= h || w >= b) return Fault(kThickParts);
  const double left = b - w;  // of the web
  return Rounded({{{left, 0},
                   {left + b, 0},
                   {left + b, f},
                   {b, f, r},
                   {b, h},
                   {0, h},
                   {0, h - f},
                   {left, h - f, r}}},
                 chords);
}

ShapeOutlines Trapezoid(const std::vector<double>& d, int chords) {
  const double bottom = d[0], top = d[1], h = d[2], offset = d[3], r = d[4];
  return Rounded({{{0, 0, r}, {bottom, 0, r}, {offset + top, h, r}, {offset, h, r}}}, chords);
}

// With an edge at the bottom.
ShapeOutlines RegularPolygon(const std::vector<double>& d, int chords) {
  constexpr double most = 360;
  const double sides = d[0];
  if (sides < 3 || sides > most || sides != std::floor(sides))
    return Fault("The number of sides is a whole one from 3 to 360.");
  std::vector<Corner> corners;
  for (int i = 0; i < static_cast<int>(sides); ++i) {
    const double angle = -kPi / 2 + (2 * i + 1) * kPi / sides;
    corners.push_back({d[1] / 2 * std::cos(angle), d[1] / 2 * std::sin(angle), d[2]});
  }
  return Rounded({corners}, chords);
}

const Dimension kFillet = {"Fillet Radius r", {"0.25", "8"}, true};
const Dimension kCornerRadius = {"Corner Radius r", "0", true};

const ShapeKind kKinds[] = {
    {"Rectangle",
     false,
     {{"Width b", {"4", "100"}}, {"Height h", {"6", "150"}}, kCornerRadius},
     &Rectangle},
    {"Hollow Rectangle",
     false,
     {{"Width b", {"4", "100"}},
      {"Height h", {"6", "150"}},
      {"Wall t", {"0.25", "6"}},
      {"Outside Corner Radius r", {"0.5", "12"}, true}},
     &HollowRectangle},
    {"Circle", true, {{"Diameter D", {"4", "100"}}}, &SolidCircle},
    {"Tube", true, {{"Diameter D", {"4.5", "114.3"}}, {"Wall t", {"0.237", "6.02"}}}, &Tube},
    {"Angle",
     false,
     {{"Width b", {"3", "75"}},
      {"Height h", {"4", "100"}},
      {"Thickness t", {"0.5", "10"}},
      kFillet},
     &Angle},
    {"Channel",
     false,
     {{"Height h", {"6", "150"}},
      {"Flange Width b", {"2", "75"}},
      {"Web Thickness w", {"0.25", "8"}},
      {"Flange Thickness t", {"0.375", "12"}},
      kFillet},
     &Channel},
    {"I-Beam",
     false,
     {{"Height h", {"8", "200"}},
      {"Flange Width b", {"4", "100"}},
      {"Web Thickness w", {"0.25", "5.6"}},
      {"Flange Thickness t", {"0.3125", "8.5"}},
      {"Fillet Radius r", {"0.25", "12"}, true}},
     &IBeam},
    {"Tee",
     false,
     {{"Height h", {"4", "100"}},
      {"Flange Width b", {"4", "100"}},
      {"Stem Thickness w", {"0.25", "8"}},
      {"Flange Thickness t", {"0.375", "10"}},
      kFillet},
     &Tee},
    {"Zee",
     false,
     {{"Height h", {"6", "150"}},
      {"Flange Width b", {"3", "75"}},
      {"Web Thickness w", {"0.375", "8"}},
      {"Flange Thickness t", {"0.375", "8"}},
      kFillet},
     &Zee},
    {"Trapezoid",
     false,
     {{"Bottom Width a", {"6", "150"}},
      {"Top Width b", {"4", "100"}, true},
      {"Height h", {"3", "75"}},
      {"Top Offset c", {"1", "25"}, true},
      kCornerRadius},
     &Trapezoid},
    {"Regular Polygon",
     true,
     {{"Number of Sides n", "6", false, false},
      {"Diameter over Corners D", {"4", "100"}},
      kCornerRadius},
     &RegularPolygon},
};

}  // namespace

std::span<const ShapeKind> ShapeKinds() { return kKinds; }

void Place(std::vector<Points>& outlines, const ShapePlacement& placement) {
  const double angle = placement.angle * kPi / 180;
  const double c = std::cos(angle), s = std::sin(angle);
  for (Points& points : outlines)
    for (Point& point : points)
      point = {placement.x + c * point.x - s * point.y, placement.y + s * point.x + c * point.y};
}

}  // namespace korvane
