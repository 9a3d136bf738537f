#include "hvac/duct_size.h"

#include "frame/session.h"

namespace korvane {
namespace {

constexpr double kPi = 3.1415926;
constexpr int kSquareInches = 144;            // in a square foot
constexpr double kStandardPressure = 14.696;  // psia

// What divides a metric number to give the one in U.S. units.
constexpr double kMillimeters = 25.4;           // in an inch
constexpr double kSquareMeters = 0.09290304;    // in a square foot
constexpr double kCubicMeters = 1.69901079552;  // an hour in a cfm
constexpr double kMeters = 0.3028;              // in a foot; 0.3048 would be true to size
constexpr double kKilopascals = 6.8948;         // in a psi, of the inlet
constexpr double kDensity = 16.018;             // kg/m3 in a lb/ft3

constexpr double kPoundsPerFoot = 0.000672;  // lb/ft-s in a centipoise

constexpr std::size_t kUsual = 4;  // the roughness that the window opens with

Double Square(Double x) { return x * x; }

/// Diameter of a circle of this area.
Double DiameterOf(Double area) { return Power(area / kPi, 0.5) * 2; }
/// Area of a circle of this diameter.
Double CircleOf(Double D) { return kPi * Square(D / 2); }

}  // namespace

Double EqualFrictionDiameter(Double W, Double H) {
  return 1.3 * (Power(W * H, 0.625) / Power(W + H, 0.25));
}

Double EqualAreaDiameter(Double W, Double H) { return DiameterOf(W * H); }

std::optional<Double> FindSide(Double known, Double diameter) {
  constexpr double step = 0.001;
  constexpr int longest = 100;
  for (Double side = step; side <= longest; side += step)
    if (EqualFrictionDiameter(known, side) >= diameter) return side;
  return {};
}

Double DuctFriction(Double e, Double Re) {
  const Double start = 0.0055 * (1 + Power(20000 * e + 1000000 / Re, 1.0 / 3));
  const Double logarithm = Ln(e / 3.7 + 2.51 / (Re * Power(start, 0.5))) / 2.3026;
  return Square(1 / (-2 * logarithm));
}

struct Duct_Size::Roughness {
  const char* option;
  const char* name;
  double us;      // ft
  double metric;  // m
};

const Duct_Size::Roughness Duct_Size::kRoughness[] = {
    {"Option1", "Uncoated Steel --- Smooth", 0.0001, 3e-5},
    {"Option2", "Plastic Pipe --- Smooth", 0.0001, 3e-5},
    {"Option3", "Aluminum --- Smooth", 0.0001, 3e-5},
    {"Option4", "Galvanized Steel --- Med. Smooth", 0.0003, 9.1e-5},
    {"Option5", "Galvanized Steel --- Average", 0.0005, 0.0001514},
    {"Option6", "Fiberglass Duct --- Med. Rough", 0.003, 0.00091},
    {"Option7", "Fiberglass Duct --- Rough", 0.01, 0.003},
    {"Option8", "Flex Duct Fabric/Wire --- Rough", 0.01, 0.003},
    {"Option9", "Concrete --- Rough", 0.01, 0.003},
};

Duct_Size::Duct_Size(Session& session)
    : CalculatorWindow(session, {.name = "Duct_Size",
                                 .title = " Pressure Drop Through Ducting",
                                 .helpPage = "hvac_duct_sizing.html"}) {
  for (const Roughness& roughness : kRoughness) {
    const auto caption = [&roughness](double value) {
      return std::string(roughness.name) + " --- " + PlainText(Double(value));
    };
    Option& option = *roughnesses_.emplace_back(std::make_unique<Option>(
        Frame1, roughness.option, UnitText(caption(roughness.us), caption(roughness.metric))));
    option.onClick = [this, &roughness] {
      txt_roughness.Show(Double(IsMetric() ? roughness.metric : roughness.us));
      CalculateDuct();
    };
  }
  opt_circular.onClick = [this] { ChooseCircular(); };
  opt_rectangular.onClick = [this] { ChooseRectangular(); };
  btn_calc.onClick = [this] { CalculateDuct(); };
  btn_restore_defaults.onClick = [this] { RestoreDefaults(); };
  ShowsResultsIn({&txt_velocity, &txt_reynolds, &txt_relative_roughness, &txt_friction_factor,
                  &txt_dp1, &txt_dp2});

  SetDefault(btn_calc);
  PrintsWith(Command2);
  HelpsWith(Command3);
  ExitsWith(Command1);
}

Layout Duct_Size::Arrangement() {
  std::vector<Layout> roughnesses;
  for (const auto& option : roughnesses_) roughnesses.emplace_back(*option);
  return Column({Row({Column({Box(shape_, {Row({opt_circular, opt_rectangular, Stretch()})}),
                              Form({txt_width, txt_depth, txt_dia, txt_area, txt_flow, txt_length,
                                    txt_roughness, txt_inlet_pressure, txt_temperature, txt_density,
                                    txt_viscosity}),
                              Stretch()}),
                      Column({Box(Frame1, std::move(roughnesses)), Rule(),
                              Form({txt_velocity, txt_reynolds, txt_relative_roughness,
                                    txt_friction_factor, txt_dp1, txt_dp2}),
                              Stretch()})}),
                 Row({btn_calc, btn_restore_defaults, Stretch(), Command2, Command3, Command1})});
}

void Duct_Size::Load() {
  CalculatorWindow::Load();
  WriteDefaults();
  FollowShape();
  roughnesses_[kUsual]->TurnOn();
}

void Duct_Size::WriteDefaults() {
  for (TextField* field : {&txt_width, &txt_depth, &txt_dia, &txt_area, &txt_flow}) field->Clear();
  const auto write = [this](TextField& field, double us, double metric) {
    field.Show(Double(IsMetric() ? metric : us));
  };
  write(txt_length, 100, 30.48);
  write(txt_roughness, kRoughness[kUsual].us, kRoughness[kUsual].metric);
  write(txt_inlet_pressure, kStandardPressure, 101.325);
  write(txt_temperature, 70, 20);
  write(txt_density, 0.075, 1.20135);
  write(txt_viscosity, 1.285e-5, 0.019122);
}

void Duct_Size::RestoreDefaults() {
  WriteDefaults();
  roughnesses_[kUsual]->TurnOn();
  CalculateDuct();
  if (opt_circular.IsOn()) txt_dia.SetFocus();
}

/// The field's number in U.S. units: a metric one over this.
Double Duct_Size::Us(const TextField& field, double metric) const {
  const Single number = ToNumber(field);
  return IsMetric() ? number / metric : Double(number);
}

void Duct_Size::ShowLength(TextField& field, Double inches) {
  field.Show(IsMetric() ? inches * kMillimeters : inches, "0.000");
}

void Duct_Size::ShowArea(Double squareFeet) {
  if (IsMetric())
    txt_area.Show(squareFeet * kSquareMeters, "0.000000");
  else
    txt_area.Show(squareFeet, "0.000");
}

// ---- Shape ----

void Duct_Size::ChooseCircular() {
  for (TextField* field : {&txt_width, &txt_depth, &txt_area}) field->Clear();
  FollowShape();
  ClearResults();
  CalculateDuct();
}

void Duct_Size::ChooseRectangular() {
  FollowShape();
  ClearResults();
  CalculateDuct();
}

void Duct_Size::FollowShape() {
  const bool circular = opt_circular.IsOn();
  const auto open = [](TextField& field, bool input) {
    field.SetBack(input ? Color::Window() : Color::ButtonFace());
    field.SetLocked(!input);
  };
  open(txt_width, !circular);
  open(txt_depth, !circular);
  open(txt_dia, circular);
  lbl_dia.SetCaption((circular ? "Duct Diameter " : "Equivalent Diameter ") + unit_);
}

void Duct_Size::ClearResults() {
  for (TextField* field : {&txt_velocity, &txt_reynolds, &txt_relative_roughness,
                           &txt_friction_factor, &txt_dp1, &txt_dp2})
    field->Clear();
}

// ---- Calculation, in inches, feet, pounds and minutes ----

void Duct_Size::CalculateDuct() {
  const std::optional<Size> size = opt_circular.IsOn() ? CircularSize() : RectangularSize();
  if (size && Us(txt_flow, kCubicMeters) > 0) ShowFlow(*size);
}

std::optional<Duct_Size::Size> Duct_Size::CircularSize() {
  Double D = Us(txt_dia, kMillimeters);
  if (D > 0) {
    ShowArea(CircleOf(D) / kSquareInches);
  } else {
    const Double area = Us(txt_area, kSquareMeters);
    if (area <= 0) return {};
    D = DiameterOf(area * kSquareInches);
    ShowLength(txt_dia, D);
  }
  const Double area = CircleOf(D) / kSquareInches;
  return Size{D, area, area};
}

// The diameter of equal friction in metric units, that of equal area in U.S. ones.
std::optional<Duct_Size::Size> Duct_Size::RectangularSize() {
  Double W = Us(txt_width, kMillimeters);
  Double H = Us(txt_depth, kMillimeters);
  if ((W <= 0 || H <= 0) && !FindSides(W, H)) return {};
  const Double D = IsMetric() ? EqualFrictionDiameter(W, H) : EqualAreaDiameter(W, H);
  ShowLength(txt_dia, D);
  const Double area = W * H / kSquareInches;
  ShowArea(area);
  return Size{D, area, CircleOf(D) / kSquareInches};
}

/// From the area or else the diameter; false if that is not enough.
bool Duct_Size::FindSides(Double& W, Double& H) {
  const bool known = W > 0 || H > 0;
  Double& missing = W > 0 ? H : W;
  const Double given = W > 0 ? W : H;
  TextField& field = W > 0 ? txt_depth : txt_width;
  const Double area = Us(txt_area, kSquareMeters) * kSquareInches;
  if (area > 0 && !known) {
    W = H = Sqrt(area);
    ShowLength(txt_width, W);
    ShowLength(txt_depth, H);
    return true;
  }
  if (!known) return false;
  if (area > 0) {
    missing = area / given;
  } else {
    const Double D = Us(txt_dia, kMillimeters);
    const std::optional<Double> side = D > 0 ? FindSide(given, D) : std::nullopt;
    if (!side) return false;
    missing = *side;
  }
  ShowLength(field, missing);
  return true;
}

void Duct_Size::ShowFlow(const Size& size) {
  const Double Q = Us(txt_flow, kCubicMeters);
  const Single T = ToNumber(txt_temperature);
  const Single Tr = IsMetric() ? 273 / (T + 253) : 530 / (T + 460);
  const Double Pr = Us(txt_inlet_pressure, kKilopascals) / kStandardPressure;
  const Double rho = Us(txt_density, kDensity) * Pr * Tr;
  const Double V = Q / (Pr * Tr) / size.area;            // ft/min
  const Double v = Q / 60 / (Pr * Tr) / size.roundArea;  // ft/s
  txt_velocity.Show(IsMetric() ? V * 0.00508 : V, "0.000");

  const Double Dft = size.D / 12;
  Double viscosity = ToNumber(txt_viscosity);
  if (IsMetric()) viscosity *= kPoundsPerFoot;
  const Double Re = rho * v * Dft / viscosity;
  txt_reynolds.Show(Re, "0");
  const Double e = Us(txt_roughness, kMeters) / Dft;
  txt_relative_roughness.Show(e, "0.00000");
  const Double f = DuctFriction(e, Re);
  txt_friction_factor.Show(f, "0.00000");

  const Double head = f * (Us(txt_length, kMeters) / Dft) * (rho * Square(v) / 64.4);  // lb/ft2
  const Double P = head / kSquareInches;
  txt_dp1.Show(IsMetric() ? P * 6.894757 : P, "0.000000");
  txt_dp2.Show(IsMetric() ? P * 51.714918 : P * 27.73, "0.000000");
}

}  // namespace korvane
