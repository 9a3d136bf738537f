#include "frame/display.h"

#include <algorithm>
#include <numeric>

#include "frame/calculator_window.h"
#include "frame/session.h"

namespace korvane {
namespace {

// Fixed margins, in twips.
constexpr int kSideMargins = 480 + 130;
constexpr int kBelowWindow = 450;     // of the screen, that a window leaves free
constexpr int kBelowTallWindow = 900; // a window that leaves less than this stands at the top

// ---- The motor, seen from its side and from its shaft's end ----

void Line(Drawing& drawing, std::vector<Point> points, double width = 1) {
  drawing.shapes.emplace_back(Path{std::move(points), Ink::Line, {}, width});
}

void Solid(Drawing& drawing, std::vector<Point> points) {
  points.push_back(points.front());
  drawing.shapes.emplace_back(Path{std::move(points), Ink::Line, Ink::Body});
}

/// A dimension with arrow heads at both ends and its letter in the middle.
void Dimension(Drawing& drawing, Point from, Point to, const char* letter) {
  const bool level = from.y == to.y;
  const Point along = level ? Point{1, 0} : Point{0, 1};
  const Point across = level ? Point{0, 1} : Point{1, 0};
  constexpr double gap = 6, head = 4, half = 1.6;
  const Point middle{(from.x + to.x) / 2, (from.y + to.y) / 2};
  drawing.shapes.emplace_back(
      Path{{from, {middle.x - gap * along.x, middle.y - gap * along.y}}, Ink::Accent});
  drawing.shapes.emplace_back(
      Path{{{middle.x + gap * along.x, middle.y + gap * along.y}, to}, Ink::Accent});
  for (const auto& [tip, way] : {std::pair{from, 1.0}, std::pair{to, -1.0}}) {
    const Point base{tip.x + way * head * along.x, tip.y + way * head * along.y};
    drawing.shapes.emplace_back(Path{{{base.x + half * across.x, base.y + half * across.y},
                                      tip,
                                      {base.x - half * across.x, base.y - half * across.y}},
                                     Ink::Accent});
  }
  drawing.shapes.emplace_back(Letters{middle, letter, 6, Ink::Accent});
}

Drawing Motor() {
  Drawing drawing{420, 100, {}};
  // From the side: body, feet, shaft to the right.
  Solid(drawing, {{40, 20}, {150, 20}, {150, 68}, {40, 68}});
  Solid(drawing, {{34, 26}, {40, 26}, {40, 62}, {34, 62}});
  Solid(drawing, {{150, 24}, {158, 28}, {158, 60}, {150, 64}});
  Solid(drawing, {{158, 40}, {198, 40}, {198, 48}, {158, 48}});
  Solid(drawing, {{56, 68}, {72, 68}, {72, 76}, {52, 76}});
  Solid(drawing, {{120, 68}, {136, 68}, {140, 76}, {120, 76}});
  for (const double y : {28.0, 36.0, 44.0, 52.0, 60.0}) Line(drawing, {{44, y}, {146, y}}, 0.5);
  Line(drawing, {{20, 76}, {410, 76}}, 0.5);
  Dimension(drawing, {62, 88}, {130, 88}, "2F");
  Dimension(drawing, {130, 88}, {158, 88}, "BA");
  Dimension(drawing, {158, 32}, {198, 32}, "V");
  Dimension(drawing, {34, 10}, {198, 10}, "C");
  Dimension(drawing, {210, 44}, {210, 76}, "D");
  Line(drawing, {{198, 44}, {216, 44}}, 0.5);
  // From the shaft's end: round body on its feet.
  std::vector<Point> body = Arc({310, 44}, 28, 0, 360);
  drawing.shapes.emplace_back(Path{body, Ink::Line, Ink::Body});
  Line(drawing, Arc({310, 44}, 20, 0, 360), 0.5);
  Line(drawing, Arc({310, 44}, 5, 0, 360));
  Line(drawing, {{308.5, 39}, {308.5, 41.5}, {311.5, 41.5}, {311.5, 39}});
  Solid(drawing, {{276, 76}, {276, 71}, {292, 64}, {296, 70}, {296, 76}});
  Solid(drawing, {{344, 76}, {344, 71}, {328, 64}, {324, 70}, {324, 76}});
  Line(drawing, {{310, 10}, {310, 94}}, 0.4);
  Dimension(drawing, {286, 88}, {310, 88}, "E");
  Dimension(drawing, {310, 88}, {334, 88}, "E");
  Dimension(drawing, {276, 96}, {344, 96}, "B");
  Dimension(drawing, {362, 16}, {362, 76}, "O");
  Line(drawing, {{310, 16}, {368, 16}}, 0.5);
  Dimension(drawing, {384, 39}, {384, 49}, "");
  Line(drawing, {{315, 39}, {390, 39}}, 0.4);
  Line(drawing, {{315, 49}, {390, 49}}, 0.4);
  drawing.shapes.emplace_back(Letters{{397, 44}, "U", 6, Ink::Accent});
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
  Grid1.SetContent(std::move(table));
  Grid1.SetCurrent(1, 1);
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
  if (GetGeometry().height > metrics.screenHeight - kBelowTallWindow)
    MoveTo(GetGeometry().left, 0);
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

Layout DISPLAY2::Arrangement() {
  return Column({Row({Stretch(), AC_MTR, Stretch()}), Grid1});
}

}  // namespace korvane
