// Torsional deflection of shafting: power, speed, torque, size, stress and twist of a round shaft.
#pragma once

#include "frame/calculator_window.h"
#include "mechanical/shaft.h"

namespace korvane {

class torsion final : public CalculatorWindow {
 public:
  explicit torsion(Session& session);

 private:
  Layout Arrangement() override;

  void SolveTorsion();
  void Clear();

  Label instruction_{*this, "", "Enter data and press <ENTER> to force recalculation."};
  Picture picture_;
  UsField txt_L{
      *this, "txt_L", UnitText{"Shaft Length (in)", "Shaft Length (mm)"}, {.times = 25.4}};
  UsField txt_d{
      *this, "txt_d", UnitText{"Shaft Diameter (in)", "Shaft Diameter (mm)"}, {.times = 25.4}};
  UsField txt_g{*this,
                "txt_g",
                UnitText{"Shear Modulus of Elasticity (psi)", "Shear Modulus of Elasticity (MPa)"},
                {.over = 145},
                "11500000"};
  UsField txt_RPM{*this, "txt_RPM", "Shaft Speed (rpm)", {}};
  UsField txt_power{*this,
                    "txt_power",
                    UnitText{"Transmitted Power (hp)", "Transmitted Power (kW)"},
                    {.times = 0.746}};
  UsField txt_torque{*this,
                     "txt_torque",
                     UnitText{"Applied Torque (in-lb)", "Applied Torque (N-m)"},
                     {.over = 8.85}};
  UsField txt_J{*this,
                "txt_J",
                UnitText{"Polar Moment of Inertia (in4)", "Polar Moment of Inertia (mm4)"},
                {.times = 25.4 * 25.4 * 25.4 * 25.4}};
  UsField txt_z{*this,
                "txt_z",
                UnitText{"Polar Section Modulus (in3)", "Polar Section Modulus (mm3)"},
                {.times = 25.4 * 25.4 * 25.4}};
  UsField txt_twist{*this, "txt_twist", "Torsional Deflection (deg)", {}};
  UsField txt_max_stress{*this,
                         "txt_max_stress",
                         UnitText{"Maximum Shear Stress (psi)", "Maximum Shear Stress (MPa)"},
                         {.over = 145}};

  Command Command4{*this, "Command4", "Clear"};
  Command Command5{*this, "Command5", "Load"};
  Command Command6{*this, "Command6", "Save"};
  Command Command2{*this, "Command2", "Print"};
  Command Command3{*this, "Command3", "Help"};
  Command Command1{*this, "Command1", "Exit"};

  ShaftTorsion shaft_{{txt_L, txt_d, txt_g, txt_J, txt_z, txt_RPM, txt_power, txt_torque, txt_twist,
                       txt_max_stress}};
  DataFile file;
};

}  // namespace korvane
