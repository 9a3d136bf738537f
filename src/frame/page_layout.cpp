#include "frame/page_layout.h"

namespace korvane {

Placement PlaceImage(const PageChoices& choices, Single imageWidth, Single imageHeight,
                     Single paperWidth, Single paperHeight) {
  constexpr double printable = 0.94;
  Placement place;
  Single width = imageWidth * choices.percent / 100;
  Single height = imageHeight * choices.percent / 100;
  const Single acrossRatio = paperWidth / width;
  const Single downRatio = paperHeight / height;
  if (choices.fitsPage) {
    if (downRatio >= acrossRatio) {
      width = paperWidth;
      height = width * imageHeight / imageWidth;
      place.fittedScale = width / imageWidth;
    } else {
      height = paperHeight;
      width = height * imageWidth / imageHeight;
      place.fittedScale = height / imageHeight;
    }
  }
  if (choices.centered) {
    place.x = paperWidth / 2 - width / 2;
    place.y = paperHeight / 2 - height / 2;
  } else {
    place.x = choices.leftMargin;
    place.y = choices.topMargin;
  }
  place.width = width * printable;
  place.height = height * printable;
  return place;
}

}  // namespace korvane
