// The table viewers, the unit conversions and the page dialog as windows.
#include <gtest/gtest.h>

#include "support/scripted_session.h"
#include "support/temporary_folder.h"

namespace korvane::testing {
namespace {

constexpr const char* kSmall = "c\r\nSmall Table\r\n3,2,1,1\r\n1200,900\r\n1,4\r\na,b,c,d,e,f\r\n";

class Viewers : public ::testing::Test {
 protected:
  Viewers() {
    suite.session.DataPath = folder.Path() + '/';
    folder.Write("SMALL.DAT", kSmall);
    folder.Write("other.dat", "c\r\nOther\r\n2,2,1,0\r\n50000,900\r\n1,4\r\na,b,c,d\r\n");
  }

  void ShowTable(const std::string& name, const char* viewer = "DISPLAY") {
    suite.session.DataFileName = name;
    suite.session.Unload(viewer);
    suite.Shows(viewer);
  }

  TemporaryFolder folder;
  ScriptedSession suite;
};

TEST_F(Viewers, ShowATableAtItsSize) {
  ShowTable("small.dat");
  const Window& window = *suite.session.Active();
  EXPECT_EQ(window.Title(), " Small Table");
  const auto& grid = suite.Get<Grid>("Grid1");
  EXPECT_EQ(grid.Caption(), "Small Table");
  EXPECT_EQ(grid.CurrentText(), "f");  // the last cell that was filled
  // 1200 + 900 + 2 + 1 for the grid, 2 + 480 + 130 around it.
  EXPECT_EQ(window.GetGeometry().width, 2715);
  // 60 + 1 + 3 + 3 * 240 + 3 + 1 for the grid, 435 for caption and frame.
  EXPECT_EQ(window.GetGeometry().height, 1223);

  ShowTable("other.dat");  // wider than the screen
  EXPECT_EQ(suite.session.Active()->GetGeometry().width, 28800);
  EXPECT_EQ(suite.session.Windows().size(), 1U);

  ShowTable("small.dat", "DISPLAY2");
  EXPECT_EQ(suite.session.Active()->GetGeometry().height, 1223 + 1440);
}

TEST_F(Viewers, TallTablesStopAboveTheEndOfTheScreen) {
  std::string tall = "c\nTall\n2000,2,0,0\n900,900\n1,1\n";
  for (int i = 0; i < 2000; ++i) tall += "x,y\n";
  folder.Write("tall.dat", tall);
  ShowTable("tall.dat");
  EXPECT_EQ(suite.session.Active()->GetGeometry().height, 16200 - 450);
  EXPECT_EQ(suite.session.Active()->GetGeometry().top, 0);
}

TEST_F(Viewers, CopyACellAndAskBeforePrinting) {
  ShowTable("small.dat");
  suite.person.Points(suite.Get<Grid>("Grid1"), 2, 1);
  suite.Told();
  suite.person.Presses(*suite.session.Active(), Key::CtrlC);
  EXPECT_EQ(suite.Told(), Lines{"! clipboard f"});
  suite.person.RightClicks(suite.Get<Grid>("Grid1"));
  EXPECT_EQ(suite.Told(), Lines{"! ask Korvane | Print this form?"});
  suite.platform.Queue(Answer::Yes);
  suite.person.RightClicks(suite.Get<Grid>("Grid1"));
  EXPECT_EQ(suite.Told(), (Lines{"! ask Korvane | Print this form?", "! clipboard [image]",
                                 "! shown Page_Setup"}));
}

TEST_F(Viewers, FailWithoutATable) {
  for (const auto& [name, failure] : {std::pair{"none.dat", "! failure 53 File not found"},
                                      std::pair{"", "! failure 75 Path/File access error"}}) {
    ShowTable(name);
    EXPECT_EQ(suite.Told(), Lines{failure}) << name;
  }
  // A path without a separator at its end misses, and the program folder has no such file.
  suite.session.DataPath = folder.Path();
  ShowTable("small.dat");
  EXPECT_EQ(suite.Told(), Lines{"! failure 53 File not found"});
  folder.Write("short.dat", "c\nT\n2,2,0,0\n1,1\n1,1\na\n");
  suite.session.DataPath = folder.Path() + '/';
  ShowTable("short.dat");
  EXPECT_EQ(suite.Told(), Lines{"! failure 62 Input past end of file"});
}

// ---- Unit conversions ----

class Conversions : public Viewers {
 protected:
  Conversions() {
    folder.Write(
        "conversion_factors.dat",
        "Celsius,Fahrenheit,1.8,32,-1,0\ninches,feet,12,0,0,0\nInches,meters,.0254,0,-1,0\n");
    suite.Shows("Conversion_Factors");
  }

