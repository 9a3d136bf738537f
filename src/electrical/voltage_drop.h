// Voltage drop: what a run of wire loses of the line voltage.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "frame/calculator_window.h"

namespace korvane {

/// A size of wire as the file lists it: a number in the series of the American Wire Gauge, which
/// goes below 0 for what is thicker than No. 0, and the name that people choose it by.
struct WireGauge {
  std::string number;
  std::string label;
};

/// The records of "conductors.dat" below its first line; more than 65 fail.
std::vector<WireGauge> ParseWireGauges(std::string_view bytes);

class voltage_drop final : public CalculatorWindow {
 public:
  explicit voltage_drop(Session& session);

  void Load() override;

 private:
  Layout Arrangement() override;

  void TakeMaterial(const char* k);
  void GaugeChanged();
  void ComputeDrop();

  Combo cmb_gauge{*this, "cmb_gauge", "Wire Gauge"};
  Combo cmb_voltage;
  TextField txt_length{*this, "txt_length", "Length (ft)", "100"};
  TextField txt_length_m{*this, "txt_length_m", "Length (m)", "304.8"};
  TextField txt_k{*this, "txt_k", "K (ohm/cir.mil-ft)", "12.9"};
  TextField txt_k2{*this, "txt_k2", "=     K (micro-ohm/cm)"};
  TextField txt_amps{*this, "txt_amps", "Current (amperes)"};

  OptionGroup power_type_{*this, "", "Power Type"};
  Option opt_single_phase{power_type_, "opt_single_phase", "Single Phase (2 or 3-wire)"};
  Option opt_three_phase{power_type_, "opt_three_phase", "Three Phase"};
  OptionGroup material_{*this, "", "Conductor Material"};
  Option opt_copper{material_, "opt_copper", "Copper (12.9 ohm/cir.mil-ft)"};
  Option opt_aluminum{material_, "opt_aluminum", "Aluminum (21.2 ohm/cir.mil-ft)"};

  TextField txt_circ_mils{*this, "txt_circ_mils", "Area (Circular Mils)"};
  TextField txt_mm2{*this, "txt_mm2", "=               Area (mm2)"};
  TextField txt_optf{*this, "txt_optf", "Ohms per 1000 feet"};
  TextField txt_opkm{*this, "txt_opkm", "=            Ohms per km"};
  TextField txt_drop{*this, "txt_drop", "Voltage Drop"};
  TextField txt_percent{*this, "txt_percent", "Percent Drop"};

  Command btn_calc{*this, "btn_calc", "Calculate"};
  Command btn_print{*this, "btn_print", "Print"};
  Command btn_help{*this, "btn_help", "Help"};
  Command btn_exit{*this, "btn_exit", "Exit"};

  std::vector<WireGauge> gauges_;
};

}  // namespace korvane
