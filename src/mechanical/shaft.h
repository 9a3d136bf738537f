// A round shaft in torsion, as two windows solve it: from any of power, speed, torque, size, twist
// and stress those that are open. Inches, pounds, psi and hp.
#pragma once

#include "frame/us_field.h"

namespace korvane {

Double PolarInertia(Single d);  ///< in4
Double PolarModulus(Single d);  ///< in3

/// Degrees between the ends of a shaft.
Double Twist(Single length, Single torque, Single G, Single J);

/// The inverse of Twist, with 0.098 for pi / 32.
Double DiameterForTwist(Single length, Single torque, Single G, Single twist);

/// From a polar section modulus.
Double DiameterForModulus(Single Z);

/// Small values with six places, large ones whole, and three places between.
void ShowAdaptive(UsField& field, Double us);

class ShaftTorsion {
 public:
  struct Fields {
    UsField &length, &diameter, &G, &J, &Z, &rpm, &power, &torque, &twist, &stress;
  };
  explicit ShaftTorsion(Fields fields) : fields_(fields) {}

  /// Moment of inertia and section modulus from the diameter, where there is one.
  void ShowSection();
  /// Section, twist and stress, each where what it needs is there.
  void Solve();

  // What Enter in a field solves. A product of two that is above 0 tells that both are there.
  void FromPower();
  void FromSpeed();
  void FromTorque();
  bool FromTwist();   ///< whether there was enough to solve
  bool FromStress();  ///< whether there was enough to solve

 private:
  bool SolveTorque();
  bool SolveSpeed();
  bool SolvePower();

  Fields fields_;
};

}  // namespace korvane
