// Resonant frequency and wavelength of a tank circuit: a coil and a capacitor.
#pragma once

#include "frame/calculator_window.h"

namespace korvane {

/// Hertz, from henries and farads.
Double ResonantFrequency(Double inductance, Double capacitance);

class LC_Calculations final : public CalculatorWindow {
 public:
  explicit LC_Calculations(Session& session);

  void Load() override;

 private:
  Layout Arrangement() override;

  void Solve();

  Picture picture_;
  Label lbl_cap{*this, "lbl_cap", "Capacitance"}, lbl_ind{*this, "lbl_ind", "Inductance"};
  TextField txt_capacitance{*this, "txt_capacitance", lbl_cap, "0"};
  Combo cbo_cap_units;
  TextField txt_inductance{*this, "txt_inductance", lbl_ind, "0"};
  Combo cbo_ind_units;

  Label lbl_freq{*this, "lbl_freq", "Resonant Frequency"}, lbl_WL{*this, "lbl_WL", "Wavelength"};
  TextField txt_frequency{*this, "txt_frequency", lbl_freq};
  Combo cbo_freq_units;
  TextField txt_wavelength{*this, "txt_wavelength", lbl_WL};
  Combo cbo_wavelength_units;

  Command btn_solve_3{*this, "btn_solve_3", "Solve"};
  Command btn_print{*this, "btn_print", "Print"};
  Command btn_help{*this, "btn_help", "Help"};
  Command btn_exit{*this, "btn_exit", "Exit"};
};

}  // namespace korvane
