// Pipe bursting: bursting and working pressure of a pipe or tube by three formulas.
#pragma once

#include "frame/calculator_window.h"

namespace korvane {

class Pipe_Bursting_Pressure final : public CalculatorWindow {
 public:
  explicit Pipe_Bursting_Pressure(Session& session);

  void Load() override;

 private:
  Layout Arrangement() override;

  void Calculate();

  TextField txt_OD{*this, "txt_OD", UnitText{"Outside Dia (in)", "Outside Dia (mm)"}, "0"};
  TextField txt_wall{*this, "txt_wall", UnitText{"Wall Thickness (in)", "Wall Thickness (mm)"},
                     "0"};
  TextField txt_strength{*this, "txt_strength",
                         UnitText{"Material Strength (psi)", "Material Strength (kPa)"}, "50000"};
  TextField txt_SF{*this, "txt_SF", "Safety Factor", "4"};
  OptionGroup formula_{*this, "", "Select Formula"};
  Option opt_barlow{formula_, "opt_barlow", "Barlow"};
  Option opt_boardman{formula_, "opt_boardman", "Boardman"};
  Option opt_lame{formula_, "opt_lame", "Lame"};
  Picture picture_;
  TextField txt_working_pressure{*this, "txt_working_pressure",
                                 UnitText{"Working Pressure (psi)", "Working Pressure (kPa)"}};
  TextField txt_burst_pressure{*this, "txt_burst_pressure",
                               UnitText{"Bursting Pressure (psi)", "Bursting Pressure (kPa)"}};

  Command Calc{*this, "Calc", "Calculate"};
  Command Command3{*this, "Command3", "Print"};
  Command Command4{*this, "Command4", "Help"};
  Command Command2{*this, "Command2", "Exit"};
};

}  // namespace korvane
