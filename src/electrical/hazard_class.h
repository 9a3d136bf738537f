// Hazardous locations as the National Electrical Code sorts them: a text to read.
#pragma once

#include "frame/calculator_window.h"

namespace korvane {

class Hazard_Class final : public CalculatorWindow {
 public:
  explicit Hazard_Class(Session& session);

  void Load() override;

 private:
  Layout Arrangement() override;

  TextField Text1{*this, "Text1", "NEC Hazardous Location Classifications"};
  Command btn_print{*this, "btn_print", "Print"};
  Command btn_help{*this, "btn_help", "Help"};
  Command btn_exit{*this, "btn_exit", "Exit"};
};

}  // namespace korvane
