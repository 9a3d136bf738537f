// Unit conversions: a pair of units from a long list, a value either way.
#pragma once

#include <string_view>
#include <vector>

#include "frame/calculator_window.h"

namespace korvane {

/// A pair of units. With `multiplies` the second is the first times the factor plus the offset;
/// without, it is the first less the offset, divided by the factor.
struct Conversion {
  std::string first;  ///< 50 characters, cut or filled with blanks
  std::string second;
  Double factor;
  Double offset;
  bool multiplies = false;
};

Double Forward(const Conversion& conversion,
               Double first);  ///< Fails for a factor of 0 that divides.
Double Backward(const Conversion& conversion, Double second);

/// Reads all records of the file's bytes: two names, factor, offset, direction (-1: multiplies, or
/// 0), and a field that is ignored. More than 2001 of them fail with "Subscript out of range".
std::vector<Conversion> ParseConversions(std::string_view bytes);

class Conversion_Factors final : public CalculatorWindow {
 public:
  explicit Conversion_Factors(Session& session);

  void Load() override;
  void Resized() override;

 private:
  Layout Arrangement() override;

  const Conversion& Selected() const;
  void ConvertForward();
  void ConvertBackward();
  void TakeSelection();
  void Search();

  std::vector<Conversion> conversions_;

  Label Label1{
      *this, "Label1",
      "Select units.  Type a known value into either text box and press  <ENTER>  to force "
      "calculation of the other unit.  "};
  ListBox List1{*this, "List1", "Units"};
  Label lbl_search{*this, "lbl_search", "Search:"};
  TextField txt_search{*this, "txt_search", lbl_search};
  TextField txt_show_selected{*this, "txt_show_selected", "Selected units"};
  TextField Text1{*this, "Text1", "First unit", "1"};
  TextField Text2{*this, "Text2", "Second unit", "?"};
  Command btn_copy_left{*this, "btn_copy_left", "Copy  to  Clipboard"};
  Command btn_copy_right{*this, "btn_copy_right", "Copy  to  Clipboard"};
  Command btn_help{*this, "btn_help", "Help"};
};

}  // namespace korvane
