// Colours of controls: the system's, or fixed ones.
#pragma once

#include <cstdint>

namespace korvane {

struct Color {
  enum class Role : std::uint8_t { ButtonFace, Window, Text, Fixed };

  Role role = Role::ButtonFace;
  std::uint32_t rgb = 0;  ///< 0xRRGGBB, for fixed colours only

  static constexpr Color ButtonFace() { return {Role::ButtonFace, 0}; }
  static constexpr Color Window() { return {Role::Window, 0}; }
  static constexpr Color Text() { return {Role::Text, 0}; }
  static constexpr Color Rgb(std::uint32_t rgb) { return {Role::Fixed, rgb}; }
  /// A colour value with blue in its highest byte: 0x8080FF is a light red.
  static constexpr Color Bgr(std::uint32_t bgr) {
    return Rgb((bgr & 0xFF) << 16 | (bgr & 0xFF00) | (bgr >> 16 & 0xFF));
  }

  bool operator==(const Color&) const = default;
};

}  // namespace korvane
