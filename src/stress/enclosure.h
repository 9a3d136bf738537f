// How outlines lie to one another: crossing, touching, or one within the other.
#pragma once

#include <string>
#include <vector>

#include "stress/outline.h"

namespace korvane {

/// How outlines lie: within one another, or so that they enclose no section.
struct Enclosure {
  struct Edge {
    Vertex from, to;
  };
  std::string fault;        ///< empty if there is none
  std::vector<Edge> edges;  ///< at fault
  std::vector<bool> holes;  ///< for each outline whether an odd number of others lies around it
};
Enclosure Enclose(const std::vector<Outline>& outlines);

}  // namespace korvane
