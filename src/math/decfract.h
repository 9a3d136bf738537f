// Fractions, decimals and millimeters: a length in inches as a decimal and as a fraction, and in
// mm.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "frame/calculator_window.h"

namespace korvane {

/// The nearest 64th, reduced: " 1- 1/ 2", " 2" and, of nothing, "0".
std::string FractionText(Single inches);

/// Inches from a whole number, a blank or "-", and a fraction, of which parts may be missing;
/// nothing for a denominator below 0. A blank ahead ends the whole number before it begins.
std::optional<Single> FractionValue(std::string_view text);

class DecFract final : public CalculatorWindow {
 public:
  explicit DecFract(Session& session);

 private:
  Layout Arrangement() override;

  void FromDecimal();
  void FromFraction();
  void FromMetric();
  void ShowFraction();
  void StepDecimal(double by);
  void StepMetric(int by);

  Label instruction_{*this, "", "Key in the known value and press <ENTER> to convert."};
  TextField dec{*this, "dec", "Decimal", "0"};
  SpinButton UpDown1{*this, "UpDown1", dec};
  Label dec_unit_{*this, "", "Inches"};
  TextField FRACTION{*this, "FRACTION", "Fraction", "0"};
  SpinButton UpDown2{*this, "UpDown2", FRACTION};
  Label fraction_unit_{*this, "", "Inches"};
  TextField METRIC{*this, "METRIC", "Metric", "0"};
  SpinButton UpDown3{*this, "UpDown3", METRIC};
  Label metric_unit_{*this, "", "Millimeters"};

  Command btn_help{*this, "btn_help", "Help"};
  Command btn_exit{*this, "btn_exit", "Exit"};
};

}  // namespace korvane
