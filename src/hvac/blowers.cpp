#include "hvac/blowers.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "frame/session.h"
#include "frame/unit_conversion.h"

namespace korvane {
namespace {

using Fit = FanOperation::Fit;

constexpr double kStandardDensity = 0.075;    // lb/ft3
constexpr double kKilograms = 16.018;         // in a cubic meter, of a lb/ft3
constexpr double kKilowatts = 0.7457;         // in a horsepower
constexpr double kMetersPerSecond = 0.00508;  // in a ft/min
constexpr double kMillimeters = 25.4;
constexpr int kPercent = 100;
constexpr int kTropopause = 36089;   // ft; the formula of the pressure ends there
constexpr int kAbsoluteZero = -460;  // F

constexpr const char* kBest = "Best Suited";

const char* WhyNot(Fit fit) {
  switch (fit) {
    case Fit::TooSteep: return "flow too small for its curve";
    case Fit::TooFlat: return "flow too large for its curve";
    case Fit::TooFast: return "above its largest speed";
    case Fit::Suits: break;
  }
  return "";
}

/// "BI" of "Backward Inclined".
std::string Initials(const std::string& type) {
  std::string initials;
  for (std::size_t i = 0; i < type.size(); ++i)
    if (i == 0 || type[i - 1] == ' ') initials += type[i];
  return initials;
}

// ---- The picture ----

/// A round step that goes into a length four to ten times.
double RoundStep(double length) {
  constexpr double most = 10;
  const double unit = std::pow(10, std::floor(std::log10(length / most)));
  for (const double times : {1.0, 2.0, 5.0, 10.0})
    if (length / (unit * times) <= most) return unit * times;
  return unit * most;
}

/// Flow to the right, pressure upwards, in the units that are shown.
class Chart {
 public:
  Chart(double flow, double pressure) : flow_(flow), pressure_(pressure) {}

  Point At(double flow, double pressure) const {
    return {kLeft + kWide * flow / flow_, kTop + kHigh * (1 - pressure / pressure_)};
  }

  void Axes(const std::string& flowUnit, const std::string& pressureUnit) {
    constexpr double thin = 0.3, height = 9;
    const double acrossStep = RoundStep(flow_), upStep = RoundStep(pressure_);
    for (int i = 0; i * acrossStep <= flow_; ++i) {
      const double flow = i * acrossStep;
      Line({At(flow, 0), At(flow, pressure_)}, Ink::Line, thin);
      // Every other one has its number, so that they stay apart.
      if (i % 2 == 0) Write({At(flow, 0).x, kTop + kHigh + 12}, Number(flow, acrossStep), height);
    }
    for (int i = 0; i * upStep <= pressure_; ++i) {
      const double pressure = i * upStep;
      Line({At(0, pressure), At(flow_, pressure)}, Ink::Line, thin);
      Write({kLeft - 22, At(0, pressure).y}, Number(pressure, upStep), height);
    }
    Line({At(0, pressure_), At(0, 0), At(flow_, 0)}, Ink::Line, 1);
    Write({kLeft + kWide / 2, kTop + kHigh + 28}, flowUnit, height);
    Write({kLeft + 24, kTop - 14}, pressureUnit, height);
  }

  void Line(std::vector<Point> points, Ink ink, double width) {
    drawing_.shapes.emplace_back(Path{std::move(points), ink, {}, width});
  }

  void Dot(Point at) {
    constexpr double radius = 4;
    drawing_.shapes.emplace_back(Path{Arc(at, radius, 0, 360), Ink::Accent, Ink::Accent, 1});
  }

  void Write(Point at, const std::string& text, double height, Ink ink = Ink::Line) {
    drawing_.shapes.emplace_back(Letters{at, text, height, ink});
  }

  void Legend(const std::string& curve) {
    constexpr double y = kTop - 14, sample = 18;
    const auto entry = [&](double x, const std::string& text, Ink ink, double middle) {
      Line({{x, y}, {x + sample, y}}, ink, 2);
      Write({x + sample + middle, y}, text, 9, ink);
    };
    entry(kLeft + 110, curve, Ink::Line, 72);
    entry(kLeft + 300, "System", Ink::Accent, 34);
  }

