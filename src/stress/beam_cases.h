// The 32 cases of Beams II: supports and loading, captions and formulas.
#pragma once

#include <string>
#include <variant>
#include <vector>

#include "frame/controls.h"
#include "frame/number.h"

namespace korvane {

/// What all cases have: modulus of elasticity, moment of inertia, length.
struct Beam {
  Single E, I, L;
};

/// The fields as the formulas of a case see them, by index.
class BeamFields {
 public:
  explicit BeamFields(Beam theBeam) : beam(theBeam) {}
  virtual ~BeamFields() = default;
  BeamFields(const BeamFields&) = delete;
  BeamFields& operator=(const BeamFields&) = delete;

  const Beam beam;

  virtual Single operator()(int field) const = 0;
  /// The field in which Enter was pressed last.
  virtual int Last() const = 0;
  /// Writes a distance that follows from the others.
  virtual void Derive(int field, Single distance) = 0;
  virtual void ClearResults() = 0;
  /// Tells what is wrong with a field, empties it for another try, and the result with it.
  virtual void Reject(int field, int result, const char* message) = 0;
};

/// A moment that has kept its kind: the stress is a quotient of that kind.
using BeamMoment = std::variant<Single, Double>;

struct BeamResult {
  Double value;
  bool isMoment = false;  ///< shown in N m where lengths are in mm

  BeamResult(int whole) : value(whole) {}
  BeamResult(Single single) : value(single) {}
  BeamResult(Double number) : value(number) {}
};

struct BeamSolution {
  std::vector<BeamResult> results;  ///< in the order of their fields; none where the case stops
  BeamMoment Mdes;                  ///< the moment that gives the stress
};

/// The first input of every case is the length of the beam, in field 0.
struct BeamCase {
  const char* description;
  std::vector<UnitText> inputs;   ///< captions of the fields from 1 on
  std::vector<UnitText> results;  ///< captions of the fields from 9 on
  BeamSolution (*solve)(BeamFields& field);
};

inline constexpr int kBeamCases = 32;
inline constexpr int kFirstBeamResult = 9;

/// A case by its number, from 1.
const BeamCase& BeamCaseOf(int number);

/// The file with the sketches of all cases, and what a case is called in it: "Case 01".
inline constexpr const char* kBeamSketches = "beams.dat";
std::string BeamCaseName(int number);

}  // namespace korvane
