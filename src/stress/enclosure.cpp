#include "stress/enclosure.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <optional>
#include <utility>

namespace korvane {
namespace {

// Of the extent of all outlines: points nearer than that are one, and how far beside an edge it is
// looked what lies there.
constexpr double kNear = 1e-9;
constexpr double kBeside = 1e-8;
// Of the perimeter squared: what is no area.
constexpr double kNoArea = 1e-12;
constexpr std::size_t kMostTouches = 4;  // for each edge, on an average

using Edge = Enclosure::Edge;

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

}  // namespace

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

}  // namespace korvane
