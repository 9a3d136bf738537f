// Sizes of pipe and tubing, and what follows from their diameters and walls.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "frame/drawing.h"
#include "frame/number.h"

namespace korvane {

inline constexpr const char* kPipeFile = "pipe.dat";

/// A standard, or group of standards, of the pipe file.
struct PipeStandard {
  const char* key;  ///< in the file
  const char* label;
  const char* sizes;  ///< what its list of sizes is called
  const char* walls;  ///< what tells its walls apart
  const char* usualSize;
  const char* usualWall;
  double poundsPerFoot;      ///< of 1 in2 of (D - t) t
  double kilogramsPerMeter;  ///< of 1 mm2 of (D - t) t
};

std::span<const PipeStandard> PipeStandards();

/// A round hollow section, in one unit of length.
struct PipeSection {
  Double od, wall;

  Double Id() const { return od - 2 * wall; }
  Double FlowArea() const;
  Double MetalArea() const;
  Double Girth() const;  ///< the way around its outside
  Double MomentOfInertia() const;
  Double SectionModulus() const;
  Double RadiusOfGyration() const;
};

/// A size of pipe in one of its walls.
struct Pipe {
  const PipeStandard* standard = nullptr;
  std::string size;
  std::string dn;                   ///< the metric size; of pipe alone
  std::string wall;                 ///< all names of the wall: "40, STD"
  PipeSection inches, millimeters;  ///< each as its standard rounds it

  /// Whether the wall bears this name, alone or among others.
  bool HasWall(std::string_view name) const;
  const PipeSection& Section(bool metric) const { return metric ? millimeters : inches; }
  Double Weight(bool metric) const;          ///< lb/ft or kg/m, plain ends
  Double FullWeight(bool metric) const;      ///< the same with water in it
  Double OutsideSurface(bool metric) const;  ///< ft2/ft or m2/m
};

/// The records of "pipe.dat" below its first line. Fails with "Input past end of file" if it ends
/// within one or lacks a standard, "Type mismatch" for a measure that is no number, "Invalid
/// procedure call or argument" for a standard that is unknown and a wall that can't be.
std::vector<Pipe> ParsePipes(std::string_view bytes);

/// The section to scale, with the letters of its measures.
Drawing DrawnToScale(const PipeSection& section);

}  // namespace korvane
