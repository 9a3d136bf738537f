// Where the picture of a window goes on the page.
#pragma once

#include <optional>

#include "frame/number.h"

namespace korvane {

/// What the person chose; lengths in twips.
struct PageChoices {
  Single percent;
  bool fitsPage = false;
  bool centered = false;
  Single topMargin;
  Single leftMargin;
};

struct Placement {
  Single x;
  Single y;
  Single width;
  Single height;
  std::optional<Single> fittedScale;  ///< the scale that Fit to Page found
};

/// Places an image on paper, in twips. The size on paper is 0.94 of what the scale says, so that
/// the image stays inside the printable area; the position does not take it into account. Fails for
/// an image or paper without size.
Placement PlaceImage(const PageChoices& choices, Single imageWidth, Single imageHeight,
                     Single paperWidth, Single paperHeight);

}  // namespace korvane
