// Temperature inside an electrical cabinet that a fan or its surface cools.
#pragma once

#include <initializer_list>

#include "frame/calculator_window.h"

namespace korvane {

class Enclosure_Cooling final : public CalculatorWindow {
 public:
  explicit Enclosure_Cooling(Session& session);

  void Load() override;

 private:
  Layout Arrangement() override;

  void FollowOptions();
  void SolveOpenLoop();
  void SolveClosedLoop();

  // The formulas know F, inches and cubic feet per minute only.
  Double Fahrenheit(const TextField& field) const;
  Double Inches(const TextField& field) const;
  void ShowRise(TextField& rise, TextField& inside, const TextField& ambient, Double dT);
  Double DegreesShown(Double fahrenheit) const;

  OptionGroup open_{*this, "", "Open Loop - Fan Cooling"};
  Option opt_air_flow{open_, "opt_air_flow", "Solve for Required Air Flow Rate"};
  Option opt_delta_T{open_, "opt_delta_T", "Solve for Temperature Rise"};
  ControlArray<Label> captions1_{*this, "lbl_1", 0, 4};
  ControlArray<TextField> Text1{*this, "Text1", 0, 4, captions1_};
  Command btn_solve{*this, "btn_solve", "Solve"};

  OptionGroup closed_{*this, "", "Closed Loop - Convection Cooling"};
  Option opt_temp_rise{closed_, "opt_temp_rise", "Solve for Temperature Rise"};
  Option opt_max_power{closed_, "opt_max_power", "Solve for Power Dissipation"};
  TextField txt_width{*this, "txt_width", UnitText{"Cabinet Width (in)", "Cabinet Width (mm)"},
                      "48"};
  TextField txt_height{*this, "txt_height", UnitText{"Cabinet Height (in)", "Cabinet Height (mm)"},
                       "36"};
  TextField txt_depth{*this, "txt_depth", UnitText{"Cabinet Depth (in)", "Cabinet Depth (mm)"},
                      "16"};
  TextField txt_area{*this, "txt_area",
                     UnitText{"Cabinet Surface Area (ft2)", "Cabinet Surface Area (m2)"}};
  CheckBox chk_painted{*this, "chk_painted", "Enclosure is Painted or Non-Metalic"};
  CheckBox chk_internal_fan{*this, "chk_internal_fan", "Internal Recirculation Fan"};
  ControlArray<Label> captions2_{*this, "lbl_2", 0, 3};
  ControlArray<TextField> Text2{*this, "Text2", 0, 3, captions2_};
  Command btn_solve_2{*this, "btn_solve_2", "Solve"};

  Frame notes_{*this, "", "Notes"};
  Label note_{*this, "",
              "Internal recirculation fans in closed boxes can improve dissipation by up to 10%.  "
              "Painted and non-metalic boxes improve dissipation by 50% over bare metal. For 60 Hz "
              "fans operating at 50 Hz, flow rates are reduced by about 10%."};

  Command btn_print{*this, "btn_print", "Print"};
  Command btn_help{*this, "btn_help", "Help"};
  Command btn_exit{*this, "btn_exit", "Exit"};
};

}  // namespace korvane
