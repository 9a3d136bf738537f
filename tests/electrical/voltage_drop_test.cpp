// The sizes of wire that the voltage drop window reads, where its file is not as it should be.
#include "electrical/voltage_drop.h"

#include <gtest/gtest.h>

#include "../support/scripted_session.h"
#include "../support/temporary_folder.h"

namespace korvane::testing {
namespace {

/// What is told when the window opens on a file of this many sizes, of which the last is chosen.
Lines ToldWith(int sizes) {
  const TemporaryFolder folder;
  std::string bytes = "sizes\r\n";
  for (int i = 1; i <= sizes; ++i) bytes += "12,\"" + std::to_string(i) + "\"\r\n";
  if (sizes > 0) folder.Write("conductors.dat", bytes);
  ScriptedSession suite(WindowCatalogue(), folder.Path());
  suite.session.DataPath = folder.Path() + "/";
  try {
    suite.Shows("voltage_drop");
    if (suite.session.Active() != nullptr)
      suite.person.Selects(suite.Get<Combo>("cmb_gauge"), sizes - 1);
  } catch (const ScriptedPlatform::ProgramEnded&) {
    suite.session.DropWindows();
  }
  return suite.Told();
}

TEST(VoltageDrop, TakesSixtyFiveSizesAndFindsSixtyOne) {
  const Lines shown = {"! shown voltage_drop"};
  const Lines lost = {"! shown voltage_drop", "! failure 11 Division by zero"};
  EXPECT_EQ(ToldWith(61), shown);
  EXPECT_EQ(ToldWith(62), lost);
  EXPECT_EQ(ToldWith(65), lost);
  EXPECT_EQ(ToldWith(66), Lines{"! failure 9 Subscript out of range"});
  EXPECT_EQ(ToldWith(0), Lines{"! failure 53 File not found"});
}

}  // namespace
}  // namespace korvane::testing
