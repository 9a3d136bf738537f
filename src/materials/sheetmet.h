// Weight of sheet metal by gauge or thickness, and the length that a weight makes.
#pragma once

#include <string>
#include <vector>

#include "frame/calculator_window.h"
#include "materials/sheet_gauges.h"

namespace korvane {

class SheetMet final : public CalculatorWindow {
 public:
  explicit SheetMet(Session& session);

  void Load() override;

 private:
  Layout Arrangement() override;

  const SheetMaterial& Material() const;
  void ListGauges();
  void SelectBasis();
  /// Thickness and weight by area, as the gauge or the typed thickness has them.
  void ShowSheet();
  void Calculate();
  void SolveLength(const TextField& weight);
  void ShowWeights(const TextField* given);

  Combo cmb_material{*this, "cmb_material", "Material"};
  OptionGroup Frame1{*this, "Frame1", "Thickness"};
  Option opt_gauge{Frame1, "opt_gauge", "By Gauge"};
  Option opt_thickness{Frame1, "opt_thickness", "Typed"};
  Combo cmb_gauge{*this, "cmb_gauge", "Gauge Number"};
  TextField txt_thickness{*this, "txt_thickness", UnitText{"Thickness (in)", "Thickness (mm)"}};
  TextField txt_width{*this, "txt_width", UnitText{"Width (in)", "Width (mm)"}, {"48", "1000"}};
  TextField txt_length{*this, "txt_length", UnitText{"Length (in)", "Length (mm)"}, {"96", "2000"}};
  TextField txt_quantity{*this, "txt_quantity", "Quantity", "1"};
  Picture picture_;

  TextField txt_weight_by_area{*this, "txt_weight_by_area",
                               UnitText{"Weight by Area (lb/ft2)", "Weight by Area (kg/m2)"}};
  TextField txt_area{*this, "txt_area", UnitText{"Area per Piece (ft2)", "Area per Piece (m2)"}};
  TextField txt_weight_per_piece{*this, "txt_weight_per_piece",
                                 UnitText{"Weight per Piece (lb)", "Weight per Piece (kg)"}};
  TextField txt_total_weight{*this, "txt_total_weight",
                             UnitText{"Total Weight (lb)", "Total Weight (kg)"}};
  Label lbl_back{*this, "lbl_back", "Enter in a weight finds the length."};

  Command btn_calculate{*this, "btn_calculate", "Calculate"};
  Command btn_print{*this, "btn_print", "Print"};
  Command btn_help{*this, "btn_help", "Help"};
  Command btn_exit{*this, "btn_exit", "Exit"};

  std::string table_, metricTable_;  // the bytes of the gauges
  std::vector<SheetGauge> gauges_;   // of the material that is chosen, as listed
  std::string gauge_ = "16";         // chosen last: taken again where a material has it
  Double weightByArea_;
};

}  // namespace korvane
