#include "math/triangle.h"

#include <algorithm>

#include "frame/session.h"

namespace korvane {
namespace {

constexpr double kPi = 3.141592;  // cut off here, which shows in the results
constexpr Double kDegrees = Double(180) / kPi;

/// The angle that is missing to the half circle, by its cosine.
Double ThirdAngle(Single one, Single other) {
  return kDegrees * ArcCos(-Cos((one + other) / kDegrees));
}

/// The angle between two sides, opposite to the third, by the half perimeter s.
Double AngleBetween(Single one, Single other, Single s, Single opposite) {
  return (kDegrees * 2) * ArcCos(Power(s * (s - opposite) / (one * other), 0.5));
}

/// Side c by the law of sines, and then a as the sum of its two parts.
void SidesFromAngles(Triangle& t) {
  t.c = t.b * Sin(t.gamma / kDegrees) / Sin(t.beta / kDegrees);
  t.a = t.b * Cos(t.gamma / kDegrees) + t.c * Cos(t.beta / kDegrees);
}

// The letters stand outside the triangle; sides are opposite to the angles of their name.
Drawing Sketch() {
  Drawing drawing{220, 130, {}};
  const Point left{20, 110}, right{200, 110}, top{130, 20};
  drawing.shapes.emplace_back(Path{{left, right, top, left}, Ink::Line, Ink::Body, 1.5});
  const auto arc = [&drawing](Point center, double from, double to) {
    drawing.shapes.emplace_back(Path{Arc(center, 22, from, to), Ink::Accent, {}, 1});
  };
  arc(left, -39.3, 0);
  arc(right, 180, 232.1);
  arc(top, 52.1, 140.7);
  const auto letters = [&drawing](Point at, const char* text, Ink ink) {
    drawing.shapes.emplace_back(Letters{at, text, 9, ink});
  };
  letters({178, 58}, "A", Ink::Line);
  letters({64, 58}, "C", Ink::Line);
  letters({110, 122}, "B", Ink::Line);
  letters({66, 99}, "alpha", Ink::Accent);
  letters({151, 99}, "gamma", Ink::Accent);
  letters({126, 52}, "beta", Ink::Accent);
  return drawing;
}

}  // namespace

void SolveThreeSides(Triangle& t) {
  const Single s = (t.b + t.c + t.a) / 2;
  t.gamma = AngleBetween(t.b, t.a, s, t.c);
  t.beta = AngleBetween(t.a, t.c, s, t.b);
  t.alpha = ThirdAngle(t.beta, t.gamma);
}

void SolveTwoAnglesAndIncludedSide(Triangle& t) {
  t.beta = ThirdAngle(t.gamma, t.alpha);
  SidesFromAngles(t);
}

void SolveTwoAnglesAndAdjacentSide(Triangle& t) {
  t.gamma = ThirdAngle(t.alpha, t.beta);
  SidesFromAngles(t);
}

void SolveTwoSidesAndIncludedAngle(Triangle& t) {
  t.a = Power(Power(t.c, 2) + Power(t.b, 2) - (t.b + t.b) * t.c * Cos(t.alpha / kDegrees), 0.5);
  const Single s = (t.b + t.c + t.a) / 2;
  t.gamma = AngleBetween(t.a, t.b, s, t.c);
  t.beta = AngleBetween(t.a, t.c, s, t.b);
}

void SolveTwoSidesAndAdjacentAngle(Triangle& t) {
  t.gamma = kDegrees * ArcSin((t.c / t.b) * Sin(t.beta / kDegrees));
  t.alpha = ThirdAngle(t.gamma, t.beta);
  t.a = t.c * Cos(t.beta / kDegrees) + t.b * Cos(t.gamma / kDegrees);
}

/// What is known, by the indices of A, B, C, ALPHA, BETA, GAMMA, and what is solved, in the order
/// in which it is written.
struct TRIANGLE::KnownSet {
  const char* text;
  std::array<std::size_t, 3> known;
  std::array<std::size_t, 3> solved;
  void (*solve)(Triangle&);
};

const std::array<TRIANGLE::KnownSet, 5> TRIANGLE::kKnownSets = {{
    {"SSS - All Three Sides", {0, 1, 2}, {3, 4, 5}, SolveThreeSides},
    {"ASA - Two Angles & Included Side", {1, 3, 5}, {4, 2, 0}, SolveTwoAnglesAndIncludedSide},
    {"AAS - Two Angles & Adjacent Side", {1, 4, 3}, {5, 2, 0}, SolveTwoAnglesAndAdjacentSide},
    {"SAS - Two Sides & Included Angle", {1, 3, 2}, {0, 4, 5}, SolveTwoSidesAndIncludedAngle},
    {"SSA - Two Sides & Adjacent Angle", {1, 2, 4}, {5, 3, 0}, SolveTwoSidesAndAdjacentAngle},
}};

TRIANGLE::TRIANGLE(Session& session)
    : CalculatorWindow(session, {.name = "TRIANGLE",
                                 .title = "Triangle Solutions",
                                 .helpPage = "math_triangle_solutions.html"}),
      picture_(*this, "", "Triangle with its sides A, B, C and the angles opposite to them",
               Sketch()) {
  for (const KnownSet& set : kKnownSets) Combo1.AddItem(set.text);
  Combo1.onSelect = [this] { ComboClick(); };
  for (std::size_t i = 0; i < 6; ++i) Field(i).onEnter = [this] { Solve(); };
  SelectsOnFocus({&A, &B, &C, &ALPHA, &BETA, &GAMMA});
  Command4.onClick = [this] { Solve(); };
  Command1.onClick = [this] { ClearFields(); };
  SetDefault(Command4);
  PrintsWith(Command3);
  HelpsWith(btn_help);
  ExitsWith(Command2);
}

Layout TRIANGLE::Arrangement() {
  return Column({Form({Combo1}),
                 Row({Column({Form({A, B, C}), Rule(), Form({ALPHA, BETA, GAMMA}), Stretch()}),
                      Column({picture_})}),
                 Row({Command4, Stretch(), Command1, Command3, btn_help, Command2})});
}

void TRIANGLE::Load() {
  CalculatorWindow::Load();
  KnownCase = 1;
  ClearFields();
}

TextField& TRIANGLE::Field(std::size_t index) {
  const std::array<TextField*, 6> fields = {&A, &B, &C, &ALPHA, &BETA, &GAMMA};
  return *fields[index];
}

void TRIANGLE::ComboClick() {
  for (std::size_t i = 0; i < 6; ++i) {
    Field(i).SetBack(Color::ButtonFace());
    Field(i).SetLocked(true);
  }
  for (std::size_t i = 0; i < kKnownSets.size(); ++i) {
    if (kKnownSets[i].text != Combo1.Text()) continue;
    for (const std::size_t known : kKnownSets[i].known) {
      Field(known).SetBack(Color::Bgr(0xFFFFFF));
      Field(known).SetLocked(false);
    }
    KnownCase = static_cast<short>(i + 1);
  }
}

void TRIANGLE::ClearFields() {
  for (std::size_t i = 0; i < 6; ++i) Field(i).Clear();
  Combo1.SetText(kKnownSets[0].text);
  ComboClick();
}

// Says nothing where a known value is missing.
void TRIANGLE::Solve() {
  const KnownSet& set = kKnownSets[static_cast<std::size_t>(KnownCase - 1)];
  const auto missing = [this](std::size_t i) { return ToNumber(Field(i)) <= 0; };
  if (std::any_of(set.known.begin(), set.known.end(), missing)) return;

  const std::array<Single*, 6> values = {&triangle_.a,     &triangle_.b,    &triangle_.c,
                                         &triangle_.alpha, &triangle_.beta, &triangle_.gamma};
  for (const std::size_t i : set.known) *values[i] = ToNumber(Field(i));
  set.solve(triangle_);
  for (const std::size_t i : set.solved) Field(i).Show(*values[i], "0.000");
}

}  // namespace korvane