  std::string Text(const char* name) { return suite.Get<TextField>(name).Text(); }
  void Enter(const char* name, const char* text) {
    suite.person.Types(suite.Get<FocusControl>(name), text);
    suite.person.Presses(*suite.session.Active(), Key::Enter);
  }
};

TEST_F(Conversions, OpenWithTheFirstPairOfAHundred) {
  EXPECT_EQ(Text("Text1"), "100");
  EXPECT_EQ(Text("Text2"), "212");
  EXPECT_EQ(suite.Get<ListBox>("List1").Items()[1],
            " inches" + std::string(44, ' ') + " | feet" + std::string(46, ' '));
  EXPECT_EQ(suite.session.Active()->Focus()->Name(), "txt_search");
  EXPECT_EQ(suite.session.Active()->GetGeometry().width, 11660);
}

TEST_F(Conversions, ConvertEitherWay) {
  Enter("Text1", "0");
  EXPECT_EQ(Text("Text2"), "32");
  Enter("Text2", "212");
  EXPECT_EQ(Text("Text1"), "100");
  Enter("Text1", "abc");
  EXPECT_EQ(Text("Text2"), "32");
  suite.person.Selects(suite.Get<ListBox>("List1"), 1);
  EXPECT_EQ(Text("Text1"), "1");
  EXPECT_EQ(Text("Text2"), "0.0833333333333333");
  suite.Told();
  suite.person.Clicks(suite.Get("btn_copy_right"));
  EXPECT_EQ(suite.Told(), Lines{"! clipboard 0.0833333333333333"});
}

TEST_F(Conversions, SearchByTheBeginning) {
  auto& search = suite.Get<FocusControl>("txt_search");
  suite.person.Types(search, "INCH");
  EXPECT_EQ(suite.Get<ListBox>("List1").Index(), 1);
  EXPECT_EQ(Text("Text1"), "1");
  suite.person.Types(search, "inches                    x");
  EXPECT_EQ(suite.Get<ListBox>("List1").Index(), 1);
  Enter("txt_search", "cel");
  EXPECT_EQ(suite.Get<ListBox>("List1").Index(), 0);
  EXPECT_EQ(Text("Text2"), "33.8");
}

// ---- The page dialog ----

class PageDialog : public ::testing::Test {
 protected:
  void Open() {
    suite.Shows("FlowCalc");
    suite.person.Places(*suite.session.Active(), {0, 0, 8000, 4000}, Window::State::Normal);
    suite.Told();
    suite.person.Clicks(suite.Get("Command1"));
  }

  std::string Text(const char* name) { return suite.Get<TextField>(name).Text(); }
  void Click(const char* name) { suite.person.Clicks(suite.Get(name)); }
  void Enter(const char* name, const char* text) {
    suite.person.Types(suite.Get<FocusControl>(name), text);
    suite.person.Presses(*suite.session.Active(), Key::Enter);
  }

