// The scripts of the sprockets' window, replayed: what AutoCAD draws by them is a sprocket.
#include "mechanical/sprocket.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <filesystem>
#include <numbers>

#include "../support/scripted_session.h"
#include "../support/temporary_folder.h"

namespace korvane::testing {
namespace {

constexpr double kTurn = 2 * std::numbers::pi;
constexpr double kClose = 1e-6;  // inches

double Distance(Point a, Point b) { return std::hypot(b.x - a.x, b.y - a.y); }
Point Turned(Point p, double by) {
  return {p.x * std::cos(by) - p.y * std::sin(by), p.x * std::sin(by) + p.y * std::cos(by)};
}
Point Mirrored(Point p, Point through, Point to) {
  const double length = Distance(through, to);
  const Point along{(to.x - through.x) / length, (to.y - through.y) / length};
  const double t = (p.x - through.x) * along.x + (p.y - through.y) * along.y;
  return {2 * (through.x + t * along.x) - p.x, 2 * (through.y + t * along.y) - p.y};
}

/// A line, an arc that runs counterclockwise, or a whole circle.
struct Entity {
  enum class Kind { Line, Arc, Circle } kind;
  Point start, end;
  Point center;
  bool backwards = false;  // a mirrored arc, from its start clockwise

  double Radius() const { return Distance(center, start); }
  /// Points along it, both ends included.
  std::vector<Point> Points() const {
    constexpr int steps = 40;
    const double from = std::atan2(start.y - center.y, start.x - center.x);
    double by = std::atan2(end.y - center.y, end.x - center.x) - from;
    if (kind == Kind::Circle) by = kTurn;
    if (!backwards && by < 0) by += kTurn;
    if (backwards && by > 0) by -= kTurn;
    std::vector<Point> points;
    for (int i = 0; i <= steps; ++i) {
      const double t = static_cast<double>(i) / steps;
      if (kind == Kind::Line)
        points.push_back({start.x + t * (end.x - start.x), start.y + t * (end.y - start.y)});
      else
        points.push_back({center.x + Radius() * std::cos(from + t * by),
                          center.y + Radius() * std::sin(from + t * by)});
    }
    return points;
  }
  template <class Move>
  Entity Moved(Move move) const {
    Entity moved = *this;
    for (Point* point : {&moved.start, &moved.end, &moved.center}) *point = move(*point);
    return moved;
  }
};

/// Draws what a script tells. "@" counts from the point entered last.
class Replay {
 public:
  explicit Replay(const std::string& bytes) {
    for (std::size_t at = 0; at < bytes.size();) {
      const auto end = bytes.find("\r\n", at);
      lines_.push_back(bytes.substr(at, end - at));
      at = end + 2;
    }
    while (next_ < lines_.size()) Command(Take());
  }

  std::vector<Entity> drawn;
  std::vector<Entity> teeth;  ///< what stood there when the array was made
  std::vector<std::string> inserted;
  int arrays = 0;

 private:
  std::string Take() { return lines_.at(next_++); }
  void Expect(const std::string& line) { EXPECT_EQ(Take(), line); }
  Point TakePoint() {
    const std::string text = Take();
    const bool relative = text.starts_with('@');
    const std::string rest = text.substr(relative ? 1 : 0);
    const auto mark = rest.find_first_of(",<");
    EXPECT_NE(mark, std::string::npos) << text;
    const double a = std::stod(rest), b = std::stod(rest.substr(mark + 1));
    const double angle = b * kTurn / 360;
    Point point = rest[mark] == '<' ? Point{a * std::cos(angle), a * std::sin(angle)} : Point{a, b};
    if (relative) point = {last_.x + point.x, last_.y + point.y};
    return last_ = point;
  }
  bool AtPoint() const { return lines_.at(next_).find_first_of(",<") != std::string::npos; }

