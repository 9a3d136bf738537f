// The densities of sheet metal against the weights of the tables, and tables that are spoilt.
#include "materials/sheet_gauges.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "../frame/failure_of.h"
#include "../support/scripted_session.h"

namespace korvane::testing {
namespace {

std::string Table(const char* name) {
  ScriptedSession suite(WindowCatalogue(),
                        std::filesystem::read_symlink("/proc/self/exe").parent_path().string());
  suite.Shows("MAINFORM");
  return suite.session.ReadTable(name);
}

TEST(SheetGauges, WeighWhatTheirDensitiesTell) {
  for (const bool metric : {false, true}) {
    const std::string table = Table(metric ? kSheetGaugesMetric : kSheetGauges);
    for (const SheetMaterial& material : SheetMaterials()) {
      const std::vector<SheetGauge> gauges = SheetGaugesOf(material, table, metric);
      ASSERT_GE(gauges.size(), 25U) << material.label;
      // Sheet steel goes by a weight of 41.82 lb/ft2 an inch, which is more than its density.
      const std::string_view column = material.column;
      const bool byWeight = column == "Sheet steel" || column == "Galvanized steel";
      const double excess = byWeight ? 41.82 / (0.2836 * 144) : 1;
      for (const SheetGauge& gauge : gauges) {
        const Double weight = SheetWeight(material, Strict(gauge.thickness), metric) * excess;
        const double rounding = metric ? 0.0005 : 0.00005;
        const Double slack = 0.0006 + SheetWeight(material, rounding, metric);
        EXPECT_NEAR(gauge.weight.Value(), weight.Value(), slack.Value())
            << material.label << ' ' << gauge.number;
      }
    }
  }
}

TEST(SheetGauges, NeedTheirColumns) {
  const std::string table = Table(kSheetGauges);
  const auto fails = [&](const std::string& from, const std::string& to) {
    std::string spoilt = table;
    spoilt.replace(spoilt.find(from), from.size(), to);
    return FailureOf([&] { SheetGaugesOf(SheetMaterials().front(), spoilt, false); });
  };
  EXPECT_EQ(fails("\"Sheet steel\",\"Sheet steel\"", "\"Iron\",\"Iron\""), kInvalidCall);
  EXPECT_EQ(fails("\"2.500\"", "\"heavy\""), kTypeMismatch);
  const std::string empty =
      "Gauges\nGauges\n2, 3, 1, 1\n900, 900, 900\n4, 4, 4\n"
      "\"Gauge\",\"Sheet steel\",\"Sheet steel\"\n\"10\",\"\",\"\"\n";
  EXPECT_EQ(FailureOf([&] { SheetGaugesOf(SheetMaterials().front(), empty, false); }),
            kInvalidCall);
}

}  // namespace
}  // namespace korvane::testing
