// Beams II: reactions, shears, moments and deflections of a beam in one of 32 cases of supports and
// loading, with a sketch of the case.
#pragma once

#include "frame/calculator_window.h"
#include "stress/beam_cases.h"

namespace korvane {

class Beam_Calc final : public CalculatorWindow {
 public:
  explicit Beam_Calc(Session& session);

  void Load() override;

 private:
  Layout Arrangement() override;

  class Fields;

  void SelectCase();
  void DrawBeam();
  void LayoutCase();
  void SetCommonCaptions();
  void HideFields();
  void MoveOn(int field);
  void Calculate();
  void Show(const BeamSolution& solution);
  void ClearResults();
  const BeamCase& Case() const;

  Command btn_select{*this, "btn_select", "Select Case..."};
  Label lbl_description{*this, "lbl_description"};
  Picture Picture1{*this, "Picture1", "Beam with its supports, loads and dimensions"};

  Frame Frame1{*this, "Frame1"};
  Label Label1{*this, "Label1"};
  Label Label2{*this, "Label2"};
  Label Label3{*this, "Label3"};
  Label Label4{*this, "Label4"};
  TextField txt_E{*this, "txt_E", Label1, "0"};
  TextField txt_I{*this, "txt_I", Label2, "0"};
  TextField txt_Z{*this, "txt_Z", Label3, "0"};
  TextField txt_stress{*this, "txt_stress", Label4};

  Frame Frame2{*this, "Frame2"};
  ControlArray<korvane::Label> Labels{*this, "Label", 0, 17};
  ControlArray<TextField> Texts{*this, "Text", 0, 17, Labels};

  Command btn_calculate{*this, "btn_calculate", "Calculate"};
  Command Command1{*this, "Command1", "Print"};
  Command Command2{*this, "Command2", "Help"};
  Command Command3{*this, "Command3", "Exit"};

  std::string CaseName;
  short LastField = 0;
};

}  // namespace korvane
