// Heat index: the temperature that warm, humid air feels like.
#pragma once

#include "frame/calculator_window.h"

namespace korvane {

/// Rothfusz's regression as the National Weather Service uses it, in F, of the temperature in F and
/// the relative humidity in percent.
Double HeatIndex(Single T, Single R);

class Heat_Index final : public CalculatorWindow {
 public:
  explicit Heat_Index(Session& session);

 private:
  Layout Arrangement() override;

  void Calculate();

  TextField txt_temperature{*this, "txt_temperature",
                            UnitText{"Temperature (F)", "Temperature (C)"}, "0"};
  TextField txt_humidity{*this, "txt_humidity", "Relative Humidity (%)", "0"};
  TextField txt_heatindex{*this, "txt_heatindex",
                          UnitText{"Heat Index Temp (F)", "Heat Index Temp (C)"}};

  Command Command1{*this, "Command1", "Calculate"};
  Command btn_print{*this, "btn_print", "Print"};
  Command btn_help{*this, "btn_help", "Help"};
  Command btn_exit{*this, "btn_exit", "Exit"};
};

}  // namespace korvane
