#include "hvac/std_atmosphere.h"

namespace korvane {
namespace {

/// A unit in a list, and its factor to feet or feet per second.
struct Unit {
  const char* name;
  double factor;
};

constexpr double kFeetPerMeter = 3.2808;
constexpr double kMilePerHour = 1.4667;  // ft/s

constexpr Unit kAltitudes[] = {{"Feet", 1}, {"Meters", kFeetPerMeter}};
constexpr Unit kSpeeds[] = {{"Feet per Second", 1},
                            {"Miles per Hour", kMilePerHour},
                            {"Knots", 1.1516 * kMilePerHour},
                            {"Meters per Second", kFeetPerMeter},
                            {"Kilometers per Hour", 54.68}};  // a kilometer per minute
constexpr Unit kLengths[] = {{"Feet", 1}, {"Inches", 1.0 / 12}, {"Meters", kFeetPerMeter}};

template <std::size_t N>
std::vector<std::string> NamesOf(const Unit (&units)[N]) {
  std::vector<std::string> names;
  for (const Unit& unit : units) names.emplace_back(unit.name);
  return names;
}

template <std::size_t N>
Double InFeet(const TextField& field, const Combo& combo, const Unit (&units)[N]) {
  return ToNumber(field) * units[static_cast<std::size_t>(combo.Index())].factor;
}

/// A band of the atmosphere, below an altitude in ft.
struct Band {
  int below;
  AirRatios (*at)(Double h);
};

AirRatios Isothermal(double theta, double sigma, double delta, Double u) {
  return {theta, sigma * Exp(u), delta * Exp(u)};
}

constexpr Band kBands[] = {
    {232940,
     [](Double h) {
       return AirRatios{1.434843 - h / 337634, Power(0.79899 - h / 606330, 11.20114),
                        Power(0.838263 - h / 577922, 12.20114)};
     }},
    {167323,
     [](Double h) { return Isothermal(0.939268, 0.00116533, 0.00109456, (h - 154200) / -25992); }},
    {154199,
     [](Double h) {
       return AirRatios{0.482561 + h / 337634, Power(0.857003 + h / 190115, -13.20114),
                        Power(0.898309 + h / 181373, -12.20114)};
     }},
    {104987,
     [](Double h) {
       return AirRatios{0.682457 + h / 945374, Power(0.978261 + h / 659515, -35.16319),
                        Power(0.988626 + h / 652600, -34.16319)};
     }},
    {65617, [](Double h) { return Isothermal(0.751865, 0.297076, 0.223361, (36089 - h) / 20806); }},
    {36089,
     [](Double h) {
       const Double theta = 1 - h / 145442;
       return AirRatios{theta, Power(theta, 4.255876), Power(theta, 5.255876)};
     }},
};

/// Of air at a temperature in Rankine, slug/ft-s, by Sutherland's law.
Double Viscosity(Double T) { return (0.0226968 * Power(T, 1.5) / (T + 198.72)) / 1000000; }

}  // namespace

// Each band that holds is worked out, and the lowest one wins.
AirRatios StandardAir(Double h) {
  AirRatios ratios;
  for (const Band& band : kBands)
    if (h < band.below) ratios = band.at(h);
  return ratios;
}

Std_Atmosphere::Std_Atmosphere(Session& session)
    : CalculatorWindow(session, {.name = "Std_Atmosphere",
                                 .title = "Standard Atmosphere Calculations",
                                 .helpPage = "hvac_standard_atmosphere_data.html"}),
      cbo_alt_units(*this, "cbo_alt_units", "Units of Altitude", NamesOf(kAltitudes)),
      cbo_speed_units(*this, "cbo_speed_units", "Units of Speed", NamesOf(kSpeeds)),
      cbo_length_units(*this, "cbo_length_units", "Units of Length", NamesOf(kLengths)) {
  btn_calc.onClick = cbo_alt_units.onSelect = cbo_speed_units.onSelect =
      cbo_length_units.onSelect = [this] { StandardAtmosphere(); };
  for (Control* control : Controls())
    if (auto* field = dynamic_cast<TextField*>(control); field != nullptr && field->Text().empty())
      field->ShadeAsResult();
  SetDefault(btn_calc);
  PrintsWith(btn_print);
  HelpsWith(btn_help);
  ExitsWith(btn_exit);
}

Layout Std_Atmosphere::Arrangement() {
  const auto row = [this](std::initializer_list<std::pair<TextField*, const char*>> values) {
    std::vector<Layout> cells = {values.begin()->first->CaptionBeside()};
    for (const auto& [field, unit] : values) {
      cells.emplace_back(*field);
      cells.emplace_back(*units_.emplace_back(std::make_unique<Label>(*this, "", unit)));
    }
    return Row(std::move(cells));
  };
  const auto input = [](TextField& field, Combo& units) { return Row({field, units, Stretch()}); };
  return Column({Form({input(txt_altitude, cbo_alt_units), input(txt_speed, cbo_speed_units),
                       input(txt_ref_length, cbo_length_units)}),
                 Rule(),
                 Cells({row({{&txt_temperature, "R"},
                             {&txt_temp_F, "F"},
                             {&txt_temp_C, "C"},
                             {&txt_temp_K, "K"}}),
                        row({{&txt_density, "slug/ft3"},
                             {&txt_lb_per_ft3, "lb/ft3"},
                             {&txt_kg_per_m3, "kg/m3"},
                             {&txt_g_per_cm3, "g/cm3"}}),
                        row({{&txt_pressure, "psi"},
                             {&txt_in_hg, "in.Hg."},
                             {&txt_torr, "torr"},
                             {&txt_atm, "atm"}}),
                        row({{&txt_speed_of_sound, "ft/s"},
                             {&txt_speed_of_sound_mph, "mph"},
                             {&txt_speed_of_sound_kts, "knots"},
                             {&txt_speed_of_sound_mps, "m/s"}}),
                        row({{&txt_viscosity, "slug/ft-s"},
                             {&txt_cp, "cp"},
                             {&txt_Pa_s, "Pa-s"},
                             {&txt_kg_s_m2, "kgf-s/m2"}}),
                        row({{&txt_dynamic_pressure, "lbf/ft2"},
                             {&txt_dynamic_pressure_psi, "psi"},
                             {&txt_dynamic_pressure_Pa, "Pa"},
                             {&txt_dynamic_pressure_inHg, "in.Hg."}})}),
                 Row({Column({Form({txt_mach_number, txt_reynolds_number})}),
                      Column({Form({txt_laminar_cf, txt_turbulent_cf})}),
                      Column({Form({txt_vacuum_cp, txt_critical_cp})})}),
                 Row({btn_calc, Stretch(), btn_print, btn_help, btn_exit})});
}

void Std_Atmosphere::Load() {
  CalculatorWindow::Load();
  for (Combo* units : {&cbo_alt_units, &cbo_speed_units, &cbo_length_units})
    units->SetText(units->Items().front());
  StandardAtmosphere();
}

void Std_Atmosphere::StandardAtmosphere() {
  const Double h = InFeet(txt_altitude, cbo_alt_units, kAltitudes);
  const Double V = InFeet(txt_speed, cbo_speed_units, kSpeeds);
  const Double L = InFeet(txt_ref_length, cbo_length_units, kLengths);
  const AirRatios ratios = StandardAir(h);
  const Double T = ratios.theta * 518.67;
  const Double rho = ratios.sigma * 0.00237689;
  const Double P = ratios.delta * 2116.22;
  const Double mu = Viscosity(T);
  const Double a = Sqrt(2403.184 * T);
  const Double M = V / a;
  const Double q = 0.7 * P * M * M;
  const Double Re = rho * L * V / mu;

  const Double celsius = (T - 459.67 - 32) / 1.8;
  txt_temperature.Show(T, "#.###");
  txt_temp_F.Show(T - 459.67, "#.###");
  txt_temp_C.Show(celsius, "#.###");
  txt_temp_K.Show(celsius + 273.15, "#.###");
  txt_density.Show(rho, "#.#########");
  txt_lb_per_ft3.Show(rho * 515.3788 / 16.01846, "#.######");
  txt_kg_per_m3.Show(rho * 515.3788, "#.######");
  txt_g_per_cm3.Show(rho * 0.5153788, "#.#########");
  txt_pressure.Show(P / 144, "#.######");
  txt_in_hg.Show(P / 144 * 2.0359416126, "#.###");
  txt_torr.Show(P * 47.88026 / 133.3224, "#.###");
  txt_atm.Show(P / 2116.224, "#.#####");
  txt_speed_of_sound.Show(a, "#.###");
  txt_speed_of_sound_mph.Show(a * 3600 / 5280, "#.###");
  txt_speed_of_sound_kts.Show(a * 0.3048 / 0.5144444, "#.###");
  txt_speed_of_sound_mps.Show(a * 0.3048, "#.###");
  txt_viscosity.Show(mu, "#.##########");
  txt_cp.Show(mu * 47880.26, "#.##########");
  txt_Pa_s.Show(mu * 47.88026, "#.##########");
  txt_kg_s_m2.Show(mu * 4.883786, "#.##########");
  txt_mach_number.Show(M, "#.######");
  txt_dynamic_pressure.Show(q, "#.#########");
  txt_dynamic_pressure_psi.Show(q * 0.0069444, "#.#########");
  txt_dynamic_pressure_Pa.Show(q * 47.88, "#.#########");
  txt_dynamic_pressure_inHg.Show(q * 0.006944 * 2.036, "#.#########");
  txt_reynolds_number.Show(Re, "#");
  // Coefficients that nothing works out.
  txt_laminar_cf.ShowUnlessUnset({}, "#.######");
  txt_turbulent_cf.ShowUnlessUnset({}, "#.######");
}

}  // namespace korvane
