// Channels of steel and aluminum.
#pragma once

#include "materials/structural_shapes.h"

namespace korvane {

class stl_chan final : public StructuralShapes {
 public:
  explicit stl_chan(Session& session);
};

}  // namespace korvane
