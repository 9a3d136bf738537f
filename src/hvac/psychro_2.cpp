#include "hvac/psychro_2.h"

#include "frame/search.h"

namespace korvane {
namespace {

constexpr double kPsi = 0.49122;              // in an inch of mercury
constexpr double kBars = 0.0337685;           // in an inch of mercury
constexpr double kMillibars = 33.86389;       // in an inch of mercury
constexpr int kGrains = 7000;                 // in a pound
constexpr double kKilojoules = 2.326;         // per kg in a btu/lb
constexpr double kDryAirAtFreezing = 17.778;  // kJ/kg, counted from 0 F
constexpr double kCubicFeet = 16.01846;       // per lb in a m3/kg
constexpr int kFreezing = 32;

struct AltitudeRow {
  int feet;
  double pressure;  // inches of mercury
};
constexpr AltitudeRow kAltitudes[] = {
    {-1000, 31.02}, {-500, 30.47}, {0, 29.921},   {500, 29.38},   {1000, 28.86},
    {2000, 27.82},  {3000, 26.82}, {4000, 25.82}, {5000, 24.9},   {6000, 23.98},
    {7000, 23.09},  {8000, 22.22}, {9000, 21.39}, {10000, 20.48}, {15000, 16.89},
    {20000, 13.76}, {30000, 8.9},  {40000, 5.56}, {50000, 3.44},  {60000, 2.14},
};

Double Celsius(Single f) { return (f - 32) / 1.8; }

}  // namespace

Double SaturationPressure(Double t) {
  const Double TK = (t + 459.688) / 1.8;
  Double S;  // logarithm of the pressure in atmospheres
  if (TK > 273.16) {
    const Double z = 373.16 / TK;
    S = -7.90298 * (z - 1) + 5.02808 * Log10(z) +
        -1.3816e-7 * (Power(10, 11.344 * (1 - 1 / z)) - 1) +
        0.0081328 * (Power(10, -3.49149 * (z - 1)) - 1);
  } else {
    const Double z = 273.16 / TK;
    S = -9.09718 * (z - 1) + -3.56654 * Log10(z) + 0.876793 * (1 - 1 / z) + Log10(0.0060273);
  }
  return 29.921 * Power(10, S);
}

Double VaporPressure(Double tdb, Double twb, Double P) {
  const Double Pw = SaturationPressure(twb);
  const Double Ws = 0.62198 * Pw / (P - Pw);
  if (twb <= kFreezing) return 0;
  const Double W = Ws - (tdb - twb) * (0.24 + 0.441 * Ws) / (1093.049 + 0.441 * (tdb - twb));
  return W / (0.62198 + W) * P;
}

Double DewPointFromVapor(Double Pv) {
  const Double y = Ln(Pv);
  if (Pv >= 0.18036) return 79.047 + 30.579 * y + 1.8893 * (y * y);
  return 71.98 + 24.873 * y + 0.8927 * (y * y);
}

Double PressureAtAltitude(Single a) {
  for (const AltitudeRow& row : kAltitudes)
    if (a <= row.feet) return row.pressure;
  failures::SubscriptOutOfRange();
}

// The ratio's constant is 0.622, that of the vapour pressure 0.62198.
MoistAir::MoistAir(Double tdb, Double twb, Double pressure)
    : P(pressure),
      Ps(SaturationPressure(tdb)),
      Pv(VaporPressure(tdb, twb, P)),
      RelativeHumidity(100 * Pv / Ps),
      HumidityRatio(0.622 * Pv / (P - Pv)),
      Enthalpy(0.24 * tdb + HumidityRatio * (1061 + 0.444 * tdb)),
      SpecificVolume(0.754 * (tdb + 459.7) * (1 + 7000 * HumidityRatio / 4360) / P) {}

Psychro_2::Psychro_2(Session& session)
    : CalculatorWindow(session, {.name = "Psychro_2",
                                 .title = "Psychrometric Calculations II",
                                 .helpPage = "hvac_psychrometrics.html"}) {
  LinkTemperatures(txt_dry_bulb, txt_dry_bulb_C);
  LinkTemperatures(txt_wet_bulb, txt_wet_bulb_C);
  LinkTemperatures(txt_dewpoint, txt_dewpoint_C);
  // What code writes to a field moves no twin: the person's field is the one in focus.
  FollowsTyping(txt_altitude,
                [this] { txt_altitude_m.Show(ToNumber(txt_altitude) * 12 / 39.37, "0.0"); });
  FollowsTyping(txt_altitude_m,
                [this] { txt_altitude.Show(ToNumber(txt_altitude_m) * 39.37 / 12, "0.0"); });

  OnClick(opt_wb, txt_wet_bulb, txt_wet_bulb_C);
  OnClick(opt_dp, txt_dewpoint, txt_dewpoint_C);
  OnClick(opt_RH, txt_RH, txt_RH);
  btn_calculate.onClick = [this] { Calculate(); };

  ShowsResultsIn({&txt_P_atm_inHg, &txt_P_atm_psi, &txt_P_atm_bar, &txt_P_vap_sat_inHg,
                  &txt_P_vap_sat_psi, &txt_P_vap_sat_mbar, &txt_P_vap_inHg, &txt_P_vap_psi,
                  &txt_P_vap_mbar, &txt_humidity_ratio_lb, &txt_humidity_ratio_gr,
                  &txt_humidity_ratio_kg_kg, &txt_enthalpy, &txt_enthalpy_kJ_kg,
                  &txt_specific_volume, &txt_specific_volume_m3_kg});
  SetDefault(btn_calculate);
  PrintsWith(Command3);
  HelpsWith(Command2);
  ExitsWith(Command1);
}

Layout Psychro_2::Arrangement() {
  const auto line = [](TextField& us, TextField& other, Label& unit, TextField& metric,
                       Label& metricUnit) {
    return Row({us.CaptionBeside(), us, other, unit, metric, metricUnit});
  };
  return Column(
      {Row({Column({Form({Row({txt_dry_bulb, txt_dry_bulb_C, unit_dry_bulb_, Stretch()}),
                          Row({txt_wet_bulb, txt_wet_bulb_C, unit_wet_bulb_, Stretch()}),
                          Row({txt_altitude, txt_altitude_m, unit_altitude_, Stretch()}),
                          Row({txt_dewpoint, txt_dewpoint_C, unit_dewpoint_, Stretch()}),
                          Row({txt_RH, Stretch()})}),
                    Stretch()}),
            Column({Box(inputs_, {opt_wb, opt_dp, opt_RH}), Stretch()})}),
       Rule(),
       Row({Cells({line(txt_P_atm_inHg, txt_P_atm_psi, psi_atm_, txt_P_atm_bar, bar_atm_),
                   line(txt_P_vap_sat_inHg, txt_P_vap_sat_psi, psi_vap_sat_, txt_P_vap_sat_mbar,
                        mbar_vap_sat_),
                   line(txt_P_vap_inHg, txt_P_vap_psi, psi_vap_, txt_P_vap_mbar, mbar_vap_),
                   line(txt_humidity_ratio_lb, txt_humidity_ratio_gr, gr_, txt_humidity_ratio_kg_kg,
                        kg_kg_),
                   Row({txt_enthalpy.CaptionBeside(), txt_enthalpy, Stretch(), Stretch(),
                        txt_enthalpy_kJ_kg, kJ_kg_}),
                   Row({txt_specific_volume.CaptionBeside(), txt_specific_volume, Stretch(),
                        Stretch(), txt_specific_volume_m3_kg, m3_kg_})}),
            Stretch()}),
       Row({btn_calculate, Stretch(), Command3, Command2, Command1})});
}

void Psychro_2::Load() {
  CalculatorWindow::Load();
  GetSession().Show(*this);
  OpenInputs();
  CalcFromWetBulb();
}

void Psychro_2::LinkTemperatures(TextField& fahrenheit, TextField& celsius) {
  FollowsTyping(fahrenheit,
                [&fahrenheit, &celsius] { celsius.Show(Celsius(ToNumber(fahrenheit)), "0.00"); });
  FollowsTyping(celsius,
                [&fahrenheit, &celsius] { fahrenheit.Show(ToNumber(celsius) * 1.8 + 32, "0.00"); });
}

void Psychro_2::OnClick(Option& option, TextField& us, TextField& metric) {
  option.onClick = [this, &us, &metric] {
    OpenInputs();
    Calculate();
    TextField& input = IsMetric() ? metric : us;
    input.SetFocus();
    input.SelectAll();
  };
}

/// The fields of the chosen option can be typed in, those of the others are results.
void Psychro_2::OpenInputs() {
  const auto open = [](const Option& option, std::initializer_list<TextField*> fields) {
    for (TextField* field : fields) {
      field->SetBack(option.IsOn() ? Color::Window() : Color::ButtonFace());
      field->SetEnabled(option.IsOn());
    }
  };
  open(opt_wb, {&txt_wet_bulb, &txt_wet_bulb_C});
  open(opt_dp, {&txt_dewpoint, &txt_dewpoint_C});
  open(opt_RH, {&txt_RH});
}

void Psychro_2::Calculate() {
  if (opt_wb.IsOn())
    CalcFromWetBulb();
  else if (opt_dp.IsOn())
    CalcFromDewPoint();
  else
    CalcFromRH();
}

void Psychro_2::CalcFromWetBulb() {
  const Single tdb = ToNumber(txt_dry_bulb);
  const Single twb = ToNumber(txt_wet_bulb);
  const Double P = PressureAtAltitude(ToNumber(txt_altitude));
  const Double Pv = VaporPressure(tdb, twb, P);
  if (Pv >= 0) ShowDewPoint(DewPointFromVapor(Pv));
  const MoistAir air(tdb, twb, P);
  txt_RH.Show(air.RelativeHumidity, "0.000");
  ShowResults(air);
}

void Psychro_2::CalcFromDewPoint() {
  FindWetBulb(ToNumber(txt_dewpoint), [this](const MoistAir& air, Double dewPoint, bool shown) {
    if (shown) {
      txt_dewpoint_C.Show(Celsius(ToNumber(txt_dewpoint)), "0.000");
      txt_RH.Show(air.RelativeHumidity, "0.000");
    }
    return dewPoint;
  });
}

void Psychro_2::CalcFromRH() {
  const Single target = ToNumber(txt_RH);
  if (target == 0) {
    txt_RH.SetFocus();
    txt_RH.SetText(" 0 ");
    txt_RH.SelectAll();
    return;
  }
  FindWetBulb(target, [this](const MoistAir& air, Double dewPoint, bool shown) {
    if (shown) ShowDewPoint(dewPoint);
    return air.RelativeHumidity;
  });
}

/// The wet bulb at which what `compared` makes of the air meets the target. Each step shows it, and
/// each of the last pass the results too.
template <class Compared>
void Psychro_2::FindWetBulb(Single target, Compared compared) {
  const Single tdb = ToNumber(txt_dry_bulb);
  const Single altitude = ToNumber(txt_altitude);
  Search search(GetSession());
  Double dewPoint;  // of the step before where there is no vapour
  WalkWetBulb(target, [&](Double twb, bool lastPass) {
    txt_wet_bulb.Show(twb, "0.000");
    const MoistAir air(tdb, twb, PressureAtAltitude(altitude));
    if (air.Pv > 0) dewPoint = DewPointFromVapor(air.Pv);
    if (lastPass) txt_wet_bulb_C.Show(Celsius(ToNumber(txt_wet_bulb)), "0.000");
    const Double found = compared(air, dewPoint, lastPass);
    if (lastPass) ShowResults(air);
    search.Stepped();
    return found;
  });
}

// Celsius of the dew point as it is shown.
void Psychro_2::ShowDewPoint(Double dewPoint) {
  txt_dewpoint.Show(dewPoint, "0.000");
  txt_dewpoint_C.Show(Celsius(ToNumber(txt_dewpoint)), "0.000");
}

void Psychro_2::ShowResults(const MoistAir& air) {
  constexpr Mask mask = "0.000";
  txt_P_atm_inHg.Show(air.P, mask);
  txt_P_atm_psi.Show(air.P * kPsi, mask);
  txt_P_atm_bar.Show(air.P * kBars, mask);
  txt_P_vap_sat_inHg.Show(air.Ps, mask);
  txt_P_vap_sat_psi.Show(air.Ps * kPsi, mask);
  txt_P_vap_sat_mbar.Show(air.Ps * kMillibars, mask);
  txt_P_vap_inHg.Show(air.Pv, mask);
  txt_P_vap_psi.Show(air.Pv * kPsi, mask);
  txt_P_vap_mbar.Show(air.Pv * kMillibars, mask);
  txt_humidity_ratio_lb.Show(air.HumidityRatio, mask);
  txt_humidity_ratio_gr.Show(air.HumidityRatio * kGrains, mask);
  txt_humidity_ratio_kg_kg.Show(air.HumidityRatio, mask);
  txt_enthalpy.Show(air.Enthalpy, mask);
  txt_enthalpy_kJ_kg.Show(air.Enthalpy * kKilojoules - kDryAirAtFreezing, mask);
  txt_specific_volume.Show(air.SpecificVolume, mask);
  txt_specific_volume_m3_kg.Show(air.SpecificVolume / kCubicFeet, mask);
}

}  // namespace korvane
