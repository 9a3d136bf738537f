// AC power: current or power of a single-phase or three-phase load.
#pragma once

#include <array>
#include <string>

#include "frame/calculator_window.h"

namespace korvane {

class AC_Power final : public CalculatorWindow {
 public:
  explicit AC_Power(Session& session);

  void Load() override;

 private:
  Layout Arrangement() override;

  struct Quantity;
  static const std::array<Quantity, 6> kQuantities;

  const Quantity& Chosen() const;
  void LayoutPower();
  void SolvePower();
  void ShowsHelp(Command& command, const char* page);

  OptionGroup Frame1{*this, "Frame1", "Solve For"};
  Option Option1, Option2, Option3, Option4, Option5, Option6;
  OptionGroup Frame2{*this, "Frame2", "Select Power Type"};
  Option opt_single_phase{Frame2, "opt_single_phase", "Single Phase"};
  Option opt_three_phase{Frame2, "opt_three_phase", "Three Phase"};

  Label L1{*this, "L1"}, L2{*this, "L2"}, L3{*this, "L3"}, L4{*this, "L4"};
  Label L5{*this, "L5"}, L6{*this, "L6"}, L7{*this, "L7"};
  TextField txt_1{*this, "txt_1", L1};
  TextField txt_2{*this, "txt_2", L2};
  TextField txt_3{*this, "txt_3", L3};
  TextField txt_4{*this, "txt_4", L4};
  TextField txt_5{*this, "txt_5", L5};
  TextField txt_6{*this, "txt_6", L6};
  TextField txt_7{*this, "txt_7", L7};

  Command btn_Solve{*this, "btn_Solve", "Solve"};
  Command Command4{*this, "Command4", "Help Contents"};
  Command Command5{*this, "Command5", "Mechanical Help"};
  Command Command2{*this, "Command2", "Print"};
  Command Command3{*this, "Command3", "Help"};
  Command Command1{*this, "Command1", "Exit"};

  const std::array<TextField*, 6> inputs_ = {&txt_1, &txt_2, &txt_3, &txt_4, &txt_5, &txt_6};
};

}  // namespace korvane
