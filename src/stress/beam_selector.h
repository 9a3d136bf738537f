// The palette of beam cases, from which Beams II takes its case.
#pragma once

#include "frame/calculator_window.h"
#include "stress/beam_cases.h"

namespace korvane {

class Beam_Selector final : public CalculatorWindow {
 public:
  explicit Beam_Selector(Session& session);

  void Load() override;

 private:
  Layout Arrangement() override;

  ControlArray<Command> Command1{*this, "Command1", 1, kBeamCases, UnitText()};
};

}  // namespace korvane
