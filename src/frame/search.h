// A long search: the hourglass pointer, and a window that stays alive meanwhile.
#pragma once

#include <chrono>

#include "frame/session.h"

namespace korvane {

/// Lives as long as a search runs.
class Search {
 public:
  explicit Search(Session& session) : session_(session), hourglass_(session.GetPlatform()) {}

  /// After each step: draws what the search has written and lets pending messages run, as often as
  /// a person can see.
  void Stepped() {
    constexpr int stepsPerLook = 64;  // asking the time costs as much as a step of arithmetic
    if (++steps_ % stepsPerLook != 0) return;
    const auto now = Clock::now();
    if (now < next_) return;
    session_.RunPendingMessages();
    next_ = Clock::now() + kPeriod;
  }

 private:
  using Clock = std::chrono::steady_clock;
  static constexpr std::chrono::milliseconds kPeriod{50};

  Session& session_;
  Hourglass hourglass_;
  Clock::time_point next_ = Clock::now() + kPeriod;
  unsigned steps_ = 0;
};

}  // namespace korvane
