// Control valve sizing: the flow coefficient of a valve for a liquid, a gas or steam.
#pragma once

#include <string>
#include <string_view>

#include "frame/calculator_window.h"
#include "frame/us_field.h"

namespace korvane {

/// Volume of saturated steam in ft3/lb at a gauge pressure in psi, between two rows of a table of
/// saturated steam; 0 where no two rows have the pressure between them.
Double SteamVolume(std::string_view table, Double psig);

class Valve_Cv final : public CalculatorWindow {
 public:
  explicit Valve_Cv(Session& session);

  void Load() override;

 private:
  Layout Arrangement() override;

  /// What a choice of fluid makes of the captions.
  struct Captions {
    UnitText flow;
    UnitText gravity;
    UnitText viscosity;
    UnitText temperature;
  };
  void Relabel(const Captions& captions);
  void ChooseLiquid();
  void ChooseGas();
  void ChooseSteam();

  struct Inputs;
  void SolveCv();
  void SolveLiquid(const Inputs& in);
  void SolveGas(const Inputs& in);
  void SolveSteam(const Inputs& in);
  void ShowCv(Double Cv) { txt_Cv.Show(Cv, "0.0000"); }
  /// As text without a mask.
  template <class Number>
  void ShowPressure(UsField& field, Number psi) {
    if (IsMetric())
      field.Show(field.Shown(psi));
    else
      field.Show(psi);
  }

  // The fluid that is chosen gives the captions.
  OptionGroup fluid_{*this, "", "Select Fluid Type"};
  Option opt_liquid{fluid_, "opt_liquid", "Liquid"};
  Option opt_gas{fluid_, "opt_gas", "Gas"};
  Option opt_steam{fluid_, "opt_steam", "Steam"};

  TextField txt_flow{*this, "txt_flow", "", "45"};
  UsField txt_P_in{*this, "txt_P_in", "", {.times = 6.8948}, "50"};
  UsField txt_delta_P{*this, "txt_delta_P", "", {.times = 6.8948}, "5"};
  TextField txt_SG{*this, "txt_SG", "", "1"};
  UsField txt_viscosity{*this, "txt_viscosity", "", {.over = 1000}, "1"};
  TextField txt_temp{*this, "txt_temp", "", "70"};
  UsField txt_P_out{*this, "txt_P_out", "", {.times = 6.8948}, "45"};
  TextField txt_Cv{*this, "txt_Cv", ""};

  Command btn_calc{*this, "btn_calc", "Calculate"};
  Command btn_print{*this, "btn_print", "Print"};
  Command btn_help{*this, "btn_help", "Help"};
  Command btn_exit{*this, "btn_exit", "Exit"};
};

}  // namespace korvane
