// The tables that ovens and valves read, with contents of their own, and the ovens' data files.
#include <gtest/gtest.h>

#include "../frame/failure_of.h"
#include "../support/scripted_session.h"
#include "../support/temporary_folder.h"
#include "hvac/valve_cv.h"

namespace korvane::testing {
namespace {

TEST(SteamVolume, IsOfTheRowsAboveAndUpToAPressure) {
  const auto volume = [](Double psig) {
    return SteamVolume("1\r\n2,2\r\n\r\n0,20,x,x\r\n10, 15, x, x\r\n\r\n20,5,x,x", psig);
  };
  EXPECT_EQ(volume(0), 0);
  EXPECT_EQ(volume(0.5), 19.75);
  EXPECT_EQ(volume(10), 15);
  EXPECT_EQ(volume(12), 13);
  EXPECT_EQ(volume(20), 5);
  EXPECT_EQ(volume(20.01), 0);
  EXPECT_EQ(SteamVolume("1\n2\n3\n", 5), 0);
  EXPECT_EQ(FailureOf([] { SteamVolume("1\n2\n3\n0,20,1,1\n10,15,1\n", 5); }), kInputPastEnd);
  EXPECT_EQ(FailureOf([] { SteamVolume("1\n2\n3\n0,much,1,1\n", 5); }), kTypeMismatch);
}

class ProcessTables : public ::testing::Test {
 protected:
  ProcessTables() { suite.session.DataPath = folder.File(""); }

  std::string Text(const std::string& name) { return suite.Get<TextField>(name).Text(); }
  void Type(const std::string& name, const std::string& text) {
    suite.person.Types(suite.Get<FocusControl>(name), text);
  }
  Lines Click(const std::string& name) {
    suite.person.Clicks(suite.Get(name));
    return suite.Told();
  }
  std::string Saves() {
    suite.platform.QueueFile(folder.File("a.dta"));
    EXPECT_EQ(Click("Command3"), Lines{"! dialog save Save as... | safevent.dta"});
    return folder.Read("a.dta");
  }

