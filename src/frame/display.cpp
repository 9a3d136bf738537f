#include "frame/display.h"

#include <algorithm>
#include <numeric>

#include "frame/calculator_window.h"
#include "frame/session.h"

namespace korvane {
namespace {

// Fixed margins, in twips.
constexpr int kSideMargins = 480 + 130;
constexpr int kBelowWindow = 450;      // of the screen, that a window leaves free
constexpr int kBelowTallWindow = 900;  // a window that leaves less than this stands at the top

// ---- The motor, seen from its side and from its shaft's end ----

void Line(Drawing& drawing, std::vector<Point> points, double width = 1) {
  drawing.shapes.emplace_back(Path{std::move(points), Ink::Line, {}, width});
}

void Solid(Drawing& drawing, std::vector<Point> points) {
  points.push_back(points.front());
  drawing.shapes.emplace_back(Path{std::move(points), Ink::Line, Ink::Body});
}

/// A dimension with arrow heads at both ends and its letters above it, or beside it.
void Dimension(Drawing& drawing, Point from, Point to, const char* letters) {
  const bool level = from.y == to.y;
  const Point along = level ? Point{1, 0} : Point{0, 1};
  const Point across = level ? Point{0, 1} : Point{1, 0};
  constexpr double head = 4, half = 1.6, height = 6.5;
  drawing.shapes.emplace_back(Path{{from, to}, Ink::Accent, {}, 0.7});
  for (const auto& [tip, way] : {std::pair{from, 1.0}, std::pair{to, -1.0}}) {
    const Point base{tip.x + way * head * along.x, tip.y + way * head * along.y};
    drawing.shapes.emplace_back(Path{{{base.x + half * across.x, base.y + half * across.y},
                                      tip,
                                      {base.x - half * across.x, base.y - half * across.y}},
                                     Ink::Accent,
                                     {},
                                     0.7});
  }
  const Point middle{(from.x + to.x) / 2, (from.y + to.y) / 2};
  const Point place = level ? Point{middle.x, middle.y + 8} : Point{middle.x + 17, middle.y};
  drawing.shapes.emplace_back(Letters{place, letters, height, Ink::Accent});
}

/// NEMA letters with those of IEC in brackets, as far as they name the same measure.
Drawing Motor() {
  Drawing drawing{400, 96, {}};
  // From the side: body, feet, shaft to the right.
  Solid(drawing, {{36, 14}, {150, 14}, {150, 62}, {36, 62}});
  Solid(drawing, {{30, 20}, {36, 20}, {36, 56}, {30, 56}});
  Solid(drawing, {{150, 18}, {158, 22}, {158, 54}, {150, 58}});
  Solid(drawing, {{158, 34}, {200, 34}, {200, 42}, {158, 42}});
  Solid(drawing, {{52, 62}, {68, 62}, {68, 70}, {48, 70}});
  Solid(drawing, {{118, 62}, {134, 62}, {138, 70}, {118, 70}});
  for (const double y : {22.0, 30.0, 38.0, 46.0, 54.0}) Line(drawing, {{40, y}, {146, y}}, 0.5);
  Line(drawing, {{20, 70}, {390, 70}}, 0.5);
  for (const double x : {58.0, 128.0, 158.0}) Line(drawing, {{x, 70}, {x, 88}}, 0.4);
  Dimension(drawing, {58, 82}, {128, 82}, "2F (B)");
  Dimension(drawing, {128, 82}, {158, 82}, "BA (C)");
  Dimension(drawing, {158, 24}, {200, 24}, "N-W (E)");
  Dimension(drawing, {166, 51}, {200, 51}, "V");
  Line(drawing, {{200, 38}, {222, 38}}, 0.4);
  Dimension(drawing, {216, 38}, {216, 70}, "D (H)");
  // From the shaft's end: round body on its feet.
  drawing.shapes.emplace_back(Path{Arc({310, 38}, 28, 0, 360), Ink::Line, Ink::Body});
  Line(drawing, Arc({310, 38}, 20, 0, 360), 0.5);
  Line(drawing, Arc({310, 38}, 5, 0, 360));
  Line(drawing, {{308.5, 33}, {308.5, 35.5}, {311.5, 35.5}, {311.5, 33}});
  Solid(drawing, {{276, 70}, {276, 65}, {292, 58}, {296, 64}, {296, 70}});
  Solid(drawing, {{344, 70}, {344, 65}, {328, 58}, {324, 64}, {324, 70}});
  Line(drawing, {{310, 6}, {310, 90}}, 0.4);
  for (const double x : {284.0, 336.0}) Line(drawing, {{x, 60}, {x, 88}}, 0.4);
  Dimension(drawing, {284, 82}, {310, 82}, "E");
  Dimension(drawing, {310, 82}, {336, 82}, "E");
  drawing.shapes.emplace_back(Letters{{358, 82}, "(A = 2E)", 6.5, Ink::Accent});
  drawing.shapes.emplace_back(Letters{{262, 62}, "H (K)", 6.5, Ink::Accent});
  Line(drawing, {{272, 64}, {284, 68}}, 0.5);
  Line(drawing, {{313, 33}, {352, 33}}, 0.4);
  Line(drawing, {{313, 43}, {352, 43}}, 0.4);
  Line(drawing, {{349, 33}, {349, 43}}, 0.6);
  drawing.shapes.emplace_back(Letters{{368, 38}, "U (D)", 6.5, Ink::Accent});
  return drawing;
}

}  // namespace

DISPLAY::DISPLAY(Session& session, const char* name)
    : Window(session, {.name = name, .title = "", .sizable = true}) {
  Grid1.onCopy = [this] { GetSession().GetPlatform().SetClipboard(Grid1.CurrentText()); };
  Grid1.onRightClick = [this] { RightClicked(); };
}

Layout DISPLAY::Arrangement() { return Column({Grid1}); }

void DISPLAY::Load() {
  ApplyFormColors(*this);
  Table table = ParseTable(GetSession().ReadTable(GetSession().DataFileName));
  SetTitle(" " + table.title);
  Grid1.CaptionBeside().SetCaption(table.title);
  TakeSize(table);
  const int lastRow = table.rows - 1, lastColumn = table.columns - 1;
  Grid1.SetContent(std::move(table));
  Grid1.SetCurrent(1, 1);
  // The cells are made current one after the other as they are filled, and the last one stays so.
  Grid1.SetCurrent(lastRow, lastColumn);
}

// As large as the table, if the screen has room for it.
void DISPLAY::TakeSize(const Table& table) {
  const Metrics metrics = GetSession().GetPlatform().GetMetrics();
  const double widths = std::accumulate(table.widths.begin(), table.widths.end(), 0.0);
  const double gridWidth = widths + table.columns + 1;
  const double gridHeight =
      metrics.frameWidth + 1 + table.rows + metrics.gridRowHeight * table.rows + table.rows + 1;
  SetSize(std::min(gridWidth + table.columns + kSideMargins, metrics.screenWidth),
          std::min(gridHeight + Headroom() + metrics.captionHeight,
                   metrics.screenHeight - kBelowWindow));
}

void DISPLAY::Resized() {
  const Metrics metrics = GetSession().GetPlatform().GetMetrics();
  if (GetGeometry().height > metrics.screenHeight - kBelowTallWindow) MoveTo(GetGeometry().left, 0);
}

void DISPLAY::RightClicked() {
  if (GetSession().Ask("Print this form?") == Answer::Yes) GetSession().PrintWindow(*this);
}

bool DISPLAY::KeyPreview(Key key) {
  if (key != Key::F1) return false;
  GetSession().ShowHelp();
  return true;
}

DISPLAY2::DISPLAY2(Session& session)
    : DISPLAY(session, "DISPLAY2"),
      AC_MTR(*this, "AC_MTR", "Motor with the dimension letters of the table's columns", Motor()) {
  AC_MTR.onRightClick = [this] { RightClicked(); };
}

Layout DISPLAY2::Arrangement() { return Column({Row({Stretch(), AC_MTR, Stretch()}), Grid1}); }

}  // namespace korvane
