// Psychrometric calculations II: the full state of moist air at an altitude, from its dry bulb and
// its wet bulb, dew point or relative humidity.
#pragma once

#include "frame/calculator_window.h"

namespace korvane {

/// Saturation pressure of water in inches of mercury at t in F, by the form of Goff and Gratch:
/// over water above freezing, over ice at it and below.
Double SaturationPressure(Double t);

/// Vapour pressure in inches of mercury at a pressure P in the same unit, by the psychrometer's
/// relation. None at a wet bulb of 32 F or less.
Double VaporPressure(Double tdb, Double twb, Double P);

/// Dew point in F, from inches of mercury.
Double DewPointFromVapor(Double Pv);

/// Pressure in inches of mercury at feet of altitude: that of the next altitude up in a table.
Double PressureAtAltitude(Single a);

/// Air of a dry and a wet bulb in F at a pressure; pressures in inches of mercury.
struct MoistAir {
  Double P;
  Double Ps;  ///< of saturation at the dry bulb
  Double Pv;  ///< of the vapour
  Double RelativeHumidity;
  Double HumidityRatio;
  Double Enthalpy;        ///< btu/lb of dry air
  Double SpecificVolume;  ///< ft3/lb of dry air

  MoistAir(Double tdb, Double twb, Double pressure);
};

/// Leads a wet bulb in F to where the compared value reaches the target: up by degrees, down by
/// hundredths, and up again by tenthousandths in the last pass.
template <class Compared>
void WalkWetBulb(Double target, Compared compared) {
  constexpr int coldest = 0, freezing = 32, hottest = 1000;
  constexpr bool lastPass = true;
  Double twb = freezing;
  for (; twb <= hottest; twb += 1)
    if (compared(twb, !lastPass) >= target) break;
  for (; twb >= coldest; twb -= 0.01)
    if (compared(twb, !lastPass) <= target) break;
  for (; twb <= hottest; twb += 0.0001)
    if (compared(twb, lastPass) >= target) break;
}

class Psychro_2 final : public CalculatorWindow {
 public:
  explicit Psychro_2(Session& session);

  void Load() override;

 private:
  Layout Arrangement() override;

  void LinkTemperatures(TextField& fahrenheit, TextField& celsius);
  void OnClick(Option& option, TextField& us, TextField& metric);
  void OpenInputs();
  void Calculate();
  void CalcFromWetBulb();
  void CalcFromDewPoint();
  void CalcFromRH();
  template <class Compared>
  void FindWetBulb(Single target, Compared compared);
  void ShowDewPoint(Double dewPoint);
  void ShowResults(const MoistAir& air);

  TextField txt_dry_bulb{*this, "txt_dry_bulb", "Dry Bulb Temperature (F)", "70"};
  TextField txt_dry_bulb_C{*this, "txt_dry_bulb_C", "Dry Bulb Temperature (C)", "21.1"};
  Label unit_dry_bulb_{*this, "", "(C)"};
  TextField txt_wet_bulb{*this, "txt_wet_bulb", "Wet Bulb Temperature (F)", "60"};
  TextField txt_wet_bulb_C{*this, "txt_wet_bulb_C", "Wet Bulb Temperature (C)", "15.6"};
  Label unit_wet_bulb_{*this, "", "(C)"};
  TextField txt_altitude{*this, "txt_altitude", "Altitude (ft)", "0"};
  TextField txt_altitude_m{*this, "txt_altitude_m", "Altitude (m)", "0"};
  Label unit_altitude_{*this, "", "(m)"};
  TextField txt_dewpoint{*this, "txt_dewpoint", "Dew Point Temperature (F)"};
  TextField txt_dewpoint_C{*this, "txt_dewpoint_C", "Dew Point Temperature (C)"};
  Label unit_dewpoint_{*this, "", "(C)"};
  TextField txt_RH{*this, "txt_RH", "Relative Humidity (%)"};

  OptionGroup inputs_{*this, "", "Select Input Variables:"};
  Option opt_wb{inputs_, "opt_wb", "Dry Bulb Temp  &&  Wet Bulb Temp"};
  Option opt_dp{inputs_, "opt_dp", "Dry Bulb Temp  &&  Dew Point Temp"};
  Option opt_RH{inputs_, "opt_RH", "Dry Bulb Temp  &&  Relative Humidity"};

  TextField txt_P_atm_inHg{*this, "txt_P_atm_inHg", "Atmospheric Pressure (in Hg)"};
  TextField txt_P_atm_psi{*this, "txt_P_atm_psi", "Atmospheric Pressure (psi)"};
  TextField txt_P_atm_bar{*this, "txt_P_atm_bar", "Atmospheric Pressure (bar)"};
  TextField txt_P_vap_sat_inHg{*this, "txt_P_vap_sat_inHg", "Vapor Pressure at Saturation (in Hg)"};
  TextField txt_P_vap_sat_psi{*this, "txt_P_vap_sat_psi", "Vapor Pressure at Saturation (psi)"};
  TextField txt_P_vap_sat_mbar{*this, "txt_P_vap_sat_mbar", "Vapor Pressure at Saturation (mbar)"};
  TextField txt_P_vap_inHg{*this, "txt_P_vap_inHg", "Vapor Pressure (in Hg)"};
  TextField txt_P_vap_psi{*this, "txt_P_vap_psi", "Vapor Pressure (psi)"};
  TextField txt_P_vap_mbar{*this, "txt_P_vap_mbar", "Vapor Pressure (mbar)"};
  TextField txt_humidity_ratio_lb{*this, "txt_humidity_ratio_lb", "Humidity Ratio (lb/lb)"};
  TextField txt_humidity_ratio_gr{*this, "txt_humidity_ratio_gr", "Humidity Ratio (Gr/lb)"};
  TextField txt_humidity_ratio_kg_kg{*this, "txt_humidity_ratio_kg_kg", "Humidity Ratio (kg/kg)"};
  TextField txt_enthalpy{*this, "txt_enthalpy", "Enthalpy (btu/lb)"};
  TextField txt_enthalpy_kJ_kg{*this, "txt_enthalpy_kJ_kg", "Enthalpy (kJ/kg)"};
  TextField txt_specific_volume{*this, "txt_specific_volume", "Specific Volume (ft3/lb)"};
  TextField txt_specific_volume_m3_kg{*this, "txt_specific_volume_m3_kg",
                                      "Specific Volume (m3/kg)"};
  Label psi_atm_{*this, "", "(psi)"}, bar_atm_{*this, "", "(bar)"};
  Label psi_vap_sat_{*this, "", "(psi)"}, mbar_vap_sat_{*this, "", "(mbar)"};
  Label psi_vap_{*this, "", "(psi)"}, mbar_vap_{*this, "", "(mbar)"};
  Label gr_{*this, "", "(Gr/lb)"}, kg_kg_{*this, "", "(kg/kg)"};
  Label kJ_kg_{*this, "", "(kJ/kg)"}, m3_kg_{*this, "", "(m3/kg)"};

  Command btn_calculate{*this, "btn_calculate", "Calculate"};
  Command Command3{*this, "Command3", "Print"};
  Command Command2{*this, "Command2", "Help"};
  Command Command1{*this, "Command1", "Exit"};
};

}  // namespace korvane
