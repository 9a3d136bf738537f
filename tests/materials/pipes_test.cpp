// The file of pipes, sound and spoilt, and the chart of schedule 40.
#include "materials/pipes.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "../frame/failure_of.h"
#include "../support/scripted_session.h"
#include "../support/temporary_folder.h"

namespace korvane::testing {
namespace {

const std::string kSound =
    "pipe.dat: some sizes\r\n"
    "\"steel\",\"4\",\"100\",\"40, STD\",4.500,0.237,114.3,6.02\r\n"
    "\"stainless\",\"4\",\"100\",\"40S\",4.500,0.237,114.3,6.02\r\n"
    "\"copper\",\"1\",\"\",\"L\",1.125,0.050,28.575,1.270\r\n"
    "\"tube\",\"1\",\"\",\"14\",1.000,0.083,25.400,2.108\r\n";

TEST(Pipes, AreReadStrictly) {
  const std::vector<Pipe> pipes = ParsePipes(kSound);
  ASSERT_EQ(pipes.size(), 4U);
  EXPECT_TRUE(pipes[0].HasWall("40"));
  EXPECT_TRUE(pipes[0].HasWall("STD"));
  EXPECT_FALSE(pipes[0].HasWall("4"));
  EXPECT_FALSE(pipes[1].HasWall("40"));

  const auto fails = [](const std::string& from, const std::string& to) {
    std::string text = kSound;
    text.replace(text.find(from), from.size(), to);
    return FailureOf([&] { ParsePipes(text); });
  };
  EXPECT_EQ(fails("\"copper\"", "\"brass\""), kInvalidCall);
  EXPECT_EQ(fails("0.237", "thick"), kTypeMismatch);
  EXPECT_EQ(fails("0.237", "0"), kInvalidCall);
  EXPECT_EQ(fails("0.237", "2.25"), kInvalidCall);  // no bore
  EXPECT_EQ(fails("6.02", "-6.02"), kInvalidCall);
  EXPECT_EQ(fails(",2.108", ""), kInputPastEnd);
  EXPECT_EQ(fails("\"tube\"", "\"steel\""), kInputPastEnd);  // a standard is missing
  EXPECT_EQ(FailureOf([] { ParsePipes(""); }), kInputPastEnd);
}

class PipeWindows : public ::testing::Test {
 protected:
  ScriptedSession suite;
};

TEST_F(PipeWindows, NeedTheirFile) {
  const TemporaryFolder folder;
  suite.session.DataPath = folder.File("");
  for (const char* name : {"pipedata", "Sched40"}) {
    suite.Shows(name);
    EXPECT_EQ(suite.Told(), Lines{"! failure 53 File not found"}) << name;
    EXPECT_EQ(suite.session.Find(name), nullptr);
  }
}

/// The texts of a chart in the order of reading, without the blanks between columns.
std::vector<std::string> TextsOf(const Window& window) {
  std::vector<std::string> texts;
  for (const Control* control : window.Controls())
    if (control->GetKind() == Control::Kind::Label)
      texts.push_back(control->Caption().substr(control->Caption().find_first_not_of(' ')));
  return texts;
}

TEST_F(PipeWindows, ChartSchedule40) {
  struct Row {
    bool metric;
    Lines texts;
  };
  const Row rows[] = {
      {false,
       {"1/8", "6", "0.405", "0.269", "0.068", "0.05683", "0.07199", "0.2450", "0.001064",
        "0.005252"}},
      {false,
       {"12", "300", "12.750", "11.938", "0.406", "111.9", "15.74", "53.57", "300.2", "47.09"}},
      {false,
       {"24", "600", "24.000", "22.624", "0.688", "402.0", "50.39", "171.5", "3,426", "285.5"}},
      {true, {"1/8", "6", "10.3", "6.84", "1.73", "36.75", "46.58", "0.3656", "445.0", "86.41"}},
      {true,
       {"12", "300", "323.8", "303.18", "10.31", "72,190", "10,150", "79.71", "124,900,000",
        "771,300"}},
      {true,
       {"24", "600", "610.0", "575.04", "17.48", "259,700", "32,540", "255.4", "1,429,000,000",
        "4,686,000"}},
  };
  for (const auto& [metric, texts] : rows) {
    suite.session.DataPath = std::string(KORVANE_SOURCE_DIR) + "/data/";
    suite.session.MetricUnits = metric;
    suite.Shows("Sched40");
    ASSERT_NE(suite.session.Find("Sched40"), nullptr);
    const std::vector<std::string> chart = TextsOf(*suite.session.Find("Sched40"));
    EXPECT_NE(std::ranges::search(chart, texts).begin(), chart.end()) << texts.front() << metric;
    EXPECT_EQ(std::ranges::count(chart, metric ? "mm4" : "in4"), 1);
    EXPECT_EQ(std::ranges::count(chart, "26"), 0);
    suite.session.Unload("Sched40");
  }
}

}  // namespace
}  // namespace korvane::testing
