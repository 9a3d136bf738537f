#include "frame/mask.h"

#include <algorithm>
#include <array>
#include <charconv>

#include "frame/number_text.h"

namespace korvane {
namespace {

constexpr int kDigits = 15;  // significant digits of a 64-bit value that a mask looks at

/// A value as decimal figures: 0.f1f2f3... times 10 to the power `point`.
struct Decimal {
  std::array<char, kDigits> figures{};
  int count = 0;  // figures in use; none for zero
  int point = 0;
  bool negative = false;

  explicit Decimal(double value) {
    char text[40];
    const auto end =
        std::to_chars(text, text + sizeof text, value, std::chars_format::scientific, kDigits - 1)
            .ptr;
    const char* at = text;
    if (*at == '-') {
      negative = true;
      ++at;
    }
    figures[0] = *at;
    std::copy_n(at + 2, kDigits - 1, figures.begin() + 1);
    at += kDigits + 2;  // the figures, the point and the "e"
    std::from_chars(*at == '+' ? at + 1 : at, end, point);
    ++point;
    count = kDigits;
    DropZeros();
  }

  /// Rounds half away from zero, keeping `keep` figures (0 or fewer may round up to one).
  void RoundTo(int keep) {
    if (keep >= count) return;
    if (keep < 0) {
      count = 0;
    } else {
      const bool up = figures[static_cast<std::size_t>(keep)] >= '5';
      count = keep;
      if (up) Increment();
    }
    DropZeros();
  }

  char Figure(int index) const {
    return index >= 0 && index < count ? figures[static_cast<std::size_t>(index)] : '0';
  }

 private:
  void Increment() {
    for (int i = count - 1; i >= 0; --i) {
      char& figure = figures[static_cast<std::size_t>(i)];
      if (figure != '9') {
        ++figure;
        return;
      }
      --count;  // a 9 becomes a trailing zero
    }
    figures[0] = '1';
    count = 1;
    ++point;
  }

  void DropZeros() {
    while (count > 0 && figures[static_cast<std::size_t>(count) - 1] == '0') --count;
    if (count == 0) {
      point = 0;
      negative = false;
    }
  }
};

void AppendWhole(std::string& text, const Decimal& value, Mask mask) {
  const int digits = std::max({value.point, mask.WholeZeros(), 0});
  for (int i = digits; i > 0; --i) {
    text += value.Figure(value.point - i);
    if (mask.Groups() && i > 1 && i % 3 == 1) text += ',';
  }
}

void AppendPlaces(std::string& text, const Decimal& value, Mask mask) {
  if (!mask.HasPoint()) return;
  text += '.';
  const int places = std::clamp(value.count - value.point, mask.PlaceZeros(), mask.Places());
  for (int i = 0; i < places; ++i) text += value.Figure(value.point + i);
}

/// Scientific notation: as many whole digits as the mask has zeros, then point, places, exponent.
std::string Scientific(Decimal value, Mask mask) {
  value.RoundTo(mask.WholeZeros() + mask.Places());
  int exponent = 0;
  if (value.count > 0) {
    exponent = value.point - mask.WholeZeros();
    value.point = mask.WholeZeros();
  }
  std::string text = value.negative ? "-" : "";
  AppendWhole(text, value, mask);
  AppendPlaces(text, value, mask);
  text += exponent < 0 ? "E-" : "E+";
  const std::string size = std::to_string(std::abs(exponent));
  text.append(
      static_cast<std::size_t>(std::max(0, mask.ExponentZeros() - static_cast<int>(size.size()))),
      '0');
  return text + size;
}

}  // namespace

std::string Format(Double number, Mask mask) {
  Decimal value(number.Value());
  if (mask.ExponentZeros() > 0) return Scientific(value, mask);
  value.RoundTo(value.point + mask.Places());
  std::string text;
  if (value.negative) text += '-';
  AppendWhole(text, value, mask);
  AppendPlaces(text, value, mask);
  return text;
}

std::string FormatUnlessUnset(const std::optional<Double>& value, Mask mask) {
  if (value) return Format(*value, mask);
  return mask.WholeZeros() + mask.PlaceZeros() > 0 ? Format(Double(0), mask) : "";
}

std::string FormatText(std::string_view text, Mask mask) {
  const auto value = Recognise(text);
  return value ? Format(*value, mask) : std::string(text);
}

}  // namespace korvane
