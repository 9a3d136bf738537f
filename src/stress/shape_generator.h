// Makes the outlines of common shapes for the section calculator.
#pragma once

#include "frame/calculator_window.h"
#include "stress/outline.h"
#include "stress/shapes.h"

namespace korvane {

class shape_generator final : public CalculatorWindow {
 public:
  explicit shape_generator(Session& session);

  void Load() override;

 private:
  Layout Arrangement() override;

  const ShapeKind& Kind() const;
  void SelectShape();
  ShapeOutlines Made();
  void Draw();
  void HandOver(bool adds);

  Label lbl_shape{*this, "lbl_shape", "Shape"};
  ListBox lst_shape{*this, "lst_shape", lbl_shape};
  ControlArray<Label> lbl_dimension{*this, "lbl_dimension", 1, kMostDimensions};
  ControlArray<TextField> txt_dimension{*this, "txt_dimension", 1, kMostDimensions, lbl_dimension};
  TextField txt_chords{*this, "txt_chords", "Chords of a Full Circle (3 to 1440)", "72"};
  TextField txt_x{*this, "txt_x", UnitText{"Place at X (in)", "Place at X (mm)"}, "0"};
  TextField txt_y{*this, "txt_y", UnitText{"Place at Y (in)", "Place at Y (mm)"}, "0"};
  TextField txt_angle{*this, "txt_angle", "Turned by (deg)", "0"};
  Label lbl_origin{*this, "lbl_origin"};
  Picture Picture1{*this, "Picture1", "The shape to scale"};
  Label lbl_status{*this, "lbl_status"};

  Command btn_replace{*this, "btn_replace", "Use as Outline"};
  Command btn_add{*this, "btn_add", "Add to Outlines"};
  Command btn_cancel{*this, "btn_cancel", "Cancel"};
};

}  // namespace korvane
