#include "mechanical/fastener.h"

namespace korvane {
namespace {

/// A bolt through two plates, drawn together by its nut.
Drawing Sketch() {
  Drawing drawing{190, 176, {}};
  constexpr double left = 72, right = 92, middle = (left + right) / 2;
  AddBox(drawing, {16, 54}, {148, 80}, {});
  AddBox(drawing, {16, 80}, {148, 106}, {});
  AddBox(drawing, {left - 14, 34}, {right + 14, 54});
  AddBox(drawing, {left, 54}, {right, 106});
  AddBox(drawing, {left - 14, 106}, {right + 14, 126});
  AddBox(drawing, {left, 126}, {right, 144});
  for (double y = 130; y < 144; y += 4)
    drawing.shapes.emplace_back(Path{{{left, y}, {right, y - 2}}, Ink::Line});
  for (const double x : {34.0, 130.0}) {
    AddArrow(drawing, {x, 26}, {x, 52});
    AddArrow(drawing, {x, 134}, {x, 108});
  }
  drawing.shapes.emplace_back(Letters{{146, 34}, "F", 9, Ink::Accent});
  std::vector<Point> turn = Arc({middle, 16}, 26, 160, 20);
  for (Point& point : turn) point.y = 16 + (point.y - 16) * 0.4;
  AddArrow(drawing, turn[turn.size() - 4], turn.back());
  drawing.shapes.emplace_back(Path{std::move(turn), Ink::Accent, {}, 1.5});
  drawing.shapes.emplace_back(Letters{{122, 12}, "T", 9, Ink::Accent});
  AddArrow(drawing, {left - 20, 160}, {left, 160}, Ink::Line);
  AddArrow(drawing, {right + 20, 160}, {right, 160}, Ink::Line);
  drawing.shapes.emplace_back(Letters{{middle, 160}, "d", 9, Ink::Line});
  return drawing;
}

}  // namespace

// Fits of the tables of unified threads.
Double StressArea(Single d, bool fine) {
  return fine ? 0.67375 * Power(d, 2.080195) : 0.60694 * Power(d, 2.111857);
}

fastener::fastener(Session& session)
    : CalculatorWindow(session, {.name = "fastener",
                                 .title = " Fastener Torque Requirements",
                                 .helpPage = "mechanical_fastener_torque.html"}),
      picture_(*this, "", "Fastener of diameter d, turned by T to clamp with F", Sketch()) {
  SolvesFrom(txt_stress, "STRESS");
  SolvesFrom(txt_dia, "DIA");
  SolvesFrom(txt_force, "FORCE");
  ComputesAndMovesOn({&txt_friction}, [this] { Calculate(); });
  txt_torque.onEnter = [this] {
    SolveMode = "TORQUE";
    Calculate();
    txt_stress.SetFocus();
  };
  btn_calc.onClick = opt_coarse.onClick = opt_fine.onClick = [this] { Calculate(); };
  ShowsResultsIn({&txt_force, &txt_torque});

  SetDefault(btn_calc);
  PrintsWith(Command2);
  HelpsWith(btn_help);
  ExitsWith(btn_exit);
}

Layout fastener::Arrangement() {
  return Column({Row({Column({Form({txt_stress, txt_dia, txt_friction}), Rule(),
                              Form({txt_force, txt_torque}), Stretch()}),
                      Column({Box(thread_, {opt_coarse, opt_fine}), Stretch(), picture_})}),
                 Row({btn_calc, Stretch(), Command2, btn_help, btn_exit})});
}

void fastener::Load() {
  CalculatorWindow::Load();
  SolveMode = "DIA";
  Calculate();
}

void fastener::SolvesFrom(TextField& field, const char* mode) {
  ComputesAndMovesOn({&field}, [this, mode] {
    SolveMode = mode;
    Calculate();
  });
}

void fastener::Calculate() {
  Single d = txt_dia.Us();
  const Double S = SolveMode == "FORCE" ? FindSize(d) : Double(txt_stress.Us());
  const Double F = S * StressArea(d, opt_fine.IsOn());
  const Double T = txt_friction.Us() * d * F / 12;
  txt_torque.ShowUs(T, "#.#");
  txt_force.ShowUs(F, "#.#");
}

/// The first size, by sixteenths of an inch or by millimeters, whose stress under the force is no
/// more than the entered one, else the last; gives its stress.
Double fastener::FindSize(Single& d) {
  constexpr double thinnest = 0.0625, sixteenth = 0.0625, millimeter = 0.03937008;
  constexpr int thickest = 2;
  const bool metric = IsMetric();
  const Double step = metric ? millimeter : sixteenth;
  const Single F = txt_force.Us(), S0 = txt_stress.Us();
  Double S;
  for (Single trial = thinnest; trial <= thickest; trial += step) {
    d = trial;
    S = F / StressArea(d, opt_fine.IsOn());
    txt_dia.ShowUs(d, metric ? Mask("#.##") : Mask("#.###"));
    txt_stress.ShowUs(S, "#");
    if (S <= S0) break;
  }
  return S;
}

}  // namespace korvane
