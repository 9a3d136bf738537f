#include "hvac/insulated_pipes.h"

#include <cmath>

namespace korvane {
namespace {

constexpr double kPi = 3.14159265359;
constexpr double kMillimeters = 25.4;       // in an inch
constexpr double kWatts = 0.1442279;        // W/m/K in a btuh/ft2/F/in
constexpr double kWattsPerArea = 3.154591;  // W/m2 in a btuh/ft2
constexpr double kWattsOfHeat = 0.2930711;  // W in a btuh
constexpr double kFeet = 3.280839895013;    // in a meter

/// The pipe in section, with the heat that leaves it.
Drawing Sketch() {
  Drawing drawing{190, 176, {}};
  const Point middle{95, 76};
  constexpr double insulation = 56, pipe = 30;
  drawing.shapes.emplace_back(Path{Arc(middle, insulation, 0, 360), Ink::Line, Ink::Body});
  drawing.shapes.emplace_back(Path{Arc(middle, pipe - 2.5, 0, 360), Ink::Accent, Ink::Paper, 5});
  for (const double degrees : {-150.0, -90.0, -30.0}) {
    const double x = std::cos(degrees * kPi / 180), y = std::sin(degrees * kPi / 180);
    AddArrow(drawing, {middle.x + (pipe + 8) * x, middle.y + (pipe + 8) * y},
             {middle.x + (insulation + 16) * x, middle.y + (insulation + 16) * y});
  }
  for (const double x : {middle.x - pipe, middle.x + pipe, middle.x + insulation})
    drawing.shapes.emplace_back(Path{{{x, middle.y}, {x, 158}}, Ink::Line, {}, 0.5});
  AddMeasure(drawing, middle.x - pipe, middle.x + pipe, 152, "OD");
  AddMeasure(drawing, middle.x + pipe, middle.x + insulation, 152, "t");
  return drawing;
}

/// Inches, F and btuh/ft2/F/in.
template <class Number>
struct InsulatedPipe {
  Number od, thickness, hot, air, k;

  /// btuh per square foot of the insulation's outside
  Double LossPerArea() const {
    const Number r1 = od / 2;
    const Number r2 = r1 + thickness;
    return (hot - air) * k / (r2 * Ln(r2 / r1));
  }
  /// btuh per foot: by the way around the bare pipe, though the area is that of the insulation
  Double LossPerLength() const { return LossPerArea() * (kPi * od / 12); }
};

}  // namespace

Insulated_Pipes::Insulated_Pipes(Session& session)
    : CalculatorWindow(session, {.name = "Insulated_Pipes",
                                 .title = "Heat Loss from Insulated Pipes",
                                 .helpPage = "hvac_heat_loss_from_insulated_pipes.html"}),
      picture_(*this, "", "Pipe of the diameter OD in insulation of the thickness t", Sketch()),
      file{"INSULATED PIPES",
           "insulated_pipes.dta",
           "Load data...",
           {TextRecord("Pipe Outside Diameter", txt_od),
            TextRecord("Insulation Thickness", txt_insul_thickness),
            TextRecord("Pipe Temperature", txt_pipe_temp),
            TextRecord("Air Temperature", txt_air_temp),
            TextRecord("Insulation k-value", txt_k_value),
            TextRecord("Length of Pipe", txt_pipe_length)},
           [this] { Calculate(); }} {
  btn_calc.onClick = [this] { Calculate(); };
  ShowsResultsIn({&txt_heat_loss_per_area, &txt_heat_loss, &txt_total_loss});

  SetDefault(btn_calc);
  LoadsWith(btn_load, file);
  SavesWith(btn_save, file);
  PrintsWith(btn_print);
  HelpsWith(btn_help);
  ExitsWith(btn_exit);
}

Layout Insulated_Pipes::Arrangement() {
  return Column(
      {Row({Column({Form({txt_od, txt_insul_thickness, txt_pipe_temp, txt_air_temp, txt_k_value,
                          txt_pipe_length}),
                    Rule(), Form({txt_heat_loss_per_area, txt_heat_loss, txt_total_loss})}),
            Column({picture_, Stretch()})}),
       Row({btn_calc, Stretch(), btn_load, btn_save, btn_print, btn_help, btn_exit})});
}

void Insulated_Pipes::Calculate() {
  const Single od = ToNumber(txt_od);
  const Single thickness = ToNumber(txt_insul_thickness);
  const Single hot = ToNumber(txt_pipe_temp);
  const Single air = ToNumber(txt_air_temp);
  const Single k = ToNumber(txt_k_value);
  if (IsMetric()) {
    const InsulatedPipe<Double> pipe{od / kMillimeters, thickness / kMillimeters, hot * 1.8 + 32,
                                     air * 1.8 + 32, k / kWatts};
    ShowLoss(pipe.LossPerArea() * kWattsPerArea, pipe.LossPerLength() * kWattsOfHeat * kFeet);
  } else {
    const InsulatedPipe<Single> pipe{od, thickness, hot, air, k};
    ShowLoss(pipe.LossPerArea(), pipe.LossPerLength());
  }
}

void Insulated_Pipes::ShowLoss(Double perArea, Double perLength) {
  txt_heat_loss_per_area.Show(perArea, "#.###");
  txt_heat_loss.Show(perLength, "#.###");
  txt_total_loss.Show(ToNumber(txt_pipe_length) * perLength, "#.###");
}

}  // namespace korvane
