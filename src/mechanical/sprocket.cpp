#include "mechanical/sprocket.h"

#include <cmath>
#include <numbers>
#include <span>

#include "frame/codepage.h"
#include "frame/delimited.h"
#include "frame/files.h"

namespace korvane {
namespace {

constexpr double kMillimeters = 25.4;  // in an inch
constexpr int kLeastTeeth = 9;
constexpr const char* kUsualChain = "40";

// ---- Keyseats ----

struct KeyseatRow {
  double from;  // least bore of the row
  double width;
  double depth;
};

// The keys are square, and stand half in the hub.
constexpr KeyseatRow kInchKeyseats[] = {
    {0.5, 0.125, 0.0625},      {0.625, 0.1875, 0.09375}, {0.9375, 0.25, 0.125},
    {1.3125, 0.3125, 0.15625}, {1.4375, 0.375, 0.1875},  {1.8125, 0.5, 0.25},
    {2.3125, 0.625, 0.3125},   {2.8125, 0.75, 0.375},    {3.375, 0.875, 0.4375},
    {3.875, 1, 0.5},           {4.625, 1.25, 0.625},
};
constexpr double kLargestInchBore = 5.5;

constexpr KeyseatRow kMetricKeyseats[] = {
    {6, 2, 1.0},     {8, 3, 1.4},     {10, 4, 1.8},    {12, 5, 2.3},    {17, 6, 2.8},
    {22, 8, 3.3},    {30, 10, 3.3},   {38, 12, 3.3},   {44, 14, 3.8},   {50, 16, 4.3},
    {58, 18, 4.4},   {65, 20, 4.9},   {75, 22, 5.9},   {85, 25, 5.4},   {95, 28, 6.4},
    {110, 32, 7.4},  {130, 36, 8.4},  {150, 40, 9.4},  {170, 45, 10.4}, {200, 50, 11.4},
    {230, 56, 12.4}, {260, 63, 13.4}, {290, 70, 14.4}, {330, 80, 15.4}, {380, 90, 17.4},
};
constexpr double kLargestMetricBore = 440;

Keyseat FindKeyseat(std::span<const KeyseatRow> rows, double largest, Single bore) {
  Keyseat keyseat;
  if (bore > largest) return keyseat;
  for (const KeyseatRow& row : rows)
    if (bore >= row.from) keyseat = {row.width, row.depth};
  return keyseat;
}

// ---- Hubs ----

struct BushingHub {
  const char* diameter;
  const char* maxBore;
  const char* length;
};

// From type "G BUSHING" on: U.S. and metric.
constexpr BushingHub kBushings[][2] = {
    {{"2.0", "0.9375", "1.5"}, {"50.8", "23.8", "38.1"}},
    {{"2.5", "1.5", "1.6"}, {"63.5", "38.1", "40.6"}},
    {{"3.0", "1.75", "2.2"}, {"76.2", "44.5", "55.9"}},
    {{"4.125", "2.6875", "2.8"}, {"104.8", "68.3", "71.1"}},
};

// ---- Picture ----

constexpr double kPictureSize = 260;
constexpr double kMargin = 4;
constexpr int kMostDrawn = 150;  // teeth, beyond which they are too fine to see

double Degrees(Point center, Point spot) {
  return std::atan2(spot.y - center.y, spot.x - center.x) * 180 / std::numbers::pi;
}

Point ToPoint(const Spot& spot) { return {spot.x.Value(), spot.y.Value()}; }

/// From the middle of the gap to the tip right of it, with y upwards.
std::vector<Point> HalfTooth(const ToothForm& form) {
  const Point seat{0, form.pitchRadius.Value()};
  const Point working = ToPoint(form.working);
  const Point topping = ToPoint(form.topping);
  const auto radius = [](Point a, Point b) { return std::hypot(b.x - a.x, b.y - a.y); };
  const Point seatEnd = ToPoint(form.seatEnd);
  const Point toppingStart = ToPoint(form.toppingStart);
  const Point toppingEnd = ToPoint(form.toppingEnd);
  std::vector<Point> points = Arc(seat, radius(seat, seatEnd), -90, Degrees(seat, seatEnd));
  const auto add = [&points](const std::vector<Point>& more) {
    points.insert(points.end(), more.begin(), more.end());
  };
  add(Arc(working, radius(working, seatEnd), Degrees(working, seatEnd),
          Degrees(working, ToPoint(form.workingEnd))));
  add(Arc(topping, radius(topping, toppingStart), Degrees(topping, toppingStart),
          Degrees(topping, toppingEnd)));
  points.push_back(ToPoint(form.tip));
  return points;
}

/// All teeth, clockwise from the gap at the top, with y upwards.
std::vector<Point> Outline(const ToothForm& form, Single teeth) {
  if (teeth > kMostDrawn) return Arc({0, 0}, form.outsideRadius.Value(), 0, 360);
  const std::vector<Point> half = HalfTooth(form);
  std::vector<Point> gap(half.rbegin(), half.rend());
  for (Point& spot : gap) spot.x = -spot.x;
  gap.insert(gap.end(), half.begin(), half.end());
  const auto count = static_cast<int>(teeth.Value());
  std::vector<Point> points;
  for (int tooth = 0; tooth < count; ++tooth) {
    const double turn = tooth * 2 * std::numbers::pi / count;
    for (const Point& spot : gap)
      points.push_back({spot.x * std::cos(turn) + spot.y * std::sin(turn),
                        spot.y * std::cos(turn) - spot.x * std::sin(turn)});
  }
  points.push_back(points.front());
  return points;
}

/// The end view with the rollers that lie in its upper half.
Drawing SprocketPicture(const ToothForm& form, double roller, Single teeth, double bore) {
  Drawing drawing{kPictureSize, kPictureSize, {}};
  const double pitchRadius = form.pitchRadius.Value();
  const double reach = std::max(form.outsideRadius.Value(), pitchRadius + roller / 2);
  const double scale = (kPictureSize / 2 - kMargin) / reach;
  const auto add = [&](std::vector<Point> points, Ink ink, std::optional<Ink> fill = {}) {
    for (Point& point : points)
      point = {kPictureSize / 2 + scale * point.x, kPictureSize / 2 - scale * point.y};
    drawing.shapes.emplace_back(Path{std::move(points), ink, fill});
  };
  const std::vector<Point> outline = Outline(form, teeth);
  std::vector<Point> body = outline;
  if (bore > 0 && bore / 2 < form.RootRadius().Value()) {
    const std::vector<Point> hole = Arc({0, 0}, bore / 2, 450, 90);  // from its top
    body.insert(body.end(), hole.begin(), hole.end());
    add(body, Ink::Body, Ink::Body);
    add(hole, Ink::Line);
    add(outline, Ink::Line);
  } else {
    add(body, Ink::Line, Ink::Body);
  }
  if (teeth > kMostDrawn) return drawing;
  const double pitch = 2 * std::numbers::pi / std::floor(teeth.Value());
  for (double turn = 0; turn <= std::numbers::pi / 2; turn += pitch)
    for (const double side : {-1.0, 1.0})
      add(Arc({side * pitchRadius * std::sin(turn), pitchRadius * std::cos(turn)}, roller / 2, 0,
              360),
          Ink::Accent);
  return drawing;
}

}  // namespace

std::optional<SprocketHub> FindHub(std::string_view bytes, Single chain, Single teeth) {
  const std::string text = FromCodePage(bytes);
  DelimitedReader reader(text);
  while (!reader.AtEnd()) {
    const Single size = ToNumber(reader.Text());
    const Single count = ToNumber(reader.Text());
    SprocketHub hub;
    hub.maxBore = reader.Text();
    hub.length = reader.Text();
    hub.diameter = reader.Text();
    if (size == chain && count == teeth) return hub;
  }
  return std::nullopt;
}

Keyseat InchKeyseat(Single bore) { return FindKeyseat(kInchKeyseats, kLargestInchBore, bore); }

Keyseat MetricKeyseat(Single bore) {
  return FindKeyseat(kMetricKeyseats, kLargestMetricBore, bore);
}

SPROCKET::SPROCKET(Session& session)
    : CalculatorWindow(session, {.name = "SPROCKET",
                                 .title = " Roller Chain Sprockets",
                                 .helpPage = "mechanical_roller_chain_sprockets.html"}) {
  List1.Hide();
  CMB_RC.SetText(kUsualChain);
  CMB_SPROCKET_TYPE.SetText("FINISHED BORE");

  const Handler calculate = [this] { Calculate(); };
  btn_calc.onClick = calculate;
  txt_teeth.onEnter = TXT_BORE.onEnter = CMB_RC.onEnter = calculate;
  CMB_RC.onSelect = CMB_SPROCKET_TYPE.onSelect = calculate;
  btn_clear.onClick = [this] { Clear(); };
  PassesFocusOn({&TXT_PITCH, &TXT_ROLLER, &txt_plate_thickness, &TXT_PITCHDIA, &TXT_OUTDIA,
                 &TXT_HUBDIA, &TXT_MAXBORE, &TXT_OALENGTH, &TXT_KEYSEAT});

  BTN_END_VIEW.onClick = [this] { WriteScript("sprock-e.scr", END_VIEW_COMPLETED, EndViewScript); };
  BTN_SIDE_VIEW.onClick = [this] {
    WriteScript("sprock-s.scr", SIDE_VIEW_COMPLETED, SideViewScript);
  };
  Timer1.onTick = [this] {
    END_VIEW_COMPLETED.SetCaption("");
    SIDE_VIEW_COMPLETED.SetCaption("");
    Timer1.SetEnabled(false);
  };

  SetDefault(btn_calc);
  PrintsWith(Command1);
  HelpsWith(Command2);
  ExitsWith(BTN_QUIT);
}

Layout SPROCKET::Arrangement() {
  return Column(
      {Row({Column({Form({CMB_RC, txt_teeth, CMB_SPROCKET_TYPE, TXT_BORE}), Rule(),
                    Form({TXT_PITCH, TXT_ROLLER, txt_plate_thickness, TXT_PITCHDIA, TXT_OUTDIA,
                          TXT_HUBDIA, TXT_MAXBORE, TXT_OALENGTH, TXT_KEYSEAT}),
                    Stretch()}),
            Column({Row({Stretch(), picture_, Stretch()}), Stretch(),
                    Box(scripts_, {Cells({Row({BTN_END_VIEW, END_VIEW_COMPLETED}),
                                          Row({BTN_SIDE_VIEW, SIDE_VIEW_COMPLETED})})})})}),
       Row({btn_calc, Stretch(), btn_clear, Command1, Command2, BTN_QUIT})});
}

void SPROCKET::Load() {
  CalculatorWindow::Load();
  Calculate();
}

// ---- Calculation ----

void SPROCKET::Calculate() {
  ReadChainAndTeeth();
  ShowMainDimensions();
  tooth_ = FormTooth(chain_, N);
  ShowHub();
  ShowKeyseat();
  picture_.Draw(SprocketPicture(tooth_, chain_.roller, N, Inches(TXT_BORE).Value()));
}

// A size that no chain has leaves the chain of before.
void SPROCKET::ReadChainAndTeeth() {
  R = ToNumber(CMB_RC);
  if (R == 0) R = ToNumber(kUsualChain);
  if (const RollerChain* chain = FindChain(R)) chain_ = *chain;
  N = ToNumber(txt_teeth);
  if (N >= kLeastTeeth) return;
  GetSession().GetPlatform().Beep();
  N = kLeastTeeth;
  txt_teeth.Show(N);
}

void SPROCKET::ShowLength(TextField& field, Double inches) {
  if (IsMetric())
    field.Show(inches * kMillimeters, "#.#");
  else
    field.Show(inches, "0.000");
}

void SPROCKET::ShowMainDimensions() {
  ShowLength(TXT_PITCH, chain_.pitch);
  ShowLength(TXT_ROLLER, chain_.roller);
  ShowLength(txt_plate_thickness, chain_.plate);
  ShowLength(TXT_PITCHDIA, SprocketPitchDia(chain_.pitch, N));
  ShowLength(TXT_OUTDIA, SprocketOutsideDia(chain_.pitch, N));
}

void SPROCKET::ShowHub() {
  for (TextField* field : {&TXT_HUBDIA, &TXT_MAXBORE, &TXT_OALENGTH}) field->Clear();
  if (Type() == SprocketType::PlateA) {
    ShowLength(TXT_OALENGTH, chain_.plate);
    return;
  }
  if (Type() >= SprocketType::BushingG) {
    const int bushing = static_cast<int>(Type()) - static_cast<int>(SprocketType::BushingG);
    const BushingHub& hub = kBushings[bushing][IsMetric() ? 1 : 0];
    TXT_HUBDIA.SetText(hub.diameter);
    TXT_MAXBORE.SetText(hub.maxBore);
    TXT_OALENGTH.SetText(hub.length);
    return;
  }
  const auto hub = FindHub(GetSession().ReadTable("SPROCKET.dat"), R, N);
  if (!hub) return;
  const auto show = [this](TextField& field, const std::string& inches) {
    if (IsMetric())
      field.Show(ToNumber(inches) * kMillimeters, "#.#");
    else
      field.SetText(inches);
  };
  show(TXT_HUBDIA, hub->diameter);
  show(TXT_MAXBORE, hub->maxBore);
  show(TXT_OALENGTH, hub->length);
}

// A metric keyseat shows as a text that is no number, so that it is never drawn.
void SPROCKET::ShowKeyseat() {
  B0 = ToNumber(TXT_BORE);
  keyseat_ = IsMetric() ? MetricKeyseat(B0) : InchKeyseat(B0);
  if (keyseat_.width <= 0)
    TXT_KEYSEAT.Clear();
  else if (IsMetric())
    TXT_KEYSEAT.SetText(PlainText(keyseat_.width) + " x " + PlainText(keyseat_.depth));
  else
    TXT_KEYSEAT.Show(keyseat_.width);
  if (Type() == SprocketType::PlateA || Type() == SprocketType::MinBoreB) TXT_KEYSEAT.Clear();
  if (ToNumber(TXT_KEYSEAT) == 0) keyseat_ = {};
}

void SPROCKET::Clear() {
  for (TextField* field :
       {&TXT_BORE, &TXT_PITCHDIA, &TXT_OUTDIA, &TXT_KEYSEAT, &TXT_PITCH, &TXT_ROLLER,
        &txt_plate_thickness, &TXT_HUBDIA, &TXT_MAXBORE, &TXT_OALENGTH})
    field->Clear();
  txt_teeth.Show(Single(kLeastTeeth));
  CMB_SPROCKET_TYPE.SetText("FINISHED BORE");
}

// ---- Scripts ----

Double SPROCKET::Inches(const TextField& field) const {
  const Single value = ToNumber(field);
  return IsMetric() ? value / kMillimeters : Double(value);
}

void SPROCKET::WriteScript(const char* name, Label& progress, Script script) {
  Session& session = GetSession();
  session.Refresh();
  const auto path = session.GetPlatform().ChooseFile(
      {FileDialog::Action::Save, "Script File Name", name, session.DataPath,
       "Script Files (*.scr)|*.scr|All Files (*.*)|*.*"});
  if (!path) return;
  progress.SetCaption("WORKING...");
  session.Refresh();
  List1.SetItems(script({.tooth = tooth_,
                         .type = Type(),
                         .chain = R,
                         .teeth = N,
                         .plate = chain_.plate,
                         .bore = IsMetric() ? B0 / kMillimeters : Double(B0),
                         .keyWidth = keyseat_.width,
                         .keyDepth = keyseat_.depth,
                         .hub = Inches(TXT_HUBDIA),
                         .length = Inches(TXT_OALENGTH),
                         .metric = IsMetric()}));
  WriteFile(*path, ScriptBytes(List1.Items()));
  progress.SetCaption("FINISHED");
  Timer1.SetEnabled(true);
}

}  // namespace korvane
