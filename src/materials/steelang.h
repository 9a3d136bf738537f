// Angles of steel and aluminum, with equal and unequal legs.
#pragma once

#include "materials/structural_shapes.h"

namespace korvane {

class SteelAng final : public StructuralShapes {
 public:
  explicit SteelAng(Session& session);
};

}  // namespace korvane
