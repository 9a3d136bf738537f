#include "stress/beams.h"

#include "frame/session.h"

namespace korvane {

/// Factors of deflection and moment for a beam type and a load type; a torque at the support of W L
/// over the divisor, where there is one.
struct beams::Case {
  const char* code;
  double deflection;
  double moment;
  int torqueDivisor;  // 0: no torque
};

beams::beams(Session& session)
    : CalculatorWindow(session, {.name = "beams",
                                 .title = "Stress and Deflection - Beams",
                                 .helpPage = "mechanical_beams_1.html"}),
      file{"BEAMS",
           "beams.dta",
           "Load data...",
           {TextRecord("Span", L), TextRecord("Load", W), TextRecord("I", I), TextRecord("Z", Z),
            MaskRecord("E", E, "#"),
            WordRecord("Beam Type",
                       {{simple, "Simple"}, {rigid, "Rigid"}, {cantilevered, "Cantilevered"}}),
            WordRecord("Load Type", {{uniform, "Uniform"}, {conc, "Conc"}}),
            TextRecord("Torque", TORQUE)},
           [this] { ComputeBeam(); }} {
  btn_calc.onClick = uniform.onClick = conc.onClick = [this] { ComputeBeam(); };
  for (Option* type : {&simple, &rigid, &cantilevered})
    type->onClick = [this] {
      FollowBeamType();
      ComputeBeam();
    };
  ComputesAndMovesOn({&L, &W, &I, &Z, &E}, [this] { ComputeBeam(); });

  ShowsResultsIn({&deflection, &max_stress, &TORQUE});

  SetDefault(btn_calc);
  CopiesWith(btn_deflection_copy, deflection);
  CopiesWith(btn_stress_copy, max_stress);
  CopiesWith(btn_torque_copy, TORQUE);
  LoadsWith(Command5, file);
  SavesWith(Command4, file);
  PrintsWith(Command1);
  HelpsWith(Command2);
  ExitsWith(Command3);
}

Layout beams::Arrangement() {
  const auto input = [](TextField& field) { return Row({field, Stretch()}); };
  return Column(
      {Row({Column({Form({input(L), input(W), input(I), input(Z), input(E)}), Rule(),
                    Form({Row({deflection, btn_deflection_copy}),
                          Row({max_stress, btn_stress_copy}), Row({TORQUE, btn_torque_copy})}),
                    Stretch()}),
            Column({Box(Frame1, {simple, rigid, cantilevered}), Box(Frame2, {uniform, conc}),
                    Stretch()})}),
       Row({btn_calc, Stretch(), Command5, Command4, Command1, Command2, Command3})});
}

void beams::Load() {
  CalculatorWindow::Load();
  FollowBeamType();
  ComputeBeam();
}

const beams::Case& beams::ChosenCase() const {
  static constexpr Case kCases[3][2] = {
      {{"SIMPUNIF", 5.0 / 384, 1.0 / 8, 0}, {"SIMPCONC", 1.0 / 48, 1.0 / 4, 0}},
      {{"RIGIUNIF", 1.0 / 384, 1.0 / 12, 0}, {"RIGICONC", 1.0 / 192, 1.0 / 8, 0}},
      {{"CANTUNIF", 1.0 / 8, 1.0 / 2, 2}, {"CANTCONC", 1.0 / 3, 1.0 / 1, 1}},
  };
  return kCases[cantilevered.IsOn() ? 2 : rigid.IsOn() ? 1 : 0][conc.IsOn() ? 1 : 0];
}

void beams::FollowBeamType() {
  const bool free = cantilevered.IsOn();
  for (Control* control : std::initializer_list<Control*>{&lbl_torque, &TORQUE, &btn_torque_copy})
    control->SetVisible(free);
  conc.SetCaption(free ? "Concentrated at Free End" : "Concentrated at Center");
  lbl_deflection.SetCaption(std::string("Deflection at ") + (free ? "Free End" : "Center") + unit_);
}

// lb, in and psi are consistent, and so are N, mm and MPa: the formulas need no factor.
void beams::ComputeBeam() {
  const Case& beam = ChosenCase();
  CaseCode = beam.code;
  if (beam.torqueDivisor != 0) ShowTorque(beam.torqueDivisor);

  const bool loaded = ToNumber(W) != 0 && ToNumber(L) != 0;
  std::optional<Double> bends, stresses;
  if (ToNumber(E) != 0 && ToNumber(I) != 0 && loaded)
    bends = beam.deflection * ((Strict(W) * Power(Strict(L), 3)) / (Strict(E) * Strict(I)));
  if (ToNumber(Z) > 0 && loaded) stresses = beam.moment * (Strict(W) * Strict(L) / Strict(Z));
  deflection.ShowUnlessUnset(bends, "0.0000");
  max_stress.ShowUnlessUnset(stresses, "0.000");
}

// The digits of a 32-bit number pass through the text.
void beams::ShowTorque(int divisor) {
  TORQUE.Show(Single(ToNumber(W) * ToNumber(L) / divisor));
  constexpr int millimeters = 1000;  // in a meter
  if (IsMetric()) TORQUE.Show(Strict(TORQUE) / millimeters);
}

}  // namespace korvane
