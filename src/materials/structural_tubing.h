// Square and rectangular tubing of steel and aluminum.
#pragma once

#include "materials/structural_shapes.h"

namespace korvane {

class Structural_Tubing final : public StructuralShapes {
 public:
  explicit Structural_Tubing(Session& session);
};

}  // namespace korvane
