#include "hvac/perfloss.h"

namespace korvane {
namespace {

/// Pressure drop of standard air in inches of water: a V2 + b V + c, with V in feet per minute.
struct Pattern {
  const char* openArea;
  double a;
  double b;
  double c = 0;
};
constexpr Pattern kPatterns[] = {
    {" 10 %", 1.45e-5, -0.00059}, {" 15 %", 4.2e-6, -0.0003}, {" 20 %", 2.43e-6, -0.0002},
    {" 26 %", 1.66e-6, -0.00025}, {" 30 %", 9.6e-7, -0.0001}, {" 40 %", 5e-7, -5e-5},
    {" 50 %", 2.05e-7, -2e-5},    {" 63 %", 7.7e-8, -1e-6},
};

constexpr double kFeetPerMinute = 196.85039;  // in a m/s
constexpr double kPascals = 249.08;           // in an inch of water

std::vector<std::string> OpenAreas() {
  std::vector<std::string> items;
  for (const Pattern& pattern : kPatterns) items.emplace_back(pattern.openArea);
  return items;
}

}  // namespace

perfloss::perfloss(Session& session)
    : CalculatorWindow(session, {.name = "perfloss",
                                 .title = "Air Flow Thru Perforated Plate",
                                 .helpPage = "hvac_air_flow_through_perforated_plate.html"}),
      Combo1(*this, "Combo1", "Perf Pattern % Open Area", OpenAreas()) {
  constexpr bool velocityLeads = true;
  OnFlow(txt_sqft, !velocityLeads);
  OnFlow(txt_cfm, !velocityLeads);
  OnFlow(txt_fpm, velocityLeads);
  Combo1.onSelect = [this] {
    TakePattern();
    PerfPressureDrop();
  };
  btn_calc.onClick = [this] { PerfPressureDrop(); };
  ShowsResultsIn({&txt_density, &txt_atr, &txt_p_drop});

  SetDefault(btn_calc);
  PrintsWith(btn_print);
  HelpsWith(btn_help);
  ExitsWith(btn_exit);
}

Layout perfloss::Arrangement() {
  return Column({Form({Combo1, txt_sqft, txt_cfm, txt_fpm, txt_temp}), Rule(),
                 Form({txt_density, txt_atr, txt_p_drop}),
                 Row({btn_calc, Stretch(), btn_print, btn_help, btn_exit})});
}

void perfloss::OnFlow(TextField& field, bool velocityLeads) {
  field.onEnter = field.onLeave = [this, velocityLeads] {
    if (ToNumber(txt_sqft) == 0) txt_sqft.SetText("1");
    if (velocityLeads)
      txt_cfm.Show(ToNumber(txt_fpm) * ToNumber(txt_sqft), "#.###");
    else
      txt_fpm.Show(ToNumber(txt_cfm) / ToNumber(txt_sqft), "#.###");
    PerfPressureDrop();
  };
}

void perfloss::TakePattern() {
  if (Combo1.Index() < 0) return;
  const Pattern& pattern = kPatterns[Combo1.Index()];
  a = pattern.a;
  b = pattern.b;
  c = pattern.c;
}

// The curves are those of standard air; thinner air loses less.
void perfloss::PerfPressureDrop() {
  const Single velocity = ToNumber(txt_fpm);
  const Single temperature = ToNumber(txt_temp);
  const Double V = IsMetric() ? velocity * kFeetPerMinute : Double(velocity);
  const Double ATR =
      IsMetric() ? (temperature + 274.15) / 295.15 : Double((temperature + 460) / 530);
  txt_atr.Show(ATR, "0.000");
  txt_density.Show((IsMetric() ? 1.201923 : 0.075) / ATR, "0.###");
  Double p = a * (V * V) + b * V + c;
  if (p < 0) p = 0;
  txt_p_drop.Show(IsMetric() ? kPascals * p / ATR : p / ATR, "0.###");
}

}  // namespace korvane
