// Orders of magnitude: the chart of decimal prefixes.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "frame/calculator_window.h"

namespace korvane {

class OrderofMag final : public CalculatorWindow {
 public:
  explicit OrderofMag(Session& session);

 private:
  Layout Arrangement() override;

  Label& Text(const std::string& text);

  std::vector<std::unique_ptr<Label>> texts_;
  Command Command1{*this, "Command1", "OK"};
};

}  // namespace korvane
