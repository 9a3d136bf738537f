// A long list on the screen.
#include <QListWidget>
#include <sstream>

#include "../support/temporary_folder.h"
#include "desktop.h"

namespace korvane::testing {
namespace {

TEST(Lists, ShowASearchedEntryInTheirMiddle) {
  const TemporaryFolder folder;
  std::ostringstream pairs;
  for (int i = 0; i < 500; ++i) pairs << "unit " << i << ",other,2,0,-1,0\n";
  folder.Write("Conversion_Factors.dat", pairs.str());
  Desktop desktop(folder.Path());
  Window& window = desktop.Shows("Conversion_Factors");
  auto& list = desktop.Get<QListWidget>("Conversion_Factors", "List1");
  const auto place = [&list] { return list.visualItemRect(list.currentItem()); };

  EXPECT_EQ(place().top(), 0);
  for (const char* searched : {"unit 300", "unit 301", "unit 150", "unit 499"}) {
    desktop.person.Types(dynamic_cast<FocusControl&>(*window.Find("txt_search")), searched);
    Settle();
    EXPECT_EQ(list.currentItem()->text().trimmed().left(8), searched);
    EXPECT_TRUE(list.viewport()->rect().contains(place().adjusted(0, 0, -place().width() + 1, 0)));
    if (list.currentRow() < 490) {
      EXPECT_NEAR(place().center().y(), list.viewport()->height() / 2.0, place().height());
    }
  }
  // An entry that the person points at stays where it is.
  const auto at = list.visualItemRect(list.item(498)).top();
  list.setCurrentRow(498);
  Settle();
  EXPECT_EQ(place().top(), at);
  EXPECT_EQ(dynamic_cast<TextField&>(*window.Find("Text2")).Text(), "2");
}

}  // namespace
}  // namespace korvane::testing
