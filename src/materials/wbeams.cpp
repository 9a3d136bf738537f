#include "materials/wbeams.h"

#include "frame/session.h"
#include "materials/shape_columns.h"
#include "materials/shape_drawing.h"

namespace korvane {
namespace {

constexpr auto kColumns = Joined(flanged::kDimensions, kMass, kAboutX, kAboutY, kTorsion);

// Where flanges slope, their thickness is that in the middle between toe and web.
Drawing Draw(const ShownShape& shape) {
  using namespace flanged;
  const double half = shape[kDepth] / 2, side = shape[kWidth] / 2, web = shape[kWeb] / 2;
  const double rise = shape[kSlope] * (side - web) / 2;
  const double inner = half - shape[kFlange];
  ShapeDrawing drawing({-side, -half}, {side, half});
  drawing.AddSection(MirroredAcross(MirroredUpwards(
      {{side, half}, {side, inner + rise, shape[kToe]}, {web, inner - rise, shape[kFillet]}})));
  drawing.AddAxes(0, 0);
  drawing.AddDepth("d = " + shape.Text(kDepth));
  drawing.AddWidth("bf = " + shape.Text(kWidth));
  drawing.AddWall(-web, web, -half * 0.45, "tw = " + shape.Text(kWeb));
  drawing.AddFlange(half, inner, (side + web) / 2, "tf = " + shape.Text(kFlange));
  return drawing.Take();
}

constexpr ShapeWindow kWindow = {
    "Wbeams", "beam", kColumns, Draw,
    "The section to scale: depth d, flange width bf, web thickness tw, flange thickness tf"};

ShapeChoice Chosen(const Session& session) {
  if (session.ShapeSection.empty()) return {"[STEEL W-BEAMS]", "Steel W-Beams", ""};
  return {session.ShapeSection, session.ShapeTitle, ""};
}

}  // namespace

Wbeams::Wbeams(Session& session) : StructuralShapes(session, kWindow, Chosen(session)) {}

}  // namespace korvane
