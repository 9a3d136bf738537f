// Fields of windows whose formulas know U.S. units only: inches, pounds, psi, hp.
#pragma once

#include <string>
#include <utility>

#include "frame/controls.h"
#include "frame/session.h"
#include "frame/window.h"

namespace korvane {

/// How a metric number comes from the one in U.S. units: times one figure, or over one.
struct MetricForm {
  double times = 1;
  double over = 1;
};

/// A field whose number is converted at each reading and writing while metric units are selected.
class UsField final : public TextField {
 public:
  UsField(Window& window, std::string name, const Beside& caption, MetricForm form,
          const UnitText& text = {})
      : TextField(window, std::move(name), caption, text), form_(form) {}

  Single Us() const {
    const Single number = ToNumber(*this);
    return IsMetric() ? Single(number * form_.over / form_.times) : number;
  }
  void ShowUs(Double value, Mask mask) { TextField::Show(Shown(value), mask); }

  /// What the field shows for a number in U.S. units.
  Double Shown(Double value) const { return IsMetric() ? value * form_.times / form_.over : value; }

 private:
  bool IsMetric() const { return Owner().GetSession().MetricUnits; }

  MetricForm form_;
};

}  // namespace korvane