  Drawing Take() { return std::move(drawing_); }

 private:
  static constexpr double kLeft = 48, kTop = 30, kWide = 384, kHigh = 230;

  static std::string Number(double value, double step) {
    return Format(value, step >= 1      ? Mask("#,##0")
                         : step >= 0.1  ? Mask("0.0")
                         : step >= 0.01 ? Mask("0.00")
                                        : Mask("0.000"));
  }

  double flow_;
  double pressure_;
  Drawing drawing_{446, 300, {}};
};

}  // namespace

BLOWERS::BLOWERS(Session& session)
    : CalculatorWindow(session, {.name = "BLOWERS",
                                 .title = " Blower Wheel Selection",
                                 .helpPage = "hvac_blower_wheels.html"}),
      picture_(*this, "",
               "The wheel's static pressure over its flow, the system line, and the point "
               "where they meet"),
      file{"BLOWERS",
           "blowers.dta",
           "Load data...",
           {IndexRecord("Wheel", cmb_wheel), TextRecord("Flow", txt_flow),
            TextRecord("Static pressure", txt_pressure), TextRecord("Temperature", txt_temperature),
            TextRecord("Altitude", txt_altitude)},
           [this] { btn_calculate.Click(); }} {
  lst_ranking.MakeFixedPitch();
  lbl_wheel.MakeHeading();

  ComputesAndMovesOn({&txt_flow, &txt_pressure, &txt_temperature, &txt_altitude},
                     [this] { Calculate(); });
  SelectsOnFocus({&txt_flow, &txt_pressure, &txt_temperature, &txt_altitude});
  cmb_wheel.onSelect = [this] { ChooseWheel(); };
  lst_ranking.onSelect = [this] { TakeCandidate(); };
  btn_calculate.onClick = [this] { Calculate(); };
  PassesFocusOn(
      {&txt_density, &txt_speed, &txt_largest_speed, &txt_tip_speed, &txt_power, &txt_efficiency});

  SetDefault(btn_calculate);
  LoadsWith(Command3, file);
  SavesWith(Command2, file);
  PrintsWith(btn_print);
  HelpsWith(btn_help);
  ExitsWith(btn_exit);
}

Layout BLOWERS::Arrangement() {
  return Column(
      {Row({Column({Form({txt_flow, txt_pressure, txt_temperature, txt_altitude, cmb_wheel}),
                    lst_ranking.CaptionBeside(), lst_ranking}),
            Column({lbl_wheel, lbl_fit, Rule(),
                    Form({txt_density, txt_speed, txt_largest_speed, txt_tip_speed, txt_power,
                          txt_efficiency}),
                    picture_, sample_, Stretch()})}),
       Row({btn_calculate, Stretch(), Command3, Command2, btn_print, btn_help, btn_exit})});
}

void BLOWERS::Load() {
  CalculatorWindow::Load();
  Session& session = GetSession();
  wheels_ = ParseWheels(session.ReadTable(kWheelFile), session.ReadTable(kCurveFile));
  std::vector<std::string> items{kBest};
  for (const BlowerWheel& wheel : wheels_) items.push_back(NameOf(wheel));
  cmb_wheel.SetItems(std::move(items));
  cmb_wheel.Select(0);
}

// ---- The duty ----

void BLOWERS::Calculate() {
  const std::optional<Refusal> refusal = ReadDuty();
  if (!refusal) {
    RankWheels();
    ShowWheel();
    return;
  }
  GetSession().Message(refusal->message);
  Clear();
  refusal->field->SelectAll();
  refusal->field->SetFocus();
}

// In the midst of a load, too: inputs that make no sense are only told by the command.
void BLOWERS::ChooseWheel() {
  if (ReadDuty()) {
    Clear();
  } else {
    RankWheels();
    ShowWheel();
  }
}

/// What is wrong with the inputs; the duty is theirs if nothing is.
std::optional<BLOWERS::Refusal> BLOWERS::ReadDuty() {
  const Single typed = ToNumber(txt_temperature);
  const Double temperature = IsMetric() ? CelsiusToFahrenheit(typed) : Double(typed);
  const Single altitude = txt_altitude.Us();
  const Single flow = txt_flow.Us(), pressure = txt_pressure.Us();
  if (flow <= 0) return Refusal{&txt_flow, "Enter a flow above 0."};
  if (pressure <= 0) return Refusal{&txt_pressure, "Enter a static pressure above 0."};
  if (temperature <= kAbsoluteZero)
    return Refusal{&txt_temperature, "Enter a temperature above absolute zero."};
  if (altitude > kTropopause)
    return Refusal{&txt_altitude, IsMetric() ? "Enter an altitude of no more than 11,000 m."
                                             : "Enter an altitude of no more than 36,089 ft."};
  duty_ = {flow, pressure, DensityRatio(temperature, altitude)};
  return {};
}

void BLOWERS::Clear() {
  ranking_.clear();
  walking_ = true;
  lst_ranking.SetItems({});
  walking_ = false;
  txt_density.Clear();
  ClearResults();
}

/// Those that suit by their power, then the others as the catalogue has them.
void BLOWERS::RankWheels() {
  txt_density.Show(Shown(duty_.density * kStandardDensity, kKilograms),
                   IsMetric() ? Mask("0.000") : Mask("0.0000"));
  ranking_.clear();
  for (int i = 0; i < static_cast<int>(wheels_.size()); ++i)
    ranking_.push_back({i, Operate(At(i), duty_)});
  const auto others =
      std::stable_partition(ranking_.begin(), ranking_.end(),
                            [](const Candidate& candidate) { return candidate.operation.Suits(); });
  std::stable_sort(ranking_.begin(), others, [](const Candidate& a, const Candidate& b) {
    return a.operation.power < b.operation.power;
  });
  std::vector<std::string> rows;
  for (const Candidate& candidate : ranking_) rows.push_back(RowOf(candidate));
  walking_ = true;
  lst_ranking.SetItems(std::move(rows));
  walking_ = false;
}

void BLOWERS::TakeCandidate() {
  if (walking_ || lst_ranking.Index() < 0) return;
  cmb_wheel.Select(ranking_[static_cast<std::size_t>(lst_ranking.Index())].wheel + 1);
}

// ---- The wheel ----

void BLOWERS::ShowWheel() {
  ClearResults();
  const int wheel = cmb_wheel.Index() - 1;
  auto chosen = ranking_.begin();
  if (wheel >= 0) chosen = std::ranges::find(ranking_, wheel, &Candidate::wheel);
  const bool none = wheel < 0 && !chosen->operation.Suits();
  walking_ = true;
  lst_ranking.Select(none ? -1 : static_cast<int>(chosen - ranking_.begin()));
  walking_ = false;
  if (none)
    lbl_wheel.SetCaption("No wheel suits.");
  else
    ShowOperation(At(chosen->wheel), chosen->operation);
}

void BLOWERS::ShowOperation(const BlowerWheel& wheel, const FanOperation& operation) {
  lbl_wheel.SetCaption(NameOf(wheel));
  lbl_fit.SetCaption(operation.Suits()
                         ? std::string("Suits.")
                         : std::string("Does not suit: ") + WhyNot(operation.fit) + '.');
  txt_largest_speed.Show(wheel.largestSpeed, "#,##0");
  if (operation.HasSpeed()) {
    txt_speed.Show(operation.speed, "#,##0");
    const Double tip = wheel.TipSpeed(operation.speed);
    IsMetric() ? txt_tip_speed.Show(tip * kMetersPerSecond, "0.0")
               : txt_tip_speed.Show(tip, "#,##0");
    txt_power.Show(Shown(operation.power, kKilowatts), "0.00");
    txt_efficiency.Show(operation.efficiency * kPercent, "0.0");
  }
  picture_.Draw(Curve(wheel, operation));
}

void BLOWERS::ClearResults() {
  for (TextField* field :
       {&txt_speed, &txt_largest_speed, &txt_tip_speed, &txt_power, &txt_efficiency})
    field->Clear();
  lbl_wheel.SetCaption("");
  lbl_fit.SetCaption("");
  picture_.Draw(Chart(1, 1).Take());
}

/// At the speed that the duty needs, or else at the largest one.
Drawing BLOWERS::Curve(const BlowerWheel& wheel, const FanOperation& operation) const {
  const Double speed = operation.Suits() ? operation.speed : wheel.largestSpeed;
  const Double ratio = speed / wheel.ratedSpeed;
  std::vector<std::pair<double, double>> points;
  double flow = txt_flow.Shown(duty_.flow).Value();
  double pressure = txt_pressure.Shown(duty_.pressure).Value();
  for (const FanPoint& point : wheel.curve) {
    points.emplace_back(
        txt_flow.Shown(point.flow * ratio).Value(),
        txt_pressure.Shown(point.pressure * Power(ratio, 2) * duty_.density).Value());
    flow = std::max(flow, points.back().first);
    pressure = std::max(pressure, points.back().second);
  }
  constexpr double room = 1.08;  // beyond the curve
  flow *= room;
  pressure *= room;
  Chart chart(flow, pressure);
  chart.Axes(txt_flow.Caption(), IsMetric() ? "SP (Pa)" : "SP (in WG)");
  const double dutyFlow = txt_flow.Shown(duty_.flow).Value();
  const double dutyPressure = txt_pressure.Shown(duty_.pressure).Value();
  std::vector<Point> curve, system;
  for (const auto& [x, y] : points) curve.push_back(chart.At(x, y));
  constexpr int steps = 40;
  const double last = std::min(flow, dutyFlow * std::sqrt(pressure / dutyPressure));
  for (int i = 0; i <= steps; ++i) {
    const double x = last * i / steps;
    system.push_back(chart.At(x, dutyPressure * (x / dutyFlow) * (x / dutyFlow)));
  }
  chart.Line(std::move(curve), Ink::Line, 2);
  chart.Line(std::move(system), Ink::Accent, 1.5);
  chart.Dot(chart.At(dutyFlow, dutyPressure));
  chart.Legend("Wheel at " + Format(speed, "#,##0") + " rpm");
  return chart.Take();
}

// ---- Texts ----

Double BLOWERS::Shown(Double value, double metricFactor) const {
  return IsMetric() ? value * metricFactor : value;
}

std::string BLOWERS::Size(Double inches) const {
  return IsMetric() ? Format(inches * kMillimeters, "0") : PlainText(inches);
}

std::string BLOWERS::NameOf(const BlowerWheel& wheel) const {
  return wheel.type + ", " + Size(wheel.diameter) + " x " + Size(wheel.width) +
         (IsMetric() ? " mm" : " in");
}

// The type by its initials, so that the row is no wider than its list.
std::string BLOWERS::RowOf(const Candidate& candidate) const {
  constexpr std::size_t types = 3, sizes = 5, numbers = 7;
  const BlowerWheel& wheel = At(candidate.wheel);
  const FanOperation& operation = candidate.operation;
  const std::string name = PaddedRight(Initials(wheel.type), types) +
                           PaddedLeft(Size(wheel.diameter), sizes) + (IsMetric() ? " mm " : " in ");
  if (!operation.Suits()) return name + ' ' + WhyNot(operation.fit);
  return name + PaddedLeft(Format(operation.speed, "#,##0"), numbers) + " rpm" +
         PaddedLeft(Format(Shown(operation.power, kKilowatts), "0.00"), numbers) +
         (IsMetric() ? " kW" : " hp") +
         PaddedLeft(Format(operation.efficiency * kPercent, "0"), numbers - 3) + " %";
}

}  // namespace korvane
