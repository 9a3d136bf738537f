#include "math/free_fall.h"

namespace korvane {
namespace {

constexpr double g = 32.16;         // ft/s2
constexpr double kFoot = 0.3048;    // m
constexpr double kMile = 1.609344;  // km
constexpr int kFeetPerMile = 5280;
constexpr int kSecondsPerHour = 3600;

}  // namespace

Free_Fall::Free_Fall(Session& session)
    : CalculatorWindow(session, {.name = "Free_Fall",
                                 .title = " Acceleration by Gravity",
                                 .helpPage = "math_acceleration_by_gravity.html"}) {
  SolvesWith(btn_Solve, {&txt_height}, [this] { Solve(); });
  PassesFocusOn({&txt_seconds, &txt_fps, &txt_mph});
  SetDefault(btn_Solve);
  PrintsWith(Command1);
  HelpsWith(Command2);
}

Layout Free_Fall::Arrangement() {
  return Column({Form({txt_height}), Rule(), Form({txt_seconds, txt_fps, txt_mph}),
                 Row({btn_Solve, Stretch(), Command1, Command2})});
}

void Free_Fall::Solve() {
  const bool metric = IsMetric();
  Double h = ToNumber(txt_height);
  if (h <= 0) return;
  if (metric) h = h / kFoot;
  const Double t = Power(2 * h / g, 0.5);
  txt_seconds.Show(t, "0.###");
  const Double v = 2 * h / t;
  txt_fps.Show(metric ? v * kFoot : v, "0.###");
  const Double mph = v / kFeetPerMile * kSecondsPerHour;
  txt_mph.Show(metric ? mph * kMile : mph, "0.###");
}

}  // namespace korvane
