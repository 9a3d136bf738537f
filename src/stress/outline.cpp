#include "stress/outline.h"

#include <cmath>
#include <numbers>

#include "frame/number_text.h"

namespace korvane {
namespace {

bool IsSamePlace(const Vertex& a, const Vertex& b) { return a.x == b.x && a.y == b.y; }

/// Adds what one outline encloses about the given origin, or takes it away.
struct Sums {
  Double area, Sx, Sy, Ix, Iy, Ixy;

  // Green's theorem: integrals over the area as sums over its edges.
  void Add(const Outline& outline, double x0, double y0, int sign) {
    if (TwiceArea(outline) < 0) sign = -sign;
    for (std::size_t i = 0; i < outline.size(); ++i) {
      const Vertex &from = outline[i], &to = outline[Next(i, outline.size())];
      const Double x = from.x - x0, y = from.y - y0, u = to.x - x0, v = to.y - y0;
      const Double w = sign * (x * v - u * y);
      area += w / 2;
      Sy += w * (x + u) / 6;
      Sx += w * (y + v) / 6;
      Iy += w * (x * x + x * u + u * u) / 12;
      Ix += w * (y * y + y * v + v * v) / 12;
      Ixy += w * (2 * x * y + x * v + u * y + 2 * u * v) / 24;
    }
  }
};

/// Of a sliver, rounding may leave less than nothing.
Double AtLeastZero(Double value) { return value < 0 ? Double(0) : value; }

Double NoneIfNoise(Double value, Double scale) {
  constexpr double noise = 1e-10;
  return Abs(value) < noise * scale ? Double(0) : value;
}

}  // namespace

double Distance(const Vertex& a, const Vertex& b) { return std::hypot(b.x - a.x, b.y - a.y); }

double Perimeter(const Outline& outline) {
  double sum = 0;
  for (std::size_t i = 0; i < outline.size(); ++i)
    sum += Distance(outline[i], outline[Next(i, outline.size())]);
  return sum;
}

double TwiceArea(const Outline& outline) {
  double sum = 0;
  for (std::size_t i = 0; i < outline.size(); ++i) {
    const Vertex &a = outline[i], &b = outline[Next(i, outline.size())], &o = outline.front();
    sum += (a.x - o.x) * (b.y - o.y) - (b.x - o.x) * (a.y - o.y);
  }
  return sum;
}

Bounds BoundsOf(const std::vector<Outline>& outlines) {
  Bounds bounds;
  for (const Outline& outline : outlines)
    for (const Vertex& point : outline) bounds.Add(point);
  return bounds;
}

std::optional<double> Coordinate(std::string_view text) {
  try {
    const auto number = Recognise(text);
    if (!number || Abs(*number) > kFarthest) return std::nullopt;
    return number->Value();
  } catch (const RuntimeFailure&) {  // beyond 64 bits
    return std::nullopt;
  }
}

OutlineList ReadOutlines(const std::vector<std::vector<std::string>>& rows) {
  OutlineList list;
  Outline outline;
  const auto close = [&] {
    while (outline.size() > 1 && IsSamePlace(outline.back(), outline.front())) outline.pop_back();
    if (!outline.empty()) list.outlines.push_back(std::move(outline));
    outline.clear();
  };
  int number = 0;
  for (const std::vector<std::string>& row : rows) {
    ++number;
    const auto x = Coordinate(row[0]), y = Coordinate(row[1]);
    if (x && y) {
      const Vertex point{*x, *y, number};
      if (outline.empty() || !IsSamePlace(outline.back(), point)) outline.push_back(point);
    } else if (!x && !y) {
      close();
    } else if (list.fault.empty()) {
      list.fault = "Point " + std::to_string(number) + " has no " + (x ? "Y." : "X.");
    }
  }
  close();
  return list;
}

PlaneSection SectionOf(const std::vector<Outline>& outlines, const std::vector<bool>& holes) {
  // Far from the origin the squares would swamp what counts: it is moved there.
  const Bounds bounds = BoundsOf(outlines);
  const double x0 = (bounds.left + bounds.right) / 2, y0 = (bounds.bottom + bounds.top) / 2;
  PlaneSection section;
  Sums sums;
  for (std::size_t i = 0; i < outlines.size(); ++i) {
    section.perimeter += Perimeter(outlines[i]);
    sums.Add(outlines[i], x0, y0, holes[i] ? -1 : 1);
  }
  section.area = sums.area;
  const Double x = sums.Sy / sums.area, y = sums.Sx / sums.area;
  section.Ix = AtLeastZero(sums.Ix - sums.area * y * y);
  section.Iy = AtLeastZero(sums.Iy - sums.area * x * x);
  section.Ixy = NoneIfNoise(sums.Ixy - sums.area * x * y, section.Polar());
  section.x = NoneIfNoise(x + x0, bounds.Extent());
  section.y = NoneIfNoise(y + y0, bounds.Extent());
  section.left = section.x - bounds.left;
  section.right = bounds.right - section.x;
  section.bottom = section.y - bounds.bottom;
  section.top = bounds.top - section.y;

  const Double middle = section.Polar() / 2;
  const Double half = NoneIfNoise((section.Ix - section.Iy) / 2, section.Polar());
  const Double radius = Sqrt(half * half + section.Ixy * section.Ixy);
  section.I1 = middle + radius;
  section.I2 = AtLeastZero(middle - radius);
  section.angle = std::atan2(-section.Ixy.Value(), half.Value()) / 2 * 180 / std::numbers::pi;
  return section;
}

std::string SixDigits(Double value) {
  if (value == 0) return "0";
  const double unit = std::pow(10, std::floor(std::log10(std::abs(value.Value()))) - 5);
  const double digits = std::round(value.Value() / unit);
  // Powers of ten below one are no whole numbers of doubles: a quotient rounds better.
  return PlainText(Double(unit < 1 ? digits / std::round(1 / unit) : digits * unit));
}

}  // namespace korvane
