// What all calculator windows share: help page, F1, Help, Exit, Save and Load, colours.
#pragma once

#include <initializer_list>
#include <string>
#include <vector>

#include "frame/data_file.h"
#include "frame/window.h"

namespace korvane {

struct CalculatorTraits {
  std::string name;
  std::string title;
  std::string helpPage;
  bool sizable = false;
};

class CalculatorWindow : public Window {
 public:
  CalculatorWindow(Session& session, CalculatorTraits traits);

  void Load() override;  ///< an override calls this one first
  void Activated() override;
  bool KeyPreview(Key key) override;

 protected:
  // Declared once in a window's constructor.
  void HelpsWith(Command& command);
  void ExitsWith(Command& command);
  void PrintsWith(Command& command);
  void SavesWith(Command& command, const DataFile& data);
  void LoadsWith(Command& command, const DataFile& data);
  void CopiesWith(Command& command, const TextField& field);  ///< its text, to the clipboard
  /// All that these hold, below the window's title: a line each, its caption and it with a tab
  /// between them, as spreadsheets take them. What the label says, if there is one, comes first.
  void CopiesWith(Command& command, std::vector<const CaptionedControl*> controls,
                  const Label* heading = nullptr);

  /// Whether metric units are selected now; captions keep to the units at the window's load.
  bool IsMetric() const;

  /// A command that computes, as Enter in these fields does.
  static void SolvesWith(Command& command, std::initializer_list<TextField*> fields,
                         const Handler& solve);
  /// Enter in these fields computes, and then a simulated Tab moves the focus on.
  void ComputesAndMovesOn(std::initializer_list<TextField*> fields, const Handler& compute);
  /// A result field that passes the focus on as soon as it gets it.
  void PassesFocusOn(const std::vector<TextField*>& fields);
  /// Fields that show results although a person may type in them: set apart from inputs to the eye
  /// alone.
  static void ShowsResultsIn(std::initializer_list<TextField*> fields);
  /// What a change of the field does while a person types in it. One that the program writes does
  /// nothing, so that two fields which follow each other don't go round in a circle.
  static void FollowsTyping(TextField& field, const Handler& follow);
  /// Fields whose whole text is selected when they get the focus.
  void SelectsOnFocus(std::initializer_list<TextField*> fields);

 private:
  std::string helpPage_;
};

/// Gives the window, and all its labels, frames, options and check boxes, the system's button-face
/// colour.
void ApplyFormColors(Window& window);

}  // namespace korvane
