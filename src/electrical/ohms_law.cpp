#include "electrical/ohms_law.h"

#include "frame/session.h"

namespace korvane {
namespace {

constexpr Color kChosen = Color::Bgr(0xFFFF80);
constexpr Color kWhite = Color::Bgr(0xFFFFFF);

struct FieldCaptions {
  const char* wanted;
  std::array<const char*, 4> captions;  // of Text1 to Text4
};

constexpr FieldCaptions kCaptions[] = {
    {"E", {"I ", "R", "W", "E"}},
    {"I", {"E", "R", "W", "I "}},
    {"R", {"E", "I ", "W", "R"}},
    {"W", {"E", "I ", "R", "W"}},
};

}  // namespace

std::optional<Double> SolveOhmsLaw(const std::string& wanted, Single p, Single q, Single r) {
  std::optional<Double> result;
  const bool pq = p > 0 && q > 0;
  const bool pr = p > 0 && r > 0;
  const bool qr = q > 0 && r > 0;
  if (wanted == "E") {  // from I, R, W
    if (pq) result = p * q;
    if (pr) result = r / p;
    if (qr) result = Power(q * r, 0.5);
  } else if (wanted == "I") {  // from E, R, W
    if (pq) result = p / q;
    if (pr) result = r / p;
    if (qr) result = Power(r / q, 0.5);
  } else if (wanted == "R") {  // from E, I, W
    if (pq) result = p / q;
    if (pr) result = Power(p, 2) / r;
    if (qr) result = r / Power(q, 2);
  } else {  // W from E, I, R
    if (pq) result = q * p;
    if (qr) result = r * Power(q, 2);
    if (pr) result = Power(p, 2) / r;
  }
  return result;
}

OHMS_LAW::OHMS_LAW(Session& session)
    : CalculatorWindow(session, {.name = "OHMS_LAW",
                                 .title = "Ohm's Law Calculations",
                                 .helpPage = "electrical_ohms_law_calculations.html"}) {
  lbl_select.MakeHeading();
  for (Label* quantity : {&txt_e, &txt_i, &txt_r, &txt_w})
    quantity->onClick = [this, quantity] { ChooseQuantity(quantity->Caption()); };

  OnFormula({&Label1}, "E", Text1, Text2);
  OnFormula({&Label2, &Label3}, "E", Text1, Text3);
  OnFormula({&Label4}, "E", Text2, Text3);
  OnFormula({&Label6, &Label7}, "I", Text1, Text2);
  OnFormula({&Label10, &Label11}, "I", Text1, Text3);
  OnFormula({&Label8, &Label9}, "I", Text2, Text3);
  OnFormula({&Label26, &Label27}, "R", Text1, Text2);
  OnFormula({&Label14, &Label15, &Label21}, "R", Text1, Text3);
  OnFormula({&Label16, &Label17, &Label20}, "R", Text2, Text3);
  OnFormula({&Label5}, "W", Text1, Text2);
  OnFormula({&Label12, &Label13, &Label22}, "W", Text1, Text3);
  OnFormula({&Label23, &Label24, &Label25}, "W", Text2, Text3);

  btn_calc.onClick = [this] { SolveOhm(); };
  ComputesAndMovesOn({&Text1, &Text2, &Text3}, [this] { SolveOhm(); });
  PassesFocusOn({&Text4});
  Command2.onClick = [this] { Clear(); };
  SetDefault(btn_calc);
  PrintsWith(btn_print);
  HelpsWith(btn_help);
  ExitsWith(btn_exit);
  Timer1.onTick = [this] { lbl_select.SetVisible(!lbl_select.IsVisible()); };
}

Layout OHMS_LAW::Arrangement() {
  const auto sign = [this](const char* text) -> Label& {
    return *signs_.emplace_back(std::make_unique<Label>(*this, "", text));
  };
  // The left side chooses the formula like the labels on its right side.
  const auto formula = [&](const char* left, const Label& chooses, Layout right) {
    Label& side = sign(left);
    side.onClick = chooses.onClick;
    return Row({Term({side, std::move(right)}), Stretch()});
  };
  const auto quantity = [](Label& letter, Label& unit) { return Row({letter, unit, Stretch()}); };
  const auto squared = [](Label& letter, Label& two) { return Term({letter, two}); };
  return Column(
      {lbl_select,
       Cells(
           {Row({quantity(txt_e, unit_e), quantity(txt_i, unit_i), quantity(txt_r, unit_r),
                 quantity(txt_w, unit_w)}),
            Row({formula("E = ", Label1, Label1), formula("I = ", Label6, Fraction(Label6, Label7)),
                 formula("R = ", Label26, Fraction(Label26, Label27)),
                 formula("W = ", Label5, Label5)}),
            Row({formula("E = ", Label2, Fraction(Label2, Label3)),
                 formula("I = ", Label10, Fraction(Label10, Label11)),
                 formula("R = ", Label14, Fraction(squared(Label14, Label21), Label15)),
                 formula("W = ", Label12, Fraction(squared(Label12, Label22), Label13))}),
            Row({formula("E = ", Label4, Label4),
                 formula("I = ", Label8,
                         Term({sign("\u221A("), Fraction(Label8, Label9), sign(")")})),
                 formula("R = ", Label16, Fraction(Label16, squared(Label17, Label20))),
                 formula("W = ", Label23, Term({Label23, Label24, Label25}))})}),
       Rule(), Row({Column({Form({Text1, Text2, Text3})}), Column({Form({Text4}), Stretch()})}),
       Row({btn_calc, Stretch(), Command2, btn_print, btn_help, btn_exit})});
}

void OHMS_LAW::Load() {
  CalculatorWindow::Load();
  for (Label* quantity : {&txt_e, &txt_i, &txt_r, &txt_w}) quantity->SetBack(kWhite);
  btn_help.SetFocus();
}

void OHMS_LAW::OnFormula(const std::vector<Label*>& labels, const char* quantity, TextField& first,
                         TextField& second) {
  for (Label* label : labels)
    label->onClick = [this, quantity, &first, &second] {
      ChooseQuantity(quantity);
      ShowInputs(first, second);
    };
}

void OHMS_LAW::ChooseQuantity(const std::string& quantity) {
  Timer1.SetEnabled(false);
  lbl_select.Hide();
  for (Label* label : {&txt_e, &txt_i, &txt_r, &txt_w})
    label->SetBack(label->Caption() == quantity ? kChosen : kWhite);
  for (const FieldCaptions& row : kCaptions) {
    if (row.wanted != quantity) continue;
    lbl_1.SetCaption(row.captions[0]);
    lbl_2.SetCaption(row.captions[1]);
    lbl_3.SetCaption(row.captions[2]);
    lbl_4.SetCaption(row.captions[3]);
  }
  Solved = quantity;
  Clear();
}

void OHMS_LAW::ShowInputs(const TextField& first, const TextField& second) {
  const auto isShown = [&](const TextField* field) { return field == &first || field == &second; };
  // Shown before others hide, so that the focus of a field that hides finds its neighbour there.
  for (const bool shows : {true, false})
    for (TextField* field : {&Text1, &Text2, &Text3})
      if (isShown(field) == shows) {
        field->CaptionBeside().SetVisible(shows);
        field->SetVisible(shows);
      }
}

void OHMS_LAW::FocusInput() {
  if (Text1.IsVisible())
    Text1.SetFocus();
  else
    Text2.SetFocus();
}

void OHMS_LAW::Clear() {
  for (TextField* field : {&Text1, &Text2, &Text3, &Text4}) field->Clear();
  FocusInput();
}

void OHMS_LAW::SolveOhm() {
  if (Solved.empty()) return;
  const Single p = ToNumber(Text1);
  const Single q = ToNumber(Text2);
  const Single r = ToNumber(Text3);
  if (p == 0 && q * r == 0) return;
  const std::optional<Double> result = SolveOhmsLaw(Solved, p, q, r);
  Text4.ShowUnlessUnset(result, "#.######");
  const Double shown = result.value_or(0);
  if (shown > 1000000 || shown < 0.001) Text4.ShowUnlessUnset(result, "0.000E+0");
}

}  // namespace korvane
