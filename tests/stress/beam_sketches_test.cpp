// Beams II without its sketches.
#include <gtest/gtest.h>

#include "../support/scripted_session.h"
#include "../support/temporary_folder.h"

namespace korvane::testing {
namespace {

TEST(BeamSketches, AreLookedForInBothFolders) {
  const TemporaryFolder data, program;
  ScriptedSession suite(WindowCatalogue(), program.Path());
  suite.session.DataPath = data.Path() + "/";
  const auto opens = [&] {
    suite.session.Unload("Beam_Calc");
    suite.Told();
    try {
      suite.Shows("Beam_Calc");
    } catch (const ScriptedPlatform::ProgramEnded&) {
    }
    return suite.Told();
  };
  const auto strokes = [&] { return suite.Get<Picture>("Picture1").Shown().shapes.size(); };

  EXPECT_EQ(opens(), (Lines{"! failure 53 File not found"}));

  program.Write("Beams.dat", "[Case 01]\r\nPD;PA10,10;\r\n");
  EXPECT_EQ(opens(), (Lines{"! shown Beam_Calc"}));
  EXPECT_EQ(strokes(), 1U);

  data.Write("beams.dat", "[case 01]\r\nPD;PA10,10;\r\n");
  EXPECT_EQ(opens(),
            (Lines{"! message Korvane | Data for 'Case 01' not found in file ----->  Beams.plt",
                   "! shown Beam_Calc"}));
  EXPECT_EQ(strokes(), 0U);
}

}  // namespace
}  // namespace korvane::testing
