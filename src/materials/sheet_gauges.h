// Gauges of sheet metal: how thick and how heavy a sheet of a number is.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "frame/number.h"

namespace korvane {

// The tables of the menu's Standard Sheet Gauges: the same sheets in both unit systems.
inline constexpr const char* kSheetGauges = "Sheet_Gauges.dat";
inline constexpr const char* kSheetGaugesMetric = "Sheet_Gauges_m.dat";

struct SheetMaterial {
  const char* label;
  const char* column;         ///< of the tables: the one whose gauge it has
  bool isWeighed;             ///< that column holds its weights too
  double poundsPerCubicInch;  ///< for sheets that have no weight in the tables
};

std::span<const SheetMaterial> SheetMaterials();

struct SheetGauge {
  std::string number;
  std::string thickness;  ///< in or mm, with the digits of its table
  Double weight;          ///< lb/ft2 or kg/m2
};

/// ft2 of inches or m2 of millimeters.
Double SheetArea(Double width, Double length, bool metric);

/// Weight by area of a sheet that thick, in or mm: lb/ft2 or kg/m2.
Double SheetWeight(const SheetMaterial& material, Double thickness, bool metric);

/// The gauges that a material has, out of the bytes of the table in that unit system. Fails with
/// "Invalid procedure call or argument" if the table has no column of the material, or nothing in
/// it.
std::vector<SheetGauge> SheetGaugesOf(const SheetMaterial& material, std::string_view table,
                                      bool metric);

}  // namespace korvane
