// Convection coefficient of uninsulated plane surfaces in still or moving air.
#pragma once

#include <optional>

#include "frame/calculator_window.h"

namespace korvane {

/// Heat that a surface gives to air of a speed in ft/s, in btuh/ft2/F. The shape is 1 for a
/// vertical surface; none at exactly 16 ft/s, between the two branches.
std::optional<Double> ConvectionCoefficient(Double fps, double shape);

class convectn final : public CalculatorWindow {
 public:
  explicit convectn(Session& session);

 private:
  Layout Arrangement() override;

  double Shape() const;
  void Calculate();
  void ShowTotal(Double total);

  OptionGroup orientation_{*this, "", "Surface Orientation"};
  Option opt_vert{orientation_, "opt_vert", "Vertical Surface"};
  Option opt_top{orientation_, "opt_top", "Top Surface"};
  Option opt_bottom{orientation_, "opt_bottom", "Bottom Surface"};

  TextField txt_fpm{*this, "txt_fpm", UnitText{"Air Velocity (fpm)", "Air Velocity (m/s)"}, "0"};
  TextField txt_surf_temp{*this, "txt_surf_temp",
                          UnitText{"Surface Temperature (F)", "Surface Temperature (C)"}, "0"};
  TextField txt_ambient_temp{*this, "txt_ambient_temp",
                             UnitText{"Ambient Temperature (F)", "Ambient Temperature (C)"}, "70"};
  TextField txt_sq_ft{*this, "txt_sq_ft",
                      UnitText{"Total Surface Area (ft2)", "Total Surface Area (m2)"}, "1"};

  TextField txt_delta_t{*this, "txt_delta_t",
                        UnitText{"Temperature Differential (F)", "Temperature Differential (C)"}};
  TextField txt_btuh_sf{*this, "txt_btuh_sf",
                        UnitText{"btuh / ft2 / Degree F", "W / m2 / Degree C"}};
  TextField txt_total_btuh{*this, "txt_total_btuh",
                           UnitText{"------->   Total BTUH", "---------->   Total W"}};

  Command btn_calc{*this, "btn_calc", "Calculate"};
  Command Command3{*this, "Command3", "Load"};
  Command Command1{*this, "Command1", "Save"};
  Command btn_print{*this, "btn_print", "Print"};
  Command btn_help{*this, "btn_help", "Help"};
  Command btn_exit{*this, "btn_exit", "Exit"};

  DataFile file;
};

}  // namespace korvane
