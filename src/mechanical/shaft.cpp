#include "mechanical/shaft.h"

namespace korvane {
namespace {

constexpr double kPi = 3.14159265359;
constexpr double kDegrees = 57.2957805;  // in a radian
constexpr int kTorquePerPower = 63000;   // in-lb rpm / hp

}  // namespace

Double PolarInertia(Single d) { return kPi * Power(d, 4) / 32; }

Double PolarModulus(Single d) { return kPi * Power(d, 3) / 16; }

Double Twist(Single length, Single torque, Single G, Single J) {
  return kDegrees * (length * torque) / (G * J);
}

Double DiameterForTwist(Single length, Single torque, Single G, Single twist) {
  return Power((kDegrees * length * torque) / (0.098 * twist * G), 0.25);
}

Double DiameterForModulus(Single Z) { return Power(16 * Z / 3.1415926, 1.0 / 3); }

void ShowAdaptive(UsField& field, Double us) {
  const Double shown = field.Shown(us);
  if (shown < 0.01)
    field.ShowUs(us, "#.######");
  else if (shown > 1000)
    field.ShowUs(us, "#");
  else
    field.ShowUs(us, "#.###");
}

void ShaftTorsion::ShowSection() {
  const Single d = fields_.diameter.Us();
  if (d <= 0) return;
  ShowAdaptive(fields_.J, PolarInertia(d));
  ShowAdaptive(fields_.Z, PolarModulus(d));
}

// Both section values are read back as their masks have rounded them.
void ShaftTorsion::Solve() {
  ShowSection();
  const Single length = fields_.length.Us();
  const Single torque = fields_.torque.Us();
  const Single G = fields_.G.Us();
  const Single J = fields_.J.Us();
  const Single Z = fields_.Z.Us();
  if (length * torque > 0 && G * J > 0) fields_.twist.ShowUs(Twist(length, torque, G, J), "#.###");
  if (torque * Z > 0) fields_.stress.ShowUs(torque / Z, "#.###");
}

bool ShaftTorsion::SolveTorque() {
  const Single hp = fields_.power.Us();
  const Single rpm = fields_.rpm.Us();
  const bool solves = hp * rpm > 0;
  if (solves) ShowAdaptive(fields_.torque, kTorquePerPower * hp / rpm);
  return solves;
}

bool ShaftTorsion::SolveSpeed() {
  const Single hp = fields_.power.Us();
  const Single torque = fields_.torque.Us();
  const bool solves = torque * hp > 0;
  if (solves) ShowAdaptive(fields_.rpm, kTorquePerPower * hp / torque);
  return solves;
}

bool ShaftTorsion::SolvePower() {
  const Single rpm = fields_.rpm.Us();
  const Single torque = fields_.torque.Us();
  const bool solves = torque * rpm > 0;
  if (solves) ShowAdaptive(fields_.power, torque * rpm / kTorquePerPower);
  return solves;
}

void ShaftTorsion::FromPower() {
  if (!SolveTorque()) SolveSpeed();
}

void ShaftTorsion::FromSpeed() {
  if (!SolveTorque()) SolvePower();
}

void ShaftTorsion::FromTorque() {
  if (!SolvePower()) SolveSpeed();
}

bool ShaftTorsion::FromTwist() {
  const Single length = fields_.length.Us();
  const Single torque = fields_.torque.Us();
  const Single G = fields_.G.Us();
  const Single twist = fields_.twist.Us();
  const bool solves = length * torque > 0 && G * twist > 0;
  if (solves) ShowAdaptive(fields_.diameter, DiameterForTwist(length, torque, G, twist));
  return solves;
}

bool ShaftTorsion::FromStress() {
  const Single torque = fields_.torque.Us();
  const Single stress = fields_.stress.Us();
  const bool solves = torque * stress > 0;
  if (solves) {
    const Single Z = torque / stress;
    ShowAdaptive(fields_.Z, Z);
    ShowAdaptive(fields_.diameter, DiameterForModulus(Z));
  }
  return solves;
}

}  // namespace korvane
