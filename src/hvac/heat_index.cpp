#include "hvac/heat_index.h"

namespace korvane {
namespace {

constexpr int kCoolest = 70;  // F, of the formula's normal range
constexpr int kHottest = 140;

}  // namespace

Double HeatIndex(Single T, Single R) {
  return -42.379 + 2.04901523 * T + 10.14333127 * R - 0.22475541 * T * R -
         0.00683783 * Power(T, 2) - 0.05481717 * Power(R, 2) + 0.00122874 * Power(T, 2) * R +
         0.00085282 * T * Power(R, 2) - 1.99e-06 * Power(T, 2) * Power(R, 2);
}

Heat_Index::Heat_Index(Session& session)
    : CalculatorWindow(
          session,
          {.name = "Heat_Index", .title = "Heat Index", .helpPage = "hvac_heat_index.html"}) {
  Command1.onClick = [this] { Calculate(); };
  ShowsResultsIn({&txt_heatindex});
  SetDefault(Command1);
  PrintsWith(btn_print);
  HelpsWith(btn_help);
  ExitsWith(btn_exit);
}

Layout Heat_Index::Arrangement() {
  return Column({Form({txt_temperature, txt_humidity}), Rule(), Form({txt_heatindex}),
                 Row({Command1, Stretch(), btn_print, btn_help, btn_exit})});
}

void Heat_Index::Calculate() {
  Single T = ToNumber(txt_temperature);
  if (IsMetric()) T = T * 1.8 + 32;
  if (T < kCoolest || T > kHottest)
    GetSession().Message(IsMetric() ? "WARNING: Temperature out of normal range for formula (21 to "
                                      "60 C). Results may be inaccurate."
                                    : "WARNING: Temperature out of normal range for formula (70 to "
                                      "140 F). Results may be inaccurate.",
                         Icon::Exclamation);
  Single index = HeatIndex(T, ToNumber(txt_humidity));
  if (IsMetric()) index = (index - 32) / 1.8;
  txt_heatindex.Show(index, "0.##");
}

}  // namespace korvane
