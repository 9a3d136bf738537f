// Showing numbers through a mask, against the C library's fixed notation.

#include "frame/mask.h"

#include <cmath>
#include <cstdio>
#include <random>
#include <vector>

#include "compare.h"

namespace korvane {
namespace {

/// Values of both signs from 1e-6 to 1e9, as many of each size.
std::vector<double> Values() {
  std::mt19937 random(1);
  std::uniform_real_distribution<double> exponent(-6, 9);
  std::vector<double> values;
  for (int i = 0; i < 10'000; ++i)
    values.push_back(std::pow(10, exponent(random)) * (i % 2 == 0 ? 1 : -1));
  return values;
}

void MaskFormatting(benchmark::State& state) {
  const std::vector<double> values = Values();
  CompareTimes(
      state, 1.0,
      [&values] {
        for (const double value : values) benchmark::DoNotOptimize(Format(value, "#.######"));
      },
      [&values] {
        for (const double value : values) {
          char text[40];
          std::snprintf(text, sizeof text, "%.6f", value);
          benchmark::DoNotOptimize(std::string(text));
        }
      });
}
BENCHMARK(MaskFormatting)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace korvane
