// Two windows for tests: one with every kind of control, whose handlers tell of themselves in a
// label, and a small one that it shows modally.
#pragma once

#include <span>
#include <string>

#include "frame/calculator_window.h"
#include "frame/session.h"

namespace korvane::testing {

class Sampler final : public CalculatorWindow {
 public:
  explicit Sampler(Session& session);

  void Load() override;
  void Activated() override;
  void Unloaded() override { Log("unloaded"); }

  void Log(const std::string& event) { log.SetCaption(log.Caption() + event + ' '); }
  /// What happened since the last time, each event followed by a blank.
  std::string TakeLog();

  using CalculatorWindow::PassesFocusOn;

  Label log{*this, "log"};
  TextField first{*this, "first", "First"};
  TextField second{*this, "second", "Second", {"us", "si"}};
  TextField result{*this, "result", "Result"};
  TextField locked{*this, "locked", "Locked", "fixed"};
  OptionGroup group{*this, "group", "Group"};
  Option alpha{group, "alpha", "Alpha"};
  Option beta{group, "beta", "Beta"};
  CheckBox check{*this, "check", "Check"};
  ListBox list{*this, "list", "List"};
  Combo fixed{*this, "fixed", "Fixed", {"one", "two", "three"}};
  Combo open{*this, "open", "Open", {"one", "two"}, Combo::Style::Editable};
  SpinButton spin{*this, "spin", first};
  ScrollBar bar{*this, "bar", "Bar", 0, 10, 5};
  Grid grid{*this, "grid", "Grid"};
  Picture picture{*this, "picture", "A picture"};
  Label link{*this, "link", "A link"};
  Timer clock{*this, "clock", 10, Timer::Starts::Enabled};
  ControlArray<TextField> cell{*this, "cell", 1, 2, "Cell"};
  Command go{*this, "go", "Go"};
  Command ask{*this, "ask", "Ask"};
  Command question{*this, "question", "Question"};
  Command file{*this, "file", "File"};
  Command fail{*this, "fail", "Fail"};
  Command leave{*this, "leave", "Leave"};
  Command hidden{*this, "hidden", "Hidden"};
  Command disabled{*this, "disabled", "Disabled"};

 private:
  Layout Arrangement() override;

  int ticks_ = 0;
};

/// Shown modally by the sampler's `ask`; `deeper` shows one more on top.
class Inner final : public Window {
 public:
  Inner(Session& session, std::string name);

  void Unloaded() override;

  TextField passing{*this, "passing", "Passing"};
  TextField field{*this, "field", "Field"};
  Command done{*this, "done", "Done"};
  Command away{*this, "away", "Away"};
  Command deeper{*this, "deeper", "Deeper"};
  Command both{*this, "both", "Both"};

 private:
  Layout Arrangement() override { return Column({passing, field, done, away, deeper, both}); }
};

/// All windows of the suite and these.
std::span<const WindowUnit> TestCatalogue();

}  // namespace korvane::testing
