// Fluid power cylinders: areas, forces, volumes and flows of their two strokes, by oil or by air.
#pragma once

#include <array>

#include "frame/calculator_window.h"

namespace korvane {

/// How the window of one fluid differs from that of the other.
struct CylinderKind {
  CalculatorTraits window;
  const char* help;  ///< name of the command
  const char* signature;
  const char* defaultName;
  const char* stroke;     ///< that it opens with
  UnitText volume, flow;  ///< units, for captions
  bool air;               ///< flows are of free air
};

class Cylinder : public CalculatorWindow {
 public:
  void Load() override;

 protected:
  Cylinder(Session& session, const CylinderKind& kind);

 private:
  Layout Arrangement() override;

  struct Side;
  void Solve();
  void SolveUs(const std::array<Side, 2>& sides);
  void SolveMetric(const std::array<Side, 2>& sides);

  const CylinderKind& kind_;

  Combo cmb_bore_dia{*this,
                     "cmb_bore_dia",
                     UnitText{"Bore Diameter (in)", "Bore Diameter (mm)"},
                     {},
                     Combo::Style::Editable};
  Combo cmb_rod_dia{*this,
                    "cmb_rod_dia",
                    UnitText{"Rod Diameter (in)", "Rod Diameter (mm)"},
                    {},
                    Combo::Style::Editable};
  TextField txt_pressure{*this, "txt_pressure",
                         UnitText{"Fluid Pressure (psig)", "Fluid Pressure (bar)"}, "100"};
  TextField txt_stroke;
  TextField txt_extend_speed{*this, "txt_extend_speed",
                             UnitText{"Extend Speed (in/min)", "Extend Speed (mm/min)"}, "0"};
  TextField txt_retract_speed{*this, "txt_retract_speed",
                              UnitText{"Retract Speed (in/min)", "Retract Speed (mm/min)"}, "0"};
  Picture picture_;

  TextField txt_extend_area{*this, "txt_extend_area",
                            UnitText{"Extend Area (in2)", "Extend Area (mm2)"}};
  TextField txt_extend_force{*this, "txt_extend_force",
                             UnitText{"Extend Force (lbf)", "Extend Force (N)"}};
  TextField txt_extend_volume;
  TextField txt_extend_flow;
  TextField txt_retract_area{*this, "txt_retract_area",
                             UnitText{"Retract Area (in2)", "Retract Area (mm2)"}};
  TextField txt_retract_force{*this, "txt_retract_force",
                              UnitText{"Retract Force (lbf)", "Retract Force (N)"}};
  TextField txt_retract_volume;
  TextField txt_retract_flow;

  Command btn_solve{*this, "btn_solve", "Solve"};
  Command btn_load{*this, "btn_load", "Load"};
  Command btn_save{*this, "btn_save", "Save"};
  Command btn_print{*this, "btn_print", "Print"};
  Command help_;
  Command Command2{*this, "Command2", "Exit"};

  DataFile file;
};

class Hydraulic_cylinders final : public Cylinder {
 public:
  explicit Hydraulic_cylinders(Session& session);
};

class Pneumatic_cylinders final : public Cylinder {
 public:
  explicit Pneumatic_cylinders(Session& session);
};

}  // namespace korvane
