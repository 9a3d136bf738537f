// Pressure drop of air that flows through a perforated plate.
#pragma once

#include "frame/calculator_window.h"

namespace korvane {

class perfloss final : public CalculatorWindow {
 public:
  explicit perfloss(Session& session);

 private:
  Layout Arrangement() override;

  void OnFlow(TextField& field, bool velocityLeads);
  void TakePattern();
  void PerfPressureDrop();

  Combo Combo1;
  TextField txt_sqft{
      *this, "txt_sqft", UnitText{"Air Flow Area (ft2)", "Air Flow Area (m2)"}, {"1", "0.0929"}};
  TextField txt_cfm{
      *this, "txt_cfm", UnitText{"Air Flow Rate (cfm)", "Air Flow Rate (m3/s)"}, {"1000", "0.472"}};
  TextField txt_fpm{
      *this, "txt_fpm", UnitText{"Air Velocity (fpm)", "Air Velocity (m/s)"}, {"1000", "5.081"}};
  TextField txt_temp{*this, "txt_temp", UnitText{"Air Temperature (F)", "Air Temperature (C)"},
                     "0"};

  TextField txt_density{*this,
                        "txt_density",
                        UnitText{"Air Density (lbs/ft3)", "Air Density (kg/m3)"},
                        {".075", "1.201923"}};
  TextField txt_atr{*this, "txt_atr", "Absolute Temp Ratio"};
  TextField txt_p_drop{*this, "txt_p_drop",
                       UnitText{"Pressure Drop (in WC)", "Pressure Drop (Pa)"}};

  Command btn_calc{*this, "btn_calc", "Calculate"};
  Command btn_print{*this, "btn_print", "Print"};
  Command btn_help{*this, "btn_help", "Help"};
  Command btn_exit{*this, "btn_exit", "Exit"};

  // Of the chosen pattern: inches of water from feet per minute.
  Double a, b, c;
};

}  // namespace korvane