  ScriptedSession suite;
  TemporaryFolder folder;
};

TEST_F(ProcessTables, OfSteamIsNeededForSteamAlone) {
  suite.Shows("Valve_Cv");
  EXPECT_EQ(Text("txt_Cv"), "20.1246");
  Click("opt_steam");
  EXPECT_EQ(Click("btn_calc"), Lines{"! failure 53 File not found"});
  EXPECT_EQ(Text("txt_temp"), "32.35");
  EXPECT_EQ(Text("txt_viscosity"), "1");
}

TEST_F(ProcessTables, OfSolventsHoldsUpTo101) {
  suite.Shows("SAFEVENT");
  EXPECT_EQ(suite.Told(), Lines{"! failure 53 File not found"});
  std::string solvents;
  for (int i = 0; i <= 100; ++i) solvents += "\"S, " + std::to_string(i) + "\"," + "1500.5\r\n";
  folder.Write("SOLVENTS.DAT", solvents);
  suite.Shows("SAFEVENT");
  EXPECT_EQ(suite.Told(), Lines{"! shown SAFEVENT"});
  auto& list = suite.Get<Combo>("Combo1");
  EXPECT_EQ(list.Items().size(), 101U);
  EXPECT_EQ(list.Text(), "S, 0");
  EXPECT_EQ(Text("txt_cuft"), "2640");
  suite.person.Selects(list, 100);
  EXPECT_EQ(Text("txt_cuft"), "1500.5");

  suite.session.Unload("SAFEVENT");
  folder.Write("SOLVENTS.DAT", solvents + "One too many,1\r\n");
  suite.Told();
  suite.Shows("SAFEVENT");
  EXPECT_EQ(suite.Told(), Lines{"! failure 9 Subscript out of range"});
}

TEST_F(ProcessTables, OvensAreSavedByteByByte) {
  folder.Write("solvents.dat", "UNKNOWN,2640\r\no-Xylene,2946\r\n");
  suite.Shows("SAFEVENT");
  suite.Told();
  Type("txt_gpm", " .50");
  Type("txt_chamber_volume", "1,000");
  EXPECT_EQ(Saves(),
            "SAFETY VENTILATION\r\nMethod,Per minute\r\nMonitor,Option 2\r\nGallons per batch,\r\n"
            "Gallons per minute, .50\r\nSolvent, 0 \r\nCubic feet per gallon,2640\r\n"
            "Operating temperature,70\r\nChamber volume,1,000\r\n");
  Click("opt_per_batch");
  Type("txt_gpbatch", "3");
  EXPECT_TRUE(
      Saves().starts_with("SAFETY VENTILATION\r\nMethod,Per batch\r\nMonitor,Option 2\r\n"
                          "Gallons per batch,3\r\nGallons per minute,\r\n"));
  // No word for these methods, nor for the monitor, whose line stays open.
  for (const char* method : {"opt_continuous", "opt_powder_coat", "opt_powder_coat_continuous"}) {
    Click(method);
    EXPECT_TRUE(Saves().starts_with("SAFETY VENTILATION\r\nMethod,\r\nMonitor,Option 2\r\n"));
  }
  Type("txt_powder_load", "1");
  Click("opt_monitor_yes");
  EXPECT_EQ(Saves(),
            "SAFETY VENTILATION\r\nMethod,\r\nMonitor,Gallons per batch,\r\n"
            "Gallons per minute,0.012\r\nSolvent, 1 \r\nCubic feet per gallon,2945\r\n"
            "Operating temperature,70\r\nChamber volume,1,000\r\n");
}

/// A file loads in the order of its records; words beyond those that are saved count too.
TEST_F(ProcessTables, OvensLoadEveryWord) {
  folder.Write("solvents.dat", "UNKNOWN,2640\r\no-Xylene,2946\r\n");
  suite.Shows("SAFEVENT");
  const auto loads = [this](const std::string& method, const std::string& monitor,
                            const std::string& rest) {
    folder.Write("x.dta", "SAFETY VENTILATION\r\nMethod," + method + "\r\nMonitor," + monitor +
                              "\r\n" + rest);
    suite.Told();
    suite.platform.QueueFile(folder.File("x.dta"));
    Lines told = Click("Command2");
    EXPECT_EQ(told.front(), "! dialog open Load data... | safevent.dta");
    told.erase(told.begin());
    return told;
  };
  const std::string whole = "b,2\r\nm,\r\ns, 1 \r\nair,1500\r\nT,300\r\nV,60\r\n";
  EXPECT_EQ(loads("Per batch", "Option 1", whole), Lines{});
  EXPECT_TRUE(suite.Get<Option>("opt_per_batch").IsOn());
  EXPECT_TRUE(suite.Get<Option>("opt_monitor_yes").IsOn());
  EXPECT_EQ(suite.Get<Combo>("Combo1").Text(), "o-Xylene");
  EXPECT_EQ(Text("txt_intake"), "616");  // 1.4 x 0.5 x 440 x 2
  EXPECT_EQ(loads("Continuous", "Option 3", whole), Lines{});
  EXPECT_TRUE(suite.Get<Option>("opt_per_batch").IsOn());
  EXPECT_TRUE(suite.Get<Option>("opt_monitor_yes").IsOn());
  EXPECT_EQ(loads("Per minute", "Option 2", "b,\r\nm,.1\r\ns,7\r\n"),
            Lines{"! message Korvane | Error reading data file."});
  EXPECT_TRUE(suite.Get<Option>("opt_per_minute").IsOn());
  EXPECT_TRUE(suite.Get<Option>("opt_monitor_no_25").IsOn());
  EXPECT_EQ(Text("txt_gpm"), "0.1");
}

}  // namespace
}  // namespace korvane::testing
