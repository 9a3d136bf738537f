// The reader of unit pairs, both directions, and the shared conversions.
#include <gtest/gtest.h>

#include "frame/conversion_factors.h"
#include "frame/unit_conversion.h"

namespace korvane {
namespace {

TEST(Conversions, AreReadToTheEndOfTheFile) {
  const auto pairs = ParseConversions(
      "\"Celsius, degrees\",Fahrenheit,1.8,32,-1,0\r\n\r\ninches,feet,12,0,0,whatever\n");
  ASSERT_EQ(pairs.size(), 2U);
  EXPECT_EQ(pairs[0].first, "Celsius, degrees" + std::string(34, ' '));
  EXPECT_EQ(pairs[0].second.size(), 50U);
  EXPECT_TRUE(pairs[0].multiplies);
  EXPECT_FALSE(pairs[1].multiplies);

  EXPECT_EQ(Forward(pairs[0], 100), 212);
  EXPECT_EQ(Backward(pairs[0], 212), 100);
  EXPECT_EQ(Forward(pairs[1], 24), 2);
  EXPECT_EQ(Backward(pairs[1], 2), 24);

  const std::string longName(60, 'x');
  EXPECT_EQ(ParseConversions(longName + ",b,1,0,-1,0")[0].first, std::string(50, 'x'));
  EXPECT_TRUE(ParseConversions(" \r\n").empty());
}

TEST(Conversions, MalformedFilesFail) {
  struct Case {
    std::string bytes;
    int failure;
  };
  std::string many;
  for (int i = 0; i < 2001; ++i) many += "a,b,1,0,0,0\n";
  const Case kCases[] = {{"a,b,1,0,-1", 62},
                         {"a,b,one,0,-1,0", 13},
                         {"a,b,1,0,40000,0", 6},
                         {many + "a,b,1,0,0,0", 9}};
  EXPECT_EQ(ParseConversions(many).size(), 2001U);
  for (const Case& test : kCases) {
    try {
      ParseConversions(test.bytes);
      ADD_FAILURE() << test.bytes.substr(0, 40);
    } catch (const RuntimeFailure& failure) {
      EXPECT_EQ(failure.Number(), test.failure) << test.bytes.substr(0, 40);
    }
  }
  EXPECT_THROW(Forward({"", "", 0, 0, false}, 1), RuntimeFailure);
}

TEST(Conversions, SharedOnesKeepTheirConstants) {
  struct Case {
    Double result;
    double expected;
  };
  // Worked out by hand from the constants; where two are each other's inverse, both are looked at.
  const Case kCases[] = {
      {MillimetersToInches(254), 10},
      {KilogramsToPounds(1000), 2204.622},
      {PoundsToKilograms(Single(2204.622)), 1000},
      {FeetToMeters(10), 3.048},
      {LitersToGallons(Single(37.852979)), 10},
      {PsiToKilopascals(10), 68.948},
      {KilopascalsToPsi(Single(68.948)), 10},
      {TimesThousand(Single(1.5)), 1500},
      {FahrenheitToCelsius(212), 100},
      {CelsiusToFahrenheit(-40), -40},
      {CubicMetersPerHourToGpm(10), 44.033},
      {CfmToCubicMetersPerHour(10), 16.99},
      {CubicMetersPerHourToCfm(Single(16.99)), 10},
      {KgPerCubicMeterToPoundsPerCubicFoot(Single(16.018)), 1},
      {KilometersToMiles(10), 6.214},
  };
  for (const Case& test : kCases)
    EXPECT_NEAR(test.result.Value(), test.expected,
                1e-6 * test.expected * (test.expected < 0 ? -1 : 1));
  static_assert(std::is_same_v<decltype(TimesThousand(1)), Single>);
}

}  // namespace
}  // namespace korvane
