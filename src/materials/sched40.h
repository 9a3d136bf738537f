// Schedule 40 pipe data: the chart of the usual sizes.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "frame/calculator_window.h"
#include "materials/pipes.h"

namespace korvane {

class Sched40 final : public CalculatorWindow {
 public:
  explicit Sched40(Session& session);

 private:
  Layout Arrangement() override;

  Label& Text(const UnitText& text);
  Layout Cell(const UnitText& text, bool heading = false);
  std::vector<Layout> Heads();
  Layout RowOf(const Pipe& pipe);

  std::vector<Pipe> pipes_;
  std::vector<std::unique_ptr<Label>> texts_;
  Picture picture_;
  Command btn_print{*this, "btn_print", "Print"};
  Command btn_help{*this, "btn_help", "Help"};
  Command btn_exit{*this, "btn_exit", "Exit"};
};

}  // namespace korvane
