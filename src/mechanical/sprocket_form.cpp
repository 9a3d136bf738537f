#include "mechanical/sprocket_form.h"

#include <algorithm>
#include <initializer_list>
#include <iterator>

#include "frame/number_text.h"

namespace korvane {
namespace {

const Single kPi = 3.1415927;
constexpr double kDeg = 3.141592654 / 180;  // radians in a degree
constexpr double kRad = 1 / kDeg;

Double Square(Double x) { return x * x; }
Double Distance(Spot a, Spot b) { return Sqrt(Square(b.x - a.x) + Square(b.y - a.y)); }

/// The spot at this distance and direction from another.
Spot From(Spot start, Double distance, Double direction) {
  return {start.x + distance * Cos(direction * kDeg), start.y + distance * Sin(direction * kDeg)};
}

}  // namespace

Double SprocketPitchDia(double pitch, Single teeth) { return pitch / Sin(kPi / teeth); }

Double SprocketOutsideDia(double pitch, Single teeth) {
  return pitch * (0.6 + 1 / Tan(kPi / teeth));
}

// The American standard tooth form: see ASME B29.1, with constants of an earlier edition.
ToothForm FormTooth(const RollerChain& chain, Single teeth) {
  const double P = chain.pitch;
  const double Dr = chain.roller;
  ToothForm form;
  const Double PD = SprocketPitchDia(P, teeth);
  const Double OD = SprocketOutsideDia(P, teeth);
  const Double R0 = form.pitchRadius = PD / 2;
  const Double Ro = form.outsideRadius = OD / 2;

  const Double Ds = 1.005 * Dr;
  const Double Rs = form.seatRadius = Ds / 2;
  const Double height = (OD - (PD - Ds)) / 2;
  const Double Rc = form.chamferRadius = 1.25 * P;
  const Double Ca = 90 - ArcCos(height / Rc) * kRad;
  form.tipWidth = chain.plate - (1 - Cos(Ca * kDeg)) * (2 * Rc);

  const Double A = form.seatAngle = 35 + 60 / Double(teeth);
  const Double B = 18 - 56 / Double(teeth);
  const Double Hp = form.halfPitch = 180 / Double(teeth);
  const Double M = 0.8 * Dr;
  form.working = {-M * Cos(A * kDeg), R0 + M * Sin(A * kDeg)};
  const Double F = Rs + M;
  const Spot P1 = form.seatEnd = {Rs * Cos(A * kDeg), R0 - Rs * Sin(A * kDeg)};
  const Double chord = 2 * F * Sin((B / 2) * kDeg);
  const Spot P2 = form.workingEnd = From(P1, chord, (90 - A) + B / 2);

  const Double E = 1.24 * Dr;
  const Spot C2 = form.topping = {E * Cos(Hp * kDeg), R0 - E * Sin(Hp * kDeg)};
  const Double G = Atan((P2.y - C2.y) / (C2.x - P2.x)) * kRad;
  const Double T = (A - B) - G;
  const Double H = Distance(C2, P2);
  const Double Hs = H * Sin(T * kDeg);
  const Double Hc = H * Cos(T * kDeg);
  form.toppingStart = From(P2, Hs, B + (90 - A));

  // Where a double pitch leaves the curve inside of the outside diameter, it ends at its top.
  Spot& Q = form.toppingEnd;
  for (Double a = A - B; a <= 90; a += 0.005) {
    Q = {C2.x - Hc * Cos(a * kDeg), C2.y + Hc * Sin(a * kDeg)};
    if (Sqrt(Square(Q.x) + Square(Q.y)) > Ro) break;
  }
  form.tip = {Ro * Sin(Hp * kDeg), Ro * Cos(Hp * kDeg)};
  return form;
}

// ---- Scripts ----

namespace {

std::string At(Double x, Double y) { return PlainText(x) + ',' + PlainText(y); }
std::string At(Spot spot) { return At(spot.x, spot.y); }
std::string Along(Double x, Double y) { return '@' + At(x, y); }
std::string Towards(Double distance, Double angle) {
  return '@' + PlainText(distance) + '<' + PlainText(angle);
}

class Script {
 public:
  explicit Script(const SprocketDrawing& sprocket, char view) : sprocket_(sprocket), view_(view) {
    Add({"ORTHO", "OFF"});
    Zoom(1.5 * sprocket.tooth.outsideRadius);
  }

  void Add(std::initializer_list<std::string> lines) {
    lines_.insert(lines_.end(), lines.begin(), lines.end());
  }
  void Zoom(Double reach) { Add({"ZOOM", "WINDOW", At(-reach, -reach), At(reach, reach)}); }
  void Arc(Spot center, const std::string& start, const std::string& end) {
    Add({"ARC", "C", At(center), start, end});
  }
  void Line(std::initializer_list<std::string> spots) {
    Add({"LINE"});
    Add(spots);
    Add({""});
  }
  /// What was drawn last, in a line through a spot; a second one is drawn beside it.
  void Mirror(const std::string& through, const std::string& along) {
    Add({"MIRROR", "LAST", "", through, along, "N"});
  }
  void Circle(Double diameter) { Add({"CIRCLE", "0,0", "D", PlainText(diameter)}); }
  void Insert(const std::string& block) {
    const std::string scale = sprocket_.metric ? "25.4" : "1";
    Add({"INSERT", block, "0,0", scale, scale, "0"});
  }
  void InsertBushing() {
    constexpr const char* kBlocks[] = {"BUSH-G-", "BUSH-H-", "BUSHP1-", "BUSHQ1-"};
    if (sprocket_.type < SprocketType::BushingG) return;
    const int bushing = static_cast<int>(sprocket_.type) - static_cast<int>(SprocketType::BushingG);
    Insert(kBlocks[bushing] + std::string(1, view_));
  }
  /// All that stands within reach becomes a block, which is inserted in its place.
  std::vector<std::string> Finished(Double reach, const std::string& lastZoom) {
    const std::string block = 'B' + PlainText(sprocket_.chain) + view_;
    Add({"CHPROP", "WINDOW", At(-reach, -reach), At(reach, reach), "", "C", "BYBLOCK", "LT",
         "BYBLOCK", ""});
    Add({"BLOCK", block, "0,0", "PREVIOUS", "LAST", ""});
    Insert(block);
    Add({"zoom", lastZoom, "REDRAW"});
    return std::move(lines_);
  }

