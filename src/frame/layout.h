// The arrangement of a window's controls: a value that a toolkit draws with its own layouts.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace korvane {

class Control;
class Frame;

/// A tree of rows, columns and forms with controls as its leaves. Its order, read as the eye goes,
/// is the tab order of the window.
struct Layout {
  enum class Kind : std::uint8_t {
    Control,   ///< one control
    Row,       ///< side by side
    Column,    ///< one below the other
    Form,      ///< fields one below the other with their captions in a column beside them
    Grid,      ///< parts are rows, whose parts align in columns
    Frame,     ///< parts inside a frame control with its caption
    Rule,      ///< a line between inputs and results
    Term,      ///< side by side without gaps: the parts of a formula
    Fraction,  ///< the first part over the second, with a bar between them
    Stretch,   ///< takes the free space
  };

  Kind kind = Kind::Stretch;
  korvane::Control* control = nullptr;
  std::vector<Layout> parts;

  Layout(korvane::Control& leaf) : kind(Kind::Control), control(&leaf) {}
  explicit Layout(Kind form, std::vector<Layout> inner = {}, korvane::Control* frame = nullptr)
      : kind(form), control(frame), parts(std::move(inner)) {}
};

inline Layout Row(std::vector<Layout> parts) { return Layout(Layout::Kind::Row, std::move(parts)); }
inline Layout Column(std::vector<Layout> parts) {
  return Layout(Layout::Kind::Column, std::move(parts));
}
inline Layout Form(std::vector<Layout> fields) {
  return Layout(Layout::Kind::Form, std::move(fields));
}
inline Layout Cells(std::vector<Layout> rows) {
  return Layout(Layout::Kind::Grid, std::move(rows));
}
inline Layout Term(std::vector<Layout> parts) {
  return Layout(Layout::Kind::Term, std::move(parts));
}
inline Layout Fraction(Layout above, Layout below) {
  return Layout(Layout::Kind::Fraction, {std::move(above), std::move(below)});
}
inline Layout Rule() { return Layout(Layout::Kind::Rule); }
inline Layout Stretch() { return Layout(Layout::Kind::Stretch); }
Layout Box(Frame& frame, std::vector<Layout> parts);

}  // namespace korvane
