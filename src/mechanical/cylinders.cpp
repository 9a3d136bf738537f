#include "mechanical/cylinders.h"

namespace korvane {
namespace {

constexpr double kPi = 3.14159265359;
constexpr int kGallon = 231;          // in3
constexpr int kFoot = 12;             // in
constexpr int kSquareFoot = 144;      // in2
constexpr int kLiter = 1000000;       // mm3
constexpr double kAtmosphere = 14.7;  // psi; in bar it counts as 1
constexpr int kPressure = 10;         // bar in a MPa

const CylinderKind kHydraulic = {.window = {.name = "Hydraulic_cylinders",
                                            .title = " Hydraulic Cylinders",
                                            .helpPage = "mechanical_hydraulic_cylinders.html"},
                                 .help = "Command4",
                                 .signature = "HYDRAULIC CYLINDERS",
                                 .defaultName = "hydraulic.dta",
                                 .stroke = "12",
                                 .volume = {"(U.S. gal)", "(L)"},
                                 .flow = {"(gpm)", "(L/min)"},
                                 .air = false};

const CylinderKind kPneumatic = {.window = {.name = "Pneumatic_cylinders",
                                            .title = " Pneumatic Cylinders",
                                            .helpPage = "mechanical_pneumatic_cylinders.html"},
                                 .help = "btn_help",
                                 .signature = "PNEUMATIC CYLINDERS",
                                 .defaultName = "pneumatic.dta",
                                 .stroke = "0",
                                 .volume = {"(ft3)", "(L)"},
                                 .flow = {"(cfm)", "(L/min)"},
                                 .air = true};

UnitText Captioned(const std::string& text, const UnitText& unit) {
  return {text + ' ' + unit.us, text + ' ' + unit.metric};
}

// ---- Standard sizes ----

using Sizes = std::vector<std::string>;

Sizes Bores(bool metric, bool air) {
  if (metric) {
    Sizes sizes = {"25", "32",  "40",  "50",  "63",  "70",  "80",
                   "90", "100", "125", "150", "160", "180", "200"};
    if (air) sizes.insert(sizes.begin(), {"6", "8", "10", "12", "16", "20"});
    return sizes;
  }
  Sizes sizes = {"1",   "1.5", "2",   "2.5", "3",   "3.25", "3.5", "4", "4.5", "5",
                 "5.5", "6",   "6.5", "7",   "7.5", "8",    "8.5", "9", "9.5"};
  for (int inches = 10; inches <= 40; ++inches) sizes.push_back(std::to_string(inches));
  return sizes;
}

Sizes Rods(bool metric, bool air) {
  if (metric) {
    Sizes sizes = {"0", "12", "14", "18", "22", "28", "36", "45", "56", "70", "90", "110", "140"};
    if (!air) sizes.insert(sizes.begin() + 1, {"8", "10"});
    return sizes;
  }
  Sizes sizes = {"0",   "0.5", "0.625", "0.75", "1",   "1.25", "1.375", "1.5", "1.75", "2",
                 "2.5", "3",   "3.5",   "4",    "4.5", "5",    "5.5",   "6",   "6.5",  "7"};
  if (air) sizes.emplace_back("8");
  return sizes;
}

/// A cylinder in section with its ports; extending is to the right.
Drawing Sketch() {
  Drawing drawing{330, 150, {}};
  constexpr double top = 44, bottom = 108, middle = 76;
  AddBox(drawing, {24, top - 8}, {216, top});
  AddBox(drawing, {24, bottom}, {216, bottom + 8});
  AddBox(drawing, {14, top - 8}, {26, bottom + 8});
  AddBox(drawing, {206, top - 8}, {224, middle - 11});
  AddBox(drawing, {206, middle + 11}, {224, bottom + 8});
  AddBox(drawing, {106, middle - 10}, {304, middle + 10});
  AddBox(drawing, {94, top + 1}, {110, bottom - 1});
  for (const double port : {44.0, 190.0}) {
    AddBox(drawing, {port - 6, top - 14}, {port + 6, top}, {});
    AddArrow(drawing, {port, 8}, {port, top - 4});
  }
  drawing.shapes.emplace_back(Letters{{78, 14}, "extend", 8, Ink::Accent});
  drawing.shapes.emplace_back(Letters{{226, 14}, "retract", 8, Ink::Accent});
  AddArrow(drawing, {62, middle}, {62, top + 1}, Ink::Line);
  AddArrow(drawing, {62, middle}, {62, bottom - 1}, Ink::Line);
  drawing.shapes.emplace_back(Letters{{46, middle}, "bore", 7, Ink::Line});
  AddArrow(drawing, {262, top}, {262, middle - 10}, Ink::Line);
  AddArrow(drawing, {262, bottom}, {262, middle + 10}, Ink::Line);
  drawing.shapes.emplace_back(Letters{{276, bottom - 4}, "rod", 7, Ink::Line});
  AddArrow(drawing, {94, 134}, {26, 134}, Ink::Line);
  AddArrow(drawing, {138, 134}, {206, 134}, Ink::Line);
  drawing.shapes.emplace_back(Letters{{116, 134}, "stroke", 7, Ink::Line});
  return drawing;
}

}  // namespace

/// A side of the piston: what it has and where its results go.
struct Cylinder::Side {
  Double A;
  Single speed;
  TextField &area, &force, &volume, &flow;
};

Cylinder::Cylinder(Session& session, const CylinderKind& kind)
    : CalculatorWindow(session, kind.window),
      kind_(kind),
      txt_stroke(*this, "txt_stroke", UnitText{"Stroke Length (in)", "Stroke Length (mm)"},
                 kind.stroke),
      picture_(*this, "", "Cylinder in section with bore, rod, stroke and ports", Sketch()),
      txt_extend_volume(*this, "txt_extend_volume", Captioned("Extend Volume", kind.volume)),
      txt_extend_flow(*this, "txt_extend_flow", Captioned("Extend Flow Rate", kind.flow)),
      txt_retract_volume(*this, "txt_retract_volume", Captioned("Retract Volume", kind.volume)),
      txt_retract_flow(*this, "txt_retract_flow", Captioned("Retract Flow Rate", kind.flow)),
      help_(*this, kind.help, "Help"),
      file{kind.signature,
           kind.defaultName,
           "Save as...",  // though it opens one
           {TextRecord("Bore Diameter", cmb_bore_dia), TextRecord("Rod Diameter", cmb_rod_dia),
            TextRecord("Pressure", txt_pressure), TextRecord("Stroke", txt_stroke),
            TextRecord("Extend Speed", txt_extend_speed),
            TextRecord("Retract Speed", txt_retract_speed)},
           [this] { Solve(); }} {
  btn_solve.onClick = cmb_bore_dia.onSelect = cmb_rod_dia.onSelect = [this] { Solve(); };
  PassesFocusOn({&txt_extend_area, &txt_extend_force, &txt_extend_volume, &txt_extend_flow,
                 &txt_retract_area, &txt_retract_force, &txt_retract_volume, &txt_retract_flow});

  SetDefault(btn_solve);
  LoadsWith(btn_load, file);
  SavesWith(btn_save, file);
  PrintsWith(btn_print);
  HelpsWith(help_);
  ExitsWith(Command2);
}

Layout Cylinder::Arrangement() {
  return Column(
      {Row({Column({Form({cmb_bore_dia, cmb_rod_dia, txt_pressure, txt_stroke, txt_extend_speed,
                          txt_retract_speed}),
                    Stretch()}),
            Column({Stretch(), picture_, Stretch()})}),
       Rule(),
       Row({Column({Form({txt_extend_area, txt_extend_force, txt_extend_volume, txt_extend_flow})}),
            Column({Form(
                {txt_retract_area, txt_retract_force, txt_retract_volume, txt_retract_flow})})}),
       Row({btn_solve, Stretch(), btn_load, btn_save, btn_print, help_, Command2})});
}

void Cylinder::Load() {
  CalculatorWindow::Load();
  cmb_bore_dia.SetItems(Bores(IsMetric(), kind_.air));
  cmb_bore_dia.SetText(IsMetric() ? "25" : "1");
  cmb_rod_dia.SetItems(Rods(IsMetric(), kind_.air));
  cmb_rod_dia.SetText(IsMetric() ? "12" : "0.5");
  Solve();
}

void Cylinder::Solve() {
  const Double Ax = kPi * Power(ToNumber(cmb_bore_dia) / 2, 2);
  const Double Ar = Ax - kPi * Power(ToNumber(cmb_rod_dia) / 2, 2);
  const std::array<Side, 2> sides = {{{Ax, ToNumber(txt_extend_speed), txt_extend_area,
                                       txt_extend_force, txt_extend_volume, txt_extend_flow},
                                      {Ar, ToNumber(txt_retract_speed), txt_retract_area,
                                       txt_retract_force, txt_retract_volume, txt_retract_flow}}};
  if (IsMetric())
    SolveMetric(sides);
  else
    SolveUs(sides);
}

void Cylinder::SolveUs(const std::array<Side, 2>& sides) {
  const Single S = ToNumber(txt_stroke), P = ToNumber(txt_pressure);
  const auto volume = [this](Double in3) {
    return kind_.air ? (in3 / kFoot) / kSquareFoot : in3 / kGallon;
  };
  const Double c = kind_.air ? P / kAtmosphere + 1 : Double(1);
  for (const Side& side : sides) side.area.Show(side.A, "#.###");
  for (const Side& side : sides) side.force.Show(P * side.A, "#.###");
  for (const Side& side : sides) side.volume.Show(volume(S * side.A), "#.###");
  for (const Side& side : sides) side.flow.Show(volume(side.speed * (side.A * c)), "#.###");
}

void Cylinder::SolveMetric(const std::array<Side, 2>& sides) {
  const Single S = ToNumber(txt_stroke), P = ToNumber(txt_pressure);
  const Single c = kind_.air ? P + 1 : Single(1);
  for (const Side& side : sides) side.area.Show(side.A, "#.###");
  for (const Side& side : sides) side.force.Show(P * side.A / kPressure, "#.###");
  for (const Side& side : sides) side.volume.Show(S * side.A / kLiter, "#.###");
  for (const Side& side : sides) side.flow.Show(side.speed * (side.A * c) / kLiter, "#.###");
}

Hydraulic_cylinders::Hydraulic_cylinders(Session& session) : Cylinder(session, kHydraulic) {}

Pneumatic_cylinders::Pneumatic_cylinders(Session& session) : Cylinder(session, kPneumatic) {}

}  // namespace korvane
