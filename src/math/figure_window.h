// What the windows of plane figures and of solids share: a choice of figures, each with its sketch,
// its captions and a routine that solves its dimensions for each other.
#pragma once

#include <array>
#include <memory>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "frame/calculator_window.h"
#include "frame/sketch.h"
#include "math/value.h"

namespace korvane {

inline bool Present(const Value& value) { return value > 0; }

inline constexpr std::size_t kFigureFields = 9;
using FigureValues = std::array<Value, kFigureFields>;

/// Which field a routine is asked to start from, and where it may look alive meanwhile.
class Given {
 public:
  Given(Session& session, const Value& last) : session_(session), last_(last) {}

  Session& GetSession() const { return session_; }
  /// Whether the person left this field last.
  bool IsLast(const Value& value) const { return &value == &last_; }
  /// Whether it has just been given: left last, and present.
  bool operator()(const Value& value) const { return IsLast(value) && Present(value); }

 private:
  Session& session_;
  const Value& last_;
};

/// A diameter and its radius give each other: the one given last the other, or else the one that is
/// there.
void Mirror(const Given& given, Value& radius, Value& diameter);

struct FigureField {
  const char* caption;
  bool isResult = false;

  FigureField(const char* text) : caption(text) {}
};
FigureField Result(const char* caption);

struct Figure {
  const char* option;
  const char* section;  ///< of its sketch, in the file
  std::vector<FigureField> fields;
  void (*solve)(const Given& given, FigureValues& values);
  /// Said instead of solving if the first field, a number of sides, holds fewer than three.
  const char* tooFewSides = nullptr;
};

namespace detail {

template <class... Field, std::size_t... i>
void Call(void (*solve)(const Given&, Field&...), const Given& given, FigureValues& values,
          std::index_sequence<i...>) {
  solve(given, values[i]...);
}
template <class... Field>
void Call(void (*solve)(const Given&, Field&...), const Given& given, FigureValues& values) {
  Call(solve, given, values, std::index_sequence_for<Field...>());
}

}  // namespace detail

/// A routine of named values, in the order of their fields, as one of all fields.
template <auto solve>
void Solves(const Given& given, FigureValues& values) {
  detail::Call(solve, given, values);
}

class FigureWindow : public CalculatorWindow {
 public:
  void Load() override;

 protected:
  struct Parts {
    const char* frame;    ///< caption of the choice
    const char* picture;  ///< name of the sketch's panel
    std::span<const Figure> figures;
  };

  FigureWindow(Session& session, CalculatorTraits traits, const Parts& parts);

  // Declared once in a window's constructor.
  void SolvesWith(Command& command);
  void ClearsWith(Command& command);
  /// The field of this caption, to the clipboard.
  void CopiesFieldWith(Command& command, std::string_view caption);

  const Figure& Chosen() const;
  virtual void SelectFigure();
  virtual void DrawFigure() = 0;

  Layout OptionColumn();
  Layout FieldForm();

  Picture PIC;
  std::string FigureName;

 private:
  void ClearFields();
  void LayOut();
  void Solve();
  void MoveOn(int field);

  std::span<const Figure> figures_;
  OptionGroup Frame1;
  std::vector<std::unique_ptr<Option>> options_;
  ControlArray<Label> L{*this, "L", 0, kFigureFields - 1};
  ControlArray<TextField> T{*this, "T", 0, kFigureFields - 1, L};
  short FocusIndex = 0;
};

}  // namespace korvane
