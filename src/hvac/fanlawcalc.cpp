#include "hvac/fanlawcalc.h"

#include "frame/session.h"

namespace korvane {
namespace {

constexpr double kAbsolute = 459.7;  // from F to degrees Rankine
constexpr double kStandard = 529.7;  // 70 F, in degrees Rankine

}  // namespace

FanLawCalc::FanLawCalc(Session& session)
    : CalculatorWindow(session, {.name = "FanLawCalc",
                                 .title = "Fan Law Calculator",
                                 .helpPage = "hvac_fan_law_calculations.html"}) {
  SelectsOnFocus({&rpm1, &cfm1, &txt_massflow1, &sp1, &hp1, &Hz1, &txt_degf1, &txt_degc1, &txt_rpm2,
                  &txt_cfm2, &txt_massflow2, &txt_sp2, &txt_hp2, &txt_hz2, &txt_degf2, &txt_degc2});
  PassesFocusOn({&txt_ATR});
  ShowsResultsIn({&txt_massflow1, &txt_massflow2});

  ComputesAndMovesOn({&rpm1, &sp1, &hp1, &Hz1, &txt_massflow1, &txt_massflow2, &txt_ATR}, [] {});
  ComputesAndMovesOn({&cfm1}, [this] { InitialFlow(); });
  ComputesAndMovesOn({&txt_degf1}, [this] { InitialFahrenheit(); });
  ComputesAndMovesOn({&txt_degc1}, [this] { InitialCelsius(); });
  OnAdjusted(txt_rpm2, &FanLawCalc::FollowSpeed);
  OnAdjusted(txt_cfm2, &FanLawCalc::FollowFlow);
  OnAdjusted(txt_sp2, &FanLawCalc::FollowPressure);
  OnAdjusted(txt_hp2, &FanLawCalc::FollowPower);
  OnAdjusted(txt_hz2, &FanLawCalc::FollowFrequency);
  OnAdjusted(txt_degf2, &FanLawCalc::FollowFahrenheit);
  OnAdjusted(txt_degc2, &FanLawCalc::FollowCelsius);

  Command4.onClick = [this] { Clear(); };
  PrintsWith(Command2);
  HelpsWith(Command3);
  ExitsWith(Command1);
}

Layout FanLawCalc::Arrangement() {
  const auto in = [](TextField& field, Label& unit) { return Row({field, unit, Stretch()}); };
  return Column(
      {instruction_,
       Row({Box(initial_, {Form({in(rpm1, unit_rpm1_), in(cfm1, Label3), in(txt_massflow1, Label18),
                                 in(sp1, Label4), in(hp1, Label5), in(Hz1, unit_hz1_),
                                 in(txt_degf1, unit_degf1_), in(txt_degc1, unit_degc1_)}),
                           Stretch()}),
            Box(adjusted_,
                {Form({in(txt_rpm2, unit_rpm2_), in(txt_cfm2, Label8), in(txt_massflow2, Label17),
                       in(txt_sp2, Label9), in(txt_hp2, Label10), in(txt_hz2, unit_hz2_),
                       in(txt_degf2, unit_degf2_), in(txt_degc2, unit_degc2_),
                       in(txt_ATR, unit_ATR_)}),
                 Stretch()})}),
       Row({Command4, Stretch(), Command2, Command3, Command1})});
}

/// Enter computes and moves on, and leaving computes: so it does twice, to the same end.
void FanLawCalc::OnAdjusted(TextField& field, bool (FanLawCalc::*follow)()) {
  field.onEnter = [this, follow] {
    if ((this->*follow)()) GetSession().SendTab();
  };
  field.onLeave = [this, follow] {
    if (!asks_) (this->*follow)();
  };
}

bool FanLawCalc::Has(TextField& initial, const char* quantity) {
  if (ToNumber(initial) != 0) return true;
  GetSession().Message(std::string("Please enter a value for Initial ") + quantity + '.');
  initial.SetText("     ");
  initial.SelectAll();
  asks_ = true;
  initial.SetFocus();
  asks_ = false;
  return false;
}

// ---- The fan laws: flow goes with the speed, pressure with its square, power with its cube ----

bool FanLawCalc::FollowSpeed() {
  if (!Has(rpm1, "RPM")) return false;
  const Single r = ToNumber(txt_rpm2) / ToNumber(rpm1);
  const Single ATR = ToNumber(txt_ATR);
  const Single flow = ToNumber(cfm1) * r;
  txt_cfm2.Show(flow, "#");
  txt_hz2.Show(r * ToNumber(Hz1), "#");
  ShowPressure(Power(r, 2), ATR);
  ShowPower(Power(r, 3), ATR);
  ShowMassFlow(flow);
  return true;
}

bool FanLawCalc::FollowFlow() {
  if (!Has(cfm1, "Flow Rate")) return false;
  const Single flow = ToNumber(txt_cfm2);
  const Single r = flow / ToNumber(cfm1);
  const Single ATR = ToNumber(txt_ATR);
  ShowSpeed(ToNumber(rpm1) * r);
  ShowPressure(Power(r, 2), ATR);
  ShowPower(Power(r, 3), ATR);
  ShowMassFlow(flow);
  return true;
}

bool FanLawCalc::FollowPressure() {
  if (!Has(sp1, "Static Pressure")) return false;
  const Single r = ToNumber(txt_sp2) / ToNumber(sp1);
  const Double flow = ToNumber(cfm1) * Power(r, 0.5);
  ShowSpeed(ToNumber(rpm1) * Power(r, 0.5));
  txt_cfm2.Show(flow, "#");
  ShowPower(Power(r, 1.5), ToNumber(txt_ATR));
  ShowMassFlow(flow);
  return true;
}

bool FanLawCalc::FollowPower() {
  if (!Has(hp1, "Power")) return false;
  const Single r = ToNumber(txt_hp2) / ToNumber(hp1);
  const Double flow = ToNumber(cfm1) * Power(r, 1.0 / 3);
  ShowSpeed(ToNumber(rpm1) * Power(r, 1.0 / 3));
  txt_cfm2.Show(flow, "#");
  ShowPressure(Power(r, 2.0 / 3), ToNumber(txt_ATR));
  ShowMassFlow(flow);
  return true;
}

// The one law that leaves the temperature out of pressure and power.
bool FanLawCalc::FollowFrequency() {
  const Single r = ToNumber(txt_hz2) / ToNumber(Hz1);
  const Single flow = ToNumber(cfm1) * r;
  txt_rpm2.Show(ToNumber(rpm1) * r, "#");
  txt_cfm2.Show(flow, "#");
  ShowPressure(Power(r, 2), 1);
  ShowPower(Power(r, 3), 1);
  ShowMassFlow(flow);
  return true;
}

// The frequency goes with the speed as it is shown.
void FanLawCalc::ShowSpeed(Double speed) {
  txt_rpm2.Show(speed, "#");
  txt_hz2.Show(ToNumber(txt_rpm2) * ToNumber(Hz1) / ToNumber(rpm1), "#");
}

void FanLawCalc::ShowPressure(Double rise, Single ATR) {
  const Single initial = ToNumber(sp1);
  std::optional<Double> pressure;
  if (initial > 0) pressure = initial * rise / ATR;
  txt_sp2.ShowUnlessUnset(pressure, "#.#");
}

void FanLawCalc::ShowPower(Double rise, Single ATR) {
  const Single initial = ToNumber(hp1);
  std::optional<Double> power;
  if (initial > 0) power = initial * rise / ATR;
  txt_hp2.ShowUnlessUnset(power, "#.##");
}

void FanLawCalc::ShowMassFlow(Double flow) {
  txt_massflow2.Show(MassOf(flow / ToNumber(txt_ATR)), "#");
}

/// Mass in an hour of a flow of standard air in a minute or, in metric units, in a second.
Double FanLawCalc::MassOf(Double flow) const {
  return IsMetric() ? flow * 1.201 * 3600 : flow * 0.075 * 60;
}

// ---- Temperatures ----

/// The ratio of absolute temperatures, which it shows; from F.
Double FanLawCalc::TakeRatio(Double adjusted, Double initial) {
  const Double ATR = (adjusted + kAbsolute) / (initial + kAbsolute);
  txt_ATR.Show(ATR, "0.000");
  return ATR;
}

// Rises with the temperature, though the density falls.
void FanLawCalc::InitialFlow() {
  if (ToNumber(cfm1) <= 0) return;
  txt_massflow1.Show(MassOf(Strict(cfm1) * (Strict(txt_degf1) + kAbsolute) / kStandard), "#");
}

void FanLawCalc::InitialFahrenheit() {
  const Single f = ToNumber(txt_degf1);
  txt_degc1.Show((f - 32) / 1.8, "#.#");
  const Double ATR = TakeRatio(ToNumber(txt_degf2), f);
  txt_massflow1.Show(MassOf(ToNumber(cfm1) / ATR), "#");
  txt_massflow2.Show(MassOf(0 / ATR), "#");  // the adjusted flow is not looked at
}

void FanLawCalc::InitialCelsius() {
  const Double f = ToNumber(txt_degc1) * 1.8 + 32;
  txt_degf1.Show(f, "#.#");
  const Double ATR = TakeRatio(ToNumber(txt_degf2), f);
  txt_massflow1.Show(MassOf(ToNumber(cfm1) / ATR), "#");
  txt_massflow2.Show(MassOf(ToNumber(txt_cfm2) / ATR), "#");
}

bool FanLawCalc::FollowFahrenheit() {
  const Single f = ToNumber(txt_degf2);
  txt_degc2.Show((f - 32) / 1.8, "#.#");
  const Double ATR = TakeRatio(f, ToNumber(txt_degf1));
  const Single r = ToNumber(txt_rpm2) / ToNumber(rpm1);
  txt_sp2.Show(ToNumber(sp1) * Power(r, 2) / ATR, "#.#");
  txt_hp2.Show(ToNumber(hp1) * Power(r, 3) / ATR, "#.##");
  ShowMassFlows(ATR);
  return true;
}

// The initial pressure and power have to be numbers here, and are read last.
bool FanLawCalc::FollowCelsius() {
  const Double f = ToNumber(txt_degc2) * 1.8 + 32;
  txt_degf2.Show(f, "#.#");
  const Double ATR = TakeRatio(f, ToNumber(txt_degf1));
  ShowMassFlows(ATR);
  const Single r = ToNumber(txt_rpm2) / ToNumber(rpm1);
  txt_sp2.Show(Strict(sp1) * Power(r, 2) / ATR, "#.#");
  txt_hp2.Show(Strict(hp1) * Power(r, 3) / ATR, "#.##");
  return true;
}

// The initial one as if the air were standard.
void FanLawCalc::ShowMassFlows(Double ATR) {
  txt_massflow1.Show(MassOf(ToNumber(cfm1)), "#");
  txt_massflow2.Show(MassOf(ToNumber(txt_cfm2) / ATR), "#");
}

void FanLawCalc::Clear() {
  for (TextField* field : {&txt_rpm2, &rpm1}) field->SetText("1725");
  for (TextField* field : {&txt_hz2, &Hz1}) field->SetText("60");  // in metric units too
  for (TextField* field : {&txt_degf2, &txt_degf1}) field->SetText("70");
  for (TextField* field : {&txt_degc2, &txt_degc1}) field->SetText("21.1");
  txt_ATR.SetText("1");
  for (TextField* field :
       {&txt_cfm2, &txt_massflow2, &txt_sp2, &txt_hp2, &cfm1, &txt_massflow1, &sp1, &hp1})
    field->Clear();
}

}  // namespace korvane
