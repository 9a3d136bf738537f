#include "materials/structural_tubing.h"

#include <algorithm>
#include <utility>

#include "frame/names.h"
#include "frame/session.h"
#include "materials/shape_columns.h"
#include "materials/shape_drawing.h"

namespace korvane {
namespace {

enum Column { kDepth, kWidth, kWall, kOuter, kInner };

constexpr ShapeColumn kDimensions[] = {
    {"txt_depth", "Depth, d", Measure::Length},
    {"txt_width", "Width, b", Measure::Length},
    {"txt_wall", "Design Wall Thickness, t", Measure::Length},
    kUntold,
    kUntold,
};

constexpr auto kColumns = Joined(kDimensions, kMass, kAboutX, kAboutY, kTorsion);

Outline BoxOf(double side, double half, double radius) {
  return MirroredAcross(MirroredUpwards({{side, half, radius}}));
}

Drawing Draw(const ShownShape& shape) {
  const double half = shape[kDepth] / 2, side = shape[kWidth] / 2, wall = shape[kWall];
  ShapeDrawing drawing({-side, -half}, {side, half});
  drawing.AddSection(BoxOf(side, half, shape[kOuter]),
                     BoxOf(side - wall, half - wall, shape[kInner]));
  drawing.AddAxes(0, 0);
  drawing.AddDepth("d = " + shape.Text(kDepth));
  drawing.AddWidth("b = " + shape.Text(kWidth));
  drawing.AddWall(side - wall, side, half * 0.45, "t = " + shape.Text(kWall));
  return drawing.Take();
}

constexpr ShapeWindow kWindow = {"Structural_Tubing", "tube", kColumns, Draw,
                                 "The section to scale: depth d, width b, wall thickness t"};

ShapeChoice Chosen(const Session& session) {
  const bool told = !session.TubingMaterial.empty() && !session.TubingShape.empty();
  const std::string material = told ? session.TubingMaterial : "Steel";
  const std::string title =
      material + ' ' + (told ? session.TubingShape : "Rectangular") + " Tubing";
  std::string section = '[' + title + ']';
  std::ranges::transform(section, section.begin(), ToUpper);
  return {std::move(section), title, material};
}

}  // namespace

Structural_Tubing::Structural_Tubing(Session& session)
    : StructuralShapes(session, kWindow, Chosen(session)) {}

}  // namespace korvane
