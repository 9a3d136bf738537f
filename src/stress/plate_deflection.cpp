#include "stress/plate_deflection.h"

#include <algorithm>
#include <array>
#include <limits>

#include "frame/session.h"

namespace korvane {

/// What a plate is, in inches and psi or in millimeters and MPa.
struct FlatPlate {
  bool circular;
  bool fixed;
  bool concentrated;
  Single side;  // the short one, or the diameter
  Single thickness;
  Single E;
  Single m;      // the inverse of Poisson's ratio
  Single ratio;  // of the sides of a rectangle
};

/// How areas and pressures are shown: mm2 in an m2, Pa in a kPa.
struct PlateUnits {
  int area;
  int pressure;
  Mask rectangle;  // for its area
};

namespace {

constexpr double pi = 3.14159265359;
constexpr double twoPi = 6.28318530718;
constexpr double fourPi = 12.56637061436;
constexpr double eightPi = 25.13274122872;
constexpr double sixteenPi = 50.26548245744;

// Formulas of Timoshenko and Roark for the bending stress and the deflection at the center; P is
// the total load, q the load per area.

// ---- Rectangular plates: fits of tables for a Poisson's ratio of 0.3 ----

/// A polynomial of the ratio of the sides, from its fourth power down; a constant above a limit.
struct Fit {
  std::array<double, 5> factors;
  double limit = std::numeric_limits<double>::max();
  double above = 0;

  Double At(Single f) const {
    if (f > limit) return above;
    return factors[0] * Power(f, 4) + factors[1] * Power(f, 3) + factors[2] * Power(f, 2) +
           factors[3] * f + factors[4];
  }
};

/// Of the stress under a uniform load, by edge.
constexpr Fit kUniformStress[2] = {
    {{-0.00206, 0.0448, -0.3273, 1.0222, -0.4506}},
    {{-0.01792, 0.2098, -0.9037, 1.7002, -0.6804}},
};
constexpr Fit kFixedConcentratedStress = {{-0.2211, 1.7839, -5.3908, 7.2517, -2.6695}, 2.2, 1.008};

/// Of the deflection, by edge and load.
constexpr Fit kDeflection[2][2] = {
    {{{0.00024, 0.002, -0.0397, 0.1679, -0.0861}},
     {{0, 0.014, -0.1112, 0.2891, -0.0648}, 2.4, 0.1821}},
    {{{-0.000774, 0.0099, -0.0469, 0.097, -0.0454}},
     {{-0.0102, 0.0877, -0.2822, 0.4029, -0.1372}, 2.2, 0.0791}},
};

/// The radius over which a load acts that is spread over a small circle; here over a point.
Double EquivalentRadius(Single t) {
  const Single loadRadius = 0;
  return Sqrt(1.6 * Power(loadRadius, 2) + Power(t, 2)) - 0.675 * t;
}

/// Under a load at the center it is the stress at the long edges of a fixed plate; for a supported
/// one the formula has a 1 where the books have m.
Double RectangleStress(const FlatPlate& plate, Single P, Double q) {
  const Single f = plate.ratio, b = plate.side, t = plate.thickness, m = plate.m;
  if (!plate.concentrated) return kUniformStress[plate.fixed].At(f) * q * Power(b, 2) / Power(t, 2);
  if (plate.fixed) return kFixedConcentratedStress.At(f) * P / Power(t, 2);
  const Double B = Exp(-2.6031 * f) * 7.8781;
  const Double h = EquivalentRadius(t);
  return (3 * P * ((m + 1) * Ln((2 * b) / (pi * h)) + 1 - B * m)) / (twoPi * m * Power(t, 2));
}

Double RectangleDeflection(const FlatPlate& plate, Single P, Double q) {
  const Single b = plate.side, E = plate.E, t = plate.thickness;
  const Double A = kDeflection[plate.fixed][plate.concentrated].At(plate.ratio);
  const Double load = plate.concentrated ? A * P * Power(b, 2) : A * q * Power(b, 4);
  return load / (E * Power(t, 3));
}

// ---- Circular plates ----

template <class Total>
Double CircleStress(const FlatPlate& plate, Total P) {
  const Single R = plate.side / 2, t = plate.thickness, m = plate.m;
  if (!plate.concentrated)
    return plate.fixed ? 3 * P / (fourPi * Power(t, 2))
                       : 3 * P * (3 * m + 1) / (eightPi * m * Power(t, 2));
  const Double h = EquivalentRadius(t);
  if (plate.fixed)
    return 3 * P * ((m + 1) * Ln(R / h) + (m + 1) * Power(h, 2) / (4 * Power(R, 2))) /
           (twoPi * m * Power(t, 2));
  return 3 * P * (m + (m + 1) * Ln(R / h) - (m - 1) * Power(h, 2) / (4 * Power(R, 2))) /
         (twoPi * m * Power(t, 2));
}

template <class Total>
Double CircleDeflection(const FlatPlate& plate, Total P) {
  const Single R = plate.side / 2, E = plate.E, t = plate.thickness, m = plate.m;
  if (plate.fixed) {
    const double constant = plate.concentrated ? fourPi : sixteenPi;
    return 3 * P * (Power(m, 2) - 1) * Power(R, 2) / (constant * E * Power(m, 2) * Power(t, 3));
  }
  if (plate.concentrated)
    return 3 * P * (m - 1) * (3 * m + 1) * Power(R, 2) / (fourPi * E * Power(m, 2) * Power(t, 3));
  return 3 * P * (m - 1) * (5 * m + 1) * Power(R, 2) / (sixteenPi * E * Power(m, 2) * Power(t, 3));
}

// ---- The picture: the plate from above, and below it in section ----

class PlateSketch {
 public:
  explicit PlateSketch(const FlatPlate& plate)
      : half_(plate.circular ? kRadius : kLong / 2), plate_(plate) {}

