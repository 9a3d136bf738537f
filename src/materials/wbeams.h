// Beams: wide flanges, American Standard and aluminum I-beams.
#pragma once

#include "materials/structural_shapes.h"

namespace korvane {

class Wbeams final : public StructuralShapes {
 public:
  explicit Wbeams(Session& session);
};

}  // namespace korvane
