// Tables on the screen: frozen panes, scroll bars, alignment, the current cell, odd tables, and
// what a screen reader gets.
#include <QAccessible>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QGridLayout>
#include <QHeaderView>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QTableView>
#include <QTimer>
#include <sstream>

#include "../support/temporary_folder.h"
#include "desktop.h"

namespace korvane::testing {
namespace {

struct Shape {
  int rows, columns, fixedRows, fixedColumns;
  std::string width = "900";
  std::string alignment = "1";
};

/// A table file whose cells tell where they stand.
std::string TableOf(const Shape& shape) {
  std::ostringstream file;
  file << "c\nTable of " << shape.rows << '\n';
  file << shape.rows << ',' << shape.columns << ',' << shape.fixedRows << ',' << shape.fixedColumns;
  for (const std::string& field : {shape.width, shape.alignment})
    for (int column = 0; column < shape.columns; ++column) file << '\n' << field;
  for (int row = 0; row < shape.rows; ++row)
    for (int column = 0; column < shape.columns; ++column) file << "\nr" << row << 'c' << column;
  return file.str();
}

class Tables : public ::testing::Test {
 protected:
  Tables() {
    desktop.session.ShowsSplash = false;
    desktop.Shows("MAINFORM");
    desktop.session.DataPath = folder.Path() + '/';
  }

  void Show(const std::string& bytes) {
    folder.Write("table.dat", bytes);
    desktop.session.DataFileName = "table.dat";
    desktop.session.Handle([this] { desktop.session.Unload("DISPLAY"); });
    desktop.Shows("DISPLAY");
  }

  WindowView& View() { return desktop.View("DISPLAY"); }
  QWidget& Box() { return desktop.Get<QWidget>("DISPLAY", "Grid1"); }
  template <class Widget>
  Widget& At(int row, int column) {
    auto* layout = qobject_cast<QGridLayout*>(Box().layout());
    return *qobject_cast<Widget*>(layout->itemAtPosition(row, column)->widget());
  }
  QTableView& Corner() { return At<QTableView>(0, 0); }
  QTableView& Top() { return At<QTableView>(0, 1); }
  QTableView& Left() { return At<QTableView>(1, 0); }
  QTableView& Body() { return At<QTableView>(1, 1); }
  QScrollBar& Across() { return At<QScrollBar>(2, 0); }
  QScrollBar& Down() { return At<QScrollBar>(0, 2); }

  static QImage Seen(QWidget& widget) { return widget.grab().toImage(); }
  std::string Current() {
    return dynamic_cast<Grid&>(*desktop.session.Find("DISPLAY")->Find("Grid1")).CurrentText();
  }

