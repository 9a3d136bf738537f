// Blower wheel selection: the wheels that give a flow at a static pressure, with the speed and
// power of each.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "frame/calculator_window.h"
#include "frame/us_field.h"
#include "hvac/blower_wheels.h"

namespace korvane {

class BLOWERS final : public CalculatorWindow {
 public:
  explicit BLOWERS(Session& session);

  void Load() override;

 private:
  Layout Arrangement() override;

  /// A wheel of the catalogue by its place there, and how it fulfils the duty.
  struct Candidate {
    int wheel;
    FanOperation operation;
  };

  /// A field that makes no sense, and why.
  struct Refusal {
    TextField* field;
    const char* message;
  };

  void Calculate();
  void ChooseWheel();
  std::optional<Refusal> ReadDuty();
  void Clear();
  void RankWheels();
  void TakeCandidate();
  void ShowWheel();
  void ShowOperation(const BlowerWheel& wheel, const FanOperation& operation);
  void ClearResults();
  Drawing Curve(const BlowerWheel& wheel, const FanOperation& operation) const;
  const BlowerWheel& At(int wheel) const { return wheels_[static_cast<std::size_t>(wheel)]; }
  std::string Size(Double inches) const;
  std::string NameOf(const BlowerWheel& wheel) const;
  std::string RowOf(const Candidate& candidate) const;
  Double Shown(Double value, double metricFactor) const;

  UsField txt_flow{*this,
                   "txt_flow",
                   UnitText{"Flow (cfm)", "Flow (m3/h)"},
                   {.times = 1.699},
                   UnitText{"5000", "8500"}};
  UsField txt_pressure{*this,
                       "txt_pressure",
                       UnitText{"Static Pressure (in WG)", "Static Pressure (Pa)"},
                       {.times = 249.089},
                       UnitText{"3", "750"}};
  TextField txt_temperature{*this, "txt_temperature",
                            UnitText{"Air Temperature (F)", "Air Temperature (C)"},
                            UnitText{"70", "20"}};
  UsField txt_altitude{
      *this, "txt_altitude", UnitText{"Altitude (ft)", "Altitude (m)"}, {.times = 0.3048}, "0"};
  Combo cmb_wheel{*this, "cmb_wheel", "Wheel"};
  ListBox lst_ranking{*this, "lst_ranking", "Ranking by Power"};

  Label lbl_wheel{*this, "lbl_wheel"};
  Label lbl_fit{*this, "lbl_fit"};
  TextField txt_density{*this, "txt_density",
                        UnitText{"Air Density (lb/ft3)", "Air Density (kg/m3)"}};
  TextField txt_speed{*this, "txt_speed", "Speed (rpm)"};
  TextField txt_largest_speed{*this, "txt_largest_speed", "Largest Speed (rpm)"};
  TextField txt_tip_speed{*this, "txt_tip_speed",
                          UnitText{"Tip Speed (ft/min)", "Tip Speed (m/s)"}};
  TextField txt_power{*this, "txt_power", UnitText{"Power (hp)", "Power (kW)"}};
  TextField txt_efficiency{*this, "txt_efficiency", "Static Efficiency (%)"};
  Picture picture_;
  Label sample_{*this, "", "The wheels are sample data, made up: they are no maker's."};

  Command btn_calculate{*this, "btn_calculate", "Calculate"};
  Command Command3{*this, "Command3", "Load"};
  Command Command2{*this, "Command2", "Save"};
  Command btn_print{*this, "btn_print", "Print"};
  Command btn_help{*this, "btn_help", "Help"};
  Command btn_exit{*this, "btn_exit", "Exit"};

  std::vector<BlowerWheel> wheels_;
  FanDuty duty_;
  std::vector<Candidate> ranking_;  // of the duty, the best first; empty without one
  bool walking_ = false;            // code moves the selection in the ranking
  DataFile file;
};

}  // namespace korvane