  void Command(const std::string& command) {
    if (command == "ORTHO") return Expect("OFF");
    if (command == "REDRAW") return;
    if (command == "ZOOM") {
      Expect("WINDOW");
      const Point low = TakePoint(), high = TakePoint();
      EXPECT_LT(low.x, high.x);
    } else if (command == "zoom") {
      Take();
    } else if (command == "ARC") {
      Expect("C");
      Entity arc{Entity::Kind::Arc, {}, {}, TakePoint()};
      arc.start = TakePoint();
      const Point ray = TakePoint();
      const double scale = arc.Radius() / Distance(arc.center, ray);
      arc.end = {arc.center.x + scale * (ray.x - arc.center.x),
                 arc.center.y + scale * (ray.y - arc.center.y)};
      drawn.push_back(arc);
    } else if (command == "LINE") {
      const Point first = TakePoint();
      Point from = first;
      while (AtPoint()) {
        const Point to = TakePoint();
        drawn.push_back({Entity::Kind::Line, from, to, {}});
        from = to;
      }
      if (const std::string end = Take(); end == "CLOSE")
        drawn.push_back({Entity::Kind::Line, from, first, {}});
      else
        EXPECT_EQ(end, "");
    } else if (command == "MIRROR") {
      Expect("LAST");
      Expect("");
      const Point through = TakePoint(), to = TakePoint();
      Expect("N");
      drawn.push_back(
          drawn.back().Moved([&](Point point) { return Mirrored(point, through, to); }));
      drawn.back().backwards = !drawn.back().backwards;
    } else if (command == "ARRAY") {
      Expect("WINDOW");
      const Point low = TakePoint(), high = TakePoint();
      Array(low, high);
    } else if (command == "CIRCLE") {
      const Point center = TakePoint();
      Expect("D");
      const double radius = std::stod(Take()) / 2;
      const Point start{center.x + radius, center.y};
      drawn.push_back({Entity::Kind::Circle, start, start, center});
    } else if (command == "INSERT") {
      std::string told = Take();
      for (int i = 0; i < 4; ++i) told += ' ' + Take();
      inserted.push_back(told);
    } else if (command == "CHPROP") {
      Expect("WINDOW");
      TakePoint(), TakePoint();
      for (const char* line : {"", "C", "BYBLOCK", "LT", "BYBLOCK", ""}) Expect(line);
    } else if (command == "BLOCK") {
      inserted.push_back("block " + Take());
      for (const char* line : {"0,0", "PREVIOUS", "LAST", ""}) Expect(line);
    } else {
      ADD_FAILURE() << "command " << command;
    }
  }

  void Array(Point low, Point high) {
    ++arrays;
    for (const char* line : {"", "POLAR", "0,0"}) Expect(line);
    const int count = std::stoi(Take());
    for (int answer = 0; answer < 3; ++answer) Expect(" ");
    const std::vector<Entity> chosen = drawn;
    for (const Entity& entity : chosen)
      for (const Point& point : entity.Points())
        EXPECT_TRUE(low.x < point.x && point.x < high.x && low.y < point.y && point.y < high.y);
    for (int i = 1; i < count; ++i)
      for (const Entity& entity : chosen)
        drawn.push_back(
            entity.Moved([&](Point point) { return Turned(point, kTurn * i / count); }));
    teeth = drawn;
  }

