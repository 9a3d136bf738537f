#include "frame/layout.h"

#include "frame/controls.h"

namespace korvane {

Layout Box(Frame& frame, std::vector<Layout> parts) {
  return Layout(Layout::Kind::Frame, std::move(parts), &frame);
}

}  // namespace korvane
