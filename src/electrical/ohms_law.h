// Ohm's law: any one of voltage, current, resistance and power from two others.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "frame/calculator_window.h"

namespace korvane {

class OHMS_LAW final : public CalculatorWindow {
 public:
  explicit OHMS_LAW(Session& session);

  void Load() override;

 private:
  Layout Arrangement() override;

  /// A formula of the wheel: its clickable labels, its left side, and the two inputs that it needs.
  void OnFormula(const std::vector<Label*>& labels, const char* quantity, TextField& first,
                 TextField& second);
  void ChooseQuantity(const std::string& quantity);
  void ShowInputs(const TextField& first, const TextField& second);
  void FocusInput();
  void Clear();
  void SolveOhm();

  Label lbl_select{*this, "lbl_select", "Click on a Formula"};

  Label txt_e{*this, "txt_e", "E"}, unit_e{*this, "", "(Volts)"};
  Label txt_i{*this, "txt_i", "I"}, unit_i{*this, "", "(Amps)"};
  Label txt_r{*this, "txt_r", "R"}, unit_r{*this, "", "(Ohms)"};
  Label txt_w{*this, "txt_w", "W"}, unit_w{*this, "", "(Watts)"};

  // E = I R, W / I, root of W R
  Label Label1{*this, "Label1", "I R"};
  Label Label2{*this, "Label2", "W"}, Label3{*this, "Label3", "I"};
  Label Label4{*this, "Label4", "\u221A(W R)"};
  // I = E / R, root of W / R, W / E
  Label Label6{*this, "Label6", "E"}, Label7{*this, "Label7", "R"};
  Label Label8{*this, "Label8", "W"}, Label9{*this, "Label9", "R"};
  Label Label10{*this, "Label10", "W"}, Label11{*this, "Label11", "E"};
  // R = E / I, E squared / W, W / I squared
  Label Label26{*this, "Label26", "E"}, Label27{*this, "Label27", "I"};
  Label Label14{*this, "Label14", "E"}, Label21{*this, "Label21", "\u00B2"};
  Label Label15{*this, "Label15", "W"};
  Label Label16{*this, "Label16", "W"};
  Label Label17{*this, "Label17", "I"}, Label20{*this, "Label20", "\u00B2"};
  // W = E I, E squared / R, I squared R
  Label Label5{*this, "Label5", "E I"};
  Label Label12{*this, "Label12", "E"}, Label22{*this, "Label22", "\u00B2"};
  Label Label13{*this, "Label13", "R"};
  Label Label23{*this, "Label23", "I"}, Label24{*this, "Label24", "\u00B2"};
  Label Label25{*this, "Label25", " R"};
  // Left sides, which choose their formula too, and radical signs.
  std::vector<std::unique_ptr<Label>> signs_;

  Label lbl_1{*this, "lbl_1"}, lbl_2{*this, "lbl_2"}, lbl_3{*this, "lbl_3"}, lbl_4{*this, "lbl_4"};
  TextField Text1{*this, "Text1", lbl_1};
  TextField Text2{*this, "Text2", lbl_2};
  TextField Text3{*this, "Text3", lbl_3};
  TextField Text4{*this, "Text4", lbl_4};

  Command btn_calc{*this, "btn_calc", "Solve"};
  Command Command2{*this, "Command2", "Clear"};
  Command btn_print{*this, "btn_print", "Print"};
  Command btn_help{*this, "btn_help", "Help"};
  Command btn_exit{*this, "btn_exit", "Exit"};

  Timer Timer1{*this, "Timer1", 1000, Timer::Starts::Enabled};

  std::string Solved;  // the quantity to solve; empty until the first choice
};

/// The wanted quantity ("E", "I", "R", "W") from the three others in the order of their fields: E I
/// R W without the wanted one. Of three rules each applies where both its inputs are above 0, and
/// the last one that does counts; nothing where none does.
std::optional<Double> SolveOhmsLaw(const std::string& wanted, Single p, Single q, Single r);

}  // namespace korvane
