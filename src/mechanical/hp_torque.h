// Power and torque: force, radius, torque, speed and power of a turning shaft.
#pragma once

#include "frame/calculator_window.h"

namespace korvane {

class HP_TORQUE final : public CalculatorWindow {
 public:
  explicit HP_TORQUE(Session& session);

 private:
  Layout Arrangement() override;

  void OnEnter(TextField& field, void (HP_TORQUE::*solve)());
  void FromForce();
  void FromRadius();
  void FromTorque();
  void FromSpeed();
  void FromPower();
  void ForceTimesRadius();
  void PowerFromTorque();
  void TorqueFromPower();

  Label instruction_{*this, "", "Enter data and press <ENTER> to force a recalculation."};
  TextField FORCE{*this, "FORCE", UnitText{"Force (lb)", "Force (N)"}, "0"};
  TextField RADIUS{*this, "RADIUS", UnitText{"Radius (in)", "Radius (m)"}, "0"};
  TextField TORQUE{*this, "TORQUE", UnitText{"Torque (in-lb)", "Torque (N-m)"}, "0"};
  TextField RPM{*this, "RPM", "RPM", "0"};
  TextField HP{*this, "HP", UnitText{"Power (hp)", "Power (W)"}, "0"};

  Frame legend_{*this, "", "Formulas"};
  Label torque_by_force_{*this, "", {"T  =  F  x  r", "M  =  F  x  r"}};
  Label torque_is_{*this, "", {"T =", "M  ="}};
  Label power_times_{*this, "", {"P  x  63,025", "P  x  9.55"}};
  Label per_speed_{*this, "", "RPM"};
  Label power_is_{*this, "", "P  ="};
  Label torque_times_{*this, "", {"T  x  RPM", "M  x  RPM"}};
  Label divisor_{*this, "", {"63,025", "9.55"}};
  Label force_{*this, "", {"F  =  Force (lb)", "F  =  Force (N)"}};
  Label radius_{*this, "", {"r  =  Radius (in)", "r  =  Radius (m)"}};
  Label torque_{*this, "", {"T  =  Torque (in-lb)", "M  =  Torque (N-m)"}};
  Label power_{*this, "", {"P  =  Power (hp)", "P  =  Power (W)"}};

  Command Command1{*this, "Command1", "Print"};
  Command btn_help{*this, "btn_help", "Help"};
  Command Command2{*this, "Command2", "Exit"};

  Single F, r, T, rpm, P;  // as read by the last Enter, or solved since
};

}  // namespace korvane
