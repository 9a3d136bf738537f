// Where the picture of a window goes on the page.
#include "frame/page_layout.h"

#include <gtest/gtest.h>

#include "frame/runtime_failure.h"

namespace korvane {
namespace {

// Letter paper, portrait, and two windows, in twips.
constexpr int kPaperWidth = 12240, kPaperHeight = 15840;
constexpr int kWideWidth = 8000, kWideHeight = 4000;
constexpr int kTallWidth = 2000, kTallHeight = 8000;

struct Case {
  const char* what;
  PageChoices choices;
  int imageWidth, imageHeight;
  double x, y, width, height;
  double fittedScale;  // 0: none
};

TEST(PageLayout, PlacesTheImage) {
  const Case kCases[] = {
      {"as it is, less the reduction",
       {.percent = 100},
       kWideWidth,
       kWideHeight,
       0,
       0,
       7520,
       3760,
       0},
      {"at half the scale with margins",
       {.percent = 50, .topMargin = 720, .leftMargin = 1440},
       kWideWidth,
       kWideHeight,
       1440,
       720,
       3760,
       1880,
       0},
      {"centred: margins don't count, nor does the reduction",
       {.percent = 100, .centered = true, .topMargin = 720, .leftMargin = 1440},
       kWideWidth,
       kWideHeight,
       2120,
       5920,
       7520,
       3760,
       0},
      {"fitted: a wide window takes the width",
       {.percent = 10, .fitsPage = true},
       kWideWidth,
       kWideHeight,
       0,
       0,
       12240 * 0.94,
       6120 * 0.94,
       1.53},
      {"fitted: a tall one takes the height",
       {.percent = 10, .fitsPage = true},
       kTallWidth,
       kTallHeight,
       0,
       0,
       3960 * 0.94,
       15840 * 0.94,
       1.98},
      {"fitted and centred",
       {.percent = 100, .fitsPage = true, .centered = true},
       kWideWidth,
       kWideHeight,
       0,
       4860,
       12240 * 0.94,
       6120 * 0.94,
       1.53},
  };
  for (const Case& test : kCases) {
    const Placement place =
        PlaceImage(test.choices, test.imageWidth, test.imageHeight, kPaperWidth, kPaperHeight);
    EXPECT_FLOAT_EQ(place.x.Value(), static_cast<float>(test.x)) << test.what;
    EXPECT_FLOAT_EQ(place.y.Value(), static_cast<float>(test.y)) << test.what;
    EXPECT_FLOAT_EQ(place.width.Value(), static_cast<float>(test.width)) << test.what;
    EXPECT_FLOAT_EQ(place.height.Value(), static_cast<float>(test.height)) << test.what;
    const double scale = place.fittedScale.value_or(0).Value();
    EXPECT_NEAR(scale, test.fittedScale, 1e-6) << test.what;
  }
}

TEST(PageLayout, NeedsAnImageAndPaper) {
  EXPECT_THROW(PlaceImage({.percent = 100}, 0, 4000, kPaperWidth, kPaperHeight), RuntimeFailure);
  EXPECT_THROW(PlaceImage({.percent = 0}, 4000, 4000, kPaperWidth, kPaperHeight), RuntimeFailure);
}

}  // namespace
}  // namespace korvane
