#include "toolkit/contrast.h"

#include <algorithm>
#include <cmath>

namespace korvane {
namespace {

/// Relative luminance of an sRGB colour, 0 to 1.
double Luminance(const QColor& color) {
  const auto linear = [](double part) {
    return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
         0.0722 * linear(color.blueF());
}

}  // namespace

bool IsDark(const QColor& ground) {
  constexpr int middle = 128;
  return ground.lightness() < middle;
}

double ContrastOf(const QColor& one, const QColor& other) {
  const auto [dark, light] = std::minmax({Luminance(one), Luminance(other)});
  return (light + 0.05) / (dark + 0.05);
}

QColor Readable(const QColor& fore, const QColor& ground) {
  constexpr int step = 5, lightest = 255;
  const int away = ContrastOf(ground, Qt::white) > ContrastOf(ground, Qt::black) ? step : -step;
  QColor color = fore;
  while (ContrastOf(color, ground) < kReadableContrast) {
    const int lightness = color.lightness() + away;
    if (lightness < 0 || lightness > lightest) break;
    color.setHsl(fore.hslHue(), fore.hslSaturation(), lightness);
  }
  return color;
}

}  // namespace korvane
