#include "frame/number_text.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>
#include <string>

#include "failure_of.h"

namespace korvane {
namespace {

TEST(NumberText, RecognisesNumbersAndNothingElse) {
  struct Case {
    std::string text;
    double value;
  };
  const Case numbers[] = {
      {"0", 0},
      {"12", 12},
      {"-3", -3},
      {"+3", 3},
      {".5", .5},
      {"5.", 5},
      {"-.5", -.5},
      {"  2.5", 2.5},
      {"2.5 \t", 2.5},
      {"1e3", 1000},
      {"1E+3", 1000},
      {"1e-3", .001},
      {".5e1", 5},
      {"1,234.5", 1234.5},
      {"1,234,567", 1234567},
      {"12,34", 1234},
      {"007", 7},
      {"1e-400", 0},
      {"-1e-400", 0},
      {"0e999", 0},
      {"1e308", 1e308},
      {"0." + std::string(400, '0') + "1e401", 1},
      {"1" + std::string(400, '0') + "e-400", 1},
      {"1e-99999999999999999999", 0},
      {"0.1", .1},
  };
  for (const auto& [text, value] : numbers) {
    const auto read = Recognise(text);
    ASSERT_TRUE(read) << text;
    EXPECT_EQ(read->Value(), value) << text;
  }
  using namespace std::string_literals;
  for (const std::string& text :
       {""s,    " "s,   "."s,   "-"s,     "+."s,    "abc"s,   "1a"s,      "1 2"s,     "--1"s,
        "1e"s,  "1e+"s, "e5"s,  "1e1.5"s, "1.2.3"s, "1.5,5"s, ",5"s,      "0x10"s,    "inf"s,
        "nan"s, "$5"s,  "(5)"s, "1\n"s,   "1\0"s,   "\0"s,    "\u00A05"s, "\u22125"s, "\u0665"s}) {
    EXPECT_FALSE(Recognise(text)) << text;
    EXPECT_EQ(ToNumber(text).Value(), 0) << text;
    EXPECT_EQ(FailureOf([&] { return Strict(text); }), kTypeMismatch) << text;
  }
}

TEST(NumberText, NumbersBeyondTheirKindOverflow) {
  for (const std::string& text :
       {std::string("1e309"), std::string("-1e309"), std::string(400, '9'),
        "0.001e" + std::string(30, '9'), std::string("1e400")}) {
    EXPECT_EQ(FailureOf([&] { return Strict(text); }), kOverflow) << text;
    EXPECT_EQ(FailureOf([&] { return ToNumber(text); }), kOverflow) << text;
  }
  EXPECT_EQ(FailureOf([] { return ToNumber("3.5e38"); }), kOverflow);
  EXPECT_EQ(FailureOf([] { return ToNumber("3.4e38"); }), 0);
  EXPECT_EQ(ToNumber("1e-50").Value(), 0);
}

TEST(NumberText, TheLenientReadingKeeps32Bits) {
  EXPECT_EQ(ToNumber("1234567.89").Value(), 1234567.875F);
  EXPECT_EQ(ToNumber("0.1").Value(), 0.1F);
  EXPECT_EQ(Strict("1234567.89").Value(), 1234567.89);
}

TEST(NumberText, PlainTextIsTheShortestOfItsKind) {
  struct Case {
    double value;
    std::string asDouble;
    std::string asSingle;
  };
  const Case cases[] = {
      {0, "0", "0"},
      {-0.0, "0", "0"},
      {0.72, "0.72", "0.72"},
      {-21.5, "-21.5", "-21.5"},
      {1.0 / 3, "0.333333333333333", "0.3333333"},
      {2.0 / 3, "0.666666666666667", "0.6666667"},
      {1234567.89, "1234567.89", "1234568"},
      {9999999, "9999999", "9999999"},
      {12345678, "12345678", "1.234568E+07"},
      {9999999.5, "9999999.5", "1E+07"},
      {999999999999999, "999999999999999", "1E+15"},
      {1e15, "1E+15", "1E+15"},
      {-1.5e15, "-1.5E+15", "-1.5E+15"},
      {0.0001, "0.0001", "0.0001"},
      {0.00012345678, "0.00012345678", "0.0001234568"},
      {0.0000999999999, "9.99999999E-05", "0.0001"},
      {0.00001285, "1.285E-05", "1.285E-05"},
      {1e-6, "1E-06", "1E-06"},
      {1e-30, "1E-30", "1E-30"},
      {1e38, "1E+38", "1E+38"},
      // Where 32 bits hold less than 7 digits, the shorter text still gives the value back.
      {0.000986, "0.000986", "0.000986"},
      {9e9, "9000000000", "9E+09"},
      {-1e28, "-1E+28", "-1E+28"},
  };
  for (const auto& [value, asDouble, asSingle] : cases) {
    EXPECT_EQ(PlainText(Double(value)), asDouble);
    EXPECT_EQ(PlainText(Single(value)), asSingle);
  }
  EXPECT_EQ(PlainText(Double(5e-324)), "5E-324");
  EXPECT_EQ(PlainText(Double(1e300)), "1E+300");
  EXPECT_EQ(PlainText(Double(-1.5e-300)), "-1.5E-300");
  EXPECT_EQ(PlainText(-7), "-7");
  EXPECT_EQ(SignedText(3), " 3");
  EXPECT_EQ(SignedText(Single(-0.5)), "-0.5");
}

// Whatever a field is given is read back from it as far as its digits go.
TEST(NumberText, PlainTextIsReadBack) {
  std::mt19937 random(7);
  std::uniform_real_distribution<double> mantissa(-10, 10);
  std::uniform_int_distribution<int> exponent(-300, 300);
  for (int i = 0; i < 20'000; ++i) {
    const Double value = mantissa(random) * std::pow(10.0, exponent(random));
    const std::string text = PlainText(value);
    const Double back = Strict(text);
    EXPECT_NEAR(back.Value(), value.Value(), std::fabs(value.Value()) * 5.1e-15) << text;
    EXPECT_EQ(PlainText(back), text);
  }
}

}  // namespace
}  // namespace korvane
