// Timing of two pieces of work against each other, and of one against the clock.
#pragma once

#include <benchmark/benchmark.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <ctime>
#include <limits>

namespace korvane {

/// Seconds of processor time that the work takes; what else runs on the machine counts little.
template <class Work>
double Seconds(Work&& work) {
  const auto now = [] {
    timespec time{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + 1e-9 * static_cast<double>(time.tv_nsec);
  };
  const double start = now();
  work();
  return now() - start;
}

/// Puts "measured, aim, met or not" beside the benchmark's line.
inline void Report(benchmark::State& state, double measured, const char* bound, double aim,
                   bool met) {
  std::array<char, 100> label{};
  std::snprintf(label.data(), label.size(), "measured %.6g, aim %s %.6g: %s", measured, bound, aim,
                met ? "met" : "NOT MET");
  state.SetLabel(label.data());
}

/// Runs both in turns and reports the ratio of their best times.
template <class Work, class Base>
void CompareTimes(benchmark::State& state, double mostRatio, Work work, Base base) {
  double workTime = std::numeric_limits<double>::max();
  double baseTime = workTime;
  for ([[maybe_unused]] auto round : state) {
    workTime = std::min(workTime, Seconds(work));
    baseTime = std::min(baseTime, Seconds(base));
  }
  const double ratio = workTime / baseTime;
  Report(state, ratio, "at most", mostRatio, ratio <= mostRatio);
}

}  // namespace korvane
