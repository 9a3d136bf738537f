// A grid that is filled in: keys, editors and the clipboard on the screen.
#include <QClipboard>
#include <QElapsedTimer>
#include <QGridLayout>
#include <QLineEdit>
#include <QMouseEvent>
#include <QTableView>

#include "../support/temporary_folder.h"
#include "desktop.h"
#include "frame/entry_grid.h"

namespace korvane::testing {
namespace {

class Entries : public ::testing::Test {
 protected:
  Entries() {
    desktop.session.ShowsSplash = false;
    desktop.Shows("MAINFORM");
    desktop.Shows("Section_Properties");
    desktop.session.Handle([this] { Model().SetEntries({}); });
    Body().setFocus();
    Settle();
  }

  EntryGrid& Model() {
    return dynamic_cast<EntryGrid&>(*desktop.session.Find("Section_Properties")->Find("Grid1"));
  }
  QTableView& Body() {
    auto* layout =
        qobject_cast<QGridLayout*>(desktop.Get<QWidget>("Section_Properties", "Grid1").layout());
    return *qobject_cast<QTableView*>(layout->itemAtPosition(1, 1)->widget());
  }
  QLineEdit* Editor() { return Body().viewport()->findChild<QLineEdit*>(); }

  /// Keys as they come to whatever has the focus in the grid.
  void Type(const char* text) {
    for (const char* letter = text; *letter != '\0'; ++letter) {
      QWidget* target = Editor() != nullptr ? static_cast<QWidget*>(Editor()) : &Body();
      QKeyEvent event(QEvent::KeyPress, Qt::Key_0 + (*letter - '0'), Qt::NoModifier,
                      QString(QLatin1Char(*letter)));
      QApplication::sendEvent(target, &event);
    }
    Settle();
  }
  void Key(int key) { Press(Editor() != nullptr ? static_cast<QWidget&>(*Editor()) : Body(), key); }
  void Paste(const char* text) {
    QGuiApplication::clipboard()->setText(text);
    Press(Body(), Qt::Key_V, Qt::ControlModifier);
  }
  void Click(int row, int column) {
    const QPointF at = Body().visualRect(Body().model()->index(row, column)).center();
    for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
      QMouseEvent event(type, at, Body().viewport()->mapToGlobal(at), Qt::LeftButton,
                        Qt::LeftButton, Qt::NoModifier);
      if (type == QEvent::MouseButtonPress) Body().setFocus(Qt::MouseFocusReason);
      QApplication::sendEvent(Body().viewport(), &event);
    }
    Settle();
  }

  TemporaryFolder folder;
  Desktop desktop{folder.Path()};
};

using Rows = EntryGrid::Rows;

TEST_F(Entries, AreTypedCellByCell) {
  Type("12");
  ASSERT_NE(Editor(), nullptr);
  EXPECT_EQ(Model().Entries(), Rows{});  // not before the cell is left
  Key(Qt::Key_Return);
  EXPECT_EQ(Model().Entries(), (Rows{{"12", ""}}));
  EXPECT_EQ(Body().currentIndex(), Body().model()->index(0, 1));
  Type("3");
  Key(Qt::Key_Return);
  EXPECT_EQ(Model().Entries(), (Rows{{"12", "3"}}));
  EXPECT_EQ(Body().currentIndex(), Body().model()->index(1, 0));
  EXPECT_EQ(Body().model()->rowCount(), 3);

  // The Tab key in an editor opens the next one; Escape drops what was typed.
  Type("4");
  Key(Qt::Key_Tab);
  ASSERT_NE(Editor(), nullptr);
  Type("5");
  Key(Qt::Key_Escape);
  EXPECT_EQ(Model().Entries(), (Rows{{"12", "3"}, {"4", ""}}));
  // What is no number is not taken.
  Type("5");
  Editor()->setText("abc");
  Key(Qt::Key_Return);
  EXPECT_EQ(Model().Entries(), (Rows{{"12", "3"}, {"4", ""}}));
  EXPECT_EQ(Body().currentIndex(), Body().model()->index(1, 1));
  // A click elsewhere ends the typing and goes where it is.
  Type("6");
  Click(0, 0);
  EXPECT_EQ(Model().Entries(), (Rows{{"12", "3"}, {"4", "6"}}));
  EXPECT_EQ(Body().currentIndex(), Body().model()->index(0, 0));
  Key(Qt::Key_Delete);
  EXPECT_EQ(Model().Entries(), (Rows{{"", "3"}, {"4", "6"}}));
}

TEST_F(Entries, ArePastedFromASheet) {
  Paste(
      "X\tY\r\n0\t0\r\n1,000\t0\r\n\r\n5\t\xE2\x88\x92"
      "5\r\n");
  EXPECT_EQ(Model().Entries(), (Rows{{"0", "0"}, {"1,000", "0"}, {"", ""}, {"5", "-5"}}));
  EXPECT_EQ(Body().currentIndex(), Body().model()->index(4, 0));
  Press(Body(), Qt::Key_C, Qt::ControlModifier);
  Click(1, 0);
  Press(Body(), Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QGuiApplication::clipboard()->text(), "1,000");

  // Thousands of rows, and one typed behind them, come in no time that a person would notice.
  std::string many;
  for (int i = 0; i < 5000; ++i)
    many += std::to_string(i) + ' ' + std::to_string(i * (5000 - i)) + '\n';
  Click(0, 0);
  QElapsedTimer clock;
  clock.start();
  Paste(many.c_str());
  Type("7");
  Key(Qt::Key_Return);
  EXPECT_LT(clock.elapsed(), 5000);
  EXPECT_EQ(Model().Entries().size(), 5001U);
  EXPECT_EQ(Body().currentIndex(), Body().model()->index(5000, 1));
  EXPECT_TRUE(Body().viewport()->rect().intersects(Body().visualRect(Body().currentIndex())));
}

}  // namespace
}  // namespace korvane::testing
