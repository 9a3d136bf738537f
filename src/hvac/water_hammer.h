// Water hammer: the pressure rise in a pipe whose flow of water stops at once.
#pragma once

#include "frame/calculator_window.h"
#include "frame/us_field.h"

namespace korvane {

class Water_Hammer final : public CalculatorWindow {
 public:
  explicit Water_Hammer(Session& session);

 private:
  Layout Arrangement() override;

  void Solve();

  UsField txt_E_pipe{*this,
                     "txt_E_pipe",
                     UnitText{"Elastic Modulus for Pipe (psi)", "Elastic Modulus for Pipe (kPa)"},
                     {.times = 6.8948},
                     "0"};
  TextField txt_poissons{*this, "txt_poissons", "Poisson's Ratio for Pipe", "0"};
  UsField txt_ID{*this,
                 "txt_ID",
                 UnitText{"Inside Diameter of Pipe (in)", "Inside Diameter of Pipe (mm)"},
                 {.times = 25.4},
                 "0"};
  UsField txt_wall{*this,
                   "txt_wall",
                   UnitText{"Wall Thickness of Pipe (in)", "Wall Thickness of Pipe (mm)"},
                   {.times = 25.4},
                   "0"};
  UsField txt_flow{*this,
                   "txt_flow",
                   UnitText{"Flow Rate Through Pipe (gpm)", "Flow Rate Through Pipe (l/min)"},
                   {.times = 3.7852979},
                   "0"};
  UsField txt_line_pressure{*this,
                            "txt_line_pressure",
                            UnitText{"Line Pressure in Pipe (psi)", "Line Pressure in Pipe (kPa)"},
                            {.times = 6.8948},
                            "0"};

  UsField txt_E_composite{
      *this,
      "txt_E_composite",
      UnitText{"Composite Elastic Modulus (psi)", "Composite Elastic Modulus (kpa)"},
      {.times = 6.8948}};
  UsField txt_velocity{*this,
                       "txt_velocity",
                       UnitText{"Water Velocity in Pipe (ft/sec)", "Water Velocity in Pipe (m/s)"},
                       {.times = 0.3048}};
  UsField txt_delta_P{
      *this,
      "txt_delta_P",
      UnitText{"Pressure Rise Due to Shock (psi)", "Pressure Rise Due to Shock (kPa)"},
      {.times = 6.8948}};
  UsField txt_total_pressure{
      *this,
      "txt_total_pressure",
      UnitText{"Total Peak Pressure in Pipe (psi)", "Total Peak Pressure in Pipe (kPa)"},
      {.times = 6.8948}};

  Command btn_solve{*this, "btn_solve", "Solve"};
  Command btn_print{*this, "btn_print", "Print"};
  Command btn_help{*this, "btn_help", "Help"};
  Command btn_exit{*this, "btn_exit", "Exit"};
};

}  // namespace korvane
