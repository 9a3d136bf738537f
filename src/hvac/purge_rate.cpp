#include "hvac/purge_rate.h"

namespace korvane {

Purge_Rate::Purge_Rate(Session& session)
    : CalculatorWindow(session, {.name = "Purge_Rate",
                                 .title = "Inert Gas Purge Rate",
                                 .helpPage = "hvac_inert_gas_purge_rate.html"}) {
  btn_solve.onClick = [this] { Solve(); };
  ShowsResultsIn({&txt_oxygen_conc});

  SetDefault(btn_solve);
  PrintsWith(btn_print);
  HelpsWith(btn_help);
  ExitsWith(btn_exit);
}

Layout Purge_Rate::Arrangement() {
  return Column({Form({txt_volume, txt_flow_rate, txt_initial_conc, txt_purge_time}), Rule(),
                 Form({txt_oxygen_conc}),
                 Row({btn_solve, Stretch(), btn_print, btn_help, btn_exit})});
}

// The gas mixes fully with what is in the chamber, and the mixture leaves.
void Purge_Rate::Solve() {
  const Single volume = ToNumber(txt_volume);
  if (volume == 0) return;
  Single flow = ToNumber(txt_flow_rate);
  if (IsMetric()) flow *= 60;  // per minute, as the time is
  const Single time = ToNumber(txt_purge_time);
  txt_oxygen_conc.Show(100 * ((ToNumber(txt_initial_conc) / 100) * Exp(-flow * time / volume)),
                       "0.00#");
}

}  // namespace korvane
