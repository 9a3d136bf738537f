// Sizes of ANSI roller chains, which sprockets and conveyors share.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "frame/number.h"

namespace korvane {

/// One strand, in inches; sizes from 2000 up are of double pitch.
struct RollerChain {
  int size;  ///< the ANSI number
  double pitch;
  double roller;  ///< diameter
  double plate;   ///< thickness of a sprocket's tooth
};

extern const std::array<RollerChain, 25> kRollerChains;

/// The chain of that number, where 0 reads as 40; null if there is none.
const RollerChain* FindChain(Single size);

/// The numbers in the order of the table, as lists show them.
std::vector<std::string> ChainSizes();

}  // namespace korvane
