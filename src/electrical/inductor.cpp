#include "electrical/inductor.h"

#include <array>

namespace korvane {
namespace {

constexpr double kPi = 3.1415926;
constexpr double kFeet = 3.280833;  // in a meter
constexpr int kInches = 12;         // in a foot
constexpr double kMillimeters = 25.4;

constexpr int kGauges = 54;
constexpr int kUsual = 24;
// A search for a wire runs over two empty places more: a pitch below all wires ends there.
constexpr int kPlaces = 56;

// American wire gauges 0 to 53: inches.
constexpr std::array<double, kPlaces> WireDia = {
    0.3249, 0.2893,  0.2576,  0.2294, 0.2043,  0.1819,  0.162,   0.1443,  0.1285,  0.1144, 0.1019,
    0.0907, 0.0808,  0.072,   0.0641, 0.0571,  0.0508,  0.0453,  0.0403,  0.0359,  0.032,  0.0285,
    0.0254, 0.0226,  0.0201,  0.0179, 0.0159,  0.0142,  0.0126,  0.0113,  0.01,    0.0089, 0.008,
    0.0071, 0.0063,  0.0056,  0.005,  0.0045,  0.004,   0.0035,  0.0031,  0.0028,  0.0025, 0.0022,
    0.002,  0.00176, 0.00157, 0.0014, 0.00124, 0.00111, 0.00099, 0.00088, 0.00078, 0.0007};

// Ohms per foot of copper wire; above gauge 40 carried on by even steps.
constexpr std::array<double, kPlaces> WireOhms = {
    0.0000983, 0.0001239, 0.0001563, 0.000197, 0.0002485, 0.0003133, 0.0003951, 0.0004982,
    0.0006282, 0.0007921, 0.0009989, 0.00126,  0.001588,  0.002003,  0.002525,  0.003184,
    0.004016,  0.005064,  0.006385,  0.008051, 0.01015,   0.0128,    0.01614,   0.02036,
    0.02567,   0.03237,   0.04081,   0.05147,  0.0649,    0.08183,   0.1032,    0.1301,
    0.1641,    0.2069,    0.2609,    0.329,    0.4148,    0.5231,    0.6596,    0.8318,
    1.049,     1.2662,    1.4834,    1.7006,   1.9178,    2.135,     2.3522,    2.5694,
    2.7866,    3.0038,    3.221,     3.4382,   3.6554,    3.8726};

std::vector<std::string> Gauges() {
  std::vector<std::string> gauges;
  gauges.reserve(kGauges);
  for (int gauge = 0; gauge < kGauges; ++gauge) gauges.push_back(PlainText(gauge));
  return gauges;
}

/// Turns of wire on a form, with their measures.
Drawing Coil() {
  Drawing drawing{250, 112, {}};
  constexpr double top = 16, bottom = 72, left = 60, pitch = 14;
  constexpr int turns = 9;
  constexpr double right = left + turns * pitch;
  AddBox(drawing, {left - 18, top + 3}, {right + 18, bottom - 3});
  for (int i = 0; i < turns; ++i) {
    const double x = left + i * pitch;
    drawing.shapes.emplace_back(Path{{{x, bottom}, {x + pitch * 0.7, top}}, Ink::Accent, {}, 3});
  }
  drawing.shapes.emplace_back(Path{{{left, bottom}, {left, bottom + 10}}, Ink::Accent, {}, 2});
  constexpr double end = right - pitch * 0.3;
  drawing.shapes.emplace_back(Path{{{end, top}, {end, top - 10}}, Ink::Accent, {}, 2});
  AddMeasure(drawing, left, end, 98, "l");
  AddArrow(drawing, {34, 36}, {34, top + 3}, Ink::Line);
  AddArrow(drawing, {34, 52}, {34, bottom - 3}, Ink::Line);
  drawing.shapes.emplace_back(Letters{{34, 44}, "D", 9, Ink::Line});
  return drawing;
}

}  // namespace

Double CoilInductance(Double radius, Double length, Double turns) {
  return Power(radius, 2) * Power(turns, 2) / (9 * radius + 10 * length);
}

Double CoilTurns(Double radius, Double length, Double inductance) {
  return Sqrt(inductance * (9 * radius + 10 * length)) / radius;
}

inductor::inductor(Session& session)
    : CalculatorWindow(session, {.name = "inductor",
                                 .title = " Single Layer Air Coil Inductance",
                                 .helpPage = "electrical_air_coil_inductor_design.html"}),
      picture_(*this, "", "Coil of diameter D and length l", Coil()),
      cmb_gauge(*this, "cmb_gauge", "Max Wire Size", Gauges()) {
  SolvesFrom(txt_turns, "turns");
  SolvesFrom(txt_inductance, "inductance");
  btn_calc.onClick = [this] { SolveInMode(); };
  PassesFocusOn({&txt_wire_length, &txt_resistance});

  SetDefault(btn_calc);
  PrintsWith(btn_print);
  HelpsWith(btn_help);
  ExitsWith(btn_exit);
}

Layout inductor::Arrangement() {
  return Column(
      {Row({Stretch(), picture_, Stretch()}),
       Row({Column({Form({txt_coil_length, txt_coil_dia, txt_turns, txt_inductance}), Stretch()}),
            Column({Form({Row({heading_, Stretch()}), Row({cmb_gauge, listedDia_, Stretch()}),
                          txt_wire_dia, txt_ohms_per_foot}),
                    Stretch()})}),
       Rule(), Row({Column({Form({txt_wire_length})}), Column({Form({txt_resistance})})}),
       Row({btn_calc, Stretch(), btn_print, btn_help, btn_exit})});
}

void inductor::Load() {
  CalculatorWindow::Load();
  cmb_gauge.Select(kUsual);
  const std::string dia = txt_wire_dia.Text();
  ShowWire(kUsual);
  txt_wire_dia.SetText(dia);
  cmb_gauge.onSelect = [this] {
    if (cmb_gauge.Index() < 0) return;
    ShowWire(cmb_gauge.Index());
    Solve();
  };
}

void inductor::SolvesFrom(TextField& field, const char* mode) {
  field.onEnter = [this, mode] {
    SolveMode = mode;
    Solve();
  };
}

void inductor::SolveInMode() {
  if (ToNumber(txt_turns) == 0)
    SolveMode = "inductance";
  else if (SolveMode.empty())
    SolveMode = "turns";
  Solve();
}

void inductor::Solve() {
  const Double r = txt_coil_dia.Us() / 2;
  const Double l = txt_coil_length.Us();
  Double N = ToNumber(txt_turns);
  if (SolveMode == "inductance") {
    N = CoilTurns(r, l, ToNumber(txt_inductance));
    txt_turns.Show(N, "0.0");
    ChooseWire(l / N);
  } else if (SolveMode == "turns") {
    txt_inductance.Show(CoilInductance(r, l, N), "0.000000");
  }
  const Double feet = 2 * kPi * r * N / kInches;
  const Double length = IsMetric() ? feet / kFeet : feet;
  txt_wire_length.Show(length, "0.000");
  txt_resistance.Show(ToNumber(txt_ohms_per_foot) * length, "0.000");
}

/// The thickest wire that lies side by side at the pitch, in inches.
void inductor::ChooseWire(Double pitch) {
  for (int gauge = 0; gauge < kPlaces; ++gauge) {
    if (WireDia[static_cast<std::size_t>(gauge)] >= pitch) continue;
    cmb_gauge.SetText(PlainText(gauge));
    ShowWire(gauge);
    return;
  }
}

void inductor::ShowWire(int gauge) {
  const Double dia = WireDia[static_cast<std::size_t>(gauge)];
  const Double ohms = WireOhms[static_cast<std::size_t>(gauge)];
  const bool metric = IsMetric();
  const Double shown = metric ? dia * kMillimeters : dia;
  listedDia_.SetCaption(Format(shown, metric ? Mask("0.0000") : Mask("0.00000")));
  txt_wire_dia.Show(shown, "0.000");
  txt_ohms_per_foot.Show(metric ? ohms * kFeet : ohms, "0.0000");
}

}  // namespace korvane
