#include "hvac/water_hammer.h"

namespace korvane {
namespace {

constexpr Single kBulkModulus = 300000;  // of water, psi, in both unit systems
constexpr double kWaterWeight = 62.4;    // lb/ft3
constexpr double kGravity = 32.2;        // ft/s2
constexpr int kGallon = 231;             // in3

}  // namespace

Water_Hammer::Water_Hammer(Session& session)
    : CalculatorWindow(
          session,
          {.name = "Water_Hammer", .title = "Water Hammer", .helpPage = "hvac_water_hammer.html"}) {
  btn_solve.onClick = [this] { Solve(); };
  ComputesAndMovesOn(
      {&txt_E_pipe, &txt_flow, &txt_ID, &txt_line_pressure, &txt_poissons, &txt_wall},
      btn_solve.onClick);
  ShowsResultsIn({&txt_E_composite, &txt_velocity, &txt_delta_P, &txt_total_pressure});
  SetDefault(btn_solve);
  PrintsWith(btn_print);
  HelpsWith(btn_help);
  ExitsWith(btn_exit);
}

Layout Water_Hammer::Arrangement() {
  return Column({Form({txt_E_pipe, txt_poissons, txt_ID, txt_wall, txt_flow, txt_line_pressure}),
                 Rule(), Form({txt_E_composite, txt_velocity, txt_delta_P, txt_total_pressure}),
                 Row({btn_solve, Stretch(), btn_print, btn_help, btn_exit})});
}

// Inches, pounds and psi throughout.
void Water_Hammer::Solve() {
  const Single E = txt_E_pipe.Us();
  const Single mu = ToNumber(txt_poissons);
  const Single ID = txt_ID.Us();
  const Single wall = txt_wall.Us();
  const Single flow = txt_flow.Us();
  const Single linePressure = txt_line_pressure.Us();
  if (mu < 0 || mu > 0.5) {
    GetSession().Message("Poisson's Ratio must be between 0 and 0.5 for this calculation.");
    return;
  }
  if (E * wall == 0) return;

  // The pipe gives way beside the water; it is held against moving lengthwise at one end.
  const Single composite = 1 / (1 / kBulkModulus + (5 - 4 * mu) * ID / (4 * E * wall));
  txt_E_composite.ShowUs(composite, "#");
  const Single perSecond = kGallon * (flow / 60);
  const Double area = Power(ID / 2, 2) * 3.1415926;
  const Single velocity = (perSecond / area) / 12;
  txt_velocity.ShowUs(velocity, "#.###");
  const Single rise = velocity * Sqrt(composite * kWaterWeight / kGravity) / 12;
  txt_delta_P.ShowUs(rise, "#.###");
  const Single total = rise + linePressure;
  txt_total_pressure.ShowUs(total, "#.###");
}

}  // namespace korvane
