// Values shown with a count of digits.
#include "materials/digits.h"

#include <gtest/gtest.h>

namespace korvane::testing {
namespace {

TEST(Digits, AreFour) {
  EXPECT_EQ(FourDigits(0.00106386), "0.001064");
  EXPECT_EQ(FourDigits(0.0996), "0.09960");
  EXPECT_EQ(FourDigits(9.5), "9.500");
  EXPECT_EQ(FourDigits(999.94), "999.9");
  EXPECT_EQ(FourDigits(9999.4), "9,999");
  EXPECT_EQ(FourDigits(12345), "12,350");
  EXPECT_EQ(FourDigits(99996), "100,000");
}

TEST(Digits, AreThree) {
  EXPECT_EQ(ThreeDigits(0.0034567), "0.00346");
  EXPECT_EQ(ThreeDigits(0.0996), "0.0996");
  EXPECT_EQ(ThreeDigits(9.5), "9.50");
  EXPECT_EQ(ThreeDigits(99.94), "99.9");
  EXPECT_EQ(ThreeDigits(335.3), "335");
  EXPECT_EQ(ThreeDigits(1117.6), "1,120");
  EXPECT_EQ(ThreeDigits(63548.3), "63,500");
}

}  // namespace
}  // namespace korvane::testing
