// The periodic chart of the elements: a click on an element tells what it is.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "frame/calculator_window.h"
#include "materials/elements.h"

namespace korvane {

class PERIODIC final : public CalculatorWindow {
 public:
  explicit PERIODIC(Session& session);

  void Load() override;

 private:
  Layout Arrangement() override;

  Option& TileOf(const Element& element) const;
  Layout CellAt(int row, int column);
  Layout Tiles(int firstRow, int lastRow, int firstColumn, int lastColumn);
  Layout Legend();

  void Find();
  void Choose(const Element& element);
  void ShowElement();
  void Blink();
  void MarkChosen(bool marked);

  std::vector<Element> elements_;  // in the order of their numbers
  const Element* chosen_ = nullptr;
  int blinks_ = 0;  // still to come

  TextField txt_search{*this, "txt_search", "Find Name, Symbol or Number"};
  Label lbl_missing{*this, "lbl_missing", "There is no such element."};

  OptionGroup group_{*this, "", "Elements"};
  std::vector<std::unique_ptr<Option>> tiles_;
  std::vector<std::unique_ptr<Label>> legend_;
  Picture lanthanides_;
  Picture actinides_;
  Picture gap_;
  Picture picture_;

  TextField txt_number{*this, "txt_number", "Atomic Number"};
  TextField txt_symbol{*this, "txt_symbol", "Symbol"};
  TextField txt_name{*this, "txt_name", "Name"};
  TextField txt_weight{*this, "txt_weight", "Atomic Weight"};
  TextField txt_series{*this, "txt_series", "Series"};
  TextField txt_place{*this, "txt_place", "Group and Period"};
  TextField txt_density{*this, "txt_density", "Density"};
  TextField txt_melting{*this, "txt_melting", "Melting Point"};
  TextField txt_boiling{*this, "txt_boiling", "Boiling Point"};
  TextField txt_configuration{*this, "txt_configuration", "Electron Configuration"};
  TextField txt_electronegativity{*this, "txt_electronegativity", "Electronegativity (Pauling)"};
  TextField txt_crystal{*this, "txt_crystal", "Crystal Structure"};

  Timer Timer1;

  Command btn_print{*this, "btn_print", "Print"};
  Command btn_help{*this, "btn_help", "Help"};
  Command btn_exit{*this, "btn_exit", "Exit"};
};

}  // namespace korvane
