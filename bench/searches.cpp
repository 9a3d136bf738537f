// The searches of calculators against the same arithmetic in bare machine types: a pipe's flow from
// its pressure drop as the window does it, a shaft's diameter from its speed or its stress, the
// pairs of a catalogue of sheaves, the wet bulb of a humidity, and a steam pipe's diameter from its
// flow.

#include <cmath>
#include <optional>
#include <string>
#include <vector>

#include "compare.h"
#include "driver/interpreter.h"
#include "hvac/psychro_2.h"
#include "hvac/steamflo.h"
#include "mechanical/conveyor.h"
#include "mechanical/crit_spd.h"
#include "mechanical/v_belt.h"

namespace korvane {
namespace {

// ---- Pipe flow ----

constexpr int kTargets = 100;

/// Pressure drops in ft of water, for flows from some 500 to 900 gal/min in a pipe of 6 in.
int TargetHead(int search) { return 6 + search % 10; }

/// Enter in the pressure drop of the window, once for each target.
void SearchInWindow() {
  int line = 0;
  const auto input = [&line]() -> std::optional<std::string> {
    const int at = line++;
    if (at == 0) return "show flow_2";
    if (at == 1) return "type txt_diameter 6";
    if (at == 2) return "type txt_length 300";
    const int search = (at - 3) / 2;
    if (search == kTargets) return std::nullopt;
    if (at % 2 == 1) return "type txt_feet " + std::to_string(TargetHead(search));
    return "enter txt_feet";
  };
  std::size_t bytes = 0;
  Interpreter(
      input, [&bytes](const std::string& answer) { bytes += answer.size(); }, "")
      .Run();
  benchmark::DoNotOptimize(bytes);
}

double BareLog10(double x) { return std::log(x) / std::log(10); }

double BareFriction(double reynolds, double rough) {
  if (reynolds < 2300) return 64 / reynolds;
  double f = 0.01;
  for (int round = 0; round <= 5; ++round) {
    const double g =
        1.14 - 2 * (BareLog10(1 + 9.3 / (reynolds * rough * std::sqrt(f))) + BareLog10(rough));
    f = 1 / std::pow(g, 2);
  }
  if (reynolds < 5500)
    f = (BareLog10(reynolds) - BareLog10(2300)) / (BareLog10(5000) - BareLog10(2300)) *
            (f - 64 / reynolds) +
        64 / reynolds;
  return f;
}

float BareFindFlow(float diameter, float length, double viscosity, double rough, float target) {
  const float feet = diameter / 12;
  float gpm = 0;
  float start = 1;
  for (const double size : {1.0, 0.01, 0.0001}) {
    const auto step = static_cast<float>(size);
    float next = 0;
    for (gpm = start; gpm <= 1000; gpm += step) {
      const double speed = gpm * 0.408 / std::pow(diameter, 2);
      const double reynolds = feet * speed / viscosity;
      const double f = BareFriction(reynolds, rough);
      const auto diameters = static_cast<float>(length / feet + 0.0F + 1.5);
      const auto head = static_cast<float>(std::pow(speed, 2) * (diameters * f) / 64.4);
      if (head > target) {
        next = static_cast<float>(gpm - size);
        break;
      }
    }
    start = next;
  }
  return gpm;
}

void SearchBare() {
  volatile float diameter = 6, length = 300;
  volatile double viscosity = 1.077e-5, rough = 0.0005;
  for (int search = 0; search < kTargets; ++search)
    benchmark::DoNotOptimize(
        BareFindFlow(diameter, length, viscosity, rough, static_cast<float>(TargetHead(search))));
}

void FlowSearch(benchmark::State& state) { CompareTimes(state, 1.5, SearchInWindow, SearchBare); }
BENCHMARK(FlowSearch)->Unit(benchmark::kMillisecond);

// ---- Critical speed ----

constexpr int kSpeeds = 1000;

/// Speeds for diameters from some 4 to 5 in.
int TargetSpeed(int search) { return 2000 + search; }

void FindDiameterChecked() {
  volatile float L = 30, a = 20, E = 30000000, W = 500, tol = 0, k = 2000000;
  const auto single = [](float value) { return Single(static_cast<double>(value)); };
  for (int search = 0; search < kSpeeds; ++search) {
    Single d;
    StepToSpeed({single(L), single(a), single(E), single(W), single(tol), single(k)}, 1,
                TargetSpeed(search), [&d](Single trial) { d = trial; });
    benchmark::DoNotOptimize(d);
  }
}

float BareFindDiameter(float L, float a, float E, float W, float tol, float k, float target) {
  float d = 0;
  for (d = 0.25F; d <= 6; d += 0.0625F) {
    const double weight = 0.284 * 3.1415926 * std::pow(d, 2) / 4;
    benchmark::DoNotOptimize(weight);
    const double I = 3.14159265 * std::pow(d, 4) / 64;
    const double S = W * std::pow(a, 2) * (a + L) / (3 * E * I);
    const double F = (W / k) * (2 * std::pow(a, 2) + 2 * a * L + std::pow(L, 2)) / std::pow(L, 2);
    const double B = a * std::tan(2 * tol / L);
    if (187.8 / std::sqrt(S + F + B) >= target) break;
  }
  return d;
}

void FindDiameterBare() {
  volatile float L = 30, a = 20, E = 30000000, W = 500, tol = 0, k = 2000000;
  for (int search = 0; search < kSpeeds; ++search)
    benchmark::DoNotOptimize(
        BareFindDiameter(L, a, E, W, tol, k, static_cast<float>(TargetSpeed(search))));
}

void DiameterSearch(benchmark::State& state) {
  CompareTimes(state, 1.5, FindDiameterChecked, FindDiameterBare);
}
BENCHMARK(DiameterSearch)->Unit(benchmark::kMillisecond);

// ---- Sheaves ----

constexpr short kSide = 125;  // rows of a side, in the largest catalogue
constexpr int kWalks = 100;

std::vector<Sheave> Catalogue() {
  std::vector<Sheave> rows(1);
  for (int i = 0; i < 2 * kSide; ++i) rows.emplace_back().pd = 2 + Single(i % kSide) / 10;
  return rows;
}

/// What a search makes of the pairs: the closest one, and how many are worth a line.
struct Outcome {
  int closest = 0;
  int listed = 0;
};

void WalkChecked() {
  static const std::vector<Sheave> rows = Catalogue();
  std::vector<short> drivers, drivens;
  for (short i = 1; i <= kSide; ++i) {
    drivers.push_back(i);
    drivens.push_back(static_cast<short>(i + kSide));
  }
  for (int walk = 0; walk < kWalks; ++walk) {
    Outcome outcome;
    benchmark::DoNotOptimize(
        WalkPairs(rows, drivers, drivens, 1725, 800 + walk, [&](const SheavePair& pair, bool best) {
          if (best) outcome.closest = pair.driver * 1000 + pair.driven;
          if (pair.diff < 100) ++outcome.listed;
        }));
    benchmark::DoNotOptimize(outcome);
  }
}

void WalkBare() {
  static const std::vector<float> pd = [] {
    std::vector<float> diameters;
    for (const Sheave& row : Catalogue()) diameters.push_back(row.pd.Value());
    return diameters;
  }();
  for (int walk = 0; walk < kWalks; ++walk) {
    Outcome outcome;
    float best = 1000;
    for (int driver = 1; driver <= kSide; ++driver) {
      for (int driven = kSide + 1; driven <= 2 * kSide; ++driven) {
        const float rpm =
            pd[static_cast<std::size_t>(driver)] * 1725 / pd[static_cast<std::size_t>(driven)];
        const float diff = std::fabs(rpm - static_cast<float>(800 + walk));
        if (diff <= best) {
          best = diff;
          outcome.closest = driver * 1000 + driven;
        }
        if (diff < 100) ++outcome.listed;
      }
    }
    benchmark::DoNotOptimize(best);
    benchmark::DoNotOptimize(outcome);
  }
}

void SheaveSearch(benchmark::State& state) { CompareTimes(state, 1.5, WalkChecked, WalkBare); }
BENCHMARK(SheaveSearch)->Unit(benchmark::kMillisecond);

// ---- Shafts ----

constexpr int kShafts = 2000;

/// Stresses in psi, for diameters from some 1 to 5 in.
int TargetStress(int shaft) { return 100 + 5 * shaft; }

void ShaftsChecked() {
  volatile double moment = 2000;
  for (int shaft = 0; shaft < kShafts; ++shaft) {
    int trials = 0;
    benchmark::DoNotOptimize(FindDiameter(Double(moment), 0.75, TargetStress(shaft),
                                          [&trials](Double, bool last) { trials += last; }));
    benchmark::DoNotOptimize(trials);
  }
}

void ShaftsBare() {
  volatile double given = 2000;
  for (int shaft = 0; shaft < kShafts; ++shaft) {
    const double moment = given;
    int trials = 0;
    double d = 0;
    double start = 0.1;
    for (const double step : {0.1, 0.01, 0.0001}) {
      if (start == 0) start = step;
      for (double trial = start; trial <= 6; trial += step) {
        d = trial;
        trials += step == 0.0001;
        if (5.1 * moment / (d * d * d * 0.75) <= TargetStress(shaft)) break;
      }
      start = d - step;
    }
    benchmark::DoNotOptimize(d);
    benchmark::DoNotOptimize(trials);
  }
}

void ShaftSearch(benchmark::State& state) { CompareTimes(state, 1.5, ShaftsChecked, ShaftsBare); }
BENCHMARK(ShaftSearch)->Unit(benchmark::kMillisecond);

// ---- Moist air ----

constexpr int kHumidities = 61;

/// Relative humidities from 30 to 90 per cent.
int TargetHumidity(int search) { return 30 + search; }

void AirChecked() {
  volatile float dryBulb = 70, feet = 1200;
  const Single tdb = static_cast<double>(dryBulb);
  const Single altitude = static_cast<double>(feet);
  for (int search = 0; search < kHumidities; ++search) {
    Double dewPoint;
    WalkWetBulb(TargetHumidity(search), [&](Double twb, bool) {
      const MoistAir air(tdb, twb, PressureAtAltitude(altitude));
      if (air.Pv > 0) dewPoint = DewPointFromVapor(air.Pv);
      benchmark::DoNotOptimize(air);
      return air.RelativeHumidity;
    });
    benchmark::DoNotOptimize(dewPoint);
  }
}

double BareSaturationPressure(double t) {
  const double kelvins = (t + 459.688) / 1.8;
  double s = 0;
  if (kelvins > 273.16) {
    const double z = 373.16 / kelvins;
    s = -7.90298 * (z - 1) + 5.02808 * BareLog10(z) -
        1.3816e-7 * (std::pow(10, 11.344 * (1 - 1 / z)) - 1) +
        0.0081328 * (std::pow(10, -3.49149 * (z - 1)) - 1);
  } else {
    const double z = 273.16 / kelvins;
    s = -9.09718 * (z - 1) - 3.56654 * BareLog10(z) + 0.876793 * (1 - 1 / z) + BareLog10(0.0060273);
  }
  return 29.921 * std::pow(10, s);
}

double BareVaporPressure(double tdb, double twb, double P) {
  const double Pw = BareSaturationPressure(twb);
  const double Ws = 0.62198 * Pw / (P - Pw);
  if (twb <= 32) return 0;
  const double W = Ws - (tdb - twb) * (0.24 + 0.441 * Ws) / (1093.049 + 0.441 * (tdb - twb));
  return W / (0.62198 + W) * P;
}

double BareDewPoint(double Pv) {
  const double y = std::log(Pv);
  return Pv >= 0.18036 ? 79.047 + 30.579 * y + 1.8893 * y * y : 71.98 + 24.873 * y + 0.8927 * y * y;
}

double BarePressure(float a) {
  static const float feet[] = {-1000, -500, 0, 500, 1000, 2000};
  static const double pressure[] = {31.02, 30.47, 29.921, 29.38, 28.86, 27.82};
  int row = 0;
  while (a > feet[row]) ++row;
  return pressure[row];
}

struct BareAir {
  double P, Ps, Pv, humidity, ratio, enthalpy, volume;
};

void AirBare() {
  volatile float dryBulb = 70, feet = 1200;
  const double tdb = dryBulb;
  const float altitude = feet;
  for (int search = 0; search < kHumidities; ++search) {
    const double target = TargetHumidity(search);
    double dewPoint = 0;
    const auto humidity = [&](double twb) {
      BareAir air{};
      air.P = BarePressure(altitude);
      air.Ps = BareSaturationPressure(tdb);
      air.Pv = BareVaporPressure(tdb, twb, air.P);
      if (air.Pv > 0) dewPoint = BareDewPoint(air.Pv);
      air.humidity = 100 * air.Pv / air.Ps;
      air.ratio = 0.622 * air.Pv / (air.P - air.Pv);
      air.enthalpy = 0.24 * tdb + air.ratio * (1061 + 0.444 * tdb);
      air.volume = 0.754 * (tdb + 459.7) * (1 + 7000 * air.ratio / 4360) / air.P;
      benchmark::DoNotOptimize(air);
      return air.humidity;
    };
    double twb = 32;
    for (; twb <= 1000; twb += 1)
      if (humidity(twb) >= target) break;
    for (; twb >= 0; twb -= 0.01)
      if (humidity(twb) <= target) break;
    for (; twb <= 1000; twb += 0.0001)
      if (humidity(twb) >= target) break;
    benchmark::DoNotOptimize(dewPoint);
  }
}

void AirSearch(benchmark::State& state) { CompareTimes(state, 1.5, AirChecked, AirBare); }
BENCHMARK(AirSearch)->Unit(benchmark::kMillisecond);
// ---- Steam pipes ----

constexpr int kPipes = 100;

/// Flows in lb/h, for diameters from some 5 to 9 in.
int TargetFlow(int pipe) { return 10'000 + 300 * pipe; }

void SteamChecked() {
  volatile double density = 0.2, drop = 1, length = 100;
  for (int pipe = 0; pipe < kPipes; ++pipe) {
    int trials = 0;
    benchmark::DoNotOptimize(StepToSteamFlow({Single(density), Single(drop), Single(length)},
                                             TargetFlow(pipe), [&trials](Double) { ++trials; }));
    benchmark::DoNotOptimize(trials);
  }
}

void SteamBare() {
  volatile float givenDensity = 0.2F, givenDrop = 1, givenLength = 100;
  for (int pipe = 0; pipe < kPipes; ++pipe) {
    const float density = givenDensity, drop = givenDrop, length = givenLength;
    int trials = 0;
    double d = 0.25;
    for (; d <= 12; d += 0.001) {
      ++trials;
      if (5220 * std::sqrt(density * drop * std::pow(d, 5) / (length * (1 + 3.6 / d))) >=
          TargetFlow(pipe))
        break;
    }
    benchmark::DoNotOptimize(d);
    benchmark::DoNotOptimize(trials);
  }
}

void SteamSearch(benchmark::State& state) { CompareTimes(state, 1.5, SteamChecked, SteamBare); }
BENCHMARK(SteamSearch)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace korvane
