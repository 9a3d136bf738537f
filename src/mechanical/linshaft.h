// Lineshaft sizing: a round shaft that carries a torque, and a side load between two bearings.
#pragma once

#include "frame/calculator_window.h"
#include "mechanical/shaft.h"

namespace korvane {

class linshaft final : public CalculatorWindow {
 public:
  explicit linshaft(Session& session);

  void Load() override;

 private:
  Layout Arrangement() override;

  struct Shock;
  const Shock& ChosenShock() const;
  Double KeywayFactor() const;
  Double EquivalentMoment(Single M) const;

  void OnTorsion(UsField& field, const Handler& solve);
  void OnSideLoad();
  void SolveTorsion();
  void SolveBending();
  void SolveDiameter(Single M);
  void SolveAgain();
  Single BendingMoment() const;
  void ShowWhatIsSolved();
  void Clear();

  Picture picture_;
  UsField txt_L{
      *this, "txt_L", UnitText{"Shaft Length (in)", "Shaft Length (mm)"}, {.times = 25.4}};
  UsField txt_d{
      *this, "txt_d", UnitText{"Shaft Diameter (in)", "Shaft Diameter (mm)"}, {.times = 25.4}};
  UsField txt_G{*this,
                "txt_G",
                UnitText{"Shear Modulus of Elasticity (psi)", "Shear Modulus of Elasticity (MPa)"},
                {.over = 145},
                "11500000"};
  UsField txt_e_tensile{
      *this,
      "txt_e_tensile",
      UnitText{"Tensile Modulus of Elasticity (psi)", "Tensile Modulus of Elasticity (MPa)"},
      {.over = 145},
      "30000000"};
  UsField txt_J{*this,
                "txt_J",
                UnitText{"Polar Moment of Inertia (in4)", "Polar Moment of Inertia (mm4)"},
                {.times = 25.4 * 25.4 * 25.4 * 25.4}};
  UsField txt_z{*this,
                "txt_z",
                UnitText{"Polar Section Modulus (in3)", "Polar Section Modulus (mm3)"},
                {.times = 25.4 * 25.4 * 25.4}};
  UsField txt_rpm{*this, "txt_rpm", "Shaft Speed (rpm)", {}};
  UsField txt_power{*this,
                    "txt_power",
                    UnitText{"Transmitted Power (hp)", "Transmitted Power (kW)"},
                    {.times = 0.746}};
  UsField txt_torque{*this,
                     "txt_torque",
                     UnitText{"Applied Torque (in-lbs)", "Applied Torque (N-m)"},
                     {.over = 8.85}};
  UsField txt_twist{*this, "txt_twist", "Torsional Deflection (degrees)", {}};
  UsField txt_max_stress{*this,
                         "txt_max_stress",
                         UnitText{"Maximum Shear Stress (psi)", "Maximum Shear Stress (MPa)"},
                         {.over = 145}};
  UsField txt_side_load{*this,
                        "txt_side_load",
                        UnitText{"Total Side Load (lb)", "Total Side Load (N)"},
                        {.times = 4.448}};
  UsField txt_brg_dist{*this,
                       "txt_brg_dist",
                       UnitText{"Distance Between Bearings (in)", "Distance Between Bearings (mm)"},
                       {.times = 25.4}};
  UsField txt_Bending_torque{
      *this,
      "txt_Bending_torque",
      UnitText{"Maximum Bending Moment (in-lbs)", "Maximum Bending Moment (N-m)"},
      {.over = 8.85}};
  UsField txt_defl_mid{*this,
                       "txt_defl_mid",
                       UnitText{"Deflection at Midpoint (in)", "Deflection at Midpoint (mm)"},
                       {.times = 25.4}};
  UsField txt_side_stress{
      *this,
      "txt_side_stress",
      UnitText{"Bending Stress at Midpoint (psi)", "Bending Stress at Midpoint (MPa)"},
      {.over = 145}};
  UsField txt_combined_stress{
      *this,
      "txt_combined_stress",
      UnitText{"Maximum Combined Stress (psi)", "Maximum Combined Stress (MPa)"},
      {.over = 145}};

  OptionGroup load_{*this, "", "Load Type"};
  Option opt_steady{load_, "opt_steady", "Gradually Applied - Steady Loads"};
  Option opt_minor{load_, "opt_minor", "Suddenly Applied - Minor Shocks"};
  Option opt_heavy{load_, "opt_heavy", "Suddenly Applied - Heavy Shocks"};
  OptionGroup solve_{*this, "", "Combined Stress"};
  Option opt_stress_solve{solve_, "opt_stress_solve", "Solve for Combined Stress"};
  Option opt_dia_solve{solve_, "opt_dia_solve", "Solve for Shaft Diameter"};
  CheckBox chk_keyway{*this, "chk_keyway", "Apply .75 Safety Factor for Keyway"};

  Command btn_Solve{*this, "btn_Solve", "Solve"};
  Command Command4{*this, "Command4", "Clear"};
  Command Command6{*this, "Command6", "Load"};
  Command Command2{*this, "Command2", "Save"};
  Command Command5{*this, "Command5", "Print"};
  Command Command3{*this, "Command3", "Help"};
  Command Command1{*this, "Command1", "Exit"};

  ShaftTorsion shaft_{{txt_L, txt_d, txt_G, txt_J, txt_z, txt_rpm, txt_power, txt_torque, txt_twist,
                       txt_max_stress}};
  DataFile file;
};

}  // namespace korvane
