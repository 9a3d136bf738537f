// Atmospheric pressure and the boiling point of water at an altitude.
#pragma once

#include "frame/calculator_window.h"

namespace korvane {

/// Inches of mercury at an altitude in ft, in the standard atmosphere.
Double AtmosphericPressure(Single h);

/// F, of water at a pressure in inches of mercury; fitted near that of the atmosphere.
Double BoilingPoint(Double p);

class Boiling_Point final : public CalculatorWindow {
 public:
  explicit Boiling_Point(Session& session);

  void Load() override;

 private:
  Layout Arrangement() override;

  void PressureAndBoilingPoint();

  Label unit_m_{*this, "", "(m)"};
  Label unit_pa_{*this, "", "(Pa)"};
  Label unit_c_{*this, "", "(C)"};
  TextField txt_altitude{*this, "txt_altitude", "Altitude (ft)", "0"};
  TextField txt_altitude_m{*this, "txt_altitude_m", unit_m_, "0"};
  TextField txt_pressure{*this, "txt_pressure", "Pressure (in.Hg.)"};
  TextField txt_pressure_Pa{*this, "txt_pressure_Pa", unit_pa_};
  TextField txt_bp{*this, "txt_bp", "Boiling Point (F)"};
  TextField txt_BP_C{*this, "txt_BP_C", unit_c_};

  Command btn_calc{*this, "btn_calc", "Calculate"};
  Command btn_print{*this, "btn_print", "Print"};
  Command btn_help{*this, "btn_help", "Help"};
  Command btn_exit{*this, "btn_exit", "Exit"};
};

}  // namespace korvane
