#include "math/solids.h"

// Values are named as their fields are, or as in the sketch. One that is 0 or less is not there.
// Where the formulas leave the textbook's, the help page says so.

namespace korvane {
namespace {

constexpr double pi = 3.14159265359;

Double Root(const Value& value) { return Power(value, 0.5); }
Double Squared(const Value& value) { return Power(value, 2); }
Double Cubed(const Value& value) { return Power(value, 3); }

void Cube(const Given& given, Value& s, Value& Area, Value& Volume) {
  if (given(Area))
    s = Root(Area / 6);
  else if (given(Volume))
    s = Power(Volume, 1 / 3.0);
  else if (!given(s))
    return;
  Area = Squared(s) * 6;
  Volume = Cubed(s);
}

void RectangularPrism(const Given& given, Value& a, Value& b, Value& c, Value& Area,
                      Value& Volume) {
  if ((!given.IsLast(a) && !given.IsLast(b) && !given.IsLast(c)) || a * b * c < 0) return;
  Area = (a * b + a * c + b * c) * 2;
  Volume = a * b * c;
}

/// A regular polygon of n sides s, between circles of the radii R and r. False if it is not known.
bool FillPolygon(const Value& n, Value& s, Value& R, Value& r) {
  if (n <= 2) return false;
  if (Present(s)) {
    if (Present(R)) return true;
    if (Present(r)) {
      R = Root(Squared(r) + Squared(s) / 4);
    } else {
      const Value angle = 180 / n;
      R = (s / 2) / Sin(angle * pi / 180);
      r = Root(Squared(R) - Squared(s) / 4);
    }
    return true;
  }
  if (!Present(R) || !Present(r)) return false;
  s = 2 * Root(Squared(R) - Squared(r));
  return true;
}

void Prism(const Given&, Value& n, Value& s, Value& h, Value& R, Value& r, Value& End, Value& Total,
           Value& Volume) {
  if (!FillPolygon(n, s, R, r)) return;
  End = n * s * r / 2;
  Total = End * 2 + s * h * n;
  Volume = End * h;
}

/// The height of its faces is taken from R.
void Pyramid(const Given&, Value& n, Value& s, Value& h, Value& R, Value& r, Value& Base,
             Value& Total, Value& Volume) {
  if (!FillPolygon(n, s, R, r)) return;
  Base = n * s * r / 2;
  Total = Base + (0.5 * s * Root(Squared(R) + Squared(h))) * n;
  Volume = n * s * r * h / 6;
}

/// The height of its faces is taken along its edges.
void RectangularPyramid(const Given&, Value& a, Value& b, Value& h, Value& Base, Value& Total,
                        Value& Volume) {
  if (a * b * h <= 0) return;
  Base = a * b;
  const Value u = 0.5 * Root(Squared(a) + Squared(b));
  const Value w = Root(Squared(u) + Squared(h));
  Total = Base + (a * w / 2) * 2 + (b * w / 2) * 2;
  Volume = Base * h / 3;
}

void PyramidFrustrum(const Given&, Value& A1, Value& A2, Value& h, Value& Volume) {
  if (A1 * A2 * h > 0) Volume = h * (A2 + A1 + Root(A2 * A1)) / 3;
}

void Wedge(const Given&, Value& a, Value& b, Value& c, Value& h, Value& Volume) {
  if (a * b * c * h > 0) Volume = (2 * a + c) * b * h / 6;
}

void FillRadius(Value& r, Value& d) {
  if (!Present(r)) r = d / 2;
  d = 2 * r;
}

void Cylinder(const Given&, Value& r, Value& d, Value& h, Value& Surface, Value& End, Value& Total,
              Value& Volume) {
  if (!Present(h)) return;
  FillRadius(r, d);
  Surface = 6.28318530718 * r * h;
  End = pi * Squared(r);
  Total = Surface + 2 * End;
  Volume = pi * Squared(r) * h;
}

void CylinderPortion1(const Given&, Value& r, Value& d, Value& h1, Value& h2, Value& Surface,
                      Value& Volume) {
  if (h1 * h2 <= 0) return;
  FillRadius(r, d);
  Surface = pi * r * (h1 + h2);
  Volume = pi * Squared(r) * (h1 + h2) / 2;
}

/// By a plane through a chord of the base: a is half of the chord, b its distance from the center.
void CylinderPortion2(const Given&, Value& r, Value& d, Value& a, Value& b, Value& h, Value& Base,
                      Value& Arc, Value& Surface, Value& Volume) {
  if (Present(r))
    d = r * 2;
  else if (Present(d))
    r = d / 2;
  if (!Present(r)) return;

  const Value f = b / r;
  Value angle = 180;  // degrees, of the segment that the chord cuts off
  if (f != 1) {
    const Value A = Atan(-f / Sqrt(-f * f + 1)) + (Atan(1) + Atan(1));
    angle = 2 * (A * 180 / pi);
  }
  a = r * Sin(angle * pi / 180 / 2);
  const Value segment = (Squared(r) / 2) * (pi * angle / 180) - Sin(angle * pi / 180);
  Base = pi * Squared(r) - segment;
  Arc = pi * d * angle / 360;
  if (a * h * Base > 0) Volume = ((2 / 3.0) * Cubed(a) + b * Base) * h / (r + b);
  if (a * h * Arc > 0) Surface = (a * d + b * Arc) * h / (r + b);
}

void CylinderHollow(const Given& given, Value& r, Value& R, Value& d, Value& D, Value& t, Value& h,
                    Value& Surface, Value& Volume) {
  Mirror(given, r, d);
  Mirror(given, R, D);
  if (Present(r) && Present(R)) {
    t = R - r;
  } else if (Present(r) && Present(t)) {
    R = r + t;
    D = R * 2;
  } else if (Present(R) && Present(t)) {
    r = R - t;
    d = r * 2;
  }
  if (!Present(h)) return;
  const Value s1 = 6.28318530718 * r * h, e1 = pi * Squared(r), v1 = pi * Squared(r) * h;
  const Value s2 = 6.28318530718 * R * h, e2 = pi * Squared(R), v2 = pi * Squared(R) * h;
  Surface = s2 + s1 + 2 * e2 - 2 * e1;
  Volume = v2 - v1;
}

void Cone(const Given&, Value& r, Value& D, Value& H, Value& S, Value& Surface, Value& Volume) {
  FillRadius(r, D);
  if (!Present(r) || !Present(H)) return;
  S = Root(Squared(r) + Squared(H));
  Surface = pi * r * Root(Squared(r) + Squared(H));
  Volume = pi * Squared(r) * H / 3;
}

void ConeFrustrum(const Given& given, Value& R, Value& D, Value& r, Value& d, Value& h, Value& s,
                  Value& Surface, Value& Volume) {
  Mirror(given, R, D);
  Mirror(given, r, d);
  if (!Present(R) || !Present(r) || !Present(h)) return;
  const Value a = R - r;
  s = Root(Squared(a) + Squared(h));
  Surface = pi * s * (R + r);
  Volume = pi * h * (Squared(R) + R * r + Squared(r)) / 3;
}

void Sphere(const Given&, Value& D, Value& r, Value& Area, Value& Volume) {
  if (Present(D))
    r = D / 2;
  else if (!Present(r) && Present(Area))
    r = Root(Area / 12.56637061436);
  else if (!Present(r) && Present(Volume))
    r = Power((3 / 4.0 * Volume) / pi, 1 / 3.0);
  if (!Present(r)) return;
  D = r * 2;
  Area = 12.56637061436 * Squared(r);
  Volume = (4 / 3.0 * pi) * Cubed(r);
}

Double ChordOf(const Value& r, const Value& h) { return 2 * Root(h * (2 * r - h)); }

void SphericalSector(const Given&, Value& r, Value& h, Value& c, Value& Area, Value& Volume) {
  if (!Present(r) || !Present(h)) return;
  c = ChordOf(r, h);
  Area = pi * r * (2 * h + c / 2);
  Volume = 6.28318530718 * Squared(r) * h / 3;
}

void SphericalSegment(const Given&, Value& r, Value& h, Value& c, Value& Area, Value& Volume) {
  if (Present(c) && Present(h) && !Present(r)) r = (Squared(c) + 4 * Squared(h)) / (8 * h);
  if (!Present(r) || !Present(h)) return;
  c = ChordOf(r, h);
  Area = 6.28318530718 * r * h;
  Volume = pi * Squared(h) * (r - h / 3);
}

void SphericalZone(const Given&, Value& C1, Value& C2, Value& h, Value& r, Value& Area,
                   Value& Volume) {
  if (!Present(C1) || !Present(C2) || !Present(h)) return;
  const Value below = (Squared(C2) - Squared(C1) - 4 * Squared(h)) / (8 * h);
  r = Root(Squared(C2) / 4 + Squared(below));
  Area = 6.28318530718 * r * h;
  Volume = (pi / 6) * h * (3 * Squared(C1) / 4 + 3 * Squared(C2) / 4 + Squared(h));
}

void SphericalWedge(const Given&, Value& a, Value& r, Value& Area, Value& Volume) {
  if (!Present(a) || !Present(r)) return;
  Area = (a / 360) * 4 * pi * Squared(r);
  Volume = (a / 360) * (4 / 3.0) * pi * Cubed(r);
}

void HollowSphere(const Given& given, Value& r, Value& R, Value& d, Value& D, Value& wall,
                  Value& Volume) {
  Mirror(given, r, d);
  Mirror(given, R, D);
  if (Present(r) && Present(R)) {
    wall = R - r;
  } else if (Present(r) && Present(wall)) {
    R = r + wall;
    D = R * 2;
  } else if (Present(R) && Present(wall)) {
    r = R - wall;
    d = r * 2;
  }
  if (Present(d) && Present(D)) Volume = (pi / 6) * (Cubed(D) - Cubed(d));
}

void Torus(const Given&, Value& OD, Value& ID, Value& R, Value& d, Value& r, Value& Area,
           Value& Volume) {
  if (Present(d))
    r = d / 2;
  else if (Present(r))
    d = r * 2;
  if (Present(OD) && Present(ID)) {
    const Value X = (OD + ID) / 2;
    R = X / 2;
    d = (OD - ID) / 2;
    r = d / 2;
  } else if (Present(OD) && Present(d)) {
    ID = OD - 2 * d;
  } else if (Present(ID) && Present(d)) {
    OD = ID + 2 * d;
  } else if (Present(R) && Present(d)) {
    const Value X = R * 2;
    OD = X + d;
    ID = X - d;
  }
  if (!Present(R) || !Present(r)) return;
  Area = pi * pi * 4 * R * r;
  Volume = (pi * pi + pi * pi) * R * Squared(r);
}

}  // namespace

std::span<const Figure> Solids() {
  static const std::vector<Figure> solids = {
      {"Cube", "CUBE", {"s", "Area", "Volume"}, Solves<Cube>},
      {"Prism  ( Rectangular )",
       "RECTANGULAR PRISM",
       {"a", "b", "c", Result("Area"), Result("Volume")},
       Solves<RectangularPrism>},
      {"Prism  ( Regular Polygon )",
       "PRISM",
       {"Number of polygon sides ", "s", "h", "R", "r", Result("Polygon (End) Area"),
        Result("Total Prism Area"), Result("Volume")},
       Solves<Prism>,
       "Polygon end must have at least 3 sides."},
      {"Pyramid  (Rectangular Base)",
       "PYRAMID RB",
       {"a", "b", "h", Result("Rectangular (Base) Area"), Result("Total Pyramid Area"),
        Result("Volume")},
       Solves<RectangularPyramid>},
      {"Pyramid  (Regular Polygon)",
       "PYRAMID",
       {"Number of polygon sides", "s", "h", "R", "r", Result("Polygon (Base) Area"),
        Result("Total Pyramid Area"), Result("Volume")},
       Solves<Pyramid>,
       "Polygon base must have at least 3 sides."},
      {"Pyramid Frustrum",
       "PYRAMID FRUSTRUM",
       {"Area of Top (A1)", "Area of Base (A2)", "Height (h)", Result("Volume")},
       Solves<PyramidFrustrum>},
      {"Wedge", "WEDGE", {"a", "b", "c", "h", Result("Volume")}, Solves<Wedge>},
      {"Cylinder",
       "CYLINDER",
       {"r", "d", "h", Result("Area of Cylindrical Surface"), Result("Area of Circular End"),
        Result("Total Area of Cylinder"), Result("Volume")},
       Solves<Cylinder>},
      {"Cylinder Portion 1",
       "CYLINDER PORTION 1",
       {"r", "d", "h1", "h2", Result("Area of Cylindrical Surface"), Result("Volume")},
       Solves<CylinderPortion1>},
      {"Cylinder Portion 2",
       kCylinderPortion2,
       {"r", "d", Result("a"), "b", "h", Result("Area of Base"), Result("Length of Base Arc"),
        Result("Area of Cylindrical Surface"), Result("Volume")},
       Solves<CylinderPortion2>},
      {"Cylinder Hollow",
       "CYLINDER HOLLOW",
       {"r", "R", "d", "D", "Wall Thickness  (t)", "Length  (h)", Result("Surface Area"),
        Result("Volume")},
       Solves<CylinderHollow>},
      {"Cone",
       "CONE",
       {"r", "D", "H", Result("S"), Result("Surface Area"), Result("Volume")},
       Solves<Cone>},
      {"Cone Frustrum",
       "CONE FRUSTRUM",
       {"R", "D", "r", "d", "h", Result("s"), Result("Area of Conical Surface"), Result("Volume")},
       Solves<ConeFrustrum>},
      {"Sphere", "SPHERE", {"D", "r", "Area", "Volume"}, Solves<Sphere>},
      {"Spherical Sector",
       "SPHERICAL SECTOR",
       {"r", "h", Result("c"), Result("Area"), Result("Volume")},
       Solves<SphericalSector>},
      {"Spherical Segment",
       "SPHERICAL SEGMENT",
       {"r", "h", "c", Result("Area"), Result("Volume")},
       Solves<SphericalSegment>},
      {"Spherical Zone",
       "SPHERICAL ZONE",
       {"C1", "C2", "h", Result("r"), Result("Area"), Result("Volume")},
       Solves<SphericalZone>},
      {"Spherical Wedge",
       "SPHERICAL WEDGE",
       {"Wedge Angle in Degrees (a)", "Radius of Sphere (r)", Result("Area of Spherical Surface"),
        Result("Volume")},
       Solves<SphericalWedge>},
      {"Hollow Sphere",
       "HOLLOW SPHERE",
       {"Inside Radius (r)", "Outside Radius (R)", "Inside Diameter (d)", "Outside Diameter (D)",
        "Wall Thickness (R - r)", Result("Volume")},
       Solves<HollowSphere>},
      {"Torus",
       "TORUS",
       {"Outside Diameter (O.D.)", "Inside Diameter (I.D.)", "Centerline Radius (R)",
        "Ring Thickness (d)", "Radius of Section (r)", Result("Area"), Result("Volume")},
       Solves<Torus>},
  };
  return solids;
}

}  // namespace korvane
