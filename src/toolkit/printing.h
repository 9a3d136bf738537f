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
  /// Whether the current printer is the PDF file.
  bool IsFile();
  /// Paints the captured image on one page. Fails with "Printer error".
  void Print(const PrintedPage& page);
  /// The same as a PDF file, which is written as `WriteFile` does, with its failures.
  void PrintToFile(const PrintedPage& page, const std::string& path);

 private:
  QPrinter& Device();

  std::unique_ptr<QPrinter> device_;  // made when it is first needed: asking the system takes time
};

}  // namespace korvane
