#include "mechanical/pipe_bursting.h"

#include <optional>

namespace korvane {
namespace {

/// A pipe from its end, under pressure from within.
Drawing Sketch() {
  Drawing drawing{150, 140, {}};
  constexpr Point center{66, 62};
  constexpr double outer = 54, inner = 40;
  std::vector<Point> wall = Arc(center, outer, 0, 360);
  const std::vector<Point> bore = Arc(center, inner, 360, 0);
  wall.insert(wall.end(), bore.begin(), bore.end());
  drawing.shapes.emplace_back(Path{std::move(wall), Ink::Body, Ink::Body});
  for (const double radius : {outer, inner})
    drawing.shapes.emplace_back(Path{Arc(center, radius, 0, 360), Ink::Line});
  constexpr double reach = 32, start = 8;
  constexpr double between = 45;
  for (double angle = between / 2; angle < 360; angle += between)
    AddArrow(drawing, Arc(center, start, angle, angle).front(),
             Arc(center, reach, angle, angle).front());
  AddMeasure(drawing, center.x - outer, center.x + outer, 130, "D");
  AddArrow(drawing, {center.x + inner - 18, center.y}, {center.x + inner, center.y}, Ink::Line);
  AddArrow(drawing, {center.x + outer + 18, center.y}, {center.x + outer, center.y}, Ink::Line);
  drawing.shapes.emplace_back(Letters{{center.x + outer + 24, center.y}, "t", 9, Ink::Line});
  return drawing;
}

}  // namespace

Pipe_Bursting_Pressure::Pipe_Bursting_Pressure(Session& session)
    : CalculatorWindow(session, {.name = "Pipe_Bursting_Pressure",
                                 .title = " Working Pressure for Pipe & Tubing",
                                 .helpPage = "mechanical_working_pressure_pipe_tubing.html"}),
      picture_(*this, "", "Pipe of outside diameter D and wall t under pressure", Sketch()) {
  Calc.onClick = opt_barlow.onClick = opt_boardman.onClick =
      opt_lame.onClick = [this] { Calculate(); };
  PassesFocusOn({&txt_working_pressure, &txt_burst_pressure});

  SetDefault(Calc);
  PrintsWith(Command3);
  HelpsWith(Command4);
  ExitsWith(Command2);
}

Layout Pipe_Bursting_Pressure::Arrangement() {
  return Column(
      {Row({Column({Form({txt_OD, txt_wall, txt_strength, txt_SF}), Rule(),
                    Form({txt_working_pressure, txt_burst_pressure}), Stretch()}),
            Column({Box(formula_, {opt_barlow, opt_boardman, opt_lame}), Stretch(), picture_})}),
       Row({Calc, Stretch(), Command3, Command4, Command2})});
}

void Pipe_Bursting_Pressure::Load() {
  CalculatorWindow::Load();
  Calculate();
}

void Pipe_Bursting_Pressure::Calculate() {
  const Single D = ToNumber(txt_OD), t = ToNumber(txt_wall), S = ToNumber(txt_strength);
  const Single SF = ToNumber(txt_SF);
  if (D == 0 || t == 0) return;
  const Single d = D - 2 * t;
  Double burst;
  if (opt_barlow.IsOn())
    burst = 2 * S * t / D;
  else if (opt_boardman.IsOn())
    burst = 2 * S * t / (D - 0.8 * t);
  else
    burst = S * (Power(D, 2) - Power(d, 2)) / (Power(D, 2) + Power(d, 2));
  std::optional<Double> working;
  if (SF > 0) working = burst / SF;
  txt_working_pressure.ShowUnlessUnset(working, "#");
  txt_burst_pressure.Show(burst, "#");
}

}  // namespace korvane
