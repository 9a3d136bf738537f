// The start of the program from its settings and INI file, the main window's size, and its end.
#include <gtest/gtest.h>

#include "../support/scripted_session.h"
#include "../support/temporary_folder.h"
#include "shell/mainform.h"

namespace korvane::testing {
namespace {

using Settings = std::map<std::string, std::string>;

class StartAndExit : public ::testing::Test {
 protected:
  StartAndExit() { suite.session.ShowsSplash = false; }

  void Start() { suite.Shows("MAINFORM"); }
  Window& Main() const { return *suite.session.Find("MAINFORM"); }
  Geometry Place() const { return Main().GetGeometry(); }

  TemporaryFolder folder;
  ScriptedSession suite{WindowCatalogue(), folder.Path()};
};

// ---- Start ----

TEST_F(StartAndExit, FirstStartCreatesItsSettings) {
  Start();
  EXPECT_EQ(suite.platform.settings,
            (Settings{{"Data Path", folder.Path() + '/'}, {"Units", "US"}}));
  EXPECT_EQ(Place(), (Geometry{0, 0, 8715, 870}));
  EXPECT_EQ(suite.session.AppPath, folder.Path());
  EXPECT_EQ(suite.Told(), Lines{"! shown MAINFORM"});
}

TEST_F(StartAndExit, StoredValuesAreTaken) {
  const Settings stored = {{"Top", "100.5"},  {"Left", "-20"}, {"Height", "2000"},
                           {"Width", "9000"}, {"Units", "SI"}, {"Data Path", "/no/such/"}};
  suite.platform.settings = stored;
  Start();
  EXPECT_EQ(Place(), (Geometry{-20, 100.5, 9000, 2000}));
  EXPECT_TRUE(suite.session.MetricUnits);
  EXPECT_FALSE(suite.session.ImperialUnits);
  EXPECT_TRUE(Main().Menu()->Find("SI_Metric")->checked);
  EXPECT_FALSE(Main().Menu()->Find("Imperial")->checked);
  EXPECT_EQ(suite.session.DataPath, "/no/such/");
  EXPECT_EQ(suite.platform.settings, stored);
}

TEST_F(StartAndExit, UnitsOtherThanSiAreUs) {
  suite.platform.settings = {{"Units", "si"}};
  Start();
  EXPECT_EQ(suite.session.UnitsName, "US");
  EXPECT_FALSE(suite.session.MetricUnits);
  EXPECT_TRUE(Main().Menu()->Find("Imperial")->checked);
  EXPECT_EQ(suite.platform.settings["Units"], "si");
}

TEST_F(StartAndExit, AGeometryThatIsNoNumberEndsTheStart) {
  struct Case {
    const char* value;
    const char* failure;
  };
  for (const char* key : {"Top", "Left", "Height", "Width"}) {
    for (const Case& bad : {Case{"abc", "! failure 13 Type mismatch"},
                            {"", "! failure 13 Type mismatch"},
                            {"1e39", "! failure 6 Overflow"}}) {
      const Settings stored = {{key, bad.value}};
      suite.platform.settings = stored;
      Start();
      EXPECT_EQ(suite.Told(), Lines{bad.failure}) << key;
      EXPECT_TRUE(suite.session.Windows().empty());
      EXPECT_EQ(suite.platform.settings, stored) << "a start that failed writes nothing";
    }
  }
}

TEST_F(StartAndExit, TheIniFileBeatsTheSettings) {
  struct Case {
    const char* name;
    const char* bytes;
    const char* path;  ///< of the settings if no line counts
  };
  constexpr const char* kStored = "/stored/";
  constexpr Case kCases[] = {
      {"korvane.ini", "DATA PATH = /DATA/", "/DATA/"},
      {"korvane.ini", "; hello\r\n[x]\r\ndata path = /some/Folder\r\nDATA PATH = /b\r\n",
       "/SOME/FOLDER"},
      {"KORVANE.INI", "Data Path =  x ", " X "},
      {"korvane.ini", "DATA PATH = \nDATA PATH = /second", "/SECOND"},
      {"korvane.ini", "DATA PATH = ", kStored},
      {"korvane.ini", "DATA PATH =/x\n DATA PATH = /x\nDATA PATH /x", kStored},
      {"korvane.ini", "", kStored},
      {"other.ini", "DATA PATH = /x", kStored},
  };
  for (const Case& ini : kCases) {
    const TemporaryFolder program;
    program.Write(ini.name, ini.bytes);
    ScriptedSession started(WindowCatalogue(), program.Path());
    started.session.ShowsSplash = false;
    started.platform.settings = {{"Data Path", kStored}, {"Units", "US"}};
    started.Shows("MAINFORM");
    EXPECT_EQ(started.session.DataPath, ini.path) << ini.bytes;
    EXPECT_EQ(started.platform.settings["Data Path"], kStored);
    EXPECT_EQ(program.Read(ini.name), ini.bytes);
  }
}

TEST(StartFromTheRoot, KeepsOneSeparator) {
  ScriptedSession suite(WindowCatalogue(), "/");
  suite.session.ShowsSplash = false;
  suite.Shows("MAINFORM");
  EXPECT_EQ(suite.session.AppPath, "");
  EXPECT_EQ(suite.platform.settings["Data Path"], "/");
  suite.platform.onModal = [&suite](Window&) {
    EXPECT_EQ(suite.Get("Label1").Caption(), "");
    suite.person.Clicks(suite.Get("btn_cancel"));
  };
  suite.person.Picks(*suite.session.Active()->Menu()->Find("Set_Path"));
}

// ---- Size ----

TEST_F(StartAndExit, TheMainWindowIsNeverSmallerThanItsMenuBar) {
  suite.platform.settings = {{"Width", "100"}, {"Height", "10"}, {"Top", "5"}, {"Left", "6"}};
  Start();
  EXPECT_EQ(Place(), (Geometry{6, 5, 8715, 870}));
  suite.person.Places(Main(), {1, 2, 8714, 3000}, Window::State::Normal);
  EXPECT_EQ(Place(), (Geometry{1, 2, 8715, 3000}));
  suite.person.Places(Main(), {1, 2, 20000, 869}, Window::State::Normal);
  EXPECT_EQ(Place(), (Geometry{1, 2, 20000, 870}));
  suite.person.Places(Main(), {1, 2, 100, 30}, Window::State::Minimized);
  EXPECT_EQ(Place(), (Geometry{1, 2, 100, 30}));
}

TEST_F(StartAndExit, ADoubleClickRestoresTheSizeInNormalState) {
  Start();
  const Geometry big = {300, 400, 12000, 5000};
  suite.person.Places(Main(), big, Window::State::Maximized);
  suite.person.DoubleClicks(Main());
  EXPECT_EQ(Place(), big);
  suite.person.Places(Main(), big, Window::State::Normal);
  suite.person.DoubleClicks(Main());
  EXPECT_EQ(Place(), (Geometry{0, 0, 8715, 870}));
}

// ---- Exit ----

TEST_F(StartAndExit, ExitStoresTheGeometryOfANormalWindow) {
  struct Case {
    Window::State state;
    Settings stored;
  };
  const Settings defaults = {{"Height", "870"}, {"Width", "8715"}, {"Top", "0"}, {"Left", "0"}};
  for (const Case& at :
       {Case{Window::State::Normal,
             {{"Height", "1234.5"}, {"Width", "9999"}, {"Top", "20"}, {"Left", "-1.5"}}},
        {Window::State::Minimized, defaults},
        {Window::State::Maximized, defaults}}) {
    suite.platform.settings.clear();
    Start();
    suite.Shows("FlowCalc");
    suite.platform.settings.clear();
    suite.person.Places(Main(), {-1.5, 20, 9999, 1234.5}, at.state);
    suite.person.Picks(*Main().Menu()->Find("Exit"));
    EXPECT_EQ(suite.platform.settings, at.stored);
    ASSERT_EQ(suite.session.Windows().size(), 1U);
    EXPECT_EQ(suite.session.Active()->Name(), "FlowCalc");
  }
}

// ---- Splash ----

/// Which pieces of the name are to be seen after a tick, and in what size; 0: hidden.
struct Pieces {
  int first;
  int last;

