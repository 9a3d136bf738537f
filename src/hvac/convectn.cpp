#include "hvac/convectn.h"

namespace korvane {
namespace {

constexpr double kFeet = 3.281;          // in a meter
constexpr double kSquareFeet = 10.7638;  // in a square meter
constexpr double kBtuh = 3.412;          // in a watt

}  // namespace

std::optional<Double> ConvectionCoefficient(Double fps, double shape) {
  constexpr int fast = 16;
  if (fps < fast) return shape * (0.99 + 0.21 * fps);
  if (fps > fast) return shape * 0.5 * Power(fps, 0.78);
  return {};
}

convectn::convectn(Session& session)
    : CalculatorWindow(session, {.name = "convectn",
                                 .title = "Convection Coefficient for Uninsulated Plane Surfaces",
                                 .helpPage = "hvac_convection_coefficients.html"}),
      file{"CONVECTION",
           "convectn.dta",
           "Load data file...",
           {TextRecord("Velocity", txt_fpm), TextRecord("Surface temp", txt_surf_temp),
            TextRecord("Ambient temp", txt_ambient_temp), TextRecord("Surface area", txt_sq_ft),
            WordRecord("Orientation",
                       {{opt_vert, "Vertical"}, {opt_top, "Top"}, {opt_bottom, "Bottom"}})},
           [this] { Calculate(); }} {
  btn_calc.onClick = [this] { Calculate(); };
  ShowsResultsIn({&txt_delta_t, &txt_btuh_sf, &txt_total_btuh});

  SetDefault(btn_calc);
  LoadsWith(Command3, file);
  SavesWith(Command1, file);
  PrintsWith(btn_print);
  HelpsWith(btn_help);
  ExitsWith(btn_exit);
}

Layout convectn::Arrangement() {
  return Column({Row({Column({Form({txt_fpm, txt_surf_temp, txt_ambient_temp, txt_sq_ft}), Rule(),
                              Form({txt_delta_t, txt_btuh_sf, txt_total_btuh}), Stretch()}),
                      Column({Box(orientation_, {opt_vert, opt_top, opt_bottom}), Stretch()})}),
                 Row({btn_calc, Stretch(), Command3, Command1, btn_print, btn_help, btn_exit})});
}

double convectn::Shape() const {
  constexpr double vertical = 1, top = 1.29, bottom = 0.63;
  return opt_vert.IsOn() ? vertical : opt_top.IsOn() ? top : bottom;
}

void convectn::Calculate() {
  const Single velocity = ToNumber(txt_fpm);
  const Single difference = ToNumber(txt_surf_temp) - ToNumber(txt_ambient_temp);
  txt_delta_t.Show(difference);
  const Double fps = IsMetric() ? velocity * kFeet : Double(velocity / 60);
  const std::optional<Double> us = ConvectionCoefficient(fps, Shape());
  if (!us) {
    txt_btuh_sf.Clear();
    txt_total_btuh.Clear();
    return;
  }
  const Double h = IsMetric() ? *us / kBtuh * 1.8 * kSquareFeet : *us;
  txt_btuh_sf.Show(h, "#.00");
  ShowTotal(difference * (ToNumber(txt_sq_ft) * h));
}

/// Three digits or more; a loss below 1, or a gain, shows its thousandths.
void convectn::ShowTotal(Double total) {
  if (total >= 100)
    txt_total_btuh.Show(total, "#");
  else if (total >= 10)
    txt_total_btuh.Show(total, "#.0");
  else if (total >= 1)
    txt_total_btuh.Show(total, "#.00");
  else
    txt_total_btuh.Show(total, "#.000");
}

}  // namespace korvane
