// The file of structural shapes, sound and spoilt, and what the drawings show.
#include "materials/structural_shapes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "../frame/failure_of.h"
#include "../support/scripted_session.h"
#include "../support/temporary_folder.h"

namespace korvane::testing {
namespace {

const std::string kSound =
    "SHAPES.dat: some shapes\r\n"
    "[ONE],beam\r\n"
    "\"W1x1\",\"W25x1\",1.00,0.500\r\n"
    "\"W1x2\",\"W25x3\",1.10,12\r\n"
    "[ONE],channel\r\n"
    "\"C1x1\",\"C25x1\",1.00,0.500,2\r\n"
    "[NONE],beam\r\n";

constexpr ShapeColumn kColumns[] = {
    {"txt_depth", "Depth", Measure::Length},
    {nullptr, "", Measure::Length},
    {"txt_area", "Area", Measure::Area},
};
constexpr std::span<const ShapeColumn> kTwo(kColumns, 2);

TEST(Shapes, AreReadBySectionAndKind) {
  const auto beams = ReadShapes(kSound, "[ONE]", "beam", kTwo);
  ASSERT_TRUE(beams);
  ASSERT_EQ(beams->size(), 2U);
  const Shape& last = beams->back();
  EXPECT_EQ(last.us, "W1x2");
  EXPECT_EQ(last.metric, "W25x3");
  EXPECT_EQ(last.texts, (Lines{"1.10", "12"}));
  EXPECT_DOUBLE_EQ(last[0], 1.1);
  EXPECT_EQ(ReadShapes(kSound, "[ONE]", "channel", kColumns)->size(), 1U);
  EXPECT_TRUE(ReadShapes(kSound, "[NONE]", "beam", kTwo)->empty());

  EXPECT_FALSE(ReadShapes(kSound, "[TWO]", "beam", kTwo));
  EXPECT_FALSE(ReadShapes(kSound, "[ONE]", "angle", kTwo));
  EXPECT_FALSE(ReadShapes(kSound, "ONE]", "beam", kTwo));
  EXPECT_FALSE(ReadShapes("", "[ONE]", "beam", kTwo));

  const auto fails = [](const std::string& from, const std::string& to) {
    std::string text = kSound;
    text.replace(text.find(from), from.size(), to);
    return FailureOf([&] { ReadShapes(text, "[ONE]", "beam", kTwo); });
  };
  EXPECT_EQ(fails("1.10", "deep"), kTypeMismatch);
  EXPECT_EQ(fails("1.10", "0"), kInvalidCall);
  EXPECT_EQ(fails("0.500", "-0.5"), kInvalidCall);
  EXPECT_EQ(fails("0.500", "0"), 0);  // a radius may be none
  EXPECT_EQ(fails(",12\r\n[ONE],channel", "\r\n[ONE],channel"), kTypeMismatch);
  EXPECT_EQ(
      FailureOf([] { ReadShapes("[ONE],beam\r\n\"W1x1\",\"W25x1\",1", "[ONE]", "beam", kTwo); }),
      kInputPastEnd);
}

class ShapeWindows : public ::testing::Test {
 protected:
  void Opens(const char* window) {
    suite.session.Unload(window);
    suite.Told();
    try {
      suite.Shows(window);
    } catch (const ScriptedPlatform::ProgramEnded&) {
    }
  }

