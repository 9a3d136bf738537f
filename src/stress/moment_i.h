// Moment of inertia and section modulus of ten standard cross sections.
#pragma once

#include <array>

#include "frame/calculator_window.h"
#include "stress/section_sketches.h"

namespace korvane {

class MOMENT_I final : public CalculatorWindow {
 public:
  explicit MOMENT_I(Session& session);

  void Load() override;

 private:
  Layout Arrangement() override;

  struct Kind;
  static const std::array<Kind, 10> kKinds;
  const Kind& Chosen() const;

  void SelectSection();
  void ComputeSection();

  // Each computes its section from the dimensions and says whether it could.
  bool RectangleSolid();
  bool RectangleHollow();
  bool RoundSolid();
  bool RoundHollow();
  bool TriangleAboutCenter();
  bool TriangleAboutBottom();
  bool Trapezoid();
  bool Angle();
  bool Beam();
  bool Refuses();

  void TakeArea(Double value);
  void TakeY(Double value);
  void TakeI(Double value);
  void TakeZ(Double value);

  Label Label1{
      *this, "Label1", {"All dimensions are in INCHES.", "All dimensions are in MILLIMETERS."}};
  Label L1{*this, "L1"}, L2{*this, "L2"}, L3{*this, "L3"}, L4{*this, "L4"};
  TextField T1{*this, "T1", L1, "1"};
  TextField T2{*this, "T2", L2, "1"};
  TextField T3{*this, "T3", L3};
  TextField T4{*this, "T4", L4};

  OptionGroup Frame1{*this, "Frame1", "SELECT CROSS SECTION"};
  Option Option1{Frame1, "Option1", "Rectangle - Solid"};
  Option Option2{Frame1, "Option2", "Rectangle - Hollow"};
  Option Option3{Frame1, "Option3", "Round - Solid"};
  Option Option4{Frame1, "Option4", "Round - Hollow"};
  Option Option5{Frame1, "Option5", "Triangle - Axis at Center"};
  Option Option6{Frame1, "Option6", "Triangle - Axis at Bottom"};
  Option Option7{Frame1, "Option7", "Trapezoid"};
  Option Option8{Frame1, "Option8", "Angle"};
  Option Option9{Frame1, "Option9", "Channel"};
  Option Option10{Frame1, "Option10", "I-Beam Section"};
  Picture PIC{*this, "PIC", "Cross section with its dimensions"};
  std::array<std::unique_ptr<Picture>, 10> pictures_;

  Label L5{*this, "L5", {"Area  (in2)", "Area  (mm2)"}};
  Label L6{*this, "L6", {"Dist to Extreme Fiber (y)   (in)", "Dist to Extreme Fiber (y)   (mm)"}};
  Label L7{*this, "L7", {"Moment of Inertia (I)  (in4)", "Moment of Inertia (I)  (mm4)"}};
  Label L8{*this, "L8", {"Section Modulus (Z)  (in3)", "Section Modulus (Z)  (mm3)"}};
  Label L9{*this, "L9", {"Radius of Gyration (k)    (in)", "Radius of Gyration (k)    (mm)"}};
  TextField txt_area{*this, "txt_area", L5};
  TextField txt_y{*this, "txt_y", L6};
  TextField txt_I{*this, "txt_I", L7};
  TextField txt_Z{*this, "txt_Z", L8};
  TextField txt_k{*this, "txt_k", L9};

  Command Command4{*this, "Command4", "Calculate"};
  Command btn_load{*this, "btn_load", "Load"};
  Command btn_save{*this, "btn_save", "Save"};
  Command Command1{*this, "Command1", "Print"};
  Command Command3{*this, "Command3", "Help"};
  Command Command2{*this, "Command2", "Exit"};

  short SectionIndex = 1;
  std::array<Double, 4> dimensions_;
  Double area, y, I, Z, k;
  DataFile file;
};

}  // namespace korvane
