// Columns that kinds of shapes have in common.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>

#include "materials/structural_shapes.h"

namespace korvane {

inline constexpr ShapeColumn kMass[] = {
    {"txt_weight", "Weight", Measure::Weight},
    {"txt_area", "Area, A", Measure::Area},
};

inline constexpr ShapeColumn kAboutX[] = {
    {"txt_ix", "Moment of Inertia, Ix", Measure::Inertia},
    {"txt_sx", "Section Modulus, Sx", Measure::Modulus},
    {"txt_rx", "Radius of Gyration, rx", Measure::Length},
    {"txt_zx", "Plastic Modulus, Zx", Measure::Modulus},
};

inline constexpr ShapeColumn kAboutY[] = {
    {"txt_iy", "Moment of Inertia, Iy", Measure::Inertia},
    {"txt_sy", "Section Modulus, Sy", Measure::Modulus},
    {"txt_ry", "Radius of Gyration, ry", Measure::Length},
    {"txt_zy", "Plastic Modulus, Zy", Measure::Modulus},
};

inline constexpr ShapeColumn kCentroidX[] = {
    {"txt_x", "Centroid from Back, x", Measure::Length},
};

inline constexpr ShapeColumn kTorsion[] = {
    {"txt_j", "Torsional Constant, J", Measure::Torsion},
};

/// What only the drawing needs.
inline constexpr ShapeColumn kUntold = {nullptr, "", Measure::Length};

// Beams and channels.
namespace flanged {

enum Column { kDepth, kWidth, kWeb, kFlange, kK, kFillet, kToe, kSlope };

inline constexpr ShapeColumn kDimensions[] = {
    {"txt_depth", "Depth, d", Measure::Length},
    {"txt_width", "Flange Width, bf", Measure::Length},
    {"txt_web", "Web Thickness, tw", Measure::Length},
    {"txt_flange", "Flange Thickness, tf", Measure::Length},
    {"txt_k", "Face to Toe of Fillet, k", Measure::Length},
    kUntold,
    kUntold,
    kUntold,
};

}  // namespace flanged

template <std::size_t... counts>
constexpr auto Joined(const ShapeColumn (&... parts)[counts]) {
  std::array<ShapeColumn, (counts + ...)> joined{};
  auto* end = joined.data();
  ((end = std::copy(std::begin(parts), std::end(parts), end)), ...);
  return joined;
}

}  // namespace korvane
