#include "stress/columns2.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "frame/session.h"

namespace korvane {
namespace {

constexpr Double pi = 3.14159265359;

/// Effective length factors by k values (rows) and end conditions.
constexpr double kFactors[3][4] = {
    {0.5, 0.7, 1, 2},
    {0.65, 0.8, 1, 2.1},
    {1, 1, 1, 2.4},
};
constexpr const char* kEnds[4] = {"Fixed --- Fixed", "Fixed --- Pinned", "Pinned --- Pinned",
                                  "Fixed --- Free"};

std::size_t ChosenIndex(const OptionGroup& group) {
  const auto& options = group.Options();
  return static_cast<std::size_t>(std::find(options.begin(), options.end(), group.Chosen()) -
                                  options.begin());
}

// ---- The end conditions: a column lying down, and how it buckles ----

enum class End { Fixed, Pinned, Free };

constexpr double kWidth = 110, kHeight = 26, kLeft = 14, kRight = 96, kAxis = 19, kBow = 13;

Path Support(End end, double at, double outward) {
  if (end == End::Fixed)
    return {{{at, 4}, {at + 8 * outward, 4}, {at + 8 * outward, 25}, {at, 25}, {at, 4}},
            Ink::Line,
            Ink::Body};
  return {{{at, kAxis}, {at + 8 * outward, kAxis - 5}, {at + 8 * outward, kAxis + 5}, {at, kAxis}},
          Ink::Line,
          Ink::Body};
}

/// The bow is the part of its height at the part x of the length, from the left end.
Drawing Buckled(End left, End right, double (*bow)(double)) {
  Drawing drawing{kWidth, kHeight, {}};
  drawing.shapes.emplace_back(Path{{{kLeft, kAxis}, {kRight, kAxis}}, Ink::Line, {}, 0.75});
  Path bent{{}, Ink::Accent, {}, 2};
  constexpr int steps = 24;
  for (int i = 0; i <= steps; ++i) {
    const double x = 1.0 * i / steps;
    bent.points.push_back({kLeft + (kRight - kLeft) * x, kAxis - kBow * bow(x)});
  }
  drawing.shapes.emplace_back(std::move(bent));
  drawing.shapes.emplace_back(Support(left, kLeft, -1));
  if (right != End::Free) drawing.shapes.emplace_back(Support(right, kRight, 1));
  return drawing;
}

double FixedFixed(double x) { return (1 - std::cos(2 * std::numbers::pi * x)) / 2; }
double FixedPinned(double x) { return 6.75 * x * x * (1 - x); }
double PinnedPinned(double x) { return std::sin(std::numbers::pi * x); }
double FixedFree(double x) { return 1 - std::cos(std::numbers::pi * x / 2); }

}  // namespace

Double JohnsonStress(Single Fy, Single E, Single Le, Single r) {
  return Fy * (1 - Fy * Power(Le, 2) / (Power(pi, 2) * 4 * E * Power(r, 2)));
}

Double AiscStress(Single Fy, Single E, Single SR) {
  const Double Fe = EulerStress(E, SR);
  return Fe >= 0.44 * Fy ? Power(0.658, Fy / Fe) * Fy : 0.877 * Fe;
}

Double EulerStress(Single E, Single SR) { return Power(pi, 2) * E / Power(SR, 2); }

Double EulerLoad(Single E, Single I, Single Le) { return Power(pi, 2) * E * I / Power(Le, 2); }

columns2::columns2(Session& session)
    : CalculatorWindow(session, {.name = "columns2",
                                 .title = "Strength  of  Columns",
                                 .helpPage = "mechanical_columns.html"}),
      fixedFixed_(*this, "", "Column fixed at both ends",
                  Buckled(End::Fixed, End::Fixed, FixedFixed)),
      fixedPinned_(*this, "", "Column fixed at one end and pinned at the other",
                   Buckled(End::Fixed, End::Pinned, FixedPinned)),
      pinnedPinned_(*this, "", "Column pinned at both ends",
                    Buckled(End::Pinned, End::Pinned, PinnedPinned)),
      fixedFree_(*this, "", "Column fixed at one end and free at the other",
                 Buckled(End::Fixed, End::Free, FixedFree)),
      file{"COLUMNS",
           "columns.dta",
           "Load data...",
           {TextRecord("Length", txt_length), TextRecord("Yield", txt_yield),
            TextRecord("E", txt_E), TextRecord("I", txt_I), TextRecord("Area", txt_area),
            TextRecord("Radius of gyration", txt_rad_gyr),
            TextRecord("Safety factor", txt_safety_factor),
            WordRecord("End conditions", {{opt_fixed_fixed, "Fixed - Fixed"},
                                          {opt_fixed_pinned, "Fixed - Pinned"},
                                          {opt_pinned_pinned, "Pinned - Pinned"},
                                          {opt_fixed_free, "Fixed - Free"}}),
            WordRecord("K Factor Option", {{opt_theoretical, "Theoretical"},
                                           {opt_engineering, "Engineering"},
                                           {opt_conservative, "Conservative"}}),
            TextRecord("Effective Length Constant", txt_k),
            WordRecord("Formula", {{opt_aisc, "AISC"},
                                   {opt_johnson, "Johnson"},
                                   {opt_euler, "Euler"},
                                   {opt_euler_adjusted, "Euler (Adjusted)"}})},
           [this] { SolveColumn(); }} {
  for (const OptionGroup* group : {&ends_, &kValues_})
    for (Option* option : group->Options()) option->onClick = [this] { SetKFactor(); };
  for (Option* option : formula_.Options()) option->onClick = [this] { SolveColumn(); };

  ComputesAndMovesOn({&txt_length, &txt_yield, &txt_E, &txt_I, &txt_area, &txt_rad_gyr},
                     [this] { SolveColumn(); });
  txt_k.onEnter = [this] {
    SolveColumn();
    txt_safety_factor.SetFocus();
  };
  txt_safety_factor.onEnter = [this] {
    SolveColumn();
    txt_length.SetFocus();
  };
  for (TextField* field :
       {&txt_effective_length, &txt_slenderness_ratio, &txt_critical_slenderness_ratio,
        &txt_crit_stress, &txt_crit_load, &txt_max_load}) {
    PassesFocusOn({field});
    field->onFocus = [field, passOn = field->onFocus] {
      field->SelectAll();
      passOn();
    };
  }

  btn_calc.onClick = [this] { SolveColumn(); };
  SetDefault(btn_calc);
  LoadsWith(Command2, file);
  SavesWith(Command1, file);
  PrintsWith(btn_print);
  HelpsWith(btn_help);
  ExitsWith(btn_exit);
}

Layout columns2::Arrangement() {
  const auto narrow = [](TextField& field) { return Row({field, Stretch()}); };
  return Column(
      {Row({Column({Form({narrow(txt_length), narrow(txt_yield), narrow(txt_E), narrow(txt_I),
                          narrow(txt_area), narrow(txt_rad_gyr),
                          Row({txt_safety_factor, toOne_, Stretch()}), narrow(txt_k), note_}),
                    Rule(),
                    Form({narrow(txt_effective_length), narrow(txt_slenderness_ratio),
                          narrow(txt_critical_slenderness_ratio), narrow(txt_crit_stress),
                          narrow(txt_crit_load), narrow(txt_max_load)}),
                    Stretch()}),
            Column({Box(formula_, {opt_aisc, opt_johnson, opt_euler, opt_euler_adjusted}),
                    Box(ends_, {Cells({Row({opt_fixed_fixed, fixedFixed_}),
                                       Row({opt_fixed_pinned, fixedPinned_}),
                                       Row({opt_pinned_pinned, pinnedPinned_}),
                                       Row({opt_fixed_free, fixedFree_})})}),
                    Box(kValues_, {opt_theoretical, opt_engineering, opt_conservative}),
                    Stretch()})}),
       Row({btn_calc, Stretch(), Command2, Command1, btn_print, btn_help, btn_exit})});
}

void columns2::Load() {
  CalculatorWindow::Load();
  SetKFactor();
}

void columns2::SetKFactor() {
  const auto& factors = kFactors[ChosenIndex(kValues_)];
  for (std::size_t i = 0; i < 4; ++i)
    ends_.Options()[i]->SetCaption(std::string(kEnds[i]) +
                                   "  (k = " + PlainText(Double(factors[i])) + ')');
  txt_k.Show(Double(factors[ChosenIndex(ends_)]));
  SolveColumn();
}

// psi and in give lb, MPa and mm give N: the formulas need no factor.
void columns2::SolveColumn() {
  const Single L = ToNumber(txt_length), Fy = ToNumber(txt_yield), E = ToNumber(txt_E);
  const Single I = ToNumber(txt_I), A = ToNumber(txt_area), r = ToNumber(txt_rad_gyr);
  const Single SF = ToNumber(txt_safety_factor);
  for (const Single value : {L, Fy, E, r, A, I})
    if (value <= 0) return;

  const Single Le = L * ToNumber(txt_k);
  txt_effective_length.Show(Le, "0.000");
  const Single SR = Le / r;
  txt_slenderness_ratio.Show(SR, "0.000");
  const Double Cc = Sqrt((Power(pi, 2) + Power(pi, 2)) * E / Fy);
  txt_critical_slenderness_ratio.Show(Cc, "0.000");

  Double s;
  const char* doubted = nullptr;
  if (opt_johnson.IsOn()) {
    s = JohnsonStress(Fy, E, Le, r);
    if (SR > Cc)
      doubted =
          "Warning: slenderness ratio > critical slenderness ratio. Johnson formula may not be "
          "appropriate.";
  } else if (opt_aisc.IsOn()) {
    s = AiscStress(Fy, E, SR);
  } else {
    // The plain formula's load goes as the stress: here it is multiplied by the area once more.
    s = opt_euler.IsOn() ? EulerLoad(E, I, Le) : EulerStress(E, SR);
    if (SR < Cc)
      doubted =
          "Warning: slenderness ratio < critical slenderness ratio. Euler formula may not be "
          "appropriate.";
  }
  if (doubted != nullptr) GetSession().Message(doubted);

  const Double P = s * A;
  txt_crit_stress.Show(s, "0.0");
  txt_crit_load.Show(P, "0.0");
  txt_max_load.Show(P / SF, "0.0");
}

}  // namespace korvane