  std::vector<std::string> lines_;
  std::size_t next_ = 0;
  Point last_;
};

/// The points of the one closed loop that the entities are; empty if they are none.
std::vector<Point> Loop(const std::vector<Entity>& entities) {
  std::vector<bool> used(entities.size());
  std::vector<Point> loop;
  Point at = entities.front().start;
  for (std::size_t count = 0; count < entities.size(); ++count) {
    std::size_t found = entities.size();
    bool reversed = false;
    for (std::size_t i = 0; i < entities.size() && found == entities.size(); ++i) {
      if (used[i]) continue;
      reversed = Distance(entities[i].end, at) < kClose;
      if (reversed || Distance(entities[i].start, at) < kClose) found = i;
    }
    if (found == entities.size()) return {};
    used[found] = true;
    std::vector<Point> points = entities[found].Points();
    if (reversed) std::reverse(points.begin(), points.end());
    loop.insert(loop.end(), points.begin(), points.end());
    at = loop.back();
  }
  return Distance(at, loop.front()) < kClose ? loop : std::vector<Point>{};
}

/// Times that the loop goes round the axis.
double Windings(const std::vector<Point>& loop) {
  double sum = 0;
  for (std::size_t i = 1; i < loop.size(); ++i) {
    const Point a = loop[i - 1], b = loop[i];
    sum += std::atan2(a.x * b.y - a.y * b.x, a.x * b.x + a.y * b.y);
  }
  return sum / kTurn;
}

SprocketDrawing Sprocket(const RollerChain& chain, int teeth) {
  return {
      .tooth = FormTooth(chain, teeth), .chain = chain.size, .teeth = teeth, .plate = chain.plate};
}

void IsASprocketFor(const RollerChain& chain) {
  for (const int teeth : {9, 10, 17, 36, 112}) {
    SCOPED_TRACE(teeth);
    const double pitchRadius = chain.pitch / std::sin(kTurn / 2 / teeth) / 2;
    const double rootRadius = pitchRadius - 1.005 * chain.roller / 2;
    const double outside = chain.pitch * (0.6 + 1 / std::tan(kTurn / 2 / teeth)) / 2;
    const Replay replay(ScriptBytes(EndViewScript(Sprocket(chain, teeth))));
    EXPECT_EQ(replay.arrays, 1);
    EXPECT_EQ(replay.teeth.size(), static_cast<std::size_t>(10 * teeth));

    const std::vector<Point> loop = Loop(replay.teeth);
    ASSERT_FALSE(loop.empty()) << "the outline is open";
    EXPECT_NEAR(std::fabs(Windings(loop)), 1, kClose);
    double least = outside, most = 0;
    for (const Point& point : loop) {
      least = std::min(least, Distance({0, 0}, point));
      most = std::max(most, Distance({0, 0}, point));
    }
    EXPECT_NEAR(least, rootRadius, 2e-6 * rootRadius);
    EXPECT_NEAR(most, outside, 3e-4 * outside);  // the search for the tip goes by small steps

    // Each tooth is the next one's likeness: a turn by one pitch leaves the same outline.
    for (const Entity& entity : replay.teeth) {
      const Point start = Turned(entity.start, kTurn / teeth);
      const bool found =
          std::any_of(replay.teeth.begin(), replay.teeth.end(), [&](const Entity& other) {
            return other.kind == entity.kind && Distance(other.start, start) < kClose;
          });
      ASSERT_TRUE(found);
    }

    // The chain's rollers, one pitch apart, touch nothing and sit with the play of the seat.
    const Point first{0, pitchRadius}, second = Turned(first, kTurn / teeth);
    EXPECT_NEAR(Distance(first, second), chain.pitch, kClose);
    for (const Point& roller : {first, second}) {
      double gap = outside;
      for (const Point& point : loop) gap = std::min(gap, Distance(roller, point));
      EXPECT_GE(gap, chain.roller / 2);
      EXPECT_LE(gap, 1.006 * chain.roller / 2);
    }
  }
}

TEST(Sprocket, HasAnEndViewThatFitsItsChain) {
  for (const RollerChain& chain : kRollerChains) {
    SCOPED_TRACE(chain.size);
    IsASprocketFor(chain);
  }
}

TEST(Sprocket, HasABoreThatAKeyseatOpens) {
  SprocketDrawing sprocket = Sprocket(*FindChain(60), 18);
  sprocket.bore = 1.25;
  sprocket.hub = 3.4375;
  Replay replay(ScriptBytes(EndViewScript(sprocket)));
  ASSERT_EQ(replay.drawn.size(), replay.teeth.size() + 2);
  EXPECT_NEAR(replay.drawn[replay.drawn.size() - 2].Radius(), 0.625, kClose);
  EXPECT_NEAR(replay.drawn.back().Radius(), 3.4375 / 2, kClose);

  sprocket.keyWidth = 0.25;
  sprocket.keyDepth = 0.125;
  sprocket.hub = 0;
  replay = Replay(ScriptBytes(EndViewScript(sprocket)));
  const std::vector<Entity> bore(replay.drawn.begin() + static_cast<long>(replay.teeth.size()),
                                 replay.drawn.end());
  ASSERT_EQ(bore.size(), 4U);
  const std::vector<Point> loop = Loop(bore);
  ASSERT_FALSE(loop.empty());
  double top = 0;
  for (const Point& point : loop) {
    top = std::max(top, point.y);
    if (point.y < 0.6) {
      EXPECT_NEAR(Distance({0, 0}, point), 0.625, kClose);
    }
    if (point.y > 0.63) {
      EXPECT_LE(std::fabs(point.x), 0.125 + kClose);
    }
  }
  EXPECT_NEAR(top, std::sqrt(0.625 * 0.625 - 0.125 * 0.125) + 0.125, kClose);
}

// Chain 60 with 18 teeth: root radius 2.1595 - 0.2357, outside 2.3516; a chamfer of radius 0.9375
// leaves a tip of 0.254.
TEST(Sprocket, HasASideViewAlikeOnAllSides) {
  constexpr double kNear = 1e-5;  // the chamfer is told by ArcCos, which is off by 3.7e-6
  SprocketDrawing sprocket = Sprocket(*FindChain(60), 18);
  const double root = 0.75 / std::sin(kTurn / 36) / 2 - 1.005 * 0.469 / 2;
  const double outside = 0.75 * (0.6 + 1 / std::tan(kTurn / 36)) / 2;
  const Replay plate(ScriptBytes(SideViewScript(sprocket)));
  for (const Entity& entity : plate.drawn) {
    for (const Point& point : entity.Points()) {
      EXPECT_TRUE(-kNear < point.x && point.x < 0.459 + kNear);
      EXPECT_LT(std::fabs(point.y), outside + kNear);
    }
    for (const auto& [through, to] :
         {std::pair{Point{0, 0}, Point{1, 0}}, {Point{0.2295, 0}, Point{0.2295, 1}}}) {
      const Point start = Mirrored(entity.start, through, to);
      EXPECT_TRUE(std::any_of(plate.drawn.begin(), plate.drawn.end(), [&](const Entity& other) {
        return Distance(other.start, start) < kNear || Distance(other.end, start) < kNear;
      }));
    }
  }
  const Entity& chamfer = plate.drawn[4];
  EXPECT_NEAR(chamfer.Radius(), 0.9375, kNear);
  EXPECT_NEAR(chamfer.end.x, 0, kNear);
  EXPECT_NEAR(chamfer.end.y, root, kNear);
  EXPECT_NEAR(chamfer.start.y, outside, kNear);
  EXPECT_NEAR(0.459 - 2 * chamfer.start.x,
              0.459 - 2 * (0.9375 - std::sqrt(0.9375 * 0.9375 - std::pow(outside - root, 2))),
              kNear);

  sprocket.bore = 1.25;
  sprocket.hub = 3.4375;
  sprocket.length = 1.25;
  const Replay hub(ScriptBytes(SideViewScript(sprocket)));
  ASSERT_EQ(hub.drawn.size(), plate.drawn.size() + 5);
  EXPECT_NEAR(hub.drawn[plate.drawn.size() + 1].start.x, 1.25, kNear);
  EXPECT_NEAR(hub.drawn[plate.drawn.size() + 1].end.y, -3.4375 / 2, kNear);
  EXPECT_NEAR(hub.drawn.back().end.x, 1.25, kNear);
  EXPECT_NEAR(hub.drawn.back().end.y, -0.625, kNear);
  sprocket.type = SprocketType::PlateA;
  EXPECT_EQ(Replay(ScriptBytes(SideViewScript(sprocket))).drawn.size(), plate.drawn.size() + 3);
}

TEST(Sprocket, InsertsBushingsAndItself) {
  SprocketDrawing sprocket = Sprocket(*FindChain(40), 30);
  const auto inserted = [&](auto script) { return Replay(ScriptBytes(script(sprocket))).inserted; };
  EXPECT_EQ(inserted(EndViewScript), (Lines{"block B40E", "B40E 0,0 1 1 0"}));
  sprocket.type = SprocketType::BushingG;
  EXPECT_EQ(inserted(EndViewScript), (Lines{"BUSH-G-E 0,0 1 1 0", "block B40E", "B40E 0,0 1 1 0"}));
  sprocket.type = SprocketType::BushingH;
  EXPECT_EQ(inserted(SideViewScript).front(), "BUSH-H-S 0,0 1 1 0");
  sprocket.type = SprocketType::BushingP1;
  EXPECT_EQ(inserted(EndViewScript).front(), "BUSHP1-E 0,0 1 1 0");
  sprocket.type = SprocketType::BushingQ1;
  sprocket.metric = true;
  EXPECT_EQ(inserted(SideViewScript),
            (Lines{"BUSHQ1-S 0,0 25.4 25.4 0", "block B40S", "B40S 0,0 25.4 25.4 0"}));
  EXPECT_TRUE(ScriptBytes(SideViewScript(sprocket)).ends_with("zoom\r\n.03937x\r\nREDRAW\r\n"));
  EXPECT_TRUE(ScriptBytes(EndViewScript(sprocket)).ends_with("zoom\r\ne\r\nREDRAW\r\n"));
}

TEST(Sprocket, DropsBlanksFromItsScript) {
  EXPECT_EQ(ScriptBytes({"A B", "", "~", " ~x"}), "AB\r\n\r\n \r\n x\r\n");
}

// ---- The window ----

class Sprockets : public ::testing::Test {
 protected:
  Sprockets() {
    suite.session.DataPath = folder.File("");
    folder.Write("sprocket.DAT", "40,9,.50,1,0.75\r\n 40 , 9 ,9,9,9\r\n\"60\",18,2,1.25,3\r\n");
  }
  std::string Text(const std::string& name) { return suite.Get<TextField>(name).Text(); }
  void Click(const std::string& name) { suite.person.Clicks(suite.Get(name)); }

