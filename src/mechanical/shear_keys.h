// Shear keys: the torque at which a key fails, or the key's length for a torque.
#pragma once

#include "frame/calculator_window.h"

namespace korvane {

class Shear_Keys final : public CalculatorWindow {
 public:
  explicit Shear_Keys(Session& session);

  void Load() override;

 private:
  Layout Arrangement() override;

  void SolvesBy(TextField& field, Option& option);
  void Solve();

  Picture picture_;
  TextField txt_torque{*this, "txt_torque", UnitText{"Shear Torque (in-lb)", "Shear Torque (N-m)"}};
  TextField txt_shaft_dia{*this, "txt_shaft_dia",
                          UnitText{"Shaft Diameter (in)", "Shaft Diameter (mm)"}};
  TextField txt_key_width{*this, "txt_key_width",
                          UnitText{"Keyway Width (in)", "Keyway Width (mm)"}};
  TextField txt_shear_strength{*this, "txt_shear_strength",
                               UnitText{"Shear Strength (psi)", "Shear Strength (MPa)"}};
  TextField txt_key_length{*this, "txt_key_length", UnitText{"Key Length (in)", "Key Length (mm)"}};

  OptionGroup solve_{*this, "", "Solve For"};
  Option opt_key_length{solve_, "opt_key_length", "Key Length"};
  Option opt_shear_torque{solve_, "opt_shear_torque", "Shear Torque"};

  OptionGroup materials_{*this, "", "Key Material"};
  Option opt_delrin_500{
      materials_, "opt_delrin_500", {"Delrin 500 (9,573 psi)", "Delrin 500 (66 MPa)"}};
  Option opt_celcon_90{
      materials_, "opt_celcon_90", {"Celcon 90 (7,687 psi)", "Celcon 90 (53 MPa)"}};
  Option opt_nylon_66{
      materials_, "opt_nylon_66", {"Nylon 6/6 (9,949 psi)", "Nylon 6/6 (68.6 MPa)"}};
  Option opt_alum_1100{
      materials_, "opt_alum_1100", {"Aluminum 1100-O (8,700 psi)", "Aluminum 1100-O (60 MPa)"}};
  Option opt_alum_2024{
      materials_, "opt_alum_2024", {"Aluminum 2024-T4 (41,325 psi)", "Aluminum 2024-T4 (285 MPa)"}};
  Option opt_alum_6061{
      materials_, "opt_alum_6061", {"Aluminum 6061-T6 (29,725 psi)", "Aluminum 6061-T6 (205 MPa)"}};
  Option opt_copper_110{
      materials_, "opt_copper_110", {"Copper 110 (25,000 psi)", "Copper 110 (172 MPa)"}};
  Option opt_brass_360{
      materials_, "opt_brass_360", {"Brass 360 (34,000 psi)", "Brass 360 (234 MPa)"}};
  Option opt_steel_1030{
      materials_, "opt_steel_1030", {"Steel 1030 (48,000 psi)", "Steel 1030 (331 MPa)"}};

  Command btn_Solve{*this, "btn_Solve", "Solve"};
  Command btn_print{*this, "btn_print", "Print"};
  Command btn_help{*this, "btn_help", "Help"};
  Command btn_exit{*this, "btn_exit", "Exit"};
};

}  // namespace korvane
