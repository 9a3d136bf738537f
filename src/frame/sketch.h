// Line sketches in the language of a pen plotter, as the sketch files hold them.
//
// A file has a section per sketch: a line "[name]", then one line with all commands, each closed by
// ";". "SP" and a digit select a pen, "PD" lowers it, "PU" lifts it, "PA x,y" without the blank
// goes to a point; y grows upwards.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "frame/drawing.h"
#include "frame/number.h"

namespace korvane {

struct Sketch {
  /// Points that one pen joins; their y grows upwards.
  struct Stroke {
    Ink ink = Ink::Line;
    double width = 1;
    std::vector<Point> points;
  };

  std::vector<Stroke> strokes;
  Double maxX, maxY;  ///< of all points, 0 at least
};

/// The commands in the section of this name; nothing if there is no such section. One that ends
/// with its name fails with "Input past end of file".
std::optional<std::string> FindSketch(std::string_view file, std::string_view section);

/// What is behind the last ";" is not a command. More than 5000 commands fail with "Subscript out
/// of range".
Sketch ParseSketch(std::string_view commands);

/// The sketch at a scale with its origin at this place of a picture.
Drawing Placed(const Sketch& sketch, double width, double height, double scale, Point origin);

/// The sketch as large as the picture's size and its margin let it be. One without an extent fails
/// with a division by zero.
Drawing Fitted(const Sketch& sketch, double width, double height, double margin);

}  // namespace korvane