  Drawing Draw() {
    if (plate_.circular)
      Solid(Arc({kCenter, kTop + kRadius}, kRadius, 0, 360));
    else
      Box(-half_, kTop, half_, kTop + kShort);
    Sides();
    Box(-half_, kPlate, half_, kPlate + kThickness);
    for (const double side : {-1.0, 1.0}) Support(side);
    if (plate_.concentrated)
      Arrow(0, 34, 2);
    else
      for (int i = -4; i <= 4; ++i) Arrow(half_ * i / 4.2, 18, 1);
    return std::move(drawing_);
  }

 private:
  static constexpr double kCenter = 100, kTop = 6, kShort = 84, kLong = 170, kRadius = 46;
  static constexpr double kPlate = 186, kThickness = 12;

  void Add(std::vector<Point> points, Ink ink, std::optional<Ink> fill, double width) {
    drawing_.shapes.emplace_back(Path{std::move(points), ink, fill, width});
  }
  void Solid(std::vector<Point> outline) { Add(std::move(outline), Ink::Line, Ink::Body, 1.5); }
  void Box(double left, double top, double right, double bottom) {
    Solid({{kCenter + left, top},
           {kCenter + right, top},
           {kCenter + right, bottom},
           {kCenter + left, bottom},
           {kCenter + left, top}});
  }
  void Support(double side) {
    const double x = half_ * side;
    if (plate_.fixed) {
      Box(std::min(x, x + 12 * side), kPlate - 8, std::max(x, x + 12 * side),
          kPlate + kThickness + 8);
    } else {
      const double foot = kPlate + kThickness, at = kCenter + x - 5 * side;
      Solid({{at, foot}, {at + 6, foot + 10}, {at - 6, foot + 10}, {at, foot}});
    }
  }
  void Arrow(double x, double length, double width) {
    const Point tip = {kCenter + x, kPlate - 2};
    Add({{tip.x, tip.y - length}, tip}, Ink::Accent, {}, width);
    Add({{tip.x - 3, tip.y - 5}, tip, {tip.x + 3, tip.y - 5}}, Ink::Accent, {}, width);
  }
  void Sides() {
    const auto write = [this](Point at, const char* text) {
      drawing_.shapes.emplace_back(Letters{at, text, 9, Ink::Accent});
    };
    constexpr double below = kTop + 2 * kRadius + 6;
    Add({{kCenter - half_, below}, {kCenter + half_, below}}, Ink::Accent, {}, 1);
    for (const double x : {kCenter - half_, kCenter + half_})
      Add({{x, below - 4}, {x, below + 4}}, Ink::Accent, {}, 1);
    write({kCenter, below + 14}, plate_.circular ? "diameter" : "long side");
    if (plate_.circular) return;
    const double right = kCenter + half_ + 8;
    Add({{right, kTop}, {right, kTop + kShort}}, Ink::Accent, {}, 1);
    for (const double y : {kTop, kTop + kShort})
      Add({{right - 4, y}, {right + 4, y}}, Ink::Accent, {}, 1);
    write({right + 40, kTop + kShort / 2}, "short side");
  }

