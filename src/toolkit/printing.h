// Printers: those of the system, and a PDF file, which every machine can print to.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "frame/platform.h"

class QPrinter;
class QWidget;

namespace korvane {

class Printing {
 public:
  Printing();
  ~Printing();

  std::vector<std::string> Names() const;
  std::optional<Printer> Current();
  void Choose(const std::string& name);
  void SetOrientation(Orientation orientation);
  void SetUp(const std::string& title, QWidget* parent);
  /// Paints the captured image on one page. Fails with "Printer error". A PDF file is asked for
  /// first; no file, no page.
  void Print(const PrintedPage& page, QWidget* parent);

 private:
  QPrinter& Device();

  std::unique_ptr<QPrinter> device_;  // made when it is first needed: asking the system takes time
};

}  // namespace korvane
