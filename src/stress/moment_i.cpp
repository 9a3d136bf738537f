#include "stress/moment_i.h"

#include "frame/session.h"

namespace korvane {
namespace {

constexpr double pi = 3.14159265;

Double Squared(Double x) { return Power(x, 2); }
Double Cubed(Double x) { return Power(x, 3); }

}  // namespace

struct MOMENT_I::Kind {
  Section section;
  const char* picture;      // the name of its thumbnail
  const char* description;  // of it
  std::vector<const char*> captions;
  bool (MOMENT_I::*compute)();
  Mask lengths = "#.##########";  // of area and y
  Mask others = "#.##########";
};

const std::array<MOMENT_I::Kind, 10> MOMENT_I::kKinds = {{
    {Section::Rectangle, "pic1", "Solid rectangle", {"b", "d"}, &MOMENT_I::RectangleSolid},
    {Section::HollowRectangle,
     "Pic2",
     "Hollow rectangle",
     {"b", "d", "h", "w"},
     &MOMENT_I::RectangleHollow},
    {Section::Round, "Pic3", "Solid circle", {"OD"}, &MOMENT_I::RoundSolid},
    {Section::HollowRound, "Pic4", "Hollow circle", {"OD", " ID"}, &MOMENT_I::RoundHollow},
    {Section::TriangleAboutCenter,
     "Pic5",
     "Triangle about its center",
     {"b", "d"},
     &MOMENT_I::TriangleAboutCenter},
    {Section::TriangleAboutBottom,
     "Pic6",
     "Triangle about its bottom",
     {"b", "d"},
     &MOMENT_I::TriangleAboutBottom},
    {Section::Trapezoid, "Pic7", "Trapezoid", {"b", "d", "a"}, &MOMENT_I::Trapezoid},
    {Section::Angle, "Pic8", "Angle", {"b", "d", "t", "s"}, &MOMENT_I::Angle},
    {Section::Channel, "Pic9", "Channel", {"b", "d", "t", "s"}, &MOMENT_I::Beam},
    {Section::IBeam, "Pic10", "I-beam", {"b", "d", "t", "s"}, &MOMENT_I::Beam, "#.###", "#.######"},
}};

MOMENT_I::MOMENT_I(Session& session)
    : CalculatorWindow(session, {.name = "MOMENT_I",
                                 .title = "Moment of Inertia & Section Modulus",
                                 .helpPage = "mechanical_moment_of_inertia.html"}) {
  std::vector<Word> words;
  for (std::size_t i = 0; i < kKinds.size(); ++i) {
    const Kind& kind = kKinds[i];
    pictures_[i] = std::make_unique<Picture>(*this, kind.picture, kind.description,
                                             SectionThumbnail(kind.section));
    Option& option = *Frame1.Options()[i];
    option.onClick = [this] { SelectSection(); };
    words.push_back({option, option.Name()});
  }
  for (TextField* field : {&T1, &T2, &T3, &T4})
    field->onEnter = [this, field] {
      ComputeSection();
      if (field == &T1) T1.SelectAll();
      if (!Option3.IsOn()) GetSession().SendTab();  // that section has one field
    };
  SelectsOnFocus({&T1, &T2, &T3, &T4, &txt_area, &txt_y, &txt_I, &txt_Z, &txt_k});
  ShowsResultsIn({&txt_area, &txt_y, &txt_I, &txt_Z, &txt_k});

  file = {"MOMENT OF INERTIA",
          "moment.dta",
          "Save as...",  // though it opens one
          {WordRecord("X-section option", words), TextRecord("DIM1", T1), TextRecord("DIM2", T2),
           TextRecord("DIM3", T3), TextRecord("DIM4", T4)},
          [this] { ComputeSection(); }};
  Command4.onClick = [this] { ComputeSection(); };
  SetDefault(Command4);
  LoadsWith(btn_load, file);
  SavesWith(btn_save, file);
  PrintsWith(Command1);
  HelpsWith(Command3);
  ExitsWith(Command2);
}

Layout MOMENT_I::Arrangement() {
  std::vector<Layout> rows;
  for (std::size_t i = 0; i < kKinds.size(); ++i)
    rows.push_back(Row({*pictures_[i], *Frame1.Options()[i]}));
  return Column({Row({Column({PIC, Label1, Form({T1, T2, T3, T4}), Rule(),
                              Form({txt_area, txt_y, txt_I, txt_Z, txt_k}), Stretch()}),
                      Column({Box(Frame1, {Cells(std::move(rows))}), Stretch()})}),
                 Row({Command4, Stretch(), btn_load, btn_save, Command1, Command3, Command2})});
}

void MOMENT_I::Load() {
  CalculatorWindow::Load();
  SelectSection();
}

const MOMENT_I::Kind& MOMENT_I::Chosen() const {
  for (std::size_t i = 0; i < kKinds.size(); ++i)
    if (Frame1.Options()[i]->IsOn()) return kKinds[i];
  failures::ObjectNotSet();
}

// With its fields empty, the section's procedure only lays out its inputs.
void MOMENT_I::SelectSection() {
  for (TextField* field : {&T1, &T2, &T3, &T4, &txt_area, &txt_y, &txt_I, &txt_Z, &txt_k})
    field->Clear();
  PIC.Draw(SectionSketch(Chosen().section));
  SectionIndex = static_cast<short>(&Chosen() - kKinds.data() + 1);
  ComputeSection();
}

void MOMENT_I::ComputeSection() {
  const Kind& kind = Chosen();
  const std::array<TextField*, 4> fields = {&T1, &T2, &T3, &T4};
  const std::array<Label*, 4> captions = {&L1, &L2, &L3, &L4};
  const std::size_t used = kind.captions.size();
  for (std::size_t i = 0; i < used; ++i) dimensions_[i] = ToNumber(*fields[i]);
  for (std::size_t i = 0; i < used; ++i) captions[i]->SetCaption(kind.captions[i]);
  for (std::size_t i = 0; i < fields.size(); ++i) {
    captions[i]->SetVisible(i < used);
    fields[i]->SetVisible(i < used);
  }
  if (!(this->*kind.compute)()) return;
  k = Power(I / area, 0.5);
  txt_k.Show(k, kind.others);
}

void MOMENT_I::TakeArea(Double value) { txt_area.Show(area = value, Chosen().lengths); }
void MOMENT_I::TakeY(Double value) { txt_y.Show(y = value, Chosen().lengths); }
void MOMENT_I::TakeI(Double value) { txt_I.Show(I = value, Chosen().others); }
void MOMENT_I::TakeZ(Double value) { txt_Z.Show(Z = value, Chosen().others); }

bool MOMENT_I::Refuses() {
  GetSession().GetPlatform().Beep();
  return false;
}

// ---- The sections ----

bool MOMENT_I::RectangleSolid() {
  const auto [b, d, unused1, unused2] = dimensions_;
  if (b * d <= 0) return false;
  TakeArea(b * d);
  TakeY(d / 2);
  TakeI(Cubed(d) * b / 12);
  TakeZ(Squared(d) * b / 6);
  return true;
}

bool MOMENT_I::RectangleHollow() {
  const auto [b, d, h, w] = dimensions_;
  if (b * d <= 0 || h * w < 0) return false;
  if (h > d || w > b) return Refuses();
  TakeArea(b * d - h * w);
  TakeY(d / 2);
  TakeI((Cubed(d) * b - w * Cubed(h)) / 12);
  TakeZ((Cubed(d) * b - w * Cubed(h)) / (d * 6));
  return true;
}

bool MOMENT_I::RoundSolid() {
  const Double OD = dimensions_[0];
  if (OD <= 0) return false;
  TakeArea(Squared(OD) * pi / 4);
  TakeY(OD / 2);
  TakeI(Power(OD, 4) * pi / 64);
  TakeZ(Cubed(OD) * pi / 32);
  return true;
}

bool MOMENT_I::RoundHollow() {
  const auto [OD, ID, unused1, unused2] = dimensions_;
  if (OD <= 0 || ID < 0) return false;
  if (ID >= OD) return Refuses();
  TakeArea(pi * (Squared(OD) - Squared(ID)) / 4);
  TakeY(OD / 2);
  TakeI(pi * (Power(OD, 4) - Power(ID, 4)) / 64);
  TakeZ(pi * (Power(OD, 4) - Power(ID, 4)) / (32 * OD));
  return true;
}

bool MOMENT_I::TriangleAboutCenter() {
  const auto [b, d, unused1, unused2] = dimensions_;
  if (b * d <= 0) return false;
  TakeArea(b * d / 2);
  TakeY(2 * d / 3);
  TakeI(Cubed(d) * b / 36);
  TakeZ(Squared(d) * b / 24);
  return true;
}

bool MOMENT_I::TriangleAboutBottom() {
  const auto [b, d, unused1, unused2] = dimensions_;
  if (b * d <= 0) return false;
  TakeArea(b * d / 2);
  TakeY(2 * d / 3);
  TakeI(Cubed(d) * b / 12);
  TakeZ(Squared(d) * b / 12);
  return true;
}

// The area stands where formulas of a trapezoid have its side a.
bool MOMENT_I::Trapezoid() {
  const auto [b, d, a, unused] = dimensions_;
  if (b * d <= 0) return false;
  if (a < 0) return Refuses();
  TakeArea((b + a) * d / 2);
  const Double A = area;
  TakeY((2 * b + A) * d / ((b + A) * 3));
  TakeI(Cubed(d) * (Squared(b) + Squared(A) + 4 * A * b) / ((b + A) * 36));
  TakeZ(Squared(d) * (Squared(b) + Squared(A) + 4 * A * b) / ((2 * b + A) * 12));
  return true;
}

bool MOMENT_I::Angle() {
  const auto [b, d, t, s] = dimensions_;
  if (b * d * t * s <= 0) return false;
  if (b < t || d < s) return Refuses();
  const Double c = b - t;
  const Double yc = (t * Squared(d) + c * Squared(s)) / (2 * (t * d + c * s));  // from the bottom
  TakeY(d - yc);
  TakeArea(t * d + s * c);
  TakeI((b * Cubed(yc) - c * Cubed(yc - s) + t * Cubed(y)) / 3);
  TakeZ(I / y);
  return true;
}

// A channel, or an I-beam.
bool MOMENT_I::Beam() {
  const auto [b, d, t, s] = dimensions_;
  if (b * d * t * s <= 0) return false;
  if (b < t || d < s) return Refuses();
  const Double c = b - t;
  const Double h = d - 2 * s;
  TakeArea(t * d + 2 * s * c);
  TakeY(d / 2);
  TakeI((Cubed(d) * b - c * Cubed(h)) / 12);
  TakeZ(I / y);
  return true;
}

}  // namespace korvane