  TemporaryFolder folder;
  Desktop desktop{folder.Path()};
};

TEST_F(Tables, KeepFixedCellsInPlaceWhileTheRestScrolls) {
  Show(TableOf({200, 40, 2, 1}));
  const QImage corner = Seen(Corner()), top = Seen(Top()), left = Seen(Left());
  ASSERT_GT(Across().maximum(), 0);
  ASSERT_GT(Down().maximum(), 0);

  Across().setValue(Across().maximum());
  Settle();
  EXPECT_EQ(Seen(Corner()), corner);
  EXPECT_EQ(Seen(Left()), left);
  EXPECT_NE(Seen(Top()), top);
  EXPECT_EQ(Top().columnViewportPosition(38), Body().columnViewportPosition(38));
  EXPECT_LE(Body().columnViewportPosition(38) + Body().columnWidth(38), Body().viewport()->width());

  const QImage topNow = Seen(Top());
  Down().setValue(Down().maximum());
  Settle();
  EXPECT_EQ(Seen(Corner()), corner);
  EXPECT_EQ(Seen(Top()), topNow);
  EXPECT_NE(Seen(Left()), left);
  EXPECT_EQ(Left().rowViewportPosition(197), Body().rowViewportPosition(197));
  EXPECT_LE(Body().rowViewportPosition(197) + Body().rowHeight(197), Body().viewport()->height());

  // By keys as by the bars; and at another size of the window.
  Press(Body(), Qt::Key_End, Qt::ControlModifier);
  Press(Body(), Qt::Key_Home, Qt::ControlModifier);
  EXPECT_EQ(Seen(Top()), top);
  EXPECT_EQ(Across().value(), 0);
  Press(Body(), Qt::Key_End, Qt::ControlModifier);
  View().resize(400, 300);
  Settle();
  Press(Body(), Qt::Key_Left);
  Press(Body(), Qt::Key_Right);
  EXPECT_EQ(Top().horizontalScrollBar()->value(), Body().horizontalScrollBar()->value());
  EXPECT_EQ(Left().verticalScrollBar()->value(), Body().verticalScrollBar()->value());
  EXPECT_EQ(Down().value(), Body().verticalScrollBar()->value());
  EXPECT_EQ(Across().value(), Body().horizontalScrollBar()->value());
}

TEST_F(Tables, ShowScrollBarsOnlyWhereNeeded) {
  struct Case {
    Shape shape;
    bool across, down;
  };
  // A window is as high as its rows, and the bar below takes of that.
  const Case kCases[] = {
      {{3, 2, 1, 1}, false, false},  {{25, 6, 2, 1}, false, false}, {{2, 2, 0, 0}, false, false},
      {{500, 3, 1, 1}, false, true}, {{3, 60, 1, 1}, true, true},   {{500, 60, 0, 0}, true, true},
  };
  const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
  for (const Case& test : kCases) {
    Show(TableOf(test.shape));
    SCOPED_TRACE(View().windowTitle().toStdString());
    EXPECT_EQ(Across().isVisible(), test.across);
    EXPECT_EQ(Down().isVisible(), test.down);
    EXPECT_TRUE(screen.contains(View().frameGeometry()));
    // Whatever is fixed is seen in full, and nothing of the body lies behind a bar.
    EXPECT_EQ(Corner().isVisible(), test.shape.fixedRows > 0 && test.shape.fixedColumns > 0);
    EXPECT_EQ(Top().isVisible(), test.shape.fixedRows > 0);
    EXPECT_EQ(Left().isVisible(), test.shape.fixedColumns > 0);
    if (!test.down) {
      EXPECT_GE(Body().viewport()->height(), Body().verticalHeader()->length());
    }
    if (!test.across) {
      EXPECT_GE(Body().viewport()->width(), Body().horizontalHeader()->length());
    }
  }
}

/// Where in the cell its letters stand: the middle of them, in pixels.
QPointF MiddleOfLetters(QTableView& view, int column) {
  const QRect cell = view.visualRect(view.model()->index(0, column)).adjusted(1, 1, -2, -2);
  const QImage image = view.viewport()->grab(cell).toImage();
  QRect ink;
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x)
      if (qGray(image.pixel(x, y)) < 128) ink |= QRect(x, y, 1, 1);
  EXPECT_FALSE(ink.isEmpty());
  return QRectF(ink).center();
}

TEST_F(Tables, AlignTheirCells) {
  constexpr int kCodes = 10;
  std::string file = "c\r\nAligned\r\n2,12,1,0\r\n";
  for (int column = 0; column < 12; ++column) file += "900\r\n";
  file += "0,1,2,3,4,5,6,7,8,9,9,77\r\n";
  for (int row = 0; row < 2; ++row) file += "x,x,x,x,x,x,x,x,x,x,1.5,x\r\n";
  Show(file);
  for (QTableView* view : {&Top(), &Body()}) {
    view->clearSelection();
    const int width = view->columnWidth(0);
    std::vector<QPointF> at;
    for (int column = 0; column < 12; ++column) at.push_back(MiddleOfLetters(*view, column));
    for (int code = 0; code < kCodes - 1; ++code) {
      const QPointF& place = at[static_cast<std::size_t>(code)];
      constexpr double parts[] = {0.1, 0.5, 0.9};
      EXPECT_NEAR(place.x() / width, parts[code / 3], 0.08) << code;
      if (code % 3 > 0) {
        EXPECT_GT(place.y(), at[static_cast<std::size_t>(code) - 1].y()) << code;
      }
    }
    // General: texts to the left, numbers to the right.
    EXPECT_EQ(at[9], at[1]);
    EXPECT_GT(at[10].x() / width, 0.7);
    EXPECT_EQ(at[11], at[1]);
  }
}

TEST_F(Tables, HaveACurrentCellToCopy) {
  Show(TableOf({50, 6, 1, 1}));
  const auto copied = [this](Qt::KeyboardModifiers modifiers) {
    QGuiApplication::clipboard()->setText("before");
    Press(Body(), Qt::Key_C, modifiers);
    return QGuiApplication::clipboard()->text().toStdString();
  };
  EXPECT_EQ(copied(Qt::ControlModifier), "r49c5");  // the cell that was filled last
  EXPECT_EQ(Body().verticalScrollBar()->value(), 0);
  Press(Body(), Qt::Key_Home, Qt::ControlModifier);
  EXPECT_EQ(copied(Qt::ControlModifier), "r1c1");
  struct Case {
    int key;
    const char* cell;
  };
  constexpr Case kCases[] = {
      {Qt::Key_Down, "r2c1"},  {Qt::Key_Right, "r2c2"}, {Qt::Key_End, "r2c5"},
      {Qt::Key_Right, "r2c5"}, {Qt::Key_Home, "r2c1"},  {Qt::Key_Left, "r2c1"},
      {Qt::Key_Up, "r1c1"},    {Qt::Key_Up, "r1c1"},
  };
  for (const Case& test : kCases) {
    Press(Body(), test.key);
    EXPECT_EQ(Current(), test.cell);
    EXPECT_EQ(copied(Qt::ControlModifier), test.cell);
  }
  EXPECT_EQ(copied(Qt::ControlModifier | Qt::ShiftModifier), "r1c1");
  EXPECT_EQ(copied(Qt::NoModifier), "before");
  EXPECT_EQ(copied(Qt::ShiftModifier), "before");

  // What the model tells is seen.
  desktop.session.Handle([this] {
    dynamic_cast<Grid&>(*desktop.session.Find("DISPLAY")->Find("Grid1")).SetCurrent(49, 5);
  });
  Settle();
  EXPECT_EQ(Body().currentIndex(), Body().model()->index(48, 4));
  // The Tab key leaves the cells alone.
  Press(Body(), Qt::Key_Tab);
  EXPECT_EQ(Current(), "r49c5");
}

TEST_F(Tables, AskToPrintAtARightClickOnAnyPart) {
  Show(TableOf({5, 5, 1, 1}));
  for (QTableView* view : {&Corner(), &Top(), &Left(), &Body()}) {
    QString text;
    QTimer::singleShot(0, [&text] {
      auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      ASSERT_NE(box, nullptr);
      text = box->text();
      box->button(QMessageBox::No)->click();
    });
    QContextMenuEvent event(QContextMenuEvent::Mouse, {2, 2}, view->mapToGlobal(QPoint(2, 2)));
    QApplication::sendEvent(view->viewport(), &event);
    EXPECT_EQ(text, "Print this form?");
  }
  EXPECT_EQ(desktop.session.Find("Page_Setup"), nullptr);
}

TEST_F(Tables, AreReplacedByTheNext) {
  Show(TableOf({500, 30, 2, 2}));
  Press(Body(), Qt::Key_End, Qt::ControlModifier);
  Show(TableOf({4, 3, 0, 1}));
  EXPECT_EQ(View().windowTitle(), " Table of 4");
  EXPECT_EQ(Body().model()->rowCount(), 4);
  EXPECT_EQ(Body().model()->index(3, 1).data(), "r3c2");
  EXPECT_EQ(desktop.session.Windows().size(), 2U);

  // A new content of the same grid.
  const auto put = [this](int fixedRows, int fixedColumns) {
    desktop.session.Handle([&] {
      dynamic_cast<Grid&>(*desktop.session.Find("DISPLAY")->Find("Grid1"))
          .SetContent(
              {"", 2, 2, fixedRows, fixedColumns, {900, 900}, {1, 1}, {"a", "b", "c", "d"}});
    });
    Settle();
    return Body().model()->index(0, 0).data().toString();
  };
  EXPECT_EQ(put(1, 0), "c");
  EXPECT_TRUE(Top().isVisible());
  EXPECT_FALSE(Left().isVisible());
  EXPECT_EQ(put(1, 1), "d");
  EXPECT_TRUE(Corner().isVisible());
  EXPECT_EQ(put(0, 1), "b");
  EXPECT_FALSE(Top().isVisible());
  EXPECT_FALSE(Corner().isVisible());
}

TEST_F(Tables, MayBeOdd) {
  const Shape kCases[] = {
      {3, 3, 1, 1, "0"},     {3, 3, 1, 1, "-500"},  {3, 3, 0, 0, "1E9"}, {3, 3, 1, 3, "50000"},
      {3, 3, 1, 1, "1E300"}, {3, 3, 1, 2, "1E300"}, {3, 3, 3, 1},        {3, 3, 1, 3},
      {3, 3, 3, 3},          {2, 2, 0, 0, "0.4"},   {400, 2, 300, 1},    {2, 300, 1, 250},
  };
  const QSize screen = QGuiApplication::primaryScreen()->availableSize();
  for (const Shape& shape : kCases) {
    SCOPED_TRACE(shape.width + " fixed " + std::to_string(shape.fixedRows) + " " +
                 std::to_string(shape.fixedColumns));
    Show(TableOf(shape));
    EXPECT_LE(View().width(), screen.width());
    EXPECT_LE(View().height(), screen.height());
    for (const int key : {Qt::Key_End, Qt::Key_PageDown, Qt::Key_Down, Qt::Key_Home})
      Press(Body(), key, Qt::ControlModifier);
    Seen(View());
    // Down to nothing, and back.
    View().resize(1, 1);
    Settle();
    EXPECT_LT(Box().width(), 120);
    EXPECT_LT(Box().height(), 120);
    View().resize(600, 400);
    Settle();
    Seen(View());
  }
}

TEST_F(Tables, CanBeReadByThoseWhoCannotSeeThem) {
  Show(
      "c\r\nPipes\r\n4,3,2,1\r\n900,900,900\r\n1,1,1\r\n"
      "Size,Bore,Weight\r\nin,mm,kg/m\r\n1/2,15.8,1.27\r\n3/4,20.9,1.68\r\n");
  QAccessibleInterface* body = QAccessible::queryAccessibleInterface(&Body());
  ASSERT_NE(body, nullptr);
  EXPECT_EQ(body->text(QAccessible::Name), "Pipes");
  EXPECT_FALSE(body->text(QAccessible::Description).isEmpty());
  QAccessibleTableInterface* table = body->tableInterface();
  ASSERT_NE(table, nullptr);
  EXPECT_EQ(table->columnDescription(1), "Weight kg/m");
  EXPECT_EQ(table->rowDescription(1), "3/4");
  EXPECT_EQ(table->cellAt(1, 1)->text(QAccessible::Name), "1.68");
  // The parts that stand still have names of their own.
  QStringList names;
  for (QTableView* view : {&Corner(), &Top(), &Left(), &Body()})
    names << QAccessible::queryAccessibleInterface(view)->text(QAccessible::Name);
  EXPECT_EQ(names.removeDuplicates(), 0);
  EXPECT_FALSE(names.contains(""));
}

}  // namespace
}  // namespace korvane::testing
