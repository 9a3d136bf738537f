#include "materials/steelang.h"

#include "frame/session.h"
#include "materials/shape_columns.h"
#include "materials/shape_drawing.h"

namespace korvane {
namespace {

enum Column { kLong, kShort, kThickness, kK, kFillet, kToe };

constexpr ShapeColumn kDimensions[] = {
    {"txt_long_leg", "Long Leg, d", Measure::Length},
    {"txt_short_leg", "Short Leg, b", Measure::Length},
    {"txt_thickness", "Thickness, t", Measure::Length},
    {"txt_k", "Face to Toe of Fillet, k", Measure::Length},
    kUntold,
    kUntold,
};
constexpr ShapeColumn kCentroidY[] = {{"txt_y", "Centroid from Back, y", Measure::Length}};
constexpr ShapeColumn kAboutZ[] = {
    {"txt_rz", "Least Radius of Gyration, rz", Measure::Length},
    {"txt_tan", "Slope of z to y, tan a", Measure::Ratio},
};

constexpr auto kBeforeY = Joined(kDimensions, kMass, kAboutX);
constexpr auto kBeforeX = Joined(kDimensions, kMass, kAboutX, kCentroidY, kAboutY);
constexpr auto kColumns =
    Joined(kDimensions, kMass, kAboutX, kCentroidY, kAboutY, kCentroidX, kAboutZ, kTorsion);

constexpr int kY = kBeforeY.size(), kX = kBeforeX.size();

// The heel is at the origin.
Drawing Draw(const ShownShape& shape) {
  const double up = shape[kLong], across = shape[kShort], t = shape[kThickness];
  const double toe = shape[kToe];
  ShapeDrawing drawing({0, 0}, {across, up});
  drawing.AddSection(
      {{0, 0}, {across, 0}, {across, t, toe}, {t, t, shape[kFillet]}, {t, up, toe}, {0, up}});
  drawing.AddAxes(shape[kX], shape[kY]);
  drawing.AddDepth("d = " + shape.Text(kLong));
  drawing.AddWidth("b = " + shape.Text(kShort));
  drawing.AddWall(0, t, up * 0.8, "t = " + shape.Text(kThickness));
  return drawing.Take();
}

constexpr ShapeWindow kWindow = {
    "SteelAng", "angle", kColumns, Draw,
    "The section to scale: legs d and b, thickness t, axes through the centroid"};

ShapeChoice Chosen(const Session& session) {
  if (session.ShapeSection.empty()) return {"[STEEL EQUAL ANGLES]", "Steel Equal Angles", "Steel"};
  return {session.ShapeSection, session.ShapeTitle, session.ShapeMaterial};
}

}  // namespace

SteelAng::SteelAng(Session& session) : StructuralShapes(session, kWindow, Chosen(session)) {}

}  // namespace korvane
