// Heat loss from insulated pipes.
#pragma once

#include "frame/calculator_window.h"

namespace korvane {

class Insulated_Pipes final : public CalculatorWindow {
 public:
  explicit Insulated_Pipes(Session& session);

 private:
  Layout Arrangement() override;

  void Calculate();
  void ShowLoss(Double perArea, Double perLength);

  Picture picture_;
  TextField txt_od{*this, "txt_od",
                   UnitText{"Pipe Outside Diameter (in)", "Pipe Outside Diameter (mm)"}, "4.5"};
  TextField txt_insul_thickness{*this, "txt_insul_thickness",
                                UnitText{"Insulation Thickness (in)", "Insulation Thickness (mm)"},
                                "1.5"};
  TextField txt_pipe_temp{*this, "txt_pipe_temp",
                          UnitText{"Pipe Temperature (F)", "Pipe Temperature (C)"}, "215"};
  TextField txt_air_temp{*this, "txt_air_temp",
                         UnitText{"Ambient Air Temperature (F)", "Ambient Air Temperature (C)"},
                         "86"};
  TextField txt_k_value{
      *this, "txt_k_value",
      UnitText{"Insulation k-Value (Btuh/ft2/F/in)", "Insulation k-Value (W/m/K)"}, "0.8"};
  TextField txt_pipe_length{*this, "txt_pipe_length",
                            UnitText{"Length of Pipe (ft)", "Length of Pipe (m)"}, "0"};

  TextField txt_heat_loss_per_area{*this, "txt_heat_loss_per_area",
                                   UnitText{"Heat Loss (Btuh/ft2)", "Heat Loss (W/m2)"}};
  TextField txt_heat_loss{*this, "txt_heat_loss",
                          UnitText{"Heat Loss (Btuh/ft)", "Heat Loss (W/m)"}};
  TextField txt_total_loss{*this, "txt_total_loss",
                           UnitText{"Total Heat Loss (Btuh)", "Total Heat Loss (W)"}};

  Command btn_calc{*this, "btn_calc", "Calculate"};
  Command btn_load{*this, "btn_load", "Load"};
  Command btn_save{*this, "btn_save", "Save"};
  Command btn_print{*this, "btn_print", "Print"};
  Command btn_help{*this, "btn_help", "Help"};
  Command btn_exit{*this, "btn_exit", "Exit"};

  DataFile file;
};

}  // namespace korvane
