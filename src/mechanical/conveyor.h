// Belt conveyors of two pulleys: belt, torques and speeds of the drive, and the headshaft in
// combined torsion and bending.
#pragma once

#include "frame/calculator_window.h"
#include "mechanical/roller_chain.h"

namespace korvane {

/// What a headshaft carries: lbf and inches, whatever the window's units.
struct ShaftLoad {
  Double span;
  Double pull;          ///< of the belt
  Double torque;        ///< in-lb
  double bendingShock;  ///< factors for sudden loads
  double torsionShock;
  double keyway;  ///< share of the strength that a keyway leaves
};

/// Moment that bends and twists as all loads together do, in-lb.
Double EquivalentMoment(const ShaftLoad& load);

/// Shear stress of a round shaft in psi; moment in in-lb, diameter in inches.
inline Double ShearStress(Double moment, double keyway, Double d) {
  return 5.1 * moment / (d * d * d * keyway);
}

/// The diameter in inches at which the stress comes down to the target in psi, in three passes of
/// ever smaller steps, each from one step before the end of the one before; 6 in at most. Shows
/// each trial to `see`, and whether it is one of the last pass.
template <class See>
Double FindDiameter(Double moment, double keyway, Double target, See see) {
  constexpr int largest = 6;
  constexpr double finest = 0.0001;
  const Double force = 5.1 * moment;
  Double d;
  Double start = 0.1;
  for (const double step : {0.1, 0.01, finest}) {
    if (start == 0) start = step;
    for (Double trial = start; trial <= largest; trial += step) {
      d = trial;
      const double x = d.Value();  // so small that its cube needs no check
      const Double stress = force / (x * x * x * keyway);
      see(d, step == finest);
      if (stress <= target) break;
    }
    start = d - step;
  }
  return d;
}

class CONVEYOR final : public CalculatorWindow {
 public:
  explicit CONVEYOR(Session& session);

  void Load() override;

 private:
  Layout Arrangement() override;

  Record ChainRecord();

  void FollowDrive();
  void ChooseDiameterSolve();
  void FollowSolve();
  void ChainUpdate();
  void Calculate();
  void ShowBelt();
  void ShowDrive();
  ShaftLoad LoadOfShaft() const;
  void SolveStress(const ShaftLoad& load);
  void SolveDiameter(const ShaftLoad& load);
  void ShowStress(Double psi);
  void ShowBend(const ShaftLoad& load, Double d);

  Double tension_, torque_;  // of the belt, and of the headshaft, in the window's units
  Double headshaftRpm_;
  Double pitch_;  // of the chain, in the window's units

  TextField txt_Conveyor_Length{*this,
                                "txt_Conveyor_Length",
                                UnitText{"Conveyor Length (in)", "Conveyor Length (mm)"},
                                {"216", "5000"}};
  TextField txt_Belt_Width{*this,
                           "txt_Belt_Width",
                           UnitText{"Conveyor Belt Width (in)", "Conveyor Belt Width (mm)"},
                           {"24", "600"}};
  TextField txt_belt_weight{*this,
                            "txt_belt_weight",
                            UnitText{"Belt Weight (lb/ft2)", "Belt Weight (kg/m2)"},
                            {"2.2", "9"}};
  TextField txt_friction_coef{*this, "txt_friction_coef", "Belt Coefficient of Friction", ".35"};
  TextField txt_conv_sprocket_dia{
      *this,
      "txt_conv_sprocket_dia",
      UnitText{"Conveyor Sprocket Dia (in)", "Conveyor Sprocket Dia (mm)"},
      {"6.16", "150"}};
  TextField txt_belt_speed{*this,
                           "txt_belt_speed",
                           UnitText{"Belt Speed (in/min)", "Belt Speed (mm/min)"},
                           {"60", "300"}};
  TextField txt_product_weight{
      *this,
      "txt_product_weight",
      UnitText{"Max Total Product Weight (lb)", "Max Total Product Weight (kg)"},
      {"1000", "400"}};
  TextField txt_operating_temp{*this,
                               "txt_operating_temp",
                               UnitText{"Operating Temperature (F)", "Operating Temperature (C)"},
                               {"350", "175"}};
  TextField txt_expansion_coef{*this,
                               "txt_expansion_coef",
                               UnitText{"Expansion Coef (in/in/F)", "Expansion Coef (m/m/C)"},
                               {".00000633", ".00000352"}};
  TextField txt_headshaft_dia{*this,
                              "txt_headshaft_dia",
                              UnitText{"Headshaft Diameter (in)", "Headshaft Diameter (mm)"},
                              {"1", "25"}};
  TextField txt_combined_stress{
      *this,
      "txt_combined_stress",
      UnitText{"Combined Shear Stress (psi)", "Combined Shear Stress (MPa)"},
      {"6000", "40"}};

