// Fastener torque: clamping force and assembly torque of a screw, or its size for a force.
#pragma once

#include <string>

#include "frame/calculator_window.h"
#include "frame/us_field.h"

namespace korvane {

/// Tensile stress area in in2 of an inch thread; the nominal diameter in inches.
Double StressArea(Single d, bool fine);

class fastener final : public CalculatorWindow {
 public:
  explicit fastener(Session& session);

  void Load() override;

 private:
  Layout Arrangement() override;

  void SolvesFrom(TextField& field, const char* mode);
  void Calculate();
  Double FindSize(Single& d);

  UsField txt_stress{*this,
                     "txt_stress",
                     UnitText{"Allowable Stress (psi)", "Allowable Stress (MPa)"},
                     {.over = 145},
                     "30000"};
  UsField txt_dia{*this,
                  "txt_dia",
                  UnitText{"Fastener Nominal Dia (in)", "Fastener Nominal Dia (mm)"},
                  {.times = 25.4},
                  ".500"};
  UsField txt_friction{*this, "txt_friction", "Coefficient of Friction", {}, ".20"};
  UsField txt_force{*this,
                    "txt_force",
                    UnitText{"Max. Clamping Force (lb)", "Max. Clamping Force (N)"},
                    {.times = 4.448}};
  UsField txt_torque{*this,
                     "txt_torque",
                     UnitText{"Assembly Torque (ft-lb)", "Assembly Torque (N-m)"},
                     {.times = 1.356}};

  OptionGroup thread_{*this, "", "Thread "};
  Option opt_coarse{thread_, "opt_coarse", "Coarse"};
  Option opt_fine{thread_, "opt_fine", "Fine"};
  Picture picture_;

  Command btn_calc{*this, "btn_calc", "Calculate"};
  Command Command2{*this, "Command2", "Print"};
  Command btn_help{*this, "btn_help", "Help"};
  Command btn_exit{*this, "btn_exit", "Exit"};

  std::string SolveMode;  // the field last entered: DIA, FORCE, STRESS or TORQUE
};

}  // namespace korvane
