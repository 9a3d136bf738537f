// Orifice flow: air through an orifice by diameter, pressure drop and discharge coefficient, and
// back.
#pragma once

#include "frame/calculator_window.h"

namespace korvane {

class FlowCalc final : public CalculatorWindow {
 public:
  explicit FlowCalc(Session& session);

 private:
  Layout Arrangement() override;

  void ComputeAll();
  void AreaFromDiameter();
  void DiameterFromArea();
  void ComputeFlow();
  void OrificeFromFlow();
  void FlowAfterLoad();

  Label Diameter{*this, "Diameter", {"Diameter (in)", "Diameter (m)"}};
  Label Label1{*this, "Label1", {"Area (in2)", "Area (m2)"}};
  Label Label2{*this, "Label2", {"Pressure (in WC)", "Pressure (Pa)"}};
  Label Label3{*this, "Label3", {"Flow Rate (CFM)", "Flow Rate (m3/s)"}};
  TextField dia{*this, "dia", Diameter, "0"};
  TextField area{*this, "area", Label1, "0"};
  TextField pressure{*this, "pressure", Label2, "0"};
  TextField flow{*this, "flow", Label3, "0"};

  OptionGroup DischCoef{*this, "DischCoef", "Discharge Coefficient"};
  Option ideal{DischCoef, "ideal", "Ideal"};
  Option SharpEdge{DischCoef, "SharpEdge", "Sharp Edge"};
  Option ReEntrant{DischCoef, "ReEntrant", "Re-entrant"};
  Option SquareEdge{DischCoef, "SquareEdge", "Square Edge"};
  Option RoundEdge{DischCoef, "RoundEdge", "Round Edge"};
  Picture Picture1, Picture2, Picture3, Picture4;
  TextField dc{*this, "dc", DischCoef, "  1.0"};

  Command btn_calc{*this, "btn_calc", "Calculate"};
  Command Command4{*this, "Command4", "Load"};
  Command Command5{*this, "Command5", "Save"};
  Command Command1{*this, "Command1", "Print"};
  Command Command3{*this, "Command3", "Help"};
  Command Command2{*this, "Command2", "Exit"};

  DataFile file;
};

}  // namespace korvane