  Picture picture_{*this, "", "Conveyor with its drive"};
  OptionGroup drive_{*this, "", "Drive"};
  Option opt_chain_drive{drive_, "opt_chain_drive", "Chain Drive"};
  Option opt_direct_drive{drive_, "opt_direct_drive", "Direct Drive"};
  Label LBL_RC{*this, "LBL_RC", "ANSI Chain Size"};
  Combo CMB_RC{*this, "CMB_RC", LBL_RC, ChainSizes(), Combo::Style::Editable};
  Combo cmb_headshaft_TEETH;
  Combo cmb_gearbox_teeth;
  OptionGroup shocks_{*this, "", "Load Type"};
  Option opt_steady{shocks_, "opt_steady", "Gradually Applied - Steady Loads"};
  Option opt_minor{shocks_, "opt_minor", "Suddenly Applied - Minor Shocks"};
  Option opt_heavy{shocks_, "opt_heavy", "Suddenly Applied - Heavy Shocks"};
  OptionGroup solve_{*this, "", "Headshaft"};
  Option opt_stress_solve{solve_, "opt_stress_solve", "Solve for Combined Stress"};
  Option opt_dia_solve{solve_, "opt_dia_solve", "Solve for Headshaft Diameter"};
  CheckBox chk_keyway{*this, "chk_keyway", "Apply .75 S.F. for Keyway"};

  TextField txt_belt_length{*this, "txt_belt_length",
                            UnitText{"Total Belt Length (in)", "Total Belt Length (mm)"}};
  TextField txt_expansion{*this, "txt_expansion",
                          UnitText{"Belt Expansion (in)", "Belt Expansion (mm)"}};
  TextField txt_belt_tension{*this, "txt_belt_tension",
                             UnitText{"Belt Tension (lbf)", "Belt Tension (N)"}};
  TextField txt_tension_per_foot{
      *this, "txt_tension_per_foot",
      UnitText{"Tension / ft of Width (lbf)", "Tension / m of Width (N)"}};
  TextField txt_headshaft_torque{
      *this, "txt_headshaft_torque",
      UnitText{"Headshaft Torque (in\u00B7lb)", "Headshaft Torque (N\u00B7m)"}};
  TextField txt_gearbox_torque{
      *this, "txt_gearbox_torque",
      UnitText{"Gearbox Torque (in\u00B7lb)", "Gearbox Torque (N\u00B7m)"}};
  TextField txt_overhung_load{*this, "txt_overhung_load",
                              UnitText{"Overhung Load (lbf)", "Overhung Load (N)"}};
  TextField txt_headshaft_rpm{*this, "txt_headshaft_rpm", "Headshaft Speed (rpm)"};
  TextField txt_gearbox_rpm{*this, "txt_gearbox_rpm", "Gearbox Speed (rpm)"};
  TextField txt_headshaft_pd{
      *this, "txt_headshaft_pd",
      UnitText{"Headshaft Sprocket P. D. (in)", "Headshaft Sprocket P. D. (mm)"}};
  TextField txt_gearbox_pd{*this, "txt_gearbox_pd",
                           UnitText{"Gearbox Sprocket P. D. (in)", "Gearbox Sprocket P. D. (mm)"}};
  TextField txt_twist{*this, "txt_twist", "Torsional Deflection (deg)"};
  TextField txt_deflection{*this, "txt_deflection",
                           UnitText{"Deflection at Midpoint (in)", "Deflection at Midpoint (mm)"}};

  Command btn_calc{*this, "btn_calc", "Calculate"};
  Command Command5{*this, "Command5", "Load"};
  Command Command1{*this, "Command1", "Save"};
  Command Command2{*this, "Command2", "Print"};
  Command Command4{*this, "Command4", "Help"};
  Command Command3{*this, "Command3", "Exit"};

  DataFile file;
};

}  // namespace korvane
