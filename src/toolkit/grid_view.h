// A grid of texts by model and view, with no object per cell. Fixed rows and columns stay in place
// while the rest scrolls.
#pragma once

#include <memory>

#include "toolkit/control_view.h"

namespace korvane {

int GridRowPixels();

std::unique_ptr<ControlView> MakeGridView(Grid& grid, const Person& person, QWidget& parent);

}  // namespace korvane
