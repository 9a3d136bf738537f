// A chart of options that are nothing but pictures.
#include <QRadioButton>
#include <filesystem>

#include "desktop.h"

namespace korvane::testing {
namespace {

TEST(Charts, AreWalkedByTheArrowKeys) {
  Desktop desktop(std::filesystem::read_symlink("/proc/self/exe").parent_path().string());
  Window& window = desktop.Shows("PERIODIC");
  const auto tile = [&desktop](const std::string& name) -> QRadioButton& {
    return desktop.Get<QRadioButton>("PERIODIC", name.c_str());
  };
  tile("opt_Ca").click();
  Settle();
  struct Step {
    int key;
    const char* reached;
  };
  std::string at = "opt_Ca";
  for (const auto& [key, reached] : std::initializer_list<Step>{{Qt::Key_Right, "opt_Sc"},
                                                                {Qt::Key_Down, "opt_Y"},
                                                                {Qt::Key_Down, "opt_La"},
                                                                {Qt::Key_Down, "opt_Ac"},
                                                                {Qt::Key_Down, "opt_Ac"},
                                                                {Qt::Key_Left, "opt_Ra"},
                                                                {Qt::Key_Up, "opt_Ba"}}) {
    Press(tile(at), key);
    EXPECT_TRUE(tile(reached).isChecked()) << at << " to " << reached;
    EXPECT_TRUE(dynamic_cast<Option&>(*window.Find(reached)).HasFocus()) << reached;
    at = reached;
  }
  EXPECT_EQ(tile("opt_Ba").accessibleName(), "Barium");
  EXPECT_EQ(tile("opt_Ba").toolTip(), "Barium");
}

}  // namespace
}  // namespace korvane::testing
