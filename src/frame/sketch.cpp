#include "frame/sketch.h"

#include <algorithm>

#include "frame/number_text.h"

namespace korvane {
namespace {

constexpr int kMostCommands = 5000;

/// Takes the text up to the mark off the front, and the mark with it; nothing if it has none.
std::optional<std::string_view> TakeUpTo(std::string_view& text, char mark) {
  const auto end = text.find(mark);
  if (end == std::string_view::npos) return std::nullopt;
  const std::string_view taken = text.substr(0, end);
  text.remove_prefix(end + 1);
  return taken;
}

std::string_view TakeLine(std::string_view& text) {
  std::string_view line = text;
  if (const auto ended = TakeUpTo(text, '\n'))
    line = *ended;
  else
    text = {};
  if (line.ends_with('\r')) line.remove_suffix(1);
  return line;
}

/// How each pen draws: outlines stand out against dimensions.
void SelectPen(char pen, Sketch::Stroke& stroke) {
  constexpr double bold = 1.5, fine = 0.9;
  switch (pen) {
    case '1': stroke.ink = Ink::Line; break;
    case '2': stroke.ink = Ink::Red; break;
    case '4': stroke.ink = Ink::Blue; break;
    case '6': stroke.ink = Ink::Gray; break;
    default: break;
  }
  stroke.width = pen == '1' ? bold : fine;
}

struct Target {
  Double x, y;
};

std::optional<Target> TargetOf(std::string_view command) {
  if (command.size() <= 2 || !command.starts_with("PA")) return std::nullopt;
  std::string_view y = command.substr(2);
  const std::string_view x = TakeUpTo(y, ',').value_or(y);
  return Target{ToNumber(x), ToNumber(y)};
}

/// Walks the commands with the pen in hand.
class Plotter {
 public:
  void Do(std::string_view command) {
    if (command.starts_with("SP") && command.size() > 2) {
      Finish();
      SelectPen(command.back(), pen_);
    } else if (command == "PU") {
      Finish();
      down_ = false;
    } else if (command == "PD") {
      down_ = true;
    } else if (const auto target = TargetOf(command)) {
      GoTo(*target);
    }
  }

  Sketch Take() {
    Finish();
    return std::move(sketch_);
  }

 private:
  void GoTo(const Target& target) {
    sketch_.maxX = std::max(sketch_.maxX, target.x);
    sketch_.maxY = std::max(sketch_.maxY, target.y);
    const Point point{target.x.Value(), target.y.Value()};
    if (down_ && pen_.points.empty()) pen_.points.push_back(at_);
    if (down_) pen_.points.push_back(point);
    at_ = point;
  }

  void Finish() {
    if (!pen_.points.empty()) sketch_.strokes.push_back(pen_);
    pen_.points.clear();
  }

  Sketch sketch_;
  Sketch::Stroke pen_;
  Point at_;
  bool down_ = false;
};

}  // namespace

std::optional<std::string> FindSketch(std::string_view file, std::string_view section) {
  while (!file.empty()) {
    const std::string_view line = TakeLine(file);
    if (line.size() != section.size() + 2 || line.front() != '[' || line.back() != ']' ||
        line.substr(1, section.size()) != section)
      continue;
    if (file.empty()) failures::InputPastEnd();
    return std::string(TakeLine(file));
  }
  return std::nullopt;
}

Sketch ParseSketch(std::string_view commands) {
  Plotter plotter;
  int count = 0;
  while (const auto command = TakeUpTo(commands, ';')) {
    if (++count > kMostCommands) failures::SubscriptOutOfRange();
    plotter.Do(*command);
  }
  return plotter.Take();
}

Drawing Placed(const Sketch& sketch, double width, double height, double scale, Point origin) {
  Drawing drawing{width, height, {}};
  for (const Sketch::Stroke& stroke : sketch.strokes) {
    Path path{{}, stroke.ink, {}, stroke.width};
    for (const Point& point : stroke.points)
      path.points.push_back({origin.x + scale * point.x, origin.y - scale * point.y});
    drawing.shapes.emplace_back(std::move(path));
  }
  return drawing;
}

Drawing Fitted(const Sketch& sketch, double width, double height, double margin) {
  const double freeWidth = width - 2 * margin, freeHeight = height - 2 * margin;
  const Double scaleX = freeWidth / sketch.maxX, scaleY = freeHeight / sketch.maxY;
  const Double scale = std::min(scaleX, scaleY);
  const Double besides = (freeWidth - scale * sketch.maxX) / 2;
  const Double below = (freeHeight - scale * sketch.maxY) / 2;
  return Placed(sketch, width, height, scale.Value(),
                {margin + besides.Value(), height - margin - below.Value()});
}

}  // namespace korvane
