#include "frame/mask.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <cstdio>
#include <random>
#include <string>

#include "failure_of.h"

namespace korvane {
namespace {

// Each mask in use with a zero, a whole number, fractions that round up and down, a negative that
// rounds to zero, and a large negative.
TEST(Mask, EveryMaskInUse) {
  constexpr std::array<double, 6> values = {0, 12, 0.5, 1234.56789, -0.00000000001, -2345678.25};
  struct Case {
    Mask mask;
    std::array<std::string, 6> shown;
  };
  const Case cases[] = {
      {"#", {"", "12", "1", "1235", "", "-2345678"}},
      {"####", {"", "12", "1", "1235", "", "-2345678"}},
      {"#########", {"", "12", "1", "1235", "", "-2345678"}},
      {"##.##", {".", "12.", ".5", "1234.57", ".", "-2345678.25"}},
      {"###.###", {".", "12.", ".5", "1234.568", ".", "-2345678.25"}},
      {"###.#####", {".", "12.", ".5", "1234.56789", ".", "-2345678.25"}},
      {"####.0", {".0", "12.0", ".5", "1234.6", ".0", "-2345678.3"}},
      {"###.0", {".0", "12.0", ".5", "1234.6", ".0", "-2345678.3"}},
      {"#,###,###,###", {"", "12", "1", "1,235", "", "-2,345,678"}},
      {"#,###,###,###.0", {".0", "12.0", ".5", "1,234.6", ".0", "-2,345,678.3"}},
      {"#.#", {".", "12.", ".5", "1234.6", ".", "-2345678.3"}},
      {"#.##", {".", "12.", ".5", "1234.57", ".", "-2345678.25"}},
      {"#.###", {".", "12.", ".5", "1234.568", ".", "-2345678.25"}},
      {"#.####", {".", "12.", ".5", "1234.5679", ".", "-2345678.25"}},
      {"#.#####", {".", "12.", ".5", "1234.56789", ".", "-2345678.25"}},
      {"#.######", {".", "12.", ".5", "1234.56789", ".", "-2345678.25"}},
      {"#.########", {".", "12.", ".5", "1234.56789", ".", "-2345678.25"}},
      {"#.#########", {".", "12.", ".5", "1234.56789", ".", "-2345678.25"}},
      {"#.##########", {".", "12.", ".5", "1234.56789", ".", "-2345678.25"}},
      {"#.0", {".0", "12.0", ".5", "1234.6", ".0", "-2345678.3"}},
      {"#.00", {".00", "12.00", ".50", "1234.57", ".00", "-2345678.25"}},
      {"#.000", {".000", "12.000", ".500", "1234.568", ".000", "-2345678.250"}},
      {"#.00000", {".00000", "12.00000", ".50000", "1234.56789", ".00000", "-2345678.25000"}},
      {"#0.0", {"0.0", "12.0", "0.5", "1234.6", "0.0", "-2345678.3"}},
      {"#0.000", {"0.000", "12.000", "0.500", "1234.568", "0.000", "-2345678.250"}},
      {"0", {"0", "12", "1", "1235", "0", "-2345678"}},
      {"00", {"00", "12", "01", "1235", "00", "-2345678"}},
      {"0.#", {"0.", "12.", "0.5", "1234.6", "0.", "-2345678.3"}},
      {"0.##", {"0.", "12.", "0.5", "1234.57", "0.", "-2345678.25"}},
      {"0.###", {"0.", "12.", "0.5", "1234.568", "0.", "-2345678.25"}},
      {"0.######", {"0.", "12.", "0.5", "1234.56789", "0.", "-2345678.25"}},
      {"0.########", {"0.", "12.", "0.5", "1234.56789", "0.", "-2345678.25"}},
      {"0.0", {"0.0", "12.0", "0.5", "1234.6", "0.0", "-2345678.3"}},
      {"0.0#####", {"0.0", "12.0", "0.5", "1234.56789", "0.0", "-2345678.25"}},
      {"0.00", {"0.00", "12.00", "0.50", "1234.57", "0.00", "-2345678.25"}},
      {"0.00#", {"0.00", "12.00", "0.50", "1234.568", "0.00", "-2345678.25"}},
      {"0.000", {"0.000", "12.000", "0.500", "1234.568", "0.000", "-2345678.250"}},
      {"0.0000", {"0.0000", "12.0000", "0.5000", "1234.5679", "0.0000", "-2345678.2500"}},
      {"0.00000", {"0.00000", "12.00000", "0.50000", "1234.56789", "0.00000", "-2345678.25000"}},
      {"0.000000",
       {"0.000000", "12.000000", "0.500000", "1234.567890", "0.000000", "-2345678.250000"}},
      {"0.000E+0", {"0.000E+0", "1.200E+1", "5.000E-1", "1.235E+3", "-1.000E-11", "-2.346E+6"}},
  };
  for (std::size_t mask = 0; mask < std::size(cases); ++mask)
    for (std::size_t i = 0; i < values.size(); ++i)
      EXPECT_EQ(Format(values[i], cases[mask].mask), cases[mask].shown[i])
          << "mask " << mask << " value " << values[i];
}

TEST(Mask, RoundsHalfAwayFromZeroOnFifteenDigits) {
  struct Case {
    Double value;
    Mask mask;
    std::string shown;
  };
  const Case cases[] = {
      {2.675, "0.00", "2.68"},  // in binary a little less
      {1.005, "0.00", "1.01"},
      {-2.675, "0.00", "-2.68"},
      {2.5, "0", "3"},
      {-2.5, "0", "-3"},
      {0.5, "#", "1"},
      {-0.5, "0", "-1"},
      {0.4999999999999999, "0", "1"},  // 15 digits make it a half
      {0.49999999999999, "0", "0"},
      {-0.49, "0", "0"},
      {-0.004, "0.00", "0.00"},
      {-0.004, "#.##", "."},
      {-0.005, "#.##", "-.01"},
      {0.9996, "#.###", "1."},
      {999.9996, "#.###", "1000."},
      {999.9996, "#,###.###", "1,000."},
      {0.0004, "#.###", "."},
      {0.0005, "#.###", ".001"},
      {Single(0.1), "0.0#########", "0.1000000015"},  // widened as it is
      {Single(2.675), "0.00", "2.67"},                // 2.67499995231628
      {9.9996, "0.000E+0", "1.000E+1"},
      {-9.9996e-10, "0.000E+0", "-1.000E-9"},
      {1e100, "0.000E+0", "1.000E+100"},
      {1.2345e-100, "0.000E+0", "1.235E-100"},
      {123456, "#,###", "123,456"},
      {1234567, "#,###", "1,234,567"},
      {7, "#,###", "7"},
      {1e30, "#.######", "1" + std::string(30, '0') + "."},
      {-1e30, "#,###,###,###", "-1,000,000,000,000,000,000,000,000,000,000"},
      {1.23456789012345678e20, "0.0", "123456789012346000000.0"},
      {1.7976931348623157e308, "0", "179769313486232" + std::string(294, '0')},
      {5e-324, "#.######", "."},
      {5e-324, "0.000E+0", "4.941E-324"},
      {-5e-324, "0.00", "0.00"},
  };
  for (const auto& [value, mask, shown] : cases)
    EXPECT_EQ(Format(value, mask), shown) << value.Value();
}

/// The value by the rule, in whole-number arithmetic: 15 digits, then half away from zero.
std::string Reference(double value, int wholeZeros, int placeZeros, int places) {
  char text[40];
  std::snprintf(text, sizeof text, "%.14e", std::fabs(value));
  const int exponent = std::atoi(text + 17);
  long long digits = std::atoll((std::string(1, text[0]) + std::string(text + 2, 14)).c_str());
  int zeros = exponent - 14 + places;  // digits * 10^zeros units of the last place
  for (; zeros < -1; ++zeros) digits /= 10;
  if (zeros == -1) {
    digits = (digits + 5) / 10;
    zeros = 0;
  }
  std::string units = digits == 0 ? "" : std::to_string(digits);
  if (digits != 0) units.append(static_cast<std::size_t>(zeros), '0');
  const auto least = static_cast<std::size_t>(wholeZeros + places);
  if (units.size() < static_cast<std::size_t>(places))
    units.insert(0, static_cast<std::size_t>(places) - units.size(), '0');
  if (units.size() < least) units.insert(0, least - units.size(), '0');
  const std::size_t point = units.size() - static_cast<std::size_t>(places);
  std::string fraction = units.substr(point);
  while (fraction.size() > static_cast<std::size_t>(placeZeros) && fraction.back() == '0')
    fraction.pop_back();
  std::string shown = value < 0 && digits != 0 ? "-" : "";
  shown.append(units, 0, point).append(".").append(fraction);
  return shown;
}

TEST(Mask, AgreesWithWholeNumberArithmetic) {
  struct Case {
    Mask mask;
    int wholeZeros, placeZeros, places;
  };
  const Case cases[] = {{"#.######", 0, 0, 6}, {"#.#", 0, 0, 1},          {"0.00", 1, 2, 2},
                        {"0.00#", 1, 2, 3},    {"0.0#####", 1, 1, 6},     {"#.00000", 0, 5, 5},
                        {"00.000", 2, 3, 3},   {"#.##########", 0, 0, 10}};
  std::mt19937_64 random(11);
  std::uniform_real_distribution<double> mantissa(-10, 10);
  std::uniform_int_distribution<int> exponent(-14, 24), cents(-100'000'000, 100'000'000);
  for (int i = 0; i < 20'000; ++i) {
    // Every second value ends in a 5 after a few decimals, where rounding is decided.
    const double value = i % 2 == 0 ? mantissa(random) * std::pow(10.0, exponent(random))
                                    : (cents(random) * 10 + 5) / 10000.0;
    for (const auto& [mask, wholeZeros, placeZeros, places] : cases)
      ASSERT_EQ(Format(value, mask), Reference(value, wholeZeros, placeZeros, places)) << value;
  }
}

TEST(Mask, ValuesNeverSetAndTextsThatAreNoNumbers) {
  EXPECT_EQ(FormatUnlessUnset(std::nullopt, "#.######"), "");
  EXPECT_EQ(FormatUnlessUnset(std::nullopt, "0.00"), "0.00");
  EXPECT_EQ(FormatUnlessUnset(std::nullopt, "#.0"), ".0");
  EXPECT_EQ(FormatUnlessUnset(Double(0), "#.######"), ".");
  EXPECT_EQ(FormatText("1.23456", "#.###"), "1.235");
  EXPECT_EQ(FormatText("  1.0", "#.###"), "1.");
  EXPECT_EQ(FormatText("", "0.00"), "");
  EXPECT_EQ(FormatText("none", "0.00"), "none");
}

TEST(Mask, OtherTextsAreNoMasks) {
  for (const char* text : {"", ".", ",", ",#", "0#", "#.#0", "x", "#x", "#.##.#", "0.0E", "0.0E+",
                           "0.0E+#", "E+0", "#E+0", "#.0E+0", "# "})
    EXPECT_EQ(FailureOf([&] { return Mask::Parse(text); }), kInvalidCall) << text;
}

}  // namespace
}  // namespace korvane
