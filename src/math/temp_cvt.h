// Temperature conversions: Fahrenheit, Celsius, Rankine and Kelvin, each from any other.
#pragma once

#include <cstdint>

#include "frame/calculator_window.h"

namespace korvane {

class TEMP_CVT final : public CalculatorWindow {
 public:
  explicit TEMP_CVT(Session& session);

  void Load() override;

 private:
  Layout Arrangement() override;

  enum class Digits : std::uint8_t { Cents, All };

  static void Put(TextField& field, Double value, Digits digits);
  void Links(TextField& field, ScrollBar& bar, void (TEMP_CVT::*convert)(Digits));
  void FromFahrenheit(Digits digits);
  void FromCelsius(Digits digits);
  void FromRankine(Digits digits);
  void FromKelvin(Digits digits);

  Frame note_{*this, "", "Note"};
  Label instruction_{*this, "",
                     "When entering temperatures manually, press <ENTER> to force recalculation."};
  TextField F{*this, "F", "Fahrenheit"};
  ScrollBar FSlider{*this, "FSlider", "Fahrenheit slider", -100, 1500, 212};
  TextField C{*this, "C", "Celsius"};
  ScrollBar CSlider{*this, "CSlider", "Celsius slider", -73, 815, 100};
  TextField R{*this, "R", "Rankine"};
  ScrollBar rslider{*this, "rslider", "Rankine slider", 360, 1959, 672};
  TextField K{*this, "K", "Kelvin"};
  ScrollBar kslider{*this, "kslider", "Kelvin slider", 200, 1088, 373};

  Command btn_help{*this, "btn_help", "Help"};
  Command btn_exit{*this, "btn_exit", "Exit"};

  bool barFollows_ = false;  // it is set from its field, which keeps what was typed
};

}  // namespace korvane
