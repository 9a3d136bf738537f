// Numbers from text and back, without masks and without any locale; texts in columns.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "frame/number.h"

namespace korvane {

/// Number recognition: blanks around, a sign, digits with commas as thousands separators, a decimal
/// point, an exponent. Nothing for any other text, and overflow for a number beyond 64 bits.
std::optional<Double> Recognise(std::string_view text);

/// The lenient reading: 0 for text that is not a number, else the value rounded to 32 bits.
/// Overflow for a number too large for that.
Single ToNumber(std::string_view text);

/// The strict reading: type mismatch for text that is not a number.
Double Strict(std::string_view text);

/// Shortest text that gives the value back, up to 7 (Single) or 15 (Double) significant digits:
/// 0.72, 21.5, -3, 1.285E-05 (below 0.0001), 1E+15 (where the digits run out).
std::string PlainText(Single value);
std::string PlainText(Double value);
inline std::string PlainText(int value) { return std::to_string(value); }

/// Plain text with a blank in the place of the missing minus sign: " 3", "-3".
template <class Number>
std::string SignedText(Number value) {
  std::string text = PlainText(value);
  if (!text.starts_with('-')) text.insert(0, 1, ' ');
  return text;
}

/// Filled with blanks to a width, for columns of fixed pitch; a longer text stays whole.
std::string PaddedLeft(std::string text, std::size_t width);
std::string PaddedRight(std::string text, std::size_t width);

}  // namespace korvane
