#include "stress/outline.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <numbers>

#include "frame/number_text.h"

namespace korvane {
namespace {

constexpr double kFarthest = 1e12;

// Of the extent of all outlines: points nearer than that are one, and how far beside an edge it is
// looked what lies there.
constexpr double kNear = 1e-9;
constexpr double kBeside = 1e-8;
// Of the perimeter squared: what is no area.
constexpr double kNoArea = 1e-12;
constexpr std::size_t kMostTouches = 4;  // for each edge, on an average

using Edge = Enclosure::Edge;

std::size_t Next(std::size_t i, std::size_t count) { return i + 1 < count ? i + 1 : 0; }

double Distance(const Vertex& a, const Vertex& b) { return std::hypot(b.x - a.x, b.y - a.y); }

bool IsSamePlace(const Vertex& a, const Vertex& b) { return a.x == b.x && a.y == b.y; }

struct Bounds {
  double left = kFarthest, right = -kFarthest, bottom = kFarthest, top = -kFarthest;

  void Add(const Vertex& point) {
    left = std::min(left, point.x);
    right = std::max(right, point.x);
    bottom = std::min(bottom, point.y);
    top = std::max(top, point.y);
  }
  bool Holds(const Bounds& other) const {
    return left <= other.left && right >= other.right && bottom <= other.bottom && top >= other.top;
  }
  double Extent() const { return std::max(right - left, top - bottom); }
};

Bounds BoundsOf(const std::vector<Outline>& outlines) {
  Bounds bounds;
  for (const Outline& outline : outlines)
    for (const Vertex& point : outline) bounds.Add(point);
  return bounds;
}

/// Twice the area, above 0 where the outline runs counterclockwise.
double TwiceArea(const Outline& outline) {
  double sum = 0;
  for (std::size_t i = 0; i < outline.size(); ++i) {
    const Vertex &a = outline[i], &b = outline[Next(i, outline.size())], &o = outline.front();
    sum += (a.x - o.x) * (b.y - o.y) - (b.x - o.x) * (a.y - o.y);
  }
  return sum;
}

double Perimeter(const Outline& outline) {
  double sum = 0;
  for (std::size_t i = 0; i < outline.size(); ++i)
    sum += Distance(outline[i], outline[Next(i, outline.size())]);
  return sum;
}

/// How often the outline runs around the point, counterclockwise.
int Windings(const Outline& outline, const Vertex& point) {
  int windings = 0;
  for (std::size_t i = 0; i < outline.size(); ++i) {
    const Vertex &a = outline[i], &b = outline[Next(i, outline.size())];
    if ((a.y <= point.y) == (b.y <= point.y)) continue;
    const double side = (b.x - a.x) * (point.y - a.y) - (point.x - a.x) * (b.y - a.y);
    if (a.y <= point.y && side > 0) ++windings;
    if (a.y > point.y && side < 0) --windings;
  }
  return windings;
}

// ---- How edges meet ----

/// The fault of edges that enclose no section.
struct Fault {
  std::string text;
  std::vector<Edge> edges;
};

std::string Named(const Edge& edge) {
  return "edge from point " + std::to_string(edge.from.number) + " to " +
         std::to_string(edge.to.number);
}

Fault Between(const Edge& one, const char* does, const Edge& other) {
  return {"The " + Named(one) + ' ' + does + " the " + Named(other) + '.', {one, other}};
}

class Meetings {
 public:
  explicit Meetings(const std::vector<Outline>& outlines)
      : outlines_(outlines), near_(kNear * BoundsOf(outlines).Extent()) {
    List();
    Sweep();
  }

  Fault FaultOfAll() const;
  /// Whether the piece of an outline that lies on no other is inside the other.
  bool IsInside(std::size_t inner, std::size_t outer) const;

 private:
  struct Listed {
    std::size_t outline, edge;
    Vertex a, b;
    double Left() const { return std::min(a.x, b.x); }
    double Right() const { return std::max(a.x, b.x); }
  };