  ScriptedSession suite;
};

constexpr const char* kOne = "One";

TEST_F(PageDialog, PrintsWhatThePreviewShows) {
  suite.platform.printers = {{kOne, Orientation::Portrait, 12240, 15840},
                             {"Two", Orientation::Landscape, 15840, 12240}};
  Open();
  EXPECT_EQ(suite.Told(), (Lines{"! clipboard [image]", "! shown Page_Setup"}));
  EXPECT_EQ(suite.session.Active()->GetGeometry().width, 6420);
  EXPECT_EQ(suite.Get<Combo>("Combo1").Text(), kOne);

  Enter("txt_percent", "0");
  EXPECT_EQ(Text("txt_percent"), "100");
  suite.person.Spins(suite.Get<SpinButton>("UpDown_left_margin"), true);
  EXPECT_EQ(Text("txt_left_margin"), "0.10");
  suite.person.Spins(suite.Get<SpinButton>("UpDown_left_margin"), false);
  EXPECT_EQ(Text("txt_left_margin"), "0.00");
  suite.person.Spins(suite.Get<SpinButton>("UpDown_left_margin"), false);
  EXPECT_EQ(Text("txt_left_margin"), "0");

  Click("chk_full_width");
  EXPECT_EQ(Text("txt_percent"), "153");
  Click("optOrientation(1)");
  EXPECT_EQ(Text("txt_percent"), "198");
  const auto& page = suite.Get<Picture>("Picture1").Shown();
  EXPECT_EQ(page.width, 15840);

  suite.Told();
  Click("btn_print");
  EXPECT_EQ(suite.Told(), Lines{"! unloaded Page_Setup"});
  ASSERT_EQ(suite.platform.printed.size(), 1U);
  EXPECT_FLOAT_EQ(static_cast<float>(suite.platform.printed[0].width), 15840 * 0.94F);
  EXPECT_FALSE(suite.platform.printed[0].header);
}

TEST_F(PageDialog, MakesRoomForAHeader) {
  suite.platform.printers = {{kOne, Orientation::Portrait, 12240, 15840}};
  Open();
  EXPECT_FALSE(suite.Get("txt_header").IsVisible());
  Enter("txt_top_margin", "0.3");
  Click("chk_header");
  EXPECT_TRUE(suite.Get("txt_header").IsVisible());
  EXPECT_EQ(Text("txt_top_margin"), "0.50");
  Click("chk_header");
  EXPECT_EQ(Text("txt_top_margin"), "0");
  Enter("txt_top_margin", "0.75");
  Click("chk_header");
  EXPECT_EQ(Text("txt_top_margin"), "0.75");
  suite.person.Types(suite.Get<FocusControl>("txt_header"), "Orifice 7");
  Click("btn_print");
  EXPECT_EQ(suite.platform.printed.at(0).header, "Orifice 7");
  EXPECT_EQ(suite.platform.printed.at(0).y, 1080);
}

TEST_F(PageDialog, LivesWithoutAPrinter) {
  Open();
  Click("chk_center");
  EXPECT_TRUE(suite.Get<Picture>("Picture1").Shown().shapes.empty());
  suite.Told();
  Click("btn_print");
  EXPECT_EQ(suite.Told(), Lines{"! failure 482 Printer error"});
}

TEST_F(PageDialog, TakesMarginsUpToSixteenBitsOfTwips) {
  suite.platform.printers = {{kOne, Orientation::Portrait, 12240, 15840}};
  Open();
  Enter("txt_left_margin", "23");  // the preview stays as it is
  suite.Told();
  Click("btn_print");
  EXPECT_EQ(suite.Told(), Lines{"! failure 6 Overflow"});
  suite.person.Spins(suite.Get<SpinButton>("UpDown_left_margin"), true);
  EXPECT_EQ(suite.Told(), Lines{"! failure 6 Overflow"});
}

TEST_F(PageDialog, ASecondPrintBringsItForwardAsItIs) {
  suite.platform.printers = {{kOne, Orientation::Portrait, 12240, 15840}};
  Open();
  Window& printed = *suite.session.Find("FlowCalc");
  suite.person.Activates(printed);
  suite.person.Places(printed, {0, 0, 5000, 4000}, Window::State::Normal);
  suite.Told();
  Click("Command1");
  EXPECT_EQ(suite.Told(), Lines{});
  EXPECT_EQ(suite.session.Active()->Name(), "Page_Setup");
  Click("btn_print");
  EXPECT_EQ(suite.platform.printed.at(0).width, 4700);  // the size is the new one's
}

}  // namespace
}  // namespace korvane::testing
