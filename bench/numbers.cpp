// What checked numbers cost: a search through pipe flows, each with its friction factor, once with
// Single and Double and once with the bare machine types.

#include <cmath>

#include "compare.h"
#include "frame/number.h"

namespace korvane {
namespace {

double Sqrt(double x) { return std::sqrt(x); }
double Ln(double x) { return std::log(x); }

/// Colebrook's friction factor by six rounds from 0.01, for turbulent flow.
template <class Real>
Real Friction(Real reynolds, Real roughness) {
  const Real ln10 = Ln(Real(10));
  Real f = 0.01;
  for (int i = 0; i < 6; ++i) {
    const Real inner = Ln(1 + 9.3 / (reynolds * roughness * Sqrt(f))) / ln10;
    const Real g = 1.14 - 2 * (inner + Ln(roughness) / ln10);
    f = 1 / (g * g);
  }
  return f;
}

/// Steps the flow (gal/min) through 125,000 values, that is 750,000 rounds, and sums the heads.
template <class Narrow, class Real>
Narrow Search(Narrow diameter, Narrow length, Real viscosity, Real roughness) {
  Narrow sum = 0;
  Narrow flow = 100;
  for (int i = 0; i < 125'000; ++i) {
    flow = Narrow(flow + 0.01);
    const Real velocity = flow * 0.408 / (diameter * diameter);
    const Real reynolds = diameter / 12 * velocity / viscosity;
    const auto head = Narrow(velocity * velocity * (length * Friction(reynolds, roughness)) / 64.4);
    sum = sum + head / 1000;
  }
  return sum;
}

template <class Narrow, class Real>
void SearchFromUnknowns() {
  volatile float diameter = 4, length = 100;
  volatile double viscosity = 1.2e-5, roughness = 0.0005;
  benchmark::DoNotOptimize(
      Search<Narrow, Real>(Narrow(diameter), Narrow(length), Real(viscosity), Real(roughness)));
}

void FrictionSearch(benchmark::State& state) {
  CompareTimes(state, 1.25, SearchFromUnknowns<Single, Double>, SearchFromUnknowns<float, double>);
}
BENCHMARK(FrictionSearch)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace korvane
