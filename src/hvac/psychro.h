// Psychrometric calculations: the state of moist air from its dry bulb temperature and its relative
// humidity or dew point, at a total pressure of 1000 millibars.
#pragma once

#include <string>

#include "frame/calculator_window.h"

namespace korvane {

class Psychro final : public CalculatorWindow {
 public:
  explicit Psychro(Session& session);

  void Load() override;

 private:
  Layout Arrangement() override;

  void TakeDryBulb();
  void Recalculate();
  void DewPointFromHumidity();
  void TakeUnits();
  void ApplyMasks();

  TextField DryBulbF{*this, "DryBulbF", "Dry Bulb Temp", "70"};
  Label unit_dry_f{*this, "", "F"};
  TextField DryBulbC{*this, "DryBulbC", "Dry Bulb Temp (C)"};
  Label unit_dry_c{*this, "", "C"};
  TextField rh{*this, "rh", "Relative Humidity", "50"};
  Label unit_rh{*this, "", "%"};
  TextField DewPointF{*this, "DewPointF", "Dew Point"};
  Label unit_dew_f{*this, "", "F"};
  TextField DewPointC{*this, "DewPointC", "Dew Point (C)"};
  Label unit_dew_c{*this, "", "C"};
  TextField HumidityRatio{*this, "HumidityRatio", "Humidity Ratio"};
  Label Label7{*this, "Label7", {"lbs/lb  =", "kg/kg  ="}};
  TextField Grains{*this, "Grains", "Humidity Ratio by weight"};
  Label Label17{*this, "Label17", {"Grains/lb", "g/kg"}};
  TextField Enthalpy{*this, "Enthalpy", "Enthalpy"};
  Label Label18{*this, "Label18", {"btu/lb", "kJ/kg"}};
  TextField PressDryBulb{*this, "PressDryBulb", "Sat. Pressure @ Dry Bulb"};
  Label Label12{*this, "Label12", {"millibars", "kPa"}};
  TextField PressDewPoint{*this, "PressDewPoint", "Sat. Pressure @ Dew Point"};
  Label Label14{*this, "Label14", {"millibars", "kPa"}};
  TextField PressRatio{*this, "PressRatio", "Sat. Vapor Pressure Ratio"};
  Label instruction_{*this, "", "Enter known values and press <ENTER> to force a recalculation."};
  Command Command1{*this, "Command1", "Print"};
  Command Command3{*this, "Command3", "Help"};
  Command Command2{*this, "Command2", "Exit"};

  std::string InputMode = "R";  // which is given: "R" relative humidity, "D" dew point
};

}  // namespace korvane
