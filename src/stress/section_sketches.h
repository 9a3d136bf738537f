// Pictures of the standard cross sections.
#pragma once

#include "frame/drawing.h"

namespace korvane {

enum class Section : std::uint8_t {
  Rectangle,
  HollowRectangle,
  Round,
  HollowRound,
  TriangleAboutCenter,
  TriangleAboutBottom,
  Trapezoid,
  Angle,
  Channel,
  IBeam,
};

/// The outline alone, small.
Drawing SectionThumbnail(Section section);
/// With its axis and the letters of its dimensions.
Drawing SectionSketch(Section section);

}  // namespace korvane
