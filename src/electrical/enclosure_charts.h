// Charts of the types of electrical enclosures: NEMA types and IP codes.
#pragma once

#include <memory>
#include <span>
#include <string>
#include <vector>

#include "frame/calculator_window.h"

namespace korvane {

/// What an enclosure of one type protects from; a line that is not needed is empty.
struct EnclosureType {
  const char* type;
  const char* note;
  const char* description[3];
};

/// A chart of fixed texts.
class EnclosureChart : public CalculatorWindow {
 protected:
  EnclosureChart(Session& session, const char* name, const char* title, const char* heading,
                 std::span<const EnclosureType> types);

 private:
  Layout Arrangement() override;

  Label& Text(const std::string& text);

  const char* heading_;
  std::span<const EnclosureType> types_;
  std::vector<std::unique_ptr<Label>> texts_;

  Command btn_print{*this, "btn_print", "Print"};
  Command btn_help{*this, "btn_help", "Help"};
  Command btn_exit{*this, "btn_exit", "Exit"};
};

class Nema_box final : public EnclosureChart {
 public:
  explicit Nema_box(Session& session);
};

class IP_Codes final : public EnclosureChart {
 public:
  explicit IP_Codes(Session& session);
};

}  // namespace korvane
