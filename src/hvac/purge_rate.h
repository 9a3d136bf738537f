// Inert gas purge rate: the oxygen left in a chamber after a time of purging.
#pragma once

#include "frame/calculator_window.h"

namespace korvane {

class Purge_Rate final : public CalculatorWindow {
 public:
  explicit Purge_Rate(Session& session);

 private:
  Layout Arrangement() override;

  void Solve();

  TextField txt_volume{*this, "txt_volume", UnitText{"Chamber Volume (ft3)", "Chamber Volume (m3)"},
                       "1100"};
  TextField txt_flow_rate{*this, "txt_flow_rate",
                          UnitText{"Inert Gas Flow Rate (cfm)", "Inert Gas Flow Rate (m3/sec)"},
                          "100"};
  TextField txt_initial_conc{*this, "txt_initial_conc", "Initial O2 Concentration (%)", "0"};
  TextField txt_purge_time{*this, "txt_purge_time", "Purge Time (min)", "60"};
  TextField txt_oxygen_conc{*this, "txt_oxygen_conc", "Oxygen Concentration (%)"};

  Command btn_solve{*this, "btn_solve", "Solve"};
  Command btn_print{*this, "btn_print", "Print"};
  Command btn_help{*this, "btn_help", "Help"};
  Command btn_exit{*this, "btn_exit", "Exit"};
};

}  // namespace korvane
