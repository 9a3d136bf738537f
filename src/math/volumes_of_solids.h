// Volumes of solids: the dimensions, areas and volumes of twenty solids from what is known.
#pragma once

#include "math/figure_window.h"

namespace korvane {

class Volumes_of_Solids final : public FigureWindow {
 public:
  explicit Volumes_of_Solids(Session& session);

 private:
  Layout Arrangement() override;
  void SelectFigure() override;
  void DrawFigure() override;

  Label lbl_cylinder_P2_note{*this, "lbl_cylinder_P2_note",
                             "NOTE:  \"b\" is positive if the base area is greater than half of "
                             "the base circle and negative if the base area is less than half of "
                             "the base circle."};
  Command Command4{*this, "Command4", "Solve"};
  Command Command1{*this, "Command1", "Clear"};
  Command Command2{*this, "Command2", "Copy  Volume  to  Clipboard"};
  Command btn_print{*this, "btn_print", "Print"};
  Command Command3{*this, "Command3", "Help"};
  Command btn_exit{*this, "btn_exit", "Exit"};
};

}  // namespace korvane
