// Capacitors and inductors: energy, reactance and time constant.
#pragma once

#include "frame/calculator_window.h"

namespace korvane {

class RC_Calculations final : public CalculatorWindow {
 public:
  explicit RC_Calculations(Session& session);

  void Load() override;

 private:
  Layout Arrangement() override;

  void SolveCharge();
  void SolveReactance();
  void SolveTime();

  Frame charge_{*this, "", "Charge and Energy"};
  Label charge_is_{*this, "", "Q = C * V"};
  Label energy_is_{*this, "", "W = ( V ^ 2 * C ) / 2"};
  TextField txt_capacitance{*this, "txt_capacitance", "Capacitance (farads)", "0"};
  TextField txt_voltage{*this, "txt_voltage", "Potential (volts)", "0"};
  TextField txt_charge{*this, "txt_charge", "Charge (coulombs)"};
  TextField txt_energy{*this, "txt_energy", "Energy (joules)"};
  Command btn_Solve{*this, "btn_Solve", "Solve"};

  Frame reactance_{*this, "", "Reactance"};
  Label reactance_is_{*this, "", "Xc  =  "};
  Label one_{*this, "", "1"};
  Label divisor_{*this, "", "2 * Pi * f * C"};
  TextField txt_capacitance_2{*this, "txt_capacitance_2", "Capacitance (farads)", "0"};
  TextField txt_frequency{*this, "txt_frequency", "Frequency (hertz)", "0"};
  TextField txt_reactance{*this, "txt_reactance", "Reactance (ohms)"};
  Command btn_solve_2{*this, "btn_solve_2", "Solve"};

  Frame time_{*this, "", "R-C Time Constant and Charge Rate"};
  Label time_is_{*this, "", "t  =  R * C"};
  Label voltage_is_{*this, "", "V(t)  ="};
  Label curve_{*this, "", "E * ( 1 - e ^ ( - t / R * C ) )"};
  TextField txt_resistance{*this, "txt_resistance", "Resistance (ohms)", "0"};
  TextField txt_capacitance_3{*this, "txt_capacitance_3", "Capacitance (farads)", "0"};
  TextField txt_voltage_2{*this, "txt_voltage_2", "Potential (volts)", "0"};
  TextField txt_charging_time{*this, "txt_charging_time", "Charging Time (sec)", "0"};
  TextField txt_RC_time_constant{*this, "txt_RC_time_constant", "Time Constant (sec)"};
  TextField txt_Vt{*this, "txt_Vt", "Voltage (at t sec)"};
  Command btn_solve_3{*this, "btn_solve_3", "Solve"};
  Picture picture_;

  Command Command5{*this, "Command5", "Print"};
  Command Command6{*this, "Command6", "Help"};
  Command Command4{*this, "Command4", "Exit"};
};

class RL_Calculations final : public CalculatorWindow {
 public:
  explicit RL_Calculations(Session& session);

  void Load() override;

 private:
  Layout Arrangement() override;

  void SolveEnergy();
  void SolveReactance();
  void SolveTime();

  Frame energy_{*this, "", "Energy"};
  Label energy_is_{*this, "", "W  =  "};
  Label square_{*this, "", "I ^ 2 * L"};
  Label two_{*this, "", "2"};
  TextField txt_inductance{*this, "txt_inductance", "Inductance (henrys)", "0"};
  TextField txt_current{*this, "txt_current", "Current (amperes)", "0"};
  TextField txt_energy{*this, "txt_energy", "Energy (joules)"};
  Command btn_Solve{*this, "btn_Solve", "Solve"};

  Frame reactance_{*this, "", "Reactance"};
  Label x_{*this, "", "X"};
  Label index_{*this, "", "L"};
  Label equals_{*this, "", "="};
  Label product_{*this, "", "2 * Pi * f * L"};
  TextField txt_inductance_2{*this, "txt_inductance_2", "Inductance (henrys)", "0"};
  TextField txt_frequency{*this, "txt_frequency", "Frequency (hertz)", "0"};
  TextField txt_reactance{*this, "txt_reactance", "Reactance (ohms)"};
  Command btn_solve_2{*this, "btn_solve_2", "Solve"};

  Frame time_{*this, "", "R-L Time Constant and \"Charge\" Rate"};
  Label time_is_{*this, "", "t  =  L / R"};
  Label current_is_{*this, "", "I(t)   ="};
  Label curve_{*this, "", "E / R * ( 1 - e ^ ( - t * R / L ) )"};
  TextField txt_resistance{*this, "txt_resistance", "Resistance (ohms)", "0"};
  TextField txt_inductance_3{*this, "txt_inductance_3", "Inductance (henrys)", "0"};
  TextField txt_voltage{*this, "txt_voltage", "Potential (volts)", "0"};
  TextField txt_charging_time{*this, "txt_charging_time", "\"Charging\" Time (sec)", "0"};
  TextField txt_RL_time_constant{*this, "txt_RL_time_constant", "Time Constant (sec)"};
  TextField txt_It{*this, "txt_It", "Amperage (at t sec)"};
  Command btn_solve_3{*this, "btn_solve_3", "Solve"};
  Picture picture_;

  Command Command5{*this, "Command5", "Print"};
  Command Command6{*this, "Command6", "Help"};
  Command Command4{*this, "Command4", "Exit"};
};

}  // namespace korvane