  ScriptedSession suite;
  TemporaryFolder folder;
};

/// Pitch, roller, plate, pitch and outside diameter with 21 teeth.
struct Sizes {
  const char* chain;
  std::array<const char*, 5> us, metric;
};

constexpr Sizes kSizes[] = {
    {"25", {"0.250", "0.130", "0.110", "1.677", "1.809"}, {"6.4", "3.3", "2.8", "42.6", "45.9"}},
    {"35", {"0.375", "0.200", "0.168", "2.516", "2.713"}, {"9.5", "5.1", "4.3", "63.9", "68.9"}},
    {"41", {"0.500", "0.306", "0.227", "3.355", "3.617"}, {"12.7", "7.8", "5.8", "85.2", "91.9"}},
    {"40", {"0.500", "0.312", "0.284", "3.355", "3.617"}, {"12.7", "7.9", "7.2", "85.2", "91.9"}},
    {"50",
     {"0.625", "0.400", "0.343", "4.193", "4.522"},
     {"15.9", "10.2", "8.7", "106.5", "114.8"}},
    {"60",
     {"0.750", "0.469", "0.459", "5.032", "5.426"},
     {"19.1", "11.9", "11.7", "127.8", "137.8"}},
    {"80",
     {"1.000", "0.625", "0.575", "6.710", "7.235"},
     {"25.4", "15.9", "14.6", "170.4", "183.8"}},
    {"100",
     {"1.250", "0.750", "0.692", "8.387", "9.043"},
     {"31.8", "19.1", "17.6", "213.", "229.7"}},
    {"120",
     {"1.500", "0.875", "0.924", "10.064", "10.852"},
     {"38.1", "22.2", "23.5", "255.6", "275.6"}},
    {"140",
     {"1.750", "1.000", "0.924", "11.742", "12.660"},
     {"44.5", "25.4", "23.5", "298.2", "321.6"}},
    {"160",
     {"2.000", "1.125", "1.156", "13.419", "14.469"},
     {"50.8", "28.6", "29.4", "340.8", "367.5"}},
    {"200",
     {"2.500", "1.562", "1.389", "16.774", "18.086"},
     {"63.5", "39.7", "35.3", "426.1", "459.4"}},
    {"240",
     {"3.000", "1.875", "1.736", "20.129", "21.704"},
     {"76.2", "47.6", "44.1", "511.3", "551.3"}},
    {"2040",
     {"1.000", "0.312", "0.284", "6.710", "7.235"},
     {"25.4", "7.9", "7.2", "170.4", "183.8"}},
    {"2050",
     {"1.250", "0.400", "0.343", "8.387", "9.043"},
     {"31.8", "10.2", "8.7", "213.", "229.7"}},
    {"2060",
     {"1.500", "0.469", "0.459", "10.064", "10.852"},
     {"38.1", "11.9", "11.7", "255.6", "275.6"}},
    {"2080",
     {"2.000", "0.625", "0.575", "13.419", "14.469"},
     {"50.8", "15.9", "14.6", "340.8", "367.5"}},
    {"2100",
     {"2.500", "0.750", "0.692", "16.774", "18.086"},
     {"63.5", "19.1", "17.6", "426.1", "459.4"}},
    {"2120",
     {"3.000", "0.875", "0.924", "20.129", "21.704"},
     {"76.2", "22.2", "23.5", "511.3", "551.3"}},
    {"2042",
     {"1.000", "0.625", "0.284", "6.710", "7.235"},
     {"25.4", "15.9", "7.2", "170.4", "183.8"}},
    {"2052",
     {"1.250", "0.750", "0.343", "8.387", "9.043"},
     {"31.8", "19.1", "8.7", "213.", "229.7"}},
    {"2062",
     {"1.500", "0.875", "0.459", "10.064", "10.852"},
     {"38.1", "22.2", "11.7", "255.6", "275.6"}},
    {"2082",
     {"2.000", "1.125", "0.575", "13.419", "14.469"},
     {"50.8", "28.6", "14.6", "340.8", "367.5"}},
    {"2102",
     {"2.500", "1.562", "0.692", "16.774", "18.086"},
     {"63.5", "39.7", "17.6", "426.1", "459.4"}},
    {"2122",
     {"3.000", "1.750", "0.924", "20.129", "21.704"},
     {"76.2", "44.5", "23.5", "511.3", "551.3"}},
};

TEST_F(Sprockets, HaveTheSizesOfTheirChain) {
  for (const bool metric : {false, true}) {
    suite.session.MetricUnits = metric;
    suite.Shows("SPROCKET");
    suite.person.Types(suite.Get<FocusControl>("txt_teeth"), "21");
    auto& chains = suite.Get<Combo>("CMB_RC");
    ASSERT_EQ(chains.Items().size(), std::size(kSizes));
    for (std::size_t i = 0; i < std::size(kSizes); ++i) {
      suite.person.Selects(chains, static_cast<int>(i));
      EXPECT_EQ(chains.Text(), kSizes[i].chain);
      std::size_t at = 0;
      for (const char* name :
           {"TXT_PITCH", "TXT_ROLLER", "txt_plate_thickness", "TXT_PITCHDIA", "TXT_OUTDIA"})
        EXPECT_EQ(Text(name), (metric ? kSizes[i].metric : kSizes[i].us)[at++])
            << name << " of chain " << chains.Text();
    }
    suite.session.Unload("SPROCKET");
  }
}

// At both ends of their rows.
TEST_F(Sprockets, HaveTheKeyseatOfTheirBore) {
  using Cases = std::vector<std::pair<const char*, const char*>>;
  const Cases us = {
      {"0.49", ""},       {"0.5", "0.125"},     {"0.62", "0.125"},  {"0.625", "0.1875"},
      {"0.9375", "0.25"}, {"1.3125", "0.3125"}, {"1.43", "0.3125"}, {"1.4375", "0.375"},
      {"1.8125", "0.5"},  {"2.3125", "0.625"},  {"2.8125", "0.75"}, {"3.375", "0.875"},
      {"3.875", "1"},     {"4.625", "1.25"},    {"5.5", "1.25"},    {"5.51", ""}};
  const Cases metric = {
      {"5.9", ""},          {"6", "2 x 1"},       {"8", "3 x 1.4"},     {"10", "4 x 1.8"},
      {"12", "5 x 2.3"},    {"17", "6 x 2.8"},    {"22", "8 x 3.3"},    {"30", "10 x 3.3"},
      {"38", "12 x 3.3"},   {"44", "14 x 3.8"},   {"50", "16 x 4.3"},   {"58", "18 x 4.4"},
      {"65", "20 x 4.9"},   {"75", "22 x 5.9"},   {"85", "25 x 5.4"},   {"95", "28 x 6.4"},
      {"110", "32 x 7.4"},  {"130", "36 x 8.4"},  {"150", "40 x 9.4"},  {"170", "45 x 10.4"},
      {"200", "50 x 11.4"}, {"230", "56 x 12.4"}, {"260", "63 x 13.4"}, {"290", "70 x 14.4"},
      {"330", "80 x 15.4"}, {"380", "90 x 17.4"}, {"9.9", "3 x 1.4"},   {"440", "90 x 17.4"},
      {"440.1", ""}};
  for (const Cases* cases : {&us, &metric}) {
    suite.session.MetricUnits = cases == &metric;
    suite.Shows("SPROCKET");
    for (const auto& [bore, keyseat] : *cases) {
      suite.person.Types(suite.Get<FocusControl>("TXT_BORE"), bore);
      Click("btn_calc");
      EXPECT_EQ(Text("TXT_KEYSEAT"), keyseat) << bore;
    }
    suite.session.Unload("SPROCKET");
  }
}

TEST_F(Sprockets, TakeTheFirstHubOfTheirTable) {
  suite.Shows("SPROCKET");
  EXPECT_EQ(Text("TXT_MAXBORE"), ".50");
  EXPECT_EQ(Text("TXT_OALENGTH"), "1");
  EXPECT_EQ(Text("TXT_HUBDIA"), "0.75");
  suite.person.Types(suite.Get<FocusControl>("txt_teeth"), "10");
  Click("btn_calc");
  EXPECT_EQ(Text("TXT_HUBDIA") + Text("TXT_MAXBORE") + Text("TXT_OALENGTH"), "");
  EXPECT_EQ(Text("TXT_PITCHDIA"), "1.618");
}

TEST_F(Sprockets, NeedTheirTableForStockHubsOnly) {
  suite.Shows("SPROCKET");
  std::filesystem::remove(folder.File("sprocket.DAT"));
  suite.Told();
  suite.person.Selects(suite.Get<Choice>("CMB_SPROCKET_TYPE"), 3);
  EXPECT_EQ(suite.Told(), Lines{});
  suite.person.Selects(suite.Get<Choice>("CMB_SPROCKET_TYPE"), 2);
  EXPECT_EQ(suite.Told(), Lines{"! failure 53 File not found"});
  suite.session.Unload("SPROCKET");
  suite.Told();
  suite.Shows("SPROCKET");
  EXPECT_EQ(suite.Told(), Lines{"! failure 53 File not found"});
}

TEST_F(Sprockets, WriteWhatTheyShow) {
  suite.Shows("SPROCKET");
  suite.person.Types(suite.Get<FocusControl>("CMB_RC"), "60");
  suite.person.Types(suite.Get<FocusControl>("txt_teeth"), "18");
  suite.person.Types(suite.Get<FocusControl>("TXT_BORE"), "1.25");
  Click("btn_calc");
  suite.Told();
  Click("BTN_END_VIEW");  // cancelled
  EXPECT_EQ(suite.Told(), Lines{"! dialog save Script File Name | sprock-e.scr"});
  EXPECT_EQ(suite.Get("END_VIEW_COMPLETED").Caption(), "");

  suite.platform.QueueFile(folder.File("end.scr"));
  Click("BTN_END_VIEW");
  EXPECT_EQ(suite.Get("END_VIEW_COMPLETED").Caption(), "FINISHED");
  const Replay end(folder.Read("end.scr"));
  EXPECT_EQ(end.teeth.size(), 180U);
  EXPECT_EQ(end.drawn.size(), 180U + 5);  // bore, keyseat, hub
  EXPECT_NEAR(end.drawn.back().Radius(), 1.5, kClose);
  auto& timer = suite.Get<Timer>("Timer1");
  EXPECT_EQ(timer.Interval(), 500);
  suite.person.Waits(timer);
  EXPECT_EQ(suite.Get("END_VIEW_COMPLETED").Caption(), "");
  EXPECT_FALSE(timer.IsEnabled());

  suite.Told();
  suite.platform.QueueFile(folder.File("side.scr"));
  Click("BTN_SIDE_VIEW");
  EXPECT_EQ(suite.Told(), Lines{"! dialog save Script File Name | sprock-s.scr"});
  EXPECT_EQ(suite.Get("SIDE_VIEW_COMPLETED").Caption(), "FINISHED");
  EXPECT_NEAR(Replay(folder.Read("side.scr")).drawn.back().end.y, -0.625, kClose);

  suite.platform.QueueFile(folder.File("none/side.scr"));
  Click("BTN_SIDE_VIEW");
  EXPECT_TRUE(suite.Told().back().starts_with("! failure "));
}

// A metric bore is drawn in inches, and its keyseat, a text that is no number, not at all.
TEST_F(Sprockets, DrawMetricSizesInInches) {
  suite.session.MetricUnits = true;
  suite.Shows("SPROCKET");
  suite.person.Types(suite.Get<FocusControl>("TXT_BORE"), "12.7");
  Click("btn_calc");
  EXPECT_EQ(Text("TXT_KEYSEAT"), "5 x 2.3");
  suite.platform.QueueFile(folder.File("end.scr"));
  Click("BTN_END_VIEW");
  const Replay end(folder.Read("end.scr"));
  ASSERT_EQ(end.drawn.size(), end.teeth.size() + 2);
  EXPECT_NEAR(end.drawn[end.teeth.size()].Radius(), 0.25, kClose);
  EXPECT_NEAR(end.drawn.back().Radius(), 19.1 / 25.4 / 2, kClose);
  EXPECT_EQ(end.inserted.back(), "B40E 0,0 25.4 25.4 0");
}

}  // namespace
}  // namespace korvane::testing
