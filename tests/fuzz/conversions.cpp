// A file of unit pairs of any bytes. Each pair read converts both ways, or fails as arithmetic
// does; where there is no offset to cancel digits, the way back brings the value back.
#include <array>
#include <cmath>

#include "frame/codepage.h"
#include "frame/conversion_factors.h"
#include "fuzz.h"

namespace {

using namespace korvane;

constexpr std::array kValues = {0.0, 1.0, -40.0, 0.1, 1e30};

void ConvertBothWays(const Conversion& conversion, double value) {
  try {
    const Double there = Forward(conversion, value);
    const Double back = Backward(conversion, there);
    const bool normal = there == 0 || std::isnormal(there.Value());
    if (conversion.offset == 0 && normal)
      Require(std::fabs(back.Value() - value) <= 1e-15 * std::fabs(value));
  } catch (const RuntimeFailure& failure) {
    Require(failure.Number() == 6 || failure.Number() == 11);
  }
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  try {
    for (const Conversion& conversion : ParseConversions(Bytes(data, size))) {
      Require(ToCodePage(conversion.first).size() == 50);
      Require(ToCodePage(conversion.second).size() == 50);
      for (const double value : kValues) ConvertBothWays(conversion, value);
    }
  } catch (const RuntimeFailure& failure) {
    const int number = failure.Number();
    Require(number == 6 || number == 9 || number == 13 || number == 62);
  }
  return 0;
}
