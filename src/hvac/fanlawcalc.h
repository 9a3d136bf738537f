// Fan laws: a fan at adjusted conditions from its initial ones. Any one adjusted value gives the
// others.
#pragma once

#include <optional>

#include "frame/calculator_window.h"

namespace korvane {

class FanLawCalc final : public CalculatorWindow {
 public:
  explicit FanLawCalc(Session& session);

 private:
  Layout Arrangement() override;

  void OnAdjusted(TextField& field, bool (FanLawCalc::*follow)());
  bool Has(TextField& initial, const char* quantity);

  // From one adjusted value to the others; false if the initial value that divides is missing.
  bool FollowSpeed();
  bool FollowFlow();
  bool FollowPressure();
  bool FollowPower();
  bool FollowFrequency();
  bool FollowFahrenheit();
  bool FollowCelsius();

  void InitialFlow();
  void InitialFahrenheit();
  void InitialCelsius();

  Double MassOf(Double flow) const;
  void ShowSpeed(Double speed);
  void ShowPressure(Double rise, Single ATR);
  void ShowPower(Double rise, Single ATR);
  void ShowMassFlow(Double flow);
  void ShowMassFlows(Double ATR);
  Double TakeRatio(Double adjusted, Double initial);
  void Clear();

  Label instruction_{
      *this, "", "Enter the initial conditions, then any one adjusted value, and press <ENTER>."};
  Frame initial_{*this, "", "Initial Conditions"};
  TextField rpm1{*this, "rpm1", "Speed", "1725"};
  Label unit_rpm1_{*this, "", "RPM"};
  TextField cfm1{*this, "cfm1", "Flow", {"1000", "0.1"}};
  Label Label3{*this, "Label3", {"cfm", "m3/s"}};
  TextField txt_massflow1{*this, "txt_massflow1", "Mass Flow", {"4500", "432"}};
  Label Label18{*this, "Label18", {"lb/h", "kg/h"}};
  TextField sp1{*this, "sp1", "Static Pressure", {"1", "250"}};
  Label Label4{*this, "Label4", {"in H2O", "Pa"}};
  TextField hp1{*this, "hp1", "Power", {"0.33", "0.25"}};
  Label Label5{*this, "Label5", {"hp", "kW"}};
  TextField Hz1{*this, "Hz1", "Line Frequency", {"60", "50"}};
  Label unit_hz1_{*this, "", "Hz"};
  TextField txt_degf1{*this, "txt_degf1", "Temperature (F)", "70"};
  Label unit_degf1_{*this, "", "Deg.F"};
  TextField txt_degc1{*this, "txt_degc1", "Temperature (C)", "21.1"};
  Label unit_degc1_{*this, "", "Deg.C"};

  Frame adjusted_{*this, "", "Adjusted Conditions"};
  TextField txt_rpm2{*this, "txt_rpm2", "Speed", "1725"};
  Label unit_rpm2_{*this, "", "RPM"};
  TextField txt_cfm2{*this, "txt_cfm2", "Flow"};
  Label Label8{*this, "Label8", {"cfm", "m3/s"}};
  TextField txt_massflow2{*this, "txt_massflow2", "Mass Flow"};
  Label Label17{*this, "Label17", {"lb/h", "kg/h"}};
  TextField txt_sp2{*this, "txt_sp2", "Static Pressure"};
  Label Label9{*this, "Label9", {"in H2O", "Pa"}};
  TextField txt_hp2{*this, "txt_hp2", "Power"};
  Label Label10{*this, "Label10", {"hp", "kW"}};
  TextField txt_hz2{*this, "txt_hz2", "Line Frequency"};
  Label unit_hz2_{*this, "", "Hz"};
  TextField txt_degf2{*this, "txt_degf2", "Temperature (F)", "70"};
  Label unit_degf2_{*this, "", "Deg.F"};
  TextField txt_degc2{*this, "txt_degc2", "Temperature (C)", "21.1"};
  Label unit_degc2_{*this, "", "Deg.C"};
  TextField txt_ATR{*this, "txt_ATR", "Absolute Temperature Ratio", "1"};
  Label unit_ATR_{*this, "", "ATR"};

  Command Command4{*this, "Command4", "Clear"};
  Command Command2{*this, "Command2", "Print"};
  Command Command3{*this, "Command3", "Help"};
  Command Command1{*this, "Command1", "Exit"};

  bool asks_ = false;  // for an initial value: the field that sends the focus there is not left
};

}  // namespace korvane
