// A grid of texts by model and view: no object per cell.
#pragma once

#include <memory>

#include "toolkit/control_view.h"

namespace korvane {

std::unique_ptr<ControlView> MakeGridView(Grid& grid, const Person& person, QWidget& parent);

}  // namespace korvane
