#include "frame/number.h"

#include <gtest/gtest.h>

#include <functional>
#include <vector>

#include "failure_of.h"

namespace korvane {
namespace {

template <class Expected, class Actual>
constexpr bool kIs = std::same_as<Expected, Actual>;

// Kinds: a formula gets them from its operands alone.
constexpr Single s = 3;
constexpr Double d = 3;
static_assert(kIs<Single, decltype(s + s)> && kIs<Single, decltype(s / s)>);
static_assert(kIs<Single, decltype(s * 2)> && kIs<Single, decltype(2 - s)>);
static_assert(kIs<Single, decltype(s / short{2})> && kIs<Single, decltype(1L - s)>);
static_assert(kIs<Single, decltype(-s)> && kIs<Single, decltype(Int(s))> &&
              kIs<Single, decltype(Abs(s))>);
static_assert(kIs<Double, decltype(s * 0.5)> && kIs<Double, decltype(0.5 / s)>);
static_assert(kIs<Double, decltype(s + d)> && kIs<Double, decltype(d - s)>);
static_assert(kIs<Double, decltype(d * 2)> && kIs<Double, decltype(2 / d)>);
static_assert(kIs<Double, decltype(Power(s, 2))> && kIs<Double, decltype(Sqrt(s))>);
static_assert(kIs<Double, decltype(Exp(s))> && kIs<Double, decltype(Log10(s))>);
static_assert(kIs<Double, decltype(Atan(s))> && kIs<Double, decltype(Int(d))>);

// A test of truth or a character is no number.
template <class A, class B>
concept Adds = requires(A a, B b) {
  a + b;
};
static_assert(Adds<Single, long> && !Adds<Single, bool> && !Adds<Double, char>);

// Each step is rounded to its kind, and so is a store.
static_assert((Single(1) / 3).Value() == 1.0F / 3);
static_assert((Single(1) / 3.0).Value() == 1.0 / 3);
static_assert((Single(16777216) + 1).Value() == 16777216.0F);
static_assert((Double(16777216) + 1).Value() == 16777217.0);
static_assert(Single(1234567.89).Value() == 1234567.875F);
static_assert(Single(0.1) != 0.1 && Double(0.1) == 0.1 && Single(0.5) == 0.5);
static_assert(Single(2) < 3 && 3.5 > Single(2) && Double(2) >= Single(2));

TEST(Number, CompoundAssignmentRoundsToTheVariable) {
  Single x = 1;
  x /= 3.0;
  EXPECT_EQ(x.Value(), static_cast<float>(1.0 / 3));
  x *= 3;
  x += 0.5;
  x -= 1;
  EXPECT_EQ(x.Value(), 0.5F);
}

TEST(Number, EachStepFailsWithItsOwnNumber) {
  const Single large = 3e38, small = 1e-38;
  const Double largest = 1.7e308, zero = 0;
  struct Case {
    int failure;
    std::function<Double()> step;
  };
  const std::vector<Case> cases = {
      {kOverflow, [&] { return large + large; }},
      {kOverflow, [&] { return -large - large; }},
      {kOverflow, [&] { return large * 10; }},
      {kOverflow, [&] { return large / small; }},
      {0, [&] { return large * 10.0; }},
      {kOverflow, [&] { return large * large / Double(large); }},  // at the step between Singles
      {kOverflow, [&] { return Single(large * 10.0); }},
      {kOverflow, [&] { return Single(largest); }},
      {kOverflow, [&] { return largest + largest; }},
      {kOverflow, [&] { return largest * -2; }},
      {kOverflow, [&] { return Exp(710); }},
      {0, [&] { return Exp(-1e6); }},
      {kOverflow, [&] { return Power(10, 309); }},
      {0, [&] { return Power(10, -400); }},
      {kDivisionByZero, [&] { return 1 / zero; }},
      {kDivisionByZero, [&] { return zero / zero; }},
      {kDivisionByZero, [&] { return large / Single(0); }},
      {kDivisionByZero, [&] { return large / -0.0; }},
      {kDivisionByZero, [&] { return large / 0; }},
      {kDivisionByZero, [&] { return Power(0, -1); }},
      {0, [&] { return zero / 5; }},
      {0, [&] { return Power(0, 0); }},
      {0, [&] { return Power(-2, 3); }},
      {kInvalidCall, [&] { return Power(-2, 0.5); }},
      {0, [&] { return Sqrt(-zero); }},
      {kInvalidCall, [&] { return Sqrt(-1e-300); }},
      {kInvalidCall, [&] { return Ln(0); }},
      {kInvalidCall, [&] { return Ln(-1); }},
      {kInvalidCall, [&] { return Log10(-zero); }},
      {kDivisionByZero, [&] { return ArcCos(1); }},
      {kDivisionByZero, [&] { return ArcSin(-1); }},
      {kInvalidCall, [&] { return ArcCos(1.01); }},
      {kInvalidCall, [&] { return ArcSin(-1.01); }},
  };
  for (std::size_t i = 0; i < cases.size(); ++i)
    EXPECT_EQ(FailureOf(cases[i].step), cases[i].failure) << "case " << i;
}

TEST(Number, FunctionsGiveWhatFormulasRelyOn) {
  EXPECT_EQ(ArcCos(0).Value(), 1.5708);  // not pi / 2
  EXPECT_EQ(ArcSin(0.5).Value(), std::atan(0.5 / std::sqrt(0.75)));
  EXPECT_EQ(Log10(1000).Value(), std::log(1000.0) / std::log(10.0));
  EXPECT_EQ(Int(Double(-1.5)).Value(), -2);
  EXPECT_EQ(Int(Single(1.999)).Value(), 1);
  EXPECT_EQ(Abs(Single(-2.5)).Value(), 2.5F);
}

TEST(Number, ConversionToWholeNumbersRoundsHalvesToEven) {
  struct Case {
    double value;
    int whole;
  };
  for (const auto& [value, whole] : {Case{0.5, 0},
                                     {1.5, 2},
                                     {2.5, 2},
                                     {-0.5, 0},
                                     {-2.5, -2},
                                     {2.500001, 3},
                                     {32767.4999, 32767},
                                     {-32768.5, -32768}}) {
    EXPECT_EQ(ToInteger16(value), whole) << value;
    EXPECT_EQ(ToInteger32(value), whole) << value;
  }
  EXPECT_EQ(ToInteger32(2147483647.4), 2147483647);
  EXPECT_EQ(ToInteger32(-2147483648.5), -2147483647 - 1);
  for (const double value : {32767.5, -32768.6, 1e300})
    EXPECT_EQ(FailureOf([&] { return ToInteger16(value); }), kOverflow) << value;
  for (const double value : {2147483647.5, -2147483648.6, -1e300})
    EXPECT_EQ(FailureOf([&] { return ToInteger32(value); }), kOverflow) << value;
}

}  // namespace
}  // namespace korvane
