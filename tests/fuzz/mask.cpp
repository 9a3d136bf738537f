// Masks: the first eight bytes are the number, the rest is the mask. What is shown is a number near
// the one given, or nothing but a point where it rounds to zero.
#include "frame/mask.h"

#include <cmath>
#include <cstring>

#include "frame/number_text.h"
#include "fuzz.h"

namespace {

using namespace korvane;

Mask Parsed(std::string_view text) {
  try {
    return Mask::Parse(text);
  } catch (const RuntimeFailure&) {
    return "#.######";
  }
}

void RequireNear(double shown, double value, Mask mask) {
  const double roundedTo15 = std::fabs(value) * 5.1e-15;
  const double roundedToMask =
      mask.ExponentZeros() > 0
          ? std::fabs(value) * std::pow(10, 1 - mask.WholeZeros() - mask.Places())
          : 0.5000001 * std::pow(10, -mask.Places());
  Require(std::fabs(shown - value) <= roundedTo15 + roundedToMask + 1e-322);
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  double value = 0;
  if (size < sizeof value) return 0;
  std::memcpy(&value, data, sizeof value);
  if (!std::isfinite(value)) return 0;
  const Mask mask = Parsed(Bytes(data, size).substr(sizeof value));

  const std::string shown = Format(value, mask);
  if (shown.empty() || shown == ".") {
    RequireNear(0, value, mask);
    return 0;
  }
  try {
    const auto back = Recognise(shown);
    Require(back.has_value());
    RequireNear(back->Value(), value, mask);
  } catch (const RuntimeFailure&) {
    Require(std::fabs(value) > 9e307);  // rounded up beyond the largest number
  }
  return 0;
}
