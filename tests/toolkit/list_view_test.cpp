// A long list on the screen.
#include <QListWidget>
#include <QMouseEvent>
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

// A row is clicked while inputs wait to be computed: the list is ranked anew under the click.
TEST(Lists, TakeAnotherOrderUnderAClick) {
  Desktop desktop(FromQt(QApplication::applicationDirPath()));
  Window& window = desktop.Shows("BLOWERS");
  auto& list = desktop.Get<QListWidget>("BLOWERS", "lst_ranking");
  desktop.person.Types(dynamic_cast<FocusControl&>(*window.Find("txt_flow")), "900");
  desktop.person.Types(dynamic_cast<FocusControl&>(*window.Find("txt_pressure")), ".75");
  Settle();
  constexpr int clicked = 4;
  const QString wheel = list.item(clicked)->text().left(11);
  const QPointF at = list.visualItemRect(list.item(clicked)).center();
  for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
    QMouseEvent event(type, at, list.viewport()->mapToGlobal(at), Qt::LeftButton, Qt::LeftButton,
                      Qt::NoModifier);
    QApplication::sendEvent(list.viewport(), &event);
  }
  Settle();
  EXPECT_EQ(wheel.toStdString(), "BI 18.25 in");
  EXPECT_EQ(list.currentItem()->text().left(11), wheel);
  EXPECT_EQ(dynamic_cast<Combo&>(*window.Find("cmb_wheel")).Text(),
            "Backward Inclined, 18.25 x 7.25 in");
  EXPECT_EQ(dynamic_cast<TextField&>(*window.Find("txt_power")).Text(), "0.16");
}

}  // namespace
}  // namespace korvane::testing
