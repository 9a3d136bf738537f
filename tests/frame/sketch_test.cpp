// Sketches: their file, their commands, and how they are fitted to a picture.
#include "frame/sketch.h"

#include <gtest/gtest.h>

#include "failure_of.h"
#include "frame/number_text.h"

namespace korvane::testing {
namespace {

std::string Found(std::string_view file, std::string_view section) {
  return FindSketch(file, section).value_or("none");
}

TEST(Sketch, IsFoundByItsWholeName) {
  constexpr std::string_view file =
      "about\r\n[Case 01]\r\nPU;\r\n[Case 011]\nPD;\n[CASE 02]\r\nSP1;";
  EXPECT_EQ(Found(file, "Case 01"), "PU;");
  EXPECT_EQ(Found(file, "Case 011"), "PD;");
  EXPECT_EQ(Found(file, "CASE 02"), "SP1;");
  EXPECT_EQ(Found(file, "Case 02"), "none");
  EXPECT_EQ(Found("", "Case 01"), "none");
  EXPECT_EQ(FailureOf([] { return FindSketch("[Case 01]", "Case 01"); }), kInputPastEnd);
}

/// "red (1 2)(3 4)" for each stroke.
std::string Written(const Sketch& sketch) {
  std::string text;
  for (const Sketch::Stroke& stroke : sketch.strokes) {
    text += stroke.ink == Ink::Red    ? "red "
            : stroke.ink == Ink::Blue ? "blue "
            : stroke.ink == Ink::Gray ? "gray "
                                      : "black ";
    for (const Point& point : stroke.points)
      text += '(' + PlainText(Double(point.x)) + ' ' + PlainText(Double(point.y)) + ')';
  }
  return text;
}

TEST(Sketch, FollowsThePen) {
  struct Case {
    const char* commands;
    const char* strokes;
    double maxX, maxY;
  };
  constexpr Case cases[] = {
      {"SP2;PU;PA1,2;PD;PA3,4;PA5,0;PU;", "red (1 2)(3 4)(5 0)", 5, 4},
      {"PA7,9;PD;PA1,1;PU;PA8,2;PD;PA8,3;", "black (7 9)(1 1)black (8 2)(8 3)", 8, 9},
      // Another pen goes on from where the last one stopped; one without a colour keeps the last.
      {"PD;PA1,0;SP4;PA2,0;SP6;PA3,0;SP12;PA4,0;SP5;PA5,0;",
       "black (0 0)(1 0)blue (1 0)(2 0)gray (2 0)(3 0)red (3 0)(4 0)red (4 0)(5 0)", 5, 0},
      // What is behind the last semicolon is no command, nor is what has no meaning.
      {"PD;PA1,1;XX;PA;IN;PA5,5", "black (0 0)(1 1)", 1, 1},
      {"PD;PA1,000;PAx,7;", "black (0 0)(1 0)(0 7)", 1, 7},
      {"", "", 0, 0},
  };
  for (const Case& c : cases) {
    const Sketch sketch = ParseSketch(c.commands);
    EXPECT_EQ(Written(sketch), c.strokes) << c.commands;
    EXPECT_EQ(sketch.maxX, c.maxX) << c.commands;
    EXPECT_EQ(sketch.maxY, c.maxY) << c.commands;
  }
}

TEST(Sketch, HasItsMost) {
  std::string commands;
  for (int i = 0; i < 5000; ++i) commands += "PU;";
  EXPECT_EQ(FailureOf([&] { return ParseSketch(commands + "PU"); }), 0);
  EXPECT_EQ(FailureOf([&] { return ParseSketch(commands + "PU;"); }), 9);
}

TEST(Sketch, IsFittedWithinTheMargin) {
  const auto corners = [](const char* commands) {
    const Drawing drawing = Fitted(ParseSketch(commands), 220, 120, 10);
    const auto& path = std::get<Path>(drawing.shapes.front());
    return std::vector{path.points.front().x, path.points.front().y, path.points.back().x,
                       path.points.back().y};
  };
  // Wide, high and of the picture's own shape; y grows downwards there.
  EXPECT_EQ(corners("PD;PA100,20;"), (std::vector{10.0, 80.0, 210.0, 40.0}));
  EXPECT_EQ(corners("PD;PA20,50;"), (std::vector{90.0, 110.0, 130.0, 10.0}));
  EXPECT_EQ(corners("PD;PA100,50;"), (std::vector{10.0, 110.0, 210.0, 10.0}));
  EXPECT_EQ(FailureOf([&] { return corners("PU;"); }), kDivisionByZero);
}

}  // namespace
}  // namespace korvane::testing
