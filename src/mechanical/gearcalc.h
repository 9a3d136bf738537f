// Spur gears: the tooth dimensions of a full-depth gear from pitch, teeth and pressure angle.
#pragma once

#include "frame/calculator_window.h"

namespace korvane {

class GearCalc final : public CalculatorWindow {
 public:
  explicit GearCalc(Session& session);

  void Load() override;

 private:
  Layout Arrangement() override;

  void RebuildLists();
  void Calculate();
  Double TeethPerUnit() const;
  Double ExtraDepth() const;

  Picture picture_;
  OptionGroup system_{*this, "", "Select Gear System"};
  Option opt_DP{system_, "opt_DP", "Inch Diametral Pitch"};
  Option opt_module{system_, "opt_module", "Metric Module"};
  OptionGroup unit_{*this, "", "Results in"};
  Option opt_inch{unit_, "opt_inch", "Inches"};
  Option opt_mm{unit_, "opt_mm", "Millimeters"};

  Label Label1{*this, "Label1"};
  Combo Combo1{*this, "Combo1", Label1, {}, Combo::Style::Editable};
  TextField txt_teeth{*this, "txt_teeth", "Number of Teeth", "6"};
  Combo Combo2{*this, "Combo2", "Pressure Angle", {}, Combo::Style::Editable};

  TextField txt_pitch_dia{*this, "txt_pitch_dia", "Pitch Diameter"};
  TextField txt_outside_dia{*this, "txt_outside_dia", "Outside Diameter"};
  TextField txt_tooth_thickness{*this, "txt_tooth_thickness", "Tooth Thickness"};
  TextField txt_addendum{*this, "txt_addendum", "Addendum"};
  TextField txt_working_depth{*this, "txt_working_depth", "Working Depth"};
  TextField txt_whole_depth{*this, "txt_whole_depth", "Whole Depth"};
  TextField txt_clearance{*this, "txt_clearance", "Clearance"};
  TextField txt_dedendum{*this, "txt_dedendum", "Dedendum"};
  TextField txt_circular_pitch{*this, "txt_circular_pitch", "Circular Pitch"};
  TextField txt_root_dia{*this, "txt_root_dia", "Root Diameter"};
  TextField txt_base_dia{*this, "txt_base_dia", "Base Circle Diameter"};
  TextField txt_base_pitch{*this, "txt_base_pitch", "Base Pitch"};

  Command Command1{*this, "Command1", "Calculate"};
  Command btn_print{*this, "btn_print", "Print"};
  Command btn_help{*this, "btn_help", "Help"};
  Command btn_exit{*this, "btn_exit", "Exit"};
};

}  // namespace korvane
