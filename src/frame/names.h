// Names of windows, controls and menu entries match without regard to case.
#pragma once

#include <algorithm>
#include <string>
#include <string_view>

namespace korvane {

constexpr char ToLower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; }
constexpr char ToUpper(char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 32) : c; }

constexpr bool SameName(std::string_view a, std::string_view b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                    [](char x, char y) { return ToLower(x) == ToLower(y); });
}

/// As searches compare: in small letters, without blanks.
inline std::string Folded(std::string_view text) {
  std::string folded;
  for (const char c : text)
    if (c != ' ') folded += ToLower(c);
  return folded;
}

}  // namespace korvane
