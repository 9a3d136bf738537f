#include "materials/stl_chan.h"

#include "frame/session.h"
#include "materials/shape_columns.h"
#include "materials/shape_drawing.h"

namespace korvane {
namespace {

constexpr auto kBeforeX = Joined(flanged::kDimensions, kMass, kAboutX, kAboutY);
constexpr auto kColumns =
    Joined(flanged::kDimensions, kMass, kAboutX, kAboutY, kCentroidX, kTorsion);

constexpr int kX = kBeforeX.size();

// The back of the web is at x = 0; sloped flanges measure as those of beams.
Drawing Draw(const ShownShape& shape) {
  using namespace flanged;
  const double half = shape[kDepth] / 2, side = shape[kWidth], web = shape[kWeb];
  const double rise = shape[kSlope] * (side - web) / 2;
  const double inner = half - shape[kFlange];
  ShapeDrawing drawing({0, -half}, {side, half});
  drawing.AddSection(MirroredUpwards({{0, half},
                                      {side, half},
                                      {side, inner + rise, shape[kToe]},
                                      {web, inner - rise, shape[kFillet]}}));
  drawing.AddAxes(shape[kX], 0);
  drawing.AddDepth("d = " + shape.Text(kDepth));
  drawing.AddWidth("bf = " + shape.Text(kWidth));
  drawing.AddWall(0, web, -half * 0.45, "tw = " + shape.Text(kWeb));
  drawing.AddFlange(half, inner, (side + web) / 2, "tf = " + shape.Text(kFlange));
  return drawing.Take();
}

constexpr ShapeWindow kWindow = {
    "stl_chan", "channel", kColumns, Draw,
    "The section to scale: depth d, flange width bf, web thickness tw, flange thickness tf"};

ShapeChoice Chosen(const Session& session) {
  if (session.ShapeSection.empty()) return {"[STEEL CHANNELS]", "Steel Channels", ""};
  return {session.ShapeSection, session.ShapeTitle, ""};
}

}  // namespace

stl_chan::stl_chan(Session& session) : StructuralShapes(session, kWindow, Chosen(session)) {}

}  // namespace korvane
