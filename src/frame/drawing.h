// Drawings as values: what a picture control shows, painted by the toolkit in the palette's
// colours.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "frame/color.h"

namespace korvane {

struct Point {
  double x = 0;
  double y = 0;  ///< grows downwards
};

/// A colour by its purpose, so that a drawing is right in light and dark palettes.
enum class Ink : std::uint8_t {
  Line,    ///< outlines and letters: the text colour
  Body,    ///< the fill of solid parts
  Accent,  ///< flow, loads, what the eye shall follow
  Paper,   ///< white in every palette
  // Pens of the sketch files.
  Red,
  Blue,
  Gray,
};

/// A line through the points, closed and filled where a fill is given.
struct Path {
  std::vector<Point> points;
  Ink ink = Ink::Line;
  std::optional<Ink> fill;
  double width = 1;  ///< of the line, in drawing units
  /// Instead of the fill: the colour that the thing itself has, the same in every palette.
  std::optional<Color> tint = {};
};

struct Letters {
  Point at;  ///< the middle of the text
  std::string text;
  double height = 10;  ///< of capital letters, in drawing units
  Ink ink = Ink::Line;
  /// Instead of the ink, on a tint: the same in every palette.
  std::optional<Color> tint = {};
};

/// The picture of a window that was captured last.
struct Snapshot {
  Point at;  ///< its top left corner
  double width = 0;
  double height = 0;
};

/// Shapes in a box of the given size, which the toolkit scales to the picture's place.
struct Drawing {
  double width = 0;
  double height = 0;
  std::vector<std::variant<Path, Letters, Snapshot>> shapes;
};

/// Points of an arc about a centre; angles in degrees, counted clockwise from the right.
std::vector<Point> Arc(Point center, double radius, double from, double to);

// Parts that drawings share.
void AddBox(Drawing& drawing, Point corner, Point opposite, std::optional<Ink> fill = Ink::Body);
void AddArrow(Drawing& drawing, Point from, Point to, Ink ink = Ink::Accent);
/// A measure between two places at one height, with its letters in the middle.
void AddMeasure(Drawing& drawing, double left, double right, double y, const char* letters);

}  // namespace korvane
