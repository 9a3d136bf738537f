// Blower wheels by the fan laws, what their files may hold, and a round trip of the window's file.
#include "hvac/blower_wheels.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "../frame/failure_of.h"
#include "../support/scripted_session.h"
#include "../support/temporary_folder.h"
#include "frame/controls.h"

namespace korvane::testing {
namespace {

const std::string kWheels =
    "two wheels\r\n"
    "\"Backward Inclined\",20,8,1500,2400,4000,3,2.4\r\n"
    "\"Radial\",12,4,3000,5000,1000,5,1.2\r\n";
const std::string kCurves =
    "their curves\r\n"
    "1,2000,4,1.9\r\n1,4000,3,2.4\r\n1,6000,1,2.5\r\n"
    "2,500,6,0.9\r\n2,1000,5,1.2\r\n";

using Fit = FanOperation::Fit;

TEST(BlowerWheels, ObeyTheFanLaws) {
  const BlowerWheel wheel = ParseWheels(kWheels, kCurves).front();
  const FanOperation rated = Operate(wheel, {4000, 3, 1});
  EXPECT_NEAR(rated.speed.Value(), 1500, 1e-9);
  EXPECT_NEAR(rated.power.Value(), 2.4, 1e-12);
  EXPECT_NEAR(rated.efficiency.Value(), 4000 * 3 / 6356.0 / 2.4, 1e-12);

  // Midway between two points; the system line is the same at half the speed and in thin air.
  const FanOperation between = Operate(wheel, {5000, 2, 1});
  EXPECT_NEAR(between.speed.Value(), 1500, 1e-9);
  EXPECT_NEAR(between.power.Value(), 2.45, 1e-12);
  const FanOperation half = Operate(wheel, {2500, 0.5, 1});
  EXPECT_NEAR(half.speed.Value(), 750, 1e-9);
  EXPECT_NEAR(half.power.Value(), 2.45 / 8, 1e-12);
  const FanOperation thin = Operate(wheel, {5000, 1.6, 0.8});
  EXPECT_NEAR(thin.speed.Value(), 1500, 1e-9);
  EXPECT_NEAR(thin.power.Value(), 2.45 * 0.8, 1e-12);
  EXPECT_NEAR(thin.efficiency.Value(), between.efficiency.Value(), 1e-12);
}

TEST(BlowerWheels, SuitWithinTheirCurveAndSpeed) {
  const BlowerWheel wheel = ParseWheels(kWheels, kCurves).front();
  EXPECT_TRUE(Operate(wheel, {2000, 4, 1}).Suits());
  EXPECT_TRUE(Operate(wheel, {6000, 1, 1}).Suits());
  EXPECT_EQ(Operate(wheel, {1999, 4, 1}).fit, Fit::TooSteep);
  EXPECT_EQ(Operate(wheel, {6001, 1, 1}).fit, Fit::TooFlat);
  EXPECT_TRUE(Operate(wheel, {6399, 7.677, 1}).Suits());  // 1.6 times the rated speed
  const FanOperation fast = Operate(wheel, {6401, 7.683, 1});
  EXPECT_EQ(fast.fit, Fit::TooFast);
  EXPECT_GT(fast.speed, 2400);
}

TEST(BlowerWheels, AirThinsWithHeatAndHeight) {
  EXPECT_NEAR(DensityRatio(70, 0).Value(), 1, 1e-12);
  EXPECT_NEAR(DensityRatio(600, 0).Value(), 0.5, 1e-12);
  EXPECT_NEAR(DensityRatio(70, 5000).Value(), 0.8320, 0.0001);  // 24.896 inHg of 29.921
}

TEST(BlowerWheels, AreReadStrictly) {
  const auto fails = [](const std::string& from, const std::string& to) {
    std::string wheels = kWheels, curves = kCurves;
    std::string& text = wheels.find(from) != std::string::npos ? wheels : curves;
    text.replace(text.find(from), from.size(), to);
    return FailureOf([&] { return ParseWheels(wheels, curves); });
  };
  constexpr int subscript = 9;
  EXPECT_EQ(fails("two wheels", "2"), 0);
  EXPECT_EQ(fails("4000,3,2.4\r\n\"Radial\"", "4000,3\r\n\"Radial\""), kTypeMismatch);
  EXPECT_EQ(fails("5000,1000,5,1.2", "5000,1000"), kInputPastEnd);
  EXPECT_EQ(fails("\",12,", "\",0,"), kInvalidCall);
  EXPECT_EQ(fails("2,500,6,0.9", "3,500,6,0.9"), subscript);
  EXPECT_EQ(fails("2,500,6,0.9", "0,500,6,0.9"), subscript);
  EXPECT_EQ(fails("2,500,6,0.9\r\n", ""), kInputPastEnd);   // a point makes no curve
  EXPECT_EQ(fails("1,4000,3", "1,2000,3"), kInvalidCall);   // no more flow
  EXPECT_EQ(fails("1,4000,3", "1,4000,17"), kInvalidCall);  // a steeper system line
  EXPECT_EQ(FailureOf([] { return ParseWheels("none", ""); }), kInputPastEnd);
}

// The wheel comes back by its place in the list, and the results follow the file.
TEST(BlowerWindow, KeepsItsDutyInAFile) {
  ScriptedSession suite;
  const TemporaryFolder folder;
  suite.session.DataPath = std::string(KORVANE_SOURCE_DIR) + "/data/";
  suite.Shows("BLOWERS");
  const auto load = [&](const std::string& bytes) {
    folder.Write("a.dta", bytes);
    suite.platform.QueueFile(folder.File("a.dta"));
    suite.Told();
    suite.person.Clicks(suite.Get("Command3"));
  };
  load(
      "BLOWERS\r\nWheel, 9 \r\nFlow,5000\r\nStatic pressure,2.50\r\nTemperature,150\r\n"
      "Altitude,2000\r\n");
  EXPECT_EQ(suite.Told(), Lines{"! dialog open Load data... | blowers.dta"});
  EXPECT_EQ(suite.Get<Combo>("cmb_wheel").Text(), "Backward Inclined, 24.5 x 9.75 in");
  EXPECT_EQ(suite.Get<TextField>("txt_pressure").Text(), "2.5");
  EXPECT_EQ(suite.Get<TextField>("txt_power").Text(), "2.51");
  suite.person.Types(suite.Get<FocusControl>("txt_pressure"), ".75");
  suite.person.Types(suite.Get<FocusControl>("txt_altitude"), "");
  suite.platform.QueueFile(folder.File("b.dta"));
  suite.person.Clicks(suite.Get("Command2"));
  EXPECT_EQ(folder.Read("b.dta"),
            "BLOWERS\r\nWheel, 9 \r\nFlow,5000\r\nStatic pressure,.75\r\nTemperature,150\r\n"
            "Altitude,\r\n");
  // There is no such wheel: the message, and nothing behind it is read.
  load("BLOWERS\r\nWheel, 99 \r\nFlow,1\r\n");
  EXPECT_EQ(suite.Get<TextField>("txt_flow").Text(), "5000");
  const Lines told = suite.Told();
  EXPECT_NE(std::ranges::find(told, "! message Korvane | Error reading data file."), told.end());
}

}  // namespace
}  // namespace korvane::testing
