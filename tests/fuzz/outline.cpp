// Outlines of any points, on a coarse lattice or anywhere: a fault that is told, or a section whose
// values can be.
#include "stress/outline.h"

#include <cmath>
#include <cstring>

#include "frame/number_text.h"
#include "fuzz.h"
#include "stress/enclosure.h"
#include "stress/outline_drawing.h"

namespace {

using namespace korvane;

/// Bytes as points: a first one tells their kind, a zero among the lattice's parts outlines.
std::vector<std::vector<std::string>> RowsOf(const std::uint8_t* data, std::size_t size) {
  std::vector<std::vector<std::string>> rows;
  const bool lattice = size == 0 || data[0] % 2 == 0;
  for (std::size_t i = 1; lattice && i < size; ++i) {
    rows.emplace_back(2);
    if (data[i] == 0) continue;
    rows.back() = {std::to_string(data[i] % 16), std::to_string(data[i] / 16)};
  }
  float pair[2];
  for (std::size_t i = 1; !lattice && i + sizeof pair <= size; i += sizeof pair) {
    std::memcpy(pair, data + i, sizeof pair);
    rows.emplace_back(2);
    if (std::isfinite(pair[0]) && std::isfinite(pair[1]))
      rows.back() = {PlainText(Double(pair[0])), PlainText(Double(pair[1]))};
  }
  return rows;
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const OutlineList list = ReadOutlines(RowsOf(data, size));
  const Enclosure enclosure = Enclose(list.outlines);
  if (!enclosure.fault.empty()) {
    DrawnToScale(list.outlines, enclosure, nullptr, {400, 300});
    return 0;
  }
  const PlaneSection section = SectionOf(list.outlines, enclosure.holes);
  Require(section.area > 0 && section.I1 >= section.I2 && section.I2 >= 0);
  Require(section.left > 0 && section.right > 0 && section.top > 0 && section.bottom > 0);
  for (const Double I : {section.Ix, section.Iy, section.I1, section.I2}) section.Gyration(I);
  DrawnToScale(list.outlines, enclosure, &section, {400, 300});
  return 0;
}
