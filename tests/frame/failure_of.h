// The failure that a piece of work ends in.
#pragma once

#include "frame/runtime_failure.h"

namespace korvane {

/// The number of the failure; 0 if the work succeeds.
template <class Work>
int FailureOf(Work&& work) {
  try {
    static_cast<void>(work());
    return 0;
  } catch (const RuntimeFailure& failure) {
    return failure.Number();
  }
}

/// The customary numbers of failures.
enum : int {
  kInvalidCall = 5,
  kOverflow = 6,
  kOutOfMemory = 7,
  kDivisionByZero = 11,
  kTypeMismatch = 13,
  kFileNotFound = 53,
  kDeviceError = 57,
  kInputPastEnd = 62,
  kPathAccess = 75,
};

}  // namespace korvane
