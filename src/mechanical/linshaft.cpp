#include "mechanical/linshaft.h"

#include "mechanical/shaft_sketch.h"

namespace korvane {
namespace {

constexpr double kPi = 3.14159265359;

/// A shaft in two bearings, driven at its left end and loaded from the side between them.
Drawing Sketch() {
  Drawing drawing{460, 104, {}};
  AddBox(drawing, {50, 42}, {410, 58});
  AddBearing(drawing, 110, 58);
  AddBearing(drawing, 350, 58);
  AddArrow(drawing, {230, 10}, {230, 42});
  drawing.shapes.emplace_back(Letters{{258, 20}, "Load", 9, Ink::Accent});
  AddTurn(drawing, {48, 50}, 22, 65, 295);
  drawing.shapes.emplace_back(Letters{{14, 50}, "T", 9, Ink::Accent});
  AddMeasure(drawing, 110, 350, 88, "B");
  return drawing;
}

}  // namespace

/// Factors on the torque and on the bending moment for how the load is applied.
struct linshaft::Shock {
  Double Kt;
  Double Km;
};

linshaft::linshaft(Session& session)
    : CalculatorWindow(session, {.name = "linshaft",
                                 .title = " Sizing of Shafts - Combined Torsion & Bending Loads",
                                 .helpPage = "mechanical_lineshaft_sizing.html"}),
      picture_(*this, "", "Shaft that carries a torque T, in two bearings at the distance B",
               Sketch()),
      file{"LINESHAFT SIZING",
           "linshaft.dta",
           "Load data...",
           {WordRecord("Load type",
                       {{opt_steady, "Steady"}, {opt_minor, "Minor"}, {opt_heavy, "Heavy"}}),
            CheckRecord("Keyway SF", chk_keyway),
            WordRecord("Solve for", {{opt_stress_solve, "Stress"}, {opt_dia_solve, "Diameter"}}),
            TextRecord("Length", txt_L),
            TextRecord("Dia", txt_d),
            TextRecord("E", txt_e_tensile),
            TextRecord("G", txt_G),
            TextRecord("J", txt_J),
            TextRecord("Z", txt_z),
            TextRecord("RPM", txt_rpm),
            TextRecord("HP", txt_power),
            TextRecord("Torque", txt_torque),
            TextRecord("Torsional deflection", txt_twist),
            TextRecord("Max shear stress", txt_max_stress),
            TextRecord("Max combined stress", txt_combined_stress),
            TextRecord("Total side load", txt_side_load),
            TextRecord("Bearing distance", txt_brg_dist),
            TextRecord("Bending torque", txt_Bending_torque),
            TextRecord("Midpoint deflection", txt_defl_mid),
            TextRecord("Stress at ends", txt_side_stress)},
           [this] { SolveTorsion(); }} {
  ComputesAndMovesOn({&txt_L, &txt_d, &txt_G, &txt_e_tensile}, [this] { SolveTorsion(); });
  OnTorsion(txt_power, [this] { shaft_.FromPower(); });
  OnTorsion(txt_rpm, [this] { shaft_.FromSpeed(); });
  OnTorsion(txt_torque, [this] { shaft_.FromTorque(); });
  OnTorsion(txt_twist, [this] { shaft_.FromTwist(); });
  OnTorsion(txt_max_stress, [this] { shaft_.FromStress(); });
  ComputesAndMovesOn({&txt_combined_stress}, [this] {
    shaft_.ShowSection();
    SolveDiameter(txt_Bending_torque.Us());
  });
  ComputesAndMovesOn({&txt_side_load, &txt_brg_dist}, [this] { OnSideLoad(); });
  ShowsResultsIn({&txt_J, &txt_z, &txt_twist, &txt_max_stress, &txt_Bending_torque, &txt_defl_mid,
                  &txt_side_stress});

  for (Option* shock : {&opt_steady, &opt_minor, &opt_heavy})
    shock->onClick = [this] { SolveAgain(); };
  chk_keyway.onClick = [this] { SolveAgain(); };
  opt_stress_solve.onClick = [this] {
    SolveTorsion();
    ShowWhatIsSolved();
  };
  opt_dia_solve.onClick = [this] {
    ShowWhatIsSolved();
    SolveDiameter(BendingMoment());
  };

  btn_Solve.onClick = [this] { SolveTorsion(); };
  Command4.onClick = [this] { Clear(); };
  SetDefault(btn_Solve);
  LoadsWith(Command6, file);
  SavesWith(Command2, file);
  PrintsWith(Command5);
  HelpsWith(Command3);
  ExitsWith(Command1);
}

Layout linshaft::Arrangement() {
  return Column(
      {Row({Stretch(), picture_, Stretch()}),
       Row({Column({Form({txt_L, txt_d, txt_G, txt_e_tensile, txt_rpm, txt_power, txt_torque,
                          txt_side_load, txt_brg_dist}),
                    Rule(), Form({txt_twist, txt_max_stress, txt_J, txt_z}), Stretch()}),
            Column({Box(load_, {opt_steady, opt_minor, opt_heavy, chk_keyway}),
                    Box(solve_, {opt_stress_solve, opt_dia_solve, Form({txt_combined_stress})}),
                    Stretch(), Rule(),
                    Form({txt_Bending_torque, txt_defl_mid, txt_side_stress})})}),
       Row({btn_Solve, Stretch(), Command4, Command6, Command2, Command5, Command3, Command1})});
}

void linshaft::Load() {
  CalculatorWindow::Load();
  ShowWhatIsSolved();
}

void linshaft::OnTorsion(UsField& field, const Handler& solve) {
  ComputesAndMovesOn({&field}, [this, solve] {
    shaft_.ShowSection();
    solve();
    SolveTorsion();
  });
}

void linshaft::OnSideLoad() {
  SolveBending();
  if (opt_stress_solve.IsOn())
    SolveTorsion();
  else
    SolveDiameter(BendingMoment());
}

void linshaft::SolveTorsion() {
  shaft_.Solve();
  SolveBending();
}

const linshaft::Shock& linshaft::ChosenShock() const {
  static const Shock kSteady{1, 1}, kMinor{2, 1.5}, kHeavy{3, 3};
  return opt_heavy.IsOn() ? kHeavy : opt_minor.IsOn() ? kMinor : kSteady;
}

Double linshaft::KeywayFactor() const { return chk_keyway.IsOn() ? 0.75 : 1.0; }

/// Of the bending moment M and the torque together, with their shock factors.
Double linshaft::EquivalentMoment(Single M) const {
  const Shock& shock = ChosenShock();
  return Sqrt(Power(M * shock.Km, 2) + Power(txt_torque.Us() * shock.Kt, 2));
}

/// At the middle, of a load spread evenly between bearings.
Single linshaft::BendingMoment() const { return txt_side_load.Us() * txt_brg_dist.Us() / 8; }

void linshaft::SolveBending() {
  const Single W = txt_side_load.Us();
  const Single B = txt_brg_dist.Us();
  const Single d = txt_d.Us();
  const Single E = txt_e_tensile.Us();
  const Single M = BendingMoment();
  txt_Bending_torque.ShowUs(M, "#.###");
  if (W > 0 && B > 0) {
    const Double I = kPi * Power(d, 4) / 64;
    const Double Zb = kPi * Power(d, 3) / 32;
    if (E * I != 0) ShowAdaptive(txt_defl_mid, 5 * W * Power(B, 3) / (384 * E * I));
    if (Zb != 0) ShowAdaptive(txt_side_stress, W * B / (8 * Zb));
  }

  // Without a bending stress the shear stress stands for both, without factors.
  const Single bending = txt_side_stress.Us();
  if (bending < 0 || d <= 0) return;
  const Double combined = bending == 0 ? Double(txt_max_stress.Us())
                                       : 5.1 * EquivalentMoment(M) / (Power(d, 3) * KeywayFactor());
  txt_combined_stress.ShowUs(combined, "#.###");
}

/// The diameter at which the combined stress is the one entered.
void linshaft::SolveDiameter(Single M) {
  const Single S = txt_combined_stress.Us();
  if (S <= 0) return;
  txt_d.ShowUs(Power(5.1 * EquivalentMoment(M) / (KeywayFactor() * S), 1.0 / 3), "#.###");
  SolveTorsion();
}

void linshaft::SolveAgain() {
  if (opt_dia_solve.IsOn())
    SolveDiameter(BendingMoment());
  else
    SolveTorsion();
}

void linshaft::ShowWhatIsSolved() {
  const bool stress = opt_stress_solve.IsOn();
  txt_d.SetBack(stress ? Color::Window() : Color::ButtonFace());
  txt_combined_stress.SetBack(stress ? Color::ButtonFace() : Color::Window());
}

void linshaft::Clear() {
  for (TextField* field : std::initializer_list<TextField*>{
           &txt_L, &txt_d, &txt_J, &txt_z, &txt_rpm, &txt_power, &txt_torque, &txt_twist,
           &txt_max_stress, &txt_side_load, &txt_brg_dist, &txt_Bending_torque, &txt_defl_mid,
           &txt_side_stress, &txt_combined_stress})
    field->Clear();
  chk_keyway.Set(false);
  opt_stress_solve.TurnOn();
  txt_L.SetFocus();
}

}  // namespace korvane
