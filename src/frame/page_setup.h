// The page dialog: places the picture of a window on the page, with a preview, and prints it.
#pragma once

#include "frame/page_layout.h"
#include "frame/platform.h"
#include "frame/window.h"

namespace korvane {

class Page_Setup final : public Window {
 public:
  explicit Page_Setup(Session& session);

  void Load() override;
  void Resized() override;
  void DoubleClicked() override;

 private:
  Layout Arrangement() override;

  Placement Place(const Printer& printer);
  void Preview();
  void Print();
  void StepMargin(TextField& margin, bool up);
  void ShowHeader();
  void ChooseOrientation(Orientation orientation);
  void TakePrinter();

  Picture Picture1;
  Picture Picture2;
  TextField txt_percent{*this, "txt_percent", "Print Scale", "100"};
  Label lbl_percent{*this, "lbl_percent", "%"};
  CheckBox chk_full_width{*this, "chk_full_width", "Fit to Page"};
  CheckBox chk_center{*this, "chk_center", "Center on Page"};
  TextField txt_top_margin{*this, "txt_top_margin", "Top Margin", "0.00"};
  SpinButton UpDown_top_margin{*this, "UpDown_top_margin", txt_top_margin};
  TextField txt_left_margin{*this, "txt_left_margin", "Left Margin", "0.00"};
  SpinButton UpDown_left_margin{*this, "UpDown_left_margin", txt_left_margin};
  CheckBox chk_header{*this, "chk_header", "Include Header"};
  Label lbl_header{*this, "lbl_header", "Header:"};
  TextField txt_header{*this, "txt_header", lbl_header};
  Combo Combo1{*this, "Combo1", "Select printer:"};
  OptionGroup orientation_{*this, "", "Orientation"};
  Option optPortrait{orientation_, "optOrientation(0)", "Portrait"};
  Option optLandscape{orientation_, "optOrientation(1)", "Landscape"};
  Command btn_set_printer{*this, "btn_set_printer", "Printer Setup"};
  Command btn_apply{*this, "btn_apply", "Apply"};
  Command btn_print{*this, "btn_print", "Print"};
  Command Command2{*this, "Command2", "Cancel"};
};

}  // namespace korvane
