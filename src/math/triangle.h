// Triangle solutions: three sides and angles of a plane triangle from three that are known.
#pragma once

#include <array>

#include "frame/calculator_window.h"

namespace korvane {

/// Sides a, b, c and the angles opposite to them in degrees.
struct Triangle {
  Single a, b, c;
  Single alpha, beta, gamma;
};

// Each solves for what is not given, and fails for what is no triangle.
void SolveThreeSides(Triangle& t);
void SolveTwoAnglesAndIncludedSide(Triangle& t);  ///< from b, alpha, gamma
void SolveTwoAnglesAndAdjacentSide(Triangle& t);  ///< from b, alpha, beta
void SolveTwoSidesAndIncludedAngle(Triangle& t);  ///< from b, c, alpha
void SolveTwoSidesAndAdjacentAngle(Triangle& t);  ///< from b, c, beta; only the acute solution

class TRIANGLE final : public CalculatorWindow {
 public:
  explicit TRIANGLE(Session& session);

  void Load() override;

 private:
  Layout Arrangement() override;

  struct KnownSet;
  static const std::array<KnownSet, 5> kKnownSets;

  TextField& Field(std::size_t index);
  void ComboClick();
  void ClearFields();
  void Solve();

  Picture picture_;
  Label label_{*this, "", " Select Known Entities:"};
  Combo Combo1{*this, "Combo1", label_};
  TextField A{*this, "A", "A"};
  TextField B{*this, "B", "B"};
  TextField C{*this, "C", "C"};
  TextField ALPHA{*this, "ALPHA", "alpha"};
  TextField BETA{*this, "BETA", "beta"};
  TextField GAMMA{*this, "GAMMA", "gamma"};
  Command Command4{*this, "Command4", "Solve"};
  Command Command1{*this, "Command1", "Clear"};
  Command Command3{*this, "Command3", "Print"};
  Command btn_help{*this, "btn_help", "Help"};
  Command Command2{*this, "Command2", "Exit"};

  short KnownCase = 1;
  Triangle triangle_;  // as solved or read last
};

}  // namespace korvane
