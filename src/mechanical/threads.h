// Screw threads of 60 degrees: their sizes, limits, tap drills and what goes with them.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "frame/drawing.h"
#include "frame/number.h"

namespace korvane {

inline constexpr const char* kThreadFile = "screw_threads.dat";
inline constexpr const char* kDrillFile = "drillsiz.dat";

/// A size as its standard calls it ("17/64", "No. 5"), and as a number; no name: there is none.
struct NamedSize {
  std::string name;
  Double size;

  bool Exists() const { return !name.empty(); }
};

/// Classes of tolerance, the loosest first: 1A and 1B, 2A and 2B, 3A and 3B of unified threads; 8g
/// and 7H, 6g and 6H, 4h and 5H of metric ones.
enum class ThreadClass : std::uint8_t { Loose, Usual, Close };

/// What a thread's diameters may be.
struct ThreadLimits {
  Double allowance;  ///< of the external thread, below the basic size
  Double externalMajorMax, externalMajorMin;
  Double externalPitchMax, externalPitchMin;
  Double externalMinorMax;  ///< of the rounded root
  Double internalMinorMin, internalMinorMax;
  Double internalPitchMin, internalPitchMax;
  Double internalMajorMin;
};

/// A thread in the unit of its standard, inches or millimeters.
struct Thread {
  bool metric = false;
  std::string size;    ///< "1/4", "M10"
  std::string series;  ///< "UNC", "UNF", "UNEF"; "coarse", "fine"
  Double major;
  Double pitch;
  std::array<NamedSize, 3> holes;  ///< for clearance: close, normal, loose
  NamedSize head, headHeight;      ///< of hex screws, across flats
  NamedSize nut, nutThickness;     ///< of hex nuts, across flats
  NamedSize key;                   ///< of socket head cap screws, across flats

  // ISO 965-1, of metric threads alone: position g, and the tolerances of grade 6, in micrometers.
  Double positionG;
  Double majorTolerance, pitchTolerance, internalMinorTolerance, internalPitchTolerance;

  std::string Name() const;  ///< "1/4-20 UNC", "M10 x 1.5"
  Double ThreadsPerInch() const;
  Double BasicPitchDiameter() const;
  Double BasicMinorDiameter() const;
  Double StressArea() const;  ///< in2 or mm2

  bool Has(ThreadClass threadClass) const;
  ThreadLimits Limits(ThreadClass threadClass) const;

  /// The hole that leaves this part of the basic thread height, in per cent.
  Double TapHole(Double percent) const;
  Double PercentOfThread(Double hole) const;
};

/// What the class is called: "2A / 2B, Usual".
const char* NameOf(ThreadClass threadClass, bool metric);

/// The records of the thread file below its first line. Fails with "Input past end of file" if it
/// ends within one or lacks a standard, "Type mismatch" for a measure that is no number, "Invalid
/// procedure call or argument" for an unknown standard or a size that can't be.
std::vector<Thread> ParseThreads(std::string_view bytes);

/// A twist drill in both units; inch drills go by fractions, numbers and letters.
struct Drill {
  std::string name;
  bool metric = false;
  Double inches, millimeters;

  Double Size(bool inMillimeters) const { return inMillimeters ? millimeters : inches; }
};

/// The rows of the table of drills.
std::vector<Drill> ParseDrills(std::string_view bytes);

/// The drill of the kind that comes closest to a hole in its own unit; none for a hole that is
/// beyond the largest by more than 2 per cent.
std::optional<Drill> NearestDrill(const std::vector<Drill>& drills, bool metric, Double hole);

/// The form of the thread with the letters of its measures.
Drawing ThreadForm();

}  // namespace korvane
