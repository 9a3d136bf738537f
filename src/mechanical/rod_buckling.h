// Rod buckling: Euler's buckling load of a cylinder's rod, and a safe load.
#pragma once

#include "frame/calculator_window.h"

namespace korvane {

class Rod_Buckling_Calc final : public CalculatorWindow {
 public:
  explicit Rod_Buckling_Calc(Session& session);

  void Load() override;

 private:
  Layout Arrangement() override;

  void Choose(int mounting);
  void Highlight(int mounting);
  void Calculate();

  TextField txt_dia{
      *this, "txt_dia", UnitText{"Rod Diameter (in)", "Rod Diameter (mm)"}, {"1", "25.4"}};
  TextField txt_length{
      *this, "txt_length", UnitText{"Stroke Length (in)", "Stroke Length (mm)"}, {"39.37", "1000"}};
  TextField txt_E{*this,
                  "txt_E",
                  UnitText{"Elastic Modulus (psi)", "Elastic Modulus (MPa)"},
                  {"29000000", "199587"}};
  TextField txt_SF{*this, "txt_SF", "Safety Factor", "5"};
  TextField txt_GF{*this, "txt_GF", "Geometry Factor", "1.0"};
  TextField txt_buckling_load{*this, "txt_buckling_load",
                              UnitText{"Buckling Load (lbf)", "Buckling Load (N)"}};
  TextField txt_safe_load{*this, "txt_safe_load", UnitText{"Safe Load (lbf)", "Safe Load (N)"}};

  Frame geometry_{*this, "", "Select Mounting Geometry Factor"};
  ControlArray<Command> btn_geometry;
  int chosen_ = 0;

  Command btn_calculate{*this, "btn_calculate", "Calculate"};
  Command btn_load{*this, "btn_load", "Load"};
  Command btn_save{*this, "btn_save", "Save"};
  Command btn_print{*this, "btn_print", "Print"};
  Command btn_help{*this, "btn_help", "Help"};
  Command btn_exit{*this, "btn_exit", "Exit"};

  DataFile file;
};

}  // namespace korvane
