// Blower wheels: their curves, and how one runs at a wanted flow and static pressure. Inches, feet,
// cfm, inches of water, hp and rpm.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "frame/number.h"

namespace korvane {

inline constexpr const char* kWheelFile = "BLOWERS.dat";
inline constexpr const char* kCurveFile = "BLOWERS2.dat";

/// A point of a wheel's curve.
struct FanPoint {
  Double flow, pressure, power;
};

struct BlowerWheel {
  std::string type;
  Double diameter, width;
  Double ratedSpeed, largestSpeed;
  FanPoint rated;               ///< of the best efficiency
  std::vector<FanPoint> curve;  ///< at the rated speed in standard air, by rising flow

  Double TipSpeed(Double rpm) const;  ///< ft/min
};

/// What is wanted of a wheel.
struct FanDuty {
  Double flow, pressure;
  Double density;  ///< of the air, in parts of that of standard air

  /// The system's pressure at another flow.
  Double PressureAt(Double otherFlow) const;
};

/// How a wheel fulfils a duty.
struct FanOperation {
  enum class Fit : std::uint8_t {
    Suits,
    TooSteep,  ///< the system lets less air through than the wheel's curve begins with
    TooFlat,   ///< more than it ends with
    TooFast,   ///< it would have to run above its largest speed
  };

  Fit fit = Fit::TooSteep;
  Double speed;  ///< of TooSteep and TooFlat none is known
  Double power;
  Double efficiency;  ///< static, a part of 1

  bool Suits() const { return fit == Fit::Suits; }
  bool HasSpeed() const { return fit == Fit::Suits || fit == Fit::TooFast; }
};

/// Density of air in parts of that of standard air, 0.075 lb/ft3 at 70 F and sea level.
Double DensityRatio(Double fahrenheit, Double feet);

/// By the fan laws from the curve, which is straight between its points.
FanOperation Operate(const BlowerWheel& wheel, const FanDuty& duty);

/// The wheels and their curves from the two files, below their first lines. Fails with "Input past
/// end of file" if a file ends within a record or is without one, "Type mismatch" for what is no
/// number, "Subscript out of range" for a point of no wheel, "Invalid procedure call or argument"
/// for measures and curves that can't be.
std::vector<BlowerWheel> ParseWheels(std::string_view wheels, std::string_view curves);

}  // namespace korvane