  const TemporaryFolder data;
  ScriptedSession suite;
};

TEST_F(ShapeWindows, StayUsableWithoutTheirSection) {
  suite.session.DataPath = data.Path() + "/";
  Opens("Wbeams");
  EXPECT_EQ(suite.Told(), Lines{"! failure 53 File not found"});

  data.Write("shapes.dat", kSound);
  suite.session.ShapeSection = "[TWO]";
  suite.session.ShapeTitle = "Two";
  Opens("Wbeams");
  EXPECT_EQ(suite.Told(),
            (Lines{"! message Korvane | No section [TWO] in file SHAPES.dat.", "! shown Wbeams"}));
  EXPECT_EQ(suite.session.Active()->Title(), "Two");
  auto& search = suite.Get<TextField>("txt_search");
  suite.person.Types(search, "W12");
  suite.person.Presses(*suite.session.Active(), Key::Enter);
  suite.person.Clicks(suite.Get("btn_copy"));
  EXPECT_EQ(suite.Get<TextField>("txt_us").Text(), "");
  suite.Told();
  suite.person.Clicks(suite.Get("btn_exit"));
  EXPECT_EQ(suite.Told(), Lines{"! unloaded Wbeams"});

  // A section of another kind would not fit the fields.
  suite.session.ShapeSection = "[ONE]";
  Opens("SteelAng");
  EXPECT_EQ(suite.Told().front(), "! message Korvane | No section [ONE] in file SHAPES.dat.");
}

/// The area that the outline of a drawing has, in its own units, with the size of its box.
struct Extent {
  double area, width, height;
};

Extent ExtentOf(const Drawing& drawing) {
  const auto& points = std::get<Path>(drawing.shapes.front()).points;
  double area = 0, left = 1e9, right = 0, top = 1e9, bottom = 0;
  for (std::size_t i = 0; i < points.size(); ++i) {
    const Point &a = points[i], &b = points[(i + 1) % points.size()];
    area += (a.x * b.y - b.x * a.y) / 2;
    left = std::min(left, a.x);
    right = std::max(right, a.x);
    top = std::min(top, a.y);
    bottom = std::max(bottom, a.y);
  }
  return {std::abs(area), right - left, bottom - top};
}

TEST_F(ShapeWindows, DrawEachShapeToScale) {
  struct Case {
    const char* window;
    const char* width;  // fields of the measures of its box
    const char* depth;
    std::vector<const char*> sections;
  };
  const Case cases[] = {
      {"Wbeams",
       "txt_width",
       "txt_depth",
       {"[STEEL W-BEAMS]", "[STEEL S-BEAMS]", "[ALUMINUM ASSOCIATION I-BEAMS]",
        "[ALUMINUM STANDARD W-BEAMS]"}},
      {"stl_chan",
       "txt_width",
       "txt_depth",
       {"[STEEL CHANNELS]", "[ALUMINUM ASSOCIATION CHANNELS]", "[ALUMINUM STANDARD CHANNELS]"}},
      {"SteelAng",
       "txt_short_leg",
       "txt_long_leg",
       {"[STEEL EQUAL ANGLES]", "[STEEL UNEQUAL ANGLES]", "[ALUMINUM EQUAL ANGLES]",
        "[ALUMINUM UNEQUAL ANGLES]"}},
  };
  suite.session.DataPath = std::string(KORVANE_SOURCE_DIR) + "/data/";
  for (const Case& window : cases) {
    for (const char* section : window.sections) {
      suite.session.ShapeSection = section;
      Opens(window.window);
      auto& list = suite.Get<ListBox>("lst_shapes");
      const Picture* picture = nullptr;
      for (const Control* control : suite.session.Active()->Controls())
        if (control->GetKind() == Control::Kind::Picture)
          picture = dynamic_cast<const Picture*>(control);
      for (int i = 0; i < static_cast<int>(list.Items().size()); ++i) {
        list.Select(i);
        const auto value = [this](const char* field) {
          return Strict(suite.Get<TextField>(field)).Value();
        };
        const Extent drawn = ExtentOf(picture->Shown());
        const double width = value(window.width), depth = value(window.depth);
        const double scale = drawn.height / depth;
        EXPECT_NEAR(drawn.width / drawn.height, width / depth, 1e-6) << list.Text();
        // Tables count the fillets of rolled angles in part.
        EXPECT_NEAR(drawn.area / scale / scale / value("txt_area"), 1, 0.031) << list.Text();
        EXPECT_LT(drawn.height, picture->Shown().height);
      }
    }
  }
}

}  // namespace
}  // namespace korvane::testing
