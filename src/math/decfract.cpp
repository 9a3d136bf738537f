#include "math/decfract.h"

namespace korvane {
namespace {

constexpr double kInch = 25.4;  // mm
constexpr int kFinest = 64;     // parts of an inch
constexpr double kTenth = 0.1;
constexpr double kSixtyFourth = 0.015625;

/// The field's number in all its digits, so that steps of a tenth stay tenths.
Double NumberOf(const TextField& field) { return Recognise(field.Text()).value_or(0); }

}  // namespace

std::string FractionText(Single inches) {
  if (inches == 0) return "0";
  int den = kFinest;
  Single whole = Int(inches);
  int num = ToInteger16((inches - whole) * den);
  if (num == den) {
    whole += 1;
    num = 0;
  }
  while (num % 2 == 0 && den > 1) {
    num /= 2;
    den /= 2;
  }
  if (den == 1) return SignedText(whole);
  return SignedText(whole) + '-' + SignedText(num) + '/' + SignedText(den);
}

std::optional<Single> FractionValue(std::string_view text) {
  const auto slash = text.find('/');
  const std::string_view head = text.substr(0, slash);
  const Single below = slash == std::string_view::npos ? 0 : ToNumber(text.substr(slash + 1));
  const Single den = below == 0 ? 1 : below;
  if (den < 0) return {};
  const auto gap = head.find_first_of(" -");
  if (gap == std::string_view::npos) return ToNumber(head) / den;
  return ToNumber(head.substr(0, gap)) + ToNumber(head.substr(gap + 1)) / den;
}

DecFract::DecFract(Session& session)
    : CalculatorWindow(session, {.name = "DecFract",
                                 .title = " Decimal   <------->  Fraction  <------->  Metric",
                                 .helpPage = "math_fractions_decimals_millimeters.html"}) {
  dec.onEnter = [this] { FromDecimal(); };
  FRACTION.onEnter = [this] { FromFraction(); };
  METRIC.onEnter = [this] { FromMetric(); };
  UpDown1.onDown = [this] { StepDecimal(-kTenth); };
  UpDown1.onUp = [this] { StepDecimal(kTenth); };
  UpDown2.onDown = [this] { StepDecimal(-kSixtyFourth); };
  UpDown2.onUp = [this] { StepDecimal(kSixtyFourth); };
  UpDown3.onDown = [this] { StepMetric(-1); };
  UpDown3.onUp = [this] { StepMetric(1); };
  HelpsWith(btn_help);
  ExitsWith(btn_exit);
}

Layout DecFract::Arrangement() {
  return Column({instruction_,
                 Form({Row({dec, UpDown1, dec_unit_, Stretch()}),
                       Row({FRACTION, UpDown2, fraction_unit_, Stretch()}),
                       Row({METRIC, UpDown3, metric_unit_, Stretch()})}),
                 Row({Stretch(), btn_help, btn_exit})});
}

// Of no inches the millimeters stay as they were.
void DecFract::FromDecimal() {
  ShowFraction();
  if (ToNumber(dec) != 0) METRIC.Show(ToNumber(dec) * kInch);
}

void DecFract::FromFraction() {
  if (FRACTION.Text().empty()) return;
  if (const auto inches = FractionValue(FRACTION.Text())) dec.Show(*inches);
  METRIC.Show(ToNumber(dec) * kInch);
}

void DecFract::FromMetric() {
  dec.Show(ToNumber(METRIC) / kInch, "0.000");
  ShowFraction();
}

void DecFract::ShowFraction() { FRACTION.SetText(FractionText(ToNumber(dec))); }

void DecFract::StepDecimal(double by) {
  dec.Show(NumberOf(dec) + by);
  METRIC.Show(ToNumber(dec) * kInch);
  ShowFraction();
}

void DecFract::StepMetric(int by) {
  METRIC.Show(ToNumber(METRIC) + by);
  FromMetric();
}

}  // namespace korvane
