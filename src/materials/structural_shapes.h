// Structural shapes: their file, and the window that shows one of its sections. Each kind of shape
// adds its columns and its drawing.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "frame/calculator_window.h"

namespace korvane {

inline constexpr const char* kShapesFile = "SHAPES.dat";

/// What a value is, from which its units follow.
enum class Measure : std::uint8_t { Length, Weight, Area, Modulus, Inertia, Torsion, Ratio };

/// A value in the records of one kind of shape.
struct ShapeColumn {
  const char* field;  ///< null for what only the drawing needs
  const char* caption;
  Measure measure;
};

/// A record of the file.
struct Shape {
  std::string us, metric;          ///< its designations
  std::vector<Double> values;      ///< in inches and pounds
  std::vector<std::string> texts;  ///< the same as its table prints them

  const std::string& Designation(bool inMetric) const { return inMetric ? metric : us; }
  double operator[](int column) const { return values[static_cast<std::size_t>(column)].Value(); }
};

/// The shapes of a section, which is headed by its key and kind; none if no section is headed so.
/// Fails with "Input past end of file" if it ends within a record, "Type mismatch" for a value that
/// is no number, "Invalid procedure call or argument" for one below 0, or for 0 in a field.
std::optional<std::vector<Shape>> ReadShapes(std::string_view bytes, std::string_view key,
                                             std::string_view kind,
                                             std::span<const ShapeColumn> columns);

/// A shape with its values as they are shown, which the drawing bears.
struct ShownShape {
  const Shape& shape;
  const std::vector<std::string>& texts;

  double operator[](int column) const { return shape[column]; }
  const std::string& Text(int column) const { return texts[static_cast<std::size_t>(column)]; }
};

struct ShapeWindow {
  const char* name;
  const char* kind;  ///< in the file
  std::span<const ShapeColumn> columns;
  Drawing (*draw)(const ShownShape& shape);
  const char* description;  ///< of the drawing
};

/// The section that a window shows, and how it is called.
struct ShapeChoice {
  std::string section, title, material;
};

class StructuralShapes : public CalculatorWindow {
 public:
  void Load() override;

 protected:
  StructuralShapes(Session& session, const ShapeWindow& window, ShapeChoice choice);

 private:
  Layout Arrangement() override;

  void ListShapes();
  void Seek(int from);
  void SeekNext();
  std::string Shown(const Shape& shape, std::size_t column) const;
  void ShowShape();

  const ShapeWindow& kind_;
  const ShapeChoice choice_;
  // As at the load: a change of units leaves the list and the captions, so it leaves all.
  const bool metric_ = IsMetric();
  std::vector<Shape> shapes_;

  TextField txt_search{*this, "txt_search", "Search"};
  ListBox lst_shapes{*this, "lst_shapes", "Shapes"};
  Label lbl_shape{*this, "lbl_shape"};
  Picture picture_;
  TextField txt_us{*this, "txt_us", "Designation, U.S."};
  TextField txt_metric{*this, "txt_metric", "Designation, Metric"};
  std::vector<std::unique_ptr<TextField>> fields_;  // by column; null without a field
  Command btn_copy{*this, "btn_copy", "Copy"};
  Command btn_print{*this, "btn_print", "Print"};
  Command btn_help{*this, "btn_help", "Help"};
  Command btn_exit{*this, "btn_exit", "Exit"};
};

}  // namespace korvane
