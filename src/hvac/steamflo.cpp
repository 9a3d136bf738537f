#include "hvac/steamflo.h"

#include "frame/search.h"

namespace korvane {
namespace {

constexpr int kTableWidth = 1370;  // twips

}  // namespace

Double SteamFlow(const SteamPipe& pipe, Double d) {
  return 5220 * Sqrt(pipe.density * pipe.drop * Power(d, 5) / (pipe.length * (1 + 3.6 / d)));
}

steamflo::steamflo(Session& session)
    : CalculatorWindow(session, {.name = "steamflo",
                                 .title = "Steam Pipe Sizing",
                                 .helpPage = "hvac_steam_pipe_sizing.html"}) {
  btn_calc.onClick = [this] { SolveSteamFlow(); };
  ComputesAndMovesOn({&txt_dia, &txt_length, &txt_pressure_drop}, btn_calc.onClick);
  ComputesAndMovesOn({&txt_density}, [this] { SolveSteamFlowUs(); });
  ComputesAndMovesOn({&txt_flow}, [this] { SolveSteamDiameter(); });
  SelectsOnFocus({&txt_length, &txt_dia, &txt_density, &txt_pressure_drop, &txt_flow});
  ShowsResultsIn({&txt_flow});

  Command1.onClick = [this] { GetSession().Show("pipedata"); };
  Command1.SetEnabled(session.IsKnown("pipedata"));
  Command2.onClick = [this] { ShowSteamTable(); };
  SetDefault(btn_calc);
  PrintsWith(btn_print);
  HelpsWith(btn_help);
  ExitsWith(btn_exit);
}

Layout steamflo::Arrangement() {
  const auto narrow = [](UsField& field) { return Row({field, Stretch()}); };
  return Column(
      {Form({narrow(txt_length), narrow(txt_dia), narrow(txt_density), narrow(txt_pressure_drop)}),
       Rule(), Form({narrow(txt_flow)}),
       Row({btn_calc, Command1, Command2, Stretch(), btn_print, btn_help, btn_exit})});
}

SteamPipe steamflo::Pipe() const {
  return {txt_density.Us(), txt_pressure_drop.Us(), txt_length.Us()};
}

void steamflo::SolveSteamFlow() { txt_flow.ShowUs(SteamFlow(Pipe(), txt_dia.Us()), "#.###"); }

// Takes all numbers as they stand for U.S. units, in metric units too.
void steamflo::SolveSteamFlowUs() {
  const SteamPipe pipe{ToNumber(txt_density), ToNumber(txt_pressure_drop), ToNumber(txt_length)};
  txt_flow.Show(SteamFlow(pipe, ToNumber(txt_dia)), "#.###");
}

void steamflo::SolveSteamDiameter() {
  Search search(GetSession());
  const Double d = StepToSteamFlow(Pipe(), txt_flow.Us(), [&search](Double) { search.Stepped(); });
  if (IsMetric())
    txt_dia.ShowUs(d, "#.##");
  else
    txt_dia.Show(d, "#.###");
}

void steamflo::ShowSteamTable() {
  Session& session = GetSession();
  session.Unload("DISPLAY");
  session.DataFileName = IsMetric() ? "Sat_VP_M.dat" : "vapor-p.DAT";
  Window& viewer = session.Show("DISPLAY");
  viewer.SetSize(kTableWidth, viewer.GetGeometry().height);
}

}  // namespace korvane
