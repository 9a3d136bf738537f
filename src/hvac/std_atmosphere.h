// The standard atmosphere at an altitude, and what a body moving through it meets.
#pragma once

#include <memory>
#include <vector>

#include "frame/calculator_window.h"

namespace korvane {

/// Ratios to the values at sea level.
struct AirRatios {
  Double theta = 1;  ///< temperature
  Double sigma = 1;  ///< density
  Double delta = 1;  ///< pressure
};

/// By the bands of the U.S. Standard Atmosphere 1976, at an altitude in ft; at 232,940 ft and above
/// the values at sea level.
AirRatios StandardAir(Double h);

class Std_Atmosphere final : public CalculatorWindow {
 public:
  explicit Std_Atmosphere(Session& session);

  void Load() override;

 private:
  Layout Arrangement() override;

  void StandardAtmosphere();

  TextField txt_altitude{*this, "txt_altitude", "Altitude", "0"};
  Combo cbo_alt_units;
  TextField txt_speed{*this, "txt_speed", "Speed", "1"};
  Combo cbo_speed_units;
  TextField txt_ref_length{*this, "txt_ref_length", "Reference Length", "1"};
  Combo cbo_length_units;

  // Each quantity in all its units, which stand behind the fields.
  TextField txt_temperature{*this, "txt_temperature", "Temperature"};
  TextField txt_temp_F{*this, "txt_temp_F", "Temperature (F)"};
  TextField txt_temp_C{*this, "txt_temp_C", "Temperature (C)"};
  TextField txt_temp_K{*this, "txt_temp_K", "Temperature (K)"};
  TextField txt_density{*this, "txt_density", "Density"};
  TextField txt_lb_per_ft3{*this, "txt_lb_per_ft3", "Density (lb/ft3)"};
  TextField txt_kg_per_m3{*this, "txt_kg_per_m3", "Density (kg/m3)"};
  TextField txt_g_per_cm3{*this, "txt_g_per_cm3", "Density (g/cm3)"};
  TextField txt_pressure{*this, "txt_pressure", "Pressure"};
  TextField txt_in_hg{*this, "txt_in_hg", "Pressure (in.Hg.)"};
  TextField txt_torr{*this, "txt_torr", "Pressure (torr)"};
  TextField txt_atm{*this, "txt_atm", "Pressure (atm)"};
  TextField txt_speed_of_sound{*this, "txt_speed_of_sound", "Speed of Sound"};
  TextField txt_speed_of_sound_mph{*this, "txt_speed_of_sound_mph", "Speed of Sound (mph)"};
  TextField txt_speed_of_sound_kts{*this, "txt_speed_of_sound_kts", "Speed of Sound (knots)"};
  TextField txt_speed_of_sound_mps{*this, "txt_speed_of_sound_mps", "Speed of Sound (m/s)"};
  TextField txt_viscosity{*this, "txt_viscosity", "Viscosity"};
  TextField txt_cp{*this, "txt_cp", "Viscosity (cp)"};
  TextField txt_Pa_s{*this, "txt_Pa_s", "Viscosity (Pa-s)"};
  TextField txt_kg_s_m2{*this, "txt_kg_s_m2", "Viscosity (kgf-s/m2)"};
  TextField txt_mach_number{*this, "txt_mach_number", "Mach Number"};
  TextField txt_dynamic_pressure{*this, "txt_dynamic_pressure", "Dynamic Pressure"};
  TextField txt_dynamic_pressure_psi{*this, "txt_dynamic_pressure_psi", "Dynamic Pressure (psi)"};
  TextField txt_dynamic_pressure_Pa{*this, "txt_dynamic_pressure_Pa", "Dynamic Pressure (Pa)"};
  TextField txt_dynamic_pressure_inHg{*this, "txt_dynamic_pressure_inHg",
                                      "Dynamic Pressure (in.Hg.)"};
  TextField txt_reynolds_number{*this, "txt_reynolds_number", "Reynolds Number"};
  TextField txt_laminar_cf{*this, "txt_laminar_cf", "Laminar Friction Coefficient"};
  TextField txt_turbulent_cf{*this, "txt_turbulent_cf", "Turbulent Friction Coefficient"};
  TextField txt_vacuum_cp{*this, "txt_vacuum_cp", "Vacuum Pressure Coefficient"};
  TextField txt_critical_cp{*this, "txt_critical_cp", "Critical Pressure Coefficient"};
  std::vector<std::unique_ptr<Label>> units_;

  Command btn_calc{*this, "btn_calc", "Calculate"};
  Command btn_print{*this, "btn_print", "Print"};
  Command btn_help{*this, "btn_help", "Help"};
  Command btn_exit{*this, "btn_exit", "Exit"};
};

}  // namespace korvane
