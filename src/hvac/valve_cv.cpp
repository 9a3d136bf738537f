#include "hvac/valve_cv.h"

#include "frame/delimited.h"

namespace korvane {
namespace {

constexpr double kAtmosphere = 14.7;  // psi
constexpr int kAbsoluteZero = 460;    // degrees F below zero

}  // namespace

Double SteamVolume(std::string_view table, Double psig) {
  constexpr int headerLines = 3;
  DelimitedReader reader(table);
  for (int line = 0; line < headerLines; ++line) reader.Line();
  struct Row {
    Double p, v;
  };
  const auto next = [&reader] {
    Row row;
    row.p = reader.Number();
    row.v = reader.Number();
    reader.Text();  // temperature
    reader.Text();  // latent heat
    return row;
  };
  if (reader.AtEnd()) return 0;
  Row below = next();
  while (!reader.AtEnd()) {
    const Row above = next();
    if (below.p < psig && psig <= above.p)
      return (psig - below.p) * (above.v - below.v) / (above.p - below.p) + below.v;
    below = above;
  }
  return 0;
}

/// Pounds, psi, F and, of liquids, gallons per minute.
struct Valve_Cv::Inputs {
  Single flow;
  Single pIn;
  Single pOut;
  Single drop;
  Single gravity;      ///< of steam the superheat
  Single viscosity;    ///< that no formula uses
  Single temperature;  ///< that only that of gases uses
};

Valve_Cv::Valve_Cv(Session& session)
    : CalculatorWindow(session, {.name = "Valve_Cv",
                                 .title = "Control Valve Sizing",
                                 .helpPage = "hvac_control_valve_sizing.html"}) {
  opt_liquid.onClick = [this] { ChooseLiquid(); };
  opt_gas.onClick = [this] { ChooseGas(); };
  opt_steam.onClick = [this] { ChooseSteam(); };
  btn_calc.onClick = [this] { SolveCv(); };
  ShowsResultsIn({&txt_P_out, &txt_Cv});
  SetDefault(btn_calc);
  PrintsWith(btn_print);
  HelpsWith(btn_help);
  ExitsWith(btn_exit);
}

Layout Valve_Cv::Arrangement() {
  return Column({Box(fluid_, {Row({opt_liquid, opt_gas, opt_steam, Stretch()})}),
                 Form({txt_flow, txt_P_in, txt_delta_P, txt_SG, txt_viscosity, txt_temp}), Rule(),
                 Form({txt_P_out, txt_Cv}),
                 Row({btn_calc, Stretch(), btn_print, btn_help, btn_exit})});
}

void Valve_Cv::Load() {
  CalculatorWindow::Load();
  ChooseLiquid();
  SolveCv();
}

// ---- Fluids ----

void Valve_Cv::Relabel(const Captions& captions) {
  const auto label = [this](TextField& field, const UnitText& caption) {
    field.CaptionBeside().SetCaption(IsMetric() ? caption.metric : caption.us);
  };
  label(txt_flow, captions.flow);
  label(txt_P_in, {"Inlet Pressure (psig)", "Inlet Pressure (kPa)"});
  label(txt_P_out, {"Outlet Pressure (psig)", "Outlet Pressure (kPa)"});
  label(txt_delta_P, {"Valve Pressure Drop (psig)", "Valve Pressure Drop (kPa)"});
  label(txt_SG, captions.gravity);
  label(txt_viscosity, captions.viscosity);
  label(txt_temp, captions.temperature);
  label(txt_Cv, {"Valve Flow Coefficient (Cv)", "Valve Flow Coefficient (Kv)"});
}

void Valve_Cv::ChooseLiquid() {
  Relabel({{"Max Flow Rate (US gal/min)", "Max Flow Rate (m3/h)"},
           "Specific Gravity (Water=1)",
           {"Viscosity (cp)", "Viscosity (Pa-s)"},
           {"Temperature (F)", "Temperature (C)"}});
  if (IsMetric()) {
    txt_flow.SetText("10.219608");
    txt_P_in.SetText("344.74");
    txt_delta_P.SetText("34.474");
  }
  txt_SG.SetText("1");
  txt_viscosity.SetText(IsMetric() ? "0.001" : "1");
  txt_temp.SetText(IsMetric() ? "21" : "70");
}

void Valve_Cv::ChooseGas() {
  Relabel({{"Max Flow Rate (SCFM)", "Max Flow Rate (m3/h)"},
           "Specific Gravity at STP (Air=1)",
           {"Density (lbs/ft3)", "Density (kg/m3)"},
           {"Temperature (F)", "Temperature (C)"}});
}

void Valve_Cv::ChooseSteam() {
  Relabel({{"Max Flow Rate (lbs/hr)", "Max Flow Rate (kg/hr)"},
           {"Superheat (degrees F)", "Superheat (degrees C)"},
           {"Specific Volume (ft3/lb)", "Specific Volume (m3/kg)"},
           {"Critical Pressure Drop (psig)", "Critical Pressure Drop (kPa)"}});
  txt_SG.SetText("0");
  txt_temp.Clear();
}

// ---- Solving ----

void Valve_Cv::SolveCv() {
  Inputs in{.flow = ToNumber(txt_flow),
            .pIn = txt_P_in.Us(),
            .pOut = 0,
            .drop = txt_delta_P.Us(),
            .gravity = ToNumber(txt_SG),
            .viscosity = txt_viscosity.Us(),
            .temperature = ToNumber(txt_temp)};
  if (IsMetric()) in.temperature = in.temperature * 1.8 + 32;
  in.pOut = in.pIn - in.drop;
  ShowPressure(txt_P_out, in.pOut);
  if (opt_liquid.IsOn())
    SolveLiquid(in);
  else if (opt_gas.IsOn())
    SolveGas(in);
  else
    SolveSteam(in);
}

// The coefficient of turbulent flow, unless it is far below that of laminar flow.
void Valve_Cv::SolveLiquid(const Inputs& in) {
  const Single gpm = IsMetric() ? Single(in.flow * 4.4033) : in.flow;
  const Single drop = in.pIn - in.pOut;
  if (drop == 0) return;
  const Double turbulent = Sqrt(in.gravity / drop) * gpm;
  const Double laminar = (1 / 1.05) * Power(gpm / (52.3 * drop), 2) / 3;
  ShowCv(turbulent / laminar < 0.46 ? laminar : turbulent);
}

void Valve_Cv::SolveGas(const Inputs& in) {
  const Single scfm = IsMetric() ? Single(in.flow / 1.699) : in.flow;
  const Single heaviness = (in.temperature + kAbsoluteZero) * in.gravity;
  if (heaviness == 0 || Power(in.pIn, 2) - Power(in.pOut, 2) <= 0) return;
  const Double squares = Power(in.pIn + kAtmosphere, 2) - Power(in.pOut + kAtmosphere, 2);
  ShowCv(scfm / (16.05 * Sqrt(squares / heaviness)));
}

void Valve_Cv::SolveSteam(const Inputs& in) {
  const Single pounds = IsMetric() ? Single(in.flow * 2.204622) : in.flow;
  const Single superheat = IsMetric() ? Single(in.gravity * 1.8) : in.gravity;
  const Double critical = 0.5 * (in.pIn + kAtmosphere);
  txt_temp.Show(txt_delta_P.Shown(critical));  // converted as a drop is
  Double drop = in.drop;
  if (drop > critical) {
    GetSession().Message("Selected pressure drop is greater than the critical pressure drop of " +
                         txt_temp.Text() + " psig (choked flow).");
    drop = critical;
    ShowPressure(txt_delta_P, drop);
    ShowPressure(txt_P_out, in.pIn - critical);
  }
  const Double v = SteamVolume(GetSession().ReadTable("Steam_Cv.dat"), in.pIn - drop / 2);
  txt_viscosity.Show(IsMetric() ? v / 16.018 : v, "0.00");
  const Double divisor = 63.5 * Sqrt(drop);
  if (divisor == 0) return;
  ShowCv(pounds * (1 + 0.00075 * superheat) * Sqrt(v) / divisor);
}

}  // namespace korvane
