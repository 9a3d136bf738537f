#include "materials/digits.h"

#include <algorithm>
#include <iterator>

#include "frame/mask.h"

namespace korvane {
namespace {

struct Step {
  double least;
  Mask mask;
};

// For four digits; of three, each serves a tenth of its values.
constexpr Step kSteps[] = {
    {1000, "#,##0"}, {100, "0.0"},      {10, "0.00"},        {1, "0.000"},
    {0.1, "0.0000"}, {0.01, "0.00000"}, {0.001, "0.000000"}, {0, "0.0000000"},
};

std::string Rounded(Double value, int scale) {
  Double unit = 1;  // of the last digit that counts, where that is a whole one
  while (value * scale / unit >= 10000) unit *= 10;
  const Double rounded = unit > 1 ? Int(value / unit + 0.5) * unit : value;
  const auto* fitting = std::ranges::find_if(
      kSteps, [value, scale](const Step& step) { return value * scale >= step.least; });
  return Format(rounded, fitting->mask);
}

}  // namespace

std::string ThreeDigits(Double value) { return Rounded(value, 10); }

std::string FourDigits(Double value) { return Rounded(value, 1); }

}  // namespace korvane
