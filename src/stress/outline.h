// Outlines of straight edges, and the section that they enclose.
#pragma once

#include <algorithm>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "frame/number.h"

namespace korvane {

/// A corner, and its number in the list that it comes from.
struct Vertex {
  double x = 0;
  double y = 0;  ///< grows upwards
  int number = 0;
};

/// Closed: its last corner is joined to the first.
using Outline = std::vector<Vertex>;

/// The corner behind another, around the outline.
inline std::size_t Next(std::size_t i, std::size_t count) { return i + 1 < count ? i + 1 : 0; }

double Distance(const Vertex& a, const Vertex& b);
double Perimeter(const Outline& outline);
/// Twice the area, above 0 where the outline runs counterclockwise.
double TwiceArea(const Outline& outline);

inline constexpr double kFarthest = 1e12;  // of coordinates

struct Bounds {
  double left = kFarthest, right = -kFarthest, bottom = kFarthest, top = -kFarthest;

  void Add(const Vertex& point) {
    left = std::min(left, point.x);
    right = std::max(right, point.x);
    bottom = std::min(bottom, point.y);
    top = std::max(top, point.y);
  }
  bool Holds(const Bounds& other) const {
    return left <= other.left && right >= other.right && bottom <= other.bottom && top >= other.top;
  }
  double Extent() const { return std::max(right - left, top - bottom); }
};
Bounds BoundsOf(const std::vector<Outline>& outlines);

/// A number that may be a coordinate: nothing for other texts and for what lies beyond the
/// farthest.
std::optional<double> Coordinate(std::string_view text);

/// Outlines of rows that hold an X and a Y each; empty rows part them. Points that repeat the one
/// before, or close an outline with its first, are left out.
struct OutlineList {
  std::vector<Outline> outlines;
  std::string fault;  ///< of a row with one number alone
};
OutlineList ReadOutlines(const std::vector<std::vector<std::string>>& rows);

/// What outlines without a fault enclose, in powers of their unit of length.
struct PlaneSection {
  Double area, perimeter;
  Double x, y;                      ///< of the centroid
  Double Ix, Iy, Ixy;               ///< about axes through the centroid
  Double I1, I2;                    ///< greatest and least
  Double angle;                     ///< from the axis of X to that of I1, counterclockwise, degrees
  Double left, right, bottom, top;  ///< distances of the farthest points from the centroid

  Double Polar() const { return Ix + Iy; }
  Double Gyration(Double I) const { return Sqrt(I / area); }
};
PlaneSection SectionOf(const std::vector<Outline>& outlines, const std::vector<bool>& holes);

/// Rounded to six digits that count, without a mask.
std::string SixDigits(Double value);

}  // namespace korvane
