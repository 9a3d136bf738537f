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
