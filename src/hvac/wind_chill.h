// Wind chill: the temperature that cold air feels like in the wind.
#pragma once

#include "frame/calculator_window.h"

namespace korvane {

/// The formula of the U.S. and Canadian weather services (2001) in F, of the temperature in F and
/// the wind in mph.
Double WindChill(Single T, Single V);

class Wind_Chill_Factor final : public CalculatorWindow {
 public:
  explicit Wind_Chill_Factor(Session& session);

 private:
  Layout Arrangement() override;

  void Calculate();

  TextField txt_temperature{*this, "txt_temperature",
                            UnitText{"Temperature (F)", "Temperature (C)"}, "0"};
  TextField txt_windspeed{*this, "txt_windspeed", UnitText{"Wind Speed (mph)", "Wind Speed (km/h)"},
                          "0"};
  TextField txt_windchill{*this, "txt_windchill",
                          UnitText{"Wind Chill Temp (F)", "Wind Chill Temp (C)"}};

  Command Command1{*this, "Command1", "Calculate"};
  Command btn_print{*this, "btn_print", "Print"};
  Command btn_help{*this, "btn_help", "Help"};
  Command btn_exit{*this, "btn_exit", "Exit"};
};

}  // namespace korvane
