#include "shell/menu_catalogue.h"

#include <optional>

namespace korvane {
namespace {

/// What a click on an entry does.
struct Action {
  enum class Kind {
    Submenu,  ///< opens the next level
    Own,      ///< the main window acts itself, or another program is started
    Window,   ///< shows a window
    Table,    ///< shows a table file in a viewer
    Shapes,   ///< shows a window of structural shapes
    Tubing,   ///< shows the window of structural tubing
    Separator,
    Hidden,  ///< stands in the design, and is never shown
  };

  Kind kind;
  const char* window = "";
  const char* us = "";      // table file, section of shapes, or material of tubing
  const char* metric = "";  // table file where the data differ, title of shapes, or shape of tubing
  const char* material = "";  // of shapes, where it is told
  const char* page = "";      // help page
  bool slow = false;          // takes long to load
};

using Kind = Action::Kind;

constexpr Action Submenu() { return {Kind::Submenu}; }
constexpr Action Own() { return {Kind::Own}; }
constexpr Action Separator() { return {Kind::Separator}; }
constexpr Action Hidden() { return {Kind::Hidden}; }
constexpr Action Opens(const char* window, const char* page = "") {
  return {.kind = Kind::Window, .window = window, .page = page};
}
constexpr Action OpensSlowly(const char* window) {
  return {.kind = Kind::Window, .window = window, .slow = true};
}
/// One file in both unit systems, or a U.S. and a metric one.
constexpr Action ShowsTable(const char* both, const char* page) {
  return {.kind = Kind::Table, .window = "DISPLAY", .us = both, .metric = both, .page = page};
}
constexpr Action ShowsTable(const char* us, const char* metric, const char* page) {
  return {.kind = Kind::Table, .window = "DISPLAY", .us = us, .metric = metric, .page = page};
}
constexpr Action ShowsDrawing(const char* both, const char* page) {
  return {.kind = Kind::Table, .window = "DISPLAY2", .us = both, .metric = both, .page = page};
}
constexpr Action ShowsDrawing(const char* us, const char* metric, const char* page) {
  return {.kind = Kind::Table, .window = "DISPLAY2", .us = us, .metric = metric, .page = page};
}
constexpr Action Shapes(const char* window, const char* section, const char* title,
                        const char* material = "") {
  return {
      .kind = Kind::Shapes, .window = window, .us = section, .metric = title, .material = material};
}
constexpr Action Tubing(const char* material, const char* shape) {
  return {.kind = Kind::Tubing, .window = "Structural_Tubing", .us = material, .metric = shape};
}

struct CatalogueRow {
  int depth;
  const char* caption;
  const char* name;
  Action action;
};

// clang-format off
constexpr CatalogueRow kRows[] = {
    {0, "File", "File", Submenu()},
    {1, "Select Units", "Select_Units", Submenu()},
    {2, "Metric", "SI_Metric", Own()},
    {2, "U.S.", "Imperial", Own()},
    {1, "Set Data Path", "Set_Path", Opens("Folder_Browser")},
    {1, "Set Printer", "mnu_set_printer", Hidden()},
    {1, "Always On Top", "Always_on_top", Hidden()},
    {1, "Exit", "Exit", Own()},

    {0, "Math", "Math", Submenu()},
    {1, "Acceleration by Gravity", "Freefall", Opens("Free_Fall")},
    {1, "Areas of Plane Figures", "Surface_area", Opens("Areas")},
    {1, "ASCII Character Codes", "Ascii", ShowsTable("Ascii.dat", "math_ascii_character_codes.html")},
    {1, "Calculator", "calc", Own()},
    {1, "Conversion Factors", "Conversion", Opens("Conversion_Factors")},
    {1, "Engineering Constants", "EngConst", ShowsTable("Constants.dat", "math_engineering_constants.html")},
    {1, "Fractions - Decimals - Millimeters", "Dec_Frac", Submenu()},
    {2, "Chart", "Dec_Frac_mm", ShowsTable("Frac_Dec.dat", "math_fractions_decimals_millimeters.html")},
    {2, "Converter", "Dec_Frac_Metric", Opens("DecFract")},
    {1, "Orders of Magnitude", "OrderMag", Opens("OrderofMag")},
    {1, "Sound Pressure Levels", "Sound", ShowsTable("Sound.dat", "math_sound_presssure_levels.html")},
    {1, "Triangle Solutions", "Triangles", Opens("TRIANGLE")},
    {1, "Volumes of Solids", "Volumes_solids", Opens("Volumes_of_Solids")},

    {0, "HVAC", "HVAC", Submenu()},
    {1, "Air Flow Thru Perforated Plate", "Perf_pd", Opens("perfloss")},
    {1, "Blower Wheels", "blower_w", Opens("BLOWERS")},
    {1, "Clean Room Standards", "mnu_clean_room_standards", Submenu()},
    {2, "FS-209-D", "mnu_FS_209_D", ShowsTable("FS-209-D.dat", "hvac_clean_room_standards.html")},
    {2, "FS-209-E", "mnu_FS_209_E", ShowsTable("FS-209-E.dat", "hvac_clean_room_standards.html")},
    {2, "BS-5295", "mnu_BS_5295", ShowsTable("BS-5295.dat", "hvac_clean_room_standards.html")},
    {1, "Control Valve Sizing", "ControlValveSizing", Opens("Valve_Cv")},
    {1, "Convection Coefficients", "convect", Opens("convectn")},
    {1, "Duct Sizing", "DuctSize", Opens("Duct_Size")},
    {1, "Fan Law Calculations", "FanLaws", Opens("FanLawCalc")},
    {1, "Fluid Flow in Pipes", "Fluid_flow", Opens("flow_2")},
    {1, "Heat Index", "HeatIndex", Opens("Heat_Index")},
    {1, "Heat Load Calculations", "HeatLoad", Hidden()},
    {1, "Heat Loss - Insulated Pipes", "Heat_Loss_Insul_Pipes", Opens("Insulated_Pipes")},
    {1, "Inert Gas Purge Rate", "PurgeRate", Opens("Purge_Rate")},
    {1, "Orifice Flow", "OrificeFlow", Opens("FlowCalc")},
    {1, "Pipe Sizing", "PipeSize", Submenu()},
    {2, "Air", "AirPipes", ShowsTable("flow_air_US.dat", "flow_air_SI.dat", "hvac_pipe_sizing.html")},
    {2, "Natural Gas", "NaturalGas", ShowsTable("flow-gas.DAT", "hvac_pipe_sizing.html")},
    {2, "Steam", "SteamPipes", Hidden()},
    {2, "Water", "WaterPipes", ShowsTable("flow-h2o.DAT", "flo-h2om.DAT", "hvac_pipe_sizing.html")},
    {1, "Pressure and Boiling Point vs. Altitude", "Boil_Pt", Opens("Boiling_Point")},
    {1, "Properties of Air", "air_prop", ShowsTable("air-prop.DAT", "airpropm.dat", "hvac_properties_of_air.html")},
    {1, "Psychrometrics", "mnu_psychrometrics", Submenu()},
    {2, "Psychro Calculator", "mnu_Psychro_I", Opens("Psychro")},
    {2, "Psychro Calculator II", "mnu_psychro_II", Opens("Psychro_2")},
    {1, "Refrigerant Vapor Pressure", "Refrig_Data", Submenu()},
    {2, "Auto AC Type", "mnu_Refrigeration_Auto_AC_Type", ShowsTable("Refrigerants_Auto_AC_Type_US.dat", "Refrigerants_Auto_AC_Type_SI.dat", "hvac_refrigerant_vapor_pressure.html")},
    {2, "Centrifugal AC Type", "mnu_Refrigeration_Centrifugal_AC_Type", ShowsTable("Refrigerants_Centrifugal_AC_US.dat", "Refrigerants_Centrifugal_AC_SI.dat", "hvac_refrigerant_vapor_pressure.html")},
    {2, "R-12 Type", "mnu_Refrigeration_R12_Type", ShowsTable("Refrigerants_R-12_Type_US.dat", "Refrigerants_R-12_Type_SI.dat", "hvac_refrigerant_vapor_pressure.html")},
    {2, "R-22 Type", "mnu_Refrigeration_R22_Type", ShowsTable("Refrigerants_R-22_Type_US.dat", "Refrigerants_R-22_Type_SI.dat", "hvac_refrigerant_vapor_pressure.html")},
    {2, "R-502 Type", "mnu_Refrigeration_R502_Type", ShowsTable("Refrigerants_R-502_Type_US.dat", "Refrigerants_R-502_Type_SI.dat", "hvac_refrigerant_vapor_pressure.html")},
    {2, "Ultra Low Temp", "mnu_Refrigeration_Ultra_Low_Temp", ShowsTable("Refrigerants_Ultra_Low_Temp_US.dat", "Refrigerants_Ultra_Low_Temp_SI.dat", "hvac_refrigerant_vapor_pressure.html")},
    {1, "Safety Ventilation", "SafetyVent", Opens("SAFEVENT")},
    {1, "Saturation Tables", "Sat_Tables", Submenu()},
    {2, "Liquid Phase Data", "Liq_phase", Submenu()},
    {3, "Pressure Increments", "Pres_inc_liq", ShowsTable("liquid-p.DAT", "Sat_LP_M.dat", "hvac_saturation_tables.html")},
    {3, "Temperature Increments", "temp_inc_liq", ShowsTable("liquid-t.DAT", "Sat_LT_M.dat", "hvac_saturation_tables.html")},
    {2, "Vapor Phase Data", "vapor_phase", Submenu()},
    {3, "Pressure Increments", "pres_inc_vapor", ShowsTable("vapor-p.DAT", "Sat_VP_M.dat", "hvac_saturation_tables.html")},
    {3, "Temperature Increments", "temp_inc_vapor", ShowsTable("vapor-t.DAT", "Sat_VT_M.dat", "hvac_saturation_tables.html")},
    {2, "Phase Change Data", "phase_change", Submenu()},
    {3, "Pressure Increments", "phase_change_p", ShowsTable("steam-p.DAT", "Steam-pm.dat", "hvac_saturation_tables.html")},
    {3, "Temperature Increments", "phase_change_t", ShowsTable("steam-t.DAT", "Steam-tm.DAT", "hvac_saturation_tables.html")},
    {1, "Solar Radiation", "SolarRad", ShowsTable("solar.DAT", "hvac_solar_radiation.html")},
    {1, "Standard Atmosphere Data", "mnu_standard_atmosphere", Submenu()},
    {2, "Calculations", "Std_Atm", Opens("Std_Atmosphere", "hvac_standard_atmosphere_data.html")},
    {2, "Table (SI Units)", "mnu_std_atm_table_SI", ShowsTable("Std_Atm_SI.dat", "hvac_standard_atmosphere_data.html")},
    {2, "Table (US Units)", "mnu_std_atm_table_US", ShowsTable("Std_Atm_US.dat", "hvac_standard_atmosphere_data.html")},
    {1, "Steam Pipe Sizing", "Steam_pipe", Opens("steamflo")},
    {1, "Temperature Conversions", "TempConv", Opens("TEMP_CVT")},
    {1, "Water Hammer", "W_Hammer", Opens("Water_Hammer")},
    {1, "Wind Chill Factor", "Wind_Chill", Opens("Wind_Chill_Factor")},

    {0, "Mechanical", "Mechanical", Submenu()},
    {1, "Belt Conveyors", "Conveyors", Opens("CONVEYOR")},
    {1, "Critical Speed", "CriticalSpeed", Opens("crit_spd")},
    {1, "Drill Sizes", "DrillSizes", ShowsTable("drillsiz.dat", "mechanical_drill_sizes.html")},
    {1, "Fastener Torque", "fastener_torque", Opens("fastener")},
    {1, "Fluid Power", "Fluid_Pwr", Submenu()},
    {2, "Hydraulic Cylinders", "Hydraulic_Cyl", Opens("Hydraulic_cylinders")},
    {2, "Pneumatic Cylinders", "Air_Cyl", Opens("Pneumatic_cylinders")},
    {2, "Rod Buckling Calculation", "Rod_Buckling", Opens("Rod_Buckling_Calc")},
    {2, "Working and Burst Pressures", "Pipe_Burst_Pressure", Opens("Pipe_Bursting_Pressure")},
    {1, "Keys and Keyseats", "Keys", ShowsTable("keys_inch.dat", "Met_Keys.dat", "mechanical_keys_keyseats.html")},
    {1, "Lineshaft Sizing", "Lineshaft", Opens("linshaft")},
    {1, "Moment of Inertia", "Moment", Opens("MOMENT_I")},
    {1, "Power and Torque", "Horsepower", Opens("HP_TORQUE")},
    {1, "Roller Chain Dimensions", "Roller_Chain", ShowsTable("Chain-e.dat", "Chain-m.dat", "mechanical_roller_chain_dimensions.html")},
    {1, "Roller Chain Sprockets", "ChainDrives", Opens("SPROCKET")},
    {1, "Rope and Cable Data", "mnu_rope_cable", Submenu()},
    {2, "Fiber Ropes", "mnu_fiber_ropes", Submenu()},
    {3, "Braided", "mnu_fiber_lines_braided", ShowsTable("Fiber_Ropes_Braided_US.dat", "Fiber_Ropes_Braided_SI.dat", "mechanical_rope_and_cable_data.html")},
    {3, "Twisted", "mnu_fiber_lines_twisted", ShowsTable("Fiber_Ropes_Twisted_US.dat", "Fiber_Ropes_Twisted_SI.dat", "mechanical_rope_and_cable_data.html")},
    {2, "Wire Ropes", "mnu_rope_wire", Submenu()},
    {3, "6 x 19 - Fiber Core - IPS", "mnu_6x19class", ShowsTable("WR_6x19_FC_IPS.dat", "mechanical_rope_and_cable_data.html")},
    {3, "6 x 37 - Fiber Core - IPS", "mnu_6x37class", ShowsTable("WR_6x37_FC_IPS.dat", "mechanical_rope_and_cable_data.html")},
    {3, "6 x 37 - IWRC - XIPS", "mnu_6x37class_IRWC_XIPS", ShowsTable("WR_6x37_IWRC_XIPS.dat", "mechanical_rope_and_cable_data.html")},
    {3, "6 x 37 - IWRC - XXIPS", "mnu_6x37class_IRWC_XXIPS", ShowsTable("WR_6x37_IWRC_XXIPS.dat", "mechanical_rope_and_cable_data.html")},
    {3, "8 x 19 - Spin Resistant - FC - IPS", "mnu_8x19_spin_res_FC_IPS", ShowsTable("WR_8x19_Spin-Res_FC_IPS.dat", "mechanical_rope_and_cable_data.html")},
    {1, "Screw Threads", "ScrewThreads", Opens("screws", "mechanical_screw_threads.html")},
    {1, "Section Properties Calculator", "Section_Prop", Opens("Section_Properties")},
    {1, "Shear Keys", "Shear_Key", Opens("Shear_Keys")},
    {1, "Sleeve Bearing PV Limits", "mnu_Sleeve_Bearings", ShowsTable("PV_Limits.dat", "mechanical_sleeve_bearing_PV_limits.html")},
    {1, "Spur Gear Calculations", "mnu_SpurGear", Opens("GearCalc")},
    {1, "Stress and Deflection", "stress", Submenu()},
    {2, "Beams", "beam_str", Opens("beams")},
    {2, "Beams II", "mnu_beams_II", Opens("Beam_Calc")},
    {2, "Columns", "column", Opens("columns2")},
    {2, "Flat Plates", "Flat_Plates", Opens("Plate_Deflection")},
    {1, "Torsional Deflection of Shafting", "twist", Opens("torsion")},
    {1, "V-Belt Drives", "BeltDrives", Opens("V_BELT")},
    {1, "Wood Screw Pilot Holes", "Pilot_Holes", ShowsTable("Pilothol.dat", "mechanical_wood_screw_pilot_holes.html")},

    {0, "Electrical", "Electrical", Submenu()},
    {1, "AC Power Calculations", "ACPower", Opens("AC_Power")},
    {1, "Air Coil Inductor Design", "inductor_design", Opens("inductor")},
    {1, "Capacitor Calculations", "RC_Circuits", Opens("RC_Calculations")},
    {1, "Electrical Enclosure Ratings", "Electrical_Enclosures", Submenu()},
    {2, "IP", "IP", Opens("IP_Codes")},
    {2, "NEMA", "NEMA", Opens("Nema_box")},
    {1, "Electric Motor FLA Ratings", "ElectricMotor", Submenu()},
    {2, "Three Phase AC Motors", "AC_FLA", ShowsTable("3PH-FLA.DAT", "3PH-FLC.DAT", "electrical_electric_motor_fla_ratings.html")},
    {2, "Single Phase AC Motors", "single_phase_fla", ShowsTable("fla-1ph.DAT", "electrical_electric_motor_fla_ratings.html")},
    {2, "DC Motors", "DCMotors", Hidden()},
    {1, "Electric Motor Frames", "NEMA_FRAMES", Submenu()},
    {2, "AC Motor Dimensions", "AC_MOTOR", ShowsDrawing("ACMOTORS.dat", "IECframe.dat", "electrical_ac_motor_dimensions.html")},
    {2, "IEC vs NEMA Comparison", "IEC_NEMA", ShowsDrawing("IEC_NEMA.dat", "electrical_iec_vs_nema_frames.html")},
    {2, "DC Motor Dimensions", "DC_motor", Hidden()},
    {2, "NEMA Standard Frames", "NemaStandards", ShowsTable("NEMAFRAM.DAT", "electrical_nema_standard_frames.html")},
    {1, "Enclosure Cooling Calculations", "mnu_Enclosure_Cooling", Opens("Enclosure_Cooling")},
    {1, "Inductor Calculations", "RL_Circuits", Opens("RL_Calculations")},
    {1, "Hazard Classifications (NEC)", "mnu_Hazard_Classifications", Opens("Hazard_Class")},
    {1, "L-C Resonant Frequency", "LC_Tank", Opens("LC_Calculations")},
    {1, "Lighting Calculations", "Lighting", Hidden()},
    {1, "NEMA Starter Sizes", "NemaStarters", ShowsTable("starters.DAT", "electrical_nema_starter_sizes.html")},
    {1, "Ohm's Law Calculations", "OhmsLaw", Opens("OHMS_LAW")},
    {1, "Parallel Plate Capacitor Design", "Plate_Caps", Opens("Plate_Capacitors")},
    {1, "Resistor Color Codes", "Color_codes", Opens("Resistor_Color_Codes")},
    {1, "Voltage Drop Calculations", "Voltage_Drops", Opens("voltage_drop")},
    {1, "Wire Tables", "WireTables", Submenu()},
    {2, "Aluminum Wire", "Alwire", ShowsTable("alumWIRE.dat", "AlumWirM.dat", "electrical_wire_tables.html")},
    {2, "Copper Wire", "CuWire", ShowsTable("COPRWIRE.dat", "CoprWirM.dat", "electrical_wire_tables.html")},

    {0, "Materials", "Materials", Submenu()},
    {1, "Mechanical Properties of Materials", "MechProp", Submenu()},
    {2, "Metals", "Mprop_Metals", ShowsTable("Mech_Prop_Met_US.dat", "Mech_Prop_Met_SI.dat", "materials_mechanical_properties.html")},
    {2, "Non-Metals", "Mprop_Non_Metals", ShowsTable("Mech_Prop_Non-met_US.dat", "Mech_Prop_Non-met_SI.dat", "materials_mechanical_properties.html")},
    {1, "Physical Properties of Materials", "PhysProp", Submenu()},
    {2, "Metals", "pprop_metals", ShowsTable("Phys_Prop_Met_US.dat", "Phys_Prop_Met_SI.dat", "materials_physical_properties.html")},
    {2, "Non-Metals", "pprop_non_metals", Hidden()},
    {1, "Thermal Properties of Materials", "ThermProp", Submenu()},
    {2, "Gases", "tp_gasses", ShowsTable("Therm_Prop_Gas_US.dat", "Therm_Prop_Gas_SI.dat", "materials_thermal_properties.html")},
    {2, "Liquids", "tp_liquids", ShowsTable("Therm_Prop_Liq_US.dat", "Therm_Prop_Liq_SI.dat", "materials_thermal_properties.html")},
    {2, "Metals", "tprop_metals", ShowsTable("Therm_Prop_Met_US.dat", "Therm_Prop_Met_SI.dat", "materials_thermal_properties.html")},
    {2, "Non-metallic Solids", "tp_nonmet", ShowsTable("Therm_Prop_Non-met_US.dat", "Therm_Prop_Non-met_SI.dat", "materials_thermal_properties.html")},
    {1, "----------------------------------------", "", Separator()},
    {1, "Aluminum Temper Designations", "mnu_aluminum_temper", ShowsTable("Al_Temper.dat", "materials_aluminum_temper_designations.html")},
    {1, "Coefficients of Friction", "Friction", ShowsTable("friction.dat", "materials_coefficients_of_friction.html")},
    {1, "Cryogen Data", "mnu_cryogens", ShowsTable("Cryogens.dat", "materials_cryogen_data.html")},
    {1, "Dielectric Constants", "Dielectric_Constants", ShowsTable("Dielectric.dat", "materials_dielectric_constants.html")},
    {1, "Emissivity - Typical Values", "mnu_emissivity", ShowsTable("Emissivity.dat", "materials_emissivity_data.html")},
    {1, "Fuel Gases - Heat of Combustion", "mnu_heat_of_Combustion", ShowsTable("Heats_of_Combustion.dat", "materials_fuel_gases_heat_combustion.html")},
    {1, "Galvanic Series in Salt Water", "mnu_Cathodic", ShowsTable("Cathodic_Series.dat", "materials_galvanic_series_salt_water.html")},
    {1, "Hardness Scales", "mnu_hardness", ShowsTable("hardness.dat", "materials_hardness_scales.html")},
    {1, "Heat and Temper Colors", "Heat_Colors", ShowsTable("Color_Temp.dat", "materials_heat_temper_colors.html")},
    {1, "Index of Refraction", "mnu_Index_of_Refraction", ShowsTable("Index_of_Refraction.dat", "materials_index_of_refraction.html")},
    {1, "Insulation k-Factors", "mnu_insulation", ShowsTable("insulation.dat", "materials_insulation_k_factors.html")},
    {1, "Nails", "mnu_nails", Submenu()},
    {2, "Box Nails", "mnu_nails_box", ShowsTable("Nails_Box.dat", "materials_nails.html")},
    {2, "Common Nails", "mnu_common_nails", Submenu()},
    {3, "Ring Barb Shank", "mnu_nails_common_ring", ShowsTable("Nails_Common_Ring.dat", "materials_nails.html")},
    {3, "Smooth Shank", "mnu_nails_common_smooth", ShowsTable("Nails_Common_Smooth.dat", "materials_nails.html")},
    {2, "Finishing Nails", "mnu_finishing_nails", ShowsTable("Nails_Finishing.dat", "materials_nails.html")},
    {2, "Roofing Nails", "mnu_nails_roofing", Submenu()},
    {3, "Ring Barb Shank", "mnu_nails_roofing_ring", ShowsTable("Nails_Roofing_Ring.dat", "materials_nails.html")},
    {3, "Smooth Shank", "mnu_nails_roofing_smooth", ShowsTable("Nails_Roofing_Smooth.dat", "materials_nails.html")},
    {1, "O-Ring Standard Sizes", "O_Rings", ShowsTable("O-Rings.dat", "materials_o-ring_standard_sizes.html")},
    {1, "Periodic Chart of the Elements", "PeriodicChart", OpensSlowly("PERIODIC")},
    {1, "Pipe and Tubing", "mnu_pipe_and_tubing", Submenu()},
    {2, "NPS to BSP Pipe Size Comparison", "mnu_NPS_BSP", ShowsTable("NPS-BSP.dat", "materials_nps_to_bps_pipe_size_comparison.html")},
    {2, "NPS to DN Pipe Size Comparison", "NPS_DN", ShowsTable("NPS-DN.dat", "materials_nps_to_dn_pipe_size_comparison.html")},
    {2, "Pipe and Tubing Data", "pipetube", Opens("pipedata")},
    {2, "Schedule 40 Pipe Data", "Sched40pipe", Opens("Sched40")},
    {1, "Plastics Properties", "mnu_plastics_properties", ShowsTable("plastics_us.dat", "plastics_si.dat", "materials_plastics_properties.html")},
    {1, "Sheet Metal Gauge-Weight Calculator", "SheetMetal", Opens("SheetMet")},
    {1, "Standard Sheet Gauges", "Sheet_Gauges", ShowsTable("Sheet_Gauges.dat", "Sheet_Gauges_m.dat", "materials_standard_sheet_gauges.html")},
    {1, "Standard Wire Gauges", "Wire_Gauges", ShowsTable("Wire_Gauges.dat", "Wire_Gauges_m.dat", "materials_standard_wire_gauges.html")},

    {0, "Structural", "Structural", Submenu()},
    {1, "Structural Aluminum Shapes", "Aluminum", Submenu()},
    {2, "Aluminum Angles - Equal", "AlumAngles", Shapes("SteelAng", "[ALUMINUM EQUAL ANGLES]", "Aluminum Equal Angles", "Aluminum")},
    {2, "Aluminum Angles - Unequal", "AlumUnequalAngles", Shapes("SteelAng", "[ALUMINUM UNEQUAL ANGLES]", "Aluminum Unequal Angles", "Aluminum")},
    {2, "Aluminum Association Channels", "AlumChannels", Shapes("stl_chan", "[ALUMINUM ASSOCIATION CHANNELS]", "Aluminum Association Channels")},
    {2, "Aluminum Standard Channels", "AlumStandardChannels", Shapes("stl_chan", "[ALUMINUM STANDARD CHANNELS]", "Aluminum Standard Channels")},
    {2, "Aluminum Association I-Beams", "AlumAssocBeams", Shapes("Wbeams", "[ALUMINUM ASSOCIATION I-BEAMS]", "Aluminum Association I-Beams")},
    {2, "Aluminum Standard I-Beams", "AlumStandardBeams", Shapes("Wbeams", "[ALUMINUM STANDARD W-BEAMS]", "Aluminum Standard W-Beams")},
    {2, "Aluminum Rectangular Tubing", "AlumTubing", Tubing("Aluminum", "Rectangular")},
    {2, "Aluminum Square Tubing", "alum_square_tubing", Tubing("Aluminum", "Square")},
    {1, "Structural Steel Shapes", "steel", Submenu()},
    {2, "Steel Angles - Equal", "SteelAngles", Shapes("SteelAng", "[STEEL EQUAL ANGLES]", "Steel Equal Angles", "Steel")},
    {2, "Steel Angles - Unequal", "SteelUnequalAngles", Shapes("SteelAng", "[STEEL UNEQUAL ANGLES]", "Steel Unequal Angles", "Steel")},
    {2, "Steel Channels", "SteelChannels", Shapes("stl_chan", "[STEEL CHANNELS]", "Steel Channels")},
    {2, "Steel I-Beams (S Sections)", "SteelS", Shapes("Wbeams", "[STEEL S-BEAMS]", "Steel S-Beams")},
    {2, "Steel I-Beams (W Sections)", "SteelW", Shapes("Wbeams", "[STEEL W-BEAMS]", "Steel W-Beams")},
    {2, "Steel Rectangular Tubing", "SteelTubing", Tubing("Steel", "Rectangular")},
    {2, "Steel Square Tubing", "steel_square_tubing", Tubing("Steel", "Square")},

    {0, "Help", "Help", Submenu()},
    {1, "Help Contents", "Index", Own()},
    {1, "------------------------", "", Separator()},
    {1, "Korvane Web Site", "Korvane_Web_Site", Own()},
    {1, "------------------------", "", Separator()},
    {1, "Check for Updates", "mnu_check_for_updates", Own()},
    {1, "------------------------", "", Separator()},
    {1, "About...", "About", Own()},
};
// clang-format on

// ---- Doing what an entry says ----

void ShowWindow(Session& session, const Action& action) {
  if (*action.page != '\0') session.HelpTopic = action.page;
  std::optional<Hourglass> hourglass;
  if (action.slow) {
    hourglass.emplace(session.GetPlatform());
    session.RunPendingMessages();
  }
  if (session.IsModalUnit(action.window))
    session.ShowModal(action.window);
  else
    session.Show(action.window);
}

void ShowTable(Session& session, const CatalogueRow& row) {
  // The viewer reads its file at load only. One entry closes the plain viewer before it shows the
  // one with the drawing, which, if it is open, therefore keeps its table.
  const bool uneven = std::string_view(row.name) == "IEC_NEMA";
  session.Unload(uneven ? "DISPLAY" : row.action.window);
  session.DataFileName = session.MetricUnits ? row.action.metric : row.action.us;
  session.HelpTopic = row.action.page;
  session.Show(row.action.window);
}

void ShowShapes(Session& session, const Action& action) {
  session.Unload(action.window);
  session.ShapeSection = action.us;
  session.ShapeTitle = action.metric;
  if (*action.material != '\0') session.ShapeMaterial = action.material;
  session.Show(action.window);
}

void ShowTubing(Session& session, const Action& action) {
  session.Unload(action.window);
  session.TubingMaterial = action.us;
  session.TubingShape = action.metric;
  session.Show(action.window);
}

std::function<void()> HandlerOf(Session& session, const CatalogueRow& row) {
  switch (row.action.kind) {
    case Kind::Window: return [&session, &row] { ShowWindow(session, row.action); };
    case Kind::Table: return [&session, &row] { ShowTable(session, row); };
    case Kind::Shapes: return [&session, &row] { ShowShapes(session, row.action); };
    case Kind::Tubing: return [&session, &row] { ShowTubing(session, row.action); };
    default: return {};
  }
}

}  // namespace

MenuBar BuildMenu(const MenuOwner& owner) {
  MenuBar menu;
  for (const CatalogueRow& row : kRows) {
    MenuEntry entry;
    entry.depth = row.depth;
    entry.caption = row.caption;
    entry.name = row.name;
    entry.separator = row.action.kind == Kind::Separator;
    entry.visible = row.action.kind != Kind::Hidden;
    const auto own = owner.own.find(row.name);
    entry.onClick = own != owner.own.end() ? own->second : HandlerOf(owner.session, row);
    menu.Entries().push_back(std::move(entry));
  }
  return menu;
}

void ShowUnitEntries(MenuBar& menu, bool metric) {
  struct UnitEntry {
    const char* name;
    bool metric;
  };
  constexpr UnitEntry kUnitEntries[] = {
      {"AlumChannels", false}, {"AlumAssocBeams", false}, {"AlumStandardBeams", true}};
  for (const UnitEntry& unit : kUnitEntries)
    if (MenuEntry* entry = menu.Find(unit.name)) entry->visible = unit.metric == metric;
}

}  // namespace korvane
