// Safety ventilation: the fresh air that an oven needs in which a flammable solvent evaporates, the
// heat for it, the purge time and the relief area against explosions.
#pragma once

#include <vector>

#include "frame/calculator_window.h"

namespace korvane {

/// Factor for the thinner air at an altitude in feet, in metric units in meters.
double AltitudeFactor(Single altitude, bool metric);

class SAFEVENT final : public CalculatorWindow {
 public:
  explicit SAFEVENT(Session& session);

  void Load() override;

 private:
  Layout Arrangement() override;

  /// What the fields say, in the window's units.
  struct Inputs {
    Double air;  ///< that a unit of solvent makes barely explosive
    Double perBatch;
    Double perMinute;
    Double temperature;
    Single altitude;
  };

  void ReadSolvents();
  Record MonitorRecord();
  void TakeSolvent();
  void ChooseMethod();
  void FollowMethod();
  void ChooseBurner();
  /// An input that counts, or one that is greyed and empty.
  static void Enliven(TextField& field, bool live);
  TextField& LiveInput();
  bool IsPowder() const { return opt_powder_coat.IsOn() || opt_powder_coat_continuous.IsOn(); }

  void SolveVent();
  void TakePowder();
  Inputs Read();
  void AskForRate();
  Double TemperatureRatio(Double T);
  Double ConcentrationFactor(Double T);
  Double SolventAir(const Inputs& in, double altitude, Double concentration) const;
  Double BurnerAir(Double T);
  void ShowPurge(Double air);
  void ShowHeat(Double air, Double T);

  OptionGroup method_{*this, "", "Method of Calculation"};
  Option opt_per_minute{
      method_, "opt_per_minute",
      "Batch - based on maximum solvent evaporation rate  (Customer test data is available)"};
  Option opt_per_batch{
      method_, "opt_per_batch",
      "Batch - based on maximum solvent quantity per batch  (Evaporation rate is unknown)"};
  Option opt_continuous{
      method_,
      "opt_continuous",
      {"Continuous Process (Minimum 12,000 ft3 of fresh air per gal of solvent evaporated)",
       "Continuous Process (Minimum 340 m3 of fresh air per L of solvent evaporated)"}};
  Option opt_powder_coat{
      method_, "opt_powder_coat",
      "Batch Powder Coat  (Assumes that 9% of the powder load is xylene,  balance is inert)"};
  Option opt_powder_coat_continuous{
      method_, "opt_powder_coat_continuous",
      "Continuous Powder Coat  (Assumes that 9% of the powder load is xylene,  balance is inert)"};
  OptionGroup monitor_{*this, "", "Solvent Monitor"};
  Option opt_monitor_no_25{monitor_, "opt_monitor_no_25", "No   -  25% LEL Limit"};
  Option opt_monitor_yes{monitor_, "opt_monitor_yes", "Yes  -  50% LEL Limit"};

  Label lbl_powder_load{
      *this,
      "lbl_powder_load",
      {"Maximum Powder Quantity (Pounds/Batch)", "Maximum Powder Quantity (Kilograms/Batch)"}};
  Label air_{*this,
             "",
             {"Cubic Feet of Air Rendered Barely Explosive by One Gallon of Solvent ------->",
              "Cubic Meters of Air Rendered Barely Explosive by One Liter of Solvent ------->"}};
  Label lel_{*this, "", "----------------> Correction Factor"};
  Label thin_air_{*this, "", "----------------> Correction Factor"};
  Label kilowatts_{*this, "", "-------------->  (kW)"};
  TextField txt_gpbatch{*this, "txt_gpbatch",
                        UnitText{"Maximum Solvent Quantity (Gallons/Batch)",
                                 "Maximum Solvent Quantity (Liters/Batch)"},
                        "0"};
  TextField txt_gpm{*this, "txt_gpm",
                    UnitText{"Maximum Evaporation Rate (Gallons/Minute)",
                             "Maximum Evaporation Rate (Liters/Minute)"},
                    "0"};
  TextField txt_powder_load{*this, "txt_powder_load", lbl_powder_load, "0"};
  Combo Combo1{*this, "Combo1", air_};
  TextField txt_cuft{*this, "txt_cuft", air_};
  TextField txt_temp{
      *this, "txt_temp",
      UnitText{"Maximum Operating Temperature (F)", "Maximum Operating Temperature (C)"}, "0"};
  TextField txt_LEL_CF{*this, "txt_LEL_CF", lel_, "1.0"};
  TextField txt_altitude{
      *this, "txt_altitude",
      UnitText{"Altitude Above Mean Sea Level (ft)", "Altitude Above Mean Sea Level (m)"}, "0"};
  TextField txt_alt_CF{*this, "txt_alt_CF", thin_air_, "1.0"};
  TextField txt_chamber_volume{
      *this, "txt_chamber_volume",
      UnitText{"Total Oven Liner Volume (cubic feet)", "Total Oven Liner Volume (m3)"}, "0"};
  CheckBox chk_gas_fired{
      *this,
      "chk_gas_fired",
      {"Direct Gas-Fired Oven  ---------------------->  Burner Rating (Btu/hr)",
       "Direct Gas-Fired Oven  -------------------------->  Burner Rating (kW)"}};
  TextField txt_burner_rating{*this, "txt_burner_rating", chk_gas_fired, "0"};

  TextField txt_atr{*this, "txt_atr",
                    "Correction Factor for Expansion of Intake Air (Absolute Temperature Ratio)"};
  TextField txt_intake{*this, "txt_intake",
                       UnitText{"Intake Air Requirement (cfm)", "Intake Air Requirement (m3/min)"}};
  TextField txt_exhaust{
      *this, "txt_exhaust",
      UnitText{"Exhaust Air Requirement (cfm)", "Exhaust Air Requirement (m3/min)"}};
  TextField txt_btuh{*this, "txt_btuh", "Heat Input Compensation for Intake Air  (Btu/hr)"};
  TextField txt_kw{*this, "txt_kw", kilowatts_};
  TextField txt_purge_time{*this, "txt_purge_time", "Purge Time (minutes)"};
  TextField txt_vent_area{*this, "txt_vent_area",
                          UnitText{"Minimum Explosion Relief Area Required (square feet)",
                                   "Minimum Explosion Relief Area Required (square meters)"}};

  Command Cmd_Solve{*this, "Cmd_Solve", "Solve"};
  Command Command1{*this, "Command1", "Solve"};
  Command Command2{*this, "Command2", "Load"};
  Command Command3{*this, "Command3", "Save"};
  Command cmd_prt{*this, "cmd_prt", "Print"};
  Command cmd_help{*this, "cmd_help", "Help"};
  Command cmd_quit{*this, "cmd_quit", "Exit"};

  std::vector<Single> airs_;  // ft3 of each gallon, of the entries in the list
  DataFile file;
};

}  // namespace korvane
