// The steps of the shaft's diameter, which no control of the window takes.
#include "mechanical/crit_spd.h"

#include <gtest/gtest.h>

#include "../support/scripted_session.h"

namespace korvane::testing {
namespace {

struct Step {
  const char* from;
  const char* up;
  const char* down;
};

void Steps(const char* units, const std::vector<Step>& steps) {
  for (const Step& step : steps) {
    for (const bool up : {true, false}) {
      ScriptedSession suite;
      suite.platform.settings["Units"] = units;
      suite.Shows("MAINFORM");
      suite.Shows("crit_spd");
      for (const char* name : {"txt_brg_spacing", "txt_overhang", "txt_impeller_wt"})
        suite.person.Types(suite.Get<FocusControl>(name), "10");
      suite.person.Types(suite.Get<FocusControl>("txt_shaft_dia"), step.from);
      auto& window = dynamic_cast<crit_spd&>(*suite.session.Find("crit_spd"));
      suite.session.Handle([&] { up ? window.StepUp() : window.StepDown(); });
      EXPECT_EQ(suite.Get<TextField>("txt_shaft_dia").Text(), up ? step.up : step.down)
          << step.from << ' ' << units;
      EXPECT_EQ(suite.Get<TextField>("txt_critical_rpm").Text().empty(), ToNumber(step.from) <= 0);
    }
  }
}

TEST(CriticalSpeed, StepsTheDiameterBySixteenths) {
  Steps("US", {{"1", "1.0625", ".9375"},
               {"1.03", "1.0625", ".9375"},
               {"0.25", ".3125", ".1875"},
               {"0", "0", "0"},
               {"-1", "-1", "-1"},
               {"", "", ""}});
  Steps("SI", {{"25.4", "26.9875", "23.8125"}, {"0", "0", "0"}});
}

}  // namespace
}  // namespace korvane::testing
