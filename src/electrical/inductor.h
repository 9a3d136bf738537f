// Single-layer air coil: turns from inductance or inductance from turns, wire and resistance.
#pragma once

#include <string>

#include "frame/calculator_window.h"
#include "frame/us_field.h"

namespace korvane {

/// Wheeler's formula: microhenries of a coil of the given radius and length in inches.
Double CoilInductance(Double radius, Double length, Double turns);
/// The same, solved for the turns.
Double CoilTurns(Double radius, Double length, Double inductance);

class inductor final : public CalculatorWindow {
 public:
  explicit inductor(Session& session);

  void Load() override;

 private:
  Layout Arrangement() override;

  void SolvesFrom(TextField& field, const char* mode);
  void SolveInMode();
  void Solve();
  void ChooseWire(Double pitch);
  void ShowWire(int gauge);

  Picture picture_;
  UsField txt_coil_length{*this,
                          "txt_coil_length",
                          UnitText{"Coil Length (in)", "Coil Length (mm)"},
                          {.times = 25.4},
                          "0"};
  UsField txt_coil_dia{*this,
                       "txt_coil_dia",
                       UnitText{"Coil Diameter (in)", "Coil Diameter (mm)"},
                       {.times = 25.4},
                       "0"};
  TextField txt_turns{*this, "txt_turns", "Number of Turns", "0"};
  TextField txt_inductance{*this, "txt_inductance", "Inductance (uH)", "0"};

  Label heading_{*this, "", UnitText{"AWG     Dia (in)", "AWG     Dia (mm)"}};
  Combo cmb_gauge;
  Label listedDia_{*this, ""};  // the rest of the list's line: the diameter with all its places
  TextField txt_wire_dia{*this, "txt_wire_dia",
                         UnitText{"Wire Diameter (in)", "Wire Diameter (mm)"}, ".0201"};
  TextField txt_ohms_per_foot{*this, "txt_ohms_per_foot",
                              UnitText{"Resistance (ohms/ft)", "Resistance (ohms/m)"}};

  TextField txt_wire_length{*this, "txt_wire_length",
                            UnitText{"Wire Length (ft)", "Wire Length (m)"}};
  TextField txt_resistance{*this, "txt_resistance", "Coil Resistance (ohms)"};

  Command btn_calc{*this, "btn_calc", "Solve"};
  Command btn_print{*this, "btn_print", "Print"};
  Command btn_help{*this, "btn_help", "Help"};
  Command btn_exit{*this, "btn_exit", "Exit"};

  std::string SolveMode;  // what is given: "turns" or "inductance"; empty until one is
};

}  // namespace korvane
