#include "materials/wbeams.h"

#include "frame/session.h"
#include "materials/shape_drawing.h"

namespace korvane {
namespace {

enum Column { kDepth, kWidth, kWeb, kFlange, kK, kFillet, kToe, kSlope };

constexpr ShapeColumn kColumns[] = {
    {"txt_depth", "Depth, d", Measure::Length},
    {"txt_width", "Flange Width, bf", Measure::Length},
    {"txt_web", "Web Thickness, tw", Measure::Length},
    {"txt_flange", "Flange Thickness, tf", Measure::Length},
    {"txt_k", "Face to Toe of Fillet, k", Measure::Length},
    {nullptr, "", Measure::Length},
    {nullptr, "", Measure::Length},
    {nullptr, "", Measure::Ratio},
    {"txt_weight", "Weight", Measure::Weight},
    {"txt_area", "Area, A", Measure::Area},
    {"txt_ix", "Moment of Inertia, Ix", Measure::Inertia},
    {"txt_sx", "Section Modulus, Sx", Measure::Modulus},
    {"txt_rx", "Radius of Gyration, rx", Measure::Length},
    {"txt_zx", "Plastic Modulus, Zx", Measure::Modulus},
    {"txt_iy", "Moment of Inertia, Iy", Measure::Inertia},
    {"txt_sy", "Section Modulus, Sy", Measure::Modulus},
    {"txt_ry", "Radius of Gyration, ry", Measure::Length},
    {"txt_zy", "Plastic Modulus, Zy", Measure::Modulus},
    {"txt_j", "Torsional Constant, J", Measure::Torsion},
};

// Where flanges slope, their thickness is that in the middle between toe and web.
Drawing Draw(const ShownShape& shape) {
  const double half = shape[kDepth] / 2, side = shape[kWidth] / 2, web = shape[kWeb] / 2;
  const double rise = shape[kSlope] * (side - web) / 2;
  const double inner = half - shape[kFlange];
  ShapeDrawing drawing({-side, -half}, {side, half});
  drawing.AddSection(MirroredAcross(MirroredUpwards(
      {{side, half}, {side, inner + rise, shape[kToe]}, {web, inner - rise, shape[kFillet]}})));
  drawing.AddAxes(0, 0);
  drawing.AddDepth("d = " + shape.Text(kDepth));
  drawing.AddWidth("bf = " + shape.Text(kWidth));
  drawing.AddWall(-web, web, half * 0.45, "tw = " + shape.Text(kWeb));
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
