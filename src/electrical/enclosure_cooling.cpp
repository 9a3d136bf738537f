#include "electrical/enclosure_cooling.h"

namespace korvane {
namespace {

constexpr double kSafety = 1.25;
constexpr double kBtuh = 3.412;                 // in a watt
constexpr double kAirHeat = 1.08;               // Btu/h, that a cfm carries for each F
constexpr double kMillimeters = 25.4;           // in an inch
constexpr int kSquareInches = 144;              // in a square foot
constexpr double kSquareMeters = 0.09290304;    // in a square foot
constexpr double kCubicMeters = 1.69901079552;  // per hour, in a cfm
constexpr double kBare = 1.5;
constexpr double kFan = 1.1;

// Indexes of the fields of each loop.
enum Open { kPower, kAmbient, kFlow, kRise, kInside };
enum Closed { kAmbient2, kPower2, kRise2, kInside2 };

struct Captions {
  const char* us;
  const char* metric;
};
constexpr Captions kPowerCaption = {"Power Dissipation (W)", "Power Dissipation (W)"};
constexpr Captions kAmbientCaption = {"Ambient Temperature (F)", "Ambient Temperature (C)"};
constexpr Captions kFlowCaption = {"Air Flow Rate (CFM)", "Air Flow Rate (m3/h)"};
constexpr Captions kRiseCaption = {"Delta-T (F)", "Delta-T (C)"};
constexpr Captions kInsideCaption = {"Enclosure Temperature (F)", "Enclosure Temperature (C)"};
constexpr Captions kOpenCaptions[] = {kPowerCaption, kAmbientCaption, kFlowCaption, kRiseCaption,
                                      kInsideCaption};
constexpr Captions kClosedCaptions[] = {kAmbientCaption, kPowerCaption, kRiseCaption,
                                        kInsideCaption};

/// An input, or the result that the chosen option makes of it.
void MakeInput(TextField& field, bool input) {
  field.SetBack(input ? Color::Window() : Color::ButtonFace());
  field.SetEnabled(input);
}

}  // namespace

Enclosure_Cooling::Enclosure_Cooling(Session& session)
    : CalculatorWindow(session, {.name = "Enclosure_Cooling",
                                 .title = "Enclosure Cooling Calculations",
                                 .helpPage = "electrical_enclosure_cooling_calculations.html"}) {
  const auto caption = [this](const Captions& texts) {
    return IsMetric() ? texts.metric : texts.us;
  };
  for (int i = kPower; i <= kInside; ++i) captions1_(i).SetCaption(caption(kOpenCaptions[i]));
  for (int i = kAmbient2; i <= kInside2; ++i) captions2_(i).SetCaption(caption(kClosedCaptions[i]));

  for (Option* option : {&opt_air_flow, &opt_delta_T, &opt_temp_rise, &opt_max_power})
    option->onClick = [this] { FollowOptions(); };
  SolvesWith(btn_solve, {&Text1(kPower), &Text1(kAmbient), &Text1(kFlow), &Text1(kInside)},
             [this] { SolveOpenLoop(); });
  SolvesWith(
      btn_solve_2,
      {&txt_width, &txt_height, &txt_depth, &Text2(kAmbient2), &Text2(kPower2), &Text2(kInside2)},
      [this] { SolveClosedLoop(); });
  chk_painted.onClick = chk_internal_fan.onClick = [this] { SolveClosedLoop(); };

  PrintsWith(btn_print);
  HelpsWith(btn_help);
  ExitsWith(btn_exit);
}

Layout Enclosure_Cooling::Arrangement() {
  return Column(
      {Row({Box(open_,
                {opt_air_flow, opt_delta_T,
                 Form({Text1(kPower), Text1(kAmbient), Text1(kInside), Text1(kFlow), Text1(kRise)}),
                 Stretch(), Row({btn_solve, Stretch()})}),
            Box(closed_,
                {opt_temp_rise, opt_max_power, Form({txt_width, txt_height, txt_depth, txt_area}),
                 chk_painted, chk_internal_fan,
                 Form({Text2(kAmbient2), Text2(kPower2), Text2(kRise2), Text2(kInside2)}),
                 Stretch(), Row({btn_solve_2, Stretch()})})}),
       Box(notes_, {note_}), Row({Stretch(), btn_print, btn_help, btn_exit})});
}

void Enclosure_Cooling::Load() {
  CalculatorWindow::Load();
  for (TextField* field :
       {&Text1(kPower), &Text1(kAmbient), &Text1(kInside), &Text2(kAmbient2), &Text2(kPower2)})
    field->SetText("0");
  for (TextField* field : {&Text1(kRise), &Text2(kRise2), &txt_area}) MakeInput(*field, false);
  FollowOptions();
  SolveClosedLoop();
}

void Enclosure_Cooling::FollowOptions() {
  MakeInput(Text1(kFlow), opt_delta_T.IsOn());
  MakeInput(Text1(kInside), opt_air_flow.IsOn());
  MakeInput(Text2(kPower2), opt_temp_rise.IsOn());
  MakeInput(Text2(kInside2), opt_max_power.IsOn());
}

Double Enclosure_Cooling::Fahrenheit(const TextField& field) const {
  const Double degrees = ToNumber(field);
  return IsMetric() ? degrees * 1.8 + 32 : degrees;
}

Double Enclosure_Cooling::Inches(const TextField& field) const {
  const Double length = ToNumber(field);
  return IsMetric() ? length / kMillimeters : length;
}

Double Enclosure_Cooling::DegreesShown(Double fahrenheit) const {
  return IsMetric() ? fahrenheit / 1.8 : fahrenheit;
}

void Enclosure_Cooling::ShowRise(TextField& rise, TextField& inside, const TextField& ambient,
                                 Double dT) {
  rise.Show(DegreesShown(dT), "0.0");
  inside.Show(DegreesShown(dT) + ToNumber(ambient), "0.0");
}

void Enclosure_Cooling::SolveOpenLoop() {
  const Double heat = kSafety * kBtuh * ToNumber(Text1(kPower)) / kAirHeat;
  const double units = IsMetric() ? kCubicMeters : 1;
  if (opt_air_flow.IsOn()) {
    const Double dT = Fahrenheit(Text1(kInside)) - Fahrenheit(Text1(kAmbient));
    Text1(kRise).Show(Single(DegreesShown(dT)));
    Text1(kFlow).Show(heat / dT * units, "0");
  } else {
    const Double flow = ToNumber(Text1(kFlow)) / units;
    ShowRise(Text1(kRise), Text1(kInside), Text1(kAmbient), heat / flow);
  }
}

void Enclosure_Cooling::SolveClosedLoop() {
  const double p = chk_painted.IsOn() ? 1 : kBare;
  const double f = chk_internal_fan.IsOn() ? kFan : 1;
  const Double W = Inches(txt_width), H = Inches(txt_height), D = Inches(txt_depth);
  const Double A = 2 * (W * H + D * W + D * H) / kSquareInches;
  txt_area.Show(IsMetric() ? A * kSquareMeters : A, "0.00");
  if (A == 0) return;
  if (opt_temp_rise.IsOn()) {
    const Double dT = kSafety * (kBtuh * (ToNumber(Text2(kPower2)) / A)) * p / f;
    ShowRise(Text2(kRise2), Text2(kInside2), Text2(kAmbient2), dT);
  } else {
    const Double dT = Fahrenheit(Text2(kInside2)) - Fahrenheit(Text2(kAmbient2));
    Text2(kRise2).Show(DegreesShown(dT), "0.0");
    Text2(kPower2).Show(f * (A * (dT / kSafety / kBtuh) / p), "0.0");
  }
}

}  // namespace korvane
