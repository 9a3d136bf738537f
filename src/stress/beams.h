// Beams I: deflection and stress of a single span under one load.
#pragma once

#include "frame/calculator_window.h"

namespace korvane {

class beams final : public CalculatorWindow {
 public:
  explicit beams(Session& session);

  void Load() override;

 private:
  Layout Arrangement() override;

  struct Case;
  const Case& ChosenCase() const;
  void FollowBeamType();
  void ComputeBeam();
  void ShowTorque(int divisor);

  TextField L{*this, "L", UnitText{"Span Length (in)", "Span Length (mm)"}};
  TextField W{*this, "W", UnitText{"Total Load (lb)", "Total Load (N)"}};
  TextField I{*this, "I", UnitText{"Moment of Inertia (in4)", "Moment of Inertia (mm4)"}};
  TextField Z{*this, "Z", UnitText{"Section Modulus (in3)", "Section Modulus (mm3)"}};
  TextField E{*this, "E", UnitText{"Modulus of Elasticity (psi)", "Modulus of Elasticity (MPa)"}};

  OptionGroup Frame1{*this, "Frame1", "Beam Type"};
  Option simple{Frame1, "simple", "Simply Supported"};
  Option rigid{Frame1, "rigid", "Rigidly Supported"};
  Option cantilevered{Frame1, "cantilevered", "Cantilevered"};
  OptionGroup Frame2{*this, "Frame2", "Load Type"};
  Option uniform{Frame2, "uniform", "Uniformly Distributed"};
  Option conc{Frame2, "conc", "Concentrated at Center"};

  Label lbl_deflection{*this, "lbl_deflection"};
  Label lbl_stress{*this, "lbl_stress", {"Maximum Stress (psi)", "Maximum Stress (MPa)"}};
  Label lbl_torque{*this, "lbl_torque", {"Torque (in\u00B7lb)", "Torque (N\u00B7m)"}};
  TextField deflection{*this, "deflection", lbl_deflection};
  TextField max_stress{*this, "max_stress", lbl_stress};
  TextField TORQUE{*this, "TORQUE", lbl_torque};
  Command btn_deflection_copy{*this, "btn_deflection_copy", "<--------   Copy  to  Clipboard"};
  Command btn_stress_copy{*this, "btn_stress_copy", "<--------   Copy  to  Clipboard"};
  Command btn_torque_copy{*this, "btn_torque_copy", "<--------   Copy  to  Clipboard"};

  Command btn_calc{*this, "btn_calc", "Calculate"};
  Command Command5{*this, "Command5", "Load"};
  Command Command4{*this, "Command4", "Save"};
  Command Command1{*this, "Command1", "Print"};
  Command Command2{*this, "Command2", "Help"};
  Command Command3{*this, "Command3", "Exit"};

  const char* const unit_ = IsMetric() ? " (mm)" : " (in)";  // of the deflection, as at the load
  std::string CaseCode = "SIMPUNIF";  // a record of the case; nothing reads it
  DataFile file;
};

}  // namespace korvane
