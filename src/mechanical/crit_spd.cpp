#include "mechanical/crit_spd.h"

#include "mechanical/shaft_sketch.h"

namespace korvane {
namespace {

constexpr double kSteel = 0.284;       // lb/in3
constexpr double kMaximumShare = 0.8;  // of the critical speed

Double Square(Double x) { return x * x; }

Drawing Sketch() {
  Drawing drawing{330, 118, {}};
  AddBox(drawing, {20, 46}, {286, 58});
  AddBearing(drawing, 60, 58);
  AddBearing(drawing, 190, 58);
  AddBox(drawing, {274, 16}, {292, 88});
  AddArrow(drawing, {283, 88}, {283, 114});
  drawing.shapes.emplace_back(Letters{{304, 104}, "W", 9, Ink::Accent});
  AddArrow(drawing, {120, 28}, {120, 46}, Ink::Line);
  AddArrow(drawing, {120, 76}, {120, 58}, Ink::Line);
  drawing.shapes.emplace_back(Letters{{132, 30}, "d", 9, Ink::Line});
  AddMeasure(drawing, 60, 190, 98, "L");
  AddMeasure(drawing, 190, 283, 98, "a");
  return drawing;
}

}  // namespace

Double StaticDeflection(const OverhungShaft& s, Double I) {
  return s.W * Square(s.a) * (s.a + s.L) / (3 * s.E * I);
}

Double SupportFlexure(const OverhungShaft& s) {
  return (s.W / s.k) * (2 * Square(s.a) + 2 * s.a * s.L + Square(s.L)) / Square(s.L);
}

Double BearingEccentricity(const OverhungShaft& s) { return s.a * Tan(2 * s.tol / s.L); }

Double CriticalSpeed(Double deflection) { return 187.8 / Sqrt(deflection); }

Double ShaftWeight(Single d) { return kSteel * 3.1415926 * Square(d) / 4; }

Double ShaftInertia(Single d) { return 3.14159265 * Square(Square(d)) / 64; }

crit_spd::crit_spd(Session& session)
    : CalculatorWindow(session, {.name = "crit_spd",
                                 .title = " Critical  Speed  of  Cantilever  Shafts",
                                 .helpPage = "mechanical_critical_speed.html"}),
      picture_(*this, "", "Shaft in two bearings with an overhung impeller", Sketch()),
      file{"CRITICAL SPEED",
           "critsped.dta",
           "Load data file...",
           {TextRecord("Bearing spacing", txt_brg_spacing), TextRecord("Overhang", txt_overhang),
            TextRecord("Shaft dia", txt_shaft_dia), TextRecord("Shaft weight", txt_shaft_weight),
            TextRecord("Moment of inertia", txt_moment_i),
            TextRecord("Elastic modulus", txt_elastic_mod),
            TextRecord("Impeller weight", txt_impeller_wt),
            TextRecord("Bearing tolerance", txt_brg_tolerance),
            TextRecord("Support spring constant", txt_spring_constant)},
           {}} {
  SolvesWith(btn_calc,
             {&txt_brg_spacing, &txt_overhang, &txt_shaft_dia, &txt_elastic_mod, &txt_impeller_wt,
              &txt_brg_tolerance, &txt_spring_constant},
             [this] { Calculate(); });
  txt_shaft_weight.onEnter = [this] {
    WeightEntered = true;
    Calculate();
  };
  txt_moment_i.onEnter = [this] {
    InertiaEntered = true;
    Calculate();
  };
  txt_critical_rpm.onEnter = [this] { FindDiameter(txt_critical_rpm, 1); };
  txt_max_rpm.onEnter = [this] { FindDiameter(txt_max_rpm, kMaximumShare); };
  ShowsResultsIn({&txt_static_deflection, &txt_support_flex, &txt_brg_eccentricity,
                  &txt_critical_rpm, &txt_max_rpm});

  SetDefault(btn_calc);
  LoadsWith(Command5, file);
  SavesWith(Command4, file);
  PrintsWith(Command1);
  HelpsWith(Command3);
  ExitsWith(Command2);
}

Layout crit_spd::Arrangement() {
  const auto in = [](TextField& field, Label& unit) { return Row({field, unit, Stretch()}); };
  return Column(
      {Row({Column(
                {Form({in(txt_brg_spacing, unit_brg_spacing_), in(txt_overhang, unit_overhang_),
                       in(txt_shaft_dia, unit_shaft_dia_), in(txt_shaft_weight, unit_shaft_weight_),
                       in(txt_moment_i, unit_moment_i_), in(txt_elastic_mod, unit_elastic_mod_),
                       in(txt_impeller_wt, unit_impeller_wt_),
                       in(txt_brg_tolerance, unit_brg_tolerance_),
                       in(txt_spring_constant, unit_spring_constant_)}),
                 Stretch()}),
            Column(
                {picture_, Rule(),
                 Form({in(txt_static_deflection, unit_static_deflection_),
                       in(txt_support_flex, unit_support_flex_),
                       in(txt_brg_eccentricity, unit_brg_eccentricity_),
                       in(txt_critical_rpm, unit_critical_rpm_), in(txt_max_rpm, unit_max_rpm_)}),
                 Stretch()})}),
       Row({btn_calc, Stretch(), Command5, Command4, Command1, Command3, Command2})});
}

OverhungShaft crit_spd::Shaft() const {
  return {.L = txt_brg_spacing.Us(),
          .a = txt_overhang.Us(),
          .E = txt_elastic_mod.Us(),
          .W = txt_impeller_wt.Us(),
          .tol = txt_brg_tolerance.Us(),
          .k = txt_spring_constant.Us()};
}

void crit_spd::Calculate() { ShowResults(Shaft(), txt_shaft_dia.Us()); }

void crit_spd::ShowResults(const OverhungShaft& shaft, Single d) {
  const Double I = InertiaEntered ? Double(txt_moment_i.Us()) : ShaftInertia(d);
  if (!WeightEntered) txt_shaft_weight.ShowUs(ShaftWeight(d), "#.###");
  if (!InertiaEntered) txt_moment_i.ShowUs(I, "#.####");
  WeightEntered = InertiaEntered = false;

  const Double S = StaticDeflection(shaft, I);
  txt_static_deflection.ShowUs(S, "#.######");
  const Double F = SupportFlexure(shaft);
  txt_support_flex.ShowUs(F, "#.######");
  const Double B = BearingEccentricity(shaft);
  txt_brg_eccentricity.ShowUs(B, "#.######");
  const Double critical = CriticalSpeed(S + F + B);
  txt_critical_rpm.Show(critical, "#");
  txt_max_rpm.Show(kMaximumShare * critical, "#");
}

void crit_spd::FindDiameter(const TextField& target, double share) {
  const Single wanted = ToNumber(target);
  const OverhungShaft shaft = Shaft();
  Single d;
  StepToSpeed(shaft, share, wanted, [&](Single trial) {
    d = trial;
    txt_shaft_dia.ShowUs(d, "#.####");
  });
  ShowResults(shaft, d);
}

void crit_spd::StepDiameter(int direction) {
  const Single d = txt_shaft_dia.Us();
  if (d <= 0) return;
  txt_shaft_dia.ShowUs((Int(d * 16) + direction) / 16, "#.####");
  Calculate();
}

}  // namespace korvane
