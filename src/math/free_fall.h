// Acceleration by gravity: time and speed of a body that falls freely from a height.
#pragma once

#include "frame/calculator_window.h"

namespace korvane {

class Free_Fall final : public CalculatorWindow {
 public:
  explicit Free_Fall(Session& session);

 private:
  Layout Arrangement() override;

  void Solve();

  TextField txt_height{*this, "txt_height", UnitText{"Height (ft)", "Height (m)"}, "1000"};
  TextField txt_seconds{*this, "txt_seconds", "Time (sec)"};
  TextField txt_fps{*this, "txt_fps", UnitText{"Velocity (ft/sec)", "Velocity (m/sec)"}};
  TextField txt_mph{*this, "txt_mph", UnitText{"Velocity (mph)", "Velocity (km/h)"}};

  Command btn_Solve{*this, "btn_Solve", "Solve"};
  Command Command1{*this, "Command1", "Print"};
  Command Command2{*this, "Command2", "Help"};
};

}  // namespace korvane
