// Duct sizing: velocity, friction and pressure drop of air in a round or rectangular duct.
#pragma once

#include <optional>

#include "frame/calculator_window.h"

namespace korvane {

/// Diameter in inches of the round duct that rubs as a rectangular one of these sides does.
Double EqualFrictionDiameter(Double W, Double H);

/// Diameter in inches of the round duct of the same area.
Double EqualAreaDiameter(Double W, Double H);

/// The side in inches that gives a duct of one known side this equal-friction diameter, looked for
/// in steps of 0.001 up to 100; none if that is too small.
std::optional<Double> FindSide(Double known, Double diameter);

/// Darcy friction factor from the relative roughness: one round of Colebrook's relation from
/// Moody's start, with 2.3026 for the natural logarithm of ten.
Double DuctFriction(Double e, Double Re);

class Duct_Size final : public CalculatorWindow {
 public:
  explicit Duct_Size(Session& session);

  void Load() override;

 private:
  Layout Arrangement() override;

  struct Roughness;
  static const Roughness kRoughness[];

  /// The numbers of a duct's size, in inches and square feet.
  struct Size {
    Double D;
    Double area;       ///< of the duct itself
    Double roundArea;  ///< of the round duct that counts for the friction
  };

  void WriteDefaults();
  Double Us(const TextField& field, double metric) const;
  void ShowLength(TextField& field, Double inches);
  void ShowArea(Double squareFeet);
  void ChooseCircular();
  void ChooseRectangular();
  void FollowShape();
  void ClearResults();
  void RestoreDefaults();
  void CalculateDuct();
  std::optional<Size> CircularSize();
  std::optional<Size> RectangularSize();
  bool FindSides(Double& W, Double& H);
  void ShowFlow(const Size& size);

  OptionGroup shape_{*this, "", "Shape of Duct"};
  Option opt_circular{shape_, "opt_circular", "Circular Duct"};
  Option opt_rectangular{shape_, "opt_rectangular", "Rectangular Duct"};

  TextField txt_width{*this, "txt_width", UnitText{"Width of Duct (in)", "Width of Duct (mm)"}};
  TextField txt_depth{*this, "txt_depth", UnitText{"Depth of Duct (in)", "Depth of Duct (mm)"}};
  Label lbl_dia{*this, "lbl_dia", {"Duct Diameter (in)", "Duct Diameter (mm)"}};
  TextField txt_dia{*this, "txt_dia", lbl_dia};
  TextField txt_area{*this, "txt_area", UnitText{"Duct Area (ft2)", "Duct Area (m2)"}};
  TextField txt_flow{*this, "txt_flow", UnitText{"Flow Rate (cfm)", "Flow Rate (m3/h)"}};
  TextField txt_length{*this, "txt_length", UnitText{"Duct Length (ft)", "Duct Length (m)"}};
  TextField txt_roughness{*this, "txt_roughness",
                          UnitText{"Absolute Roughness (ft)", "Absolute Roughness (m)"}};
  TextField txt_inlet_pressure{*this, "txt_inlet_pressure",
                               UnitText{"Inlet Pressure (psia)", "Inlet Pressure (kPa Abs.)"}};
  TextField txt_temperature{*this, "txt_temperature",
                            UnitText{"Fluid Temperature (F)", "Fluid Temperature (C)"}};
  TextField txt_density{*this, "txt_density",
                        UnitText{"Fluid Density (lb/ft3)", "Fluid Density (kg/m3)"}};
  TextField txt_viscosity{*this, "txt_viscosity",
                          UnitText{"Fluid Viscosity (lb/ft-s)", "Fluid Viscosity (cP)"}};

  OptionGroup Frame1{
      *this,
      "Frame1",
      {"Type of Duct --- Absolute Roughness (ft)", "Type of Duct --- Absolute Roughness (m)"}};
  std::vector<std::unique_ptr<Option>> roughnesses_;

  TextField txt_velocity{*this, "txt_velocity",
                         UnitText{"Fluid Velocity (ft/min)", "Fluid Velocity (m/s)"}};
  TextField txt_reynolds{*this, "txt_reynolds", "Reynolds Number"};
  TextField txt_relative_roughness{*this, "txt_relative_roughness", "Relative Roughness"};
  TextField txt_friction_factor{*this, "txt_friction_factor", "Friction Factor"};
  TextField txt_dp1{*this, "txt_dp1", UnitText{"Pressure Drop (psi)", "Pressure Drop (kPa)"}};
  TextField txt_dp2{*this, "txt_dp2", UnitText{"Pressure Drop (in.WG)", "Pressure Drop (mm Hg)"}};

  const std::string unit_ = IsMetric() ? "(mm)" : "(in)";  // as in the other captions

  Command btn_calc{*this, "btn_calc", "Calculate"};
  Command btn_restore_defaults{*this, "btn_restore_defaults", "Restore Default Values"};
  Command Command2{*this, "Command2", "Print"};
  Command Command3{*this, "Command3", "Help"};
  Command Command1{*this, "Command1", "Exit"};
};

}  // namespace korvane
