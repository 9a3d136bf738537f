// The one list of all windows, from which the menu, the driver and the tests live.
#pragma once

#include <span>

#include "frame/session.h"

namespace korvane {

std::span<const WindowUnit> WindowCatalogue();

}  // namespace korvane
