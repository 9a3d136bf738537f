// The data files that calculators write, byte by byte: signature, labels, order and form of values.
#include <gtest/gtest.h>

#include "support/scripted_session.h"
#include "support/temporary_folder.h"

namespace korvane::testing {
namespace {

struct Saved {
  const char* window;
  const char* command;
  std::vector<const char*> clicks;  ///< before fields are filled
  std::vector<std::pair<const char*, const char*>> fields;
  const char* bytes;
};

void PrintTo(const Saved& saved, std::ostream* out) { *out << saved.window; }

const Saved kSaved[] = {
    {"CONVEYOR",
     "Command1",
     {},
     {},
     "CONVEYORS\r\nLength,216\r\nWidth,24\r\nBelt weight,2.2\r\nFriction,.35\r\n"
     "Conveyor sprocket dia,6.16\r\nBelt speed,60\r\nProduct weight,1000\r\n"
     "Load type,Steady load\r\nDrive type,Chain\r\nChain size,40\r\n"
     "Headshaft sprocket teeth,36\r\nGearbox sprocket teeth,12\r\nOperating temp,350\r\n"
     "Expansion coef,.00000633\r\nShaft diameter,1\r\nCombined stress,9448\r\n"
     "Solve for,Stress\r\nUse SF,No\r\n"},
    {"CONVEYOR",
     "Command1",
     {"opt_minor", "chk_keyway", "opt_dia_solve"},
     {{"txt_headshaft_dia", "1.250"},
      {"txt_combined_stress", " 7000."},
      {"CMB_RC", ""},
      {"cmb_headshaft_TEETH", "1"},
      {"cmb_gearbox_teeth", "2"},
      {"txt_belt_speed", "speed"}},
     "CONVEYORS\r\nLength,216\r\nWidth,24\r\nBelt weight,2.2\r\nFriction,.35\r\n"
     "Conveyor sprocket dia,6.16\r\nBelt speed,speed\r\nProduct weight,1000\r\n"
     "Load type,Minor shocks\r\nDrive type,Chain\r\nChain size,3\r\n"
     "Headshaft sprocket teeth,1\r\nGearbox sprocket teeth,2\r\nOperating temp,350\r\n"
     "Expansion coef,.00000633\r\nShaft diameter,1.250\r\nCombined stress, 7000.\r\n"
     "Solve for,Dia\r\nUse SF,Yes\r\n"},
    {"CONVEYOR",
     "Command1",
     {"opt_heavy", "opt_direct_drive"},
     {{"txt_Conveyor_Length", "1"},
      {"txt_Belt_Width", "2"},
      {"txt_belt_weight", "3"},
      {"txt_friction_coef", "4"},
      {"txt_conv_sprocket_dia", "5"},
      {"txt_belt_speed", "6"},
      {"txt_product_weight", "7"},
      {"txt_operating_temp", "8"},
      {"txt_expansion_coef", "9"},
      {"txt_headshaft_dia", "10"},
      {"txt_combined_stress", "11"}},
     "CONVEYORS\r\nLength,1\r\nWidth,2\r\nBelt weight,3\r\nFriction,4\r\n"
     "Conveyor sprocket dia,5\r\nBelt speed,6\r\nProduct weight,7\r\nLoad type,Heavy shocks\r\n"
     "Drive type,Direct\r\nChain size,40\r\nHeadshaft sprocket teeth,36\r\n"
     "Gearbox sprocket teeth,12\r\nOperating temp,8\r\nExpansion coef,9\r\n"
     "Shaft diameter,10\r\nCombined stress,11\r\nSolve for,Stress\r\nUse SF,No\r\n"},
    {"beams",
     "Command4",
     {"rigid", "conc"},
     {{"L", " 1.50"}, {"W", ".5"}, {"I", "1,000"}, {"Z", ""}, {"E", "29000000.5"}},
     "BEAMS\r\nSpan, 1.50\r\nLoad,.5\r\nI,1,000\r\nZ,\r\nE,29000001\r\nBeam Type,Rigid\r\n"
     "Load Type,Conc\r\nTorque,\r\n"},
    {"beams",
     "Command4",
     {"cantilevered"},
     {{"L", "3"}, {"E", "0"}, {"TORQUE", "7."}},
     "BEAMS\r\nSpan,3\r\nLoad,\r\nI,\r\nZ,\r\nE,\r\nBeam Type,Cantilevered\r\nLoad Type,Uniform\r\n"
     "Torque,7.\r\n"},
    {"flow_2",
     "Command1",
     {},
     {{"txt_diameter", "2."},
      {"txt_gpm", "40."},
      {"txt_cfm", "5.3"},
      {"txt_Z", "-1"},
      {"txt_SSU", "31"},
      {"txt_centistokes", "1.2"},
      {"txt_dynamic_viscosity", "d"},
      {"txt_kinematic_viscosity", "k"},
      {"txt_elbows90L", "1"},
      {"txt_elbows90", "2"},
      {"txt_elbows90st", "3"},
      {"txt_elbows45", "4"},
      {"txt_elbows45st", "5"},
      {"txt_gvalves", "6"},
      {"txt_gvalves75", "7"},
      {"txt_gvalves50", "8"},
      {"txt_gvalves25", "9"},
      {"txt_globes", "10"},
      {"txt_angles", "11"},
      {"txt_bvalves", "12"},
      {"txt_swing_checks", "13"},
      {"txt_ball_checks", "14"},
      {"txt_tee_run", "15"},
      {"txt_tee_branch", "16"}},
     "FLUID FLOW\r\nPipe ID,2.\r\nPipe length,100\r\nFlow gpm,40.\r\nFlow scfm,5.3\r\n"
     "Elevation,-1\r\nDensity,62.42\r\nViscosity cp,1\r\nViscosity cs,1.2\r\nViscosity ssu,31\r\n"
     "Dynamic viscosity,d\r\nKinematic viscosity,k\r\nRoughness factor,0.0005\r\nelbows90L,1\r\n"
     "elbows90,2\r\nelbows90st,3\r\nelbows45,4\r\nelbows45st,5\r\ngvalves,6\r\ngvalves75,7\r\n"
     "gvalves50,8\r\ngvalves25,9\r\nglobes,10\r\nangles,11\r\nbvalves,12\r\nswing_checks,13\r\n"
     "ball_checks,14\r\ntee_run,15\r\ntee_branch,16\r\n"},
    {"linshaft",
     "Command2",
     {"opt_heavy", "chk_keyway", "opt_dia_solve"},
     {{"txt_L", "1"},
      {"txt_d", "2"},
      {"txt_e_tensile", "3"},
      {"txt_G", "4"},
      {"txt_J", "5"},
      {"txt_z", "6"},
      {"txt_rpm", "7"},
      {"txt_power", "8"},
      {"txt_torque", "9"},
      {"txt_twist", ".10"},
      {"txt_max_stress", "11"},
      {"txt_combined_stress", "12"},
      {"txt_side_load", "13"},
      {"txt_brg_dist", "14"},
      {"txt_Bending_torque", "15"},
      {"txt_defl_mid", "16"},
      {"txt_side_stress", ""}},
     "LINESHAFT SIZING\r\nLoad type,Heavy\r\nKeyway SF,Yes\r\nSolve for,Diameter\r\nLength,1\r\n"
     "Dia,2\r\nE,3\r\nG,4\r\nJ,5\r\nZ,6\r\nRPM,7\r\nHP,8\r\nTorque,9\r\n"
     "Torsional deflection,.10\r\nMax shear stress,11\r\nMax combined stress,12\r\n"
     "Total side load,13\r\nBearing distance,14\r\nBending torque,15\r\n"
     "Midpoint deflection,16\r\nStress at ends,\r\n"},
    {"linshaft",
     "Command2",
     {},
     {},
     "LINESHAFT SIZING\r\nLoad type,Steady\r\nKeyway SF,No\r\nSolve for,Stress\r\nLength,\r\n"
     "Dia,\r\nE,30000000\r\nG,11500000\r\nJ,\r\nZ,\r\nRPM,\r\nHP,\r\nTorque,\r\n"
     "Torsional deflection,\r\nMax shear stress,\r\nMax combined stress,\r\n"
     "Total side load,\r\nBearing distance,\r\nBending torque,\r\n"
     "Midpoint deflection,\r\nStress at ends,\r\n"},
    {"crit_spd",
     "Command4",
     {},
     {{"txt_brg_spacing", "1"},
      {"txt_overhang", "2"},
      {"txt_shaft_dia", "3"},
      {"txt_shaft_weight", "4"},
      {"txt_moment_i", ".5"},
      {"txt_impeller_wt", "6"}},
     "CRITICAL SPEED\r\nBearing spacing,1\r\nOverhang,2\r\nShaft dia,3\r\nShaft weight,4\r\n"
     "Moment of inertia,.5\r\nElastic modulus,30000000\r\nImpeller weight,6\r\n"
     "Bearing tolerance,0\r\nSupport spring constant,2000000\r\n"},
    {"torsion",
     "Command6",
     {},
     {{"txt_L", "1"},
      {"txt_d", "2"},
      {"txt_RPM", "3"},
      {"txt_power", "4"},
      {"txt_torque", "5"},
      {"txt_J", "6"},
      {"txt_z", "7"},
      {"txt_twist", "8"},
      {"txt_max_stress", "9"}},
     "TORSIONAL DEFLECTION\r\nLength,1\r\nDiameter,2\r\nG,11500000\r\nRPM,3\r\nHP,4\r\n"
     "Torque,5\r\nJ,6\r\nZ,7\r\nDeflection,8\r\nMax stress,9\r\n"},
    {"columns2",
     "Command1",
     {"opt_pinned_pinned", "opt_conservative", "opt_euler_adjusted"},
     {{"txt_length", ""},
      {"txt_yield", "36,000"},
      {"txt_E", "2.9e7"},
      {"txt_I", ".1"},
      {"txt_area", "2."},
      {"txt_rad_gyr", "x"},
      {"txt_safety_factor", "3"},
      {"txt_k", "1.10"}},
     "COLUMNS\r\nLength,\r\nYield,36,000\r\nE,2.9e7\r\nI,.1\r\nArea,2.\r\n"
     "Radius of gyration,x\r\nSafety factor,3\r\nEnd conditions,Pinned - Pinned\r\n"
     "K Factor Option,Conservative\r\nEffective Length Constant,1.10\r\n"
     "Formula,Euler (Adjusted)\r\n"},
    {"columns2",
     "Command1",
     {"opt_fixed_pinned", "opt_engineering", "opt_euler"},
     {},
     "COLUMNS\r\nLength,\r\nYield,36000\r\nE,29000000\r\nI,.0873\r\nArea,.4939\r\n"
     "Radius of gyration,.4205\r\nSafety factor,5\r\nEnd conditions,Fixed - Pinned\r\n"
     "K Factor Option,Engineering\r\nEffective Length Constant,0.8\r\nFormula,Euler\r\n"},
    {"Plate_Deflection",
     "txt_save",
     {"opt_fixed", "opt_uniform"},
     {{"txt_long_side", "20."}, {"txt_short_side", ".5"}, {"txt_unit_load", "7"}},
     "PLATES\r\nLong Side,20.\r\nShort Side,.5\r\nDiameter,\r\nPlate Thickness,0.157\r\n"
     "Elastic Modulus,30000000\r\nPoisson's Ratio,0.3\r\nPlate Density,\r\nTotal Load,\r\n"
     "Unit Load,7\r\nPlate Type,Rectangular\r\nSupport Type,Fixed\r\nLoad Type,Uniform\r\n"},
    {"Plate_Deflection",
     "txt_save",
     {"opt_circular", "opt_concentrated"},
     {},
     "PLATES\r\nLong Side,18\r\nShort Side,18\r\nDiameter,\r\nPlate Thickness,0.157\r\n"
     "Elastic Modulus,30000000\r\nPoisson's Ratio,0.3\r\nPlate Density,\r\nTotal Load,100\r\n"
     "Unit Load,0.392975\r\nPlate Type,Circular\r\nSupport Type,Simple\r\n"
     "Load Type,Concentrated\r\n"},
    {"MOMENT_I",
     "btn_save",
     {"Option7"},
     {{"T1", ".5"}, {"T3", "2."}},
     "MOMENT OF INERTIA\r\nX-section option,Option7\r\nDIM1,.5\r\nDIM2,\r\nDIM3,2.\r\n"
     "DIM4,\r\n"},
    {"Hydraulic_cylinders",
     "btn_save",
     {},
     {{"cmb_bore_dia", "2.50"},
      {"cmb_rod_dia", ".5"},
      {"txt_pressure", "1,500"},
      {"txt_extend_speed", ""},
      {"txt_retract_speed", "x"}},
     "HYDRAULIC CYLINDERS\r\nBore Diameter,2.50\r\nRod Diameter,.5\r\nPressure,1,500\r\n"
     "Stroke,12\r\nExtend Speed,\r\nRetract Speed,x\r\n"},
    {"Pneumatic_cylinders",
     "btn_save",
     {},
     {{"cmb_rod_dia", "0"}, {"txt_stroke", "3"}, {"txt_extend_speed", "4"}},
     "PNEUMATIC CYLINDERS\r\nBore Diameter,1\r\nRod Diameter,0\r\nPressure,100\r\nStroke,3\r\n"
     "Extend Speed,4\r\nRetract Speed,0\r\n"},
    {"Rod_Buckling_Calc",
     "btn_save",
     {"btn_geometry(7)"},
     {{"txt_dia", " 2."}, {"txt_SF", ""}},
     "ROD BUCKLING\r\nButton, 7 \r\nGeometry Factor,2.0\r\nRod Diameter, 2.\r\n"
     "Stroke Length,39.37\r\nElastic Modulus,29000000\r\nSafety Factor,\r\n"},
    {"convectn",
     "Command1",
     {"opt_top"},
     {{"txt_fpm", "3e2"}, {"txt_surf_temp", "180."}, {"txt_sq_ft", ""}},
     "CONVECTION\r\nVelocity,3e2\r\nSurface temp,180.\r\nAmbient temp,70\r\nSurface area,\r\n"
     "Orientation,Top\r\n"},
    {"convectn",
     "Command1",
     {"opt_bottom"},
     {{"txt_ambient_temp", "21"}},
     "CONVECTION\r\nVelocity,0\r\nSurface temp,0\r\nAmbient temp,21\r\nSurface area,1\r\n"
     "Orientation,Bottom\r\n"},
    {"Insulated_Pipes",
     "btn_save",
     {},
     {{"txt_k_value", ".25"}, {"txt_pipe_length", "100."}},
     "INSULATED PIPES\r\nPipe Outside Diameter,4.5\r\nInsulation Thickness,1.5\r\n"
     "Pipe Temperature,215\r\nAir Temperature,86\r\nInsulation k-value,.25\r\n"
     "Length of Pipe,100.\r\n"},
    {"Section_Properties",
     "btn_save",
     {"btn_clear"},
     {{"Grid1", "0\t0\n4.50\t\n\n1,000\t-.25"}},
     "SECTION PROPERTIES\r\nX,Y\r\n0,0\r\n4.5,\r\n,\r\n1000,-0.25\r\n"},
};

class DataFiles : public ::testing::TestWithParam<Saved> {};

TEST_P(DataFiles, AreWrittenByteByByte) {
  const Saved& saved = GetParam();
  ScriptedSession suite;
  const TemporaryFolder folder;
  suite.Shows(saved.window);
  for (const char* name : saved.clicks) suite.person.Clicks(suite.Get(name));
  for (const auto& [name, text] : saved.fields)
    suite.person.Types(suite.Get<FocusControl>(name), text);
  suite.platform.QueueFile(folder.File("a.dta"));
  suite.person.Clicks(suite.Get(saved.command));
  EXPECT_EQ(folder.Read("a.dta"), saved.bytes);
}

INSTANTIATE_TEST_SUITE_P(Windows, DataFiles, ::testing::ValuesIn(kSaved));

}  // namespace
}  // namespace korvane::testing
