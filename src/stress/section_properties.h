// Properties of a section that is given by the points of its outlines.
#pragma once

#include <string>
#include <vector>

#include "frame/calculator_window.h"
#include "frame/entry_grid.h"
#include "stress/outline.h"

namespace korvane {

class Section_Properties final : public CalculatorWindow {
 public:
  explicit Section_Properties(Session& session);

  void Load() override;

 private:
  Layout Arrangement() override;

  std::vector<TextField*> Results();
  void BindRows();
  /// Draws the outlines, shows their section or why there is none.
  void Follow();
  void Show(const PlaneSection& section);
  void ShowMass();
  void Solve();
  void TakeShape();
  std::string Lines() const;
  void AcceptLines(DelimitedReader& reader);

  Label lbl_points{*this, "lbl_points", {"Points (in)", "Points (mm)"}};
  EntryGrid Grid1{*this, "Grid1", lbl_points, {"X", "Y"}};
  Label lbl_rows{*this, "lbl_rows",
                 "An empty row parts outlines.\nAn outline inside another is a hole."};
  Label lbl_paste{*this, "lbl_paste", "Ctrl+V pastes rows of X and Y."};
  Command btn_add{*this, "btn_add", "Add Row"};
  Command btn_outline{*this, "btn_outline", "New Outline"};
  Command btn_insert{*this, "btn_insert", "Insert Row"};
  Command btn_delete{*this, "btn_delete", "Delete Row"};
  Command btn_clear{*this, "btn_clear", "Clear"};
  Command btn_shapes{*this, "btn_shapes", "Shapes..."};
  TextField txt_density{
      *this, "txt_density", UnitText{"Density (lb/in3)", "Density (kg/m3)"}, {"0.2836", "7850"}};

  Picture Picture1{*this, "Picture1", "The outlines to scale, with centroid and principal axes"};
  Label lbl_status{*this, "lbl_status"};

  TextField txt_area{*this, "txt_area", UnitText{"Area (in2)", "Area (mm2)"}};
  TextField txt_perimeter{*this, "txt_perimeter", UnitText{"Perimeter (in)", "Perimeter (mm)"}};
  TextField txt_x{*this, "txt_x", UnitText{"Centroid X (in)", "Centroid X (mm)"}};
  TextField txt_y{*this, "txt_y", UnitText{"Centroid Y (in)", "Centroid Y (mm)"}};
  TextField txt_Ix{*this, "txt_Ix", UnitText{"Ix (in4)", "Ix (mm4)"}};
  TextField txt_Iy{*this, "txt_Iy", UnitText{"Iy (in4)", "Iy (mm4)"}};
  TextField txt_Ixy{*this, "txt_Ixy", UnitText{"Ixy (in4)", "Ixy (mm4)"}};
  TextField txt_I1{*this, "txt_I1", UnitText{"Principal I1 (in4)", "Principal I1 (mm4)"}};
  TextField txt_I2{*this, "txt_I2", UnitText{"Principal I2 (in4)", "Principal I2 (mm4)"}};
  TextField txt_angle{*this, "txt_angle", "Angle of Axis 1 (deg)"};
  TextField txt_polar{*this, "txt_polar", UnitText{"Polar Moment (in4)", "Polar Moment (mm4)"}};
  TextField txt_Sx_top{*this, "txt_Sx_top", UnitText{"Sx Top (in3)", "Sx Top (mm3)"}};
  TextField txt_Sx_bottom{*this, "txt_Sx_bottom", UnitText{"Sx Bottom (in3)", "Sx Bottom (mm3)"}};
  TextField txt_Sy_left{*this, "txt_Sy_left", UnitText{"Sy Left (in3)", "Sy Left (mm3)"}};
  TextField txt_Sy_right{*this, "txt_Sy_right", UnitText{"Sy Right (in3)", "Sy Right (mm3)"}};
  TextField txt_rx{*this, "txt_rx",
                   UnitText{"Radius of Gyration rx (in)", "Radius of Gyration rx (mm)"}};
  TextField txt_ry{*this, "txt_ry",
                   UnitText{"Radius of Gyration ry (in)", "Radius of Gyration ry (mm)"}};
  TextField txt_r_least{*this, "txt_r_least",
                        UnitText{"Least Radius r2 (in)", "Least Radius r2 (mm)"}};
  TextField txt_mass{*this, "txt_mass",
                     UnitText{"Mass per Length (lb/ft)", "Mass per Length (kg/m)"}};

  Command btn_Solve{*this, "btn_Solve", "Solve"};
  Command btn_load{*this, "btn_load", "Load"};
  Command btn_save{*this, "btn_save", "Save"};
  Command btn_print{*this, "btn_print", "Print"};
  Command btn_help{*this, "btn_help", "Help"};
  Command btn_exit{*this, "btn_exit", "Exit"};

  std::vector<Outline> outlines_;
  std::string fault_;  // why they enclose no section
  Double area_;
  DataFile file_;
};

}  // namespace korvane
