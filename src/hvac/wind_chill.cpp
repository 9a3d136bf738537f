#include "hvac/wind_chill.h"

namespace korvane {
namespace {

// Normal range of the formula.
constexpr int kCalmest = 5;  // mph
constexpr int kStrongest = 60;
constexpr int kColdest = -45;  // F
constexpr int kWarmest = 40;

constexpr double kMilesPerKilometer = 0.6214;

}  // namespace

Double WindChill(Single T, Single V) {
  return 35.74 + 0.6215 * T - 35.75 * Power(V, 0.16) + 0.4275 * T * Power(V, 0.16);
}

Wind_Chill_Factor::Wind_Chill_Factor(Session& session)
    : CalculatorWindow(session, {.name = "Wind_Chill_Factor",
                                 .title = "Wind Chill Factor",
                                 .helpPage = "hvac_wind_chill_factor.html"}) {
  Command1.onClick = [this] { Calculate(); };
  ShowsResultsIn({&txt_windchill});
  SetDefault(Command1);
  PrintsWith(btn_print);
  HelpsWith(btn_help);
  ExitsWith(btn_exit);
}

Layout Wind_Chill_Factor::Arrangement() {
  return Column({Form({txt_temperature, txt_windspeed}), Rule(), Form({txt_windchill}),
                 Row({Command1, Stretch(), btn_print, btn_help, btn_exit})});
}

void Wind_Chill_Factor::Calculate() {
  Single V = ToNumber(txt_windspeed);
  Single T = ToNumber(txt_temperature);
  if (IsMetric()) {
    V = V * kMilesPerKilometer;
    T = T * 1.8 + 32;
  }
  const auto warn = [this](const char* us, const char* metric) {
    GetSession().Message(IsMetric() ? metric : us, Icon::Exclamation);
  };
  if (V < kCalmest || V > kStrongest)
    warn(
        "WARNING: Wind speed out of normal range for formula (5 to 60 mph). Results of "
        "calculation may be inaccurate.",
        "WARNING: Wind speed out of normal range for formula (8 to 95 km/h). Results may be "
        "inaccurate.");
  if (T < kColdest || T > kWarmest)
    warn(
        "WARNING: Temperature out of normal range for formula (+40 to -45 F). Results of "
        "calculation may be inaccurate.",
        "WARNING: Temperature out of normal range for formula (+4 to -43 C). Results may be "
        "inaccurate.");
  Double chill = WindChill(T, V);
  if (IsMetric()) chill = (chill - 32) / 1.8;
  txt_windchill.Show(chill, "0.##");
}

}  // namespace korvane