 private:
  const SprocketDrawing& sprocket_;
  char view_;
  std::vector<std::string> lines_;
};

/// A keyseat cuts the bore open at its top.
void DrawBore(Script& script, const SprocketDrawing& sprocket) {
  if (sprocket.bore <= 0) return;
  const Double half = sprocket.keyWidth / 2;
  if (half <= 0) {
    script.Circle(sprocket.bore);
    return;
  }
  const Double y = Sqrt(Square(sprocket.bore / 2) - Square(half));
  script.Arc({0, 0}, At(-half, y), At(half, y));
  script.Line({At(half, y), "@0," + PlainText(sprocket.keyDepth),
               "@-" + PlainText(sprocket.keyWidth) + ",0", "@0,-" + PlainText(sprocket.keyDepth)});
}

}  // namespace

// An arc runs counterclockwise from its start to the ray of its end. In the seat's arc the end is
// told from its start, the point entered last, so that it is the half left of the gap's middle:
// its mirror image is the other half, of the next gap.
std::vector<std::string> EndViewScript(const SprocketDrawing& sprocket) {
  const ToothForm& form = sprocket.tooth;
  const Double A = form.seatAngle;
  Script script(sprocket, 'E');
  const auto mirror = [&] { script.Mirror("0,0", Towards(1, 90 - form.halfPitch)); };
  script.Arc({0, form.pitchRadius}, Towards(form.seatRadius, A + 180),
             Towards(form.seatRadius, 360 - A));
  mirror();
  script.Arc(form.working, At(form.seatEnd), At(form.workingEnd));
  mirror();
  script.Line({At(form.workingEnd), At(form.toppingStart)});
  mirror();
  script.Arc(form.topping, At(form.toppingEnd), At(form.toppingStart));
  mirror();
  script.Line({At(form.toppingEnd), At(form.tip)});
  mirror();

  const Double reach = 1.2 * form.outsideRadius;
  script.Zoom(reach);
  script.Add({"ARRAY", "WINDOW", At(-reach, -reach), At(reach, reach), "", "POLAR", "0,0",
              PlainText(sprocket.teeth), "~", "~", "~"});
  DrawBore(script, sprocket);
  script.InsertBushing();
  if (sprocket.hub > 0) script.Circle(sprocket.hub);
  return script.Finished(reach, "e");
}

// The plate's left side stands on the y axis, and the hub, if there is one, to the right of it.
std::vector<std::string> SideViewScript(const SprocketDrawing& sprocket) {
  const ToothForm& form = sprocket.tooth;
  const Double W = sprocket.plate;
  const Double root = form.RootRadius();
  const Double Ro = form.outsideRadius;
  const Double edge = (W - form.tipWidth) / 2;
  Script script(sprocket, 'S');
  const auto mirrorUpright = [&] { script.Mirror(At(W / 2, 0), "@0,1"); };
  const auto mirrorLevel = [&] { script.Mirror("0,0", "@1,0"); };

  script.Add({"LINE", At(0, -root), Along(0, 2 * root), Along(W, 0), Along(0, -2 * root), "CLOSE"});
  script.Arc({form.chamferRadius, root}, At(edge, Ro), At(0, root));
  mirrorUpright();
  mirrorLevel();
  mirrorUpright();
  script.Line({At(edge, Ro), At(W - edge, Ro)});
  mirrorLevel();

  const bool hasHub = sprocket.hub > 0 && sprocket.length > W;
  if (hasHub)
    script.Line({At(W, sprocket.hub / 2), Along(sprocket.length - W, 0), Along(0, -sprocket.hub),
                 Along(W - sprocket.length, 0)});
  const bool bored =
      sprocket.type == SprocketType::FinishedBore || sprocket.type == SprocketType::MinBoreB;
  if (bored && sprocket.bore > 0) {
    script.Line({At(0, sprocket.bore / 2), Along(hasHub ? sprocket.length : W, 0)});
    mirrorLevel();
  }
  script.InsertBushing();
  const Double reach = 1.5 * (sprocket.length > Ro ? sprocket.length : Ro);
  return script.Finished(reach, sprocket.metric ? ".03937x" : "e");
}

std::string ScriptBytes(const std::vector<std::string>& lines) {
  std::string bytes;
  for (const std::string& line : lines) {
    std::remove_copy(line.begin(), line.end(), std::back_inserter(bytes), ' ');
    bytes += "\r\n";
  }
  std::replace(bytes.begin(), bytes.end(), '~', ' ');
  return bytes;
}

}  // namespace korvane
