#include "hvac/safevent.h"

#include "frame/delimited.h"

namespace korvane {
namespace {

/// The figures of a unit system: cubic feet, gallons, F and Btu/hr, or cubic meters, liters, C, kW.
struct Figures {
  const char* unknownAir;  // for a solvent that is not known
  const char* xyleneAir;
  double powder;  // that a unit of xylene weighs
  const char* powderPerBatch;
  const char* powderPerMinute;
  int coolest;
  int hot;            // from here up solvents take fire sooner
  int reference;      // temperature of their flammable limits
  double decline;     // of the limits, per degree
  double batch;       // air for a unit of solvent, where its evaporation is not known
  double continuous;  // the same, where it evaporates evenly
  double burnerAir;   // for this much heat
  double burnerHeat;
  Mask airMask;
};

constexpr Figures kUs = {.unknownAir = "2640",
                         .xyleneAir = "2945",
                         .powder = 7.3,
                         .powderPerBatch = "Maximum Powder Quantity (Pounds/Batch)",
                         .powderPerMinute = "Maximum Powder Rate (Pounds/Minute)",
                         .coolest = 70,
                         .hot = 250,
                         .reference = 77,
                         .decline = 0.000436,
                         .batch = 440,
                         .continuous = 12000,
                         .burnerAir = 183,
                         .burnerHeat = 1000000,
                         .airMask = "0"};
constexpr Figures kMetric = {.unknownAir = "19.75",
                             .xyleneAir = "22.11",
                             .powder = 0.879,
                             .powderPerBatch = "Maximum Powder Quantity (kg/Batch)",
                             .powderPerMinute = "Maximum Powder Rate (kg/Minute)",
                             .coolest = 21,
                             .hot = 121,
                             .reference = 25,
                             .decline = 0.000784,
                             .batch = 3.29,
                             .continuous = 340,
                             .burnerAir = 5.18,
                             .burnerHeat = 293.1,
                             .airMask = "0.00"};

const Figures& FiguresOf(const Session& session) { return session.MetricUnits ? kMetric : kUs; }

constexpr double kVapor = 0.09;          // xylene in powder, by weight
constexpr double kCubicMeters = 0.0075;  // per liter, in a cubic foot per gallon
constexpr int kUnknownAir = 2640;        // ft3/gal
constexpr double kCubicFeet = 35.31467;  // in a cubic meter
constexpr std::size_t kMostSolvents = 101;

}  // namespace

double AltitudeFactor(Single altitude, bool metric) {
  struct Step {
    int feet, meters;
    double factor;
  };
  constexpr Step steps[] = {{1000, 305, 1.04},  {2000, 610, 1.08},  {3000, 915, 1.12},
                            {4000, 1220, 1.16}, {5000, 1524, 1.2},  {6000, 1829, 1.25},
                            {7000, 2134, 1.3},  {8000, 2438, 1.35}, {9000, 2743, 1.4},
                            {10000, 3048, 1.45}};
  double factor = 1;
  for (const Step& step : steps)
    if (altitude >= (metric ? step.meters : step.feet)) factor = step.factor;
  return factor;
}

SAFEVENT::SAFEVENT(Session& session)
    : CalculatorWindow(session, {.name = "SAFEVENT",
                                 .title = "Safety Ventilation for Class A Ovens",
                                 .helpPage = "hvac_safety_ventilation.html"}),
      file{"SAFETY VENTILATION",
           "safevent.dta",
           "Load data...",
           {WordRecord("Method", {{opt_per_batch, "Per batch"}, {opt_per_minute, "Per minute"}}),
            MonitorRecord(), TextRecord("Gallons per batch", txt_gpbatch),
            TextRecord("Gallons per minute", txt_gpm), IndexRecord("Solvent", Combo1),
            TextRecord("Cubic feet per gallon", txt_cuft),
            TextRecord("Operating temperature", txt_temp),
            TextRecord("Chamber volume", txt_chamber_volume)},
           [this] { SolveVent(); }} {
  for (Option* option : method_.Options()) option->onClick = [this] { ChooseMethod(); };
  for (Option* option : monitor_.Options()) option->onClick = [this] { SolveVent(); };
  chk_gas_fired.onClick = [this] { ChooseBurner(); };
  Combo1.onSelect = [this] { TakeSolvent(); };
  Cmd_Solve.onClick = Command1.onClick = [this] { SolveVent(); };
  PassesFocusOn({&txt_atr, &txt_btuh, &txt_exhaust, &txt_intake, &txt_kw, &txt_purge_time});
  for (TextField* field : {&txt_LEL_CF, &txt_alt_CF, &txt_vent_area}) field->SetLocked(true);
  ShowsResultsIn({&txt_LEL_CF, &txt_alt_CF, &txt_vent_area});

  SetDefault(Cmd_Solve);
  LoadsWith(Command2, file);
  SavesWith(Command3, file);
  PrintsWith(cmd_prt);
  HelpsWith(cmd_help);
  ExitsWith(cmd_quit);
}

Layout SAFEVENT::Arrangement() {
  return Column(
      {Row({Box(method_, {opt_per_minute, opt_per_batch, opt_continuous, opt_powder_coat,
                          opt_powder_coat_continuous}),
            Column({Box(monitor_, {opt_monitor_no_25, opt_monitor_yes}), Stretch(),
                    Row({Stretch(), Command1})})}),
       Form({Row({txt_gpm, Stretch()}), Row({txt_gpbatch, Stretch()}),
             Row({txt_powder_load, Stretch()}), Row({Combo1, txt_cuft, Stretch()}),
             Row({txt_temp, lel_, txt_LEL_CF, Stretch()}),
             Row({txt_altitude, thin_air_, txt_alt_CF, Stretch()}),
             Row({txt_chamber_volume, Stretch()}), Row({chk_gas_fired, txt_burner_rating})}),
       Rule(),
       Form({Row({txt_atr, Stretch()}), Row({txt_intake, Stretch()}), Row({txt_exhaust, Stretch()}),
             Row({txt_btuh, kilowatts_, txt_kw, Stretch()}), Row({txt_purge_time, Stretch()}),
             Row({txt_vent_area, Stretch()})}),
       Row({Cmd_Solve, Stretch(), Command2, Command3, cmd_prt, cmd_help, cmd_quit})});
}

void SAFEVENT::Load() {
  CalculatorWindow::Load();
  FollowMethod();
  Enliven(txt_burner_rating, false);
  const char* const air = FiguresOf(GetSession()).unknownAir;
  txt_cuft.SetText(air);
  ReadSolvents();
  Combo1.Select(0);
  txt_cuft.SetText(air);
}

void SAFEVENT::ReadSolvents() {
  const std::string text = GetSession().ReadTable("solvents.dat");
  DelimitedReader reader(text);
  while (!reader.AtEnd()) {
    if (airs_.size() == kMostSolvents) failures::SubscriptOutOfRange();
    const std::string name = reader.Text();
    airs_.emplace_back(reader.Number());
    Combo1.AddItem(name);
  }
}

/// With no word for the one option its line stays open, and loading takes the next label for the
/// word.
Record SAFEVENT::MonitorRecord() {
  Record record =
      WordRecord("Monitor", {{opt_monitor_yes, "Option 1"}, {opt_monitor_no_25, "Option 2"}});
  record.value = [this] { return opt_monitor_no_25.IsOn() ? "Option 2" : ""; };
  record.endsLineIfEmpty = false;
  return record;
}

// ---- Choices ----

void SAFEVENT::TakeSolvent() {
  if (Combo1.Index() < 0) return;
  const Single air = airs_[static_cast<std::size_t>(Combo1.Index())];
  if (IsMetric())
    txt_cuft.Show(air * kCubicMeters, "0.00");
  else
    txt_cuft.Show(air);
  SolveVent();
}

TextField& SAFEVENT::LiveInput() {
  if (IsPowder()) return txt_powder_load;
  return opt_per_batch.IsOn() ? txt_gpbatch : txt_gpm;
}

void SAFEVENT::Enliven(TextField& field, bool live) {
  field.SetBack(live ? Color::Window() : Color::ButtonFace());
  field.SetEnabled(live);
  field.CaptionBeside().SetFore(live ? Color::Text() : Color::Bgr(0x808080));
  if (!live) field.Clear();
}

void SAFEVENT::FollowMethod() {
  TextField& live = LiveInput();
  Enliven(live, true);
  for (TextField* field : {&txt_gpm, &txt_gpbatch, &txt_powder_load})
    if (field != &live) Enliven(*field, false);
}

void SAFEVENT::ChooseMethod() {
  FollowMethod();
  LiveInput().SetFocus();
  SolveVent();
}

void SAFEVENT::ChooseBurner() {
  Enliven(txt_burner_rating, chk_gas_fired.IsOn());
  txt_burner_rating.SetFocus();
  SolveVent();
}

// ---- Ventilation ----

void SAFEVENT::SolveVent() {
  TakePowder();
  if (IsMetric() && Combo1.Text() == "UNKNOWN") txt_cuft.SetText(kMetric.unknownAir);
  const Inputs in = Read();
  const Double T = in.temperature;
  Double concentration;
  if (IsMetric()) concentration = ConcentrationFactor(T);
  const double altitude = AltitudeFactor(in.altitude, IsMetric());
  txt_alt_CF.Show(altitude, "0.00");
  if (in.air < 1) txt_cuft.SetText(FiguresOf(GetSession()).unknownAir);
  if (!IsMetric() && opt_per_minute.IsOn() && in.perMinute <= 0) {
    AskForRate();
    return;
  }
  const Double expansion = TemperatureRatio(T);
  if (!IsMetric()) concentration = ConcentrationFactor(T);
  Double air = SolventAir(in, altitude, concentration);
  if (chk_gas_fired.IsOn()) air = air + BurnerAir(T);
  const Mask mask = FiguresOf(GetSession()).airMask;
  txt_intake.Show(air, mask);
  txt_exhaust.Show(expansion * air, mask);
  ShowPurge(air);
  ShowHeat(air, T);
}

/// Of powder only the xylene in it counts.
void SAFEVENT::TakePowder() {
  const bool powder = IsPowder();
  if (powder) {
    const Figures& figures = FiguresOf(GetSession());
    const bool batch = opt_powder_coat.IsOn();
    lbl_powder_load.SetCaption(batch ? figures.powderPerBatch : figures.powderPerMinute);
    (batch ? txt_gpbatch : txt_gpm)
        .Show(kVapor * ToNumber(txt_powder_load) / figures.powder, "0.000");
    Combo1.SetText("o-Xylene");
    txt_cuft.SetText(figures.xyleneAir);
  }
  for (FocusControl* control : std::initializer_list<FocusControl*>{&Combo1, &txt_cuft}) {
    control->SetEnabled(!powder);
    control->SetBack(powder ? Color::ButtonFace() : Color::Window());
  }
}

SAFEVENT::Inputs SAFEVENT::Read() {
  const int coolest = FiguresOf(GetSession()).coolest;
  Inputs in{.air = ToNumber(txt_cuft),
            .perBatch = ToNumber(txt_gpbatch),
            .perMinute = ToNumber(txt_gpm),
            .temperature = ToNumber(txt_temp),
            .altitude = ToNumber(txt_altitude)};
  if (in.altitude == 0) txt_altitude.SetText("0");
  if (in.temperature < coolest) {
    in.temperature = coolest;
    txt_temp.Show(in.temperature);
  }
  return in;
}

void SAFEVENT::AskForRate() {
  for (TextField* field :
       {&txt_gpbatch, &txt_gpm, &txt_intake, &txt_exhaust, &txt_purge_time, &txt_btuh, &txt_kw})
    field->Clear();
  txt_gpm.SetFocus();
}

/// Of absolute temperatures; in U.S. units as it is shown.
Double SAFEVENT::TemperatureRatio(Double T) {
  if (IsMetric()) {
    const Double ratio = (T + 273) / 294;
    txt_atr.Show(ratio, "0.000");
    return ratio;
  }
  txt_atr.Show((T + 460) / 530, "0.00");
  return Strict(txt_atr);
}

/// For the lower flammable limit in hot air.
Double SAFEVENT::ConcentrationFactor(Double T) {
  const Figures& figures = FiguresOf(GetSession());
  Double factor = T >= figures.hot ? 1.4 : 1;
  if (opt_continuous.IsOn())
    factor = 1 / Strict(Format(1 - (T - figures.reference) * figures.decline, "0.00"));
  txt_LEL_CF.Show(factor, "0.00");
  return factor;
}

Double SAFEVENT::SolventAir(const Inputs& in, double altitude, Double concentration) const {
  const Figures& figures = FiguresOf(GetSession());
  // A solvent that takes more air than an unknown one gets less of the factors' margin; in metric
  // units none does.
  const Double solvent = !IsMetric() && in.air > kUnknownAir ? kUnknownAir / in.air : 1;
  const double monitor = opt_monitor_yes.IsOn() ? 0.5 : 1;
  Double x = figures.continuous * in.perMinute;
  if (opt_per_batch.IsOn() || opt_powder_coat.IsOn())
    x = figures.batch * in.perBatch;
  else if (opt_per_minute.IsOn())
    x = (10.0 / 60) * (60 * (in.air * in.perMinute));
  return solvent * (altitude * (concentration * (monitor * x)));
}

Double SAFEVENT::BurnerAir(Double T) {
  constexpr int cold = 70;  // in both unit systems
  const Figures& figures = FiguresOf(GetSession());
  const Double rating = ToNumber(txt_burner_rating);
  if (rating > 0 && T <= cold) txt_temp.SetFocus();
  return rating * figures.burnerAir / figures.burnerHeat;
}

void SAFEVENT::ShowPurge(Double air) {
  const Double volume = ToNumber(txt_chamber_volume);
  if (volume <= 1) return;
  txt_purge_time.Clear();
  if (air > 0) {
    const Double minutes = 4 * volume / air;
    txt_purge_time.Show(minutes < 1 ? Double(1) : minutes, "0.0");
  }
  txt_vent_area.Show(volume / 15, "0.000");
}

/// Btu/hr in both unit systems.
void SAFEVENT::ShowHeat(Double air, Double T) {
  Double heat =
      IsMetric() ? ((1.8 * T + 32) - 69.8) * (1.08 * (kCubicFeet * air)) : (T - 70) * (1.08 * air);
  if (heat < 0) heat = 0;
  txt_btuh.Show(heat, "0");
  txt_kw.Show(heat / 3412, "0.00");
}

}  // namespace korvane
