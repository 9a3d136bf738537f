#include "mechanical/roller_chain.h"

namespace korvane {

const std::array<RollerChain, 25> kRollerChains = {{
    {25, 0.25, 0.13, 0.11},    {35, 0.375, 0.2, 0.168},  {41, 0.5, 0.306, 0.227},
    {40, 0.5, 0.312, 0.284},   {50, 0.625, 0.4, 0.343},  {60, 0.75, 0.469, 0.459},
    {80, 1, 0.625, 0.575},     {100, 1.25, 0.75, 0.692}, {120, 1.5, 0.875, 0.924},
    {140, 1.75, 1, 0.924},     {160, 2, 1.125, 1.156},   {200, 2.5, 1.562, 1.389},
    {240, 3, 1.875, 1.736},    {2040, 1, 0.312, 0.284},  {2050, 1.25, 0.4, 0.343},
    {2060, 1.5, 0.469, 0.459}, {2080, 2, 0.625, 0.575},  {2100, 2.5, 0.75, 0.692},
    {2120, 3, 0.875, 0.924},   {2042, 1, 0.625, 0.284},  {2052, 1.25, 0.75, 0.343},
    {2062, 1.5, 0.875, 0.459}, {2082, 2, 1.125, 0.575},  {2102, 2.5, 1.562, 0.692},
    {2122, 3, 1.75, 0.924},
}};

const RollerChain* FindChain(Single size) {
  constexpr int usual = 40;
  if (size == 0) size = usual;
  for (const RollerChain& chain : kRollerChains)
    if (size == chain.size) return &chain;
  return nullptr;
}

std::vector<std::string> ChainSizes() {
  std::vector<std::string> sizes;
  sizes.reserve(kRollerChains.size());
  for (const RollerChain& chain : kRollerChains) sizes.push_back(std::to_string(chain.size));
  return sizes;
}

}  // namespace korvane
