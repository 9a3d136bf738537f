// Capacitance of parallel plates with a dielectric between them.
#pragma once

#include "frame/calculator_window.h"

namespace korvane {

/// Picofarads, from square inches of one plate and inches between two.
Double PlateCapacitance(Single plates, Single dielectric, Single area, Single separation);

class Plate_Capacitors final : public CalculatorWindow {
 public:
  explicit Plate_Capacitors(Session& session);

  void Load() override;

 private:
  Layout Arrangement() override;

  static void Pair(TextField& inches, TextField& millimeters, double factor);
  void ReadDielectrics();
  void TakeDielectric();
  void ShowIn(const char* caption);
  void Solve();

  Picture picture_;
  TextField txt_plate_area{*this, "txt_plate_area", "Area of One Plate (in2)", "0"};
  TextField txt_plate_area_mm{*this, "txt_plate_area_mm", "=    Area of One Plate (mm2)", "0"};
  TextField txt_plate_separation{*this, "txt_plate_separation", "Plate Separation (in)", "0"};
  TextField txt_plate_separation_mm{*this, "txt_plate_separation_mm",
                                    "=        Plate Separation (mm)", "0"};
  TextField txt_number_of_plates{*this, "txt_number_of_plates", "Number of Plates", "2"};
  TextField txt_dielectric_constant{*this, "txt_dielectric_constant", "Dielectric Constant (K)",
                                    "0"};

  Frame material_{*this, "", "Select Dielectric Material"};
  Combo Combo1{*this, "Combo1", material_};

  OptionGroup unit_{*this, "", "Capacitance"};
  Option opt_pF{unit_, "opt_pF", "pF"};
  Option opt_uF{unit_, "opt_uF", "uF"};

  Label lbl_capacitance{*this, "lbl_capacitance"};
  TextField txt_capacitance{*this, "txt_capacitance", lbl_capacitance};

  Command btn_Solve{*this, "btn_Solve", "Solve"};
  Command btn_print{*this, "btn_print", "Print"};
  Command btn_help{*this, "btn_help", "Help"};
  Command btn_exit{*this, "btn_exit", "Exit"};
};

}  // namespace korvane