  Drawing drawing_{284, 226, {}};
  double half_;
  const FlatPlate& plate_;
};

}  // namespace

Plate_Deflection::Plate_Deflection(Session& session)
    : CalculatorWindow(session, {.name = "Plate_Deflection",
                                 .title = " Stress & Deflection of Flat Plates",
                                 .helpPage = "mechanical_flat_plates.html"}) {
  opt_rectangular.onClick = opt_circular.onClick = [this] { ChooseShape(); };
  opt_uniform.onClick = opt_concentrated.onClick = [this] { ChooseLoad(); };
  opt_simple.onClick = opt_fixed.onClick = btn_Solve.onClick = [this] { Solve(); };

  const auto excludes = [this](TextField& load, bool& types, TextField& other) {
    load.onFocus = [&types] { types = true; };
    load.onLeave = [&types] { types = false; };
    load.onChange = [this, &types, &other] {
      if (types && !writesLoad_) other.Clear();
    };
  };
  excludes(txt_total_load, typesTotal_, txt_unit_load);
  excludes(txt_unit_load, typesUnit_, txt_total_load);
  PassesFocusOn({&txt_area, &txt_stress, &txt_deflection});

  // Two lines of the file stand for values that this window has no field for.
  const auto nothing = [](const char* label) {
    return Record{label, [] { return std::string(); }, [](const std::string&) {}};
  };
  file = {"PLATES",
          "plates.dta",
          "Load data...",
          {TextRecord("Long Side", txt_long_side), TextRecord("Short Side", txt_short_side),
           nothing("Diameter"), TextRecord("Plate Thickness", txt_thickness),
           TextRecord("Elastic Modulus", txt_E), TextRecord("Poisson's Ratio", txt_mu),
           nothing("Plate Density"), TextRecord("Total Load", txt_total_load),
           TextRecord("Unit Load", txt_unit_load),
           WordRecord("Plate Type", {{opt_rectangular, "Rectangular"}, {opt_circular, "Circular"}}),
           WordRecord("Support Type", {{opt_simple, "Simple"}, {opt_fixed, "Fixed"}}),
           WordRecord("Load Type", {{opt_uniform, "Uniform"}, {opt_concentrated, "Concentrated"}})},
          [this] { btn_Solve.Click(); }};
  SetDefault(btn_Solve);
  LoadsWith(txt_load, file);
  SavesWith(txt_save, file);
  PrintsWith(txt_print);
  HelpsWith(txt_help);
}

Layout Plate_Deflection::Arrangement() {
  return Column({Row({Column({Form({txt_long_side, txt_short_side, txt_thickness, txt_E, txt_mu,
                                    txt_total_load, txt_unit_load}),
                              Rule(), Form({txt_area, txt_stress, txt_deflection}), Stretch()}),
                      Column({Box(Frame1, {opt_rectangular, opt_circular}),
                              Box(Frame2, {opt_simple, opt_fixed}),
                              Box(Frame3, {opt_uniform, opt_concentrated}), Stretch()}),
                      Column({picture_, Stretch()})}),
                 Row({btn_Solve, Stretch(), txt_load, txt_save, txt_print, txt_help})});
}

void Plate_Deflection::Load() {
  CalculatorWindow::Load();
  Solve();
}

void Plate_Deflection::ChooseShape() {
  const bool circular = opt_circular.IsOn();
  longSide_.SetVisible(!circular);
  txt_long_side.SetVisible(!circular);
  shortSide_.SetCaption(circular ? "Diameter (in)" : "Short Side (in)");  // in metric units too
  if (circular) GetSession().RunPendingMessages();
  Solve();
}

void Plate_Deflection::ChooseLoad() {
  txt_unit_load.Clear();
  unitLoad_.SetVisible(opt_uniform.IsOn());
  txt_unit_load.SetVisible(opt_uniform.IsOn());
  Solve();
}

void Plate_Deflection::Solve() {
  if (IsMetric())
    SolvePlateMetric();
  else
    SolvePlateUS();
}

void Plate_Deflection::SolvePlateUS() { SolvePlate({1, 1, "0.###"}); }

void Plate_Deflection::SolvePlateMetric() { SolvePlate({1000000, 1000, "0.######"}); }

void Plate_Deflection::SolvePlate(const PlateUnits& units) {
  FlatPlate plate{.circular = opt_circular.IsOn(),
                  .fixed = opt_fixed.IsOn(),
                  .concentrated = opt_concentrated.IsOn()};
  picture_.Draw(PlateSketch(plate).Draw());
  plate.m = 1 / ToNumber(txt_mu);
  plate.thickness = ToNumber(txt_thickness);
  plate.E = ToNumber(txt_E);
  plate.side = ToNumber(txt_short_side);
  if (plate.circular) {
    const Double area = pi * Power(plate.side / 2, 2) / units.area;
    txt_area.Show(area, "0.###");
    SolveLoads(plate, units, area);
  } else {
    const Single longSide = ToNumber(txt_long_side);
    plate.ratio = longSide / plate.side;
    const Single area = longSide * plate.side / units.area;
    txt_area.Show(area, units.rectangle);
    SolveLoads(plate, units, area);
  }
}

/// Enter solves with the focus in a load, and still what is written is not typed.
void Plate_Deflection::ShowLoad(TextField& load, Double value) {
  writesLoad_ = true;
  load.Show(value, "0.######");
  writesLoad_ = false;
}

/// With neither load there is nothing to solve.
template <class Area>
void Plate_Deflection::SolveLoads(const FlatPlate& plate, const PlateUnits& units, Area area) {
  const Single total = ToNumber(txt_total_load);
  if (total > 0) {
    const auto q = total / area;
    ShowLoad(txt_unit_load, q / units.pressure);
    ShowResults(plate, units, total, q);
  } else if (const Single unit = ToNumber(txt_unit_load); unit > 0) {
    const auto q = unit * units.pressure;
    const auto P = q * area;
    ShowLoad(txt_total_load, P);
    ShowResults(plate, units, P, q);
  }
}

template <class Total>
void Plate_Deflection::ShowResults(const FlatPlate& plate, const PlateUnits& units, Total P,
                                   Double q) {
  if (plate.circular) {
    txt_stress.Show(CircleStress(plate, P), "0.######");
    txt_deflection.Show(CircleDeflection(plate, P), "0.######");
    return;
  }
  // Pascals over square millimeters: a million of them to an MPa.
  const int divisor = plate.concentrated ? 1 : units.area;
  txt_stress.Show(RectangleStress(plate, P, q) / divisor, "0.######");
  txt_deflection.Show(RectangleDeflection(plate, P, q) / divisor, "0.######");
}

}  // namespace korvane
