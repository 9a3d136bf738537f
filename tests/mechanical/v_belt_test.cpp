// The belt drives' window with tables of its own: what passes, what is missing, what a file may
// hold.
#include "mechanical/v_belt.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "../frame/failure_of.h"
#include "../support/scripted_session.h"
#include "../support/temporary_folder.h"

namespace korvane::testing {
namespace {

constexpr const char* kSheaves =
    "comment\r\n"
    "type,section,least,largest,outside,bore,bushing,part\r\n"
    "FIXED,A,3,3,3.25,H,H,A30\r\n"
    "FIXED,A,5,5,5.25,5/8,,BORED\r\n"
    "FIXED,A,6,6,6.25,,,PLAIN\r\n"
    "\"VARIABLE\", A,2.5,3.5,3.85,H,H,\"V, 30\"\r\n"
    "BUSHING,,0,0,0,,H,FIRST\r\n"
    "BUSHING,,0,0,0,,H,LAST\r\n"
    "BUSHING,,0,0,0,1,H,INCH\r\n"
    "FIXED,B,4,4,4.35,H,H,B40\r\n";
constexpr const char* kBelts =
    "B,1,0,0,0,0,0,0,0,0\r\n"
    "A,2,0.5,0,0,0,0,0,0,0.25\r\n"
    "A,9,9,9,9,9,9,9,9,9\r\n";

TEST(Sheaves, AreRowsFromOneBehindTwoLines) {
  const std::vector<Sheave> rows = ParseSheaves(kSheaves);
  ASSERT_EQ(rows.size(), 9U);
  EXPECT_EQ(rows[0].type, "");
  EXPECT_EQ(rows[1].partNumber, "A30");
  EXPECT_EQ(rows[4].type, "VARIABLE");
  EXPECT_EQ(rows[4].partNumber, "V, 30");
  EXPECT_EQ(rows[4].pd, Single(3));
  EXPECT_EQ(rows[3].bore, "");
  EXPECT_EQ(rows[8].section, "B");
}

TEST(Sheaves, FailAboveTheirMostRowsAndInTheMidst) {
  std::string text = "1\n2\n";
  for (int i = 0; i < 250; ++i) text += "FIXED,A,3,3,3.25,H,H,X\n";
  EXPECT_EQ(ParseSheaves(text).size(), 251U);
  EXPECT_EQ(FailureOf([&] { ParseSheaves(text + "FIXED,A,3,3,3.25,H,H,X\n"); }),
            9);  // subscript out of range
  EXPECT_EQ(FailureOf([] { ParseSheaves("1\n2\nFIXED,A,3,3,big,H,H,X\n"); }), kTypeMismatch);
  EXPECT_EQ(FailureOf([] { ParseSheaves("1\n2\nFIXED,A,3,3\n"); }), kInputPastEnd);
}

TEST(BeltDataOf, IsTheFirstLineOfTheSectionOrTheLast) {
  EXPECT_EQ(ParseBeltData(kBelts, "A").c1, Double(2));
  EXPECT_EQ(ParseBeltData(kBelts, "A").k0, Double(0.25));
  EXPECT_EQ(ParseBeltData(kBelts, "B").c1, Double(1));
  EXPECT_EQ(ParseBeltData(kBelts, "C").c1, Double(9));
}

class BeltDrives : public ::testing::Test {
 protected:
  BeltDrives() {
    suite.session.DataPath = folder.File("");
    folder.Write("SHEAVES.DAT", kSheaves);
    folder.Write("beltdata.dat", kBelts);
  }

  std::string Text(const std::string& name) { return suite.Get<TextField>(name).Text(); }
  std::vector<std::string> Items(const std::string& name) {
    return suite.Get<Choice>(name).Items();
  }
  Lines Click(const std::string& name) {
    suite.person.Clicks(suite.Get(name));
    return suite.Told();
  }
  Lines Loads(const std::string& bytes) {
    folder.Write("x.dta", bytes);
    suite.platform.QueueFile(folder.File("x.dta"));
    return Click("Command5");
  }

