// The palette of beam cases, a modal window, on the screen.
#include <QPushButton>
#include <QTimer>
#include <filesystem>

#include "desktop.h"

namespace korvane::testing {
namespace {

TEST(Modal, HelpOpensAboveIt) {
  Desktop desktop(std::filesystem::read_symlink("/proc/self/exe").parent_path().string());
  QWidget *palette = nullptr, *help = nullptr, *ruling = nullptr, *rulingAfterwards = nullptr;
  QTimer::singleShot(0, [&] {
    palette = &desktop.View("Beam_Selector");
    const auto& button = desktop.Get<QPushButton>("Beam_Selector", "Command1(3)");
    EXPECT_EQ(button.text(), "");
    EXPECT_EQ(button.toolTip(), "Simply supported, concentrated load (P) at any point");
    Press(*palette, Qt::Key_F1);
    help = &desktop.View("Help");
    ruling = QApplication::activeModalWidget();
    help->close();
    Settle();
    rulingAfterwards = QApplication::activeModalWidget();
    desktop.person.Clicks(*desktop.session.Find("Beam_Selector")->Find("Command1(3)"));
  });
  desktop.session.Handle([&] { desktop.session.ShowModal("Beam_Selector"); });
  ASSERT_NE(help, nullptr);
  EXPECT_EQ(ruling, help);
  EXPECT_EQ(rulingAfterwards, palette);
  EXPECT_EQ(desktop.session.CaseNumber, 3);
  Settle();
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

}  // namespace
}  // namespace korvane::testing