  void List();
  void Sweep();
  void Meet(const Listed& one, const Listed& other);
  bool IsNext(const Listed& one, const Listed& other) const;
  int Side(const Edge& edge, const Vertex& point) const;
  bool LiesOn(const Edge& edge, const Vertex& point) const;
  bool LiesOn(const Outline& outline, const Vertex& point) const;
  Edge EdgeOf(std::size_t outline, std::size_t edge) const;

  /// Where an edge is touched, and by which one.
  struct Touch {
    Vertex at;
    std::size_t edge;
  };
  /// Of one outline with another, or with itself: the touches on its edges.
  using Contact = std::map<std::size_t, std::vector<Touch>>;
  static const std::vector<Touch>& TouchesOn(const Contact& contact, std::size_t edge);
  const Contact& ContactOf(std::size_t one, std::size_t other) const;
  void Add(const Listed& one, const Listed& other, const Vertex& at);
  std::vector<Vertex> PiecesOf(const Edge& edge, const std::vector<Touch>& touches) const;
  std::size_t EdgeAt(const Vertex& place, std::size_t outline,
                     const std::vector<Touch>& touches) const;
  Fault FaultWithin(std::size_t outline) const;
  Fault FaultBetween(std::size_t one, std::size_t other) const;

  const std::vector<Outline>& outlines_;
  double near_;
  std::vector<Listed> edges_;
  std::map<std::pair<std::size_t, std::size_t>, Contact> contacts_;
  std::size_t count_ = 0;                                        // of touches
  std::optional<std::pair<std::size_t, std::size_t>> crossing_;  // the first pair in the list
};

void Meetings::List() {
  for (std::size_t i = 0; i < outlines_.size(); ++i)
    for (std::size_t j = 0; j < outlines_[i].size(); ++j) {
      const Edge edge = EdgeOf(i, j);
      edges_.push_back({i, j, edge.from, edge.to});
    }
}

Edge Meetings::EdgeOf(std::size_t outline, std::size_t edge) const {
  const Outline& points = outlines_[outline];
  return {points[edge], points[Next(edge, points.size())]};
}

// From left to right, with the edges at hand that reach so far.
void Meetings::Sweep() {
  std::vector<std::size_t> order(edges_.size());
  for (std::size_t i = 0; i < order.size(); ++i) order[i] = i;
  std::ranges::sort(order, {}, [this](std::size_t i) { return edges_[i].Left(); });
  std::vector<std::size_t> open;
  for (const std::size_t i : order) {
    const Listed& edge = edges_[i];
    std::erase_if(open, [&](std::size_t j) { return edges_[j].Right() < edge.Left() - near_; });
    for (const std::size_t j : open) {
      const Listed& first = edges_[std::min(i, j)];
      const Listed& second = edges_[std::max(i, j)];
      if (std::max(first.a.y, first.b.y) < std::min(second.a.y, second.b.y) - near_ ||
          std::min(first.a.y, first.b.y) > std::max(second.a.y, second.b.y) + near_)
        continue;
      Meet(first, second);
    }
    open.push_back(i);
  }
}

int Meetings::Side(const Edge& edge, const Vertex& point) const {
  const double cross = (edge.to.x - edge.from.x) * (point.y - edge.from.y) -
                       (point.x - edge.from.x) * (edge.to.y - edge.from.y);
  const double limit = near_ * Distance(edge.from, edge.to);
  return cross > limit ? 1 : cross < -limit ? -1 : 0;
}

bool Meetings::LiesOn(const Edge& edge, const Vertex& point) const {
  const double length = Distance(edge.from, edge.to);
  const double along = ((point.x - edge.from.x) * (edge.to.x - edge.from.x) +
                        (point.y - edge.from.y) * (edge.to.y - edge.from.y)) /
                       length;
  return Side(edge, point) == 0 && along >= -near_ && along <= length + near_;
}

bool Meetings::LiesOn(const Outline& outline, const Vertex& point) const {
  for (std::size_t i = 0; i < outline.size(); ++i)
    if (LiesOn(Edge{outline[i], outline[Next(i, outline.size())]}, point)) return true;
  return false;
}

bool Meetings::IsNext(const Listed& one, const Listed& other) const {
  return one.outline == other.outline &&
         Next(one.edge, outlines_[one.outline].size()) == other.edge;
}

void Meetings::Meet(const Listed& one, const Listed& other) {
  const Edge a{one.a, one.b}, b{other.a, other.b};
  const int c = Side(a, b.from), d = Side(a, b.to);
  const int e = Side(b, a.from), f = Side(b, a.to);
  if (c * d < 0 && e * f < 0) {
    const auto pair = std::pair(static_cast<std::size_t>(&one - edges_.data()),
                                static_cast<std::size_t>(&other - edges_.data()));
    if (!crossing_ || pair < *crossing_) crossing_ = pair;
    return;
  }
  // Neighbours share a corner; beyond it they touch where one turns back along the other.
  const bool before = IsNext(one, other), after = IsNext(other, one);
  if (LiesOn(a, b.from) && !before) Add(one, other, b.from);
  if (LiesOn(a, b.to) && !after) Add(one, other, b.to);
  if (LiesOn(b, a.from) && !after) Add(one, other, a.from);
  if (LiesOn(b, a.to) && !before) Add(one, other, a.to);
}

// Lists that go to and fro between the same places are not followed to their end.
void Meetings::Add(const Listed& one, const Listed& other, const Vertex& at) {
  if (++count_ > kMostTouches * edges_.size()) return;
  contacts_[{one.outline, other.outline}][one.edge].push_back({at, other.edge});
  contacts_[{other.outline, one.outline}][other.edge].push_back({at, one.edge});
}

const std::vector<Meetings::Touch>& Meetings::TouchesOn(const Contact& contact, std::size_t edge) {
  static const std::vector<Touch> none;
  const auto found = contact.find(edge);
  return found == contact.end() ? none : found->second;
}

const Meetings::Contact& Meetings::ContactOf(std::size_t one, std::size_t other) const {
  static const Contact none;
  const auto found = contacts_.find({one, other});
  return found == contacts_.end() ? none : found->second;
}

/// The middles of the pieces into which touches part an edge.
std::vector<Vertex> Meetings::PiecesOf(const Edge& whole, const std::vector<Touch>& touches) const {
  const double length = Distance(whole.from, whole.to);
  std::vector<double> at = {0, length};
  for (const Touch& touch : touches) at.push_back(std::min(Distance(whole.from, touch.at), length));
  std::ranges::sort(at);
  std::vector<Vertex> middles;
  for (std::size_t i = 0; i + 1 < at.size(); ++i) {
    if (at[i + 1] - at[i] < 4 * near_) continue;
    const double part = (at[i] + at[i + 1]) / 2 / length;
    middles.push_back({whole.from.x + part * (whole.to.x - whole.from.x),
                       whole.from.y + part * (whole.to.y - whole.from.y), 0});
  }
  return middles;
}

/// Of the edges that touch another the one on which a place lies, else the first.
std::size_t Meetings::EdgeAt(const Vertex& place, std::size_t outline,
                             const std::vector<Touch>& touches) const {
  for (const Touch& touch : touches)
    if (LiesOn(EdgeOf(outline, touch.edge), place)) return touch.edge;
  return touches.front().edge;
}

// An outline may touch itself, and run along itself as a slit does; it goes wrong where it has on
// neither side of an edge the inside, or on one side something that it runs around otherwise.
Fault Meetings::FaultWithin(std::size_t outline) const {
  const Outline& points = outlines_[outline];
  const int inside = TwiceArea(points) > 0 ? 1 : -1;
  const double beside = kBeside / kNear * near_;
  for (const auto& [edge, touches] : ContactOf(outline, outline)) {
    const Edge whole = EdgeOf(outline, edge);
    const double length = Distance(whole.from, whole.to);
    const double x = -(whole.to.y - whole.from.y) / length * beside;
    const double y = (whole.to.x - whole.from.x) / length * beside;
    for (const Vertex& at : PiecesOf(whole, touches)) {
      const int left = Windings(points, {at.x + x, at.y + y, 0});
      const int right = Windings(points, {at.x - x, at.y - y, 0});
      const auto isSound = [inside](int windings) { return windings == 0 || windings == inside; };
      if (!isSound(left) || !isSound(right) || (left == 0 && right == 0))
        return Between(whole, left == right ? "runs along" : "crosses",
                       EdgeOf(outline, EdgeAt(at, outline, touches)));
    }
  }
  return {};
}

// Two outlines that touch part the plane well unless one is both inside and outside the other.
Fault Meetings::FaultBetween(std::size_t one, std::size_t other) const {
  const Contact& contact = ContactOf(one, other);
  bool inside = false, outside = false;
  for (std::size_t edge = 0; edge < outlines_[one].size(); ++edge)
    for (const Vertex& at : PiecesOf(EdgeOf(one, edge), TouchesOn(contact, edge))) {
      if (LiesOn(outlines_[other], at)) continue;
      (Windings(outlines_[other], at) != 0 ? inside : outside) = true;
    }
  if (!inside || !outside) return {};
  const auto& [edge, touches] = *contact.begin();
  return Between(EdgeOf(one, edge), "crosses", EdgeOf(other, touches.front().edge));
}

Fault Meetings::FaultOfAll() const {
  if (crossing_) {
    const Listed &one = edges_[crossing_->first], &other = edges_[crossing_->second];
    return Between({one.a, one.b}, "crosses", {other.a, other.b});
  }
  for (const auto& [pair, contact] : contacts_) {
    const auto& [one, other] = pair;
    Fault fault;
    if (count_ > kMostTouches * edges_.size())
      fault = Between(EdgeOf(one, contact.begin()->first), "runs along",
                      EdgeOf(other, contact.begin()->second.front().edge));
    else if (one == other)
      fault = FaultWithin(one);
    else if (one < other)
      fault = FaultBetween(one, other);
    if (!fault.text.empty()) return fault;
  }
  return {};
}

bool Meetings::IsInside(std::size_t inner, std::size_t outer) const {
  const Contact& contact = ContactOf(inner, outer);
  for (std::size_t edge = 0; edge < outlines_[inner].size(); ++edge)
    for (const Vertex& at : PiecesOf(EdgeOf(inner, edge), TouchesOn(contact, edge)))
      if (contact.empty() || !LiesOn(outlines_[outer], at))
        return Windings(outlines_[outer], at) != 0;
  return true;  // it runs along the other all around
}

std::string TooFew(const Outline& outline) {
  const std::string count = std::to_string(outline.size());
  return "The outline at point " + std::to_string(outline.front().number) + " has only " + count +
         (outline.size() == 1 ? " point" : " points") + "; 3 are the least.";
}

std::string SameOutline(const Outline& one, const Outline& other) {
  return "The outlines at point " + std::to_string(one.front().number) + " and at point " +
         std::to_string(other.front().number) + " are the same.";
}

/// Adds what one outline encloses about the given origin, or takes it away.
struct Sums {
  Double area, Sx, Sy, Ix, Iy, Ixy;