  ScriptedSession suite;
  TemporaryFolder folder;
};

// The least speed is wanted: 3 drives 6, and 5 is passed over for its bore. At a centre distance of
// 8 the arc's factor is 0.94664 and, of effective diameters 3.172 and 6.172, the length's 0.82956;
// 1.725 x (2 x 3.172 - 0.5) + 1.725 x 0.25 is 10.512.
TEST_F(BeltDrives, TakeOnlyRowsThatPass) {
  suite.Shows("V_BELT");
  EXPECT_EQ(Items("CMB_DRIVER_PD"), (Lines{"3", "5", "6"}));
  EXPECT_EQ(Text("TXT_DRIVER_PART_NUMBER"), "A30");
  EXPECT_EQ(Text("TXT_DRIVEN_PART_NUMBER"), "PLAIN");
  EXPECT_EQ(Text("TXT_DRIVER_BUSHING_PN"), "LAST");
  EXPECT_EQ(Text("TXT_DRIVEN_BUSHING_PN"), "");
  EXPECT_EQ(Text("TXT_HP_CORR"), "8.25");

  // A bored sheave that is chosen is none of those that pass, and so locks nothing.
  suite.person.Selects(suite.Get<Choice>("CMB_DRIVER_PD"), 1);
  EXPECT_TRUE(suite.Get("pic_driver_unlocked").IsVisible());
  EXPECT_EQ(Text("TXT_DRIVER_PART_NUMBER"), "A30");
}

// Section B has no driver of variable pitch: the pair of before stays in force, its fields go.
TEST_F(BeltDrives, OfASectionWithoutARowAreEmpty) {
  suite.Shows("V_BELT");
  suite.person.Clicks(suite.Get("OPT_DRIVER_VARIABLE"));
  EXPECT_EQ(Text("TXT_DRIVER_PART_NUMBER"), "V, 30");
  suite.person.Selects(suite.Get<Choice>("CMB_SECTION"), 1);
  EXPECT_EQ(Items("CMB_DRIVER_PD"), Lines{});
  EXPECT_EQ(Text("TXT_DRIVER_PART_NUMBER"), "");
  EXPECT_EQ(Text("TXT_DRIVEN_PART_NUMBER"), "");
}

TEST_F(BeltDrives, NeedBothTables) {
  for (const char* table : {"beltdata.dat", "SHEAVES.DAT"}) {
    std::filesystem::remove(folder.File(table));
    suite.Shows("V_BELT");
    EXPECT_EQ(suite.Told(), Lines{"! failure 53 File not found"}) << table;
    EXPECT_EQ(suite.session.Find("V_BELT"), nullptr) << table;
  }
}

TEST_F(BeltDrives, LoadUpToTheShaft) {
  const Lines fault = {"! dialog open Load data... | v_belt.dta",
                       "! message Korvane | Error reading data file."};
  suite.Shows("V_BELT");
  suite.Told();
  EXPECT_EQ(Loads("V-BELT DRIVES\r\nDriver type,Variable\r\nDriven type,Fixed\r\nDriver rpm,870\r\n"
                  "Driver shaft dia,1\r\nDriven rpm,500\r\n"),
            fault);
  EXPECT_TRUE(suite.Get<Option>("OPT_DRIVER_VARIABLE").IsOn());
  EXPECT_EQ(Text("TXT_DRIVER_RPM"), "870");
  EXPECT_EQ(Text("TXT_DRIVEN_RPM"), "");
  EXPECT_EQ(Loads("V-BELT DRIVE\r\nDriver type,Fixed\r\n").back(),
            "! message Korvane | Invalid data file.");
  EXPECT_TRUE(suite.Get<Option>("OPT_DRIVER_VARIABLE").IsOn());
}

TEST_F(BeltDrives, ShowTheTableOfMotorFrames) {
  folder.Write("NEMAFRAM.DAT", "x\r\nFrames\r\n2,2,1,1\r\n900,900\r\n1,1\r\na,b,c,d\r\n");
  suite.Shows("V_BELT");
  suite.Told();
  EXPECT_EQ(Click("Command4"), Lines{"! shown DISPLAY"});
  EXPECT_EQ(suite.session.Active()->Title(), " Frames");
}

}  // namespace
}  // namespace korvane::testing
