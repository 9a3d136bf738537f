#include "stress/beam_cases.h"

#include <array>
#include <string_view>

// Symbols: reactions R, shears V, moments M (Mdes gives the stress), deflections y; at x, a, the
// center (ctr) or a free end. Inputs are 32-bit numbers; a product of such stays one, a power or a
// root is a 64-bit number, so that the order of factors counts. lb, in and psi are consistent, and
// so are N, mm and MPa. The formulas are the suite's own: where they leave the textbook's, the
// help page says so.

namespace korvane {
namespace {

BeamResult Moment(const BeamMoment& moment) {
  BeamResult result = std::visit([](auto value) { return BeamResult(value); }, moment);
  result.isMoment = true;
  return result;
}

BeamMoment Larger(const BeamMoment& one, const BeamMoment& other) {
  const auto size = [](const BeamMoment& moment) {
    return std::visit([](auto value) { return Double(Abs(value)); }, moment);
  };
  return size(one) >= size(other) ? one : other;
}

/// Two parts of the length, in this field and the next: the first gives the second, or else the
/// second the first. False if neither is there.
bool SplitLength(BeamFields& field, int first, Single& a, Single& b) {
  const Single L = field.beam.L;
  if (a > 0) {
    field.Derive(first + 1, b = L - a);
  } else if (b > 0) {
    field.Derive(first, a = L - b);
  } else {
    field.ClearResults();
    return false;
  }
  return true;
}

/// Three parts of the length, in this field and the next two, any two of which give the third.
/// False if there are no two.
bool CrossFill3(BeamFields& field, int first, Single& a, Single& b, Single& c) {
  const Single L = field.beam.L;
  if (a > 0 && b > 0) {
    field.Derive(first + 2, c = L - a - b);
  } else if (b > 0 && c > 0) {
    field.Derive(first, a = L - b - c);
  } else if (a > 0 && c > 0) {
    field.Derive(first + 1, b = L - a - c);
  } else {
    field.ClearResults();
    return false;
  }
  return true;
}

/// The metric caption follows from the U.S. one, but for a few.
UnitText Caption(const char* us) {
  struct Unit {
    std::string_view us, metric;
  };
  constexpr Unit units[] = {{"(in)", "(mm)"},
                            {"(lbf)", "(N)"},
                            {"(lbf/in)", "(N/mm)"},
                            {"(in-lb)", "(N-m)"},
                            {"(in-lbf)", "(N-m)"}};
  std::string metric = us;
  for (const Unit& unit : units)
    if (metric.ends_with(unit.us))
      metric.replace(metric.size() - unit.us.size(), unit.us.size(), unit.metric);
  return {us, metric};
}

/// A caption in both unit systems, written as one text where the rule gives the other.
struct FieldCaption : UnitText {
  FieldCaption(const char* text) : UnitText(Caption(text)) {}
  FieldCaption(const char* usText, const char* metricText)
      : UnitText(std::string(usText), std::string(metricText)) {}
};

BeamCase Case(const char* description, std::initializer_list<FieldCaption> inputs,
              std::initializer_list<FieldCaption> results,
              BeamSolution (*solve)(BeamFields& field)) {
  return {description, {inputs.begin(), inputs.end()}, {results.begin(), results.end()}, solve};
}

const std::array<BeamCase, kBeamCases>& Cases() {
  static const std::array<BeamCase, kBeamCases> cases = {
      // ---- 1 ----
      Case(
          "Simply supported, concentrated load (P) at center", {"Load P (lbf)", "Distance x (in)"},
          {"Reaction R1 (lbf)", "Reaction R2 (lbf)", "Shear Force V1 (lbf)", "Shear Force V2 (lbf)",
           "Max Bending Moment (in-lb)", "Max Deflection (in)", "Deflection at x (in)"},
          [](BeamFields& field) -> BeamSolution {
            const auto [E, I, L] = field.beam;
            const Single P = field(1), x = field(2);
            if (x > L / 2) {
              field.Reject(2, 15, "Distance x must be less than L/2");
              return {};
            }
            const Single R = P / 2;
            const Single Mdes = P * L / 4;
            const Double ymax = P * Power(L, 3) / (48 * E * I);
            const Double yx = (P * x / (48 * E * I)) * (3 * Power(L, 2) - 4 * Power(x, 2));
            return {{R, R, R, -R, Moment(Mdes), ymax, yx}, Mdes};
          }),
      // ---- 2 ----
      Case(
          "Simply supported, 2 equal concentrated loads (P) equi-distant from center",
          {"Load P (lbf)", "Distance a (in)", "Distance x (in)"},
          {"Reaction R1 (lbf)", "Reaction R2 (lbf)", "Shear Force V1 (lbf)", "Shear Force V2 (lbf)",
           "Max Bending Moment (in-lb)", "Max Deflection (in)", "Deflection at x (in)"},
          [](BeamFields& field) -> BeamSolution {
            const auto [E, I, L] = field.beam;
            const Single P = field(1), a = field(2);
            Single x = field(3);
            if (a > L / 2) {
              field.Reject(2, 14, "Distance a must be less than L/2");
              return {};
            }
            const Single Mdes = P * a;
            const Double ymax = (P * a / (24 * E * I)) * (3 * Power(L, 2) - 4 * Power(a, 2));
            Double yx;
            if (a < x && x <= L - a) {
              yx = (P * a / (6 * E * I)) * (3 * L * x - 3 * Power(x, 2) - Power(a, 2));
            } else if (x <= L) {
              if (x > a) x = L - x;
              yx = (P * x / (6 * E * I)) * (3 * L * a - 3 * Power(a, 2) - Power(x, 2));
            } else {
              field.Reject(3, 15, "Distance x must be less than L");
              return {};
            }
            return {{P, P, P, -P, Moment(Mdes), ymax, yx}, Mdes};
          }),
      // ---- 3 ----
      Case("Simply supported, concentrated load (P) at any point",
           {"Load P (lbf)", "Distance a (in)", "Distance b (in)", "Distance x (in)"},
           {"Reaction R1 (lbf)",
            "Reaction R2 (lbf)",
            "Shear Force V1 (lbf)",
            "Shear Force V2 (lbf)",
            "Max Bending Moment at a (in-lb)",
            {"Bending Moment at x (in)", "Deflection at a (mm)"},
            "Max Deflection (in)",
            "at Location (in)",
            "Deflection at x (in)"},
           [](BeamFields& field) -> BeamSolution {
             const auto [E, I, L] = field.beam;
             const Single P = field(1), x = field(4);
             Single a = field(2), b = field(3);
             if (a > 0 && field.Last() == 2)
               field.Derive(3, b = L - a);
             else if (b > 0 && field.Last() == 3)
               field.Derive(2, a = L - b);
             else if (a * b == 0) {
               field.ClearResults();
               return {};
             }
             const Single R1 = P * b / L, R2 = P * a / L;
             const Single Mdes = P * a * b / L;
             const Double ymax =
                 P * a * b * (a + 2 * b) * Sqrt(3 * a * (a + 2 * b)) / (27 * E * I * L);
             const Double location = Sqrt(a * (a + 2 * b) / 3);
             const Double ya = P * Power(a, 2) * Power(b, 2) / (3 * E * I * L);
             const Double yx =
                 (P * b * x / (6 * E * I * L)) * (Power(L, 2) - Power(b, 2) - Power(x, 2));
             return {{R1, R2, R1, -R2, Moment(Mdes), ya, ymax, location, yx}, Mdes};
           }),
      // ---- 4 ----
      Case("Simply supported, 2 unequal concentrated loads unsymmetrically located",
           {"Load P1 (lbf)", "Load P2 (lbf)", "Distance a (in)", "Distance b (in)",
            "Distance c (in)"},
           {"Reaction R1 (lbf)", "Reaction R2 (lbf)", "Shear Force V1 (lbf)",
            "Shear Force V2 (lbf)", "Bending Moment at P1(in-lb)", "Bending Moment at P2(in-lb)",
            "Max Bending Moment (in-lb)"},
           [](BeamFields& field) -> BeamSolution {
             const Single L = field.beam.L;
             const Single P1 = field(1), P2 = field(2);
             Single a = field(3), b = field(4), c = field(5);
             if (!CrossFill3(field, 3, a, b, c)) return {};
             const Single R1 = (P1 * (L - a) + P2 * c) / L, R2 = (P2 * (L - c) + P1 * a) / L;
             const Single M1 = R1 * a, M2 = R2 * c;
             const BeamMoment Mdes = Larger(M1, M2);
             return {{R1, R2, R1, -R2, Moment(M1), Moment(M2), Moment(Mdes)}, Mdes};
           }),
      // ---- 5 ----
      Case("Simply supported, 2 equal concentrated loads unsymmetrically located",
           {"Load P (lbf)", "Distance a (in)", "Distance b (in)", "Distance c (in)",
            "Distance x (in)"},
           {"Reaction R1 (lbf)", "Reaction R2 (lbf)", "Shear Force V1 (lbf)",
            "Shear Force V2 (lbf)", "Bending Moment at a (in-lb)", "Bending Moment at a+b (in-lb)",
            "Max Bending Moment (in-lb)", "Bending Moment at x (in-lb)"},
           [](BeamFields& field) -> BeamSolution {
             const Single L = field.beam.L;
             const Single P = field(1), a = field(2), b = field(3), c = field(4), x = field(5);
             const Single R1 = P * (L - a + c) / L, R2 = P * (L - c + a) / L;
             const Single M1 = R1 * a, M2 = R2 * c;
             const Single Mdes = a >= c ? M1 : M2;
             Single Mx = R1 * x;
             if (x > a + b)
               Mx = M2 - M2 * (x - a - b) / (L - a - b);
             else if (x > a)
               Mx = R1 * x - P * (x - a);
             return {{R1, R2, R1, -R2, Moment(M1), Moment(M2), Moment(Mdes), Moment(Mx)}, Mdes};
           }),
      // ---- 6 ----
      Case("Simply supported, uniformly distributed load", {"Load w (lbf/in)", "Distance x (in)"},
           {"Reaction R1 (lbf)", "Reaction R2 (lbf)", "Shear Force at x (lbf)",
            "Max Bending Moment (in-lb)", "Bending Moment at x (in-lb)",
            "Max Deflection at Center (in)", "Deflection at x (in)"},
           [](BeamFields& field) -> BeamSolution {
             const auto [E, I, L] = field.beam;
             const Single w = field(1), x = field(2);
             const Single R = w * L / 2;
             const Single Vx = w * (L / 2 - x);
             const Double Mdes = w * Power(L, 2) / 8;
             const Single Mx = w * x * (L - x) / 2;
             const Double ymax = 5 * w * Power(L, 4) / (384 * E * I);
             const Double yx =
                 w * x * (Power(L, 3) - 2 * L * Power(x, 2) + Power(x, 3)) / (24 * E * I);
             return {{R, R, Vx, Moment(Mdes), Moment(Mx), ymax, yx}, Mdes};
           }),
      // ---- 7 ----
      Case("Simply supported, distributed load increasing uniformly to one end",
           {"Total Load W (lbf)", "Distance x (in)"},
           {"Reaction R1 (lbf)", "Reaction R2 (lbf)", "Shear Force V1 (lbf)",
            "Shear Force V2 (lbf)", "Max Bending Moment (in-lb)", "at Location (in)",
            "Max Deflection (in)", "at Location (in)", "Deflection at x (in)"},
           [](BeamFields& field) -> BeamSolution {
             const auto [E, I, L] = field.beam;
             const Single W = field(1), x = field(2);
             const Single R1 = W / 3, R2 = 2 * W / 3;
             const Double Mdes = 2 * W * L / (Sqrt(3) * 9);
             const Double xd = 0.5193296 * L;
             const Double L2 = Power(L, 2), L4 = Power(L, 4), EIL2 = 180 * E * I * L2;
             const auto y = [&](auto t) {
               return W * t * (3 * Power(t, 4) - 10 * L2 * Power(t, 2) + 7 * L4) / EIL2;
             };
             return {{R1, R2, R1, -R2, Moment(Mdes), L / Sqrt(3), y(xd), xd, y(x)}, Mdes};
           }),
      // ---- 8 ----
      Case("Simply supported, distributed load uniformly increasing toward center",
           {"Total Load W (lbf)", "Distance x (in)"},
           {"Reaction R1 (lbf)", "Reaction R2 (lbf)", "Shear Force V1 (lbf)",
            "Shear Force V2 (lbf)", "Max Bending Moment (in-lb)", "Bending Moment at x (in-lb)",
            "Max Deflection (in)", "at Location (in)", "Deflection at x (in)"},
           [](BeamFields& field) -> BeamSolution {
             const auto [E, I, L] = field.beam;
             const Single W = field(1), x = field(2);
             const Single R = (2 * W / L) * L / 4;
             const Single Mdes = W * L / 6;
             const Single t = x <= L / 2 ? x : L - x;
             const Double Mx = W * t * (0.5 - 2 * Power(t, 2) / (3 * Power(L, 2)));
             const Double yx =
                 W * t * Power(5 * Power(L, 2) - 4 * Power(t, 2), 2) / (480 * E * I * Power(L, 2));
             const Double ymax = W * Power(L, 3) / (60 * E * I);
             return {{R, R, R, -R, Moment(Mdes), Moment(Mx), ymax, L / 2, yx}, Mdes};
           }),
      // ---- 9 ----
      Case("Simply supported, load uniformly distributed at left end of beam",
           {"Load w (lbf/in)", "Distance a (in)", "Distance x (in)"},
           {"Reaction R1 (lbf)", "Reaction R2 (lbf)", "Shear Force V1 (lbf)",
            "Shear Force V2 (lbf)", "Max Bending Moment (in-lb)", "at Location (in)",
            "Bending Moment at x (in-lb)", "Deflection at x (in)"},
           [](BeamFields& field) -> BeamSolution {
             const auto [E, I, L] = field.beam;
             const Single w = field(1), a = field(2), x = field(3);
             if (a <= 0) return {};
             const Single R1 = w * a * (2 * L - a) / (2 * L);
             const Double R2 = w * Power(a, 2) / (2 * L);
             const Double Mdes = Power(R1, 2) / (2 * w);
             const Single location = R1 / w;
             Double Mx, yx;
             if (x <= a) {
               Mx = R1 * x - w * Power(x, 2) / 2;
               yx = w * x *
                    (Power(a, 2) * Power(2 * L - a, 2) - 2 * a * Power(x, 2) * (2 * L - a) +
                     L * Power(x, 3)) /
                    (24 * E * I * L);
             } else {
               Mx = R2 * (L - x);
               yx = w * Power(a, 2) * (L - x) * (4 * L * x - 2 * Power(x, 2) - Power(a, 2)) /
                    (24 * E * I * L);
             }
             return {{R1, R2, R1, -R2, Moment(Mdes), location, Moment(Mx), yx}, Mdes};
           }),
      // ---- 10 ----
      Case(
          "Simply supported, partially distributed uniform load",
          {"Load w (lbf/in)", "Distance a (in)", "Distance b (in)", "Distance c (in)",
           "Distance x (in)"},
          {"Reaction R1 (lbf)", "Reaction R2 (lbf)", "Shear Force V1 (lbf)", "Shear Force V2 (lbf)",
           "Max Bending Moment (in-lb)", "at Location (in)", "Deflection at x (in)"},
          [](BeamFields& field) -> BeamSolution {
            const auto [E, I, L] = field.beam;
            const Single w = field(1), x = field(5);
            Single a = field(2), b = field(3), c = field(4);
            if (w == 0 || !CrossFill3(field, 2, a, b, c)) return {};
            const Single R1 = w * b * (2 * c + b) / (2 * L), R2 = w * b * (2 * a + b) / (2 * L);
            const Double Mdes =
                (w * b * (2 * c + b) / (8 * Power(L, 2))) * (4 * a * L + b * (2 * c + b));
            const Single location = a + R1 / w;
            const Single k = w / (24 * E * I);
            const Single p = b * (b + 2 * c) * x / L;
            const Double q = -2 * Power(x, 2) + 2 * a * (2 * L - a) + b * (b + 2 * c);
            const Double yx = x <= a ? k * p * q : k * (Power(x - a, 4) + p * q);
            return {{R1, R2, R1, -R2, Moment(Mdes), location, yx}, Mdes};
          }),
      // ---- 11 ----
      Case(
          "Simply supported, partially distributed uniform load at each end",
          {"Load w1 (lbf/in)", "Load w2 (lbf/in)", "Distance a (in)", "Distance b (in)",
           "Distance c (in)", "Distance x (in)"},
          {"Reaction R1 (lbf)", "Reaction R2 (lbf)", "Shear Force V1 (lbf)", "Shear Force V2 (lbf)",
           "Max Bending Moment (in-lb)", "at Location (in)", "Bending Moment at x (in-lb)"},
          [](BeamFields& field) -> BeamSolution {
            const Single L = field.beam.L;
            const Single w1 = field(1), w2 = field(2), x = field(6);
            Single a = field(3), b = field(4), c = field(5);
            if (!CrossFill3(field, 3, a, b, c)) return {};
            const Double R1 = (w1 * a * (2 * L - a) + w2 * Power(c, 2)) / (2 * L);
            const Double R2 = (w2 * c * (2 * L - c) + w1 * Power(a, 2)) / (2 * L);
            Double Mdes, location;
            if (R1 < w1 * a) {
              Mdes = Power(R1, 2) / (2 * w1);
              location = R1 / w1;
            } else if (R2 < w2 * c) {
              Mdes = Power(R2, 2) / (2 * w2);
              location = L - R2 / w2;
            }
            Double Mx;
            if (x <= a)
              Mx = R1 * x - w1 * Power(x, 2) / 2;
            else if (x <= a + b)
              Mx = R1 * x - (w1 * a / 2) * (2 * x - a);
            else
              Mx = R2 * (L - x) - w2 * Power(L - x, 2) / 2;
            return {{R1, R2, R1, -R2, Moment(Mdes), location, Moment(Mx)}, Mdes};
          }),
      // ---- 12 ----
      Case("Simply supported, two equal and opposite moments (M) at ends",
           {"Moment M (in-lbf)", "Distance x (in)"},
           {"Reaction R1 (lbf)", "Reaction R2 (lbf)", "Shear - All Points (lbf)",
            "Moment - All Points (in-lb)", "Max Deflection (in)", "at Location (in)",
            "Deflection at x (in)"},
           [](BeamFields& field) -> BeamSolution {
             const auto [E, I, L] = field.beam;
             constexpr int newtonMillimeters = 1000;  // in a newton metre; taken in U.S. units too
             const Single M = field(1) * newtonMillimeters, x = field(2);
             const Double ymax = M * Power(L, 2) / (8 * E * I);
             const Single yx = M * x * (L - x) / (2 * E * I);
             return {{0, 0, 0, Moment(M), ymax, L / 2, yx}, M};
           }),
      // ---- 13 ----
      Case("Moment (M) applied at x = a",
           {"Moment M (in-lb)", "Distance a (in)", "Distance b (in)", "Distance x (in)"},
           {"Reaction R1 (lbf)", "Reaction R2 (lbf)", "Shear Force at x (lbf)",
            "Max Bending Moment (in-lb)", "Bending Moment at x (in-lb)", "Deflection at x (in)"},
           [](BeamFields& field) -> BeamSolution {
             const auto [E, I, L] = field.beam;
             const Single M = field(1), a = field(2), b = field(3), x = field(4);
             if (E * I * L == 0 || (a == 0 && b == 0)) return {};
             const Single V = M / L;
             const BeamMoment Mdes = Larger(M * a / L, -M * b / L);
             Single Mx;
             Double yx;
             if (x <= a) {
               Mx = M * x / L;
               yx = M * x * (Power(L, 2) - 3 * Power(b, 2) - Power(x, 2)) / (6 * E * I * L);
             } else {
               Mx = -M * (1 - x / L);
               yx = M * (L - x) * (3 * Power(a, 2) - 2 * L * x + Power(x, 2)) / (6 * E * I * L);
             }
             return {{V, -V, V, Moment(Mdes), Moment(Mx), yx}, Mdes};
           }),
      // ---- 14 ----
      Case("Cantilever beam, concentrated load (P) at free end",
           {"Load P (lbf)", "Distance x (in)"},
           {"Reaction R (lbf)", "Shear Force at All Points (lbf)",
            "Max Bending Moment at R (in-lb)", "Bending Moment at x (in-lb)",
            "Max Deflection at Free End (in)", "Deflection at x (in)"},
           [](BeamFields& field) -> BeamSolution {
             const auto [E, I, L] = field.beam;
             const Single P = field(1), x = field(2);
             const Single Mdes = -P * L;
             const Single Mx = P * x;
             const Double ymax = P * Power(L, 3) / (3 * E * I);
             const Double yx =
                 P * (2 * Power(L, 3) - 3 * Power(L, 2) * x + Power(x, 3)) / (6 * E * I);
             return {{P, -P, Moment(Mdes), Moment(Mx), ymax, yx}, Mdes};
           }),
      // ---- 15 ----
      Case("Cantilever beam, moment (-M) at free end", {"Moment M (in-lbf)", "Distance x (in)"},
           {"Reaction R (lbf)",
            "Shear Force V (lbf)",
            "Max Bending Moment (in-lb)",
            "Bending Moment at All Points (in-lb)",
            {"Max Deflection at Free End(in)", "Max Deflection at Free End (mm)"},
            "Deflection at x (in)"},
           [](BeamFields& field) -> BeamSolution {
             const auto [E, I, L] = field.beam;
             const Single M = field(1), x = field(2);
             const Double ymax = M * Power(L, 2) / (2 * E * I);
             const Double yx = M * Power(L - x, 2) / (2 * E * I);
             return {{0, 0, Moment(-M), Moment(-M), ymax, yx}, -M};
           }),
      // ---- 16 ----
      Case("Cantilever beam, uniformly distributed load", {"Load w (lbf/in)", "Distance x (in)"},
           {"Reaction R (lbf)", "Max Shear Force at R (lbf)", "Shear Force at x (lbf)",
            "Max Bending Moment (in-lb)", "Bending Moment at x (in-lb)", "Max Deflection (in)",
            "Deflection at x (in)"},
           [](BeamFields& field) -> BeamSolution {
             const auto [E, I, L] = field.beam;
             const Single w = field(1), x = field(2);
             const Single W = w * L;
             const Single Vx = -w * x;
             const Single Mdes = -W * L / 2;
             const Double Mx = -W * Power(x, 2) / (2 * L);
             const Double ymax = W * Power(L, 3) / (8 * E * I);
             const Double yx =
                 w * (Power(x, 4) - 4 * Power(L, 3) * x + 3 * Power(L, 4)) / (24 * E * I);
             return {{W, -W, Vx, Moment(Mdes), Moment(Mx), ymax, yx}, Mdes};
           }),
      // ---- 17 ----
      Case("Cantilever beam, distributed load increasing uniformly to fixed end",
           {"Total Load W (lbf)", "Distance x (in)"},
           {"Reaction R (lbf)", "Max Shear Force at R (lbf)", "Shear Force at x (lbf)",
            "Max Bending Moment (in-lb)", "Bending Moment at x (in-lb)", "Max Deflection (in)",
            "Deflection at x (in)"},
           [](BeamFields& field) -> BeamSolution {
             const auto [E, I, L] = field.beam;
             const Single W = field(1), x = field(2);
             const Double Vx = -W * Power(x, 2) / Power(L, 2);
             const Single Mdes = -W * L / 3;
             const Double Mx = -W * Power(x, 3) / (3 * Power(L, 2));
             const Double ymax = W * Power(L, 3) / (15 * E * I);
             const Double yx = W * (Power(x, 5) - 5 * Power(L, 4) * x + 4 * Power(L, 5)) /
                               (60 * E * I * Power(L, 2));
             return {{W, -W, Vx, Moment(Mdes), Moment(Mx), ymax, yx}, Mdes};
           }),
      // ---- 18 ----
      Case("Cantilever beam, concentrated load (P) inboard of free end",
           {"Load P (lbf)", "Distance a (in)", "Distance x (in)"},
           {"Reaction R (lbf)", "Shear Force Right of Load (lbf)", "Shear Force Left of Load (lbf)",
            "Max Bending Moment at R (in-lb)", "Max Deflection (in)", "Deflection at a (in)",
            "Deflection at x (in)"},
           [](BeamFields& field) -> BeamSolution {
             const auto [E, I, L] = field.beam;
             const Single P = field(1), a = field(2), x = field(3);
             const Single b = L - a;
             const Single Mdes = -P * b;
             const Double ymax = P * Power(b, 2) * (3 * L - b) / (6 * E * I);
             const Double ya = P * Power(b, 3) / (3 * E * I);
             const Double yx = x <= a ? P * Power(b, 2) * (3 * L - 3 * x - b) / (6 * E * I)
                                      : P * Power(L - x, 2) * (3 * b - L + x) / (6 * E * I);
             return {{P, 0, -P, Moment(Mdes), ymax, ya, yx}, Mdes};
           }),
      // ---- 19 ----
      Case("Simply supported, overhung both ends equally, uniformly distributed load",
           {"Load w (lbf/in)", "Distance a (in)"},
           {"Reactions R1 = R2 (lbf)", "Max Shear Force at Supports (lbf)",
            "Bending Moment at Supports (lbf)", "Bending Moment at Center (in-lb)",
            "Deflection at Center (in)", "Deflection at Ends (in)"},
           [](BeamFields& field) -> BeamSolution {
             const auto [E, I, L] = field.beam;
             const Single w = field(1), a = field(2);
             const Single W = w * L, d = L - 2 * a;
             const Single V1 = w * a, V2 = w * d / 2;
             const Double Msup = w * Power(a, 2) / 2;
             const Single Mctr = W * (L - 4 * a) / 8;
             const BeamMoment Mdes = Larger(Msup, Mctr);
             const Double yctr =
                 (W * Power(d, 3) / (384 * E * I)) * (5 * d / L - (24 / L) * (Power(a, 2) / d));
             const Double yend = (W * Power(d, 3) * a / (24 * E * I * L)) *
                                 (2 + 6 * Power(a / d, 2) + 3 * Power(a / d, 3));
             return {{W / 2, V1 >= V2 ? V1 : V2, Moment(Msup), Moment(Mctr), yctr, yend}, Mdes};
           }),
      // ---- 20 ----
      Case("Cantilever beam, overhung one end, concentrated load (P) at end of overhang",
           {"Load P (lbf)", "Distance a (in)", "Distance x (in)"},
           {"Reaction R1 (lbf)", "Reaction R2 (lbf)", "Shear Force at R1 (lbf)",
            "Shear Force at Free End (lbf)", "Max Bending Moment at R2 (in)",
            "Max Deflection at Free End (in)", "Max Deflection Over L (in)", "at Location (in)",
            "Deflection at x (in)"},
           [](BeamFields& field) -> BeamSolution {
             const auto [E, I, L] = field.beam;
             const Single P = field(1), a = field(2), x = field(3);
             const Single R1 = -(P * a / L), R2 = P * (L + a) / L;
             const Single Mdes = -P * a;
             const Double yend = P * Power(a, 2) * (L + a) / (3 * E * I);
             const Double yL = P * a * Power(L, 2) / (Sqrt(3) * 9 * E * I);
             const Single t = x - L;
             const Double yx = x <= L
                                   ? P * a * x * (Power(L, 2) - Power(x, 2)) / (6 * E * I * L)
                                   : -P * t * (2 * a * L + 3 * a * t - Power(t, 2)) / (6 * E * I);
             return {{R1, R2, R1, P, Moment(Mdes), yend, yL, L / Sqrt(3), yx}, Mdes};
           }),
      // ---- 21 ----
      Case("Cantilever beam, overhung one end, concentrated load (P) between supports",
           {"Load P (lbf)", "Distance a (in)", "Distance b (in)", "Distance x (in)"},
           {"Reaction R1 (lbf)",
            "Reaction R2 (lbf)",
            "Max Bending Moment at P (in-lbf)",
            "Max Downward Deflection (in)",
            "at Location (in)",
            {"UpwardDeflection at Free End (in)", "Upward Deflection at Free End (mm)"},
            "Deflection at Load P (in)",
            "Deflection at x (in)"},
           [](BeamFields& field) -> BeamSolution {
             const auto [E, I, L] = field.beam;
             const Single P = field(1), a = field(2), b = field(3), x = field(4);
             const Single d = L - b;
             const Single R1 = P * b / L, R2 = P * d / L;
             const Single Mdes = P * b * d / L;
             const Double root = Sqrt(3 * (Power(L, 2) - Power(b, 2)));
             const Double ymax = P * b * (Power(L, 2) - Power(b, 2)) * root / (27 * E * I * L);
             const Double yend = -(P * a * b / (6 * E * I)) * (2 * L + Power(b, 2) / L - 3 * b);
             const Double yP = P * Power(d, 2) * Power(b, 2) / (3 * E * I * L);
             Double yx;
             if (x <= d)
               yx = P * b * x * (Power(L, 2) - Power(b, 2) - Power(x, 2)) / (6 * E * I * L);
             else if (x <= L)
               yx = P * d * (L - x) * (2 * L * x - Power(x, 2) - Power(d, 2)) / (6 * E * I * L);
             else
               yx = -P * d * b * (x - L) * (L + d) / (6 * E * I * L);
             return {{R1, R2, Moment(Mdes), ymax, root / 3, yend, yP, yx}, Mdes};
           }),
      // ---- 22 ----
      Case(
          "Simply supported, overhung both ends equally, 2 equal loads (P) at ends of overhang",
          {"Load P (lbf)", "Distance a (in)"},
          {"Reaction R1 (lbf)", "Reaction R2 (lbf)", "Shear Force V1 (lbf)", "Shear Force V1 (lbf)",
           "Max Bending Moment (in-lbf)", "Deflection at Ends (in)", "Deflection at Center (in)"},
          [](BeamFields& field) -> BeamSolution {
            const auto [E, I, L] = field.beam;
            const Single P = field(1), a = field(2);
            const Single Mdes = -P * a;
            const Double yend = P * Power(a, 2) * (a + 3 * L / 2) / (3 * E * I);
            const Double yctr = -(P * Power(L, 2) * a / (8 * E * I));
            return {{P, P, -P, P, Moment(Mdes), yend, yctr}, Mdes};
          }),
      // ---- 23 ----
      Case("Simply supported, overhung one end, uniform load on overhang",
           {"Load w (lbf/in)", "Distance a (in)"},
           {"Reaction R1 (lbf)", "Reaction R2 (lbf)", "Shear Force V1 (lbf)",
            "Shear Force V2 (lbf)", "Max Bending Moment (in-lbf)",
            "Max Deflection at Free End (in)", "Max Defl. Between Supports (in)"},
           [](BeamFields& field) -> BeamSolution {
             const auto [E, I, L] = field.beam;
             const Single w = field(1), a = field(2);
             const Double R1 = -w * Power(a, 2) / (2 * L);
             const Single R2 = w * a * (2 * L + a) / (2 * L);
             const Double Mdes = -(w * Power(a, 2) / 2);
             const Double yend = w * Power(a, 3) * (4 * L + 3 * a) / (24 * E * I);
             const Double ybetween = -(w * Power(a, 2) * Power(L, 2) / (Sqrt(3) * 18 * E * I));
             return {{R1, R2, R1, w * a, Moment(Mdes), yend, ybetween}, Mdes};
           }),
      // ---- 24 ----
      Case("Simply supported, overhung one end, uniform load between supports",
           {"Load w (lbf/in)", "Distance a (in)"},
           {"Reaction R1 (lbf)", "Reaction R2 (lbf)", "Max Bending Moment (in-lbf)",
            "at Location (in)", "Deflection at Free End (in)", "Max Deflection at L/2 (in)"},
           [](BeamFields& field) -> BeamSolution {
             const auto [E, I, L] = field.beam;
             const Single w = field(1), a = field(2);
             const Single R = w * L / 2;
             const Double Mdes = w * Power(L, 2) / 8;
             const Double yend = -(w * Power(L, 3) * a / (24 * E * I));
             const Double ymax = 5 * w * Power(L, 4) / (384 * E * I);
             return {{R, R, Moment(Mdes), L / 2, yend, ymax}, Mdes};
           }),
      // ---- 25 ----
      Case(
          "Fixed ends, uniformly distributed load", {"Load w (lbf/in)", "Distance x (in)"},
          {"Reaction R1 (lbf)", "Reaction R2 (lbf)", "Shear Force V1 (lbf)", "Shear Force V2 (lbf)",
           "Max Bending Moment at Ends (in-lbf)", "Max Bending Moment at Ctr (in-lbf)",
           "Max Deflection at Center (in)", "Deflection at x (in)"},
          [](BeamFields& field) -> BeamSolution {
            const auto [E, I, L] = field.beam;
            const Single w = field(1), x = field(2);
            const Single R = w * L / 2;
            const Double Mend = -(w * Power(L, 2) / 12), Mctr = w * Power(L, 2) / 24;
            const Double ymax = w * Power(L, 4) / (384 * E * I);
            const Double yx = w * Power(x, 2) * Power(L - x, 2) / (24 * E * I);
            return {{R, R, R, -R, Moment(Mend), Moment(Mctr), ymax, yx}, Larger(Mend, Mctr)};
          }),
      // ---- 26 ----
      Case(
          "Fixed ends, concentrated load (P) at center", {"Load P (lbf)", "Distance x (in)"},
          {"Reaction R1 (lbf)", "Reaction R2 (lbf)", "Shear Force V1 (lbf)", "Shear Force V1 (lbf)",
           "Max Bending Moment at Ctr (in-lbf)", "Max Bending Moment at Ends (in-lbf)",
           "Max Defl. at Center (in)", "Deflection at x (in)"},
          [](BeamFields& field) -> BeamSolution {
            const auto [E, I, L] = field.beam;
            const Single P = field(1), x = field(2);
            const Single R = P / 2;
            const Single Mctr = P * L / 8, Mend = -P * L / 8;
            const Double ymax = P * Power(L, 3) / (192 * E * I);
            const Single t = x <= L / 2 ? x : L - x;
            const Double yx = P * Power(t, 2) * (3 * L - 4 * t) / (48 * E * I);
            return {{R, R, R, -R, Moment(Mctr), Moment(Mend), ymax, yx}, Larger(Mctr, Mend)};
          }),
      // ---- 27 ----
      Case("Fixed ends, concentrated load (P) at any point",
           {"Load P (lbf)", "Distance a (in)", "Distance b (in)"},
           {"Reaction R1 (lbf)", "Reaction R2 (lbf)", "Shear Force V1 (lbf)",
            "Shear Force V2 (lbf)", "Max Bending Moment (in-lbf)", "at Location (in)",
            "Deflection at Load (in)", "Max Deflection (in)", "at Location (in)"},
           [](BeamFields& field) -> BeamSolution {
             const auto [E, I, L] = field.beam;
             const Single P = field(1);
             Single a = field(2), b = field(3);
             if ((a == 0 && b == 0) || !SplitLength(field, 2, a, b)) return {};
             const Double R1 = P * Power(b, 2) * (3 * a + b) / Power(L, 3);
             const Double R2 = P * Power(a, 2) * (3 * b + a) / Power(L, 3);
             const Double M1 = -(P * a * Power(b, 2) / Power(L, 2));
             const Double M2 = -(P * Power(a, 2) * b / Power(L, 2));
             const bool left = Abs(M1) > Abs(M2);
             const Double Mdes = left ? M1 : M2;
             const Double yP = P * Power(a, 3) * Power(b, 3) / (3 * E * I * Power(L, 3));
             Double ymax;
             Single location = 2 * a * L / (3 * a + b);
             if (a > L / 2) {
               ymax = 2 * P * Power(a, 3) * Power(b, 2) / (3 * E * I * Power(3 * a + b, 2));
             } else {
               ymax = 2 * P * Power(b, 3) * Power(a, 2) / (3 * E * I * Power(3 * b + a, 2));
               location = L - location;
             }
             return {{R1, R2, R1, -R2, Moment(Mdes), left ? 0 : L, yP, ymax, location}, Mdes};
           }),
      // ---- 28 ----
      Case(
          "One end fixed, one end simply supported, uniformly distributed load",
          {"Load w (lbf/in)", "Distance x (in)"},
          {"Reaction R1 (lbf)", "Reaction R2 (lbf)", "Shear Force V1 (lbf)", "Shear Force V2 (lbf)",
           "Max Neg Moment at R2 (in-lbf)", "Max Pos Moment at x=0.375L (in-lbf)",
           "Moment at x (in-lbf)", "Max Defl. at x=0.4215L (in)", "Deflection at x (in)"},
          [](BeamFields& field) -> BeamSolution {
            const auto [E, I, L] = field.beam;
            const Single w = field(1), x = field(2);
            const Single R1 = 3 * w * L / 8, R2 = 5 * w * L / 8;
            const Double Mneg = -(w * Power(L, 2) / 8), Mpos = 9 * w * Power(L, 2) / 128;
            const Double Mx = R1 * x - w * Power(x, 2) / 2;
            const Double ymax = w * Power(L, 4) / (185 * E * I);
            const Double yx =
                w * x * (Power(L, 3) - 3 * L * Power(x, 2) + 2 * Power(x, 3)) / (48 * E * I);
            return {{R1, R2, R1, -R2, Moment(Mneg), Moment(Mpos), Moment(Mx), ymax, yx},
                    Larger(Mneg, Mpos)};
          }),
      // ---- 29 ----
      Case(
          "One end fixed, one end simply supported, concentrated load (P) at center",
          {"Load P (lbf)", "Distance x (in)"},
          {"Reaction R1 (lbf)", "Reaction R2 (lbf)", "Shear Force V1 (lbf)", "Shear Force V2 (lbf)",
           "Max Neg Moment @ R2 (in-lbf)", "Max Pos Moment @ Center (in-lbf)",
           "Max Deflection at x=0.4472L (in)", "Deflection at Load P (in)", "Deflection at x (in)"},
          [](BeamFields& field) -> BeamSolution {
            const auto [E, I, L] = field.beam;
            const Single P = field(1), x = field(2);
            const Single R1 = 5 * P / 16, R2 = 11 * P / 16;
            const Single Mneg = -3 * P * L / 16, Mpos = 5 * P * L / 32;
            const Double ymax = 0.009317 * P * Power(L, 3) / (E * I);
            const Double yP = 7 * P * Power(L, 3) / (768 * E * I);
            const Double yx = x <= L / 2
                                  ? P * x * (3 * Power(L, 2) - 5 * Power(x, 2)) / (96 * E * I)
                                  : P * Power(x - L, 2) * (11 * x - 2 * L) / (96 * E * I);
            return {{R1, R2, R1, -R2, Moment(Mneg), Moment(Mpos), ymax, yP, yx},
                    Larger(Mneg, Mpos)};
          }),
      // ---- 30 ----
      Case(
          "One end fixed, one end simply supported, concentrated load (P) at any point",
          {"Load P (lbf)", "Distance a (in)", "Distance b (in)"},
          {"Reaction R1 (lbf)", "Reaction R2 (lbf)", "Shear Force V1 (lbf)", "Shear Force V2 (lbf)",
           "Max Neg Moment at R2 (in-lbf)", "Max Pos Moment at Load (in-lbf)",
           "Deflection at Load (in)", "Max Deflection (in)", "at Location (in)"},
          [](BeamFields& field) -> BeamSolution {
            const auto [E, I, L] = field.beam;
            const Single P = field(1);
            Single a = field(2), b = field(3);
            if (!SplitLength(field, 2, a, b)) return {};
            const Double R1 = P * Power(b, 2) * (a + 2 * L) / (2 * Power(L, 3));
            const Double R2 = P * a * (3 * Power(L, 2) - Power(a, 2)) / (2 * Power(L, 3));
            const Double Mneg = -(P * a * b * (a + L) / (2 * Power(L, 2)));
            const Double Mpos = P * a * Power(b, 2) * (a + 2 * L) / (2 * Power(L, 3));
            const Double yP =
                P * Power(a, 2) * Power(b, 3) * (3 * L + a) / (12 * E * I * Power(L, 3));
            Double ymax, location;
            if (a <= 0.414 * L) {
              const Double d = 3 * Power(L, 2) - Power(a, 2);
              ymax = P * a * Power(Power(L, 2) - Power(a, 2), 3) / (3 * E * I * Power(d, 2));
              location = (Power(L, 2) + Power(a, 2)) * L / d;
            } else {
              const Double root = Sqrt(a / (2 * L + a));
              ymax = P * a * Power(b, 2) * root / (6 * E * I);
              location = L * root;
            }
            return {{R1, R2, R1, -R2, Moment(Mneg), Moment(Mpos), yP, ymax, location},
                    Larger(Mneg, Mpos)};
          }),
      // ---- 31 ----
      Case("One end fixed, one end overhung, concentrated load (P) at end of overhang",
           {"Load P (lbf)", "Distance a (in)"},
           {"Reaction R1 (lbf)", "Reaction R2 (lbf)", "Shear Force V1 (lbf)",
            "Shear Force V2 (lbf)", "Bending Moment at R1 (in-lbf)",
            "Bending Moment at R2 (in-lbf)", "Deflection at Free End (in)"},
           [](BeamFields& field) -> BeamSolution {
             const auto [E, I, L] = field.beam;
             const Single P = field(1), a = field(2);
             const Single R2 = -(3 * P * a / (2 * L));
             const Single R1 = P * (1 + 3 * a / (2 * L));
             const Single M1 = -P * a, M2 = P * a / 2;
             const Double y = P * Power(L, 3) *
                              (Power(a, 2) / (4 * Power(L, 2)) + Power(a, 3) / (3 * Power(L, 3))) /
                              (E * I);
             return {{R1, R2, -P, -R2, Moment(M1), Moment(M2), y}, Larger(M1, M2)};
           }),
      // ---- 32 ----
      Case(
          "One end fixed, one end overhung, uniform load on overhang",
          {"Load w (lbf/in)", "Distance a (in)"},
          {"Reaction R1 (lbf)", "Reaction R2 (lbf)", "Shear Force V1 (lbf)", "Shear Force V2 (lbf)",
           "Bending Moment at R1 (in-lbf)", "Bending Moment at R2 (in-lbf)"},
          [](BeamFields& field) -> BeamSolution {
            const Single L = field.beam.L;
            const Single w = field(1), a = field(2);
            const Single R1 = w * a * (1 + 3 * a / (4 * L));
            const Double R2 = -(3 * w * Power(a, 2) / (4 * L));
            const Double M1 = -w * Power(a, 2) / 2, M2 = w * Power(a, 2) / 4;
            return {{R1, R2, -w * a, -R2, Moment(M1), Moment(M2)}, Larger(M1, M2)};
          }),
  };
  return cases;
}

}  // namespace

const BeamCase& BeamCaseOf(int number) {
  if (number < 1 || number > kBeamCases) failures::SubscriptOutOfRange();
  return Cases()[static_cast<std::size_t>(number - 1)];
}

std::string BeamCaseName(int number) { return "Case " + Format(Double(number), "00"); }

}  // namespace korvane
