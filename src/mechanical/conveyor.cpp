#include "mechanical/conveyor.h"

#include <cmath>
#include <numbers>

#include "frame/search.h"

namespace korvane {
namespace {

constexpr double kPi = 3.14159265359;
constexpr double kDegrees = 57.2957804;  // in a radian
constexpr int kShearModulus = 11500000;  // of steel, psi
constexpr int kElasticity = 29000000;    // of steel, psi

constexpr double kMillimeters = 25.4;    // in an inch
constexpr double kNewtons = 9.8066;      // weight of a kilogram
constexpr double kPoundsForce = 0.2248;  // in a newton
constexpr double kNewtonMeters = 1.356;  // in a pound-foot; the torque is taken as it stands
constexpr int kPsi = 145;                // in a megapascal
constexpr int kBearings = 3;             // span of the shaft beyond the belt, inches

constexpr const char* kChainIfEmpty = "3";

std::vector<std::string> ToothCounts() {
  constexpr int least = 9;
  constexpr int most = 120;
  std::vector<std::string> counts;
  for (int teeth = least; teeth <= most; ++teeth) counts.push_back(std::to_string(teeth));
  return counts;
}

/// Two wheels and what runs around them: a line past both, and back.
std::vector<Point> Around(Point a, double radiusA, Point b, double radiusB) {
  const double along = std::atan2(b.y - a.y, b.x - a.x) * 180 / std::numbers::pi;
  const double lean =
      std::acos((radiusA - radiusB) / std::hypot(b.x - a.x, b.y - a.y)) * 180 / std::numbers::pi;
  std::vector<Point> points = Arc(b, radiusB, along - lean, along + lean);
  const std::vector<Point> back = Arc(a, radiusA, along + lean, along + 360 - lean);
  points.insert(points.end(), back.begin(), back.end());
  points.push_back(points.front());
  return points;
}

/// The conveyor from its side: packages on the belt, the headshaft on the right, and below it the
/// gearbox with its chain, or the gearbox on the shaft itself.
Drawing ConveyorPicture(bool chain) {
  Drawing drawing{600, 112, {}};
  const auto add = [&drawing](std::vector<Point> points, Ink ink, std::optional<Ink> fill = {},
                              double width = 1) {
    drawing.shapes.emplace_back(Path{std::move(points), ink, fill, width});
  };
  const auto box = [&](double left, double top, double width, double height, Ink fill) {
    add({{left, top},
         {left + width, top},
         {left + width, top + height},
         {left, top + height},
         {left, top}},
        Ink::Line, fill);
  };
  const Point tail{60, 54}, head{540, 54}, gearbox{470, 92};
  constexpr double pulley = 20;
  for (const double left : {120.0, 210.0, 320.0, 410.0}) box(left, 8, 44, 25, Ink::Body);
  add(Around(tail, pulley, head, pulley), Ink::Line, {}, 3);
  for (const Point& shaft : {tail, head}) {
    add(Arc(shaft, pulley - 3, 0, 360), Ink::Line, Ink::Body);
    add(Arc(shaft, 4, 0, 360), Ink::Line, Ink::Paper);
  }
  add({{250, 46}, {300, 46}}, Ink::Accent, {}, 1.5);
  add({{293, 42}, {300, 46}, {293, 50}}, Ink::Accent, {}, 1.5);
  if (chain) {
    box(gearbox.x - 34, gearbox.y - 14, 48, 30, Ink::Body);
    add(Around(head, 12, gearbox, 6), Ink::Accent, {}, 2);
    add(Arc(gearbox, 2, 0, 360), Ink::Line, Ink::Paper);
  } else {
    box(head.x - 12, head.y - 12, 48, 24, Ink::Body);
    add(Arc(head, 5, 0, 360), Ink::Accent, Ink::Accent);
  }
  return drawing;
}

}  // namespace

Double EquivalentMoment(const ShaftLoad& load) {
  const Double moment = load.span * load.pull / 8;
  return Sqrt(Power(moment * load.bendingShock, 2) + Power(load.torque * load.torsionShock, 2));
}

CONVEYOR::CONVEYOR(Session& session)
    : CalculatorWindow(session, {.name = "CONVEYOR",
                                 .title = " Belt  Conveyor  Calculations",
                                 .helpPage = "mechanical_belt_conveyors.html"}),
      cmb_headshaft_TEETH(*this, "cmb_headshaft_TEETH", "Headshaft Sprocket # of Teeth",
                          ToothCounts(), Combo::Style::Editable),
      cmb_gearbox_teeth(*this, "cmb_gearbox_teeth", "Gearbox Sprocket # of Teeth", ToothCounts(),
                        Combo::Style::Editable),
      file{"CONVEYORS",
           "conveyor.dta",
           "Load data...",
           {TextRecord("Length", txt_Conveyor_Length), TextRecord("Width", txt_Belt_Width),
            TextRecord("Belt weight", txt_belt_weight), TextRecord("Friction", txt_friction_coef),
            TextRecord("Conveyor sprocket dia", txt_conv_sprocket_dia),
            TextRecord("Belt speed", txt_belt_speed),
            TextRecord("Product weight", txt_product_weight),
            WordRecord("Load type", {{opt_steady, "Steady load"},
                                     {opt_minor, "Minor shocks"},
                                     {opt_heavy, "Heavy shocks"}}),
            WordRecord("Drive type", {{opt_direct_drive, "Direct"}, {opt_chain_drive, "Chain"}}),
            ChainRecord(), TextRecord("Headshaft sprocket teeth", cmb_headshaft_TEETH),
            TextRecord("Gearbox sprocket teeth", cmb_gearbox_teeth),
            TextRecord("Operating temp", txt_operating_temp),
            TextRecord("Expansion coef", txt_expansion_coef),
            TextRecord("Shaft diameter", txt_headshaft_dia),
            TextRecord("Combined stress", txt_combined_stress),
            WordRecord("Solve for", {{opt_stress_solve, "Stress"}, {opt_dia_solve, "Dia"}}),
            CheckRecord("Use SF", chk_keyway)},
           [this] {
             ChainUpdate();
             Calculate();
           }} {
  CMB_RC.SetText("40");
  cmb_headshaft_TEETH.SetText("36");
  cmb_gearbox_teeth.SetText("12");

  const Handler calculate = [this] { Calculate(); };
  btn_calc.onClick = chk_keyway.onClick = calculate;
  opt_steady.onClick = opt_minor.onClick = opt_heavy.onClick = calculate;
  cmb_headshaft_TEETH.onSelect = cmb_gearbox_teeth.onSelect = calculate;
  CMB_RC.onSelect = [this] {
    ChainUpdate();
    Calculate();
  };
  opt_chain_drive.onClick = opt_direct_drive.onClick = [this] {
    FollowDrive();
    Calculate();
  };
  opt_stress_solve.onClick = [this] {
    FollowSolve();
    Calculate();
  };
  opt_dia_solve.onClick = [this] { ChooseDiameterSolve(); };
  // Enter in what the shaft is solved for turns the question round.
  const auto solves = [this](TextField& field, Option& option) {
    field.onEnter = [this, &option] {
      if (option.IsOn())
        Calculate();
      else
        option.TurnOn();
    };
  };
  solves(txt_combined_stress, opt_dia_solve);
  solves(txt_headshaft_dia, opt_stress_solve);
  PassesFocusOn({&txt_belt_length, &txt_expansion, &txt_belt_tension, &txt_tension_per_foot,
                 &txt_headshaft_torque, &txt_gearbox_torque, &txt_overhung_load, &txt_headshaft_rpm,
                 &txt_gearbox_rpm, &txt_headshaft_pd, &txt_gearbox_pd, &txt_twist,
                 &txt_deflection});

  SetDefault(btn_calc);
  SavesWith(Command1, file);
  PrintsWith(Command2);
  ExitsWith(Command3);
  HelpsWith(Command4);
  LoadsWith(Command5, file);
}

Layout CONVEYOR::Arrangement() {
  return Column(
      {Row({Stretch(), picture_, Stretch()}),
       Row({Column({Form({txt_Conveyor_Length, txt_Belt_Width, txt_belt_weight, txt_friction_coef,
                          txt_conv_sprocket_dia, txt_belt_speed, txt_product_weight,
                          txt_operating_temp, txt_expansion_coef, txt_headshaft_dia,
                          txt_combined_stress, chk_keyway}),
                    Stretch()}),
            Column({Box(drive_, {Row({opt_chain_drive, opt_direct_drive, Stretch()}),
                                 Form({CMB_RC, cmb_headshaft_TEETH, cmb_gearbox_teeth})}),
                    Box(shocks_, {opt_steady, opt_minor, opt_heavy}),
                    Box(solve_, {opt_stress_solve, opt_dia_solve}), Stretch()})}),
       Rule(),
       Row({Column({Form({txt_belt_length, txt_expansion, txt_belt_tension, txt_tension_per_foot,
                          txt_headshaft_torque, txt_gearbox_torque, txt_overhung_load}),
                    Stretch()}),
            Column({Form({txt_headshaft_rpm, txt_gearbox_rpm, txt_headshaft_pd, txt_gearbox_pd,
                          txt_twist, txt_deflection}),
                    Stretch()})}),
       Row({btn_calc, Stretch(), Command5, Command1, Command2, Command4, Command3})});
}

void CONVEYOR::Load() {
  CalculatorWindow::Load();
  FollowDrive();
  FollowSolve();
  ChainUpdate();
  Calculate();
}

Record CONVEYOR::ChainRecord() {
  Record record = TextRecord("Chain size", CMB_RC);
  record.value = [this] { return CMB_RC.Text().empty() ? kChainIfEmpty : CMB_RC.Text(); };
  return record;
}

// ---- Choices ----

void CONVEYOR::FollowDrive() {
  const bool chain = opt_chain_drive.IsOn();
  LBL_RC.SetVisible(chain);
  for (CaptionedControl* control : std::initializer_list<CaptionedControl*>{
           &CMB_RC, &cmb_headshaft_TEETH, &cmb_gearbox_teeth, &txt_headshaft_pd, &txt_gearbox_pd}) {
    control->CaptionBeside().SetVisible(chain);
    control->SetVisible(chain);
  }
  picture_.Draw(ConveyorPicture(chain));
}

void CONVEYOR::ChooseDiameterSolve() {
  txt_combined_stress.SetText(IsMetric() ? "40.000" : "6000");
  FollowSolve();
  Calculate();
}

/// What is solved for looks like a result.
void CONVEYOR::FollowSolve() {
  const bool diameter = opt_dia_solve.IsOn();
  txt_headshaft_dia.SetBack(diameter ? Color::ButtonFace() : Color::Window());
  txt_combined_stress.SetBack(diameter ? Color::Window() : Color::ButtonFace());
}

// ---- Calculation ----

// A size that no chain has leaves the pitch of before.
void CONVEYOR::ChainUpdate() {
  if (const RollerChain* chain = FindChain(ToNumber(CMB_RC)))
    pitch_ = IsMetric() ? chain->pitch * kMillimeters : chain->pitch;
  for (Combo* teeth : {&cmb_headshaft_TEETH, &cmb_gearbox_teeth})
    if (ToNumber(*teeth) <= 0) teeth->SetText("12");
  txt_headshaft_pd.Show(pitch_ / Sin(kPi / ToNumber(cmb_headshaft_TEETH)), "0.000");
  txt_gearbox_pd.Show(pitch_ / Sin(kPi / ToNumber(cmb_gearbox_teeth)), "0.000");
}

void CONVEYOR::Calculate() {
  if (ToNumber(txt_headshaft_dia) <= 0) txt_headshaft_dia.SetText(IsMetric() ? "25" : "1");
  ShowBelt();
  ShowDrive();
  const ShaftLoad load = LoadOfShaft();
  if (opt_stress_solve.IsOn())
    SolveStress(load);
  else
    SolveDiameter(load);
}

void CONVEYOR::ShowBelt() {
  const Single length = ToNumber(txt_Conveyor_Length);
  const Single width = ToNumber(txt_Belt_Width);
  const Double total = 2 * length + kPi * ToNumber(txt_conv_sprocket_dia);
  txt_belt_length.Show(total, "0.00");
  const int room = IsMetric() ? 21 : 70;  // temperature
  txt_expansion.Show(
      ((ToNumber(txt_operating_temp) - room) * (ToNumber(txt_expansion_coef) * total)) / 2,
      "0.000");
  const int area = IsMetric() ? 1000000 : 144;
  const Single pull =
      ToNumber(txt_friction_coef) *
      (ToNumber(txt_product_weight) + (2 * length * width * ToNumber(txt_belt_weight)) / area);
  tension_ = IsMetric() ? pull * kNewtons : Double(pull);
  txt_belt_tension.Show(tension_, "0");
  txt_tension_per_foot.Show(tension_ / (width / (IsMetric() ? 1000 : 12)), "0");
}

void CONVEYOR::ShowDrive() {
  const bool chain = opt_chain_drive.IsOn();
  const Single pulley = ToNumber(txt_conv_sprocket_dia);
  const Single headshaftPd = ToNumber(txt_headshaft_pd);
  constexpr int millimeters = 1000;  // in a meter
  torque_ = tension_ * pulley / 2;
  if (IsMetric()) torque_ /= millimeters;
  txt_headshaft_torque.Show(torque_, "0");
  const Single reduction = chain ? headshaftPd / ToNumber(txt_gearbox_pd) : Single(1);
  headshaftRpm_ = ToNumber(txt_belt_speed) / (kPi * pulley);
  txt_headshaft_rpm.Show(headshaftRpm_, "0.00");
  txt_gearbox_rpm.Show(reduction * headshaftRpm_, "0.00");
  txt_gearbox_torque.Show(torque_ / reduction, "0");
  Double overhung = 0;
  if (chain) overhung = torque_ / (headshaftPd / 2);
  txt_overhung_load.Show(IsMetric() ? overhung * millimeters : overhung, "0");
}

ShaftLoad CONVEYOR::LoadOfShaft() const {
  const Single width = ToNumber(txt_Belt_Width);
  ShaftLoad load{.span = width + kBearings,
                 .pull = tension_,
                 .torque = torque_,
                 .bendingShock = 1,
                 .torsionShock = 1,
                 .keyway = chk_keyway.IsOn() ? 0.75 : 1};
  if (IsMetric()) {
    load.span = width / kMillimeters + kBearings;
    load.pull = ToNumber(txt_belt_tension) * kPoundsForce;
    load.torque = torque_ / kNewtonMeters;
  }
  const bool stopped = headshaftRpm_ == 0;
  if (opt_minor.IsOn()) {
    load.bendingShock = 2;
    load.torsionShock = stopped ? 2 : 1.5;
  } else if (opt_heavy.IsOn()) {
    load.bendingShock = load.torsionShock = stopped ? 2 : 3;
  }
  return load;
}

void CONVEYOR::SolveStress(const ShaftLoad& load) {
  const Single shown = ToNumber(txt_headshaft_dia);
  const Double d = IsMetric() ? shown / kMillimeters : Double(shown);
  ShowBend(load, d);
  ShowStress(ShearStress(EquivalentMoment(load), load.keyway, d));
}

void CONVEYOR::SolveDiameter(const ShaftLoad& load) {
  const Single shown = ToNumber(txt_combined_stress);
  const Single target = IsMetric() ? shown * kPsi : shown;
  if (target <= 0) return;
  Search search(GetSession());
  const Double moment = EquivalentMoment(load);
  const Double d = FindDiameter(moment, load.keyway, target, [&](Double trial, bool lastPass) {
    if (IsMetric())
      txt_headshaft_dia.Show(kMillimeters * trial, "#.#");
    else
      txt_headshaft_dia.Show(trial, "#.###");
    if (lastPass) ShowBend(load, trial);
    search.Stepped();
  });
  ShowStress(ShearStress(moment, load.keyway, d));
  ShowBend(load, d);
}

void CONVEYOR::ShowStress(Double psi) {
  if (IsMetric())
    txt_combined_stress.Show(psi / kPsi, "#.000");
  else
    txt_combined_stress.Show(psi, "#");
}

/// How far the shaft twists and, as a beam under an even load, bends.
void CONVEYOR::ShowBend(const ShaftLoad& load, Double d) {
  const Double polar = kPi * Power(d, 4) / 32;
  if (load.torque > 0)
    txt_twist.Show((load.span * load.torque * kDegrees) / (kShearModulus * polar), "#.###");
  const Double inertia = kPi * Power(d, 4) / 64;
  if (inertia <= 0) return;
  const Double bend = (5.0 / 384) * (load.pull * Power(load.span, 3)) / (kElasticity * inertia);
  if (IsMetric())
    txt_deflection.Show(bend * kMillimeters, "0.000");
  else
    txt_deflection.Show(bend, "0.0000");
}

}  // namespace korvane
