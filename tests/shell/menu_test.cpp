// The menu catalogue: its shape, and what its entries do.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <set>

#include "../support/scripted_session.h"
#include "../support/temporary_folder.h"

namespace korvane::testing {
namespace {

class Menus : public ::testing::Test {
 protected:
  Menus() {
    suite.session.ShowsSplash = false;
    suite.platform.settings["Data Path"] = folder.Path() + '/';
  }

  void Start() { suite.Shows("MAINFORM"); }
  MenuBar& Menu() { return *suite.session.Find("MAINFORM")->Menu(); }
  void Pick(const char* name) { suite.person.Picks(*Menu().Find(name)); }
  void WriteTable(const char* name) {
    folder.Write(name, "c\n" + std::string(name) + "\n2,2,0,0\n900,900\n1,1\na,b,c,d\n");
  }

  TemporaryFolder folder;
  ScriptedSession suite;
};

TEST_F(Menus, HaveTheirShape) {
  Start();
  std::set<std::string> names;
  std::string bar;
  int depth = 0, separators = 0, hidden = 0;
  for (const MenuEntry& entry : Menu().Entries()) {
    EXPECT_LE(entry.depth, depth + 1) << entry.name;
    depth = entry.depth;
    separators += entry.separator;
    hidden += !entry.visible;
    if (entry.depth == 0) bar += entry.caption + ' ';
    if (!entry.separator) {
      EXPECT_TRUE(names.insert(entry.name).second) << entry.name;
    }
  }
  EXPECT_EQ(bar, "File Math HVAC Mechanical Electrical Materials Structural Help ");
  EXPECT_EQ(separators, 4);
  EXPECT_EQ(hidden, 8 + 1);  // and the metric beams
  // All but the separators.
  EXPECT_EQ(names.size(), 210U);
}

TEST_F(Menus, ShowTheShapesOfTheUnits) {
  Start();
  const auto shown = [this](const char* name) { return Menu().Find(name)->visible; };
  EXPECT_TRUE(shown("AlumChannels") && shown("AlumAssocBeams") && !shown("AlumStandardBeams"));
  Pick("SI_Metric");
  EXPECT_TRUE(!shown("AlumChannels") && !shown("AlumAssocBeams") && shown("AlumStandardBeams"));
}

TEST_F(Menus, OpenTablesByUnits) {
  for (const char* name : {"COPRWIRE.dat", "CoprWirM.dat", "ascii.DAT"}) WriteTable(name);
  Start();

  suite.Told();
  Pick("Alwire");  // in neither folder, which shows when it is opened
  EXPECT_EQ(suite.Told(), Lines{"! failure 53 File not found"});
  Pick("CuWire");
  EXPECT_EQ(suite.Told(), Lines{"! shown DISPLAY"});
  EXPECT_EQ(suite.session.DataFileName, "COPRWIRE.dat");
  EXPECT_EQ(suite.session.HelpTopic, "electrical_wire_tables.html");
  Pick("SI_Metric");
  Pick("CuWire");
  EXPECT_EQ(suite.Told(), (Lines{"! unloaded DISPLAY", "! shown DISPLAY"}));
  EXPECT_EQ(suite.session.DataFileName, "CoprWirM.dat");
  Pick("Ascii");
  EXPECT_EQ(suite.session.DataFileName, "Ascii.dat");
}

// Every entry that can be clicked opens what it names, with the tables that the program comes with.
TEST(MenuWalk, OpensAllThatIsOffered) {
  ScriptedSession suite(WindowCatalogue(),
                        std::filesystem::read_symlink("/proc/self/exe").parent_path().string());
  suite.session.ShowsSplash = false;
  suite.platform.onModal = [&suite](Window& modal) { suite.person.Closes(modal); };
  suite.Shows("MAINFORM");
  MenuBar& menu = *suite.session.Find("MAINFORM")->Menu();
  int opened = 0;
  for (const MenuEntry& entry : menu.Entries())
    EXPECT_TRUE(!entry.onClick || !entry.visible || entry.enabled) << entry.name;
  for (const char* units : {"Imperial", "SI_Metric"}) {
    suite.person.Picks(*menu.Find(units));
    for (MenuEntry& entry : menu.Entries()) {
      if (!entry.onClick || entry.name == "Exit" || !menu.IsReachable(entry)) continue;
      suite.Told();
      suite.person.Picks(entry);
      const Lines told = suite.Told();
      const std::string page = KORVANE_SOURCE_DIR "/help/" + suite.session.HelpTopic;
      EXPECT_TRUE(std::filesystem::is_regular_file(page)) << entry.name << ": " << page;
      EXPECT_TRUE(std::none_of(told.begin(), told.end(), [](const std::string& line) {
        return line.starts_with("! failure");
      })) << entry.name;
      opened += std::any_of(told.begin(), told.end(),
                            [](const std::string& line) { return line.starts_with("! shown"); });
    }
  }
  EXPECT_GT(opened, 200);
}

// The comparison of frames closes the plain viewer only; one with a drawing keeps its table.
TEST_F(Menus, OpenTheFrameComparisonUnevenly) {
  for (const char* name : {"ACMOTORS.dat", "IECframe.dat", "IEC_NEMA.dat", "Ascii.dat"})
    WriteTable(name);
  Start();
  Pick("Ascii");
  Pick("AC_MOTOR");
  suite.Told();
  Pick("IEC_NEMA");
  EXPECT_EQ(suite.Told(), Lines{"! unloaded DISPLAY"});
  EXPECT_EQ(suite.session.Active()->Title(), " ACMOTORS.dat");
  suite.session.Unload("DISPLAY2");
  Pick("IEC_NEMA");
  EXPECT_EQ(suite.session.Active()->Title(), " IEC_NEMA.dat");
}

TEST_F(Menus, ReachTheWeb) {
  Start();
  suite.Told();
  Pick("Korvane_Web_Site");
  Pick("calc");
  ASSERT_EQ(suite.Told().size(), 2U);

  struct Case {
    const char* answer;
    const char* shown;
    const char* message;
    Color color;
  };
  const Case kCases[] = {
      {"", "???", "Could not read version from web site!", Color::Rgb(0xFF0000)},
      {"2.0.5", "2.0.5", "You already have the latest version.", Color::Rgb(0x0000FF)},
      {"2.0.5\n", "2.0.5\r\n", "A newer version is available.", Color::Rgb(0xFF0000)},
      {"1.9", "1.9", "A newer version is available.", Color::Rgb(0xFF0000)},
  };
  for (const Case& test : kCases) {
    suite.platform.webPages["https://www.korvane.example/korvane_version.txt"] = test.answer;
    Pick("mnu_check_for_updates");
    EXPECT_EQ(suite.Get<TextField>("txt_this_version").Text(), "2.0.5");
    EXPECT_EQ(suite.Get<TextField>("txt_latest_version").Text(), test.shown);
    EXPECT_EQ(suite.Get("lbl_message").Caption(), test.message);
    EXPECT_EQ(suite.Get("lbl_message").Fore(), test.color);
    suite.person.Clicks(suite.Get("btn_ok"));
  }
}

}  // namespace
}  // namespace korvane::testing