  // Green's theorem: integrals over the area as sums over its edges.
  void Add(const Outline& outline, double x0, double y0, int sign) {
    if (TwiceArea(outline) < 0) sign = -sign;
    for (std::size_t i = 0; i < outline.size(); ++i) {
      const Vertex &from = outline[i], &to = outline[Next(i, outline.size())];
      const Double x = from.x - x0, y = from.y - y0, u = to.x - x0, v = to.y - y0;
      const Double w = sign * (x * v - u * y);
      area += w / 2;
      Sy += w * (x + u) / 6;
      Sx += w * (y + v) / 6;
      Iy += w * (x * x + x * u + u * u) / 12;
      Ix += w * (y * y + y * v + v * v) / 12;
      Ixy += w * (2 * x * y + x * v + u * y + 2 * u * v) / 24;
    }
  }
};

/// Of a sliver, rounding may leave less than nothing.
Double AtLeastZero(Double value) { return value < 0 ? Double(0) : value; }

Double NoneIfNoise(Double value, Double scale) {
  constexpr double noise = 1e-10;
  return Abs(value) < noise * scale ? Double(0) : value;
}

}  // namespace

std::optional<double> Coordinate(std::string_view text) {
  try {
    const auto number = Recognise(text);
    if (!number || Abs(*number) > kFarthest) return std::nullopt;
    return number->Value();
  } catch (const RuntimeFailure&) {  // beyond 64 bits
    return std::nullopt;
  }
}

OutlineList ReadOutlines(const std::vector<std::vector<std::string>>& rows) {
  OutlineList list;
  Outline outline;
  const auto close = [&] {
    while (outline.size() > 1 && IsSamePlace(outline.back(), outline.front())) outline.pop_back();
    if (!outline.empty()) list.outlines.push_back(std::move(outline));
    outline.clear();
  };
  int number = 0;
  for (const std::vector<std::string>& row : rows) {
    ++number;
    const auto x = Coordinate(row[0]), y = Coordinate(row[1]);
    if (x && y) {
      const Vertex point{*x, *y, number};
      if (outline.empty() || !IsSamePlace(outline.back(), point)) outline.push_back(point);
    } else if (!x && !y) {
      close();
    } else if (list.fault.empty()) {
      list.fault = "Point " + std::to_string(number) + " has no " + (x ? "Y." : "X.");
    }
  }
  close();
  return list;
}

Enclosure Enclose(const std::vector<Outline>& outlines) {
  if (outlines.empty()) return {"There are no points.", {}, {}};
  for (const Outline& outline : outlines)
    if (outline.size() < 3) return {TooFew(outline), {}, {}};
  const Meetings meetings(outlines);
  if (Fault fault = meetings.FaultOfAll(); !fault.text.empty())
    return {std::move(fault.text), std::move(fault.edges), {}};

  Enclosure enclosure;
  std::vector<Bounds> bounds;
  bounds.reserve(outlines.size());
  for (const Outline& outline : outlines) bounds.push_back(BoundsOf({outline}));
  double area = 0, perimeter = 0;
  for (std::size_t i = 0; i < outlines.size(); ++i) {
    bool hole = false;
    for (std::size_t j = 0; j < outlines.size(); ++j) {
      if (i == j || !bounds[j].Holds(bounds[i]) || !meetings.IsInside(i, j)) continue;
      if (bounds[i].Holds(bounds[j]) && meetings.IsInside(j, i))
        return {SameOutline(outlines[i], outlines[j]), {}, {}};
      hole = !hole;
    }
    enclosure.holes.push_back(hole);
    area += std::abs(TwiceArea(outlines[i])) / (hole ? -2 : 2);
    perimeter += Perimeter(outlines[i]);
  }
  if (area <= kNoArea * perimeter * perimeter) enclosure.fault = "The points enclose no area.";
  return enclosure;
}

PlaneSection SectionOf(const std::vector<Outline>& outlines, const std::vector<bool>& holes) {
  // Far from the origin the squares would swamp what counts: it is moved there.
  const Bounds bounds = BoundsOf(outlines);
  const double x0 = (bounds.left + bounds.right) / 2, y0 = (bounds.bottom + bounds.top) / 2;
  PlaneSection section;
  Sums sums;
  for (std::size_t i = 0; i < outlines.size(); ++i) {
    section.perimeter += Perimeter(outlines[i]);
    sums.Add(outlines[i], x0, y0, holes[i] ? -1 : 1);
  }
  section.area = sums.area;
  const Double x = sums.Sy / sums.area, y = sums.Sx / sums.area;
  section.Ix = AtLeastZero(sums.Ix - sums.area * y * y);
  section.Iy = AtLeastZero(sums.Iy - sums.area * x * x);
  section.Ixy = NoneIfNoise(sums.Ixy - sums.area * x * y, section.Polar());
  section.x = NoneIfNoise(x + x0, bounds.Extent());
  section.y = NoneIfNoise(y + y0, bounds.Extent());
  section.left = section.x - bounds.left;
  section.right = bounds.right - section.x;
  section.bottom = section.y - bounds.bottom;
  section.top = bounds.top - section.y;

  const Double middle = section.Polar() / 2;
  const Double half = NoneIfNoise((section.Ix - section.Iy) / 2, section.Polar());
  const Double radius = Sqrt(half * half + section.Ixy * section.Ixy);
  section.I1 = middle + radius;
  section.I2 = AtLeastZero(middle - radius);
  section.angle = std::atan2(-section.Ixy.Value(), half.Value()) / 2 * 180 / std::numbers::pi;
  return section;
}

// ---- The picture ----

namespace {

class Picturing {
 public:
  Picturing(const std::vector<Outline>& outlines, DrawingBox box)
      : outlines_(outlines), bounds_(BoundsOf(outlines)), drawing_{box.width, box.height, {}} {
    constexpr double left = 24, right = 100, above = 26, below = 46;  // for letters and measures
    const double width = box.width - left - right, height = box.height - above - below;
    const double across = bounds_.right - bounds_.left, up = bounds_.top - bounds_.bottom;
    if (outlines.empty()) return;
    scale_ = std::min(across > 0 ? width / across : kFarthest, up > 0 ? height / up : kFarthest);
    if (across <= 0 && up <= 0) scale_ = 1;
    x0_ = left + (width - across * scale_) / 2 - bounds_.left * scale_;
    y0_ = above + (height + up * scale_) / 2 + bounds_.bottom * scale_;
  }

