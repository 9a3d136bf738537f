// Twips, 1/1440 inch, at the screen's logical resolution.
#pragma once

#include <QWidget>
#include <algorithm>
#include <cmath>

namespace korvane {

inline constexpr double kTwipsPerInch = 1440;

/// Held within what a window system can place, whatever number was stored.
inline int PixelsOf(const QWidget& widget, double twips) {
  constexpr double most = 32000;
  return static_cast<int>(
      std::lround(std::clamp(twips * widget.logicalDpiX() / kTwipsPerInch, -most, most)));
}

inline double TwipsOf(const QWidget& widget, int pixels) {
  return pixels * kTwipsPerInch / widget.logicalDpiX();
}

}  // namespace korvane
