#include "hvac/psychro.h"

#include "frame/session.h"

namespace korvane {
namespace {

// The Magnus form of saturation pressure over water, in millibars, for degrees Celsius.
constexpr double kA = 17.2694;
constexpr double kB = 238.3;
constexpr double kP0 = 6.1078;

constexpr int kTotalPressure = 1000;  // millibars

}  // namespace

Psychro::Psychro(Session& session)
    : CalculatorWindow(session, {.name = "Psychro",
                                 .title = "Psychrometric  Calculations",
                                 .helpPage = "hvac_psychrometrics.html"}) {
  DryBulbF.onEnter = [this] {
    DryBulbC.Show((Strict(DryBulbF) - 32) / 1.8);
    TakeDryBulb();
  };
  DryBulbC.onEnter = [this] {
    DryBulbF.Show(Strict(DryBulbC) * 1.8 + 32);
    TakeDryBulb();
  };
  rh.onEnter = [this] {
    InputMode = "R";
    Recalculate();
  };
  DewPointF.onEnter = [this] {
    DewPointC.Show((Strict(DewPointF) - 32) / 1.8);
    InputMode = "D";
    Recalculate();
  };
  DewPointC.onEnter = [this] {
    DewPointF.Show(Strict(DewPointC) * 1.8 + 32);
    InputMode = "D";
    Recalculate();
  };
  ShowsResultsIn({&HumidityRatio, &Grains, &Enthalpy, &PressDryBulb, &PressDewPoint, &PressRatio});
  PrintsWith(Command1);
  HelpsWith(Command3);
  ExitsWith(Command2);
}

Layout Psychro::Arrangement() {
  return Column({Form({Row({DryBulbF, unit_dry_f, DryBulbC, unit_dry_c, Stretch()}),
                       Row({rh, unit_rh, Stretch()}),
                       Row({DewPointF, unit_dew_f, DewPointC, unit_dew_c, Stretch()})}),
                 Rule(),
                 Form({Row({HumidityRatio, Label7, Grains, Label17, Stretch()}),
                       Row({Enthalpy, Label18, Stretch()}), Row({PressDryBulb, Label12, Stretch()}),
                       Row({PressDewPoint, Label14, Stretch()}), Row({PressRatio, Stretch()})}),
                 instruction_, Row({Stretch(), Command1, Command3, Command2})});
}

void Psychro::Load() {
  CalculatorWindow::Load();
  InputMode = "R";
  Recalculate();
}

// A dew point on the screen is held, and the relative humidity moves.
void Psychro::TakeDryBulb() {
  if (Strict(DewPointF) != 0) InputMode = "D";
  Recalculate();
}

// A chain through the texts of the fields: each step reads what the one before has written, with 15
// digits, and the masks come last.
void Psychro::Recalculate() {
  DryBulbC.Show((Strict(DryBulbF) - 32) / 1.8);
  if (InputMode == "R") DewPointFromHumidity();

  const Double td = Strict(DewPointC);
  const Single tb = ToNumber(DryBulbC);
  if (InputMode != "R") rh.Show(100 * Exp(kA * (td / (td + kB) - tb / (tb + kB))));
  PressDewPoint.Show(kP0 * Exp(td / (td + kB) * kA));
  PressDryBulb.Show(kP0 * Exp(tb / (tb + kB) * kA));
  PressRatio.Show(Strict(PressDewPoint) / Strict(PressDryBulb));
  HumidityRatio.Show(0.62198 * Strict(PressDewPoint) / (kTotalPressure - Strict(PressDewPoint)));
  const Double tF = 1.8 * tb + 32;
  Enthalpy.Show(0.24 * tF + Strict(HumidityRatio) * (1061 + 0.444 * tF));
  TakeUnits();
  ApplyMasks();
}

void Psychro::DewPointFromHumidity() {
  if (Strict(rh) == 0) rh.Show(Double(1e-99));  // keeps the logarithm finite
  const Double x = Ln(Strict(rh) / 100);
  const Double dryBulb = Strict(DryBulbC);
  const Double h = x / kA + dryBulb / (dryBulb + kB);
  DewPointC.Show(kB / (1 / h - 1));
  DewPointF.Show(Strict(DewPointC) * 1.8 + 32);
}

void Psychro::TakeUnits() {
  if (!IsMetric()) {
    Grains.Show(Strict(HumidityRatio) * 7000, "####");
    return;
  }
  Grains.Show(Strict(HumidityRatio) * 1000, "#.###");
  Enthalpy.Show(Strict(Enthalpy) * 2.325889 - 17.777778);  // zero at 0 C instead of 0 F
  PressDryBulb.Show(Strict(PressDryBulb) * 0.1);
  PressDewPoint.Show(Strict(PressDewPoint) * 0.1);
}

void Psychro::ApplyMasks() {
  const auto mask = [](TextField& field, Mask form) { field.Show(Strict(field), form); };
  mask(DryBulbF, "####.0");
  mask(DryBulbC, "####.0");
  mask(rh, "###.0");
  mask(DewPointF, "####.0");
  mask(DewPointC, "####.0");
  mask(HumidityRatio, "#.######");
  mask(Enthalpy, "###.###");
  mask(PressDewPoint, "###.#####");
  mask(PressDryBulb, "###.#####");
  mask(PressRatio, "#.00000");
}

}  // namespace korvane
