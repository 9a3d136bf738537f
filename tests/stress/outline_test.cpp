// Outlines: how they cross, touch and lie in one another; closed forms of the common shapes.
#include "stress/outline.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <sstream>

#include "stress/enclosure.h"
#include "stress/shapes.h"

namespace korvane::testing {
namespace {

using Rows = std::vector<std::vector<std::string>>;

/// Points as "0 0, 4 0, 4 4"; two commas part outlines.
std::vector<Outline> Read(const std::string& text) {
  Rows rows;
  std::istringstream points(text);
  for (std::string point; std::getline(points, point, ',');) {
    std::istringstream numbers(point);
    rows.emplace_back(2);
    numbers >> rows.back()[0] >> rows.back()[1];
  }
  return ReadOutlines(rows).outlines;
}

std::string FaultOf(const std::string& text) { return Enclose(Read(text)).fault; }

TEST(Outlines, TellTheEdgesThatCross) {
  struct Case {
    const char* points;
    const char* fault;
  };
  constexpr Case kCases[] = {
      {"0 0, 4 4, 4 0, 0 4", "The edge from point 1 to 2 crosses the edge from point 3 to 4."},
      // At a corner, where no two edges cross within.
      {"0 0, 2 2, 4 4, 4 0, 2 2, 0 4",
       "The edge from point 1 to 2 crosses the edge from point 5 to 6."},
      // Around itself once more.
      {"0 0, 4 0, 4 4, 0 4, 0 0, 4 0, 4 4, 0 4",
       "The edge from point 1 to 2 crosses the edge from point 5 to 6."},
      // A spike, outwards and inwards.
      {"0 0, 4 0, 8 0, 4 0, 4 4, 0 4",
       "The edge from point 2 to 3 runs along the edge from point 3 to 4."},
      {"0 0, 4 0, 4 2, 6 2, 4 2, 4 4, 0 4",
       "The edge from point 3 to 4 runs along the edge from point 4 to 5."},
      // Two outlines; and two whose edges lie on one line where they cross.
      {"0 0, 4 0, 4 4, 0 4,, 2 2, 6 2, 6 3, 2 3",
       "The edge from point 2 to 3 crosses the edge from point 6 to 7."},
      {"0 0, 2 0, 2 1, 0 1,, 1 0, 3 0, 3 1, 1 1",
       "The edge from point 1 to 2 crosses the edge from point 6 to 7."},
      {"0 0, 4 0", "The outline at point 1 has only 2 points; 3 are the least."},
      {"0 0, 4 0, 4 4,, 7 7", "The outline at point 5 has only 1 point; 3 are the least."},
      {"0 0, 1 1, 3 3", "The edge from point 1 to 2 runs along the edge from point 3 to 1."},
      {"0 0, 4 0, 4 4,, 0 0, 2 0, 4 0, 4 4",
       "The outlines at point 1 and at point 5 are the same."},
      {"", "There are no points."},
  };
  for (const Case& test : kCases) EXPECT_EQ(FaultOf(test.points), test.fault) << test.points;
}

TEST(Outlines, MayTouch) {
  struct Case {
    const char* points;
    double area;
    std::vector<bool> holes;
  };
  const Case kCases[] = {
      // A corner on an edge, and on a corner.
      {"0 0, 4 0, 4 4, 2 0, 0 4", 8, {false}},
      {"0 0, 2 2, 4 0, 4 4, 2 2, 0 4", 8, {false}},
      // A slit from the outside to a hole, and the hole as an outline of its own, whatever its
      // turn.
      {"0 0, 10 0, 10 10, 0 10, 0 0, 4 4, 4 6, 6 6, 6 4, 4 4", 96, {false}},
      {"0 0, 10 0, 10 10, 0 10,, 4 4, 4 6, 6 6, 6 4", 96, {false, true}},
      {"0 0, 0 10, 10 10, 10 0,, 4 4, 4 6, 6 6, 6 4, 4 4", 96, {false, true}},
      // A hole that touches the outside; an island in a hole; a plate on a flange.
      {"0 0, 4 0, 4 4, 0 4,, 0 0, 2 1, 1 2", 14.5, {false, true}},
      {"0 0, 9 0, 9 9, 0 9,, 4 4, 5 4, 5 5, 4 5,, 1 1, 8 1, 8 8, 1 8", 33, {false, false, true}},
      {"0 0, 4 0, 4 1, 0 1,, 1 1, 3 1, 3 2, 1 2", 6, {false, false}},
      // An edge of a tenth lies on one that its figures can't meet.
      {"0 0, 0.3 0.1, 0.9 0.3, 0 1,, 0.3 0.1, 0.6 0.2, 0.6 0", 0.45 + 0.03, {false, false}},
  };
  for (const Case& test : kCases) {
    const std::vector<Outline> outlines = Read(test.points);
    const Enclosure enclosure = Enclose(outlines);
    ASSERT_EQ(enclosure.fault, "") << test.points;
    EXPECT_EQ(enclosure.holes, test.holes) << test.points;
    EXPECT_NEAR(SectionOf(outlines, enclosure.holes).area.Value(), test.area, 1e-12) << test.points;
  }
}

PlaneSection SectionOf(const std::vector<Points>& shape) {
  std::vector<Outline> outlines;
  for (const Points& points : shape) {
    outlines.emplace_back();
    for (const Point& point : points) outlines.back().push_back({point.x, point.y, 0});
  }
  const Enclosure enclosure = Enclose(outlines);
  EXPECT_EQ(enclosure.fault, "");
  return korvane::SectionOf(outlines, enclosure.holes);
}

PlaneSection SectionOf(const char* kind, const std::vector<double>& dimensions, int chords = 1440,
                       const ShapePlacement& placement = {}) {
  for (const ShapeKind& shape : ShapeKinds()) {
    if (std::string(kind) != shape.name) continue;
    ShapeOutlines made = shape.outlines(dimensions, chords);
    EXPECT_EQ(made.fault, "") << kind;
    Place(made.outlines, placement);
    return SectionOf(made.outlines);
  }
  ADD_FAILURE() << kind;
  return {};
}

TEST(Shapes, HaveTheirClosedForms) {
  constexpr double pi = std::numbers::pi;
  constexpr double quarter = 1 - pi / 4;  // of r2: what an arc in a square corner leaves or fills
  struct Case {
    const char* kind;
    std::vector<double> dimensions;
    double area, Ix, Iy;
  };
  const double R3 = std::sqrt(3.0);
  const Case kCases[] = {
      {"Rectangle", {4, 6, 0}, 24, 72, 32},
      {"Hollow Rectangle", {4, 6, 0.5, 0}, 9, 72 - 3 * 125 / 12.0, 32 - 5 * 27 / 12.0},
      {"Circle", {4}, pi * 4, pi * 4, pi * 4},
      {"Tube", {4, 1}, pi * 3, pi * 15 / 4, pi * 15 / 4},
      {"Angle", {3, 4, 0.5, 0}, 3.25, 5.048477564, 2.423477564},
      {"Channel", {6, 2, 0.25, 0.375, 0}, 2.8125, 2 * 216 / 12.0 - 1.75 * 144.703125 / 12, 0},
      {"I-Beam", {8, 4, 0.25, 0.3125, 0}, 4.34375, 45.3133138, 3.34293620},
      {"Tee", {4, 4, 0.25, 0.375, 0}, 2.40625, 0, 4 * 4 * 4 * 0.375 / 12 + 3.625 / 64 / 12},
      {"Zee", {6, 3, 0.375, 0.375, 0}, 4.21875, 22.3461914, 5.58654785},
      {"Trapezoid", {6, 2, 4, 0, 0}, 16, 64 * (36 + 4 + 48) / (36 * 8.0), 0},
      {"Trapezoid", {6, 0, 4, 1, 0}, 12, 6 * 64 / 36.0, 0},  // a triangle
      {"Regular Polygon", {6, 4, 0}, 6 * R3, 5 * R3 / 16 * 16, 5 * R3 / 16 * 16},
      {"Regular Polygon", {4, 4, 0}, 8, 64 / 12.0, 64 / 12.0},
      // With arcs.
      {"Rectangle", {4, 6, 1}, 24 - 4 * quarter, 0, 0},
      {"Rectangle", {4, 4, 2}, pi * 4, pi * 4, pi * 4},
      {"Hollow Rectangle", {4, 6, 0.5, 1}, 9 - 4 * quarter * 0.75, 0, 0},
      {"Angle", {3, 4, 0.5, 0.5}, 3.25 + quarter / 4, 0, 0},
      {"I-Beam", {8, 4, 0.25, 0.3125, 0.5}, 4.34375 + quarter, 0, 0},
      {"Zee", {6, 3, 0.375, 0.375, 0.5}, 4.21875 + quarter / 2, 0, 0},
      {"Regular Polygon", {3, 4, 0.5}, 3 * R3 - (3 * R3 - pi) / 4, 0, 0},
  };
  for (const Case& test : kCases) {
    const PlaneSection section = SectionOf(test.kind, test.dimensions);
    const auto near = [&](Double value, double wanted) {
      if (wanted == 0) return;  // no closed form told
      EXPECT_NEAR(value.Value() / wanted, 1, 2e-5) << test.kind << ' ' << wanted;
    };
    near(section.area, test.area);
    near(section.Ix, test.Ix);
    near(section.Iy, test.Iy);
  }
  // An inscribed polygon of n chords: area and I by their own closed forms.
  const PlaneSection coarse = SectionOf("Circle", {4}, 12);
  EXPECT_NEAR(coarse.area.Value(), 12, 1e-12);
  EXPECT_NEAR(coarse.Ix.Value(), 12 / 24.0 * 16 * 0.5 * (2 + std::cos(pi / 6)), 1e-12);
}

TEST(Shapes, KeepTheirPropertiesWhereverTheyStand) {
  const PlaneSection here = SectionOf("Zee", {6, 3, 0.375, 0.375, 0});
  EXPECT_NEAR(here.angle.Value(), 22.3727, 1e-4);
  const PlaneSection there = SectionOf("Zee", {6, 3, 0.375, 0.375, 0}, 1440, {1e6, -1e6, 50});
  for (const auto& [one, other] : {std::pair(here.area, there.area),
                                   {here.I1, there.I1},
                                   {here.I2, there.I2},
                                   {here.Polar(), there.Polar()},
                                   {here.perimeter, there.perimeter}})
    EXPECT_NEAR(other.Value() / one.Value(), 1, 1e-7);
  EXPECT_NEAR(there.angle.Value(), here.angle.Value() + 50, 1e-5);
  // Of two axes that are alike neither comes first, and noise makes none.
  const PlaneSection square = SectionOf("Regular Polygon", {4, 4, 0}, 72, {3, 3, 12.345});
  EXPECT_EQ(square.angle, 0);
  EXPECT_EQ(square.Ixy, 0);
}

TEST(Shapes, TellWhatDoesNotFit) {
  struct Case {
    const char* kind;
    std::vector<double> dimensions;
    const char* fault;
  };
  const Case kCases[] = {
      {"Rectangle", {4, 6, 2.1}, "The radius is too large for the shape."},
      {"Hollow Rectangle", {4, 6, 2, 0}, "The wall is too thick for the shape."},
      {"Tube", {4, 2}, "The wall is too thick for the shape."},
      {"Angle", {3, 4, 3, 0}, "The legs are too thick for the shape."},
      {"Angle", {3, 4, 0.5, 2.6}, "The radius is too large for the shape."},
      {"I-Beam", {8, 4, 4, 1, 0}, "Web or flange is too thick for the shape."},
      {"Tee", {4, 4, 1, 4, 0}, "Web or flange is too thick for the shape."},
      {"Trapezoid", {6, 0, 4, 1, 0.1}, "The radius is too large for the shape."},
      {"Regular Polygon", {2.5, 4, 0}, "The number of sides is a whole one from 3 to 360."},
  };
  for (const Case& test : kCases)
    for (const ShapeKind& shape : ShapeKinds())
      if (std::string(test.kind) == shape.name) {
        EXPECT_EQ(shape.outlines(test.dimensions, 72).fault, test.fault) << test.kind;
      }
}

TEST(Outlines, ShowSixDigits) {
  struct Case {
    double value;
    const char* text;
  };
  constexpr Case kCases[] = {{0, "0"},
                             {0.1, "0.1"},
                             {2.0 / 3, "0.666667"},
                             {-1.23456789, "-1.23457"},
                             {1636480.4, "1636480"},
                             {99999.96, "100000"},
                             {0.000123456789, "0.000123457"}};
  for (const Case& test : kCases) EXPECT_EQ(SixDigits(test.value), test.text);
}

}  // namespace
}  // namespace korvane::testing
