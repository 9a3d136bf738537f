// Sections of shapes to scale, with their measures.
#pragma once

#include <string>
#include <vector>

#include "frame/drawing.h"

namespace korvane {

/// A corner of an outline, in inches with y upwards, and the radius that rounds it.
struct Corner {
  double x = 0;
  double y = 0;
  double radius = 0;
};

using Outline = std::vector<Corner>;

/// The outline's mirror image in the axis x = 0 or y = 0 behind it, so that it closes.
Outline MirroredAcross(Outline half);
Outline MirroredUpwards(Outline half);

/// The picture of a section that lies in the box from (left, bottom) to (right, top).
class ShapeDrawing {
 public:
  ShapeDrawing(Corner bottomLeft, Corner topRight);

  /// Solid, but for a bore.
  void AddSection(const Outline& outline, const Outline& bore = {});
  /// The axes through the centroid, with their letters.
  void AddAxes(double x, double y);
  void AddDepth(const std::string& text);
  void AddWidth(const std::string& text);
  /// Of a wall from x to x, measured at the height y.
  void AddWall(double left, double right, double y, const std::string& text);
  /// Of a flange that measures so at x, told at the right of the section.
  void AddFlange(double top, double bottom, double x, const std::string& text);

  Drawing Take() { return std::move(drawing_); }

 private:
  Point At(double x, double y) const;
  std::vector<Point> Rounded(const Outline& outline) const;
  void AddHairline(Point from, Point to);
  void AddLetters(Point at, const std::string& text);

  Corner least_, most_;
  double scale_;
  Point origin_;
  Drawing drawing_;
};

}  // namespace korvane
