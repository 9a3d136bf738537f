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
