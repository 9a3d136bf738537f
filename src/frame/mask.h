// Number masks such as "#.######" and "0.00", by which results are shown.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "frame/number.h"

namespace korvane {

/// A parsed mask. "0" is a digit that always shows, "#" one that shows only where the value has a
/// digit; the point shows whenever the mask has one; a comma groups by thousands; "E+0" gives
/// scientific notation. Written as a literal it is parsed, and checked, at compile time.
class Mask {
 public:
  consteval Mask(const char* mask) : Mask(Parse(mask)) {}

  /// For masks known only at run time; a text that is not a mask is an invalid call.
  static constexpr Mask Parse(std::string_view mask);

  int WholeZeros() const { return wholeZeros_; }  ///< whole digits always shown
  int Places() const { return places_; }          ///< decimal places at most
  int PlaceZeros() const { return placeZeros_; }  ///< decimal places always shown
  bool HasPoint() const { return point_; }
  bool Groups() const { return groups_; }
  int ExponentZeros() const { return exponentZeros_; }  ///< least digits of the exponent; 0: none

 private:
  constexpr Mask() = default;

  int wholeZeros_ = 0;
  int places_ = 0;
  int placeZeros_ = 0;
  int exponentZeros_ = 0;
  bool point_ = false;
  bool groups_ = false;
};

/// The value through the mask, rounded half away from zero on its decimal text of 15 digits
/// (2.675 in "0.00" is 2.68). A value that rounds to zero has no sign.
std::string Format(Double value, Mask mask);

/// A value that may never have been set: nothing through "#" digits, zeros through "0" digits.
std::string FormatUnlessUnset(const std::optional<Double>& value, Mask mask);

/// The number that a text holds through the mask; a text that is not a number as it stands.
std::string FormatText(std::string_view text, Mask mask);

constexpr Mask Mask::Parse(std::string_view text) {
  Mask mask;
  std::size_t at = 0;
  bool digits = false;
  for (; at < text.size() && (text[at] == '#' || text[at] == '0' || text[at] == ','); ++at) {
    if (text[at] == ',') {
      if (!digits) failures::InvalidCall();
      mask.groups_ = true;
      continue;
    }
    digits = true;
    if (text[at] == '0')
      ++mask.wholeZeros_;
    else if (mask.wholeZeros_ > 0)
      failures::InvalidCall();
  }
  if (at < text.size() && text[at] == '.') {
    mask.point_ = true;
    for (++at; at < text.size() && (text[at] == '#' || text[at] == '0'); ++at) {
      digits = true;
      ++mask.places_;
      if (text[at] == '0') {
        if (mask.placeZeros_ != mask.places_ - 1) failures::InvalidCall();
        mask.placeZeros_ = mask.places_;
      }
    }
  }
  if (text.substr(at).starts_with("E+")) {
    for (at += 2; at < text.size() && text[at] == '0'; ++at) ++mask.exponentZeros_;
    if (mask.exponentZeros_ == 0 || mask.wholeZeros_ == 0) failures::InvalidCall();
  }
  if (!digits || at != text.size()) failures::InvalidCall();
  return mask;
}

}  // namespace korvane
