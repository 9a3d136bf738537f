#include "electrical/time_constants.h"

#include <cmath>

namespace korvane {
namespace {

constexpr double kTwoPi = 6.28318530718;
constexpr int kIndexSize = 7;  // points

/// How voltage or current nears its limit over five time constants.
Drawing ChargeCurve(const char* quantity, const char* limit) {
  constexpr double left = 40, right = 240, top = 24, bottom = 104, constants = 5;
  constexpr double step = (right - left) / constants;
  constexpr int points = 50;
  Drawing drawing{260, 124, {}};
  drawing.shapes.emplace_back(Path{{{left, 8}, {left, bottom}, {right + 12, bottom}}, Ink::Line});
  drawing.shapes.emplace_back(Path{{{left, top}, {right, top}}, Ink::Gray});
  Path curve{{}, Ink::Accent, {}, 1.5};
  for (int i = 0; i <= points; ++i) {
    const double x = constants * i / points;
    curve.points.push_back({left + x * step, bottom - (bottom - top) * (1 - std::exp(-x))});
  }
  const double atOne = curve.points[points / static_cast<int>(constants)].y;
  drawing.shapes.emplace_back(
      Path{{{left, atOne}, {left + step, atOne}, {left + step, bottom}}, Ink::Gray});
  drawing.shapes.emplace_back(curve);
  for (int i = 1; i <= constants; ++i)
    drawing.shapes.emplace_back(Letters{{left + i * step, 114}, std::to_string(i), 7, Ink::Line});
  drawing.shapes.emplace_back(Letters{{22, top}, limit, 7, Ink::Line});
  drawing.shapes.emplace_back(Letters{{22, atOne}, "63 %", 7, Ink::Line});
  drawing.shapes.emplace_back(Letters{{64, 12}, quantity, 7, Ink::Accent});
  return drawing;
}

/// One of the sheet's calculators: formulas, inputs, results and the command between them.
Layout Section(Frame& frame, std::vector<Layout> formulas, std::vector<Layout> inputs,
               std::vector<Layout> results, Command& solve, std::vector<Layout> pictures = {}) {
  std::vector<Layout> parts;
  parts.reserve(formulas.size());
  for (Layout& formula : formulas) parts.push_back(Row({std::move(formula), Stretch()}));
  parts.insert(parts.end(), {Form(std::move(inputs)), Rule(), Form(std::move(results)), Stretch()});
  for (Layout& picture : pictures) parts.push_back(Row({Stretch(), std::move(picture), Stretch()}));
  parts.push_back(Row({solve, Stretch()}));
  return Box(frame, std::move(parts));
}

}  // namespace

// ---- Capacitor ----

RC_Calculations::RC_Calculations(Session& session)
    : CalculatorWindow(session, {.name = "RC_Calculations",
                                 .title = " Capacitor Calculations",
                                 .helpPage = "electrical_capacitor_calculations.html"}),
      picture_(*this, "", "Voltage over five time constants; 63 % of E after the first",
               ChargeCurve("V(t)", "E")) {
  SolvesWith(btn_Solve, {&txt_capacitance, &txt_voltage}, [this] { SolveCharge(); });
  SolvesWith(btn_solve_2, {&txt_capacitance_2, &txt_frequency}, [this] { SolveReactance(); });
  SolvesWith(btn_solve_3, {&txt_resistance, &txt_capacitance_3, &txt_voltage_2, &txt_charging_time},
             [this] { SolveTime(); });
  PassesFocusOn({&txt_charge, &txt_energy, &txt_reactance, &txt_RC_time_constant, &txt_Vt});
  PrintsWith(Command5);
  HelpsWith(Command6);
  ExitsWith(Command4);
}

Layout RC_Calculations::Arrangement() {
  return Column(
      {Row({Column({Section(charge_, {charge_is_, energy_is_}, {txt_capacitance, txt_voltage},
                            {txt_charge, txt_energy}, btn_Solve),
                    Section(reactance_, {Term({reactance_is_, Fraction(one_, divisor_)})},
                            {txt_capacitance_2, txt_frequency}, {txt_reactance}, btn_solve_2)}),
            Section(time_, {time_is_, Row({voltage_is_, curve_})},
                    {txt_resistance, txt_capacitance_3, txt_voltage_2, txt_charging_time},
                    {txt_RC_time_constant, txt_Vt}, btn_solve_3, {picture_})}),
       Row({Stretch(), Command5, Command6, Command4})});
}

void RC_Calculations::Load() {
  CalculatorWindow::Load();
  txt_capacitance.SetFocus();
}

void RC_Calculations::SolveCharge() {
  const Single C = ToNumber(txt_capacitance), V = ToNumber(txt_voltage);
  txt_charge.Show(C * V, "0.######");
  txt_energy.Show(Power(V, 2) * C / 2, "0.######");
}

void RC_Calculations::SolveReactance() {
  const Single C = ToNumber(txt_capacitance_2), f = ToNumber(txt_frequency);
  if (f * C != 0) txt_reactance.Show(1 / (kTwoPi * f * C), "0.######");
}

void RC_Calculations::SolveTime() {
  const Single R = ToNumber(txt_resistance), C = ToNumber(txt_capacitance_3);
  const Single E = ToNumber(txt_voltage_2), t = ToNumber(txt_charging_time);
  txt_RC_time_constant.Show(R * C, "0.######");
  if (R * C != 0) txt_Vt.Show(E * (1 - Exp(-t / (R * C))), "0.######");
}

// ---- Inductor ----

RL_Calculations::RL_Calculations(Session& session)
    : CalculatorWindow(session, {.name = "RL_Calculations",
                                 .title = " Inductor Calculations",
                                 .helpPage = "electrical_inductor_calculations.html"}),
      picture_(*this, "", "Current over five time constants; 63 % of E / R after the first",
               ChargeCurve("I(t)", "E / R")) {
  index_.SetFontSize(kIndexSize);
  SolvesWith(btn_Solve, {&txt_inductance, &txt_current}, [this] { SolveEnergy(); });
  SolvesWith(btn_solve_2, {&txt_inductance_2, &txt_frequency}, [this] { SolveReactance(); });
  SolvesWith(btn_solve_3, {&txt_resistance, &txt_inductance_3, &txt_voltage, &txt_charging_time},
             [this] { SolveTime(); });
  PassesFocusOn({&txt_energy, &txt_reactance, &txt_RL_time_constant, &txt_It});
  PrintsWith(Command5);
  HelpsWith(Command6);
  ExitsWith(Command4);
}

Layout RL_Calculations::Arrangement() {
  return Column(
      {Row({Column({Section(energy_, {Term({energy_is_, Fraction(square_, two_)})},
                            {txt_inductance, txt_current}, {txt_energy}, btn_Solve),
                    Section(reactance_,
                            {Row({Term({x_, Column({Stretch(), index_})}), equals_, product_})},
                            {txt_inductance_2, txt_frequency}, {txt_reactance}, btn_solve_2)}),
            Section(time_, {time_is_, Row({current_is_, curve_})},
                    {txt_resistance, txt_inductance_3, txt_voltage, txt_charging_time},
                    {txt_RL_time_constant, txt_It}, btn_solve_3, {picture_})}),
       Row({Stretch(), Command5, Command6, Command4})});
}

void RL_Calculations::Load() {
  CalculatorWindow::Load();
  txt_inductance.SetFocus();
}

void RL_Calculations::SolveEnergy() {
  const Single L = ToNumber(txt_inductance), I = ToNumber(txt_current);
  txt_energy.Show(Power(I, 2) * L / 2, "0.######");
}

void RL_Calculations::SolveReactance() {
  const Single L = ToNumber(txt_inductance_2), f = ToNumber(txt_frequency);
  txt_reactance.Show(kTwoPi * f * L, "0.######");
}

void RL_Calculations::SolveTime() {
  const Single R = ToNumber(txt_resistance), L = ToNumber(txt_inductance_3);
  const Single E = ToNumber(txt_voltage), t = ToNumber(txt_charging_time);
  if (R == 0) return;
  txt_RL_time_constant.Show(L / R, "0.######");
  txt_It.Show((E / R) * (1 - Exp(-t * R / L)), "0.######");
}

}  // namespace korvane
