#include "materials/sheet_gauges.h"

#include "frame/number_text.h"
#include "frame/table.h"

namespace korvane {
namespace {

constexpr int kSquareInches = 144;               // of a square foot
constexpr double kKilogramsPerMeter3 = 27679.9;  // of 1 lb/in3
constexpr int kMillimeters = 1000;               // of a meter
constexpr int kSquareMillimeters = 1000000;      // of a square meter

// lb/in3. Steel: ASTM A6, 490 lb/ft3; stainless: 300 series; aluminum: 3003; copper: C11000;
// brass: C26000, as the Copper Development Association lists them.
constexpr double kSteel = 0.2836;
constexpr SheetMaterial kMaterials[] = {
    {"Steel (Manufacturers' Standard Gauge)", "Sheet steel", true, kSteel},
    {"Galvanized Steel (Manufacturers' Standard)", "Galvanized steel", true, kSteel},
    {"Stainless Steel (U.S. Standard Gauge)", "Stainless steel", true, 0.29},
    {"Aluminum (B&S Gauge)", "Aluminum", true, 0.099},
    {"Copper (B&S Gauge)", "Aluminum", false, 0.323},
    {"Brass (B&S Gauge)", "Aluminum", false, 0.308},
};

/// The column of thicknesses; that of the weights stands behind it.
int ColumnOf(const Table& table, const SheetMaterial& material) {
  for (int column = 0; column + 1 < table.columns; ++column)
    if (table.At(0, column) == material.column) return column;
  failures::InvalidCall();
}

}  // namespace

std::span<const SheetMaterial> SheetMaterials() { return kMaterials; }

Double SheetArea(Double width, Double length, bool metric) {
  return width * length / (metric ? kSquareMillimeters : kSquareInches);
}

Double SheetWeight(const SheetMaterial& material, Double thickness, bool metric) {
  const Double density = material.poundsPerCubicInch;
  return metric ? density * kKilogramsPerMeter3 * thickness / kMillimeters
                : density * kSquareInches * thickness;
}

std::vector<SheetGauge> SheetGaugesOf(const SheetMaterial& material, std::string_view table,
                                      bool metric) {
  const Table gauges = ParseTable(table);
  const int column = ColumnOf(gauges, material);
  std::vector<SheetGauge> found;
  for (int row = gauges.fixedRows; row < gauges.rows; ++row) {
    const std::string& thickness = gauges.At(row, column);
    if (thickness.empty()) continue;
    found.push_back({gauges.At(row, 0), thickness,
                     material.isWeighed ? Strict(gauges.At(row, column + 1))
                                        : SheetWeight(material, Strict(thickness), metric)});
  }
  if (found.empty()) failures::InvalidCall();
  return found;
}

}  // namespace korvane
