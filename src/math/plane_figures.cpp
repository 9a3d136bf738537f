#include "math/plane_figures.h"

#include "frame/search.h"

// Values are named as their fields are. One that is 0 or less is not there. The order of the tests
// decides which values give way when more are there than are needed.

namespace korvane {
namespace {

constexpr double pi = 3.14159265359;
constexpr double kDegree = pi / 180;
constexpr double kRadian = 180 / pi;

Double Root(const Value& value) { return Power(value, 0.5); }
Double Squared(const Value& value) { return Power(value, 2); }

/// The leg of a right triangle by its hypotenuse and its other leg.
Double Leg(const Value& hypotenuse, const Value& leg) {
  return Root(Squared(hypotenuse) - Squared(leg));
}
Double Hypotenuse(const Value& one, const Value& other) {
  return Root(Squared(one) + Squared(other));
}

void Square(const Given& given, Value& s, Value& d, Value& Area) {
  if (given(d))
    s = d / Root(2);
  else if (given(Area))
    s = Root(Area);
  else if (!given.IsLast(s) || s < 0)
    return;
  d = s * Root(2);
  Area = Squared(s);
}

void Rectangle(const Given& given, Value& a, Value& b, Value& d, Value& Area) {
  const bool byA = given(a) || (!given(b) && Present(a));
  const Value& side = byA ? a : b;
  Value& other = byA ? b : a;
  if (!Present(side)) return;
  if (given(d) || (given(side) && !Present(other) && Present(d)))
    other = Leg(d, side);
  else if (given(Area) || (given(side) && !Present(other) && Present(Area)))
    other = Area / side;
  else if (!given(side) || !Present(other))
    return;
  d = Hypotenuse(a, b);
  Area = a * b;
}

void Parallelogram(const Given& given, Value& a, Value& b, Value& Area) {
  if (given(a) || given(b)) {
    const Value& side = given(a) ? a : b;
    Value& other = given(a) ? b : a;
    if (!Present(other) && Present(Area))
      other = Area / side;
    else
      Area = a * b;
  } else if (given(Area)) {
    if (Present(a))
      b = Area / a;
    else if (Present(b))
      a = Area / b;
  }
}

/// a is the hypotenuse. Two legs give it without the area, which follows from it; the leg c takes b
/// anew from the area.
void RightTriangle(const Given& given, Value& a, Value& b, Value& c, Value& Area) {
  const auto otherLeg = [&](const Value& leg, Value& other) {
    other = Leg(a, leg);
    Area = b * c / 2;
  };
  const auto fromArea = [&](const Value& leg, Value& other) {
    other = 2 * Area / leg;
    a = Hypotenuse(b, c);
  };
  const auto ofEqualLegs = [&] { b = c = Root(Area * 2); };

  if (given(a)) {
    if (Present(b))
      otherLeg(b, c);
    else if (Present(c))
      otherLeg(c, b);
    else if (Present(Area))
      ofEqualLegs();
  } else if (given(b)) {
    if (Present(c))
      a = Hypotenuse(b, c);
    else if (Present(a))
      otherLeg(b, c);
    else if (Present(Area))
      fromArea(b, c);
  } else if (given(c)) {
    if (Present(a))
      b = Leg(a, c);
    else if (Present(b) || Present(Area))
      fromArea(c, b);
  } else if (given(Area)) {
    if (Present(b))
      fromArea(b, c);
    else if (Present(c))
      fromArea(c, b);
    else if (Present(a))
      ofEqualLegs();
  }
}

/// By its base b and its height, whose other sides are unknown then; or else by its sides.
void Triangle(const Given& given, Value& a, Value& b, Value& c, Value& h, Value& Area) {
  if ((given(b) || given(h)) && Present(b) && Present(h)) {
    Area = b * h / 2;
    a = c = 0;
    return;
  }
  if (!Present(a) || !Present(b) || !Present(c)) return;
  const Value s = (a + b + c) / 2;
  const Value X = s * (s - a) * (s - b) * (s - c);
  if (!Present(X)) return;
  Area = Root(X);
  h = 2 * Area / b;
}

void Trapezoid(const Given&, Value& a, Value& b, Value& h, Value& Area) {
  if (a >= 0 && Present(b) && Present(h)) Area = (a + b) * h / 2;
}

void Trapezium(const Given&, Value& a, Value& b, Value& c, Value& h, Value& H, Value& Area) {
  if (a >= 0 && Present(b) && Present(c) && Present(h) && Present(H))
    Area = ((h + H) * a + b * h + c * H) / 2;
}

/// n sides s between a circumscribed circle of radius R and an inscribed one of radius r.
void RegularPolygon(const Given& given, Value& n, Value& D, Value& d, Value& R, Value& r, Value& a,
                    Value& b, Value& s, Value& Area) {
  if (given(D))
    R = D / 2;
  else if (given(d))
    r = d / 2;
  else if (given(R))
    D = R * 2;
  else if (given(r))
    d = r * 2;

  if (n <= 2) return;
  a = 360 / n;
  b = 180 - a;
  if (Present(s) && Present(R)) {
    r = Root(Squared(R) - Squared(s) / 4);
    Area = n * s * r / 2;
  } else if (Present(s) && Present(r)) {
    R = Root(Squared(r) + Squared(s) / 4);
    Area = n * s * r / 2;
  } else if (Present(R) && Present(r)) {
    s = 2 * Leg(R, r);
    Area = n * s * r / 2;
  } else if (Present(R)) {
    D = R * 2;
    Area = n * Squared(R) * 0.5 * Sin(6.28318530718 / n);
    s = 2 * R * Sin(pi / n);
    r = 1;  // whatever the figure
  }
}

void Circle(const Given& given, Value& D, Value& r, Value& Circumference, Value& Area) {
  if (given(r))
    D = 2 * r;
  else if (given(Circumference))
    D = Circumference / pi;
  else if (given(Area))
    D = 2 * Sqrt(Area / pi);
  else if (!given.IsLast(D) || D < 0)
    return;
  r = D / 2;
  Circumference = D * pi;
  Area = Squared(r) * pi;
}

/// An arc L of the angle a, in degrees.
void CircularSector(const Given& given, Value& L, Value& a, Value& r, Value& Area) {
  const auto fillRadius = [&] { r = kRadian * (L / a); };
  const auto fillAngle = [&] { a = kRadian * (L / r); };
  const auto fillArc = [&] { L = kDegree * r * a; };
  const auto fillArea = [&] { Area = r * L / 2; };
  const auto fromArcAndArea = [&] {
    r = 2 * Area / L;
    fillAngle();
  };
  const auto fromAngleAndArea = [&] {
    r = Root((360 * Area) / (pi * a));
    fillArc();
  };
  const auto fromRadiusAndArea = [&] {
    L = 2 * Area / r;
    fillAngle();
  };

  if (given(L)) {
    if (Present(a)) {
      fillRadius();
      fillArea();
    } else if (Present(r)) {
      fillAngle();
      fillArea();
    } else if (Present(Area)) {
      fromArcAndArea();
    }
  } else if (given(a)) {
    if (Present(r)) {
      fillArc();
      fillArea();
    } else if (Present(Area)) {
      fromAngleAndArea();
    } else if (Present(L)) {
      fillRadius();
      fillArea();
    }
  } else if (given(r)) {
    if (Present(Area)) {
      fromRadiusAndArea();
    } else if (Present(L)) {
      fillAngle();
      fillArea();
    } else if (Present(a)) {
      fillArc();
      fillArea();
    }
  } else if (given(Area)) {
    if (Present(L))
      fromArcAndArea();
    else if (Present(a))
      fromAngleAndArea();
    else if (Present(r))
      fromRadiusAndArea();
  }
}

struct Segment {
  Double r, a, h;
};

Double Rise(Double r, Double a) { return r * (1 - Cos(0.01745329251994 * a / 2)); }
Double Chord(Double r, Double h) { return 2 * Root(h * (2 * r - h)); }

/// By arc and chord, from the half circle on to flatter ones, as far as the radius of 1000000. Each
/// pass stops at the first chord that is too long, and the next one starts a step before.
Segment FindSegment(Session& session, Double L, Double c) {
  constexpr int largestRadius = 1000000;
  Search search(session);
  Segment tried;
  Double r = L / pi;
  for (const double step : {0.1, 0.01, 0.0001, 0.000001}) {
    for (;; r += step) {
      if (r > largestRadius) return tried;
      const Double a = (kRadian * L) / r;
      tried = {r, a, Rise(r, a)};
      search.Stepped();
      if (Chord(r, tried.h) > c) break;
    }
    r -= step;
  }
  return tried;
}

/// An arc L of the angle a in degrees, its chord c and its rise h.
void CircularSegment(const Given& given, Value& L, Value& a, Value& r, Value& c, Value& h,
                     Value& Area) {
  const auto have = [&](const Value& one, const Value& other) {
    return (given.IsLast(one) || given.IsLast(other)) && Present(one) && Present(other);
  };
  const auto fillFromRise = [&] {
    a = ArcCos((r - h) / r) * 114.59155902616;
    L = kDegree * r * a;
  };
  const auto fillFromArc = [&] {
    h = Rise(r, a);
    c = Chord(r, h);
  };

  if (have(L, a)) {
    r = kRadian * (L / a);
    fillFromArc();
  } else if (have(L, r)) {
    a = kRadian * L / r;
    fillFromArc();
  } else if (have(a, r)) {
    L = kDegree * r * a;
    fillFromArc();
  } else if (have(r, c)) {
    h = r - Root(4 * Squared(r) - Squared(c)) / 2;
    fillFromRise();
  } else if (have(c, h)) {
    r = (Squared(c) + 4 * Squared(h)) / (8 * h);
    fillFromRise();
  } else if (have(L, c) && !Present(r)) {
    const Segment found = FindSegment(given.GetSession(), L, c);
    r = found.r;
    a = found.a;
    h = found.h;
  } else {
    return;
  }
  Area = (r * L - c * (r - h)) / 2;
}

void CircularRing(const Given& given, Value& OD, Value& ID, Value& Area) {
  const Value R = OD / 2, r = ID / 2;
  const auto fillInside = [&] { ID = 2 * Root(Squared(R) - Area / pi); };
  const auto fillOutside = [&] { OD = 2 * Root(Area / pi + Squared(r)); };
  const auto fillArea = [&] { Area = pi * (Squared(R) - Squared(r)); };
  if (given(OD) && ID >= 0) {
    if (Present(Area))
      fillInside();
    else
      fillArea();
  } else if (given(ID) && OD >= 0) {
    if (Present(Area))
      fillOutside();
    else
      fillArea();
  } else if (given(Area)) {
    if (Present(OD))
      fillInside();
    else if (Present(ID))
      fillOutside();
  }
}

/// An outer arc L of the angle a, in degrees.
void RingSegment(const Given& given, Value& OD, Value& R, Value& ID, Value& r, Value& a, Value& L,
                 Value& Area) {
  Mirror(given, R, OD);
  Mirror(given, r, ID);
  if (!Present(OD) || !Present(ID)) return;
  if (Present(a))
    L = pi * OD * (a / 360);
  else if (Present(L))
    a = (360 * L) / (pi * OD);
  else
    return;
  Area = pi * (Squared(R) - Squared(r)) * (a / 360);
}

void CircularFillet(const Given& given, Value& r, Value& c, Value& Area) {
  constexpr double share = 1 - pi / 4;  // of the square of the radius
  if (given.IsLast(r) && r >= 0) {
    c = r * Root(2);
    Area = Squared(r) * share;
  } else if (given(c)) {
    r = c / Root(2);
    Area = Squared(r) * share;
  } else if (given(Area)) {
    r = Sqrt(Area / share);
    c = r * Root(2);
  }
}

}  // namespace

std::span<const Figure> PlaneFigures() {
  static const std::vector<Figure> figures = {
      {"Square", "SQUARE", {"s", "d", "Area"}, Solves<Square>},
      {"Rectangle", "RECTANG2", {"a", "b", "d", "Area"}, Solves<Rectangle>},
      {"Parallelogram", "PARAGRAM", {"a", "b", "Area"}, Solves<Parallelogram>},
      {"Right Triangle", "RIGHTTRI", {"a", "b", "c", "Area"}, Solves<RightTriangle>},
      {"Acute Triangle", "ACUTE", {"a", "b", "c", "h", Result("Area")}, Solves<Triangle>},
      {"Obtuse Triangle", "OBTUSE", {"a", "b", "c", "h", Result("Area")}, Solves<Triangle>},
      {"Trapezoid", "TRPZOID2", {"a", "b", "h", Result("Area")}, Solves<Trapezoid>},
      {"Trapezium", "TRAPZIUM", {"a", "b", "c", "h", "H", Result("Area")}, Solves<Trapezium>},
      {"Regular Polygon",
       "POLYGON",
       {"Number of sides", "D", "d", "R", "r", Result("a"), Result("b"), "s", Result("Area")},
       Solves<RegularPolygon>},
      {"Circle", "CIRCLE", {"D", "r", "Circumference", "Area"}, Solves<Circle>},
      {"Circular Sector", "SECTOR", {"L", "a", "r", "Area"}, Solves<CircularSector>},
      {"Circular Segment",
       "SEGMENT",
       {"L", "a", "r", "c", "h", Result("Area")},
       Solves<CircularSegment>},
      {"Circular Ring", "CIRCRING", {"O.D.", "I.D.", "Area"}, Solves<CircularRing>},
      {"Ring Segment",
       "RINGSECT",
       {"O.D.", "Radius R", "I.D.", "Radius r", "Angle a (deg)", "Length L", Result("Area")},
       Solves<RingSegment>},
      {"Circular Fillet", "FILLET", {"Fillet Radius r", "c", "Area"}, Solves<CircularFillet>},
  };
  return figures;
}

}  // namespace korvane
