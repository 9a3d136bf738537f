// Areas of plane figures: the dimensions and areas of fifteen figures from what is known.
#pragma once

#include "math/figure_window.h"

namespace korvane {

class Areas final : public FigureWindow {
 public:
  explicit Areas(Session& session);

 private:
  Layout Arrangement() override;
  void DrawFigure() override;

  Command Command3{*this, "Command3", "Solve"};
  Command Command1{*this, "Command1", "Clear"};
  Command Command2{*this, "Command2", "Copy  Area  to  Clipboard"};
  Command btn_print{*this, "btn_print", "Print"};
  Command Command4{*this, "Command4", "Help"};
  Command btn_exit{*this, "btn_exit", "Exit"};
};

}  // namespace korvane
