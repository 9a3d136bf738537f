#include "hvac/boiling_point.h"

namespace korvane {
namespace {

constexpr double kMetersPerFoot = 0.3048;
constexpr double kPascals = 3386.38;      // in an inch of mercury
constexpr double kTropopause = 36089.24;  // ft; above it the temperature stands

}  // namespace

Double AtmosphericPressure(Single h) {
  if (h <= kTropopause) return 29.92126 * Power(1 - h * 6.8755856e-6, 5.2558797);
  return 6.683239562734 * Exp((h - kTropopause) * -4.806346e-5);
}

Double BoilingPoint(Double p) { return Ln(p) * 49.161 + 44.932; }

Boiling_Point::Boiling_Point(Session& session)
    : CalculatorWindow(session, {.name = "Boiling_Point",
                                 .title = "Pressure & BP vs. Altitude",
                                 .helpPage = "hvac_pressure_boiling_point_vs_altitide.html"}) {
  // Each altitude follows the other one while a person types in that.
  FollowsTyping(txt_altitude,
                [this] { txt_altitude_m.Show(ToNumber(txt_altitude) * kMetersPerFoot); });
  FollowsTyping(txt_altitude_m,
                [this] { txt_altitude.Show(ToNumber(txt_altitude_m) / kMetersPerFoot, "0.###"); });
  btn_calc.onClick = txt_altitude.onEnter =
      txt_altitude_m.onEnter = [this] { PressureAndBoilingPoint(); };
  ShowsResultsIn({&txt_pressure, &txt_pressure_Pa, &txt_bp, &txt_BP_C});
  SetDefault(btn_calc);
  PrintsWith(btn_print);
  HelpsWith(btn_help);
  ExitsWith(btn_exit);
}

Layout Boiling_Point::Arrangement() {
  return Column({Form({Row({txt_altitude, txt_altitude_m, unit_m_, Stretch()})}), Rule(),
                 Form({Row({txt_pressure, txt_pressure_Pa, unit_pa_, Stretch()}),
                       Row({txt_bp, txt_BP_C, unit_c_, Stretch()})}),
                 Row({btn_calc, Stretch(), btn_print, btn_help, btn_exit})});
}

void Boiling_Point::Load() {
  CalculatorWindow::Load();
  PressureAndBoilingPoint();
}

// The metres count by what they have written in the feet.
void Boiling_Point::PressureAndBoilingPoint() {
  const Double p = AtmosphericPressure(ToNumber(txt_altitude));
  txt_pressure.Show(p, "0.###");
  txt_pressure_Pa.Show(p * kPascals, "0.##");
  const Double bp = BoilingPoint(p);
  txt_bp.Show(bp, "0.#");
  txt_BP_C.Show((bp - 32) / 1.8, "0.#");
}

}  // namespace korvane
