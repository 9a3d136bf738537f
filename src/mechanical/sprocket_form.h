// The form of a roller chain sprocket, and the scripts by which AutoCAD draws it.
//
// All in inches and degrees. The sprocket's axis is at 0,0; the gap at the top is centred on the
// y axis, and the tooth right of it is what the form describes.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "frame/number.h"
#include "mechanical/roller_chain.h"

namespace korvane {

Double SprocketPitchDia(double pitch, Single teeth);
Double SprocketOutsideDia(double pitch, Single teeth);

struct Spot {
  Double x;
  Double y;
};

/// From the middle of a gap to the tip of a tooth: the seat of the roller, the working curve, a
/// straight that both curves touch, the topping curve, and half of the tip.
struct ToothForm {
  Double pitchRadius, outsideRadius;
  Double seatRadius;
  Double chamferRadius;  ///< of the sides, and the width that they leave of the tip
  Double tipWidth;
  Double seatAngle;  ///< A: the seat ends at 180 + A and 360 - A
  Double halfPitch;  ///< angle from the gap to the tip
  Spot working;      ///< centre of the working curve
  Spot topping;      ///< centre of the topping curve
  Spot seatEnd;      ///< and start of the working curve
  Spot workingEnd;
  Spot toppingStart;  ///< where the straight ends
  Spot toppingEnd;    ///< where the topping curve meets the outside diameter
  Spot tip;

  Double RootRadius() const { return pitchRadius - seatRadius; }
};

ToothForm FormTooth(const RollerChain& chain, Single teeth);

enum class SprocketType : std::uint8_t {
  FinishedBore,
  PlateA,
  MinBoreB,
  BushingG,
  BushingH,
  BushingP1,
  BushingQ1,
};

/// What the scripts draw; 0 for what is not there.
struct SprocketDrawing {
  ToothForm tooth;
  SprocketType type = SprocketType::FinishedBore;
  Single chain;
  Single teeth;
  Double plate;  ///< thickness
  Double bore;
  Double keyWidth, keyDepth;
  Double hub;           ///< diameter
  Double length;        ///< overall
  bool metric = false;  ///< the finished drawing is scaled to millimeters
};

// One token a line. Blanks in a line don't count, and "~" stands for one that does.
std::vector<std::string> EndViewScript(const SprocketDrawing& sprocket);
std::vector<std::string> SideViewScript(const SprocketDrawing& sprocket);

/// The bytes of a script file.
std::string ScriptBytes(const std::vector<std::string>& lines);

}  // namespace korvane