  bool operator==(const Pieces&) const = default;
};

class SplashTest : public StartAndExit {
 protected:
  Pieces Seen() const {
    const auto size = [this](const char* name) {
      const auto& piece = suite.Get<Label>(name);
      return piece.IsVisible() ? piece.FontSize() : 0;
    };
    return {size("txt_name_first(0)"), size("txt_name_last(0)")};
  }
  Timer& Clock(const char* name) const { return suite.Get<Timer>(name); }

  void GrowsTheName() {
    constexpr int kSizes[] = {8, 10, 12, 14, 16, 18, 20, 24, 28};
    std::vector<Pieces> expected = {{0, 0}, {0, 0}, {8, 0}};  // two ticks pass, the first appears
    for (const int size : kSizes) expected.push_back({size, 0});
    for (int step = 10; step <= 11; ++step) expected.push_back({28, 0});
    expected.push_back({28, 8});
    for (const int size : kSizes) expected.push_back({28, size});
    EXPECT_EQ(Seen(), (Pieces{0, 0}));
    for (std::size_t tick = 0; tick < expected.size(); ++tick) {
      EXPECT_TRUE(Clock("Timer1").IsEnabled());
      EXPECT_FALSE(Clock("Timer2").IsEnabled());
      suite.person.Waits(Clock("Timer1"));
      EXPECT_EQ(Seen(), expected[tick]) << "tick " << tick + 1;
    }
    EXPECT_FALSE(Clock("Timer1").IsEnabled());
  }
};

TEST_F(SplashTest, AtStartItClosesByItselfAndTheStartGoesOn) {
  suite.session.ShowsSplash = true;
  bool modal = false;
  suite.platform.onModal = [&](Window& splash) {
    modal = true;
    EXPECT_EQ(suite.platform.settings.count("Units"), 0U) << "units are read behind the splash";
    EXPECT_EQ(splash.GetGeometry().width, 4395);
    EXPECT_EQ(splash.GetGeometry().height, 2460);
    for (const char* name : {"btn_Read_Disclaimer", "Panel3D4", "Picture1"})
      EXPECT_FALSE(suite.Get(name).IsVisible()) << name;
    GrowsTheName();
    EXPECT_TRUE(Clock("Timer2").IsEnabled());
    suite.person.Waits(Clock("Timer2"));
    EXPECT_FALSE(splash.IsShown());
  };
  Start();
  EXPECT_TRUE(modal);
  EXPECT_EQ(suite.Told(), (Lines{"! shown Splash", "! unloaded Splash", "! shown MAINFORM"}));
  EXPECT_EQ(suite.platform.settings["Units"], "US");
  EXPECT_EQ(Main().Title(), "  Kor va ne");
}

TEST_F(SplashTest, AsAboutItStaysUntilItIsClosed) {
  Start();
  bool modal = false;
  suite.platform.onModal = [&](Window& splash) {
    modal = true;
    EXPECT_FALSE(Main().IsShown());
    EXPECT_EQ(splash.GetGeometry().height, 3855);
    GrowsTheName();
    EXPECT_FALSE(Clock("Timer2").IsEnabled());
    suite.person.Clicks(suite.Get("cmd_OK"));
  };
  suite.person.Picks(*Main().Menu()->Find("About"));
  EXPECT_TRUE(modal);
  EXPECT_TRUE(Main().IsShown());
  EXPECT_FALSE(suite.session.AboutMode);
}

}  // namespace
}  // namespace korvane::testing
