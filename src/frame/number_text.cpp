#include "frame/number_text.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <iterator>

namespace korvane {
namespace {

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

bool IsBlank(char c) { return c == ' ' || c == '\t'; }

/// Walks a text and copies what std::from_chars understands of it.
class NumberScanner {
 public:
  explicit NumberScanner(std::string_view text) : rest_(text) {
    while (!rest_.empty() && IsBlank(rest_.front())) rest_.remove_prefix(1);
    while (!rest_.empty() && IsBlank(rest_.back())) rest_.remove_suffix(1);
  }

  bool Scan() {
    Sign();
    const bool whole = Digits(/*commas=*/true);
    bool fraction = false;
    if (Take('.')) {
      plain_ += '.';
      fraction = Digits(/*commas=*/false);
    }
    return (whole || fraction) && Exponent() && rest_.empty();
  }

  const std::string& Plain() const { return plain_; }

 private:
  bool Take(char c) {
    if (rest_.empty() || rest_.front() != c) return false;
    rest_.remove_prefix(1);
    return true;
  }

  void Sign() {
    if (Take('-'))
      plain_ += '-';
    else
      Take('+');
  }

  bool Digits(bool commas) {
    bool any = false;
    while (!rest_.empty() && (IsDigit(rest_.front()) || (commas && any && rest_.front() == ','))) {
      if (rest_.front() != ',') plain_ += rest_.front();
      any = true;
      rest_.remove_prefix(1);
    }
    return any;
  }

  bool Exponent() {
    if (!Take('e') && !Take('E')) return true;
    plain_ += 'e';
    Sign();
    return Digits(/*commas=*/false);
  }

  std::string_view rest_;
  std::string plain_;
};

/// Whether a number that from_chars could not represent is too large, and not too small: the place
/// of its first digit that counts, moved by its exponent, stands left of the decimal point.
bool IsTooLarge(std::string_view plain) {
  const auto e = plain.find('e');
  const std::string_view mantissa = plain.substr(0, e);
  const auto first = mantissa.find_first_of("123456789");
  if (first == std::string_view::npos) return false;
  const auto point = std::min(mantissa.find('.'), mantissa.size());
  if (e == std::string_view::npos) return first < point;
  const bool negativeExponent = plain[e + 1] == '-';
  long long exponent = 0;
  const std::string_view digits = plain.substr(e + (negativeExponent ? 2 : 1));
  const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), exponent);
  if (error != std::errc{}) return !negativeExponent;
  const auto place = static_cast<long long>(point) - static_cast<long long>(first);
  return place + (negativeExponent ? -exponent : exponent) > 0;
}

/// The shortest text that gives the value back, or `digits` significant digits without trailing
/// zeros where that takes more, laid out as "%.*G" would.
template <class Real>
std::string General(Real value, int digits) {
  char buffer[40];
  const auto scientific = [&](auto... precision) {
    return std::string_view(buffer, std::to_chars(buffer, std::end(buffer), value,
                                                  std::chars_format::scientific, precision...)
                                        .ptr);
  };
  const std::size_t sign = std::signbit(value) ? 1 : 0;
  std::string_view text = scientific();
  if (text.find('e') > sign + 1 + static_cast<std::size_t>(digits)) text = scientific(digits - 1);
  const auto e = text.find('e');
  int exponent = 0;
  std::from_chars(text.data() + e + (text[e + 1] == '+' ? 2 : 1), text.data() + text.size(),
                  exponent);

  std::string figures(text.substr(sign, e - sign));
  std::erase(figures, '.');
  figures.erase(figures.find_last_not_of('0') + 1);
  if (figures.empty()) return "0";

  std::string result(sign, '-');
  const auto count = static_cast<int>(figures.size());
  if (exponent < -4 || exponent >= digits) {
    result += figures[0];
    if (count > 1) result += '.' + figures.substr(1);
    const int size = std::abs(exponent);
    return result + (exponent < 0 ? "E-" : "E+") + (size < 10 ? "0" : "") + std::to_string(size);
  }
  if (exponent < 0)
    return result + "0." + std::string(static_cast<std::size_t>(-exponent - 1), '0') + figures;
  if (count <= exponent + 1)
    return result + figures + std::string(static_cast<std::size_t>(exponent + 1 - count), '0');
  return result + figures.insert(static_cast<std::size_t>(exponent) + 1, 1, '.');
}

}  // namespace

std::optional<Double> Recognise(std::string_view text) {
  NumberScanner scanner(text);
  if (!scanner.Scan()) return std::nullopt;
  const std::string& plain = scanner.Plain();
  double value = 0;
  const auto [end, error] = std::from_chars(plain.data(), plain.data() + plain.size(), value);
  if (error == std::errc::result_out_of_range) {
    if (IsTooLarge(plain)) failures::Overflow();
    return Double(0);
  }
  return Double(value);
}

Single ToNumber(std::string_view text) { return Recognise(text).value_or(0); }

Double Strict(std::string_view text) {
  const auto value = Recognise(text);
  if (!value) failures::TypeMismatch();
  return *value;
}

std::string PlainText(Single value) { return General(value.Value(), 7); }

std::string PlainText(Double value) { return General(value.Value(), 15); }

std::string PaddedLeft(std::string text, std::size_t width) {
  if (text.size() < width) text.insert(0, width - text.size(), ' ');
  return text;
}

std::string PaddedRight(std::string text, std::size_t width) {
  if (text.size() < width) text.resize(width, ' ');
  return text;
}

}  // namespace korvane
