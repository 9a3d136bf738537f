// Fluid flow through pipes: head loss, pressure drop and pumping power of a liquid in a pipe with
// fittings, and backwards the flow that a head, a drop or a power allows.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "frame/calculator_window.h"

namespace korvane {

/// Darcy friction factor: 64 / Re below 2300, above it six rounds of Colebrook's relation from 0.01
/// for the relative roughness, blended with the former up to 5500 by a weight that is 1 at 5000.
Double Friction(Double Re, Double rough);

/// Saybolt viscosity at 68 F in SSU, from centistokes.
Double SayboltFromCentistokes(Double cs);

/// Stokes from a Saybolt viscosity in SSU, 32 at least.
Double StokesFromSaybolt(Single ssu);

class flow_2 final : public CalculatorWindow {
 public:
  explicit flow_2(Session& session);

  void Load() override;

 private:
  Layout Arrangement() override;

  /// A count of fittings, with the pipe diameters of straight length that one is worth.
  struct Fitting {
    const char* name;
    const char* caption;
    int diameters;
    const char* mode;   // what Enter in it is known as
    const char* label;  // in data files
  };
  static const std::array<Fitting, 16> kFittings;

  TextField& Count(std::size_t fitting) const { return *counts_[fitting]; }
  TextField& Count(const char* name) const;
  std::vector<Record> Records();

  // Fields in U.S. units, in which all is computed: metric numbers are multiplied or divided.
  Single Times(const TextField& field, double factor) const;
  Single Over(const TextField& field, double divisor) const;

  void OnEnter(TextField& field, const char* mode, Handler afterwards = {});
  void OnViscosity(TextField& field, const char* mode, void (flow_2::*convert)());
  void ClearDerivedViscosities();
  void FromCentipoise();
  void FromCentistokes();
  void FromSaybolt();
  void FromDynamicViscosity();
  void FromKinematicViscosity();
  Double SpecificGravity() const;

  void Solve();
  bool DeriveViscosity(Double mu);
  void LimitRoughness();
  Single ReadUpward(TextField& field);
  void LinkFlows();
  void SumFittings();
  void FlowState();
  void FindFlow();
  Single Target() const;
  Single Compared() const;
  void ShowResults();
  void ShowUs(Single psi);
  void ShowMetric(Single psi);
  void Clear();

  TextField txt_diameter{*this, "txt_diameter",
                         UnitText{"Inside Diameter (in)", "Inside Diameter (mm)"}};
  TextField txt_length{*this, "txt_length",
                       UnitText{"Total Straight Length (ft)", "Total Straight Length (m)"}, "100"};
  TextField txt_gpm{*this, "txt_gpm", UnitText{"Flow Rate (gal/min)", "Flow Rate (l/sec)"}};
  TextField txt_cfm{*this, "txt_cfm", UnitText{"Flow Rate (ft3/min)", "Flow Rate (m3/h)"}};
  TextField txt_Z{*this, "txt_Z", UnitText{"Change in Elevation (ft)", "Change in Elevation (m)"},
                  "0"};
  TextField txt_density{*this,
                        "txt_density",
                        UnitText{"Fluid Density (lb/ft3)", "Fluid Density (kg/m3)"},
                        {"62.42", "1000"}};
  TextField txt_centipoise{*this, "txt_centipoise", "Viscosity (centipoise)", "1"};
  TextField txt_centistokes{*this, "txt_centistokes", "Viscosity (centistokes)"};
  TextField txt_SSU{*this, "txt_SSU", "Viscosity (SSU)"};
  TextField txt_dynamic_viscosity{*this, "txt_dynamic_viscosity",
                                  "Dynamic Viscosity (lbf-sec/ft2)"};
  TextField txt_kinematic_viscosity{*this, "txt_kinematic_viscosity",
                                    "Kinematic Viscosity (ft2/sec)"};
  TextField txt_roughness{*this, "txt_roughness", "Roughness Factor (e/d)", "0.0005"};
  std::vector<std::unique_ptr<TextField>> counts_;

  TextField txt_velocity{*this, "txt_velocity",
                         UnitText{"Fluid Velocity (ft/sec)", "Fluid Velocity (m/sec)"}};
  TextField txt_reynolds{*this, "txt_reynolds", "Reynolds Number"};
  TextField txt_friction{*this, "txt_friction", "Friction Factor (f)"};
  TextField txt_feet{*this, "txt_feet",
                     UnitText{"Pressure Drop (ft H20)", "Pressure Drop (mm H20)"}};
  TextField txt_psi{*this, "txt_psi", UnitText{"Pressure Drop (psi)", "Pressure Drop (MPa)"}};
  TextField txt_hp{*this, "txt_hp", UnitText{"Pumping Power (hp)", "Pumping Power (kW)"}};

  Label instruction_{*this, "",
                     "Key in the known values and press <ENTER> after each change to force a "
                     "recalculation."};
  Command btn_calc{*this, "btn_calc", "Solve"};
  Command btn_clear{*this, "btn_clear", "Clear"};
  Command Command2{*this, "Command2", "Load"};
  Command Command1{*this, "Command1", "Save"};
  Command btn_print{*this, "btn_print", "Print"};
  Command btn_help{*this, "btn_help", "Help"};
  Command btn_exit{*this, "btn_exit", "Exit"};

  std::string Mode;  // the field last confirmed with Enter
  Single D, Dft, L, Z, gpm, cfm, rho, cp, SSU, SG, head, hp, LD, Ltot;
  Double nu, Re, f, V, rough;
  DataFile file;
};

}  // namespace korvane
