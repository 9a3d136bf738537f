// The frames of the mountings, of which the chosen one's is red.
#include <gtest/gtest.h>

#include "../support/scripted_session.h"
#include "../support/temporary_folder.h"

namespace korvane::testing {
namespace {

std::vector<int> RedFrames(const ScriptedSession& suite) {
  std::vector<int> red;
  for (int i = 0; i < 9; ++i) {
    const auto& button = suite.Get<Command>("btn_geometry(" + std::to_string(i) + ')');
    if (std::get<Path>(button.Face().shapes.front()).ink == Ink::Red) red.push_back(i);
  }
  return red;
}

TEST(RodBuckling, FramesTheChosenMountingInRed) {
  ScriptedSession suite;
  suite.Shows("Rod_Buckling_Calc");
  EXPECT_EQ(RedFrames(suite), std::vector{2});  // the first with the factor that it opens with
  suite.person.Clicks(suite.Get("btn_geometry(8)"));
  EXPECT_EQ(RedFrames(suite), std::vector{8});
  suite.person.Types(suite.Get<FocusControl>("txt_GF"), "1.2");
  suite.person.Clicks(suite.Get("btn_calculate"));
  EXPECT_EQ(RedFrames(suite), std::vector{8});
}

TEST(RodBuckling, FramesTheLoadedMountingThoughTheFactorIsAnother) {
  const TemporaryFolder folder;
  for (const auto& [button, red, told] :
       {std::tuple{" 4 ", 4, 1U}, std::tuple{"0", 0, 1U}, std::tuple{" 9 ", 2, 2U},
        std::tuple{"-1 ", 2, 2U}, std::tuple{"front", 2, 2U}}) {
    ScriptedSession suite;
    suite.Shows("Rod_Buckling_Calc");
    suite.Told();
    folder.Write("a.dta", "ROD BUCKLING\r\nButton," + std::string(button) +
                              "\r\nGeometry Factor,1.25\r\nRod Diameter,2\r\nStroke Length,40\r\n"
                              "Elastic Modulus,29000000\r\nSafety Factor,4\r\n");
    suite.platform.QueueFile(folder.File("a.dta"));
    suite.person.Clicks(suite.Get("btn_load"));
    const Lines notices = suite.Told();
    EXPECT_EQ(notices.size(), told) << button;
    EXPECT_EQ(RedFrames(suite), std::vector{red}) << button;
    EXPECT_EQ(suite.Get<TextField>("txt_GF").Text(), told == 1 ? "1.25" : "1.0") << button;
  }
}

}  // namespace
}  // namespace korvane::testing
