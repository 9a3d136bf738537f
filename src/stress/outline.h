// Outlines of straight edges, and the section that they enclose.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "frame/drawing.h"
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

/// A number that may be a coordinate: nothing for other texts and for what lies beyond 1e12.
std::optional<double> Coordinate(std::string_view text);

/// Outlines of rows that hold an X and a Y each; empty rows part them. Points that repeat the one
/// before, or close an outline with its first, are left out.
struct OutlineList {
  std::vector<Outline> outlines;
  std::string fault;  ///< of a row with one number alone
};
OutlineList ReadOutlines(const std::vector<std::vector<std::string>>& rows);

/// How outlines lie: within one another, or so that they enclose no section.
struct Enclosure {
  struct Edge {
    Vertex from, to;
  };
  std::string fault;        ///< empty if there is none
  std::vector<Edge> edges;  ///< at fault
  std::vector<bool> holes;  ///< for each outline whether an odd number of others lies around it
};
Enclosure Enclose(const std::vector<Outline>& outlines);

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

/// The outlines to scale in a box of that size, with the measures over all: filled, or with their
/// edges at fault in red. With a section, its centroid and principal axes.
struct DrawingBox {
  double width, height;
};
Drawing DrawnToScale(const std::vector<Outline>& outlines, const Enclosure& enclosure,
                     const PlaneSection* section, DrawingBox box);

}  // namespace korvane
