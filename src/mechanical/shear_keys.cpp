#include "mechanical/shear_keys.h"

namespace korvane {
namespace {

constexpr int kMillimeters = 1000;  // in a meter

/// A keyed shaft in its hub from the end, and from the side with the key's length.
Drawing Sketch() {
  Drawing drawing{320, 132, {}};
  const auto add = [&drawing](std::vector<Point> points, std::optional<Ink> fill) {
    drawing.shapes.emplace_back(Path{std::move(points), Ink::Line, fill});
  };
  constexpr Point center{70, 70};
  add(Arc(center, 54, 0, 360), {});
  add(Arc(center, 34, 0, 360), Ink::Body);
  AddBox(drawing, {61, 27}, {79, 45}, Ink::Accent);
  AddMeasure(drawing, 36, 104, 70, "D");
  AddArrow(drawing, {42, 10}, {61, 10}, Ink::Line);
  AddArrow(drawing, {98, 10}, {79, 10}, Ink::Line);
  drawing.shapes.emplace_back(Letters{{108, 10}, "W", 9, Ink::Line});

  AddBox(drawing, {190, 16}, {262, 124}, {});
  AddBox(drawing, {160, 36}, {300, 104});
  AddBox(drawing, {196, 27}, {256, 45}, Ink::Accent);
  AddMeasure(drawing, 196, 256, 58, "L");
  return drawing;
}

}  // namespace

Shear_Keys::Shear_Keys(Session& session)
    : CalculatorWindow(session, {.name = "Shear_Keys",
                                 .title = " Shear Key Calculation",
                                 .helpPage = "mechanical_shear_keys.html"}),
      picture_(*this, "", "Key of width W and length L in a shaft of diameter D", Sketch()) {
  const auto writes = [this](Option& material, const UnitText& strength) {
    material.onClick = [this, strength] {
      txt_shear_strength.SetText(IsMetric() ? strength.metric : strength.us);
      Solve();
    };
  };
  writes(opt_delrin_500, {"9573", "66"});
  writes(opt_celcon_90, {"7687", "53"});
  writes(opt_nylon_66, {"9949", "68.6"});
  writes(opt_alum_1100, {"8700", "60"});
  writes(opt_alum_2024, {"41325", "285"});
  writes(opt_alum_6061, {"29725", "205"});
  writes(opt_copper_110, {"25000", "172"});
  writes(opt_brass_360, {"34000", "234"});
  writes(opt_steel_1030, {"48000", "331"});

  btn_Solve.onClick = opt_key_length.onClick = opt_shear_torque.onClick = [this] { Solve(); };
  SolvesBy(txt_key_length, opt_shear_torque);
  SolvesBy(txt_torque, opt_key_length);

  SetDefault(btn_Solve);
  PrintsWith(btn_print);
  HelpsWith(btn_help);
  ExitsWith(btn_exit);
}

Layout Shear_Keys::Arrangement() {
  return Column({Row({Column({picture_,
                              Form({txt_torque, txt_shaft_dia, txt_key_width, txt_shear_strength,
                                    txt_key_length}),
                              Stretch()}),
                      Column({Box(solve_, {opt_key_length, opt_shear_torque}),
                              Box(materials_, {opt_delrin_500, opt_celcon_90, opt_nylon_66,
                                               opt_alum_1100, opt_alum_2024, opt_alum_6061,
                                               opt_copper_110, opt_brass_360, opt_steel_1030}),
                              Stretch()})}),
                 Row({btn_Solve, Stretch(), btn_print, btn_help, btn_exit})});
}

void Shear_Keys::Load() {
  CalculatorWindow::Load();
  opt_steel_1030.TurnOn();
}

/// Enter in what is known now asks for the other.
void Shear_Keys::SolvesBy(TextField& field, Option& option) {
  field.onEnter = [this, &option] {
    if (option.IsOn())
      Solve();
    else
      option.TurnOn();
  };
}

void Shear_Keys::Solve() {
  const bool length = opt_key_length.IsOn();
  txt_key_length.SetBack(length ? Color::ButtonFace() : Color::Window());
  txt_torque.SetBack(length ? Color::Window() : Color::ButtonFace());

  const Single T = ToNumber(txt_torque), D = ToNumber(txt_shaft_dia), W = ToNumber(txt_key_width);
  const Single S = ToNumber(txt_shear_strength), R = D / 2;
  Single L = ToNumber(txt_key_length);
  const auto show = [](TextField& field, Single value) {
    field.Show(value, "0.000");
    if (value == 0) field.Clear();
  };
  if (length) {
    if (S * W * D == 0 || T == 0) return;
    const Single F = T / R, A = F / S;
    L = A / W;
    show(txt_key_length, IsMetric() ? L * kMillimeters : L);
  } else if (L != 0) {
    // In metric units the newton millimeters of this product are not made newton meters.
    const Single A = W * L, F = S * A;
    show(txt_torque, R * F);
  }
}

}  // namespace korvane
