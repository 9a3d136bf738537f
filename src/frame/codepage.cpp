#include "frame/codepage.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <optional>

namespace korvane {
namespace {

// 0x80 to 0x9F; all other bytes are the character of the same number.
constexpr std::array<char16_t, 32> kHigh = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

void AppendUtf8(std::string& text, char16_t c) {
  if (c < 0x80) {
    text += static_cast<char>(c);
  } else if (c < 0x800) {
    text += static_cast<char>(0xC0 | (c >> 6));
    text += static_cast<char>(0x80 | (c & 0x3F));
  } else {
    text += static_cast<char>(0xE0 | (c >> 12));
    text += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
    text += static_cast<char>(0x80 | (c & 0x3F));
  }
}

/// Takes one character off the front; nothing, and one byte less, where it is not UTF-8.
std::optional<char32_t> TakeCharacter(std::string_view& utf8) {
  const auto lead = static_cast<std::uint8_t>(utf8.front());
  const std::size_t length = lead < 0x80 ? 1 : lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
  constexpr std::array<char32_t, 5> least = {0, 0, 0x80, 0x800, 0x10000};
  char32_t c = length == 1 ? lead : lead & (0x7FU >> length);
  bool valid = (lead < 0x80 || (lead >= 0xC2 && lead <= 0xF4)) && utf8.size() >= length;
  for (std::size_t i = 1; valid && i < length; ++i) {
    const auto next = static_cast<std::uint8_t>(utf8[i]);
    valid = (next & 0xC0) == 0x80;
    c = (c << 6) | (next & 0x3F);
  }
  valid = valid && c >= least[length] && c <= 0x10FFFF && (c < 0xD800 || c > 0xDFFF);
  utf8.remove_prefix(valid ? length : 1);
  return valid ? std::optional(c) : std::nullopt;
}

}  // namespace

std::string FromCodePage(std::string_view bytes) {
  std::string text;
  text.reserve(bytes.size());
  for (const char byte : bytes) {
    const auto code = static_cast<std::uint8_t>(byte);
    AppendUtf8(text, code >= 0x80 && code < 0xA0 ? kHigh[code - 0x80U] : code);
  }
  return text;
}

std::string ToCodePage(std::string_view utf8) {
  std::string bytes;
  bytes.reserve(utf8.size());
  while (!utf8.empty()) {
    const auto c = TakeCharacter(utf8).value_or('?');
    const auto high = std::find(kHigh.begin(), kHigh.end(), c);
    if (high != kHigh.end())
      bytes += static_cast<char>(0x80 + (high - kHigh.begin()));
    else
      bytes += c < 0x80 || (c >= 0xA0 && c < 0x100) ? static_cast<char>(c) : '?';
  }
  return bytes;
}

bool IsUtf8(std::string_view bytes) {
  while (!bytes.empty())
    if (!TakeCharacter(bytes)) return false;
  return true;
}

}  // namespace korvane
