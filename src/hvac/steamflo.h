// Steam pipe sizing: the flow through a steam pipe from its diameter, and backwards.
#pragma once

#include "frame/calculator_window.h"
#include "frame/us_field.h"

namespace korvane {

/// A steam pipe; pounds, feet and psi.
struct SteamPipe {
  Single density;  ///< lb/ft3
  Single drop;     ///< psi
  Single length;   ///< ft
};

/// lb/h through an inside diameter in inches, by Babcock's formula.
Double SteamFlow(const SteamPipe& pipe, Double d);

/// Steps the inside diameter from 0.25 to 12 in by thousandths until it carries the flow in lb/h,
/// and tells `see` each one; a step past 12 if none does.
template <class See>
Double StepToSteamFlow(const SteamPipe& pipe, Single wanted, See see) {
  constexpr double thinnest = 0.25, step = 0.001;
  constexpr int thickest = 12;
  Double d = thinnest;
  for (; d <= thickest; d += step) {
    see(d);
    if (SteamFlow(pipe, d) >= wanted) break;
  }
  return d;
}

class steamflo final : public CalculatorWindow {
 public:
  explicit steamflo(Session& session);

 private:
  Layout Arrangement() override;

  SteamPipe Pipe() const;
  void SolveSteamFlow();
  void SolveSteamFlowUs();
  void SolveSteamDiameter();
  void ShowSteamTable();

  UsField txt_length{*this,
                     "txt_length",
                     UnitText{"Length of Pipe (ft)", "Length of Pipe (m)"},
                     {.over = 3.2808},
                     "100"};
  UsField txt_dia{*this,
                  "txt_dia",
                  UnitText{"Inside Diameter (in)", "Inside Diameter (mm)"},
                  {.times = 25.4},
                  "1.049"};
  UsField txt_density{*this,
                      "txt_density",
                      UnitText{"Steam Density (lb/ft3)", "Steam Density (kg/m3)"},
                      {.times = 16.018},
                      ".023"};
  UsField txt_pressure_drop{*this,
                            "txt_pressure_drop",
                            UnitText{"Pressure Drop (psi)", "Pressure Drop (MPa)"},
                            {.over = 145},
                            "1"};
  UsField txt_flow{
      *this, "txt_flow", UnitText{"Flow Rate (lb/h)", "Flow Rate (kg/h)"}, {.over = 2.2046}};

  Command btn_calc{*this, "btn_calc", "Calculate"};
  Command Command1{*this, "Command1", "Pipe Data"};
  Command Command2{*this, "Command2", "Steam Table"};
  Command btn_print{*this, "btn_print", "Print"};
  Command btn_help{*this, "btn_help", "Help"};
  Command btn_exit{*this, "btn_exit", "Exit"};
};

}  // namespace korvane
