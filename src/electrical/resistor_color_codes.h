// Resistance of a resistor by the colours of its four bands.
#pragma once

#include "frame/calculator_window.h"

namespace korvane {

class Resistor_Color_Codes final : public CalculatorWindow {
 public:
  explicit Resistor_Color_Codes(Session& session);

  void Load() override;

 private:
  Layout Arrangement() override;

  void Decode();

  Picture picture_;
  Combo Combo1{*this, "Combo1", "1st Band"};
  Combo Combo2{*this, "Combo2", "2nd Band"};
  Combo Combo3{*this, "Combo3", "Multiplier Band"};
  Combo Combo4{*this, "Combo4", "Tolerance Band"};

  TextField txt_first{*this, "txt_first", "1st Digit"};
  TextField txt_second{*this, "txt_second", "2nd Digit"};
  TextField txt_multiplier{*this, "txt_multiplier", "Multiplier"};
  TextField txt_tolerance{*this, "txt_tolerance", "Tolerance"};
  TextField txt_resistance{*this, "txt_resistance", "Resistance (ohms)"};

  Frame chart_{*this, "", "Color, 1st and 2nd Digit, Multiplier, Tolerance"};
  ListBox List1{*this, "List1", chart_};

  Command btn_print{*this, "btn_print", "Print"};
  Command btn_help{*this, "btn_help", "Help"};
  Command btn_exit{*this, "btn_exit", "Exit"};
};

}  // namespace korvane
