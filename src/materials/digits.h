// Values shown with a count of digits, whatever their size.
#pragma once

#include <string>

#include "frame/number.h"

namespace korvane {

/// A value above 0, rounded to so many digits that count.
std::string ThreeDigits(Double value);
std::string FourDigits(Double value);

}  // namespace korvane
