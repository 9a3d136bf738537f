// Columns: critical stress and load of a column by one of four buckling formulas.
#pragma once

#include "frame/calculator_window.h"

namespace korvane {

// Stresses at which a column buckles, in the unit of the yield strength and the modulus.

/// Johnson's parabola, for inelastic buckling.
Double JohnsonStress(Single yield, Single E, Single effectiveLength, Single radiusOfGyration);
/// AISC 360, section E3, without its safety factor.
Double AiscStress(Single yield, Single E, Single slenderness);
/// Euler's stress.
Double EulerStress(Single E, Single slenderness);
/// Euler's load, a force.
Double EulerLoad(Single E, Single I, Single effectiveLength);

class columns2 final : public CalculatorWindow {
 public:
  explicit columns2(Session& session);

  void Load() override;

 private:
  Layout Arrangement() override;

  void SetKFactor();
  void SolveColumn();

  TextField txt_length{*this, "txt_length", UnitText{"Column Length (in)", "Column Length (mm)"}};
  TextField txt_yield{
      *this, "txt_yield",
      UnitText{"Yield Strength of Material (psi)", "Yield Strength of Material (MPa)"}, "36000"};
  TextField txt_E{*this, "txt_E",
                  UnitText{"Modulus of Elasticity (psi)", "Modulus of Elasticity (MPa)"},
                  "29000000"};
  TextField txt_I{*this, "txt_I",
                  UnitText{"Least Moment of Inertia (in4)", "Least Moment of Inertia (mm4)"},
                  ".0873"};
  TextField txt_area{*this, "txt_area",
                     UnitText{"Cross Sectional Area (in2)", "Cross Sectional Area (mm2)"}, ".4939"};
  TextField txt_rad_gyr{*this, "txt_rad_gyr",
                        UnitText{"Least Radius of Gyration (in)", "Least Radius of Gyration (mm)"},
                        ".4205"};
  TextField txt_safety_factor{*this, "txt_safety_factor", "Safety Factor", "5"};
  Label toOne_{*this, "", " : 1"};
  TextField txt_k{*this, "txt_k", "Effective Length Constant (k)"};
  Label note_{*this, "", "Note:  you can override the above k factor."};

  OptionGroup formula_{*this, "", "Formula"};
  Option opt_aisc{formula_, "opt_aisc", "American Institute of Steel Construction"};
  Option opt_johnson{formula_, "opt_johnson", "Johnson Formula - for Inelastic Buckling"};
  Option opt_euler{formula_, "opt_euler", "Euler Formula - for Slender Columns"};
  Option opt_euler_adjusted{formula_, "opt_euler_adjusted",
                            "Euler - Adjusted for Slenderness Ratio"};
  OptionGroup ends_{*this, "", "End Conditions"};
  Option opt_fixed_fixed{ends_, "opt_fixed_fixed", ""};
  Option opt_fixed_pinned{ends_, "opt_fixed_pinned", ""};
  Option opt_pinned_pinned{ends_, "opt_pinned_pinned", ""};
  Option opt_fixed_free{ends_, "opt_fixed_free", ""};
  Picture fixedFixed_, fixedPinned_, pinnedPinned_, fixedFree_;
  OptionGroup kValues_{*this, "", "k values"};
  Option opt_theoretical{kValues_, "opt_theoretical", "Use theoretical values for (k)"};
  Option opt_engineering{kValues_, "opt_engineering", "Use engineering values for (k)"};
  Option opt_conservative{kValues_, "opt_conservative", "Use conservative values for (k)"};

  TextField txt_effective_length{*this, "txt_effective_length", "Effective Length"};
  TextField txt_slenderness_ratio{*this, "txt_slenderness_ratio", "Slenderness Ratio "};
  TextField txt_critical_slenderness_ratio{*this, "txt_critical_slenderness_ratio",
                                           "Critical Slenderness Ratio "};
  TextField txt_crit_stress{*this, "txt_crit_stress",
                            UnitText{"Critical Unit Stress (psi)", "Critical Unit Stress (MPa)"}};
  TextField txt_crit_load{*this, "txt_crit_load",
                          UnitText{"Critical Load (lb)", "Critical Load (N)"}};
  TextField txt_max_load{*this, "txt_max_load",
                         UnitText{"Maximum Safe Load (lb)", "Maximum Safe Load (N)"}};

  Command btn_calc{*this, "btn_calc", "Solve"};
  Command Command2{*this, "Command2", "Load"};
  Command Command1{*this, "Command1", "Save"};
  Command btn_print{*this, "btn_print", "Print"};
  Command btn_help{*this, "btn_help", "Help"};
  Command btn_exit{*this, "btn_exit", "Exit"};

  DataFile file;
};

}  // namespace korvane
