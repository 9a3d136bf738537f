#include "hvac/blower_wheels.h"

#include <algorithm>
#include <numbers>

#include "frame/delimited.h"

namespace korvane {
namespace {

constexpr double kAirPower = 6356;  // cfm times inches of water in a horsepower

/// Pressure over the square of the flow: what a system keeps at any speed.
Double Resistance(const FanPoint& point) { return point.pressure / (point.flow * point.flow); }

BlowerWheel ReadWheel(DelimitedReader& reader) {
  BlowerWheel wheel;
  wheel.type = reader.Text();
  for (Double* number : {&wheel.diameter, &wheel.width, &wheel.ratedSpeed, &wheel.largestSpeed,
                         &wheel.rated.flow, &wheel.rated.pressure, &wheel.rated.power}) {
    *number = reader.Number();
    if (!(*number > 0)) failures::InvalidCall();
  }
  return wheel;
}

/// A curve rises in flow and falls in resistance, so that a system meets it at one point.
void ReadPoint(DelimitedReader& reader, std::vector<BlowerWheel>& wheels) {
  const int number = ToInteger32(reader.Number());
  if (number < 1 || number > static_cast<int>(wheels.size())) failures::SubscriptOutOfRange();
  FanPoint point;
  for (Double* value : {&point.flow, &point.pressure, &point.power}) {
    *value = reader.Number();
    if (!(*value > 0)) failures::InvalidCall();
  }
  std::vector<FanPoint>& curve = wheels[static_cast<std::size_t>(number - 1)].curve;
  if (!curve.empty() &&
      (point.flow <= curve.back().flow || Resistance(point) >= Resistance(curve.back())))
    failures::InvalidCall();
  curve.push_back(point);
}

/// Where the system's parabola crosses the line between two points.
FanPoint Crossing(const FanPoint& a, const FanPoint& b, Double resistance) {
  const Double slope = (b.pressure - a.pressure) / (b.flow - a.flow);
  const Double start = a.pressure - slope * a.flow;
  const Double root = Sqrt(slope * slope + 4 * resistance * start);
  const Double flow = std::clamp((slope + root) / (2 * resistance), a.flow, b.flow);
  const Double part = (flow - a.flow) / (b.flow - a.flow);
  return {flow, start + slope * flow, a.power + part * (b.power - a.power)};
}

}  // namespace

Double BlowerWheel::TipSpeed(Double rpm) const {
  constexpr int inches = 12;  // in a foot
  return std::numbers::pi * diameter / inches * rpm;
}

Double FanDuty::PressureAt(Double otherFlow) const { return pressure * Power(otherFlow / flow, 2); }

// By the absolute temperature, and the U.S. Standard Atmosphere up to 36,089 ft.
Double DensityRatio(Double fahrenheit, Double feet) {
  constexpr int zero = 460, standard = 530;  // degrees Rankine
  return standard / (fahrenheit + zero) * Power(1 - feet * 6.8755856e-6, 5.2558797);
}

FanOperation Operate(const BlowerWheel& wheel, const FanDuty& duty) {
  using Fit = FanOperation::Fit;
  const Double resistance = duty.pressure / duty.density / (duty.flow * duty.flow);
  const std::vector<FanPoint>& curve = wheel.curve;
  if (resistance > Resistance(curve.front())) return {.fit = Fit::TooSteep};
  if (resistance < Resistance(curve.back())) return {.fit = Fit::TooFlat};
  std::size_t next = 1;
  while (resistance < Resistance(curve[next])) ++next;
  const FanPoint point = Crossing(curve[next - 1], curve[next], resistance);

  const Double ratio = duty.flow / point.flow;
  FanOperation operation;
  operation.speed = wheel.ratedSpeed * ratio;
  operation.power = point.power * Power(ratio, 3) * duty.density;
  operation.efficiency = duty.flow * duty.pressure / kAirPower / operation.power;
  operation.fit = operation.speed > wheel.largestSpeed ? Fit::TooFast : Fit::Suits;
  return operation;
}

std::vector<BlowerWheel> ParseWheels(std::string_view wheelBytes, std::string_view curveBytes) {
  DelimitedReader heads(wheelBytes), points(curveBytes);
  heads.Line();
  points.Line();
  std::vector<BlowerWheel> wheels;
  while (!heads.AtEnd()) wheels.push_back(ReadWheel(heads));
  while (!points.AtEnd()) ReadPoint(points, wheels);
  if (wheels.empty()) failures::InputPastEnd();
  for (const BlowerWheel& wheel : wheels)
    if (wheel.curve.size() < 2) failures::InputPastEnd();
  return wheels;
}

}  // namespace korvane
