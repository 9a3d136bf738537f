#include "electrical/voltage_drop.h"

#include <algorithm>
#include <optional>

#include "frame/delimited.h"
#include "frame/session.h"

namespace korvane {
namespace {

constexpr const char* kGauges = "conductors.dat";
constexpr std::size_t kMostGauges = 65;
constexpr std::size_t kKnownGauges = 61;  // rows further down are listed and not found

constexpr double kFoot = 0.3048;              // m
constexpr double kInch = 25.4;                // mm
constexpr double kMetricK = 0.166;            // micro-ohm cm in an ohm circular mil per foot
constexpr double kCircularMil = 7.854e-7;     // in2
constexpr double kPerInch2 = 1273239.566454;  // circular mils
constexpr double kPi = 3.1415926;

constexpr const char* kTooMuch =
    "INVALID DATA - The calculated voltage drop is greater than the line voltage. The current is "
    "too high for this wire size. Decrease the current or select a larger wire size.";

const std::vector<std::string> kVoltages = {
    "12",  "24",   "48",   "90",   "115",  "120",  "127",  "180",  "200", "208",
    "230", "240",  "277",  "380",  "400",  "415",  "440",  "460",  "480", "575",
    "600", "1200", "2300", "2400", "4160", "4800", "6900", "13800"};

/// Circular mils of a number in the series of ASTM B258: 0.005 in at No. 36, 92 times as much at
/// No. 0000, in 39 equal ratios.
Double CircularMils(Double n) {
  const Double d = Power(92, (36 - n) / 39) * 0.005;
  const Double A = kPi * Power(d, 2) / 4;
  return A / kCircularMil;
}

template <class Area>
Double SquareMillimeters(Area CM) {
  return (CM / kPerInch2) * Power(kInch, 2);
}

}  // namespace

std::vector<WireGauge> ParseWireGauges(std::string_view bytes) {
  DelimitedReader reader(bytes);
  reader.Line();
  std::vector<WireGauge> gauges;
  while (!reader.AtEnd()) {
    if (gauges.size() == kMostGauges) failures::SubscriptOutOfRange();
    std::string number = reader.Text();
    gauges.push_back({std::move(number), reader.Text()});
  }
  return gauges;
}

voltage_drop::voltage_drop(Session& session)
    : CalculatorWindow(session, {.name = "voltage_drop",
                                 .title = "Voltage Drop Calculations",
                                 .helpPage = "electrical_voltage_drop_calculations.html"}),
      cmb_voltage(*this, "cmb_voltage", "Voltage", kVoltages, Combo::Style::Editable) {
  cmb_gauge.onSelect = [this] { GaugeChanged(); };
  opt_single_phase.onClick = opt_three_phase.onClick = cmb_voltage.onSelect = [this] {
    GaugeChanged();
    ComputeDrop();  // once more, so that an invalid drop is told twice
  };
  opt_copper.onClick = [this] { TakeMaterial("12.9"); };
  opt_aluminum.onClick = [this] { TakeMaterial("21.2"); };
  FollowsTyping(txt_k, [this] { txt_k2.Show(ToNumber(txt_k) * kMetricK, "0.000"); });
  FollowsTyping(txt_k2, [this] { txt_k.Show(ToNumber(txt_k2) / kMetricK, "0.000"); });
  FollowsTyping(txt_length, [this] { txt_length_m.Show(ToNumber(txt_length) * kFoot, "0.000"); });
  FollowsTyping(txt_length_m, [this] { txt_length.Show(ToNumber(txt_length_m) / kFoot, "0.000"); });
  SolvesWith(btn_calc, {&txt_amps, &txt_k, &txt_k2, &txt_length, &txt_length_m},
             [this] { ComputeDrop(); });

  ShowsResultsIn({&txt_circ_mils});
  PassesFocusOn({&txt_mm2, &txt_optf, &txt_opkm, &txt_drop, &txt_percent});
  SetDefault(btn_calc);
  PrintsWith(btn_print);
  HelpsWith(btn_help);
  ExitsWith(btn_exit);
}

Layout voltage_drop::Arrangement() {
  const auto pair = [](TextField& us, TextField& metric) {
    return Row({Form({us}), Form({metric})});
  };
  return Column(
      {Cells({Row({Form({cmb_gauge}), Form({cmb_voltage})}), pair(txt_length, txt_length_m),
              pair(txt_k, txt_k2), Row({Form({txt_amps})})}),
       Row({Box(power_type_, {opt_single_phase, opt_three_phase}),
            Box(material_, {opt_copper, opt_aluminum})}),
       Rule(),
       Cells({pair(txt_circ_mils, txt_mm2), pair(txt_optf, txt_opkm), pair(txt_drop, txt_percent)}),
       Row({btn_calc, Stretch(), btn_print, btn_help, btn_exit})});
}

void voltage_drop::Load() {
  CalculatorWindow::Load();
  GetSession().DataFileName = kGauges;
  gauges_ = ParseWireGauges(GetSession().ReadTable(kGauges));
  for (const WireGauge& gauge : gauges_) cmb_gauge.AddItem(gauge.label);
  cmb_gauge.SetText("12");
  cmb_voltage.SetText("120");
  // Typed over from here on; there is no area to compute with before.
  cmb_voltage.onChange = [this] { ComputeDrop(); };
  txt_length.SetText("100");
  txt_k.SetText("12.9");
  txt_k2.Show(ToNumber(txt_k) * kMetricK, "0.000");
  GaugeChanged();
}

void voltage_drop::TakeMaterial(const char* k) {
  txt_k.SetText(k);
  txt_k2.Show(ToNumber(txt_k) * kMetricK, "0.000");
  ComputeDrop();
}

void voltage_drop::GaugeChanged() {
  std::optional<Double> CM;
  for (std::size_t i = 0; i < std::min(gauges_.size(), kKnownGauges); ++i)
    if (cmb_gauge.Text() == gauges_[i].label) CM = CircularMils(Strict(gauges_[i].number));
  txt_circ_mils.ShowUnlessUnset(CM, "0");
  txt_mm2.Show(SquareMillimeters(CM.value_or(0)), "0.000");
  ComputeDrop();
}

void voltage_drop::ComputeDrop() {
  const Single L = ToNumber(txt_length), V = ToNumber(cmb_voltage), I = ToNumber(txt_amps);
  const Single K = ToNumber(txt_k), CM = ToNumber(txt_circ_mils);
  txt_mm2.Show(SquareMillimeters(CM), "0.000");
  const Single R = K * 1000 / CM;
  txt_optf.Show(R, "0.000");
  txt_opkm.Show(R / kFoot, "0.000");
  const Double m = opt_single_phase.IsOn() ? Double(2) : Sqrt(3);
  if (V == 0) return;
  const Double Drop = m * K * I * L / CM;
  const Double Percent = Drop / V * 100;
  if (Drop > V) {
    txt_drop.SetText("INVALID");
    txt_percent.SetText("INVALID");
    GetSession().Message(kTooMuch);
  } else {
    txt_drop.Show(Drop, "0.000");
    txt_percent.Show(Percent, "0.00");
  }
}

}  // namespace korvane
