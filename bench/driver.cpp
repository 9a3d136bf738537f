// How fast the driver answers: orifice flows computed through its commands.

#include <array>
#include <optional>
#include <string>

#include "compare.h"
#include "driver/interpreter.h"

namespace korvane {
namespace {

constexpr int kComputations = 10'000;

/// "show FlowCalc", a pressure, then for each computation a diameter, Enter, and its flow.
void RunOrificeFlows() {
  int line = 0;
  std::size_t bytes = 0;
  const auto input = [&line]() -> std::optional<std::string> {
    const int at = line++;
    if (at == 0) return "show FlowCalc";
    if (at == 1) return "type pressure 1.5";
    const int computation = (at - 2) / 3;
    if (computation == kComputations) return std::nullopt;
    switch ((at - 2) % 3) {
      case 0: return "type dia " + std::to_string(computation % 997 + 1);
      case 1: return "enter dia";
      default: return "text flow";
    }
  };
  const auto output = [&bytes](const std::string& answer) { bytes += answer.size(); };
  Interpreter(input, output, "").Run();
  benchmark::DoNotOptimize(bytes);
}

void DriverThroughput(benchmark::State& state) {
  constexpr double least = 50'000;
  double best = 0;
  for ([[maybe_unused]] auto round : state)
    best = std::max(best, kComputations / Seconds(RunOrificeFlows));
  Report(state, best, "computations a second, at least", least, best >= least);
}
BENCHMARK(DriverThroughput)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace korvane
