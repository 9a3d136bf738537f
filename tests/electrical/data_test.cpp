// The files that electrical windows read as they open.
#include <gtest/gtest.h>

#include "../support/scripted_session.h"
#include "../support/temporary_folder.h"

namespace korvane::testing {
namespace {

class ElectricalData : public ::testing::Test {
 protected:
  Lines Opens(const char* window) {
    suite.session.DataPath = data.Path() + "/";
    suite.session.Unload(window);
    suite.Told();
    try {
      suite.Shows(window);
    } catch (const ScriptedPlatform::ProgramEnded&) {
    }
    return suite.Told();
  }

  const TemporaryFolder data, program;
  ScriptedSession suite{WindowCatalogue(), program.Path()};
};

TEST_F(ElectricalData, HazardClassesKeepTheirLines) {
  EXPECT_EQ(Opens("Hazard_Class"), (Lines{"! failure 53 File not found"}));
  program.Write("Hazard_Class.dat", "elsewhere\r\n");
  data.Write("HAZARD_CLASS.DAT", "CLASSES\r\n\r\n  Class I, \"gas\" \x96 450 \xB0\r\nlast\n");
  EXPECT_EQ(Opens("Hazard_Class"), (Lines{"! shown Hazard_Class"}));
  EXPECT_EQ(suite.Get<TextField>("Text1").Text(),
            "  CLASSES\r\n  \r\n    Class I, \"gas\" \u2013 450 \u00B0\r\n  last");
}

TEST_F(ElectricalData, DielectricsEndInTheirConstants) {
  EXPECT_EQ(Opens("Plate_Capacitors"), (Lines{"! failure 53 File not found"}));
  program.Write("dielect.dat", "Mica,9\r\nAir,1\r\n\"Paper, oiled\",3.50\r\nTitanate,1234567\r\n");
  EXPECT_EQ(Opens("Plate_Capacitors"), (Lines{"! shown Plate_Capacitors"}));
  auto& materials = suite.Get<Combo>("Combo1");
  EXPECT_EQ(materials.Items(),
            (std::vector<std::string>{"Air                1", "Paper, oiled    3.50",
                                      "Titanate      1234567"}));
  suite.person.Selects(materials, 1);
  EXPECT_EQ(suite.Get<TextField>("txt_dielectric_constant").Text(), "  3.50");
}

}  // namespace
}  // namespace korvane::testing
