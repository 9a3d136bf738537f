// The data file of the orifice calculator, byte by byte, and what loading makes of other files.
#include <gtest/gtest.h>

#include <filesystem>

#include "../support/scripted_session.h"
#include "../support/temporary_folder.h"

namespace korvane::testing {
namespace {

constexpr const char* kSaveNotice = "! dialog save Save as... | orifice.dta";
constexpr const char* kLoadNotice = "! dialog open Load data... | orifice.dta";

class FlowCalcFile : public ::testing::Test {
 protected:
  FlowCalcFile() {
    suite.Shows("FlowCalc");
    suite.Told();
  }

  std::string Text(const std::string& name) { return suite.Get<TextField>(name).Text(); }
  void Type(const std::string& name, const std::string& text) {
    suite.person.Types(suite.Get<FocusControl>(name), text);
  }
  Lines Answered(const char* command, const std::string& path) {
    suite.platform.QueueFile(path);
    suite.person.Clicks(suite.Get(command));
    return suite.Told();
  }
  Lines Save(const std::string& path) { return Answered("Command5", path); }
  Lines Load(const std::string& path) { return Answered("Command4", path); }
  std::string Chosen() { return suite.Get<OptionGroup>("DischCoef").Chosen()->Name(); }

  ScriptedSession suite;
  TemporaryFolder folder;
};

TEST_F(FlowCalcFile, IsWrittenByteByByte) {
  Type("dia", "1");
  Type("pressure", "1");
  suite.person.Presses(*suite.session.Active(), Key::Enter);
  suite.person.Clicks(suite.Get("btn_calc"));
  EXPECT_EQ(Save(folder.File("a.dta")), Lines{kSaveNotice});
  EXPECT_EQ(folder.Read("a.dta"),
            "ORIFICE FLOW\r\nDia,1\r\nArea,.785398\r\nPressure,1\r\nFlow,21.843882\r\n"
            "Edge Type,Ideal\r\nDischarge Coefficient,1.\r\n");

  // Texts stand as they are, in the code page; an existing file is replaced.
  suite.person.Clicks(suite.Get("SquareEdge"));
  Type("dia", " 1,5 \xC3\xA9\xE2\x82\xAC\xCE\xA9");
  Type("area", "");
  EXPECT_EQ(Save(folder.File("a.dta")), Lines{kSaveNotice});
  EXPECT_EQ(folder.Read("a.dta"),
            "ORIFICE FLOW\r\nDia, 1,5 \xE9\x80?\r\nArea,\r\nPressure,1\r\nFlow,17.911983\r\n"
            "Edge Type,Square\r\nDischarge Coefficient,.82\r\n");
  Type("dc", "");
  Save(folder.File("a.dta"));
  EXPECT_TRUE(folder.Read("a.dta").ends_with("\r\nDischarge Coefficient,\r\n"));
}

TEST_F(FlowCalcFile, ThatCannotBeWrittenStays) {
  folder.Write("old.dta", "old");
  std::filesystem::permissions(folder.File("old.dta"), std::filesystem::perms::owner_read);
  const Lines refused = {kSaveNotice, "! message Korvane | Error writing data file."};
  EXPECT_EQ(Save(folder.File("old.dta")), refused);
  EXPECT_EQ(Save(folder.Path()), refused);
  Type("dc", "1e999");  // no number to put through the mask
  EXPECT_EQ(Save(folder.File("new.dta")), refused);
  EXPECT_EQ(folder.Read("old.dta"), "old");
  EXPECT_FALSE(std::filesystem::exists(folder.File("new.dta")));
}

struct LoadCase {
  const char* name;
  const char* bytes;
  const char* message;  ///< none: loaded
  const char* dia;
  const char* area;
  const char* pressure;
  const char* flow;
  const char* option;
  const char* dc;
};

void PrintTo(const LoadCase& load, std::ostream* out) { *out << load.name; }

constexpr const char* kInvalid = "Invalid data file.";
constexpr const char* kFault = "Error reading data file.";

// The window stands at 7, 8, 9, 10, SharpEdge, 0.6 before each load.
constexpr LoadCase kLoads[] = {
    {"Whole",
     "ORIFICE FLOW\r\nDia,1\r\nArea,.785398\r\nPressure,1\r\nFlow,21.843882\r\nEdge Type,Ideal\r\n"
     "Discharge Coefficient,1.\r\n",
     nullptr, "1", "0.785398", "1", "21.84", "ideal", "1"},
    {"NumbersComeInStandardText",
     "ORIFICE FLOW\r\nDia, 1.50 \r\nArea,2.00\r\nPressure,+4.\r\nFlow,x\r\nEdge Type,Round\r\n"
     "Discharge Coefficient,1.5\r\n",
     nullptr, "1.5", "2", "4", "166.88", "RoundEdge", "1.5"},
    {"LabelsAreNotLookedAt",
     "ORIFICE FLOW\nDiameter,1\nx,2\n\"Pres,sure\",4\n,3\nEdge,Reentrant\ny,1\n", nullptr, "1", "2",
     "4", "111.25", "ReEntrant", "1"},
    {"UnknownWordSelectsNothing",
     "ORIFICE FLOW\r\nDia,1\r\nArea,2\r\nPressure,4\r\nFlow,1\r\nEdge Type,sharp\r\nDc,.5\r\n",
     nullptr, "1", "2", "4", "55.63", "SharpEdge", "0.5"},
    {"SquareWord",
     "ORIFICE FLOW\r\nDia,1\r\nArea,2\r\nPressure,4\r\nFlow,1\r\nEdge Type,Square\r\nDc,1\r\n",
     nullptr, "1", "2", "4", "111.25", "SquareEdge", "1"},
    {"OtherWindow", "FLUID FLOW\r\nDia,1\r\n", kInvalid, "7", "8", "9", "10", "SharpEdge", "0.6"},
    {"OtherCase", "Orifice Flow\r\nDia,1\r\n", kInvalid, "7", "8", "9", "10", "SharpEdge", "0.6"},
    {"Empty", "", kFault, "7", "8", "9", "10", "SharpEdge", "0.6"},
    {"SignatureOnly", "ORIFICE FLOW\r\n", kFault, "7", "8", "9", "10", "SharpEdge", "0.6"},
    {"EndsEarly", "ORIFICE FLOW\r\nDia,1\r\nArea,2\r\nPressure", kFault, "1", "2", "9", "10",
     "SharpEdge", "0.6"},
    // The option's own click computed before the file ended.
    {"EndsBehindTheWord", "ORIFICE FLOW\r\nD,1\r\nA,2\r\nP,4\r\nF,1\r\nE,Ideal\r\n", kFault, "1",
     "2", "4", "111.25", "ideal", "1"},
    {"CommaInAValueShifts",
     "ORIFICE FLOW\r\nDia,1,000\r\nArea,2\r\nPressure,4\r\nFlow,1\r\nEdge Type,Ideal\r\nDc,1\r\n",
     kFault, "1", "Area", "Pressure", "Flow", "SharpEdge", "Dc"},
    {"EmptyValueStaysEmpty",
     "ORIFICE FLOW\r\nDia,\r\nArea,2\r\nPressure,4\r\nFlow,1\r\nEdge Type,\r\nDc,1\r\n", nullptr,
     "", "2", "4", "111.25", "SharpEdge", "1"},
    {"TextLandsAsItStands",
     "ORIFICE FLOW\r\nDia,\"1.50\"\r\nArea,two\r\nPressure,\xE9\r\nFlow,1e999\r\n"
     "Edge Type,none\r\nDc,1\r\n",
     kFault, "1.50", "two", "\xC3\xA9", "1e999", "SharpEdge", "1"},
};

class FlowCalcLoad : public FlowCalcFile, public ::testing::WithParamInterface<LoadCase> {};

TEST_P(FlowCalcLoad, TakesRecordsInTheirOrder) {
  const LoadCase& file = GetParam();
  suite.person.Clicks(suite.Get("SharpEdge"));
  for (const auto& [name, text] :
       {std::pair{"dia", "7"}, {"area", "8"}, {"pressure", "9"}, {"flow", "10"}})
    Type(name, text);
  folder.Write("x.dta", file.bytes);

  Lines expected{kLoadNotice};
  if (file.message != nullptr)
    expected.push_back(std::string("! message Korvane | ") + file.message);
  EXPECT_EQ(Load(folder.File("x.dta")), expected);
  EXPECT_EQ(Text("dia"), file.dia);
  EXPECT_EQ(Text("area"), file.area);
  EXPECT_EQ(Text("pressure"), file.pressure);
  EXPECT_EQ(Text("flow"), file.flow);
  EXPECT_EQ(Text("dc"), file.dc);
  EXPECT_EQ(Chosen(), file.option);
}

INSTANTIATE_TEST_SUITE_P(Files, FlowCalcLoad, ::testing::ValuesIn(kLoads),
                         [](const auto& test) { return std::string(test.param.name); });

}  // namespace
}  // namespace korvane::testing
