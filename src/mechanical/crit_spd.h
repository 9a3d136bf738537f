// Critical speed: the first critical speed of an impeller overhung on a shaft in two bearings, from
// its static deflection, and backwards the diameter for a speed.
#pragma once

#include "frame/calculator_window.h"
#include "frame/us_field.h"

namespace korvane {

/// A shaft with an impeller at its free end; inches, pounds and psi.
struct OverhungShaft {
  Single L;    ///< between the bearings
  Single a;    ///< overhang
  Single E;    ///< modulus of elasticity
  Single W;    ///< weight of the impeller
  Single tol;  ///< play of a bearing
  Single k;    ///< spring constant of the supports, lb/in
};

/// Downward movement of the impeller, in inches.
Double StaticDeflection(const OverhungShaft& shaft, Double I);  ///< by bending of the shaft
Double SupportFlexure(const OverhungShaft& shaft);
Double BearingEccentricity(const OverhungShaft& shaft);

/// Revolutions per minute, by the rule of static deflection.
Double CriticalSpeed(Double deflection);

Double ShaftWeight(Single d);   ///< of steel, lb/in
Double ShaftInertia(Single d);  ///< in4

/// Steps the diameter from 0.25 to 6 in by sixteenths until the share of the critical speed is the
/// wanted speed or more, and tells `see` each one.
template <class See>
void StepToSpeed(const OverhungShaft& shaft, double share, Single wanted, See see) {
  constexpr double thinnest = 0.25, step = 0.0625;
  constexpr int thickest = 6;
  for (Single d = thinnest; d <= thickest; d += step) {
    see(d);
    const Double deflection = StaticDeflection(shaft, ShaftInertia(d)) + SupportFlexure(shaft) +
                              BearingEccentricity(shaft);
    if (share * CriticalSpeed(deflection) >= wanted) return;
  }
}

class crit_spd final : public CalculatorWindow {
 public:
  explicit crit_spd(Session& session);

  /// To the next sixteenth of an inch; a diameter of 0 or less stays. No control steps it yet.
  void StepUp() { StepDiameter(+1); }
  void StepDown() { StepDiameter(-1); }

 private:
  Layout Arrangement() override;

  OverhungShaft Shaft() const;
  void Calculate();
  void FindDiameter(const TextField& target, double share);
  void ShowResults(const OverhungShaft& shaft, Single d);
  void StepDiameter(int direction);

  Picture picture_;
  UsField txt_brg_spacing{*this, "txt_brg_spacing", "Bearing Spacing  L", {.times = 25.4}};
  Label unit_brg_spacing_{*this, "", {"(in)", "(mm)"}};
  UsField txt_overhang{*this, "txt_overhang", "Overhang  a", {.times = 25.4}};
  Label unit_overhang_{*this, "", {"(in)", "(mm)"}};
  UsField txt_shaft_dia{*this, "txt_shaft_dia", "Shaft Diameter  d", {.times = 25.4}};
  Label unit_shaft_dia_{*this, "", {"(in)", "(mm)"}};
  UsField txt_shaft_weight{*this, "txt_shaft_weight", "Shaft Weight  w", {.over = 0.05588}};
  Label unit_shaft_weight_{*this, "", {"(lb/in)", "(kg/m)"}};
  UsField txt_moment_i{*this, "txt_moment_i", "Moment of Inertia  I", {.times = 416231}};
  Label unit_moment_i_{*this, "", {"(in4)", "(mm4)"}};
  UsField txt_elastic_mod{
      *this, "txt_elastic_mod", "Modulus of Elasticity  E", {.over = 145}, "30000000"};
  Label unit_elastic_mod_{*this, "", {"(psi)", "(MPa)"}};
  UsField txt_impeller_wt{*this, "txt_impeller_wt", "Impeller Weight  W", {.over = 2.2046}};
  Label unit_impeller_wt_{*this, "", {"(lb)", "(kg)"}};
  UsField txt_brg_tolerance{
      *this, "txt_brg_tolerance", "Bearing Tolerance  tol", {.times = 25.4}, "0"};
  Label unit_brg_tolerance_{*this, "", {"(in)", "(mm)"}};
  UsField txt_spring_constant{
      *this, "txt_spring_constant", "Support Spring Constant  k", {.over = 0.05588}, "2000000"};
  Label unit_spring_constant_{*this, "", {"(lb/in)", "(kg/mm)"}};

  UsField txt_static_deflection{
      *this, "txt_static_deflection", "Static Deflection", {.times = 25.4}};
  Label unit_static_deflection_{*this, "", {"(in)", "(mm)"}};
  UsField txt_support_flex{*this, "txt_support_flex", "Support Flexure", {.times = 25.4}};
  Label unit_support_flex_{*this, "", {"(in)", "(mm)"}};
  UsField txt_brg_eccentricity{
      *this, "txt_brg_eccentricity", "Bearing Eccentricity", {.times = 25.4}};
  Label unit_brg_eccentricity_{*this, "", {"(in)", "(mm)"}};
  TextField txt_critical_rpm{*this, "txt_critical_rpm", "Critical Speed"};
  Label unit_critical_rpm_{*this, "", "(rpm)"};
  TextField txt_max_rpm{*this, "txt_max_rpm", "Maximum Speed"};
  Label unit_max_rpm_{*this, "", "(rpm)"};

  Command btn_calc{*this, "btn_calc", "Solve"};
  Command Command5{*this, "Command5", "Load"};
  Command Command4{*this, "Command4", "Save"};
  Command Command1{*this, "Command1", "Print"};
  Command Command3{*this, "Command3", "Help"};
  Command Command2{*this, "Command2", "Exit"};

  // The field's own value counts in the next calculation, not the one of a round steel shaft.
  bool WeightEntered = false;
  bool InertiaEntered = false;
  DataFile file;
};

}  // namespace korvane
