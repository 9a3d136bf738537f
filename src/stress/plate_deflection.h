// Flat plates: bending stress and center deflection of a rectangular or circular plate.
#pragma once

#include "frame/calculator_window.h"

namespace korvane {

struct FlatPlate;
struct PlateUnits;

class Plate_Deflection final : public CalculatorWindow {
 public:
  explicit Plate_Deflection(Session& session);

  void Load() override;

 private:
  Layout Arrangement() override;

  void ChooseShape();
  void ChooseLoad();
  void Solve();
  void SolvePlateUS();
  void SolvePlateMetric();
  void SolvePlate(const PlateUnits& units);
  void ShowLoad(TextField& load, Double value);
  template <class Area>
  void SolveLoads(const FlatPlate& plate, const PlateUnits& units, Area area);
  template <class Total>
  void ShowResults(const FlatPlate& plate, const PlateUnits& units, Total P, Double q);

  Label longSide_{*this, "", {"Long Side (in)", "Long Side (mm)"}};
  Label shortSide_{*this, "", {"Short Side (in)", "Short Side (mm)"}};
  Label unitLoad_{*this, "", {"Unit Load on Plate (lbs/in2)", "Unit Load on Plate (kPa)"}};
  TextField txt_long_side{*this, "txt_long_side", longSide_, {"18", "457.2"}};
  TextField txt_short_side{*this, "txt_short_side", shortSide_, {"18", "457.2"}};
  TextField txt_thickness{*this,
                          "txt_thickness",
                          UnitText{"Plate Thickness (in)", "Plate Thickness (mm)"},
                          {"0.157", "4"}};
  TextField txt_E{*this,
                  "txt_E",
                  UnitText{"Elastic Modulus (psi)", "Elastic Modulus (MPa)"},
                  {"30000000", "206841"}};
  TextField txt_mu{*this, "txt_mu", "Poisson's Ratio (mu)", "0.3"};
  TextField txt_total_load{*this,
                           "txt_total_load",
                           UnitText{"Total Load on Plate (lbs)", "Total Load on Plate (N)"},
                           {"100", "444.5"}};
  TextField txt_unit_load{*this, "txt_unit_load", unitLoad_};

  OptionGroup Frame1{*this, "Frame1", "Plate Type"};
  Option opt_rectangular{Frame1, "opt_rectangular", "Square or Rectangular"};
  Option opt_circular{Frame1, "opt_circular", "Circular"};
  OptionGroup Frame2{*this, "Frame2", "Edge Support Type"};
  Option opt_simple{Frame2, "opt_simple", "Simply Supported"};
  Option opt_fixed{Frame2, "opt_fixed", "Fully Fixed"};
  OptionGroup Frame3{*this, "Frame3", "Load Type"};
  Option opt_uniform{Frame3, "opt_uniform", "Uniformly Distributed"};
  Option opt_concentrated{Frame3, "opt_concentrated", "Concentrated at Center"};
  Picture picture_{*this, "", "The plate from above, and in section with its load and support"};

  TextField txt_area{*this, "txt_area", UnitText{"Plate Area (in2)", "Plate Area (m2)"}};
  TextField txt_stress{*this, "txt_stress",
                       UnitText{"Bending Stress (psi)", "Bending Stress (MPa)"}};
  TextField txt_deflection{*this, "txt_deflection", UnitText{"Deflection (in)", "Deflection (mm)"}};

  Command btn_Solve{*this, "btn_Solve", "Solve"};
  Command txt_load{*this, "txt_load", "Load"};
  Command txt_save{*this, "txt_save", "Save"};
  Command txt_print{*this, "txt_print", "Print"};
  Command txt_help{*this, "txt_help", "Help"};

  // A load that is typed wipes the other, one that is written does not.
  bool typesTotal_ = false;
  bool typesUnit_ = false;
  bool writesLoad_ = false;
  DataFile file;
};

}  // namespace korvane
