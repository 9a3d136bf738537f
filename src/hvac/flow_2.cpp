#include "hvac/flow_2.h"

#include "frame/search.h"

namespace korvane {
namespace {

constexpr double kCubicFeetPerGallon = 0.1336805555556;
constexpr double kLitersPerGallon = 3.785411784;
constexpr double kMetersPerFoot = 0.3048;
constexpr double kGravity = 32.17;                // ft/s2
constexpr double kWater = 62.42;                  // lb/ft3
constexpr double kReynsPerCentipoise = 2.089e-5;  // lbf-sec/ft2
constexpr double kMinorLosses = 1.5;              // of entrance and exit, in pipe diameters

const Single kRoughest = 0.1;
const Single kSmoothest = 1e-6;
const Single kLeastSaybolt = 32;

constexpr int kSearchEnd = 1000;  // gal/min

/// A search takes thousands of squares; a general power is many times slower.
Double Square(Double x) { return x * x; }

}  // namespace

Double Friction(Double Re, Double rough) {
  const Double laminar = 64 / Re;
  if (Re < 2300) return laminar;
  const Double logRough = Log10(rough);
  Double f = 0.01;
  for (int round = 0; round <= 5; ++round) {
    const Double g = 1.14 - 2 * (Log10(1 + 9.3 / (Re * rough * Sqrt(f))) + logRough);
    f = 1 / Square(g);
  }
  if (Re < 5500)
    f = (Log10(Re) - Log10(2300)) / (Log10(5000) - Log10(2300)) * (f - laminar) + laminar;
  return f;
}

Double SayboltFromCentistokes(Double v) {
  const Double at100F =
      4.6324 * v +
      (1 + 0.03264 * v) * 100000 / (1.646 * Power(v, 3) + 23.97 * Power(v, 2) + 262.7 * v + 3930.2);
  return (1 + (68 - 100) * 6.1e-5) * at100F;
}

Double StokesFromSaybolt(Single ssu) {
  return ssu <= 100 ? 0.00226 * ssu - 1.95 / ssu : 0.0022 * ssu - 1.35 / ssu;
}

const std::array<flow_2::Fitting, 16> flow_2::kFittings = {{
    {"txt_elbows90L", "90 Deg Long Radius Elbows", 20, "X", "elbows90L"},
    {"txt_elbows90", "90 Deg Standard Elbows", 30, "ELBOWS90", "elbows90"},
    {"txt_elbows90st", "90 Deg Street Elbows", 50, "X", "elbows90st"},
    {"txt_elbows45", "45 Deg Standard Elbows", 16, "ELBOWS45", "elbows45"},
    {"txt_elbows45st", "45 Deg Street Elbows", 26, "X", "elbows45st"},
    {"txt_gvalves", "Gate Valves - Wide Open", 13, "GATEVALVES", "gvalves"},
    {"txt_gvalves75", "Gate Valves - 3/4  Open", 35, "X", "gvalves75"},
    {"txt_gvalves50", "Gate Valves - 1/2  Open", 160, "X", "gvalves50"},
    {"txt_gvalves25", "Gate Valves - 1/4  Open", 900, "X", "gvalves25"},
    {"txt_globes", "Globe Valves - Wide Open", 450, "X", "globes"},
    {"txt_angles", "Angle Valves - Wide  Open", 200, "X", "angles"},
    {"txt_bvalves", "Butterfly Valves - Wide Open", 20, "BUTTERFLYVALVES", "bvalves"},
    {"txt_swing_checks", "Swing Checks - Wide Open", 135, "X", "swing_checks"},
    {"txt_ball_checks", "Ball Checks - Wide Open", 150, "X", "ball_checks"},
    {"txt_tee_run", "Tees - Flow Through Run", 20, "X", "tee_run"},
    {"txt_tee_branch", "Tees - Flow Through Branch", 60, "X", "tee_branch"},
}};

flow_2::flow_2(Session& session)
    : CalculatorWindow(session, {.name = "flow_2",
                                 .title = "Fluid  Flow  Through  Pipes",
                                 .helpPage = "hvac_fluid_flow_in_pipes.html"}) {
  const Handler tab = [this] { GetSession().SendTab(); };
  for (const Fitting& fitting : kFittings) {
    TextField& count = *counts_.emplace_back(
        std::make_unique<TextField>(*this, fitting.name, fitting.caption, "0"));
    OnEnter(count, fitting.mode, tab);
    SelectsOnFocus({&count});
  }
  Count("txt_tee_branch").onEnter = nullptr;
  OnEnter(Count("txt_tee_branch"), "X", [this] { txt_diameter.SetFocus(); });

  OnEnter(txt_diameter, "DIAMETER", tab);
  OnEnter(txt_length, "LENGTH", tab);
  OnEnter(txt_gpm, "GPM", tab);
  OnEnter(txt_cfm, "CFM", tab);
  OnEnter(txt_Z, "Z", tab);
  OnEnter(txt_roughness, "ROUGHNESS", [this] { Count("txt_elbows90L").SetFocus(); });
  OnEnter(txt_feet, "HEAD");
  OnEnter(txt_psi, "PSI");
  OnEnter(txt_hp, "HP");
  OnEnter(txt_velocity, "VELOCITY");
  OnEnter(txt_reynolds, "REYNOLDS");
  txt_friction.onEnter = [] {};
  // The run that the key starts still uses the old viscosity.
  OnEnter(txt_density, "DENSITY", [this] {
    ClearDerivedViscosities();
    txt_centipoise.SetFocus();
  });
  OnViscosity(txt_centipoise, "CENTIPOISE", &flow_2::FromCentipoise);
  OnViscosity(txt_centistokes, "CENTISTOKES", &flow_2::FromCentistokes);
  OnViscosity(txt_SSU, "SSU", &flow_2::FromSaybolt);
  OnViscosity(txt_dynamic_viscosity, "mu", &flow_2::FromDynamicViscosity);
  OnViscosity(txt_kinematic_viscosity, "nu", &flow_2::FromKinematicViscosity);
  SelectsOnFocus({&txt_diameter, &txt_length, &txt_gpm, &txt_cfm, &txt_Z, &txt_density,
                  &txt_centipoise, &txt_centistokes, &txt_SSU, &txt_dynamic_viscosity,
                  &txt_kinematic_viscosity, &txt_roughness});

  ShowsResultsIn({&txt_velocity, &txt_reynolds, &txt_friction});

  file = {"FLUID FLOW", "fluidflo.dta", "Load data file...", Records(), [this] { Solve(); }};
  btn_calc.onClick = [this] { Solve(); };
  btn_clear.onClick = [this] { Clear(); };
  SetDefault(btn_calc);
  LoadsWith(Command2, file);
  SavesWith(Command1, file);
  PrintsWith(btn_print);
  HelpsWith(btn_help);
  ExitsWith(btn_exit);
}

Layout flow_2::Arrangement() {
  std::vector<Layout> fittings;
  for (const auto& count : counts_) fittings.emplace_back(*count);
  return Column(
      {instruction_,
       Row({Column({Form({txt_diameter, txt_length, txt_gpm, txt_cfm, txt_Z, txt_density,
                          txt_centipoise, txt_centistokes, txt_SSU, txt_dynamic_viscosity,
                          txt_kinematic_viscosity, txt_roughness}),
                    Rule(),
                    Form({txt_velocity, txt_reynolds, txt_friction, txt_feet, txt_psi, txt_hp})}),
            Column({Form(std::move(fittings)), Stretch()})}),
       Row({btn_calc, Stretch(), btn_clear, Command2, Command1, btn_print, btn_help, btn_exit})});
}

TextField& flow_2::Count(const char* name) const {
  for (std::size_t i = 0; i < kFittings.size(); ++i)
    if (std::string_view(kFittings[i].name) == name) return Count(i);
  failures::ObjectNotSet();
}

std::vector<Record> flow_2::Records() {
  std::vector<Record> records = {
      TextRecord("Pipe ID", txt_diameter),
      TextRecord("Pipe length", txt_length),
      TextRecord("Flow gpm", txt_gpm),
      TextRecord("Flow scfm", txt_cfm),
      TextRecord("Elevation", txt_Z),
      TextRecord("Density", txt_density),
      TextRecord("Viscosity cp", txt_centipoise),
      TextRecord("Viscosity cs", txt_centistokes),
      TextRecord("Viscosity ssu", txt_SSU),
      TextRecord("Dynamic viscosity", txt_dynamic_viscosity),
      TextRecord("Kinematic viscosity", txt_kinematic_viscosity),
      TextRecord("Roughness factor", txt_roughness),
  };
  for (std::size_t i = 0; i < kFittings.size(); ++i)
    records.push_back(TextRecord(kFittings[i].label, Count(i)));
  return records;
}

void flow_2::Load() {
  CalculatorWindow::Load();
  Mode = "FORMLOAD";
  GetSession().Show(*this);
  txt_diameter.SetFocus();
}

Single flow_2::Times(const TextField& field, double factor) const {
  const Single value = ToNumber(field);
  return IsMetric() ? Single(value * factor) : value;
}

Single flow_2::Over(const TextField& field, double divisor) const {
  const Single value = ToNumber(field);
  return IsMetric() ? Single(value / divisor) : value;
}

void flow_2::OnEnter(TextField& field, const char* mode, Handler afterwards) {
  field.onEnter = [this, mode, afterwards = std::move(afterwards)] {
    Mode = mode;
    Solve();
    if (afterwards) afterwards();
  };
}

// ---- The five forms of viscosity, each from the one that was entered ----

void flow_2::OnViscosity(TextField& field, const char* mode, void (flow_2::*convert)()) {
  field.onEnter = [this, &field, mode, convert] {
    if (ToNumber(field) > 0) (this->*convert)();
    Mode = mode;
    Solve();
    GetSession().SendTab();
  };
}

void flow_2::ClearDerivedViscosities() {
  for (TextField* field :
       {&txt_centistokes, &txt_SSU, &txt_dynamic_viscosity, &txt_kinematic_viscosity})
    field->Clear();
}

Double flow_2::SpecificGravity() const {
  const Single density = ToNumber(txt_density);
  return IsMetric() ? Double(density / 1000) : density / kWater;
}

void flow_2::FromCentipoise() {
  SG = SpecificGravity();
  cp = ToNumber(txt_centipoise);
  const Single cs = cp / SG;
  txt_centistokes.Show(cs, "0.######");
  nu = cs * 1.07639e-5;
  txt_kinematic_viscosity.Show(nu, "0.########");
  txt_dynamic_viscosity.Show((SG * 62.4279737) * (nu * 0.03108), "0.########");
  txt_SSU.Show(SayboltFromCentistokes(cs), "0.###");
}

void flow_2::FromCentistokes() {
  SG = SpecificGravity();
  cp = SG * ToNumber(txt_centistokes);
  txt_centipoise.Show(cp, "0.########");
  const Double mu = cp * kReynsPerCentipoise;
  txt_dynamic_viscosity.Show(mu, "0.########");
  nu = mu / (ToNumber(txt_density) / kGravity);
  txt_kinematic_viscosity.Show(nu, "0.########");
  txt_SSU.Clear();
}

void flow_2::FromSaybolt() {
  SG = ToNumber(txt_density) / kWater;
  SSU = ToNumber(txt_SSU);
  if (SSU < kLeastSaybolt) {
    SSU = kLeastSaybolt;
    txt_SSU.SetText("32");
  }
  const Double cs = 100 * StokesFromSaybolt(SSU);
  txt_centistokes.Show(cs, "0.########");
  cp = SG * cs;
  txt_centipoise.Show(cp, "0.########");
  const Double mu = cp * kReynsPerCentipoise;
  txt_dynamic_viscosity.Show(mu, "0.########");
  nu = mu / (ToNumber(txt_density) / kGravity);
  txt_kinematic_viscosity.Show(nu, "0.########");
}

void flow_2::FromDynamicViscosity() {
  txt_centistokes.Clear();
  txt_SSU.Clear();
  const Single mu = ToNumber(txt_dynamic_viscosity);
  cp = mu / kReynsPerCentipoise;
  txt_centipoise.Show(cp, "#.####");
  nu = mu / (ToNumber(txt_density) / kGravity);
  txt_kinematic_viscosity.Show(nu, "#.########");
}

void flow_2::FromKinematicViscosity() {
  txt_centistokes.Clear();
  txt_SSU.Clear();
  nu = ToNumber(txt_kinematic_viscosity);
  const Double mu = (ToNumber(txt_density) / kGravity) * nu;
  txt_dynamic_viscosity.Show(mu, "#.########");
  cp = mu / kReynsPerCentipoise;
  txt_centipoise.Show(cp, "#.####");
}

// ---- Solving ----

void flow_2::Solve() {
  for (const char* name : {"txt_gvalves", "txt_elbows90", "txt_elbows45", "txt_bvalves"})
    ToInteger16(ToNumber(Count(name)));  // more fittings than 16 bits overflow

  const Single mu = ToNumber(txt_dynamic_viscosity);
  nu = ToNumber(txt_kinematic_viscosity);
  cp = ToNumber(txt_centipoise);
  rho = Over(txt_density, 16.019);
  if (nu == 0 && !DeriveViscosity(mu)) return;

  D = Over(txt_diameter, 25.4);
  Dft = D / 12;
  LimitRoughness();
  L = ReadUpward(txt_length);
  Z = ReadUpward(txt_Z);
  LinkFlows();
  if (D == 0) return;
  V = gpm * 0.408 / Square(D);
  txt_velocity.Show(IsMetric() ? V * kMetersPerFoot : V, "#.###");
  SumFittings();
  if (Mode == "HEAD" || Mode == "PSI" || Mode == "HP") FindFlow();
  ShowResults();
}

/// From the centipoise, or else from the Saybolt value entered last; false if neither is there.
bool flow_2::DeriveViscosity(Double mu) {
  if (cp > 0) {
    txt_centistokes.Clear();
    txt_SSU.Clear();
    mu = cp * kReynsPerCentipoise;
  } else if (SSU > 0) {
    SG = rho / kWater;
    if (SSU < kLeastSaybolt) SSU = kLeastSaybolt;
    const Double cs = 100 * StokesFromSaybolt(SSU);
    txt_centistokes.Show(cs, "0.########");
    cp = SG * cs;
    txt_centipoise.Show(cp, "0.########");
    mu = cp * kReynsPerCentipoise;
  } else {
    GetSession().Message("Enter a fluid viscosity.", Icon::Information);
    txt_centipoise.SetFocus();
    return false;
  }
  txt_dynamic_viscosity.Show(mu, "0.########");
  nu = mu / (rho / kGravity);
  txt_kinematic_viscosity.Show(nu, "0.########");
  return true;
}

void flow_2::LimitRoughness() {
  const auto hold = [this](const char* message, Single limit) {
    GetSession().Message(message + PlainText(limit), Icon::Exclamation);
    rough = limit;
    txt_roughness.Show(limit);
  };
  rough = ToNumber(txt_roughness);
  if (rough > kRoughest)
    hold("Maximum allowable Roughness Factor = ", kRoughest);
  else if (rough < kSmoothest)
    hold("Minimum Roughness Factor = ", kSmoothest);
}

/// A length in feet; a negative one becomes 0, on the screen too.
Single flow_2::ReadUpward(TextField& field) {
  const Single value = Times(field, 3.2808);
  if (value >= 0) return value;
  field.SetText("0");
  return 0;
}

// The flow entered last rules the other.
void flow_2::LinkFlows() {
  gpm = IsMetric() ? Single(ToNumber(txt_gpm) / kLitersPerGallon * 60) : ToNumber(txt_gpm);
  cfm = Over(txt_cfm, 1.699);
  if (Mode == "CFM") {
    gpm = cfm / kCubicFeetPerGallon;
    txt_gpm.Show(IsMetric() ? gpm * kLitersPerGallon / 60 : Double(gpm), "#.###");
  } else {
    cfm = gpm * kCubicFeetPerGallon;
    txt_cfm.Show(IsMetric() ? cfm * 1.69901079552 : Double(cfm), "#.###");
  }
}

void flow_2::SumFittings() {
  LD = 0;
  for (std::size_t i = 0; i < kFittings.size(); ++i)
    LD = LD + ToNumber(Count(i)) * kFittings[i].diameters;
  Ltot = L / Dft + LD + kMinorLosses;
}

/// Velocity, friction and head of the flow in hand.
void flow_2::FlowState() {
  V = gpm * 0.408 / Square(D);
  Re = Dft * V / nu;
  f = Friction(Re, rough);
  Ltot = L / Dft + LD + kMinorLosses;
  head = Square(V) * (Ltot * f) / 64.4 + Z;
}

Single flow_2::Target() const {
  if (Mode == "HEAD") return Times(txt_feet, 3.2808);
  if (Mode == "PSI") return Times(txt_psi, 145);
  return Over(txt_hp, 0.746);
}

Single flow_2::Compared() const {
  if (Mode == "HEAD") return head;
  if (Mode == "PSI") return head * rho / 144;
  return head * gpm * rho / 247000;
}

// Three passes of ever smaller steps, each from one step before the flow at which the one before
// went beyond the target. One that never did leaves the next one to start from 0, where the
// friction factor fails; so a search takes some 1200 steps at most.
void flow_2::FindFlow() {
  Search search(GetSession());
  const Single target = Target();
  Single start = 1;
  for (const double size : {1.0, 0.01, 0.0001}) {
    const Single step = size;
    Single next = 0;
    for (gpm = start; gpm <= kSearchEnd; gpm += step) {
      FlowState();
      search.Stepped();
      if (Compared() > target) {
        next = gpm - size;
        break;
      }
    }
    start = next;
  }
}

void flow_2::ShowResults() {
  if (gpm <= 0) return;
  Dft = D / 12;
  if (IsMetric()) {
    Re = Dft * V / nu;
    f = Friction(Re, rough);
    head = Square(V) * (Ltot * f) / 64.4 + Z;
  } else {
    cfm = gpm * kCubicFeetPerGallon;
    SumFittings();
    FlowState();
  }
  const Single psi = head * rho / 144;
  hp = head * gpm * rho / 247000;
  if (IsMetric())
    ShowMetric(psi);
  else
    ShowUs(psi);
}

void flow_2::ShowUs(Single psi) {
  txt_diameter.Show(D, "#.####");
  txt_gpm.Show(gpm, "#.###");
  txt_cfm.Show(cfm, "#.######");
  txt_velocity.Show(V, "#.######");
  txt_reynolds.Show(Re, "#########");
  txt_friction.Show(f, "#.###");
  txt_feet.Show(head, "#.###");
  txt_psi.Show(psi, "#.###");
  txt_hp.Show(hp, "#.###");
}

void flow_2::ShowMetric(Single psi) {
  if (Mode == "CFM")
    gpm = cfm / kCubicFeetPerGallon;
  else
    cfm = gpm * kCubicFeetPerGallon;
  txt_diameter.Show(D * 25.4, "#.###");
  txt_gpm.Show(gpm * kLitersPerGallon / 60, "#.###");
  txt_cfm.Show(cfm * 1.69901079552, "#.###");
  txt_velocity.Show(V * kMetersPerFoot, "#.###");
  txt_reynolds.Show(Re, "#########");
  txt_friction.Show(f, "#.###");
  txt_feet.Show(head * 304.8, "#");
  txt_psi.Show(psi * 0.006895, "#.######");
  txt_hp.Show(hp * 0.746, "#.###");
}

void flow_2::Clear() {
  for (const auto& count : counts_) count->SetText("0");
  for (TextField* field : {&txt_diameter, &txt_gpm, &txt_cfm, &txt_velocity, &txt_reynolds,
                           &txt_friction, &txt_feet, &txt_psi, &txt_hp})
    field->Clear();
  txt_length.SetText("100");
  txt_Z.SetText("0");
  txt_density.SetText("62.42");  // in metric units too
  txt_centipoise.SetText("1");
  ClearDerivedViscosities();
  txt_roughness.SetText("0.0005");
  txt_diameter.SetFocus();
}

}  // namespace korvane
