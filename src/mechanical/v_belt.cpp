#include "mechanical/v_belt.h"

#include <algorithm>

#include "frame/codepage.h"
#include "frame/delimited.h"
#include "frame/search.h"

namespace korvane {
namespace {

constexpr std::size_t kMostRows = 250;
constexpr int kCandidate = 100;  // rpm off, up to which a pair is listed
constexpr const char* kFrames = "NEMAFRAM.DAT";

constexpr Color kTooClose = Color::Bgr(0x8080FF);
constexpr Color kClose = Color::Bgr(0xC0C0FF);

// The sizes of shafts are never told, so that of all sheaves those without a bore of their own, or
// with the bore of a bushing, pass.
constexpr const char* kShaftBore = "";
constexpr const char* kBushed = "H";

/// What the rating formula adds to a pitch diameter, in inches.
double EffectiveAddition(std::string_view section) {
  if (section == "A") return 0.172;
  if (section == "B") return 0.3;
  if (section == "C") return 0.4;
  if (section == "D") return -0.2;
  return 0;
}

// ---- Pictures ----

Drawing Padlock(bool locked) {
  Drawing drawing{28, 30, {}};
  std::vector<Point> shackle = Arc({14, 11}, 6, 180, 360);
  if (locked) {
    shackle.insert(shackle.begin(), {8, 16});
    shackle.push_back({20, 16});
  } else {
    for (Point& point : shackle) point.y -= 3;
    shackle.insert(shackle.begin(), {8, 16});
    shackle.push_back({20, 10});
  }
  drawing.shapes.emplace_back(Path{shackle, locked ? Ink::Accent : Ink::Line, {}, 2});
  drawing.shapes.emplace_back(Path{{{5, 16}, {23, 16}, {23, 28}, {5, 28}, {5, 16}},
                                   locked ? Ink::Accent : Ink::Line,
                                   Ink::Body,
                                   1.5});
  drawing.shapes.emplace_back(Path{Arc({14, 21}, 1.5, 0, 360), Ink::Line, {}, 1.2});
  drawing.shapes.emplace_back(Path{{{14, 22.5}, {14, 25.5}}, Ink::Line, {}, 1.2});
  return drawing;
}

/// A sheave whose halves stand apart, with the belt between them and arrows along its shaft.
Drawing VariablePitch() {
  Drawing drawing{90, 60, {}};
  for (const double side : {-1.0, 1.0}) {
    const double x = 45 + side * 8;
    for (const double up : {-1.0, 1.0})
      drawing.shapes.emplace_back(Path{{{x, 30 + up * 4},
                                        {x, 30 + up * 12},
                                        {x + side * 6, 30 + up * 26},
                                        {x + side * 10, 30 + up * 26},
                                        {x + side * 10, 30 + up * 4},
                                        {x, 30 + up * 4}},
                                       Ink::Line,
                                       Ink::Body});
    drawing.shapes.emplace_back(
        Path{{{45 + side * 38, 30}, {45 + side * 24, 30}}, Ink::Accent, {}, 1.5});
    drawing.shapes.emplace_back(Path{
        {{45 + side * 30, 26}, {45 + side * 24, 30}, {45 + side * 30, 34}}, Ink::Accent, {}, 1.5});
  }
  drawing.shapes.emplace_back(
      Path{{{39, 8}, {51, 8}, {48.5, 14}, {41.5, 14}, {39, 8}}, Ink::Accent, Ink::Accent});
  return drawing;
}

}  // namespace

std::vector<Sheave> ParseSheaves(std::string_view bytes) {
  const std::string text = FromCodePage(bytes);
  DelimitedReader reader(text);
  reader.Line();
  reader.Line();
  std::vector<Sheave> rows(1);
  while (!reader.AtEnd()) {
    if (rows.size() > kMostRows) failures::SubscriptOutOfRange();
    Sheave& row = rows.emplace_back();
    row.type = reader.Text();
    row.section = reader.Text();
    row.pdMin = reader.Number();
    row.pdMax = reader.Number();
    row.outside = reader.Number();
    row.bore = reader.Text();
    row.bushing = reader.Text();
    row.partNumber = reader.Text();
    row.pd = (row.pdMax + row.pdMin) / 2;
  }
  return rows;
}

BeltData ParseBeltData(std::string_view bytes, std::string_view section) {
  const std::string text = FromCodePage(bytes);
  DelimitedReader reader(text);
  BeltData belt;
  while (!reader.AtEnd()) {
    const std::string name = reader.Text();
    for (Double* coefficient :
         {&belt.c1, &belt.c2, &belt.c3, &belt.c4, &belt.k4, &belt.k3, &belt.k2, &belt.k1, &belt.k0})
      *coefficient = reader.Number();
    if (name == section) break;
  }
  return belt;
}

Double BeltPower(const BeltData& belt, std::string_view section, Single larger, Single smaller,
                 Single centerDistance, Single rpm) {
  const Double x = (larger - smaller) / centerDistance;
  const Double arc =
      1 - 0.1243 * x - 0.0583 * Power(x, 2) + 0.0388 * Power(x, 3) - 0.032 * Power(x, 4);

  const Double dHi = larger + EffectiveAddition(section);
  const Double d = smaller + EffectiveAddition(section);
  const Double sr = dHi / d;
  const Double ratio = belt.k4 * Power(sr, 4) + belt.k3 * Power(sr, 3) + belt.k2 * Power(sr, 2) +
                       belt.k1 * sr + belt.k0;
  const Double length =
      Power(dHi - d, 2) / (4 * centerDistance) + 1.57 * (dHi + d) + 2 * centerDistance;
  const Double lengthFactor = 0.2175 * Ln(length) + 0.083;

  const Single r = rpm / 1000;
  const Double rd = r * d;
  const Double base =
      rd * (belt.c1 - belt.c2 / d - belt.c3 * Power(rd, 2) - belt.c4 * Log10(rd)) + r * ratio;
  return lengthFactor * arc * base;
}

V_BELT::V_BELT(Session& session)
    : CalculatorWindow(session, {.name = "V_BELT",
                                 .title = " V-Belt Drive Calculations",
                                 .helpPage = "mechanical_v-belt_drives.html"}),
      Line1(*this, "Line1", "Sheave of variable pitch", VariablePitch()),
      pic_driver_locked(*this, "pic_driver_locked", "Driver is locked", Padlock(true)),
      pic_driver_unlocked(*this, "pic_driver_unlocked", "Driver is unlocked", Padlock(false)),
      pic_driven_locked(*this, "pic_driven_locked", "Driven sheave is locked", Padlock(true)),
      pic_driven_unlocked(*this, "pic_driven_unlocked", "Driven sheave is unlocked",
                          Padlock(false)),
      file{"V-BELT DRIVES",
           "v_belt.dta",
           "Load data...",
           {WordRecord("Driver type",
                       {{OPT_DRIVER_FIXED, "Fixed"}, {OPT_DRIVER_VARIABLE, "Variable"}}),
            {"Driven type", [] { return std::string("Fixed"); }, [](const std::string&) {}},
            TextRecord("Driver rpm", TXT_DRIVER_RPM),
            // The window has no selector of shaft sizes: saving and loading end here with the
            // message of a failure.
            {"Driver shaft dia", []() -> std::string { failures::ObjectNotSet(); },
             [](const std::string&) { failures::ObjectNotSet(); }}},
           [this] {
             ShowLockState();
             SelectSheaves();
           }} {
  List1.MakeFixedPitch();
  List1.Hide();
  Text1.Hide();
  Text1.MakeFreeText();
  Text1.SetLocked(true);
  txt_loading.MakeFreeText();
  txt_loading.SetLocked(true);
  CMB_MOTOR_FRAME_SIZE.SetText("56");

  CMB_SECTION.onSelect = [this] { ChooseSection(); };
  CMB_DRIVER_PD.onSelect = [this] { LockDriver(); };
  CMB_DRIVEN_PD.onSelect = [this] { LockDriven(); };
  OPT_DRIVER_FIXED.onClick = [this] { ChooseDriverType("FIXED", false); };
  OPT_DRIVER_VARIABLE.onClick = [this] { ChooseDriverType("VARIABLE", true); };
  TXT_DRIVER_RPM.onEnter = TXT_DRIVEN_RPM.onEnter = [this] { SelectSheaves(); };
  TXT_CENTER_DIST.onEnter = [this] {
    MeasureBelt();
    NumberBelt();
  };
  // The frame's place in its list would go to the selector of shaft sizes, which is not there.
  CMB_MOTOR_FRAME_SIZE.onSelect = [this] {
    for (TextField* field : {&TXT_CENTER_DIST, &txt_belt_length, &txt_clearance}) field->Clear();
    failures::ObjectNotSet();
  };

  const auto onPadlock = [this](Picture& locked, Picture& unlocked, short& lock, auto lockIt) {
    unlocked.onClick = [this, lockIt] {
      (this->*lockIt)();
      ShowLockState();
      SelectSheaves();
    };
    locked.onClick = [this, &lock] {
      KeepList = false;
      lock = 0;
      ShowLockState();
      SelectSheaves();
    };
  };
  onPadlock(pic_driver_locked, pic_driver_unlocked, DriverLock, &V_BELT::LockDriver);
  onPadlock(pic_driven_locked, pic_driven_unlocked, DrivenLock, &V_BELT::LockDriven);

  List1.onSelect = [this] { TakeCombination(); };
  BTN_SELECT_SHEAVES.onClick = [this] { SelectSheaves(); };
  Command1.onClick = [this] { AutoSelect(); };
  BTN_CALCULATE.onClick = [this] { RateBelt(); };
  BTN_SHOW.onClick = [this] {
    const bool show = !List1.IsVisible();
    List1.SetVisible(show);
    Text1.SetVisible(show);
    BTN_SHOW.SetCaption(show ? "Hide Combinations" : "Show Combinations");
  };
  Command4.onClick = [this] {
    GetSession().Unload("DISPLAY");  // a table that is open keeps its file
    GetSession().DataFileName = kFrames;
    GetSession().Show("DISPLAY");
  };
  ShowsResultsIn({&TXT_BEST_MATCH_RPM, &TXT_SPEED_RATIO, &txt_belt_length, &txt_clearance,
                  &TXT_BELT_NUMBER, &TXT_BELT_PART_NUMBER, &TXT_HP_CORR, &txt_max_rpm, &TXT_MIN_RPM,
                  &TXT_DRIVER_OD, &TXT_DRIVER_PART_NUMBER, &TXT_DRIVER_BUSHING_PN, &TXT_DRIVEN_OD,
                  &TXT_DRIVEN_PART_NUMBER, &TXT_DRIVEN_BUSHING_PN});

  SetDefault(BTN_SELECT_SHEAVES);
  LoadsWith(Command5, file);
  SavesWith(Command6, file);
  PrintsWith(BTN_PRINT_FORM);
  HelpsWith(Command2);
  ExitsWith(BTN_QUIT);
}

// The two sides have their rows at one height.
Layout V_BELT::Arrangement() {
  return Column(
      {Row({Form({CMB_SECTION}), txt_loading}),
       Row({Column({Box(driver_, {Form({TXT_DRIVER_RPM, CMB_DRIVER_PD, TXT_DRIVER_OD,
                                        TXT_DRIVER_PART_NUMBER, TXT_DRIVER_BUSHING_PN}),
                                  Row({OPT_DRIVER_FIXED, OPT_DRIVER_VARIABLE, Stretch(), Line1}),
                                  Form({txt_max_rpm, TXT_MIN_RPM})}),
                    Stretch()}),
            Column({Box(driven_, {Form({TXT_DRIVEN_RPM, CMB_DRIVEN_PD, TXT_DRIVEN_OD,
                                        TXT_DRIVEN_PART_NUMBER, TXT_DRIVEN_BUSHING_PN})}),
                    lock_hint_,
                    Row({pic_driver_locked, pic_driver_unlocked, lock_driver_, Stretch(),
                         pic_driven_locked, pic_driven_unlocked, lock_driven_}),
                    Stretch()}),
            Column({Box(drive_,
                        {Form({CMB_MOTOR_FRAME_SIZE, TXT_CENTER_DIST}), Rule(),
                         Form({TXT_BEST_MATCH_RPM, TXT_SPEED_RATIO, txt_belt_length, txt_clearance,
                               TXT_BELT_NUMBER, TXT_BELT_PART_NUMBER, TXT_HP_CORR})}),
                    Stretch()}),
            Column({Text1, List1})}),
       Row({BTN_SELECT_SHEAVES, Command1, BTN_CALCULATE, BTN_SHOW, Command4, Stretch(), Command5,
            Command6, BTN_PRINT_FORM, Command2, BTN_QUIT})});
}

void V_BELT::Load() {
  CalculatorWindow::Load();
  txt_loading.SetText("LOADING DATA");
  sheaves_ = ParseSheaves(GetSession().ReadTable("SHEAVES.dat"));
  SheaveCount = static_cast<short>(sheaves_.size() - 1);
  CMB_SECTION.SetText("A");
  for (Control* variable : std::initializer_list<Control*>{&Line1, &LBL_MIN_RPM, &LBL_MAX_RPM,
                                                           &TXT_MIN_RPM, &txt_max_rpm})
    variable->Hide();
  RefreshSheaveLists();
  KeepList = false;
  AutoSelect();
}

// ---- Choices ----

bool V_BELT::Passes(const Sheave& row, const std::string& type) const {
  return row.section == Section && row.type == type &&
         (row.bore == kShaftBore || row.bore == kBushed);
}

/// By the pitch diameter as the lists show it: a mean of two may hold more digits than its text.
short V_BELT::FindRow(Single pd, const std::string& type) const {
  for (short i = 1; i <= SheaveCount; ++i) {
    if (ToNumber(PlainText(At(i).pd)) == pd && Passes(At(i), type)) return i;
  }
  return 0;
}

void V_BELT::RefreshSheaveLists() {
  if (Refilling) return;
  Refilling = true;
  DriverLock = 0;
  DrivenLock = 0;
  std::vector<std::string> drivers, drivens;
  for (const Sheave& row : sheaves_) {
    if (row.section != Section) continue;
    if (row.type == DriverType) drivers.push_back(PlainText(row.pd));
    if (row.type == "FIXED") drivens.push_back(PlainText(row.pd));
  }
  for (const auto& [combo, items] :
       {std::pair{&CMB_DRIVER_PD, &drivers}, {&CMB_DRIVEN_PD, &drivens}}) {
    combo->SetItems(*items);
    if (!items->empty()) combo->Select(static_cast<int>(items->size()) - 1);
  }
  txt_loading.Hide();
  Refilling = false;
}

void V_BELT::ChooseDriverType(const char* type, bool variable) {
  DriverType = type;
  for (Control* control : std::initializer_list<Control*>{&Line1, &LBL_MIN_RPM, &LBL_MAX_RPM,
                                                          &TXT_MIN_RPM, &txt_max_rpm})
    control->SetVisible(variable);
  RefreshSheaveLists();
  SelectSheaves();
  AutoSelect();
}

void V_BELT::ChooseSection() {
  Section = CMB_SECTION.Text();
  RefreshSheaveLists();
  SelectSheaves();
  AutoSelect();
}

void V_BELT::LockDriver() {
  DriverLock = FindRow(ToNumber(CMB_DRIVER_PD), DriverType);
  KeepList = false;
  if (!Refilling) SelectSheaves();
}

void V_BELT::LockDriven() {
  DrivenLock = FindRow(ToNumber(CMB_DRIVEN_PD), "FIXED");
  KeepList = false;
  if (!Refilling) SelectSheaves();
}

void V_BELT::AutoSelect() {
  DriverLock = 0;
  DrivenLock = 0;
  SelectSheaves();
}

// A candidate that the person points at locks both of its sheaves; the list stays.
void V_BELT::TakeCombination() {
  if (walking_ || List1.Index() < 0) return;
  const std::string row = PaddedRight(List1.Text(), 20);
  const Single driver = ToNumber(row.substr(5, 7));
  const Single driven = ToNumber(row.substr(13, 7));
  DriverLock = FindRow(driver, DriverType);
  DrivenLock = FindRow(driven, "FIXED");
  KeepList = true;
  CMB_DRIVER_PD.SetText(PlainText(driver));
  CMB_DRIVEN_PD.SetText(PlainText(driven));
  SelectSheaves();
}

void V_BELT::ShowLockState() {
  pic_driver_locked.SetVisible(DriverLock != 0);
  pic_driver_unlocked.SetVisible(DriverLock == 0);
  pic_driven_locked.SetVisible(DrivenLock != 0);
  pic_driven_unlocked.SetVisible(DrivenLock == 0);
}

// ---- The search ----

void V_BELT::SelectSheaves() {
  ShowLockState();
  if (!KeepList) List1.SetItems({});
  txt_loading.SetText("CHECKING COMBINATIONS");
  txt_loading.Show();
  DriverRpm = ToNumber(TXT_DRIVER_RPM);
  TargetRpm = ToNumber(TXT_DRIVEN_RPM);
  Section = CMB_SECTION.Text();

  const bool found = DriverLock != 0 && DrivenLock != 0 ? TakeLockedPair() : FindPair();
  TXT_BEST_MATCH_RPM.Show(BestRpm, "0");
  if (DriverRow != 0) ShowSpeeds();
  if (found)
    FillSides();
  else
    EmptySides();
  if (DriverRow != 0) {
    PlaceShafts();
    MeasureBelt();
    NumberBelt();
    RateBelt();
  }
  txt_loading.Hide();
}

bool V_BELT::TakeLockedPair() {
  if (!KeepList)
    for (const char* row : {" ", "Both PD's locked in:", " ", "No combinations checked."})
      List1.AddItem(row);
  DriverRow = DriverLock;
  DrivenRow = DrivenLock;
  BestRpm = RpmOf(DriverRow, DrivenRow);
  return true;
}

bool V_BELT::FindPair() {
  const bool free = DriverLock == 0 && DrivenLock == 0;
  Search search(GetSession());
  const Single best =
      WalkPairs(sheaves_, RowsFor(DriverType, DriverLock), RowsFor("FIXED", DrivenLock), DriverRpm,
                TargetRpm, [&](const SheavePair& pair, bool closest) {
                  if (closest) {
                    BestRpm = pair.rpm;
                    DriverRow = pair.driver;
                    DrivenRow = pair.driven;
                    if (free) TXT_BEST_MATCH_RPM.Show(pair.rpm);
                  }
                  if (free ? pair.diff < kCandidate : !KeepList)
                    List1.AddItem(ListRow(pair.driver, pair.driven));
                  search.Stepped();
                });
  if (best >= kNothingFound) return false;
  SelectChosenRow();
  return true;
}

/// The locked row, or all that pass.
std::vector<short> V_BELT::RowsFor(const std::string& type, short locked) const {
  if (locked != 0) return {locked};
  std::vector<short> rows;
  for (short i = 1; i <= SheaveCount; ++i)
    if (Passes(At(i), type)) rows.push_back(i);
  return rows;
}

Single V_BELT::RpmOf(short driver, short driven) const {
  return (At(driver).pd * DriverRpm) / At(driven).pd;
}

std::string V_BELT::ListRow(short driver, short driven) const {
  return PaddedLeft(Format(RpmOf(driver, driven), "#"), 4) + "  " +
         PaddedRight(PlainText(At(driver).pd), 8) + PaddedRight(PlainText(At(driven).pd), 5);
}

void V_BELT::SelectChosenRow() {
  const auto& items = List1.Items();
  const auto found = std::find(items.begin(), items.end(), ListRow(DriverRow, DrivenRow));
  if (found == items.end()) return;
  walking_ = true;
  List1.Select(static_cast<int>(found - items.begin()));
  walking_ = false;
}

void V_BELT::ShowSpeeds() {
  const Single ratio = At(DrivenRow).pd / At(DriverRow).pd;
  TXT_SPEED_RATIO.Show(ratio < 1 ? 1 / ratio : ratio, "0.000");
  const Single driven = At(DrivenRow).pdMin;
  txt_max_rpm.Show(At(DriverRow).pdMax * DriverRpm / driven, "0");
  TXT_MIN_RPM.Show(At(DriverRow).pdMin * DriverRpm / driven, "0");
}

void V_BELT::FillSides() {
  ShowSide(DriverRow, CMB_DRIVER_PD, TXT_DRIVER_OD, TXT_DRIVER_PART_NUMBER, TXT_DRIVER_BUSHING_PN);
  ShowSide(DrivenRow, CMB_DRIVEN_PD, TXT_DRIVEN_OD, TXT_DRIVEN_PART_NUMBER, TXT_DRIVEN_BUSHING_PN);
}

void V_BELT::ShowSide(short row, Combo& pd, TextField& outside, TextField& part,
                      TextField& bushing) {
  const Sheave& sheave = At(row);
  std::string bushingPart;
  if (sheave.bore == kBushed)
    for (const Sheave& other : sheaves_)
      if (other.type == "BUSHING" && other.bore == kShaftBore) bushingPart = other.partNumber;
  part.SetText(sheave.partNumber);
  pd.SetText(PlainText(sheave.pd));
  outside.Show(sheave.outside);
  bushing.SetText(bushingPart);
}

void V_BELT::EmptySides() {
  for (TextField* field : {&TXT_DRIVER_PART_NUMBER, &TXT_DRIVEN_PART_NUMBER, &TXT_DRIVER_OD,
                           &TXT_DRIVEN_OD, &TXT_DRIVER_BUSHING_PN, &TXT_DRIVEN_BUSHING_PN})
    field->Clear();
  CMB_DRIVER_PD.SetText("");
  CMB_DRIVEN_PD.SetText("");
}

// The shortest drive of good practice: at equal sheaves the centre distance is twice their
// diameter.
void V_BELT::PlaceShafts() {
  const Single larger = std::max(At(DriverRow).outside, At(DrivenRow).outside);
  const Single smaller = std::min(At(DriverRow).outside, At(DrivenRow).outside);
  const Single distance = 0.5 * (3 * smaller + larger);
  TXT_CENTER_DIST.Show(std::max(distance, larger));
}

void V_BELT::MeasureBelt() {
  const Single distance = ToNumber(TXT_CENTER_DIST);
  if (distance <= 0 || DriverRow == 0) return;
  const Single driver = At(DriverRow).outside;
  const Single driven = At(DrivenRow).outside;
  txt_belt_length.Show(
      (Power(driver - driven, 2) / (4 * distance)) + (1.57 * (driver + driven) + 2 * distance),
      "0.000");
  const Single clearance = (distance - driver / 2) - driven / 2;
  txt_clearance.Show(clearance, "0.000");
  txt_clearance.SetBack(clearance <= 0.5  ? kTooClose
                        : clearance < 1.0 ? kClose
                                          : Color::ButtonFace());
}

void V_BELT::NumberBelt() {
  const int number = ToInteger32(Int(ToNumber(txt_belt_length) + 0.5)) - 2;
  TXT_BELT_NUMBER.SetText(" " + Section + SignedText(number));
  TXT_BELT_PART_NUMBER.SetText(PlainText(107000 + number));
}

void V_BELT::RateBelt() {
  const Single distance = ToNumber(TXT_CENTER_DIST);
  const Single driver = ToNumber(CMB_DRIVER_PD);
  const Single driven = ToNumber(CMB_DRIVEN_PD);
  if (distance <= 0 || driver <= 0 || driven <= 0) return;
  const Single fastest =
      std::max({ToNumber(TXT_DRIVER_RPM), ToNumber(TXT_DRIVEN_RPM), ToNumber(txt_max_rpm)});
  const BeltData belt = ParseBeltData(GetSession().ReadTable("BELTDATA.DAT"), Section);
  const Double power = BeltPower(belt, Section, std::max(driver, driven), std::min(driver, driven),
                                 distance, fastest);
  TXT_HP_CORR.Show(power, "0.00");
  TXT_HP_CORR.SetBack(power <= 0 ? kTooClose : Color::ButtonFace());
  NumberBelt();
}

}  // namespace korvane
