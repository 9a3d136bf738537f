#include "electrical/lc_calculations.h"

#include <span>

namespace korvane {
namespace {

constexpr double kTwoPi = 6.28318530718;
constexpr int kLight = 300000000;  // m/s

struct Unit {
  const char* name;
  double factor;
};
// Farads and henries in a unit.
constexpr Unit kCapacitances[] = {{"F", 1}, {"uF", 1e-6}, {"nF", 1e-9}, {"pF", 1e-12}};
constexpr Unit kInductances[] = {{"H", 1}, {"uH", 1e-6}};
// Units in a hertz and in a meter.
constexpr Unit kFrequencies[] = {{"Hz", 1}, {"kHz", 0.001}, {"MHz", 1e-6}, {"GHz", 1e-9}};
constexpr Unit kWavelengths[] = {{"m", 1}, {"mm", 1000}, {"ft", 3.2808}, {"in", 39.37}};
constexpr int kKilohertz = 1;

std::vector<std::string> NamesOf(std::span<const Unit> units) {
  std::vector<std::string> names;
  for (const Unit& unit : units) names.emplace_back(unit.name);
  return names;
}

double FactorOf(const Combo& list, std::span<const Unit> units) {
  return units[static_cast<std::size_t>(list.Index())].factor;
}

/// A coil beside a capacitor, between two rails.
Drawing Circuit() {
  Drawing drawing{240, 100, {}};
  const auto line = [&drawing](std::vector<Point> points, double width = 1.2) {
    drawing.shapes.emplace_back(Path{std::move(points), Ink::Line, {}, width});
  };
  constexpr double left = 70, right = 170, top = 10, bottom = 90, radius = 7;
  line({{left, 22}, {left, top}, {right, top}, {right, 45}});
  line({{left, 78}, {left, bottom}, {right, bottom}, {right, 55}});
  for (double y = 22 + radius; y < 78; y += 2 * radius)
    drawing.shapes.emplace_back(Path{Arc({left, y}, radius, -90, 90), Ink::Accent, {}, 2});
  for (const double y : {45.0, 55.0})
    drawing.shapes.emplace_back(Path{{{right - 18, y}, {right + 18, y}}, Ink::Accent, {}, 2.5});
  drawing.shapes.emplace_back(Letters{{left - 18, 50}, "L", 10, Ink::Line});
  drawing.shapes.emplace_back(Letters{{right + 32, 50}, "C", 10, Ink::Line});
  return drawing;
}

}  // namespace

Double ResonantFrequency(Double inductance, Double capacitance) {
  return 1 / (kTwoPi * Sqrt(inductance * capacitance));
}

LC_Calculations::LC_Calculations(Session& session)
    : CalculatorWindow(session, {.name = "LC_Calculations",
                                 .title = " L-C Tank Calculation",
                                 .helpPage = "electrical_l-c_tank_calculations.html"}),
      picture_(*this, "", "Tank circuit: coil L and capacitor C in parallel", Circuit()),
      cbo_cap_units(*this, "cbo_cap_units", "Unit of Capacitance", NamesOf(kCapacitances)),
      cbo_ind_units(*this, "cbo_ind_units", "Unit of Inductance", NamesOf(kInductances)),
      cbo_freq_units(*this, "cbo_freq_units", "Unit of Frequency", NamesOf(kFrequencies)),
      cbo_wavelength_units(*this, "cbo_wavelength_units", "Unit of Wavelength",
                           NamesOf(kWavelengths)) {
  btn_solve_3.onClick = [this] { Solve(); };
  PassesFocusOn({&txt_frequency, &txt_wavelength});

  SetDefault(btn_solve_3);
  PrintsWith(btn_print);
  HelpsWith(btn_help);
  ExitsWith(btn_exit);
}

Layout LC_Calculations::Arrangement() {
  return Column(
      {Row({Stretch(), picture_, Stretch()}),
       Form({Row({txt_capacitance, cbo_cap_units}), Row({txt_inductance, cbo_ind_units})}), Rule(),
       Form({Row({txt_frequency, cbo_freq_units}), Row({txt_wavelength, cbo_wavelength_units})}),
       Row({btn_solve_3, Stretch(), btn_print, btn_help, btn_exit})});
}

void LC_Calculations::Load() {
  CalculatorWindow::Load();
  for (Combo* list : {&cbo_cap_units, &cbo_ind_units, &cbo_wavelength_units}) list->Select(0);
  cbo_freq_units.Select(kKilohertz);
  for (Combo* list : {&cbo_cap_units, &cbo_ind_units, &cbo_freq_units, &cbo_wavelength_units})
    list->onSelect = [this] { Solve(); };
}

void LC_Calculations::Solve() {
  const Double C = ToNumber(txt_capacitance) * FactorOf(cbo_cap_units, kCapacitances);
  const Double L = ToNumber(txt_inductance) * FactorOf(cbo_ind_units, kInductances);
  if (C == 0 || L == 0) return;
  const Double f = ResonantFrequency(L, C);
  const Double shown = f * FactorOf(cbo_freq_units, kFrequencies);
  txt_frequency.Show(shown, shown < 1      ? Mask("0.######")
                            : shown < 1000 ? Mask("#.###")
                                           : Mask("#,###,###,###"));
  txt_wavelength.Show(kLight / f * FactorOf(cbo_wavelength_units, kWavelengths), "0.###");
}

}  // namespace korvane
