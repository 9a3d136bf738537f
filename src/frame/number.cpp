#include "frame/number.h"

#include <limits>

namespace korvane {
namespace {

template <class Integer>
Integer ToWhole(Double value) {
  const double rounded = std::nearbyint(value.Value());  // halves to even, the default mode
  if (rounded < std::numeric_limits<Integer>::min() ||
      rounded > std::numeric_limits<Integer>::max())
    failures::Overflow();
  return static_cast<Integer>(rounded);
}

}  // namespace

Double Power(Double base, Double exponent) {
  const double result = std::pow(base.Value(), exponent.Value());
  if (std::isnan(result)) failures::InvalidCall();
  if (std::isinf(result) && base.Value() == 0) failures::DivisionByZero();
  return Double::FromStep(result);
}

Double ArcCos(Double x) { return Atan(-x / Sqrt(1 - x * x)) + 1.5708; }

Double ArcSin(Double x) { return Atan(x / Sqrt(1 - x * x)); }

short ToInteger16(Double value) { return ToWhole<short>(value); }

int ToInteger32(Double value) { return ToWhole<int>(value); }

}  // namespace korvane
