#include "mechanical/gearcalc.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace korvane {
namespace {

constexpr double kPi = 3.14159265359;
constexpr double kMillimeters = 25.4;  // in an inch

/// The pitches of a system, and the one that it opens with.
struct GearSystem {
  const char* caption;
  std::vector<std::string> pitches;
  const char* usual;
};

const GearSystem& DiametralPitch() {
  static const GearSystem system{
      "Diametral Pitch",
      {"0.5", "0.75", "1",    "1.5", "2",  "2.5",  "3",  "4",  "5",  "6",  "8",   "10",  "12", "16",
       "20",  "24",   "1/10", "32",  "48", "1/20", "64", "72", "80", "96", "100", "120", "200"},
      "16"};
  return system;
}

const GearSystem& Module() {
  static const GearSystem system{
      "Module",
      {"50",  "20",   "16", "12",  "10",  "8",   "6",   "5",   "4",   "3",    "2.5", "2",
       "1.5", "1.25", "1",  "0.8", "0.7", "0.6", "0.5", "0.4", "0.3", "0.25", "0.2"},
      "1.5"};
  return system;
}

// ---- The picture: teeth of an involute gear, in drawing units ----

constexpr int kTeeth = 22;
constexpr double kModule = 26;
constexpr double kPitchRadius = kTeeth * kModule / 2;
constexpr double kOutsideRadius = kPitchRadius + kModule;
constexpr double kRootRadius = kPitchRadius - 1.25 * kModule;
constexpr Point kCenter{132, 8 + kOutsideRadius};

double Radians(double degrees) { return degrees * std::numbers::pi / 180; }

/// Between a tooth's middle and its flank at a radius, in degrees.
double FlankAngle(double radius) {
  const double base = kPitchRadius * std::cos(Radians(20));
  const auto involute = [base](double r) {
    const double angle = std::acos(std::min(1.0, base / r));
    return std::tan(angle) - angle;
  };
  const double radians =
      std::numbers::pi / (2 * kTeeth) + involute(kPitchRadius) - involute(radius);
  return radians * 180 / std::numbers::pi;
}

/// The outline of some teeth, the middle one upright.
std::vector<Point> Teeth() {
  std::vector<Point> outline;
  const auto add = [&outline](double radius, double degrees) {
    const double angle = Radians(degrees - 90);
    outline.push_back({kCenter.x + radius * std::cos(angle), kCenter.y + radius * std::sin(angle)});
  };
  constexpr int steps = 8;
  constexpr double pitch = 360.0 / kTeeth;
  for (int tooth = -1; tooth <= 1; ++tooth) {
    add(kRootRadius, (tooth - 0.5) * pitch);
    for (int i = 0; i <= steps; ++i) {
      const double radius = kRootRadius + (kOutsideRadius - kRootRadius) * i / steps;
      add(radius, tooth * pitch - FlankAngle(radius));
    }
    for (int i = steps; i >= 0; --i) {
      const double radius = kRootRadius + (kOutsideRadius - kRootRadius) * i / steps;
      add(radius, tooth * pitch + FlankAngle(radius));
    }
    add(kRootRadius, (tooth + 0.5) * pitch);
  }
  return outline;
}

Drawing Sketch() {
  Drawing drawing{304, 116, {}};
  std::vector<Point> body = Teeth();
  constexpr double rim = 112;
  body.push_back({body.back().x - 6, rim});
  body.push_back({body.front().x + 6, rim});
  body.push_back(body.front());
  drawing.shapes.emplace_back(Path{std::move(body), Ink::Line, Ink::Body});
  const auto circle = [&drawing](double radius, const char* name, Ink ink) {
    const std::vector<Point> arc = Arc(kCenter, radius, -114, -66);
    drawing.shapes.emplace_back(Path{arc, ink, {}, 1});
    drawing.shapes.emplace_back(Letters{{arc.back().x + 21, arc.back().y + 4}, name, 8, ink});
  };
  circle(kOutsideRadius, "Outside", Ink::Line);
  circle(kPitchRadius, "Pitch", Ink::Accent);
  circle(kRootRadius, "Root", Ink::Line);
  return drawing;
}

}  // namespace

