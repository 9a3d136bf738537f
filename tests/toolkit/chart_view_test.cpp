// What windows that are only read show: texts of several lines, whole lists, figures in colours of
// their own.
#include <QClipboard>
#include <QGuiApplication>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <algorithm>
#include <set>

#include "../support/temporary_folder.h"
#include "desktop.h"
#include "toolkit/picture_widget.h"

namespace korvane::testing {
namespace {

TEST(Lines, AreReadSelectedAndCopiedButNotTyped) {
  const TemporaryFolder folder;
  folder.Write("Hazard_Class.dat", "First line\nSecond line\n");
  Desktop desktop(folder.Path());
  desktop.Shows("Hazard_Class");
  auto& lines = desktop.Get<QPlainTextEdit>("Hazard_Class", "Text1");
  ASSERT_GE(lines.blockCount(), 2);
  const QString text = lines.toPlainText();
  EXPECT_TRUE(text.contains("Second line")) << FromQt(text);

  lines.setFocus();
  Press(lines, Qt::Key_X);
  Press(lines, Qt::Key_Delete);
  EXPECT_EQ(lines.toPlainText(), text);
  Press(lines, Qt::Key_A, Qt::ControlModifier);
  Press(lines, Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QGuiApplication::clipboard()->text(), text);
  Press(lines, Qt::Key_Tab);
  Settle();
  EXPECT_NE(QApplication::focusWidget(), &lines);
}

TEST(Charts, ShowAllEntriesAndTheirColors) {
  const TemporaryFolder folder;
  Desktop desktop(folder.Path());
  Window& window = desktop.Shows("Resistor_Color_Codes");
  auto& list = desktop.Get<QListWidget>("Resistor_Color_Codes", "List1");
  ASSERT_GT(list.count(), 0);
  EXPECT_EQ(list.verticalScrollBar()->maximum(), 0);
  EXPECT_EQ(list.horizontalScrollBar()->maximum(), 0);

  // Another first band is painted in another colour, whatever the palette.
  auto& resistor = *desktop.View("Resistor_Color_Codes").findChild<PictureWidget*>();
  const auto colors = [&resistor] {
    const QImage picture = resistor.grab().toImage();
    std::set<QRgb> found;
    for (int x = 0; x < picture.width(); ++x) found.insert(picture.pixel(x, picture.height() / 2));
    return found;
  };
  constexpr QRgb blue = 0xFF1E50D2;
  auto& band = dynamic_cast<Choice&>(*window.Find("Combo1"));
  const auto has = [&](const char* color) {
    const auto& items = band.Items();
    const auto found = std::find(items.begin(), items.end(), color);
    desktop.person.Selects(band, static_cast<int>(found - items.begin()));
    Settle();
    return colors().contains(blue);
  };
  EXPECT_TRUE(has("Blue"));
  EXPECT_FALSE(has("Brown"));
}

}  // namespace
}  // namespace korvane::testing