  Point At(double x, double y) const { return {x0_ + x * scale_, y0_ - y * scale_}; }
  Point At(const Vertex& point) const { return At(point.x, point.y); }

  void Fill();
  void Lines(bool closed);
  void Numbers();
  void Axes(const PlaneSection& section);
  void Measures();
  void Faults(const std::vector<Edge>& edges);
  Drawing Take() { return std::move(drawing_); }

 private:
  void Line(std::vector<Point> points, Ink ink, double width) {
    drawing_.shapes.emplace_back(Path{std::move(points), ink, {}, width});
  }
  void Text(Point at, std::string text, Ink ink, double height = 10) {
    drawing_.shapes.emplace_back(Letters{at, std::move(text), height, ink});
  }

  const std::vector<Outline>& outlines_;
  Bounds bounds_;
  Drawing drawing_;
  double scale_ = 1, x0_ = 0, y0_ = 0;
};

// One line through all outlines, which leaves and comes back at one place so that what it passes
// between them encloses nothing.
void Picturing::Fill() {
  std::vector<Point> all;
  const Point start = At(outlines_.front().front());
  for (const Outline& outline : outlines_) {
    for (const Vertex& point : outline) all.push_back(At(point));
    all.push_back(At(outline.front()));
    all.push_back(start);
  }
  constexpr double unseen = 0.01;
  drawing_.shapes.emplace_back(Path{std::move(all), Ink::Body, Ink::Body, unseen});
}

void Picturing::Lines(bool closed) {
  for (const Outline& outline : outlines_) {
    std::vector<Point> points;
    for (const Vertex& point : outline) points.push_back(At(point));
    if (closed || outline.size() > 2) points.push_back(At(outline.front()));
    Line(std::move(points), Ink::Line, 1.2);
  }
}

// Numbers of many points would run into one another.
void Picturing::Numbers() {
  constexpr std::size_t most = 36;
  std::size_t count = 0;
  for (const Outline& outline : outlines_) count += outline.size();
  for (const Outline& outline : outlines_) {
    const int turn = TwiceArea(outline) < 0 ? -1 : 1;
    for (std::size_t i = 0; i < outline.size() && count <= most; ++i) {
      const Point at = At(outline[i]);
      const Point before = At(outline[i > 0 ? i - 1 : outline.size() - 1]);
      const Point after = At(outline[Next(i, outline.size())]);
      for (const double radius : {0.6, 1.4})
        drawing_.shapes.emplace_back(Path{Arc(at, radius, 0, 360), Ink::Line, Ink::Line, 1});
      // Outside of the corner, away from both of its edges.
      const double in = std::hypot(at.x - before.x, at.y - before.y);
      const double out = std::hypot(after.x - at.x, after.y - at.y);
      if (in == 0 || out == 0) continue;
      double x = (at.y - before.y) / in + (after.y - at.y) / out;
      double y = -(at.x - before.x) / in - (after.x - at.x) / out;
      const double length = std::hypot(x, y);
      constexpr double away = 11;
      if (length < 0.01) continue;
      x *= -turn * away / length;
      y *= -turn * away / length;
      Text({at.x + x, at.y + y}, std::to_string(outline[i].number), Ink::Gray, 8.5);
    }
  }
}

void Picturing::Axes(const PlaneSection& section) {
  const Point center = At(section.x.Value(), section.y.Value());
  const double angle = section.angle.Value() * std::numbers::pi / 180;
  const double reach = std::hypot(bounds_.right - bounds_.left, bounds_.top - bounds_.bottom) / 2;
  for (const bool first : {true, false}) {
    const double x = first ? std::cos(angle) : -std::sin(angle);
    const double y = first ? std::sin(angle) : std::cos(angle);
    const double half =
        std::min({0.85 * reach * scale_, (drawing_.width / 2 - 24) / std::max(std::abs(x), 1e-9),
                  (drawing_.height / 2 - 24) / std::max(std::abs(y), 1e-9)});
    Line({{center.x - x * half, center.y + y * half}, {center.x + x * half, center.y - y * half}},
         Ink::Accent, 0.9);
    Text({center.x + x * (half + 10), center.y - y * (half + 10)}, first ? "1" : "2", Ink::Accent);
  }
  constexpr double size = 5;
  Line(Arc(center, size, 0, 360), Ink::Accent, 1.6);
  Line({{center.x - 2 * size, center.y}, {center.x + 2 * size, center.y}}, Ink::Accent, 1.6);
  Line({{center.x, center.y - 2 * size}, {center.x, center.y + 2 * size}}, Ink::Accent, 1.6);
}

void Picturing::Measures() {
  const double across = bounds_.right - bounds_.left, up = bounds_.top - bounds_.bottom;
  const Point low = At(bounds_.left, bounds_.bottom), high = At(bounds_.right, bounds_.top);
  constexpr double beside = 22, beyond = 5;
  const double y = low.y + beside, x = high.x + beside;
  if (across > 0) {
    for (const double at : {low.x, high.x})
      Line({{at, low.y + beyond}, {at, y + beyond}}, Ink::Gray, 0.5);
    const double middle = (low.x + high.x) / 2;
    AddArrow(drawing_, {middle, y}, {low.x, y}, Ink::Line);
    AddArrow(drawing_, {middle, y}, {high.x, y}, Ink::Line);
    Text({middle, y + 14}, SixDigits(across), Ink::Line);
  }
  if (up > 0) {
    for (const double at : {low.y, high.y})
      Line({{high.x + beyond, at}, {x + beyond, at}}, Ink::Gray, 0.5);
    const double middle = (low.y + high.y) / 2;
    AddArrow(drawing_, {x, middle}, {x, low.y}, Ink::Line);
    AddArrow(drawing_, {x, middle}, {x, high.y}, Ink::Line);
    const std::string letters = SixDigits(up);
    constexpr double gap = 10, halfLetter = 3.6;
    Text({x + gap + halfLetter * static_cast<double>(letters.size()), middle}, letters, Ink::Line);
  }
}

void Picturing::Faults(const std::vector<Edge>& edges) {
  for (const Edge& edge : edges) Line({At(edge.from), At(edge.to)}, Ink::Red, 2.5);
}

}  // namespace

Drawing DrawnToScale(const std::vector<Outline>& outlines, const Enclosure& enclosure,
                     const PlaneSection* section, DrawingBox box) {
  Picturing picture(outlines, box);
  if (outlines.empty()) return picture.Take();
  const bool sound = enclosure.fault.empty();
  if (sound) picture.Fill();
  picture.Lines(sound);
  picture.Faults(enclosure.edges);
  picture.Numbers();
  picture.Measures();
  if (section != nullptr) picture.Axes(*section);
  return picture.Take();
}

std::string SixDigits(Double value) {
  if (value == 0) return "0";
  const double unit = std::pow(10, std::floor(std::log10(std::abs(value.Value()))) - 5);
  const double digits = std::round(value.Value() / unit);
  // Powers of ten below one are no whole numbers of doubles: a quotient rounds better.
  return PlainText(Double(unit < 1 ? digits / std::round(1 / unit) : digits * unit));
}

}  // namespace korvane