GearCalc::GearCalc(Session& session)
    : CalculatorWindow(session, {.name = "GearCalc",
                                 .title = " Spur Gear Calculations",
                                 .helpPage = "mechanical_spur_gear_calculations.html"}),
      picture_(*this, "", "Gear teeth with their outside, pitch and root circles", Sketch()) {
  for (Option* option : {&opt_DP, &opt_module}) option->onClick = [this] { RebuildLists(); };
  for (Option* option : {&opt_inch, &opt_mm}) option->onClick = [this] { Calculate(); };
  for (Combo* combo : {&Combo1, &Combo2})
    combo->onSelect = combo->onEnter = [this] { Calculate(); };
  txt_teeth.onEnter = Command1.onClick = [this] { Calculate(); };
  ShowsResultsIn({&txt_pitch_dia, &txt_outside_dia, &txt_tooth_thickness, &txt_addendum,
                  &txt_working_depth, &txt_whole_depth, &txt_clearance, &txt_dedendum,
                  &txt_circular_pitch, &txt_root_dia, &txt_base_dia, &txt_base_pitch});
  SetDefault(Command1);
  PrintsWith(btn_print);
  HelpsWith(btn_help);
  ExitsWith(btn_exit);
}

Layout GearCalc::Arrangement() {
  return Column(
      {Row({Column({Box(system_, {opt_DP, opt_module}), Form({Combo1, txt_teeth, Combo2}),
                    Box(unit_, {opt_inch, opt_mm}), picture_, Stretch()}),
            Column({Form({txt_pitch_dia, txt_outside_dia, txt_tooth_thickness, txt_addendum,
                          txt_working_depth, txt_whole_depth, txt_clearance, txt_dedendum,
                          txt_circular_pitch, txt_root_dia, txt_base_dia, txt_base_pitch}),
                    Stretch()})}),
       Row({Command1, Stretch(), btn_print, btn_help, btn_exit})});
}

void GearCalc::Load() {
  CalculatorWindow::Load();
  RebuildLists();
}

void GearCalc::RebuildLists() {
  const GearSystem& system = opt_DP.IsOn() ? DiametralPitch() : Module();
  Label1.SetCaption(system.caption);
  Combo1.SetItems(system.pitches);
  Combo1.SetText(system.usual);
  Combo2.SetItems({"14.5", "20", "25"});
  Combo2.SetText("20");
  Calculate();
}

/// Of the pitch line, per inch or millimeter.
Double GearCalc::TeethPerUnit() const {
  const Single pitch = ToNumber(Combo1);
  if (opt_module.IsOn()) return (opt_inch.IsOn() ? kMillimeters : 1.0) / pitch;
  // Two pitches that are no numbers: circular pitches in inches, the unit of the results ignored.
  if (Combo1.Text() == "1/10") return 31.4159265359;
  if (Combo1.Text() == "1/20") return 62.8318530718;
  return pitch / (opt_inch.IsOn() ? 1.0 : kMillimeters);
}

/// Below the working depth and its clearance. In the diametral system it is the same number of
/// inches and millimeters.
Double GearCalc::ExtraDepth() const { return opt_module.IsOn() && opt_mm.IsOn() ? 0.0508 : 0.002; }

void GearCalc::Calculate() {
  const Double p = TeethPerUnit();
  const Single N = ToNumber(txt_teeth);
  const Double c = ExtraDepth();
  const Double cosine = Cos(ToNumber(Combo2) * kPi / 180);

  const auto show = [](TextField& field, Double value) {
    field.Show(value, "0.00000");
    return value;
  };
  const Double pitchDiameter = show(txt_pitch_dia, N / p);
  show(txt_outside_dia, (N + 2) / p);
  show(txt_tooth_thickness, (kPi / 2) / p);
  const Double addendum = show(txt_addendum, 1 / p);
  show(txt_working_depth, 2 / p);
  const Double wholeDepth = show(txt_whole_depth, 2.2 / p + c);
  show(txt_clearance, 0.2 / p + c);
  const Double dedendum = show(txt_dedendum, wholeDepth - addendum);
  const Double circularPitch = show(txt_circular_pitch, kPi / p);
  show(txt_root_dia, pitchDiameter - 2 * dedendum);
  show(txt_base_dia, cosine * pitchDiameter);
  show(txt_base_pitch, cosine * circularPitch);
}

}  // namespace korvane
